#include <inspector/qt/inplaceedit.h>

#include <qttextencoding.h>

#include <qt/recordingsink.h>
#include <support/calls.h>
#include <support/rowname.h>

#include <QApplication>
#include <QInputMethodEvent>
#include <QMetaMethod>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace
{

class LineEditor : public testing::Test
{
protected:
    void SetUp() override
    {
        m_owner.setGeometry(30, 40, 150, 20);
        m_owner.show();
        m_editor.SetSink(&m_sink);
    }

    ~LineEditor() override
    {
        m_editor.ForgetSink(&m_sink);
        m_editor.ForgetSink(&m_other);
        CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
    }

    void Open(const char* text = "start")
    {
        m_editor.SetStartText(text);
        m_editor.StartEditing(m_owner, m_owner.rect());
    }

    void Type(const char* text) { QTest::keyClicks(&m_editor, QLatin1String(text)); }

    /// What an input method shows while it composes.
    void Compose(const QString& text)
    {
        QInputMethodEvent event(text, {});
        QCoreApplication::sendEvent(&m_editor, &event);
    }

    bool Deactivate()
    {
        QEvent event(QEvent::WindowDeactivate);
        return QCoreApplication::sendEvent(&m_editor, &event);
    }

    CCallLog m_log;
    CRecordingSink m_sink{m_log, "sink"};
    CRecordingSink m_other{m_log, "other"};
    QWidget m_owner;
    CInPlaceEdit m_editor;
};

struct sEndKey
{
    const char* m_szName;
    Qt::Key m_eKey;
    int m_iCause;
    int m_iCauseWithShift;
};

const sEndKey g_endKeys[] = {
    {"Escape", Qt::Key_Escape, 0, 0},   {"Return", Qt::Key_Return, 1, 1},
    {"Enter", Qt::Key_Enter, 1, 1},     {"Tab", Qt::Key_Tab, 2, 3},
    {"Backtab", Qt::Key_Backtab, 3, 3},
};

class LineEditorEndKey : public LineEditor, public testing::WithParamInterface<sEndKey>
{
};

} // namespace

TEST_F(LineEditor, IsALineEditWithOnePrivateSlot)
{
    const QMetaObject& meta = CInPlaceEdit::staticMetaObject;
    EXPECT_STREQ(meta.className(), "CInPlaceEdit");
    EXPECT_STREQ(meta.superClass()->className(), "QLineEdit");
    ASSERT_EQ(meta.methodCount(), meta.methodOffset() + 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    EXPECT_EQ(slot.methodSignature(), "OnFinishEditing()");
    EXPECT_EQ(slot.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(slot.access(), QMetaMethod::Private);
}

TEST_F(LineEditor, StartsHiddenWithoutParentAndText)
{
    const CInPlaceEdit fresh;
    EXPECT_EQ(fresh.parent(), nullptr);
    EXPECT_TRUE(fresh.isHidden());
    EXPECT_EQ(fresh.text(), QString());
}

TEST_F(LineEditor, CoversTheAreaExactlyAsAFocusedToolTipWindow)
{
    Open();
    EXPECT_EQ(m_editor.geometry(), QRect(m_owner.mapToGlobal(QPoint(0, 0)), m_owner.size()));
    EXPECT_EQ(m_editor.windowType(), Qt::ToolTip);
    EXPECT_TRUE(m_editor.isWindow());
    EXPECT_TRUE(m_editor.isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_editor));
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_editor.hasFocus(); }));
    m_editor.HideSilently();
}

TEST_F(LineEditor, TakesTheAreaInTheCoordinatesOfItsOwner)
{
    QWidget child(&m_owner);
    child.move(11, 2);
    m_editor.StartEditing(child, QRect(3, 4, 60, 12));
    EXPECT_EQ(m_editor.geometry(), QRect(m_owner.mapToGlobal(QPoint(14, 6)), QSize(60, 12)));
    m_editor.HideSilently();
}

TEST_F(LineEditor, StartsWithTheWholeTextSelected)
{
    Open("some text");
    EXPECT_EQ(m_editor.text(), QStringLiteral("some text"));
    EXPECT_EQ(m_editor.selectedText(), QStringLiteral("some text"));
    Type("x");
    EXPECT_EQ(m_editor.text(), QStringLiteral("x"));
    m_editor.HideSilently();
}

TEST_F(LineEditor, SelectsAllOfAValueThatNobodyTypedOverWhenTheKeyboardComesBack)
{
    const auto comeBack = [this]
    {
        m_editor.deselect();
        QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(&m_editor, &back);
        return m_editor.selectedText();
    };
    Open();
    EXPECT_EQ(comeBack(), QStringLiteral("start"));
    Type("12");
    EXPECT_EQ(comeBack(), QString());
}

