#pragma once

#include <string>

/// One pad of a node: its output, or one of its inputs.
struct sPadRef
{
    int m_iNode = 0;    ///< 0 for no pad at all
    std::string m_sPad; ///< the name of the input, empty for the output

    bool IsValid() const { return m_iNode != 0; }
    bool IsOutput() const { return m_sPad.empty(); }
    bool operator==(const sPadRef& other) const
    {
        return m_iNode == other.m_iNode && m_sPad == other.m_sPad;
    }
    bool operator!=(const sPadRef& other) const { return !(*this == other); }
};
