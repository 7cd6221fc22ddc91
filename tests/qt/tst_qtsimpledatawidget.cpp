#include <qtsimpledatawidget.h>

#include <booldataelement.h>
#include <enumdataelement.h>
#include <simpledataelement.h>

#include <inspector/qt/inplaceedit.h>

#include <qttextencoding.h>

#include <qt/declaredin.h>
#include <qt/logginghost.h>
#include <qt/paintcounter.h>
#include <qt/palettes.h>
#include <support/calls.h>
#include <support/images.h>
#include <support/rowname.h>

#include <QMetaObject>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace
{

using namespace std::string_literals;

class CField : public CQTSimpleDataWidget
{
public:
    using CQTSimpleDataWidget::GetSafeControlDataProvider;
    using CQTSimpleDataWidget::GetSafeSimpleData;
    using CQTSimpleDataWidget::m_sText;

    static constexpr bool OverridesItsFourHandlersOnly()
    {
        return IsDeclaredIn<CQTSimpleDataWidget>(&CField::paintEvent) &&
               IsDeclaredIn<CQTSimpleDataWidget>(&CField::mousePressEvent) &&
               IsDeclaredIn<CQTSimpleDataWidget>(&CField::showEvent) &&
               IsDeclaredIn<CQTSimpleDataWidget>(&CField::hideEvent) &&
               IsDeclaredIn<QWidget>(&CField::mouseReleaseEvent) &&
               IsDeclaredIn<QWidget>(&CField::mouseDoubleClickEvent) &&
               IsDeclaredIn<QWidget>(&CField::keyPressEvent) &&
               IsDeclaredIn<QWidget>(&CField::wheelEvent) &&
               IsDeclaredIn<QWidget>(&CField::moveEvent) &&
               IsDeclaredIn<QWidget>(&CField::focusInEvent) &&
               IsDeclaredIn<QWidget>(&CField::focusOutEvent) &&
               IsDeclaredIn<QWidget>(&CField::event);
    }
};

class DataWidget : public testing::Test
{
protected:
    void SetUp() override
    {
        Bind(m_element, m_field);
        // Nothing but the hand-over of the focus needs a controller.
        m_element.m_fnOnEndEditing = [] {};
        m_field.resize(120, 20);
        m_log.Clear();
    }

    ~DataWidget() override { CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1); }

    void Load(const std::string& text)
    {
        m_element.SetStrCurrentValue(text);
        m_field.OnValueChange(nullptr);
    }

    std::string Text()
    {
        std::string text = "overwritten";
        m_field.GetDataAsString(text);
        return text;
    }

    static CInPlaceEdit& Editor() { return *CQTSimpleDataWidget::g_pInPlace; }

    CCallLog m_log;
    TLoggingField<CField> m_field{m_log, "field"};
    TLoggingElement<CSimpleDataElement> m_element{m_log, "element"};
};

struct sLook
{
    const char* m_szName;
    const char* m_szText;
    int m_iWidth;
    int m_iHeight;
};

const sLook g_looks[] = {
    {"Text", "Text", 120, 20},
    {"High", "Text", 120, 60},
    {"Low", "Text", 120, 7},
    {"LongerThanTheField", "a text that is longer than the field is wide", 90, 20},
    {"Narrow", "Text", 4, 20},
    {"Ampersand", "a & b &c", 120, 20},
    {"Markup", "<b>bold</b>", 120, 20},
    {"Blanks", "  indented", 120, 20},
};

class DataWidgetLook : public DataWidget, public testing::WithParamInterface<sLook>
{
protected:
    void ExpectLook()
    {
        const sLook& look = GetParam();
        m_field.resize(look.m_iWidth, look.m_iHeight);
        Load(look.m_szText);
        images::ExpectSame(images::Render(m_field),
                           images::Paint(m_field,
                                         [&](QPainter& painter)
                                         {
                                             painter.fillRect(
                                                 0, 0, look.m_iWidth, look.m_iHeight,
                                                 m_field.palette().color(QPalette::Base));
                                             painter.drawText(3, 0, look.m_iWidth, look.m_iHeight,
                                                              Qt::AlignLeft | Qt::AlignVCenter,
                                                              QLatin1String(look.m_szText));
                                         }));
    }
};

} // namespace

