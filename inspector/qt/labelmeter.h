#pragma once

#include "labelwidths.h"

#include <inspectorview.h>

#include <QFont>

#include <cstddef>
#include <string>

/// What a panel asks for the widths of its labels.
class CLabelMeter
{
public:
    CLabelMeter() = default;
    ~CLabelMeter();
    CLabelMeter(const CLabelMeter&) = delete;
    CLabelMeter& operator=(const CLabelMeter&) = delete;

    /// The width of a node's label; \p rows is how many the panel has.
    int GetWidth(CInspectorView::sInspectorElement& node, const QFont& font, bool preview,
                 std::size_t rows);

private:
    /// Takes what widths depend on beside the name.
    void SetStyle(const QFont& font, int encoding, bool preview);
    int Measure(const std::string& name) const;

    unsigned m_uStyle = 0; ///< of the next three; 0 before the first question
    int m_iEncoding = 0;
    bool m_bPreview = false;
    QFont m_font;
    std::size_t m_ulRows = 0;
};
