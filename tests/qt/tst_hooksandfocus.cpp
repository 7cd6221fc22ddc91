// What a host does in a hook while the toolkit moves the focus or an editor comes up.

#include <inspector/qt/inplaceedit.h>
#include <inspector/qt/inplacelist.h>

#include <qt/logginghost.h>
#include <support/recordingcontroller.h>
#include <support/recordingwidget.h>

#include <enumdataelement.h>
#include <qtenumdatawidget.h>
#include <qtinspectorview.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>
#include <simpledataelement.h>

#include <QApplication>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace
{

class HooksAndFocus : public testing::Test
{
protected:
    using CElement = TRecordingElement<CSimpleDataElement>;
    using CChoiceElement = TRecordingElement<CEnumDataElement>;

    template <typename Element, typename Widget>
    struct sRow
    {
        Element* m_pElement;
        QPointer<Widget> m_pWidget;
    };

    HooksAndFocus()
    {
        m_controller.SetInspectorView(&m_view);
        m_view.SetController(&m_controller);
        m_view.ResizeInspector(300, 400);
        m_view.show();
        QApplication::setActiveWindow(&m_view);
    }

    ~HooksAndFocus() override { m_controller.ClearAllData(); }

    template <typename Element, typename Widget>
    sRow<Element, Widget> AddRow(const char* name)
    {
        sRow<Element, Widget> row{new Element(m_log, name), new Widget};
        m_controller.AddItem(row.m_pElement, row.m_pWidget, nullptr);
        m_view.AddElement(row.m_pElement, row.m_pWidget, name, nullptr, nullptr);
        m_view.RecomputeLayout();
        return row;
    }

    auto AddField(const char* name) { return AddRow<CElement, CQTSimpleDataWidget>(name); }
    auto AddBox(const char* name) { return AddRow<CElement, CQTSimpleTextWidget>(name); }
    auto AddChoice(const char* name)
    {
        auto row = AddRow<CChoiceElement, CQTEnumDataWidget>(name);
        row.m_pElement->CreateEnum();
        row.m_pElement->AddEnum("v", "label");
        return row;
    }

    static void Press(QWidget* widget)
    {
        QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    }

    static void FinishDeletions()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::size_t Ends(const char* name) const
    {
        return m_log.Count(std::string(name) + ".OnEndEditing");
    }

    CCallLog m_log;
    CQTInspectorView m_view;
    CRecordingController m_controller{m_log};
};

} // namespace

TEST_F(HooksAndFocus, ABoxThatIsRemovedOnItsWayToTheFocusIsDeletedAfterwards)
{
    const auto left = AddBox("left");
    const auto next = AddBox("next");
    left.m_pWidget->setFocus();
    ASSERT_TRUE(left.m_pWidget->hasFocus());
    left.m_pWidget->setPlainText(QStringLiteral("typed"));
    left.m_pElement->m_fnInternalValueChanged = [&] { m_controller.RemoveItem(next.m_pElement); };
    QWidget* receiver = next.m_pWidget;
    receiver->setFocus();
    EXPECT_EQ(m_log.Count("left.InternalValueChanged"), 1u);
    EXPECT_EQ(m_controller.m_lItems.size(), 1u);
    EXPECT_TRUE(next.m_pWidget.isNull() || next.m_pWidget->isHidden());
    FinishDeletions();
    EXPECT_TRUE(next.m_pWidget.isNull());
}

TEST_F(HooksAndFocus, ABoxThatRemovesItselfWhenItIsLeftIsDeletedAfterwards)
{
    const auto box = AddBox("box");
    box.m_pWidget->setFocus();
    box.m_pWidget->setPlainText(QStringLiteral("typed"));
    box.m_pElement->m_fnInternalValueChanged = [&] { m_controller.ClearAllData(); };
    QWidget* receiver = box.m_pWidget;
    receiver->clearFocus();
    EXPECT_EQ(m_log.Count("box.InternalValueChanged"), 1u);
    EXPECT_TRUE(m_controller.m_lItems.empty());
    FinishDeletions();
    EXPECT_TRUE(box.m_pWidget.isNull());
}

