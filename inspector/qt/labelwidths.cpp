#include "labelwidths.h"

#include "applicationstore.h"
#include "samefont.h"

#include <algorithm>
#include <utility>

namespace
{

constexpr std::size_t g_ulFewNames = 4096;
constexpr std::size_t g_ulStyles = 32;

/// In all panels of the process.
std::size_t g_ulRows = 0;

} // namespace

CLabelWidths& CLabelWidths::Get()
{
    return ApplicationStore<CLabelWidths>();
}

void CLabelWidths::CountRows(std::size_t before, std::size_t now)
{
    g_ulRows = g_ulRows - before + now;
}

unsigned CLabelWidths::GetStyle(const QFont& font, int encoding, bool preview)
{
    for (const sStyle& style : m_vStyles)
    {
        if (style.m_iEncoding == encoding && style.m_bPreview == preview &&
            IsSameFont(style.m_font, font))
            return style.m_uNumber;
    }
    // The names of a style that was forgotten are asked for by the panels that know its number.
    if (m_vStyles.size() == g_ulStyles)
        m_vStyles.pop_front();
    static unsigned number = 0;
    m_vStyles.push_back({++number, font, encoding, preview});
    return number;
}

const int* CLabelWidths::Recall(unsigned style, const std::string& name, unsigned& place)
{
    if (const int* width = m_recent.Find(style, name, place))
        return width;
    const int* width = m_former.Find(style, name, place);
    if (!width)
        return nullptr;
    place = m_recent.Add(style, name, *width);
    return width;
}

unsigned CLabelWidths::Learn(unsigned style, const std::string& name, int width)
{
    if (m_ulLearned - m_ulLearnedBefore >= std::max(g_ulFewNames, g_ulRows))
    {
        m_former = std::exchange(m_recent, CLabelTable());
        m_ulLearnedBefore = m_ulLearned;
    }
    ++m_ulLearned;
    return m_recent.Add(style, name, width);
}

void CLabelWidths::Empty()
{
    m_vStyles.clear();
    m_recent = CLabelTable();
    m_former = CLabelTable();
    m_ulLearnedBefore = m_ulLearned;
}
