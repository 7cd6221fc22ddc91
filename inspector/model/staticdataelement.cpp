#include <staticdataelement.h>

#include "textorempty.h"

CStaticDataElement::CStaticDataElement() = default;
CStaticDataElement::CStaticDataElement(const char* text, int flags)
    : m_sText(TextOrEmpty(text)), m_iFlags(flags)
{
}
CStaticDataElement::CStaticDataElement(const CStaticDataElement& other) = default;
CStaticDataElement& CStaticDataElement::operator=(const CStaticDataElement& other) = default;
CStaticDataElement::~CStaticDataElement() = default;

const char* CStaticDataElement::GetType()
{
    return "qt.static.data";
}

void CStaticDataElement::SetText(const char* text)
{
    m_sText = TextOrEmpty(text);
}

std::string CStaticDataElement::GetText()
{
    return m_sText;
}

void CStaticDataElement::SetFlags(int flags)
{
    m_iFlags = flags;
}

int CStaticDataElement::GetFlags()
{
    return m_iFlags;
}