TEST_F(HooksAndFocus, ABoxThatTheHostTurnsTheFocusAwayFromIsDeletedAfterwards)
{
    const auto left = AddBox("left");
    const auto next = AddBox("next");
    const auto third = AddBox("third");
    left.m_pWidget->setFocus();
    left.m_pWidget->setPlainText(QStringLiteral("typed"));
    left.m_pElement->m_fnInternalValueChanged = [&]
    {
        third.m_pWidget->setFocus();
        m_controller.RemoveItem(next.m_pElement);
    };
    QWidget* receiver = next.m_pWidget;
    receiver->setFocus();
    EXPECT_EQ(m_log.Count("left.InternalValueChanged"), 1u);
    EXPECT_TRUE(third.m_pWidget->hasFocus());
    ASSERT_FALSE(next.m_pWidget.isNull());
    EXPECT_TRUE(next.m_pWidget->isHidden());
    FinishDeletions();
    EXPECT_TRUE(next.m_pWidget.isNull());
}

TEST_F(HooksAndFocus, ABoxThatIsRemovedAsItGetsTheFocusTellsNobodyWhenItLosesIt)
{
    const auto left = AddBox("left");
    const auto next = AddBox("next");
    const auto third = AddBox("third");
    left.m_pWidget->setFocus();
    left.m_pWidget->setPlainText(QStringLiteral("typed"));
    left.m_pElement->m_fnInternalValueChanged = [&]
    {
        next.m_pWidget->setPlainText(QStringLiteral("typed, too"));
        m_controller.RemoveItem(next.m_pElement);
        third.m_pWidget->setFocus();
    };
    QWidget* receiver = next.m_pWidget;
    receiver->setFocus();
    EXPECT_TRUE(third.m_pWidget->hasFocus());
    EXPECT_EQ(m_log.Count("next.InternalValueChanged"), 0u);
}

TEST_F(HooksAndFocus, AControlOfAnotherKindIsDeletedAtOnceWhileTheFocusMoves)
{
    const auto left = AddBox("left");
    const auto next = AddBox("next");
    auto* element = new CElement(m_log, "other");
    m_controller.AddItem(element, new CRecordingWidget(m_log, "control"), nullptr);
    left.m_pWidget->setFocus();
    left.m_pWidget->setPlainText(QStringLiteral("typed"));
    left.m_pElement->m_fnInternalValueChanged = [&]
    {
        m_controller.RemoveItem(element);
        EXPECT_EQ(m_log.Count("control.~()"), 1u);
    };
    next.m_pWidget->setFocus();
    EXPECT_EQ(m_log.Count("control.~()"), 1u);
}

TEST_F(HooksAndFocus, AnEditorThatComesUpGivesWayToWhatItsComingUpBringsAbout)
{
    const auto box = AddBox("box");
    const auto first = AddField("first");
    const auto second = AddField("second");
    first.m_pWidget->StartEditing();
    QWidget* editor = CQTSimpleDataWidget::g_pInPlace;
    ASSERT_TRUE(QTest::qWaitForWindowActive(editor));
    // Closed, the window still has the keyboard as far as the platform can tell.
    QTest::keyClick(editor, Qt::Key_Escape);
    QApplication::setActiveWindow(&m_view);
    box.m_pWidget->setFocus();
    box.m_pWidget->setPlainText(QStringLiteral("typed"));
    box.m_pElement->m_fnInternalValueChanged = [&] { second.m_pWidget->StartEditing(); };
    first.m_pWidget->StartEditing();
    EXPECT_EQ(m_log.Count("box.InternalValueChanged"), 1u);
    const QPoint place = second.m_pWidget->mapToGlobal(QPoint(0, 0));
    EXPECT_EQ(editor->geometry().topLeft(), place);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_EQ(Ends("first"), 1u);
    EXPECT_EQ(Ends("second"), 1u);
}

TEST_F(HooksAndFocus, AListThatComesUpGivesWayToWhatItsComingUpBringsAbout)
{
    const auto box = AddBox("box");
    const auto first = AddChoice("first");
    const auto second = AddChoice("second");
    Press(first.m_pWidget);
    QWidget* list = CQTEnumDataWidget::g_pInPlaceList.get();
    ASSERT_TRUE(QTest::qWaitForWindowActive(list));
    QTest::keyClick(list, Qt::Key_Escape);
    QApplication::setActiveWindow(&m_view);
    box.m_pWidget->setFocus();
    box.m_pWidget->setPlainText(QStringLiteral("typed"));
    box.m_pElement->m_fnInternalValueChanged = [&] { Press(second.m_pWidget); };
    Press(first.m_pWidget);
    EXPECT_EQ(m_log.Count("box.InternalValueChanged"), 1u);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(Ends("first"), 1u);
    EXPECT_EQ(Ends("second"), 1u);
}

