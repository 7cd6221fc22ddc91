#pragma once

#include <QPoint>
#include <QString>

class QPainter;
class QWidget;

/// Uses a window as a user does, with the mouse and the keys.
class CHand
{
public:
    explicit CHand(QWidget& window) : m_window(window) {}

    /// Places are in \p widget; a widget that is null stands for nothing to do, and gives false.
    bool Move(QWidget* widget, const QPoint& place);
    bool Click(QWidget* widget, const QPoint& place, Qt::KeyboardModifiers keys = Qt::NoModifier);
    bool Click(QWidget* widget);
    bool DoubleClick(QWidget* widget, const QPoint& place);
    /// Presses, moves and, unless \p stays is set, releases.
    bool Drag(QWidget* widget, const QPoint& from, const QPoint& to, bool stays = false);
    bool Release(QWidget* widget, const QPoint& place);
    /// To whatever has the keyboard.
    bool Type(const QString& text);
    bool Key(int key, Qt::KeyboardModifiers keys = Qt::NoModifier);

    /// Draws a mouse pointer where the mouse is, in the coordinates of the window.
    void DrawPointer(QPainter& painter) const;

private:
    static QWidget* Receiver();

    QWidget& m_window;
    QPoint m_place; ///< on the screen
};
