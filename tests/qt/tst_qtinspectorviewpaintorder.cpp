#include "paintedpanel.h"

#include <gtest/gtest.h>

#include <iterator>
#include <limits>
#include <utility>
#include <vector>

namespace
{

using sElement = CInspectorView::sInspectorElement;

constexpr int g_iMax = std::numeric_limits<int>::max();
constexpr int g_iMin = std::numeric_limits<int>::min();

/// A host's view with other metrics; it may scroll on while it paints.
class CHostView : public CTestView
{
public:
    using CTestView::CTestView;

    int GetInspectorLeftMargin() override { return m_iLeft; }
    int GetInspectorTopMargin() override { return m_iTop; }
    int GetInspectorRightMargin() override { return m_iRight; }
    int GetGroupLabelHeight() override { return m_iTitle; }
    int GetGroupLeftMargin() override { return m_iGroupLeft; }
    int GetGroupTopMargin() override { return m_iGroupTop; }
    int GetGroupRightMargin() override
    {
        if (m_iScrollStep != 0)
            m_pScrollBar->setValue(m_pScrollBar->value() + m_iScrollStep);
        return m_iGroupRight;
    }

    int m_iLeft = 5;
    int m_iTop = 5;
    int m_iRight = 5;
    int m_iTitle = 14;
    int m_iGroupLeft = 5;
    int m_iGroupTop = 5;
    int m_iGroupRight = 5;
    int m_iScrollStep = 0;
};

struct sHostPanel
{
    sHostPanel() { m_view.SetController(&m_controller); }

    CTestControl* AddRow(const char* label, int height = 20, sElement* parent = nullptr)
    {
        auto* control = new CTestControl(m_log, "control", -1, height);
        m_view.AddElement(nullptr, control, label, nullptr, parent);
        return control;
    }

    CCallLog m_log;
    CRecordingController m_controller{m_log};
    CHostView m_view{m_log};
};

/// Paints nodes in the given order, wherever the layout put them.
QImage PaintInOrder(const QWidget& view, const std::vector<const sElement*>& nodes)
{
    return images::Paint(
        view,
        [&](QPainter& painter)
        {
            CPanelPainter panel(painter);
            for (const sElement* node : nodes)
            {
                const char* name = node->m_sName.c_str();
                if (node->m_iKind == CInspectorView::eElementRow)
                    panel.Text(name, node->m_iX, node->m_iY, node->m_iLabelWidth, node->m_iHeight);
                else if (node->m_sName.empty())
                    panel.Frame(node->m_iX, node->m_iY, node->m_iWidth, node->m_iHeight, false);
                else
                    panel.Group(name, node->m_iX, node->m_iY, node->m_iWidth, node->m_iHeight);
            }
        });
}

void ExpectDifferent(const QImage& a, const QImage& b)
{
    EXPECT_GT(images::CountDifferent(a, b), 0) << "the order cannot be told from the picture";
}

} // namespace

TEST(QtInspectorViewPaintOrder, GoesLevelByLevel)
{
    sPaintedPanel panel;
    auto* first = panel.m_view.AddGroup("First", nullptr);
    auto* inner = panel.m_view.AddGroup("", first);
    auto* innermost = panel.m_view.AddGroup("", inner);
    panel.AddRow("", 20, innermost);
    panel.AddRow("", -50, first); // moves the next group up into this one
    auto* second = panel.m_view.AddGroup("MMMMMM", nullptr);
    auto* last = panel.m_view.AddGroup("WWWWW", second);
    panel.AddRow("", 60, last);
    panel.m_view.ResizeInspector(300, 150);
    panel.m_view.m_pScrollBar->hide();
    const QImage picture = images::Render(panel.m_view);
    images::ExpectSame(picture,
                       PaintInOrder(panel.m_view, {first, second, inner, last, innermost}));
    ExpectDifferent(picture, PaintInOrder(panel.m_view, {first, inner, innermost, second, last}));
    ExpectDifferent(picture, PaintInOrder(panel.m_view, {first, inner, second, innermost, last}));
    ExpectDifferent(picture, PaintInOrder(panel.m_view, {first, second, last, inner, innermost}));
    ExpectDifferent(picture, PaintInOrder(panel.m_view, {first, second, inner, innermost, last}));
    ExpectDifferent(picture, PaintInOrder(panel.m_view, {innermost, inner, last, first, second}));
}