TEST_F(HooksAndFocus, ABoxOnItsWayToTheFocusOutlivesAnEventLoopOfTheHost)
{
    const auto left = AddBox("left");
    const auto next = AddBox("next");
    left.m_pWidget->setFocus();
    left.m_pWidget->setPlainText(QStringLiteral("typed"));
    bool isAlive = false;
    left.m_pElement->m_fnInternalValueChanged = [&]
    {
        m_controller.RemoveItem(next.m_pElement);
        // What was put off inside of an event is due in the loop around it.
        FinishDeletions();
        isAlive = !next.m_pWidget.isNull();
    };
    QWidget* receiver = next.m_pWidget;
    receiver->setFocus();
    EXPECT_TRUE(isAlive);
    FinishDeletions();
    EXPECT_TRUE(next.m_pWidget.isNull());
}

TEST_F(HooksAndFocus, AnEditorThatIsDueForDeletionOutlivesAnEventLoopInAMoveOfTheFocus)
{
    const auto box = AddBox("box");
    const auto field = AddField("field");
    field.m_pWidget->StartEditing();
    const QPointer<QWidget> editor = CQTSimpleDataWidget::g_pInPlace;
    ASSERT_TRUE(QTest::qWaitForWindowActive(editor));
    m_controller.RemoveItem(field.m_pElement);
    ASSERT_FALSE(editor.isNull());
    QApplication::setActiveWindow(&m_view);
    box.m_pWidget->setFocus();
    box.m_pWidget->setPlainText(QStringLiteral("typed"));
    bool isAlive = false;
    box.m_pElement->m_fnInternalValueChanged = [&]
    {
        FinishDeletions();
        isAlive = !editor.isNull();
    };
    box.m_pWidget->clearFocus();
    EXPECT_EQ(m_log.Count("box.InternalValueChanged"), 1u);
    EXPECT_TRUE(isAlive);
    EXPECT_TRUE(QTest::qWaitFor([&editor] { return editor.isNull(); }));
}

TEST_F(HooksAndFocus, ABoxThatIsLeftAsItsViewDiesMayClearAllRows)
{
    auto view = std::make_unique<CQTInspectorView>();
    CRecordingController other(m_log);
    other.SetInspectorView(view.get());
    view->SetController(&other);
    auto* element = new CElement(m_log, "box");
    const QPointer<CQTSimpleTextWidget> box = new CQTSimpleTextWidget;
    other.AddItem(element, box, nullptr);
    view->AddElement(element, box, "box", nullptr, nullptr);
    auto* neighbour = new CElement(m_log, "neighbour");
    const QPointer<CQTSimpleDataWidget> field = new CQTSimpleDataWidget;
    other.AddItem(neighbour, field, nullptr);
    view->AddElement(neighbour, field, "neighbour", nullptr, nullptr);
    view->ResizeInspector(300, 400);
    view->show();
    QApplication::setActiveWindow(view.get());
    box->setFocus();
    ASSERT_TRUE(box->hasFocus());
    box->setPlainText(QStringLiteral("typed"));
    element->m_fnInternalValueChanged = [&] { other.ClearAllData(); };
    view.reset();
    EXPECT_EQ(m_log.Count("box.InternalValueChanged"), 1u);
    EXPECT_TRUE(other.m_lItems.empty());
    FinishDeletions();
    EXPECT_TRUE(box.isNull());
    EXPECT_TRUE(field.isNull());
}

TEST_F(HooksAndFocus, AnEditorThatHasTheKeyboardIsDeletedAfterItsLastField)
{
    const auto field = AddField("field");
    field.m_pWidget->StartEditing();
    const QPointer<QWidget> editor = CQTSimpleDataWidget::g_pInPlace;
    ASSERT_TRUE(QTest::qWaitForWindowActive(editor));
    m_controller.ClearAllData();
    EXPECT_EQ(CQTSimpleDataWidget::g_pInPlace, nullptr);
    ASSERT_FALSE(editor.isNull());
    EXPECT_FALSE(editor->isVisible());
    FinishDeletions();
    EXPECT_TRUE(editor.isNull());
}

