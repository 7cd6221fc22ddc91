#pragma once

#include <QColor>
#include <QImage>
#include <QPalette>
#include <QRect>

/// The colour under controls that leave their background alone; no other colour is like it.
inline QColor Ground()
{
    return {1, 254, 3};
}

/// A light palette on that ground.
inline QPalette PaletteOnGround()
{
    QPalette palette(QColor(240, 240, 240), Ground());
    palette.setColor(QPalette::WindowText, QColor(10, 0, 90));
    return palette;
}

/// A dark palette in which the colours that controls use differ in every colour group.
inline QPalette DarkPalette()
{
    QPalette palette(QColor(40, 41, 42), QColor(30, 31, 32));
    palette.setColor(QPalette::Active, QPalette::Base, QColor(20, 21, 22));
    palette.setColor(QPalette::Active, QPalette::WindowText, QColor(230, 231, 232));
    palette.setColor(QPalette::Inactive, QPalette::Base, QColor(24, 25, 26));
    palette.setColor(QPalette::Inactive, QPalette::WindowText, QColor(220, 221, 222));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(50, 51, 52));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(120, 121, 122));
    return palette;
}

/// The smallest rectangle that holds every pixel which is not of the ground; null for none.
inline QRect InkOn(const QImage& image, QColor ground = Ground())
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
    {
        for (int x = 0; x < image.width(); ++x)
        {
            if (image.pixelColor(x, y) != ground)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}
