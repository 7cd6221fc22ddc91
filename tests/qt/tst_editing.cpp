// Editing as the user sees it: mouse and keys, from row to row of a panel, with everything that the
// host learns of it.

#include <qtsimpledatawidget.h>

#include <qtenumdatawidget.h>
#include <qtinspectorview.h>
#include <qtsimpleboolwidget.h>

#include <booldataelement.h>
#include <enumdataelement.h>
#include <simpledataelement.h>

#include <inspector/qt/inplaceedit.h>
#include <inspector/qt/inplacelist.h>

#include <qt/logginghost.h>
#include <support/calls.h>
#include <support/recordingcontroller.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace
{

using CNode = CInspectorView::sInspectorElement;

/// A field that also logs when its editing starts.
class CField : public TLoggingField<CQTSimpleDataWidget>
{
public:
    CField(CCallLog& log, const std::string& name) : TLoggingField(log, name), m_log(log) {}

    void StartEditing() override
    {
        m_log.Add(m_sName, "StartEditing");
        CQTSimpleDataWidget::StartEditing();
    }

private:
    CCallLog& m_log;
};

class CPanel : public CQTInspectorView
{
public:
    explicit CPanel(CCallLog& log) : m_log(log) {}

    void EnsureVisible(CInspectorDataWidget* widget) override
    {
        const auto* field = dynamic_cast<CField*>(widget);
        m_log.Add("panel", "EnsureVisible", {field ? field->m_sName : "another"});
        CQTInspectorView::EnsureVisible(widget);
    }

    using CQTInspectorView::m_pScrollBar;

private:
    CCallLog& m_log;
};

class Editing : public testing::Test
{
protected:
    using CElement = TLoggingElement<CSimpleDataElement>;

    void SetUp() override
    {
        m_window.resize(400, 300);
        m_pPanel->setParent(&m_window);
        m_pPanel->show();
        m_controller.SetInspectorView(m_pPanel);
        m_pPanel->SetController(&m_controller);
    }

    ~Editing() override { m_controller.ClearAllData(); }

    CField& AddField(const std::string& name, CNode* parent = nullptr)
    {
        auto* field = new CField(m_log, name);
        auto* element = new CElement(m_log, name + ".element");
        m_controller.AddItem(element, field, nullptr);
        m_pPanel->AddElement(element, field, name.c_str(), nullptr, parent);
        m_mapElements[field] = element;
        return *field;
    }

    CQTSimpleBoolWidget& AddBool()
    {
        auto* box = new CQTSimpleBoolWidget;
        auto* element = new CBoolDataElement;
        m_controller.AddItem(element, box, nullptr);
        m_pPanel->AddElement(element, box, "bool", nullptr, nullptr);
        return *box;
    }

    /// A row with one entry to choose.
    CQTEnumDataWidget& AddChoice()
    {
        auto* choice = new CQTEnumDataWidget;
        auto* element = new CEnumDataElement;
        element->CreateEnum();
        element->AddEnum("one", "One");
        m_controller.AddItem(element, choice, nullptr);
        m_pPanel->AddElement(element, choice, "choice", nullptr, nullptr);
        return *choice;
    }

    CElement& ElementOf(CField& field) { return *m_mapElements.at(&field); }

    /// Shows the panel and gives its window the keyboard; forgets the calls so far.
    void Open(int height = 250)
    {
        m_controller.ConnectDataElements();
        for (const auto& [field, element] : m_mapElements)
        {
            element->SetStrCurrentValue(field->m_sName);
            field->InitFromElement();
        }
        m_pPanel->ResizeInspector(300, height);
        m_pPanel->RecomputeLayout();
        m_window.show();
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_log.Clear();
    }

    static CInPlaceEdit& Editor() { return *CQTSimpleDataWidget::g_pInPlace; }

    void Click(QWidget& widget)
    {
        QTest::mouseClick(&widget, Qt::LeftButton);
        QCoreApplication::processEvents();
    }

    void Type(const char* text) { QTest::keyClicks(&Editor(), QLatin1String(text)); }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::KeyboardModifiers())
    {
        QTest::keyClick(&Editor(), key, modifiers);
        QCoreApplication::processEvents();
    }

    void ExpectEditing(CField& field)
    {
        EXPECT_TRUE(Editor().isVisible());
        EXPECT_TRUE(QTest::qWaitFor([] { return Editor().hasFocus(); }));
        EXPECT_EQ(Editor().geometry(), QRect(field.mapToGlobal(QPoint(0, 0)), field.size()));
        EXPECT_EQ(Editor().text().toStdString(), Text(field));
        EXPECT_EQ(Editor().selectedText(), Editor().text());
    }

    static std::string Text(CField& field)
    {
        std::string text;
        field.GetDataAsString(text);
        return text;
    }

    /// The calls that one end of an edit brings about.
    static CCalls End(const std::string& name, const std::string& value, int cause, bool changed)
    {
        const std::string number = std::to_string(cause);
        CCalls calls = {name + ".FinishValueEdit(" + value + ", " + number + ")",
                        name + ".element.OnCtrlValueChange()"};
        if (changed)
            calls.push_back(name + ".element.InternalValueChanged()");
        calls.push_back(name + ".element.OnEndEditing(" + number + ")");
        return calls;
    }

    static CCalls Start(const std::string& name)
    {
        return {"panel.EnsureVisible(" + name + ")", name + ".StartEditing()"};
    }

    CCallLog m_log;
    QWidget m_window;
    CRecordingController m_controller{m_log};
    CPanel* m_pPanel = new CPanel(m_log);
    std::map<CField*, CElement*> m_mapElements;
};

} // namespace

