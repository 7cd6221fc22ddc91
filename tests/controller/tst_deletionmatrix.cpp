// What dies, times the hook in which it dies. The hooks are all the places where the core calls the
// host; the rest is the sanitizers' to see.

#include <support/recordinghost.h>

#include <buttondataelement.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace
{

enum eHook
{
    eHookHandleDirtyItem,
    eHookHandleDirtyItemWithoutNotice,
    eHookHandleControllerDirt,
    eHookCallCommand,
    eHookInternalValueChanged,
    eHookOnEndEditing,
    eHookEnsureVisible,
    eHookStartEditing,
    eHookOnContentHeightSet,
    eHookOnValueChange,
    eHookConnect,
    eHookInitFromElement,
};

enum eDeath
{
    eDeathOfThisRow,
    eDeathOfTheRowBefore,
    eDeathOfTheRowBehind,
    eDeathOfAllRows,
    eDeathForOtherRows,
    eDeathOfTheView,
    eDeathOfTheController,
    eDeathOfViewAndController,
    eDeathOfControllerAndView,
};

const char* const g_hooks[] = {"HandleDirtyItem",
                               "HandleDirtyItemWithoutNotice",
                               "HandleControllerDirt",
                               "CallCommand",
                               "InternalValueChanged",
                               "OnEndEditing",
                               "EnsureVisible",
                               "StartEditing",
                               "OnContentHeightSet",
                               "OnValueChange",
                               "Connect",
                               "InitFromElement"};
const char* const g_deaths[] = {"ThisRow",    "RowBefore",         "RowBehind",
                                "AllRows",    "ForOtherRows",      "View",
                                "Controller", "ViewAndController", "ControllerAndView"};

/// Rows a, b and c, laid out, and all with notices on their way. The hook is one of b, or of the
/// whole panel.
class DeletionMatrix : public testing::TestWithParam<std::tuple<eHook, eDeath>>
{
protected:
    void SetUp() override
    {
        m_a = m_host.AddRow("a");
        m_b = m_host.AddRow("b");
        m_c = m_host.AddRow("c");
        m_host.m_pView->ResizeInspector(200, 100);
        if (std::get<0>(GetParam()) != eHookHandleDirtyItemWithoutNotice)
        {
            m_host.Dirtify(m_b, "b.first");
            m_host.Dirtify(m_b, "b.second");
            m_vNotices = {"b.first", "b.second"};
        }
        m_host.Dirtify(m_a, "a.notice");
        m_host.Dirtify(m_c, "c.notice");
        m_host.m_pController->DirtifyController(m_host.Notice("panel.notice"));
        m_vNotices.insert(m_vNotices.end(), {"a.notice", "c.notice", "panel.notice"});
        m_host.m_log.Clear();
    }

    void Die()
    {
        if (m_bDead)
            return;
        m_bDead = true;
        switch (std::get<1>(GetParam()))
        {
        case eDeathOfThisRow:
            m_host.m_pController->RemoveItem(m_b.m_pElement);
            break;
        case eDeathOfTheRowBefore:
            m_host.m_pController->RemoveItem(m_a.m_pElement);
            break;
        case eDeathOfTheRowBehind:
            m_host.m_pController->RemoveItem(m_c.m_pElement);
            break;
        case eDeathOfAllRows:
            m_host.m_pController->ClearAllData();
            break;
        case eDeathForOtherRows:
            m_host.m_pController->ClearAllData();
            m_host.AddRow("x");
            m_host.AddRow("y", m_host.m_pView->AddGroup("group", nullptr));
            m_host.m_pController->ConnectDataElements();
            m_host.m_pView->RecomputeLayout();
            break;
        case eDeathOfTheView:
            m_host.m_pView.reset();
            break;
        case eDeathOfTheController:
            m_host.m_pController.reset();
            break;
        case eDeathOfViewAndController:
            m_host.m_pView.reset();
            m_host.m_pController.reset();
            break;
        case eDeathOfControllerAndView:
            m_host.m_pController.reset();
            m_host.m_pView.reset();
            break;
        }
    }

    /// Makes the library call the hook, in which the death happens.
    void CallHook()
    {
        const CHook die = [this] { Die(); };
        auto& controller = *m_host.m_pController;
        auto& view = *m_host.m_pView;
        switch (std::get<0>(GetParam()))
        {
        case eHookHandleDirtyItem:
        case eHookHandleDirtyItemWithoutNotice:
            if (std::get<0>(GetParam()) == eHookHandleDirtyItemWithoutNotice)
                controller.DirtifyItem(m_b.m_pRecord, nullptr);
            controller.m_fnHandleDirtyItem = [this](auto* record, auto*)
            {
                if (record == m_b.m_pRecord)
                    Die();
            };
            view.OnPreDraw();
            break;
        case eHookHandleControllerDirt:
            controller.m_fnHandleControllerDirt = [this](auto&) { Die(); };
            view.OnPreDraw();
            break;
        case eHookCallCommand:
        {
            auto* button = new CButtonDataElement(1);
            controller.AddItem(button, new CRecordingWidget(m_host.m_log, "button"), nullptr);
            button->SetEnable(true);
            controller.m_fnCallCommand = die;
            button->OnCtrlValueChange(nullptr);
            break;
        }
        case eHookInternalValueChanged:
            m_b.m_pElement->m_fnInternalValueChanged = die;
            m_b.m_pWidget->m_sText = "new";
            m_b.m_pElement->OnCtrlValueChange();
            break;
        case eHookOnEndEditing:
            m_b.m_pElement->m_fnOnEndEditing = die;
            m_b.m_pElement->OnEndEditing(m_b.m_pWidget, CInspectorDataElement::eEndEditNext);
            break;
        case eHookEnsureVisible:
            view.m_fnEnsureVisible = [this](auto*) { Die(); };
            m_a.m_pElement->OnEndEditing(m_a.m_pWidget, CInspectorDataElement::eEndEditNext);
            break;
        case eHookStartEditing:
            m_b.m_pWidget->m_fnStartEditing = die;
            m_c.m_pElement->OnEndEditing(m_c.m_pWidget, CInspectorDataElement::eEndEditPrevious);
            break;
        case eHookOnContentHeightSet:
            view.m_fnOnContentHeightSet = die;
            view.ResizeInspector(300, 100);
            break;
        case eHookOnValueChange:
            m_b.m_pWidget->m_fnOnValueChange = die;
            m_b.m_pElement->UpdateData();
            break;
        case eHookConnect:
            m_b.m_pElement->m_fnConnect = die;
            controller.ConnectDataElements();
            break;
        case eHookInitFromElement:
            m_b.m_pWidget->m_fnInitFromElement = die;
            controller.ConnectDataElements();
            break;
        }
    }

    /// What a host does next with the panel.
    void CarryOn()
    {
        if (m_host.m_pController && m_host.m_pView)
        {
            m_host.m_pController->GiveFocusToNextElement(nullptr);
            m_host.m_pController->GiveFocusToPrevElement(nullptr);
        }
        if (m_host.m_pView)
        {
            m_host.m_pView->OnPreDraw();
            m_host.m_pView->ResizeInspector(150, 100);
            m_host.m_pView->OffsetControls(0, 10);
        }
        if (m_host.m_pController)
        {
            m_host.m_pController->ConnectDataElements();
            m_host.m_pController->ClearAllData();
            m_host.m_pController->HandleDirtyItems();
        }
    }

    std::size_t Ends(const std::string& name) const
    {
        std::size_t count = 0;
        for (const std::string& call : m_host.m_log.GetCalls())
            count += call == name + ".~()" ? 1 : 0;
        return count;
    }

    CRecordingHost m_host;
    CRecordingHost::sRow m_a;
    CRecordingHost::sRow m_b;
    CRecordingHost::sRow m_c;
    std::vector<std::string> m_vNotices;
    bool m_bDead = false;
};

std::string NameOf(const testing::TestParamInfo<std::tuple<eHook, eDeath>>& cell)
{
    return std::string(g_hooks[std::get<0>(cell.param)]) + "_" + g_deaths[std::get<1>(cell.param)];
}

} // namespace

