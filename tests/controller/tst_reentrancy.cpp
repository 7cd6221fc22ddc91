// What exactly happens when the host comes back into the registry from a hook.

#include <support/recordinghost.h>

#include <gtest/gtest.h>

namespace
{

class Reentrancy : public testing::Test
{
protected:
    void SetUp() override { m_vRows = m_host.AddRowsByAddress(3); }

    /// Runs \p hook when the handler gets the notice \p name ("null" for none).
    void OnNotice(const std::string& name, CHook hook)
    {
        m_host.m_pController->m_fnHandleDirtyItem =
            [name, hook = std::move(hook)](auto*, auto* info)
        {
            const auto* notice = dynamic_cast<CRecordingNotice*>(info);
            if ((notice ? notice->m_sName : "null") == name)
                hook();
        };
    }

    void Remove(std::size_t row) { m_host.m_pController->RemoveItem(m_vRows[row].m_pElement); }

    CCalls Deliver()
    {
        m_host.m_log.Clear();
        m_host.m_pController->HandleDirtyItems();
        return m_host.m_log.Take();
    }

    CRecordingHost m_host;
    CRecordingController* m_pDying = nullptr;
    std::vector<CRecordingHost::sRow> m_vRows;
};

} // namespace

TEST_F(Reentrancy, TheRowInHandTakesItsOtherNoticesAlongAndTheWalkGoesOn)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.Dirtify(m_vRows[1], "b0");
    m_host.Dirtify(m_vRows[1], "b1");
    m_host.Dirtify(m_vRows[1], "b2");
    m_host.Dirtify(m_vRows[2], "c");
    OnNotice("b1", [this] { Remove(1); });
    EXPECT_EQ(Deliver(),
              (CCalls{"controller.HandleDirtyItem(r0.data, a)", "a.~()",
                      "controller.HandleDirtyItem(r1.data, b0)", "b0.~()",
                      "controller.HandleDirtyItem(r1.data, b1)", "r1.element.Disconnect()",
                      "b2.~()", "r1.data.~()", "r1.element.~()", "r1.widget.~()", "b1.~()",
                      "controller.HandleDirtyItem(r2.data, c)", "c.~()"}));
}

TEST_F(Reentrancy, TheRowInHandMayGoWithoutANotice)
{
    m_host.m_pController->DirtifyItem(m_vRows[1].m_pRecord, nullptr);
    m_host.Dirtify(m_vRows[2], "c");
    OnNotice("null", [this] { Remove(1); });
    EXPECT_EQ(Deliver(), CCalls{"controller.HandleDirtyItem(r1.data, null)"} +
                             CRecordingHost::End("r1") +
                             (CCalls{"controller.HandleDirtyItem(r2.data, c)", "c.~()"}));
}

TEST_F(Reentrancy, ANoticeQueuedForTheRowInHandGoesWithIt)
{
    m_host.Dirtify(m_vRows[1], "b");
    OnNotice("b",
             [this]
             {
                 m_host.Dirtify(m_vRows[1], "late");
                 Remove(1);
             });
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(r1.data, b)", "view.DirtyView()",
                                 "view.UpdateView()", "r1.element.Disconnect()", "late.~()",
                                 "r1.data.~()", "r1.element.~()", "r1.widget.~()", "b.~()"}));
}

TEST_F(Reentrancy, ARowFurtherOnIsNotDeliveredOnceItIsRemoved)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.Dirtify(m_vRows[1], "b");
    m_host.Dirtify(m_vRows[2], "c");
    OnNotice("a", [this] { Remove(1); });
    EXPECT_EQ(Deliver(),
              (CCalls{"controller.HandleDirtyItem(r0.data, a)", "r1.element.Disconnect()", "b.~()",
                      "r1.data.~()", "r1.element.~()", "r1.widget.~()", "a.~()",
                      "controller.HandleDirtyItem(r2.data, c)", "c.~()"}));
}

TEST_F(Reentrancy, ARowThatIsPassedMayBeRemoved)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.Dirtify(m_vRows[1], "b");
    OnNotice("b", [this] { Remove(0); });
    EXPECT_EQ(Deliver(), CCalls({"controller.HandleDirtyItem(r0.data, a)", "a.~()",
                                 "controller.HandleDirtyItem(r1.data, b)"}) +
                             CRecordingHost::End("r0") + CCalls{"b.~()"});
}

