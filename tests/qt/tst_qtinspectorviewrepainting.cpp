#include "paintedpanel.h"

#include <qttextencoding.h>
#include <simpledataelement.h>

#include <QApplication>
#include <QPicture>
#include <QTest>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace
{

/// The picture with nothing outside of a rectangle of the widget's coordinates.
QImage Cut(const QImage& picture, const QRect& part)
{
    QImage cut(picture.size(), picture.format());
    cut.setDevicePixelRatio(picture.devicePixelRatio());
    cut.fill(Qt::transparent);
    const int ratio = static_cast<int>(picture.devicePixelRatio());
    const auto bytes = static_cast<std::size_t>(part.width() * ratio) * sizeof(QRgb);
    for (int y = part.top() * ratio; y < (part.bottom() + 1) * ratio; ++y)
    {
        const auto line = [&](auto* start) { return start + part.left() * ratio; };
        std::memcpy(line(reinterpret_cast<QRgb*>(cut.scanLine(y))),
                    line(reinterpret_cast<const QRgb*>(picture.constScanLine(y))), bytes);
    }
    return cut;
}

void ExpectSameInPart(QWidget& widget, const QImage& whole, const QRect& part)
{
    SCOPED_TRACE("part " + std::to_string(part.x()) + "," + std::to_string(part.y()) + " " +
                 std::to_string(part.width()) + "x" + std::to_string(part.height()));
    images::ExpectSame(images::Render(widget, whole.devicePixelRatio(), part), Cut(whole, part));
}

/// Whatever part is repainted, its pixels are those of the whole picture: strips of one pixel and
/// tiles find what stands out of the rectangle that it is drawn in.
void ExpectSameInEveryPart(QWidget& widget)
{
    const QImage whole = images::Render(widget);
    for (int x = 0; x < widget.width(); ++x)
        ExpectSameInPart(widget, whole, QRect(x, 0, 1, widget.height()));
    for (int y = 0; y < widget.height(); ++y)
        ExpectSameInPart(widget, whole, QRect(0, y, widget.width(), 1));
    for (const qreal ratio : {1.0, 2.0})
    {
        const QImage picture = images::Render(widget, ratio);
        for (int y = 0; y < widget.height(); y += 17)
        {
            for (int x = 0; x < widget.width(); x += 23)
                ExpectSameInPart(widget, picture, QRect(x, y, 23, 17) & widget.rect());
        }
    }
}

/// A view whose label widths are wrong.
class CNarrowView : public CQTInspectorView
{
public:
    void UpdateView() override {}
    int GetElementLabelWidth(sInspectorElement* element) override
    {
        return element->m_sName.size() > 4 ? m_iLabelWidth : 0;
    }

    int m_iLabelWidth = 0;
};

} // namespace

/// Gives the panel a row that its controller knows, and a size of 300 x 100 pixels.
void PlaceItem(sPaintedPanel& panel, const char* label)
{
    auto* control = new CTestControl(panel.m_log, label, -1);
    auto* element = new CSimpleDataElement;
    panel.m_controller.AddItem(element, control, nullptr);
    panel.m_view.AddElement(element, control, label, nullptr, nullptr);
    panel.m_view.ResizeInspector(300, 100);
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPart)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    ExpectSameInEveryPart(panel.m_view);
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPartOfAScrolledPanel)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 90);
    panel.m_view.m_pScrollBar->hide();
    panel.m_view.m_pScrollBar->setValue(30);
    ExpectSameInEveryPart(panel.m_view);
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPartOfAPreview)
{
    sNestedPanel panel;
    panel.m_view.SetPreviewMode(true);
    panel.m_view.ResizeInspector(300, 40);
    ExpectSameInEveryPart(panel.m_view);
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPartOfAMessage)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 50);
    panel.m_view.SetPreviewMessage("Nothing selected", Qt::red);
    ExpectSameInEveryPart(panel.m_view);
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPartOfEmptyGroups)
{
    sPaintedPanel panel;
    panel.m_view.AddGroup("Empty", nullptr);
    panel.m_view.AddGroup("", nullptr);
    panel.AddRow("Size");
    panel.m_view.ResizeInspector(300, 60);
    ExpectSameInEveryPart(panel.m_view);
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPartInTheSmallestFont)
{
    sNestedPanel panel;
    QFont font = panel.m_view.font();
    font.setPixelSize(1);
    panel.m_view.setFont(font);
    panel.m_view.ResizeInspector(100, 150);
    ExpectSameInEveryPart(panel.m_view);
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPartFromRightToLeft)
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    {
        sNestedPanel panel;
        panel.m_view.ResizeInspector(300, 150);
        ExpectSameInEveryPart(panel.m_view);
    }
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPartOfGlyphsThatStandOut)
{
    for (const char* family : {"DejaVu Sans", "DejaVu Serif"})
    {
        SCOPED_TRACE(family);
        sPaintedPanel panel;
        QFont font(QString::fromLatin1(family));
        font.setPixelSize(60);
        font.setItalic(true);
        font.setBold(true);
        panel.m_view.setFont(font);
        panel.m_view.SetPreviewMode(false);
        panel.AddRow("jf", 100);
        panel.AddRow("\xC5/\\f", 71);
        auto* group = panel.m_view.AddGroup("fj", nullptr);
        panel.AddRow("f", 100, group);
        panel.m_view.ResizeInspector(170, 300);
        ExpectSameInEveryPart(panel.m_view);
    }
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPartOfStackedMarks)
{
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    sPaintedPanel panel;
    panel.AddRow("", 60);
    panel.AddRow("A\xCC\x82\xCC\x81\xCC\x83\xCC\xA3\xCC\xB1", 20);
    panel.AddRow("", 60);
    panel.m_view.ResizeInspector(60, 180);
    ExpectSameInEveryPart(panel.m_view);
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInEveryPartForWrongLabelWidths)
{
    for (const int width : {-1000, -50, -1, 0, 1, 7})
    {
        sTestPanel other;
        CNarrowView view;
        view.SetController(&other.m_controller);
        view.m_iLabelWidth = width;
        auto* group = view.AddGroup("General", nullptr);
        for (const char* label : {"Radius", "Size", "Threshold"})
            view.AddElement(nullptr, new CTestControl(other.m_log, label), label, nullptr,
                            label[0] == 'R' ? nullptr : group);
        view.ResizeInspector(200, 110);
        ExpectSameInEveryPart(view);
    }
}

