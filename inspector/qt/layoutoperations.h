#pragma once

#include "panelrepaint.h"

/// The layout operations of a data widget, which all forward to its Qt base.
#define INSPECTOR_LAYOUT_OPERATIONS(Widget)                                                        \
    void Widget::ResizeWidget(int width, int height)                                               \
    {                                                                                              \
        ResizeControl(*this, QSize(width, height));                                                \
    }                                                                                              \
    void Widget::MoveWidget(int x, int y)                                                          \
    {                                                                                              \
        MoveControl(*this, QPoint(x, y));                                                          \
    }                                                                                              \
    void Widget::Show()                                                                            \
    {                                                                                              \
        show();                                                                                    \
    }                                                                                              \
    void Widget::Hide()                                                                            \
    {                                                                                              \
        hide();                                                                                    \
    }                                                                                              \
    static_assert(true, "takes the semicolon")
