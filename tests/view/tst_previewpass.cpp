// Everything on one line.

#include <support/layoutpanel.h>

#include <gtest/gtest.h>

#include <climits>

namespace
{

using CNode = CLayoutPanel::CNode;
using CRequest = CLayoutPanel::CRequest;

class Preview : public testing::Test
{
protected:
    void SetUp() override { m_panel.m_view.SetPreviewMode(true); }

    void Add(const std::string& name, int label, int required, CNode* parent = nullptr,
             CRequest request = CRequest())
    {
        m_panel.m_view.m_mapLabelWidths[name] = label;
        m_panel.AddControl(name, required, parent, &request);
    }

    void Layout(int width)
    {
        m_panel.m_view.m_iInspectorWidth = 0;
        m_panel.m_view.ResizeInspector(width, 80);
    }

    /// The (x, width) that the widgets were given.
    std::vector<std::pair<int, int>> Places(int width)
    {
        Layout(width);
        std::vector<std::pair<int, int>> places;
        for (const auto& widget : m_panel.m_vWidgets)
            places.emplace_back(widget->m_iX, widget->m_iWidth);
        return places;
    }

    using CPlaces = std::vector<std::pair<int, int>>;
    CLayoutPanel m_panel;
};

} // namespace

TEST_F(Preview, CutsTheRestAfterTheLabelsWhenAllFits)
{
    Add("a", 30, 20);
    Add("b", 10, 50);
    // 200 - 40 makes 80 for each.
    EXPECT_EQ(Places(200), (CPlaces{{30, 80}, {120, 80}}));
    EXPECT_EQ(RectOf(m_panel.Node(0)), (sRect{0, 0, 110, 20}));
    EXPECT_EQ(RectOf(m_panel.Node(1)), (sRect{110, 0, 90, 20}));
    EXPECT_EQ(m_panel.Node(0).m_iLabelWidth, 30);
    EXPECT_EQ(m_panel.Node(1).m_iLabelWidth, 10);
    EXPECT_EQ(RectOf(*m_panel.Node(1).m_pHolder), (sRect{120, 0, 80, 20}));
}

TEST_F(Preview, FitsAsLongAsWishesAndLabelsFillTheWidth)
{
    Add("a", 30, 60);
    Add("b", 10, 60);
    EXPECT_EQ(Places(160), (CPlaces{{30, 60}, {100, 60}}));
    // One pixel less, and the labels vanish.
    EXPECT_EQ(Places(159), (CPlaces{{0, 79}, {79, 79}}));
    EXPECT_EQ(m_panel.Node(0).m_iLabelWidth, 0);
    EXPECT_EQ(m_panel.Node(1).m_iLabelWidth, 0);
}

TEST_F(Preview, LeavesLabelsOutWhileTheWishesFit)
{
    Add("a", 100, 60);
    Add("b", 100, 60);
    EXPECT_EQ(Places(121), (CPlaces{{0, 60}, {60, 60}}));
    EXPECT_EQ(RectOf(m_panel.Node(1)), (sRect{60, 0, 60, 20}));
}

TEST_F(Preview, ShowsOnlyTheFirstControlsWhenTheWishesDoNotFit)
{
    Add("a", 5, 60);
    Add("b", 5, 60);
    Add("c", 5, 60);
    // The sums are 60 and 120, which reaches 120: one share.
    EXPECT_EQ(Places(120)[0], (std::pair<int, int>{0, 120}));
    // Now 60, 120 and 180: two shares of 60, and nothing remains for the third.
    const CPlaces places = Places(121);
    EXPECT_EQ(places[0], (std::pair<int, int>{0, 60}));
    EXPECT_EQ(places[1], (std::pair<int, int>{60, 60}));
    // One pixel remains, so the third is placed as well.
    EXPECT_EQ(places[2], (std::pair<int, int>{120, 60}));
}

