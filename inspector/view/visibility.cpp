#include <inspectorview.h>

#include <inspectorcontroller.h>
#include <inspectordatawidget.h>

#include "pixels.h"
#include "placingloop.h"

#include <cassert>

void CInspectorView::PositionControl(sInspectorHolder* holder)
{
    CInspectorDataWidget* widget = holder->GetWidget();
    if (!widget)
        return;
    widget->MoveWidget(holder->m_iX, holder->m_iY);
    if (m_bContentShown)
        widget->ResizeWidget(holder->m_iWidth, holder->m_iHeight);
    else
        widget->ResizeWidget(0, 0);
}

void CInspectorView::OffsetControls(int dx, int dy)
{
    m_iOffsetX = dx;
    m_iOffsetY = dy;
    ForEachControlHolder(
        [dx, dy](const sInspectorHolder& holder)
        {
            if (CInspectorDataWidget* widget = holder.GetWidget())
                widget->MoveWidget(pixels::Difference(holder.m_iX, dx),
                                   pixels::Difference(holder.m_iY, dy));
        });
}

void CInspectorView::ShowContent(bool show, bool force)
{
    if (show == m_bContentShown && !force)
        return;
    m_bContentShown = show;
    OnToggleShowContent(show);
}

void CInspectorView::OnToggleShowContent(bool shown)
{
    ForEachControlHolder(
        [this, shown](sInspectorHolder& holder)
        {
            if (shown)
                PositionControl(&holder);
            else if (CInspectorDataWidget* widget = holder.GetWidget())
                widget->ResizeWidget(0, 0);
        });
}

void CInspectorView::DirtyView()
{
    UpdateView();
}

void CInspectorView::EnsureVisible(CInspectorDataWidget*)
{
}

void CInspectorView::OnPreDraw()
{
    if (m_pController)
        m_pController->HandleDirtyItems();
    else
        assert(m_bControllerGone && "CInspectorView::OnPreDraw: no controller was set");
}

void CInspectorView::OnContentHeightSet()
{
}
