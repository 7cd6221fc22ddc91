#include "rowplan.h"

#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace
{

constexpr int g_iGroupRows = 20;
constexpr int g_iChoices = 8;

ePlannedKind KindOfPlace(int place)
{
    if (place == 19)
        return ePlannedKind::Container;
    if (place == 9)
        return ePlannedKind::Button;
    if (place % 2 == 0)
        return ePlannedKind::Text;
    return place % 4 == 1 ? ePlannedKind::Bool : ePlannedKind::Enum;
}

std::string ValueOf(ePlannedKind kind, int row)
{
    if (kind == ePlannedKind::Bool)
        return row % 3 ? "1" : "0";
    if (kind == ePlannedKind::Enum)
        return std::to_string(row % g_iChoices);
    return std::to_string(row * 37 % 1000) + ".25";
}

} // namespace

CRowPlan MakeRowPlan(int rows)
{
    CRowPlan plan;
    for (int i = 0; i < rows; ++i)
    {
        if (i % g_iGroupRows == 0)
            plan.push_back({"Group " + std::to_string(i / g_iGroupRows), {}});
        sPlannedRow row;
        row.m_eKind = KindOfPlace(i % g_iGroupRows);
        row.m_sName = "Parameter " + std::to_string(i);
        row.m_sValue = ValueOf(row.m_eKind, i);
        for (int c = 0; row.m_eKind == ePlannedKind::Enum && c < g_iChoices; ++c)
            row.m_vChoices.push_back("Choice " + std::to_string(c));
        plan.back().m_vRows.push_back(std::move(row));
    }
    return plan;
}

CRowPlan ReadRowPlan(const std::string& file)
{
    static const std::map<std::string, ePlannedKind> kinds{{"text", ePlannedKind::Text},
                                                           {"bool", ePlannedKind::Bool},
                                                           {"enum", ePlannedKind::Enum},
                                                           {"button", ePlannedKind::Button},
                                                           {"container", ePlannedKind::Container}};
    std::ifstream input(file);
    if (!input)
        throw std::runtime_error("cannot read " + file);
    CRowPlan plan;
    for (std::string line; std::getline(input, line);)
    {
        std::istringstream fields(line);
        std::string kind;
        sPlannedRow row;
        std::getline(fields, kind, '\t');
        std::getline(fields, row.m_sName, '\t');
        if (kind == "group")
        {
            plan.push_back({row.m_sName, {}});
            continue;
        }
        std::getline(fields, row.m_sValue, '\t');
        for (std::string choice; std::getline(fields, choice, '\t');)
            row.m_vChoices.push_back(choice);
        row.m_eKind = kinds.at(kind);
        plan.at(plan.size() - 1).m_vRows.push_back(std::move(row));
    }
    return plan;
}

int CountRows(const CRowPlan& plan)
{
    int rows = 0;
    for (const sPlannedGroup& group : plan)
        rows += static_cast<int>(group.m_vRows.size());
    return rows;
}
