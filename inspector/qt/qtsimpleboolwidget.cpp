#include <qtsimpleboolwidget.h>

#include <booldataelement.h>

#include "layoutoperations.h"
#include "panelrepaint.h"
#include "qtcompat.h"

#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cassert>

namespace
{

constexpr int g_iBoxSize = 20;
constexpr int g_iCrossInset = 7;

} // namespace

CQTSimpleBoolWidget::CQTSimpleBoolWidget() = default;
CQTSimpleBoolWidget::~CQTSimpleBoolWidget() = default;

void CQTSimpleBoolWidget::InitFromElement()
{
    OnValueChange(nullptr);
}

const char* CQTSimpleBoolWidget::GetType()
{
    return "qt.simple.bool";
}

void CQTSimpleBoolWidget::OnValueChange(sValueChangeInfo*)
{
    CBoolDataElement* element = GetSafeData();
    assert(element && "CQTSimpleBoolWidget::OnValueChange: no bool element is bound");
    m_bValue = element->GetValue();
    RepaintControl(*this);
}

int CQTSimpleBoolWidget::GetRequiredWidth()
{
    return g_iBoxSize;
}

int CQTSimpleBoolWidget::GetRequiredHeight(int)
{
    return g_iBoxSize;
}

INSPECTOR_LAYOUT_OPERATIONS(CQTSimpleBoolWidget);

bool CQTSimpleBoolWidget::GetValue()
{
    return m_bValue;
}

CBoolDataElement* CQTSimpleBoolWidget::GetSafeData()
{
    return dynamic_cast<CBoolDataElement*>(m_pElement);
}

void CQTSimpleBoolWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int right = std::min(width(), g_iBoxSize);
    const int bottom = std::min(height(), g_iBoxSize);
    painter.fillRect(0, 0, right, bottom, palette().color(QPalette::Base));
    if (!m_bValue)
        return;
    painter.setPen(palette().color(QPalette::WindowText));
    const int inset = g_iCrossInset;
    painter.drawLine(inset, inset, right - inset, bottom - inset);
    painter.drawLine(inset, bottom - inset, right - inset, inset);
}

void CQTSimpleBoolWidget::mousePressEvent(QMouseEvent* event)
{
    if (PressPosition(*event).x() >= g_iBoxSize)
        return;
    CBoolDataElement* element = GetSafeData();
    if (!element || element->IsReadOnly())
        return;
    m_bValue = !m_bValue;
    // The host may remove this row when it learns of the change.
    const QPointer<CQTSimpleBoolWidget> self(this);
    element->OnCtrlValueChange();
    if (self)
        update();
}
