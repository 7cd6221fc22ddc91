#include <support/recordinghost.h>

#include <gtest/gtest.h>

namespace
{

class DirtyQueue : public testing::Test
{
protected:
    void SetUp() override { m_vRows = m_host.AddRowsByAddress(3); }

    /// The calls of one delivery.
    CCalls Deliver()
    {
        m_host.m_log.Clear();
        m_host.m_pView->OnPreDraw();
        return m_host.m_log.Take();
    }

    CRecordingHost m_host;
    std::vector<CRecordingHost::sRow> m_vRows;
};

const CCalls g_redraw = {"view.DirtyView()", "view.UpdateView()"};

} // namespace

TEST_F(DirtyQueue, AsksForARedrawForEachNotice)
{
    m_host.Dirtify(m_vRows[0], "a");
    EXPECT_EQ(m_host.m_log.Take(), g_redraw);
    m_host.Dirtify(m_vRows[0], "b");
    EXPECT_EQ(m_host.m_log.Take(), g_redraw);
    m_host.m_pController->DirtifyItem(m_vRows[0].m_pRecord, nullptr);
    EXPECT_EQ(m_host.m_log.Take(), g_redraw);
    m_host.m_pController->DirtifyController(m_host.Notice("c"));
    EXPECT_EQ(m_host.m_log.Take(), g_redraw);
    m_host.m_pController->DirtifyController(nullptr);
    EXPECT_EQ(m_host.m_log.Take(), g_redraw);
}

TEST_F(DirtyQueue, HoldsOneEntryPerRow)
{
    auto& map = m_host.m_pController->m_mapDirtyItems;
    m_host.m_pController->DirtifyItem(m_vRows[1].m_pRecord, nullptr);
    ASSERT_EQ(map.size(), 1u);
    EXPECT_TRUE(map[m_vRows[1].m_pRecord].empty());
    auto* a = m_host.Dirtify(m_vRows[1], "a");
    auto* b = m_host.Dirtify(m_vRows[1], "b");
    m_host.m_pController->DirtifyItem(m_vRows[1].m_pRecord, nullptr);
    ASSERT_EQ(map.size(), 1u);
    EXPECT_EQ(map[m_vRows[1].m_pRecord], (std::vector<CRecordingController::CNotice*>{a, b}));
}

TEST_F(DirtyQueue, MakesNoCallWhenItIsEmpty)
{
    EXPECT_EQ(Deliver(), CCalls{});
}

TEST_F(DirtyQueue, DeliversARowWithoutANoticeOnce)
{
    m_host.m_pController->DirtifyItem(m_vRows[0].m_pRecord, nullptr);
    m_host.m_pController->DirtifyItem(m_vRows[0].m_pRecord, nullptr);
    EXPECT_EQ(Deliver(), CCalls{"controller.HandleDirtyItem(r0.data, null)"});
    EXPECT_EQ(Deliver(), CCalls{});
}

TEST_F(DirtyQueue, DeliversNoNullNoticeBesideARealOne)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.m_pController->DirtifyItem(m_vRows[0].m_pRecord, nullptr);
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, a)", "a.~()"}));
    m_host.m_pController->DirtifyItem(m_vRows[0].m_pRecord, nullptr);
    m_host.Dirtify(m_vRows[0], "b");
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, b)", "b.~()"}));
}

TEST_F(DirtyQueue, DeliversTheNoticesOfARowInOrderAndDeletesEachAtOnce)
{
    for (const char* name : {"a", "b", "c"})
        m_host.Dirtify(m_vRows[0], name);
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, a)", "a.~()",
                                 "controller.HandleDirtyItem(r0.data, b)", "b.~()",
                                 "controller.HandleDirtyItem(r0.data, c)", "c.~()"}));
    EXPECT_TRUE(m_host.m_pController->m_mapDirtyItems.empty());
    EXPECT_EQ(Deliver(), CCalls{});
}

TEST_F(DirtyQueue, DeliversRowsInTheOrderOfTheirAddresses)
{
    m_host.Dirtify(m_vRows[2], "c");
    m_host.Dirtify(m_vRows[0], "a");
    m_host.m_pController->DirtifyItem(m_vRows[1].m_pRecord, nullptr);
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, a)", "a.~()",
                                 "controller.HandleDirtyItem(r1.data, null)",
                                 "controller.HandleDirtyItem(r2.data, c)", "c.~()"}));
}