TEST_F(Editing, OpensByAClickAndTakesWhatIsTypedOnReturn)
{
    CField& a = AddField("a");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(a);
    ExpectEditing(a);
    Type("12");
    EXPECT_EQ(m_log.Take(), CCalls{"a.StartEditing()"});
    Press(Qt::Key_Return);
    EXPECT_EQ(m_log.Take(), End("a", "12", 1, true));
    EXPECT_TRUE(Editor().isHidden());
    EXPECT_EQ(ElementOf(a).GetStrCurrentValue(), "12");
}

TEST_F(Editing, MovesOnByTab)
{
    CField& a = AddField("a");
    CField& b = AddField("b");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(a);
    Type("12");
    m_log.Clear();
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_log.Take(), End("a", "12", 2, true) + Start("b"));
    ExpectEditing(b);
    Press(Qt::Key_Escape);
}

TEST_F(Editing, MovesBackByShiftTab)
{
    CField& a = AddField("a");
    CField& b = AddField("b");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(b);
    Type("12");
    m_log.Clear();
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(m_log.Take(), End("b", "12", 3, true) + Start("a"));
    ExpectEditing(a);
    m_log.Clear();
    Press(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(m_log.Take(), End("a", "a", 3, false) + Start("b"));
    Press(Qt::Key_Escape);
}

TEST_F(Editing, WrapsAroundAtBothEnds)
{
    CField& a = AddField("a");
    AddField("b");
    CField& c = AddField("c");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(c);
    m_log.Clear();
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_log.Take(), End("c", "c", 2, false) + Start("a"));
    ExpectEditing(a);
    Press(Qt::Key_Backtab);
    EXPECT_EQ(m_log.Take(), End("a", "a", 3, false) + Start("c"));
    ExpectEditing(c);
    Press(Qt::Key_Escape);
}

TEST_F(Editing, ComesBackToTheOnlyRow)
{
    CField& a = AddField("a");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(a);
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab})
    {
        Type("x");
        m_log.Clear();
        Press(key);
        EXPECT_EQ(m_log.Count("StartEditing"), 1u);
        ExpectEditing(a);
    }
    Press(Qt::Key_Escape);
}

TEST_F(Editing, GoesThroughGroupsAndContainersFromLeftToRight)
{
    CField& a = AddField("a");
    CNode* line = m_pPanel->AddSingleLineContainer("line", nullptr, nullptr);
    AddField("b", line);
    AddField("c", line);
    CNode* group = m_pPanel->AddGroup("group", nullptr);
    AddField("d", m_pPanel->AddGroup("inner", group));
    AddField("e");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(a);
    m_log.Clear();
    const CCalls forward = {"b.StartEditing()", "c.StartEditing()", "d.StartEditing()",
                            "e.StartEditing()", "a.StartEditing()"};
    for (std::size_t i = 0; i < forward.size(); ++i)
        Press(Qt::Key_Tab);
    EXPECT_EQ(m_log.Containing("StartEditing"), forward);
    m_log.Clear();
    for (std::size_t i = 0; i < forward.size(); ++i)
        Press(Qt::Key_Backtab);
    EXPECT_EQ(m_log.Containing("StartEditing"),
              (CCalls{"e.StartEditing()", "d.StartEditing()", "c.StartEditing()",
                      "b.StartEditing()", "a.StartEditing()"}));
    Press(Qt::Key_Escape);
}