TEST_F(HooksAndFocus, AListThatTheKeyboardIsTakenFromOutlivesTheEndOfTheOtherEdit)
{
    const auto field = AddField("field");
    const auto choice = AddChoice("choice");
    Press(choice.m_pWidget);
    const QPointer<QWidget> list = CQTEnumDataWidget::g_pInPlaceList.get();
    ASSERT_TRUE(QTest::qWaitForWindowActive(list));
    // The window gets the keyboard from the list while the toolkit takes the editor to have it.
    m_view.activateWindow();
    field.m_pWidget->StartEditing();
    QApplication::setActiveWindow(CQTSimpleDataWidget::g_pInPlace);
    field.m_pElement->m_fnOnEndEditing = [this] { m_controller.ClearAllData(); };
    QCoreApplication::processEvents();
    // Qt 5 asks no platform to activate what it takes to be active.
    QApplication::setActiveWindow(&m_view);
    EXPECT_EQ(Ends("field"), 1u);
    EXPECT_TRUE(m_controller.m_lItems.empty());
    FinishDeletions();
    EXPECT_TRUE(list.isNull());
}

TEST_F(HooksAndFocus, AChoiceThatIsRemovedAsItIsPressedOpensNothing)
{
    const auto open = AddChoice("open");
    const auto pressed = AddChoice("pressed");
    Press(open.m_pWidget);
    open.m_pElement->m_fnOnEndEditing = [&] { m_controller.RemoveItem(pressed.m_pElement); };
    QWidget* widget = pressed.m_pWidget;
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(3, 3), QPointF(3, 3), QPointF(3, 3),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    EXPECT_EQ(Ends("open"), 1u);
    EXPECT_TRUE(pressed.m_pWidget.isNull());
    EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList->isHidden());
}

TEST_F(HooksAndFocus, AChoiceThatLosesItsEntriesAsItIsPressedOpensNothing)
{
    const auto open = AddChoice("open");
    const auto pressed = AddChoice("pressed");
    Press(open.m_pWidget);
    open.m_pElement->m_fnOnEndEditing = [&] { pressed.m_pElement->SetExternalEnum(nullptr); };
    Press(pressed.m_pWidget);
    EXPECT_EQ(Ends("open"), 1u);
    EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList->isHidden());
}

TEST_F(HooksAndFocus, AWindowThatTheHostOpensAtTheEndOfAnEditKeepsTheKeyboard)
{
    const auto field = AddField("field");
    field.m_pWidget->StartEditing();
    QWidget* editor = CQTSimpleDataWidget::g_pInPlace;
    ASSERT_TRUE(QTest::qWaitForWindowActive(editor));
    QWidget dialog;
    field.m_pElement->m_fnOnEndEditing = [&dialog]
    {
        dialog.show();
        dialog.activateWindow();
    };
    QTest::keyClick(editor, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::qWait(50);
    EXPECT_EQ(QApplication::activeWindow(), &dialog);
}

TEST_F(HooksAndFocus, TheListGoesWithTheLastRowAlsoWhenThatRowIsBeingPressed)
{
    const auto row = AddChoice("row");
    Press(row.m_pWidget);
    ASSERT_EQ(Ends("row"), 0u);
    row.m_pElement->m_fnOnEndEditing = [this] { m_controller.ClearAllData(); };
    QWidget* widget = row.m_pWidget;
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(3, 3), QPointF(3, 3), QPointF(3, 3),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    EXPECT_EQ(Ends("row"), 1u);
    EXPECT_EQ(CQTEnumDataWidget::g_pInPlaceList, nullptr);
    FinishDeletions();
}

TEST_F(HooksAndFocus, AControlThatItsParentDestroysIsNotDestroyedAgainByAHook)
{
    const auto open = AddChoice("open");
    const auto dying = AddChoice("dying");
    Press(open.m_pWidget);
    open.m_pElement->m_fnOnEndEditing = [&] { m_controller.RemoveItem(dying.m_pElement); };
    delete dying.m_pWidget;
    EXPECT_EQ(Ends("open"), 1u);
    EXPECT_EQ(m_controller.m_lItems.size(), 1u);
}

TEST_F(HooksAndFocus, AControlThatIsClearedIsNotDestroyedAgainWithItsView)
{
    auto view = std::make_unique<CQTInspectorView>();
    CRecordingController other(m_log);
    other.SetInspectorView(view.get());
    view->SetController(&other);
    const auto open = AddChoice("open");
    auto* element = new CChoiceElement(m_log, "dying");
    auto* widget = new CQTEnumDataWidget;
    other.AddItem(element, widget, nullptr);
    view->AddElement(element, widget, "dying", nullptr, nullptr);
    Press(open.m_pWidget);
    open.m_pElement->m_fnOnEndEditing = [&view] { view.reset(); };
    other.ClearAllData();
    EXPECT_EQ(Ends("open"), 1u);
    EXPECT_TRUE(other.m_lItems.empty());
}
