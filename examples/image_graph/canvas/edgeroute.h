#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <vector>

/// The way of an edge: points that it passes vertically, the first and the last are its ends.
using CEdgeRoute = std::vector<QPointF>;

/// Finds a way from an output down to an input that crosses none of the rectangles: straight where
/// that is free, else along a lane beside one of them. Where every lane is blocked as well, the
/// straight way.
CEdgeRoute RouteEdge(const QPointF& from, const QPointF& to, const std::vector<QRectF>& obstacles);

/// Draws a way as one smooth curve.
QPainterPath EdgePath(const CEdgeRoute& route);
