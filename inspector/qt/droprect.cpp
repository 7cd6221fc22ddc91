#include "droprect.h"

#include <QWidget>

#include <algorithm>

QRect DropRect(const QWidget& owner, const QRect& area, int wantedHeight, const QRect& desktop)
{
    // A list whose rows fit into the height of the field is exactly as high as the field.
    const int right = area.width() < 100 ? area.left() + 99 : area.right();
    const int bottom =
        area.bottom() + (wantedHeight > area.height() ? wantedHeight + 6 : area.height());
    QPoint topLeft = owner.mapToGlobal(QPoint(area.left(), area.bottom() + 1)) - desktop.topLeft();
    QPoint bottomRight = owner.mapToGlobal(QPoint(right, bottom)) - desktop.topLeft();
    // The bounds lie one pixel past the last row and column of the desktop.
    const int excessX = std::max(0, bottomRight.x() - desktop.width());
    const int excessY = std::max(0, bottomRight.y() - desktop.height());
    const QPoint excess(excessX, excessY);
    return QRect(topLeft - excess, bottomRight - excess).translated(desktop.topLeft());
}
