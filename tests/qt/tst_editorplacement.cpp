#include <desktops/hostwindow.h>
#include <support/qtmessages.h>

#include "inspector/qt/inplaceedit.h"
#include "inspector/qt/inplacelist.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QSplitter>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>

// The editors as children of the window that they are used in, which is what they are on Wayland.

namespace
{

using CCalls = CHostWindow::CCalls;

CInPlaceEdit& Editor()
{
    return *CQTSimpleDataWidget::g_pInPlace;
}

CInPlaceList& List()
{
    return *CQTEnumDataWidget::g_pInPlaceList;
}

QRect RectIn(const QWidget& window, const QWidget& widget)
{
    return QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size());
}

/// The offscreen platform warns of what it leaves out.
void AllowWarningsOfThePlatform()
{
    qtmessages::Allow(QStringLiteral("This plugin does not support"));
}

void Activate(QWidget& window)
{
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// A press and a release that the window gets from its platform, and not a widget from the test.
void Click(QWidget& window, const QPoint& position)
{
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, position);
    QCoreApplication::processEvents();
}

void Click(CHostWindow& host, const std::string& row)
{
    Click(host, RectIn(host, host.Row(row)).center());
}

void Press(QWidget& window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(window.windowHandle(), static_cast<Qt::Key>(key), modifiers);
    QCoreApplication::processEvents();
}

void Type(QWidget& window, const char* text)
{
    for (const char* character = text; *character; ++character)
        QTest::keyClick(window.windowHandle(), *character);
    QCoreApplication::processEvents();
}

class ChildEditor : public testing::Test
{
protected:
    void SetUp() override
    {
        qputenv("INSPECTOR_EDITOR", "child");
        AllowWarningsOfThePlatform();
        m_pHost = std::make_unique<CHostWindow>();
        Activate(*m_pHost);
    }

    void TearDown() override
    {
        m_pHost.reset();
        qunsetenv("INSPECTOR_EDITOR");
    }

    std::unique_ptr<CHostWindow> m_pHost;
};

using ChildList = ChildEditor;

struct sEndKey
{
    const char* m_sName;
    int m_iKey;
    Qt::KeyboardModifiers m_Modifiers;
    CCalls m_vCalls;
};

class ChildEditorKey : public ChildEditor, public testing::WithParamInterface<sEndKey>
{
};

} // namespace

TEST(EditorPlacement, IsAToolTipWindowWhereThePlatformIsNotWayland)
{
    AllowWarningsOfThePlatform();
    CHostWindow host;
    Activate(host);
    Click(host, "a");
    EXPECT_TRUE(Editor().isWindow());
    EXPECT_EQ(Editor().windowType(), Qt::ToolTip);
    EXPECT_TRUE(Editor().parentWidget() == nullptr);
    EXPECT_EQ(Editor().size(), host.Row("a").size());
    EXPECT_TRUE(Editor().isActiveWindow());
    Press(Editor(), Qt::Key_Return);
    EXPECT_EQ(host.TakeCalls(), CCalls({"a ended 1"}));
}

TEST_F(ChildEditor, CoversTheFieldInItsWindow)
{
    Click(*m_pHost, "a");
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_FALSE(Editor().isWindow());
    EXPECT_TRUE(Editor().parentWidget() == m_pHost.get());
    EXPECT_EQ(Editor().geometry(), RectIn(*m_pHost, m_pHost->Row("a")));
    EXPECT_TRUE(Editor().hasFocus());
    EXPECT_EQ(Editor().selectedText(), QStringLiteral("1"));
}

TEST_F(ChildEditor, LiesAboveTheWholePanel)
{
    Click(*m_pHost, "b");
    const QPoint center = RectIn(*m_pHost, m_pHost->Row("b")).center();
    EXPECT_TRUE(m_pHost->childAt(center) == &Editor());
}

TEST_F(ChildEditor, IsNobodysChildOnceItIsClosed)
{
    Click(*m_pHost, "a");
    Press(*m_pHost, Qt::Key_Return);
    EXPECT_TRUE(Editor().isHidden());
    EXPECT_TRUE(Editor().parentWidget() == nullptr);
}

