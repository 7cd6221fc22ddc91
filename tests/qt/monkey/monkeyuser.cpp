#include "monkey.h"

#include <inspector/qt/inplacelist.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <climits>

// What the user does, as the events that reach the widgets.

namespace
{

void SendMouse(QWidget* target, QEvent::Type type, const QPoint& at, Qt::MouseButton button)
{
    if (!target)
        return;
    const QPointF global = target->mapToGlobal(at);
    QMouseEvent event(type, at, at, global, button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

void SendClick(QWidget* target, const QPoint& at, Qt::MouseButton button)
{
    const QPointer<QWidget> alive(target);
    SendMouse(alive, QEvent::MouseButtonPress, at, button);
    SendMouse(alive, QEvent::MouseButtonRelease, at, button);
}

void SendKey(QWidget* target, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    const QPointer<QWidget> alive(target);
    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease})
    {
        if (!alive)
            return;
        QKeyEvent event(type, key, modifiers, text);
        QApplication::sendEvent(alive, &event);
    }
}

} // namespace

void CMonkey::DoUserEvent()
{
    switch (m_random.Below(16))
    {
    case 0:
    case 1:
    case 2:
    case 3:
        return Press(RandomTarget());
    case 4:
    case 5:
    case 6:
    case 7:
        return Type();
    case 8:
        return Wheel();
    case 9:
        return MoveFocus();
    case 10:
        return LeaveWindow();
    case 11:
    case 12:
        return UseList();
    case 13:
        return Compose();
    case 14:
        return Paint();
    default:
        return RunEvents();
    }
}

QWidget* CMonkey::RandomTarget()
{
    sPanel& panel = m_random.AnyOf(m_aPanels);
    if (panel.m_pView && m_random.OneIn(12))
        return m_random.OneOf<QWidget*>(
            {panel.m_pView, panel.m_pView->m_pContent, panel.m_pView->m_pScrollBar});
    if (!panel.m_pController)
        return &panel.m_window;
    auto* control = dynamic_cast<QWidget*>(RandomControl(*panel.m_pController));
    if (auto* area = qobject_cast<QAbstractScrollArea*>(control))
        return area->viewport();
    return control;
}

void CMonkey::Press(QWidget* target)
{
    if (!target)
        return;
    const QPoint at(m_random.Below(30), m_random.Below(24));
    SendClick(target, at, m_random.OneIn(5) ? Qt::RightButton : Qt::LeftButton);
}

void CMonkey::Type()
{
    QWidget* target = QApplication::focusWidget();
    if (m_line.m_pOpen && m_line.m_pEditor && m_random.Below(3) > 0)
        target = m_line.m_pEditor;
    else if (m_list.m_pOpen && m_list.m_pEditor && m_random.OneIn(2))
        target = m_list.m_pEditor;
    if (!target)
        return;
    if (m_random.OneIn(20))
        QApplication::clipboard()->setText(QStringLiteral("pasted\nfrom elsewhere"));
    const int key = m_random.OneOf<int>(
        {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Tab,
         Qt::Key_A, Qt::Key_A, Qt::Key_V, Qt::Key_Z, Qt::Key_Delete, Qt::Key_Backspace,
         Qt::Key_Space, Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageDown});
    const Qt::KeyboardModifiers modifiers = m_random.OneOf<Qt::KeyboardModifiers>(
        {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier});
    const bool isText = key < 0x80 && !(modifiers & Qt::ControlModifier);
    SendKey(target, key, modifiers, isText ? QString(QChar(key)) : QString());
}

void CMonkey::Wheel()
{
    QWidget* target = RandomTarget();
    if (!target)
        return;
    const QPoint pixels(0, m_random.OneOf({0, 0, 3, -40, INT_MAX, INT_MIN}));
    const QPoint angle(0, m_random.OneOf({120, -120, 8, -8, 0, INT_MAX, INT_MIN}));
    QWheelEvent event(QPointF(1, 1), target->mapToGlobal(QPoint(1, 1)), pixels, angle, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(target, &event);
}

void CMonkey::MoveFocus()
{
    sPanel& panel = m_random.AnyOf(m_aPanels);
    QWidget* target = panel.m_pController && !m_random.OneIn(3)
                          ? dynamic_cast<QWidget*>(RandomControl(*panel.m_pController))
                          : QApplication::focusWidget();
    if (!target)
        return;
    if (m_random.OneIn(3))
        target->clearFocus();
    else
        target->setFocus(Qt::MouseFocusReason);
}

void CMonkey::LeaveWindow()
{
    QWidget* editor = Coin() ? m_line.m_pEditor : m_list.m_pEditor;
    if (m_random.OneIn(3))
        m_random.AnyOf(m_aPanels).m_window.activateWindow();
    else if (editor && editor->isVisible())
    {
        QEvent event(QEvent::WindowDeactivate);
        QApplication::sendEvent(editor, &event);
    }
    else if (m_random.OneIn(4))
    {
        QWidget& window = m_random.AnyOf(m_aPanels).m_window;
        window.setVisible(!window.isVisible());
    }
}

void CMonkey::UseList()
{
    auto* list = qobject_cast<QListWidget*>(m_list.m_pEditor);
    if (!m_list.m_pOpen || !list)
        return;
    const QPoint at = list->count() > 0 && !m_random.OneIn(5)
                          ? list->visualItemRect(list->item(m_random.Below(list->count()))).center()
                          : QPoint(m_random.Below(100), m_random.Below(100));
    SendClick(list->viewport(), at, m_random.OneIn(6) ? Qt::RightButton : Qt::LeftButton);
}

void CMonkey::Compose()
{
    // Text boxes compose by themselves, and the toolkit does not bear keys while they do.
    if (!m_line.m_pOpen || !m_line.m_pEditor)
        return;
    QInputMethodEvent event(Coin() ? QStringLiteral("ab") : QString(), {});
    if (m_random.OneIn(3))
        event.setCommitString(QStringLiteral("c"));
    QApplication::sendEvent(m_line.m_pEditor, &event);
}

void CMonkey::Paint()
{
    CMonkeyView* view = m_random.AnyOf(m_aPanels).m_pView;
    const QRect part(0, 0, 300, 200);
    if (view && view->rect().intersects(part))
        view->grab(part & view->rect());
}
