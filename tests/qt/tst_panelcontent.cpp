#include <inspectorcontroller.h>
#include <qtinspectorview.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>
#include <simpledataelement.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPalette>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

#include <climits>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// A control counts as shown from the start, wherever it is. The toolkit goes about showing it when
// it comes into sight.

namespace
{

class CController : public CInspectorController
{
public:
    void BuildInspector() override {}
    void RefreshInspector() override {}
    void HandleDirtyItem(sInspectorControllerData*, IDirtyControllerDataInfo*) override {}
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override {}
};

/// A control of a host, which may want to know when it is shown.
class CHostField : public CQTSimpleDataWidget
{
public:
    std::function<void()> m_onShow;

protected:
    void showEvent(QShowEvent* event) override
    {
        CQTSimpleDataWidget::showEvent(event);
        if (const auto onShow = std::exchange(m_onShow, nullptr))
            onShow();
    }
};

/// Writes down the events of a control that have to do with its showing.
class CShowLog : public QObject
{
public:
    explicit CShowLog(QWidget& control) { control.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            m_sEvents += "show ";
        if (event->type() == QEvent::Hide)
            m_sEvents += "hide ";
        if (event->type() == QEvent::Move)
            m_sEvents += "move ";
        if (event->type() == QEvent::Resize)
            m_sEvents += "resize ";
        if (event->type() == QEvent::Paint)
            m_sEvents += "paint ";
        return false;
    }

    std::string Take() { return std::exchange(m_sEvents, std::string()); }

private:
    std::string m_sEvents;
};

/// A panel of 300 x 200 pixels. Rows are 25 pixels apart from y = 5 on.
class CPanel
{
public:
    CPanel()
    {
        m_controller.SetInspectorView(&m_view);
        m_view.SetController(&m_controller);
    }

    template <typename Widget = CQTSimpleDataWidget>
    Widget* Add()
    {
        auto* widget = new Widget;
        Place(widget);
        return widget;
    }

    void Place(CInspectorDataWidget* widget)
    {
        auto* element = new CSimpleDataElement;
        element->SetStrCurrentValue("value");
        m_controller.AddItem(element, widget, nullptr);
        m_view.AddElement(element, widget, "row", nullptr, nullptr);
    }

    std::vector<CQTSimpleDataWidget*> AddRows(int count)
    {
        std::vector<CQTSimpleDataWidget*> rows;
        for (int i = 0; i < count; ++i)
            rows.push_back(Add());
        return rows;
    }

    void LayOut() { m_view.ResizeInspector(300, 200); }

    void Show()
    {
        m_view.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_view));
        Settle();
    }

    static void Settle()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    void ScrollTo(int value)
    {
        m_view.findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly)->setValue(value);
    }

    CQTInspectorView m_view;
    CController m_controller;
};

TEST(PanelContent, ControlsOutOfSightCountAsShown)
{
    CPanel panel;
    const auto rows = panel.AddRows(20);
    EXPECT_FALSE(rows.back()->isHidden());
    EXPECT_FALSE(rows.back()->isVisible());
    EXPECT_TRUE(rows.back()->isVisibleTo(&panel.m_view));
    panel.LayOut();
    EXPECT_FALSE(rows.back()->isHidden());
    CShowLog log(*rows.back());
    panel.Show();
    EXPECT_FALSE(rows.back()->isHidden());
    EXPECT_TRUE(rows.back()->isVisible());
    panel.m_view.hide();
    EXPECT_FALSE(rows.back()->isHidden());
    EXPECT_FALSE(rows.back()->isVisible());
    panel.m_view.show();
    EXPECT_FALSE(rows.back()->isHidden());
    EXPECT_TRUE(rows.back()->isVisible());
    EXPECT_EQ(log.Take(), "hide ");
}

