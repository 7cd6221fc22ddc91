// Reset and changed marks: a row that differs from its default has a star and an active button.
#include "support/panelwindow.h"

#include <buttondataelement.h>
#include <qtbuttonwidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <string>
#include <utility>

class CController : public CPlainController
{
public:
    explicit CController(std::vector<std::pair<std::string, std::string>> defaults)
        : m_vDefaults(std::move(defaults))
    {
    }

    void BuildInspector() override
    {
        for (const auto& [name, value] : m_vDefaults)
            AddRow(name, value);
    }

    // A reset button was pressed; its number is the row.
    void CallCommand(const char*, unsigned long row) override
    {
        m_vRows[row].m_pValue->SetStrCurrentValue(m_vDefaults[row].second);
        m_vRows[row].m_pValue->UpdateData();
        Mark();
    }

    /// Puts stars and buttons right for all rows.
    void Mark()
    {
        for (std::size_t i = 0; i < m_vRows.size(); ++i)
        {
            const auto& [name, value] = m_vDefaults[i];
            const bool isChanged = m_vRows[i].m_pValue->GetStrCurrentValue() != value;
            m_vRows[i].m_pNode->m_sName = isChanged ? name + " *" : name;
            m_vRows[i].m_pReset->SetEnable(isChanged);
            m_vRows[i].m_pButton->update();
        }
        m_pView->RecomputeLayout(); // a label that grew may need more room
    }

private:
    struct CValue : CSimpleDataElement
    {
        void InternalValueChanged() override { static_cast<CController*>(m_pController)->Mark(); }
    };

    struct sRow
    {
        CInspectorView::sInspectorElement* m_pNode;
        CValue* m_pValue;
        CButtonDataElement* m_pReset;
        QWidget* m_pButton;
    };

    void AddRow(const std::string& name, const std::string& value)
    {
        auto* line = m_pView->AddSingleLineContainer(name.c_str(), nullptr, nullptr);
        auto* reset = new CButtonDataElement(m_vRows.size());
        reset->SetText("Reset");
        auto* element = new CValue;
        auto* field = new CQTSimpleDataWidget;
        auto* button = new CQTButtonWidget;
        AddItem(element, field, nullptr);
        AddItem(reset, button, nullptr);
        CInspectorView::sRequestSize width;
        width.SetMinValueAbsolute(50);
        width.SetMaxValueAbsolute(50);
        m_pView->AddElement(element, field, nullptr, nullptr, line);
        m_pView->AddElement(reset, button, nullptr, &width, line);
        element->SetStrCurrentValue(value);
        element->UpdateData();
        m_vRows.push_back({line, element, reset, button});
    }

    std::vector<std::pair<std::string, std::string>> m_vDefaults;
    std::vector<sRow> m_vRows;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CController controller({{"Radius", "12"}, {"Opacity", "1"}, {"Angle", "0"}});
    CPanelWindow window(controller);
    controller.BuildInspector();
    return Run(application, window);
}
