// The state of the view: its size, margins, modes and copies.

#include <support/layoutpanel.h>
#include <support/recordingcontroller.h>

#include <gtest/gtest.h>

namespace
{

std::vector<int> Metrics(CInspectorView& view)
{
    return {view.GetInspectorLeftMargin(), view.GetInspectorRightMargin(),
            view.GetInspectorTopMargin(),  view.GetInspectorBottomMargin(),
            view.GetGroupLeftMargin(),     view.GetGroupRightMargin(),
            view.GetGroupTopMargin(),      view.GetGroupBottomMargin(),
            view.GetGroupLabelHeight(),    view.GetHeightBetweenControl()};
}

/// Fills in what is pure and nothing else.
class CPlainView : public CInspectorView
{
public:
    void UpdateView() override {}
    void ParentControlToInspector(CInspectorDataWidget*) override {}
};

} // namespace

TEST(View, StartsEmptyAndShown)
{
    CCallLog log;
    const CRecordingView view(log);
    EXPECT_TRUE(view.m_setControlHolders.empty());
    EXPECT_TRUE(view.m_setHolders.empty());
    EXPECT_TRUE(view.m_lElements.empty());
    EXPECT_EQ(view.m_pController, nullptr);
    EXPECT_EQ(view.m_iInspectorWidth, 0);
    EXPECT_EQ(view.m_iInspectorHeight, 0);
    EXPECT_EQ(view.m_iContentHeight, 0);
    EXPECT_TRUE(view.m_bAlignLabels);
    EXPECT_EQ(view.m_iOffsetX, 0);
    EXPECT_EQ(view.m_iOffsetY, 0);
    EXPECT_FALSE(view.m_bPreview);
    EXPECT_TRUE(view.m_bContentShown);
}

TEST(View, HasMarginsThatVanishInPreviewMode)
{
    CPlainView view;
    EXPECT_EQ(Metrics(view), (std::vector<int>{5, 5, 5, 5, 5, 5, 5, 5, 10, 5}));
    view.SetPreviewMode(true);
    EXPECT_EQ(Metrics(view), std::vector<int>(10, 0));
    view.SetPreviewMode(false);
    EXPECT_EQ(Metrics(view), (std::vector<int>{5, 5, 5, 5, 5, 5, 5, 5, 10, 5}));
}

TEST(View, MeasuresNoLabelsItself)
{
    CPlainView view;
    EXPECT_EQ(view.GetElementLabelWidth(view.AddGroup("group", nullptr)), 0);
    view.EnsureVisible(nullptr);
    view.OnContentHeightSet();
    EXPECT_EQ(view.GetCurrentContentHeight(), 0);
}

TEST(View, StoresPreviewModeAndDoesNothingMore)
{
    CLayoutPanel panel;
    panel.AddControl("a", 10);
    panel.m_log.Clear();
    panel.m_view.SetPreviewMode(true);
    EXPECT_TRUE(panel.m_view.m_bPreview);
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
}

TEST(View, StoresItsController)
{
    CCallLog log;
    CRecordingView view(log);
    CRecordingController controller(log);
    view.SetController(&controller);
    EXPECT_EQ(view.m_pController, &controller);
    EXPECT_EQ(controller.m_pView, nullptr);
    view.SetController(nullptr);
    EXPECT_EQ(view.m_pController, nullptr);
    EXPECT_EQ(log.Take(), CCalls{});
}

TEST(View, LaysOutOnlyWhenItsSizeChanges)
{
    CLayoutPanel panel;
    panel.m_view.ResizeInspector(0, 0);
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
    panel.m_view.ResizeInspector(100, 50);
    EXPECT_EQ(panel.m_log.Count("RecomputeLayout"), 1u);
    EXPECT_EQ(panel.m_view.m_iInspectorWidth, 100);
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 50);
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(100, 50);
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
    panel.m_view.ResizeInspector(101, 50);
    panel.m_view.ResizeInspector(101, 51);
    EXPECT_EQ(panel.m_log.Count("RecomputeLayout"), 2u);
}

TEST(View, TakesTheHeightOfItsContentForMinusOne)
{
    CLayoutPanel panel;
    panel.m_view.ResizeInspector(100, -1);
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 10);
    panel.AddControl("a", 10);
    panel.m_view.RecomputeLayout();
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 10);
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(100, 10);
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
    panel.m_view.ResizeInspector(100, -1);
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 35);
}

TEST(View, SharesItsHoldersWithItsCopies)
{
    CLayoutPanel panel;
    CRecordingController controller(panel.m_log);
    panel.m_view.SetController(&controller);
    auto* line = panel.AddContainer("line", panel.AddGroup("group"));
    auto* holder = panel.AddControl("a", 10, line);
    panel.m_view.ResizeInspector(120, 80);
    panel.m_view.OffsetControls(3, 4);
    panel.m_view.SetPreviewMode(true);
    panel.m_view.ShowContent(false, false);
    panel.m_view.m_bAlignLabels = false;
    panel.m_log.Clear();

    CRecordingView copy(panel.m_view);
    CRecordingView assigned(panel.m_log);
    static_cast<CInspectorView&>(assigned) = panel.m_view;
    for (CRecordingView* view : {&copy, &assigned})
    {
        EXPECT_EQ(view->m_setControlHolders, panel.m_view.m_setControlHolders);
        EXPECT_EQ(view->m_setHolders, panel.m_view.m_setHolders);
        ASSERT_EQ(view->m_lElements.size(), 1u);
        EXPECT_NE(&view->m_lElements.front(), &panel.Node());
        EXPECT_EQ(view->m_lElements.front().m_sName, "group");
        EXPECT_EQ(view->m_lElements.front().m_lChildren.front().m_pHolder, line->m_pHolder);
        EXPECT_EQ(view->m_pController, &controller);
        EXPECT_EQ(view->m_iInspectorWidth, 120);
        EXPECT_EQ(view->m_iInspectorHeight, 80);
        EXPECT_EQ(view->m_iContentHeight, panel.m_view.m_iContentHeight);
        EXPECT_FALSE(view->m_bAlignLabels);
        EXPECT_EQ(view->m_iOffsetX, 3);
        EXPECT_EQ(view->m_iOffsetY, 4);
        EXPECT_TRUE(view->m_bPreview);
        EXPECT_FALSE(view->m_bContentShown);
        EXPECT_EQ(view->GetHolderFromControl(&panel.LastWidget()), holder);
        // Only one of them may free what they share.
        view->m_setControlHolders.clear();
        view->m_setHolders.clear();
    }
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
}

TEST(View, StaysAsItIsWhenAssignedToItself)
{
    CLayoutPanel panel;
    panel.AddControl("a", 10);
    CInspectorView& same = panel.m_view;
    static_cast<CInspectorView&>(panel.m_view) = same;
    EXPECT_EQ(panel.m_view.m_setHolders.size(), 1u);
    EXPECT_EQ(panel.m_view.m_lElements.size(), 1u);
}

TEST(View, FreesItsHoldersAndNothingElseWhenItDies)
{
    CCallLog log;
    CRecordingWidget widget(log);
    {
        CRecordingView view(log);
        auto request = CLayoutPanel::Absolute(3);
        view.AddElement(nullptr, &widget, "a", &request, nullptr);
        log.Clear();
    }
    EXPECT_EQ(log.Take(), CCalls{"view.~()"});
}
