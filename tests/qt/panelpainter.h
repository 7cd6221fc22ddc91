#pragma once

#include <QColor>
#include <QPainter>
#include <QPen>
#include <QRectF>
#include <QString>

/// Paints what an inspector must look like, from coordinates that the test states. It knows nothing
/// of the view.
class CPanelPainter
{
public:
    explicit CPanelPainter(QPainter& painter, int scroll = 0)
        : m_rPainter(painter), m_iScroll(scroll)
    {
    }

    /// The frame of a group that stands at y; a titled one begins half a title lower.
    void Frame(int x, int y, int width, int height, bool titled)
    {
        const int half = titled ? 7 : 0;
        const QPen pen = m_rPainter.pen();
        m_rPainter.setPen(QPen(pen.color().darker(175)));
        m_rPainter.drawRoundedRect(QRectF(x, y + half - m_iScroll, width, height - half), 3.0, 3.0,
                                   Qt::AbsoluteSize);
        m_rPainter.setPen(pen);
    }

    /// A group with its title in the gap of the frame.
    void Group(const char* title, int x, int y, int width, int height)
    {
        Frame(x, y, width, height, true);
        m_rPainter.setBackgroundMode(Qt::OpaqueMode);
        Text(title, x + 5, y, width - 10, 14);
        m_rPainter.setBackgroundMode(Qt::TransparentMode);
    }

    void Text(const char* text, int x, int y, int width, int height)
    {
        m_rPainter.drawText(QRectF(x, y - m_iScroll, width, height), 129,
                            QString::fromLatin1(text));
    }

private:
    QPainter& m_rPainter;
    int m_iScroll;
};
