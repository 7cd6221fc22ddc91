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

void CFieldWidget::StartEditing()
{
    GetDataAsString(m_sStart);
    CQTSimpleDataWidget::StartEditing();
}

void CFieldWidget::FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause)
{
    std::string text = value;
    if (text == m_sStart)
        GetDataAsString(text);
    CQTSimpleDataWidget::FinishValueEdit(text.c_str(), cause);
}

void CMixedBoolWidget::paintEvent(QPaintEvent* event)
{
    CQTSimpleBoolWidget::paintEvent(event);
    const auto* element = dynamic_cast<CBoolPropertyElement*>(m_pElement);
    if (!element || !element->IsMixed())
        return;
    QPainter painter(this);
    painter.fillRect(QRect(5, 9, 10, 2), palette().color(QPalette::Text));
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
    QPainter painter(this);
    const auto count = static_cast<int>(element->GetColors().size());
    for (int i = 0; i < count; ++i)
    {
        const QColor color = ToQColor(element->GetColors()[static_cast<std::size_t>(i)]);
        const int left = width() * i / count;
        const QRect area(left, 0, width() * (i + 1) / count - left, height());
        if (color.alpha() < 255)
            PaintChecks(painter, area);
        painter.fillRect(area, color);
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void CSwatchWidget::mousePressEvent(QMouseEvent* event)
{
    auto* element = dynamic_cast<CSwatchElement*>(m_pElement);
    if (element && event->button() == Qt::LeftButton)
        element->PickColor();
}
