#include <inspectorview.h>

#include "bounds.h"
#include "checkedlist.h"
#include "pixels.h"

#include <algorithm>
#include <iterator>

using pixels::Difference;
using pixels::Product;
using pixels::Sum;

namespace
{

int GapsBetween(std::size_t controls)
{
    return Product(g_iContainerGap, Difference(static_cast<int>(controls), 1));
}

/// The bounds of a container in a run of rows, from its controls where it has none of its own.
sBounds ContainerBounds(const CInspectorView::sInspectorHolder& container, int width)
{
    sBounds bounds{RequestedMin(container, width), RequestedMax(container, width)};
    if (bounds.m_iMin == g_iNotGiven)
    {
        bounds.m_iMin =
            container.m_lChildren.empty() ? 0 : GapsBetween(container.m_lChildren.size());
        for (const auto* control : container.m_lChildren)
        {
            const int requested = RequestedMin(*control, width);
            bounds.m_iMin =
                Sum(bounds.m_iMin, requested == g_iNotGiven ? RequiredWidth(*control) : requested);
        }
    }
    if (bounds.m_iMax == g_iNotGiven)
    {
        // The gaps are left out on purpose: a container full of capped controls ends at their sum.
        bounds.m_iMax = 0;
        for (const auto* control : container.m_lChildren)
        {
            const int requested = RequestedMax(*control, width);
            bounds.m_iMax = Sum(bounds.m_iMax, requested == g_iNotGiven ? width : requested);
        }
    }
    return bounds;
}

bool WantsNoLabel(const CInspectorView::sInspectorElement& row)
{
    CInspectorView::sRequestSize* request = row.m_pHolder->m_pRequest;
    return request && (request->GetOptions() & CInspectorView::eRequestOptionNoLabel) != 0;
}

} // namespace

void CInspectorView::recBuildListElementToComputeWidth(sInspectorElement* parent,
                                                       std::list<sInspectorElement*>& list)
{
    std::list<sInspectorElement>& children = parent ? parent->m_lChildren : m_lElements;
    if (m_bPreview)
    {
        for (sInspectorElement& child : children)
        {
            Append(list, &child);
            if (child.m_iKind != eElementRow)
                recBuildListElementToComputeWidth(&child, list);
        }
        return;
    }
    const auto isRow = [](const sInspectorElement& child) { return child.m_iKind == eElementRow; };
    const auto findRow = [&](auto from) { return std::find_if(from, children.end(), isRow); };
    const auto first = findRow(children.begin());
    const bool isRun =
        m_bAlignLabels && first != children.end() && findRow(std::next(first)) != children.end();
    if (isRun)
        Prepend(list, parent);
    for (sInspectorElement& child : children)
    {
        if (!isRow(child))
            recBuildListElementToComputeWidth(&child, list);
        else if (!isRun)
            Append(list, &child);
    }
}

void CInspectorView::ComputeHoldersWidth()
{
    std::list<sInspectorElement*> list;
    recBuildListElementToComputeWidth(nullptr, list);
    for (sInspectorElement* entry : list)
    {
        if (entry && entry->m_iKind == eElementRow)
            ComputeRowWidth(*entry);
        else
            ComputeRunWidths(entry ? entry->m_lChildren : m_lElements);
    }
}

void CInspectorView::ComputeRowWidth(sInspectorElement& row)
{
    const int width = row.m_iWidth;
    const int ownLabel = GetElementLabelWidth(&row);
    std::list<sPositionHolder> controls;
    int growable = 0;
    int minimums = 0;
    sBounds bounds{};
    if (IsContainer(row))
    {
        BuildPositionHolderListFromContainer(&row, controls);
        int maximums = 0;
        for (const sPositionHolder& control : controls)
        {
            minimums = Sum(minimums, control.m_iMin);
            maximums = Sum(maximums, control.m_iMax);
            growable += control.m_iRoom > 0;
        }
        minimums = Sum(minimums, GapsBetween(controls.size()));
        bounds = {RequestedMin(*row.m_pHolder, width), RequestedMax(*row.m_pHolder, width)};
        if (bounds.m_iMin == g_iNotGiven)
            bounds.m_iMin = minimums;
        if (bounds.m_iMax == g_iNotGiven)
            bounds.m_iMax = maximums;
    }
    else
        bounds = ControlBounds(*row.m_pHolder, width);

    int label = ownLabel;
    if (Sum(bounds.m_iMin, ownLabel) > width)
        label = 0;
    // The label column takes up what the control cannot use.
    if (Sum(bounds.m_iMax, ownLabel) < width)
        label = Difference(width, bounds.m_iMax);
    PlaceRow(row, m_bPreview ? 0 : label);
    if (IsContainer(row))
        PositionChildrenInContainer(
            &row, controls, Difference(Difference(width, row.m_iLabelWidth), minimums), growable);
}

