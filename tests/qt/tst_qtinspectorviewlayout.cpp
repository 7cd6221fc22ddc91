#include "testpanel.h"

#include <QEvent>

#include <gtest/gtest.h>

#include <limits>

namespace
{

constexpr int g_iMax = std::numeric_limits<int>::max();
constexpr int g_iMin = std::numeric_limits<int>::min();

/// Content of the given height: one row between the margins of 5 and above a gap of 5.
struct sPanelOfHeight : sTestPanel
{
    explicit sPanelOfHeight(int height) { m_pControl = AddRow("", height - 15); }

    QScrollBar& ScrollBar() { return *m_view.m_pScrollBar; }

    CTestControl* m_pControl;
};

/// Writes what happens to the scroll bar to the log, in its order.
class CScrollBarLog : public QObject
{
public:
    CScrollBarLog(QScrollBar& scrollBar, CCallLog& log) : m_rScrollBar(scrollBar), m_log(log)
    {
        scrollBar.installEventFilter(this);
        connect(&scrollBar, &QScrollBar::rangeChanged, this,
                [this](int minimum, int maximum) {
                    Add("range", {std::to_string(minimum), std::to_string(maximum)});
                });
        connect(&scrollBar, &QScrollBar::valueChanged, this,
                [this](int value) { Add("value", {std::to_string(value)}); });
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Move)
            Add("move", {std::to_string(m_rScrollBar.x()), std::to_string(m_rScrollBar.y())});
        else if (event->type() == QEvent::Resize)
            Add("resize",
                {std::to_string(m_rScrollBar.width()), std::to_string(m_rScrollBar.height())});
        else if (event->type() == QEvent::Show)
            Add("show", {});
        else if (event->type() == QEvent::Hide)
            Add("hide", {});
        return false;
    }

private:
    void Add(const std::string& what, std::initializer_list<std::string> arguments)
    {
        m_log.Add("page " + std::to_string(m_rScrollBar.pageStep()), what, arguments);
    }

    QScrollBar& m_rScrollBar;
    CCallLog& m_log;
};

} // namespace

TEST(QtInspectorViewLayout, TakesTheHeightOfItsContent)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, -1);
    EXPECT_EQ(panel.m_view.m_iInspectorWidth, 280);
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 250);
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 250);
    EXPECT_EQ(panel.m_view.size(), QSize(300, 250));
    EXPECT_EQ(panel.m_view.m_pContent->geometry(), QRect(0, 0, 280, 250));
    EXPECT_TRUE(panel.ScrollBar().isHidden());
    EXPECT_EQ(panel.ScrollBar().value(), 0);
    EXPECT_EQ(panel.m_pControl->geometry(), QRect(5, 5, 270, 235));
}

TEST(QtInspectorViewLayout, ShowsAScrollBarForATallerContent)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 100);
    EXPECT_EQ(panel.m_view.m_iInspectorWidth, 280);
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 100);
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 250);
    EXPECT_EQ(panel.m_view.size(), QSize(300, 100));
    EXPECT_EQ(panel.m_view.m_pContent->geometry(), QRect(0, 0, 280, 100));
    EXPECT_FALSE(panel.ScrollBar().isHidden());
    EXPECT_EQ(panel.ScrollBar().geometry(), QRect(280, 0, 20, 100));
    EXPECT_EQ(panel.ScrollBar().pageStep(), 100);
    EXPECT_EQ(panel.ScrollBar().minimum(), 0);
    EXPECT_EQ(panel.ScrollBar().maximum(), 150);
    EXPECT_EQ(panel.ScrollBar().value(), 0);
    EXPECT_EQ(panel.ScrollBar().singleStep(), 1);
}

TEST(QtInspectorViewLayout, HidesTheScrollBarForAContentAsHighAsTheView)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 249);
    EXPECT_FALSE(panel.ScrollBar().isHidden());
    EXPECT_EQ(panel.ScrollBar().maximum(), 1);
    panel.ScrollBar().setValue(1);
    panel.m_view.ResizeInspector(300, 250);
    EXPECT_TRUE(panel.ScrollBar().isHidden());
    EXPECT_EQ(panel.ScrollBar().value(), 0);
    EXPECT_EQ(panel.m_pControl->pos(), QPoint(5, 5));
    panel.m_view.ResizeInspector(300, 251);
    EXPECT_TRUE(panel.ScrollBar().isHidden());
}

TEST(QtInspectorViewLayout, AsksForTheHeightFirstAndThenForTheSize)
{
    sTestPanel panel;
    panel.m_view.ResizeInspector(200, 60);
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(300, -1);
    // The widget, the engine and the content, as they were when each operation began.
    EXPECT_EQ(panel.m_log.Take(),
              (CCalls{"view.RecomputeLayout(200x60 280x-1 180x60)", "view.UpdateView()",
                      "view.OnContentHeightSet(200x60 280x10 180x60)", "view.OffsetControls(0, 0)",
                      "view.UpdateView()", "view.OnContentHeightSet(300x10 280x10 280x10)",
                      "view.OffsetControls(0, 0)", "view.UpdateView()"}));
}

