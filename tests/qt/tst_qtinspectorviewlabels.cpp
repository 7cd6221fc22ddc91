#include "testpanel.h"

#include <qttextencoding.h>

#include <QFontMetrics>

#include <gtest/gtest.h>

#include <string>

namespace
{

const char* const g_rNames[] = {
    "Size",     "W",     "i",         " ",         "Size =", "fj",        "two\nlines",        "\n",
    "tab\tbed", "a & b", "&mnemonic", "<b>no</b>", "=",      "\xE9t\xE9", "Radius of the blur"};

QFont FontOf(int pixels, const char* family = "DejaVu Sans", bool italic = false)
{
    QFont font(QString::fromLatin1(family));
    font.setPixelSize(pixels);
    font.setItalic(italic);
    return font;
}

class QtInspectorViewLabels : public testing::Test
{
protected:
    ~QtInspectorViewLabels() override
    {
        CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
    }

    /// What the view says about a label of this name in this rectangle.
    int Measure(const std::string& name, const QRect& rect = QRect())
    {
        CInspectorView::sInspectorElement element;
        element.m_iKind = CInspectorView::eElementRow;
        element.m_sName = name;
        element.m_iX = rect.x();
        element.m_iY = rect.y();
        element.m_iWidth = rect.width();
        element.m_iHeight = rect.height();
        return m_view.GetElementLabelWidth(&element);
    }

    /// The bounding rectangle of the text in a rectangle, right edge - left edge + 3.
    int Expect(const QString& text, const QRect& rect = QRect()) const
    {
        const QRect bounds =
            QFontMetrics(m_view.font()).boundingRect(rect, Qt::AlignLeft | Qt::AlignVCenter, text);
        return bounds.right() - bounds.left() + 3;
    }

    sTestPanel m_panel;
    CTestView& m_view = m_panel.m_view;
};

} // namespace

TEST_F(QtInspectorViewLabels, HaveNoWidthWithoutAName)
{
    EXPECT_EQ(Measure(""), 0);
    m_view.SetPreviewMode(true);
    EXPECT_EQ(Measure(""), 0);
}

TEST_F(QtInspectorViewLabels, AreTwoPixelsWiderThanTheirText)
{
    const QString text = QStringLiteral("Size");
    EXPECT_EQ(Measure("Size"), QFontMetrics(m_view.font()).size(0, text).width() + 2);
    EXPECT_EQ(Measure("Size"), Expect(text));
    EXPECT_GT(Measure("Size"), 12);
}

TEST_F(QtInspectorViewLabels, AreMeasuredInEveryFont)
{
    for (const QFont& font :
         {FontOf(12), FontOf(1), FontOf(60), FontOf(12, "DejaVu Sans Mono"),
          FontOf(17, "DejaVu Serif"), FontOf(40, "DejaVu Sans", true), FontOf(12)})
    {
        m_view.setFont(font);
        for (const char* name : g_rNames)
            EXPECT_EQ(Measure(name), Expect(QString::fromLatin1(name))) << name;
    }
}

TEST_F(QtInspectorViewLabels, FollowEveryTraitOfTheFont)
{
    QFont font = FontOf(12);
    m_view.setFont(font);
    const int plain = Measure("Radius");
    font.setLetterSpacing(QFont::AbsoluteSpacing, 4);
    m_view.setFont(font);
    EXPECT_EQ(Measure("Radius"), Expect(QStringLiteral("Radius")));
    EXPECT_GT(Measure("Radius"), plain + 20);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    font.setCapitalization(QFont::AllUppercase);
    m_view.setFont(font);
    EXPECT_EQ(Measure("Radius"), Expect(QStringLiteral("Radius")));
    EXPECT_GT(Measure("Radius"), plain);
    font.setCapitalization(QFont::MixedCase);
    font.setBold(true);
    m_view.setFont(font);
    EXPECT_EQ(Measure("Radius"), Expect(QStringLiteral("Radius")));
    EXPECT_GT(Measure("Radius"), plain);
}

TEST_F(QtInspectorViewLabels, AreMeasuredTheSameWhereverTheyStand)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
    {
        m_view.setLayoutDirection(direction);
        for (const QRect& rect :
             {QRect(), QRect(5, 5, 270, 20), QRect(-7, 1000, 3, 1), QRect(13, -4, 0, 0),
              QRect(5, 5, -20, -20), QRect(1 << 20, 1 << 20, 271, 33)})
        {
            for (const char* name : g_rNames)
            {
                EXPECT_EQ(Measure(name, rect), Expect(QString::fromLatin1(name), rect)) << name;
                EXPECT_EQ(Measure(name, rect), Measure(name)) << name;
            }
        }
    }
}

