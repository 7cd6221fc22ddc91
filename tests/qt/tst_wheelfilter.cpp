#include "testpanel.h"

#include <booldataelement.h>
#include <buttondataelement.h>
#include <enumdataelement.h>
#include <qtbuttonwidget.h>
#include <qtenumdatawidget.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>
#include <qtstaticwidget.h>
#include <simpledataelement.h>
#include <staticdataelement.h>

#include <QApplication>
#include <QWheelEvent>
#include <QtTest/QTest>
#include <QtTest/qtestspontaneevent.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace
{

/// A host's window around the panel, which sees the wheel that the panel leaves to it.
class CHostWindow : public QWidget
{
public:
    int m_iWheels = 0;

protected:
    void wheelEvent(QWheelEvent* event) override
    {
        ++m_iWheels;
        event->accept();
    }
};

/// Turns the wheel over a widget; a notch toward the user is -120. Returns whether somebody took
/// the event.
bool Turn(QWidget& over, QPoint angle, QPoint pixels = QPoint())
{
    const QPointF place(over.rect().center());
    QWheelEvent event(place, over.mapToGlobal(place.toPoint()), pixels, angle, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    event.ignore();
    // Qt hands only events of the window system on to the parents.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&over, &event);
    return event.isAccepted();
}

/// One row of every kind in a panel that is too low for them: 1000 pixels of content and more.
class WheelFilter : public testing::Test
{
protected:
    WheelFilter()
    {
        m_view.SetController(&m_controller);
        m_controller.SetInspectorView(&m_view);
        m_view.setParent(&m_window);
        Add("field", new CSimpleDataElement, new CQTSimpleDataWidget);
        Add("flag", new CBoolDataElement, new CQTSimpleBoolWidget);
        Add("choice", new CEnumDataElement, new CQTEnumDataWidget);
        auto* button = new CButtonDataElement(1);
        button->SetEnable(true);
        Add("button", button, new CQTButtonWidget);
        Add("static", new CStaticDataElement("text", 0), new CQTStaticWidget);
        m_pText = new CSimpleDataElement;
        m_pBox = new CQTSimpleTextWidget;
        Add("text", m_pText, m_pBox);
        m_controller.ConnectDataElements();
        m_view.AddElement(nullptr, new CTestControl(m_log, "tall", -1, 1000), "", nullptr, nullptr);
        m_view.ResizeInspector(300, 200);
        m_window.resize(300, 200);
        m_window.show();
        m_view.m_pScrollBar->setValue(400);
    }

    ~WheelFilter() override { m_controller.ClearAllData(); }

    template <typename Widget>
    void Add(const char* label, CInspectorDataElement* element, Widget* widget)
    {
        m_controller.AddItem(element, widget, nullptr);
        m_view.AddElement(element, widget, label, nullptr, nullptr);
        m_vRows.emplace_back(label, widget);
    }

    int Value() const { return m_view.m_pScrollBar->value(); }

    /// How far the panel scrolls from 400.
    int Scroll(QWidget& over, QPoint angle, QPoint pixels = QPoint())
    {
        m_view.m_pScrollBar->setValue(400);
        EXPECT_TRUE(Turn(over, angle, pixels));
        return Value() - 400;
    }

    CCallLog m_log;
    CRecordingController m_controller{m_log};
    CHostWindow m_window;
    CTestView m_view{m_log};
    std::vector<std::pair<std::string, QWidget*>> m_vRows;
    CSimpleDataElement* m_pText;
    CQTSimpleTextWidget* m_pBox;
};

constexpr int g_iMax = std::numeric_limits<int>::max();
constexpr int g_iMin = std::numeric_limits<int>::min();

} // namespace

TEST_F(WheelFilter, ScrollsThreeRowsANotch)
{
    // A row of text is 20 pixels high and has a gap of 5 below it.
    EXPECT_EQ(Scroll(m_view, QPoint(0, -120)), 75);
    EXPECT_EQ(Scroll(m_view, QPoint(0, 120)), -75);
    EXPECT_EQ(Scroll(m_view, QPoint(0, -360)), 225);
}

TEST_F(WheelFilter, MovesTheControlsAlong)
{
    Turn(m_view, QPoint(0, -120));
    EXPECT_EQ(Value(), 475);
    EXPECT_EQ(m_view.m_iOffsetY, 475);
    EXPECT_EQ(m_vRows.front().second->y(), 5 - 475);
}

TEST_F(WheelFilter, ScrollsOverEveryKindOfRowAndChangesNoValue)
{
    for (const auto& [label, widget] : m_vRows)
    {
        SCOPED_TRACE(label);
        m_log.Clear();
        EXPECT_EQ(Scroll(*widget, QPoint(0, -120)), 75);
        EXPECT_EQ(Scroll(*widget, QPoint(0, 120)), -75);
        EXPECT_EQ(m_log.Count("CallCommand"), 0U);
    }
    for (const auto* record : m_controller.m_lItems)
    {
        if (auto* element = dynamic_cast<CSimpleDataElement*>(record->m_pElement))
        {
            std::string value;
            element->GetDataAsString(value);
            EXPECT_EQ(value, "Default");
        }
    }
    EXPECT_FALSE(dynamic_cast<CQTSimpleBoolWidget&>(*m_vRows[1].second).GetValue());
    EXPECT_EQ(m_window.m_iWheels, 0);
}

TEST_F(WheelFilter, ScrollsOverTheContentAndTheScrollBar)
{
    EXPECT_EQ(Scroll(*m_view.m_pContent, QPoint(0, -120)), 75);
    EXPECT_EQ(Scroll(*m_view.m_pScrollBar, QPoint(0, -120)), 75);
    EXPECT_EQ(Scroll(*m_view.m_pScrollBar, QPoint(), QPoint(0, -11)), 11);
}

TEST_F(WheelFilter, LeavesTheStepsOfTheScrollBarAsTheyAre)
{
    Turn(m_view, QPoint(0, -120));
    EXPECT_EQ(m_view.m_pScrollBar->singleStep(), QScrollBar().singleStep());
    EXPECT_EQ(m_view.m_pScrollBar->pageStep(), 200);
}

TEST_F(WheelFilter, TakesThePixelsOfATouchpadAsTheyCome)
{
    EXPECT_EQ(Scroll(m_view, QPoint(0, -40), QPoint(0, -7)), 7);
    EXPECT_EQ(Scroll(m_view, QPoint(0, 3), QPoint(0, 1)), -1);
    EXPECT_EQ(Scroll(m_view, QPoint(), QPoint(0, 250)), -250);
}

TEST_F(WheelFilter, AddsUpTheStepsOfFineWheels)
{
    for (int step = 1; step <= 8; ++step)
    {
        Turn(m_view, QPoint(0, -15));
        EXPECT_EQ(Value(), 400 + 75 * step / 8);
    }
    for (int step = 0; step < 120; ++step)
        Turn(m_view, QPoint(0, 1));
    EXPECT_EQ(Value(), 400);
}

TEST_F(WheelFilter, KeepsFineStepsApartFromTouchpadPixels)
{
    Turn(m_view, QPoint(0, -1));
    EXPECT_EQ(Value(), 400);
    Turn(m_view, QPoint(0, -1), QPoint(0, -1));
    EXPECT_EQ(Value(), 401);
    Turn(m_view, QPoint(0, -1));
    EXPECT_EQ(Value(), 402);
}

TEST_F(WheelFilter, DoesNotScrollSideways)
{
    EXPECT_EQ(Scroll(m_view, QPoint(-120, 0)), 0);
    EXPECT_EQ(Scroll(m_view, QPoint(-120, 0), QPoint(-30, 0)), 0);
    EXPECT_EQ(Scroll(m_view, QPoint(-120, -120)), 75);
}

TEST_F(WheelFilter, StopsAtTheEnds)
{
    m_view.m_pScrollBar->setValue(10);
    EXPECT_TRUE(Turn(m_view, QPoint(0, 120)));
    EXPECT_EQ(Value(), 0);
    EXPECT_TRUE(Turn(m_view, QPoint(0, 120)));
    EXPECT_EQ(Value(), 0);
    const int maximum = m_view.m_pScrollBar->maximum();
    EXPECT_EQ(maximum, m_view.GetCurrentContentHeight() - 200);
    m_view.m_pScrollBar->setValue(maximum - 10);
    Turn(m_view, QPoint(0, -120));
    EXPECT_EQ(Value(), maximum);
    EXPECT_EQ(m_window.m_iWheels, 0);
}

TEST_F(WheelFilter, LeavesTheWheelToTheHostWhenEverythingIsInSight)
{
    m_view.ResizeInspector(300, 2000);
    EXPECT_TRUE(m_view.m_pScrollBar->isHidden());
    EXPECT_TRUE(Turn(m_view, QPoint(0, -120)));
    EXPECT_TRUE(Turn(*m_vRows.front().second, QPoint(0, -120)));
    EXPECT_EQ(m_window.m_iWheels, 2);
    EXPECT_EQ(Value(), 0);
    EXPECT_EQ(m_vRows.front().second->y(), 5);
}

TEST_F(WheelFilter, LetsATextBoxScrollFirst)
{
    std::string text;
    for (int line = 0; line < 100; ++line)
        text += "line\n";
    m_pText->SetStrCurrentValue(text);
    m_pBox->OnValueChange(nullptr);
    QCoreApplication::processEvents();
    QScrollBar& inner = *m_pBox->verticalScrollBar();
    ASSERT_GT(inner.maximum(), 0);

    EXPECT_EQ(Scroll(*m_pBox->viewport(), QPoint(0, -120)), 0);
    EXPECT_GT(inner.value(), 0);
    inner.setValue(inner.maximum());
    EXPECT_EQ(Scroll(*m_pBox->viewport(), QPoint(0, -120)), 75);
    EXPECT_EQ(inner.value(), inner.maximum());
    EXPECT_EQ(Scroll(*m_pBox->viewport(), QPoint(0, 120)), 0);
    EXPECT_LT(inner.value(), inner.maximum());
    inner.setValue(0);
    EXPECT_EQ(Scroll(*m_pBox->viewport(), QPoint(0, 120)), -75);
}

TEST_F(WheelFilter, ScrollsOverATextBoxThatShowsItsWholeText)
{
    EXPECT_EQ(m_pBox->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(Scroll(*m_pBox->viewport(), QPoint(0, -120)), 75);
    EXPECT_EQ(Scroll(*m_pBox->viewport(), QPoint(0, 120)), -75);
}

TEST_F(WheelFilter, TakesMotionsOfEverySize)
{
    const int maximum = m_view.m_pScrollBar->maximum();
    for (const int far : {1 << 24, 1 << 28, g_iMax})
    {
        Turn(m_view, QPoint(0, -far));
        EXPECT_EQ(Value(), maximum);
        Turn(m_view, QPoint(0, far));
        EXPECT_EQ(Value(), 0);
        Turn(m_view, QPoint(), QPoint(0, -far));
        EXPECT_EQ(Value(), maximum);
        Turn(m_view, QPoint(), QPoint(0, far));
        EXPECT_EQ(Value(), 0);
    }
    Turn(m_view, QPoint(0, g_iMin));
    EXPECT_EQ(Value(), maximum);
    Turn(m_view, QPoint(0, g_iMax));
    Turn(m_view, QPoint(), QPoint(0, g_iMin));
    EXPECT_EQ(Value(), maximum);
}

TEST_F(WheelFilter, AcceptsAnEventThatAHostHandsOn)
{
    QWheelEvent event(QPointF(10, 10), m_view.mapToGlobal(QPoint(10, 10)), QPoint(),
                      QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    event.ignore();
    EXPECT_TRUE(QCoreApplication::sendEvent(&m_view, &event));
    EXPECT_TRUE(event.isAccepted());
    EXPECT_EQ(Value(), 475);
}

TEST_F(WheelFilter, LeavesOtherEventsAlone)
{
    QTest::keyClick(m_view.m_pScrollBar, Qt::Key_PageDown);
    EXPECT_EQ(Value(), 600);
    QTest::keyClick(m_view.m_pScrollBar, Qt::Key_Up);
    EXPECT_EQ(Value(), 599);
}
