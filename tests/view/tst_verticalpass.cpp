#include <support/layoutpanel.h>

#include <gtest/gtest.h>

#include <climits>

namespace
{

using CNode = CLayoutPanel::CNode;
using CHolder = CLayoutPanel::CHolder;

/// Every answer about a margin is one more than the answer before.
class CGrowingMargins : public CRecordingView
{
public:
    using CRecordingView::CRecordingView;

    int GetGroupLeftMargin() override { return m_iLeft++; }
    int GetGroupRightMargin() override { return m_iRight++; }

    int m_iLeft = 5;
    int m_iRight = 20;
};

} // namespace

TEST(VerticalPass, OfAnEmptyViewIsItsTwoMargins)
{
    CLayoutPanel panel;
    panel.m_view.RecomputeLayout();
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 10);
    EXPECT_EQ(panel.m_log.Take(), (CCalls{"view.RecomputeLayout()", "view.ComputeHoldersWidth()",
                                          "view.UpdateView()", "view.OnContentHeightSet()"}));
    panel.m_view.SetPreviewMode(true);
    panel.m_view.RecomputeLayout();
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 0);
    EXPECT_EQ(panel.m_log.Take(),
              (CCalls{"view.RecomputeLayout()", "view.ComputeHoldersWidthForPreview()",
                      "view.UpdateView()", "view.OnContentHeightSet()"}));
}

TEST(VerticalPass, GivesAnInspectorWithoutAHeightThatOfItsContent)
{
    CLayoutPanel panel;
    panel.m_view.m_iInspectorHeight = -1;
    panel.m_view.RecomputeLayout();
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 10);
    panel.m_view.SetPreviewMode(true);
    panel.m_view.m_iInspectorHeight = -1;
    panel.m_view.RecomputeLayout();
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 0);
    panel.m_view.m_iInspectorHeight = -2;
    panel.m_view.RecomputeLayout();
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, -2);
}

TEST(VerticalPass, PlacesASingleRow)
{
    CLayoutPanel panel;
    panel.AddControl("row", 30);
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(RectOf(panel.Node()), (sRect{5, 5, 90, 20}));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 35);
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 80);
}

TEST(VerticalPass, CallsEverythingInTheStatedOrder)
{
    CLayoutPanel panel;
    panel.AddControl("row", 30);
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(
        panel.m_log.Take(),
        (CCalls{"view.RecomputeLayout()", "row.GetRequiredHeight(90)", "view.ComputeHoldersWidth()",
                "view.GetElementLabelWidth(row)", "row.GetRequiredWidth()",
                "view.PositionControl(row)", "row.MoveWidget(5, 5)", "row.ResizeWidget(90, 20)",
                "view.UpdateView()", "view.OnContentHeightSet()"}));
}

TEST(VerticalPass, KnowsTheContentHeightWhenItSaysSoAndZeroWhileItRuns)
{
    CLayoutPanel panel;
    panel.AddControl("row", 30);
    panel.m_view.RecomputeLayout();
    std::vector<int> heights;
    panel.m_view.m_fnOnContentHeightSet = [&]
    { heights.push_back(panel.m_view.GetCurrentContentHeight()); };
    class CAsking : public CRecordingWidget
    {
    public:
        using CRecordingWidget::CRecordingWidget;
        int GetRequiredHeight(int) override
        {
            m_pHeights->push_back(m_pView->GetCurrentContentHeight());
            return 20;
        }
        CRecordingView* m_pView = nullptr;
        std::vector<int>* m_pHeights = nullptr;
    };
    CAsking asking(panel.m_log);
    asking.m_pView = &panel.m_view;
    asking.m_pHeights = &heights;
    panel.m_view.AddElement(nullptr, &asking, "", nullptr, nullptr);
    panel.m_view.RecomputeLayout();
    EXPECT_EQ(heights, (std::vector<int>{0, 60}));
}

TEST(VerticalPass, PositionsControlsInTheOrderOfTheirHolders)
{
    CLayoutPanel panel;
    for (int i = 0; i < 10; ++i)
        panel.AddControl("row" + std::to_string(i), 30);
    panel.m_log.Clear();
    panel.m_view.RecomputeLayout();
    CCalls expected;
    for (const CHolder* holder : panel.m_view.m_setControlHolders)
        expected.push_back("view.PositionControl(" +
                           static_cast<CRecordingWidget*>(holder->m_pWidget)->m_sName + ")");
    EXPECT_EQ(panel.m_log.Containing("PositionControl"), expected);
}