TEST(QtInspectorViewRepainting, CutsALabelAtItsWidth)
{
    sTestPanel other;
    CNarrowView view;
    view.SetController(&other.m_controller);
    view.m_iLabelWidth = 25;
    view.AddElement(nullptr, new CTestControl(other.m_log, "control", -1), "Threshold", nullptr,
                    nullptr);
    view.ResizeInspector(200, 40);
    images::ExpectSame(images::Render(view),
                       images::Paint(view,
                                     [](QPainter& painter) {
                                         painter.drawText(QRect(5, 5, 25, 20), 129,
                                                          QStringLiteral("Threshold"));
                                     }));
}

TEST(QtInspectorViewRepainting, GivesTheSamePixelsInARegionOfSeveralParts)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    const QImage whole = images::Render(panel.m_view);
    const QRegion region = QRegion(3, 3, 40, 11) + QRegion(200, 60, 90, 50) + QRegion(9, 120, 7, 9);
    const QImage picture = images::Render(panel.m_view, 1, region);
    for (int y = 0; y < whole.height(); ++y)
    {
        for (int x = 0; x < whole.width(); ++x)
        {
            if (region.contains(QPoint(x, y)))
            {
                ASSERT_EQ(picture.pixel(x, y), whole.pixel(x, y)) << x << "," << y;
            }
        }
    }
}

TEST(QtInspectorViewRepainting, DrawsOnlyWhatIsInSight)
{
    // The size of the recorded drawing, with the panel scrolled to its middle.
    const auto drawn = [](int rows)
    {
        sPaintedPanel panel;
        for (int row = 0; row < rows; ++row)
            panel.AddRow("Size", 20, panel.m_view.AddGroup("Group", nullptr));
        panel.m_view.ResizeInspector(300, 100);
        panel.m_view.m_pScrollBar->setValue(panel.m_view.m_pScrollBar->maximum() / 2);
        panel.m_view.m_pScrollBar->hide();
        QPicture picture;
        panel.m_view.render(&picture);
        return picture.size();
    };
    const unsigned few = drawn(20);
    EXPECT_GT(few, 500U);
    EXPECT_LT(drawn(1000), few * 3 / 2);
}

TEST(QtInspectorViewRepainting, DrawsWithWhatANoticeDidToTheWidget)
{
    sPaintedPanel panel;
    panel.AddRow("Size");
    panel.m_view.ResizeInspector(300, 100);
    QPalette palette = panel.m_view.palette();
    palette.setColor(QPalette::WindowText, Qt::darkGreen);
    panel.m_controller.DirtifyController(new CRecordingNotice(panel.m_log, "notice"));
    panel.m_controller.m_fnHandleControllerDirt = [&](auto&) { panel.m_view.setPalette(palette); };
    const QImage picture = images::Render(panel.m_view);
    images::ExpectSame(picture,
                       images::Paint(panel.m_view,
                                     [&](QPainter& painter)
                                     {
                                         EXPECT_EQ(painter.pen().color(), QColor(Qt::darkGreen));
                                         CPanelPainter(painter).Text("Size", 5, 5,
                                                                     panel.LabelWidth("Size"), 20);
                                     }));
}

