#include "layoutpictures.h"

#include "samplepanel.h"

#include <QPainter>

#include <set>

namespace
{

constexpr int g_iScale = 3;
constexpr int g_iRuler = 36; ///< room for the numbers, in pixels of the picture

/// Draws the panel enlarged, with a number at the left for each y and one below for each x.
QImage WithRulers(CSamplePanel& panel, const std::set<int>& xs, const std::set<int>& ys)
{
    const QImage picture = panel.Draw(g_iScale);
    QImage image(picture.width() + g_iRuler, picture.height() + g_iRuler, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.drawImage(QRect(g_iRuler, 0, picture.width(), picture.height()), picture);
    QFont font = painter.font();
    font.setPixelSize(10);
    painter.setFont(font);
    painter.setPen(QColor(176, 74, 24));
    for (int y : ys)
    {
        const int at = qMin(y * g_iScale, picture.height() - 1);
        painter.drawLine(g_iRuler - 6, at, image.width(), at);
        painter.drawText(QRect(0, qMax(0, at - 7), g_iRuler - 8, 14),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(y));
    }
    int last = -g_iRuler;
    int line = 8;
    for (int x : xs)
    {
        const int at = g_iRuler + x * g_iScale;
        painter.drawLine(at, 0, at, picture.height() + 6);
        // Two numbers that would touch stand one below the other.
        line = at - last < 24 ? 28 - line : 8;
        last = at;
        painter.drawText(QRect(at - 15, picture.height() + line, 30, 14), Qt::AlignCenter,
                         QString::number(x));
    }
    return image;
}

} // namespace

QImage DrawGroupWithNumbers()
{
    CSamplePanel panel;
    auto* group = panel.Group("Limits");
    panel.Text("At least", "0", group);
    panel.Text("At most", "100", group);
    panel.m_View.ResizeInspector(220, -1);
    std::set<int> xs{0, group->m_iX, group->m_iX + group->m_iWidth};
    std::set<int> ys{0, group->m_iY, group->m_iY + group->m_iHeight,
                     panel.m_View.GetCurrentContentHeight()};
    for (const auto& row : group->m_lChildren)
    {
        const auto& control = *row.m_pHolder;
        xs.insert({row.m_iX, control.m_iX, control.m_iX + control.m_iWidth});
        ys.insert({row.m_iY, row.m_iY + row.m_iHeight});
    }
    return WithRulers(panel, xs, ys);
}

QImage DrawContainerWithNumbers()
{
    CSamplePanel panel;
    CSamplePanel::sRequest least;
    least.SetMinValueAbsolute(20);
    auto* line = panel.Container("", nullptr);
    for (const char* value : {"65", "65", "66"})
        panel.Text(nullptr, value, line, &least);
    panel.m_View.ResizeInspector(230, -1);
    std::set<int> xs;
    for (const auto* control : line->m_pHolder->m_lChildren)
        xs.insert({control->m_iX, control->m_iX + control->m_iWidth});
    return WithRulers(panel, xs, {});
}
