// Single-line containers. In an inspector of width 210 a top-level line is 200 wide and starts
// at 5.

#include <support/layoutpanel.h>

#include <gtest/gtest.h>

#include <climits>

namespace
{

using CNode = CLayoutPanel::CNode;
using CHolder = CLayoutPanel::CHolder;
using CRequest = CLayoutPanel::CRequest;
using CEntry = CInspectorView::sPositionHolder;

class Container : public testing::Test
{
protected:
    CHolder* Add(int required, CRequest request = CRequest())
    {
        return m_panel.AddControl("control", required, m_pLine, &request);
    }

    /// The (x, width) of the controls after a layout.
    std::vector<std::pair<int, int>> Places(int inspectorWidth = 210)
    {
        m_panel.m_view.m_iInspectorWidth = 0;
        m_panel.m_view.ResizeInspector(inspectorWidth, 80);
        return Placed();
    }

    std::vector<std::pair<int, int>> Placed() const
    {
        std::vector<std::pair<int, int>> places;
        for (const CHolder* control : m_pLine->m_pHolder->m_lChildren)
        {
            places.emplace_back(control->m_iX, control->m_iWidth);
            EXPECT_EQ(control->m_iY, m_pLine->m_pHolder->m_iY);
            EXPECT_EQ(control->m_iHeight, m_pLine->m_pHolder->m_iHeight);
        }
        return places;
    }

    std::list<CEntry> Entries()
    {
        std::list<CEntry> list(3);
        m_panel.m_view.BuildPositionHolderListFromContainer(m_pLine, list);
        return list;
    }

    using CPlaces = std::vector<std::pair<int, int>>;
    CLayoutPanel m_panel;
    CNode* m_pLine = m_panel.AddContainer("line");
};

} // namespace

TEST_F(Container, SharesItsSpareWidthAmongThree)
{
    for (int i = 0; i < 3; ++i)
        Add(50, CLayoutPanel::Absolute(20));
    EXPECT_EQ(Places(), (CPlaces{{5, 65}, {72, 65}, {139, 66}}));
    EXPECT_EQ(RectOf(*m_pLine->m_pHolder), (sRect{5, 5, 200, 20}));
}

TEST_F(Container, ServesTheControlWithTheLeastRoomFirst)
{
    Add(50, CLayoutPanel::Absolute(20, 30));
    Add(50, CLayoutPanel::Absolute(20));
    Add(50, CLayoutPanel::Absolute(20));
    // 136 to share: 10 for the first, which would get 45, and 63 for each of the others.
    EXPECT_EQ(Places(), (CPlaces{{5, 30}, {37, 83}, {122, 83}}));
}

TEST_F(Container, ServesByRoomAndPlacesByOrder)
{
    Add(50, CLayoutPanel::Absolute(20));
    Add(50, CLayoutPanel::Absolute(20, 30));
    Add(50, CLayoutPanel::Absolute(20, 25));
    // 136: 5 for the third, 10 for the second, 121 for the first.
    EXPECT_EQ(Places(), (CPlaces{{5, 141}, {148, 30}, {180, 25}}));
}

TEST_F(Container, LeavesARestWhereNobodyCanGrow)
{
    Add(50, CLayoutPanel::Absolute(20, 30));
    Add(50, CLayoutPanel::Absolute(40, 40));
    m_pLine->m_pHolder->m_pRequest = new CRequest(CLayoutPanel::Absolute(-1, 200));
    EXPECT_EQ(Places(), (CPlaces{{5, 30}, {37, 40}}));
}

TEST_F(Container, GivesAControlThatCannotGrowItsMinimum)
{
    Add(50, CLayoutPanel::Absolute(40, 40));
    Add(50);
    // 200 - 2 - 40 - 50 to share.
    EXPECT_EQ(Places(), (CPlaces{{5, 40}, {47, 158}}));
}

TEST_F(Container, IsCrowdedWhenTheMinimumsDoNotFit)
{
    Add(150);
    Add(150);
    EXPECT_EQ(Places(), (CPlaces{{5, 150}, {157, 150}}));
    EXPECT_EQ(m_pLine->m_iLabelWidth, 0);
}

TEST_F(Container, CutsAControlWithNegativeRoomAndSpendsAShareOnIt)
{
    // Rooms are -10, 170 and 180; two can grow. 200 - 4 - 50 - 30 - 20 is 96: the first is cut to
    // 40 and uses up one of the two places, then the second takes all of 106.
    Add(50, CLayoutPanel::Absolute(50, 40));
    Add(30);
    Add(20);
    EXPECT_EQ(Places(), (CPlaces{{5, 40}, {47, 136}, {185, 20}}));
}

TEST_F(Container, LeavesAControlWithNegativeRoomUncutWhenNobodyCanGrow)
{
    Add(50, CLayoutPanel::Absolute(50, 40));
    m_pLine->m_pHolder->m_pRequest = new CRequest(CLayoutPanel::Absolute(-1, 200));
    EXPECT_EQ(Places(), (CPlaces{{5, 50}}));
}

