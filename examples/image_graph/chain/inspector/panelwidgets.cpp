#include "panelwidgets.h"

#include "propertyelements.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

namespace
{

constexpr int g_iWrapFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
constexpr int g_iCheckSize = 5;

void PaintChecks(QPainter& painter, const QRect& area)
{
    painter.fillRect(area, QColor(204, 204, 204));
    for (int y = area.top(); y <= area.bottom(); y += g_iCheckSize)
        for (int x = area.left(); x <= area.right(); x += g_iCheckSize)
            if (((x - area.left()) / g_iCheckSize + (y - area.top()) / g_iCheckSize) % 2)
                painter.fillRect(QRect(x, y, g_iCheckSize, g_iCheckSize) & area,
                                 QColor(153, 153, 153));
}

QColor ToQColor(const CImageOperation::CColor& color)
{
    const auto part = [&](std::size_t i) { return qBound(0.0, color.at(i), 1.0); };
    return QColor::fromRgbF(part(0), part(1), part(2), part(3));
}

} // namespace

QString CWrappedTextWidget::Text()
{
    CStaticDataElement* element = GetSafeData();
    return element ? QString::fromStdString(element->GetText()) : QString();
}

int CWrappedTextWidget::GetRequiredHeight(int width)
{
    const QRect room(0, 0, qMax(1, width), 10000);
    return QFontMetrics(font()).boundingRect(room, g_iWrapFlags, Text()).height() + 2;
}

void CWrappedTextWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawText(rect(), g_iWrapFlags, Text());
}

void CSwatchWidget::OnValueChange(sValueChangeInfo*)
{
    update();
}

void CSwatchWidget::paintEvent(QPaintEvent*)
{
    auto* element = dynamic_cast<CSwatchElement*>(m_pElement);
    if (!element)
        return;
    const QColor color = ToQColor(element->GetColor());
    QPainter painter(this);
    const QRect area = rect();
    if (color.alpha() < 255)
        PaintChecks(painter, area);
    painter.fillRect(area, color);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

void CSwatchWidget::mousePressEvent(QMouseEvent* event)
{
    auto* element = dynamic_cast<CSwatchElement*>(m_pElement);
    if (element && event->button() == Qt::LeftButton)
        element->PickColor();
}
