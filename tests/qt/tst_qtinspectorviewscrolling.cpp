#include "testpanel.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace
{

/// Ten rows of height 20 at y = 5, 30, 55 ... 230 in a panel 100 high; the content is 260 high.
class QtInspectorViewScrolling : public testing::Test
{
protected:
    QtInspectorViewScrolling()
    {
        for (int row = 0; row < 10; ++row)
            m_vRows.push_back(m_panel.AddRow(""));
        m_view.ResizeInspector(300, 100);
        m_panel.m_log.Clear();
    }

    int Value() const { return m_view.m_pScrollBar->value(); }

    /// Scrolls a row into sight from a scroll value; returns the new value.
    int EnsureVisible(std::size_t row, int from)
    {
        m_view.m_pScrollBar->setValue(from);
        m_panel.m_log.Clear();
        m_view.EnsureVisible(m_vRows[row]);
        return Value();
    }

    sTestPanel m_panel;
    CTestView& m_view = m_panel.m_view;
    std::vector<CTestControl*> m_vRows;
};

constexpr int g_iMax = std::numeric_limits<int>::max();
constexpr int g_iMin = std::numeric_limits<int>::min();

} // namespace

TEST_F(QtInspectorViewScrolling, MovesEveryControlUpByTheValue)
{
    m_view.m_pScrollBar->setValue(30);
    EXPECT_EQ(m_view.m_iOffsetX, 0);
    EXPECT_EQ(m_view.m_iOffsetY, 30);
    for (int row = 0; row < 10; ++row)
        EXPECT_EQ(m_vRows[static_cast<std::size_t>(row)]->geometry(),
                  QRect(5, 5 + 25 * row - 30, 270, 20));
    CCalls calls = m_panel.m_log.Take();
    ASSERT_EQ(calls.size(), 12U);
    EXPECT_EQ(calls.front(), "view.OffsetControls(0, 30)");
    EXPECT_EQ(calls.back(), "view.UpdateView()");
}

TEST_F(QtInspectorViewScrolling, LaysNothingOutAgain)
{
    m_view.m_pScrollBar->setValue(30);
    EXPECT_EQ(m_panel.m_log.Count("RecomputeLayout"), 0U);
    EXPECT_EQ(m_panel.m_log.Count("GetRequired"), 0U);
    EXPECT_EQ(m_panel.m_log.Count("ResizeWidget"), 0U);
}

TEST_F(QtInspectorViewScrolling, ReadsTheScrollBarAndNotTheArgument)
{
    m_view.m_pScrollBar->setValue(30);
    m_panel.m_log.Clear();
    m_view.SliderValueChanged(99);
    EXPECT_EQ(m_panel.m_log.Containing("Offset"), CCalls{"view.OffsetControls(0, 30)"});
    EXPECT_EQ(m_panel.m_log.Count("UpdateView"), 1U);
    m_panel.m_log.Clear();
    EXPECT_TRUE(QMetaObject::invokeMethod(&m_view, "SliderValueChanged", Q_ARG(int, 99)));
    EXPECT_EQ(m_panel.m_log.Containing("Offset"), CCalls{"view.OffsetControls(0, 30)"});
}

TEST_F(QtInspectorViewScrolling, RepaintsTheWholeViewOnRequest)
{
    m_view.show();
    QCoreApplication::processEvents();
    m_panel.m_log.Clear();
    m_view.m_regionPainted = QRegion();
    m_view.UpdateView();
    EXPECT_EQ(m_panel.m_log.Count("paintEvent"), 0U);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_panel.m_log.Count("paintEvent"), 1U);
    EXPECT_TRUE((QRegion(0, 0, 280, 100) - m_view.m_regionPainted).isEmpty());
}

TEST_F(QtInspectorViewScrolling, RepaintsForAPreviewMessage)
{
    m_view.show();
    QCoreApplication::processEvents();
    m_panel.m_log.Clear();
    m_view.SetPreviewMessage("message", Qt::red);
    EXPECT_EQ(m_panel.m_log.Take(), CCalls{});
    QCoreApplication::processEvents();
    EXPECT_EQ(m_panel.m_log.Count("paintEvent"), 1U);
    m_view.SetPreviewMessage("", Qt::red);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_panel.m_log.Count("paintEvent"), 2U);
}

TEST_F(QtInspectorViewScrolling, BringsAControlHalfAboveTheTopEdgeToTheTop)
{
    EXPECT_EQ(EnsureVisible(2, 65), 55);
    EXPECT_EQ(m_vRows[2]->y(), 0);
    EXPECT_EQ(m_panel.m_log.Count("OffsetControls"), 1U);
    EXPECT_EQ(EnsureVisible(2, 56), 55);
    EXPECT_EQ(EnsureVisible(0, 160), 5);
}

TEST_F(QtInspectorViewScrolling, BringsAControlBelowTheBottomEdgeToTheBottom)
{
    EXPECT_EQ(EnsureVisible(9, 0), 230 + 20 - 100);
    EXPECT_EQ(m_vRows[9]->geometry().bottom(), 99);
    EXPECT_EQ(EnsureVisible(4, 24), 25);
    EXPECT_EQ(m_vRows[4]->y(), 80);
}

