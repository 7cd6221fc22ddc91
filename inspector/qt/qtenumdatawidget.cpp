#include <qtenumdatawidget.h>

#include <enumdataelement.h>

#include "inplacelist.h"
#include "layoutoperations.h"
#include "panelrepaint.h"
#include "showablearea.h"
#include "sortentries.h"
#include "text.h"
#include "textline.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionComboBox>

#include <cassert>
#include <utility>

std::shared_ptr<CInPlaceList> CQTEnumDataWidget::g_pInPlaceList;

CQTEnumDataWidget::CQTEnumDataWidget()
{
    if (!g_pInPlaceList)
        g_pInPlaceList = CInPlaceList::Create();
    m_pInPlaceList = g_pInPlaceList;
}

CQTEnumDataWidget::~CQTEnumDataWidget()
{
    // The end of a choice calls the host, who may neither find this widget in its row any more nor
    // destroy it a second time together with its parent.
    LeaveRow();
    if (m_pInPlaceList->IsOpen())
        setParent(nullptr);
    // Without its list the widget is known to be dying: a choice that ends now finds no element.
    std::shared_ptr<CInPlaceList> list = std::move(m_pInPlaceList);
    list->SetSink(nullptr);
    list.reset();
    if (g_pInPlaceList.use_count() == 1)
        g_pInPlaceList.reset();
}

void CQTEnumDataWidget::InitFromElement()
{
    TakeElementText();
}

const char* CQTEnumDataWidget::GetType()
{
    return "qt.simple.enum";
}

void CQTEnumDataWidget::OnValueChange(sValueChangeInfo*)
{
    TakeElementText();
    RepaintControl(*this);
}

void CQTEnumDataWidget::TakeElementText()
{
    ISimpleDataProvider* provider = GetSafeControlDataProvider();
    if (!provider)
        return;
    std::string text;
    provider->GetDataAsString(text);
    m_sText = ToQString(text);
}

int CQTEnumDataWidget::GetRequiredWidth()
{
    return -1;
}

int CQTEnumDataWidget::GetRequiredHeight(int)
{
    return 20;
}

INSPECTOR_LAYOUT_OPERATIONS(CQTEnumDataWidget);

void CQTEnumDataWidget::GetDataAsString(std::string& out)
{
    out = ToNarrow(m_sText);
}

void CQTEnumDataWidget::FinishValueEdit(const char* value,
                                        CInspectorDataElement::eEndEditCause cause)
{
    m_sText = ToQString(value);
    CEnumDataElement* element = GetSafeEnumData();
    assert((element || !m_pInPlaceList) &&
           "CQTEnumDataWidget::FinishValueEdit: no enum element is bound");
    if (!element)
        return;
    // The host may remove this row, or give it another element, when it learns of the change.
    const QPointer<CQTEnumDataWidget> self(this);
    element->OnCtrlValueChange();
    element = self ? GetSafeEnumData() : nullptr;
    if (element)
        element->OnEndEditing(this, cause);
}

void CQTEnumDataWidget::SetEnumSortingMethod(int method)
{
    m_iSortingMethod = method;
}

CEnumDataElement* CQTEnumDataWidget::GetSafeEnumData()
{
    return dynamic_cast<CEnumDataElement*>(m_pElement);
}

ISimpleDataProvider* CQTEnumDataWidget::GetSafeControlDataProvider()
{
    return dynamic_cast<ISimpleDataProvider*>(m_pElement);
}

void CQTEnumDataWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(0, 0, width(), height(), palette().color(QPalette::Base));
    QStyleOptionComboBox option;
    option.rect = ShowableArea(*this);
    option.state = QStyle::State_Enabled;
    QApplication::style()->drawComplexControl(QStyle::CC_ComboBox, &option, &painter, nullptr);
    CEnumDataElement* element = GetSafeEnumData();
    if (m_sText.isEmpty() || !element || !element->GetDefinition())
        return;
    std::string label;
    element->GetDisplayString(ToNarrow(m_sText).c_str(), label);
    DrawTextLine(painter, QRect(3, 0, width(), height()), ToQString(label));
}

void CQTEnumDataWidget::mousePressEvent(QMouseEvent* event)
{
    const auto hasDefinition = [this]
    {
        CEnumDataElement* element = GetSafeEnumData();
        return element && element->GetDefinition();
    };
    if (event->button() != Qt::LeftButton || !hasDefinition())
        return;
    // A choice of another widget ends first, and its host may remove this one.
    const QPointer<CQTEnumDataWidget> self(this);
    CInPlaceList* list = m_pInPlaceList.get();
    if (!list->MakeRoom() || !self || !hasDefinition())
        return;
    list->SetSink(this);
    list->Reset();
    for (const auto& [value, label] :
         SortedEntries(GetSafeEnumData()->GetDefinition()->m_vEntries, m_iSortingMethod))
        list->AddEntry(value.c_str(), label.c_str());
    list->Start(*this, ShowableArea(*this), ToNarrow(m_sText).c_str());
}
