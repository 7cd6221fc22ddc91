#include "qtpanel.h"

#include <booldataelement.h>
#include <buttondataelement.h>
#include <enumdataelement.h>
#include <inspectorcontroller.h>
#include <qtbuttonwidget.h>
#include <qtenumdatawidget.h>
#include <qtinspectorview.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QScrollBar>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace
{

constexpr int g_iRowHeight = 25;

/// The value that a dirty row takes when its turn comes.
struct sNewValue : CInspectorController::IDirtyControllerDataInfo
{
    explicit sNewValue(std::string value) : m_sValue(std::move(value)) {}

    std::string m_sValue;
};

/// Gives an element a value without telling its widget.
void StoreValue(CInspectorDataElement& element, const std::string& value)
{
    if (auto* text = dynamic_cast<CSimpleDataElement*>(&element))
        text->SetStrCurrentValue(value);
    else if (auto* flag = dynamic_cast<CBoolDataElement*>(&element))
        flag->SetValue(value == "1");
    else if (auto* choice = dynamic_cast<CEnumDataElement*>(&element))
        choice->SetStrCurrentValue(value);
}

class CBenchmarkController : public CInspectorController
{
public:
    void BuildInspector() override {}
    void RefreshInspector() override {}

    void HandleDirtyItem(sInspectorControllerData* record, IDirtyControllerDataInfo* info) override
    {
        StoreValue(*record->m_pElement, static_cast<sNewValue*>(info)->m_sValue);
        record->m_pElement->UpdateData();
    }

    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override {}

    const std::list<sInspectorControllerData*>& GetItems() const { return m_lItems; }
};

class CInspectorPanel : public CQtPanel
{
public:
    CInspectorPanel()
    {
        m_controller.SetInspectorView(&m_view);
        m_view.SetController(&m_controller);
    }

    QWidget& Window() override { return m_view; }

    void Fill(const CRowPlan& plan) override
    {
        for (const sPlannedGroup& group : plan)
        {
            auto* node = m_view.AddGroup(group.m_sName.c_str(), nullptr);
            for (const sPlannedRow& row : group.m_vRows)
                AddRow(row, node);
        }
        m_controller.ConnectDataElements();
        for (const sRow& row : m_vRows)
            ShowValue(row, row.m_pPlan->m_sValue);
        m_view.ResizeInspector(g_iPanelWidth, g_iPanelHeight);
        m_view.show();
    }

    void SetWidth(int width) override { m_view.ResizeInspector(width, g_iPanelHeight); }

    int GetScrollSteps() override { return GetScrollBar().maximum() / g_iRowHeight; }

    void ScrollTo(int step) override { GetScrollBar().setValue(step * g_iRowHeight); }

    int GetRowCount() override { return static_cast<int>(m_vRows.size()); }

    void ChangeValue(int row, int round) override
    {
        ShowValue(m_vRows[row], NextValue(*m_vRows[row].m_pPlan, round));
    }

    void ChangeAllValues(int round) override
    {
        for (const sRow& row : m_vRows)
            m_controller.DirtifyItem(m_vRecords[row.m_iFirst],
                                     new sNewValue(NextValue(*row.m_pPlan, round)));
    }

    void RemoveRows(const std::vector<int>& rows) override
    {
        for (int row : rows)
        {
            const std::size_t first = m_vRows[row].m_iFirst;
            for (int i = 0; i < CountFields(*m_vRows[row].m_pPlan); ++i)
                m_controller.RemoveItem(m_vRecords[first + i]->m_pElement);
        }
    }

    void Clear() override
    {
        m_controller.ClearAllData();
        m_vRows.clear();
        m_vRecords.clear();
    }

    void GoToNextRow() override
    {
        const std::size_t from = m_iFocus++ % m_vRecords.size();
        m_controller.GiveFocusToNextElement(m_iFocus > 1 ? m_vRecords[from - 1]->m_pWidget
                                                         : nullptr);
    }

private:
    struct sRow
    {
        std::size_t m_iFirst; ///< of its records; a container has one for each field
        const sPlannedRow* m_pPlan;
    };

    static int CountFields(const sPlannedRow& row)
    {
        return row.m_eKind == ePlannedKind::Container ? 3 : 1;
    }

    void ShowValue(const sRow& row, const std::string& value)
    {
        CInspectorDataElement& element = *m_vRecords[row.m_iFirst]->m_pElement;
        StoreValue(element, value);
        element.UpdateData();
    }

    void AddRow(const sPlannedRow& row, CInspectorView::sInspectorElement* group)
    {
        CInspectorView::sInspectorElement* parent = group;
        const int fields = CountFields(row);
        if (fields > 1)
            parent = m_view.AddSingleLineContainer(row.m_sName.c_str(), nullptr, group);
        m_vRows.push_back({m_vRecords.size(), &row});
        for (int i = 0; i < fields; ++i)
        {
            const auto [element, widget] = MakePair(row);
            m_controller.AddItem(element, widget, nullptr);
            m_view.AddElement(element, widget, row.m_sName.c_str(), nullptr, parent);
            m_vRecords.push_back(m_controller.GetItems().back());
        }
    }

    std::pair<CInspectorDataElement*, CInspectorDataWidget*> MakePair(const sPlannedRow& row)
    {
        switch (row.m_eKind)
        {
        case ePlannedKind::Bool:
            return {new CBoolDataElement, new CQTSimpleBoolWidget};
        case ePlannedKind::Enum:
        {
            auto* element = new CEnumDataElement;
            element->SetExternalEnum(GetDefinition(row.m_vChoices));
            return {element, new CQTEnumDataWidget};
        }
        case ePlannedKind::Button:
        {
            auto* element = new CButtonDataElement(0);
            element->SetText(row.m_sName.c_str());
            return {element, new CQTButtonWidget};
        }
        default:
            return {new CSimpleDataElement, new CQTSimpleDataWidget};
        }
    }

    /// Rows with the same choices are of one enumeration, which a host defines once.
    CEnumDataElement::sEnumDefinition* GetDefinition(const std::vector<std::string>& choices)
    {
        const auto [entry, isNew] = m_mapDefinitions.try_emplace(choices);
        if (isNew)
        {
            CEnumDataElement element;
            element.SetExternalEnum(&entry->second);
            for (std::size_t i = 0; i < choices.size(); ++i)
                element.AddEnum(std::to_string(i).c_str(), choices[i].c_str());
        }
        return &entry->second;
    }

    QScrollBar& GetScrollBar()
    {
        return *m_view.findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
    }

    // The elements use the definitions for as long as they live.
    std::map<std::vector<std::string>, CEnumDataElement::sEnumDefinition> m_mapDefinitions;
    CQTInspectorView m_view;
    CBenchmarkController m_controller;
    std::vector<sRow> m_vRows;
    std::vector<CInspectorController::sInspectorControllerData*> m_vRecords;
    std::size_t m_iFocus = 0;
};

} // namespace

std::unique_ptr<CPanel> MakeInspectorPanel()
{
    return std::make_unique<CInspectorPanel>();
}
