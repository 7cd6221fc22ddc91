#pragma once

#include "../graph/graph.h"
#include "edgeroute.h"

#include <QGraphicsPathItem>

/// An edge on the canvas. Shows what it is told; changes nothing.
class CEdgeItem : public QGraphicsPathItem
{
public:
    explicit CEdgeItem(const sGraphEdge& edge);

    const sGraphEdge& GetEdge() const { return m_edge; }
    void SetRoute(const CEdgeRoute& route) { setPath(EdgePath(route)); }
    /// Shown faintly, while its end is being dragged elsewhere.
    void SetTakenUp(bool takenUp);

    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    /// How an edge is drawn; also the one that is being dragged.
    static void Draw(QPainter& painter, const QPainterPath& path, const QColor& color);

protected:
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;

private:
    const sGraphEdge m_edge;
    bool m_bHovered = false;
};
