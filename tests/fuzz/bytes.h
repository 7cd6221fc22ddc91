#pragma once

#include <cstddef>
#include <cstdint>

/// What a fuzzer made up, as a row of decisions; zeros when it is used up.
class CBytes
{
public:
    CBytes(const std::uint8_t* data, std::size_t size) : m_pData(data), m_ulLeft(size) {}

    bool IsEmpty() const { return m_ulLeft == 0; }

    std::uint8_t Byte()
    {
        if (m_ulLeft == 0)
            return 0;
        --m_ulLeft;
        return *m_pData++;
    }

    /// A number below \p count.
    unsigned Below(std::size_t count) { return count == 0 ? 0 : Byte() % count; }

    /// Any number of 32 bits; the small and the extreme ones in one byte.
    int Number()
    {
        const std::uint8_t first = Byte();
        if (first < 0xF8)
            return first - 8;
        std::uint32_t bits = 0;
        for (int i = 0; i < 4; ++i)
            bits = bits << 8 | Byte();
        return static_cast<int>(bits);
    }

private:
    const std::uint8_t* m_pData;
    std::size_t m_ulLeft;
};
