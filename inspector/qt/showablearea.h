#pragma once

#include <QRect>
#include <QWidget>

#include <algorithm>

/// The area of a control as far as screens can ever show it. Windows and the pictures of styles are
/// made no larger than this, however large the host makes the panel.
inline QRect ShowableArea(const QWidget& control)
{
    constexpr int most = 16384;
    return {0, 0, std::min(control.width(), most), std::min(control.height(), most)};
}
