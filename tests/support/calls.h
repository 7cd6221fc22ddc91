#pragma once

#include <support/calllog.h>

#include <string>
#include <vector>

/// A sequence of calls as tests write it down.
using CCalls = CCallLog::CCalls;

/// One sequence after another.
inline CCalls operator+(CCalls first, const CCalls& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}
