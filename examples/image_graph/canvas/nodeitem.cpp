#include "nodeitem.h"

#include "../graph/graph.h"
#include "../ui/operationtexts.h"
#include "nodelook.h"

#include <QLineF>

#include <algorithm>

using namespace nodelook;

CNodeItem::CNodeItem(const sGraphNode& node)
    : m_iId(node.m_iId), m_sTitle(TitleOf(node.GetInfo())),
      m_sName(QString::fromStdString(node.GetInfo().m_sName)),
      m_colorCategory(CategoryColor(CategoryOf(node.GetInfo()))),
      m_vInputs(node.GetInfo().m_vInputs), m_bHasOutput(node.GetInfo().m_bHasOutput),
      m_bPinned(node.m_bPinned)
{
    setFlags(ItemIsMovable | ItemIsSelectable);
    setAcceptHoverEvents(true);
    setToolTip(HelpOf(node.GetInfo()));
    setPos(node.m_position);
    // From here on, places are announced.
    setFlag(ItemSendsGeometryChanges);
}

sPadRef CNodeItem::PadAt(const QPointF& scenePosition) const
{
    const QPointF place = mapFromScene(scenePosition);
    const auto isNear = [&](const QPointF& centre)
    { return QLineF(place, centre).length() <= g_dPadReach; };
    for (size_t i = 0; i < m_vInputs.size(); ++i)
        if (isNear(InputPosition(int(i))))
            return {m_iId, m_vInputs[i]};
    if (m_bHasOutput && isNear(OutputPosition()))
        return {m_iId, std::string()};
    return {};
}

QPointF CNodeItem::PadPosition(const sPadRef& pad) const
{
    if (pad.IsOutput())
        return mapToScene(OutputPosition());
    const auto found = std::find(m_vInputs.begin(), m_vInputs.end(), pad.m_sPad);
    return mapToScene(InputPosition(int(found - m_vInputs.begin())));
}

std::string CNodeItem::DropInput() const
{
    const auto isFree = [this](const std::string& pad) { return m_vConnected.count(pad) == 0; };
    const auto free = std::find_if(m_vInputs.begin(), m_vInputs.end(), isFree);
    if (free != m_vInputs.end())
        return *free;
    return m_vInputs.empty() ? std::string() : m_vInputs.front();
}

bool CNodeItem::IsOnPin(const QPointF& scenePosition) const
{
    return PinArea().contains(mapFromScene(scenePosition));
}

QRectF CNodeItem::GetFrame() const
{
    return {pos(), QSizeF(g_dWidth, g_dHeight)};
}

void CNodeItem::SetPinned(bool pinned)
{
    m_bPinned = pinned;
    update();
}

void CNodeItem::SetViewed(bool viewed)
{
    m_bViewed = viewed;
    update();
}

void CNodeItem::SetState(const sNodeState& state)
{
    m_state = state;
    update();
}

void CNodeItem::SetConnected(const std::set<std::string>& pads)
{
    m_vConnected = pads;
    update();
}

void CNodeItem::SetTarget(const sPadRef& pad, bool isAllowed)
{
    m_target = pad;
    m_bTargetAllowed = isAllowed;
    update();
}

QRectF CNodeItem::boundingRect() const
{
    // Room for the pads, the name of a second input, the shadow and the outline.
    constexpr qreal around = 16;
    return QRectF(0, 0, g_dWidth, g_dHeight).adjusted(-around, -around, around, around);
}

QPainterPath CNodeItem::shape() const
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addRoundedRect(0, 0, g_dWidth, g_dHeight, g_dRounding, g_dRounding);
    for (size_t i = 0; i < m_vInputs.size(); ++i)
        path.addEllipse(InputPosition(int(i)), g_dPadReach, g_dPadReach);
    if (m_bHasOutput)
        path.addEllipse(OutputPosition(), g_dPadReach, g_dPadReach);
    return path;
}

QVariant CNodeItem::itemChange(GraphicsItemChange change, const QVariant& value)
{
    if (change == ItemPositionHasChanged)
        Q_EMIT Moved(m_iId);
    return QGraphicsObject::itemChange(change, value);
}

void CNodeItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    m_bHovered = true;
    update();
    QGraphicsObject::hoverEnterEvent(event);
    Q_EMIT HoverChanged(m_iId, true);
}

void CNodeItem::hoverLeaveEvent(QGraphicsSceneHoverEvent* event)
{
    m_bHovered = false;
    update();
    QGraphicsObject::hoverLeaveEvent(event);
    Q_EMIT HoverChanged(m_iId, false);
}
