// Editing moves to a control that the host replaces while it is brought into sight.

#include <support/recordinghost.h>

#include <gtest/gtest.h>

#include <new>

namespace
{

/// A widget that always lives at the same address.
class CWidgetInPlace : public CRecordingTextWidget
{
public:
    using CRecordingTextWidget::CRecordingTextWidget;

    static void* operator new(std::size_t) { return s_aStorage; }
    static void operator delete(void*) {}

private:
    alignas(std::max_align_t) static unsigned char s_aStorage[];
};

alignas(std::max_align_t) unsigned char CWidgetInPlace::s_aStorage[sizeof(CWidgetInPlace)];

class FocusTarget : public testing::Test
{
protected:
    void AddRowInPlace(const std::string& name)
    {
        m_pElement = new CRecordingHost::CElement(m_host.m_log, name + ".element");
        auto* widget = new CWidgetInPlace(m_host.m_log, name + ".widget");
        m_host.m_pController->AddItem(m_pElement, widget, nullptr);
        m_host.m_pView->AddElement(m_pElement, widget, "", nullptr, nullptr);
        m_host.m_log.Clear();
    }

    CCalls Moves(CRecordingHost::sRow from)
    {
        m_host.m_log.Clear();
        m_host.m_pController->GiveFocusToNextElement(from.m_pWidget);
        return m_host.m_log.Containing("StartEditing");
    }

    CRecordingHost m_host;
    CInspectorDataElement* m_pElement = nullptr;
};

} // namespace

TEST_F(FocusTarget, IsEditedWhenItIsStillThere)
{
    const auto from = m_host.AddRow("from");
    AddRowInPlace("old");
    EXPECT_EQ(Moves(from), CCalls{"old.widget.StartEditing()"});
}

TEST_F(FocusTarget, IsNotTheControlThatTookItsAddressWhenItsRowWasRemoved)
{
    const auto from = m_host.AddRow("from");
    AddRowInPlace("old");
    m_host.m_pView->m_fnEnsureVisible = [this](CInspectorDataWidget*)
    {
        m_host.m_pController->RemoveItem(m_pElement);
        AddRowInPlace("new");
    };
    EXPECT_EQ(Moves(from), CCalls());
}

TEST_F(FocusTarget, IsNotTheControlThatTookItsAddressWhenThePanelWasRebuilt)
{
    const auto from = m_host.AddRow("from");
    AddRowInPlace("old");
    m_host.m_pView->m_fnEnsureVisible = [this](CInspectorDataWidget*)
    {
        m_host.m_pController->ClearAllData();
        AddRowInPlace("new");
    };
    EXPECT_EQ(Moves(from), CCalls());
}

TEST_F(FocusTarget, IsForgottenWhenSomebodyElseDestroysIt)
{
    const auto from = m_host.AddRow("from");
    const auto to = m_host.AddRow("to");
    m_host.m_pView->m_fnEnsureVisible = [&](CInspectorDataWidget*) { delete to.m_pWidget; };
    EXPECT_EQ(Moves(from), CCalls());
}

TEST_F(FocusTarget, IsEditedThoughAnotherRowWasRemoved)
{
    const auto from = m_host.AddRow("from");
    AddRowInPlace("to");
    const auto other = m_host.AddRow("other");
    m_host.m_pView->m_fnEnsureVisible = [&](CInspectorDataWidget*)
    { m_host.m_pController->RemoveItem(other.m_pElement); };
    EXPECT_EQ(Moves(from), CCalls{"to.widget.StartEditing()"});
}

TEST_F(FocusTarget, OfAnInnerMoveDoesNotTouchTheOuterOne)
{
    const auto from = m_host.AddRow("from");
    AddRowInPlace("first");
    const auto second = m_host.AddRow("second");
    m_host.m_pView->m_fnEnsureVisible = [&](CInspectorDataWidget* widget)
    {
        if (widget == second.m_pWidget)
            return;
        m_host.m_pController->GiveFocusToNextElement(widget);
        m_host.m_pController->RemoveItem(m_pElement);
    };
    EXPECT_EQ(Moves(from), CCalls{"second.widget.StartEditing()"});
}
