// The tree and the holders.

#include <support/layoutpanel.h>
#include <support/recordingelement.h>

#include <gtest/gtest.h>

namespace
{

using CNode = CLayoutPanel::CNode;
using CHolder = CLayoutPanel::CHolder;

/// Records what is there already when the toolkit is called.
class CWatchingView : public CRecordingView
{
public:
    using CRecordingView::CRecordingView;

    void ParentControlToInspector(CInspectorDataWidget* widget) override
    {
        m_bFoundWhenParented = GetHolderFromControl(widget) != nullptr;
        m_ulNodesWhenParented = m_lElements.size();
    }

    bool m_bFoundWhenParented = false;
    std::size_t m_ulNodesWhenParented = 0;
};

} // namespace

TEST(Tree, NumbersItsKindsAsStated)
{
    EXPECT_EQ(CInspectorView::eElementGroup, 0);
    EXPECT_EQ(CInspectorView::eElementRow, 1);
    EXPECT_EQ(CInspectorView::eHolderControl, 0);
    EXPECT_EQ(CInspectorView::eHolderContainer, 1);
}

TEST(Tree, StartsNodesAndHoldersAtZero)
{
    const CNode node;
    EXPECT_EQ(node.m_iKind, 0);
    EXPECT_EQ(node.m_pHolder, nullptr);
    EXPECT_EQ(node.m_pParent, nullptr);
    EXPECT_EQ(node.m_sName, "");
    EXPECT_EQ(RectOf(node), (sRect{0, 0, 0, 0}));
    EXPECT_EQ(node.m_iLabelWidth, 0);
    const CHolder holder;
    EXPECT_EQ(holder.m_pElement, nullptr);
    EXPECT_EQ(holder.m_pWidget, nullptr);
    EXPECT_EQ(holder.m_iKind, 0);
    EXPECT_EQ(holder.m_pRequest, nullptr);
    EXPECT_TRUE(holder.m_lChildren.empty());
    EXPECT_EQ(RectOf(holder), (sRect{0, 0, 0, 0}));
    const CInspectorView::sPositionHolder entry;
    EXPECT_EQ(entry.m_pHolder, nullptr);
    EXPECT_EQ(entry.m_iMin + entry.m_iMax + entry.m_iWidth + entry.m_iRoom + entry.m_iIndex, 0);
}

TEST(Tree, TakesGroupsAtTheTopAndInside)
{
    CLayoutPanel panel;
    CNode* outer = panel.AddGroup("outer");
    EXPECT_EQ(panel.m_log.Take(), CCalls{"view.UpdateView()"});
    CNode* inner = panel.m_view.AddGroup(nullptr, outer);
    CNode* second = panel.AddGroup("second");
    EXPECT_EQ(panel.m_view.m_lElements.size(), 2u);
    EXPECT_EQ(&panel.Node(0), outer);
    EXPECT_EQ(&panel.Node(1), second);
    EXPECT_EQ(&outer->m_lChildren.front(), inner);
    EXPECT_EQ(outer->m_iKind, CInspectorView::eElementGroup);
    EXPECT_EQ(outer->m_sName, "outer");
    EXPECT_EQ(outer->m_pParent, nullptr);
    EXPECT_EQ(outer->m_pHolder, nullptr);
    EXPECT_EQ(inner->m_sName, "");
    EXPECT_EQ(inner->m_pParent, outer);
    EXPECT_TRUE(panel.m_view.m_setHolders.empty());
    EXPECT_EQ(panel.m_view.GetListElements(), &panel.m_view.m_lElements);
}

TEST(Tree, TakesContainers)
{
    CLayoutPanel panel;
    CNode* group = panel.AddGroup("group");
    panel.m_log.Clear();
    auto request = CLayoutPanel::Absolute(3, 4);
    CNode* container = panel.AddContainer("line", group, &request);
    EXPECT_EQ(panel.m_log.Take(), CCalls{"view.UpdateView()"});
    EXPECT_EQ(container->m_iKind, CInspectorView::eElementRow);
    EXPECT_EQ(container->m_sName, "line");
    EXPECT_EQ(container->m_pParent, group);
    EXPECT_EQ(&group->m_lChildren.back(), container);
    CHolder* holder = container->m_pHolder;
    ASSERT_NE(holder, nullptr);
    EXPECT_EQ(holder->m_iKind, CInspectorView::eHolderContainer);
    EXPECT_EQ(holder->m_pWidget, nullptr);
    EXPECT_EQ(holder->m_pElement, nullptr);
    EXPECT_NE(holder->m_pRequest, &request);
    EXPECT_EQ(holder->m_pRequest->m_iMin, 3);
    EXPECT_EQ(holder->m_pRequest->m_iMax, 4);
    EXPECT_EQ(panel.m_view.m_setHolders.count(holder), 1u);
    EXPECT_TRUE(panel.m_view.m_setControlHolders.empty());
    CNode* bare = panel.m_view.AddSingleLineContainer(nullptr, nullptr, nullptr);
    EXPECT_EQ(bare->m_sName, "");
    EXPECT_EQ(bare->m_pHolder->m_pRequest, nullptr);
    EXPECT_EQ(&panel.Node(1), bare);
}

