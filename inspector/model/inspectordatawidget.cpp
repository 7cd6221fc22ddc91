#include <inspectordatawidget.h>

#include <inspectorcontroller.h>
#include <inspectorview.h>

#include <utility>

CInspectorDataWidget::sValueChangeInfo::~sValueChangeInfo() = default;
CInspectorDataWidget::sTopoChangeInfo::~sTopoChangeInfo() = default;

CInspectorDataWidget::CInspectorDataWidget() = default;

CInspectorDataWidget::CInspectorDataWidget(const CInspectorDataWidget& other)
    : m_pElement(other.m_pElement)
{
}

// A plain pointer is copied, so that assigning a widget to itself is harmless.
// NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
CInspectorDataWidget& CInspectorDataWidget::operator=(const CInspectorDataWidget& other)
{
    m_pElement = other.m_pElement;
    return *this;
}

CInspectorDataWidget::~CInspectorDataWidget()
{
    LeaveRow();
}

void CInspectorDataWidget::LeaveRow()
{
    if (CInspectorController* owner = std::exchange(m_pOwner, nullptr))
    {
        owner->ForgetWidget(this);
        m_pElement = nullptr;
    }
    if (CInspectorView* view = std::exchange(m_pView, nullptr))
        view->ForgetWidget(this);
}

void CInspectorDataWidget::SetDataElement(CInspectorDataElement* element)
{
    m_pElement = element;
}

void CInspectorDataWidget::StartEditing()
{
}
void CInspectorDataWidget::OnValueChange(sValueChangeInfo*)
{
}
void CInspectorDataWidget::OnTopoChange(sTopoChangeInfo*)
{
}
