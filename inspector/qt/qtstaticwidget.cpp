#include <qtstaticwidget.h>

#include <staticdataelement.h>

#include "layoutoperations.h"
#include "text.h"

#include <QPainter>

#include <algorithm>
#include <cassert>

CQTStaticWidget::CQTStaticWidget() = default;
CQTStaticWidget::~CQTStaticWidget() = default;

void CQTStaticWidget::InitFromElement()
{
}

const char* CQTStaticWidget::GetType()
{
    return "qt.static";
}

int CQTStaticWidget::GetRequiredWidth()
{
    return -1;
}

int CQTStaticWidget::GetRequiredHeight(int)
{
    return 20;
}

INSPECTOR_LAYOUT_OPERATIONS(CQTStaticWidget);

CStaticDataElement* CQTStaticWidget::GetSafeData()
{
    return dynamic_cast<CStaticDataElement*>(m_pElement);
}

void CQTStaticWidget::paintEvent(QPaintEvent*)
{
    CStaticDataElement* element = GetSafeData();
    assert(element && "CQTStaticWidget::paintEvent: no static element is bound");
    QPainter painter(this);
    painter.drawText(QRect(0, 0, width(), std::min(height(), 20)), element->GetFlags(),
                     ToQString(element->GetText()));
}
