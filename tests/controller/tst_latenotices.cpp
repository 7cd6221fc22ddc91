// What becomes of a notice that a handler queues while notices are delivered.

#include <support/recordinghost.h>

#include <gtest/gtest.h>

namespace
{

class LateNotice : public testing::Test
{
protected:
    void SetUp() override { m_vRows = m_host.AddRowsByAddress(3); }

    /// Queues \p late once, for row number \p row, while the handler has \p name in hand.
    void QueueDuring(const std::string& name, std::size_t row, CRecordingNotice* late)
    {
        m_host.m_pController->m_fnHandleDirtyItem =
            [this, name, row, late, done = false](auto*, auto* info) mutable
        {
            auto* notice = dynamic_cast<CRecordingNotice*>(info);
            if (m_bQueued || (notice ? notice->m_sName : "null") != name)
                return;
            m_bQueued = true;
            m_host.m_pController->DirtifyItem(m_vRows[row].m_pRecord, late);
        };
    }

    CCalls Deliver()
    {
        m_host.m_log.Clear();
        m_host.m_pController->HandleDirtyItems();
        return m_host.m_log.Take();
    }

    CRecordingHost m_host;
    std::vector<CRecordingHost::sRow> m_vRows;
    bool m_bQueued = false;
};

} // namespace

TEST_F(LateNotice, ForTheRowInHandIsDeliveredInTheSamePass)
{
    m_host.Dirtify(m_vRows[1], "a");
    m_host.Dirtify(m_vRows[1], "b");
    QueueDuring("a", 1, m_host.Notice("late"));
    EXPECT_EQ(Deliver(),
              (CCalls{"controller.HandleDirtyItem(r1.data, a)", "view.DirtyView()",
                      "view.UpdateView()", "a.~()", "controller.HandleDirtyItem(r1.data, b)",
                      "b.~()", "controller.HandleDirtyItem(r1.data, late)", "late.~()"}));
}

TEST_F(LateNotice, ForTheRowInHandIsDeliveredEvenFromItsLastNotice)
{
    m_host.Dirtify(m_vRows[1], "a");
    QueueDuring("a", 1, m_host.Notice("late"));
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r1.data, a)", "view.DirtyView()",
                                 "view.UpdateView()", "a.~()",
                                 "controller.HandleDirtyItem(r1.data, late)", "late.~()"}));
}

TEST_F(LateNotice, WithoutAnObjectForTheRowInHandChangesNothing)
{
    m_host.Dirtify(m_vRows[1], "a");
    QueueDuring("a", 1, nullptr);
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r1.data, a)", "view.DirtyView()",
                                 "view.UpdateView()", "a.~()"}));
    EXPECT_EQ(Deliver(), CCalls{});
}

TEST_F(LateNotice, ForACleanRowFurtherOnIsDeliveredInTheSamePass)
{
    m_host.Dirtify(m_vRows[0], "a");
    QueueDuring("a", 2, m_host.Notice("late"));
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, a)", "view.DirtyView()",
                                 "view.UpdateView()", "a.~()",
                                 "controller.HandleDirtyItem(r2.data, late)", "late.~()"}));
}

TEST_F(LateNotice, WithoutAnObjectForACleanRowFurtherOnIsDeliveredInTheSamePass)
{
    m_host.Dirtify(m_vRows[0], "a");
    QueueDuring("a", 1, nullptr);
    EXPECT_EQ(Deliver(),
              (CCalls{"controller.HandleDirtyItem(r0.data, a)", "view.DirtyView()",
                      "view.UpdateView()", "a.~()", "controller.HandleDirtyItem(r1.data, null)"}));
}

TEST_F(LateNotice, ForADirtyRowFurtherOnIsDeliveredBehindTheOthers)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.Dirtify(m_vRows[2], "b");
    QueueDuring("a", 2, m_host.Notice("late"));
    EXPECT_EQ(Deliver(),
              (CCalls{"controller.HandleDirtyItem(r0.data, a)", "view.DirtyView()",
                      "view.UpdateView()", "a.~()", "controller.HandleDirtyItem(r2.data, b)",
                      "b.~()", "controller.HandleDirtyItem(r2.data, late)", "late.~()"}));
}

TEST_F(LateNotice, TurnsADirtyRowFurtherOnWithoutANoticeIntoOneWithIt)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.m_pController->DirtifyItem(m_vRows[2].m_pRecord, nullptr);
    QueueDuring("a", 2, m_host.Notice("late"));
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, a)", "view.DirtyView()",
                                 "view.UpdateView()", "a.~()",
                                 "controller.HandleDirtyItem(r2.data, late)", "late.~()"}));
}

