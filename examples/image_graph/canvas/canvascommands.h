#pragma once

#include "graphscene.h"

/// The commands that change the graph: each works on what is selected and is one step for undo, if
/// it changes anything.
class CCanvasCommands
{
public:
    explicit CCanvasCommands(CGraphScene& scene);

    /// Adds a node with its upper middle at \p place, or below where that is taken, and selects it.
    /// A selected edge leads through
    /// the new node then; else what the one selected node makes goes into the new one. Returns the
    /// node's number, 0 when there is no such operation.
    int Add(const std::string& operation, const QPointF& place);
    /// Removes the selected nodes and edges. Where a removed node had a main input, what it led to
    /// gets that.
    void Remove();
    /// Copies the selected nodes to a free place on their right and selects the copies.
    void Duplicate();
    /// Leads what the upper one of two selected nodes makes to the lower one. False says why.
    bool Connect(QString& reason);
    /// Removes the selected edges, and all edges of the selected nodes.
    void Disconnect();
    void Move(const QPointF& step);
    /// Pins the selected nodes, or takes the pins off when all have one.
    void Pin();
    /// Shows the picture of the one selected node.
    void View();
    void Reset();
    void SelectAll();
    /// Selects also all that the pictures of the selected nodes are made of.
    void SelectUpstream();
    /// Selects the node after the selected one, by number, or the one before it; at the ends, goes
    /// on at the other. Returns its number, 0 when there are no nodes.
    int SelectNext(int step);
    /// Gives all nodes the places that auto-layout finds.
    void LayOut();

    /// The places that auto-layout finds for the nodes of a graph.
    static std::map<int, QPointF> FindPlaces(const CGraph& graph);

private:
    void LeadThrough(int node);
    void RemoveNodes(const std::vector<int>& nodes);
    /// How often \p step has to be made until none of the frames lies on a node.
    int StepsToFreePlace(const std::vector<QRectF>& frames, const QPointF& step) const;

    CGraphScene& m_scene;
    CGraphDocument& m_document;
};
