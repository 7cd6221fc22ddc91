#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// Widths by name and style, each in a place that it keeps for as long as the table lives.
class CLabelTable
{
public:
    /// The width of a name in a style, if it stands in this place, which may be any number; else
    /// null.
    const int* LookAt(unsigned place, unsigned style, const std::string& name) const
    {
        if (place >= m_uSize)
            return nullptr;
        const sEntry& entry = GetEntry(place);
        return entry.m_uStyle == style && entry.m_sName == name ? &entry.m_iWidth : nullptr;
    }

    /// The same after a search for the place, which is written only if it is found.
    const int* Find(unsigned style, const std::string& name, unsigned& place) const;

    /// Adds what the table does not hold yet, and returns its place.
    unsigned Add(unsigned style, const std::string& name, int width);

    std::size_t GetSize() const { return m_uSize; }

private:
    struct sEntry
    {
        std::string m_sName;
        unsigned m_uStyle = 0;
        int m_iWidth = 0;
    };

    static constexpr unsigned g_uBlock = 64;
    static constexpr unsigned g_uFree = ~0u;

    const sEntry& GetEntry(unsigned place) const
    {
        return (*m_vBlocks[place / g_uBlock])[place % g_uBlock];
    }

    /// Where the search for a name begins; it ends at the first free slot.
    std::size_t FirstSlot(unsigned style, const std::string& name) const;
    void Enter(unsigned place);
    void Grow();

    std::vector<std::unique_ptr<std::array<sEntry, g_uBlock>>> m_vBlocks;
    unsigned m_uSize = 0;
    /// A power of two of places, of which some are always free.
    std::vector<unsigned> m_vSlots;
};
