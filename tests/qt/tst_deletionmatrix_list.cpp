#include <qt/matrix/cell.h>

namespace
{

class ListMatrix : public testing::TestWithParam<CCell>
{
};

} // namespace

TEST_P(ListMatrix, SurvivesTheDeathOf)
{
    RunCell(eSubject::List, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cells, ListMatrix,
                         CellsOf(eHook::InternalValueChanged, eHook::OnCtrlValueChange,
                                 eHook::OnEndEditing, eHook::CallCommand, eHook::HandleDirtyItem,
                                 eHook::HandleControllerDirt, eHook::EnsureVisible,
                                 eHook::OnContentHeightSet),
                         NameOfCell);
