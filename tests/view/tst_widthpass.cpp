// Labels and controls of rows. In an inspector of width 210 a top-level row is 200 wide and starts
// at 5.

#include <support/layoutpanel.h>
#include <support/rowname.h>

#include <gtest/gtest.h>

#include <climits>

namespace
{

using CNode = CLayoutPanel::CNode;
using CRequest = CLayoutPanel::CRequest;

struct sAlone
{
    const char* m_szName;
    int m_iLabel;
    int m_iRequired;
    int m_iMin; ///< absolute, -1 for none
    int m_iMax; ///< absolute, -1 for none
    int m_iLabelWidth;
};

class WidthOfARowAlone : public testing::TestWithParam<sAlone>
{
};

const sAlone g_alone[] = {
    {"NoLabel", 0, 50, -1, -1, 0},
    {"LabelAndControlFit", 60, 50, -1, -1, 60},
    {"LabelAndMinimumJustFit", 150, 50, -1, -1, 150},
    {"LabelAndMinimumDoNotFit", 151, 50, -1, -1, 0},
    {"RequestedMinimumCountsInPlaceOfTheRequiredWidth", 60, 500, 140, -1, 60},
    {"RequestedMinimumDoesNotFit", 60, 50, 141, -1, 0},
    {"CappedControlSitsAtTheRight", 30, 50, -1, 80, 120},
    {"CappedControlAndLabelJustFillTheRow", 120, 50, -1, 80, 120},
    {"CappedControlWithAWiderLabel", 121, 50, -1, 80, 121},
    {"NoRequiredWidthCountsMinusOne", 201, -1, -1, -1, 201},
    {"NoRequiredWidthAndALabelTooWide", 202, -1, -1, -1, 0},
    {"MinimumOfNothing", 200, 50, 0, -1, 200},
    {"MaximumOfNothing", 30, 0, -1, 0, 200},
    {"NegativeMaximum", 30, 0, -1, -10, 210},
    // The label does not fit beside the minimum, and yet the control is capped: the cap wins.
    {"BothTestsHit", 100, 50, 150, 80, 120},
    {"BothTestsUseTheMeasuredLabel", 190, 50, 150, 80, 0},
    {"LabelWiderThanTheRow", 250, 50, -1, -1, 0},
    {"NegativeMinimum", 30, 50, -20, -1, 30},
    {"MinimumAboveTheRow", 30, 300, -1, -1, 0},
};

} // namespace

TEST_P(WidthOfARowAlone, FollowsItsBounds)
{
    const sAlone& row = GetParam();
    CLayoutPanel panel;
    panel.m_view.m_iLabelWidth = row.m_iLabel;
    auto request = CLayoutPanel::Absolute(row.m_iMin, row.m_iMax);
    const auto* holder = panel.AddControl("row", row.m_iRequired, nullptr, &request);
    panel.m_view.ResizeInspector(210, 80);
    EXPECT_EQ(panel.Node().m_iLabelWidth, row.m_iLabelWidth);
    EXPECT_EQ(RectOf(*holder), (sRect{5 + row.m_iLabelWidth, 5, 200 - row.m_iLabelWidth, 20}));
    EXPECT_EQ(RectOf(panel.LastWidget()), RectOf(*holder));
}

INSTANTIATE_TEST_SUITE_P(Table, WidthOfARowAlone, testing::ValuesIn(g_alone), sRowName());

namespace
{

/// Rows at the top level that form a run.
class WidthOfARun : public testing::Test
{
protected:
    void Add(const std::string& name, int label, int required, CRequest request = CRequest())
    {
        m_panel.m_view.m_mapLabelWidths[name] = label;
        m_panel.AddControl(name, required, nullptr, &request);
    }

    /// The label widths after a layout in rows of width 200.
    std::vector<int> Labels()
    {
        m_panel.m_view.m_iInspectorWidth = 0;
        m_panel.m_view.ResizeInspector(210, 80);
        std::vector<int> labels;
        for (const CNode& node : m_panel.m_view.m_lElements)
        {
            labels.push_back(node.m_iLabelWidth);
            EXPECT_EQ(node.m_pHolder->m_iX, 5 + node.m_iLabelWidth);
            EXPECT_EQ(node.m_pHolder->m_iWidth, 200 - node.m_iLabelWidth);
            EXPECT_EQ(node.m_pHolder->m_iY, node.m_iY);
            EXPECT_EQ(node.m_pHolder->m_iHeight, node.m_iHeight);
        }
        return labels;
    }

