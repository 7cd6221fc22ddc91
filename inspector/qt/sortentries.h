#pragma once

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

/// The entries of an enumeration in the order in which its list offers them.
inline std::vector<std::pair<std::string, std::string>>
SortedEntries(std::vector<std::pair<std::string, std::string>> entries, int method)
{
    using sEntry = std::pair<std::string, std::string>;
    switch (method)
    {
    case 0:
        std::sort(entries.begin(), entries.end(),
                  [](const sEntry& a, const sEntry& b) { return a.first < b.first; });
        break;
    case 1:
        std::sort(entries.begin(), entries.end(),
                  [](const sEntry& a, const sEntry& b) { return a.second < b.second; });
        break;
    case 3:
        std::sort(entries.begin(), entries.end(),
                  [](const sEntry& a, const sEntry& b)
                  {
                      return std::strtoll(a.first.c_str(), nullptr, 10) <
                             std::strtoll(b.first.c_str(), nullptr, 10);
                  });
        break;
    default:
        break;
    }
    return entries;
}
