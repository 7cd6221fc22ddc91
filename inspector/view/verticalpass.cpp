#include <inspectorview.h>

#include <inspectordatawidget.h>

#include "pixels.h"
#include "placingloop.h"

#include <algorithm>

using pixels::Difference;
using pixels::Sum;

namespace
{

int RequiredHeight(const CInspectorView::sInspectorHolder& holder, int width)
{
    CInspectorDataWidget* widget = holder.GetWidget();
    return widget ? widget->GetRequiredHeight(width) : 0;
}

int RowHeight(const CInspectorView::sInspectorElement& row)
{
    const CInspectorView::sInspectorHolder* holder = row.m_pHolder;
    if (!holder)
        return 0;
    if (holder->m_iKind != CInspectorView::eHolderContainer)
        return RequiredHeight(*holder, row.m_iWidth);
    // Every control is asked with the full width of the row, not with its own share.
    const auto& controls = holder->m_lChildren;
    if (controls.empty())
        return 0;
    int height = RequiredHeight(*controls.front(), row.m_iWidth);
    for (auto control = std::next(controls.begin()); control != controls.end(); ++control)
        height = std::max(height, RequiredHeight(**control, row.m_iWidth));
    return height;
}

} // namespace

void CInspectorView::RecomputeLayout()
{
    m_iContentHeight = 0;
    m_bStacked = !m_bPreview;
    int left = GetInspectorLeftMargin();
    int right = Difference(m_iInspectorWidth, GetInspectorRightMargin());
    int y = GetInspectorTopMargin();
    recRecomputeLayout(m_lElements, left, right, y);
    if (m_bPreview)
        ComputeHoldersWidthForPreview();
    else
        ComputeHoldersWidth();
    y = Sum(y, GetInspectorBottomMargin());
    m_iContentHeight = y;
    if (m_iInspectorHeight == -1)
        m_iInspectorHeight = y;
    ForEachControlHolder([this](sInspectorHolder& holder) { PositionControl(&holder); });
    UpdateView();
    OnContentHeightSet();
}

void CInspectorView::Advance(int& y, int by)
{
    const int from = y;
    y = Sum(y, by);
    m_bStacked = m_bStacked && y >= from;
}

void CInspectorView::recRecomputeLayout(std::list<sInspectorElement>& list, int& left, int& right,
                                        int& y)
{
    const int top = y;
    for (sInspectorElement& node : list)
    {
        // In preview mode all nodes of one level start on the same line.
        if (m_bPreview)
            y = top;
        node.m_iX = left;
        node.m_iY = y;
        node.m_iWidth = Difference(right, left);
        if (node.m_iKind == eElementRow)
        {
            const int height = RowHeight(node);
            if (m_bPreview)
                y = std::max(y, height);
            else
                Advance(y, height);
        }
        else if (!node.m_lChildren.empty() && m_bPreview)
            recRecomputeLayout(node.m_lChildren, left, right, y);
        else if (!node.m_lChildren.empty())
        {
            left = Sum(left, GetGroupLeftMargin());
            right = Difference(right, GetGroupRightMargin());
            Advance(y, GetGroupTopMargin());
            if (!node.m_sName.empty())
                Advance(y, GetGroupLabelHeight());
            recRecomputeLayout(node.m_lChildren, left, right, y);
            Advance(y, GetGroupBottomMargin());
            right = Sum(right, GetGroupRightMargin());
            left = Difference(left, GetGroupLeftMargin());
        }
        node.m_iHeight = Difference(y, node.m_iY);
        m_bStacked = m_bStacked && node.m_iHeight > 0;
        if (!m_bPreview)
            Advance(y, GetHeightBetweenControl());
    }
}