TEST(QtInspectorViewLayout, ResizesTheWidgetBeforeTheLayoutAndTheContentAfterIt)
{
    sTestPanel panel;
    panel.m_view.ResizeInspector(200, 60);
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(300, 100);
    EXPECT_EQ(
        panel.m_log.Take(),
        (CCalls{"view.RecomputeLayout(300x100 280x100 180x60)", "view.UpdateView()",
                "view.OnContentHeightSet(300x100 280x100 180x60)", "view.OffsetControls(0, 0)",
                "view.UpdateView()", "view.OnContentHeightSet(300x100 280x100 280x100)",
                "view.OffsetControls(0, 0)", "view.UpdateView()"}));
}

TEST(QtInspectorViewLayout, SetsUpTheScrollBarAgainForAnUnchangedSize)
{
    sTestPanel panel;
    panel.m_view.ResizeInspector(300, 100);
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(300, 100);
    EXPECT_EQ(panel.m_log.Take(), (CCalls{"view.OnContentHeightSet(300x100 280x100 280x100)",
                                          "view.OffsetControls(0, 0)", "view.UpdateView()"}));
}

TEST(QtInspectorViewLayout, LaysOutAgainForTheHeightOfTheContent)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, -1);
    panel.m_pControl->m_iRequiredHeight = 85;
    panel.m_view.ResizeInspector(300, -1);
    EXPECT_EQ(panel.m_view.size(), QSize(300, 100));
    EXPECT_EQ(panel.m_view.m_pContent->size(), QSize(280, 100));
    EXPECT_EQ(panel.m_pControl->size(), QSize(270, 85));
    EXPECT_TRUE(panel.ScrollBar().isHidden());
}

TEST(QtInspectorViewLayout, PlacesControlsAndThenOffsetsThemToTheScrollValue)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 100);
    panel.ScrollBar().setValue(30);
    panel.m_log.Clear();
    panel.m_view.ResizeInspector(301, 100);
    EXPECT_EQ(
        panel.m_log.Containing("row."),
        (CCalls{"row.GetRequiredHeight(271)", "row.GetRequiredWidth()", "row.MoveWidget(5, 5)",
                "row.ResizeWidget(271, 235)", "row.MoveWidget(5, -25)", "row.MoveWidget(5, -25)"}));
    EXPECT_EQ(panel.m_view.m_iOffsetY, 30);
    EXPECT_EQ(panel.m_pControl->geometry(), QRect(5, -25, 271, 235));
}

TEST(QtInspectorViewLayout, OffsetsAndRepaintsEveryTimeTheContentHeightIsSet)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 100);
    panel.ScrollBar().setValue(40);
    panel.m_log.Clear();
    panel.m_view.OnContentHeightSet();
    EXPECT_EQ(panel.m_log.Take(), (CCalls{"view.OnContentHeightSet(300x100 280x100 280x100)",
                                          "view.OffsetControls(0, 40)", "row.MoveWidget(5, -35)",
                                          "view.UpdateView()"}));
    EXPECT_EQ(panel.ScrollBar().value(), 40);
}

TEST(QtInspectorViewLayout, OffsetsToTheTopWhenTheContentFits)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 100);
    panel.m_view.OffsetControls(0, 77);
    panel.m_log.Clear();
    panel.m_view.m_iInspectorHeight = 250;
    panel.m_view.OnContentHeightSet();
    EXPECT_EQ(panel.m_log.Containing("Offset"), CCalls{"view.OffsetControls(0, 0)"});
    EXPECT_TRUE(panel.ScrollBar().isHidden());
}

TEST(QtInspectorViewLayout, ConfiguresAHiddenScrollBarBeforeItIsShown)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 250);
    panel.m_view.show();
    panel.ScrollBar().setRange(-10, 20);
    panel.ScrollBar().setPageStep(3);
    CCallLog log;
    const CScrollBarLog scrollBarLog(panel.ScrollBar(), log);
    panel.m_view.m_iInspectorHeight = 100;
    panel.m_view.resize(300, 100);
    panel.m_view.OnContentHeightSet();
    EXPECT_EQ(log.Take(),
              (CCalls{"page 100.range(0, 20)", "page 100.range(0, 150)", "page 100.move(280, 0)",
                      "page 100.resize(20, 100)", "page 100.show()"}));
}

