#include "labelmeter.h"

#include <qttextencoding.h>

#include "text.h"

#include <QFontMetrics>
#include <QRect>
#include <QString>

#include <utility>

CLabelMeter::~CLabelMeter()
{
    CLabelWidths::CountRows(m_ulRows, 0);
}

int CLabelMeter::GetWidth(CInspectorView::sInspectorElement& node, const QFont& font, bool preview,
                          std::size_t rows)
{
    const int encoding = CQTTextEncoding::GetEncoding();
    if (m_iEncoding != encoding || m_bPreview != preview || !m_font.isCopyOf(font) || !m_uStyle)
        SetStyle(font, encoding, preview);
    CLabelWidths& widths = CLabelWidths::Get();
    if (const int* width = widths.Find(m_uStyle, node.m_sName, node.m_uLabelPlace))
        return *width;
    CLabelWidths::CountRows(std::exchange(m_ulRows, rows), rows);
    const int width = Measure(node.m_sName);
    node.m_uLabelPlace = widths.Learn(m_uStyle, node.m_sName, width);
    return width;
}

void CLabelMeter::SetStyle(const QFont& font, int encoding, bool preview)
{
    m_font = font;
    m_iEncoding = encoding;
    m_bPreview = preview;
    m_uStyle = CLabelWidths::Get().GetStyle(font, encoding, preview);
}

int CLabelMeter::Measure(const std::string& name) const
{
    QString text = ToQString(name);
    if (m_bPreview)
        text += QLatin1Char('=');
    // The measure of a text does not depend on where it stands.
    const QRect bounds =
        QFontMetrics(m_font).boundingRect(QRect(), Qt::AlignLeft | Qt::AlignVCenter, text);
    return bounds.right() - bounds.left() + 3;
}