TEST_F(Preview, KeepsTheLabelsOfNodesThatAreNotReached)
{
    Add("a", 7, 150);
    Add("b", 8, 150);
    CNode* group = m_panel.AddGroup("group");
    m_panel.m_view.m_mapLabelWidths["group"] = 99;
    Add("c", 9, 150, group);
    Layout(200);
    EXPECT_EQ(m_panel.Node(0).m_iLabelWidth, 0);
    EXPECT_EQ(m_panel.Node(0).m_iWidth, 200);
    EXPECT_EQ(m_panel.Node(1).m_iLabelWidth, 8);
    EXPECT_EQ(m_panel.Node(1).m_iWidth, 200); // from the vertical pass
    EXPECT_EQ(group->m_iLabelWidth, 0);
    EXPECT_EQ(group->m_lChildren.front().m_iLabelWidth, 9);
    EXPECT_EQ(RectOf(*m_panel.Node(1).m_pHolder), (sRect{0, 0, 0, 0}));
}

TEST_F(Preview, LeavesTheControlsThatAreNotReachedWhereTheyWere)
{
    Add("a", 0, 10);
    Add("b", 0, 10);
    EXPECT_EQ(Places(100), (CPlaces{{0, 50}, {50, 50}}));
    for (const auto& widget : m_panel.m_vWidgets)
        widget->m_iRequiredWidth = 90;
    EXPECT_EQ(Places(80), (CPlaces{{0, 80}, {50, 50}}));
}

TEST_F(Preview, GivesASingleRowTheWholeWidthWithoutItsLabel)
{
    Add("a", 30, 20);
    EXPECT_EQ(Places(200), (CPlaces{{0, 200}}));
    EXPECT_EQ(m_panel.Node().m_iLabelWidth, 0);
}

TEST_F(Preview, CountsAGroupAsANode)
{
    Add("a", 30, 20, m_panel.AddGroup("group"));
    m_panel.m_view.m_mapLabelWidths["group"] = 50; // of no account
    EXPECT_EQ(Places(200), (CPlaces{{30, 170}}));
}

TEST_F(Preview, HasAtLeastOneShare)
{
    Add("a", 0, 500);
    EXPECT_EQ(Places(200), (CPlaces{{0, 200}}));
    Add("b", 0, 500);
    EXPECT_EQ(Places(200)[0], (std::pair<int, int>{0, 200}));
}

TEST_F(Preview, HasAtLeastOneShareWithoutAnyControl)
{
    m_panel.AddGroup("group");
    CNode* line = m_panel.AddContainer("line");
    m_panel.m_view.m_mapLabelWidths["line"] = 40;
    Layout(200);
    EXPECT_EQ(RectOf(*line), (sRect{0, 0, 40, 0}));
    EXPECT_EQ(RectOf(*line->m_pHolder), (sRect{40, 0, 0, 0}));
}

TEST_F(Preview, CountsTwentyForAControlWithoutAWish)
{
    Add("a", 0, -1);
    Add("b", 0, 90);
    Add("c", 0, 90);
    // 20, 110 and 200: two shares.
    EXPECT_EQ(Places(112)[0].second, 56);
    // 20 and 110, which reaches 110: one share.
    EXPECT_EQ(Places(110)[0].second, 110);
    // 180 is less than 190, so that all wishes fit.
    EXPECT_EQ(Places(190)[0].second, 63);
}

TEST_F(Preview, CountsOtherWishesBelowOneAsTheyAre)
{
    Add("a", 0, -30);
    Add("b", 0, 0);
    Add("c", 0, 90);
    Add("d", 0, 90);
    // -30, -30, 60 and 150: three shares of 120, although the wishes above 0 come to 180.
    EXPECT_EQ(Places(120)[0].second, 40);
}

