#pragma once

#include "gegl/imageoperation.h"

#include <memory>
#include <vector>

struct sGraphItem;

/// Operations in the order in which the picture passes through them: the source comes first.
using CGraphChain = std::vector<std::unique_ptr<sGraphItem>>;

/// An operation in its place. An operation with a second input has a branch, a chain of its own
/// whose picture goes there.
struct sGraphItem
{
    std::unique_ptr<CImageOperation> m_pOperation;
    CGraphChain m_vBranch;
};
