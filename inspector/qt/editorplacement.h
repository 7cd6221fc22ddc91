#pragma once

#include <QRect>

class QWidget;

/// Shows a shared editor over a rectangle in global coordinates and gives its window the keyboard.
///
/// Where the platform lets a tool-tip window have the keyboard, the editor is one: it floats freely
/// and covers the rectangle exactly. Elsewhere it floats as a child of the owner's window, cut to
/// that window.
void ShowEditor(QWidget& editor, QWidget& owner, const QRect& rect);
