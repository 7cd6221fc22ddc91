// A panel with every kind of control, given what no sensible host or user would give it. Nothing
// may crash, overflow or hang, values stay what they are, and what is drawn stays aligned. Run
// under the undefined-behaviour sanitizer to be worth something, and once for every scale factor.

#include <inspector/qt/inplaceedit.h>
#include <inspector/qt/inplacelist.h>

#include <desktops/hostwindow.h>
#include <gallery/samplepanel.h>
#include <qt/palettes.h>
#include <support/qtmessages.h>

#include <enumdataelement.h>
#include <qtbuttonwidget.h>
#include <qtsimpletextwidget.h>
#include <simpledataelement.h>

#include <QApplication>
#include <QFontMetrics>
#include <QPixmap>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace
{

using sNode = CInspectorView::sInspectorElement;
using sHolder = CInspectorView::sInspectorHolder;
using sRequest = CInspectorView::sRequestSize;

/// What the offscreen platform and the style say about sizes that no screen has.
void AllowComplaintsOfTheToolkit()
{
    for (const char* part : {"This plugin does not support", "QPainter::", "QPixmap::", "QImage::",
                             "QWidget::setMinimumSize", "Paint device returned engine"})
        qtmessages::Allow(QLatin1String(part));
}

/// The rows of a tree in the order in which they are laid out, with the controls of containers.
void Collect(std::list<sNode>& nodes, std::vector<sHolder*>& holders)
{
    for (sNode& node : nodes)
    {
        Collect(node.m_lChildren, holders);
        if (!node.m_pHolder)
            continue;
        if (node.m_pHolder->m_pWidget)
            holders.push_back(node.m_pHolder);
        holders.insert(holders.end(), node.m_pHolder->m_lChildren.begin(),
                       node.m_pHolder->m_lChildren.end());
    }
}

std::vector<sHolder*> Holders(CQTInspectorView& view)
{
    std::vector<sHolder*> holders;
    Collect(*view.GetListElements(), holders);
    return holders;
}

QWidget& ControlOf(const sHolder& holder)
{
    return *dynamic_cast<QWidget*>(holder.m_pWidget);
}

/// One row of every kind in a group, two more in a container, and a text behind both.
void Fill(CSamplePanel& panel, const char* label, const char* text, sRequest* request = nullptr)
{
    sNode* group = panel.Group(label);
    panel.Text(label, text, group, request);
    panel.Bool(label, true, group);
    panel.Enum(label, "multiply", group);
    panel.Button(label, text, true, group, request);
    panel.Static(label, text, Qt::AlignLeft | Qt::AlignVCenter, group);
    panel.TextBox(label, text, group);
    sNode* container = panel.Container(label, nullptr);
    panel.Text(nullptr, text, container, request);
    panel.Text(nullptr, text, container, request);
    panel.Text(label, text, nullptr, request);
}

/// Draws the panel, scrolls to every control and presses it.
void UseAll(CSamplePanel& panel)
{
    QImage image(400, 300, QImage::Format_RGB32);
    for (sHolder* holder : Holders(panel.m_View))
    {
        panel.m_View.EnsureVisible(holder->m_pWidget);
        panel.m_View.render(&image, QPoint(), QRegion(0, 0, 400, 300));
        QWidget& control = ControlOf(*holder);
        QTest::mouseClick(&control, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        CInPlaceEdit& editor = *CQTSimpleDataWidget::g_pInPlace;
        if (editor.isVisible())
            QTest::keyClick(&editor, Qt::Key_Return);
        if (CQTEnumDataWidget::g_pInPlaceList->isVisible())
            QTest::keyClick(CQTEnumDataWidget::g_pInPlaceList.get(), Qt::Key_Escape);
        EXPECT_TRUE(editor.isHidden());
        EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList->isHidden());
    }
}

struct sNamedText
{
    const char* m_sName;
    std::string m_sText;
};

std::string NameOf(const testing::TestParamInfo<sNamedText>& info)
{
    return info.param.m_sName;
}

std::string Lines(int count)
{
    std::string lines;
    for (int i = 0; i < count; ++i)
        lines += "line " + std::to_string(i) + '\n';
    return lines;
}

std::string EveryByteButZero()
{
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    return bytes;
}

class ExtremeText : public testing::TestWithParam<sNamedText>
{
};

constexpr int g_iMegabyte = 1 << 20;

} // namespace

