#pragma once

#include "controlplacement.h"
#include "panelcontent.h"

#include <algorithm>

/// The nearest place at which a rectangle of any size that Qt allows still has all its corners in
/// 32 bits, also when it is mapped to the screen. No difference can be seen: both are out of sight.
inline QPoint ReachablePlace(int x, int y)
{
    constexpr int farthest = 1 << 30;
    return {std::clamp(x, -farthest, farthest), std::clamp(y, -farthest, farthest)};
}

/// The nearest size with which a rectangle at such a place has its far corner in 32 bits, too.
inline QSize ReachableSize(int width, int height)
{
    constexpr int most = 1 << 29;
    return {std::clamp(width, -most, most), std::clamp(height, -most, most)};
}

/// The layout operations of a data widget, which all forward to its Qt base.
#define INSPECTOR_LAYOUT_OPERATIONS(Widget)                                                        \
    void Widget::ResizeWidget(int width, int height)                                               \
    {                                                                                              \
        ResizeControl(*this, ReachableSize(width, height), typeid(Widget));                        \
    }                                                                                              \
    void Widget::MoveWidget(int x, int y)                                                          \
    {                                                                                              \
        MoveControl(*this, ReachablePlace(x, y), typeid(Widget));                                  \
    }                                                                                              \
    void Widget::Show()                                                                            \
    {                                                                                              \
        ShowControl(*this, typeid(Widget));                                                        \
    }                                                                                              \
    void Widget::Hide()                                                                            \
    {                                                                                              \
        hide();                                                                                    \
    }                                                                                              \
    static_assert(true, "takes the semicolon")
