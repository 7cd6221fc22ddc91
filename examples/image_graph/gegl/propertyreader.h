#pragma once

#include "imageproperty.h"

/// Reads the properties of an operation's class, in the order of their definition.
std::vector<sImageProperty> ReadProperties(const std::string& operation);
