#include <booldataelement.h>
#include <buttondataelement.h>
#include <enumdataelement.h>
#include <inspectorcontroller.h>
#include <qtbuttonwidget.h>
#include <qtenumdatawidget.h>
#include <qtinspectorview.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>
#include <qtstaticwidget.h>
#include <simpledataelement.h>
#include <staticdataelement.h>

#include <support/images.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMoveEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QTest>

#include <random>
#include <string>
#include <vector>

// What a panel leaves out when it places its controls is not missed: the screen shows what a
// repaint would show, and the events that a control waits for arrive.

namespace
{

class CController : public CInspectorController
{
public:
    void BuildInspector() override {}
    void RefreshInspector() override {}
    void HandleDirtyItem(sInspectorControllerData* record, IDirtyControllerDataInfo*) override
    {
        record->m_pElement->UpdateData();
    }
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override {}
};

/// A control of a host that covers everything below it.
class COpaqueField : public CQTSimpleDataWidget
{
public:
    COpaqueField() { setAttribute(Qt::WA_OpaquePaintEvent); }
};

/// A control of a host that draws where it is.
class CPlaceField : public CQTSimpleDataWidget
{
protected:
    void paintEvent(QPaintEvent* event) override
    {
        CQTSimpleDataWidget::paintEvent(event);
        QPainter(this).drawText(rect(), 0, QString::number(y()));
    }
};

/// A view of a host that draws what does not scroll.
class CMarkedView : public CQTInspectorView
{
protected:
    void paintEvent(QPaintEvent* event) override
    {
        CQTInspectorView::paintEvent(event);
        QPainter(this).fillRect(QRect(0, 100, 400, 3), Qt::red);
    }
};

/// Writes down what a widget is told.
class CWatcher : public QObject
{
public:
    explicit CWatcher(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent*>(event)->region();
        if (event->type() == QEvent::Move)
            m_vMoves.emplace_back(static_cast<QMoveEvent*>(event)->oldPos(),
                                  static_cast<QMoveEvent*>(event)->pos());
        if (event->type() == QEvent::Resize)
            m_vSizes.push_back(static_cast<QResizeEvent*>(event)->size());
        return false;
    }

    QRegion m_region;
    std::vector<std::pair<QPoint, QPoint>> m_vMoves;
    std::vector<QSize> m_vSizes;
};

int AreaOf(const QRegion& region)
{
    int area = 0;
    for (const QRect& rect : region)
        area += rect.width() * rect.height();
    return area;
}

/// A shown panel of 300 x 400 pixels with a hundred text rows, and others if the test adds some.
template <typename View>
class CShownPanel
{
public:
    explicit CShownPanel(QWidget* parent = nullptr)
    {
        m_view.setParent(parent);
        m_controller.SetInspectorView(&m_view);
        m_view.SetController(&m_controller);
        m_pGroup = m_view.AddGroup("Group", nullptr);
        for (int i = 0; i < 100; ++i)
        {
            if (i % 7 == 0)
                m_pGroup = m_view.AddGroup(("Group " + std::to_string(i)).c_str(), nullptr);
            m_vFields.push_back(new CQTSimpleDataWidget);
            Add(new CSimpleDataElement, m_vFields.back(), std::to_string(i).c_str());
        }
    }

    template <typename Element, typename Widget>
    Element* Add(Element* element, Widget* widget, const char* label)
    {
        m_controller.AddItem(element, widget, nullptr);
        m_view.AddElement(element, widget, label, nullptr, m_pGroup);
        return element;
    }

    void Show()
    {
        m_controller.ConnectDataElements();
        m_view.ResizeInspector(300, 400);
        m_view.window()->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_view.window()));
        Settle();
    }

    static void Settle()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    QScrollBar& GetScrollBar()
    {
        return *m_view.template findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
    }

    void ScrollTo(int value)
    {
        GetScrollBar().setValue(value);
        Settle();
    }

    void ExpectThatTheScreenIsRight()
    {
        QWidget& window = *m_view.window();
        const QImage screen = window.screen()->grabWindow(window.winId()).toImage();
        images::ExpectSame(screen.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                           images::Render(window));
    }

    CController m_controller;
    View m_view;
    CInspectorView::sInspectorElement* m_pGroup = nullptr;
    std::vector<CQTSimpleDataWidget*> m_vFields;
};

