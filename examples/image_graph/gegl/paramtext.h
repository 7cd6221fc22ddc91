#pragma once

#include "imageoperation.h"

#include <array>
#include <string>
#include <vector>

/// A parameter as it stands in a file.
struct sParamText
{
    std::string m_sName;
    std::string m_sText;
    bool m_bIsCurve = false;
    std::array<double, 2> m_bounds{0, 1};         ///< of a curve: lowest and highest value
    std::vector<std::array<double, 2>> m_vPoints; ///< of a curve
};

/// Sets a parameter as the image library does when it reads a file: it takes what it can of a text.
/// Paths are relative to \p folder. Returns what is wrong with it, or nothing.
std::string SetParam(CImageOperation& operation, const sParamText& param,
                     const std::string& folder);
