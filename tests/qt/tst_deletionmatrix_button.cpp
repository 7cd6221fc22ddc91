#include <qt/matrix/cell.h>

namespace
{

class ButtonMatrix : public testing::TestWithParam<CCell>
{
};

} // namespace

TEST_P(ButtonMatrix, SurvivesTheDeathOf)
{
    RunCell(eSubject::Button, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cells, ButtonMatrix,
                         CellsOf(eHook::OnCtrlValueChange, eHook::CallCommand,
                                 eHook::HandleDirtyItem, eHook::HandleControllerDirt,
                                 eHook::EnsureVisible, eHook::OnContentHeightSet),
                         NameOfCell);