    using CLabels = std::vector<int>;
    CLayoutPanel m_panel;
};

} // namespace

TEST_F(WidthOfARun, IsTheWidestLabelForAll)
{
    Add("a", 40, 50);
    Add("b", 60, 50);
    EXPECT_EQ(Labels(), (CLabels{60, 60}));
    EXPECT_EQ(RectOf(*m_panel.Node(0).m_pHolder), (sRect{65, 5, 140, 20}));
    EXPECT_EQ(RectOf(*m_panel.Node(1).m_pHolder), (sRect{65, 30, 140, 20}));
}

TEST_F(WidthOfARun, IsWhatTheWidestMinimumLeaves)
{
    Add("a", 40, 50);
    Add("b", 60, 50, CLayoutPanel::Absolute(180));
    EXPECT_EQ(Labels(), (CLabels{20, 20}));
}

TEST_F(WidthOfARun, CountsALabelThatDoesNotFitAsNothing)
{
    Add("a", 40, 50);
    Add("b", 151, 50);
    EXPECT_EQ(Labels(), (CLabels{40, 40}));
}

TEST_F(WidthOfARun, CountsALabelThatJustFits)
{
    Add("a", 40, 50);
    Add("b", 150, 50);
    EXPECT_EQ(Labels(), (CLabels{150, 150}));
}

TEST_F(WidthOfARun, GrowsForACappedControl)
{
    Add("a", 40, 50);
    Add("b", 30, 50, CLayoutPanel::Absolute(-1, 80));
    EXPECT_EQ(Labels(), (CLabels{120, 120}));
}

TEST_F(WidthOfARun, DoesNotGrowForACapThatLabelAndControlFill)
{
    Add("a", 40, 50);
    Add("b", 30, 50, CLayoutPanel::Absolute(-1, 170));
    EXPECT_EQ(Labels(), (CLabels{40, 40}));
}

TEST_F(WidthOfARun, LooksAtTheCapOnlyWhenTheLabelFits)
{
    // The label of b does not fit beside its minimum, so its cap of 20 is not looked at.
    Add("a", 40, 50);
    Add("b", 110, 50, CLayoutPanel::Absolute(100, 20));
    EXPECT_EQ(Labels(), (CLabels{40, 40}));
}

TEST_F(WidthOfARun, LeavesTheRowWithoutALabelOut)
{
    Add("a", 40, 50);
    Add("b", 60, 50, CLayoutPanel::NoLabel());
    Add("c", 50, 50);
    EXPECT_EQ(Labels(), (CLabels{60, 0, 60}));
}

TEST_F(WidthOfARun, IsBoundedByTheRowWithoutALabelToo)
{
    CRequest request = CLayoutPanel::NoLabel();
    request.SetMinValueAbsolute(190);
    Add("a", 40, 50);
    Add("b", 5, 50, request);
    EXPECT_EQ(Labels(), (CLabels{10, 0}));
}

TEST_F(WidthOfARun, TestsOnlyTheLowestOptionBit)
{
    CRequest two;
    two.SetOptions(2);
    CRequest three;
    three.SetOptions(3);
    CRequest rest;
    rest.SetOptions(-2);
    Add("a", 40, 50, two);
    Add("b", 40, 50, three);
    Add("c", 40, 50, rest);
    EXPECT_EQ(Labels(), (CLabels{40, 0, 40}));
}

TEST_F(WidthOfARun, HasNoSayOverARowAloneWithTheNoLabelOption)
{
    Add("alone", 40, 50, CLayoutPanel::NoLabel());
    EXPECT_EQ(Labels(), CLabels{40});
}

TEST_F(WidthOfARun, MayBeNegative)
{
    Add("a", 0, 50);
    Add("b", 0, 230);
    EXPECT_EQ(Labels(), (CLabels{-30, -30}));
}

