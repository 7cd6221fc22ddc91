#pragma once

#include <QHash>
#include <QPointF>
#include <QSizeF>

#include <vector>

/// A node that wants a place: its size and, pad by pad, the nodes that its inputs come from.
struct sLayoutNode
{
    int m_iId = 0;
    QSizeF m_size;
    std::vector<int> m_vInputs; ///< the main input first; nodes that are not listed are ignored
};

/// How far nodes stand apart.
struct sLayoutSpacing
{
    qreal m_dBetweenColumns = 36;
    qreal m_dBetweenRows = 44;
};

/// Gives every node a place, the upper left corner, so that pictures flow downwards: a node stands
/// below all that feeds it and as close to what it feeds as it can. A chain of main inputs shares
/// a column; what goes into another input stands further right. No two nodes overlap. The graph has
/// no cycles. The same nodes in the same order get the same places.
QHash<int, QPointF> LayOutGraph(const std::vector<sLayoutNode>& nodes,
                                const sLayoutSpacing& spacing = {});