TEST(QtInspectorViewPaintOrder, GoesThroughALevelInItsOrder)
{
    sPaintedPanel panel;
    panel.AddRow("MMMMMMMM");
    panel.AddRow("", -32);
    auto* group = panel.m_view.AddGroup("iiii", nullptr);
    panel.AddRow("", -32, group);
    panel.AddRow("WWWWWWWW");
    panel.m_view.ResizeInspector(300, 150);
    const sElement* before = &panel.m_view.m_lElements.front();
    const sElement* after = &panel.m_view.m_lElements.back();
    const QImage picture = images::Render(panel.m_view);
    images::ExpectSame(picture, PaintInOrder(panel.m_view, {before, group, after}));
    ExpectDifferent(picture, PaintInOrder(panel.m_view, {group, before, after}));
    ExpectDifferent(picture, PaintInOrder(panel.m_view, {before, after, group}));
}

TEST(QtInspectorViewPaintOrder, ReadsTheScrollBarForEachElement)
{
    sHostPanel panel;
    for (const char* name : {"One", "Two", "Three"})
        panel.AddRow("", 20, panel.m_view.AddGroup(name, nullptr));
    panel.AddRow("", 300);
    panel.m_view.ResizeInspector(300, 200);
    panel.m_view.m_pScrollBar->hide();
    panel.m_view.m_iScrollStep = 3;
    const QImage picture = images::Render(panel.m_view);
    images::ExpectSame(picture,
                       images::Paint(panel.m_view,
                                     [](QPainter& painter)
                                     {
                                         CPanelPainter(painter, 0).Group("One", 5, 5, 270, 49);
                                         CPanelPainter(painter, 3).Group("Two", 5, 59, 270, 49);
                                         CPanelPainter(painter, 6).Group("Three", 5, 113, 270, 49);
                                     }));
}

TEST(QtInspectorViewPaintOrder, AsksTheHostForTheMetricsOfGroups)
{
    sHostPanel panel;
    panel.m_view.m_iTitle = 21;
    panel.m_view.m_iGroupLeft = 12;
    panel.m_view.m_iGroupRight = 200;
    const sElement* group = panel.m_view.AddGroup("A long title that is cut", nullptr);
    panel.m_view.ResizeInspector(300, 100);
    ASSERT_EQ(group->m_iY, 5);
    images::ExpectSame(
        images::Render(panel.m_view),
        images::Paint(panel.m_view,
                      [](QPainter& painter)
                      {
                          const QPen pen = painter.pen();
                          painter.setPen(QPen(pen.color().darker(175)));
                          painter.drawRoundedRect(QRectF(5, 15, 270, -10), 3, 3, Qt::AbsoluteSize);
                          painter.setPen(pen);
                          painter.setBackgroundMode(Qt::OpaqueMode);
                          painter.drawText(QRect(17, 5, 270 - 212, 21), 129,
                                           QStringLiteral("A long title that is cut"));
                      }));
}

TEST(QtInspectorViewPaintOrder, PaintsNoTitleWithoutATitleLine)
{
    for (const int title : {0, -5})
    {
        sHostPanel panel;
        panel.m_view.m_iTitle = title;
        auto* group = panel.m_view.AddGroup("General", nullptr);
        panel.AddRow("", 40, group);
        panel.m_view.ResizeInspector(300, 100);
        const int height = 55 + title;
        ASSERT_EQ(group->m_iHeight, height);
        images::ExpectSame(
            images::Render(panel.m_view),
            images::Paint(panel.m_view,
                          [&](QPainter& painter)
                          {
                              const int half = title / 2;
                              painter.setPen(QPen(painter.pen().color().darker(175)));
                              painter.drawRoundedRect(QRectF(5, 5 + half, 270, height - half), 3, 3,
                                                      Qt::AbsoluteSize);
                          }));
    }
}

TEST(QtInspectorViewPaintOrder, RestoresPenAndBackground)
{
    // A row behind a group is drawn as one in front of it.
    sPaintedPanel panel;
    QPalette palette = panel.m_view.palette();
    palette.setColor(QPalette::WindowText, QColor(200, 120, 60));
    panel.m_view.setPalette(palette);
    auto* group = panel.m_view.AddGroup("Group", nullptr);
    panel.AddRow("", -34, group); // its frame runs behind the row
    panel.AddRow("Row");
    panel.m_view.ResizeInspector(300, 100);
    const sElement* row = &panel.m_view.m_lElements.back();
    images::ExpectSame(images::Render(panel.m_view), PaintInOrder(panel.m_view, {group, row}));
}

