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

    /// Hides the editor. The owner's window has the keyboard again, at the place that had it
    /// before, and the editor is nobody's child.
    void Hide();

private:
    void FloatIn(QWidget& window, const QRect& rect);

    QWidget& m_rEditor;
    QPointer<QWidget> m_pFocusBefore;
    COutsidePress m_OutsidePress;
};
