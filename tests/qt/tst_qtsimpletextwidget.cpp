#include <qtsimpletextwidget.h>

#include <booldataelement.h>
#include <simpledataelement.h>

#include <qttextencoding.h>

#include <qt/declaredin.h>
#include <qt/logginghost.h>
#include <qt/paintcounter.h>
#include <support/calls.h>
#include <support/rowname.h>

#include <QMetaObject>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

using namespace std::string_literals;

class CTextBox : public CQTSimpleTextWidget
{
public:
    using CQTSimpleTextWidget::GetSafeData;

    static constexpr bool OverridesFocusOutOnly()
    {
        return IsDeclaredIn<CQTSimpleTextWidget>(&CTextBox::focusOutEvent) &&
               IsDeclaredIn<QTextEdit>(&CTextBox::paintEvent) &&
               IsDeclaredIn<QTextEdit>(&CTextBox::mousePressEvent) &&
               IsDeclaredIn<QTextEdit>(&CTextBox::keyPressEvent) &&
               IsDeclaredIn<QTextEdit>(&CTextBox::wheelEvent) &&
               IsDeclaredIn<QTextEdit>(&CTextBox::focusInEvent) &&
               IsDeclaredIn<QTextEdit>(&CTextBox::showEvent) &&
               IsDeclaredIn<QWidget>(&CTextBox::hideEvent) &&
               IsDeclaredIn<QTextEdit>(&CTextBox::event);
    }
};

class TextWidget : public testing::Test
{
protected:
    void SetUp() override
    {
        Bind(m_element, m_box);
        m_box.resize(200, 100);
        m_log.Clear();
    }

    ~TextWidget() override { CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1); }

    void Load(const std::string& text)
    {
        m_element.SetStrCurrentValue(text);
        m_box.OnValueChange(nullptr);
    }

    std::string Text()
    {
        std::string text = "overwritten";
        m_box.GetDataAsString(text);
        return text;
    }

    void Focus(QWidget& widget)
    {
        widget.setFocus();
        ASSERT_TRUE(widget.hasFocus());
    }

    /// Shows the box beside something else that can have the focus.
    void ShowWithNeighbour()
    {
        m_neighbour.setParent(&m_window);
        m_neighbour.setFocusPolicy(Qt::StrongFocus);
        m_box.setParent(&m_window);
        m_window.show();
        m_window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    CCallLog m_log;
    QWidget m_window;
    QWidget m_neighbour;
    CTextBox m_box;
    TLoggingElement<CSimpleDataElement> m_element{m_log, "element"};
};

const CCalls g_taken = {"element.OnCtrlValueChange()", "element.InternalValueChanged()"};

struct sText
{
    const char* m_szName;
    CQTTextEncoding::eTextEncoding m_eEncoding;
    std::string m_sText;
};

std::string AllLatin1()
{
    std::string text;
    for (int byte = 1; byte < 256; ++byte)
        text += static_cast<char>(byte);
    return text;
}

const auto g_latin1 = CQTTextEncoding::eTextEncodingLatin1;
const auto g_utf8 = CQTTextEncoding::eTextEncodingUtf8;

const sText g_texts[] = {
    {"Empty", g_latin1, ""},
    {"Plain", g_latin1, "plain text"},
    {"Lines", g_latin1, "one\ntwo\n\nfour\n"},
    {"CarriageReturns", g_latin1, "one\r\ntwo\rthree"},
    {"EveryLatin1Byte", g_latin1, AllLatin1()},
    {"NoBreakSpace", g_latin1, "a\xA0z"},
    {"Markup", g_latin1, "<b>bold</b> &amp; more"},
    {"MarkupWithoutText", g_latin1, "<p></p>"},
    {"Tabs", g_latin1, "\ta\t\tb"},
    {"Utf8", g_utf8, "gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xF0\x9F\x98\x80"},
    {"Utf8ByteOrderMark", g_utf8, "\xEF\xBB\xBFtext"},
    {"Utf8TwoByteOrderMarks", g_utf8, "\xEF\xBB\xBF\xEF\xBB\xBFtext"},
    {"Utf8ByteOrderMarkInside", g_utf8, "te\xEF\xBB\xBFxt"},
    {"Utf8NonCharacters", g_utf8, "a\xEF\xBF\xBE-\xEF\xBF\xBF-\xEF\xB7\x90-\xEF\xB7\x91z"},
    {"Utf8LineAndParagraphSeparators", g_utf8, "a\xE2\x80\xA8-\xE2\x80\xA9z"},
    {"Utf8ObjectReplacement", g_utf8, "a\xEF\xBF\xBCz"},
    {"Utf8NoBreakSpace", g_utf8, "a\xC2\xA0z"},
};

class TextWidgetRoundTrip : public TextWidget, public testing::WithParamInterface<sText>
{
};

} // namespace