TEST_P(ExtremeText, IsShownEverywhereAndKept)
{
    AllowComplaintsOfTheToolkit();
    const std::string& text = GetParam().m_sText;
    CSamplePanel panel;
    Fill(panel, text.c_str(), text.c_str());
    // Two or three rows at a time: it takes the toolkit half a second to draw a megabyte.
    panel.m_View.ResizeInspector(400, 60);
    panel.m_View.show();
    UseAll(panel);
    for (const sHolder* holder : Holders(panel.m_View))
    {
        auto* element = dynamic_cast<CSimpleDataElement*>(holder->m_pElement);
        if (!element || dynamic_cast<CEnumDataElement*>(element))
            continue;
        EXPECT_TRUE(element->GetStrCurrentValue() == text) << holder->m_pWidget->GetType();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ExtremeText,
    testing::Values(sNamedText{"OneWordOfAMegabyte", std::string(g_iMegabyte, 'w')},
                    sNamedText{"AMegabyteOfLines", Lines(g_iMegabyte / 12)},
                    sNamedText{"EveryByte", EveryByteButZero()},
                    sNamedText{"NewLines", "\n\n\r\n\n"}, sNamedText{"Empty", ""}),
    NameOf);

TEST(ExtremeTexts, WithZeroBytesAreReadWholeAndLeaveAnEditorUpToTheFirst)
{
    AllowComplaintsOfTheToolkit();
    CSamplePanel panel;
    Fill(panel, "label", "text");
    const std::string zeros("a\0b\0\0c", 6);
    auto* element = static_cast<CSimpleDataElement*>(Holders(panel.m_View).front()->m_pElement);
    element->SetStrCurrentValue(zeros);
    element->UpdateData();
    panel.m_View.ResizeInspector(400, 300);
    panel.m_View.show();
    panel.m_View.grab();
    EXPECT_EQ(element->GetStrCurrentValue(), zeros);
    UseAll(panel);
    EXPECT_EQ(element->GetStrCurrentValue(), "a");
}

// Sizes

TEST(ExtremeSizes, OfThePanelLeaveNothingBehind)
{
    AllowComplaintsOfTheToolkit();
    CSamplePanel panel;
    Fill(panel, "label", "text");
    panel.m_View.ResizeInspector(300, 200);
    panel.m_View.show();
    UseAll(panel);
    const auto picture = [&panel]
    {
        panel.m_View.findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly)->setValue(0);
        return panel.m_View.grab().toImage();
    };
    const QImage before = picture();
    const int sizes[] = {INT_MIN, INT_MIN + 19, -100000,         -20,    -1, 0, 1, 19, 20, 21,
                         40,      300,          QWIDGETSIZE_MAX, INT_MAX};
    for (const int width : sizes)
    {
        for (const int height : sizes)
        {
            panel.m_View.ResizeInspector(width, height);
            UseAll(panel);
        }
        panel.m_View.ResizeInspector(300, 200);
        EXPECT_EQ(picture(), before) << width;
    }
}

TEST(ExtremeSizes, OfControlsAreGivenAsTheyWereComputed)
{
    AllowComplaintsOfTheToolkit();
    const int values[] = {INT_MIN, -1000, -100, -1, 0, 1, 50, 100, 150, 100000, INT_MAX};
    const auto types = {CInspectorView::eRequestSizeAbsolute, CInspectorView::eRequestSizeRelative};
    const auto seen = [](int size) { return std::clamp(size, 0, QWIDGETSIZE_MAX); };
    for (const auto type : types)
    {
        for (const int least : values)
        {
            for (const int most : values)
            {
                sRequest request;
                request.SetMinValue(type, least);
                request.SetMaxValue(type, most);
                CSamplePanel panel;
                Fill(panel, "label", "text", &request);
                panel.m_View.ResizeInspector(300, 200);
                panel.m_View.show();
                UseAll(panel);
                for (const sHolder* holder : Holders(panel.m_View))
                {
                    const QSize size(seen(holder->m_iWidth), seen(holder->m_iHeight));
                    ASSERT_EQ(ControlOf(*holder).size(), size)
                        << holder->m_pWidget->GetType() << ", " << least << " to " << most;
                }
            }
        }
    }
}

// What is drawn, looked for pixel by pixel on the screen's own grid