TEST_F(DirtyQueue, DeliversWhatConcernsThePanelFirstAndInOneCall)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.m_pController->DirtifyController(m_host.Notice("w0"));
    m_host.m_pController->DirtifyController(nullptr);
    m_host.m_pController->DirtifyController(m_host.Notice("w1"));
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleControllerDirt(w0 null w1)", "w0.~()", "w1.~()",
                                 "controller.HandleDirtyItem(r0.data, a)", "a.~()"}));
    EXPECT_TRUE(m_host.m_pController->m_vControllerDirt.empty());
    EXPECT_EQ(Deliver(), CCalls{});
}

TEST_F(DirtyQueue, DeliversANullNoticeForThePanelToo)
{
    m_host.m_pController->DirtifyController(nullptr);
    EXPECT_EQ(Deliver(), CCalls{"controller.HandleControllerDirt(null)"});
}

TEST_F(DirtyQueue, HandsOverTheQueueItself)
{
    m_host.m_pController->DirtifyController(m_host.Notice("w"));
    const void* given = nullptr;
    m_host.m_pController->m_fnHandleControllerDirt = [&](auto& dirt) { given = &dirt; };
    Deliver();
    EXPECT_EQ(given, &m_host.m_pController->m_vControllerDirt);
}

TEST_F(DirtyQueue, DeletesOnlyWhatTheHandlerLeavesInTheQueue)
{
    m_host.m_pController->DirtifyController(m_host.Notice("taken"));
    m_host.m_pController->DirtifyController(m_host.Notice("left"));
    CRecordingController::CNotice* taken = nullptr;
    m_host.m_pController->m_fnHandleControllerDirt = [&](auto& dirt)
    { taken = std::exchange(dirt.front(), nullptr); };
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleControllerDirt(taken left)", "left.~()"}));
    delete taken;
}

TEST_F(DirtyQueue, GivesTheHandlerANoticeThatIsStillAlive)
{
    auto* notice = m_host.Dirtify(m_vRows[0], "a");
    const void* record = nullptr;
    const void* info = nullptr;
    m_host.m_pController->m_fnHandleDirtyItem = [&](auto* row, auto* given)
    {
        record = row;
        info = given;
    };
    Deliver();
    EXPECT_EQ(record, m_vRows[0].m_pRecord);
    EXPECT_EQ(info, notice);
}

TEST_F(DirtyQueue, CallsNeitherElementsNorWidgetsNorTheView)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.m_pController->DirtifyController(nullptr);
    const CCalls calls = Deliver();
    for (const std::string& call : calls)
        EXPECT_TRUE(call.rfind("controller.Handle", 0) == 0 || call == "a.~()") << call;
    EXPECT_EQ(calls.size(), 3u);
}

TEST_F(DirtyQueue, IsNotDeliveredForARowThatWasRemoved)
{
    m_host.Dirtify(m_vRows[0], "gone");
    m_host.Dirtify(m_vRows[1], "b");
    m_host.m_pController->DirtifyItem(m_vRows[2].m_pRecord, nullptr);
    m_host.m_pController->RemoveItem(m_vRows[0].m_pElement);
    EXPECT_EQ(m_host.m_log.Count("gone.~()"), 1u);
    m_host.m_pController->RemoveItem(m_vRows[2].m_pElement);
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r1.data, b)", "b.~()"}));
}

TEST_F(DirtyQueue, IsIndifferentToPreviewMode)
{
    m_host.m_pController->SetPreviewMode(true);
    m_host.Dirtify(m_vRows[0], "a");
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, a)", "a.~()"}));
}

TEST_F(DirtyQueue, IsDroppedUndeliveredWhenTheControllerDies)
{
    m_host.Dirtify(m_vRows[0], "row notice");
    m_host.m_pController->DirtifyController(m_host.Notice("wide notice"));
    m_host.m_log.Clear();
    m_host.m_pController.reset();
    EXPECT_EQ(m_host.m_log.Count("Handle"), 0u);
    EXPECT_EQ(m_host.m_log.Count("row notice.~()"), 1u);
    EXPECT_EQ(m_host.m_log.Count("wide notice.~()"), 1u);
}

#ifndef NDEBUG
using DirtyQueueDeathTest = DirtyQueue;

TEST_F(DirtyQueueDeathTest, NamesTheMissingView)
{
    m_host.m_pController->SetInspectorView(nullptr);
    EXPECT_DEATH(m_host.m_pController->DirtifyItem(m_vRows[0].m_pRecord, nullptr),
                 "CInspectorController::DirtifyItem: no view is set");
    EXPECT_DEATH(m_host.m_pController->DirtifyController(nullptr),
                 "CInspectorController::DirtifyController: no view is set");
}
#endif
