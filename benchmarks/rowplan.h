#pragma once

#include <string>
#include <vector>

/// What one panel shows, so that every twin is filled with the same rows.
enum class ePlannedKind
{
    Text,
    Bool,
    Enum,
    Button,
    Container, ///< three fields on one line
};

struct sPlannedRow
{
    ePlannedKind m_eKind = ePlannedKind::Text;
    std::string m_sName;
    std::string m_sValue;
    std::vector<std::string> m_vChoices; ///< of an enumeration
};

struct sPlannedGroup
{
    std::string m_sName;
    std::vector<sPlannedRow> m_vRows;
};

using CRowPlan = std::vector<sPlannedGroup>;

/// Groups of 20 rows: half text, a fifth booleans, a fifth enumerations of 8 entries, and a
/// twentieth each of buttons and of containers.
CRowPlan MakeRowPlan(int rows);

/// A panel captured from a real program: a line "group<tab>NAME" starts a group, and each row is
/// "KIND<tab>NAME<tab>VALUE", followed by the choices of an enumeration.
CRowPlan ReadRowPlan(const std::string& file);

int CountRows(const CRowPlan& plan);
