#include <qt/matrix/cell.h>

namespace
{

class TextBoxMatrix : public testing::TestWithParam<CCell>
{
};

} // namespace

TEST_P(TextBoxMatrix, SurvivesTheDeathOf)
{
    RunCell(eSubject::TextBox, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Cells, TextBoxMatrix,
                         CellsOf(eHook::InternalValueChanged, eHook::OnCtrlValueChange,
                                 eHook::CallCommand, eHook::HandleDirtyItem,
                                 eHook::HandleControllerDirt, eHook::EnsureVisible,
                                 eHook::OnContentHeightSet),
                         NameOfCell);
