#pragma once

#include "panel.h"

#include <memory>

/// wxPropertyGrid, with a property of the nearest kind for each row.
std::unique_ptr<CPanel> MakeWxPanel();
