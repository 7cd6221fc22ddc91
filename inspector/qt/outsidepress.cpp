#include "outsidepress.h"

#include "qtcompat.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

COutsidePress::COutsidePress(QWidget& editor) : m_rEditor(editor)
{
}

void COutsidePress::Watch(QWidget* window)
{
    Stop();
    m_bWatching = true;
    m_pWindow = window;
    if (window)
        connect(window, SIGNAL(destroyed()), SLOT(OnWindowDestroyed()));
    qApp->installEventFilter(this);
}

void COutsidePress::Stop()
{
    if (!m_bWatching)
        return;
    m_bWatching = false;
    qApp->removeEventFilter(this);
    if (m_pWindow)
        disconnect(m_pWindow, nullptr, this, nullptr);
    m_pWindow = nullptr;
    m_pFallback = nullptr;
}

void COutsidePress::ExpectFallback(QWidget& ownerWindow)
{
    m_pFallback = &ownerWindow;
    m_SinceFallbackIsExpected.start();
}

bool COutsidePress::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && watched == &m_rEditor && m_pWindow)
        LeaveLater();
    // A window that arranges its children, as a splitter does, must not arrange the editor.
    if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildPolished)
        return static_cast<QChildEvent*>(event)->child() == &m_rEditor;
    if (IsFallback(watched, *event))
    {
        QMetaObject::invokeMethod(this, "TakeKeyboardBack", Qt::QueuedConnection);
        return true;
    }
    if (!IsOutside(watched, *event))
        return false;
    // The report may make the host destroy whatever the event was for.
    const QPointer<QObject> receiver(watched);
    m_pFallback = nullptr;
    QEvent left(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&m_rEditor, &left);
    if (receiver)
        return false;
    event->accept();
    return true;
}

bool COutsidePress::IsOutside(const QObject* watched, const QEvent& event) const
{
    switch (event.type())
    {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    {
        if (watched->isWidgetType())
            return m_pWindow && !IsPartOfEditor(watched);
        // A window knows of a press before its widgets do. Once one of them is on its way to the
        // keyboard focus it must not be destroyed any more, so this is the time to report.
        const auto* window = qobject_cast<const QWindow*>(watched);
        QWidget* widget =
            window && !QApplication::activePopupWidget() ? QWidget::find(window->winId()) : nullptr;
        if (!widget)
            return false;
        QWidget* child = widget->childAt(PressPosition(static_cast<const QMouseEvent&>(event)));
        return !IsPartOfEditor(child ? child : widget);
    }
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        return m_pWindow && watched->isWidgetType() && !IsPartOfEditor(watched);
    case QEvent::WindowDeactivate:
    case QEvent::Close:
        return watched == m_pWindow;
    default:
        return false;
    }
}

bool COutsidePress::IsFallback(const QObject* watched, const QEvent& event) const
{
    // From the platform, not from a host or a test that ends the edit by hand.
    const bool isFromPlatform =
        event.type() == QEvent::WindowDeactivate
            ? event.spontaneous()
            : event.type() == QEvent::FocusOut && !m_rEditor.isActiveWindow();
    if (!isFromPlatform)
        return false;
    if (watched != &m_rEditor || !m_pFallback)
        return false;
    const QWindow* focus = QGuiApplication::focusWindow();
    return (!focus || focus == m_pFallback->windowHandle()) &&
           !m_SinceFallbackIsExpected.hasExpired(FallbackTime);
}

void COutsidePress::TakeKeyboardBack()
{
    if (m_bWatching && m_rEditor.isVisible())
        m_rEditor.activateWindow();
}

bool COutsidePress::IsPartOfEditor(const QObject* object) const
{
    // Across windows too: the editor's context menu belongs to it.
    while (object && object != &m_rEditor)
        object = object->parent();
    return object != nullptr;
}

void COutsidePress::LeaveLater()
{
    // The window may be hidden because it is being destroyed, which is no time to call the host.
    QCoreApplication::postEvent(&m_rEditor, new QEvent(QEvent::WindowDeactivate));
}

void COutsidePress::OnWindowDestroyed()
{
    Stop();
    m_rEditor.setParent(nullptr);
    LeaveLater();
}
