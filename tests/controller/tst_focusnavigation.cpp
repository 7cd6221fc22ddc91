#include <support/recordinghost.h>

#include <gtest/gtest.h>

namespace
{

using CRow = CRecordingHost::sRow;

/// A panel with every kind of node, whose controls stand in the order a to g:
///
///     a, group { b, container { c d e }, group { f } }, empty group, g
class FocusNavigation : public testing::Test
{
protected:
    void SetUp() override
    {
        Add("a", nullptr);
        auto* outer = m_host.m_pView->AddGroup("outer", nullptr);
        Add("b", outer);
        auto* container = m_host.m_pView->AddSingleLineContainer("line", nullptr, outer);
        Add("c", container);
        Add("d", container);
        Add("e", container);
        Add("f", m_host.m_pView->AddGroup("inner", outer));
        m_host.m_pView->AddGroup("empty", nullptr);
        Add("g", nullptr);
        m_host.m_log.Clear();
    }

    void Add(const std::string& name, CRecordingHost::CNode* parent)
    {
        m_vRows.push_back(m_host.AddRow(name, parent));
    }

    CCalls Next(CInspectorDataWidget* from)
    {
        m_host.m_log.Clear();
        m_host.m_pController->GiveFocusToNextElement(from);
        return m_host.m_log.Take();
    }

    CCalls Previous(CInspectorDataWidget* from)
    {
        m_host.m_log.Clear();
        m_host.m_pController->GiveFocusToPrevElement(from);
        return m_host.m_log.Take();
    }

    static CCalls Editing(const std::string& name)
    {
        return {"view.EnsureVisible(" + name + ".widget)", name + ".widget.StartEditing()"};
    }

    CRecordingHost m_host;
    std::vector<CRow> m_vRows;
};

const std::string g_names = "abcdefg";

} // namespace

TEST_F(FocusNavigation, StopsWithoutAnEditAtARowThatHasNoControl)
{
    m_host.m_pView->AddGroup("row", nullptr)->m_iKind = CInspectorView::eElementRow;
    EXPECT_EQ(Next(m_vRows.back().m_pWidget), CCalls{});
    EXPECT_EQ(Previous(m_vRows.front().m_pWidget), CCalls{});
}

TEST_F(FocusNavigation, MovesForwardThroughAllControlsAndAround)
{
    for (std::size_t i = 0; i < 7; ++i)
        EXPECT_EQ(Next(m_vRows[i].m_pWidget), Editing(g_names.substr((i + 1) % 7, 1)));
}

TEST_F(FocusNavigation, MovesBackwardThroughAllControlsAndAround)
{
    for (std::size_t i = 0; i < 7; ++i)
        EXPECT_EQ(Previous(m_vRows[i].m_pWidget), Editing(g_names.substr((i + 6) % 7, 1)));
}

TEST_F(FocusNavigation, GoesToTheEndsFromAWidgetThatIsNotInTheView)
{
    CRecordingWidget stranger(m_host.m_log);
    EXPECT_EQ(Next(&stranger), Editing("a"));
    EXPECT_EQ(Previous(&stranger), Editing("g"));
    EXPECT_EQ(Next(nullptr), Editing("a"));
    EXPECT_EQ(Previous(nullptr), Editing("g"));
}

TEST_F(FocusNavigation, StopsAtReadOnlyRows)
{
    m_vRows[1].m_pElement->SetReadOnly(true);
    EXPECT_EQ(Next(m_vRows[0].m_pWidget), Editing("b"));
}

TEST_F(FocusNavigation, IgnoresPreviewModeAndHiddenContent)
{
    m_host.m_pController->SetPreviewMode(true);
    m_host.m_pView->ShowContent(false, false);
    EXPECT_EQ(Next(m_vRows[0].m_pWidget), Editing("b"));
    EXPECT_EQ(Previous(m_vRows[0].m_pWidget), Editing("g"));
}

TEST_F(FocusNavigation, StaysWithASingleRow)
{
    CRecordingHost host;
    const CRow only = host.AddRow("only");
    host.m_log.Clear();
    host.m_pController->GiveFocusToNextElement(only.m_pWidget);
    host.m_pController->GiveFocusToPrevElement(only.m_pWidget);
    EXPECT_EQ(host.m_log.Take(), Editing("only") + Editing("only"));
}

TEST_F(FocusNavigation, CallsNothingInAnEmptyTree)
{
    CRecordingHost host;
    host.m_pController->GiveFocusToNextElement(nullptr);
    host.m_pController->GiveFocusToPrevElement(nullptr);
    host.m_pView->AddGroup("group", host.m_pView->AddGroup("group", nullptr));
    host.m_log.Clear();
    host.m_pController->GiveFocusToNextElement(nullptr);
    host.m_pController->GiveFocusToPrevElement(m_vRows[0].m_pWidget);
    EXPECT_EQ(host.m_log.Take(), CCalls{});
}