namespace
{

class Alignment : public testing::Test
{
protected:
    Alignment()
    {
        AllowComplaintsOfTheToolkit();
        sNode* group = m_panel.Group("Group");
        m_panel.Text("One", "", group);
        m_panel.Text("Longer", "", group);
        sNode* inner = m_panel.Group("Inner", group);
        m_panel.Text("Two", "", inner);
        m_panel.Text("Last", "", nullptr);
        m_panel.Text("Row", "", nullptr);
        // What is behind the last row makes the panel scroll.
        m_panel.TextBox(nullptr, "", nullptr);
    }

    void Show()
    {
        m_panel.m_View.ResizeInspector(301, 203);
        m_panel.m_View.show();
        m_panel.m_View.RecomputeLayout();
    }

    /// Draws the panel and compares what stands where with the rectangles of the layout.
    void ExpectAligned(int scroll)
    {
        SCOPED_TRACE("scrolled by " + std::to_string(scroll));
        QScrollBar* bar =
            m_panel.m_View.findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
        bar->setValue(scroll);
        ASSERT_EQ(bar->value(), scroll);
        bar->hide();
        m_image = m_panel.m_View.grab().toImage();
        m_dRatio = m_image.devicePixelRatio();
        m_iScroll = scroll;
        ExpectNodesAligned(*m_panel.m_View.GetListElements());
        EXPECT_GE(m_iFields, 3);
        m_iFields = 0;
    }

    CSamplePanel m_panel;

private:
    void ExpectNodesAligned(std::list<sNode>& nodes)
    {
        for (sNode& node : nodes)
        {
            if (node.m_iKind == CInspectorView::eElementGroup)
                ExpectFrame(node);
            else if (dynamic_cast<CQTSimpleDataWidget*>(node.m_pHolder->m_pWidget))
                ExpectField(node);
            ExpectNodesAligned(node.m_lChildren);
        }
    }

    /// A coordinate of the panel on the grid of the screen.
    int OnScreen(int coordinate) const { return qRound(coordinate * m_dRatio); }

    bool IsOnImage(int x, int y) const { return m_image.rect().contains(x, y); }

    /// The first pixel of another colour than the start, going in a direction.
    QPoint FirstOther(QPoint from, QPoint step) const
    {
        const QRgb colour = m_image.pixel(from);
        while (m_image.rect().contains(from) && m_image.pixel(from) == colour)
            from += step;
        return from;
    }

    void ExpectField(const sNode& row)
    {
        const QRect rect(row.m_pHolder->m_iX, row.m_pHolder->m_iY - m_iScroll,
                         row.m_pHolder->m_iWidth, row.m_pHolder->m_iHeight);
        const QPoint middle(OnScreen(rect.x() + rect.width() / 2), OnScreen(rect.y() + 10));
        const int top = OnScreen(rect.y());
        const int bottom = OnScreen(rect.y() + rect.height());
        if (top < 1 || !IsOnImage(0, bottom + 1))
            return;
        ++m_iFields;
        SCOPED_TRACE(row.m_sName);
        // One field of colour from edge to edge: the value is empty.
        EXPECT_NEAR(FirstOther(middle, {-1, 0}).x() + 1, OnScreen(rect.x()), 1);
        EXPECT_NEAR(FirstOther(middle, {1, 0}).x(), OnScreen(rect.x() + rect.width()), 1);
        EXPECT_NEAR(FirstOther(middle, {0, -1}).y() + 1, top, 1);
        EXPECT_NEAR(FirstOther(middle, {0, 1}).y(), bottom, 1);
        EXPECT_EQ(row.m_iX + row.m_iLabelWidth, rect.x());
        ExpectLabel(row, top, bottom);
    }

