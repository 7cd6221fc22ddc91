#pragma once

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <QWidget>

#include <functional>

/// Pictures of widgets, and pictures that a test paints itself to compare them with.
namespace images
{

/// What the widget and its children show, as on a screen of the given device pixel ratio. Outside
/// of \p region, given in the widget's coordinates, the picture stays transparent.
QImage Render(QWidget& widget, qreal ratio = 1, const QRegion& region = QRegion());

/// A picture of the widget's size with the widget's background, on which the test paints with a
/// painter as Qt gives it to that widget: with its pen, font and background.
QImage Paint(const QWidget& widget, const std::function<void(QPainter&)>& paint, qreal ratio = 1);

/// Fails the test unless the pictures are the same, pixel by pixel. With the environment variable
/// INSPECTOR_TEST_IMAGES set to a folder, both are written there when they differ.
void ExpectSame(const QImage& actual, const QImage& expected);

/// The number of pixels that differ.
int CountDifferent(const QImage& a, const QImage& b);

} // namespace images
