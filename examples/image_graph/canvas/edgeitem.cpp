#include "edgeitem.h"

#include "nodelook.h"

#include <QPainter>
#include <QPainterPathStroker>

using namespace nodelook;

namespace
{

constexpr qreal g_dWidthOfLine = 2.2;
constexpr qreal g_dWidthOfSeam = g_dWidthOfLine + 3;
constexpr qreal g_dWidthToGrab = 12;
constexpr qreal g_dTakenUpOpacity = 0.25;

} // namespace

CEdgeItem::CEdgeItem(const sGraphEdge& edge) : m_edge(edge)
{
    setFlag(ItemIsSelectable);
    setAcceptHoverEvents(true);
    setZValue(-1);
    setPen(QPen(g_colorCanvas, g_dWidthOfSeam)); // for the bounds
}

void CEdgeItem::SetTakenUp(bool takenUp)
{
    setOpacity(takenUp ? g_dTakenUpOpacity : 1);
}

QPainterPath CEdgeItem::shape() const
{
    QPainterPathStroker stroker;
    stroker.setWidth(g_dWidthToGrab);
    return stroker.createStroke(path());
}

void CEdgeItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                      QWidget* /*widget*/)
{
    const QColor plain = m_bHovered ? g_colorEdge.lighter(125) : g_colorEdge;
    Draw(*painter, path(), isSelected() ? g_colorAccent : plain);
}

void CEdgeItem::Draw(QPainter& painter, const QPainterPath& path, const QColor& color)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    // Where edges cross, the dark seam tells which is which.
    painter.setPen(QPen(g_colorCanvas, g_dWidthOfSeam, Qt::SolidLine, Qt::FlatCap));
    painter.drawPath(path);
    painter.setPen(QPen(color, g_dWidthOfLine, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(path);
}

void CEdgeItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event)
{
    m_bHovered = true;
    update();
    QGraphicsPathItem::hoverEnterEvent(event);
}

void CEdgeItem::hoverLeaveEvent(QGraphicsSceneHoverEvent* event)
{
    m_bHovered = false;
    update();
    QGraphicsPathItem::hoverLeaveEvent(event);
}
