#include "heldmemory.h"
#include "toolkit.h"

#include <algorithm>

// What a filled and painted panel holds: TWIN ROWS prints heap and resident bytes per row; for no
// rows, those of the panel.

namespace
{

int MeasurePanel(int argc, char** argv)
{
    if (argc < 3)
        return 1;
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
        held.Print(std::max(1, CountRows(plan)));
        return 0;
    }
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    return RunWithToolkit(argc, argv, MeasurePanel);
}
