#include "desktopinput.h"
#include "hostwindow.h"

#include <support/qtmessages.h>

#include "inspector/qt/inplaceedit.h"
#include "inspector/qt/inplacelist.h"

#include <QApplication>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QWindow>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>

// The editors on a desktop, used by a user who types and clicks. scripts/test-desktops runs it.

namespace
{

using CCalls = CHostWindow::CCalls;

constexpr int g_iPatience = 5000;
/// What should not come has come by then.
constexpr int g_iQuiet = 120;

CInPlaceEdit& Editor()
{
    return *CQTSimpleDataWidget::g_pInPlace;
}

CInPlaceList& List()
{
    return *CQTEnumDataWidget::g_pInPlaceList;
}

class DesktopEditors : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_NE(CDesktopInput::Desktop(), "");
        qtmessages::Allow(QStringLiteral("Wayland does not support QWindow::requestActivate"));
        m_pHost = std::make_unique<CHostWindow>();
        m_pHost->move(60, 40);
        if (CDesktopInput::Desktop() == "kwin")
            m_pHost->showFullScreen();
        else
            m_pHost->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_pHost.get()));
        QTest::qWait(g_iQuiet);
        // A client hears of a pointer or a keyboard that is plugged in a little later.
        bool isPressed = false;
        for (int attempt = 0; attempt < 20 && !isPressed; ++attempt)
        {
            ClickCanvas();
            QTest::qWait(2 * g_iQuiet);
            isPressed = m_pHost->TakeCalls() == CCalls({"press"});
        }
        ASSERT_TRUE(isPressed);
        ASSERT_TRUE(Becomes([this] { return m_pHost->Canvas().hasFocus(); }));
    }

    void TearDown() override
    {
        m_pHost.reset();
        QTest::qWait(g_iQuiet);
    }

    static bool Becomes(const std::function<bool()>& condition)
    {
        return QTest::qWaitFor(condition, g_iPatience);
    }

    QPoint CenterOf(const std::string& row) const
    {
        const QWidget& widget = m_pHost->Row(row);
        return widget.mapTo(m_pHost.get(), widget.rect().center());
    }

    void ClickRow(const std::string& row) { Input().Click(*m_pHost, CenterOf(row)); }
    void ClickCanvas() { Input().Click(*m_pHost, m_pHost->Canvas().geometry().center()); }

    /// The editor is open over a field, exactly, and has the keyboard.
    void ExpectEditorOver(const std::string& row)
    {
        const QWidget& field = m_pHost->Row(row);
        const QPoint corner = field.mapToGlobal(QPoint(0, 0));
        EXPECT_TRUE(Becomes(
            [&corner]
            {
                return Editor().isVisible() && QApplication::focusWidget() == &Editor() &&
                       Editor().mapToGlobal(QPoint(0, 0)) == corner;
            }))
            << "no editor over " << row;
        // The server gives the keyboard to a window that is shown a little later.
        QTest::qWait(g_iQuiet);
        EXPECT_EQ(Editor().size(), field.size());
        EXPECT_EQ(Editor().isWindow(), !CDesktopInput::IsWayland());
    }

    void OpenEditor(const std::string& row)
    {
        ClickRow(row);
        ExpectEditorOver(row);
    }

    void OpenList()
    {
        ClickRow("d");
        EXPECT_TRUE(
            Becomes([] { return List().isVisible() && QApplication::focusWidget() == &List(); }));
    }

    void TypeInEditor(const std::string& text)
    {
        Input().Type(text);
        EXPECT_TRUE(Becomes([&text] { return Editor().text().toStdString() == text; }))
            << Editor().text().toStdString();
    }

    /// These calls came, and no others.
    void ExpectCalls(const CCalls& expected)
    {
        CCalls calls;
        Becomes(
            [&]
            {
                for (const std::string& call : m_pHost->TakeCalls())
                    calls.push_back(call);
                return calls.size() >= expected.size();
            });
        QTest::qWait(g_iQuiet);
        for (const std::string& call : m_pHost->TakeCalls())
            calls.push_back(call);
        EXPECT_EQ(calls, expected);
    }

    /// No editor is open, and the host's window has the keyboard with all its shortcuts.
    void ExpectTheKeyboardAtTheHost()
    {
        EXPECT_TRUE(Editor().isHidden());
        EXPECT_TRUE(List().isHidden());
        EXPECT_TRUE(Becomes([this] { return m_pHost->isActiveWindow(); }));
        Input().Key("F5");
        Input().Key("x");
        ExpectCalls({"key F5", "shortcut X"});
    }

    static CDesktopInput& Input() { return CDesktopInput::Get(); }

    std::unique_ptr<CHostWindow> m_pHost;
};

} // namespace

