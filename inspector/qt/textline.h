#pragma once

#include <QRectF>
#include <QString>

class QPainter;

/// Draws a text of one line at the left and vertically centred, as QPainter::drawText does with
/// these flags, pixel for pixel. Texts that are drawn again and again are laid out once.
void DrawTextLine(QPainter& painter, const QRectF& rect, const QString& text);
