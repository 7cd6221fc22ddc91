#include <qtstaticwidget.h>

#include <simpledataelement.h>
#include <staticdataelement.h>

#include <qttextencoding.h>

#include <qt/declaredin.h>
#include <qt/logginghost.h>
#include <qt/paintcounter.h>
#include <qt/palettes.h>
#include <support/images.h>
#include <support/rowname.h>

#include <QMetaObject>

#include <gtest/gtest.h>

namespace
{

class CLine : public CQTStaticWidget
{
public:
    using CQTStaticWidget::GetSafeData;

    static constexpr bool OverridesPaintOnly()
    {
        return IsDeclaredIn<CQTStaticWidget>(&CLine::paintEvent) &&
               IsDeclaredIn<QWidget>(&CLine::mousePressEvent) &&
               IsDeclaredIn<QWidget>(&CLine::mouseReleaseEvent) &&
               IsDeclaredIn<QWidget>(&CLine::keyPressEvent) &&
               IsDeclaredIn<QWidget>(&CLine::wheelEvent) &&
               IsDeclaredIn<QWidget>(&CLine::showEvent) &&
               IsDeclaredIn<QWidget>(&CLine::hideEvent) &&
               IsDeclaredIn<QWidget>(&CLine::focusOutEvent) && IsDeclaredIn<QWidget>(&CLine::event);
    }
};

class StaticWidget : public testing::Test
{
protected:
    void SetUp() override
    {
        Bind(m_element, m_line);
        m_line.setPalette(PaletteOnGround());
        m_line.resize(120, 20);
    }

    QRect Ink() { return InkOn(images::Render(m_line)); }

    CLine m_line;
    CStaticDataElement m_element{"Text", Qt::AlignLeft | Qt::AlignVCenter};
};

struct sLook
{
    const char* m_szName;
    const char* m_szText;
    int m_iFlags;
    int m_iWidth;
    int m_iHeight;
    int m_iTextHeight; ///< of the rectangle that the text is drawn in
};

const char g_longText[] = "several words that need more than the one line they get";

const sLook g_looks[] = {
    {"Left", "Text", Qt::AlignLeft | Qt::AlignVCenter, 120, 20, 20},
    {"Right", "Text", Qt::AlignRight | Qt::AlignVCenter, 120, 20, 20},
    {"Centred", "Text", Qt::AlignCenter, 120, 20, 20},
    {"NoFlags", "Text", 0, 120, 20, 20},
    {"Bottom", "Text", Qt::AlignBottom, 120, 20, 20},
    {"BottomOfAHighWidget", "Text", Qt::AlignBottom, 120, 60, 20},
    {"CentredInAHighWidget", "Text", Qt::AlignCenter, 120, 60, 20},
    {"CentredInALowWidget", "Text", Qt::AlignCenter, 120, 9, 9},
    {"OnePixelLess", "Text", Qt::AlignBottom, 120, 19, 19},
    {"Wrapped", g_longText, Qt::TextWordWrap, 70, 60, 20},
    {"CutAtTheRight", g_longText, Qt::AlignLeft | Qt::TextSingleLine, 70, 20, 20},
    {"NotClipped", g_longText, Qt::TextWordWrap | Qt::TextDontClip, 70, 60, 20},
    {"Mnemonic", "&Text", Qt::TextShowMnemonic, 120, 20, 20},
    {"Ampersand", "&Text", 0, 120, 20, 20},
    {"Tab", "a\tb", Qt::TextExpandTabs, 120, 20, 20},
    {"TwoLines", "one\ntwo", 0, 120, 40, 20},
};

class StaticWidgetLook : public StaticWidget, public testing::WithParamInterface<sLook>
{
};

} // namespace

TEST_F(StaticWidget, IsAQtWidgetFirstAndADataWidgetSecond)
{
    EXPECT_EQ(OffsetOf<QWidget>(m_line), 0);
    EXPECT_LT(OffsetOf<QWidget>(m_line), OffsetOf<CInspectorDataWidget>(m_line));
    EXPECT_EQ(sizeof(CQTStaticWidget), sizeof(QWidget) + sizeof(CInspectorDataWidget));
}

TEST_F(StaticWidget, AnswersToTheNamesOfItsBases)
{
    CInspectorDataWidget* data = &m_line;
    EXPECT_STREQ(m_line.metaObject()->className(), "CQTStaticWidget");
    EXPECT_EQ(m_line.qt_metacast("CQTStaticWidget"), static_cast<CQTStaticWidget*>(&m_line));
    EXPECT_EQ(m_line.qt_metacast("CInspectorDataWidget"), data);
    EXPECT_EQ(m_line.qt_metacast("QWidget"), static_cast<QWidget*>(&m_line));
    EXPECT_EQ(m_line.qt_metacast("ISimpleDataProvider"), nullptr);
    EXPECT_EQ(m_line.qt_metacast("IInPlaceEditSink"), nullptr);
}

TEST_F(StaticWidget, HasNoSignalsAndSlotsOfItsOwn)
{
    const QMetaObject& meta = CQTStaticWidget::staticMetaObject;
    EXPECT_STREQ(meta.superClass()->className(), "QWidget");
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST_F(StaticWidget, OverridesThePaintHandlerOnly)
{
    EXPECT_TRUE(CLine::OverridesPaintOnly());
}

TEST_F(StaticWidget, KeepsTheContractsOperationsThatItDoesNotNeed)
{
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CLine::SetDataElement));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CLine::StartEditing));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CLine::OnValueChange));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CLine::OnTopoChange));
}

