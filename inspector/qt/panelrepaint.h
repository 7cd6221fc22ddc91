#pragma once

#include <QPoint>
#include <QPointer>
#include <QRegion>
#include <QSize>
#include <QWidget>

// How the controls of a panel ask for repaints. The toolkit looks at all siblings of every control
// that asks, so what nobody will see must not ask, and what is painted anyway need not.

/// While one lives, the controls of a panel are placed and ask for no repaints; the panel is
/// repainted as a whole at its end.
class CWholePlacement
{
public:
    CWholePlacement(QWidget& panel, const QWidget* content);
    ~CWholePlacement();
    CWholePlacement(const CWholePlacement&) = delete;
    CWholePlacement& operator=(const CWholePlacement&) = delete;

private:
    QPointer<QWidget> m_pPanel;
    const QWidget* m_pOuter;
};

/// While one lives, a panel is about to paint a region, its controls included.
class CPaintAhead
{
public:
    CPaintAhead(const QWidget* content, const QRegion& region);
    ~CPaintAhead();
    CPaintAhead(const CPaintAhead&) = delete;
    CPaintAhead& operator=(const CPaintAhead&) = delete;

    bool Covers(const QWidget& control) const;

private:
    const QWidget* m_pContent;
    QRegion m_region;
    const CPaintAhead* m_pOuter;
};

void MoveControl(QWidget& control, const QPoint& place);
void ResizeControl(QWidget& control, const QSize& size);

/// Has a control painted anew, unless nobody sees it or it is about to be painted.
void RepaintControl(QWidget& control);
