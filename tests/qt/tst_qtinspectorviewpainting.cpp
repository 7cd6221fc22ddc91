#include "paintedpanel.h"

#include <support/images.h>

#include <qttextencoding.h>

#include <QApplication>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace
{

QPalette DarkPalette()
{
    QPalette palette(QColor(53, 53, 53), QColor(35, 35, 35));
    palette.setColor(QPalette::WindowText, QColor(240, 230, 220));
    return palette;
}

} // namespace

TEST(QtInspectorViewPainting, PaintsNothingInAnEmptyPanel)
{
    sPaintedPanel panel;
    panel.m_view.ResizeInspector(300, 100);
    panel.Expect([](CPanelPainter&) {});
}

TEST(QtInspectorViewPainting, PaintsTheLabelOfARow)
{
    sPaintedPanel panel;
    panel.AddRow("Size");
    panel.m_view.ResizeInspector(300, 100);
    panel.Expect([&](CPanelPainter& painter)
                 { painter.Text("Size", 5, 5, panel.LabelWidth("Size"), 20); });
    const QImage image = images::Render(panel.m_view);
    EXPECT_GT(images::CountDifferent(image, images::Paint(panel.m_view, [](QPainter&) {})), 20);
}

TEST(QtInspectorViewPainting, CentresALabelInAHighRow)
{
    sPaintedPanel panel;
    panel.AddRow("Text", 101);
    panel.m_view.ResizeInspector(300, 150);
    panel.Expect([&](CPanelPainter& painter)
                 { painter.Text("Text", 5, 5, panel.LabelWidth("Text"), 101); });
}

TEST(QtInspectorViewPainting, PaintsNothingForARowWithoutAName)
{
    sPaintedPanel panel;
    panel.AddRow("");
    panel.AddRow(nullptr);
    panel.m_view.ResizeInspector(300, 100);
    panel.Expect([](CPanelPainter&) {});
    panel.m_view.SetPreviewMode(true);
    panel.m_view.RecomputeLayout();
    panel.Expect([](CPanelPainter&) {});
}

TEST(QtInspectorViewPainting, GivesEveryRowTheCommonLabelColumn)
{
    sPaintedPanel panel;
    panel.AddRow("i");
    panel.AddRow("Radius");
    panel.m_view.ResizeInspector(300, 100);
    panel.Expect(
        [&](CPanelPainter& painter)
        {
            painter.Text("i", 5, 5, panel.LabelWidth("Radius"), 20);
            painter.Text("Radius", 5, 30, panel.LabelWidth("Radius"), 20);
        });
}

TEST(QtInspectorViewPainting, PaintsTheLabelOfAContainer)
{
    sPaintedPanel panel;
    auto* container = panel.m_view.AddSingleLineContainer("Colour", nullptr, nullptr);
    for (const char* name : {"red", "green"})
        panel.m_view.AddElement(nullptr, new CTestControl(panel.m_log, name), name, nullptr,
                                container);
    panel.m_view.AddSingleLineContainer("Empty", nullptr, nullptr);
    panel.m_view.ResizeInspector(300, 100);
    panel.Expect(
        [&](CPanelPainter& painter)
        {
            painter.Text("Colour", 5, 5, panel.LabelWidth("Colour"), 20);
            painter.Text("Empty", 5, 30, panel.LabelWidth("Colour"), 0);
        });
}