TEST_F(LineEditor, StaysWhereItWasOpened)
{
    Open();
    const QRect place = m_editor.geometry();
    m_owner.setGeometry(200, 300, 50, 30);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_editor.geometry(), place);
    m_editor.HideSilently();
}

TEST_P(LineEditorEndKey, EndsTheEditWithItsCauseUnderEveryModifier)
{
    const Qt::KeyboardModifier modifiers[] = {Qt::ShiftModifier, Qt::ControlModifier,
                                              Qt::AltModifier, Qt::MetaModifier,
                                              Qt::KeypadModifier};
    for (int mask = 0; mask < 32; ++mask)
    {
        Qt::KeyboardModifiers pressed;
        for (int bit = 0; bit < 5; ++bit)
            pressed.setFlag(modifiers[bit], (mask >> bit) & 1);
        Open("old");
        m_editor.setText(QStringLiteral("new"));
        QTest::keyClick(&m_editor, GetParam().m_eKey, pressed);
        const int cause = pressed.testFlag(Qt::ShiftModifier) ? GetParam().m_iCauseWithShift
                                                              : GetParam().m_iCause;
        const std::string text = cause == 0 ? "old" : "new";
        EXPECT_EQ(m_log.Take(),
                  CCalls{"sink.FinishValueEdit(" + text + ", " + std::to_string(cause) + ")"})
            << mask;
        EXPECT_TRUE(m_editor.isHidden());
        EXPECT_EQ(m_editor.text().toStdString(), text);
    }
}

INSTANTIATE_TEST_SUITE_P(Keys, LineEditorEndKey, testing::ValuesIn(g_endKeys), sRowName());

TEST_F(LineEditor, KeepsEveryOtherKeyForTheText)
{
    Open();
    for (const Qt::Key key :
         {Qt::Key_A, Qt::Key_Space, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down,
          Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace,
          Qt::Key_F1, Qt::Key_Shift, Qt::Key_Control})
    {
        QTest::keyClick(&m_editor, key);
        EXPECT_TRUE(m_editor.isVisible()) << key;
        EXPECT_EQ(m_log.GetCalls(), CCalls()) << key;
    }
    m_editor.HideSilently();
}

TEST_F(LineEditor, ConsumesTheKeyThatEndsTheEdit)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab})
    {
        Open();
        QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers());
        EXPECT_TRUE(QCoreApplication::sendEvent(&m_editor, &press));
        EXPECT_TRUE(press.isAccepted());
    }
}

TEST_F(LineEditor, RestoresTheStartTextOnEscapeOnly)
{
    Open("12");
    Type("345");
    QTest::keyClick(&m_editor, Qt::Key_Escape);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(12, 0)"});
    Open("12");
    Type("345");
    EXPECT_TRUE(Deactivate());
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(345, 4)"});
}

TEST_F(LineEditor, IsHiddenBeforeItReports)
{
    bool wasHidden = false;
    m_sink.m_fnFinishValueEdit = [&] { wasHidden = m_editor.isHidden(); };
    Open();
    QTest::keyClick(&m_editor, Qt::Key_Return);
    EXPECT_TRUE(wasHidden);
}

TEST_F(LineEditor, ReportsAnEndOnceThoughItLosesTheFocusWhileItHides)
{
    Open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_editor.hasFocus(); }));
    int signals = 0;
    QObject::connect(&m_editor, &QLineEdit::editingFinished, [&] { ++signals; });
    QTest::keyClick(&m_editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_GE(signals, 1);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(start, 1)"});
    Q_EMIT m_editor.editingFinished();
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(LineEditor, ReportsTheCauseOfTheLastEndWhenNothingElseIsKnown)
{
    Open();
    Q_EMIT m_editor.editingFinished();
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(start, 4)"});
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Backtab})
    {
        Open();
        QTest::keyClick(&m_editor, key);
        const CCalls reported = m_log.Take();
        ASSERT_EQ(reported.size(), 1u);
        Open();
        Q_EMIT m_editor.editingFinished();
        EXPECT_EQ(m_log.Take(), reported);
    }
}

TEST_F(LineEditor, IgnoresADeactivationWhileNothingIsEdited)
{
    Open();
    QTest::keyClick(&m_editor, Qt::Key_Tab);
    m_log.Clear();
    Deactivate();
    EXPECT_EQ(m_log.GetCalls(), CCalls());
    Open();
    Q_EMIT m_editor.editingFinished();
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(start, 2)"});
}