TEST(Tree, TakesControlsAsRows)
{
    CCallLog log;
    CRecordingWidget widget(log);
    CRecordingElement element(log, "element");
    CRecordingView view(log);
    CNode* group = view.AddGroup("group", nullptr);
    auto request = CLayoutPanel::Absolute(3, 4);
    log.Clear();
    CHolder* holder = view.AddElement(&element, &widget, "label", &request, group);
    EXPECT_EQ(log.Take(), (CCalls{"view.ParentControlToInspector(widget)", "widget.Show()",
                                  "view.UpdateView()"}));
    const CNode& row = group->m_lChildren.front();
    EXPECT_EQ(row.m_iKind, CInspectorView::eElementRow);
    EXPECT_EQ(row.m_sName, "label");
    EXPECT_EQ(row.m_pParent, group);
    EXPECT_EQ(row.m_pHolder, holder);
    EXPECT_EQ(holder->m_pElement, &element);
    EXPECT_EQ(holder->m_pWidget, &widget);
    EXPECT_EQ(holder->m_iKind, CInspectorView::eHolderControl);
    EXPECT_EQ(holder->m_pRequest->m_iMin, 3);
    EXPECT_EQ(view.m_setHolders.count(holder), 1u);
    EXPECT_EQ(view.m_setControlHolders.count(holder), 1u);
    EXPECT_EQ(RectOf(*holder), (sRect{0, 0, 0, 0}));
}

TEST(Tree, TakesNullLabelsAndRequests)
{
    CLayoutPanel panel;
    CRecordingWidget widget(panel.m_log);
    const CHolder* holder = panel.m_view.AddElement(nullptr, &widget, nullptr, nullptr, nullptr);
    EXPECT_EQ(panel.Node().m_sName, "");
    EXPECT_EQ(panel.Node().m_pParent, nullptr);
    EXPECT_EQ(holder->m_pRequest, nullptr);
    EXPECT_EQ(holder->m_pElement, nullptr);
    panel.m_view.RemoveAll();
}

TEST(Tree, TakesControlsIntoContainersWithoutNodesOfTheirOwn)
{
    CLayoutPanel panel;
    CNode* container = panel.AddContainer("line");
    panel.m_log.Clear();
    CHolder* first = panel.AddControl("first", 10, container);
    EXPECT_EQ(panel.m_log.Take(), (CCalls{"view.ParentControlToInspector(first)", "first.Show()",
                                          "view.UpdateView()"}));
    auto request = CLayoutPanel::Absolute(3);
    CHolder* second = panel.AddControl("second", 10, container, &request);
    EXPECT_EQ(container->m_pHolder->m_lChildren, (std::list<CHolder*>{first, second}));
    EXPECT_TRUE(container->m_lChildren.empty());
    EXPECT_EQ(panel.m_view.m_lElements.size(), 1u);
    EXPECT_EQ(first->m_iKind, CInspectorView::eHolderControl);
    EXPECT_EQ(second->m_pRequest->m_iMin, 3);
    EXPECT_EQ(panel.m_view.m_setControlHolders, (std::set<CHolder*>{first, second}));
    EXPECT_EQ(panel.m_view.m_setHolders, (std::set<CHolder*>{first, second, container->m_pHolder}));
}

TEST(Tree, TakesARowForAContainerAllTheSame)
{
    // A caller error, but a defined one.
    CLayoutPanel panel;
    CHolder* row = panel.AddControl("row", 10);
    CHolder* inside = panel.AddControl("inside", 10, &panel.Node());
    EXPECT_EQ(panel.m_view.m_lElements.size(), 1u);
    EXPECT_TRUE(panel.Node().m_lChildren.empty());
    EXPECT_EQ(row->m_lChildren, std::list<CHolder*>{inside});
    EXPECT_EQ(row->m_iKind, CInspectorView::eHolderControl);
    EXPECT_EQ(panel.m_view.m_setControlHolders, (std::set<CHolder*>{row, inside}));
    panel.m_view.ResizeInspector(100, 100);
    EXPECT_EQ(RectOf(*row), (sRect{5, 5, 90, 20}));
    EXPECT_EQ(RectOf(*inside), (sRect{0, 0, 0, 0}));
}

TEST(Tree, IsCompleteWhenTheToolkitIsAskedToTakeTheWidget)
{
    CCallLog log;
    CRecordingWidget row(log);
    CRecordingWidget inLine(log);
    CWatchingView view(log);
    view.AddElement(nullptr, &row, "row", nullptr, nullptr);
    EXPECT_TRUE(view.m_bFoundWhenParented);
    EXPECT_EQ(view.m_ulNodesWhenParented, 1u);
    view.m_bFoundWhenParented = false;
    CNode* line = view.AddSingleLineContainer("line", nullptr, nullptr);
    view.AddElement(nullptr, &inLine, "", nullptr, line);
    EXPECT_TRUE(view.m_bFoundWhenParented);
}

