#pragma once

#include <algorithm>
#include <vector>

/// Takes one occurrence of a value out of a vector that holds it in no particular order.
template <typename Value>
void EraseValue(std::vector<Value*>& values, Value* value)
{
    const auto place = std::find(values.begin(), values.end(), value);
    if (place != values.end())
        values.erase(place);
}