TEST(PanelContent, ShowsWhatIsInSightWithThePanel)
{
    CPanel panel;
    const auto rows = panel.AddRows(20);
    panel.LayOut();
    // The row at 180 is cut by the lower edge, the one at 205 is below it.
    CShowLog first(*rows[0]);
    CShowLog last(*rows[7]);
    CShowLog below(*rows[8]);
    panel.Show();
    EXPECT_EQ(first.Take().substr(0, 17), "move resize show ");
    EXPECT_EQ(last.Take().substr(0, 17), "move resize show ");
    EXPECT_EQ(below.Take(), "");
}

TEST(PanelContent, ShowsAControlThatIsScrolledIntoSightAndPaintsItOnce)
{
    CPanel panel;
    const auto rows = panel.AddRows(20);
    panel.LayOut();
    panel.Show();
    CShowLog log(*rows[8]);
    panel.ScrollTo(4);
    panel.Settle();
    EXPECT_EQ(log.Take(), "");
    panel.ScrollTo(6);
    EXPECT_EQ(log.Take(), "move resize show ");
    panel.Settle();
    EXPECT_EQ(log.Take(), "paint ");
    // From then on it is a control like any other.
    panel.ScrollTo(0);
    EXPECT_EQ(log.Take(), "move ");
    panel.ScrollTo(6);
    EXPECT_EQ(log.Take(), "move ");
}

TEST(PanelContent, ShowsAControlThatThePanelGrowsDownTo)
{
    CPanel panel;
    const auto rows = panel.AddRows(20);
    panel.LayOut();
    panel.Show();
    CShowLog log(*rows[8]);
    panel.m_view.ResizeInspector(300, 205);
    EXPECT_EQ(log.Take(), "");
    panel.m_view.ResizeInspector(300, 206);
    EXPECT_EQ(log.Take(), "move resize show ");
}

TEST(PanelContent, ShowsOnlyWhatIsInSightHoweverManyRowsThereAre)
{
    for (int count : {50, 500})
    {
        CPanel panel;
        int shown = 0;
        std::vector<std::unique_ptr<CShowLog>> logs;
        for (CQTSimpleDataWidget* row : panel.AddRows(count))
            logs.push_back(std::make_unique<CShowLog>(*row));
        panel.LayOut();
        panel.Show();
        for (const auto& log : logs)
            shown += log->Take().find("show ") != std::string::npos;
        EXPECT_EQ(shown, 8) << count;
    }
}

TEST(PanelContent, ShowsControlsAddedToAShownPanelAtTheirPlaces)
{
    CPanel panel;
    panel.LayOut();
    panel.Show();
    const auto rows = panel.AddRows(20);
    CShowLog first(*rows.front());
    CShowLog last(*rows.back());
    EXPECT_TRUE(rows.front()->isVisible());
    EXPECT_TRUE(rows.back()->isVisible());
    panel.m_view.RecomputeLayout();
    EXPECT_EQ(first.Take(), "move resize show ");
    panel.Settle();
    EXPECT_EQ(first.Take(), "paint ");
    EXPECT_EQ(last.Take(), "");
}

TEST(PanelContent, ShowsAControlThatIsNotLaidOutWhenThePanelIsPainted)
{
    CPanel panel;
    panel.LayOut();
    panel.Show();
    auto* row = panel.Add();
    CShowLog log(*row);
    panel.Settle();
    EXPECT_EQ(log.Take().substr(0, 23), "move resize show paint ");
    EXPECT_TRUE(row->testAttribute(Qt::WA_WState_ExplicitShowHide));
}

TEST(PanelContent, AWaitingControlMayBeMovedFromEndToEnd)
{
    CPanel panel;
    auto* row = panel.Add();
    row->MoveWidget(INT_MIN, INT_MIN);
    EXPECT_EQ(row->pos(), QPoint(-(1 << 30), -(1 << 30)));
    row->MoveWidget(INT_MAX, INT_MAX);
    EXPECT_EQ(row->pos(), QPoint(1 << 30, 1 << 30));
    EXPECT_EQ(row->size(), QSize(640, 480));
    row->ResizeWidget(INT_MAX, INT_MIN);
    EXPECT_EQ(row->size(), QSize(QWIDGETSIZE_MAX, 0));
}

