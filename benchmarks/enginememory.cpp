#include "enginepanel.h"
#include "heldmemory.h"

// What the layout engine alone holds, without the widgets that it places: ROWS prints heap and
// resident bytes per row.

int main(int argc, char** argv)
{
    if (argc < 2)
        return 1;
    const int rows = std::stoi(argv[1]);
    // The widgets are made first, so that only what the engine makes counts.
    std::vector<std::unique_ptr<CFakeWidget>> widgets = MakeFakeWidgets(rows);
    const CHeld held;
    const CFakeView view(rows, std::move(widgets));
    held.Print(rows);
    return 0;
}
