#include "textline.h"

#include "applicationstore.h"
#include "samefont.h"

#include <QCache>
#include <QFont>
#include <QPainter>
#include <QPen>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <memory>

namespace
{

/// A few screens full.
constexpr int g_iLines = 512;
constexpr int g_iLongestLine = 200;
/// What the toolkit takes for a line that nothing limits.
constexpr qreal g_dNoLimit = 0x01000000;

struct sDrawnText
{
    QFont m_font;
    Qt::LayoutDirection m_eDirection;
    QString m_sText;
};

bool operator==(const sDrawnText& a, const sDrawnText& b)
{
    return a.m_sText == b.m_sText && a.m_eDirection == b.m_eDirection &&
           IsSameFont(a.m_font, b.m_font);
}

auto qHash(const sDrawnText& drawn)
{
    return qHash(drawn.m_sText);
}

/// The lines that were drawn last.
class CTextLines
{
public:
    const QTextLayout* Find(const sDrawnText& drawn) { return m_cache.object(drawn); }

    void Add(const sDrawnText& drawn, std::unique_ptr<QTextLayout> layout)
    {
        m_cache.insert(drawn, layout.release());
    }

    void Empty() { m_cache.clear(); }

private:
    QCache<sDrawnText, QTextLayout> m_cache{g_iLines};
};

/// Whether a character makes the toolkit do more than draw it.
bool IsControl(QChar c)
{
    return c < QLatin1Char(' ') || c == QLatin1Char('\x9c') || c == QChar::LineSeparator ||
           c == QChar::ParagraphSeparator;
}

bool CanLayOut(const QString& text)
{
    return text.size() <= g_iLongestLine && std::none_of(text.begin(), text.end(), IsControl);
}

std::unique_ptr<QTextLayout> LayOut(const sDrawnText& drawn)
{
    auto layout = std::make_unique<QTextLayout>(drawn.m_sText, drawn.m_font);
    QTextOption option;
    option.setTextDirection(drawn.m_eDirection);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    layout->createLine().setLineWidth(g_dNoLimit);
    layout->endLayout();
    return layout;
}

const QTextLayout* FindLayout(const sDrawnText& drawn)
{
    auto& lines = ApplicationStore<CTextLines>();
    if (const QTextLayout* layout = lines.Find(drawn))
        return layout;
    if (!CanLayOut(drawn.m_sText))
        return nullptr;
    lines.Add(drawn, LayOut(drawn));
    return lines.Find(drawn);
}

void Draw(QPainter& painter, const QRectF& rect, const QTextLine& line)
{
    const qreal height = line.ascent() + line.descent();
    const QPointF place(rect.x(), rect.y() + (rect.height() - height) / 2);
    const bool isInside = rect.contains(QRectF(place, QSizeF(line.naturalTextWidth(), height)));
    if (!isInside)
    {
        painter.save();
        painter.setClipRect(rect, Qt::IntersectClip);
    }
    line.draw(&painter, place);
    if (!isInside)
        painter.restore();
}

} // namespace

void DrawTextLine(QPainter& painter, const QRectF& rect, const QString& text)
{
    const QTextLayout* layout = nullptr;
    const Qt::LayoutDirection direction = painter.layoutDirection();
    // What runs from the right is aligned there.
    if (direction != Qt::RightToLeft && painter.pen().style() != Qt::NoPen)
        layout = FindLayout({painter.font(), direction, text});
    if (layout)
        Draw(painter, rect, layout->lineAt(0));
    else
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, text);
}
