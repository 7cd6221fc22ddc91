#include "randomtree.h"

#include <climits>
#include <sstream>

namespace
{

/// A record of the host whose bounds are fractions of the reference.
struct sFraction : CInspectorView::sRequestSize
{
    sFraction(int min, int max) : m_iMinPart(min), m_iMaxPart(max) {}
    int GetMinValue(int reference) override { return reference / m_iMinPart; }
    int GetMaxValue(int reference) override { return reference / m_iMaxPart; }
    int m_iMinPart;
    int m_iMaxPart;
};

CInspectorView::sRequestSize ToRequest(const sReferenceRequest& from)
{
    CInspectorView::sRequestSize request;
    request.SetMinValue(from.m_bRelativeMin ? CInspectorView::eRequestSizeRelative
                                            : CInspectorView::eRequestSizeAbsolute,
                        from.m_iMin);
    request.SetMaxValue(from.m_bRelativeMax ? CInspectorView::eRequestSizeRelative
                                            : CInspectorView::eRequestSizeAbsolute,
                        from.m_iMax);
    request.SetOptions(from.m_iOptions);
    return request;
}

void StoreOwnRequest(CInspectorView::sInspectorHolder& holder,
                     const std::shared_ptr<sReferenceRequest>& from)
{
    if (!from || !from->IsOwn())
        return;
    auto* own = new sFraction(from->m_iOwnMinPart, from->m_iOwnMaxPart);
    own->SetOptions(from->m_iOptions);
    holder.m_pRequest = own;
}

template <typename Expected, typename Actual>
void CompareRect(std::ostream& out, const std::string& what, const Expected& expected,
                 const Actual& actual)
{
    if (!(RectOf(expected) == RectOf(actual)))
        out << what << ": expected " << RectOf(expected) << ", is " << RectOf(actual) << "\n";
}

} // namespace

CRandomTree::CRandomTree(unsigned seed, eRandomNumbers numbers)
    : m_random(seed), m_eNumbers(numbers)
{
    int budget = 1 + static_cast<int>(m_random() % 30);
    FillLevel(m_reference.m_vNodes, 0, budget);
    m_reference.m_bAlignLabels = Chance(90);
    m_view.m_bAlignLabels = m_reference.m_bAlignLabels;
    Build(m_reference.m_vNodes, nullptr);
    m_log.Clear();
}

bool CRandomTree::Chance(int percent)
{
    return static_cast<int>(m_random() % 100) < percent;
}

int CRandomTree::Number(int usualLow, int usualHigh)
{
    const auto between = [this](int low, int high)
    { return low + static_cast<int>(m_random() % static_cast<unsigned>(high - low + 1)); };
    if (m_eNumbers == eNumbersUsual)
        return between(usualLow, usualHigh);
    if (m_eNumbers == eNumbersSmall)
        return between(-4, 8);
    switch (m_random() % 6)
    {
    case 0:
        return between(usualLow, usualHigh);
    case 1:
        return between(-3, 3);
    case 2:
        return INT_MAX - between(0, 3);
    case 3:
        return INT_MIN + between(0, 3);
    default:
        return static_cast<int>(m_random());
    }
}

void CRandomTree::FillLevel(std::vector<sReferenceNode>& nodes, int depth, int& budget)
{
    for (int count = static_cast<int>(m_random() % 7); count > 0 && budget > 0; --count)
        nodes.push_back(RandomNode(depth, budget));
}

sReferenceNode CRandomTree::RandomNode(int depth, int& budget)
{
    --budget;
    sReferenceNode node;
    node.m_sName = "node" + std::to_string(m_iNodes++);
    const unsigned dice = m_random() % 100;
    if (dice < 30 && depth < 5)
    {
        node.m_eKind = eReferenceGroup;
        if (Chance(40))
            node.m_sName.clear();
        FillLevel(node.m_vChildren, depth + 1, budget);
        return node;
    }
    node.m_iMeasuredLabel = Number(0, 120);
    if (dice < 70)
    {
        node.m_eKind = eReferenceControlRow;
        node.m_vControls.push_back(RandomControl());
        return node;
    }
    node.m_eKind = eReferenceContainerRow;
    node.m_pRequest = RandomRequest();
    for (unsigned count = m_random() % 6; count > 0; --count)
        node.m_vControls.push_back(RandomControl());
    return node;
}