TEST_F(Editing, StopsAtAControlWithoutAnEditor)
{
    CField& a = AddField("a");
    AddBool();
    AddField("c");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(a);
    m_log.Clear();
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_log.Take(), End("a", "a", 2, false) + CCalls{"panel.EnsureVisible(another)"});
    EXPECT_TRUE(Editor().isHidden());
}

TEST_F(Editing, EndsWithTheOldTextByEscape)
{
    CField& a = AddField("a");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(a);
    Type("12");
    m_log.Clear();
    Press(Qt::Key_Escape);
    EXPECT_EQ(m_log.Take(), End("a", "a", 0, false));
    EXPECT_EQ(Text(a), "a");
    EXPECT_TRUE(Editor().isHidden());
}

TEST_F(Editing, EndsWhenAnotherWindowTakesTheKeyboard)
{
    CField& a = AddField("a");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(a);
    ExpectEditing(a);
    Type("12");
    m_log.Clear();
    QWidget other;
    other.show();
    other.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([] { return Editor().isHidden(); }));
    EXPECT_EQ(m_log.Take(), End("a", "12", 4, true));
}

TEST_F(Editing, TakesTheTextOfTheFieldThatIsLeftForAnother)
{
    CField& a = AddField("a");
    CField& b = AddField("b");
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(a);
    Type("12");
    m_log.Clear();
    Click(b);
    EXPECT_EQ(m_log.Containing("FinishValueEdit"), CCalls{"a.FinishValueEdit(12, 4)"});
    ExpectEditing(b);
    EXPECT_EQ(ElementOf(a).GetStrCurrentValue(), "12");
    Type("34");
    Press(Qt::Key_Return);
    EXPECT_EQ(ElementOf(b).GetStrCurrentValue(), "34");
    EXPECT_EQ(ElementOf(a).GetStrCurrentValue(), "12");
}

TEST_F(Editing, OpensAnotherFieldWhoseStartEndsAnEditThatMovesOn)
{
    CField& a = AddField("a");
    CField& b = AddField("b");
    AddField("c");
    CField& d = AddField("d");
    ASSERT_NO_FATAL_FAILURE(Open());
    // The cause of this end is the one that the next end without its own reports.
    Click(a);
    Press(Qt::Key_Tab);
    ExpectEditing(b);
    Type("12");
    m_log.Clear();
    d.StartEditing();
    EXPECT_EQ(m_log.Take(), CCalls{"d.StartEditing()"} + End("b", "12", 2, true) + Start("c"));
    ExpectEditing(d);
    Type("34");
    Press(Qt::Key_Escape);
    EXPECT_EQ(m_log.Take(), End("d", "d", 0, false));
    EXPECT_EQ(ElementOf(b).GetStrCurrentValue(), "12");
}

TEST_F(Editing, OpensAReadOnlyFieldForReadingByTab)
{
    CField& a = AddField("a");
    CField& b = AddField("read me");
    AddField("c");
    ElementOf(b).SetReadOnly(true);
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(b);
    EXPECT_TRUE(Editor().isHidden());
    Click(a);
    Press(Qt::Key_Tab);
    ExpectEditing(b);
    Type("x");
    Press(Qt::Key_Delete);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Editor().text(), QStringLiteral("read me"));
    QApplication::clipboard()->clear();
    Press(Qt::Key_Home);
    Press(Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(Editor().selectedText(), QStringLiteral("read me"));
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("read me"));
    m_log.Clear();
    Press(Qt::Key_Tab);
    EXPECT_EQ(m_log.Take(), End("read me", "read me", 2, false) + Start("c"));
    Type("x");
    EXPECT_EQ(Editor().text(), QStringLiteral("x"));
    Press(Qt::Key_Escape);
}

TEST_F(Editing, ScrollsTheNextFieldIntoSightBeforeItOpens)
{
    CField& first = AddField("first");
    for (int i = 0; i < 20; ++i)
        AddField("f" + std::to_string(i));
    CField& last = AddField("last");
    ASSERT_NO_FATAL_FAILURE(Open(200));
    Click(first);
    Press(Qt::Key_Backtab);
    ExpectEditing(last);
    EXPECT_GT(m_pPanel->m_pScrollBar->value(), 0);
    EXPECT_LE(last.geometry().bottom(), 200);
    Press(Qt::Key_Tab);
    ExpectEditing(first);
    EXPECT_GE(first.y(), 0);
    Press(Qt::Key_Escape);
}

