// View and controller may die in either order; each forgets the other.

#include <support/recordinghost.h>

#include <gtest/gtest.h>

TEST(Lifetimes, AControllerOutlivesItsView)
{
    CRecordingHost host;
    host.AddRow("a");
    host.m_log.Clear();
    host.m_pView.reset();
    EXPECT_EQ(host.m_log.Take(), CCalls{"view.~()"});
    EXPECT_EQ(host.m_pController->m_pView, nullptr);
    EXPECT_EQ(host.m_pController->m_lItems.size(), 1u);
    host.m_pController->SetPreviewMode(true);
    host.m_pController->ConnectDataElements();
    host.m_log.Clear();
    host.m_pController->ClearAllData();
    EXPECT_EQ(host.m_log.Take(), CRecordingHost::End("a"));
}

TEST(Lifetimes, AControllerWithRowsDiesAfterItsView)
{
    CRecordingHost host;
    host.AddRow("a");
    host.m_pView.reset();
    host.m_log.Clear();
    host.m_pController.reset();
    EXPECT_EQ(host.m_log.Take(), CCalls{"controller.~()"} + CRecordingHost::End("a"));
}

TEST(Lifetimes, AViewOutlivesItsController)
{
    CRecordingHost host;
    host.AddRow("a");
    host.m_pController.reset();
    EXPECT_EQ(host.m_pView->m_pController, nullptr);
    host.m_log.Clear();
    host.m_pView->OnPreDraw();
    host.m_pView->ResizeInspector(100, 100);
    EXPECT_EQ(host.m_log.Take(), (CCalls{"view.RecomputeLayout()", "view.ComputeHoldersWidth()",
                                         "view.UpdateView()", "view.OnContentHeightSet()"}));
    host.m_pView.reset();
    EXPECT_EQ(host.m_log.Take(), CCalls{"view.~()"});
}

TEST(Lifetimes, AViewTakesANewControllerAfterTheFirstDied)
{
    CRecordingHost host;
    host.m_pController = std::make_unique<CRecordingController>(host.m_log);
    EXPECT_EQ(host.m_pView->m_pController, nullptr);
    host.m_pController->SetInspectorView(host.m_pView.get());
    host.m_pView->SetController(host.m_pController.get());
    const auto row = host.AddRow("a");
    host.Dirtify(row, "n");
    host.m_log.Clear();
    host.m_pView->OnPreDraw();
    EXPECT_EQ(host.m_log.Take(), (CCalls{"controller.HandleDirtyItem(a.data, n)", "n.~()"}));
}

TEST(Lifetimes, ADyingViewIsForgottenByEveryControllerThatKnowsIt)
{
    CCallLog log;
    auto view = std::make_unique<CRecordingView>(log);
    CRecordingController first(log);
    CRecordingController second(log);
    first.SetInspectorView(view.get());
    second.SetInspectorView(view.get());
    second.SetInspectorView(nullptr);
    second.SetInspectorView(view.get());
    view.reset();
    EXPECT_EQ(first.m_pView, nullptr);
    EXPECT_EQ(second.m_pView, nullptr);
}

TEST(Lifetimes, ADyingControllerIsForgottenByEveryViewThatKnowsIt)
{
    CCallLog log;
    CRecordingView first(log, "first");
    CRecordingView second(log, "second");
    auto controller = std::make_unique<CRecordingController>(log);
    first.SetController(controller.get());
    second.SetController(controller.get());
    second.SetController(nullptr);
    second.SetController(controller.get());
    controller.reset();
    EXPECT_EQ(first.m_pController, nullptr);
    EXPECT_EQ(second.m_pController, nullptr);
}

TEST(Lifetimes, ALinkThatWasTakenBackIsNotFollowed)
{
    CCallLog log;
    auto first = std::make_unique<CRecordingView>(log, "first");
    CRecordingView second(log, "second");
    CRecordingController controller(log);
    controller.SetInspectorView(first.get());
    controller.SetInspectorView(&second);
    first.reset();
    EXPECT_EQ(controller.m_pView, &second);
    controller.SetInspectorView(nullptr);
}