TEST_F(Reentrancy, NothingIsDeliveredOnceEverythingIsCleared)
{
    m_host.Dirtify(m_vRows[0], "a0");
    m_host.Dirtify(m_vRows[0], "a1");
    m_host.Dirtify(m_vRows[1], "b");
    OnNotice("a0", [this] { m_host.m_pController->ClearAllData(); });
    const CCalls calls = Deliver();
    EXPECT_EQ(CCalls(calls.begin(), calls.begin() + 3),
              (CCalls{"controller.HandleDirtyItem(r0.data, a0)", "a1.~()", "b.~()"}));
    EXPECT_EQ(calls.back(), "a0.~()");
    EXPECT_EQ(calls.size(), 3u + 3u * 4u + 1u + 1u);
    EXPECT_EQ(Deliver(), CCalls{});
}

TEST_F(Reentrancy, ARebuiltPanelIsDeliveredInTheNextPass)
{
    m_host.Dirtify(m_vRows[0], "a");
    OnNotice("a",
             [this]
             {
                 m_host.m_pController->ClearAllData();
                 m_host.AddRow("x");
             });
    Deliver();
    ASSERT_EQ(m_host.m_pController->m_lItems.size(), 1u);
    m_host.m_pController->DirtifyItem(m_host.m_pController->RecordAt(0), nullptr);
    EXPECT_EQ(Deliver(), CCalls{"controller.HandleDirtyItem(x.data, null)"});
}

TEST_F(Reentrancy, TheNoticeInHandOutlivesTheController)
{
    m_host.Dirtify(m_vRows[0], "a0");
    m_host.Dirtify(m_vRows[0], "a1");
    OnNotice("a0", [this] { m_host.m_pController.reset(); });
    m_host.m_log.Clear();
    m_host.m_pView->OnPreDraw();
    const CCalls calls = m_host.m_log.Take();
    EXPECT_EQ(CCalls(calls.begin(), calls.begin() + 3),
              (CCalls{"controller.HandleDirtyItem(r0.data, a0)", "controller.~()", "a1.~()"}));
    EXPECT_EQ(calls.back(), "a0.~()");
    m_host.m_pView->OnPreDraw();
    EXPECT_EQ(m_host.m_log.Take(), CCalls{});
}

TEST_F(Reentrancy, ThePanelMayBeClearedAndFilledFromItsOwnNotices)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.m_pController->DirtifyController(m_host.Notice("w0"));
    m_host.m_pController->DirtifyController(m_host.Notice("w1"));
    m_host.m_pController->m_fnHandleControllerDirt = [this](auto& dirt)
    {
        m_host.m_pController->ClearAllData();
        EXPECT_TRUE(dirt.empty());
        const auto x = m_host.AddRow("x");
        m_host.Dirtify(x, "new");
        m_host.m_log.Clear();
    };
    // What was queued for a new row is on its way in the same pass.
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleDirtyItem(x.data, new)", "new.~()"}));
    EXPECT_EQ(Deliver(), CCalls{});
}

TEST_F(Reentrancy, ARowThatThePanelsHandlerRemovesIsNotDelivered)
{
    m_host.Dirtify(m_vRows[0], "a");
    m_host.Dirtify(m_vRows[1], "b");
    m_host.m_pController->DirtifyController(nullptr);
    m_host.m_pController->m_fnHandleControllerDirt = [this](auto&) { Remove(0); };
    EXPECT_EQ(Deliver(), (CCalls{"controller.HandleControllerDirt(null)", "r0.element.Disconnect()",
                                 "a.~()", "r0.data.~()", "r0.element.~()", "r0.widget.~()",
                                 "controller.HandleDirtyItem(r1.data, b)", "b.~()"}));
}

TEST_F(Reentrancy, AnEditMovesOnOnlyToARowThatSurvivedBeingMadeVisible)
{
    CInspectorDataWidget* first = m_host.m_pController->RecordAt(0)->m_pWidget;
    CInspectorDataElement* second = m_host.m_pController->RecordAt(1)->m_pElement;
    CInspectorDataElement* third = m_host.m_pController->RecordAt(2)->m_pElement;
    m_host.m_pView->m_fnEnsureVisible = [&](auto*) { m_host.m_pController->RemoveItem(third); };
    m_host.m_pController->GiveFocusToNextElement(first);
    EXPECT_EQ(m_host.m_log.Count("StartEditing"), 1u);
    m_host.m_log.Clear();
    m_host.m_pView->m_fnEnsureVisible = [&](auto*) { m_host.m_pController->RemoveItem(second); };
    m_host.m_pController->GiveFocusToNextElement(first);
    EXPECT_EQ(m_host.m_log.Count("EnsureVisible"), 1u);
    EXPECT_EQ(m_host.m_log.Count("StartEditing"), 0u);
}