TEST_F(TextWidget, HasItsBasesInOrder)
{
    EXPECT_EQ(OffsetOf<QTextEdit>(m_box), 0);
    EXPECT_LT(OffsetOf<QTextEdit>(m_box), OffsetOf<CInspectorDataWidget>(m_box));
    EXPECT_LT(OffsetOf<CInspectorDataWidget>(m_box), OffsetOf<ISimpleDataProvider>(m_box));
}

TEST_F(TextWidget, AnswersToTheNamesOfItsBases)
{
    CInspectorDataWidget* data = &m_box;
    ISimpleDataProvider* provider = &m_box;
    EXPECT_STREQ(m_box.metaObject()->className(), "CQTSimpleTextWidget");
    EXPECT_EQ(m_box.qt_metacast("CQTSimpleTextWidget"), static_cast<CQTSimpleTextWidget*>(&m_box));
    EXPECT_EQ(m_box.qt_metacast("CInspectorDataWidget"), data);
    EXPECT_EQ(m_box.qt_metacast("ISimpleDataProvider"), provider);
    EXPECT_EQ(m_box.qt_metacast("QTextEdit"), static_cast<QTextEdit*>(&m_box));
    EXPECT_EQ(m_box.qt_metacast("IInPlaceEditSink"), nullptr);
}

TEST_F(TextWidget, HasNoSignalsAndSlotsOfItsOwn)
{
    const QMetaObject& meta = CQTSimpleTextWidget::staticMetaObject;
    EXPECT_STREQ(meta.superClass()->className(), "QTextEdit");
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST_F(TextWidget, OverridesTheFocusOutHandlerOnly)
{
    EXPECT_TRUE(CTextBox::OverridesFocusOutOnly());
}

TEST_F(TextWidget, KeepsTheContractsOperationsThatItDoesNotNeed)
{
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CTextBox::SetDataElement));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CTextBox::StartEditing));
    EXPECT_TRUE(IsDeclaredIn<CQTSimpleTextWidget>(&CTextBox::OnValueChange));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CTextBox::OnTopoChange));
}

TEST_F(TextWidget, HasItsTypeStringAndSize)
{
    EXPECT_STREQ(m_box.GetType(), "qt.simple.text");
    EXPECT_EQ(m_box.GetRequiredWidth(), 20);
    for (const int width : {-1, 0, 20, 5000})
        EXPECT_EQ(m_box.GetRequiredHeight(width), 100);
}

TEST_F(TextWidget, HandsTheLayoutOnToQt)
{
    m_box.setParent(&m_window);
    m_box.MoveWidget(-7, 12);
    m_box.ResizeWidget(133, 144);
    EXPECT_EQ(m_box.geometry(), QRect(-7, 12, 133, 144));
    m_box.Show();
    EXPECT_FALSE(m_box.isHidden());
    m_box.Hide();
    EXPECT_TRUE(m_box.isHidden());
    m_box.setParent(nullptr);
}

TEST_F(TextWidget, KnowsItsElementOnlyWhenItHoldsText)
{
    EXPECT_EQ(m_box.GetSafeData(), &m_element);
    CBoolDataElement other;
    m_box.SetDataElement(&other);
    EXPECT_EQ(m_box.GetSafeData(), nullptr);
    m_box.SetDataElement(nullptr);
    EXPECT_EQ(m_box.GetSafeData(), nullptr);
}

TEST_F(TextWidget, CanBeTypedIntoAlsoForAReadOnlyElement)
{
    EXPECT_FALSE(m_box.isReadOnly());
    m_element.SetReadOnly(true);
    m_box.InitFromElement();
    EXPECT_FALSE(m_box.isReadOnly());
}

TEST_F(TextWidget, TakesTheTextOfItsElement)
{
    m_element.SetStrCurrentValue("one");
    m_box.InitFromElement();
    EXPECT_EQ(m_box.toPlainText(), QStringLiteral("one"));
    CInspectorDataWidget::sValueChangeInfo info;
    info.m_iCode = 77;
    m_element.SetStrCurrentValue("two");
    m_box.OnValueChange(&info);
    EXPECT_EQ(m_box.toPlainText(), QStringLiteral("two"));
    EXPECT_EQ(Text(), "two");
    m_element.SetStrCurrentValue("");
    m_box.OnValueChange(nullptr);
    EXPECT_EQ(m_box.toPlainText(), QString());
    EXPECT_EQ(Text(), "");
}

TEST_F(TextWidget, ShowsMarkupAsTheToolkitDoes)
{
    Load("<b>bold</b>");
    EXPECT_EQ(m_box.toPlainText(), QStringLiteral("bold"));
}

TEST_P(TextWidgetRoundTrip, GivesATextThatNobodyChangedBackByteForByte)
{
    CQTTextEncoding::SetEncoding(GetParam().m_eEncoding);
    Load(GetParam().m_sText);
    EXPECT_EQ(Text(), GetParam().m_sText);
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&m_box, &out);
    EXPECT_EQ(m_element.GetStrCurrentValue(), GetParam().m_sText);
    EXPECT_EQ(m_log.Take(), CCalls{"element.OnCtrlValueChange()"});
}

