#include <qtsimpledatawidget.h>

#include <simpledataelement.h>

#include "inplaceedit.h"
#include "layoutoperations.h"
#include "panelrepaint.h"
#include "showablearea.h"
#include "text.h"
#include "textline.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <cassert>
#include <utility>

CInPlaceEdit* CQTSimpleDataWidget::g_pInPlace = nullptr;
int CQTSimpleDataWidget::g_iInPlaceRefCount = 0;

CQTSimpleDataWidget::CQTSimpleDataWidget()
{
    CInPlaceEdit::GetShared();
    ++g_iInPlaceRefCount;
}

CQTSimpleDataWidget::~CQTSimpleDataWidget()
{
    if (g_pInPlace)
    {
        if (g_pInPlace->parentWidget() == this)
            g_pInPlace->HideSilently();
        g_pInPlace->ForgetSink(this);
    }
    if (--g_iInPlaceRefCount == 0 && g_pInPlace)
        std::exchange(g_pInPlace, nullptr)->Dispose();
}

void CQTSimpleDataWidget::InitFromElement()
{
    OnValueChange(nullptr);
}

const char* CQTSimpleDataWidget::GetType()
{
    return "qt.simple.edit";
}

void CQTSimpleDataWidget::StartEditing()
{
    // An edit of another field ends first, and its host may remove this one.
    const QPointer<CQTSimpleDataWidget> self(this);
    if (!CInPlaceEdit::GetShared().MakeRoom())
        return;
    CSimpleDataElement* element = self ? GetSafeSimpleData() : nullptr;
    if (!element)
        return;
    CInPlaceEdit& editor = CInPlaceEdit::GetShared();
    editor.SetSink(this);
    editor.SetStartText(ToNarrow(m_sText).c_str());
    editor.setReadOnly(element->IsReadOnly());
    editor.StartEditing(*this, ShowableArea(*this));
}

void CQTSimpleDataWidget::OnValueChange(sValueChangeInfo*)
{
    ISimpleDataProvider* provider = GetSafeControlDataProvider();
    if (!provider)
        return;
    std::string text;
    provider->GetDataAsString(text);
    m_sText = ToQString(text);
    RepaintControl(*this);
}

int CQTSimpleDataWidget::GetRequiredWidth()
{
    return -1;
}

int CQTSimpleDataWidget::GetRequiredHeight(int)
{
    return 20;
}

INSPECTOR_LAYOUT_OPERATIONS(CQTSimpleDataWidget);

void CQTSimpleDataWidget::GetDataAsString(std::string& out)
{
    out = ToNarrow(m_sText);
}

void CQTSimpleDataWidget::FinishValueEdit(const char* value,
                                          CInspectorDataElement::eEndEditCause cause)
{
    m_sText = ToQString(value);
    CSimpleDataElement* element = GetSafeSimpleData();
    assert(element && "CQTSimpleDataWidget::FinishValueEdit: no text element is bound");
    // The host may remove this row, or give it another element, when it learns of the change.
    const QPointer<CQTSimpleDataWidget> self(this);
    element->OnCtrlValueChange();
    element = self ? GetSafeSimpleData() : nullptr;
    if (element)
        element->OnEndEditing(this, cause);
}

CSimpleDataElement* CQTSimpleDataWidget::GetSafeSimpleData()
{
    return dynamic_cast<CSimpleDataElement*>(m_pElement);
}

ISimpleDataProvider* CQTSimpleDataWidget::GetSafeControlDataProvider()
{
    return dynamic_cast<ISimpleDataProvider*>(m_pElement);
}

void CQTSimpleDataWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(0, 0, width(), height(), palette().color(QPalette::Base));
    if (!m_sText.isEmpty())
        DrawTextLine(painter, QRect(3, 0, width(), height()), m_sText);
}

void CQTSimpleDataWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_pElement || m_pElement->IsReadOnly())
        return;
    StartEditing();
}

void CQTSimpleDataWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
}

void CQTSimpleDataWidget::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
}
