#pragma once

#include "../graph/graphdocument.h"
#include "nodeitem.h"

#include <QGraphicsScene>

#include <map>
#include <memory>

class CEdgeItem;

/// The document as items of a canvas: follows every change of it, and makes none.
class CGraphScene : public QGraphicsScene
{
    Q_OBJECT

public:
    explicit CGraphScene(CGraphDocument& document, QObject* parent = nullptr);
    ~CGraphScene() override;

    CGraphDocument& GetDocument() { return m_document; }
    const CGraph& GetGraph() const { return m_document.GetGraph(); }
    /// Null when there is none of that number.
    CNodeItem* FindNode(int node) const;
    CEdgeItem* FindEdge(const sGraphEdge& edge) const;
    const std::map<int, CNodeItem*>& GetNodeItems() const { return m_vNodes; }

    /// In the order of their numbers.
    std::vector<int> GetSelectedNodes() const;
    std::vector<sGraphEdge> GetSelectedEdges() const;
    void SelectNodes(const std::vector<int>& nodes);

    /// The pad there, however other nodes lie; none is not valid.
    sPadRef PadAt(const QPointF& place) const;
    /// The node there, the uppermost first; null when there is none.
    CNodeItem* NodeAt(const QPointF& place) const;
    /// The ends of an edge.
    QPointF From(const sGraphEdge& edge) const;
    QPointF To(const sGraphEdge& edge) const;

    /// What surrounds all nodes; empty when there are none.
    QRectF GetFrameOfNodes() const;
    void SetState(int node, const sNodeState& state);

    /// Leads all edges around the nodes again. Done by itself before the next painting after a
    /// change of the document.
    void LeadEdges();

Q_SIGNALS:
    /// The number, the pin or the state of a node changed, or there are other nodes.
    void NodesChanged();
    void NodeHovered(int node, bool isHovered);
    /// Nodes or edges were moved.
    void PlacesChanged();

private:
    void Rebuild();
    void AddNode(int node);
    void RemoveNode(int node);
    void UpdateNode(int node);
    void UpdateEdges();
    void UpdateViewed();
    void OnNodeItemMoved(int node);
    void LeadEdgesLater();
    void GrowSceneRect();

    CGraphDocument& m_document;
    std::map<int, CNodeItem*> m_vNodes;
    std::vector<CEdgeItem*> m_vEdges;
    bool m_bEdgesAreStale = false;
    bool m_bFollowing = false; ///< items are moved because the document says so
};
