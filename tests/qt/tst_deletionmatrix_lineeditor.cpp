#include <qt/matrix/cell.h>

namespace
{

class LineEditorMatrix : public testing::TestWithParam<CCell>
{
};

} // namespace

TEST_P(LineEditorMatrix, SurvivesTheDeathOf)
{
    RunCell(eSubject::LineEditor, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cells, LineEditorMatrix,
                         CellsOf(eHook::InternalValueChanged, eHook::OnCtrlValueChange,
                                 eHook::OnEndEditing, eHook::CallCommand, eHook::HandleDirtyItem,
                                 eHook::HandleControllerDirt, eHook::EnsureVisible,
                                 eHook::OnContentHeightSet),
                         NameOfCell);
