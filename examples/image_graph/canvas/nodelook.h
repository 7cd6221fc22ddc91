#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>

/// Measures and colours of the canvas, in the coordinates of the scene.
namespace nodelook
{

constexpr qreal g_dWidth = 232;
constexpr qreal g_dHeight = 58;
constexpr qreal g_dTitleHeight = 28;
constexpr qreal g_dRounding = 5;
constexpr qreal g_dBarWidth = 5; ///< the stripe that tells the category
constexpr qreal g_dPadRadius = 5;
constexpr qreal g_dPadReach = 11; ///< how far from its centre a pad can be grabbed

const QColor g_colorCanvas(33, 34, 37);
const QColor g_colorGrid(41, 42, 46);
const QColor g_colorNode(60, 63, 68);
const QColor g_colorNodeHovered(67, 71, 76);
const QColor g_colorBody(46, 48, 52);
const QColor g_colorOutline(22, 23, 25);
const QColor g_colorTitle(230, 230, 228);
const QColor g_colorFaint(150, 153, 157);
const QColor g_colorOff(92, 96, 102); ///< of what can be switched on
const QColor g_colorEdge(152, 158, 166);
const QColor g_colorAccent(98, 163, 222);
const QColor g_colorError(236, 110, 90);
const QColor g_colorBusy(240, 184, 100);
const QColor g_colorGood(120, 196, 130);

/// Where the pads of a node are, from its upper left corner.
inline QPointF InputPosition(int index)
{
    // The main input is right above the output, so that a chain is a straight line.
    constexpr qreal asidePart = 0.33;
    return {g_dWidth * (0.5 + (index > 0 ? asidePart + 0.08 * (index - 1) : 0)), 0};
}
inline QPointF OutputPosition()
{
    return {g_dWidth / 2, g_dHeight};
}

/// The area of a node where its parameters are shown, from its upper left corner.
inline QRectF StripArea()
{
    return {g_dBarWidth + 3, g_dTitleHeight, g_dWidth - g_dBarWidth - 6,
            g_dHeight - g_dTitleHeight - 5};
}

/// The switch that keeps the parameters shown.
inline QRectF PinArea()
{
    return {g_dWidth - 25, 3, 22, 22};
}

/// A colour for a category; the same name has the same colour.
QColor CategoryColor(const QString& category);

} // namespace nodelook