TEST_P(ChildEditorKey, EndsTheEditOnce)
{
    Click(*m_pHost, "b");
    Type(*m_pHost, "12");
    m_pHost->m_OnEnd = [] {};
    Press(*m_pHost, GetParam().m_iKey, GetParam().m_Modifiers);
    EXPECT_EQ(m_pHost->TakeCalls(), GetParam().m_vCalls);
    EXPECT_TRUE(Editor().isHidden());
}

INSTANTIATE_TEST_SUITE_P(
    Keys, ChildEditorKey,
    testing::Values(
        sEndKey{"Escape", Qt::Key_Escape, Qt::NoModifier, {"b ended 0"}},
        sEndKey{"Return", Qt::Key_Return, Qt::NoModifier, {"b changed 12", "b ended 1"}},
        sEndKey{"Enter", Qt::Key_Enter, Qt::KeypadModifier, {"b changed 12", "b ended 1"}},
        sEndKey{"Tab", Qt::Key_Tab, Qt::NoModifier, {"b changed 12", "b ended 2"}},
        sEndKey{"ShiftTab", Qt::Key_Tab, Qt::ShiftModifier, {"b changed 12", "b ended 3"}},
        sEndKey{"Backtab", Qt::Key_Backtab, Qt::ShiftModifier, {"b changed 12", "b ended 3"}}),
    [](const auto& key) { return std::string(key.param.m_sName); });

TEST_F(ChildEditor, MovesFromFieldToFieldByTab)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "11");
    Press(*m_pHost, Qt::Key_Tab);
    EXPECT_EQ(Editor().geometry(), RectIn(*m_pHost, m_pHost->Row("b")));
    Type(*m_pHost, "22");
    Press(*m_pHost, Qt::Key_Tab);
    Type(*m_pHost, "33");
    Press(*m_pHost, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(Editor().geometry(), RectIn(*m_pHost, m_pHost->Row("b")));
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 11", "a ended 2", "b changed 22",
                                            "b ended 2", "c changed 33", "c ended 3"}));
}

TEST_F(ChildEditor, GivesTheKeyboardBackToThePlaceThatHadIt)
{
    Click(*m_pHost, "a");
    Press(*m_pHost, Qt::Key_Return);
    EXPECT_TRUE(m_pHost->Canvas().hasFocus());
    m_pHost->Canvas().clearFocus();
    Click(*m_pHost, "a");
    Press(*m_pHost, Qt::Key_Return);
    EXPECT_TRUE(m_pHost->focusWidget() == nullptr);
    m_pHost->TakeCalls();
    Press(*m_pHost, Qt::Key_F5);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"key F5"}));
}

TEST_F(ChildEditor, EndsByAPressOnTheCanvas)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    Click(*m_pHost, m_pHost->Canvas().geometry().center());
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 4", "press"}));
    EXPECT_TRUE(Editor().isHidden());
    EXPECT_TRUE(m_pHost->Canvas().hasFocus());
}

TEST_F(ChildEditor, EndsByAPressThatOnlyAWidgetLearnsOf)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    QTest::mouseClick(&m_pHost->Canvas(), Qt::LeftButton);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 4", "press"}));
}

TEST_F(ChildEditor, EndsByATouchElsewhere)
{
    static auto* const device = QTest::createTouchDevice();
    QWidget& canvas = m_pHost->Canvas();
    canvas.setAttribute(Qt::WA_AcceptTouchEvents);
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    QTest::touchEvent(&canvas, device).press(0, QPoint(5, 5), &canvas);
    CCalls calls = m_pHost->TakeCalls();
    calls.resize(2);
    EXPECT_EQ(calls, CCalls({"a changed 12", "a ended 4"}));
    EXPECT_TRUE(Editor().isHidden());
    QTest::touchEvent(&canvas, device).release(0, QPoint(5, 5), &canvas);
}

TEST_F(ChildEditor, EndsBeforeThePressOpensItForAnotherField)
{
    // An earlier end leaves its cause behind; it is not the one of this end.
    Click(*m_pHost, "c");
    Press(*m_pHost, Qt::Key_Return);
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    Click(*m_pHost, "b");
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"c ended 1", "a changed 12", "a ended 4"}));
    EXPECT_EQ(Editor().geometry(), RectIn(*m_pHost, m_pHost->Row("b")));
    EXPECT_EQ(Editor().text(), QStringLiteral("2"));
    EXPECT_TRUE(Editor().hasFocus());
}