TEST_F(QtInspectorViewLabels, AreAsWideAsTheirWidestLine)
{
    EXPECT_EQ(Measure("Radius of\nthe blur"), Measure("Radius of"));
    EXPECT_EQ(Measure("a\nRadius of"), Measure("Radius of"));
}

TEST_F(QtInspectorViewLabels, EndInAnEqualsSignInPreviewMode)
{
    for (const char* name : g_rNames)
    {
        m_view.SetPreviewMode(false);
        EXPECT_EQ(Measure(name), Expect(QString::fromLatin1(name))) << name;
        m_view.SetPreviewMode(true);
        EXPECT_EQ(Measure(name), Expect(QString::fromLatin1(name) + QLatin1Char('='))) << name;
        m_view.SetPreviewMode(false);
        EXPECT_EQ(Measure(name), Expect(QString::fromLatin1(name))) << name;
    }
}

TEST_F(QtInspectorViewLabels, AreReadInTheChosenEncoding)
{
    const std::string name = "Gr\xC3\xB6\xC3\x9F"
                             "e";
    EXPECT_EQ(Measure(name), Expect(QString::fromLatin1(name.c_str())));
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    EXPECT_EQ(Measure(name), Expect(QStringLiteral(u"Gr\u00F6\u00DFe")));
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
    EXPECT_EQ(Measure(name), Expect(QString::fromLatin1(name.c_str())));
}

TEST_F(QtInspectorViewLabels, CountEveryCharacterOfAName)
{
    const std::string name("ab\0cd", 5);
    EXPECT_EQ(Measure(name), Expect(QString::fromLatin1(name.data(), 5)));
    EXPECT_GT(Measure(name), Measure("ab"));
}

TEST_F(QtInspectorViewLabels, MayBeAMegabyteLong)
{
    const std::string name(1 << 20, 'x');
    EXPECT_EQ(Measure(name), Expect(QString::fromLatin1(name.c_str())));
}

TEST_F(QtInspectorViewLabels, ReadRightToLeftScripts)
{
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    const std::string name = "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D"; // shalom
    const QString text = QStringLiteral(u"\u05E9\u05DC\u05D5\u05DD");
    for (const QRect& rect : {QRect(), QRect(5, 5, 270, 20), QRect(-7, 1000, 3, 1)})
        EXPECT_EQ(Measure(name, rect), Expect(text, rect));
}

TEST_F(QtInspectorViewLabels, MakeTheColumnInFrontOfTheControls)
{
    const CTestControl* small = m_panel.AddRow("i");
    const CTestControl* wide = m_panel.AddRow("Radius");
    m_view.ResizeInspector(300, 100);
    const int column = Expect(QStringLiteral("Radius"));
    EXPECT_EQ(small->geometry(), QRect(5 + column, 5, 270 - column, 20));
    EXPECT_EQ(wide->geometry(), QRect(5 + column, 30, 270 - column, 20));
    for (const auto& element : m_view.m_lElements)
        EXPECT_EQ(element.m_iLabelWidth, column);
}

TEST_F(QtInspectorViewLabels, MakeANewColumnAfterAChangeOfTheFont)
{
    const CTestControl* control = m_panel.AddRow("Radius");
    m_view.ResizeInspector(300, 100);
    const int before = control->x();
    m_view.setFont(FontOf(24));
    m_view.RecomputeLayout();
    EXPECT_EQ(control->x(), 5 + Expect(QStringLiteral("Radius")));
    EXPECT_GT(control->x(), before);
}

TEST_F(QtInspectorViewLabels, AreMeasuredInTheFontOfAStyleSheetBeforeTheyAreShown)
{
    m_view.setStyleSheet(QStringLiteral("font-size: 24px"));
    const CTestControl* control = m_panel.AddRow("Radius");
    m_view.ResizeInspector(300, 100);
    m_view.ensurePolished();
    EXPECT_EQ(m_view.font().pixelSize(), 24);
    EXPECT_EQ(control->x(), 5 + Expect(QStringLiteral("Radius")));
}