TEST(VerticalPass, StacksRowsWithAGapAfterEach)
{
    CLayoutPanel panel;
    panel.AddControl("a", 30, nullptr, nullptr, 20);
    panel.AddControl("b", 30, nullptr, nullptr, 7);
    panel.AddControl("c", 30, nullptr, nullptr, 0);
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(RectOf(panel.Node(0)), (sRect{5, 5, 90, 20}));
    EXPECT_EQ(RectOf(panel.Node(1)), (sRect{5, 30, 90, 7}));
    EXPECT_EQ(RectOf(panel.Node(2)), (sRect{5, 42, 90, 0}));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 52);
}

TEST(VerticalPass, PlacesANamedGroup)
{
    CLayoutPanel panel;
    CNode* group = panel.AddGroup("group");
    panel.AddControl("row", 30, group);
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(RectOf(*group), (sRect{5, 5, 90, 45}));
    EXPECT_EQ(RectOf(group->m_lChildren.front()), (sRect{10, 20, 80, 20}));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 60);
}

TEST(VerticalPass, LeavesOutTheTitleLineOfAGroupWithoutAName)
{
    CLayoutPanel panel;
    CNode* group = panel.AddGroup("");
    panel.AddControl("row", 30, group);
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(RectOf(*group), (sRect{5, 5, 90, 35}));
    EXPECT_EQ(RectOf(group->m_lChildren.front()), (sRect{10, 10, 80, 20}));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 50);
}

TEST(VerticalPass, GivesAnEmptyGroupNoHeightAndOneGap)
{
    CLayoutPanel panel;
    CNode* group = panel.AddGroup("empty");
    panel.AddControl("row", 30);
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(RectOf(*group), (sRect{5, 5, 90, 0}));
    EXPECT_EQ(RectOf(panel.Node(1)), (sRect{5, 10, 90, 20}));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 40);
}

TEST(VerticalPass, NestsGroups)
{
    CLayoutPanel panel;
    CNode* outer = panel.AddGroup("outer");
    CNode* inner = panel.AddGroup("inner", outer);
    panel.AddControl("deep", 30, inner);
    panel.AddControl("shallow", 30, outer);
    panel.AddControl("top", 30);
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(RectOf(*inner), (sRect{10, 20, 80, 45}));
    EXPECT_EQ(RectOf(inner->m_lChildren.front()), (sRect{15, 35, 70, 20}));
    EXPECT_EQ(RectOf(outer->m_lChildren.back()), (sRect{10, 70, 80, 20}));
    // 5 + 10 + (45 + 5) + (20 + 5) + 5
    EXPECT_EQ(RectOf(*outer), (sRect{5, 5, 90, 95}));
    EXPECT_EQ(RectOf(panel.Node(1)), (sRect{5, 105, 90, 20}));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 135);
}

TEST(VerticalPass, AsksForTheMarginsOfAGroupAgainOnTheWayOut)
{
    CCallLog log;
    CRecordingWidget inside(log, "inside");
    CRecordingWidget after(log, "after");
    CGrowingMargins view(log);
    CNode* group = view.AddGroup("group", nullptr);
    view.AddElement(nullptr, &inside, "", nullptr, group);
    view.AddElement(nullptr, &after, "", nullptr, nullptr);
    view.ResizeInspector(200, 80);
    // In with 5 and 20, out with 6 and 21.
    EXPECT_EQ(group->m_lChildren.front().m_iX, 10);
    EXPECT_EQ(group->m_lChildren.front().m_iWidth, 165);
    EXPECT_EQ(view.m_lElements.back().m_iX, 4);
    EXPECT_EQ(view.m_lElements.back().m_iWidth, 192);
}

TEST(VerticalPass, GivesALineTheHeightOfItsTallestControl)
{
    CLayoutPanel panel;
    CNode* line = panel.AddContainer("line");
    panel.AddControl("a", 30, line, nullptr, 12);
    panel.AddControl("b", 30, line, nullptr, 26);
    panel.AddControl("c", 30, line, nullptr, 20);
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(RectOf(*line), (sRect{5, 5, 90, 26}));
    EXPECT_EQ(
        panel.m_log.Containing("GetRequiredHeight"),
        (CCalls{"a.GetRequiredHeight(90)", "b.GetRequiredHeight(90)", "c.GetRequiredHeight(90)"}));
}

TEST(VerticalPass, GivesALineWithoutControlsNoHeight)
{
    CLayoutPanel panel;
    CNode* line = panel.AddContainer("line");
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(RectOf(*line), (sRect{5, 5, 90, 0}));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 15);
}

TEST(VerticalPass, AsksForTheHeightAtTheWidthOfTheRow)
{
    CLayoutPanel panel;
    panel.AddControl("text", 30, nullptr, nullptr, 10);
    panel.LastWidget().m_iHeightDivisor = 10;
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(panel.Node().m_iHeight, 19);
    panel.m_view.ResizeInspector(210, 80);
    EXPECT_EQ(panel.Node().m_iHeight, 30);
}