TEST_P(DeletionMatrix, EndsEverythingOnce)
{
    CallHook();
    EXPECT_TRUE(m_bDead);
    CarryOn();
    m_host.m_pController.reset();
    m_host.m_pView.reset();
    std::vector<std::string> rows = {"a", "b", "c"};
    if (std::get<1>(GetParam()) == eDeathForOtherRows)
        rows.insert(rows.end(), {"x", "y"});
    for (const std::string& row : rows)
    {
        EXPECT_EQ(Ends(row + ".data"), 1u) << row;
        EXPECT_EQ(Ends(row + ".element"), 1u) << row;
        EXPECT_EQ(Ends(row + ".widget"), 1u) << row;
        EXPECT_EQ(m_host.m_log.Count(row + ".element.Disconnect"), 1u) << row;
    }
    for (const std::string& notice : m_vNotices)
        EXPECT_EQ(Ends(notice), 1u) << notice;
    EXPECT_EQ(Ends("controller"), 1u);
    EXPECT_EQ(Ends("view"), 1u);
}

TEST_P(DeletionMatrix, CallsNothingOnTheDead)
{
    CallHook();
    CarryOn();
    CCalls dead;
    for (const std::string& call : m_host.m_log.GetCalls())
    {
        const std::string who = call.substr(0, call.rfind('.', call.find('(')));
        EXPECT_EQ(std::count(dead.begin(), dead.end(), who), 0) << call;
        if (call == who + ".~()")
            dead.push_back(who);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Cells, DeletionMatrix,
    testing::Combine(testing::Values(eHookHandleDirtyItem, eHookHandleDirtyItemWithoutNotice,
                                     eHookHandleControllerDirt, eHookCallCommand,
                                     eHookInternalValueChanged, eHookOnEndEditing,
                                     eHookEnsureVisible, eHookStartEditing, eHookOnContentHeightSet,
                                     eHookOnValueChange, eHookConnect, eHookInitFromElement),
                     testing::Values(eDeathOfThisRow, eDeathOfTheRowBefore, eDeathOfTheRowBehind,
                                     eDeathOfAllRows, eDeathForOtherRows, eDeathOfTheView,
                                     eDeathOfTheController, eDeathOfViewAndController,
                                     eDeathOfControllerAndView)),
    NameOf);
