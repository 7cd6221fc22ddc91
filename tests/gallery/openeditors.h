#pragma once

#include <QImage>

/// A panel while a text is edited in the shared line editor.
QImage DrawOpenEditor();

/// A panel while a value is chosen in the shared drop-down list.
QImage DrawOpenList();