TEST(QtInspectorViewPainting, RunsTheFrameThroughTheMiddleOfTheTitle)
{
    sPaintedPanel panel;
    panel.m_view.setPalette(DarkPalette());
    panel.AddRow("", 30);
    auto* group = panel.m_view.AddGroup("General", nullptr);
    panel.AddRow("", 20, group);
    panel.m_view.ResizeInspector(300, 150);
    EXPECT_EQ(group->m_iY, 40);
    panel.Expect([](CPanelPainter& painter) { painter.Group("General", 5, 40, 270, 49); });
    // The frame begins at y = 47, and the title blanks it from 5 pixels behind its left edge on.
    const QImage image = images::Render(panel.m_view);
    const QRgb background = panel.m_view.palette().color(QPalette::Window).rgb();
    const QRgb line = panel.m_view.palette().color(QPalette::WindowText).darker(175).rgb();
    EXPECT_EQ(image.pixel(9, 47), line);
    EXPECT_EQ(image.pixel(9, 46), background);
    EXPECT_EQ(image.pixel(9, 48), background);
    EXPECT_EQ(image.pixel(200, 47), line);
    EXPECT_EQ(image.pixel(200, 40 + 49), line);
    EXPECT_EQ(image.pixel(5, 70), line);
    EXPECT_EQ(image.pixel(275, 70), line);
    EXPECT_EQ(image.pixel(4, 70), background);
    EXPECT_EQ(image.pixel(276, 70), background);
    for (const int x : {10, 11})
        EXPECT_NE(image.pixel(x, 47), line);
}

TEST(QtInspectorViewPainting, BeginsTheFrameOfAGroupWithoutNameAtItsTop)
{
    sPaintedPanel panel;
    auto* group = panel.m_view.AddGroup("", nullptr);
    panel.AddRow("Size", 20, group);
    panel.m_view.ResizeInspector(300, 150);
    panel.Expect(
        [&](CPanelPainter& painter)
        {
            painter.Frame(5, 5, 270, 35, false);
            painter.Text("Size", 10, 10, panel.LabelWidth("Size"), 20);
        });
}

TEST(QtInspectorViewPainting, PaintsAnEmptyGroup)
{
    sPaintedPanel panel;
    panel.m_view.AddGroup("Empty", nullptr);
    panel.m_view.AddGroup("", nullptr);
    panel.m_view.ResizeInspector(300, 100);
    // No height: the frame is turned inside out, the title stands all the same.
    panel.Expect(
        [](CPanelPainter& painter)
        {
            painter.Group("Empty", 5, 5, 270, 0);
            painter.Frame(5, 10, 270, 0, false);
        });
}

TEST(QtInspectorViewPainting, PaintsGroupsInGroups)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
}

TEST(QtInspectorViewPainting, MovesEverythingUpByTheScrollValue)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 90);
    // Only what the view itself paints is compared.
    panel.m_view.m_pScrollBar->hide();
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
    panel.m_view.m_pScrollBar->setValue(30);
    EXPECT_EQ(panel.m_view.m_iOffsetY, 30);
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); }, 30);
    panel.m_view.m_pScrollBar->setValue(48);
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); }, 48);
}

TEST(QtInspectorViewPainting, FollowsTheScrollBarAndNotTheOffset)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 90);
    panel.m_view.m_pScrollBar->hide();
    panel.m_view.m_pScrollBar->setValue(30);
    panel.m_view.OffsetControls(0, 10);
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); }, 30);
}

TEST(QtInspectorViewPainting, PaintsOnlyLabelsInPreviewMode)
{
    sNestedPanel panel;
    panel.m_view.SetPreviewMode(true);
    panel.m_view.ResizeInspector(500, 60);
    std::vector<const CInspectorView::sInspectorElement*> rows;
    auto& outer = panel.m_view.m_lElements.front();
    rows.push_back(&panel.m_view.m_lElements.back());
    rows.push_back(&outer.m_lChildren.front());
    rows.push_back(&outer.m_lChildren.back().m_lChildren.front());
    const char* const names[] = {"Last=", "Size=", "Radius="};
    panel.Expect(
        [&](CPanelPainter& painter)
        {
            for (std::size_t i = 0; i < rows.size(); ++i)
                painter.Text(names[i], rows[i]->m_iX, rows[i]->m_iY, rows[i]->m_iLabelWidth,
                             rows[i]->m_iHeight);
        });
    const QImage image = images::Render(panel.m_view);
    EXPECT_GT(images::CountDifferent(image, images::Paint(panel.m_view, [](QPainter&) {})), 60);
}

TEST(QtInspectorViewPainting, LeavesThePreviewModeAgain)
{
    sNestedPanel panel;
    panel.m_view.SetPreviewMode(true);
    panel.m_view.ResizeInspector(300, 150);
    panel.m_view.SetPreviewMode(false);
    panel.m_view.RecomputeLayout();
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
}