TEST(QtInspectorViewRepainting, DeliversTheNoticesOfTheControllerFirst)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    const QImage before = images::Render(panel.m_view);
    panel.m_controller.DirtifyController(new CRecordingNotice(panel.m_log, "notice"));
    panel.m_controller.m_fnHandleControllerDirt = [&](auto&)
    {
        EXPECT_FALSE(panel.m_view.paintingActive());
        panel.m_view.SetPreviewMessage("Nothing selected", Qt::red);
    };
    panel.m_log.Clear();
    const QImage after = images::Render(panel.m_view);
    EXPECT_EQ(panel.m_log.Take(),
              (CCalls{"view.paintEvent()", "view.OnPreDraw()",
                      "controller.HandleControllerDirt(notice)", "notice.~()", "view.painted()"}));
    images::ExpectSame(after,
                       images::Paint(panel.m_view,
                                     [](QPainter& painter)
                                     {
                                         painter.setPen(QPen(Qt::red));
                                         painter.drawText(QRect(0, 0, 300, 150), 129,
                                                          QStringLiteral("Nothing selected"));
                                     }));
    EXPECT_GT(images::CountDifferent(before, after), 100);
}

TEST(QtInspectorViewRepainting, ShowsInTheSameFrameWhatANoticeOfARowDid)
{
    sPaintedPanel panel;
    PlaceItem(panel, "Size");
    panel.m_controller.DirtifyItem(panel.m_controller.RecordAt(0),
                                   new CRecordingNotice(panel.m_log, "notice"));
    panel.m_controller.m_fnHandleDirtyItem = [&](auto*, auto*)
    {
        panel.AddRow("Radius");
        panel.m_view.RecomputeLayout();
    };
    panel.Expect(
        [&](CPanelPainter& painter)
        {
            painter.Text("Size", 5, 5, panel.LabelWidth("Radius"), 20);
            painter.Text("Radius", 5, 30, panel.LabelWidth("Radius"), 20);
        });
    EXPECT_EQ(panel.m_log.Containing("HandleDirtyItem").size(), 1U);
}

TEST(QtInspectorViewRepainting, PaintsAFurtherFrameForWhatADeliveryQueued)
{
    sPaintedPanel panel;
    PlaceItem(panel, "Size");
    panel.m_view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&panel.m_view));
    QTest::qWait(50);
    int frames = 0;
    // Too late for this frame: the notices for the whole panel were handled before those of rows.
    panel.m_controller.m_fnHandleDirtyItem = [&](auto*, auto*)
    { panel.m_controller.DirtifyController(new CRecordingNotice(panel.m_log, "notice")); };
    panel.m_controller.m_fnHandleControllerDirt = [&](auto&) { ++frames; };
    panel.m_controller.DirtifyItem(panel.m_controller.RecordAt(0), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&frames] { return frames > 0; }, 1000));
    EXPECT_EQ(frames, 1);
}

TEST(QtInspectorViewRepainting, AsksForNoticesWhateverItPaints)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 150);
    panel.m_view.ShowContent(false, false);
    panel.m_log.Clear();
    images::Render(panel.m_view, 1, QRegion(0, 0, 1, 1));
    panel.m_view.SetPreviewMessage("message", Qt::red);
    images::Render(panel.m_view, 1, QRegion(0, 0, 1, 1));
    EXPECT_EQ(panel.m_log.Count("OnPreDraw"), 2U);
}

TEST(QtInspectorViewRepainting, SurvivesAHandlerThatClearsThePanel)
{
    sPaintedPanel panel;
    PlaceItem(panel, "Size");
    panel.m_controller.DirtifyController(new CRecordingNotice(panel.m_log, "notice"));
    panel.m_controller.m_fnHandleControllerDirt = [&](auto&) { panel.m_controller.ClearAllData(); };
    panel.Expect([](CPanelPainter&) {});
}

TEST(QtInspectorViewRepainting, ChangesNothing)
{
    sNestedPanel panel;
    panel.m_view.ResizeInspector(300, 90);
    panel.m_view.m_pScrollBar->setValue(30);
    panel.m_log.Clear();
    images::Render(panel.m_view);
    EXPECT_EQ(panel.m_log.Take(),
              (CCalls{"view.paintEvent()", "view.OnPreDraw()", "view.painted()"}));
    EXPECT_EQ(panel.m_view.m_iOffsetY, 30);
    EXPECT_EQ(panel.m_view.m_pScrollBar->value(), 30);
}