TEST_F(ChildEditor, EndsByAPressOnTheTextBoxWhichHasTheFocusThen)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    Click(*m_pHost, "g");
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 4"}));
    EXPECT_TRUE(m_pHost->Row("g").hasFocus());
}

TEST_F(ChildEditor, StaysOpenForAPressInItself)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    Click(*m_pHost, "a");
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls());
    Press(*m_pHost, Qt::Key_Return);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 1"}));
}

TEST_F(ChildEditor, StaysOpenForItsContextMenu)
{
    Click(*m_pHost, "a");
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), QCursor::pos());
    QCoreApplication::sendEvent(&Editor(), &event);
    const QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    QTest::mousePress(menu->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    EXPECT_TRUE(menu && menu->isVisible());
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls());
    if (menu)
        menu->close();
    Type(*m_pHost, "5");
    Press(*m_pHost, Qt::Key_Return);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 5", "a ended 1"}));
}

TEST_F(ChildEditor, EndsWhenItsWindowIsDeactivated)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    QWidget other;
    Activate(other);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 4"}));
    EXPECT_TRUE(m_pHost->focusWidget() == &m_pHost->Canvas());
}

TEST_F(ChildEditor, EndsWhenTheHostTakesTheFocus)
{
    Click(*m_pHost, "c");
    Press(*m_pHost, Qt::Key_Return);
    m_pHost->TakeCalls();
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    m_pHost->Row("g").setFocus();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 4"}));
    EXPECT_TRUE(m_pHost->Row("g").hasFocus());
}

TEST_F(ChildEditor, EndsWhenItsWindowIsClosed)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    m_pHost->close();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 4"}));
}

TEST_F(ChildEditor, EndsALittleAfterItsWindowWasHidden)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    m_pHost->hide();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 4"}));
    EXPECT_TRUE(Editor().parentWidget() == nullptr);
}

TEST_F(ChildEditor, DoesNotEndTheNextEditForTheWindowOfTheLastOne)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    m_pHost->hide();
    CHostWindow other;
    Activate(other);
    m_pHost->TakeCalls();
    Click(other, "b");
    QCoreApplication::processEvents();
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_EQ(other.TakeCalls(), CCalls());
}

TEST_F(ChildEditor, MovesToAFieldInAnotherWindow)
{
    CHostWindow other;
    Activate(other);
    Activate(*m_pHost);
    Click(*m_pHost, "a");
    Type(*m_pHost, "12");
    other.Field("b").StartEditing();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 4"}));
    EXPECT_TRUE(Editor().parentWidget() == &other);
    EXPECT_EQ(Editor().geometry(), RectIn(other, other.Row("b")));
    Activate(other);
    Type(other, "7");
    Press(other, Qt::Key_Return);
    EXPECT_EQ(other.TakeCalls(), CCalls({"b changed 7", "b ended 1"}));
}

TEST_F(ChildEditor, KeepsEveryKeyFromTheShortcutsOfTheHost)
{
    Click(*m_pHost, "a");
    Type(*m_pHost, "xy z");
    Press(*m_pHost, Qt::Key_Backspace);
    Press(*m_pHost, Qt::Key_Home);
    Press(*m_pHost, Qt::Key_Delete);
    EXPECT_EQ(Editor().text(), QStringLiteral("y "));
    Press(*m_pHost, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Editor().text(), QStringLiteral("xy "));
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls());
    Press(*m_pHost, Qt::Key_Return);
    m_pHost->TakeCalls();
    Type(*m_pHost, "x");
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"shortcut X"}));
}

TEST_F(ChildEditor, KeepsTheKeysThatItHasNoUseForFromItsWindow)
{
    Click(*m_pHost, "a");
    Press(*m_pHost, Qt::Key_F5);
    Press(*m_pHost, Qt::Key_Up);
    Press(*m_pHost, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls());
    EXPECT_TRUE(Editor().isVisible());
}

