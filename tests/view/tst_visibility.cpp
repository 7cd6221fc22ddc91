#include <support/layoutpanel.h>
#include <support/recordingcontroller.h>

#include <gtest/gtest.h>

#include <climits>

namespace
{

/// Two rows that are laid out: a at (5, 5) and b at (5, 30), both 90 x 20. The logs of one order of
/// the holders are compared, whichever their addresses make it.
class Visibility : public testing::Test
{
protected:
    void SetUp() override
    {
        m_panel.AddControl("a", 30);
        m_panel.AddControl("b", 30);
        m_panel.m_view.ResizeInspector(100, 80);
        m_panel.m_log.Clear();
    }

    /// The calls for both controls, in the order of their holders; "%" stands for their names and
    /// "^" for their y.
    CCalls ForBoth(const CCalls& calls)
    {
        CCalls all;
        for (const auto* holder : m_panel.m_view.m_setControlHolders)
        {
            const auto* widget = static_cast<CRecordingWidget*>(holder->m_pWidget);
            for (std::string call : calls)
            {
                call.replace(call.find('%'), 1, widget->m_sName);
                if (call.find('^') != std::string::npos)
                    call.replace(call.find('^'), 1, std::to_string(holder->m_iY - m_iOffset));
                all.push_back(call);
            }
        }
        return all;
    }

    int m_iOffset = 0;
    CLayoutPanel m_panel;
};

} // namespace

TEST_F(Visibility, PositionsAControlByMovingThenResizing)
{
    m_panel.m_view.PositionControl(m_panel.Node(1).m_pHolder);
    EXPECT_EQ(m_panel.m_log.Take(),
              (CCalls{"view.PositionControl(b)", "b.MoveWidget(5, 30)", "b.ResizeWidget(90, 20)"}));
    m_panel.m_view.ShowContent(false, false);
    m_panel.m_log.Clear();
    m_panel.m_view.PositionControl(m_panel.Node(1).m_pHolder);
    EXPECT_EQ(m_panel.m_log.Take(),
              (CCalls{"view.PositionControl(b)", "b.MoveWidget(5, 30)", "b.ResizeWidget(0, 0)"}));
}

TEST_F(Visibility, OffsetsEveryControlAndKeepsItsSize)
{
    m_panel.m_view.OffsetControls(0, 12);
    m_iOffset = 12;
    EXPECT_EQ(m_panel.m_log.Take(), ForBoth({"%.MoveWidget(5, ^)"}));
    EXPECT_EQ(m_panel.m_view.m_iOffsetX, 0);
    EXPECT_EQ(m_panel.m_view.m_iOffsetY, 12);
    m_panel.m_view.OffsetControls(-3, -4);
    m_iOffset = -4;
    EXPECT_EQ(m_panel.m_log.Take(), ForBoth({"%.MoveWidget(8, ^)"}));
    EXPECT_EQ(m_panel.m_view.m_iOffsetX, -3);
    EXPECT_EQ(m_panel.m_view.m_iOffsetY, -4);
    EXPECT_EQ(m_panel.Node(0).m_pHolder->m_iX, 5);
}

TEST_F(Visibility, OffsetsAgainWhenTheOffsetStaysTheSame)
{
    m_panel.m_view.OffsetControls(0, 0);
    EXPECT_EQ(m_panel.m_log.Take(), ForBoth({"%.MoveWidget(5, ^)"}));
}

TEST_F(Visibility, WrapsOffsetsAroundAtTheEndOf32Bits)
{
    m_panel.m_view.OffsetControls(INT_MIN, INT_MAX);
    EXPECT_EQ(m_panel.m_vWidgets[0]->m_iX, INT_MIN + 5);
    EXPECT_EQ(m_panel.m_vWidgets[0]->m_iY, 5 - INT_MAX);
}

TEST_F(Visibility, LaysOutWithoutTheOffset)
{
    m_panel.m_view.OffsetControls(0, 12);
    m_panel.m_view.RecomputeLayout();
    EXPECT_EQ(m_panel.m_vWidgets[0]->m_iY, 5);
    EXPECT_EQ(m_panel.m_view.m_iOffsetY, 12);
}

