// The list of rows and runs that the width pass works on.

#include <support/layoutpanel.h>

#include <gtest/gtest.h>

namespace
{

using CNode = CLayoutPanel::CNode;

class WorkList : public testing::Test
{
protected:
    /// The names of the entries; "top" for the run of the top level.
    CCalls Names(CNode* parent = nullptr)
    {
        std::list<CNode*> list;
        m_panel.m_view.recBuildListElementToComputeWidth(parent, list);
        CCalls names;
        for (const CNode* node : list)
            names.push_back(node ? node->m_sName : "top");
        return names;
    }

    CLayoutPanel m_panel;
};

} // namespace

TEST_F(WorkList, IsEmptyForAnEmptyTree)
{
    EXPECT_EQ(Names(), CCalls{});
    m_panel.AddGroup("group");
    EXPECT_EQ(Names(), CCalls{});
}

TEST_F(WorkList, HoldsARowThatIsAloneAtItsLevel)
{
    m_panel.AddControl("row", 10);
    EXPECT_EQ(Names(), CCalls{"row"});
}

TEST_F(WorkList, HoldsTheParentOfSeveralRowsInTheirPlace)
{
    m_panel.AddControl("a", 10);
    m_panel.AddContainer("b");
    EXPECT_EQ(Names(), CCalls{"top"});
}

TEST_F(WorkList, CountsContainersAsRowsAndGroupsNot)
{
    m_panel.AddGroup("group");
    m_panel.AddContainer("line");
    m_panel.AddGroup("another");
    EXPECT_EQ(Names(), CCalls{"line"});
}

TEST_F(WorkList, PutsRunsAtTheFrontAndRowsAtTheBack)
{
    m_panel.AddControl("alone", 10, m_panel.AddGroup("one"));
    CNode* two = m_panel.AddGroup("two");
    m_panel.AddControl("a", 10, two);
    CNode* inner = m_panel.AddGroup("inner", two);
    m_panel.AddControl("b", 10, two);
    m_panel.AddControl("c", 10, inner);
    m_panel.AddControl("d", 10, inner);
    m_panel.AddControl("last", 10);
    EXPECT_EQ(Names(), (CCalls{"inner", "two", "alone", "last"}));
    m_panel.AddControl("another", 10);
    EXPECT_EQ(Names(), (CCalls{"inner", "two", "top", "alone"}));
}

TEST_F(WorkList, StartsAtAnyGroup)
{
    CNode* group = m_panel.AddGroup("group");
    m_panel.AddControl("a", 10, group);
    m_panel.AddControl("b", 10, group);
    m_panel.AddControl("c", 10, m_panel.AddGroup("inner", group));
    m_panel.AddControl("outside", 10);
    EXPECT_EQ(Names(group), (CCalls{"group", "c"}));
}

TEST_F(WorkList, AppendsToWhatIsThere)
{
    m_panel.AddControl("row", 10);
    std::list<CNode*> list = {nullptr};
    m_panel.m_view.recBuildListElementToComputeWidth(nullptr, list);
    EXPECT_EQ(list, (std::list<CNode*>{nullptr, &m_panel.Node()}));
}

TEST_F(WorkList, HoldsEveryRowWhenLabelsAreNotAligned)
{
    m_panel.m_view.m_bAlignLabels = false;
    m_panel.AddControl("a", 10);
    CNode* group = m_panel.AddGroup("group");
    m_panel.AddControl("b", 10, group);
    m_panel.AddContainer("c", group);
    m_panel.AddControl("d", 10);
    EXPECT_EQ(Names(), (CCalls{"a", "b", "c", "d"}));
}

TEST_F(WorkList, HoldsEveryNodeInPreviewModeWithParentsFirst)
{
    m_panel.m_view.SetPreviewMode(true);
    m_panel.AddControl("a", 10);
    CNode* group = m_panel.AddGroup("group");
    m_panel.AddControl("b", 10, group);
    m_panel.AddControl("c", 10, m_panel.AddGroup("inner", group));
    m_panel.AddGroup("empty", group);
    m_panel.AddContainer("line");
    m_panel.AddControl("in the line", 10, &m_panel.Node(2));
    EXPECT_EQ(Names(), (CCalls{"a", "group", "b", "inner", "c", "empty", "line"}));
    m_panel.m_view.m_bAlignLabels = false;
    EXPECT_EQ(Names(), (CCalls{"a", "group", "b", "inner", "c", "empty", "line"}));
}
