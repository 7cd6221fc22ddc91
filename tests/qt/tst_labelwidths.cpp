#include <inspector/qt/labelwidths.h>

#include <inspector/qt/samefont.h>

#include "testpanel.h"

#include <qttextencoding.h>

#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace
{

constexpr int g_iFewNames = 4096;
constexpr int g_iAsked = 2;

std::size_t Learned()
{
    return CLabelWidths::Get().GetLearned();
}

int Expect(const QFont& font, const QString& text)
{
    const QRect bounds =
        QFontMetrics(font).boundingRect(QRect(), Qt::AlignLeft | Qt::AlignVCenter, text);
    return bounds.right() - bounds.left() + 3;
}

CInspectorView::sInspectorElement MakeNode(const std::string& name)
{
    CInspectorView::sInspectorElement node;
    node.m_iKind = CInspectorView::eElementRow;
    node.m_sName = name;
    return node;
}

int Measure(CTestView& view, const std::string& name)
{
    CInspectorView::sInspectorElement node = MakeNode(name);
    return view.GetElementLabelWidth(&node);
}

/// A view of rows without controls.
struct sLabelPanel : sTestPanel
{
    sLabelPanel(const std::string& prefix, int rows)
    {
        for (int i = 0; i < rows; ++i)
            m_view.AddSingleLineContainer((prefix + std::to_string(i)).c_str(), nullptr, nullptr);
        m_view.ResizeInspector(400, 300);
    }
};

QFont FontOf(int pixels)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    return font;
}

class LabelWidths : public testing::Test
{
protected:
    LabelWidths() { CLabelWidths::Get().Empty(); }
};

} // namespace

TEST_F(LabelWidths, AreMeasuredOnceForAllPanels)
{
    const std::size_t before = Learned();
    auto first = std::make_unique<sLabelPanel>("Shared ", 50);
    EXPECT_EQ(Learned(), before + 50);
    const int column = first->m_view.m_lElements.front().m_iLabelWidth;
    const sLabelPanel second("Shared ", 50);
    first.reset();
    const sLabelPanel third("Shared ", 51);

    EXPECT_EQ(Learned(), before + 51);
    EXPECT_EQ(second.m_view.m_lElements.front().m_iLabelWidth, column);
    EXPECT_EQ(third.m_view.m_lElements.front().m_iLabelWidth, column);
}

TEST_F(LabelWidths, OfAHundredThousandRowsAreMeasuredOnce)
{
    const std::size_t before = Learned();
    sLabelPanel panel("Of many ", 100000);
    EXPECT_EQ(Learned(), before + 100000);

    panel.m_view.ResizeInspector(401, 300);
    EXPECT_EQ(Learned(), before + 100000);

    // Others measure nearly as many names meanwhile.
    for (int i = 0; i < 9; ++i)
        const sLabelPanel other("Other " + std::to_string(i) + " ", 10000);
    EXPECT_EQ(Learned(), before + 190000);
    panel.m_view.ResizeInspector(402, 300);
    EXPECT_EQ(Learned(), before + 190000);
}

TEST_F(LabelWidths, OfManyPanelsAreMeasuredOnce)
{
    const std::size_t before = Learned();
    std::vector<std::unique_ptr<sLabelPanel>> panels;
    for (int i = 0; i < 30; ++i)
        panels.push_back(
            std::make_unique<sLabelPanel>("Panel " + std::to_string(i) + " row ", 1000));
    EXPECT_EQ(Learned(), before + 30000);
    for (int width : {401, 402})
    {
        for (const auto& panel : panels)
            panel->m_view.ResizeInspector(width, 300);
    }
    EXPECT_EQ(Learned(), before + 30000);
}

TEST_F(LabelWidths, ThatNobodyAsksForAreForgottenInTheLongRun)
{
    sTestPanel asking;
    const int kept = Measure(asking.m_view, "Kept");
    const int forgotten = Measure(asking.m_view, "Forgotten");
    const std::size_t before = Learned();
    for (int i = 0; i < 100; ++i)
    {
        const sLabelPanel passing("Passing " + std::to_string(i) + " ", 300);
        EXPECT_EQ(Measure(asking.m_view, "Kept"), kept);
        EXPECT_LE(CLabelWidths::Get().GetSize(), 2U * (g_iFewNames + g_iAsked));
    }
    EXPECT_EQ(Learned(), before + 30000);
    EXPECT_EQ(Measure(asking.m_view, "Forgotten"), forgotten);
    EXPECT_EQ(Learned(), before + 30001);
}

TEST_F(LabelWidths, OfAPanelThatDiedAreForgottenInTheLongRun)
{
    std::make_unique<sLabelPanel>("Died with ", 50000).reset();
    EXPECT_GE(CLabelWidths::Get().GetSize(), 50000U);

    for (int i = 0; i < 30; ++i)
        const sLabelPanel passing("Later " + std::to_string(i) + " ", 300);

    EXPECT_LE(CLabelWidths::Get().GetSize(), 2U * g_iFewNames);
}