TEST_F(QtInspectorViewScrolling, DoesNotMoveForAVisibleControl)
{
    for (const int value : {25, 30, 40, 55})
    {
        EXPECT_EQ(EnsureVisible(2, value), value);
        EXPECT_EQ(m_panel.m_log.Take(), CCalls{});
    }
}

TEST_F(QtInspectorViewScrolling, DoesNotMoveForAControlAtTheEdges)
{
    EXPECT_EQ(EnsureVisible(2, 55), 55); // at the top edge
    EXPECT_EQ(EnsureVisible(4, 25), 25); // at the bottom edge
    EXPECT_EQ(m_panel.m_log.Take(), CCalls{});
}

TEST_F(QtInspectorViewScrolling, GivesTheScrollBarTheOffsetForAVisibleControl)
{
    m_view.OffsetControls(0, 40);
    EXPECT_EQ(Value(), 0);
    m_view.EnsureVisible(m_vRows[3]);
    EXPECT_EQ(Value(), 40);
}

TEST_F(QtInspectorViewScrolling, DecidesByTheOffsetAndNotByTheScrollBar)
{
    m_view.OffsetControls(0, 160);
    m_view.EnsureVisible(m_vRows[0]);
    EXPECT_EQ(Value(), 5);
    m_view.OffsetControls(0, 0);
    m_view.EnsureVisible(m_vRows[9]);
    EXPECT_EQ(Value(), 150);
}

TEST_F(QtInspectorViewScrolling, BringsATallControlToTheTopAndThenToTheBottom)
{
    m_vRows[5]->m_iRequiredHeight = 150;
    m_view.RecomputeLayout();
    EXPECT_EQ(EnsureVisible(5, 150), 130);
    EXPECT_EQ(m_vRows[5]->y(), 0);
    // It begins at the top now, so that its end counts.
    EXPECT_EQ(EnsureVisible(5, 130), 180);
    EXPECT_EQ(EnsureVisible(5, 180), 130);
}

TEST_F(QtInspectorViewScrolling, StaysWithinTheRangeOfTheScrollBar)
{
    m_view.OffsetControls(0, 1000);
    m_view.m_pScrollBar->setMaximum(20);
    m_view.EnsureVisible(m_vRows[9]);
    EXPECT_EQ(Value(), 20);
}

TEST_F(QtInspectorViewScrolling, IgnoresAControlThatIsNotInTheView)
{
    CTestControl stranger(m_panel.m_log, "stranger");
    m_view.m_pScrollBar->setValue(65);
    m_panel.m_log.Clear();
    m_view.OffsetControls(0, 40);
    m_panel.m_log.Clear();
    m_view.EnsureVisible(&stranger);
    m_view.EnsureVisible(nullptr);
    EXPECT_EQ(Value(), 65);
    EXPECT_EQ(m_panel.m_log.Take(), CCalls{});
}

TEST_F(QtInspectorViewScrolling, FindsAControlInAContainer)
{
    auto* container = m_view.AddSingleLineContainer("line", nullptr, nullptr);
    auto* control = new CTestControl(m_panel.m_log, "inner");
    m_view.AddElement(nullptr, control, nullptr, nullptr, container);
    m_view.RecomputeLayout();
    m_view.EnsureVisible(control);
    EXPECT_EQ(Value(), 255 + 20 - 100);
}

TEST_F(QtInspectorViewScrolling, ShowsTheNextControlWhenEditingMoves)
{
    m_panel.m_controller.GiveFocusToNextElement(m_vRows[3]);
    EXPECT_EQ(Value(), 105 + 20 - 100);
    EXPECT_EQ(m_panel.m_log.Take().back(), "row.StartEditing()");
    m_panel.m_controller.GiveFocusToPrevElement(m_vRows[0]);
    EXPECT_EQ(Value(), 150);
}

TEST(QtInspectorViewExtremes, SurvivesControlsAtTheEndsOfTheNumbers)
{
    for (const int top : {g_iMin, g_iMin + 1, -1, 0, g_iMax - 1, g_iMax})
    {
        for (const int height : {g_iMin, -1, 0, 1, g_iMax})
        {
            for (const int offset : {g_iMin, 0, g_iMax})
            {
                sTestPanel panel;
                auto* control = new CTestControl(panel.m_log, "control");
                auto* holder = panel.m_view.AddElement(nullptr, control, "", nullptr, nullptr);
                panel.m_view.ResizeInspector(300, 100);
                holder->m_iY = top;
                holder->m_iHeight = height;
                panel.m_view.OffsetControls(offset, offset);
                panel.m_view.EnsureVisible(control);
                EXPECT_GE(panel.m_view.m_pScrollBar->value(), 0);
                EXPECT_LE(panel.m_view.m_pScrollBar->value(), 99);
            }
        }
    }
}
