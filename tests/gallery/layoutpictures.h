#pragma once

#include <QImage>

/// A group with two rows, enlarged, with the places that the layout gave to them.
QImage DrawGroupWithNumbers();

/// Three fields in a single-line container, enlarged, with their places.
QImage DrawContainerWithNumbers();
