#include <qtbuttonwidget.h>

#include <buttondataelement.h>

#include "layoutoperations.h"
#include "qtcompat.h"
#include "text.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTextOption>

#include <cassert>

CQTButtonWidget::CQTButtonWidget() = default;
CQTButtonWidget::~CQTButtonWidget() = default;

void CQTButtonWidget::InitFromElement()
{
}

const char* CQTButtonWidget::GetType()
{
    return "qt.button";
}

int CQTButtonWidget::GetRequiredWidth()
{
    return -1;
}

int CQTButtonWidget::GetRequiredHeight(int)
{
    return 20;
}

INSPECTOR_LAYOUT_OPERATIONS(CQTButtonWidget);

CButtonDataElement* CQTButtonWidget::GetSafeData()
{
    return dynamic_cast<CButtonDataElement*>(m_pElement);
}

void CQTButtonWidget::paintEvent(QPaintEvent*)
{
    CButtonDataElement* element = GetSafeData();
    assert(element && "CQTButtonWidget::paintEvent: no button element is bound");
    QPainter painter(this);
    QStyleOptionButton option;
    option.initFrom(this);
    // The face looks the same with and without focus, hovered or not.
    option.state = QStyle::State_Raised;
    if (!element->GetEnable())
        option.palette.setCurrentColorGroup(QPalette::Disabled);
    option.rect = QRect(0, 0, width(), 20);
    option.text = ToQString(element->GetText());
    const qreal textWidth =
        painter.boundingRect(QRectF(option.rect), option.text, QTextOption()).width();
    if (width() - 1 > textWidth)
    {
        const int margin = static_cast<int>(width() - textWidth) / 2;
        option.rect.setCoords(margin - 1, 0, width() + 1 - margin, 19);
    }
    m_rectButton = option.rect;
    QApplication::style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
}

void CQTButtonWidget::mousePressEvent(QMouseEvent* event)
{
    CButtonDataElement* element = GetSafeData();
    if (!m_rectButton.contains(PressPosition(*event)))
        return;
    assert(element && "CQTButtonWidget::mousePressEvent: no button element is bound");
    update();
    element->OnCtrlValueChange(this);
}
