#include "enginepanel.h"
#include "task.h"

#include <QApplication>

#include <malloc.h>

#include <cstdio>
#include <fstream>
#include <string>

// What a filled and painted panel holds: memory TWIN ROWS prints heap and resident bytes per row.
// The twin "engine" is the layout engine alone, without the widgets that it places.

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

/// Heap and resident bytes that were added since.
class CHeld
{
public:
    void Print(int rows) const
    {
        const auto count = static_cast<std::size_t>(rows);
        std::printf("%zu %zu\n", (HeapBytes() - m_ulHeap) / count,
                    (ResidentBytes() - m_ulResident) / count);
    }

private:
    std::size_t m_ulHeap = HeapBytes();
    std::size_t m_ulResident = ResidentBytes();
};

void MeasureEngine(int rows)
{
    // The widgets are made first, so that only what the engine makes counts.
    std::vector<std::unique_ptr<CFakeWidget>> widgets = MakeFakeWidgets(rows);
    const CHeld held;
    const CFakeView view(rows, std::move(widgets));
    held.Print(rows);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return 1;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (std::string(argv[1]) == "engine")
    {
        MeasureEngine(std::stoi(argv[2]));
        return 0;
    }
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
        const CHeld held;
        panel->Fill(plan);
        panel->Paint();
        held.Print(CountRows(plan));
        return 0;
    }
    return 1;
}
