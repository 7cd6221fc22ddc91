#pragma once

#include <QWidget>

/// Whether all that shows of a control is painted when its panel is: nothing opaque, which the
/// panel leaves out, no window of its own and nothing that reaches beyond it.
inline bool IsPaintedWithPanel(const QWidget& control)
{
    return !control.testAttribute(Qt::WA_OpaquePaintEvent) && control.children().isEmpty() &&
           !control.autoFillBackground() && !control.internalWinId() && !control.graphicsEffect();
}
