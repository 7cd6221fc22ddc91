#pragma once

#include <QRect>

class QWidget;

/// Where the list drops down: just below the owner's area, at least 100 pixels wide, moved up and
/// left as far as the desktop demands. In global coordinates.
QRect DropRect(const QWidget& owner, const QRect& area, int wantedHeight, const QRect& desktop);
