#include <support/recordinghost.h>

#include <gtest/gtest.h>

namespace
{

using CRecord = CInspectorController::sInspectorControllerData;

} // namespace

TEST(RowRecord, StartsWithoutAnything)
{
    const CRecord record;
    EXPECT_EQ(record.m_pData, nullptr);
    EXPECT_EQ(record.m_pElement, nullptr);
    EXPECT_EQ(record.m_pWidget, nullptr);
}

TEST(RowRecord, DeletesPayloadElementAndWidgetInThisOrder)
{
    CCallLog log;
    auto* record = new CRecord;
    record->m_pWidget = new CRecordingWidget(log);
    record->m_pData = new CRecordingPayload(log, "data");
    record->m_pElement = new CRecordingElement(log, "element");
    delete record;
    EXPECT_EQ(log.Take(), (CCalls{"data.~()", "element.~()", "widget.~()"}));
    delete new CRecord;
    EXPECT_EQ(log.Take(), CCalls{});
}

TEST(RowRecord, ForgetsEachMemberOnceItIsDeleted)
{
    CCallLog log;
    auto* record = new CRecord;
    auto* element = new CRecordingElement(log, "element");
    auto* widget = new CRecordingWidget(log);
    record->m_pData = new CRecordingPayload(log, "data");
    record->m_pElement = element;
    record->m_pWidget = widget;
    const void* pDataDuringElement = record;
    const void* pElementDuringWidget = record;
    element->m_fnDestroyed = [&] { pDataDuringElement = record->m_pData; };
    widget->m_fnDestroyed = [&] { pElementDuringWidget = record->m_pElement; };
    delete record;
    EXPECT_EQ(pDataDuringElement, nullptr);
    EXPECT_EQ(pElementDuringWidget, nullptr);
}

TEST(Rows, AreBoundWhenTheyAreAdded)
{
    CRecordingHost host;
    const auto row = host.RegisterRow("a");
    EXPECT_EQ(host.m_log.Take(),
              (CCalls{"a.element.SetDataControl()", "a.widget.SetDataElement(element)"}));
    EXPECT_EQ(row.m_pElement->GetWidget(), row.m_pWidget);
    EXPECT_EQ(row.m_pElement->GetController(), host.m_pController.get());
    EXPECT_EQ(row.m_pWidget->GetElement(), row.m_pElement);
    EXPECT_EQ(row.m_pRecord->m_pElement, row.m_pElement);
    EXPECT_EQ(row.m_pRecord->m_pWidget, row.m_pWidget);
    EXPECT_EQ(row.m_pRecord->m_pData, row.m_pData);
}

TEST(Rows, MayLackAPayload)
{
    CRecordingHost host;
    auto* element = new CRecordingElement(host.m_log, "element");
    host.m_pController->AddItem(element, new CRecordingWidget(host.m_log), nullptr);
    EXPECT_EQ(host.m_pController->RecordAt(0)->m_pData, nullptr);
    host.m_log.Clear();
    host.m_pController->RemoveItem(element);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"element.Disconnect()", "element.~()", "widget.~()"}));
}

TEST(Rows, StandInTheOrderInWhichTheyWereAdded)
{
    CRecordingHost host;
    const auto a = host.RegisterRow("a");
    const auto b = host.RegisterRow("b");
    const auto c = host.RegisterRow("c");
    EXPECT_EQ(host.m_pController->m_lItems,
              (std::list<CRecord*>{a.m_pRecord, b.m_pRecord, c.m_pRecord}));
    EXPECT_EQ(host.m_pController->RecordAt(1)->m_pElement, b.m_pElement);
}

