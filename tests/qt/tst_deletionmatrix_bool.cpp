#include <qt/matrix/cell.h>

namespace
{

class BoolMatrix : public testing::TestWithParam<CCell>
{
};

} // namespace

TEST_P(BoolMatrix, SurvivesTheDeathOf)
{
    RunCell(eSubject::Bool, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cells, BoolMatrix,
                         CellsOf(eHook::InternalValueChanged, eHook::OnCtrlValueChange,
                                 eHook::CallCommand, eHook::HandleDirtyItem,
                                 eHook::HandleControllerDirt, eHook::EnsureVisible,
                                 eHook::OnContentHeightSet),
                         NameOfCell);
