#include "edgeroute.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr qreal g_dClearance = 12; ///< between a lane and the node that it passes
constexpr qreal g_dTurn = 40;      ///< the height in which an edge reaches its lane
constexpr qreal g_dLeastBend = 18;
constexpr qreal g_dMostBend = 120;
constexpr int g_iSteps = 24; ///< in which a curve is probed

/// One curve of a way, from one point to the next.
struct sBend
{
    sBend(const CEdgeRoute& route, size_t index) : m_from(route[index]), m_to(route[index + 1])
    {
        const qreal down = std::abs(m_to.y() - m_from.y());
        const bool isStraight = m_to.x() == m_from.x() && IsDown(route, index);
        const qreal reach = isStraight ? down / 2 : std::max(down / 2, g_dLeastBend);
        const QPointF turn(0, route.size() == 2 ? std::min(reach, g_dMostBend) : reach);
        m_first = IsDown(route, index) ? m_from + turn : m_from - turn;
        m_second = IsDown(route, index + 1) ? m_to - turn : m_to + turn;
    }
    QPointF At(qreal t) const
    {
        const qreal s = 1 - t;
        return s * s * s * m_from + 3 * s * s * t * m_first + 3 * s * t * t * m_second +
               t * t * t * m_to;
    }
    // The ends are passed downwards, a lane may lead up.
    static bool IsDown(const CEdgeRoute& route, size_t index)
    {
        const bool isEnd = index == 0 || index + 1 == route.size();
        return isEnd || route[2].y() >= route[1].y();
    }

    QPointF m_from;
    QPointF m_to;
    QPointF m_first; ///< the control points
    QPointF m_second;
};

bool IsFree(const CEdgeRoute& route, const std::vector<QRectF>& obstacles)
{
    for (size_t i = 0; i + 1 < route.size(); ++i)
    {
        const sBend bend(route, i);
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
    CEdgeRoute straight = {from, to};
    const bool isDown = from.y() + 2 * g_dTurn <= to.y();
    if (from.y() < to.y() && (!isDown || IsFree(straight, obstacles)))
        return straight;
    // An edge that climbs turns around where it starts and where it ends.
    const qreal turn = isDown ? g_dTurn : 0;
    CEdgeRoute best;
    const auto tryLane = [&](qreal x)
    {
        const CEdgeRoute route = {from, QPointF(x, from.y() + turn), QPointF(x, to.y() - turn), to};
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
    for (size_t i = 0; i + 1 < route.size(); ++i)
    {
        const sBend bend(route, i);
        path.cubicTo(bend.m_first, bend.m_second, bend.m_to);
    }
    return path;
}
