#include "inplaceedit.h"

#include <inplaceeditsink.h>
#include <qtsimpledatawidget.h>

#include "focusmove.h"
#include "inuse.h"
#include "panelrepaint.h"
#include "text.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include <limits>
#include <optional>

namespace
{

using eCause = CInspectorDataElement::eEndEditCause;

/// The cause that a key ends an edit with, if it does.
std::optional<eCause> CauseOf(const QKeyEvent& key)
{
    switch (key.key())
    {
    case Qt::Key_Escape:
        return CInspectorDataElement::eEndEditCancel;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return CInspectorDataElement::eEndEditValidate;
    case Qt::Key_Tab:
        return key.modifiers() & Qt::ShiftModifier ? CInspectorDataElement::eEndEditPrevious
                                                   : CInspectorDataElement::eEndEditNext;
    case Qt::Key_Backtab:
        return CInspectorDataElement::eEndEditPrevious;
    default:
        return std::nullopt;
    }
}

} // namespace

CInPlaceEdit::CInPlaceEdit() : m_Placement(*this)
{
    // A value is never cut, however long it is.
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, SIGNAL(editingFinished()), SLOT(OnFinishEditing()));
}

CInPlaceEdit::~CInPlaceEdit()
{
    // Nobody but the fields frees the editor; if somebody does, they get a new one.
    if (CQTSimpleDataWidget::g_pInPlace == this)
        CQTSimpleDataWidget::g_pInPlace = nullptr;
}

CInPlaceEdit& CInPlaceEdit::GetShared()
{
    if (!CQTSimpleDataWidget::g_pInPlace)
        CQTSimpleDataWidget::g_pInPlace = new CInPlaceEdit;
    return *CQTSimpleDataWidget::g_pInPlace;
}

void CInPlaceEdit::SetSink(IInPlaceEditSink* sink)
{
    EndEditing();
    m_pSink = sink;
}

void CInPlaceEdit::ForgetSink(const IInPlaceEditSink* sink)
{
    if (m_pSink == sink)
        m_pSink = nullptr;
}

void CInPlaceEdit::SetStartText(const char* text)
{
    EndEditing();
    m_sStart = ToQString(text);
    m_sCurrent = m_sStart;
    setText(m_sStart);
}

bool CInPlaceEdit::MakeRoom()
{
    if (m_bMakingRoom)
        return false;
    const CInUse inUse(m_iInUse);
    m_bMakingRoom = true;
    EndEditing();
    m_bMakingRoom = false;
    return true;
}

void CInPlaceEdit::StartEditing(QWidget& owner, const QRect& area)
{
    const CInUse inUse(m_iInUse);
    EndEditing();
    const unsigned edit = ++m_uiEdit;
    m_Placement.Show(
        owner, QRect(owner.mapToGlobal(area.topLeft()), owner.mapToGlobal(area.bottomRight())));
    // The control that lost the focus may have made the host start another edit.
    if (edit != m_uiEdit)
        return;
    m_bEditing = true;
    setFocus(Qt::OtherFocusReason);
    selectAll();
}

void CInPlaceEdit::EndEditing()
{
    OnFinishEditing();
}

void CInPlaceEdit::HideSilently()
{
    m_bEditing = false;
    m_Placement.Hide();
}

void CInPlaceEdit::Dispose()
{
    m_pSink = nullptr;
    if (m_iInUse == 0 && !CFocusMove::IsHolding(*this) && !CPaintAhead::IsUnderWay())
    {
        delete this;
        return;
    }
    HideSilently();
    deleteLater();
}

bool CInPlaceEdit::event(QEvent* event)
{
    // The end of what Dispose put off; there is no editor afterwards.
    if (event->type() == QEvent::DeferredDelete)
        return PutOffDeletion(*this, m_iInUse) || QLineEdit::event(event);
    const CInUse inUse(m_iInUse);
    switch (event->type())
    {
    case QEvent::KeyPress:
        if (const auto cause = CauseOf(*static_cast<QKeyEvent*>(event)))
            return EndWith(*cause);
        [[fallthrough]];
    case QEvent::KeyRelease:
        // A key that the line edit has no use for must not reach the window that it may float in.
        QLineEdit::event(event);
        event->accept();
        return true;
    case QEvent::WindowActivate:
        // The line edit would drop the selection a little later unless it has the focus by then,
        // and it may be on its way from one field to the next.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call)
        return QWidget::event(event);
    case QEvent::WindowDeactivate:
    {
        const CFocusMove moving(*this);
        if (m_bEditing)
            return EndWith(CInspectorDataElement::eEndEditFocusLost);
        break;
    }
    case QEvent::ShortcutOverride:
        // What is typed here belongs to the value, never to a shortcut of the host.
        event->accept();
        return true;
    case QEvent::FocusIn:
        QLineEdit::event(event);
        // A value that nothing was typed over yet is still replaced as a whole, wherever the
        // keyboard was in between.
        if (m_bEditing && !isModified() &&
            static_cast<QFocusEvent*>(event)->reason() == Qt::ActiveWindowFocusReason)
            selectAll();
        return true;
    case QEvent::FocusOut:
        return LoseFocus(*static_cast<QFocusEvent*>(event));
    case QEvent::InputMethod:
        // The line edit would take the text of an input method even while it is read-only.
        if (isReadOnly())
        {
            event->ignore();
            return true;
        }
        m_sComposition = static_cast<QInputMethodEvent*>(event)->preeditString();
        break;
    default:
        break;
    }
    return QLineEdit::event(event);
}

bool CInPlaceEdit::EndWith(eCause cause)
{
    m_iCause = cause;
    CommitComposition();
    if (cause == CInspectorDataElement::eEndEditCancel)
        setText(m_sStart);
    Q_EMIT editingFinished();
    if (cause != CInspectorDataElement::eEndEditFocusLost)
        m_Placement.ReturnKeyboard();
    return true;
}

bool CInPlaceEdit::LoseFocus(QFocusEvent& event)
{
    const CFocusMove moving(*this);
    // In a window of the host, the focus can go elsewhere without a deactivation.
    const bool isLeft = !isWindow() && event.reason() != Qt::PopupFocusReason;
    if (isLeft)
        m_iCause = CInspectorDataElement::eEndEditFocusLost;
    const bool isHandled = QLineEdit::event(&event);
    if (isLeft)
        EndEditing();
    return isHandled;
}

void CInPlaceEdit::CommitComposition()
{
    if (m_sComposition.isEmpty())
        return;
    if (QGuiApplication::focusObject() == this)
        QGuiApplication::inputMethod()->commit();
    if (!m_sComposition.isEmpty())
    {
        // The input method did not answer: what the user sees is taken as typed.
        QInputMethodEvent commit;
        commit.setCommitString(m_sComposition);
        m_sComposition.clear();
        QLineEdit::event(&commit);
    }
}

void CInPlaceEdit::OnFinishEditing()
{
    if (!m_bEditing)
        return;
    const CInUse inUse(m_iInUse);
    CommitComposition();
    m_sCurrent = text();
    const std::string value = ToNarrow(m_sCurrent);
    const auto cause = static_cast<eCause>(m_iCause);
    m_bEditing = false;
    m_Placement.Hide();
    if (m_pSink)
        m_pSink->FinishValueEdit(value.c_str(), cause);
}
