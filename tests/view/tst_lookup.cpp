// The holder of a widget is found without a walk, but the answer is that of a walk along the
// holders by address.

#include <support/layoutpanel.h>

#include <gtest/gtest.h>

#include <new>

#include <algorithm>
#include <random>

namespace
{

using CHolder = CLayoutPanel::CHolder;

/// The walk.
CHolder* WalkFor(const CRecordingView& view, const CInspectorDataWidget* widget)
{
    for (CHolder* holder : view.m_setControlHolders)
    {
        if (holder->m_pWidget == widget)
            return holder;
    }
    return nullptr;
}

} // namespace

TEST(Lookup, FindsTheHolderOfARowAndOfAControlInALine)
{
    CLayoutPanel panel;
    CHolder* row = panel.AddControl("row", 10);
    CRecordingWidget& rowWidget = panel.LastWidget();
    auto* line = panel.AddContainer("line");
    CHolder* control = panel.AddControl("control", 10, line);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&rowWidget), row);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&panel.LastWidget()), control);
}

TEST(Lookup, FindsNoContainerAndNothingUnknown)
{
    CLayoutPanel panel;
    panel.AddContainer("line");
    CRecordingWidget stranger(panel.m_log);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(nullptr), nullptr);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&stranger), nullptr);
    panel.AddControl("row", 10);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(nullptr), nullptr);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&stranger), nullptr);
}

TEST(Lookup, FindsNothingOnceTheViewIsEmptied)
{
    CLayoutPanel panel;
    panel.AddControl("row", 10);
    CRecordingWidget& widget = panel.LastWidget();
    EXPECT_NE(panel.m_view.GetHolderFromControl(&widget), nullptr);
    panel.m_view.RemoveAll();
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&widget), nullptr);
    CHolder* again = panel.m_view.AddElement(nullptr, &widget, "again", nullptr, nullptr);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&widget), again);
}

TEST(Lookup, GivesTheLowestOfSeveralHoldersOfOneWidget)
{
    CLayoutPanel panel;
    std::vector<CHolder*> holders = {panel.AddControl("row", 10)};
    CRecordingWidget& widget = panel.LastWidget();
    for (int i = 0; i < 20; ++i)
    {
        holders.push_back(panel.m_view.AddElement(nullptr, &widget, "more", nullptr, nullptr));
        EXPECT_EQ(panel.m_view.GetHolderFromControl(&widget),
                  *std::min_element(holders.begin(), holders.end(), std::less<>()));
    }
}

TEST(Lookup, FindsWhatADerivedClassAddsItself)
{
    CLayoutPanel panel;
    panel.AddControl("row", 10);
    CRecordingWidget own(panel.m_log, "own");
    CHolder* holder = panel.m_view.CreateNewHolder();
    holder->m_pWidget = &own;
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&own), nullptr);
    panel.m_view.m_setControlHolders.insert(holder);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&own), holder);
    panel.m_view.m_setControlHolders.erase(holder);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&own), nullptr);
}

TEST(Lookup, FollowsAHolderThatADerivedClassGivesAnotherWidget)
{
    CLayoutPanel panel;
    CHolder* holder = panel.AddControl("row", 10);
    CRecordingWidget& first = panel.LastWidget();
    CRecordingWidget second(panel.m_log, "second");
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&first), holder);
    holder->m_pWidget = &second;
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&first), nullptr);
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&second), holder);
    holder->m_pWidget = &first;
    EXPECT_EQ(panel.m_view.GetHolderFromControl(&first), holder);
}

TEST(Lookup, StillFindsTheHolderWhoseWidgetDied)
{
    // The place stays, and nothing is called on what stood there.
    CLayoutPanel panel;
    CHolder* holder = panel.AddControl("row", 10);
    panel.m_vWidgets.clear();
    EXPECT_NE(holder->m_pWidget, nullptr);
    EXPECT_EQ(holder->GetWidget(), nullptr);
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(100, 100);
    EXPECT_EQ(panel.m_log.Count("row."), 0u);
}

TEST(Lookup, ForgetsADyingWidgetInEveryPlace)
{
    CLayoutPanel panel;
    panel.AddControl("row", 10);
    CRecordingWidget& widget = panel.LastWidget();
    panel.m_view.AddElement(nullptr, &widget, "again", nullptr, nullptr);
    panel.m_view.AddElement(nullptr, &widget, "and again", nullptr, nullptr);
    panel.m_vWidgets.clear();
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(100, 100);
    EXPECT_EQ(panel.m_log.Count("row."), 0u);
}

TEST(Lookup, AnswersLikeAWalkThroughARandomHistory)
{
    std::mt19937 random(7);
    CLayoutPanel panel;
    std::vector<CLayoutPanel::CNode*> parents = {nullptr};
    for (int step = 0; step < 2000; ++step)
    {
        const unsigned dice = random() % 100;
        auto* parent = parents[random() % parents.size()];
        if (dice < 5)
            parents.push_back(panel.AddContainer("line"));
        else if (dice < 10)
            parents.push_back(panel.AddGroup("group"));
        else if (dice < 60 || panel.m_vWidgets.empty())
            panel.AddControl("row", 10, parent);
        else if (dice < 70)
            panel.m_view.AddElement(nullptr,
                                    panel.m_vWidgets[random() % panel.m_vWidgets.size()].get(),
                                    "again", nullptr, parent);
        else if (dice == 99)
        {
            panel.m_view.RemoveAll();
            parents = {nullptr};
        }
        if (panel.m_vWidgets.empty())
            continue;
        const auto* widget = panel.m_vWidgets[random() % panel.m_vWidgets.size()].get();
        ASSERT_EQ(panel.m_view.GetHolderFromControl(const_cast<CRecordingWidget*>(widget)),
                  WalkFor(panel.m_view, widget));
    }
}

TEST(Lookup, TellsAWidgetFromADeadOneThatLayInTheSamePlace)
{
    CLayoutPanel panel;
    alignas(CRecordingWidget) unsigned char place[sizeof(CRecordingWidget)];
    // Some of the new holders lie behind the old one in memory, some before it.
    for (int round = 0; round < 8; ++round)
    {
        auto* dead = new (place) CRecordingWidget(panel.m_log);
        panel.m_view.AddElement(nullptr, dead, "dead", nullptr, nullptr);
        dead->~CRecordingWidget();
        auto* widget = new (place) CRecordingWidget(panel.m_log);
        const auto* holder = panel.m_view.AddElement(nullptr, widget, "row", nullptr, nullptr);
        EXPECT_EQ(panel.m_view.GetHolderFromControl(widget), holder);
        widget->~CRecordingWidget();
    }
}