TEST_F(ChildEditor, TakesWhatAnInputMethodIsComposing)
{
    for (const bool byKey : {true, false})
    {
        Click(*m_pHost, "a");
        QInputMethodEvent composing(byKey ? QStringLiteral("k") : QStringLiteral("m"), {});
        QCoreApplication::sendEvent(&Editor(), &composing);
        if (byKey)
            Press(*m_pHost, Qt::Key_Return);
        else
            Click(*m_pHost, m_pHost->Canvas().geometry().center());
    }
    EXPECT_EQ(m_pHost->TakeCalls(),
              CCalls({"a changed k", "a ended 1", "a changed m", "a ended 4", "press"}));
}

TEST_F(ChildEditor, LetsTheHostRebuildThePanelUnderThePressThatEndsIt)
{
    for (const char* target : {"b", "d", "f", "g"})
    {
        Click(*m_pHost, "a");
        Type(*m_pHost, "12");
        m_pHost->m_OnEnd = [this]
        {
            m_pHost->Clear();
            m_pHost->Build();
        };
        Click(*m_pHost, target);
        m_pHost->m_OnEnd = {};
        EXPECT_EQ(m_pHost->Value("a"), "1");
        CCalls calls = m_pHost->TakeCalls();
        calls.resize(2);
        EXPECT_EQ(calls, CCalls({"a changed 12", "a ended 4"})) << target;
        Click(*m_pHost, m_pHost->Canvas().geometry().center());
        m_pHost->TakeCalls();
    }
}

TEST_F(ChildEditor, LetsTheHostRemoveThePressedRowWhenOnlyItLearnsOfThePress)
{
    Click(*m_pHost, "a");
    m_pHost->m_OnEnd = [this] { m_pHost->Clear(); };
    QTest::mousePress(&m_pHost->Row("b"), Qt::LeftButton);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a ended 4"}));
    EXPECT_TRUE(CQTSimpleDataWidget::g_pInPlace == nullptr);
}

TEST_F(ChildEditor, LetsTheHostDestroyTheWindowWhenItEnds)
{
    Click(*m_pHost, "a");
    m_pHost->m_OnEnd = [this] { m_pHost.reset(); };
    Click(*m_pHost, m_pHost->Canvas().geometry().center());
    EXPECT_FALSE(m_pHost);
    EXPECT_TRUE(CQTSimpleDataWidget::g_pInPlace == nullptr);
}

TEST_F(ChildEditor, DiesWithTheWindowAndItsRows)
{
    Click(*m_pHost, "a");
    m_pHost.reset();
    EXPECT_TRUE(CQTSimpleDataWidget::g_pInPlace == nullptr);
    QCoreApplication::processEvents();
}

TEST_F(ChildEditor, OutlivesThePaintingThatRemovesItsLastField)
{
    Click(*m_pHost, "a");
    const QPointer<QWidget> editor = &Editor();
    m_pHost->m_OnDelivery = [this] { m_pHost->Clear(); };
    m_pHost->Dirtify();
    m_pHost->repaint();
    EXPECT_TRUE(CQTSimpleDataWidget::g_pInPlace == nullptr);
    ASSERT_FALSE(editor.isNull());
    EXPECT_TRUE(editor->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(editor.isNull());
}

TEST_F(ChildEditor, MovesToAnotherWindowWhileItsOwnIsPainted)
{
    CHostWindow other;
    Activate(other);
    Activate(*m_pHost);
    Click(*m_pHost, "a");
    m_pHost->m_OnDelivery = [&other] { other.Field("b").StartEditing(); };
    m_pHost->Dirtify();
    m_pHost->repaint();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a ended 4"}));
    EXPECT_EQ(Editor().parentWidget(), &other);
    EXPECT_TRUE(Editor().isVisible());
    EXPECT_TRUE(Editor().updatesEnabled());
}

TEST_F(ChildEditor, MovesToAnotherFieldWhileItsWindowIsPainted)
{
    Click(*m_pHost, "a");
    m_pHost->m_OnDelivery = [this] { m_pHost->Field("b").StartEditing(); };
    m_pHost->Dirtify();
    m_pHost->repaint();
    m_pHost->m_OnDelivery = {};
    QCoreApplication::processEvents();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a ended 4"}));
    EXPECT_EQ(Editor().geometry(), RectIn(*m_pHost, m_pHost->Row("b")));
    EXPECT_TRUE(Editor().updatesEnabled());
    Type(*m_pHost, "12");
    Press(*m_pHost, Qt::Key_Return);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"b changed 12", "b ended 1"}));
}

