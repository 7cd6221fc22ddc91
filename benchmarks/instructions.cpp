#include "task.h"

#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

// Runs one task, to be counted by callgrind: instructions TASK ROWS|FILE [TWIN [WARM-UP]].

namespace
{

int RunTask(int argc, char** argv)
{
    if (argc < 3)
        return 1;
    const std::string rows = argv[2];
    const std::string twinName = argc > 3 ? argv[3] : "inspector";
    const int warmUp = argc > 4 ? std::atoi(argv[4]) : 1;
    const bool isNumber = rows.find_first_not_of("0123456789") == std::string::npos;
    const CRowPlan plan = isNumber ? MakeRowPlan(std::stoi(rows)) : ReadRowPlan(rows);
    for (const sTask& task : AllTasks())
    {
        for (const sTwin& twin : AllTwins())
        {
            if (task.m_sName != argv[1] || twin.m_sName != twinName)
                continue;
            CTaskPanel panel(task, twin, plan);
            // What is loaded and cached by the process once is not of the task.
            for (int i = 0; i < warmUp; ++i)
            {
                panel.Prepare();
                panel.Act();
            }
            panel.Prepare();
            CALLGRIND_START_INSTRUMENTATION;
            panel.Act();
            CALLGRIND_STOP_INSTRUMENTATION;
            return 0;
        }
    }
    std::fprintf(stderr, "no such task or twin\n");
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    return RunWithToolkit(argc, argv, RunTask);
}
