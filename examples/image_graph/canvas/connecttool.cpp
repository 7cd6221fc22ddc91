#include "connecttool.h"

#include "edgeitem.h"
#include "edgeroute.h"

#include <QCoreApplication>
#include <QLineF>

namespace
{

/// How near to its end an edge has to be grabbed for the end to come along.
constexpr qreal g_dEndReach = 32;

/// A hand that presses moves a little.
constexpr qreal g_dLeastMove = 5;

} // namespace

bool CConnectTool::Press(const QPointF& place)
{
    m_pressed = place;
    m_free = place;
    m_bMoved = false;
    const sPadRef pad = m_scene.PadAt(place);
    return pad.IsValid() ? PressPad(pad) : PressEdge(place);
}

bool CConnectTool::PressPad(const sPadRef& pad)
{
    const sGraphEdge* edge =
        pad.IsOutput() ? nullptr : m_scene.GetGraph().FindEdge(pad.m_iNode, pad.m_sPad);
    if (edge)
        TakeUp(*edge, true);
    else
        m_fixed = pad;
    return true;
}

bool CConnectTool::PressEdge(const QPointF& place)
{
    if (m_scene.NodeAt(place))
        return false;
    for (const QGraphicsItem* item : m_scene.items(place))
    {
        const auto* edge = dynamic_cast<const CEdgeItem*>(item);
        if (!edge)
            continue;
        const bool isNearEnd = QLineF(m_scene.To(edge->GetEdge()), place).length() < g_dEndReach;
        if (isNearEnd || QLineF(m_scene.From(edge->GetEdge()), place).length() < g_dEndReach)
        {
            TakeUp(edge->GetEdge(), isNearEnd);
            return true;
        }
    }
    return false;
}

void CConnectTool::TakeUp(const sGraphEdge& edge, bool isEndFree)
{
    m_takenUp = edge;
    m_fixed = isEndFree ? sPadRef{edge.m_iFrom, std::string()} : sPadRef{edge.m_iTo, edge.m_sPad};
    m_scene.FindEdge(edge)->SetTakenUp(true);
}

void CConnectTool::Move(const QPointF& place)
{
    m_bMoved = m_bMoved || QLineF(m_pressed, place).length() > g_dLeastMove;
    if (!IsActive() || !m_bMoved)
        return;
    m_free = place;
    m_sReason.clear();
    const sPadRef target = FindTarget(place);
    const std::optional<sGraphEdge> edge = EdgeTo(target);
    if (edge)
        m_scene.GetDocument().CanConnect(edge->m_iFrom, edge->m_iTo, edge->m_sPad, m_sReason);
    else if (target.IsValid())
        m_sReason = m_fixed.IsOutput()
                        ? QCoreApplication::translate("CConnectTool", "An output goes to an input.")
                        : QCoreApplication::translate("CConnectTool",
                                                      "An input takes the output of a node.");
    ShowTarget(target);
}

void CConnectTool::Release(const QPointF& place)
{
    Move(place);
    const std::optional<sGraphEdge> takenUp = m_takenUp;
    if (!m_bMoved)
    {
        Cancel();
        m_scene.clearSelection();
        if (takenUp)
            m_scene.FindEdge(*takenUp)->setSelected(true);
        return;
    }
    const std::optional<sGraphEdge> edge = EdgeTo(m_target);
    const bool isRefused = IsRefused();
    const bool isOnNothing = !m_target.IsValid();
    Cancel();
    if (edge && !isRefused)
        Apply(*edge, takenUp);
    else if (isOnNothing && takenUp)
        m_scene.GetDocument().Disconnect(takenUp->m_iTo, takenUp->m_sPad);
}

void CConnectTool::Apply(const sGraphEdge& edge, const std::optional<sGraphEdge>& before)
{
    CGraphDocument& document = m_scene.GetDocument();
    // Where only the start of the edge changes, the new one takes the place of the old by itself.
    const bool isMoved = before && (before->m_iTo != edge.m_iTo || before->m_sPad != edge.m_sPad);
    if (isMoved)
    {
        document.GetUndoStack().beginMacro(QCoreApplication::translate("CConnectTool", "Connect"));
        document.Disconnect(before->m_iTo, before->m_sPad);
    }
    document.Connect(edge.m_iFrom, edge.m_iTo, edge.m_sPad);
    if (isMoved)
        document.GetUndoStack().endMacro();
}

void CConnectTool::Cancel()
{
    ShowTarget({});
    if (m_takenUp)
        if (CEdgeItem* edge = m_scene.FindEdge(*m_takenUp))
            edge->SetTakenUp(false);
    m_takenUp.reset();
    m_fixed = {};
    m_sReason.clear();
}

QPainterPath CConnectTool::GetPath() const
{
    const CNodeItem* node = m_scene.FindNode(m_fixed.m_iNode);
    if (!node)
        return {};
    const QPointF fixed = node->PadPosition(m_fixed);
    QPointF free = m_free;
    if (const CNodeItem* target = m_scene.FindNode(m_target.m_iNode))
        free = target->PadPosition(m_target);
    return EdgePath(m_fixed.IsOutput() ? CEdgeRoute{fixed, free} : CEdgeRoute{free, fixed});
}

sPadRef CConnectTool::FindTarget(const QPointF& place) const
{
    sPadRef pad = m_scene.PadAt(place);
    if (pad.IsValid() && pad != m_fixed)
        return pad;
    const CNodeItem* node = m_scene.NodeAt(place);
    if (!node || node->GetId() == m_fixed.m_iNode)
        return {};
    // Dropped on a node, the edge finds its pad.
    if (!m_fixed.IsOutput())
        return {node->GetId(), std::string()};
    return {node->GetId(), node->DropInput()};
}

std::optional<sGraphEdge> CConnectTool::EdgeTo(const sPadRef& target) const
{
    if (!target.IsValid() || target.IsOutput() == m_fixed.IsOutput())
        return std::nullopt;
    const sPadRef& from = m_fixed.IsOutput() ? m_fixed : target;
    const sPadRef& to = m_fixed.IsOutput() ? target : m_fixed;
    return sGraphEdge{from.m_iNode, to.m_iNode, to.m_sPad};
}

void CConnectTool::ShowTarget(const sPadRef& target)
{
    if (CNodeItem* before = m_scene.FindNode(m_target.m_iNode))
        before->SetTarget({}, false);
    m_target = target;
    if (CNodeItem* node = m_scene.FindNode(target.m_iNode))
        node->SetTarget(target, !IsRefused());
}