using CPlainPanel = CShownPanel<CQTInspectorView>;

template <typename Panel>
void ExpectThatScrollingShowsWhatARepaintShows(Panel& panel)
{
    panel.Show();
    panel.ExpectThatTheScreenIsRight();
    std::mt19937 random(1);
    for (int i = 0; i < 40; ++i)
    {
        SCOPED_TRACE("step " + std::to_string(i));
        const int by = static_cast<int>(random() % 121) - 50;
        panel.ScrollTo(panel.GetScrollBar().value() + by);
        panel.ExpectThatTheScreenIsRight();
        if (testing::Test::HasFailure())
            return;
    }
}

} // namespace

TEST(ControlPlacement, AScrollStepShowsWhatARepaintShows)
{
    CPlainPanel panel;
    panel.Add(new CBoolDataElement, new CQTSimpleBoolWidget, "Bool")->SetValue(true);
    panel.Add(new CButtonDataElement(1), new CQTButtonWidget, "Button")->SetText("Press");
    panel.Add(new CStaticDataElement("Static", 129), new CQTStaticWidget, "Static");
    auto* choice = panel.Add(new CEnumDataElement, new CQTEnumDataWidget, "Enum");
    choice->CreateEnum();
    choice->AddEnum("a", "First");
    panel.m_pGroup = panel.m_view.AddSingleLineContainer("Line", nullptr, nullptr);
    panel.Add(new CSimpleDataElement, new CQTSimpleDataWidget, nullptr);
    panel.Add(new CSimpleDataElement, new CQTSimpleDataWidget, nullptr);
    ExpectThatScrollingShowsWhatARepaintShows(panel);
    panel.ScrollTo(panel.GetScrollBar().maximum() - 100);
    panel.ExpectThatTheScreenIsRight();
    panel.ScrollTo(panel.GetScrollBar().maximum());
    panel.ExpectThatTheScreenIsRight();
}

TEST(ControlPlacement, AScrollStepPaintsOnlyWhatCameIntoSight)
{
    CPlainPanel panel;
    panel.Show();
    CWatcher watcher(panel.m_view);
    panel.ScrollTo(25);
    const QRegion scrollBar(280, 0, 20, 400);
    EXPECT_EQ(AreaOf(watcher.m_region - scrollBar), 280 * 25);
}

TEST(ControlPlacement, AScrollStepShowsWhatChangedJustBefore)
{
    CPlainPanel panel;
    panel.Show();
    for (int i = 0; i < 20; ++i)
    {
        SCOPED_TRACE("step " + std::to_string(i));
        panel.m_vFields[static_cast<std::size_t>(i + 3)]->FinishValueEdit(
            "changed", CInspectorDataElement::eEndEditValidate);
        panel.m_vFields[static_cast<std::size_t>(i + 3)]->OnValueChange(nullptr);
        panel.m_vFields[static_cast<std::size_t>(i + 8)]->update();
        panel.ScrollTo(17 * i);
        panel.ExpectThatTheScreenIsRight();
    }
}

TEST(ControlPlacement, AScrollStepShowsWhatElementsSayNow)
{
    CPlainPanel panel;
    auto* text = panel.Add(new CStaticDataElement("Static", 129), new CQTStaticWidget, "Static");
    auto* button = panel.Add(new CButtonDataElement(1), new CQTButtonWidget, "Button");
    panel.Show();
    panel.ScrollTo(panel.GetScrollBar().maximum() - 20);
    text->SetText("Another");
    button->SetText("Press");
    panel.ScrollTo(panel.GetScrollBar().maximum());
    panel.ExpectThatTheScreenIsRight();
}

TEST(ControlPlacement, AScrollStepShowsControlsOfTheHostWhereTheyAre)
{
    for (const int at : {0, 3, 99})
    {
        CPlainPanel panel;
        panel.m_pGroup = nullptr;
        panel.Add(new CSimpleDataElement, new CPlaceField, "place");
        panel.m_pGroup = panel.m_view.AddGroup(std::to_string(at).c_str(), nullptr);
        panel.Add(new CSimpleDataElement, new COpaqueField, "opaque");
        panel.Add(new CSimpleDataElement, new CQTSimpleTextWidget, "text");
        panel.Show();
        for (const int value :
             {10, 60, 0, panel.GetScrollBar().maximum(), panel.GetScrollBar().maximum() - 30,
              panel.GetScrollBar().maximum() - 37})
        {
            panel.ScrollTo(value);
            panel.ExpectThatTheScreenIsRight();
        }
    }
}

