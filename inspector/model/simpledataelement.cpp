#include <simpledataelement.h>

#include <inspectordatawidget.h>

#include <cassert>
#include <utility>

CSimpleDataElement::CSimpleDataElement() = default;
CSimpleDataElement::CSimpleDataElement(const CSimpleDataElement& other) = default;
CSimpleDataElement& CSimpleDataElement::operator=(const CSimpleDataElement& other) = default;
CSimpleDataElement::~CSimpleDataElement() = default;

const char* CSimpleDataElement::GetType()
{
    return "qt.simple.data";
}

void CSimpleDataElement::Connect()
{
    // A host that forgets to set a value sees this word instead of an empty field.
    m_sValue = "Default";
}

void CSimpleDataElement::Disconnect()
{
    m_sValue.clear();
}

void CSimpleDataElement::InternalValueChanged()
{
}

void CSimpleDataElement::OnCtrlValueChange()
{
    if (IsReadOnly())
        return;
    ISimpleDataProvider* provider = GetSafeControlDataProvider();
    assert(provider && "CSimpleDataElement::OnCtrlValueChange: no providing widget is bound");
    std::string text;
    provider->GetDataAsString(text);
    if (text == m_sValue)
        return;
    m_sValue = std::move(text);
    InternalValueChanged();
}

const std::string& CSimpleDataElement::GetStrCurrentValue() const
{
    return m_sValue;
}

void CSimpleDataElement::SetStrCurrentValue(const std::string& value)
{
    m_sValue = value;
}

void CSimpleDataElement::GetDataAsString(std::string& out)
{
    out = m_sValue;
}

ISimpleDataProvider* CSimpleDataElement::GetSafeControlDataProvider()
{
    return dynamic_cast<ISimpleDataProvider*>(m_pWidget);
}