sReferenceControl CRandomTree::RandomControl()
{
    sReferenceControl control;
    control.m_iRequiredWidth = Chance(25) ? -1 : Number(-10, 150);
    control.m_iRequiredHeight = Number(-5, 60);
    control.m_iHeightDivisor = Chance(20) ? 1 + static_cast<int>(m_random() % 30) : 0;
    control.m_pRequest = RandomRequest();
    return control;
}

std::shared_ptr<sReferenceRequest> CRandomTree::RandomRequest()
{
    if (Chance(50))
        return nullptr;
    auto request = std::make_shared<sReferenceRequest>();
    request->m_bRelativeMin = Chance(40);
    request->m_bRelativeMax = Chance(40);
    if (Chance(60))
        request->m_iMin = Number(-20, 120);
    if (Chance(60))
        request->m_iMax = Number(-20, 200);
    if (Chance(40))
        request->m_iOptions = static_cast<int>(m_random() % 4);
    if (Chance(10))
    {
        request->m_iOwnMinPart = 1 + static_cast<int>(m_random() % 9);
        request->m_iOwnMaxPart = 1 + static_cast<int>(m_random() % 9);
    }
    return request;
}

void CRandomTree::Build(std::vector<sReferenceNode>& nodes,
                        CInspectorView::sInspectorElement* parent)
{
    for (sReferenceNode& node : nodes)
    {
        const char* name = node.m_sName.c_str();
        if (node.m_eKind == eReferenceGroup)
        {
            auto* group = m_view.AddGroup(name, parent);
            m_vNodes.emplace_back(&node, group);
            Build(node.m_vChildren, group);
            continue;
        }
        m_view.m_mapLabelWidths[node.m_sName] = node.m_iMeasuredLabel;
        if (node.m_eKind == eReferenceControlRow)
        {
            BuildControl(node.m_vControls.front(), node.m_sName, parent);
            auto& siblings = parent ? parent->m_lChildren : m_view.m_lElements;
            m_vNodes.emplace_back(&node, &siblings.back());
            continue;
        }
        CInspectorView::sInspectorElement* line = nullptr;
        if (node.m_pRequest && !node.m_pRequest->IsOwn())
        {
            CInspectorView::sRequestSize request = ToRequest(*node.m_pRequest);
            line = m_view.AddSingleLineContainer(name, &request, parent);
        }
        else
            line = m_view.AddSingleLineContainer(name, nullptr, parent);
        StoreOwnRequest(*line->m_pHolder, node.m_pRequest);
        m_vNodes.emplace_back(&node, line);
        for (sReferenceControl& control : node.m_vControls)
            BuildControl(control, node.m_sName, line);
    }
}

void CRandomTree::BuildControl(sReferenceControl& control, const std::string& name,
                               CInspectorView::sInspectorElement* parent)
{
    m_vWidgets.push_back(std::make_unique<CRecordingWidget>(m_log, name, control.m_iRequiredWidth,
                                                            control.m_iRequiredHeight));
    CRecordingWidget* widget = m_vWidgets.back().get();
    widget->m_iHeightDivisor = control.m_iHeightDivisor;
    CInspectorView::sInspectorHolder* holder = nullptr;
    if (control.m_pRequest && !control.m_pRequest->IsOwn())
    {
        CInspectorView::sRequestSize request = ToRequest(*control.m_pRequest);
        holder = m_view.AddElement(nullptr, widget, name.c_str(), &request, parent);
    }
    else
        holder = m_view.AddElement(nullptr, widget, name.c_str(), nullptr, parent);
    StoreOwnRequest(*holder, control.m_pRequest);
    m_vControls.emplace_back(&control, holder);
}

