#include "reference_layout.h"

#include <algorithm>

namespace
{

/// The value that 32 bits keep of a result.
int Wrap(std::int64_t value)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

int Add(int a, int b)
{
    return Wrap(std::int64_t{a} + b);
}

int Subtract(int a, int b)
{
    return Wrap(std::int64_t{a} - b);
}

int Percent(int percent, int reference)
{
    return Wrap(std::int64_t{percent} * reference) / 100;
}

/// The gaps between the controls of a container: two pixels each, and minus two for none at all.
int Gaps(std::size_t controls)
{
    return 2 * (static_cast<int>(controls) - 1);
}

int RequestedMin(const std::shared_ptr<sReferenceRequest>& request, int reference)
{
    return request ? request->Min(reference) : -1;
}

int RequestedMax(const std::shared_ptr<sReferenceRequest>& request, int reference)
{
    return request ? request->Max(reference) : -1;
}

int ControlMin(const sReferenceControl& control, int reference)
{
    const int min = RequestedMin(control.m_pRequest, reference);
    return min == -1 ? control.m_iRequiredWidth : min;
}

int ControlMax(const sReferenceControl& control, int reference)
{
    const int max = RequestedMax(control.m_pRequest, reference);
    return max == -1 ? reference : max;
}

bool WantsNoLabel(const sReferenceNode& row)
{
    const auto& request =
        row.m_eKind == eReferenceControlRow ? row.m_vControls.front().m_pRequest : row.m_pRequest;
    return request && (request->m_iOptions & 1) != 0;
}

} // namespace

int sReferenceRequest::Min(int reference) const
{
    if (m_iOwnMinPart != 0)
        return reference / m_iOwnMinPart;
    return m_bRelativeMin ? Percent(m_iMin, reference) : m_iMin;
}

int sReferenceRequest::Max(int reference) const
{
    if (m_iOwnMaxPart != 0)
        return reference / m_iOwnMaxPart;
    return m_bRelativeMax ? Percent(m_iMax, reference) : m_iMax;
}

int sReferenceControl::RequiredHeight(int width) const
{
    return m_iHeightDivisor == 0 ? m_iRequiredHeight
                                 : Add(m_iRequiredHeight, width / m_iHeightDivisor);
}

