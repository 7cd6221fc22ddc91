#pragma once

#include "../graph/graph.h"

#include <string>

/// The graph as XML that the image library reads: the picture of the file is that of the node
/// \p picture, or none when it is 0. Where nodes are stands in comments, and other ends of the
/// graph in processing instructions, both of which the library passes over. Paths below \p folder
/// are written relative to it.
std::string WriteGraph(const CGraph& graph, int picture, const std::string& folder);