TEST_F(LabelWidths, FollowANameThatChangesInItsNode)
{
    sTestPanel panel;
    CInspectorView::sInspectorElement node = MakeNode("A name");
    const QFont font = panel.m_view.font();
    EXPECT_EQ(panel.m_view.GetElementLabelWidth(&node), Expect(font, QStringLiteral("A name")));
    CInspectorView::sInspectorElement copy = node;
    node.m_sName = "Another name";
    copy.m_sName = "A game";
    EXPECT_EQ(panel.m_view.GetElementLabelWidth(&node),
              Expect(font, QStringLiteral("Another name")));
    EXPECT_EQ(panel.m_view.GetElementLabelWidth(&copy), Expect(font, QStringLiteral("A game")));
    node = copy;
    EXPECT_EQ(panel.m_view.GetElementLabelWidth(&node), Expect(font, QStringLiteral("A game")));
    node.m_sName.clear();
    EXPECT_EQ(panel.m_view.GetElementLabelWidth(&node), 0);
}

TEST_F(LabelWidths, DifferInPanelsThatDiffer)
{
    sTestPanel plain;
    sTestPanel large;
    sTestPanel preview;
    sTestPanel styled;
    large.m_view.setFont(FontOf(30));
    preview.m_view.SetPreviewMode(true);
    styled.m_view.setStyleSheet(QStringLiteral("font-size: 24px; font-style: italic"));
    QFont italic = FontOf(24);
    italic.setItalic(true);
    const std::string name = "Gr\xC3\xB6\xC3\x9F"
                             "e";
    for (int round = 0; round < 3; ++round)
    {
        for (const auto encoding :
             {CQTTextEncoding::eTextEncodingLatin1, CQTTextEncoding::eTextEncodingUtf8})
        {
            CQTTextEncoding::SetEncoding(encoding);
            const QString text = encoding == CQTTextEncoding::eTextEncodingUtf8
                                     ? QString::fromUtf8(name.c_str())
                                     : QString::fromLatin1(name.c_str());
            EXPECT_EQ(Measure(plain.m_view, name), Expect(FontOf(12), text));
            EXPECT_EQ(Measure(large.m_view, name), Expect(FontOf(30), text));
            EXPECT_EQ(Measure(preview.m_view, name), Expect(FontOf(12), text + QLatin1Char('=')));
            EXPECT_EQ(Measure(styled.m_view, name), Expect(italic, text));
        }
    }
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
}

TEST_F(LabelWidths, AreRightInMoreFontsThanAreRemembered)
{
    sTestPanel first;
    first.m_view.setFont(FontOf(7));
    sTestPanel other;
    for (int round = 0; round < 2; ++round)
    {
        for (int pixels = 5; pixels < 80; ++pixels)
        {
            other.m_view.setFont(FontOf(pixels));
            EXPECT_EQ(Measure(other.m_view, "Zoomed"),
                      Expect(FontOf(pixels), QStringLiteral("Zoomed")));
            EXPECT_EQ(Measure(first.m_view, "Zoomed"), Expect(FontOf(7), QStringLiteral("Zoomed")));
        }
    }
}

TEST_F(LabelWidths, AreMeasuredAnewWhenFontsComeOrGo)
{
    sTestPanel panel;
    const int width = Measure(panel.m_view, "Before");
    EXPECT_GE(CLabelWidths::Get().GetSize(), 1U);
    const std::size_t before = Learned();

    Q_EMIT qGuiApp->fontDatabaseChanged();

    EXPECT_EQ(CLabelWidths::Get().GetSize(), 0U);
    EXPECT_EQ(Measure(panel.m_view, "Before"), width);
    EXPECT_EQ(Learned(), before + 1);
}

TEST_F(LabelWidths, DependOnTheResolutionThatAFontIsMeantFor)
{
    QFont font = QGuiApplication::font();
    font.setPointSize(10);
    QImage fine(10, 10, QImage::Format_ARGB32);
    fine.setDotsPerMeterX(8000);
    fine.setDotsPerMeterY(8000);
    const QFont fineFont(font, &fine);
    ASSERT_TRUE(font == fineFont);
    EXPECT_FALSE(IsSameFont(font, fineFont));
    EXPECT_TRUE(IsSameFont(fineFont, QFont(font, &fine)));

    CLabelWidths& widths = CLabelWidths::Get();
    EXPECT_NE(widths.GetStyle(font, 0, false), widths.GetStyle(fineFont, 0, false));
    EXPECT_EQ(widths.GetStyle(font, 0, false), widths.GetStyle(QFont(font), 0, false));
}
