#pragma once

#include <QPointer>
#include <QWidget>

class CInspectorDataWidget;

/// The time in which a text box or a shared editor tells the host that it lost the focus or that
/// its window did.
///
/// The toolkit is at work then on what was left and on the widget and the window that get the
/// keyboard next, and does not survive their death: what the host removes of them is deleted when
/// the event is over.
class CFocusMove
{
public:
    explicit CFocusMove(const QWidget& left);
    ~CFocusMove();
    CFocusMove(const CFocusMove&) = delete;
    CFocusMove& operator=(const CFocusMove&) = delete;

    /// Whether the toolkit may be at work on the window of a shared editor: while the
    /// focus moves, and as long as the window has the keyboard.
    static bool IsHolding(const QWidget& editor);

    /// Whether one lives.
    static bool IsUnderWay();

private:
    static bool IsHolding(const QWidget* control, const QWidget* part);
    static bool TakeOver(CInspectorDataWidget& widget);

    const QWidget& m_rLeft;
    const QPointer<QWidget> m_pReached; ///< where this move goes; later ones may go elsewhere
    const CFocusMove* const m_pOuter;
};