TEST(Tree, KeepsTheAddressesOfItsNodes)
{
    CLayoutPanel panel;
    CNode* first = panel.AddGroup("first");
    CNode* inner = panel.AddGroup("inner", first);
    for (int i = 0; i < 100; ++i)
    {
        panel.AddGroup("more", first);
        panel.AddControl("more", 10);
    }
    EXPECT_EQ(&panel.Node(), first);
    EXPECT_EQ(&first->m_lChildren.front(), inner);
    EXPECT_EQ(inner->m_pParent, first);
}

TEST(Tree, MakesHoldersThatTheViewOwns)
{
    CLayoutPanel panel;
    CHolder* holder = panel.m_view.CreateNewHolder();
    EXPECT_EQ(panel.m_view.m_setHolders.count(holder), 1u);
    EXPECT_TRUE(panel.m_view.m_setControlHolders.empty());
    EXPECT_EQ(holder->m_pRequest, nullptr);
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
}

TEST(Tree, IsEmptiedWithoutTouchingWidgetsOrAskingForAnything)
{
    CLayoutPanel panel;
    auto request = CLayoutPanel::Absolute(3);
    panel.AddControl("a", 10, panel.AddContainer("line", panel.AddGroup("group"), &request));
    panel.m_view.ResizeInspector(120, 80);
    panel.m_view.OffsetControls(3, 4);
    panel.m_view.SetPreviewMode(true);
    panel.m_view.ShowContent(false, false);
    panel.m_log.Clear();
    const int height = panel.m_view.GetCurrentContentHeight();
    panel.m_view.RemoveAll();
    EXPECT_EQ(panel.m_log.Take(), CCalls{"view.RemoveAll()"});
    EXPECT_TRUE(panel.m_view.m_lElements.empty());
    EXPECT_TRUE(panel.m_view.m_setHolders.empty());
    EXPECT_TRUE(panel.m_view.m_setControlHolders.empty());
    EXPECT_EQ(panel.m_view.m_iInspectorWidth, 120);
    EXPECT_EQ(panel.m_view.m_iInspectorHeight, 80);
    EXPECT_EQ(panel.m_view.GetCurrentContentHeight(), height);
    EXPECT_EQ(panel.m_view.m_iOffsetX, 3);
    EXPECT_EQ(panel.m_view.m_iOffsetY, 4);
    EXPECT_TRUE(panel.m_view.m_bPreview);
    EXPECT_FALSE(panel.m_view.m_bContentShown);
    panel.AddControl("b", 10);
    EXPECT_EQ(panel.m_view.m_setControlHolders.size(), 1u);
    EXPECT_EQ(panel.m_log.Take(),
              (CCalls{"view.ParentControlToInspector(b)", "b.Show()", "view.UpdateView()"}));
}

TEST(Tree, LosesItsEmptyGroups)
{
    CLayoutPanel panel;
    panel.AddGroup("empty");
    panel.m_log.Clear();
    panel.m_view.RemoveEmptyGroups();
    EXPECT_TRUE(panel.m_view.m_lElements.empty());
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
    panel.m_view.RemoveEmptyGroups();
}

TEST(Tree, LosesGroupsOfEmptyGroupsInOneCall)
{
    CLayoutPanel panel;
    CNode* outer = panel.AddGroup("outer");
    panel.AddGroup("inner", panel.AddGroup("middle", outer));
    panel.AddGroup("another", outer);
    CNode* full = panel.AddGroup("full");
    panel.AddGroup("empty", full);
    panel.AddControl("row", 10, full);
    panel.AddGroup("last", full);
    panel.m_view.RemoveEmptyGroups();
    ASSERT_EQ(panel.m_view.m_lElements.size(), 1u);
    EXPECT_EQ(&panel.Node(), full);
    ASSERT_EQ(full->m_lChildren.size(), 1u);
    EXPECT_EQ(full->m_lChildren.front().m_sName, "row");
}

TEST(Tree, KeepsRowsAndContainersWithoutControls)
{
    CLayoutPanel panel;
    CNode* group = panel.AddGroup("group");
    CNode* line = panel.AddContainer("line", group);
    panel.m_view.RemoveEmptyGroups();
    ASSERT_EQ(panel.m_view.m_lElements.size(), 1u);
    EXPECT_EQ(&group->m_lChildren.front(), line);
    EXPECT_EQ(panel.m_view.m_setHolders.size(), 1u);
}

TEST(Tree, GivesARequestBackWhateverItsSizeIs)
{
    struct sLarge : CLayoutPanel::CRequest
    {
        int m_aiMore[100] = {};
    };
    CLayoutPanel panel;
    panel.AddControl("a", 10)->m_pRequest = new sLarge;
    panel.m_view.RemoveAll();
    EXPECT_TRUE(panel.m_view.m_setHolders.empty());
}
