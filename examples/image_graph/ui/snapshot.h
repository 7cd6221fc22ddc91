#pragma once

#include <QPixmap>

class QWidget;

/// A picture of a window with what floats in front of it: open editors, lists and palettes.
QPixmap TakeSnapshot(QWidget& window);
