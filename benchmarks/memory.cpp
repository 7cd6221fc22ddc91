#include "task.h"

#include <QApplication>

#include <malloc.h>

#include <cstdio>
#include <fstream>
#include <string>

// What a filled and painted panel holds: memory TWIN ROWS prints heap and resident bytes per row.

namespace
{

std::size_t HeapBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

std::size_t ResidentBytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
    {
        if (line.compare(0, 6, "VmRSS:") == 0)
            return std::stoul(line.substr(6)) * 1024;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return 1;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const CRowPlan small = MakeRowPlan(20);
    const CRowPlan plan = MakeRowPlan(std::stoi(argv[2]));
    for (const sTwin& twin : AllTwins())
    {
        if (twin.m_sName != argv[1])
            continue;
        // What the process loads once, such as fonts and styles, is not of the rows.
        std::unique_ptr<CPanel> warm = twin.m_pMake();
        warm->Fill(small);
        warm->Paint();
        std::unique_ptr<CPanel> panel = twin.m_pMake();
        const std::size_t heap = HeapBytes();
        const std::size_t resident = ResidentBytes();
        panel->Fill(plan);
        panel->Paint();
        const auto rows = static_cast<std::size_t>(CountRows(plan));
        std::printf("%zu %zu\n", (HeapBytes() - heap) / rows, (ResidentBytes() - resident) / rows);
        return 0;
    }
    return 1;
}
