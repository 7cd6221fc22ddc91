#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <vector>

/// The way of an edge: its ends, and between them the ends of the lane that it takes, if it takes
/// one. All are passed vertically.
using CEdgeRoute = std::vector<QPointF>;

/// Finds a way from an output to an input that crosses none of the rectangles: straight where that
/// leads down and is free, else along a lane beside one of them. Where every lane is blocked as
/// well, the straight way.
CEdgeRoute RouteEdge(const QPointF& from, const QPointF& to, const std::vector<QRectF>& obstacles);

/// Draws a way as one smooth curve.
QPainterPath EdgePath(const CEdgeRoute& route);