TEST_F(Container, StartsAControlWithoutAWishAtNothing)
{
    Add(-1);
    Add(60);
    // 138 to share. The second has the least room and takes 69, the first the other 69.
    EXPECT_EQ(Places(), (CPlaces{{5, 69}, {76, 129}}));
}

TEST_F(Container, ResolvesPercentOfItsRow)
{
    Add(50, CLayoutPanel::Relative(25, 30)); // 50 to 60 of 200
    Add(50, CLayoutPanel::Relative(10, 100));
    EXPECT_EQ(Places(), (CPlaces{{5, 60}, {67, 138}}));
}

TEST_F(Container, MakesRoomForItsLabel)
{
    m_panel.m_view.m_iLabelWidth = 60;
    Add(20);
    Add(20);
    // 140 - 2 - 40 to share.
    EXPECT_EQ(Places(), (CPlaces{{65, 69}, {136, 69}}));
    EXPECT_EQ(m_pLine->m_iLabelWidth, 60);
    EXPECT_EQ(RectOf(*m_pLine->m_pHolder), (sRect{65, 5, 140, 20}));
}

TEST_F(Container, CountsGapsInItsMinimumButNotInItsMaximum)
{
    Add(50, CLayoutPanel::Absolute(40, 60));
    Add(50, CLayoutPanel::Absolute(40, 60));
    m_panel.m_view.m_iLabelWidth = 118; // with 40 + 2 + 40 just fits
    Places();
    EXPECT_EQ(m_pLine->m_iLabelWidth, 118);
    m_panel.m_view.m_iLabelWidth = 119; // does not
    Places();
    EXPECT_EQ(m_pLine->m_iLabelWidth, 0);
    m_panel.m_view.m_iLabelWidth = 30; // the line needs no more than 120
    EXPECT_EQ(Places(), (CPlaces{{85, 59}, {146, 59}}));
    EXPECT_EQ(m_pLine->m_iLabelWidth, 80);
}

TEST_F(Container, PutsItsOwnBoundsBeforeThoseOfItsControls)
{
    Add(50);
    m_pLine->m_pHolder->m_pRequest = new CRequest(CLayoutPanel::Absolute(150, 160));
    m_panel.m_view.m_iLabelWidth = 10;
    EXPECT_EQ(Places(), (CPlaces{{45, 160}}));
    m_panel.m_view.m_iLabelWidth = 50;
    EXPECT_EQ(Places(), (CPlaces{{55, 150}}));
    m_panel.m_view.m_iLabelWidth = 51;
    EXPECT_EQ(Places(), (CPlaces{{5, 200}}));
}

TEST_F(Container, WithoutControlsAloneHasAMinimumOfMinusTwo)
{
    m_panel.m_view.m_iLabelWidth = 202;
    Places();
    // The minimum lets the label pass, the maximum of 0 makes no difference.
    EXPECT_EQ(m_pLine->m_iLabelWidth, 202);
    m_panel.m_view.m_iLabelWidth = 203;
    Places();
    EXPECT_EQ(m_pLine->m_iLabelWidth, 0);
    m_panel.m_view.m_iLabelWidth = 30;
    Places();
    EXPECT_EQ(m_pLine->m_iLabelWidth, 200);
    EXPECT_EQ(RectOf(*m_pLine->m_pHolder), (sRect{205, 5, 0, 0}));
}

TEST_F(Container, WithoutControlsInARunHasNoMinimum)
{
    m_panel.m_view.m_mapLabelWidths = {{"line", 0}, {"row", 10}};
    m_panel.AddControl("row", -5);
    m_pLine->m_pHolder->m_pRequest = new CRequest(CLayoutPanel::Absolute(-1, 500));
    m_panel.m_view.m_mapLabelWidths["line"] = 200;
    Places();
    EXPECT_EQ(m_pLine->m_iLabelWidth, 200);
    m_panel.m_view.m_mapLabelWidths["line"] = 201;
    Places();
    EXPECT_EQ(m_pLine->m_iLabelWidth, 10);
}

TEST_F(Container, InARunSumsMinusOneForAControlWithoutAWish)
{
    m_panel.m_view.m_mapLabelWidths = {{"line", 0}, {"row", 10}};
    m_panel.AddControl("row", -5);
    Add(-1);
    Add(-1);
    // The minimum is -1 + 2 - 1.
    m_panel.m_view.m_mapLabelWidths["line"] = 200;
    Places();
    EXPECT_EQ(m_pLine->m_iLabelWidth, 200);
    m_panel.m_view.m_mapLabelWidths["line"] = 201;
    Places();
    EXPECT_EQ(m_pLine->m_iLabelWidth, 10);
}