TEST_F(ChildEditor, OutlivesAWindowWhoseRowsDo)
{
    auto window = std::make_unique<QWidget>();
    window->resize(300, 400);
    m_pHost->Panel().setParent(window.get());
    m_pHost->Panel().show();
    Activate(*window);
    Click(*window, RectIn(*window, m_pHost->Row("a")).center());
    Type(*window, "12");
    window.reset();
    EXPECT_TRUE(Editor().parentWidget() == nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 4"}));
    EXPECT_TRUE(Editor().isHidden());
}

TEST_F(ChildEditor, IsNoPaneOfASplitter)
{
    QSplitter splitter;
    splitter.resize(300, 400);
    splitter.addWidget(&m_pHost->Panel());
    Activate(splitter);
    const QRect field = RectIn(splitter, m_pHost->Row("a"));
    Click(splitter, field.center());
    EXPECT_EQ(splitter.count(), 1);
    EXPECT_EQ(Editor().geometry(), field);
    Type(splitter, "12");
    Press(splitter, Qt::Key_Return);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a changed 12", "a ended 1"}));
    m_pHost->Panel().setParent(m_pHost.get());
}

TEST_F(ChildEditor, FloatsAsAWindowAgainWhenItIsToldSo)
{
    Click(*m_pHost, "a");
    Press(*m_pHost, Qt::Key_Return);
    qputenv("INSPECTOR_EDITOR", "window");
    Click(*m_pHost, "a");
    EXPECT_EQ(Editor().windowType(), Qt::ToolTip);
    Type(Editor(), "9");
    Press(Editor(), Qt::Key_Return);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a ended 1", "a changed 9", "a ended 1"}));
}

TEST_F(ChildList, DropsDownInTheWindow)
{
    Click(*m_pHost, "d");
    const QRect field = RectIn(*m_pHost, m_pHost->Row("d"));
    const int rows = 3 * List().sizeHintForRow(0);
    EXPECT_TRUE(List().parentWidget() == m_pHost.get());
    EXPECT_EQ(List().geometry(), QRect(field.left(), field.bottom() + 1, field.width(), rows + 6));
    EXPECT_TRUE(List().hasFocus());
    EXPECT_EQ(List().currentRow(), 0);
}

TEST_F(ChildList, MovesUpAtTheLowerEdgeOfTheWindow)
{
    const int left = m_pHost->Panel().x();
    const int shift = m_pHost->height() - RectIn(*m_pHost, m_pHost->Row("d")).bottom() - 1;
    m_pHost->Panel().move(left, m_pHost->Panel().y() + shift);
    Click(*m_pHost, "d");
    const int rows = 3 * List().sizeHintForRow(0);
    // The bound lies one pixel past the last row, and what is past it is cut off.
    EXPECT_EQ(List().geometry().bottom(), m_pHost->height() - 1);
    EXPECT_EQ(List().geometry().top(), m_pHost->height() + 1 - (rows + 6));
}

TEST_F(ChildList, IsCutToAWindowThatIsLowerThanTheList)
{
    m_pHost->setFixedSize(500, 40);
    m_pHost->Panel().move(20, 10 - RectIn(m_pHost->Panel(), m_pHost->Row("d")).top());
    Click(*m_pHost, "d");
    EXPECT_EQ(List().geometry().top(), 0);
    EXPECT_EQ(List().geometry().bottom(), 39);
}

TEST_F(ChildList, TakesAClickedEntry)
{
    Click(*m_pHost, "d");
    const QPoint second = List().visualItemRect(List().item(1)).center();
    Click(*m_pHost, List().viewport()->mapTo(m_pHost.get(), second));
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"d changed q", "d ended 4"}));
    EXPECT_TRUE(List().isHidden());
    EXPECT_TRUE(List().parentWidget() == nullptr);
    EXPECT_TRUE(m_pHost->Canvas().hasFocus());
}

