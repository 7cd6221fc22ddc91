#include <canvas/autolayout.h>

#include <gtest/gtest.h>

#include <QRectF>

#include <random>

namespace
{

constexpr qreal g_dWidth = 100;
constexpr qreal g_dHeight = 50;
constexpr qreal g_dColumn = 110; ///< from one column to the next
constexpr qreal g_dRow = 70;

class CAutoLayoutTest : public testing::Test
{
protected:
    void Add(int id, const std::vector<int>& inputs = {})
    {
        m_vNodes.push_back({id, QSizeF(g_dWidth, g_dHeight), inputs});
    }
    void LayOut() { m_vPlaces = LayOutGraph(m_vNodes, {10, 20}); }
    QPointF Cell(int column, int row) const { return {column * g_dColumn, row * g_dRow}; }

    std::vector<sLayoutNode> m_vNodes;
    QHash<int, QPointF> m_vPlaces;
};

} // namespace

TEST_F(CAutoLayoutTest, PlacesNothingForNothing)
{
    LayOut();
    EXPECT_TRUE(m_vPlaces.isEmpty());
}

TEST_F(CAutoLayoutTest, StacksAChainWithTheSourceOnTop)
{
    Add(1, {2});
    Add(2, {3});
    Add(3);
    LayOut();
    EXPECT_EQ(m_vPlaces[3], Cell(0, 0));
    EXPECT_EQ(m_vPlaces[2], Cell(0, 1));
    EXPECT_EQ(m_vPlaces[1], Cell(0, 2));
}

TEST_F(CAutoLayoutTest, PutsASecondInputBesideTheChainOneRowAbove)
{
    Add(1, {2, 9});
    Add(2, {3, 8});
    Add(3);
    Add(8);
    Add(9);
    LayOut();
    EXPECT_EQ(m_vPlaces[3], Cell(0, 0));
    EXPECT_EQ(m_vPlaces[8], Cell(1, 0));
    EXPECT_EQ(m_vPlaces[2], Cell(0, 1));
    EXPECT_EQ(m_vPlaces[9], Cell(1, 1));
    EXPECT_EQ(m_vPlaces[1], Cell(0, 2));
}

TEST_F(CAutoLayoutTest, PutsTheLongerBranchFurtherOut)
{
    // 9 and 8 are a branch of two rows that would cross the branch of the upper node.
    Add(1, {2, 9});
    Add(2, {3, 7});
    Add(3);
    Add(7);
    Add(8);
    Add(9, {8});
    LayOut();
    EXPECT_EQ(m_vPlaces[7], Cell(1, 0));
    EXPECT_EQ(m_vPlaces[9], Cell(2, 1));
    EXPECT_EQ(m_vPlaces[8], Cell(2, 0));
}

TEST_F(CAutoLayoutTest, PutsAnEndThatSharesItsInputBesideTheFirst)
{
    Add(1, {3});
    Add(2, {3});
    Add(3);
    LayOut();
    EXPECT_EQ(m_vPlaces[3], Cell(0, 0));
    EXPECT_EQ(m_vPlaces[1], Cell(0, 1));
    EXPECT_EQ(m_vPlaces[2], Cell(1, 1));
}

TEST_F(CAutoLayoutTest, KeepsAnEndNearWhatFeedsIt)
{
    Add(1, {2});
    Add(2, {3});
    Add(3, {4});
    Add(4);
    Add(5, {4});
    LayOut();
    EXPECT_EQ(m_vPlaces[1], Cell(0, 3));
    EXPECT_EQ(m_vPlaces[5], Cell(1, 1));
}

TEST_F(CAutoLayoutTest, PutsAGraphOfItsOwnPastAllOthers)
{
    Add(1, {2, 3});
    Add(2);
    Add(3);
    Add(4);
    LayOut();
    EXPECT_EQ(m_vPlaces[4], Cell(2, 1));
}

TEST_F(CAutoLayoutTest, CentresNodesOfDifferentWidthsInTheirColumn)
{
    Add(1, {2});
    m_vNodes.push_back({2, QSizeF(60, 80), {}});
    LayOut();
    EXPECT_EQ(m_vPlaces[2], QPointF(20, 0));
    EXPECT_EQ(m_vPlaces[1], QPointF(0, 100));
}

TEST_F(CAutoLayoutTest, IgnoresInputsThatAreNotListed)
{
    Add(1, {77, 2});
    Add(2);
    LayOut();
    EXPECT_EQ(m_vPlaces.size(), 2);
    EXPECT_LT(m_vPlaces[2].y(), m_vPlaces[1].y());
}

TEST_F(CAutoLayoutTest, KeepsRandomGraphsApartAndDownwards)
{
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round)
    {
        m_vNodes.clear();
        const int count = 1 + int(random() % 60);
        for (int id = 0; id < count; ++id)
        {
            std::vector<int> inputs;
            for (unsigned pad = random() % 3; pad > 0 && id > 0; --pad)
                inputs.push_back(int(random() % unsigned(id)));
            m_vNodes.push_back(
                {id, QSizeF(60 + int(random() % 80), 40 + int(random() % 30)), inputs});
        }
        LayOut();
        for (const sLayoutNode& node : m_vNodes)
        {
            const QRectF area(m_vPlaces[node.m_iId], node.m_size);
            for (const int input : node.m_vInputs)
                EXPECT_LT(m_vPlaces[input].y() + m_vNodes[size_t(input)].m_size.height(),
                          area.top());
            for (const sLayoutNode& other : m_vNodes)
            {
                const QRectF otherArea(m_vPlaces[other.m_iId], other.m_size);
                EXPECT_TRUE(other.m_iId == node.m_iId || !area.intersects(otherArea))
                    << round << ": " << node.m_iId << " and " << other.m_iId;
            }
        }
    }
}
