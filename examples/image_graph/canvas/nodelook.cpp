#include "nodelook.h"

namespace nodelook
{

QColor CategoryColor(const QString& category)
{
    // Neighbouring letters shall not give neighbouring colours.
    constexpr quint32 start = 2166136261u;
    constexpr quint32 factor = 16777619u;
    quint32 hash = start;
    for (const QChar letter : category)
        hash = (hash ^ letter.unicode()) * factor;
    constexpr quint32 hues = 24;
    constexpr int degrees = 360 / int(hues);
    return QColor::fromHsl(int((hash >> 8) % hues) * degrees, 110, 145);
}

} // namespace nodelook
