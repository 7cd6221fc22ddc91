#pragma once

#include "../graph/graph.h"

#include <string>

/// A graph as it was read from a file.
struct sGraphFile
{
    CGraph m_graph;
    bool m_bAllPlaced = true; ///< the file says of every node where it is
    std::string m_sRemark;    ///< what was left out, one remark a line; may be empty
};

/// Reads the XML of the image library, and what WriteGraph adds to it. Paths are relative to
/// \p folder. False says why in \p error.
bool ReadGraph(const std::string& text, const std::string& folder, sGraphFile& file,
               std::string& error);
