#include "inuse.h"

#include "focusmove.h"

#include <QTimer>
#include <QWidget>

namespace
{

constexpr int g_iPatience = 50; // milliseconds

} // namespace

bool PutOffDeletion(QWidget& editor, const int& depth)
{
    if (depth == 0 && !CFocusMove::IsUnderWay())
        return false;
    // The toolkit does not post the same deletion a second time.
    QTimer::singleShot(g_iPatience, &editor,
                       [&editor, &depth]
                       {
                           if (!PutOffDeletion(editor, depth))
                               delete &editor;
                       });
    return true;
}
