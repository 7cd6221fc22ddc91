#pragma once

#include <QPoint>
#include <QSize>

/// The layout operations of a data widget, which all forward to its Qt base.
#define INSPECTOR_LAYOUT_OPERATIONS(Widget)                                                        \
    void Widget::ResizeWidget(int width, int height)                                               \
    {                                                                                              \
        resize(QSize(width, height));                                                              \
    }                                                                                              \
    void Widget::MoveWidget(int x, int y)                                                          \
    {                                                                                              \
        move(QPoint(x, y));                                                                        \
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
