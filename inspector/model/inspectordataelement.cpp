#include <inspectordataelement.h>

#include <inspectorcontroller.h>
#include <inspectordatawidget.h>

#include <cassert>

CInspectorDataElement::CInspectorDataElement() = default;
CInspectorDataElement::CInspectorDataElement(const CInspectorDataElement& other) = default;
CInspectorDataElement&
CInspectorDataElement::operator=(const CInspectorDataElement& other) = default;
CInspectorDataElement::~CInspectorDataElement() = default;

void CInspectorDataElement::SetDataControl(CInspectorDataWidget* widget,
                                           CInspectorController* controller)
{
    m_pWidget = widget;
    m_pController = controller;
}

void CInspectorDataElement::OnCtrlValueChange(CInspectorDataWidget*)
{
}

void CInspectorDataElement::OnEndEditing(CInspectorDataWidget* widget, eEndEditCause cause)
{
    if (cause != eEndEditNext && cause != eEndEditPrevious)
        return;
    assert(m_pController && "CInspectorDataElement::OnEndEditing: no controller is bound");
    if (cause == eEndEditNext)
        m_pController->GiveFocusToNextElement(widget);
    else
        m_pController->GiveFocusToPrevElement(widget);
}

void CInspectorDataElement::Mute()
{
}
void CInspectorDataElement::Unmute()
{
}
void CInspectorDataElement::Connect()
{
}
void CInspectorDataElement::Disconnect()
{
}

void CInspectorDataElement::UpdateData()
{
    assert(m_pWidget && "CInspectorDataElement::UpdateData: no widget is bound");
    m_pWidget->OnValueChange(nullptr);
}

bool CInspectorDataElement::IsReadOnly()
{
    return m_bReadOnly;
}

void CInspectorDataElement::SetReadOnly(bool readOnly)
{
    m_bReadOnly = readOnly;
}

void CInspectorDataElement::InternalValueChanged()
{
}