TEST_F(StaticWidget, HasItsTypeStringAndSize)
{
    EXPECT_STREQ(m_line.GetType(), "qt.static");
    EXPECT_EQ(m_line.GetRequiredWidth(), -1);
    for (const int width : {-1, 0, 20, 5000})
        EXPECT_EQ(m_line.GetRequiredHeight(width), 20);
}

TEST_F(StaticWidget, HandsTheLayoutOnToQt)
{
    QWidget panel;
    m_line.setParent(&panel);
    m_line.MoveWidget(-7, 12);
    m_line.ResizeWidget(33, 44);
    EXPECT_EQ(m_line.geometry(), QRect(-7, 12, 33, 44));
    m_line.Show();
    EXPECT_FALSE(m_line.isHidden());
    m_line.Hide();
    EXPECT_TRUE(m_line.isHidden());
    m_line.setParent(nullptr);
}

TEST_F(StaticWidget, KnowsItsElementOnlyWhenItIsAStaticOne)
{
    EXPECT_EQ(m_line.GetSafeData(), &m_element);
    CSimpleDataElement text;
    m_line.SetDataElement(&text);
    EXPECT_EQ(m_line.GetSafeData(), nullptr);
    m_line.SetDataElement(nullptr);
    EXPECT_EQ(m_line.GetSafeData(), nullptr);
}

TEST_F(StaticWidget, ReadsItsElementOnlyWhenItPaints)
{
    const QImage before = images::Render(m_line);
    m_element.SetText("Other");
    CPaintCounter paints(m_line);
    m_line.InitFromElement();
    m_line.OnValueChange(nullptr);
    EXPECT_EQ(paints.Take(), 0);
    EXPECT_GT(images::CountDifferent(images::Render(m_line), before), 0);
}

TEST_P(StaticWidgetLook, IsTheTextWithTheElementsFlags)
{
    const sLook& look = GetParam();
    m_element.SetText(look.m_szText);
    m_element.SetFlags(look.m_iFlags);
    m_line.resize(look.m_iWidth, look.m_iHeight);
    const QImage expected =
        images::Paint(m_line,
                      [&](QPainter& painter)
                      {
                          painter.drawText(0, 0, look.m_iWidth, look.m_iTextHeight, look.m_iFlags,
                                           QLatin1String(look.m_szText));
                      });
    ASSERT_FALSE(InkOn(expected).isEmpty());
    images::ExpectSame(images::Render(m_line), expected);
}

INSTANTIATE_TEST_SUITE_P(Texts, StaticWidgetLook, testing::ValuesIn(g_looks), sRowName());

TEST_F(StaticWidget, LeavesTheBackgroundAlone)
{
    m_element.SetText("");
    EXPECT_TRUE(Ink().isEmpty());
    m_element.SetText("Text");
    EXPECT_FALSE(Ink().isEmpty());
    EXPECT_LT(Ink().right(), 60);
}

TEST_F(StaticWidget, PutsARightAlignedTextAtTheRightEdgeOfTheFirstTwentyRows)
{
    m_line.resize(120, 70);
    m_element.SetFlags(Qt::AlignRight | Qt::AlignVCenter);
    const QRect ink = Ink();
    EXPECT_GE(ink.right(), 117);
    EXPECT_GT(ink.left(), 60);
    EXPECT_LT(ink.bottom(), 20);
}

TEST_F(StaticWidget, ClipsAWrappedTextAfterTwentyRows)
{
    m_line.resize(60, 90);
    m_element.SetText(g_longText);
    m_element.SetFlags(Qt::TextWordWrap);
    EXPECT_EQ(Ink().bottom(), 19);
    m_element.SetFlags(Qt::TextWordWrap | Qt::TextDontClip);
    EXPECT_GT(Ink().bottom(), 30);
}

TEST_F(StaticWidget, ReadsItsTextInTheChosenEncoding)
{
    m_element.SetText("\xE4");
    const QImage latin1 = images::Render(m_line);
    images::ExpectSame(latin1, images::Paint(m_line,
                                             [](QPainter& painter) {
                                                 painter.drawText(0, 0, 120, 20,
                                                                  Qt::AlignLeft | Qt::AlignVCenter,
                                                                  QString(QChar(0xE4)));
                                             }));
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    m_element.SetText("\xC3\xA4");
    images::ExpectSame(images::Render(m_line), latin1);
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
}

TEST_F(StaticWidget, UsesTheColoursOfItsState)
{
    m_line.setPalette(DarkPalette());
    const auto paint = [](QPainter& painter)
    { painter.drawText(0, 0, 120, 20, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Text")); };
    images::ExpectSame(images::Render(m_line), images::Paint(m_line, paint));
    const QImage enabled = images::Render(m_line);
    m_line.setEnabled(false);
    images::ExpectSame(images::Render(m_line), images::Paint(m_line, paint));
    EXPECT_GT(images::CountDifferent(images::Render(m_line), enabled), 0);
}

TEST_F(StaticWidget, PaintsAtEveryScaleFactorInTheSamePlace)
{
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0})
        images::ExpectSame(images::Render(m_line, ratio),
                           images::Paint(
                               m_line,
                               [](QPainter& painter) {
                                   painter.drawText(0, 0, 120, 20, Qt::AlignLeft | Qt::AlignVCenter,
                                                    QStringLiteral("Text"));
                               },
                               ratio));
}
