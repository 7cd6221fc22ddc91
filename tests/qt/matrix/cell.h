#pragma once

#include <qt/matrix/panel.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>

/// One cell of the matrix for each of the five ways to end an edit: {what dies} in {which hook}.
using CCell = std::tuple<eHook, eDeath>;

std::string NameOfCell(const testing::TestParamInfo<CCell>& cell);

/// Runs a cell for every end of an edit and expects that every object dies exactly once, that every
/// end is reported exactly once and to the living only, and that the panel works afterwards.
void RunCell(eSubject subject, const CCell& cell);

/// Every death in each of the hooks.
template <typename... Hooks>
auto CellsOf(Hooks... hooks)
{
    return testing::Combine(testing::Values(hooks...),
                            testing::Values(eDeath::ThisRow, eDeath::Neighbour, eDeath::AllRows,
                                            eDeath::Rebuild, eDeath::View, eDeath::Controller));
}