TEST_F(Editing, LeavesTheEditorWhereItIsWhenThePanelScrolls)
{
    CField& first = AddField("first");
    for (int i = 0; i < 20; ++i)
        AddField("f" + std::to_string(i));
    ASSERT_NO_FATAL_FAILURE(Open(200));
    Click(first);
    const QRect place = Editor().geometry();
    m_pPanel->m_pScrollBar->setValue(30);
    EXPECT_EQ(Editor().geometry(), place);
    EXPECT_TRUE(Editor().isVisible());
    Type("12");
    Press(Qt::Key_Return);
    EXPECT_EQ(ElementOf(first).GetStrCurrentValue(), "12");
}

TEST_F(Editing, KeepsItsKeysFromTheShortcutsOfTheHost)
{
    CField& a = AddField("a");
    ASSERT_NO_FATAL_FAILURE(Open());
    int triggered = 0;
    for (const char* keys : {"Del", "Backspace", "Ctrl+Z", "Space", "X", "1", "Ctrl+A", "F5", "Esc",
                             "Return", "Tab", "Left"})
    {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), &m_window);
        shortcut->setContext(Qt::ApplicationShortcut);
        QObject::connect(shortcut, &QShortcut::activated, [&] { ++triggered; });
    }
    for (const char* keys : {"Ctrl+Y", "B", "Shift+C"})
    {
        auto* action = new QAction(&m_window);
        action->setShortcut(QKeySequence(QLatin1String(keys)));
        action->setShortcutContext(Qt::ApplicationShortcut);
        m_window.addAction(action);
        QObject::connect(action, &QAction::triggered, [&] { ++triggered; });
    }
    // They work where nothing is edited.
    QTest::keyClick(&m_window, Qt::Key_X);
    QTest::keyClick(&m_window, Qt::Key_B);
    EXPECT_EQ(triggered, 2);

    Click(a);
    Type("x 1bC");
    EXPECT_EQ(Editor().text(), QStringLiteral("x 1bC"));
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Editor().text(), QStringLiteral("x 1b"));
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(Editor().text(), QStringLiteral("x 1b"));
    Press(Qt::Key_Y, Qt::ControlModifier);
    Press(Qt::Key_Home);
    Press(Qt::Key_Delete);
    EXPECT_TRUE(Editor().text().startsWith(QStringLiteral(" 1b")));
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Left);
    Press(Qt::Key_F5);
    EXPECT_TRUE(Editor().isVisible());
    Press(Qt::Key_Escape);
    Click(a);
    Press(Qt::Key_Return);
    Click(a);
    Press(Qt::Key_Tab);
    Press(Qt::Key_Escape);
    EXPECT_EQ(triggered, 2);
}

TEST_F(Editing, KeepsTheKeyThatClosesTheListFromTheShortcutsOfTheHost)
{
    CQTEnumDataWidget& choice = AddChoice();
    ASSERT_NO_FATAL_FAILURE(Open());
    int triggered = 0;
    const Qt::Key keys[] = {Qt::Key_Delete, Qt::Key_Space, Qt::Key_X, Qt::Key_Escape,
                            Qt::Key_Return};
    for (const Qt::Key key : keys)
    {
        auto* shortcut = new QShortcut(QKeySequence(key), &m_window);
        shortcut->setContext(Qt::ApplicationShortcut);
        QObject::connect(shortcut, &QShortcut::activated, [&] { ++triggered; });
    }
    CInPlaceList& list = *CQTEnumDataWidget::g_pInPlaceList;
    for (const Qt::Key key : keys)
    {
        Click(choice);
        EXPECT_TRUE(list.isVisible());
        QTest::keyClick(&list, key);
        EXPECT_TRUE(list.isHidden());
    }
    EXPECT_EQ(triggered, 0);
}

