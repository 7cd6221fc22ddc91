#include "graphscene.h"

#include "edgeitem.h"
#include "nodelook.h"

#include <QTimer>

#include <algorithm>

namespace
{

/// Free space around the nodes, so that the canvas can be moved everywhere.
constexpr qreal g_dFreeSpace = 4000;
constexpr qreal g_dNodeMargin = 6; ///< edges keep that far from nodes

} // namespace

CGraphScene::CGraphScene(CGraphDocument& document, QObject* parent)
    : QGraphicsScene(parent), m_document(document)
{
    setItemIndexMethod(NoIndex); // everything moves, and there are hundreds, not thousands
    setBackgroundBrush(nodelook::g_colorCanvas);
    connect(&m_document, &CGraphDocument::GraphReplaced, this, &CGraphScene::Rebuild);
    connect(&m_document, &CGraphDocument::NodeAdded, this, &CGraphScene::AddNode);
    connect(&m_document, &CGraphDocument::NodeRemoved, this, &CGraphScene::RemoveNode);
    connect(&m_document, &CGraphDocument::NodeMoved, this, &CGraphScene::UpdateNode);
    connect(&m_document, &CGraphDocument::NodeChanged, this, &CGraphScene::UpdateNode);
    connect(&m_document, &CGraphDocument::EdgesChanged, this, &CGraphScene::UpdateEdges);
    connect(&m_document, &CGraphDocument::StateChanged, this, &CGraphScene::UpdateViewed);
    Rebuild();
}

CGraphScene::~CGraphScene()
{
    // Items that go one by one would tell of a selection that changes.
    disconnect(this, nullptr, nullptr, nullptr);
}

CNodeItem* CGraphScene::FindNode(int node) const
{
    const auto found = m_vNodes.find(node);
    return found == m_vNodes.end() ? nullptr : found->second;
}

CEdgeItem* CGraphScene::FindEdge(const sGraphEdge& edge) const
{
    const auto found = std::find_if(m_vEdges.begin(), m_vEdges.end(),
                                    [&](const CEdgeItem* item) { return item->GetEdge() == edge; });
    return found == m_vEdges.end() ? nullptr : *found;
}

std::vector<int> CGraphScene::GetSelectedNodes() const
{
    std::vector<int> nodes;
    for (const auto& [id, item] : m_vNodes)
        if (item->isSelected())
            nodes.push_back(id);
    return nodes;
}

std::vector<sGraphEdge> CGraphScene::GetSelectedEdges() const
{
    std::vector<sGraphEdge> edges;
    for (const CEdgeItem* item : m_vEdges)
        if (item->isSelected())
            edges.push_back(item->GetEdge());
    return edges;
}

void CGraphScene::SelectNodes(const std::vector<int>& nodes)
{
    clearSelection();
    for (const int node : nodes)
        if (CNodeItem* item = FindNode(node))
            item->setSelected(true);
}

sPadRef CGraphScene::PadAt(const QPointF& place) const
{
    for (const auto& [id, item] : m_vNodes)
    {
        sPadRef pad = item->PadAt(place);
        if (pad.IsValid())
            return pad;
    }
    return {};
}

CNodeItem* CGraphScene::NodeAt(const QPointF& place) const
{
    for (QGraphicsItem* item : items(place))
        if (auto* node = dynamic_cast<CNodeItem*>(item))
            return node;
    return nullptr;
}

QPointF CGraphScene::From(const sGraphEdge& edge) const
{
    return FindNode(edge.m_iFrom)->PadPosition({edge.m_iFrom, std::string()});
}

QPointF CGraphScene::To(const sGraphEdge& edge) const
{
    return FindNode(edge.m_iTo)->PadPosition({edge.m_iTo, edge.m_sPad});
}

QRectF CGraphScene::GetFrameOfNodes() const
{
    QRectF frame;
    for (const auto& [id, item] : m_vNodes)
        frame |= item->GetFrame();
    return frame;
}

void CGraphScene::SetState(int node, const sNodeState& state)
{
    CNodeItem* item = FindNode(node);
    if (!item || item->GetState() == state)
        return;
    item->SetState(state);
    Q_EMIT NodesChanged();
}

void CGraphScene::Rebuild()
{
    clearSelection();
    qDeleteAll(m_vEdges);
    m_vEdges.clear();
    for (const auto& [id, item] : m_vNodes)
        delete item;
    m_vNodes.clear();
    for (const auto& [id, node] : GetGraph().GetNodes())
        AddNode(id);
    UpdateEdges();
    UpdateViewed();
    Q_EMIT NodesChanged();
}