INSTANTIATE_TEST_SUITE_P(Texts, TextWidgetRoundTrip, testing::ValuesIn(g_texts), sRowName());

TEST_F(TextWidget, GivesTheNewTextOnceSomebodyTyped)
{
    Load("a\xA0z");
    m_box.moveCursor(QTextCursor::End);
    QTest::keyClicks(&m_box, QStringLiteral("!"));
    EXPECT_EQ(Text(), "a z!");
    QTest::keyClick(&m_box, Qt::Key_Backspace);
    EXPECT_EQ(Text(), "a\xA0z");
}

TEST_F(TextWidget, ForgetsTheTextOfAnEarlierValue)
{
    Load("<b>bold</b>");
    Load("plain");
    m_box.setPlainText(QStringLiteral("bold"));
    EXPECT_EQ(Text(), "bold");
}

TEST_F(TextWidget, GivesATypedTextUpToItsFirstZero)
{
    m_box.setPlainText(QString::fromLatin1("ab\0cd", 5));
    EXPECT_EQ(Text(), "ab");
}

TEST_F(TextWidget, WritesAQuestionMarkForACharacterThatLatin1DoesNotHave)
{
    m_box.setPlainText(QString(QChar(0x20AC)));
    EXPECT_EQ(Text(), "?");
}

TEST_F(TextWidget, KeepsATextOfAMegabyte)
{
    std::string text(1 << 20, 'x');
    for (std::size_t i = 60; i < text.size(); i += 61)
        text[i] = '\n';
    Load(text);
    EXPECT_TRUE(Text() == text);
}

TEST_F(TextWidget, BreaksLongWordsAnywhereBecauseTheToolkitTakesForeverOtherwise)
{
    const auto modeOf = [this](std::size_t letters)
    {
        Load("before " + std::string(letters, 'w'));
        return m_box.wordWrapMode();
    };
    EXPECT_EQ(modeOf(10000), QTextOption::WrapAtWordBoundaryOrAnywhere);
    EXPECT_EQ(modeOf(10001), QTextOption::WrapAnywhere);
    EXPECT_EQ(modeOf(20000), QTextOption::WrapAnywhere);
    EXPECT_EQ(modeOf(5), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST_F(TextWidget, LeavesTheWrappingThatAHostWants)
{
    for (const auto mode : {QTextOption::NoWrap, QTextOption::WordWrap, QTextOption::WrapAnywhere})
    {
        m_box.setWordWrapMode(mode);
        Load(std::string(10001, 'w'));
        EXPECT_EQ(m_box.wordWrapMode(), mode);
        Load("short");
        EXPECT_EQ(m_box.wordWrapMode(), mode);
    }
}

TEST_F(TextWidget, HandsTheTextToItsElementWhenItLosesTheFocusAndNotBefore)
{
    ASSERT_NO_FATAL_FAILURE(ShowWithNeighbour());
    ASSERT_NO_FATAL_FAILURE(Focus(m_box));
    QTest::keyClicks(&m_box, QStringLiteral("two words"));
    QTest::keyClick(&m_box, Qt::Key_Return);
    QTest::keyClicks(&m_box, QStringLiteral("x"));
    EXPECT_EQ(m_element.GetStrCurrentValue(), "");
    EXPECT_EQ(m_log.GetCalls(), CCalls());
    ASSERT_NO_FATAL_FAILURE(Focus(m_neighbour));
    EXPECT_EQ(m_element.GetStrCurrentValue(), "two words\nx");
    EXPECT_EQ(m_log.Take(), g_taken);
}

TEST_F(TextWidget, HandsAnUnchangedTextOnWithoutAHook)
{
    ASSERT_NO_FATAL_FAILURE(ShowWithNeighbour());
    Load("one");
    ASSERT_NO_FATAL_FAILURE(Focus(m_box));
    ASSERT_NO_FATAL_FAILURE(Focus(m_neighbour));
    EXPECT_EQ(m_log.Take(), CCalls{"element.OnCtrlValueChange()"});
}

TEST_F(TextWidget, ReportsEveryLossOfTheFocusWhateverItsReason)
{
    for (const Qt::FocusReason reason :
         {Qt::MouseFocusReason, Qt::TabFocusReason, Qt::ActiveWindowFocusReason,
          Qt::PopupFocusReason, Qt::OtherFocusReason})
    {
        QFocusEvent out(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&m_box, &out);
        EXPECT_EQ(m_log.Take(), CCalls{"element.OnCtrlValueChange()"}) << reason;
    }
}

TEST_F(TextWidget, IsNoLongerHeardByAReadOnlyElement)
{
    m_element.SetReadOnly(true);
    m_box.setPlainText(QStringLiteral("typed"));
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&m_box, &out);
    EXPECT_EQ(m_element.GetStrCurrentValue(), "");
    EXPECT_EQ(m_log.Take(), CCalls{"element.OnCtrlValueChange()"});
}
