#include <booldataelement.h>

#include <qtsimpleboolwidget.h>

CBoolDataElement::CBoolDataElement() = default;
CBoolDataElement::CBoolDataElement(const CBoolDataElement& other) = default;
CBoolDataElement& CBoolDataElement::operator=(const CBoolDataElement& other) = default;
CBoolDataElement::~CBoolDataElement() = default;

const char* CBoolDataElement::GetType()
{
    return "qt.bool.data";
}

void CBoolDataElement::Connect()
{
    m_bValue = false;
}

void CBoolDataElement::Disconnect()
{
}

void CBoolDataElement::OnCtrlValueChange()
{
    auto* widget = dynamic_cast<CQTSimpleBoolWidget*>(m_pWidget);
    if (!widget || widget->GetValue() == m_bValue)
        return;
    m_bValue = widget->GetValue();
    InternalValueChanged();
}

bool CBoolDataElement::GetValue()
{
    return m_bValue;
}

void CBoolDataElement::SetValue(bool value)
{
    m_bValue = value;
}
