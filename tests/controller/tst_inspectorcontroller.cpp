#include <inspectorcontroller.h>

#include <support/recordinghost.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

/// Fills in only what is pure.
class CPlainController : public CInspectorController
{
public:
    void BuildInspector() override {}
    void RefreshInspector() override {}
    void HandleDirtyItem(sInspectorControllerData*, IDirtyControllerDataInfo*) override {}
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override {}

    using CInspectorController::m_lItems;
    using CInspectorController::m_mapDirtyItems;
    using CInspectorController::m_pView;
    using CInspectorController::m_vControllerDirt;
};

/// The bits of a host that its parts share with a copy are let go by the copy.
void LetGo(CRecordingController& copy)
{
    copy.SetInspectorView(nullptr);
    copy.m_lItems.clear();
    copy.m_mapDirtyItems.clear();
    copy.m_vControllerDirt.clear();
}

} // namespace

TEST(Controller, StartsEmptyWithPreviewOff)
{
    CPlainController controller;
    EXPECT_TRUE(controller.m_lItems.empty());
    EXPECT_TRUE(controller.m_mapDirtyItems.empty());
    EXPECT_TRUE(controller.m_vControllerDirt.empty());
    EXPECT_FALSE(controller.IsPreviewMode());
}

TEST(Controller, HasQueuesAndRegistryOfTheStatedTypes)
{
    using CRecord = CInspectorController::sInspectorControllerData;
    using CNotice = CInspectorController::IDirtyControllerDataInfo;
    const bool isList =
        std::is_same<decltype(CPlainController::m_lItems), std::list<CRecord*>>::value;
    const bool isMap = std::is_same<decltype(CPlainController::m_mapDirtyItems),
                                    std::map<CRecord*, std::vector<CNotice*>>>::value;
    const bool isVector =
        std::is_same<decltype(CPlainController::m_vControllerDirt), std::vector<CNotice*>>::value;
    EXPECT_TRUE(isList);
    EXPECT_TRUE(isMap);
    EXPECT_TRUE(isVector);
    EXPECT_TRUE(std::has_virtual_destructor<CInspectorController::IControllerData>::value);
    EXPECT_TRUE(std::has_virtual_destructor<CNotice>::value);
}

TEST(Controller, WantsAGroupAroundTheRootUnlessTheHostSaysOtherwise)
{
    class CFrameless : public CPlainController
    {
    public:
        bool WantGroupAroundRoot() override { return false; }
    };
    CPlainController controller;
    EXPECT_TRUE(controller.WantGroupAroundRoot());
    CFrameless frameless;
    CInspectorController& base = frameless;
    EXPECT_FALSE(base.WantGroupAroundRoot());
}

TEST(Controller, IgnoresCommandsOfItsOwnAccord)
{
    CPlainController controller;
    controller.CallCommand("anything", 1);
    controller.CallCommand("", 0);
    EXPECT_TRUE(controller.m_lItems.empty());
}

TEST(Controller, StoresItsViewAndTellsItNothing)
{
    CCallLog log;
    CRecordingView view(log);
    CRecordingController controller(log);
    controller.SetInspectorView(&view);
    EXPECT_EQ(controller.m_pView, &view);
    EXPECT_EQ(view.m_pController, nullptr);
    controller.SetInspectorView(nullptr);
    EXPECT_EQ(controller.m_pView, nullptr);
    EXPECT_EQ(log.Take(), CCalls{});
}

TEST(Controller, MirrorsPreviewModeIntoItsViewAndLaysNothingOut)
{
    CRecordingHost host;
    host.m_pView->ResizeInspector(100, 100);
    host.m_log.Clear();
    host.m_pController->SetPreviewMode(true);
    EXPECT_TRUE(host.m_pController->IsPreviewMode());
    EXPECT_TRUE(host.m_pView->m_bPreview);
    host.m_pController->SetPreviewMode(false);
    EXPECT_FALSE(host.m_pController->IsPreviewMode());
    EXPECT_FALSE(host.m_pView->m_bPreview);
    EXPECT_EQ(host.m_log.Take(), CCalls{});
}

TEST(Controller, StoresPreviewModeAloneWithoutAView)
{
    CCallLog log;
    CRecordingView view(log);
    CRecordingController controller(log);
    controller.SetInspectorView(nullptr);
    controller.SetPreviewMode(true);
    EXPECT_TRUE(controller.IsPreviewMode());
    controller.SetInspectorView(&view);
    EXPECT_FALSE(view.m_bPreview);
    controller.SetPreviewMode(true);
    EXPECT_TRUE(view.m_bPreview);
}

