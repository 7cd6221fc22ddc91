// Buttons send a command and a number to the controller.
#include "support/panelwindow.h"

#include <buttondataelement.h>
#include <qtbuttonwidget.h>
#include <qtstaticwidget.h>
#include <staticdataelement.h>

#include <cstring>
#include <string>

class CCounter : public CPlainController
{
public:
    void Build(CQTInspectorView& view)
    {
        m_pCount = new CStaticDataElement("0", Qt::AlignLeft | Qt::AlignVCenter);
        auto* text = new CQTStaticWidget;
        AddItem(m_pCount, text, nullptr);
        view.AddElement(m_pCount, text, "Count", nullptr, nullptr);
        m_pCountWidget = text;

        auto* steps = view.AddSingleLineContainer("Add", nullptr, nullptr);
        for (unsigned long step : {1ul, 10ul, 100ul})
            AddButton(view, "add", std::to_string(step).c_str(), step, steps);
        AddButton(view, "reset", "Reset", 0, nullptr);
        ConnectDataElements();
    }

    void CallCommand(const char* command, unsigned long value) override
    {
        if (std::strcmp(command, "add") == 0)
            m_ulCount += value;
        else if (std::strcmp(command, "reset") == 0)
            m_ulCount = 0;
        m_pCount->SetText(std::to_string(m_ulCount).c_str());
        m_pCountWidget->update();
    }

private:
    void AddButton(CQTInspectorView& view, const char* command, const char* text,
                   unsigned long value, CInspectorView::sInspectorElement* parent)
    {
        auto* button = new CButtonDataElement(value);
        button->SetText(text);
        button->SetCommandString(command);
        button->SetEnable(true); // a new button is disabled
        auto* widget = new CQTButtonWidget;
        AddItem(button, widget, nullptr);
        view.AddElement(button, widget, nullptr, nullptr, parent);
    }

    CStaticDataElement* m_pCount = nullptr;
    QWidget* m_pCountWidget = nullptr;
    unsigned long m_ulCount = 0;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CCounter controller;
    CPanelWindow window(controller);
    controller.Build(window.m_View);
    return Run(application, window);
}