TEST_F(LineEditor, EndsARunningEditForAnotherSink)
{
    Open("one");
    Type("two");
    m_editor.SetSink(&m_other);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(two, 4)"});
    EXPECT_TRUE(m_editor.isHidden());
    Open("three");
    QTest::keyClick(&m_editor, Qt::Key_Return);
    EXPECT_EQ(m_log.Take(), CCalls{"other.FinishValueEdit(three, 1)"});
}

TEST_F(LineEditor, EndsARunningEditForAnotherStartText)
{
    Open("one");
    Type("two");
    m_editor.SetStartText("three");
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(two, 4)"});
    EXPECT_TRUE(m_editor.isHidden());
    EXPECT_EQ(m_editor.text(), QStringLiteral("three"));
}

TEST_F(LineEditor, EndsARunningEditForAnotherStart)
{
    Open("one");
    Type("two");
    m_editor.StartEditing(m_owner, QRect(0, 0, 40, 20));
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(two, 4)"});
    EXPECT_TRUE(m_editor.isVisible());
    EXPECT_EQ(m_editor.width(), 40);
    m_editor.HideSilently();
}

TEST_F(LineEditor, TellsNobodyWithoutASink)
{
    m_editor.SetSink(nullptr);
    Open();
    QTest::keyClick(&m_editor, Qt::Key_Return);
    EXPECT_TRUE(m_editor.isHidden());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(LineEditor, StaysOpenForNobodyWhenItsSinkIsForgotten)
{
    Open();
    m_editor.ForgetSink(&m_other);
    Type("typed");
    m_editor.ForgetSink(&m_sink);
    EXPECT_TRUE(m_editor.isVisible());
    EXPECT_EQ(m_editor.text(), QStringLiteral("typed"));
    QTest::keyClick(&m_editor, Qt::Key_Return);
    EXPECT_TRUE(m_editor.isHidden());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(LineEditor, KeepsASinkThatIsNotTheOneToForget)
{
    Open();
    m_editor.ForgetSink(&m_other);
    QTest::keyClick(&m_editor, Qt::Key_Return);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(start, 1)"});
}

TEST_F(LineEditor, ClosesWithoutAReportWhenItIsHiddenSilently)
{
    Open();
    Type("typed");
    m_editor.HideSilently();
    EXPECT_TRUE(m_editor.isHidden());
    QCoreApplication::processEvents();
    m_editor.EndEditing();
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(LineEditor, CanBeOpenedAgainFromItsReport)
{
    m_sink.m_fnFinishValueEdit = [this]
    {
        m_sink.m_fnFinishValueEdit = nullptr;
        Open("again");
    };
    Open("one");
    QTest::keyClick(&m_editor, Qt::Key_Return);
    EXPECT_TRUE(m_editor.isVisible());
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(one, 1)"});
    QTest::keyClick(&m_editor, Qt::Key_Tab);
    EXPECT_TRUE(m_editor.isHidden());
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(again, 2)"});
}

TEST_F(LineEditor, KeepsKeysFromShortcuts)
{
    Open();
    for (const int key : {int(Qt::Key_A), int(Qt::Key_Delete), int(Qt::Key_Space), int(Qt::Key_F5),
                          int(Qt::Key_Escape), int(Qt::Key_Tab), int(Qt::Key_Return)})
    {
        for (const auto modifier : {Qt::NoModifier, Qt::ControlModifier, Qt::AltModifier})
        {
            QKeyEvent event(QEvent::ShortcutOverride, key, modifier);
            event.ignore();
            QCoreApplication::sendEvent(&m_editor, &event);
            EXPECT_TRUE(event.isAccepted()) << key << " " << modifier;
        }
    }
    m_editor.HideSilently();
}

TEST_F(LineEditor, CommitsACompositionBeforeEveryEnd)
{
    const std::pair<const char*, CHook> ends[] = {
        {"1", [this] { QTest::keyClick(&m_editor, Qt::Key_Return); }},
        {"2", [this] { QTest::keyClick(&m_editor, Qt::Key_Tab); }},
        {"3", [this] { QTest::keyClick(&m_editor, Qt::Key_Backtab); }},
        {"4", [this] { Deactivate(); }},
        {"4", [this] { m_editor.SetSink(&m_sink); }},
        {"4", [this] { m_editor.SetStartText("next"); }},
        {"4", [this] { m_editor.EndEditing(); }},
    };
    for (const auto& [cause, end] : ends)
    {
        Open("old");
        Type("a");
        Compose(QStringLiteral("b"));
        Compose(QStringLiteral("bc"));
        EXPECT_EQ(m_editor.text(), QStringLiteral("a"));
        end();
        EXPECT_EQ(m_log.Take(), CCalls{std::string("sink.FinishValueEdit(abc, ") + cause + ")"});
    }
}

TEST_F(LineEditor, DropsACompositionOnEscape)
{
    Open("old");
    Compose(QStringLiteral("bc"));
    QTest::keyClick(&m_editor, Qt::Key_Escape);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(old, 0)"});
    EXPECT_EQ(m_editor.text(), QStringLiteral("old"));
    Open("new");
    m_editor.EndEditing();
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(new, 0)"});
}

TEST_F(LineEditor, AddsNothingForACompositionThatIsOver)
{
    Open("old");
    Compose(QStringLiteral("bc"));
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("d"));
    QCoreApplication::sendEvent(&m_editor, &commit);
    QTest::keyClick(&m_editor, Qt::Key_Return);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(d, 1)"});
}

TEST_F(LineEditor, TakesNoTextOfAnyKindWhileItIsReadOnly)
{
    Open("old");
    m_editor.setReadOnly(true);
    Type("x");
    QTest::keyClick(&m_editor, Qt::Key_Delete);
    Compose(QStringLiteral("bc"));
    QTest::keyClick(&m_editor, Qt::Key_Return);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(old, 1)"});
    m_editor.setReadOnly(false);
}

TEST_F(LineEditor, ReportsWhatCameUnchanged)
{
    std::string latin1;
    for (int byte = 1; byte < 256; ++byte)
        latin1 += static_cast<char>(byte);
    std::string megabyte(1 << 20, 'x');
    megabyte.back() = '\xE9';
    for (const std::string& text : {std::string(), latin1, megabyte})
    {
        Open(text.c_str());
        QTest::keyClick(&m_editor, Qt::Key_Return);
        EXPECT_TRUE(m_sink.m_sValue == text) << text.size();
        Open(text.c_str());
        QTest::keyClick(&m_editor, Qt::Key_Escape);
        EXPECT_TRUE(m_sink.m_sValue == text) << text.size();
    }
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    for (const std::string text :
         {"gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xF0\x9F\x98\x80", "\xEF\xBB\xBFtext",
          "\xEF\xBB\xBF\xEF\xBB\xBF", "a\xEF\xBF\xBE-\xEF\xBF\xBF-\xEF\xB7\x90z",
          "a\xE2\x80\xA8-\xE2\x80\xA9-\xEF\xBF\xBC-\xC2\xA0z", "line\nline\r\n\ttab"})
    {
        Open(text.c_str());
        QTest::keyClick(&m_editor, Qt::Key_Return);
        EXPECT_EQ(m_sink.m_sValue, text);
    }
}

TEST_F(LineEditor, WritesAQuestionMarkForACharacterThatLatin1DoesNotHave)
{
    Open("");
    m_editor.setText(QString(QChar(0x20AC)));
    QTest::keyClick(&m_editor, Qt::Key_Return);
    EXPECT_EQ(m_sink.m_sValue, "?");
}

TEST(LineEditorDisposal, HappensAtOnceWhenTheEditorIsIdle)
{
    const QPointer<CInPlaceEdit> editor = new CInPlaceEdit;
    editor->Dispose();
    EXPECT_FALSE(editor);
}

TEST(LineEditorDisposal, WaitsForTheEndOfAReport)
{
    CCallLog log;
    CRecordingSink sink(log, "sink");
    QWidget owner;
    const QPointer<CInPlaceEdit> editor = new CInPlaceEdit;
    bool wasThere = false;
    sink.m_fnFinishValueEdit = [&]
    {
        editor->Dispose();
        wasThere = !editor.isNull();
    };
    editor->SetSink(&sink);
    editor->SetStartText("text");
    editor->StartEditing(owner, owner.rect());
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(wasThere);
    EXPECT_TRUE(!editor || editor->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(editor);
    EXPECT_EQ(log.Take(), CCalls{"sink.FinishValueEdit(text, 1)"});
}

TEST(LineEditorDisposal, HidesAnEditorThatIsOpenedAgainInTheReport)
{
    CCallLog log;
    CRecordingSink sink(log, "sink");
    QWidget owner;
    const QPointer<CInPlaceEdit> editor = new CInPlaceEdit;
    sink.m_fnFinishValueEdit = [&]
    {
        sink.m_fnFinishValueEdit = nullptr;
        editor->StartEditing(owner, owner.rect());
        editor->Dispose();
    };
    editor->SetSink(&sink);
    editor->StartEditing(owner, owner.rect());
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(!editor || editor->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(editor);
    EXPECT_EQ(log.Take(), CCalls{"sink.FinishValueEdit(, 1)"});
}
