#include "propertyelements.h"

#include "panelcontroller.h"

IPropertyElement::~IPropertyElement() = default;

CTextPropertyElement::CTextPropertyElement(const sPropertyBinding& binding) : m_binding(binding)
{
    SetReadOnly(binding.m_pProperty->m_bReadOnly);
}

void CTextPropertyElement::Connect()
{
    LoadValue();
}

void CTextPropertyElement::LoadValue()
{
    SetStrCurrentValue(m_binding.Read());
}

void CTextPropertyElement::InternalValueChanged()
{
    m_binding.Write(GetStrCurrentValue());
}

CBoolPropertyElement::CBoolPropertyElement(const sPropertyBinding& binding) : m_binding(binding)
{
    SetReadOnly(binding.m_pProperty->m_bReadOnly);
}

void CBoolPropertyElement::Connect()
{
    LoadValue();
}

void CBoolPropertyElement::LoadValue()
{
    const std::string value = m_binding.Read();
    m_bMixed = value == sPropertyBinding::g_sSeveral;
    SetValue(value == "true");
}

void CBoolPropertyElement::InternalValueChanged()
{
    m_binding.Write(GetValue() ? "true" : "false");
}

CEnumPropertyElement::CEnumPropertyElement(const sPropertyBinding& binding) : m_binding(binding)
{
    SetReadOnly(binding.m_pProperty->m_bReadOnly);
    CreateEnum();
    for (const std::string& nickname : binding.m_pProperty->m_vNicknames)
        AddEnum(nickname.c_str(), nickname.c_str());
    // Shown, but not offered.
    GetDefinition()->m_mapDisplay[sPropertyBinding::g_sSeveral] = sPropertyBinding::g_sSeveral;
}

void CEnumPropertyElement::Connect()
{
    LoadValue();
}

void CEnumPropertyElement::LoadValue()
{
    SetStrCurrentValue(m_binding.Read());
}

void CEnumPropertyElement::InternalValueChanged()
{
    m_binding.Write(GetStrCurrentValue());
}

CSwatchElement::CSwatchElement(const sPropertyBinding& binding)
    : CStaticDataElement("", 0), m_binding(binding)
{
}

void CSwatchElement::Connect()
{
    LoadValue();
}

void CSwatchElement::LoadValue()
{
    m_vColors = m_binding.ReadColors();
}

void CSwatchElement::PickColor()
{
    if (!m_vColors.empty())
        m_binding.m_pPanel->PickColor(*m_binding.m_pProperty, m_vColors.front());
}