TEST_F(FocusNavigation, StopsAtAnEmptyContainerAndDoesNothingThere)
{
    CRecordingHost host;
    const CRow a = host.AddRow("a");
    host.m_pView->AddSingleLineContainer("empty", nullptr, nullptr);
    const CRow b = host.AddRow("b");
    host.m_log.Clear();
    host.m_pController->GiveFocusToNextElement(a.m_pWidget);
    host.m_pController->GiveFocusToPrevElement(b.m_pWidget);
    EXPECT_EQ(host.m_log.Take(), CCalls{});
    host.m_pController->GiveFocusToNextElement(b.m_pWidget);
    host.m_pController->GiveFocusToPrevElement(a.m_pWidget);
    EXPECT_EQ(host.m_log.Take(), Editing("a") + Editing("b"));
}

TEST_F(FocusNavigation, WrapsOntoAnEmptyContainerAtTheEnds)
{
    CRecordingHost host;
    host.m_pView->AddSingleLineContainer("first", nullptr, nullptr);
    const CRow a = host.AddRow("a");
    host.m_pView->AddSingleLineContainer("last", nullptr, nullptr);
    CRecordingWidget stranger(host.m_log);
    host.m_log.Clear();
    host.m_pController->GiveFocusToNextElement(&stranger);
    host.m_pController->GiveFocusToPrevElement(&stranger);
    host.m_pController->GiveFocusToNextElement(a.m_pWidget);
    host.m_pController->GiveFocusToPrevElement(a.m_pWidget);
    EXPECT_EQ(host.m_log.Take(), CCalls{});
}

TEST_F(FocusNavigation, FollowsTheTreeAsItGrows)
{
    EXPECT_EQ(Next(m_vRows[6].m_pWidget), Editing("a"));
    Add("h", nullptr);
    EXPECT_EQ(Next(m_vRows[6].m_pWidget), Editing("h"));
    auto* line = m_host.m_pView->AddSingleLineContainer("line", nullptr, nullptr);
    EXPECT_EQ(Next(m_vRows[7].m_pWidget), CCalls{});
    Add("i", line);
    EXPECT_EQ(Next(m_vRows[7].m_pWidget), Editing("i"));
    EXPECT_EQ(Next(m_vRows[8].m_pWidget), Editing("a"));
}

TEST_F(FocusNavigation, FollowsATreeThatTheHostReorders)
{
    EXPECT_EQ(Next(m_vRows[0].m_pWidget), Editing("b"));
    m_host.m_pView->GetListElements()->reverse();
    EXPECT_EQ(Next(m_vRows[6].m_pWidget), Editing("b"));
    EXPECT_EQ(Next(m_vRows[5].m_pWidget), Editing("a"));
    EXPECT_EQ(Next(m_vRows[0].m_pWidget), Editing("g"));
}

TEST_F(FocusNavigation, StartsFreshAfterTheViewWasEmptied)
{
    EXPECT_EQ(Next(m_vRows[0].m_pWidget), Editing("b"));
    m_host.m_pView->RemoveAll();
    EXPECT_EQ(Next(m_vRows[0].m_pWidget), CCalls{});
    m_host.m_pView->AddElement(m_vRows[3].m_pElement, m_vRows[3].m_pWidget, "", nullptr, nullptr);
    EXPECT_EQ(Next(m_vRows[0].m_pWidget), Editing("d"));
}

TEST_F(FocusNavigation, StartsAtTheFirstPlaceOfAWidgetForwardAndAtTheLastBackward)
{
    // Against the rules the first widget stands in a second place, between d and e.
    CRecordingHost host;
    std::vector<CRow> rows;
    for (const char* name : {"a", "b", "c", "d"})
        rows.push_back(host.AddRow(name));
    host.m_pView->AddElement(rows[1].m_pElement, rows[1].m_pWidget, "again", nullptr, nullptr);
    const CRow e = host.AddRow("e");
    host.m_log.Clear();
    host.m_pController->GiveFocusToNextElement(rows[1].m_pWidget);
    EXPECT_EQ(host.m_log.Take(), Editing("c"));
    host.m_pController->GiveFocusToPrevElement(rows[1].m_pWidget);
    EXPECT_EQ(host.m_log.Take(), Editing("d"));
    host.m_pController->GiveFocusToPrevElement(e.m_pWidget);
    EXPECT_EQ(host.m_log.Take(), Editing("b"));
}

TEST_F(FocusNavigation, IsWhatTheEndOfAnEditLeadsTo)
{
    m_vRows[4].m_pElement->OnEndEditing(m_vRows[4].m_pWidget, CInspectorDataElement::eEndEditNext);
    EXPECT_EQ(m_host.m_log.Take(), CCalls{"e.element.OnEndEditing(2)"} + Editing("f"));
    m_vRows[2].m_pElement->OnEndEditing(m_vRows[2].m_pWidget,
                                        CInspectorDataElement::eEndEditPrevious);
    EXPECT_EQ(m_host.m_log.Take(), CCalls{"c.element.OnEndEditing(3)"} + Editing("b"));
}

#ifndef NDEBUG
using FocusNavigationDeathTest = FocusNavigation;

TEST_F(FocusNavigationDeathTest, NamesTheMissingView)
{
    m_host.m_pController->SetInspectorView(nullptr);
    EXPECT_DEATH(m_host.m_pController->GiveFocusToNextElement(nullptr),
                 "CInspectorController::GiveFocusToNextElement: no view is set");
    EXPECT_DEATH(m_host.m_pController->GiveFocusToPrevElement(nullptr),
                 "CInspectorController::GiveFocusToPrevElement: no view is set");
}
#endif