TEST(QtInspectorViewLayout, MovesResizesAndThenConfiguresAShownScrollBar)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 100);
    panel.m_view.show();
    panel.ScrollBar().setRange(-10, 150);
    CCallLog log;
    const CScrollBarLog scrollBarLog(panel.ScrollBar(), log);
    panel.m_view.m_iInspectorHeight = 110;
    panel.m_view.resize(310, 110);
    panel.m_view.OnContentHeightSet();
    EXPECT_EQ(log.Take(), (CCalls{"page 100.move(290, 0)", "page 100.resize(20, 110)",
                                  "page 110.range(0, 150)", "page 110.range(0, 140)"}));
}

TEST(QtInspectorViewLayout, ResetsTheValueBeforeItHidesTheScrollBar)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 100);
    panel.m_view.show();
    panel.ScrollBar().setValue(40);
    CCallLog log;
    const CScrollBarLog scrollBarLog(panel.ScrollBar(), log);
    panel.m_view.m_iInspectorHeight = 250;
    panel.m_log.Clear();
    panel.m_view.OnContentHeightSet();
    EXPECT_EQ(log.Take(), (CCalls{"page 100.value(0)", "page 100.hide()"}));
    // Once by the slot of the scroll bar and once by the set-up itself.
    EXPECT_EQ(panel.m_log.Containing("Offset"),
              (CCalls{"view.OffsetControls(0, 0)", "view.OffsetControls(0, 0)"}));
}

TEST(QtInspectorViewLayout, PlacesTheScrollBarByTheWidgetsOwnSize)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 100);
    panel.m_view.resize(400, 120);
    panel.m_view.OnContentHeightSet();
    EXPECT_EQ(panel.ScrollBar().geometry(), QRect(380, 0, 20, 120));
    EXPECT_EQ(panel.ScrollBar().pageStep(), 100);
    EXPECT_EQ(panel.ScrollBar().maximum(), 150);
}

TEST(QtInspectorViewLayout, KeepsTheScrollValueWithinANewRange)
{
    sPanelOfHeight panel(250);
    panel.m_view.ResizeInspector(300, 100);
    panel.ScrollBar().setValue(150);
    panel.m_view.ResizeInspector(300, 200);
    EXPECT_EQ(panel.ScrollBar().maximum(), 50);
    EXPECT_EQ(panel.ScrollBar().value(), 50);
    EXPECT_EQ(panel.m_view.m_iOffsetY, 50);
    EXPECT_EQ(panel.m_pControl->pos(), QPoint(5, -45));
}

TEST(QtInspectorViewLayout, LaysOutAnEmptyPanel)
{
    sTestPanel panel;
    panel.m_view.ResizeInspector(300, -1);
    EXPECT_EQ(panel.m_view.size(), QSize(300, 10));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 10);
    EXPECT_TRUE(panel.m_view.m_pScrollBar->isHidden());
}

TEST(QtInspectorViewLayout, StacksANamedGroup)
{
    sTestPanel panel;
    auto* group = panel.m_view.AddGroup("General", nullptr);
    const CTestControl* control = panel.AddRow("", 20, group);
    panel.m_view.ResizeInspector(300, -1);
    EXPECT_EQ(group->m_iX, 5);
    EXPECT_EQ(group->m_iY, 5);
    EXPECT_EQ(group->m_iWidth, 270);
    EXPECT_EQ(group->m_iHeight, 5 + 14 + 20 + 5 + 5);
    EXPECT_EQ(control->geometry(), QRect(10, 24, 260, 20));
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), 64);
}

TEST(QtInspectorViewLayout, TakesEverySize)
{
    for (const int width : {g_iMin, g_iMin + 19, -1, 0, 1, 19, 20, 21, 100000})
    {
        for (const int height : {g_iMin, -2, -1, 0, 1, 100000})
        {
            sPanelOfHeight panel(250);
            panel.m_view.ResizeInspector(width, height);
            EXPECT_EQ(panel.m_view.m_iInspectorWidth,
                      static_cast<int>(static_cast<unsigned>(width) - 20U));
            EXPECT_EQ(panel.m_view.m_iInspectorHeight, height == -1 ? 250 : height);
            // The size that the engine starts with is no news and lays nothing out.
            const bool isLaidOut = width != 20 || height != 0;
            EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), isLaidOut ? 250 : 0);
            EXPECT_EQ(panel.ScrollBar().isHidden(), height == -1 || height >= 250 || !isLaidOut);
        }
    }
}

TEST(QtInspectorViewLayout, TakesAContentOfEveryHeight)
{
    for (const int height : {g_iMin, g_iMin + 15, -1000, 0, 100000, g_iMax - 15, g_iMax})
    {
        sTestPanel panel;
        panel.AddRow("", height);
        panel.m_view.ResizeInspector(300, 100);
        const int content = static_cast<int>(static_cast<unsigned>(height) + 15U);
        EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), content);
        EXPECT_EQ(panel.m_view.m_pScrollBar->isHidden(), content <= 100);
        if (content > 100)
        {
            EXPECT_EQ(panel.m_view.m_pScrollBar->maximum(), content - 100);
        }
    }
}
