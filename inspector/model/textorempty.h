#pragma once

/// Reads a null text as empty, as every operation that takes a caption or a label does.
inline const char* TextOrEmpty(const char* text)
{
    return text ? text : "";
}