TEST_F(ChildList, ClosesByAnyKeyWhichGoesNoFurther)
{
    for (const int key : {Qt::Key_Down, Qt::Key_Escape, Qt::Key_X, Qt::Key_Return})
    {
        Click(*m_pHost, "d");
        Press(*m_pHost, key);
        EXPECT_TRUE(List().isHidden());
        EXPECT_EQ(m_pHost->TakeCalls(),
                  CCalls({key == Qt::Key_Escape ? "d ended 0" : "d ended 4"}));
    }
    Press(*m_pHost, Qt::Key_X);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"shortcut X"}));
}

TEST_F(ChildList, ClosesByAPressElsewhere)
{
    Click(*m_pHost, "d");
    Click(*m_pHost, m_pHost->Canvas().geometry().center());
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"d ended 4", "press"}));
    EXPECT_TRUE(List().isHidden());
}

TEST_F(ChildList, ReopensByAPressOnItsField)
{
    Click(*m_pHost, "d");
    Click(*m_pHost, "d");
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"d ended 4"}));
    EXPECT_TRUE(List().isVisible());
}

TEST_F(ChildList, GivesWayToTheLineEditor)
{
    Click(*m_pHost, "d");
    Click(*m_pHost, "a");
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"d ended 4"}));
    EXPECT_TRUE(List().isHidden());
    EXPECT_TRUE(Editor().isVisible());
    Click(*m_pHost, "d");
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"a ended 4"}));
    EXPECT_TRUE(Editor().isHidden());
    EXPECT_TRUE(List().isVisible());
}

TEST_F(ChildList, ClosesWhenItsWindowIsDeactivated)
{
    Click(*m_pHost, "d");
    QWidget other;
    Activate(other);
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"d ended 4"}));
}

TEST_F(ChildList, ClosesWhenTheHostTakesTheFocus)
{
    Click(*m_pHost, "d");
    m_pHost->Row("g").setFocus();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"d ended 4"}));
    EXPECT_TRUE(m_pHost->Row("g").hasFocus());
}

TEST_F(ChildList, LetsTheHostRemoveTheRowThatTheFocusGoesTo)
{
    Click(*m_pHost, "d");
    m_pHost->m_OnEnd = [this] { m_pHost->Clear(); };
    const QPointer<QWidget> box = &m_pHost->Row("g");
    box.data()->setFocus();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"d ended 4"}));
    ASSERT_FALSE(box.isNull());
    EXPECT_TRUE(box->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(box.isNull());
    EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList == nullptr);
}

TEST_F(ChildList, CanBeOpenedAgainFromItsReport)
{
    Click(*m_pHost, "d");
    m_pHost->m_OnEnd = [this]
    {
        m_pHost->m_OnEnd = {};
        QTest::mousePress(&m_pHost->Row("d"), Qt::LeftButton);
    };
    Press(*m_pHost, Qt::Key_Escape);
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(List().parentWidget(), m_pHost.get());
    Press(*m_pHost, Qt::Key_Escape);
    EXPECT_TRUE(List().isHidden());
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"d ended 0", "d ended 0"}));
}

TEST_F(ChildList, OutlivesThePaintingThatRemovesItsLastRow)
{
    Click(*m_pHost, "d");
    const QPointer<QWidget> list = &List();
    m_pHost->m_OnDelivery = [this] { m_pHost->Clear(); };
    m_pHost->Dirtify();
    m_pHost->repaint();
    EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList == nullptr);
    ASSERT_FALSE(list.isNull());
    EXPECT_TRUE(list->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(list.isNull());
}

TEST_F(ChildList, DiesOnceWithTheWindowAndItsRows)
{
    Click(*m_pHost, "d");
    m_pHost.reset();
    EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList == nullptr);
    QCoreApplication::processEvents();
}

TEST_F(ChildList, OutlivesAWindowWhoseRowsDo)
{
    auto window = std::make_unique<QWidget>();
    window->resize(300, 400);
    m_pHost->Panel().setParent(window.get());
    m_pHost->Panel().show();
    Activate(*window);
    Click(*window, RectIn(*window, m_pHost->Row("d")).center());
    window.reset();
    EXPECT_TRUE(List().parentWidget() == nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_pHost->TakeCalls(), CCalls({"d ended 4"}));
    EXPECT_TRUE(List().isHidden());
}