TEST_F(WidthOfARun, CountsAControlWithoutAWishAsMinusOne)
{
    Add("a", 10, -1);
    Add("b", 201, -1);
    EXPECT_EQ(Labels(), (CLabels{201, 201}));
}

TEST_F(WidthOfARun, ResolvesPercentOfTheRow)
{
    Add("a", 40, 50);
    Add("b", 30, 50, CLayoutPanel::Relative(25, 60)); // 50 and 120 of 200
    EXPECT_EQ(Labels(), (CLabels{80, 80}));
    Add("c", 90, 500, CLayoutPanel::Relative(70, 100)); // at least 140
    EXPECT_EQ(Labels(), (CLabels{60, 60, 60}));
}

TEST_F(WidthOfARun, MeasuresTheLabelsOfItsOwnRowsOnly)
{
    CNode* group = m_panel.AddGroup("group");
    m_panel.m_view.m_mapLabelWidths = {{"alone", 33}, {"a", 60}, {"b", 70}, {"c", 20}, {"d", 10}};
    m_panel.AddControl("alone", 10, group);
    CNode* inner = m_panel.AddGroup("inner", group);
    m_panel.AddControl("c", 10, inner);
    m_panel.AddControl("d", 10, inner);
    m_panel.AddControl("a", 10);
    m_panel.AddControl("b", 10);
    m_panel.m_view.ResizeInspector(210, 80);
    EXPECT_EQ(group->m_lChildren.front().m_iLabelWidth, 33);
    EXPECT_EQ(inner->m_lChildren.front().m_iLabelWidth, 20);
    EXPECT_EQ(inner->m_lChildren.back().m_iLabelWidth, 20);
    EXPECT_EQ(m_panel.Node(1).m_iLabelWidth, 70);
    EXPECT_EQ(m_panel.Node(2).m_iLabelWidth, 70);
}

TEST_F(WidthOfARun, IsNotMadeWhenLabelsAreNotAligned)
{
    m_panel.m_view.m_bAlignLabels = false;
    Add("a", 40, 50);
    Add("b", 60, 50);
    Add("c", 50, 50, CLayoutPanel::NoLabel());
    EXPECT_EQ(Labels(), (CLabels{40, 60, 50}));
}

TEST_F(WidthOfARun, IsNothingWhenTheNormalPassRunsInPreviewMode)
{
    Add("a", 40, 50);
    m_panel.AddControl("b", 50, m_panel.AddGroup("group"));
    m_panel.m_view.ResizeInspector(210, 80);
    EXPECT_EQ(m_panel.Node(0).m_iLabelWidth, 40);
    m_panel.m_view.SetPreviewMode(true);
    m_panel.m_view.ComputeHoldersWidth();
    EXPECT_EQ(m_panel.Node(0).m_iLabelWidth, 0);
    EXPECT_EQ(m_panel.Node(0).m_pHolder->m_iWidth, 200);
    EXPECT_EQ(m_panel.Node(1).m_lChildren.front().m_iLabelWidth, 0);
}

TEST_F(WidthOfARun, WrapsAroundAtTheEndOf32Bits)
{
    // 30 and the cap wrap around to a sum below the row's width: the label is 200 - INT_MAX.
    Add("a", 30, 50, CLayoutPanel::Absolute(-1, INT_MAX));
    Add("b", 30, 50, CLayoutPanel::Absolute(-1, INT_MAX));
    m_panel.m_view.ResizeInspector(210, 80);
    EXPECT_EQ(m_panel.Node(0).m_iLabelWidth, 200 - INT_MAX);
    EXPECT_EQ(m_panel.Node(0).m_pHolder->m_iWidth, INT_MAX);
    EXPECT_EQ(m_panel.Node(0).m_pHolder->m_iX, 205 - INT_MAX);
}

TEST_F(WidthOfARun, CallsNeitherMoveNorResize)
{
    Add("a", 40, 50);
    Add("b", 60, 50);
    m_panel.m_log.Clear();
    m_panel.m_view.ComputeHoldersWidth();
    EXPECT_EQ(
        m_panel.m_log.Take(),
        (CCalls{"view.ComputeHoldersWidth()", "view.GetElementLabelWidth(a)",
                "a.GetRequiredWidth()", "view.GetElementLabelWidth(b)", "b.GetRequiredWidth()"}));
}
