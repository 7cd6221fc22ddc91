#include "graphchange.h"

#include <utility>

bool sGraphChange::IsEmpty() const
{
    return !ChangesPicture() && m_mapMoved.empty() && m_mapPinned.empty();
}

bool sGraphChange::ChangesPicture() const
{
    return ChangesStructure() || !m_vValues.empty();
}

bool sGraphChange::ChangesStructure() const
{
    return !m_vAdded.empty() || !m_vRemoved.empty() || ChangesEdges();
}

void sGraphChange::ApplyTo(CGraph& graph) const
{
    for (const sGraphEdge& edge : m_vDisconnected)
        graph.Erase(edge);
    for (const sGraphNode& node : m_vRemoved)
        graph.Erase(node.m_iId);
    for (const sGraphNode& node : m_vAdded)
        graph.Insert(node);
    for (const sGraphEdge& edge : m_vConnected)
        graph.Insert(edge);
    for (const auto& [node, step] : m_mapMoved)
        graph.Edit(node)->m_position = step.m_after;
    for (const auto& [node, step] : m_mapPinned)
        graph.Edit(node)->m_bPinned = step.m_after;
    for (const sValue& value : m_vValues)
        graph.Edit(value.m_iNode)->m_pOperation->SetValue(*value.m_pProperty, value.m_step.m_after);
}

sGraphChange sGraphChange::Reversed() const
{
    sGraphChange back = *this;
    std::swap(back.m_vAdded, back.m_vRemoved);
    std::swap(back.m_vConnected, back.m_vDisconnected);
    for (auto& [node, step] : back.m_mapMoved)
        std::swap(step.m_before, step.m_after);
    for (auto& [node, step] : back.m_mapPinned)
        std::swap(step.m_before, step.m_after);
    for (sValue& value : back.m_vValues)
        std::swap(value.m_step.m_before, value.m_step.m_after);
    return back;
}