TEST(Rows, AreConnectedAndInitialisedOneAfterTheOther)
{
    CRecordingHost host;
    host.m_pController->ConnectDataElements();
    EXPECT_EQ(host.m_log.Take(), CCalls{});
    host.RegisterRow("a");
    host.RegisterRow("b");
    host.m_log.Clear();
    host.m_pController->ConnectDataElements();
    EXPECT_EQ(host.m_log.Take(), (CCalls{"a.element.Connect()", "a.widget.InitFromElement()",
                                         "b.element.Connect()", "b.widget.InitFromElement()"}));
}

TEST(Rows, AreDisconnectedAndDestroyedWhenRemoved)
{
    CRecordingHost host;
    const auto a = host.AddRow("a");
    const auto b = host.AddRow("b");
    const auto c = host.AddRow("c");
    host.m_log.Clear();
    host.m_pController->RemoveItem(b.m_pElement);
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("b"));
    EXPECT_EQ(host.m_pController->m_lItems, (std::list<CRecord*>{a.m_pRecord, c.m_pRecord}));
}

TEST(Rows, AreNotTakenOutOfTheViewWhenRemoved)
{
    CRecordingHost host;
    const auto a = host.AddRow("a");
    host.AddRow("b");
    host.m_pController->RemoveItem(a.m_pElement);
    EXPECT_EQ(host.m_pView->m_lElements.size(), 2u);
    EXPECT_EQ(host.m_pView->m_setControlHolders.size(), 2u);
    host.m_log.Clear();
    host.m_pView->ResizeInspector(100, 100);
    EXPECT_EQ(host.m_log.Count("a.widget"), 0u);
    EXPECT_EQ(host.m_log.Count("b.widget.MoveWidget"), 1u);
}

TEST(Rows, UnknownAreIgnored)
{
    CRecordingHost host;
    host.AddRow("a");
    CRecordingElement stranger(host.m_log, "stranger");
    host.m_log.Clear();
    host.m_pController->RemoveItem(&stranger);
    host.m_pController->RemoveItem(nullptr);
    EXPECT_EQ(host.m_log.Take(), CCalls{});
    EXPECT_EQ(host.m_pController->m_lItems.size(), 1u);
}

TEST(Rows, TakeTheirNoticesAlongUndelivered)
{
    CRecordingHost host;
    const auto a = host.AddRow("a");
    const auto b = host.AddRow("b");
    host.Dirtify(a, "n1");
    host.Dirtify(b, "kept");
    host.Dirtify(a, "n2");
    host.m_log.Clear();
    host.m_pController->RemoveItem(a.m_pElement);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"a.element.Disconnect()", "n1.~()", "n2.~()", "a.data.~()",
                                         "a.element.~()", "a.widget.~()"}));
    EXPECT_EQ(host.m_pController->m_mapDirtyItems.count(a.m_pRecord), 0u);
    host.m_pController->HandleDirtyItems();
    EXPECT_EQ(host.m_log.Take(), (CCalls{"controller.HandleDirtyItem(b.data, kept)", "kept.~()"}));
}

TEST(Rows, AreClearedWithEveryNoticeInTheStatedOrder)
{
    CRecordingHost host;
    const auto rows = host.AddRowsByAddress(2);
    host.Dirtify(rows[1], "n1");
    host.Dirtify(rows[0], "n0");
    host.Dirtify(rows[1], "n2");
    host.m_pController->DirtifyController(host.Notice("w0"));
    host.m_pController->DirtifyController(nullptr);
    host.m_pController->DirtifyController(host.Notice("w1"));
    const bool isInOrder = host.m_pController->RecordAt(0) == rows[0].m_pRecord;
    host.m_log.Clear();
    host.m_pController->ClearAllData();
    EXPECT_EQ(host.m_log.Take(),
              (CCalls{"n0.~()", "n1.~()", "n2.~()"} + CRecordingHost::End(isInOrder ? "r0" : "r1") +
               CRecordingHost::End(isInOrder ? "r1" : "r0") +
               CCalls{"view.RemoveAll()", "w0.~()", "w1.~()"}));
    EXPECT_TRUE(host.m_pController->m_lItems.empty());
    EXPECT_TRUE(host.m_pController->m_mapDirtyItems.empty());
    EXPECT_TRUE(host.m_pController->m_vControllerDirt.empty());
    EXPECT_TRUE(host.m_pView->m_lElements.empty());
    EXPECT_TRUE(host.m_pView->m_setHolders.empty());
}

