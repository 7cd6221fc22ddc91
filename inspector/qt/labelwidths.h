#pragma once

#include "labeltable.h"

#include <QFont>

#include <cstddef>
#include <deque>
#include <string>

/// The widths of the labels of all panels of the process, so that panels that come and go with what
/// is selected measure a name once.
///
/// Names that nobody asks for go in the long run: what is asked for stands in a recent table, which
/// becomes the former one, in place of the one before, when many new names were measured. Many are
/// as many as all panels have rows, or more: a panel finds its names at its next layout unless
/// others measured twice as many meanwhile.
class CLabelWidths
{
public:
    /// Of the process.
    static CLabelWidths& Get();

    /// A number for what a width depends on beside the name; it is never used for anything else.
    unsigned GetStyle(const QFont& font, int encoding, bool preview);

    /// The width of a name, or null if it is not known. The place is where it was found the last
    /// time, or any number, and becomes where it stands now.
    const int* Find(unsigned style, const std::string& name, unsigned& place)
    {
        const int* width = m_recent.LookAt(place, style, name);
        return width ? width : Recall(style, name, place);
    }

    /// Keeps the width of a name that is not known, and returns its place.
    unsigned Learn(unsigned style, const std::string& name, int width);

    /// Forgets all widths.
    void Empty();

    /// Tells that a panel has more rows than before, or fewer.
    static void CountRows(std::size_t before, std::size_t now);

    /// How many widths are kept, some of them perhaps twice.
    std::size_t GetSize() const { return m_recent.GetSize() + m_former.GetSize(); }
    /// How many widths were learned.
    std::size_t GetLearned() const { return m_ulLearned; }

private:
    struct sStyle
    {
        unsigned m_uNumber;
        QFont m_font;
        int m_iEncoding;
        bool m_bPreview;
    };

    /// Searches the tables, and makes a former width a recent one.
    const int* Recall(unsigned style, const std::string& name, unsigned& place);

    std::deque<sStyle> m_vStyles;
    CLabelTable m_recent;
    CLabelTable m_former;
    std::size_t m_ulLearned = 0;
    /// How many of them when the recent table was begun.
    std::size_t m_ulLearnedBefore = 0;
};
