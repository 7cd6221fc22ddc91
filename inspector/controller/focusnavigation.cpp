#include <inspectorcontroller.h>

#include <inspectordatawidget.h>
#include <inspectorview.h>

#include "focustarget.h"

#include <cassert>

void CInspectorController::GiveFocusToNextElement(CInspectorDataWidget* from)
{
    assert((m_pView || m_bViewGone) &&
           "CInspectorController::GiveFocusToNextElement: no view is set");
    if (!m_pView)
        return;
    const std::size_t count = m_pView->GetStops().size();
    const std::size_t place = m_pView->FindStop(from, true);
    StartEditingAt(place + 1 < count ? place + 1 : 0);
}

void CInspectorController::GiveFocusToPrevElement(CInspectorDataWidget* from)
{
    assert((m_pView || m_bViewGone) &&
           "CInspectorController::GiveFocusToPrevElement: no view is set");
    if (!m_pView)
        return;
    const std::size_t count = m_pView->GetStops().size();
    const std::size_t place = m_pView->FindStop(from, false);
    StartEditingAt(place == 0 ? count - 1 : place - 1);
}

void CInspectorController::StartEditingAt(std::size_t place)
{
    const auto& stops = m_pView->GetStops();
    CInspectorDataWidget* widget =
        place < stops.size() && stops[place] ? stops[place]->GetWidget() : nullptr;
    if (!widget)
        return;
    const CFocusTarget target(*this, widget);
    const bool isOwn = widget->m_pOwner == this;
    m_pView->EnsureVisible(widget);
    // The view may belong to a host that rebuilds the panel while it scrolls, be it this panel or
    // that of another controller whose rows the view shows.
    if (target.GetWidget() && m_pView && (isOwn || m_pView->IsShowing(widget)))
        widget->StartEditing();
}
