#pragma once

#include "toolkit.h"

#include <memory>
#include <string>
#include <vector>

/// What is timed, each task alone.
struct sTask
{
    enum ePanel
    {
        eEmptyPanel,  ///< a new, empty panel each time
        eNewNames,    ///< the same, and rows with names that the process did not see before
        eFilledPanel, ///< a new, filled and painted panel each time
        eSamePanel,   ///< the filled panel of the last time
    };

    std::string m_sName;
    ePanel m_ePanel;
    /// Called in turn with rising numbers.
    void (*m_pAct)(CPanel& panel, const CRowPlan& plan, int round);
    /// How often it is done for one figure, which is divided by it.
    int m_iRounds;
};

const std::vector<sTask>& AllTasks();

/// Provides a task with the panel it needs, as often as it is asked.
class CTaskPanel
{
public:
    CTaskPanel(const sTask& task, const sTwin& twin, CRowPlan plan);

    /// To be called before each round, outside of what is timed.
    void Prepare();
    void Act();

private:
    const sTask& m_rTask;
    const sTwin& m_rTwin;
    CRowPlan m_plan;
    std::unique_ptr<CPanel> m_pPanel;
    int m_iRound = 0;
};