TEST_F(Preview, TakesARequestedMinimumForTheWish)
{
    Add("a", 0, 500, nullptr, CLayoutPanel::Absolute(60));
    Add("b", 0, 500, nullptr, CLayoutPanel::Relative(10, -1));
    EXPECT_EQ(Places(100), (CPlaces{{0, 50}, {50, 50}}));
    m_panel.m_log.Clear();
    Layout(100);
    EXPECT_EQ(m_panel.m_log.Count("GetRequiredWidth"), 0u);
}

TEST_F(Preview, TakesARequestedZeroForAWish)
{
    Add("a", 0, 500, nullptr, CLayoutPanel::Absolute(0));
    Add("b", 0, 10);
    EXPECT_EQ(Places(100), (CPlaces{{0, 50}, {50, 50}}));
}

TEST_F(Preview, GivesTheControlsOfALineAShareEachWithoutGaps)
{
    Add("a", 10, 20);
    CNode* line = m_panel.AddContainer("line");
    m_panel.m_view.m_mapLabelWidths["line"] = 30;
    Add("b", 777, 20, line);
    Add("c", 777, 20, line);
    Add("d", 20, 20);
    // 260 - 60 makes 50 for each of four.
    EXPECT_EQ(Places(260), (CPlaces{{10, 50}, {90, 50}, {140, 50}, {210, 50}}));
    EXPECT_EQ(RectOf(*line), (sRect{60, 0, 130, 20}));
    EXPECT_EQ(RectOf(*line->m_pHolder), (sRect{90, 0, 100, 20}));
    EXPECT_EQ(RectOf(m_panel.Node(2)), (sRect{190, 0, 70, 20}));
}

TEST_F(Preview, CountsTheWishesOfALineOneByOne)
{
    CNode* line = m_panel.AddContainer("line");
    Add("a", 0, 60, line);
    Add("b", 0, 60, line);
    Add("c", 0, 60, line);
    // 60, 120 and 180: two shares, cut for all three of the line.
    EXPECT_EQ(Places(150), (CPlaces{{0, 75}, {75, 75}, {150, 75}}));
    EXPECT_EQ(line->m_iWidth, 225);
}

TEST_F(Preview, PutsEverythingAtTheTopWithTheHeightOfItsNode)
{
    Add("a", 0, 20);
    m_panel.LastWidget().m_iRequiredHeight = 33;
    CNode* line = m_panel.AddContainer("line");
    Add("b", 0, 20, line);
    m_panel.LastWidget().m_iRequiredHeight = 11;
    Add("c", 0, 20, line);
    m_panel.LastWidget().m_iRequiredHeight = 12;
    Layout(300);
    EXPECT_EQ(RectOf(*m_panel.m_vWidgets[0]), (sRect{0, 0, 100, 33}));
    EXPECT_EQ(RectOf(*m_panel.m_vWidgets[1]), (sRect{100, 0, 100, 12}));
    EXPECT_EQ(RectOf(*m_panel.m_vWidgets[2]), (sRect{200, 0, 100, 12}));
}

TEST_F(Preview, PlacesNothingInAWidthOfNothing)
{
    Add("a", 10, 20);
    Add("b", 10, 20);
    EXPECT_EQ(Places(-50), (CPlaces{{0, 0}, {0, 0}}));
    EXPECT_EQ(m_panel.Node(0).m_iLabelWidth, 10);
}

TEST_F(Preview, TruncatesItsShares)
{
    Add("a", 0, 20);
    Add("b", 0, 20);
    Add("c", 0, 20);
    EXPECT_EQ(Places(100), (CPlaces{{0, 33}, {33, 33}, {66, 33}}));
}

TEST_F(Preview, WrapsAroundAtTheEndOf32Bits)
{
    Add("a", INT_MAX, INT_MAX);
    Add("b", INT_MAX, INT_MAX);
    // The labels come to -2, and so do the wishes: everything fits in 100, with 51 for each.
    EXPECT_EQ(Places(100)[0], (std::pair<int, int>{INT_MAX, 51}));
}