TEST(ControlPlacement, AScrollStepLeavesWhatAHostsViewDrawsInPlace)
{
    CShownPanel<CMarkedView> panel;
    ExpectThatScrollingShowsWhatARepaintShows(panel);
}

TEST(ControlPlacement, AScrollStepLeavesAMessageInPlace)
{
    CPlainPanel panel;
    panel.m_view.SetPreviewMessage("Nothing selected", Qt::red);
    ExpectThatScrollingShowsWhatARepaintShows(panel);
}

TEST(ControlPlacement, AScrollStepLeavesABackgroundThatIsNotPlainInPlace)
{
    CPlainPanel panel;
    QLinearGradient gradient(0, 0, 0, 400);
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(1, Qt::darkGreen);
    QPalette palette = panel.m_view.palette();
    palette.setBrush(QPalette::Window, gradient);
    panel.m_view.setPalette(palette);
    ExpectThatScrollingShowsWhatARepaintShows(panel);
}

TEST(ControlPlacement, AScrollStepLeavesWhatElseIsOnThePanelInPlace)
{
    CPlainPanel panel;
    QWidget overlay(&panel.m_view);
    overlay.setGeometry(50, 60, 70, 80);
    overlay.setAutoFillBackground(true);
    overlay.setPalette(QPalette(Qt::blue));
    ExpectThatScrollingShowsWhatARepaintShows(panel);
}

TEST(ControlPlacement, AScrollStepInAnotherWidgetShowsWhatARepaintShows)
{
    QWidget window;
    window.resize(320, 420);
    QLinearGradient gradient(0, 0, 0, 400);
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(1, Qt::darkGreen);
    window.setPalette(QPalette(QPalette::Window, Qt::white));
    QPalette palette = window.palette();
    palette.setBrush(QPalette::Window, gradient);
    window.setPalette(palette);
    CPlainPanel panel(&window);
    panel.m_view.move(10, 10);
    ExpectThatScrollingShowsWhatARepaintShows(panel);
}

TEST(ControlPlacement, APanelInAnotherWidgetThatFillsItsBackgroundPaintsOnlyWhatCameIntoSight)
{
    QWidget window;
    window.resize(320, 420);
    CPlainPanel panel(&window);
    panel.m_view.move(10, 10);
    panel.m_view.setAutoFillBackground(true);
    panel.Show();
    CWatcher watcher(panel.m_view);
    panel.ScrollTo(25);
    const QRegion scrollBar(280, 0, 20, 400);
    EXPECT_EQ(AreaOf(watcher.m_region - scrollBar), 280 * 25);
    panel.ExpectThatTheScreenIsRight();
}

TEST(ControlPlacement, AScrollStepInAnotherWidgetLeavesWhatLiesOverThePanelInPlace)
{
    QWidget window;
    window.resize(320, 420);
    CPlainPanel panel(&window);
    panel.m_view.move(10, 10);
    panel.m_view.setAutoFillBackground(true);
    QWidget overlay(&window);
    overlay.setGeometry(50, 60, 70, 80);
    overlay.setAutoFillBackground(true);
    overlay.setPalette(QPalette(Qt::blue));
    ExpectThatScrollingShowsWhatARepaintShows(panel);
}

TEST(ControlPlacement, AScrollStepLeavesAFilledBackgroundThatIsNotPlainInPlace)
{
    QLinearGradient gradient(0, 0, 0, 400);
    gradient.setColorAt(0, Qt::white);
    gradient.setColorAt(1, Qt::darkGreen);
    for (const QBrush& brush : {QBrush(gradient), QBrush(QColor(0, 0, 200, 100))})
    {
        QWidget window;
        window.resize(320, 420);
        window.setPalette(QPalette(Qt::yellow));
        CPlainPanel panel(&window);
        panel.m_view.move(10, 10);
        QPalette palette = panel.m_view.palette();
        palette.setBrush(QPalette::Base, brush);
        panel.m_view.setPalette(palette);
        panel.m_view.setBackgroundRole(QPalette::Base);
        panel.m_view.setAutoFillBackground(true);
        ExpectThatScrollingShowsWhatARepaintShows(panel);
    }
}