TEST_F(DataWidget, HasItsBasesInOrder)
{
    EXPECT_EQ(OffsetOf<QWidget>(m_field), 0);
    EXPECT_LT(OffsetOf<QWidget>(m_field), OffsetOf<CInspectorDataWidget>(m_field));
    EXPECT_LT(OffsetOf<CInspectorDataWidget>(m_field), OffsetOf<ISimpleDataProvider>(m_field));
    EXPECT_LT(OffsetOf<ISimpleDataProvider>(m_field), OffsetOf<IInPlaceEditSink>(m_field));
}

TEST_F(DataWidget, AnswersToTheNamesOfItsBases)
{
    CInspectorDataWidget* data = &m_field;
    ISimpleDataProvider* provider = &m_field;
    IInPlaceEditSink* sink = &m_field;
    EXPECT_STREQ(m_field.metaObject()->className(), "CQTSimpleDataWidget");
    EXPECT_EQ(m_field.qt_metacast("CQTSimpleDataWidget"),
              static_cast<CQTSimpleDataWidget*>(&m_field));
    EXPECT_EQ(m_field.qt_metacast("CInspectorDataWidget"), data);
    EXPECT_EQ(m_field.qt_metacast("ISimpleDataProvider"), provider);
    EXPECT_EQ(m_field.qt_metacast("IInPlaceEditSink"), sink);
    EXPECT_EQ(m_field.qt_metacast("QWidget"), static_cast<QWidget*>(&m_field));
    EXPECT_EQ(m_field.qt_metacast("QLineEdit"), nullptr);
}

TEST_F(DataWidget, HasNoSignalsAndSlotsOfItsOwn)
{
    const QMetaObject& meta = CQTSimpleDataWidget::staticMetaObject;
    EXPECT_STREQ(meta.superClass()->className(), "QWidget");
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST_F(DataWidget, OverridesItsFourHandlersOnly)
{
    EXPECT_TRUE(CField::OverridesItsFourHandlersOnly());
}

TEST_F(DataWidget, KeepsTheContractsOperationsThatItDoesNotNeed)
{
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CField::SetDataElement));
    EXPECT_TRUE(IsDeclaredIn<CQTSimpleDataWidget>(&CField::StartEditing));
    EXPECT_TRUE(IsDeclaredIn<CQTSimpleDataWidget>(&CField::OnValueChange));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CField::OnTopoChange));
}

TEST_F(DataWidget, HasItsTypeStringAndSize)
{
    EXPECT_STREQ(m_field.GetType(), "qt.simple.edit");
    EXPECT_EQ(m_field.GetRequiredWidth(), -1);
    for (const int width : {-1, 0, 20, 5000})
        EXPECT_EQ(m_field.GetRequiredHeight(width), 20);
}

TEST_F(DataWidget, HandsTheLayoutOnToQt)
{
    QWidget panel;
    m_field.setParent(&panel);
    m_field.MoveWidget(-7, 12);
    m_field.ResizeWidget(33, 44);
    EXPECT_EQ(m_field.geometry(), QRect(-7, 12, 33, 44));
    m_field.Show();
    EXPECT_FALSE(m_field.isHidden());
    m_field.Hide();
    EXPECT_TRUE(m_field.isHidden());
    m_field.setParent(nullptr);
}

TEST_F(DataWidget, KnowsItsElementByWhatItIs)
{
    EXPECT_EQ(m_field.GetSafeSimpleData(), &m_element);
    EXPECT_EQ(m_field.GetSafeControlDataProvider(), static_cast<ISimpleDataProvider*>(&m_element));
    CEnumDataElement enumeration;
    m_field.SetDataElement(&enumeration);
    EXPECT_EQ(m_field.GetSafeSimpleData(), &enumeration);
    CBoolDataElement other;
    m_field.SetDataElement(&other);
    EXPECT_EQ(m_field.GetSafeSimpleData(), nullptr);
    EXPECT_EQ(m_field.GetSafeControlDataProvider(), nullptr);
    m_field.SetDataElement(nullptr);
    EXPECT_EQ(m_field.GetSafeSimpleData(), nullptr);
    EXPECT_EQ(m_field.GetSafeControlDataProvider(), nullptr);
}