TEST_F(Reentrancy, ARemovedRowIsPassedOverByTheNextMove)
{
    CInspectorDataWidget* first = m_host.m_pController->RecordAt(0)->m_pWidget;
    m_host.m_pController->RemoveItem(m_host.m_pController->RecordAt(1)->m_pElement);
    m_host.m_log.Clear();
    // Its place is there until the host rebuilds the tree, and is a stop where nothing happens.
    m_host.m_pController->GiveFocusToNextElement(first);
    EXPECT_EQ(m_host.m_log.Take(), CCalls{});
}

TEST_F(Reentrancy, ARowIsGoneFromTheRegistryWhenItIsDisconnected)
{
    m_vRows[1].m_pElement->m_fnDisconnect = [this]
    {
        Remove(1);
        Remove(0);
    };
    m_host.m_log.Clear();
    Remove(1);
    EXPECT_EQ(m_host.m_log.Take(), CCalls{"r1.element.Disconnect()"} + CRecordingHost::End("r0") +
                                       (CCalls{"r1.data.~()", "r1.element.~()", "r1.widget.~()"}));
    EXPECT_EQ(m_host.m_pController->m_lItems.size(), 1u);
}

TEST_F(Reentrancy, ADyingRowMayTakeTheControllerAlong)
{
    m_vRows[1].m_pElement->m_fnDisconnect = [this] { m_host.m_pController.reset(); };
    m_host.Dirtify(m_vRows[1], "b");
    m_host.m_log.Clear();
    Remove(1);
    for (const char* name : {"r0", "r1", "r2"})
    {
        EXPECT_EQ(m_host.m_log.Count(std::string(name) + ".element.~()"), 1u);
        EXPECT_EQ(m_host.m_log.Count(std::string(name) + ".widget.~()"), 1u);
    }
    EXPECT_EQ(m_host.m_log.Count("b.~()"), 1u);
}

TEST_F(Reentrancy, ADyingControlMayTakeTheControllerAlongThatClearsIt)
{
    m_vRows[1].m_pWidget->m_fnDestroyed = [this] { m_host.m_pController.reset(); };
    m_host.m_log.Clear();
    m_host.m_pController->ClearAllData();
    for (const char* name : {"r0", "r1", "r2"})
    {
        EXPECT_EQ(m_host.m_log.Count(std::string(name) + ".element.~()"), 1u);
        EXPECT_EQ(m_host.m_log.Count(std::string(name) + ".widget.~()"), 1u);
    }
}

TEST_F(Reentrancy, ADyingControlMayClearWhatIsBeingCleared)
{
    CRecordingHost host;
    const auto a = host.AddRow("a");
    host.AddRow("b");
    host.AddRow("c");
    a.m_pWidget->m_fnDestroyed = [&] { host.m_pController->ClearAllData(); };
    host.m_log.Clear();
    host.m_pController->ClearAllData();
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("a") + CRecordingHost::End("b") +
                                     CRecordingHost::End("c") + CCalls{"view.RemoveAll()"});
}

TEST_F(Reentrancy, ADyingControlMayRemoveARowThatIsAboutToBeCleared)
{
    CRecordingHost host;
    const auto a = host.AddRow("a");
    host.AddRow("b");
    const auto c = host.AddRow("c");
    a.m_pWidget->m_fnDestroyed = [&] { host.m_pController->RemoveItem(c.m_pElement); };
    host.m_log.Clear();
    host.m_pController->ClearAllData();
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("a") + CRecordingHost::End("c") +
                                     CRecordingHost::End("b") + CCalls{"view.RemoveAll()"});
}

TEST_F(Reentrancy, ADyingControllerDeliversNothingThoughAControlMakesTheViewDraw)
{
    m_vRows[1].m_pWidget->m_fnDestroyed = [this]
    {
        CRecordingController& controller = *m_pDying;
        controller.DirtifyController(new CRecordingNotice(m_host.m_log, "late"));
        controller.HandleDirtyItems();
    };
    m_host.m_log.Clear();
    m_pDying = m_host.m_pController.release();
    delete m_pDying;
    EXPECT_EQ(m_host.m_log.Containing("Handle"), CCalls{});
    EXPECT_EQ(m_host.m_log.Count("late.~()"), 1u);
}

TEST_F(Reentrancy, ADyingControlMayRemoveAnotherRow)
{
    m_vRows[1].m_pWidget->m_fnDestroyed = [this] { Remove(2); };
    m_host.m_log.Clear();
    Remove(1);
    EXPECT_EQ(m_host.m_log.Take(), CRecordingHost::End("r1") + CRecordingHost::End("r2"));
}

