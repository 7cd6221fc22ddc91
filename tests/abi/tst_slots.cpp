// The place of every virtual operation in its table. On the platforms of the Itanium ABI a pointer
// to a virtual member function holds that place; a virtual destructor takes up two slots.

#include <booldataelement.h>
#include <buttondataelement.h>
#include <enumdataelement.h>
#include <inspectorcontroller.h>
#include <inspectorview.h>
#include <simpledataelement.h>
#include <staticdataelement.h>

#include <inspectordatawidget.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>

#if defined(__GNUC__) && defined(__x86_64__)

namespace
{

template <typename Operation>
int SlotOf(Operation operation)
{
    std::uintptr_t place = 0;
    std::memcpy(&place, &operation, sizeof place);
    EXPECT_EQ(place % 2, 1u) << "not virtual";
    return static_cast<int>((place - 1) / sizeof(void*));
}

/// The slot of operation number \p number behind a virtual destructor, which is number 0.
constexpr int Behind(int number)
{
    return number + 1;
}

struct sElement : CInspectorDataElement
{
    using CInspectorDataElement::InternalValueChanged;
};

struct sSimple : CSimpleDataElement
{
    using CSimpleDataElement::InternalValueChanged;
};

using CElement = CInspectorDataElement;
using CWidget = CInspectorDataWidget;
using CController = CInspectorController;
using CView = CInspectorView;

} // namespace

TEST(Slots, OfTheElement)
{
    EXPECT_EQ(SlotOf(&CElement::GetType), Behind(1));
    EXPECT_EQ(SlotOf(&CElement::SetDataControl), Behind(2));
    EXPECT_EQ(SlotOf(&CElement::OnCtrlValueChange), Behind(3));
    EXPECT_EQ(SlotOf(&CElement::OnEndEditing), Behind(4));
    EXPECT_EQ(SlotOf(&CElement::Mute), Behind(5));
    EXPECT_EQ(SlotOf(&CElement::Unmute), Behind(6));
    EXPECT_EQ(SlotOf(&CElement::Connect), Behind(7));
    EXPECT_EQ(SlotOf(&CElement::Disconnect), Behind(8));
    EXPECT_EQ(SlotOf(&CElement::UpdateData), Behind(9));
    EXPECT_EQ(SlotOf(&CElement::IsReadOnly), Behind(10));
    EXPECT_EQ(SlotOf(&CElement::SetReadOnly), Behind(11));
    EXPECT_EQ(SlotOf(&sElement::InternalValueChanged), Behind(12));
}

TEST(Slots, OfTheWidget)
{
    EXPECT_EQ(SlotOf(&CWidget::SetDataElement), Behind(1));
    EXPECT_EQ(SlotOf(&CWidget::InitFromElement), Behind(2));
    EXPECT_EQ(SlotOf(&CWidget::GetType), Behind(3));
    EXPECT_EQ(SlotOf(&CWidget::StartEditing), Behind(4));
    EXPECT_EQ(SlotOf(&CWidget::OnValueChange), Behind(5));
    EXPECT_EQ(SlotOf(&CWidget::OnTopoChange), Behind(6));
    EXPECT_EQ(SlotOf(&CWidget::GetRequiredWidth), Behind(7));
    EXPECT_EQ(SlotOf(&CWidget::GetRequiredHeight), Behind(8));
    EXPECT_EQ(SlotOf(&CWidget::ResizeWidget), Behind(9));
    EXPECT_EQ(SlotOf(&CWidget::MoveWidget), Behind(10));
    EXPECT_EQ(SlotOf(&CWidget::Show), Behind(11));
    EXPECT_EQ(SlotOf(&CWidget::Hide), Behind(12));
}

TEST(Slots, OfTheValueElements)
{
    EXPECT_EQ(SlotOf(&ISimpleDataProvider::GetDataAsString), Behind(1));
    using CNoArgument = void (CSimpleDataElement::*)();
    EXPECT_EQ(SlotOf(CNoArgument(&CSimpleDataElement::OnCtrlValueChange)), Behind(13));
    EXPECT_EQ(SlotOf(&sSimple::InternalValueChanged), Behind(12));
    using CBoolNoArgument = void (CBoolDataElement::*)();
    EXPECT_EQ(SlotOf(CBoolNoArgument(&CBoolDataElement::OnCtrlValueChange)), Behind(13));
    EXPECT_EQ(SlotOf(&CBoolDataElement::GetValue), Behind(14));
    EXPECT_EQ(SlotOf(&CBoolDataElement::SetValue), Behind(15));
    // This ABI gives the provider's operation a slot in the first table, too.
    EXPECT_EQ(SlotOf(&CSimpleDataElement::GetDataAsString), Behind(14));
    EXPECT_EQ(SlotOf(&CEnumDataElement::GetDisplayString), Behind(15));
}