TEST_F(DataWidget, TakesTheTextOfItsElementWhateverTheNotice)
{
    EXPECT_EQ(Text(), "");
    m_element.SetStrCurrentValue("one");
    m_field.InitFromElement();
    EXPECT_EQ(Text(), "one");
    CInspectorDataWidget::sValueChangeInfo info;
    info.m_iCode = 77;
    m_element.SetStrCurrentValue("two");
    m_field.OnValueChange(&info);
    EXPECT_EQ(Text(), "two");
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(DataWidget, KeepsItsTextWithoutAnElementThatHasOne)
{
    Load("one");
    CBoolDataElement other;
    m_field.SetDataElement(&other);
    m_field.OnValueChange(nullptr);
    EXPECT_EQ(Text(), "one");
    m_field.SetDataElement(nullptr);
    m_field.InitFromElement();
    EXPECT_EQ(Text(), "one");
}

TEST_F(DataWidget, StaysEmptyWithAnElementOfTheWrongType)
{
    CField field;
    CBoolDataElement other;
    Bind(other, field);
    field.InitFromElement();
    EXPECT_EQ(field.m_sText, QString());
}

TEST_F(DataWidget, RepaintsForANewText)
{
    CPaintCounter paints(m_field);
    m_field.OnValueChange(nullptr);
    EXPECT_EQ(paints.Take(), 1);
    m_field.SetDataElement(nullptr);
    m_field.OnValueChange(nullptr);
    EXPECT_EQ(paints.Take(), 0);
}

TEST_F(DataWidget, GivesItsTextUpToTheFirstZeroByte)
{
    Load("ab\0cd"s);
    EXPECT_EQ(m_field.m_sText, QString::fromLatin1("ab\0cd", 5));
    EXPECT_EQ(Text(), "ab");
}

TEST_F(DataWidget, HandsAnEditedTextOnAndThenTheCause)
{
    std::string taken;
    m_element.m_fnOnCtrlValueChange = [&] { taken = Text(); };
    m_field.FinishValueEdit("new", CInspectorDataElement::eEndEditNext);
    EXPECT_EQ(taken, "new");
    EXPECT_EQ(m_field.m_sText, QStringLiteral("new"));
    EXPECT_EQ(m_element.GetStrCurrentValue(), "new");
    EXPECT_EQ(m_log.Take(), (CCalls{"field.FinishValueEdit(new, 2)", "element.OnCtrlValueChange()",
                                    "element.InternalValueChanged()", "element.OnEndEditing(2)"}));
}

TEST_F(DataWidget, ReportsAnEndWithoutAChangeToo)
{
    Load("same");
    m_field.FinishValueEdit("same", CInspectorDataElement::eEndEditCancel);
    EXPECT_EQ(m_log.Take(), (CCalls{"field.FinishValueEdit(same, 0)", "element.OnCtrlValueChange()",
                                    "element.OnEndEditing(0)"}));
}

TEST_F(DataWidget, ShowsWhatWasTypedEvenIfAReadOnlyElementDoesNotTakeIt)
{
    Load("old");
    m_element.SetReadOnly(true);
    m_field.FinishValueEdit("new", CInspectorDataElement::eEndEditValidate);
    EXPECT_EQ(m_element.GetStrCurrentValue(), "old");
    EXPECT_EQ(Text(), "new");
    EXPECT_EQ(m_log.Take(), (CCalls{"field.FinishValueEdit(new, 1)", "element.OnCtrlValueChange()",
                                    "element.OnEndEditing(1)"}));
}

TEST_P(DataWidgetLook, IsItsTextThreePixelsIn)
{
    ExpectLook();
}

TEST_P(DataWidgetLook, TakesItsColoursFromTheGroupOfItsState)
{
    m_field.setPalette(DarkPalette());
    ExpectLook();
    m_field.setEnabled(false);
    ExpectLook();
}

TEST_P(DataWidgetLook, FollowsItsFont)
{
    ExpectLook();
    QFont font = m_field.font();
    font.setBold(true);
    font.setUnderline(true);
    m_field.setFont(font);
    ExpectLook();
    m_field.setStyleSheet(QStringLiteral("font-size: 17px"));
    ExpectLook();
    m_field.setStyleSheet(QStringLiteral("font-size: 9px; font-style: italic"));
    ExpectLook();
}

TEST_P(DataWidgetLook, IsTheSameForAReadOnlyElement)
{
    m_element.SetReadOnly(true);
    ExpectLook();
}

INSTANTIATE_TEST_SUITE_P(Texts, DataWidgetLook, testing::ValuesIn(g_looks), sRowName());

TEST_F(DataWidget, IsOnlyBackgroundWhenItsTextIsEmpty)
{
    m_field.setPalette(DarkPalette());
    EXPECT_TRUE(InkOn(images::Render(m_field), m_field.palette().color(QPalette::Base)).isEmpty());
    Load("x");
    const QRect ink = InkOn(images::Render(m_field), m_field.palette().color(QPalette::Base));
    EXPECT_GE(ink.left(), 3);
    EXPECT_LT(ink.left(), 7);
}

TEST_F(DataWidget, ShowsItsTextInTheChosenEncoding)
{
    Load("\xE4");
    EXPECT_EQ(m_field.m_sText, QString(QChar(0xE4)));
    const QImage latin1 = images::Render(m_field);
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    Load("\xC3\xA4");
    EXPECT_EQ(Text(), "\xC3\xA4");
    images::ExpectSame(images::Render(m_field), latin1);
}

TEST_F(DataWidget, DoesNotOpenItsEditorForOtherMouseButtons)
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
    {
        QTest::mouseClick(&m_field, button);
        EXPECT_FALSE(Editor().isVisible()) << button;
    }
}