sReferenceMetrics sReferenceMetrics::Preview()
{
    return {0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
}

void CReferenceLayout::Compute()
{
    int y = m_metrics.m_iInspectorTop;
    Stack(m_vNodes, m_metrics.m_iInspectorLeft,
          Subtract(m_iInspectorWidth, m_metrics.m_iInspectorRight), y);
    if (m_bPreview)
        PreviewWidths();
    else
        ComputeWidths();
    m_iContentHeight = Add(y, m_metrics.m_iInspectorBottom);
    if (m_iInspectorHeight == -1)
        m_iInspectorHeight = m_iContentHeight;
}

void CReferenceLayout::Stack(std::vector<sReferenceNode>& nodes, int left, int right, int& y)
{
    const int start = y;
    for (sReferenceNode& node : nodes)
    {
        if (m_bPreview)
            y = start;
        node.m_iX = left;
        node.m_iY = y;
        node.m_iWidth = Subtract(right, left);
        if (node.IsRow())
        {
            int tallest = 0;
            for (std::size_t i = 0; i < node.m_vControls.size(); ++i)
            {
                const int height = node.m_vControls[i].RequiredHeight(node.m_iWidth);
                tallest = i == 0 ? height : std::max(tallest, height);
            }
            y = m_bPreview ? std::max(y, tallest) : Add(y, tallest);
        }
        else if (!node.m_vChildren.empty() && m_bPreview)
        {
            Stack(node.m_vChildren, left, right, y);
        }
        else if (!node.m_vChildren.empty())
        {
            y = Add(y, m_metrics.m_iGroupTop);
            if (!node.m_sName.empty())
                y = Add(y, m_metrics.m_iGroupLabel);
            Stack(node.m_vChildren, Add(left, m_metrics.m_iGroupLeft),
                  Subtract(right, m_metrics.m_iGroupRight), y);
            y = Add(y, m_metrics.m_iGroupBottom);
        }
        node.m_iHeight = Subtract(y, node.m_iY);
        if (!m_bPreview)
            y = Add(y, m_metrics.m_iGap);
    }
}

void CReferenceLayout::ComputeWidths()
{
    if (!m_bPreview)
    {
        AlignLevel(m_vNodes);
        return;
    }
    // In preview mode every node is an entry of its own, parents first.
    std::vector<sReferenceNode*> all;
    Flatten(m_vNodes, all);
    for (sReferenceNode* node : all)
    {
        if (node->IsRow())
            AloneRow(*node);
        else
            Run(node->m_vChildren);
    }
}

void CReferenceLayout::AlignLevel(std::vector<sReferenceNode>& nodes)
{
    const auto rows = std::count_if(nodes.begin(), nodes.end(),
                                    [](const sReferenceNode& node) { return node.IsRow(); });
    const bool run = m_bAlignLabels && rows > 1;
    if (run)
        Run(nodes);
    for (sReferenceNode& node : nodes)
    {
        if (!node.IsRow())
            AlignLevel(node.m_vChildren);
        else if (!run)
            AloneRow(node);
    }
}

void CReferenceLayout::AloneRow(sReferenceNode& row)
{
    const int width = row.m_iWidth;
    int min = 0;
    int max = 0;
    if (row.m_eKind == eReferenceControlRow)
    {
        min = ControlMin(row.m_vControls.front(), width);
        max = ControlMax(row.m_vControls.front(), width);
    }
    else
    {
        min = Gaps(row.m_vControls.size());
        for (const sEntry& entry : Entries(row))
        {
            min = Add(min, entry.m_iMin);
            max = Add(max, entry.m_iMax);
        }
        const int ownMin = RequestedMin(row.m_pRequest, width);
        const int ownMax = RequestedMax(row.m_pRequest, width);
        min = ownMin == -1 ? min : ownMin;
        max = ownMax == -1 ? max : ownMax;
    }
    const int measured = row.m_iMeasuredLabel;
    row.m_iLabelWidth = measured;
    if (Add(min, measured) > width)
        row.m_iLabelWidth = 0;
    if (Add(max, measured) < width)
        row.m_iLabelWidth = Subtract(width, max);
    if (m_bPreview)
        row.m_iLabelWidth = 0;
    PlaceRow(row);
}

void CReferenceLayout::Run(std::vector<sReferenceNode>& nodes)
{
    std::vector<sReferenceNode*> rows;
    std::vector<int> asked;
    std::vector<int> allowed;
    for (sReferenceNode& row : nodes)
    {
        if (!row.IsRow())
            continue;
        const int width = row.m_iWidth;
        const int own = m_bPreview ? 0 : row.m_iMeasuredLabel;
        int min = 0;
        int max = 0;
        for (const sReferenceControl& control : row.m_vControls)
        {
            min = Add(min, ControlMin(control, width));
            max = Add(max, ControlMax(control, width));
        }
        if (row.m_eKind == eReferenceContainerRow)
        {
            if (!row.m_vControls.empty())
                min = Add(min, Gaps(row.m_vControls.size()));
            const int ownMin = RequestedMin(row.m_pRequest, width);
            const int ownMax = RequestedMax(row.m_pRequest, width);
            min = ownMin == -1 ? min : ownMin;
            max = ownMax == -1 ? max : ownMax;
        }
        rows.push_back(&row);
        allowed.push_back(Subtract(width, min));
        if (own > allowed.back())
            asked.push_back(0);
        else if (Add(own, max) < width)
            asked.push_back(Subtract(width, max));
        else
            asked.push_back(own);
    }
    if (rows.empty())
        return;
    const int common = std::min(*std::max_element(asked.begin(), asked.end()),
                                *std::min_element(allowed.begin(), allowed.end()));
    for (sReferenceNode* row : rows)
    {
        row->m_iLabelWidth = WantsNoLabel(*row) || m_bPreview ? 0 : common;
        PlaceRow(*row);
    }
}

void CReferenceLayout::PlaceRow(sReferenceNode& row)
{
    const sReferenceRect rect = {Add(row.m_iX, row.m_iLabelWidth), row.m_iY,
                                 Subtract(row.m_iWidth, row.m_iLabelWidth), row.m_iHeight};
    if (row.m_eKind == eReferenceControlRow)
    {
        row.m_vControls.front().m_rect = rect;
        return;
    }
    row.m_rectContainer = rect;
    ShareOut(row, Entries(row));
}

std::vector<CReferenceLayout::sEntry> CReferenceLayout::Entries(sReferenceNode& row)
{
    std::vector<sEntry> entries;
    for (sReferenceControl& control : row.m_vControls)
    {
        int min = ControlMin(control, row.m_iWidth);
        if (min == -1 && RequestedMin(control.m_pRequest, row.m_iWidth) == -1)
            min = 0;
        const int max = ControlMax(control, row.m_iWidth);
        entries.push_back({min, max, min, Subtract(max, min), &control});
    }
    return entries;
}

void CReferenceLayout::ShareOut(sReferenceNode& row, std::vector<sEntry> entries)
{
    int available = Subtract(Subtract(row.m_iWidth, row.m_iLabelWidth), Gaps(entries.size()));
    int growable = 0;
    std::vector<sEntry*> byRoom;
    for (sEntry& entry : entries)
    {
        available = Subtract(available, entry.m_iWidth);
        growable += entry.m_iRoom > 0 ? 1 : 0;
        byRoom.push_back(&entry);
    }
    std::stable_sort(byRoom.begin(), byRoom.end(),
                     [](const sEntry* a, const sEntry* b) { return a->m_iRoom < b->m_iRoom; });
    for (sEntry* entry : byRoom)
    {
        if (entry->m_iRoom == 0)
            continue;
        if (available < 1 || growable == 0)
            break;
        int share = available / growable;
        if (Add(entry->m_iWidth, share) > entry->m_iMax)
            share = Subtract(entry->m_iMax, entry->m_iWidth);
        entry->m_iWidth = Add(entry->m_iWidth, share);
        available = Subtract(available, share);
        --growable;
    }
    int x = row.m_rectContainer.m_iX;
    for (sEntry& entry : entries)
    {
        entry.m_pControl->m_rect = {x, row.m_rectContainer.m_iY, entry.m_iWidth,
                                    row.m_rectContainer.m_iHeight};
        x = Add(Add(x, entry.m_iWidth), 2);
    }
}

void CReferenceLayout::Flatten(std::vector<sReferenceNode>& nodes,
                               std::vector<sReferenceNode*>& out)
{
    for (sReferenceNode& node : nodes)
    {
        out.push_back(&node);
        Flatten(node.m_vChildren, out);
    }
}

void CReferenceLayout::PreviewWidths()
{
    std::vector<sReferenceNode*> all;
    Flatten(m_vNodes, all);

    int labels = 0;
    int wishSum = 0;
    std::vector<int> wishes;
    for (sReferenceNode* node : all)
    {
        node->m_iLabelWidth = node->IsRow() ? node->m_iMeasuredLabel : 0;
        labels = Add(labels, node->m_iLabelWidth);
        for (const sReferenceControl& control : node->m_vControls)
        {
            wishes.push_back(ControlMin(control, m_iInspectorWidth));
            if (wishes.back() > 0)
                wishSum = Add(wishSum, wishes.back());
        }
    }

    int mode = 0;
    if (Add(wishSum, labels) > m_iInspectorWidth || all.size() == 1)
        mode = wishSum < m_iInspectorWidth ? 1 : 2;

    int shares = static_cast<int>(wishes.size());
    if (mode == 2)
    {
        shares = 0;
        int sum = 0;
        for (int wish : wishes)
        {
            sum = Add(sum, wish == -1 ? 20 : wish);
            if (sum >= m_iInspectorWidth)
                break;
            ++shares;
        }
    }
    shares = std::max(shares, 1);

    const int share = Subtract(m_iInspectorWidth, mode == 0 ? labels : 0) / shares;
    int x = 0;
    int remaining = m_iInspectorWidth;
    for (sReferenceNode* node : all)
    {
        if (remaining < 1)
            break;
        if (mode != 0)
            node->m_iLabelWidth = 0;
        if (!node->IsRow())
            continue;
        node->m_iX = x;
        node->m_iWidth = node->m_iLabelWidth;
        x = Add(x, node->m_iLabelWidth);
        node->m_rectContainer = {x, 0, 0, node->m_iHeight};
        for (sReferenceControl& control : node->m_vControls)
        {
            control.m_rect = {x, 0, share, node->m_iHeight};
            node->m_rectContainer.m_iWidth = Add(node->m_rectContainer.m_iWidth, share);
            node->m_iWidth = Add(node->m_iWidth, share);
            x = Add(x, share);
        }
        remaining = Subtract(remaining, node->m_iWidth);
    }
}
