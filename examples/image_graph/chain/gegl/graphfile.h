#pragma once

#include "../graphchain.h"

#include <string>

/// Graphs as the image library writes them: XML.
struct sGraphText
{
    /// The text of a chain. Paths below \p folder are written relative to it.
    static std::string Write(const CGraphChain& chain, const std::string& folder);

    /// Reads a text into a new chain. Returns false and says why in \p message, and leaves
    /// \p chain alone, when the text is not a graph. A message may also come with success: it says
    /// what was left out.
    ///
    /// Operations that several others use are copied for each of them: a chain has no way to share.
    static bool Read(const std::string& text, const std::string& folder, CGraphChain& chain,
                     std::string& message);
};
