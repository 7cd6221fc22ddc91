#include "edgeroute.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr qreal g_dClearance = 12; ///< between a lane and the node that it passes
constexpr qreal g_dTurn = 40;      ///< the height in which an edge reaches its lane
constexpr qreal g_dLeastBend = 18;
constexpr int g_iSteps = 24; ///< in which a curve is probed

/// The control points of the curve between two points: it leaves and arrives downwards.
struct sBend
{
    sBend(const QPointF& start, const QPointF& finish) : m_from(start), m_to(finish)
    {
        const qreal down = finish.y() - start.y();
        const qreal aside = std::abs(finish.x() - start.x());
        // An edge that climbs needs room for its two turns.
        const qreal reach = down >= 0 ? down / 2 : std::min(-down / 2, 80.0);
        m_dReach = aside > 0 || down < 0 ? std::max(reach, g_dLeastBend) : reach;
    }
    QPointF At(qreal t) const
    {
        const qreal s = 1 - t;
        const QPointF first = m_from + QPointF(0, m_dReach);
        const QPointF second = m_to - QPointF(0, m_dReach);
        return s * s * s * m_from + 3 * s * s * t * first + 3 * s * t * t * second +
               t * t * t * m_to;
    }

    QPointF m_from;
    QPointF m_to;
    qreal m_dReach = 0;
};

bool IsFree(const CEdgeRoute& route, const std::vector<QRectF>& obstacles)
{
    for (size_t i = 1; i < route.size(); ++i)
    {
        const sBend bend(route[i - 1], route[i]);
        for (int step = 0; step <= g_iSteps; ++step)
        {
            const QPointF point = bend.At(qreal(step) / g_iSteps);
            for (const QRectF& obstacle : obstacles)
                if (obstacle.contains(point))
                    return false;
        }
    }
    return true;
}

qreal Length(const CEdgeRoute& route)
{
    qreal length = 0;
    for (size_t i = 1; i < route.size(); ++i)
        length += std::hypot(route[i].x() - route[i - 1].x(), route[i].y() - route[i - 1].y());
    return length;
}

} // namespace

CEdgeRoute RouteEdge(const QPointF& from, const QPointF& to, const std::vector<QRectF>& obstacles)
{
    const CEdgeRoute straight = {from, to};
    const qreal top = from.y() + g_dTurn;
    const qreal bottom = to.y() - g_dTurn;
    if (bottom < top || IsFree(straight, obstacles))
        return straight;
    CEdgeRoute best;
    const auto tryLane = [&](qreal x)
    {
        const CEdgeRoute route = {from, QPointF(x, top), QPointF(x, bottom), to};
        if ((best.empty() || Length(route) < Length(best)) && IsFree(route, obstacles))
            best = route;
    };
    for (const QRectF& obstacle : obstacles)
    {
        tryLane(obstacle.left() - g_dClearance);
        tryLane(obstacle.right() + g_dClearance);
    }
    return best.empty() ? straight : best;
}

QPainterPath EdgePath(const CEdgeRoute& route)
{
    QPainterPath path(route.front());
    for (size_t i = 1; i < route.size(); ++i)
    {
        const sBend bend(route[i - 1], route[i]);
        path.cubicTo(bend.m_from + QPointF(0, bend.m_dReach), bend.m_to - QPointF(0, bend.m_dReach),
                     bend.m_to);
    }
    return path;
}
