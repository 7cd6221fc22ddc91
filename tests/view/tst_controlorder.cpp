#include <support/layoutpanel.h>

#include <gtest/gtest.h>

#include <functional>
#include <utility>

// Controls are placed in the order of their holders' addresses, also when the host adds and removes
// rows from inside of it.

namespace
{

class CActingWidget : public CRecordingWidget
{
public:
    using CRecordingWidget::CRecordingWidget;

    void MoveWidget(int x, int y) override
    {
        CRecordingWidget::MoveWidget(x, y);
        ++m_iMoves;
        if (const auto act = std::exchange(m_fnMoved, nullptr))
            act();
    }

    int m_iMoves = 0;
    std::function<void()> m_fnMoved;
};

class ControlOrder : public testing::Test
{
protected:
    using CHolder = CInspectorView::sInspectorHolder;

    ControlOrder()
    {
        for (int i = 0; i < 40; ++i)
            Add();
        m_panel.m_view.ResizeInspector(100, 80);
        for (auto& widget : m_vWidgets)
            widget->m_iMoves = 0;
    }

    CHolder* Add()
    {
        m_vWidgets.push_back(std::make_unique<CActingWidget>(m_panel.m_log, "row", 30, 20));
        return m_panel.m_view.AddElement(nullptr, m_vWidgets.back().get(), "row", nullptr, nullptr);
    }

    static CActingWidget& WidgetOf(const CHolder& holder)
    {
        return static_cast<CActingWidget&>(*holder.m_pWidget);
    }

    CLayoutPanel m_panel;
    std::vector<std::unique_ptr<CActingWidget>> m_vWidgets;
};

} // namespace

TEST_F(ControlOrder, RowsThatAreAddedMeanwhileAreMetIfTheyStandAhead)
{
    CHolder* acting = *std::next(m_panel.m_view.m_setControlHolders.begin(), 20);
    std::set<CHolder*> added;
    WidgetOf(*acting).m_fnMoved = [&]
    {
        for (int i = 0; i < 30; ++i)
            added.insert(Add());
    };
    m_panel.m_view.OffsetControls(0, 10);
    ASSERT_EQ(m_panel.m_view.m_setControlHolders.size(), 70U);
    for (CHolder* holder : m_panel.m_view.m_setControlHolders)
    {
        const bool isMet = added.count(holder) == 0 || std::less<>()(acting, holder);
        EXPECT_EQ(WidgetOf(*holder).m_iMoves, isMet ? 1 : 0);
    }
}

TEST_F(ControlOrder, ALayoutFromInsideOfAnotherPlacesEveryControl)
{
    CHolder* acting = *std::next(m_panel.m_view.m_setControlHolders.begin(), 20);
    WidgetOf(*acting).m_fnMoved = [&]
    {
        Add();
        m_panel.m_view.RecomputeLayout();
    };
    m_panel.m_view.RecomputeLayout();
    for (CHolder* holder : m_panel.m_view.m_setControlHolders)
    {
        EXPECT_GE(WidgetOf(*holder).m_iMoves, 1);
        EXPECT_LE(WidgetOf(*holder).m_iMoves, 2);
    }
}

TEST_F(ControlOrder, AViewThatIsEmptiedMeanwhileMovesNobodyElse)
{
    CHolder* acting = *std::next(m_panel.m_view.m_setControlHolders.begin(), 20);
    WidgetOf(*acting).m_fnMoved = [&] { m_panel.m_view.RemoveAll(); };
    m_panel.m_view.OffsetControls(0, 10);
    int moves = 0;
    for (const auto& widget : m_vWidgets)
        moves += widget->m_iMoves;
    EXPECT_EQ(moves, 21);
}

TEST_F(ControlOrder, AHolderThatAHostsViewTakesOutIsNotMovedAnyMore)
{
    m_panel.m_view.OffsetControls(0, 10);
    CHolder* holder = *std::next(m_panel.m_view.m_setControlHolders.begin(), 20);
    m_panel.m_view.m_setControlHolders.erase(holder);
    m_panel.m_view.OffsetControls(0, 20);
    EXPECT_EQ(WidgetOf(*holder).m_iMoves, 1);
}
