// How often the library asks and moves: once per control, whatever the number of controls is.

#include <support/layoutpanel.h>

#include <gtest/gtest.h>

#include <map>

namespace
{

using CCounts = std::map<std::string, std::size_t>;

/// A panel of groups of 20 nodes: 17 plain rows, a row with a requested minimum, and two lines of
/// three controls, the second of which has requested bounds.
class CallbackCounts : public testing::TestWithParam<std::size_t>
{
protected:
    void SetUp() override
    {
        const std::size_t groups = GetParam();
        auto request = CLayoutPanel::Absolute(10, 50);
        for (std::size_t i = 0; i < groups; ++i)
        {
            auto* group = m_panel.AddGroup("group");
            for (int row = 0; row < 17; ++row)
                m_panel.AddControl("row", 20, group);
            m_panel.AddControl("row", 20, group, &request);
            auto* line = m_panel.AddContainer("line", group);
            auto* bounded = m_panel.AddContainer("line", group, &request);
            for (int control = 0; control < 3; ++control)
            {
                m_panel.AddControl("control", 20, line);
                m_panel.AddControl("control", 20, bounded);
            }
        }
        // One group more, with a single row and, in a group of its own, a single line.
        auto* last = m_panel.AddGroup("last");
        m_panel.AddControl("row", 20, last);
        auto* line = m_panel.AddContainer("line", m_panel.AddGroup("inner", last));
        m_panel.AddControl("control", 20, line);
        m_panel.AddControl("control", 20, line);
        m_panel.m_log.Clear();
    }

    /// The calls since the last time, by operation.
    CCounts Counts()
    {
        CCounts counts;
        for (const std::string& call : m_panel.m_log.Take())
        {
            const std::size_t dot = call.find('.');
            ++counts[call.substr(dot + 1, call.find('(') - dot - 1)];
        }
        return counts;
    }

    std::size_t Controls() const { return 24 * GetParam() + 3; }

    CLayoutPanel m_panel;
};

} // namespace

TEST_P(CallbackCounts, OfALayout)
{
    const std::size_t groups = GetParam();
    m_panel.m_view.ResizeInspector(300, 400);
    // A line in a run asks its controls twice, for its bounds (unless it has its own) and for
    // theirs. A line alone asks them once.
    EXPECT_EQ(Counts(), (CCounts{
                            {"RecomputeLayout", 1},
                            {"ComputeHoldersWidth", 1},
                            {"GetElementLabelWidth", 20 * groups + 2},
                            {"GetRequiredHeight", Controls()},
                            {"GetRequiredWidth", (17 + 2 * 3 + 3) * groups + 3},
                            {"PositionControl", Controls()},
                            {"MoveWidget", Controls()},
                            {"ResizeWidget", Controls()},
                            {"UpdateView", 1},
                            {"OnContentHeightSet", 1},
                        }));
}

TEST_P(CallbackCounts, OfALayoutInPreviewMode)
{
    const std::size_t groups = GetParam();
    m_panel.m_view.SetPreviewMode(true);
    m_panel.m_view.ResizeInspector(300, 400);
    EXPECT_EQ(Counts(), (CCounts{
                            {"RecomputeLayout", 1},
                            {"ComputeHoldersWidthForPreview", 1},
                            {"GetElementLabelWidth", 21 * groups + 4},
                            {"GetRequiredHeight", Controls()},
                            {"GetRequiredWidth", (17 + 6) * groups + 3},
                            {"PositionControl", Controls()},
                            {"MoveWidget", Controls()},
                            {"ResizeWidget", Controls()},
                            {"UpdateView", 1},
                            {"OnContentHeightSet", 1},
                        }));
}

TEST_P(CallbackCounts, OfAScrollStep)
{
    m_panel.m_view.ResizeInspector(300, 400);
    Counts();
    m_panel.m_view.OffsetControls(0, 10);
    EXPECT_EQ(Counts(), (CCounts{{"MoveWidget", Controls()}}));
}

TEST_P(CallbackCounts, OfHidingAndShowing)
{
    m_panel.m_view.ResizeInspector(300, 400);
    Counts();
    m_panel.m_view.ShowContent(false, false);
    EXPECT_EQ(Counts(), (CCounts{{"OnToggleShowContent", 1}, {"ResizeWidget", Controls()}}));
    m_panel.m_view.ShowContent(true, false);
    EXPECT_EQ(Counts(), (CCounts{{"OnToggleShowContent", 1},
                                 {"PositionControl", Controls()},
                                 {"MoveWidget", Controls()},
                                 {"ResizeWidget", Controls()}}));
}

TEST_P(CallbackCounts, OfALookUpIsNothing)
{
    for (const auto& widget : m_panel.m_vWidgets)
        EXPECT_NE(m_panel.m_view.GetHolderFromControl(widget.get()), nullptr);
    EXPECT_EQ(Counts(), CCounts{});
}

INSTANTIATE_TEST_SUITE_P(Groups, CallbackCounts, testing::Values(5, 50),
                         testing::PrintToStringParamName());