TEST_F(Editing, StaysOpenThoughTheKeyboardOfTheLastEndComesBackLate)
{
    CQTEnumDataWidget& choice = AddChoice();
    CField& field = AddField("field");
    ASSERT_NO_FATAL_FAILURE(Open());
    CInPlaceList& list = *CQTEnumDataWidget::g_pInPlaceList;
    // On an X server, the window that got the keyboard back learns of it when the next editor is
    // open already.
    for (int round = 0; round < 3; ++round)
    {
        QTest::mouseClick(&choice, Qt::LeftButton);
        QTest::qWait(200);
        QTest::keyClick(&list, Qt::Key_Return);
        QTest::mouseClick(&choice, Qt::LeftButton);
        QTest::qWait(200);
        EXPECT_TRUE(list.isVisible());
        QTest::keyClick(&list, Qt::Key_Return);
        QTest::mouseClick(&field, Qt::LeftButton);
        QTest::qWait(200);
        ExpectEditing(field);
        QTest::keyClick(&Editor(), Qt::Key_Return);
        QTest::qWait(200);
    }
    EXPECT_EQ(m_log.Count("field.element.OnEndEditing"), 3U);
}

TEST_F(Editing, EndsWhenTheOwnersWindowIsActivatedSoonAfterAnotherEdit)
{
    CField& first = AddField("first");
    CField& second = AddField("second");
    ASSERT_NO_FATAL_FAILURE(Open());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab})
    {
        SCOPED_TRACE(static_cast<int>(key));
        m_log.Clear();
        QTest::mouseClick(&first, Qt::LeftButton);
        ExpectEditing(first);
        QTest::keyClick(&Editor(), key);
        if (key != Qt::Key_Tab)
        {
            EXPECT_TRUE(QTest::qWaitForWindowActive(m_pPanel->window()));
            QTest::mouseClick(&second, Qt::LeftButton);
        }
        ExpectEditing(second);
        Type("12");
        // On an X server, it looks the same for a while as the late return of the keyboard.
        if (QGuiApplication::platformName() == QLatin1String("xcb"))
            QTest::qWait(600);
        m_pPanel->window()->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return Editor().isHidden(); }));
        EXPECT_EQ(m_log.Count("second.element.OnEndEditing"), 1U);
    }
}

TEST_F(Editing, DropsTheListDownForTheRowThatIsPressedWhateverTheEndOfTheOtherChoiceBrings)
{
    CQTEnumDataWidget* choices[3];
    CEnumDataElement* elements[3];
    for (int i = 0; i < 3; ++i)
    {
        choices[i] = new CQTEnumDataWidget;
        auto* element = new TLoggingElement<CEnumDataElement>(m_log, "e" + std::to_string(i));
        element->CreateEnum();
        element->AddEnum("one", "One");
        elements[i] = element;
        m_controller.AddItem(element, choices[i], nullptr);
        m_pPanel->AddElement(element, choices[i], "choice", nullptr, nullptr);
    }
    ASSERT_NO_FATAL_FAILURE(Open());
    static_cast<TLoggingElement<CEnumDataElement>*>(elements[0])->m_fnOnEndEditing = [&]
    { QTest::mousePress(choices[2], Qt::LeftButton); };
    QTest::mousePress(choices[0], Qt::LeftButton);
    m_log.Clear();
    QTest::mousePress(choices[1], Qt::LeftButton);
    EXPECT_EQ(m_log.Count("e0.OnEndEditing(4)"), 1u);
    EXPECT_EQ(m_log.Count("e1"), 0u);
    CInPlaceList& list = *CQTEnumDataWidget::g_pInPlaceList;
    EXPECT_TRUE(list.isVisible());
    m_log.Clear();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::KeyboardModifiers(),
                      list.visualItemRect(list.item(0)).center());
    EXPECT_EQ(m_log.Containing("OnEndEditing"), CCalls{"e1.OnEndEditing(4)"});
    EXPECT_EQ(elements[1]->GetStrCurrentValue(), "one");
}

TEST_F(Editing, WorksInTwoPanelsOfTwoControllers)
{
    CField& a = AddField("a");
    CRecordingController controller(m_log);
    CPanel panel(m_log);
    auto* field = new CField(m_log, "other");
    auto* element = new CElement(m_log, "other.element");
    controller.SetInspectorView(&panel);
    panel.SetController(&controller);
    controller.AddItem(element, field, nullptr);
    panel.AddElement(element, field, "other", nullptr, nullptr);
    panel.ResizeInspector(300, 100);
    panel.RecomputeLayout();
    panel.show();
    ASSERT_NO_FATAL_FAILURE(Open());
    Click(a);
    Type("12");
    Click(*field);
    EXPECT_EQ(ElementOf(a).GetStrCurrentValue(), "12");
    ExpectEditing(*field);
    Type("34");
    Press(Qt::Key_Tab);
    EXPECT_EQ(element->GetStrCurrentValue(), "34");
    ExpectEditing(*field);
    Press(Qt::Key_Escape);
}