void CGraphScene::AddNode(int node)
{
    auto* item = new CNodeItem(*GetGraph().Find(node));
    m_vNodes[node] = item;
    addItem(item);
    connect(item, &CNodeItem::Moved, this, &CGraphScene::OnNodeItemMoved);
    connect(item, &CNodeItem::HoverChanged, this, &CGraphScene::NodeHovered);
    GrowSceneRect();
    UpdateViewed();
    LeadEdgesLater();
    Q_EMIT NodesChanged();
}

void CGraphScene::RemoveNode(int node)
{
    CNodeItem* item = FindNode(node);
    if (!item)
        return;
    m_vNodes.erase(node);
    UpdateEdges();
    item->setSelected(false);
    delete item;
    Q_EMIT NodesChanged();
}

void CGraphScene::UpdateNode(int node)
{
    CNodeItem* item = FindNode(node);
    const sGraphNode* known = GetGraph().Find(node);
    if (!item || !known)
        return;
    if (item->pos() != known->m_position)
    {
        m_bFollowing = true;
        item->setPos(known->m_position);
        m_bFollowing = false;
        GrowSceneRect();
        LeadEdgesLater();
    }
    if (item->IsPinned() != known->m_bPinned)
    {
        item->SetPinned(known->m_bPinned);
        Q_EMIT NodesChanged();
    }
}

void CGraphScene::UpdateEdges()
{
    std::vector<sGraphEdge> edges;
    for (const sGraphEdge& edge : GetGraph().GetEdges())
        if (FindNode(edge.m_iFrom) && FindNode(edge.m_iTo))
            edges.push_back(edge);
    // What stays keeps its item, and with it the selection.
    const auto isGone = [&](CEdgeItem* item)
    {
        if (std::find(edges.begin(), edges.end(), item->GetEdge()) != edges.end())
            return false;
        delete item;
        return true;
    };
    m_vEdges.erase(std::remove_if(m_vEdges.begin(), m_vEdges.end(), isGone), m_vEdges.end());
    for (const sGraphEdge& edge : edges)
        if (!FindEdge(edge))
        {
            m_vEdges.push_back(new CEdgeItem(edge));
            addItem(m_vEdges.back());
            m_vEdges.back()->SetRoute({From(edge), To(edge)});
        }

    std::map<int, std::set<std::string>> connected;
    for (const sGraphEdge& edge : edges)
    {
        connected[edge.m_iFrom].insert(std::string());
        connected[edge.m_iTo].insert(edge.m_sPad);
    }
    for (const auto& [id, item] : m_vNodes)
        item->SetConnected(connected[id]);
    LeadEdgesLater();
}

void CGraphScene::UpdateViewed()
{
    const int viewed = m_document.GetViewed();
    for (const auto& [id, item] : m_vNodes)
        item->SetViewed(id == viewed);
}

void CGraphScene::OnNodeItemMoved(int node)
{
    // While a node is dragged its edges follow it at once, whatever they cross.
    if (!m_bFollowing)
        for (CEdgeItem* item : m_vEdges)
            if (item->GetEdge().m_iFrom == node || item->GetEdge().m_iTo == node)
                item->SetRoute({From(item->GetEdge()), To(item->GetEdge())});
    Q_EMIT PlacesChanged();
}

void CGraphScene::LeadEdgesLater()
{
    if (m_bEdgesAreStale)
        return;
    m_bEdgesAreStale = true;
    QTimer::singleShot(0, this, &CGraphScene::LeadEdges);
}

void CGraphScene::LeadEdges()
{
    m_bEdgesAreStale = false;
    for (CEdgeItem* edge : m_vEdges)
    {
        std::vector<QRectF> obstacles;
        for (const auto& [id, node] : m_vNodes)
        {
            // The edge touches its own nodes, but must not cross them either.
            const bool isOwn = id == edge->GetEdge().m_iFrom || id == edge->GetEdge().m_iTo;
            const qreal margin = isOwn ? -1 : g_dNodeMargin;
            obstacles.push_back(node->GetFrame().adjusted(-margin, -margin, margin, margin));
        }
        edge->SetRoute(RouteEdge(From(edge->GetEdge()), To(edge->GetEdge()), obstacles));
    }
    Q_EMIT PlacesChanged();
}

void CGraphScene::GrowSceneRect()
{
    // Never smaller: what is shown must not jump.
    const QRectF wanted =
        GetFrameOfNodes().adjusted(-g_dFreeSpace, -g_dFreeSpace, g_dFreeSpace, g_dFreeSpace);
    if (!sceneRect().contains(wanted))
        setSceneRect(sceneRect() | wanted);
}
