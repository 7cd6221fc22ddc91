#include "panel.h"

std::string NextValue(const sPlannedRow& row, int round)
{
    switch (row.m_eKind)
    {
    case ePlannedKind::Bool:
        return round % 2 ? "1" : "0";
    case ePlannedKind::Enum:
        return std::to_string(round % static_cast<int>(row.m_vChoices.size()));
    default:
        return std::to_string(round) + ".5";
    }
}
