#include <inspectorview.h>

#include "pixels.h"

namespace
{

int Resolve(CInspectorView::eRequestSizeType type, int value, int reference)
{
    // Any type but absolute counts as relative.
    if (type == CInspectorView::eRequestSizeAbsolute)
        return value;
    return pixels::Product(value, reference) / 100;
}

} // namespace

CInspectorView::sRequestSize::sRequestSize() = default;
CInspectorView::sRequestSize::sRequestSize(const sRequestSize& other) = default;
CInspectorView::sRequestSize&
CInspectorView::sRequestSize::operator=(const sRequestSize& other) = default;

void CInspectorView::sRequestSize::CopyValue(sRequestSize* source)
{
    *this = *source;
}

void CInspectorView::sRequestSize::SetMinValue(eRequestSizeType type, int value)
{
    m_eMinType = type;
    m_iMin = value;
}

void CInspectorView::sRequestSize::SetMinValueAbsolute(int value)
{
    SetMinValue(eRequestSizeAbsolute, value);
}

void CInspectorView::sRequestSize::SetMinValueRelative(int value)
{
    SetMinValue(eRequestSizeRelative, value);
}

void CInspectorView::sRequestSize::SetMaxValue(eRequestSizeType type, int value)
{
    m_eMaxType = type;
    m_iMax = value;
}

void CInspectorView::sRequestSize::SetMaxValueAbsolute(int value)
{
    SetMaxValue(eRequestSizeAbsolute, value);
}

void CInspectorView::sRequestSize::SetMaxValueRelative(int value)
{
    SetMaxValue(eRequestSizeRelative, value);
}

int CInspectorView::sRequestSize::GetOptions()
{
    return m_iOptions;
}

void CInspectorView::sRequestSize::SetOptions(int options)
{
    m_iOptions = options;
}

int CInspectorView::sRequestSize::GetMinValue(int reference)
{
    return Resolve(m_eMinType, m_iMin, reference);
}

int CInspectorView::sRequestSize::GetMaxValue(int reference)
{
    return Resolve(m_eMaxType, m_iMax, reference);
}
