// Collapsible groups: a button in front of each group hides its rows. The rows stay registered;
// only the view's tree is built again without them.
#include "support/panelwindow.h"

#include <buttondataelement.h>
#include <qtbuttonwidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <string>

class CFolding : public CPlainController
{
public:
    void AddSection(const char* name, std::initializer_list<const char*> labels)
    {
        sSection section{name, true, nullptr, nullptr, {}};
        auto* fold = new CButtonDataElement(m_vSections.size());
        fold->SetEnable(true);
        section.m_pFold = fold;
        section.m_pButton = new CQTButtonWidget;
        AddItem(fold, section.m_pButton, nullptr);
        for (const char* label : labels)
        {
            auto* element = new CSimpleDataElement;
            auto* field = new CQTSimpleDataWidget;
            AddItem(element, field, nullptr);
            section.m_vRows.push_back({label, element, field});
        }
        m_vSections.push_back(section);
    }

    void RefreshInspector() override
    {
        m_pView->RemoveAll();
        for (sSection& section : m_vSections)
        {
            section.m_pFold->SetText(((section.m_bOpen ? "- " : "+ ") + section.m_sName).c_str());
            m_pView->AddElement(section.m_pFold, section.m_pButton, nullptr, nullptr, nullptr);
            auto* group = section.m_bOpen ? m_pView->AddGroup(nullptr, nullptr) : nullptr;
            for (const sRow& row : section.m_vRows)
            {
                if (group)
                    m_pView->AddElement(row.m_pElement, row.m_pField, row.m_pLabel, nullptr, group);
                else
                    row.m_pField->Hide();
            }
        }
        m_pView->RecomputeLayout();
    }

    void CallCommand(const char*, unsigned long section) override
    {
        m_vSections[section].m_bOpen = !m_vSections[section].m_bOpen;
        RefreshInspector();
    }

private:
    struct sRow
    {
        const char* m_pLabel;
        CSimpleDataElement* m_pElement;
        CQTSimpleDataWidget* m_pField;
    };

    struct sSection
    {
        std::string m_sName;
        bool m_bOpen;
        CButtonDataElement* m_pFold;
        CQTButtonWidget* m_pButton;
        std::vector<sRow> m_vRows;
    };

    std::vector<sSection> m_vSections;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CFolding controller;
    CPanelWindow window(controller);
    controller.AddSection("Position", {"X", "Y", "Z"});
    controller.AddSection("Material", {"Colour", "Roughness"});
    controller.ConnectDataElements();
    controller.RefreshInspector();
    return Run(application, window);
}