TEST_F(LateNotice, ForACleanRowThatIsPassedIsNeitherDeliveredNorDeleted)
{
    m_host.Dirtify(m_vRows[1], "a");
    const std::unique_ptr<CRecordingNotice> late(m_host.Notice("late"));
    QueueDuring("a", 0, late.get());
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r1.data, a)", "view.DirtyView()",
                                 "view.UpdateView()", "a.~()"}));
    EXPECT_TRUE(m_host.m_pController->m_mapDirtyItems.empty());
    EXPECT_EQ(Deliver(), CCalls{});
    m_host.m_pController->ClearAllData();
    EXPECT_EQ(m_host.m_log.Count("late"), 0u);
}

TEST_F(LateNotice, ForADirtyRowThatIsPassedIsNeitherDeliveredNorDeleted)
{
    m_host.Dirtify(m_vRows[0], "first");
    m_host.Dirtify(m_vRows[1], "a");
    const std::unique_ptr<CRecordingNotice> late(m_host.Notice("late"));
    QueueDuring("a", 0, late.get());
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, first)", "first.~()",
                                 "controller.HandleDirtyItem(r1.data, a)", "view.DirtyView()",
                                 "view.UpdateView()", "a.~()"}));
    EXPECT_EQ(Deliver(), CCalls{});
}

TEST_F(LateNotice, ForTheRowHandledWithoutANoticeIsNeitherDeliveredNorDeleted)
{
    m_host.m_pController->DirtifyItem(m_vRows[1].m_pRecord, nullptr);
    const std::unique_ptr<CRecordingNotice> late(m_host.Notice("late"));
    QueueDuring("null", 1, late.get());
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r1.data, null)", "view.DirtyView()",
                                 "view.UpdateView()"}));
    EXPECT_TRUE(m_host.m_pController->m_mapDirtyItems.empty());
    EXPECT_EQ(Deliver(), CCalls{});
    m_host.m_pController->ClearAllData();
    EXPECT_EQ(m_host.m_log.Count("late"), 0u);
}

TEST_F(LateNotice, ForThePanelWhileThePanelsAreHandledIsDeletedUndelivered)
{
    m_host.m_pController->DirtifyController(m_host.Notice("w"));
    m_host.m_pController->m_fnHandleControllerDirt = [&](auto&)
    { m_host.m_pController->DirtifyController(m_host.Notice("late")); };
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleControllerDirt(w)", "view.DirtyView()",
                                 "view.UpdateView()", "w.~()", "late.~()"}));
    EXPECT_EQ(Deliver(), CCalls{});
}

TEST_F(LateNotice, ForARowWhileThePanelsAreHandledIsDeliveredInTheSamePass)
{
    m_host.m_pController->DirtifyController(m_host.Notice("w"));
    m_host.m_pController->m_fnHandleControllerDirt = [&](auto&)
    { m_host.Dirtify(m_vRows[0], "late"); };
    EXPECT_EQ(Deliver(),
              (CCalls{"controller.HandleControllerDirt(w)", "view.DirtyView()", "view.UpdateView()",
                      "w.~()", "controller.HandleDirtyItem(r0.data, late)", "late.~()"}));
}

TEST_F(LateNotice, ForThePanelWhileARowIsHandledWaitsForTheNextPass)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.m_pController->m_fnHandleDirtyItem = [&](auto*, auto*)
    { m_host.m_pController->DirtifyController(m_host.Notice("late")); };
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, a)", "view.DirtyView()",
                                 "view.UpdateView()", "a.~()"}));
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleControllerDirt(late)", "late.~()"}));
}

TEST_F(LateNotice, SurvivesAGrowingQueue)
{
    // More than the queue of the row can hold where it stands.
    m_host.Dirtify(m_vRows[1], "n0");
    int queued = 1;
    m_host.m_pController->m_fnHandleDirtyItem = [&](auto*, auto*)
    {
        for (int i = 0; i < 2 && queued < 200; ++i)
            m_host.Dirtify(m_vRows[1], "n" + std::to_string(queued++));
    };
    const CCalls calls = Deliver();
    CCalls expected;
    for (int i = 0; i < 200; ++i)
    {
        expected.push_back("controller.HandleDirtyItem(r1.data, n" + std::to_string(i) + ")");
        expected.push_back("n" + std::to_string(i) + ".~()");
    }
    CCalls delivered;
    for (const std::string& call : calls)
    {
        if (call.rfind("view.", 0) != 0)
            delivered.push_back(call);
    }
    EXPECT_EQ(delivered, expected);
}

TEST_F(LateNotice, IsNotWaitedForByADeliveryInsideADelivery)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.Dirtify(m_vRows[0], "b");
    m_host.m_pController->m_fnHandleDirtyItem = [&](auto*, auto*)
    { m_host.m_pController->HandleDirtyItems(); };
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r0.data, a)", "a.~()",
                                 "controller.HandleDirtyItem(r0.data, b)", "b.~()"}));
    EXPECT_EQ(Deliver(), CCalls{});
}
