#include "bounds.h"

#include <inspectordatawidget.h>

int RequestedMin(const CInspectorView::sInspectorHolder& holder, int reference)
{
    return holder.m_pRequest ? holder.m_pRequest->GetMinValue(reference) : g_iNotGiven;
}

int RequestedMax(const CInspectorView::sInspectorHolder& holder, int reference)
{
    return holder.m_pRequest ? holder.m_pRequest->GetMaxValue(reference) : g_iNotGiven;
}

int RequiredWidth(const CInspectorView::sInspectorHolder& holder)
{
    CInspectorDataWidget* widget = holder.GetWidget();
    return widget ? widget->GetRequiredWidth() : g_iNotGiven;
}

sBounds ControlBounds(const CInspectorView::sInspectorHolder& holder, int reference)
{
    sBounds bounds{RequestedMin(holder, reference), RequestedMax(holder, reference)};
    if (bounds.m_iMin == g_iNotGiven)
        bounds.m_iMin = RequiredWidth(holder);
    if (bounds.m_iMax == g_iNotGiven)
        bounds.m_iMax = reference;
    return bounds;
}
