#pragma once

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QRegion>
#include <QSize>
#include <QWidget>

#include <typeinfo>
#include <vector>

/// While one lives, the controls of a panel are placed, and ask for no repaints: the panel is
/// repainted as a whole at its end, unless its pixels were moved instead.
///
/// A panel places all of its controls for every pixel that it is scrolled by, most of them out of
/// sight. What the toolkit would do for each of them on its own is left out: marking parts of the
/// screen, searching the panel for what its controls cover, and events that nobody waits for. A
/// control that is out of sight before and after has its events when it comes into sight, as the
/// toolkit has it for one that is not shown.
class CWholePlacement
{
public:
    /// \p shift is how far every control is about to move down; 0 when they are placed anew.
    CWholePlacement(QWidget& panel, const QWidget* content, int shift = 0);
    ~CWholePlacement();
    CWholePlacement(const CWholePlacement&) = delete;
    CWholePlacement& operator=(const CWholePlacement&) = delete;

    /// Moves the pixels of an area of the panel by the shift and has only what came into sight
    /// painted. Returns false, with nothing done, when they would not be what a repaint shows.
    bool MovePixels(const QRect& area);

    /// The running placement of a control; null when there is none.
    static CWholePlacement* Of(const QWidget& control);

    void Move(QWidget& control, const QPoint& place, bool isPlain);
    void Resize(QWidget& control, const QSize& size, bool isPlain);

private:
    bool IsSeen(const QRect& area) const;
    /// Takes note of a control in sight that is about to be moved.
    void NoteMove(const QWidget& control, const QPoint& way, bool isQuiet);
    /// Sends a control the events of a quiet change, or takes note that it is to be revealed.
    void TellControl(QWidget& control, const QRect& before, bool isPlain);

    QPointer<QWidget> m_pPanel;
    const QWidget* const m_pContent;
    CWholePlacement* const m_pOuter;
    const int m_iShift;
    bool m_bShifted = true; ///< all that is in sight moved by the shift
    bool m_bPixelsMoved = false;
    int m_iMoves = 0;
    std::vector<QPointer<QWidget>> m_vRevealed; ///< if they are in sight in the end
    QRegion m_regionDrawnAnew; ///< of controls that may look different where they are now
};

/// Moves a control of a panel. \p type is the class that does: a control of a derived class may
/// handle events of its own.
void MoveControl(QWidget& control, const QPoint& place, const std::type_info& type);
void ResizeControl(QWidget& control, const QSize& size, const std::type_info& type);
