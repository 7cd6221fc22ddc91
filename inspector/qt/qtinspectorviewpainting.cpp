#include <qtinspectorview.h>

#include "panelcontent.h"
#include "panelrepaint.h"
#include "text.h"
#include "textline.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <deque>

namespace
{

/// Whether something drawn in a rectangle may be seen in another; nothing is known about a
/// rectangle turned inside out.
bool MayShow(const QRectF& drawn, const QRect& exposed)
{
    return drawn.width() <= 0 || drawn.height() <= 0 || drawn.intersects(exposed);
}

/// Whether a row lies above or below a rectangle, told without much ado: most rows do.
bool IsAboveOrBelow(long long top, long long height, const QRect& exposed)
{
    return height > 0 && (top > exposed.bottom() || top + height <= exposed.top());
}

/// Whether upright letters of a text stay in the rectangle that it is measured by.
bool IsPlain(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

} // namespace

void CQTInspectorView::paintEvent(QPaintEvent* event)
{
    {
        // What changes now is drawn in this frame, controls included, if all of the panel is.
        const CPaintAhead ahead(m_pContent, m_bRepaintAsked ? event->region() : QRegion());
        m_bRepaintAsked = false;
        OnPreDraw();
        static_cast<CPanelContent*>(m_pContent)->RevealNewControls();
    }
    QWidget::paintEvent(event);
    QPainter painter(this);
    if (HasPreviewMessage())
    {
        const QPen pen = painter.pen();
        painter.setPen(QPen(m_colorPreview));
        DrawTextLine(painter, QRect(0, 0, width(), height()), ToQString(m_sPreviewMessage));
        painter.setPen(pen);
        return;
    }
    if (!m_bContentShown)
        return;
    // Slanted letters and stacked marks stand out of the rectangle that their text is measured by,
    // and a frame by half of its line.
    const int reach = 2 * painter.fontMetrics().height();
    const sExposed exposed{event->region(), event->rect(),
                           event->rect().adjusted(-reach, -reach, reach, reach),
                           painter.font().style() == QFont::StyleNormal};
    // Level by level, so that a frame never runs over what is inside it.
    std::deque<const std::list<sInspectorElement>*> lists{&m_lElements};
    for (; !lists.empty(); lists.pop_front())
    {
        for (const sInspectorElement& element : *lists.front())
        {
            const bool isOut = IsOutOfSight(element, exposed);
            // And so is all that lies in it.
            if (isOut && m_bStacked)
                continue;
            const bool isRow = element.m_iKind == eElementRow;
            if (isRow && !isOut)
                PaintLabel(painter, exposed, element);
            else if (!isRow && !m_bPreview)
                PaintGroup(painter, exposed, element);
            if (!element.m_lChildren.empty())
                lists.push_back(&element.m_lChildren);
        }
    }
}

bool CQTInspectorView::IsOutOfSight(const sInspectorElement& element, const sExposed& exposed) const
{
    const long long top = static_cast<long long>(element.m_iY) - m_pScrollBar->value();
    return IsAboveOrBelow(top, element.m_iHeight, exposed.m_rectAround);
}

void CQTInspectorView::PaintLabel(QPainter& painter, const sExposed& exposed,
                                  const sInspectorElement& row)
{
    if (row.m_sName.empty())
        return;
    const qreal top = qreal(row.m_iY) - m_pScrollBar->value();
    const QRectF rect(row.m_iX, top, row.m_iLabelWidth, row.m_iHeight);
    if (!MayShow(rect, exposed.m_rectAround))
        return;
    if (exposed.m_bUpright && !rect.isEmpty() &&
        !exposed.m_region.intersects(rect.toAlignedRect()) && IsPlain(row.m_sName))
        return;
    QString text = ToQString(row.m_sName);
    if (m_bPreview)
        text += QLatin1Char('=');
    DrawTextLine(painter, rect, text);
}

void CQTInspectorView::PaintGroup(QPainter& painter, const sExposed& exposed,
                                  const sInspectorElement& group)
{
    const int labelHeight = group.m_sName.empty() ? 0 : GetGroupLabelHeight();
    const int half = labelHeight / 2;
    const qreal top = qreal(group.m_iY) - m_pScrollBar->value();
    const QRectF frame(group.m_iX, top + half, group.m_iWidth, qreal(group.m_iHeight) - half);
    if (MayShow(frame, exposed.m_rectAround))
    {
        const QPen pen = painter.pen();
        painter.setPen(pen.color().darker(175));
        painter.drawRoundedRect(frame, 3.0, 3.0, Qt::AbsoluteSize);
        painter.setPen(pen);
    }
    if (labelHeight <= 0)
        return;
    const int left = GetGroupLeftMargin();
    const QRectF title(qreal(group.m_iX) + left, top,
                       qreal(group.m_iWidth) - left - GetGroupRightMargin(), labelHeight);
    if (!MayShow(title, exposed.m_rectAround))
        return;
    const Qt::BGMode mode = painter.backgroundMode();
    painter.setBackgroundMode(Qt::OpaqueMode);
    DrawTextLine(painter, title, ToQString(group.m_sName));
    painter.setBackgroundMode(mode);
}