    /// The label stands in its column, with as much room above as below, give or take a line.
    void ExpectLabel(const sNode& row, int top, int bottom)
    {
        const int left = OnScreen(row.m_iX);
        const int right = OnScreen(row.m_iX + row.m_iLabelWidth);
        const QRgb ground = m_image.pixel(OnScreen(row.m_iX) - 2, (top + bottom) / 2);
        QRect ink;
        for (int y = top; y < bottom; ++y)
        {
            for (int x = left; x < right - 1; ++x)
            {
                if (m_image.pixel(x, y) != ground)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        ASSERT_FALSE(ink.isEmpty());
        const qreal lineHeight = QFontMetrics(m_panel.m_View.font()).height() * m_dRatio;
        EXPECT_NEAR(ink.center().y(), (top + bottom) / 2, lineHeight / 3 + 1);
    }

    /// The frame's left line stands on the left edge of its group, and its right line on the right.
    void ExpectFrame(const sNode& group)
    {
        const int y = OnScreen(group.m_iY + group.m_iHeight - 8 - m_iScroll);
        if (!IsOnImage(0, y))
            return;
        SCOPED_TRACE(group.m_sName);
        const int left = OnScreen(group.m_iX);
        EXPECT_NEAR(FirstOther({left - OnScreen(3), y}, {1, 0}).x(), left, 1);
        const int right = OnScreen(group.m_iX + group.m_iWidth);
        EXPECT_NEAR(FirstOther({right + OnScreen(3), y}, {-1, 0}).x(), right, 1 + m_dRatio);
    }

    QImage m_image;
    qreal m_dRatio = 1;
    int m_iScroll = 0;
    int m_iFields = 0;
};

} // namespace

TEST_F(Alignment, HoldsAtTheScaleOfTheScreen)
{
    const qreal wanted =
        qgetenv("QT_SCALE_FACTOR").isEmpty() ? 1.0 : qgetenv("QT_SCALE_FACTOR").toDouble();
    EXPECT_EQ(m_panel.m_View.devicePixelRatioF(), wanted);
    Show();
    for (const int scroll : {0, 1, 13, 30})
        ExpectAligned(scroll);
}

TEST_F(Alignment, HoldsInADarkPalette)
{
    QPalette palette = DarkPalette();
    m_panel.m_View.setPalette(palette);
    Show();
    for (const int scroll : {0, 13})
        ExpectAligned(scroll);
}

TEST_F(Alignment, HoldsUnderAStyleSheet)
{
    qApp->setStyleSheet(QStringLiteral("* { background-color: #203040; color: #e0e0e0; "
                                       "font-size: 9px; selection-color: red; } "
                                       "QScrollBar { width: 3px; }"));
    Show();
    // A sheet reaches the panel's own colours and font, not what its controls are filled with.
    m_panel.m_View.grab();
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::black);
    for (const sHolder* holder : Holders(m_panel.m_View))
        ControlOf(*holder).setPalette(palette);
    ExpectAligned(0);
    qApp->setStyleSheet(QString());
}

TEST_F(Alignment, HoldsFromRightToLeft)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    Show();
    for (const int scroll : {0, 13})
        ExpectAligned(scroll);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(Alignment, HoldsInEveryFont)
{
    for (const int pixels : {7, 12, 60})
    {
        SCOPED_TRACE(pixels);
        QFont font = m_panel.m_View.font();
        font.setPixelSize(pixels);
        m_panel.m_View.setFont(font);
        Show();
        ExpectAligned(0);
    }
}

// Editors

TEST(ExtremeEditing, CoversTheFieldInEveryFontAndDirection)
{
    AllowComplaintsOfTheToolkit();
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft})
    {
        QApplication::setLayoutDirection(direction);
        for (const int pixels : {1, 12, 60})
        {
            SCOPED_TRACE(pixels);
            CHostWindow host;
            QFont font = host.font();
            font.setPixelSize(pixels);
            host.setFont(font);
            host.show();
            CQTSimpleDataWidget& field = host.Field("a");
            const QRect rect(field.mapToGlobal(QPoint(0, 0)), field.size());
            QTest::mouseClick(&field, Qt::LeftButton);
            CInPlaceEdit& editor = *CQTSimpleDataWidget::g_pInPlace;
            EXPECT_EQ(editor.geometry(), rect);
            QTest::keyClicks(&editor, QStringLiteral("12"));
            QTest::keyClick(&editor, Qt::Key_Return);
            EXPECT_EQ(host.TakeCalls(), CHostWindow::CCalls({"a changed 12", "a ended 1"}));
            QTest::mouseClick(&host.Row("d"), Qt::LeftButton);
            CInPlaceList& list = *CQTEnumDataWidget::g_pInPlaceList;
            EXPECT_TRUE(list.isVisible());
            EXPECT_EQ(list.width(), std::max(100, host.Row("d").width()));
            QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                              list.visualItemRect(list.item(1)).center());
            EXPECT_EQ(host.TakeCalls(), CHostWindow::CCalls({"d changed q", "d ended 4"}));
        }
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
}