TEST(QtInspectorViewPainting, PaintsOnlyTheMessage)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    for (const QColor& color : {QColor(Qt::red), QColor(0, 60, 120), QColor(10, 20, 30, 128)})
    {
        panel.m_view.SetPreviewMessage("Nothing selected", color);
        for (const qreal ratio : {1.0, 1.25, 1.5, 2.0})
        {
            const QImage expected = images::Paint(
                panel.m_view,
                [&](QPainter& painter)
                {
                    painter.setPen(QPen(color));
                    painter.drawText(QRect(0, 0, 300, 150), 129,
                                     QStringLiteral("Nothing selected"));
                },
                ratio);
            images::ExpectSame(images::Render(panel.m_view, ratio), expected);
        }
    }
    panel.m_view.SetPreviewMessage("", Qt::red);
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
}

TEST(QtInspectorViewPainting, PaintsTheMessageOverTheWholeWidget)
{
    sPaintedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    // What counts is the widget's own size, also behind the scroll bar's place.
    panel.m_view.resize(333, 41);
    const QString text = QString(80, QLatin1Char('W'));
    panel.m_view.SetPreviewMessage(text.toStdString(), Qt::blue);
    images::ExpectSame(images::Render(panel.m_view),
                       images::Paint(panel.m_view,
                                     [&](QPainter& painter)
                                     {
                                         painter.setPen(QPen(Qt::blue));
                                         painter.drawText(QRect(0, 0, 333, 41), 129, text);
                                     }));
}

TEST(QtInspectorViewPainting, PaintsTheMessageAlsoInPreviewModeAndWithHiddenContent)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    panel.m_view.SetPreviewMessage("message", Qt::red);
    const QImage message = images::Render(panel.m_view);
    panel.m_view.SetPreviewMode(true);
    images::ExpectSame(images::Render(panel.m_view), message);
    panel.m_view.ShowContent(false, false);
    images::ExpectSame(images::Render(panel.m_view), message);
}

TEST(QtInspectorViewPainting, PaintsNothingWhileTheContentIsHidden)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    panel.m_view.ShowContent(false, false);
    panel.Expect([](CPanelPainter&) {});
    panel.m_view.ShowContent(true, false);
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
}

TEST(QtInspectorViewPainting, TakesPenAndBackgroundFromThePalette)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    const QImage light = images::Render(panel.m_view);
    panel.m_view.setPalette(DarkPalette());
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
    EXPECT_NE(images::Render(panel.m_view).pixel(0, 0), light.pixel(0, 0));
    EXPECT_EQ(images::Render(panel.m_view).pixel(0, 0), QColor(35, 35, 35).rgb());
    panel.m_view.setForegroundRole(QPalette::Link);
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
}

TEST(QtInspectorViewPainting, FollowsThePaletteOfTheApplication)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(DarkPalette());
    {
        sNestedPanel panel;
        panel.m_view.ResizeInspector(300, 150);
        panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
        EXPECT_EQ(images::Render(panel.m_view).pixel(0, 0), QColor(35, 35, 35).rgb());
    }
    QApplication::setPalette(before);
}

TEST(QtInspectorViewPainting, GreysTheTextOfADisabledPanel)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    panel.m_view.setEnabled(false);
    panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
}

TEST(QtInspectorViewPainting, ReadsNamesInTheChosenEncoding)
{
    sPaintedPanel panel;
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    auto* group = panel.m_view.AddGroup("Gr\xC3\xB6\xC3\x9F"
                                        "e",
                                        nullptr);
    panel.AddRow("H\xC3\xB6he", 20, group);
    panel.m_view.ResizeInspector(300, 150);
    panel.Expect(
        [&](CPanelPainter& painter)
        {
            painter.Group("Gr\xF6\xDF"
                          "e",
                          5, 5, 270, 49);
            painter.Text("H\xF6he", 10, 24, panel.LabelWidth("H\xF6he"), 20);
        });
    panel.m_view.SetPreviewMessage("H\xC3\xB6he", Qt::black);
    images::ExpectSame(images::Render(panel.m_view),
                       images::Paint(panel.m_view,
                                     [&](QPainter& painter)
                                     {
                                         painter.setPen(QPen(Qt::black));
                                         painter.drawText(QRect(0, 0, 300, 150), 129,
                                                          QString::fromLatin1("H\xF6he"));
                                     }));
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
}