TEST(QtInspectorViewPaintOrder, SurvivesPlacesAtTheEndsOfTheNumbers)
{
    const std::vector<std::pair<int, int>> bounds = {
        {g_iMin, 5},      {g_iMax, 5},      {5, g_iMin},
        {5, g_iMax},      {g_iMin, g_iMin}, {g_iMax, g_iMax},
        {g_iMin, g_iMax}, {g_iMax, g_iMin}, {-g_iMax, 1 - g_iMax}};
    for (const auto& [left, right] : bounds)
    {
        for (const int top : {g_iMin, g_iMin + 40, 5, g_iMax - 40, g_iMax})
        {
            for (const int height : {g_iMin, -1, 20, g_iMax})
            {
                sHostPanel panel;
                panel.m_view.m_iLeft = left;
                panel.m_view.m_iRight = right;
                panel.m_view.m_iTop = top;
                auto* group = panel.m_view.AddGroup("Group", nullptr);
                panel.AddRow("Row", height, group);
                panel.AddRow("", height, panel.m_view.AddGroup("", group));
                panel.AddRow("Last", height);
                panel.m_view.ResizeInspector(300, 100);
                panel.m_view.m_pScrollBar->setValue(g_iMax);
                images::Render(panel.m_view);
                images::Render(panel.m_view, 2, QRegion(10, 10, 5, 5));
                EXPECT_EQ(panel.m_log.Count("view.painted"), 2U);
            }
        }
    }
}

TEST(QtInspectorViewPaintOrder, PaintsTheEndOfAPanelOfTwoBillionPixels)
{
    sPaintedPanel panel;
    panel.AddRow("", g_iMax - 100);
    auto* group = panel.m_view.AddGroup("End", nullptr);
    panel.AddRow("Row", 20, group);
    panel.m_view.ResizeInspector(300, 90);
    panel.m_view.m_pScrollBar->setValue(g_iMax);
    panel.m_view.m_pScrollBar->hide();
    const int scroll = g_iMax - 31 - 90;
    ASSERT_EQ(panel.m_view.m_pScrollBar->value(), scroll);
    EXPECT_EQ(group->m_iY - scroll, 31);
    images::ExpectSame(images::Render(panel.m_view),
                       images::Paint(panel.m_view,
                                     [&](QPainter& painter)
                                     {
                                         CPanelPainter panelPainter(painter);
                                         panelPainter.Group("End", 5, 31, 270, 49);
                                         panelPainter.Text("Row", 10, 50, panel.LabelWidth("Row"),
                                                           20);
                                     }));
}

TEST(QtInspectorViewPaintOrder, PaintsATitleFarBelowItsGroup)
{
    sHostPanel panel;
    panel.m_view.m_iTitle = 200;
    auto* outer = panel.m_view.AddGroup("", nullptr);
    panel.m_view.AddGroup("Title", outer);
    panel.AddRow("", 500);
    panel.m_view.ResizeInspector(300, 100);
    panel.m_view.m_pScrollBar->setValue(80);
    panel.m_view.m_pScrollBar->hide();
    ASSERT_EQ(outer->m_iY + outer->m_iHeight, 20);
    const sElement& inner = outer->m_lChildren.front();
    const QRectF title(inner.m_iX + 5, inner.m_iY - 80, inner.m_iWidth - 10, 200);
    const QImage picture = images::Render(panel.m_view);
    images::ExpectSame(picture,
                       images::Paint(panel.m_view,
                                     [&](QPainter& painter)
                                     {
                                         const QPen pen = painter.pen();
                                         painter.setPen(pen.color().darker(175));
                                         painter.drawRoundedRect(QRectF(inner.m_iX, title.y() + 100,
                                                                        inner.m_iWidth, -100),
                                                                 3, 3);
                                         painter.setPen(pen);
                                         painter.setBackgroundMode(Qt::OpaqueMode);
                                         painter.drawText(title, 129, QStringLiteral("Title"));
                                     }));
}

TEST(QtInspectorViewPaintOrder, PaintsARowThatStandsAboveItsGroup)
{
    sHostPanel panel;
    panel.m_view.m_iGroupTop = -200;
    panel.AddRow("", 300);
    auto* group = panel.m_view.AddGroup("", nullptr);
    panel.AddRow("Row", 20, group);
    panel.AddRow("", 300, group);
    panel.m_view.ResizeInspector(300, 150);
    panel.m_view.m_pScrollBar->hide();
    ASSERT_EQ(group->m_iY, 310);
    ASSERT_GT(group->m_iHeight, 0);
    const sElement& row = group->m_lChildren.front();
    ASSERT_EQ(row.m_iY, 110);
    images::ExpectSame(images::Render(panel.m_view), PaintInOrder(panel.m_view, {&row}));
}

TEST(QtInspectorViewPaintOrder, PaintsAGroupThatIsNotLaidOutYet)
{
    sPaintedPanel panel;
    panel.AddRow("", 300);
    auto* group = panel.m_view.AddGroup("", nullptr);
    panel.AddRow("", 20, group);
    panel.m_view.ResizeInspector(300, 150);
    panel.m_view.m_pScrollBar->hide();
    const sElement* added = panel.m_view.AddGroup("New", group);
    const QImage picture = images::Render(panel.m_view);
    images::ExpectSame(picture, PaintInOrder(panel.m_view, {added}));
    ExpectDifferent(picture, PaintInOrder(panel.m_view, {}));
}
