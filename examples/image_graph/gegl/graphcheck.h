#pragma once

#include <string>

/// Looks whether a text is a whole graph file whose operations all exist. The library itself takes
/// half a file for a whole one, and replaces operations that it does not know by nothing.
bool CheckGraphText(const std::string& text, std::string& message);
