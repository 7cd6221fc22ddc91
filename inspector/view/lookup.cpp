#include <inspectorview.h>

#include <inspectordatawidget.h>

#include <algorithm>
#include <functional>

// The look-ups of the view: the holder of a widget, and the order in which editing moves. Both
// answer as a walk over the holders or the tree would, without walking each time.

void CInspectorView::UpdateControlOrder()
{
    if (IsControlOrderKnown())
        return;
    m_vControlOrder.assign(m_setControlHolders.begin(), m_setControlHolders.end());
    m_bControlOrderKnown = true;
    ++m_ulControlOrder;
}

void CInspectorView::IndexHolder(sInspectorHolder* holder)
{
    ++m_ulIndexed;
    const auto [entry, isNew] = m_mapHolders.emplace(holder->m_pWidget, holder);
    // A widget may lie where one that is gone did; the first place of several counts.
    if (!isNew && !holder->m_bWidgetGone &&
        (entry->second->m_bWidgetGone || std::less<>()(holder, entry->second)))
        entry->second = holder;
}

CInspectorView::sInspectorHolder* CInspectorView::GetHolderFromControl(CInspectorDataWidget* widget)
{
    if (m_ulIndexed == m_setControlHolders.size())
    {
        const auto entry = m_mapHolders.find(widget);
        if (entry != m_mapHolders.end() && entry->second->m_pWidget == widget)
            return entry->second;
    }
    // Unknown so far: a derived class may have added or changed holders itself.
    m_mapHolders.clear();
    m_ulIndexed = 0;
    for (sInspectorHolder* holder : m_setControlHolders)
        IndexHolder(holder);
    const auto entry = m_mapHolders.find(widget);
    return entry == m_mapHolders.end() ? nullptr : entry->second;
}

bool CInspectorView::IsShowing(CInspectorDataWidget* widget)
{
    const sInspectorHolder* holder = GetHolderFromControl(widget);
    return holder && holder->GetWidget();
}

void CInspectorView::ForgetWidget(CInspectorDataWidget* widget)
{
    if (sInspectorHolder* holder = GetHolderFromControl(widget))
        holder->m_bWidgetGone = true;
    if (m_mapHolders.size() == m_ulIndexed)
        return;
    // Some widget stands in several places; this one may.
    for (sInspectorHolder* holder : m_setControlHolders)
    {
        if (holder->m_pWidget == widget)
            holder->m_bWidgetGone = true;
    }
}

const std::vector<CInspectorView::sInspectorHolder*>& CInspectorView::GetStops()
{
    if (!m_bStopsKnown)
    {
        m_vStops.clear();
        CollectStops(m_lElements);
        m_bStopsKnown = true;
    }
    return m_vStops;
}

void CInspectorView::CollectStops(const std::list<sInspectorElement>& nodes)
{
    for (const sInspectorElement& node : nodes)
    {
        if (node.m_iKind != eElementRow)
            CollectStops(node.m_lChildren);
        else if (!node.m_pHolder || node.m_pHolder->m_iKind != eHolderContainer ||
                 node.m_pHolder->m_lChildren.empty())
            AddStop(node.m_pHolder);
        else
        {
            for (sInspectorHolder* holder : node.m_pHolder->m_lChildren)
                AddStop(holder);
        }
    }
}

void CInspectorView::AddStop(sInspectorHolder* holder)
{
    if (holder)
        holder->m_ulStop = m_vStops.size();
    m_vStops.push_back(holder);
}

std::size_t CInspectorView::FindStop(CInspectorDataWidget* widget, bool first)
{
    const std::vector<sInspectorHolder*>& stops = GetStops();
    const sInspectorHolder* known = GetHolderFromControl(widget);
    const bool isOnlyPlace = m_mapHolders.size() == m_ulIndexed;
    if (known && isOnlyPlace && known->m_ulStop < stops.size() && stops[known->m_ulStop] == known)
        return known->m_ulStop;
    const bool isGone = known && known->m_bWidgetGone;
    const auto shows = [widget, isGone](const sInspectorHolder* stop)
    { return stop && stop->m_pWidget == widget && stop->m_bWidgetGone == isGone; };
    if (first)
        return std::find_if(stops.begin(), stops.end(), shows) - stops.begin();
    const auto last = std::find_if(stops.rbegin(), stops.rend(), shows);
    return last == stops.rend() ? stops.size() : stops.rend() - last - 1;
}
