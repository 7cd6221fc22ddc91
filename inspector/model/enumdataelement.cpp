#include <enumdataelement.h>

CEnumDataElement::CEnumDataElement() = default;
CEnumDataElement::CEnumDataElement(const CEnumDataElement& other) = default;
CEnumDataElement& CEnumDataElement::operator=(const CEnumDataElement& other) = default;

CEnumDataElement::~CEnumDataElement()
{
    ReleaseDefinition();
}

const char* CEnumDataElement::GetType()
{
    return "qt.simple.enum";
}

void CEnumDataElement::GetDisplayString(const char* value, std::string& out)
{
    out.clear();
    if (!m_pDefinition || !value)
        return;
    const auto entry = m_pDefinition->m_mapDisplay.find(value);
    if (entry != m_pDefinition->m_mapDisplay.end())
        out = entry->second;
}

void CEnumDataElement::CreateEnum()
{
    ReleaseDefinition();
    m_pDefinition = new sEnumDefinition;
    m_bOwnsDefinition = true;
}

void CEnumDataElement::SetExternalEnum(sEnumDefinition* definition)
{
    if (definition != m_pDefinition)
        ReleaseDefinition();
    m_pDefinition = definition;
    m_bOwnsDefinition = false;
}

CEnumDataElement::sEnumDefinition* CEnumDataElement::GetDefinition()
{
    return m_pDefinition;
}

void CEnumDataElement::AddEnum(const char* value, const char* display)
{
    if (!m_pDefinition || !value || !display)
        return;
    m_pDefinition->m_mapDisplay[value] = display;
    m_pDefinition->m_vEntries.emplace_back(value, display);
}

void CEnumDataElement::ClearEnum()
{
    if (m_pDefinition)
        m_pDefinition->m_mapDisplay.clear();
}

void CEnumDataElement::ReleaseDefinition()
{
    if (m_bOwnsDefinition)
        delete m_pDefinition;
    m_pDefinition = nullptr;
    m_bOwnsDefinition = false;
}
