#include "nodeitem.h"
#include "nodelook.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

using namespace nodelook;

namespace
{

constexpr int g_iTitleSize = 13;
constexpr int g_iNameSize = 11;
constexpr int g_iPadSize = 10;
constexpr qreal g_dLeastDetail = 0.35; ///< texts below this scale are but specks

QFont FontOf(const QPainter& painter, int size, bool isBold = false)
{
    QFont font = painter.font();
    font.setPixelSize(size);
    font.setBold(isBold);
    return font;
}

void DrawElided(QPainter& painter, const QRectF& area, const QString& text)
{
    const QString shown =
        QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, area.width());
    painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, shown);
}

} // namespace

void CNodeItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                      QWidget* /*widget*/)
{
    painter->setRenderHint(QPainter::Antialiasing);
    PaintFrame(*painter);
    if (option->levelOfDetailFromTransform(painter->worldTransform()) >= g_dLeastDetail)
        PaintTexts(*painter);
    PaintPin(*painter);
    if (m_bViewed)
        PaintEye(*painter);
    PaintPads(*painter);
}

void CNodeItem::PaintFrame(QPainter& painter) const
{
    const QRectF frame(0, 0, g_dWidth, g_dHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawRoundedRect(frame.translated(0, 3), g_dRounding, g_dRounding);

    QPainterPath outline;
    outline.addRoundedRect(frame, g_dRounding, g_dRounding);
    painter.fillPath(outline, m_bHovered ? g_colorNodeHovered : g_colorNode);
    QPainterPath bar;
    bar.addRect(0, 0, g_dBarWidth, g_dHeight);
    painter.fillPath(outline.intersected(bar), m_colorCategory);
    painter.setBrush(g_colorBody);
    painter.drawRoundedRect(StripArea(), 2, 2);

    QPen pen(g_colorOutline, 1);
    if (m_state.m_eState == eNodeError)
        pen = QPen(g_colorError, 1.5);
    if (isSelected())
        pen = QPen(m_state.m_eState == eNodeError ? g_colorError : g_colorAccent, 2.5);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(outline);
}

void CNodeItem::PaintTexts(QPainter& painter) const
{
    painter.setPen(g_colorTitle);
    painter.setFont(FontOf(painter, g_iTitleSize, true));
    const qreal left = g_dBarWidth + 8;
    const qreal icons = m_bViewed ? 46 : 26;
    DrawElided(painter, QRectF(left, 1, g_dWidth - left - icons, g_dTitleHeight - 2), m_sTitle);

    painter.setFont(FontOf(painter, g_iNameSize));
    const bool isFaulty = m_state.m_eState == eNodeError;
    painter.setPen(isFaulty ? g_colorError : g_colorFaint);
    DrawElided(painter, StripArea().adjusted(6, 0, -4, 0), isFaulty ? m_state.m_sError : m_sName);

    // The main input needs no name. Edges come from the right.
    painter.setFont(FontOf(painter, g_iPadSize));
    painter.setPen(g_colorFaint);
    for (size_t i = 1; i < m_vInputs.size(); ++i)
    {
        const QPointF right = InputPosition(int(i)) - QPointF(g_dPadRadius + 4, 14);
        painter.drawText(QRectF(right - QPointF(60, 0), QSizeF(60, 12)), Qt::AlignRight,
                         QString::fromStdString(m_vInputs[i]));
    }
}

void CNodeItem::PaintPads(QPainter& painter) const
{
    for (size_t i = 0; i < m_vInputs.size(); ++i)
        PaintPad(painter, {m_iId, m_vInputs[i]}, InputPosition(int(i)));
    if (m_bHasOutput)
        PaintPad(painter, {m_iId, std::string()}, OutputPosition());
}

void CNodeItem::PaintPad(QPainter& painter, const sPadRef& pad, const QPointF& centre) const
{
    const bool isTarget = m_target == pad;
    const QColor edge = !isTarget ? g_colorEdge : m_bTargetAllowed ? g_colorGood : g_colorError;
    painter.setPen(QPen(edge, 1.6));
    painter.setBrush(m_vConnected.count(pad.m_sPad) || isTarget ? edge : g_colorCanvas);
    const qreal radius = isTarget ? g_dPadRadius + 3 : g_dPadRadius;
    painter.drawEllipse(centre, radius, radius);
}

void CNodeItem::PaintPin(QPainter& painter) const
{
    const QColor open = m_bHovered ? g_colorFaint : g_colorOff;
    painter.setPen(QPen(m_bPinned ? g_colorAccent : open, 1.6));
    painter.setBrush(m_bPinned ? g_colorAccent : Qt::transparent);
    const QPointF centre = PinArea().center();
    painter.drawEllipse(centre - QPointF(0, 3), 4, 4);
    painter.drawLine(centre + QPointF(0, 1), centre + QPointF(0, 7));
}

void CNodeItem::PaintEye(QPainter& painter) const
{
    const QPointF centre = PinArea().center() - QPointF(22, 0);
    QPainterPath lids(centre - QPointF(8, 0));
    lids.quadTo(centre - QPointF(0, 9), centre + QPointF(8, 0));
    lids.quadTo(centre + QPointF(0, 9), centre - QPointF(8, 0));
    painter.setPen(QPen(g_colorTitle, 1.4));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(lids);
    painter.setPen(Qt::NoPen);
    painter.setBrush(g_colorTitle);
    painter.drawEllipse(centre, 2.2, 2.2);
}