void CRandomTree::ChooseMetrics()
{
    sReferenceMetrics metrics =
        m_reference.m_bPreview ? sReferenceMetrics::Preview() : sReferenceMetrics();
    if (Chance(30))
        metrics = {Number(0, 9), Number(0, 9), Number(0, 9), Number(0, 9),  Number(0, 9),
                   Number(0, 9), Number(0, 9), Number(0, 9), Number(0, 20), Number(0, 9)};
    m_reference.m_metrics = metrics;
    m_view.m_metrics = metrics;
}

void CRandomTree::Layout()
{
    m_reference.m_bPreview = Chance(45);
    m_view.SetPreviewMode(m_reference.m_bPreview);
    ChooseMetrics();
    m_reference.m_iInspectorWidth = Number(Chance(50) ? -20 : 100, Chance(50) ? 600 : 2000);
    m_reference.m_iInspectorHeight = Chance(30) ? -1 : Number(0, 800);
    m_view.m_iInspectorWidth = m_reference.m_iInspectorWidth;
    m_view.m_iInspectorHeight = m_reference.m_iInspectorHeight;
    m_log.Clear();
    m_reference.Compute();
    m_view.RecomputeLayout();
}

std::string CRandomTree::Compare()
{
    std::ostringstream out;
    if (m_view.m_iContentHeight != m_reference.m_iContentHeight)
        out << "content height: expected " << m_reference.m_iContentHeight << ", is "
            << m_view.m_iContentHeight << "\n";
    if (m_view.m_iInspectorHeight != m_reference.m_iInspectorHeight)
        out << "inspector height: expected " << m_reference.m_iInspectorHeight << ", is "
            << m_view.m_iInspectorHeight << "\n";
    for (const auto& [expected, node] : m_vNodes)
    {
        CompareRect(out, "node " + expected->m_sName, *expected, *node);
        if (node->m_iLabelWidth != expected->m_iLabelWidth)
            out << "label of " << expected->m_sName << ": expected " << expected->m_iLabelWidth
                << ", is " << node->m_iLabelWidth << "\n";
        if (expected->m_eKind == eReferenceContainerRow)
            CompareRect(out, "line " + expected->m_sName, expected->m_rectContainer,
                        *node->m_pHolder);
    }
    for (const auto& [expected, holder] : m_vControls)
    {
        const auto* widget = static_cast<CRecordingWidget*>(holder->m_pWidget);
        CompareRect(out, "control of " + widget->m_sName, expected->m_rect, *holder);
        CompareRect(out, "widget of " + widget->m_sName, expected->m_rect, *widget);
    }
    return out.str();
}

std::string CRandomTree::Describe() const
{
    std::ostringstream out;
    out << (m_reference.m_bPreview ? "preview" : "normal") << ", width "
        << m_reference.m_iInspectorWidth << (m_reference.m_bAlignLabels ? "" : ", not aligned")
        << "\n";
    for (const auto& [node, element] : m_vNodes)
    {
        int depth = 0;
        for (const auto* up = element->m_pParent; up; up = up->m_pParent)
            ++depth;
        out << std::string(2 * static_cast<std::size_t>(depth), ' ')
            << (node->m_eKind == eReferenceGroup        ? "group "
                : node->m_eKind == eReferenceControlRow ? "row "
                                                        : "line ")
            << node->m_sName << " label " << node->m_iMeasuredLabel << ":";
        for (const sReferenceControl& control : node->m_vControls)
            out << " [" << control.m_iRequiredWidth << " x " << control.m_iRequiredHeight
                << (control.m_pRequest ? " bounded" : "") << "]";
        out << "\n";
    }
    return out.str();
}
