#include "propertyelements.h"

#include "panelcontroller.h"

std::string sPropertyBinding::Read() const
{
    const CImageOperation& operation = *m_pPanel->GetItem()->m_pOperation;
    return m_iComponent < 0 ? operation.GetText(*m_pProperty)
                            : operation.GetComponent(*m_pProperty, m_iComponent);
}

void sPropertyBinding::Write(const std::string& text, CInspectorDataElement* element) const
{
    CGraphDocument& document = m_pPanel->GetDocument();
    sGraphItem* item = m_pPanel->GetItem();
    const sWriteResult result = m_iComponent < 0
                                    ? document.SetText(item, *m_pProperty, text)
                                    : document.SetComponent(item, *m_pProperty, m_iComponent, text);
    m_pPanel->OnValueWritten(element, *m_pProperty, result);
}

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
    m_binding.Write(GetStrCurrentValue(), this);
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
    SetValue(m_binding.Read() == "true");
}

void CBoolPropertyElement::InternalValueChanged()
{
    m_binding.Write(GetValue() ? "true" : "false", this);
}

CEnumPropertyElement::CEnumPropertyElement(const sPropertyBinding& binding) : m_binding(binding)
{
    SetReadOnly(binding.m_pProperty->m_bReadOnly);
    CreateEnum();
    for (const std::string& nickname : binding.m_pProperty->m_vNicknames)
        AddEnum(nickname.c_str(), nickname.c_str());
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
    m_binding.Write(GetStrCurrentValue(), this);
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
    m_color = m_binding.m_pPanel->GetItem()->m_pOperation->GetColor(*m_binding.m_pProperty);
}

void CSwatchElement::PickColor()
{
    m_binding.m_pPanel->PickColor(*m_binding.m_pProperty, m_color);
}
