#include "editorplacement.h"

#include "droprect.h"
#include "panelrepaint.h"
#include "qtcompat.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace
{

QElapsedTimer g_sinceReturn; ///< since some editor gave the keyboard back, if it may be on its way

/// Whether a server and a window manager have their say about the keyboard, now and again later.
bool IsKeyboardNegotiated()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

/// Whether editors float in the window of their owner.
bool FloatsAsChild()
{
    const QByteArray wanted = qgetenv("INSPECTOR_EDITOR");
    if (wanted == "child" || wanted == "window")
        return wanted == "child";
    // A compositor shows a tool-tip window but never gives it the keyboard.
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

CEditorPlacement::CEditorPlacement(QWidget& editor) : m_rEditor(editor), m_OutsidePress(editor)
{
}

void CEditorPlacement::Show(QWidget& owner, const QRect& rect)
{
    // What was left to be said about an earlier place is void.
    QCoreApplication::removePostedEvents(&m_rEditor, QEvent::WindowDeactivate);
    if (!m_rEditor.isWindow())
        Hide();
    if (FloatsAsChild())
    {
        FloatIn(*owner.window(), rect);
        return;
    }
    m_pOwnerWindow = owner.window();
    m_iOtherWindows = CountOtherWindows();
    m_OutsidePress.Watch(nullptr);
    m_rEditor.setAttribute(Qt::WA_NoMousePropagation, false);
    LetPaint();
    m_rEditor.setWindowFlags(Qt::ToolTip);
    // After the flags, a change of which moves a window on platforms that count in its frame.
    m_rEditor.setGeometry(rect);
    const bool isReturned = QGuiApplication::focusWindow() == m_pOwnerWindow->windowHandle();
    if (isReturned && !IsKeyboardNegotiated())
        g_sinceReturn.invalidate();
    m_rEditor.show();
    m_rEditor.activateWindow();
    // Hidden and shown in one event, the window never lost the focus as far as the platform can
    // tell. It will not tell again that the window has it.
    const bool hadFocus = QGuiApplication::focusWindow() == m_rEditor.windowHandle();
    const bool isForgotten = hadFocus && !m_rEditor.isActiveWindow();
    if (isForgotten)
        TakeAsActive(m_rEditor);
    // The last editor gave the keyboard back, which may take effect only now.
    const bool isReturnDue =
        g_sinceReturn.isValid() && !g_sinceReturn.hasExpired(COutsidePress::FallbackTime);
    if (isReturnDue || (isForgotten && IsKeyboardNegotiated()))
        m_OutsidePress.ExpectFallback(*m_pOwnerWindow);
}

void CEditorPlacement::FloatIn(QWidget& window, const QRect& rect)
{
    m_pOwnerWindow = nullptr;
    m_pFocusBefore = window.focusWidget();
    // What the editor ignores must not reach the window below it, as it would not from a window of
    // its own.
    m_rEditor.setAttribute(Qt::WA_NoMousePropagation);
    m_OutsidePress.Watch(&window);
    m_rEditor.setParent(&window, Qt::Widget);
    m_rEditor.setGeometry(QRect(window.mapFromGlobal(rect.topLeft()), rect.size()));
    LetPaint();
    m_rEditor.show();
    m_rEditor.raise();
}

void CEditorPlacement::LetPaint()
{
    const bool isTooEarly = CPaintAhead::IsUnderWay();
    m_rEditor.setUpdatesEnabled(!isTooEarly);
    if (isTooEarly)
        QMetaObject::invokeMethod(
            &m_rEditor, [this] { LetPaint(); }, Qt::QueuedConnection);
}

QRect CEditorPlacement::ListRect(const QWidget& owner, const QRect& area, int wantedHeight)
{
    if (!FloatsAsChild())
        return DropRect(owner, area, wantedHeight, DesktopRect());
    const QWidget& window = *owner.window();
    const QRect bounds(window.mapToGlobal(QPoint(0, 0)), window.size());
    return DropRect(owner, area, wantedHeight, bounds) & bounds;
}

void CEditorPlacement::Hide()
{
    m_OutsidePress.Stop();
    if (m_rEditor.isWindow())
    {
        m_rEditor.hide();
        return;
    }
    // Hidden with the focus, the editor would pass it on to any neighbour.
    const QWidget* focus = m_rEditor.window()->focusWidget();
    const bool hadFocus = focus == &m_rEditor || m_rEditor.isAncestorOf(focus);
    if (hadFocus)
        m_rEditor.clearFocus();
    m_rEditor.hide();
    // A window that is being painted comes back to the children that it began with, wherever they
    // are by then, unless there is nothing to paint.
    m_rEditor.setUpdatesEnabled(false);
    m_rEditor.setParent(nullptr);
    if (hadFocus && m_pFocusBefore)
        m_pFocusBefore->setFocus(Qt::OtherFocusReason);
}

void CEditorPlacement::ReturnKeyboard()
{
    // X servers and window managers leave the keyboard to nobody when a tool-tip window that had it
    // is hidden.
    if (m_pOwnerWindow && m_pOwnerWindow->isVisible() && !m_rEditor.isVisible() &&
        CountOtherWindows() <= m_iOtherWindows)
    {
        m_pOwnerWindow->activateWindow();
        g_sinceReturn.start();
    }
}

int CEditorPlacement::CountOtherWindows() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return static_cast<int>(std::count_if(windows.begin(), windows.end(),
                                          [this](const QWidget* window)
                                          { return window != &m_rEditor && window->isVisible(); }));
}
