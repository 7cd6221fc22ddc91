#pragma once

#include <QRegion>

class QWidget;

// How the controls of a panel ask for repaints. The toolkit looks at all siblings of every control
// that asks, so what nobody will see must not ask, and what is painted anyway need not.

/// While one lives, a panel is about to paint a region, its controls included.
class CPaintAhead
{
public:
    CPaintAhead(const QWidget* content, const QRegion& region);
    ~CPaintAhead();
    CPaintAhead(const CPaintAhead&) = delete;
    CPaintAhead& operator=(const CPaintAhead&) = delete;

    bool Covers(const QWidget& control) const;

    /// Whether some panel is. Its window goes through its children then, and must find them all
    /// alive in the end.
    static bool IsUnderWay();

private:
    const QWidget* m_pContent;
    QRegion m_region;
    const CPaintAhead* m_pOuter;
};

/// Has a control painted anew, unless nobody sees it or it is about to be painted.
void RepaintControl(QWidget& control);
