#pragma once

#include <malloc.h>

#include <cstdio>
#include <fstream>
#include <string>

inline std::size_t HeapBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

inline std::size_t ResidentBytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
    {
        if (line.compare(0, 6, "VmRSS:") == 0)
            return std::stoul(line.substr(6)) * 1024;
    }
    return 0;
}

/// Heap and resident bytes that were added since.
class CHeld
{
public:
    void Print(int rows) const
    {
        const auto count = static_cast<std::size_t>(rows);
        std::printf("%zu %zu\n", (HeapBytes() - m_ulHeap) / count,
                    (ResidentBytes() - m_ulResident) / count);
    }

private:
    std::size_t m_ulHeap = HeapBytes();
    std::size_t m_ulResident = ResidentBytes();
};