TEST_F(Reentrancy, ADyingElementIsOutOfReachOfItsWidget)
{
    const CInspectorDataElement* seen = m_vRows[1].m_pElement;
    m_vRows[1].m_pElement->m_fnDestroyed = [&] { seen = m_vRows[1].m_pWidget->GetElement(); };
    m_host.m_log.Clear();
    Remove(1);
    EXPECT_EQ(seen, nullptr);
    // Without a further call to the widget.
    EXPECT_EQ(m_host.m_log.Take(), CRecordingHost::End("r1"));
}

TEST_F(Reentrancy, RowsAddedWhileTheyAreConnectedAreConnectedToo)
{
    CRecordingHost host;
    const auto a = host.AddRow("a");
    a.m_pElement->m_fnConnect = [&]
    {
        if (host.m_pController->m_lItems.size() == 1)
            host.AddRow("b");
    };
    host.m_log.Clear();
    host.m_pController->ConnectDataElements();
    EXPECT_EQ(host.m_log.Count("a.element.Connect()"), 1u);
    EXPECT_EQ(host.m_log.Count("b.element.Connect()"), 1u);
    EXPECT_EQ(host.m_log.Count("b.widget.InitFromElement()"), 1u);
}

TEST_F(Reentrancy, RowsThatGoWhileTheyAreConnectedDoNotStopTheOthers)
{
    CRecordingHost host;
    host.AddRow("a");
    const auto b = host.AddRow("b");
    const auto c = host.AddRow("c");
    host.AddRow("d");
    b.m_pElement->m_fnConnect = [&]
    {
        host.m_pController->RemoveItem(c.m_pElement);
        host.m_pController->RemoveItem(b.m_pElement);
    };
    host.m_log.Clear();
    host.m_pController->ConnectDataElements();
    EXPECT_EQ(host.m_log.Take(),
              CCalls({"a.element.Connect()", "a.widget.InitFromElement()", "b.element.Connect()"}) +
                  CRecordingHost::End("c") + CRecordingHost::End("b") +
                  (CCalls{"d.element.Connect()", "d.widget.InitFromElement()"}));
}

TEST_F(Reentrancy, TheViewMayDieWhereItAsksForARepaint)
{
    m_host.m_pView->m_fnUpdateView = [this] { m_host.m_pView.reset(); };
    m_host.m_pController->DirtifyItem(m_vRows[0].m_pRecord, nullptr);
    EXPECT_EQ(m_host.m_pView, nullptr);
    m_host.m_pController->DirtifyItem(m_vRows[1].m_pRecord, nullptr);
    m_host.m_pController->DirtifyController(nullptr);
    m_host.m_pController->GiveFocusToNextElement(nullptr);
    m_host.m_pController->GiveFocusToPrevElement(nullptr);
    m_host.m_log.Clear();
    m_host.m_pController->HandleDirtyItems();
    EXPECT_EQ(m_host.m_log.Take(), (CCalls{"controller.HandleControllerDirt(null)",
                                           "controller.HandleDirtyItem(r0.data, null)",
                                           "controller.HandleDirtyItem(r1.data, null)"}));
}

TEST_F(Reentrancy, ANoticeQueuedByAControlThatIsClearedGoesWithItsRow)
{
    CRecordingController& controller = *m_host.m_pController;
    auto* first = static_cast<CRecordingWidget*>(controller.RecordAt(0)->m_pWidget);
    first->m_fnDestroyed = [this, &controller]
    { controller.DirtifyItem(controller.m_lItems.back(), m_host.Notice("late")); };
    m_host.m_log.Clear();
    m_host.m_pController->ClearAllData();
    EXPECT_EQ(m_host.m_log.Count("late.~"), 1u);
    EXPECT_TRUE(m_host.m_pController->m_mapDirtyItems.empty());
}

TEST_F(Reentrancy, AControlOfAnotherPanelMayDieWhileItIsScrolledIntoSight)
{
    CRecordingController other(m_host.m_log);
    other.SetInspectorView(m_host.m_pView.get());
    m_host.m_pView->m_fnEnsureVisible = [this](CInspectorDataWidget*)
    { m_host.m_pController->ClearAllData(); };
    m_host.m_log.Clear();
    other.GiveFocusToNextElement(nullptr);
    EXPECT_EQ(m_host.m_log.Count("StartEditing"), 0u);
    EXPECT_TRUE(m_host.m_pController->m_lItems.empty());
}