TEST(VerticalPass, TakesNegativeHeightsAsTheyCome)
{
    CLayoutPanel panel;
    panel.AddControl("up", 30, nullptr, nullptr, -40);
    panel.AddControl("next", 30);
    CNode* line = panel.AddContainer("line");
    panel.AddControl("a", 30, line, nullptr, -9);
    panel.AddControl("b", 30, line, nullptr, -4);
    panel.m_view.ResizeInspector(100, 80);
    EXPECT_EQ(RectOf(panel.Node(0)), (sRect{5, 5, 90, -40}));
    EXPECT_EQ(RectOf(panel.Node(1)), (sRect{5, -30, 90, 20}));
    EXPECT_EQ(RectOf(*line), (sRect{5, -5, 90, -4}));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 1);
}

TEST(VerticalPass, WrapsAroundAtTheEndOf32Bits)
{
    CLayoutPanel panel;
    panel.AddControl("a", 30, nullptr, nullptr, INT_MAX);
    panel.AddControl("b", 30, nullptr, nullptr, INT_MAX);
    panel.m_view.ResizeInspector(INT_MIN, 80);
    EXPECT_EQ(RectOf(panel.Node(0)), (sRect{5, 5, INT_MAX - 9, INT_MAX}));
    EXPECT_EQ(panel.Node(1).m_iY, INT_MIN + 9);
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 18);
}

TEST(VerticalPass, ReportsItsOnePassThroughItsCursor)
{
    CLayoutPanel panel;
    panel.AddControl("row", 30, panel.AddGroup("group"));
    int left = 100;
    int right = 300;
    int y = 40;
    panel.m_view.recRecomputeLayout(panel.m_view.m_lElements, left, right, y);
    EXPECT_EQ(left, 100);
    EXPECT_EQ(right, 300);
    EXPECT_EQ(y, 90);
    EXPECT_EQ(RectOf(panel.Node()), (sRect{100, 40, 200, 45}));
}

TEST(VerticalPass, StartsAllNodesOfALevelOnOneLineInPreviewMode)
{
    CLayoutPanel panel;
    panel.m_view.SetPreviewMode(true);
    panel.AddControl("a", 30, nullptr, nullptr, 20);
    CNode* group = panel.AddGroup("group");
    panel.AddControl("b", 30, group, nullptr, 35);
    panel.AddControl("c", 30, group, nullptr, 12);
    CNode* line = panel.AddContainer("line");
    panel.AddControl("d", 30, line, nullptr, 8);
    panel.AddControl("e", 30, line, nullptr, 9);
    panel.AddGroup("empty");
    panel.m_view.ResizeInspector(400, 80);
    EXPECT_EQ(panel.Node(0).m_iHeight, 20);
    // A level ends where its last node ended.
    EXPECT_EQ(group->m_lChildren.front().m_iHeight, 35);
    EXPECT_EQ(group->m_lChildren.back().m_iHeight, 12);
    EXPECT_EQ(group->m_iHeight, 12);
    EXPECT_EQ(line->m_iHeight, 9);
    EXPECT_EQ(panel.Node(3).m_iHeight, 0);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(panel.Node(i).m_iY, 0);
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 0);
}

TEST(VerticalPass, TakesTheLargerOfCursorAndHeightInPreviewMode)
{
    // As the panel's own margins are never replaced, the pass is run from a line further down.
    CLayoutPanel panel;
    panel.m_view.SetPreviewMode(true);
    panel.AddControl("low", 30, nullptr, nullptr, 20);
    panel.AddControl("high", 30, nullptr, nullptr, 90);
    int left = 0;
    int right = 100;
    int y = 50;
    panel.m_view.recRecomputeLayout(panel.m_view.m_lElements, left, right, y);
    EXPECT_EQ(panel.Node(0).m_iY, 50);
    EXPECT_EQ(panel.Node(0).m_iHeight, 0);
    EXPECT_EQ(panel.Node(1).m_iY, 50);
    EXPECT_EQ(panel.Node(1).m_iHeight, 40);
    EXPECT_EQ(y, 90);
}

TEST(VerticalPass, GivesARowWithoutAHolderNoHeight)
{
    CLayoutPanel panel;
    panel.m_view.AddGroup("", nullptr)->m_iKind = CInspectorView::eElementRow;
    int left = 5;
    int right = 95;
    int y = 5;
    panel.m_view.recRecomputeLayout(panel.m_view.m_lElements, left, right, y);
    EXPECT_EQ(panel.Node(0).m_iHeight, 0);
}
