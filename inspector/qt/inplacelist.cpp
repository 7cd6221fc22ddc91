#include "inplacelist.h"

#include <inplaceeditsink.h>

#include "focusmove.h"
#include "inuse.h"
#include "panelrepaint.h"
#include "text.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace
{

/// The rows that decide how tall the list is; with more it scrolls.
constexpr int g_iRowsAtMost = 15;

} // namespace

CInPlaceList::CInPlaceList() : m_Placement(*this)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, SIGNAL(itemClicked(QListWidgetItem*)), SLOT(OnItemClicked(QListWidgetItem*)));
}

std::shared_ptr<CInPlaceList> CInPlaceList::Create()
{
    return {new CInPlaceList, &CInPlaceList::Dispose};
}

void CInPlaceList::Dispose(CInPlaceList* list)
{
    list->m_pSink = nullptr;
    if (list->m_iInUse == 0 && !CFocusMove::IsHolding(*list) && !CPaintAhead::IsUnderWay())
    {
        delete list;
        return;
    }
    list->m_bOpen = false;
    list->m_Placement.Hide();
    list->deleteLater();
}

void CInPlaceList::SetSink(IInPlaceEditSink* sink)
{
    EndChoice();
    m_pSink = sink;
}

bool CInPlaceList::MakeRoom()
{
    if (m_bMakingRoom)
        return false;
    m_bMakingRoom = true;
    EndChoice();
    m_bMakingRoom = false;
    return true;
}

void CInPlaceList::Reset()
{
    clear();
    m_bOpen = false;
    m_sStart.clear();
    m_sCurrent.clear();
}

void CInPlaceList::AddEntry(const char* value, const char* label)
{
    if (!value || !label)
        return;
    auto* item = new QListWidgetItem(ToQString(label));
    item->setData(Qt::UserRole, ToQString(value));
    item->setBackground(palette().color(QPalette::Base));
    addItem(item);
}

void CInPlaceList::Start(QWidget& owner, const QRect& area, const char* value)
{
    const CInUse inUse(m_iInUse);
    EndChoice();
    const unsigned choice = ++m_uiChoice;
    m_sCurrent = ToQString(value);
    m_sStart = m_sCurrent;
    SelectRowOf(m_sCurrent);
    m_Placement.Show(owner, CEditorPlacement::ListRect(owner, area, WantedHeight()));
    // The control that lost the focus may have made the host drop the list down elsewhere.
    if (choice != m_uiChoice)
        return;
    m_bOpen = true;
    setFocus(Qt::OtherFocusReason);
}

void CInPlaceList::SelectRowOf(const QString& value)
{
    // Also said when there is no such row: the list would else choose its first one when it gets
    // the focus.
    setCurrentIndex(QModelIndex());
    for (int row = 0; row < count(); ++row)
    {
        if (item(row)->data(Qt::UserRole).toString() == value)
        {
            setCurrentRow(row, QItemSelectionModel::SelectCurrent);
            return;
        }
    }
}

int CInPlaceList::WantedHeight() const
{
    int height = 0;
    for (int row = 0; row < std::min(count(), g_iRowsAtMost); ++row)
        height += std::max(0, sizeHintForRow(row));
    return height;
}

void CInPlaceList::EndChoice()
{
    if (!IsOpen())
        return;
    const CInUse inUse(m_iInUse);
    const unsigned choice = m_uiChoice;
    const unsigned outer = std::exchange(m_uiEnding, choice);
    const std::string value = ToNarrow(m_sCurrent);
    if (m_pSink)
        m_pSink->FinishValueEdit(value.c_str(),
                                 static_cast<CInspectorDataElement::eEndEditCause>(m_iCause));
    m_uiEnding = outer;
    m_iCause = CInspectorDataElement::eEndEditFocusLost;
    // The sink may have dropped the list down again, for another choice.
    if (choice != m_uiChoice)
        return;
    m_bOpen = false;
    m_Placement.Hide();
}

void CInPlaceList::OnItemClicked(QListWidgetItem* item)
{
    const CInUse inUse(m_iInUse);
    // A choice that is being reported is not reported again; any other click is.
    if (m_uiEnding == m_uiChoice)
        return;
    m_bOpen = true;
    const QVariant value = item ? item->data(Qt::UserRole) : QVariant();
    m_sCurrent = value.toString();
    m_sStart = m_sCurrent;
    EndChoice();
    m_Placement.ReturnKeyboard();
}

bool CInPlaceList::event(QEvent* event)
{
    // The end of what Dispose put off; there is no editor afterwards.
    if (event->type() == QEvent::DeferredDelete)
        return PutOffDeletion(*this, m_iInUse) || QListWidget::event(event);
    const CInUse inUse(m_iInUse);
    switch (event->type())
    {
    case QEvent::KeyPress:
        CancelWith(static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape
                       ? CInspectorDataElement::eEndEditCancel
                       : CInspectorDataElement::eEndEditFocusLost);
        m_Placement.ReturnKeyboard();
        return true;
    case QEvent::WindowDeactivate:
    {
        const CFocusMove moving(*this);
        return CancelWith(CInspectorDataElement::eEndEditFocusLost);
    }
    case QEvent::FocusOut:
    {
        const CFocusMove moving(*this);
        // In a window of the host, the focus can go elsewhere without a deactivation.
        if (!isWindow() && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            CancelWith(CInspectorDataElement::eEndEditFocusLost);
        return QListWidget::event(event);
    }
    case QEvent::ShortcutOverride:
        // A key that closes the list must not trigger a shortcut of the host as well.
        event->accept();
        return true;
    default:
        return QListWidget::event(event);
    }
}

bool CInPlaceList::CancelWith(CInspectorDataElement::eEndEditCause cause)
{
    if (m_uiEnding == m_uiChoice)
        return true;
    m_iCause = cause;
    m_sCurrent = m_sStart;
    EndChoice();
    return true;
}