TEST(Rows, AreClearedInTheOrderInWhichTheyWereAdded)
{
    CRecordingHost host;
    for (const char* name : {"a", "b", "c"})
        host.AddRow(name);
    host.m_log.Clear();
    host.m_pController->ClearAllData();
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("a") + CRecordingHost::End("b") +
                                     CRecordingHost::End("c") + CCalls{"view.RemoveAll()"});
}

TEST(Rows, AreClearedWithoutAView)
{
    CRecordingHost host;
    host.RegisterRow("a");
    host.m_pController->SetInspectorView(nullptr);
    host.m_log.Clear();
    host.m_pController->ClearAllData();
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("a"));
    host.m_pController->ClearAllData();
    EXPECT_EQ(host.m_log.Take(), CCalls{});
}

TEST(Rows, WithoutAnElementAreNotDisconnected)
{
    CRecordingHost host;
    const auto a = host.RegisterRow("a");
    delete std::exchange(a.m_pRecord->m_pElement, nullptr);
    host.m_log.Clear();
    host.m_pController->ClearAllData();
    EXPECT_EQ(host.m_log.Take(), (CCalls{"a.data.~()", "a.widget.~()", "view.RemoveAll()"}));
}

TEST(Rows, CanBeFilledAgainAfterClearing)
{
    CRecordingHost host;
    host.AddRow("a");
    host.m_pController->ClearAllData();
    const auto b = host.AddRow("b");
    host.m_log.Clear();
    host.m_pController->ConnectDataElements();
    host.m_pController->RemoveItem(b.m_pElement);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"b.element.Connect()", "b.widget.InitFromElement()"} +
                                  CRecordingHost::End("b")));
}

TEST(Rows, DieOnceWithTheirController)
{
    CRecordingHost host;
    host.AddRow("a");
    host.AddRow("b");
    host.m_log.Clear();
    host.m_pController.reset();
    EXPECT_EQ(host.m_log.Take(), CCalls{"controller.~()"} + CRecordingHost::End("a") +
                                     CRecordingHost::End("b") + CCalls{"view.RemoveAll()"});
    EXPECT_TRUE(host.m_pView->m_lElements.empty());
}

#ifndef NDEBUG
TEST(RowsDeathTest, NamesWhatIsMissing)
{
    CRecordingHost host;
    CRecordingElement element(host.m_log, "element");
    CRecordingWidget widget(host.m_log);
    EXPECT_DEATH(host.m_pController->AddItem(nullptr, &widget, nullptr),
                 "CInspectorController::AddItem: no element");
    EXPECT_DEATH(host.m_pController->AddItem(&element, nullptr, nullptr),
                 "CInspectorController::AddItem: no widget");
}

TEST(RowsDeathTest, RefusesToChangeTheRegistryWhileItIsCleared)
{
    CRecordingHost host;
    const auto a = host.AddRow("a");
    const auto b = host.AddRow("b");
    const auto clear = [&](CHook hook)
    {
        a.m_pElement->m_fnDisconnect = std::move(hook);
        host.m_pController->ClearAllData();
    };
    EXPECT_DEATH(clear([&] { host.m_pController->RemoveItem(b.m_pElement); }),
                 "CInspectorController::RemoveItem: called while all rows are cleared");
    EXPECT_DEATH(clear([&] { host.RegisterRow("c"); }),
                 "CInspectorController::AddItem: called while all rows are cleared");
    EXPECT_DEATH(clear([&] { host.m_pController->ClearAllData(); }),
                 "CInspectorController::ClearAllData: called while all rows are cleared");
}
#endif
