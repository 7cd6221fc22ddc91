#include <inspectorcontroller.h>

#include <inspectordataelement.h>
#include <inspectordatawidget.h>

#include "focustarget.h"
#include "takeover.h"
#include "walk.h"

#include <algorithm>
#include <utility>

bool (*g_pfnTakeOver)(CInspectorDataWidget& widget) = nullptr;

// The records of the rows, and how they are found without walking along all of them.

CInspectorController::sInspectorControllerData::sInspectorControllerData() = default;

CInspectorController::sInspectorControllerData::~sInspectorControllerData()
{
    DeleteModel();
    DeleteWidget();
}

void CInspectorController::sInspectorControllerData::DeleteModel()
{
    // The widget outlives the element and must not reach for it.
    if (m_pWidget && m_pWidget->m_pElement == m_pElement)
        m_pWidget->m_pElement = nullptr;
    delete std::exchange(m_pData, nullptr);
    delete std::exchange(m_pElement, nullptr);
}

void CInspectorController::sInspectorControllerData::DeleteWidget()
{
    CInspectorDataWidget* widget = std::exchange(m_pWidget, nullptr);
    if (!widget)
        return;
    widget->m_pOwner = nullptr;
    if (!g_pfnTakeOver || !g_pfnTakeOver(*widget))
        delete widget;
    else
        widget->LeaveRow();
}

void CInspectorController::IndexRow(CRows::iterator row)
{
    // Until somebody asks for a row there is no index. Only the first row of an element can be
    // asked for.
    const bool isUsed = m_ulIndexed > 0 && m_ulIndexed + 1 == m_lItems.size();
    if (isUsed && std::next(row) == m_lItems.end())
    {
        m_mapRows.emplace((*row)->m_pElement, row);
        ++m_ulIndexed;
    }
}

CInspectorController::CRows::iterator
CInspectorController::FindRow(const CInspectorDataElement* element)
{
    if (m_ulIndexed != m_lItems.size())
    {
        m_mapRows.clear();
        for (auto row = m_lItems.begin(); row != m_lItems.end(); ++row)
            m_mapRows.emplace((*row)->m_pElement, row);
        m_ulIndexed = m_lItems.size();
    }
    const auto entry = m_mapRows.find(element);
    if (entry != m_mapRows.end() && (*entry->second)->m_pElement == element)
        return entry->second;
    return std::find_if(m_lItems.begin(), m_lItems.end(),
                        [element](const sInspectorControllerData* record)
                        { return record->m_pElement == element; });
}

void CInspectorController::UnlinkRow(CRows::iterator row)
{
    CFocusTarget::Forget(m_pFocusTargets, (*row)->m_pWidget);
    const CInspectorDataElement* element = (*row)->m_pElement;
    const bool hasTwins = m_mapRows.size() != m_ulIndexed;
    const auto entry = m_mapRows.find(element);
    const bool isIndexed =
        m_ulIndexed == m_lItems.size() && entry != m_mapRows.end() && entry->second == row;
    CWalk::StepOff(m_pWalks, row);
    const auto next = m_lItems.erase(row);
    if (!isIndexed)
    {
        // The row may stand under an element that it no longer has.
        m_mapRows.clear();
        m_ulIndexed = 0;
        return;
    }
    --m_ulIndexed;
    m_mapRows.erase(entry);
    if (!hasTwins)
        return;
    const auto twin = std::find_if(next, m_lItems.end(),
                                   [element](const sInspectorControllerData* record)
                                   { return record->m_pElement == element; });
    if (twin != m_lItems.end())
        m_mapRows.emplace(element, twin);
}

void CInspectorController::ForgetWidget(CInspectorDataWidget* widget)
{
    CFocusTarget::Forget(m_pFocusTargets, widget);
    auto row = FindRow(widget->m_pElement);
    if (row == m_lItems.end() || (*row)->m_pWidget != widget)
        row = std::find_if(m_lItems.begin(), m_lItems.end(),
                           [widget](const sInspectorControllerData* record)
                           { return record->m_pWidget == widget; });
    if (row == m_lItems.end())
        return;
    (*row)->m_pWidget = nullptr;
    CInspectorDataElement* element = (*row)->m_pElement;
    if (element && element->m_pWidget == widget)
        element->m_pWidget = nullptr;
}