TEST(Controller, AnswersPreviewModeFromItsOwnFlag)
{
    CRecordingHost host;
    host.m_pView->SetPreviewMode(true);
    EXPECT_FALSE(host.m_pController->IsPreviewMode());
}

TEST(Controller, SharesRowsNoticesAndViewWithACopy)
{
    CRecordingHost host;
    const auto row = host.AddRow("a");
    CRecordingNotice* rowNotice = host.Dirtify(row, "rowNotice");
    CRecordingNotice* wideNotice = host.Notice("wideNotice");
    host.m_pController->DirtifyController(wideNotice);
    host.m_pController->SetPreviewMode(true);
    host.m_log.Clear();

    CRecordingController copy(*host.m_pController);
    EXPECT_EQ(copy.m_pView, host.m_pView.get());
    EXPECT_TRUE(copy.IsPreviewMode());
    EXPECT_EQ(copy.m_lItems, host.m_pController->m_lItems);
    EXPECT_EQ(copy.m_mapDirtyItems[row.m_pRecord].at(0), rowNotice);
    EXPECT_EQ(copy.m_vControllerDirt.at(0), wideNotice);

    CRecordingController assigned(host.m_log);
    assigned = *host.m_pController;
    EXPECT_EQ(assigned.m_pView, host.m_pView.get());
    EXPECT_TRUE(assigned.IsPreviewMode());
    EXPECT_EQ(assigned.m_lItems, host.m_pController->m_lItems);
    EXPECT_EQ(assigned.m_mapDirtyItems, host.m_pController->m_mapDirtyItems);
    EXPECT_EQ(assigned.m_vControllerDirt, host.m_pController->m_vControllerDirt);
    EXPECT_EQ(host.m_log.Take(), CCalls{});
    LetGo(copy);
    LetGo(assigned);
}

TEST(Controller, StaysAsItIsWhenAssignedToItself)
{
    CRecordingHost host;
    host.AddRow("a");
    CRecordingController& same = *host.m_pController;
    *host.m_pController = same;
    EXPECT_EQ(host.m_pController->m_lItems.size(), 1u);
    EXPECT_EQ(host.m_pController->m_pView, host.m_pView.get());
}

TEST(Controller, FindsTheRowsItGotByBeingCopied)
{
    CRecordingHost host;
    const auto a = host.AddRow("a");
    const auto b = host.AddRow("b");
    CRecordingController copy(*host.m_pController);
    copy.SetInspectorView(nullptr);
    // From here on the rows belong to the copy.
    host.m_pController->m_lItems.clear();
    host.m_log.Clear();
    copy.RemoveItem(b.m_pElement);
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("b"));
    copy.RemoveItem(a.m_pElement);
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("a"));
}

TEST(Controller, DoesNotAnswerFromTheRowsItHadBeforeBeingAssigned)
{
    CRecordingHost host;
    const auto old = host.RegisterRow("old");
    CRecordingController other(host.m_log);
    const auto rows = host.m_pController->m_lItems;
    *host.m_pController = other;
    host.m_log.Clear();
    host.m_pController->RemoveItem(old.m_pElement);
    EXPECT_EQ(host.m_log.Take(), CCalls{});
    host.m_pController->m_lItems = rows;
    host.m_pController->RemoveItem(old.m_pElement);
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("old"));
}

TEST(Controller, AnswersFromAsManyOtherRowsOnceItIsAssigned)
{
    CRecordingHost other; // lives longer, as the assigned controller takes over its log and view
    CRecordingHost host;
    const auto old = host.RegisterRow("old");
    const auto made = other.RegisterRow("made");
    *host.m_pController = *other.m_pController;
    other.m_pController->m_lItems.clear();
    host.m_log.Clear();
    other.m_log.Clear();
    host.m_pController->RemoveItem(old.m_pElement);
    EXPECT_EQ(host.m_log.Take(), CCalls{});
    EXPECT_EQ(host.m_pController->m_lItems.size(), 1u);
    host.m_pController->RemoveItem(made.m_pElement);
    EXPECT_EQ(other.m_log.Take(), CRecordingHost::End("made"));
    delete old.m_pRecord;
}
