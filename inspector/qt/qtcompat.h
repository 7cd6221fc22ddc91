#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QRect>
#include <QScreen>

// What differs between the versions of Qt, in one place.

/// Where in the widget the mouse was pressed.
inline QPoint PressPosition(const QMouseEvent& event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.position().toPoint();
#else
    return event.pos();
#endif
}

/// Makes a window of the application the active one in the application's own eyes only.
inline void TakeAsActive(QWidget& window)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // from 6.5 on
        QApplication::setActiveWindow(&window);
    QT_WARNING_POP
}

/// The union of all screens, in global coordinates.
inline QRect DesktopRect()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->virtualGeometry() : QRect();
}