TEST_F(DataWidget, DoesNotOpenItsEditorByMouseForAReadOnlyElement)
{
    m_element.SetReadOnly(true);
    QTest::mouseClick(&m_field, Qt::LeftButton);
    EXPECT_FALSE(Editor().isVisible());
}

TEST_F(DataWidget, DoesNotOpenItsEditorWithoutATextElement)
{
    CBoolDataElement other;
    for (CInspectorDataElement* element : {static_cast<CInspectorDataElement*>(&other),
                                           static_cast<CInspectorDataElement*>(nullptr)})
    {
        m_field.SetDataElement(element);
        QTest::mouseClick(&m_field, Qt::LeftButton);
        EXPECT_FALSE(Editor().isVisible());
        m_field.StartEditing();
        EXPECT_FALSE(Editor().isVisible());
    }
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST(SharedLineEditor, LivesAsLongAsThereAreFields)
{
    EXPECT_EQ(CQTSimpleDataWidget::g_pInPlace, nullptr);
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 0);
    auto first = std::make_unique<CQTSimpleDataWidget>();
    const QPointer<QWidget> editor = CQTSimpleDataWidget::g_pInPlace;
    ASSERT_TRUE(editor);
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 1);
    auto second = std::make_unique<CQTSimpleDataWidget>();
    auto third = std::make_unique<CQTSimpleDataWidget>();
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 3);
    EXPECT_EQ(CQTSimpleDataWidget::g_pInPlace, editor.data());
    EXPECT_EQ(editor->parent(), nullptr);
    EXPECT_TRUE(editor->isHidden());

    first.reset();
    third.reset();
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 1);
    EXPECT_TRUE(editor);
    second.reset();
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 0);
    EXPECT_EQ(CQTSimpleDataWidget::g_pInPlace, nullptr);
    EXPECT_FALSE(editor);

    const CQTSimpleDataWidget fresh;
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 1);
    EXPECT_NE(CQTSimpleDataWidget::g_pInPlace, nullptr);
}

TEST(SharedLineEditor, IsMadeAnewWhenSomebodyDestroyedIt)
{
    CSimpleDataElement element;
    CQTSimpleDataWidget field;
    Bind(element, field);
    delete CQTSimpleDataWidget::g_pInPlace;
    EXPECT_EQ(CQTSimpleDataWidget::g_pInPlace, nullptr);
    field.StartEditing();
    ASSERT_NE(CQTSimpleDataWidget::g_pInPlace, nullptr);
    EXPECT_TRUE(CQTSimpleDataWidget::g_pInPlace->isVisible());
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 1);
}

TEST(SharedLineEditor, IsNotMissedByTheLastFieldWhenSomebodyDestroyedIt)
{
    auto field = std::make_unique<CQTSimpleDataWidget>();
    delete CQTSimpleDataWidget::g_pInPlace;
    EXPECT_EQ(CQTSimpleDataWidget::g_pInPlace, nullptr);
    field.reset();
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 0);
}

TEST(SharedLineEditor, IsHiddenSilentlyWithTheFieldThatItIsAChildOf)
{
    CCallLog log;
    CSimpleDataElement element;
    const CQTSimpleDataWidget other;
    auto field = std::make_unique<TLoggingField<CQTSimpleDataWidget>>(log, "field");
    Bind(element, *field);
    field->StartEditing();
    const QPointer<QWidget> editor = CQTSimpleDataWidget::g_pInPlace;
    editor->setParent(field.get());
    editor->show();
    field.reset();
    EXPECT_EQ(log.Take(), CCalls{"field.~()"});
    EXPECT_TRUE(!editor || editor->isHidden());
}
