#pragma once

#include "imageoperation.h"

#include <string>
#include <vector>

/// The values of an operation as they stand in a file.
struct sNodeText
{
    std::string m_sAttributes;          ///< texts that are empty, each after a blank
    std::vector<std::string> m_vParams; ///< all others, each in an element of its own
};

/// Paths below \p folder are written relative to it.
sNodeText WriteValues(const CImageOperation& operation, const std::string& folder);
