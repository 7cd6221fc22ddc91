#include "labeltable.h"

#include <algorithm>
#include <functional>

namespace
{

constexpr std::size_t g_ulFirstSlots = 64;

} // namespace

std::size_t CLabelTable::FirstSlot(unsigned style, const std::string& name) const
{
    return (std::hash<std::string>()(name) + style) & (m_vSlots.size() - 1);
}

const int* CLabelTable::Find(unsigned style, const std::string& name, unsigned& place) const
{
    if (m_vSlots.empty())
        return nullptr;
    const std::size_t mask = m_vSlots.size() - 1;
    for (std::size_t slot = FirstSlot(style, name); m_vSlots[slot] != g_uFree;
         slot = (slot + 1) & mask)
    {
        const int* width = LookAt(m_vSlots[slot], style, name);
        if (!width)
            continue;
        place = m_vSlots[slot];
        return width;
    }
    return nullptr;
}

unsigned CLabelTable::Add(unsigned style, const std::string& name, int width)
{
    // Searches grow long when it is fuller than two thirds.
    if (3 * (m_uSize + std::size_t(1)) > 2 * m_vSlots.size())
        Grow();
    if (m_uSize % g_uBlock == 0)
        m_vBlocks.push_back(std::make_unique<std::array<sEntry, g_uBlock>>());
    (*m_vBlocks.back())[m_uSize % g_uBlock] = {name, style, width};
    Enter(m_uSize);
    return m_uSize++;
}

void CLabelTable::Enter(unsigned place)
{
    const std::size_t mask = m_vSlots.size() - 1;
    std::size_t slot = FirstSlot(GetEntry(place).m_uStyle, GetEntry(place).m_sName);
    while (m_vSlots[slot] != g_uFree)
        slot = (slot + 1) & mask;
    m_vSlots[slot] = place;
}

void CLabelTable::Grow()
{
    m_vSlots.assign(std::max(g_ulFirstSlots, 2 * m_vSlots.size()), g_uFree);
    for (unsigned place = 0; place < m_uSize; ++place)
        Enter(place);
}