TEST(QtInspectorViewPainting, PaintsNamesAsTheyAre)
{
    sPaintedPanel panel;
    for (const char* name : {"two\nlines", "a & b", "&mnemonic", "<b>no</b>", "tab\tbed"})
        panel.AddRow(name, 30);
    panel.m_view.ResizeInspector(300, 250);
    const int column = panel.LabelWidth("&mnemonic");
    panel.Expect(
        [&](CPanelPainter& painter)
        {
            int y = 5;
            for (const char* name : {"two\nlines", "a & b", "&mnemonic", "<b>no</b>", "tab\tbed"})
            {
                painter.Text(name, 5, y, column, 30);
                y += 35;
            }
        });
}

TEST(QtInspectorViewPainting, StaysInPlaceInAWidgetFromRightToLeft)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    const QImage before = images::Render(panel.m_view);
    panel.m_view.setLayoutDirection(Qt::RightToLeft);
    panel.m_view.RecomputeLayout();
    images::ExpectSame(images::Render(panel.m_view), before);
}

TEST(QtInspectorViewPainting, AlignsTextsToTheOtherSideInAnApplicationFromRightToLeft)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    {
        sNestedPanel panel;
        panel.m_view.ResizeInspector(300, 150);
        panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(QtInspectorViewPainting, TakesEveryFont)
{
    for (const int size : {1, 7, 24, 60})
    {
        sNestedPanel panel;
        QFont font = panel.m_view.font();
        font.setPixelSize(size);
        panel.m_view.setFont(font);
        panel.m_view.ResizeInspector(300, 150);
        panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
    }
}

TEST(QtInspectorViewPainting, FollowsAStyleSheetThatChanges)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    for (const char* sheet : {"font-size: 17px", "font-size: 12px; font-weight: bold",
                              "text-decoration: underline", ""})
    {
        panel.m_view.setStyleSheet(QString::fromLatin1(sheet));
        panel.m_view.RecomputeLayout();
        panel.Expect([&](CPanelPainter& painter) { panel.PaintTo(painter); });
    }
}

TEST(QtInspectorViewPainting, KeepsControlsAlignedWithFramesAndLabels)
{
    sPaintedPanel panel;
    auto* group = panel.m_view.AddGroup("Group", nullptr);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(30, 90, 150));
    for (const char* name : {"One", "Two"})
    {
        CTestControl* control = panel.AddRow(name, 20, group);
        control->setPalette(palette);
        control->setAutoFillBackground(true);
    }
    panel.AddRow("", 200);
    panel.m_view.ResizeInspector(300, 120);
    panel.m_view.m_pScrollBar->hide();
    for (const int scroll : {0, 1, 30})
    {
        panel.m_view.m_pScrollBar->setValue(scroll);
        const int label = panel.LabelWidth("One"); // the wider one
        for (const qreal ratio : {1.0, 1.25, 1.5, 2.0})
        {
            SCOPED_TRACE(std::to_string(scroll) + " at " + std::to_string(ratio));
            const auto paint = [&](QPainter& painter)
            {
                CPanelPainter expected(painter, scroll);
                expected.Group("Group", 5, 5, 270, 74);
                for (const auto& [name, y] : {std::pair("One", 24), std::pair("Two", 49)})
                {
                    expected.Text(name, 10, y, label, 20);
                    painter.fillRect(QRect(10 + label, y - scroll, 260 - label, 20),
                                     QColor(30, 90, 150));
                }
            };
            images::ExpectSame(images::Render(panel.m_view, ratio),
                               images::Paint(panel.m_view, paint, ratio));
        }
    }
}
