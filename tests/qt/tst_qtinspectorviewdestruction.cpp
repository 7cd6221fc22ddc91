#include "testpanel.h"

#include <simpledataelement.h>

#include <QPointer>

#include <gtest/gtest.h>

#include <memory>

namespace
{

/// A panel whose view dies before its controller.
struct sMortalPanel
{
    sMortalPanel()
    {
        m_controller.SetInspectorView(m_pView.get());
        m_pView->SetController(&m_controller);
    }

    CCallLog m_log;
    CRecordingController m_controller{m_log};
    std::unique_ptr<CTestView> m_pView = std::make_unique<CTestView>(m_log);
};

} // namespace

TEST(QtInspectorViewDestruction, DestroysTheContentAndThenTheScrollBar)
{
    CCallLog log;
    auto view = std::make_unique<CTestView>(log);
    QWidget*& content = view->m_pContent;
    QScrollBar*& scrollBar = view->m_pScrollBar;
    QObject::connect(content, &QObject::destroyed, content,
                     [&]
                     {
                         log.Add("content", "~");
                         EXPECT_NE(scrollBar, nullptr);
                     });
    QObject::connect(scrollBar, &QObject::destroyed, scrollBar,
                     [&]
                     {
                         log.Add("scrollBar", "~");
                         EXPECT_EQ(content, nullptr);
                     });
    view.reset();
    EXPECT_EQ(log.Take(), (CCalls{"content.~()", "scrollBar.~()"}));
}

TEST(QtInspectorViewDestruction, TakesControlsAlongThatNobodyOwns)
{
    sMortalPanel panel;
    const QPointer<CTestControl> control = new CTestControl(panel.m_log, "control");
    panel.m_pView->AddElement(nullptr, control, "row", nullptr, nullptr);
    panel.m_log.Clear();
    panel.m_pView.reset();
    EXPECT_TRUE(control.isNull());
    EXPECT_EQ(panel.m_log.Take(), CCalls{"control.~()"});
}

TEST(QtInspectorViewDestruction, TakesChildrenAlongThatAHostPutIntoTheContent)
{
    sMortalPanel panel;
    const QPointer<QWidget> decoration = new QWidget(panel.m_pView->m_pContent);
    panel.m_pView.reset();
    EXPECT_TRUE(decoration.isNull());
}

TEST(QtInspectorViewDestruction, LeavesRowsToTheirController)
{
    sMortalPanel panel;
    const QPointer<CTestControl> control = new CTestControl(panel.m_log, "control");
    auto* element = new CSimpleDataElement;
    panel.m_controller.AddItem(element, control, nullptr);
    panel.m_pView->AddElement(element, control, "row", nullptr, nullptr);
    panel.m_pView->ResizeInspector(300, 100);
    panel.m_log.Clear();
    panel.m_pView.reset();
    ASSERT_FALSE(control.isNull());
    EXPECT_EQ(control->parentWidget(), nullptr);
    EXPECT_FALSE(control->isVisible());
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
    panel.m_controller.ClearAllData();
    EXPECT_TRUE(control.isNull());
}

TEST(QtInspectorViewDestruction, LeavesRowsToTheirControllerThoughTheTreeIsEmpty)
{
    sMortalPanel panel;
    const QPointer<CTestControl> control = new CTestControl(panel.m_log, "control");
    auto* element = new CSimpleDataElement;
    panel.m_controller.AddItem(element, control, nullptr);
    panel.m_pView->AddElement(element, control, "row", nullptr, nullptr);
    panel.m_pView->RemoveAll();
    panel.m_pView.reset();
    ASSERT_FALSE(control.isNull());
    EXPECT_EQ(control->parentWidget(), nullptr);
    panel.m_controller.ClearAllData();
    EXPECT_TRUE(control.isNull());
}

TEST(QtInspectorViewDestruction, LeavesAControlWhereTheHostMovedIt)
{
    sMortalPanel panel;
    QWidget elsewhere;
    auto* control = new CTestControl(panel.m_log, "control");
    auto* element = new CSimpleDataElement;
    panel.m_controller.AddItem(element, control, nullptr);
    panel.m_pView->AddElement(element, control, "row", nullptr, nullptr);
    control->setParent(&elsewhere);
    panel.m_pView.reset();
    EXPECT_EQ(control->parentWidget(), &elsewhere);
}

TEST(QtInspectorViewDestruction, DiesWithTheWindowThatItIsIn)
{
    sMortalPanel panel;
    QWidget window;
    CTestView* view = panel.m_pView.release();
    view->setParent(&window);
    const QPointer<CTestControl> owned = new CTestControl(panel.m_log, "owned");
    const QPointer<CTestControl> placed = new CTestControl(panel.m_log, "placed");
    auto* element = new CSimpleDataElement;
    panel.m_controller.AddItem(element, owned, nullptr);
    view->AddElement(element, owned, "row", nullptr, nullptr);
    view->AddElement(nullptr, placed, "row", nullptr, nullptr);
    delete view;
    EXPECT_FALSE(owned.isNull());
    EXPECT_TRUE(placed.isNull());
}

TEST(QtInspectorViewDestruction, MayComeAfterThatOfTheController)
{
    CCallLog log;
    auto controller = std::make_unique<CRecordingController>(log);
    CTestView view(log);
    controller->SetInspectorView(&view);
    view.SetController(controller.get());
    const QPointer<CTestControl> control = new CTestControl(log, "control");
    auto* element = new CSimpleDataElement;
    controller->AddItem(element, control, nullptr);
    view.AddElement(element, control, "row", nullptr, nullptr);
    view.ResizeInspector(300, 100);
    controller.reset();
    EXPECT_TRUE(control.isNull());
    EXPECT_TRUE(view.m_lElements.empty());
    view.grab();
    EXPECT_EQ(log.Containing("view.painted").size(), 1U);
}
