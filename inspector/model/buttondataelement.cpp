#include <buttondataelement.h>

#include <inspectorcontroller.h>

#include "textorempty.h"

#include <cassert>

CButtonDataElement::CButtonDataElement() = default;
CButtonDataElement::CButtonDataElement(unsigned long commandId) : m_ulCommandId(commandId)
{
}
CButtonDataElement::CButtonDataElement(const CButtonDataElement& other) = default;
CButtonDataElement& CButtonDataElement::operator=(const CButtonDataElement& other) = default;
CButtonDataElement::~CButtonDataElement() = default;

const char* CButtonDataElement::GetType()
{
    return "qt.button.data";
}

void CButtonDataElement::OnCtrlValueChange(CInspectorDataWidget*)
{
    if (!m_bEnabled)
        return;
    assert(m_pController && "CButtonDataElement::OnCtrlValueChange: no controller is bound");
    // The command may remove this row while its text is still being read.
    const std::string command = m_sCommand;
    m_pController->CallCommand(command.c_str(), m_ulCommandId);
}

void CButtonDataElement::SetText(const char* text)
{
    m_sText = TextOrEmpty(text);
}

std::string CButtonDataElement::GetText()
{
    return m_sText;
}

void CButtonDataElement::SetCommandString(const char* command)
{
    m_sCommand = TextOrEmpty(command);
}

void CButtonDataElement::SetEnable(bool enable)
{
    m_bEnabled = enable;
}

bool CButtonDataElement::GetEnable()
{
    return m_bEnabled;
}
