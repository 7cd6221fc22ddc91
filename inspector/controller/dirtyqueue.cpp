#include <inspectorcontroller.h>

#include <inspectorview.h>

#include "delivery.h"

#include <cassert>
#include <utility>

CInspectorController::IDirtyControllerDataInfo::~IDirtyControllerDataInfo() = default;

void CInspectorController::DirtifyItem(sInspectorControllerData* record,
                                       IDirtyControllerDataInfo* info)
{
    assert((m_pView || m_bViewGone) && "CInspectorController::DirtifyItem: no view is set");
    std::vector<IDirtyControllerDataInfo*>& notices = m_mapDirtyItems[record];
    if (info)
        notices.push_back(info);
    if (m_pView)
        m_pView->DirtyView();
}

void CInspectorController::DirtifyController(IDirtyControllerDataInfo* info)
{
    assert((m_pView || m_bViewGone) && "CInspectorController::DirtifyController: no view is set");
    m_vControllerDirt.push_back(info);
    if (m_pView)
        m_pView->DirtyView();
}

void CInspectorController::HandleDirtyItems()
{
    // The notices are already on their way when a handler makes the view draw, and without a
    // handler when a control that dies with its controller makes the host of another row do so.
    if (m_pDelivery || m_bDying)
        return;
    CDelivery delivery(*this);
    if (!m_vControllerDirt.empty())
    {
        HandleControllerDirt(m_vControllerDirt);
        if (!delivery.IsAlive())
            return;
        DeleteNotices(m_vControllerDirt);
    }
    for (auto row = m_mapDirtyItems.begin(); row != m_mapDirtyItems.end();)
    {
        sInspectorControllerData* record = row->first;
        if (!DeliverRow(delivery, record, row->second))
            return;
        row = delivery.m_bRowGone ? m_mapDirtyItems.upper_bound(record) : std::next(row);
    }
    m_mapDirtyItems.clear();
}

bool CInspectorController::DeliverRow(CDelivery& delivery, sInspectorControllerData* record,
                                      std::vector<IDirtyControllerDataInfo*>& notices)
{
    delivery.m_pRecord = record;
    delivery.m_bRowGone = false;
    if (notices.empty())
    {
        delivery.m_ulNotice = CDelivery::NoNotice;
        HandleDirtyItem(record, nullptr);
        return delivery.IsAlive();
    }
    // The handler may queue more for this row, and may remove it.
    for (std::size_t i = 0; !delivery.m_bRowGone && i < notices.size(); ++i)
    {
        IDirtyControllerDataInfo* notice = notices[i];
        delivery.m_ulNotice = i;
        HandleDirtyItem(record, notice);
        if (delivery.IsAlive() && !delivery.m_bRowGone)
            notices[i] = nullptr;
        delete notice;
        if (!delivery.IsAlive())
            return false;
    }
    return true;
}

void CInspectorController::DropNotices(sInspectorControllerData* record)
{
    const auto entry = m_mapDirtyItems.find(record);
    if (entry == m_mapDirtyItems.end())
        return;
    std::vector<IDirtyControllerDataInfo*> notices = std::move(entry->second);
    m_mapDirtyItems.erase(entry);
    if (m_pDelivery && m_pDelivery->m_pRecord == record && !m_pDelivery->m_bRowGone)
    {
        // The pass that is under way deletes the notice in hand.
        m_pDelivery->m_bRowGone = true;
        if (m_pDelivery->m_ulNotice < notices.size())
            notices[m_pDelivery->m_ulNotice] = nullptr;
    }
    DeleteNotices(notices);
}

void CInspectorController::DeleteNotices(std::vector<IDirtyControllerDataInfo*>& notices)
{
    for (std::size_t i = 0; i < notices.size(); ++i)
        delete std::exchange(notices[i], nullptr);
    notices.clear();
}