TEST(Slots, OfTheButtonReplaceThoseOfTheElement)
{
    EXPECT_EQ(SlotOf(&CButtonDataElement::OnCtrlValueChange), Behind(3));
    EXPECT_EQ(SlotOf(&CButtonDataElement::GetType), Behind(1));
    EXPECT_EQ(SlotOf(&CStaticDataElement::GetType), Behind(1));
}

TEST(Slots, OfTheController)
{
    EXPECT_EQ(SlotOf(&CController::BuildInspector), Behind(1));
    EXPECT_EQ(SlotOf(&CController::AddItem), Behind(2));
    EXPECT_EQ(SlotOf(&CController::RemoveItem), Behind(3));
    EXPECT_EQ(SlotOf(&CController::ConnectDataElements), Behind(4));
    EXPECT_EQ(SlotOf(&CController::GiveFocusToNextElement), Behind(5));
    EXPECT_EQ(SlotOf(&CController::GiveFocusToPrevElement), Behind(6));
    EXPECT_EQ(SlotOf(&CController::RefreshInspector), Behind(7));
    EXPECT_EQ(SlotOf(&CController::WantGroupAroundRoot), Behind(8));
    EXPECT_EQ(SlotOf(&CController::CallCommand), Behind(9));
    EXPECT_EQ(SlotOf(&CController::SetPreviewMode), Behind(10));
    EXPECT_EQ(SlotOf(&CController::IsPreviewMode), Behind(11));
    EXPECT_EQ(SlotOf(&CController::HandleDirtyItem), Behind(12));
    EXPECT_EQ(SlotOf(&CController::HandleControllerDirt), Behind(13));
}

TEST(Slots, OfTheView)
{
    EXPECT_EQ(SlotOf(&CView::RemoveAll), Behind(1));
    EXPECT_EQ(SlotOf(&CView::AddGroup), Behind(2));
    EXPECT_EQ(SlotOf(&CView::AddElement), Behind(3));
    EXPECT_EQ(SlotOf(&CView::AddSingleLineContainer), Behind(4));
    using CRemoveEmptyGroups = void (CView::*)();
    EXPECT_EQ(SlotOf(CRemoveEmptyGroups(&CView::RemoveEmptyGroups)), Behind(5));
    EXPECT_EQ(SlotOf(&CView::DirtyView), Behind(6));
    EXPECT_EQ(SlotOf(&CView::ResizeInspector), Behind(7));
    EXPECT_EQ(SlotOf(&CView::UpdateView), Behind(8));
    EXPECT_EQ(SlotOf(&CView::RecomputeLayout), Behind(9));
    EXPECT_EQ(SlotOf(&CView::ComputeHoldersWidth), Behind(10));
    EXPECT_EQ(SlotOf(&CView::ComputeHoldersWidthForPreview), Behind(11));
    EXPECT_EQ(SlotOf(&CView::EnsureVisible), Behind(12));
    EXPECT_EQ(SlotOf(&CView::GetInspectorLeftMargin), Behind(13));
    EXPECT_EQ(SlotOf(&CView::GetInspectorRightMargin), Behind(14));
    EXPECT_EQ(SlotOf(&CView::GetInspectorTopMargin), Behind(15));
    EXPECT_EQ(SlotOf(&CView::GetInspectorBottomMargin), Behind(16));
    EXPECT_EQ(SlotOf(&CView::GetGroupLeftMargin), Behind(17));
    EXPECT_EQ(SlotOf(&CView::GetGroupRightMargin), Behind(18));
    EXPECT_EQ(SlotOf(&CView::GetGroupTopMargin), Behind(19));
    EXPECT_EQ(SlotOf(&CView::GetGroupBottomMargin), Behind(20));
    EXPECT_EQ(SlotOf(&CView::GetGroupLabelHeight), Behind(21));
    EXPECT_EQ(SlotOf(&CView::GetHeightBetweenControl), Behind(22));
    EXPECT_EQ(SlotOf(&CView::GetElementLabelWidth), Behind(23));
    EXPECT_EQ(SlotOf(&CView::GetCurrentContentHeight), Behind(24));
    EXPECT_EQ(SlotOf(&CView::OnToggleShowContent), Behind(25));
    EXPECT_EQ(SlotOf(&CView::OnPreDraw), Behind(26));
    EXPECT_EQ(SlotOf(&CView::OnContentHeightSet), Behind(27));
    EXPECT_EQ(SlotOf(&CView::ParentControlToInspector), Behind(28));
    EXPECT_EQ(SlotOf(&CView::PositionControl), Behind(29));
    EXPECT_EQ(SlotOf(&CView::OffsetControls), Behind(30));
}

TEST(Slots, OfTheRequestSizeHaveNoDestructorInFront)
{
    EXPECT_EQ(SlotOf(&CView::sRequestSize::GetMinValue), 0);
    EXPECT_EQ(SlotOf(&CView::sRequestSize::GetMaxValue), 1);
}

#endif
