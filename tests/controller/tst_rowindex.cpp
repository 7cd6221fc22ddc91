// A row is found without a walk, but the answer is that of a walk from the front.

#include <support/recordinghost.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace
{

using CRow = CRecordingHost::sRow;

/// Two rows of one element. Both would delete it, so the second forgets it as soon as the first
/// row goes.
struct sTwins
{
    explicit sTwins(CRecordingHost& host)
    {
        m_pElement = new CRecordingElement(host.m_log, "element");
        auto& controller = *host.m_pController;
        controller.AddItem(m_pElement, new CRecordingWidget(host.m_log, "first"), nullptr);
        m_pFirst = controller.m_lItems.back();
        controller.AddItem(m_pElement, new CRecordingWidget(host.m_log, "second"), nullptr);
        m_pSecond = controller.m_lItems.back();
    }

    CRecordingElement* m_pElement = nullptr;
    CRecordingController::CRecord* m_pFirst = nullptr;
    CRecordingController::CRecord* m_pSecond = nullptr;
};

} // namespace

TEST(RowIndex, GivesTheFirstOfTwoRowsOfOneElement)
{
    CRecordingHost host;
    const sTwins twins(host);
    host.m_log.Clear();
    twins.m_pElement->m_fnDisconnect = [&] { twins.m_pSecond->m_pElement = nullptr; };
    host.m_pController->RemoveItem(twins.m_pElement);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"element.Disconnect()", "element.~()", "first.~()"}));
    ASSERT_EQ(host.m_pController->m_lItems.size(), 1u);
    EXPECT_EQ(host.m_pController->m_lItems.front(), twins.m_pSecond);
}

TEST(RowIndex, KeepsTwinsWhenAnotherRowGoes)
{
    CRecordingHost host;
    const auto other = host.AddRow("other");
    const sTwins twins(host);
    host.m_pController->RemoveItem(other.m_pElement);
    EXPECT_EQ(host.m_pController->m_lItems.size(), 2u);
    twins.m_pElement->m_fnDisconnect = [&] { twins.m_pSecond->m_pElement = nullptr; };
    host.m_pController->RemoveItem(twins.m_pElement);
    ASSERT_EQ(host.m_pController->m_lItems.size(), 1u);
    EXPECT_EQ(host.m_pController->m_lItems.front(), twins.m_pSecond);
}

TEST(RowIndex, GivesTheSecondRowOnceTheFirstIsGone)
{
    CRecordingHost host;
    const sTwins twins(host);
    // The first row leaves without the element they share.
    host.m_log.Clear();
    twins.m_pElement->m_fnDisconnect = [&] { twins.m_pFirst->m_pElement = nullptr; };
    host.m_pController->RemoveItem(twins.m_pElement);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"element.Disconnect()", "first.~()"}));
    twins.m_pElement->m_fnDisconnect = nullptr;
    host.m_pController->RemoveItem(twins.m_pElement);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"element.Disconnect()", "element.~()", "second.~()"}));
    host.m_pController->RemoveItem(nullptr);
    EXPECT_EQ(host.m_log.Take(), CCalls{});
}

TEST(RowIndex, BindsASharedElementToTheLastWidget)
{
    CRecordingHost host;
    const sTwins twins(host);
    EXPECT_EQ(twins.m_pElement->GetWidget(), twins.m_pSecond->m_pWidget);
    twins.m_pFirst->m_pElement = nullptr;
}

TEST(RowIndex, FindsARowWhoseElementIsMissingByItsAbsence)
{
    CRecordingHost host;
    host.RegisterRow("a");
    const CRow b = host.RegisterRow("b");
    delete std::exchange(b.m_pRecord->m_pElement, nullptr);
    host.m_log.Clear();
    host.m_pController->RemoveItem(nullptr);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"b.data.~()", "b.widget.~()"}));
    EXPECT_EQ(host.m_pController->m_lItems.size(), 1u);
}

TEST(RowIndex, DoesNotKeepARowWhoseElementWasTakenOut)
{
    CRecordingHost host;
    const CRow a = host.RegisterRow("a");
    CInspectorDataElement* element = std::exchange(a.m_pRecord->m_pElement, nullptr);
    host.m_pController->RemoveItem(nullptr);
    // The element comes back in another row.
    host.m_pController->AddItem(element, new CRecordingWidget(host.m_log, "other"), nullptr);
    host.m_log.Clear();
    host.m_pController->RemoveItem(element);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"a.element.Disconnect()", "a.element.~()", "other.~()"}));
}

TEST(RowIndex, FollowsRowsWhoseElementsAreSwapped)
{
    CRecordingHost host;
    const CRow a = host.RegisterRow("a");
    const CRow b = host.RegisterRow("b");
    std::swap(a.m_pRecord->m_pElement, b.m_pRecord->m_pElement);
    host.m_log.Clear();
    host.m_pController->RemoveItem(b.m_pElement);
    EXPECT_EQ(host.m_log.Take(),
              (CCalls{"b.element.Disconnect()", "a.data.~()", "b.element.~()", "a.widget.~()"}));
    host.m_pController->RemoveItem(a.m_pElement);
    EXPECT_EQ(host.m_log.Take(),
              (CCalls{"a.element.Disconnect()", "b.data.~()", "a.element.~()", "b.widget.~()"}));
    EXPECT_TRUE(host.m_pController->m_lItems.empty());
}

TEST(RowIndex, FollowsAListThatAHostFillsItself)
{
    CRecordingHost host;
    const CRow a = host.RegisterRow("a");
    const CRow b = host.RegisterRow("b");
    auto& list = host.m_pController->m_lItems;
    list.reverse();
    auto* own = new CInspectorController::sInspectorControllerData;
    own->m_pElement = new CRecordingElement(host.m_log, "own");
    list.push_front(own);
    host.m_log.Clear();
    host.m_pController->RemoveItem(own->m_pElement);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"own.Disconnect()", "own.~()"}));
    host.m_pController->RemoveItem(a.m_pElement);
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("a"));
    EXPECT_EQ(list.size(), 1u);
    EXPECT_EQ(list.front(), b.m_pRecord);
}

TEST(RowIndex, AnswersLikeAWalkThroughARandomHistory)
{
    std::mt19937 random(20);
    CRecordingHost host;
    std::vector<CRow> model;
    int made = 0;
    for (int step = 0; step < 3000; ++step)
    {
        const unsigned dice = random() % 100;
        if (dice < 55)
        {
            model.push_back(host.RegisterRow("row" + std::to_string(made++)));
            continue;
        }
        if (dice == 99)
        {
            host.m_pController->ClearAllData();
            model.clear();
        }
        else if (!model.empty())
        {
            const std::size_t victim = random() % model.size();
            const std::string name = model[victim].m_pElement->m_sName;
            host.m_log.Clear();
            host.m_pController->RemoveItem(model[victim].m_pElement);
            ASSERT_EQ(host.m_log.GetCalls().front(), name + ".Disconnect()");
            ASSERT_EQ(host.m_log.GetCalls().size(), 4u);
            model.erase(model.begin() + static_cast<std::ptrdiff_t>(victim));
        }
        ASSERT_EQ(host.m_pController->m_lItems.size(), model.size());
        ASSERT_TRUE(std::equal(model.begin(), model.end(), host.m_pController->m_lItems.begin(),
                               [](const CRow& row, const CRecordingController::CRecord* record)
                               { return row.m_pRecord == record; }));
    }
    EXPECT_GT(made, 1000);
}
