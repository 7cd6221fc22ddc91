#include "task.h"

#include <benchmark/benchmark.h>

#include <ctime>
#include <map>
#include <string>

// Every task on every twin at several sizes. What is timed is the processor time of the thread,
// which a busy machine disturbs less than the time of day.

namespace
{

double Seconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void RunTask(benchmark::State& state, const sTask& task, const sTwin& twin, const CRowPlan& plan)
{
    CTaskPanel panel(task, twin, plan);
    for (auto _ : state)
    {
        panel.Prepare();
        const double start = Seconds();
        panel.Act();
        state.SetIterationTime(Seconds() - start);
    }
}

/// A task that takes long at this size is left out: the twin's own way is quadratic, or each step
/// waits for the display.
bool IsTooLong(const sTask& task, const sTwin& twin, int rows)
{
    const bool isTabbing = task.m_sName == "tab-through";
    if (twin.m_sName == "wx")
        return isTabbing && rows > 100;
    const bool isRemovingFromTree = twin.m_sName == "tree" && task.m_sName.rfind("remove", 0) == 0;
    return rows > 10000 && (isTabbing || isRemovingFromTree || twin.m_sName == "form");
}

int RunBenchmarks(int argc, char** argv)
{
    std::map<std::string, CRowPlan> plans;
    for (int rows : {100, 1000, 10000, 100000})
        plans[std::to_string(rows)] = MakeRowPlan(rows);
    plans["gegl"] = ReadRowPlan(CAPTURED_PANEL);
    for (const auto& [size, plan] : plans)
    {
        for (const sTask& task : AllTasks())
        {
            for (const sTwin& twin : AllTwins())
            {
                if (IsTooLong(task, twin, CountRows(plan)))
                    continue;
                const std::string name = task.m_sName + "/" + size + "/" + twin.m_sName;
                benchmark::RegisterBenchmark(name.c_str(),
                                             [&task, &twin, &plan = plan](benchmark::State& state)
                                             { RunTask(state, task, twin, plan); })
                    ->UseManualTime()
                    ->Iterations(task.m_iRounds)
                    ->Unit(benchmark::kMillisecond);
            }
        }
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    return RunWithToolkit(argc, argv, RunBenchmarks);
}