TEST(Lifetimes, CopiesOfAViewAreForgottenToo)
{
    CCallLog log;
    CRecordingView view(log);
    auto controller = std::make_unique<CRecordingController>(log);
    view.SetController(controller.get());
    CRecordingView copy(view);
    EXPECT_EQ(copy.m_pController, controller.get());
    controller.reset();
    EXPECT_EQ(view.m_pController, nullptr);
    EXPECT_EQ(copy.m_pController, nullptr);
}

TEST(Lifetimes, CopiesOfAControllerForgetADyingView)
{
    CRecordingHost host;
    CRecordingController copy(*host.m_pController);
    host.m_pView.reset();
    EXPECT_EQ(copy.m_pView, nullptr);
}

TEST(Lifetimes, ARowThatMovesToAnotherViewIsForgottenByTheFirst)
{
    CRecordingHost host;
    const auto row = host.AddRow("a");
    auto other = std::make_unique<CRecordingView>(host.m_log, "other");
    other->AddElement(row.m_pElement, row.m_pWidget, "a", nullptr, nullptr);
    host.m_log.Clear();
    host.m_pView->ResizeInspector(100, 100);
    EXPECT_EQ(host.m_log.Count("a.widget"), 0u);
    other->ResizeInspector(100, 100);
    EXPECT_EQ(host.m_log.Count("a.widget.MoveWidget"), 1u);
    other.reset();
    host.m_pController->RemoveItem(row.m_pElement);
    host.m_pView->RecomputeLayout();
}

TEST(Lifetimes, ARowForgetsADyingWidgetThatShowsAnotherElement)
{
    for (const bool hasElement : {false, true})
    {
        CRecordingHost host;
        const auto first = host.AddRow("a");
        const auto row = host.AddRow("b");
        row.m_pWidget->SetDataElement(hasElement ? first.m_pElement : nullptr);
        delete row.m_pWidget;
        EXPECT_EQ(host.m_pController->m_lItems.back()->m_pWidget, nullptr);
        EXPECT_EQ(row.m_pElement->GetWidget(), nullptr);
        EXPECT_EQ(host.m_pController->m_lItems.front()->m_pWidget, first.m_pWidget);
        EXPECT_EQ(first.m_pElement->GetWidget(), first.m_pWidget);
    }
}

TEST(Lifetimes, ARowLeavesTheNewWidgetOfItsElementAlone)
{
    CRecordingHost host;
    CRecordingWidget other(host.m_log, "other");
    const auto row = host.AddRow("a");
    row.m_pElement->SetDataControl(&other, host.m_pController.get());
    delete row.m_pWidget;
    EXPECT_EQ(row.m_pElement->GetWidget(), &other);
    EXPECT_EQ(host.m_pController->m_lItems.front()->m_pWidget, nullptr);
}

TEST(Lifetimes, AWidgetMayDieWhoseRecordTheHostGaveAnother)
{
    CRecordingHost host;
    const auto row = host.AddRow("a");
    auto* other = new CRecordingWidget(host.m_log, "other");
    host.m_pController->m_lItems.front()->m_pWidget = other;
    delete row.m_pWidget;
    EXPECT_EQ(host.m_pController->m_lItems.front()->m_pWidget, other);
}

TEST(Lifetimes, TwoPanelsInOneProcessKeepToThemselves)
{
    CRecordingHost first;
    CRecordingHost second;
    const auto a = first.AddRow("a");
    const auto b = second.AddRow("b");
    first.m_log.Clear();
    second.m_log.Clear();
    first.Dirtify(a, "n");
    first.m_pView->OnPreDraw();
    first.m_pController->GiveFocusToNextElement(a.m_pWidget);
    first.m_pController->RemoveItem(b.m_pElement);
    EXPECT_EQ(second.m_log.Take(), CCalls{});
    EXPECT_EQ(first.m_log.Count("b."), 0u);
}
