#include "task.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <utility>

namespace
{

void Fill(CPanel& panel, const CRowPlan& plan, int)
{
    panel.Fill(plan);
    panel.Paint();
}

void LayOut(CPanel& panel, const CRowPlan&, int round)
{
    panel.SetWidth(g_iPanelWidth + round % 2);
}

void ChangeWidth(CPanel& panel, const CRowPlan& plan, int round)
{
    LayOut(panel, plan, round);
    panel.Paint();
}

void ScrollOneRow(CPanel& panel, const CRowPlan&, int round)
{
    // Down for a while and up again, so that every round moves.
    const int steps = std::min(panel.GetScrollSteps(), 50);
    const int place = steps > 0 ? round % (2 * steps) : 0;
    panel.ScrollTo(place <= steps ? place : 2 * steps - place);
    panel.Paint();
}

void ScrollThrough(CPanel& panel, const CRowPlan&, int)
{
    for (int i = 0; i <= 100; ++i)
    {
        panel.ScrollTo(static_cast<int>(static_cast<long long>(panel.GetScrollSteps()) * i / 100));
        panel.Paint();
    }
}

void ChangeOneValue(CPanel& panel, const CRowPlan&, int round)
{
    panel.ChangeValue(4, round);
    panel.Paint();
}

void ChangeAllValues(CPanel& panel, const CRowPlan&, int round)
{
    panel.ChangeAllValues(round);
    panel.Paint();
}

void TabThrough(CPanel& panel, const CRowPlan&, int)
{
    for (int i = 0; i < panel.GetRowCount(); ++i)
    {
        panel.GoToNextRow();
        panel.Paint();
    }
}

std::vector<int> RowNumbers(int count)
{
    std::vector<int> rows(count);
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

void RemoveInOrder(CPanel& panel, const CRowPlan&, int)
{
    panel.RemoveRows(RowNumbers(panel.GetRowCount()));
}

void RemoveInReverse(CPanel& panel, const CRowPlan&, int)
{
    std::vector<int> rows = RowNumbers(panel.GetRowCount());
    std::reverse(rows.begin(), rows.end());
    panel.RemoveRows(rows);
}

void RemoveAtRandom(CPanel& panel, const CRowPlan&, int)
{
    std::vector<int> rows = RowNumbers(panel.GetRowCount());
    std::shuffle(rows.begin(), rows.end(), std::mt19937(1));
    panel.RemoveRows(rows);
}

void Clear(CPanel& panel, const CRowPlan&, int)
{
    panel.Clear();
}

/// Gives all rows names that no row of the process had, about as long as they are.
void Rename(CRowPlan& plan)
{
    static int calls = 0;
    const std::string beginning = std::to_string(10000 + ++calls);
    for (sPlannedGroup& group : plan)
    {
        for (sPlannedRow& row : group.m_vRows)
            row.m_sName.replace(0, beginning.size(), beginning);
    }
}

} // namespace

const std::vector<sTask>& AllTasks()
{
    static const std::vector<sTask> tasks{
        {"fill", sTask::eEmptyPanel, Fill, 1},
        {"fill-new-names", sTask::eNewNames, Fill, 1},
        {"width", sTask::eSamePanel, ChangeWidth, 10},
        {"layout", sTask::eSamePanel, LayOut, 10},
        {"scroll", sTask::eSamePanel, ScrollOneRow, 20},
        {"scroll-through", sTask::eSamePanel, ScrollThrough, 1},
        {"one-value", sTask::eSamePanel, ChangeOneValue, 50},
        {"all-values", sTask::eSamePanel, ChangeAllValues, 3},
        {"tab-through", sTask::eFilledPanel, TabThrough, 1},
        {"remove-in-order", sTask::eFilledPanel, RemoveInOrder, 1},
        {"remove-in-reverse", sTask::eFilledPanel, RemoveInReverse, 1},
        {"remove-at-random", sTask::eFilledPanel, RemoveAtRandom, 1},
        {"clear", sTask::eFilledPanel, Clear, 1},
    };
    return tasks;
}

CTaskPanel::CTaskPanel(const sTask& task, const sTwin& twin, CRowPlan plan)
    : m_rTask(task), m_rTwin(twin), m_plan(std::move(plan))
{
}

void CTaskPanel::Prepare()
{
    if (m_pPanel && m_rTask.m_ePanel == sTask::eSamePanel)
        return;
    m_pPanel.reset();
    m_pPanel = m_rTwin.m_pMake();
    if (m_rTask.m_ePanel == sTask::eNewNames)
        Rename(m_plan);
    if (m_rTask.m_ePanel <= sTask::eNewNames)
        return;
    m_pPanel->Fill(m_plan);
    // Once for what showing brings about, once for what that asks for.
    m_pPanel->Paint();
    m_pPanel->Paint();
    if (m_rTask.m_ePanel == sTask::eSamePanel)
        Act();
}

void CTaskPanel::Act()
{
    m_rTask.m_pAct(*m_pPanel, m_plan, ++m_iRound);
}
