#pragma once

#include "outsidepress.h"

#include <QPointer>
#include <QRect>

class QWidget;

/// Where a shared editor floats, and as what.
///
/// Where the platform lets a tool-tip window have the keyboard, the editor is one: it covers its
/// rectangle exactly, wherever that is. Elsewhere (on Wayland) it floats as a child of the owner's
/// window and is told by QEvent::WindowDeactivate when it is left. The environment variable
/// INSPECTOR_EDITOR, "window" or "child", overrides the platform.
class CEditorPlacement
{
public:
    explicit CEditorPlacement(QWidget& editor);

    /// Shows the editor over a rectangle in global coordinates, ready to take the focus.
    void Show(QWidget& owner, const QRect& rect);

    /// Where a list drops down from an area in the owner's coordinates; in global coordinates. A
    /// list that floats in a window is kept in it as others are on the desktop, and cut to it.
    static QRect ListRect(const QWidget& owner, const QRect& area, int wantedHeight);

    /// Hides the editor, which is nobody's child then. In a window that it floated in, the place
    /// that had the focus before has it again.
    void Hide();

    /// The user ended the edit by a key or a choice: after a tool-tip window, the owner's window
    /// gets the keyboard back, unless the editor was shown again or the host opened a window.
    void ReturnKeyboard();

private:
    void FloatIn(QWidget& window, const QRect& rect);
    void LetPaint();
    int CountOtherWindows() const;

    QWidget& m_rEditor;
    QPointer<QWidget> m_pFocusBefore;
    QPointer<QWidget> m_pOwnerWindow; ///< of a tool-tip window
    int m_iOtherWindows = 0;
    COutsidePress m_OutsidePress;
};