TEST_F(Visibility, HidesContentByShrinkingItToNothing)
{
    const int height = m_panel.m_view.GetCurrentContentHeight();
    m_panel.m_view.OffsetControls(0, 12);
    m_panel.m_log.Clear();
    m_panel.m_view.ShowContent(false, false);
    EXPECT_EQ(m_panel.m_log.Take(),
              CCalls{"view.OnToggleShowContent(false)"} + ForBoth({"%.ResizeWidget(0, 0)"}));
    EXPECT_FALSE(m_panel.m_view.m_bContentShown);
    EXPECT_EQ(RectOf(*m_panel.m_vWidgets[0]), (sRect{5, -7, 0, 0}));
    EXPECT_EQ(RectOf(m_panel.Node(0)), (sRect{5, 5, 90, 20}));
    EXPECT_EQ(RectOf(*m_panel.Node(0).m_pHolder), (sRect{5, 5, 90, 20}));
    EXPECT_EQ(m_panel.m_view.GetCurrentContentHeight(), height);
}

TEST_F(Visibility, ShowsContentAgainWithoutTheOffset)
{
    m_panel.m_view.OffsetControls(0, 12);
    m_panel.m_view.ShowContent(false, false);
    m_panel.m_log.Clear();
    m_panel.m_view.ShowContent(true, false);
    EXPECT_EQ(m_panel.m_log.Take(), CCalls{"view.OnToggleShowContent(true)"} +
                                        ForBoth({"view.PositionControl(%)", "%.MoveWidget(5, ^)",
                                                 "%.ResizeWidget(90, 20)"}));
    EXPECT_TRUE(m_panel.m_view.m_bContentShown);
    EXPECT_EQ(m_panel.m_view.m_iOffsetY, 12);
    m_panel.m_view.OffsetControls(0, 12);
    EXPECT_EQ(m_panel.m_vWidgets[1]->m_iY, 18);
}

TEST_F(Visibility, TogglesOnlyOnAChangeOrWhenForced)
{
    m_panel.m_view.ShowContent(true, false);
    EXPECT_EQ(m_panel.m_log.Count("OnToggleShowContent"), 0u);
    m_panel.m_view.ShowContent(false, false);
    m_panel.m_view.ShowContent(false, false);
    EXPECT_EQ(m_panel.m_log.Count("OnToggleShowContent(false)"), 1u);
    m_panel.m_view.ShowContent(false, true);
    m_panel.m_view.ShowContent(false, true);
    EXPECT_EQ(m_panel.m_log.Count("OnToggleShowContent(false)"), 3u);
    m_panel.m_view.ShowContent(true, true);
    m_panel.m_view.ShowContent(true, true);
    EXPECT_EQ(m_panel.m_log.Count("OnToggleShowContent(true)"), 2u);
}

TEST_F(Visibility, KeepsContentHiddenThroughALayout)
{
    m_panel.m_view.ShowContent(false, false);
    m_panel.m_view.ResizeInspector(200, 80);
    EXPECT_EQ(RectOf(*m_panel.m_vWidgets[1]), (sRect{5, 30, 0, 0}));
    m_panel.m_view.ShowContent(true, false);
    EXPECT_EQ(RectOf(*m_panel.m_vWidgets[1]), (sRect{5, 30, 190, 20}));
}

TEST_F(Visibility, AsksForARepaintWhenItIsDirty)
{
    m_panel.m_view.DirtyView();
    EXPECT_EQ(m_panel.m_log.Take(), (CCalls{"view.DirtyView()", "view.UpdateView()"}));
}

TEST_F(Visibility, MakesNothingVisibleItself)
{
    m_panel.m_view.EnsureVisible(m_panel.m_vWidgets[1].get());
    EXPECT_EQ(m_panel.m_log.Take(), CCalls{"view.EnsureVisible(b)"});
}

TEST_F(Visibility, DeliversTheControllersNoticesBeforeItDraws)
{
    CRecordingController controller(m_panel.m_log);
    controller.SetInspectorView(&m_panel.m_view);
    m_panel.m_view.SetController(&controller);
    controller.DirtifyController(nullptr);
    m_panel.m_log.Clear();
    m_panel.m_view.OnPreDraw();
    EXPECT_EQ(m_panel.m_log.Take(), CCalls{"controller.HandleControllerDirt(null)"});
    m_panel.m_view.SetController(nullptr);
}

#ifndef NDEBUG
using VisibilityDeathTest = Visibility;

TEST_F(VisibilityDeathTest, NamesTheMissingController)
{
    EXPECT_DEATH(m_panel.m_view.OnPreDraw(), "CInspectorView::OnPreDraw: no controller was set");
}
#endif