TEST(PanelContent, ShowsControlsOfDerivedClassesAtOnce)
{
    CPanel panel;
    panel.AddRows(20);
    auto* row = panel.Add<CHostField>();
    CShowLog log(*row);
    panel.LayOut();
    panel.Show();
    EXPECT_NE(log.Take().find("show "), std::string::npos);
}

TEST(PanelContent, ShowsTextBoxesAtOnce)
{
    CPanel panel;
    panel.AddRows(20);
    auto* box = panel.Add<CQTSimpleTextWidget>();
    CShowLog log(*box);
    panel.LayOut();
    panel.Show();
    EXPECT_NE(log.Take().find("show "), std::string::npos);
}

TEST(PanelContent, ShowsControlsWithChildrenAtOnce)
{
    CPanel panel;
    panel.AddRows(20);
    auto* row = new CQTSimpleDataWidget;
    auto* mark = new QWidget(row);
    panel.Place(row);
    CShowLog log(*mark);
    panel.LayOut();
    panel.Show();
    EXPECT_TRUE(mark->isVisible());
    EXPECT_NE(log.Take().find("show "), std::string::npos);
}

TEST(PanelContent, AWaitingControlThatGotAWindowMovesIt)
{
    CPanel panel;
    const auto rows = panel.AddRows(20);
    panel.LayOut();
    panel.Show();
    rows[8]->winId();
    const QWindow* window = rows[8]->windowHandle();
    ASSERT_TRUE(window);
    const QPoint before = rows[8]->pos();
    panel.m_view.SetPreviewMode(true);
    panel.m_view.RecomputeLayout();
    EXPECT_NE(rows[8]->pos(), before);
    EXPECT_EQ(window->geometry(), rows[8]->geometry());
    EXPECT_TRUE(window->isVisible());
}

TEST(PanelContent, PaintsWhatItShowsAlsoWhenLittleOfThePanelIsPainted)
{
    // A view of a host that asks for its repaints itself.
    class CQuietView : public CQTInspectorView
    {
    public:
        void UpdateView() override {}
    };
    CController controller;
    CQuietView view;
    controller.SetInspectorView(&view);
    view.SetController(&controller);
    view.ResizeInspector(300, 200);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    CPanel::Settle();
    auto* row = new CQTSimpleDataWidget;
    CSimpleDataElement element;
    element.SetDataControl(row, &controller);
    view.AddElement(&element, row, "row", nullptr, nullptr);
    CShowLog log(*row);
    CPanel::Settle();
    EXPECT_EQ(log.Take(), "");
    view.update(290, 190, 5, 5);
    CPanel::Settle();
    EXPECT_EQ(log.Take(), "move resize show paint ");
}

TEST(PanelContent, APictureOfAPanelThatIsNotShownShowsNoControl)
{
    CPanel panel;
    auto* row = panel.AddRows(20).front();
    panel.LayOut();
    CShowLog log(*row);
    panel.m_view.grab();
    EXPECT_EQ(log.Take().find("show "), std::string::npos);
    EXPECT_FALSE(row->isVisible());
    panel.Show();
    EXPECT_EQ(log.Take().substr(0, 11), "show paint ");
}

TEST(PanelContent, AStyleSheetReachesAWaitingControlWhenItIsShown)
{
    CPanel panel;
    panel.m_view.setStyleSheet(QStringLiteral("QWidget { color: rgb(1, 2, 3); }"));
    const auto rows = panel.AddRows(20);
    EXPECT_EQ(rows.back()->palette().color(QPalette::WindowText), QColor(1, 2, 3));
}

