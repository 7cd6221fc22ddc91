#include <inspectorview.h>

#include "bounds.h"
#include "pixels.h"

#include <algorithm>
#include <vector>

using pixels::Difference;
using pixels::Product;
using pixels::Sum;

namespace
{

/// How the strip is cut.
enum eStripMode
{
    eStripFits,          ///< labels and controls fit
    eStripWithoutLabels, ///< the controls fit once the labels are left out
    eStripTruncated,     ///< only the first controls fit
};

/// What a control without a wish counts when the controls that fit are counted.
constexpr int g_iWishless = 20;

int Wish(const CInspectorView::sInspectorHolder& control, int reference)
{
    const int requested = RequestedMin(control, reference);
    return requested == g_iNotGiven ? RequiredWidth(control) : requested;
}

int CountShares(const std::vector<int>& wishes, int width)
{
    int sum = 0;
    int count = 0;
    for (int wish : wishes)
    {
        sum = Sum(sum, wish == g_iNotGiven ? g_iWishless : wish);
        if (sum >= width)
            break;
        ++count;
    }
    return count;
}

/// Gives every control of a container the same share, without gaps.
void CutContainer(const CInspectorView::sInspectorHolder& container, int share)
{
    int x = container.m_iX;
    for (CInspectorView::sInspectorHolder* control : container.m_lChildren)
    {
        control->m_iX = x;
        control->m_iY = container.m_iY;
        control->m_iWidth = share;
        control->m_iHeight = container.m_iHeight;
        x = Sum(x, share);
    }
}

} // namespace

void CInspectorView::ComputeHoldersWidthForPreview()
{
    const int width = m_iInspectorWidth;
    std::list<sInspectorElement*> list;
    recBuildListElementToComputeWidth(nullptr, list);

    int labelSum = 0;
    std::vector<int> wishes;
    for (sInspectorElement* node : list)
    {
        node->m_iLabelWidth = GetElementLabelWidth(node);
        if (node->m_iKind != eElementRow)
        {
            node->m_iLabelWidth = 0;
            continue;
        }
        labelSum = Sum(labelSum, node->m_iLabelWidth);
        if (!IsContainer(*node))
            wishes.push_back(Wish(*node->m_pHolder, width));
        else
        {
            for (const sInspectorHolder* control : node->m_pHolder->m_lChildren)
                wishes.push_back(Wish(*control, width));
        }
    }
    int wishSum = 0;
    for (int wish : wishes)
    {
        if (wish > 0)
            wishSum = Sum(wishSum, wish);
    }

    eStripMode mode = eStripFits;
    if (Sum(wishSum, labelSum) > width || list.size() == 1)
        mode = wishSum < width ? eStripWithoutLabels : eStripTruncated;
    const int shares = std::max(1, mode == eStripTruncated ? CountShares(wishes, width)
                                                           : static_cast<int>(wishes.size()));

    int x = 0;
    int remaining = width;
    for (sInspectorElement* node : list)
    {
        if (remaining < 1)
            break;
        if (mode != eStripFits)
        {
            node->m_iLabelWidth = 0;
            labelSum = 0;
        }
        if (node->m_iKind != eElementRow)
            continue;
        const int share = Difference(width, labelSum) / shares;
        sInspectorHolder& holder = *node->m_pHolder;
        const int controls = IsContainer(*node) ? static_cast<int>(holder.m_lChildren.size()) : 1;
        node->m_iX = x;
        node->m_iWidth = Sum(Product(share, controls), node->m_iLabelWidth);
        holder.m_iX = Sum(x, node->m_iLabelWidth);
        holder.m_iWidth = Difference(node->m_iWidth, node->m_iLabelWidth);
        holder.m_iY = 0;
        holder.m_iHeight = node->m_iHeight;
        if (IsContainer(*node))
            CutContainer(holder, share);
        x = Sum(x, node->m_iWidth);
        remaining = Difference(remaining, node->m_iWidth);
    }
}
