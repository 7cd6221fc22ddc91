#pragma once

#include <QFont>
#include <QFontMetricsF>

/// Whether texts look the same in both fonts. The toolkit calls fonts equal that were made for
/// devices of different resolutions.
inline bool IsSameFont(const QFont& a, const QFont& b)
{
    return a.isCopyOf(b) || (a == b && QFontMetricsF(a).fontDpi() == QFontMetricsF(b).fontDpi());
}
