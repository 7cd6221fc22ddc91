#pragma once

#include "../gegl/imageoperation.h"

#include <string>
#include <vector>

class CPanelController;

/// What an element of a panel shows: a parameter of the nodes of the panel, or one component of a
/// colour.
struct sPropertyBinding
{
    CPanelController* m_pPanel = nullptr;
    const sImageProperty* m_pProperty = nullptr;
    int m_iComponent = -1; ///< of a colour; -1 for the parameter as a whole

    /// The value of all nodes of the panel; g_sSeveral when they have different ones.
    std::string Read() const;
    /// The different colours of the nodes, in their order.
    std::vector<CImageOperation::CColor> ReadColors() const;
    /// Hands the user's value to the document, for all nodes of the panel, and tells the panel what
    /// became of it.
    void Write(const std::string& text) const;

    static constexpr const char* g_sSeveral = "(several)";
};