TEST_F(Container, InARunTakesPartInTheCommonLabel)
{
    m_panel.m_view.m_mapLabelWidths = {{"line", 20}, {"row", 60}};
    m_panel.AddControl("row", 10);
    Add(20);
    Add(20);
    EXPECT_EQ(Places(), (CPlaces{{65, 69}, {136, 69}}));
    EXPECT_EQ(m_panel.Node(1).m_iLabelWidth, 60);
    // Its minimum of 75 + 2 + 75 bounds the label.
    for (const auto& widget : m_panel.m_vWidgets)
        widget->m_iRequiredWidth = 75;
    EXPECT_EQ(Places(), (CPlaces{{53, 75}, {130, 75}}));
    EXPECT_EQ(m_panel.Node(1).m_iLabelWidth, 48);
}

TEST_F(Container, InARunMayDoWithoutALabel)
{
    m_pLine->m_pHolder->m_pRequest = new CRequest(CLayoutPanel::NoLabel());
    m_panel.m_view.m_mapLabelWidths = {{"line", 20}, {"row", 60}};
    m_panel.AddControl("row", 10);
    Add(20);
    EXPECT_EQ(Places(), (CPlaces{{5, 200}}));
    EXPECT_EQ(m_panel.Node(1).m_iLabelWidth, 60);
}

TEST_F(Container, ListsAnEntryPerControl)
{
    m_panel.m_view.ResizeInspector(210, 80);
    EXPECT_TRUE(Entries().empty());
    CHolder* a = Add(30);
    CHolder* b = Add(30, CLayoutPanel::Absolute(50, 40));
    CHolder* c = Add(-1, CLayoutPanel::Relative(-1, 50)); // -1 % of 200 is -2
    const std::list<CEntry> list = Entries();
    ASSERT_EQ(list.size(), 3u);
    const std::vector<CEntry> entries(list.begin(), list.end());
    const std::vector<std::vector<int>> expected = {
        {30, 200, 30, 170, 0}, {50, 40, 50, -10, 1}, {-2, 100, -2, 102, 2}};
    const std::vector<CHolder*> holders = {a, b, c};
    for (std::size_t i = 0; i < 3; ++i)
    {
        const CEntry& entry = entries[i];
        EXPECT_EQ((std::vector<int>{entry.m_iMin, entry.m_iMax, entry.m_iWidth, entry.m_iRoom,
                                    entry.m_iIndex}),
                  expected[i]);
        EXPECT_EQ(entry.m_pHolder, holders[i]);
    }
}

TEST_F(Container, CountsARequiredWidthOfMinusOneAsNothingInAnEntry)
{
    m_panel.m_view.ResizeInspector(210, 80);
    Add(-1);
    Add(-2);
    const std::list<CEntry> entries = Entries();
    EXPECT_EQ(entries.front().m_iMin, 0);
    EXPECT_EQ(entries.front().m_iRoom, 200);
    EXPECT_EQ(entries.back().m_iMin, -2);
}

TEST_F(Container, SharesOutAWidthThatIsGiven)
{
    Add(10);
    Add(10);
    Add(10);
    m_panel.m_view.ResizeInspector(210, 80);
    std::list<CEntry> entries = Entries();
    m_panel.m_view.PositionChildrenInContainer(m_pLine, entries, 100, 2);
    EXPECT_EQ(Placed(), (CPlaces{{5, 60}, {67, 60}, {129, 10}}));
    entries = Entries();
    m_panel.m_view.PositionChildrenInContainer(m_pLine, entries, 0, 2);
    EXPECT_EQ(Placed(), (CPlaces{{5, 10}, {17, 10}, {29, 10}}));
    entries = Entries();
    m_panel.m_view.PositionChildrenInContainer(m_pLine, entries, 100, 0);
    EXPECT_EQ(Placed(), (CPlaces{{5, 10}, {17, 10}, {29, 10}}));
}

TEST_F(Container, ComputesBothWhenEitherIsMinusOne)
{
    Add(10);
    Add(10);
    m_panel.m_view.ResizeInspector(210, 80);
    const CPlaces shared = {{5, 99}, {106, 99}};
    std::list<CEntry> entries = Entries();
    m_panel.m_view.PositionChildrenInContainer(m_pLine, entries, -1, 1);
    EXPECT_EQ(Placed(), shared);
    entries = Entries();
    m_panel.m_view.PositionChildrenInContainer(m_pLine, entries, 4, -1);
    EXPECT_EQ(Placed(), shared);
    // What was given is kept in the entries, which are in their order again.
    EXPECT_EQ(entries.front().m_iWidth, 99);
    EXPECT_EQ(entries.front().m_iIndex, 0);
    EXPECT_EQ(entries.back().m_iIndex, 1);
}

TEST_F(Container, GivesTheRemainderOfADivisionToTheNextOnes)
{
    Add(0);
    Add(0);
    Add(0);
    Add(0);
    // 200 - 6 is 194: 48, 48, 49, 49.
    EXPECT_EQ(Places(), (CPlaces{{5, 48}, {55, 48}, {105, 49}, {156, 49}}));
}

TEST_F(Container, WrapsAroundAtTheEndOf32Bits)
{
    Add(INT_MAX);
    Add(INT_MAX);
    EXPECT_EQ(Places(), (CPlaces{{5, INT_MAX}, {INT_MIN + 6, INT_MAX}}));
}
