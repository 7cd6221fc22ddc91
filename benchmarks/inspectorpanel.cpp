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
        for (std::size_t row = 0; row < m_vRows.size(); ++row)
        {
            StoreValue(*m_vRows[row].m_pElement, m_vRows[row].m_plan.m_sValue);
            m_vRows[row].m_pElement->UpdateData();
        }
        m_view.ResizeInspector(g_iPanelWidth, g_iPanelHeight);
        m_view.show();
    }

    void SetWidth(int width) override { m_view.ResizeInspector(width, g_iPanelHeight); }

    int GetScrollSteps() override { return GetScrollBar().maximum() / g_iRowHeight; }

    void ScrollTo(int step) override { GetScrollBar().setValue(step * g_iRowHeight); }

    int GetRowCount() override { return static_cast<int>(m_vRows.size()); }

    void ChangeValue(int row, int round) override
    {
        CInspectorDataElement& element = *m_vRows[row].m_pElement;
        StoreValue(element, NextValue(m_vRows[row].m_plan, round));
        element.UpdateData();
    }

    void ChangeAllValues(int round) override
    {
        for (const sRow& row : m_vRows)
            m_controller.DirtifyItem(row.m_pRecord, new sNewValue(NextValue(row.m_plan, round)));
    }

    void RemoveRows(const std::vector<int>& rows) override
    {
        for (int row : rows)
        {
            for (CInspectorDataElement* element : m_vRows[row].m_vAll)
                m_controller.RemoveItem(element);
        }
    }

    void Clear() override
    {
        m_controller.ClearAllData();
        m_vRows.clear();
        m_vWidgets.clear();
    }

    void GoToNextRow() override
    {
        const std::size_t from = m_iFocus++ % m_vWidgets.size();
        m_controller.GiveFocusToNextElement(m_iFocus > 1 ? m_vWidgets[from - 1] : nullptr);
    }

private:
    struct sRow
    {
        CInspectorDataElement* m_pElement;
        CInspectorController::sInspectorControllerData* m_pRecord;
        std::vector<CInspectorDataElement*> m_vAll; ///< a container's fields
        const sPlannedRow& m_plan;
    };

    void AddRow(const sPlannedRow& row, CInspectorView::sInspectorElement* group)
    {
        sRow added{nullptr, nullptr, {}, row};
        CInspectorView::sInspectorElement* parent = group;
        const int fields = row.m_eKind == ePlannedKind::Container ? 3 : 1;
        if (fields > 1)
            parent = m_view.AddSingleLineContainer(row.m_sName.c_str(), nullptr, group);
        for (int i = 0; i < fields; ++i)
        {
            const auto [element, widget] = MakePair(row);
            m_controller.AddItem(element, widget, nullptr);
            m_view.AddElement(element, widget, row.m_sName.c_str(), nullptr, parent);
            added.m_vAll.push_back(element);
            m_vWidgets.push_back(widget);
        }
        added.m_pElement = added.m_vAll.front();
        added.m_pRecord = *std::prev(m_controller.GetItems().end(), fields);
        m_vRows.push_back(std::move(added));
    }

    static std::pair<CInspectorDataElement*, CInspectorDataWidget*> MakePair(const sPlannedRow& row)
    {
        switch (row.m_eKind)
        {
        case ePlannedKind::Bool:
            return {new CBoolDataElement, new CQTSimpleBoolWidget};
        case ePlannedKind::Enum:
        {
            auto* element = new CEnumDataElement;
            element->CreateEnum();
            for (std::size_t i = 0; i < row.m_vChoices.size(); ++i)
                element->AddEnum(std::to_string(i).c_str(), row.m_vChoices[i].c_str());
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

    QScrollBar& GetScrollBar()
    {
        return *m_view.findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
    }

    CQTInspectorView m_view;
    CBenchmarkController m_controller;
    std::vector<sRow> m_vRows;
    std::vector<CInspectorDataWidget*> m_vWidgets;
    std::size_t m_iFocus = 0;
};

} // namespace

std::unique_ptr<CPanel> MakeInspectorPanel()
{
    return std::make_unique<CInspectorPanel>();
}
