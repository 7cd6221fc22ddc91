#include <inspectordatawidget.h>

#include <support/calls.h>
#include <support/recordingcontroller.h>
#include <support/recordingelement.h>
#include <support/recordingview.h>
#include <support/recordingwidget.h>

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace
{

/// Fills in what is pure and leaves the rest to the base.
class CPlainWidget : public CInspectorDataWidget
{
public:
    void InitFromElement() override {}
    const char* GetType() override { return "test.plain"; }
    int GetRequiredWidth() override { return 1; }
    int GetRequiredHeight(int width) override { return width; }
    void ResizeWidget(int, int) override {}
    void MoveWidget(int, int) override {}
    void Show() override {}
    void Hide() override {}

    using CInspectorDataWidget::m_pElement;
};

template <typename Notice>
class DataWidgetNotice : public testing::Test
{
};

using CNotices =
    testing::Types<CInspectorDataWidget::sValueChangeInfo, CInspectorDataWidget::sTopoChangeInfo>;

} // namespace

TYPED_TEST_SUITE(DataWidgetNotice, CNotices, );

TYPED_TEST(DataWidgetNotice, CarriesACodeThatIsCopied)
{
    static_assert(std::is_same<decltype(TypeParam::m_iCode), std::int32_t>::value, "32 bits");
    static_assert(std::has_virtual_destructor<TypeParam>::value, "hosts derive from it");
    TypeParam notice;
    notice.m_iCode = -7;
    const TypeParam copy(notice);
    EXPECT_EQ(copy.m_iCode, -7);
    TypeParam assigned;
    assigned = copy;
    EXPECT_EQ(assigned.m_iCode, -7);
}

TYPED_TEST(DataWidgetNotice, IsDestroyedThroughItsBaseWhenAHostExtendsIt)
{
    struct sExtended : TypeParam
    {
        explicit sExtended(std::shared_ptr<int> data) : m_pData(std::move(data)) {}
        std::shared_ptr<int> m_pData;
    };
    const auto data = std::make_shared<int>(1);
    TypeParam* notice = new sExtended(data);
    EXPECT_EQ(data.use_count(), 2);
    delete notice;
    EXPECT_EQ(data.use_count(), 1);
}

TEST(DataWidget, KeepsItsTwoNoticesApart)
{
    const bool isSame = std::is_same<CInspectorDataWidget::sValueChangeInfo,
                                     CInspectorDataWidget::sTopoChangeInfo>::value;
    EXPECT_FALSE(isSame);
    const bool isDerived = std::is_base_of<CInspectorDataWidget::sValueChangeInfo,
                                           CInspectorDataWidget::sTopoChangeInfo>::value;
    EXPECT_FALSE(isDerived);
}

TEST(DataWidget, StoresItsElement)
{
    CPlainElement element;
    CPlainWidget widget;
    widget.SetDataElement(&element);
    EXPECT_EQ(widget.m_pElement, &element);
    widget.SetDataElement(nullptr);
    EXPECT_EQ(widget.m_pElement, nullptr);
}

TEST(DataWidget, SharesTheElementWithItsCopies)
{
    CPlainElement element;
    CPlainWidget widget;
    widget.SetDataElement(&element);
    const CPlainWidget copy(widget);
    EXPECT_EQ(copy.m_pElement, &element);
    CPlainWidget assigned;
    assigned = widget;
    EXPECT_EQ(assigned.m_pElement, &element);
}

TEST(DataWidget, AcceptsNoticesAndTheirAbsenceAndDoesNothing)
{
    CPlainElement element;
    CPlainWidget widget;
    widget.SetDataElement(&element);
    CInspectorDataWidget::sValueChangeInfo value;
    CInspectorDataWidget::sTopoChangeInfo topo;
    widget.OnValueChange(nullptr);
    widget.OnTopoChange(nullptr);
    widget.OnValueChange(&value);
    widget.OnTopoChange(&topo);
    widget.StartEditing();
    EXPECT_EQ(widget.m_pElement, &element);
}

TEST(DataWidget, IsDestroyedThroughItsBase)
{
    CCallLog log;
    CInspectorDataWidget* widget = new CRecordingWidget(log);
    delete widget;
    EXPECT_EQ(log.Take(), CCalls{"widget.~()"});
}

TEST(DataWidget, ThatItsParentDestroysIsNeitherPlacedNorDestroyedAgain)
{
    CCallLog log;
    {
        CRecordingView view(log);
        CRecordingController controller(log);
        controller.SetInspectorView(&view);
        auto* element = new CRecordingElement(log, "element");
        auto* widget = new CRecordingWidget(log);
        controller.AddItem(element, widget, nullptr);
        view.AddElement(element, widget, "row", nullptr, nullptr);
        log.Clear();

        delete widget;
        EXPECT_EQ(log.Take(), CCalls{"widget.~()"});
        EXPECT_EQ(controller.RecordAt(0)->m_pWidget, nullptr);
        EXPECT_EQ(element->GetWidget(), nullptr);

        view.ResizeInspector(100, 100);
        view.OffsetControls(0, 7);
        view.ShowContent(false, false);
        view.ShowContent(true, false);
        controller.ConnectDataElements();
        controller.GiveFocusToNextElement(nullptr);
        EXPECT_EQ(log.Count("widget."), 0u);
        log.Clear();
    }
    EXPECT_EQ(log.Take(), (CCalls{"controller.~()", "element.Disconnect()", "element.~()",
                                  "view.RemoveAll()", "view.~()"}));
}

TEST(DataWidget, ThatIsCopiedBelongsToNoRow)
{
    CCallLog log;
    CRecordingView view(log);
    CRecordingController controller(log);
    controller.SetInspectorView(&view);
    auto* element = new CRecordingElement(log, "element");
    auto* widget = new CRecordingWidget(log);
    controller.AddItem(element, widget, nullptr);
    view.AddElement(element, widget, "row", nullptr, nullptr);
    {
        const CRecordingWidget copy(*widget);
        CRecordingWidget assigned(log, "assigned");
        assigned = *widget;
    }
    EXPECT_EQ(controller.RecordAt(0)->m_pWidget, widget);
    EXPECT_EQ(element->GetWidget(), widget);
    log.Clear();
    view.ResizeInspector(100, 100);
    EXPECT_EQ(log.Count("widget.MoveWidget"), 1u);
}