TEST(ControlPlacement, AControlInSightIsToldOfEveryMove)
{
    CPlainPanel panel;
    panel.Show();
    QWidget& control = *panel.m_vFields[2];
    const QPoint place = control.pos();
    CWatcher watcher(control);
    panel.ScrollTo(5);
    panel.ScrollTo(9);
    using CMoves = std::vector<std::pair<QPoint, QPoint>>;
    EXPECT_EQ(watcher.m_vMoves, (CMoves{{place, place - QPoint(0, 5)},
                                        {place - QPoint(0, 5), place - QPoint(0, 9)}}));
    panel.m_view.ResizeInspector(310, 400);
    EXPECT_EQ(watcher.m_vSizes, std::vector<QSize>{control.size()});
}

TEST(ControlPlacement, AControlOutOfSightIsPlacedAndToldWhenItComesIntoSight)
{
    CPlainPanel panel;
    panel.Show();
    QWidget& control = *panel.m_vFields[50];
    const QPoint place = control.pos();
    const int width = control.width();
    ASSERT_GT(place.y(), 500);
    CWatcher watcher(control);
    panel.ScrollTo(40);
    panel.m_view.ResizeInspector(310, 400);
    EXPECT_EQ(control.pos(), place - QPoint(0, 40));
    EXPECT_EQ(control.width(), width + 10);
    EXPECT_TRUE(control.isVisible());
    EXPECT_TRUE(watcher.m_vMoves.empty());
    EXPECT_TRUE(watcher.m_vSizes.empty());
    panel.ScrollTo(place.y() - 100);
    EXPECT_EQ(watcher.m_vMoves.back().second, QPoint(place.x(), 100));
    EXPECT_EQ(watcher.m_vSizes, std::vector<QSize>{control.size()});
}

TEST(ControlPlacement, AControlIsToldWhenThePanelGrowsDownToIt)
{
    CPlainPanel panel;
    panel.Show();
    QWidget& control = *panel.m_vFields[20];
    ASSERT_GT(control.y(), 400);
    CWatcher watcher(control);
    panel.m_view.ResizeInspector(310, 400);
    ASSERT_TRUE(watcher.m_vSizes.empty());
    panel.m_view.ResizeInspector(310, 800);
    EXPECT_EQ(watcher.m_vSizes, std::vector<QSize>{control.size()});
}

TEST(ControlPlacement, AControlOfAHostIsToldOfEveryMoveAlsoOutOfSight)
{
    CPlainPanel panel;
    auto* control = new CPlaceField;
    panel.Add(new CSimpleDataElement, control, "place");
    panel.Show();
    ASSERT_GT(control->y(), 500);
    CWatcher watcher(*control);
    panel.ScrollTo(5);
    panel.ScrollTo(9);
    EXPECT_EQ(watcher.m_vMoves.size(), 2U);
}

TEST(ControlPlacement, AScrollStepShowsARowThatWasNotLaidOutYet)
{
    CPlainPanel panel;
    panel.Show();
    panel.ScrollTo(50);
    panel.Add(new CBoolDataElement, new CQTSimpleBoolWidget, "new")->SetValue(true);
    panel.Settle();
    panel.ScrollTo(60);
    panel.ExpectThatTheScreenIsRight();
}

TEST(ControlPlacement, AScrollStepLeavesWhatIsNoControlInPlace)
{
    CPlainPanel panel;
    QWidget child(panel.m_vFields[0]->parentWidget());
    child.setGeometry(50, 60, 70, 80);
    child.setAutoFillBackground(true);
    child.setPalette(QPalette(Qt::blue));
    ExpectThatScrollingShowsWhatARepaintShows(panel);
}

TEST(ControlPlacement, AScrollStepInAScenesItemShowsWhatARepaintShows)
{
    QGraphicsScene scene;
    QGraphicsView window(&scene);
    window.resize(400, 500);
    CPlainPanel panel;
    panel.m_controller.ConnectDataElements();
    panel.m_view.ResizeInspector(300, 400);
    scene.addWidget(&panel.m_view);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (const int value : {0, 25, 31, 300, 290, 0})
    {
        SCOPED_TRACE("scrolled to " + std::to_string(value));
        panel.ScrollTo(value);
        const QImage screen = window.screen()->grabWindow(window.winId()).toImage();
        images::ExpectSame(screen.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                           images::Render(window));
    }
}