TEST(PanelContent, AHostMayHideAndShowAWaitingControl)
{
    CPanel panel;
    const auto rows = panel.AddRows(20);
    panel.LayOut();
    panel.Show();
    CShowLog log(*rows.back());
    rows.back()->Hide();
    EXPECT_TRUE(rows.back()->isHidden());
    EXPECT_FALSE(rows.back()->isVisible());
    panel.m_view.hide();
    panel.m_view.show();
    EXPECT_TRUE(rows.back()->isHidden());
    log.Take();
    rows.back()->Show();
    EXPECT_TRUE(rows.back()->isVisible());
    EXPECT_EQ(log.Take(), "move resize show ");
}

TEST(PanelContent, AHiddenControlStaysHiddenWhenThePanelIsShown)
{
    CPanel panel;
    const auto rows = panel.AddRows(20);
    rows.back()->Hide();
    panel.LayOut();
    panel.Show();
    EXPECT_TRUE(rows.back()->isHidden());
    EXPECT_FALSE(rows.back()->isVisible());
}

TEST(PanelContent, AWaitingControlThatLeavesThePanelIsAPlainWidgetAgain)
{
    CPanel panel;
    const auto rows = panel.AddRows(20);
    panel.LayOut();
    panel.Show();
    QWidget elsewhere;
    rows.back()->setParent(&elsewhere);
    EXPECT_FALSE(rows.back()->isHidden());
    EXPECT_FALSE(rows.back()->isVisible());
    CShowLog log(*rows.back());
    elsewhere.show();
    EXPECT_TRUE(rows.back()->isVisible());
    EXPECT_NE(log.Take().find("show "), std::string::npos);
}

TEST(PanelContent, RowsMayBeRemovedWhileThePanelIsShown)
{
    CPanel panel;
    const auto rows = panel.AddRows(20);
    auto* host = panel.Add<CHostField>();
    panel.LayOut();
    CQTSimpleDataWidget* added = nullptr;
    host->m_onShow = [&]
    {
        added = panel.Add();
        delete rows[15];
    };
    panel.Show();
    EXPECT_TRUE(rows[14]->isVisible());
    EXPECT_TRUE(rows[16]->isVisible());
    ASSERT_TRUE(added);
    EXPECT_TRUE(added->isVisible());
}

TEST(PanelContent, APanelInsideOfAnotherWidgetShowsItsControls)
{
    QWidget window;
    CPanel panel;
    const auto rows = panel.AddRows(20);
    panel.LayOut();
    panel.m_view.setParent(&window);
    CShowLog first(*rows.front());
    CShowLog last(*rows.back());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    EXPECT_TRUE(rows.front()->isVisible());
    EXPECT_TRUE(rows.back()->isVisible());
    EXPECT_NE(first.Take().find("show "), std::string::npos);
    EXPECT_EQ(last.Take(), "");
    panel.m_view.setParent(nullptr);
    EXPECT_FALSE(rows.back()->isVisible());
    EXPECT_FALSE(rows.back()->isHidden());
}

TEST(PanelContent, KeepsItsSizeWhenItIsShownBeforeItIsLaidOut)
{
    CPanel panel;
    panel.Add<CHostField>();
    panel.AddRows(1);
    const QWidget* content =
        panel.m_view.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    const QRect before = content->geometry();
    panel.Show();
    EXPECT_EQ(content->geometry(), before);
}

TEST(PanelContent, IsNotShownTwice)
{
    CPanel panel;
    panel.AddRows(20);
    panel.LayOut();
    panel.Show();
    auto* content = panel.m_view.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    CShowLog log(*content);
    content->show();
    EXPECT_EQ(log.Take(), "");
}

TEST(PanelContent, AnotherChildOfTheContentIsShownAsUsual)
{
    CPanel panel;
    panel.AddRows(20);
    panel.LayOut();
    auto* mark =
        new QWidget(panel.m_view.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    mark->setGeometry(0, 5000, 10, 10);
    CShowLog log(*mark);
    panel.Show();
    EXPECT_EQ(log.Take(), "move resize show ");
    EXPECT_TRUE(mark->isVisible());
}

} // namespace
