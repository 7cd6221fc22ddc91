#include <canvas/edgeroute.h>

#include <gtest/gtest.h>

namespace
{

bool Touches(const CEdgeRoute& route, const QRectF& area)
{
    const QPainterPath path = EdgePath(route);
    for (int percent = 0; percent <= 100; ++percent)
        if (area.contains(path.pointAtPercent(percent / 100.0)))
            return true;
    return false;
}

} // namespace

TEST(EdgeRouteTest, IsStraightWhereNothingIsInTheWay)
{
    EXPECT_EQ(RouteEdge({0, 0}, {50, 100}, {QRectF(100, 0, 50, 50)}),
              (CEdgeRoute{{0, 0}, {50, 100}}));
}

TEST(EdgeRouteTest, PassesANodeOnTheShorterSide)
{
    const QRectF node(-30, 80, 100, 40);
    const CEdgeRoute route = RouteEdge({0, 0}, {0, 200}, {node});
    EXPECT_EQ(route, (CEdgeRoute{{0, 0}, {-42, 40}, {-42, 160}, {0, 200}}));
    EXPECT_FALSE(Touches(route, node));
}

TEST(EdgeRouteTest, TakesALaneThatIsFreeOfOtherNodes)
{
    const QRectF node(-30, 80, 100, 40);
    const QRectF neighbour(-140, 80, 105, 40);
    const CEdgeRoute route = RouteEdge({0, 0}, {0, 200}, {node, neighbour});
    ASSERT_EQ(route.size(), 4u);
    EXPECT_EQ(route[1].x(), 82);
    EXPECT_FALSE(Touches(route, node));
    EXPECT_FALSE(Touches(route, neighbour));
}

TEST(EdgeRouteTest, GoesStraightWhenThereIsNoLane)
{
    const QRectF wall(-1000, 80, 2000, 40);
    const QRectF left(-1100, 0, 95, 200);
    const QRectF right(1005, 0, 95, 200);
    EXPECT_EQ(RouteEdge({0, 0}, {0, 200}, {wall, left, right}).size(), 2u);
}

TEST(EdgeRouteTest, LeavesAndArrivesDownwardsAlsoWhenItClimbs)
{
    const QPainterPath path = EdgePath(RouteEdge({0, 0}, {80, -120}, {}));
    EXPECT_GT(path.pointAtPercent(0.1).y(), 0);
    EXPECT_LT(path.pointAtPercent(0.9).y(), -120);
    EXPECT_EQ(path.currentPosition(), QPointF(80, -120));
}

TEST(EdgeRouteTest, ClimbsBesideTheNodesItConnects)
{
    // The upper node is to the right of the lower one, and takes what that makes.
    const QRectF lower(0, 200, 100, 50);
    const QRectF upper(150, 0, 100, 50);
    const CEdgeRoute route = RouteEdge(
        {50, 250}, {200, 0}, {lower.adjusted(1, 1, -1, -1), upper.adjusted(1, 1, -1, -1)});
    ASSERT_EQ(route.size(), 4u);
    EXPECT_EQ(route[1].y(), 250);
    EXPECT_EQ(route[2].y(), 0);
    EXPECT_GT(route[1].x(), 100);
    EXPECT_LT(route[1].x(), 150);
    EXPECT_FALSE(Touches(route, lower.adjusted(1, 1, -1, -1)));
    EXPECT_FALSE(Touches(route, upper.adjusted(1, 1, -1, -1)));
}