void CInspectorView::ComputeRunWidths(std::list<sInspectorElement>& rows)
{
    bool isFirst = true;
    int widestAsked = -1;
    int leastAllowed = -1;
    for (sInspectorElement& row : rows)
    {
        if (row.m_iKind != eElementRow)
            continue;
        const int width = row.m_iWidth;
        const int ownLabel = m_bPreview ? 0 : GetElementLabelWidth(&row);
        const sBounds bounds = IsContainer(row) ? ContainerBounds(*row.m_pHolder, width)
                                                : ControlBounds(*row.m_pHolder, width);
        const int allowed = Difference(width, bounds.m_iMin);
        int asked = ownLabel;
        if (ownLabel > allowed)
            asked = 0;
        else if (Sum(ownLabel, bounds.m_iMax) < width)
            asked = Difference(width, bounds.m_iMax);
        widestAsked = isFirst ? asked : std::max(widestAsked, asked);
        leastAllowed = isFirst ? allowed : std::min(leastAllowed, allowed);
        isFirst = false;
    }
    const int common = std::min(widestAsked, leastAllowed);
    for (sInspectorElement& row : rows)
    {
        if (row.m_iKind != eElementRow)
            continue;
        PlaceRow(row, WantsNoLabel(row) || m_bPreview ? 0 : common);
        if (!IsContainer(row))
            continue;
        std::list<sPositionHolder> controls;
        BuildPositionHolderListFromContainer(&row, controls);
        PositionChildrenInContainer(&row, controls, -1, -1);
    }
}

void CInspectorView::PlaceRow(sInspectorElement& row, int labelWidth)
{
    row.m_iLabelWidth = labelWidth;
    row.m_pHolder->m_iWidth = Difference(row.m_iWidth, labelWidth);
    row.m_pHolder->m_iX = Sum(row.m_iX, labelWidth);
    row.m_pHolder->m_iY = row.m_iY;
    row.m_pHolder->m_iHeight = row.m_iHeight;
}

void CInspectorView::BuildPositionHolderListFromContainer(sInspectorElement* container,
                                                          std::list<sPositionHolder>& list)
{
    list.clear();
    int index = 0;
    for (sInspectorHolder* holder : container->m_pHolder->m_lChildren)
    {
        sBounds bounds = ControlBounds(*holder, container->m_iWidth);
        // Only a required width can still be missing: a control without any wish starts at nothing.
        if (bounds.m_iMin == g_iNotGiven)
            bounds.m_iMin = 0;
        sPositionHolder entry;
        entry.m_iMin = bounds.m_iMin;
        entry.m_iMax = bounds.m_iMax;
        entry.m_pHolder = holder;
        entry.m_iWidth = bounds.m_iMin;
        entry.m_iRoom = Difference(bounds.m_iMax, bounds.m_iMin);
        entry.m_iIndex = index++;
        Append(list, entry);
    }
}

void CInspectorView::PositionChildrenInContainer(sInspectorElement* container,
                                                 std::list<sPositionHolder>& list, int available,
                                                 int growable)
{
    if (available == -1 || growable == -1)
    {
        growable = 0;
        available = Difference(container->m_iWidth, container->m_iLabelWidth);
        for (const sPositionHolder& entry : list)
        {
            growable += entry.m_iRoom > 0;
            available = Difference(available, entry.m_iWidth);
        }
        available = Difference(available, GapsBetween(list.size()));
    }
    // Those with the least room are served first, so that what they cannot take is passed on.
    list.sort([](const sPositionHolder& a, const sPositionHolder& b)
              { return a.m_iRoom < b.m_iRoom; });
    for (sPositionHolder& entry : list)
    {
        if (entry.m_iRoom == 0)
            continue;
        if (available < 1 || growable == 0)
            break;
        int share = available / growable;
        if (Sum(entry.m_iWidth, share) > entry.m_iMax)
            share = Difference(entry.m_iMax, entry.m_iWidth);
        entry.m_iWidth = Sum(entry.m_iWidth, share);
        available = Difference(available, share);
        --growable;
    }
    list.sort([](const sPositionHolder& a, const sPositionHolder& b)
              { return a.m_iIndex < b.m_iIndex; });
    int x = container->m_pHolder->m_iX;
    for (const sPositionHolder& entry : list)
    {
        sInspectorHolder& holder = *entry.m_pHolder;
        holder.m_iX = x;
        holder.m_iY = container->m_pHolder->m_iY;
        holder.m_iWidth = entry.m_iWidth;
        holder.m_iHeight = container->m_pHolder->m_iHeight;
        x = Sum(x, entry.m_iWidth, g_iContainerGap);
    }
}
