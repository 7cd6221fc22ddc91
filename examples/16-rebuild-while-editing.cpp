// Rebuilding while editing: the chosen shape decides which parameters exist, and the panel is built
// anew from inside the hook that tells of the choice.
#include "support/panelwindow.h"

#include <enumdataelement.h>
#include <qtenumdatawidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <string>

class CShapePanel : public CPlainController
{
public:
    void BuildInspector() override
    {
        ClearAllData(); // also empties the view
        auto* shape = new CShape;
        shape->CreateEnum();
        shape->AddEnum("circle", "Circle");
        shape->AddEnum("box", "Box");
        Add(shape, new CQTEnumDataWidget, "Shape");
        shape->SetStrCurrentValue(m_sShape);
        shape->UpdateData();
        if (m_sShape == "circle")
            AddField("Radius");
        else
        {
            AddField("Width");
            AddField("Height");
        }
        m_pView->RecomputeLayout();
    }

private:
    struct CShape : CEnumDataElement
    {
        void InternalValueChanged() override
        {
            // The element dies in BuildInspector: everything it needs is taken before.
            auto* panel = static_cast<CShapePanel*>(m_pController);
            panel->m_sShape = m_sValue;
            panel->BuildInspector();
        }
    };

    void AddField(const char* label)
    {
        auto* element = new CSimpleDataElement;
        Add(element, new CQTSimpleDataWidget, label);
        element->SetStrCurrentValue("10");
        element->UpdateData();
    }

    void Add(CInspectorDataElement* element, CInspectorDataWidget* widget, const char* label)
    {
        AddItem(element, widget, nullptr);
        m_pView->AddElement(element, widget, label, nullptr, nullptr);
    }

    std::string m_sShape = "circle";
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CShapePanel controller;
    CPanelWindow window(controller);
    controller.BuildInspector();
    return Run(application, window);
}