TEST_F(DesktopEditors, TakeATypedValueByReturn)
{
    OpenEditor("a");
    TypeInEditor("12");
    Input().Key("Return");
    ExpectCalls({"a changed 12", "a ended 1"});
    EXPECT_EQ(m_pHost->Value("a"), "12");
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, GoThroughThreeFieldsByTab)
{
    OpenEditor("a");
    TypeInEditor("11");
    Input().Key("Tab");
    ExpectEditorOver("b");
    TypeInEditor("22");
    Input().Key("Tab");
    ExpectEditorOver("c");
    TypeInEditor("33");
    Input().Key("Return");
    ExpectCalls(
        {"a changed 11", "a ended 2", "b changed 22", "b ended 2", "c changed 33", "c ended 1"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, GoBackByShiftAndTab)
{
    OpenEditor("b");
    TypeInEditor("22");
    Input().Key("shift+Tab");
    ExpectEditorOver("a");
    Input().Key("Return");
    ExpectCalls({"b changed 22", "b ended 3", "a ended 1"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, PutTheOldValueBackByEscape)
{
    OpenEditor("a");
    TypeInEditor("12");
    Input().Key("Escape");
    ExpectCalls({"a ended 0"});
    EXPECT_EQ(m_pHost->Value("a"), "1");
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, KeepTheTypedValueWhenTheUserClicksElsewhere)
{
    OpenEditor("a");
    TypeInEditor("12");
    ClickCanvas();
    ExpectCalls({"a changed 12", "a ended 4", "press"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, MoveToAClickedFieldWhateverEndedTheLastEdit)
{
    OpenEditor("c");
    Input().Key("Return");
    ExpectCalls({"c ended 1"});
    OpenEditor("a");
    TypeInEditor("12");
    ClickRow("b");
    ExpectEditorOver("b");
    ExpectCalls({"a changed 12", "a ended 4"});
    TypeInEditor("5");
    Input().Key("Return");
    ExpectCalls({"b changed 5", "b ended 1"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, EndBeforeAClickedButtonSendsItsCommand)
{
    OpenEditor("a");
    TypeInEditor("12");
    ClickRow("f");
    ExpectCalls({"a changed 12", "a ended 4", "command run"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, EndBeforeAClickedBoxIsToggled)
{
    OpenEditor("a");
    TypeInEditor("12");
    const QWidget& box = m_pHost->Row("e");
    Input().Click(*m_pHost, box.mapTo(m_pHost.get(), QPoint(9, 9)));
    EXPECT_TRUE(Becomes([this] { return m_pHost->Value("e") == "true"; }));
    CCalls calls = m_pHost->TakeCalls();
    calls.resize(2);
    EXPECT_EQ(calls, CCalls({"a changed 12", "a ended 4"}));
}

TEST_F(DesktopEditors, EndWhenTheUserGoesToAnotherWindow)
{
    OpenEditor("a");
    TypeInEditor("12");
    QWidget other;
    other.setWindowTitle(QStringLiteral("other"));
    other.setGeometry(650, 100, 200, 100);
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
    // A compositor makes a new window the active one.
    if (!CDesktopInput::IsWayland())
        Input().Click(other, QPoint(100, 50));
    EXPECT_TRUE(Becomes([&other] { return other.isActiveWindow(); }));
    ExpectCalls({"a changed 12", "a ended 4"});
    other.close();
    QTest::qWait(g_iQuiet);
    ClickCanvas();
    ExpectCalls({"press"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, KeepEveryKeyFromTheShortcutsOfTheHost)
{
    OpenEditor("a");
    TypeInEditor("xy z");
    Input().Key("BackSpace");
    Input().Key("Home");
    Input().Key("Delete");
    EXPECT_TRUE(Becomes([] { return Editor().text() == QStringLiteral("y "); }));
    Input().Key("ctrl+z");
    EXPECT_TRUE(Becomes([] { return Editor().text() == QStringLiteral("xy "); }));
    Input().Key("F5");
    Input().Key("Down");
    Input().Key("ctrl+s");
    Input().Key("Return");
    ExpectCalls({"a changed xy ", "a ended 1"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, LoseNothingToTheContextMenu)
{
    OpenEditor("a");
    TypeInEditor("12");
    Input().RightClick(*m_pHost, CenterOf("a"));
    EXPECT_TRUE(Becomes([] { return QApplication::activePopupWidget() != nullptr; }));
    ExpectCalls({});
    EXPECT_TRUE(Editor().isVisible());
    Input().Key("Escape");
    EXPECT_TRUE(Becomes([] { return QApplication::activePopupWidget() == nullptr; }));
    if (CDesktopInput::Desktop() == "openbox" || CDesktopInput::Desktop() == "kwin")
    {
        // The menu had the keyboard, which does not go back to the editor.
        ExpectCalls({"a changed 12", "a ended 4"});
        // KWin sends the keys to the host's window, which the toolkit goes on to call inactive.
        if (CDesktopInput::Desktop() == "kwin")
            return;
    }
    else
    {
        ExpectCalls({});
        EXPECT_TRUE(Editor().isVisible());
        Input().Key("Return");
        ExpectCalls({"a changed 12", "a ended 1"});
    }
    ClickCanvas();
    ExpectCalls({"press"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, TakeAClickedEntryOfTheList)
{
    OpenList();
    EXPECT_EQ(List().isWindow(), !CDesktopInput::IsWayland());
    const QPoint entry = List().visualItemRect(List().item(1)).center();
    const QPoint global = List().viewport()->mapToGlobal(entry);
    Input().Click(*m_pHost, m_pHost->mapFromGlobal(global));
    ExpectCalls({"d changed q", "d ended 4"});
    EXPECT_EQ(m_pHost->Value("d"), "q");
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, CloseTheListByAnyKey)
{
    OpenList();
    Input().Key("Down");
    ExpectCalls({"d ended 4"});
    ExpectTheKeyboardAtTheHost();
    OpenList();
    Input().Key("Escape");
    ExpectCalls({"d ended 0"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, CloseTheListWhenTheUserClicksElsewhere)
{
    OpenList();
    ClickCanvas();
    ExpectCalls({"d ended 4", "press"});
    ExpectTheKeyboardAtTheHost();
}

TEST_F(DesktopEditors, LetTheLineEditorFollowTheList)
{
    OpenList();
    OpenEditor("a");
    EXPECT_TRUE(List().isHidden());
    ExpectCalls({"d ended 4"});
    OpenList();
    EXPECT_TRUE(Editor().isHidden());
    ExpectCalls({"a ended 4"});
}

TEST_F(DesktopEditors, LeaveTheTextBoxItsTextAndTakeTheKeyboardBack)
{
    ClickRow("g");
    EXPECT_TRUE(Becomes([this] { return m_pHost->Row("g").hasFocus(); }));
    Input().Key("ctrl+a");
    Input().Type("5");
    OpenEditor("a");
    ExpectCalls({"g changed 5"});
    Input().Key("Return");
    ExpectCalls({"a ended 1"});
    EXPECT_TRUE(Becomes([this] { return m_pHost->Row("g").hasFocus(); }));
}

TEST_F(DesktopEditors, LeaveTheWheelToThePanelOverEveryRow)
{
    m_pHost->Panel().ResizeInspector(260, 150);
    QScrollBar& bar = m_pHost->ScrollBar();
    ASSERT_TRUE(bar.isVisible());
    for (const char* row : {"a", "b", "c", "d", "e", "f"})
    {
        bar.setValue(0);
        Input().Wheel(*m_pHost, CenterOf(row), 1);
        // Three text rows, which are 20 high and 5 apart.
        EXPECT_TRUE(Becomes([&bar] { return bar.value() == 75; })) << row << " " << bar.value();
    }
    Input().Wheel(*m_pHost, QPoint(25, 25), -1);
    EXPECT_TRUE(Becomes([&bar] { return bar.value() == 0; })) << bar.value();
    ExpectCalls({});
    EXPECT_EQ(m_pHost->Value("d"), "p");
}

TEST_F(DesktopEditors, ScrollATextBoxBeforeThePanel)
{
    auto& box = dynamic_cast<QTextEdit&>(m_pHost->Row("g"));
    box.setText(QString(QStringLiteral("line\n")).repeated(9));
    m_pHost->Panel().ResizeInspector(260, 200);
    QScrollBar& bar = m_pHost->ScrollBar();
    bar.setValue(40);
    ASSERT_GT(box.verticalScrollBar()->maximum(), 0);
    const QPoint place = box.mapTo(m_pHost.get(), QPoint(50, 10));
    Input().Wheel(*m_pHost, place, 1);
    EXPECT_TRUE(Becomes([&box] { return box.verticalScrollBar()->value() > 0; }));
    QTest::qWait(g_iQuiet);
    EXPECT_EQ(bar.value(), 40);
    box.verticalScrollBar()->setValue(box.verticalScrollBar()->maximum());
    QTest::qWait(g_iQuiet);
    Input().Wheel(*m_pHost, place, 1);
    EXPECT_TRUE(Becomes([&bar] { return bar.value() > 40; }));
}

TEST_F(DesktopEditors, PanByThePixelsOfATouchpad)
{
    if (CDesktopInput::Desktop() != "sway")
        GTEST_SKIP() << "no touchpad can be made here";
    m_pHost->Panel().ResizeInspector(260, 150);
    QScrollBar& bar = m_pHost->ScrollBar();
    Input().Pan(*m_pHost, CenterOf("a"), 7);
    EXPECT_TRUE(Becomes([&bar] { return bar.value() == 7; })) << bar.value();
    Input().Pan(*m_pHost, CenterOf("a"), 11);
    EXPECT_TRUE(Becomes([&bar] { return bar.value() == 18; })) << bar.value();
}
