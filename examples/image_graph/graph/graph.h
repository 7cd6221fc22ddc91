#pragma once

#include "../gegl/imageoperation.h"

#include <QPointF>
#include <QString>

#include <map>
#include <memory>
#include <string>
#include <vector>

/// An operation in its place. A node keeps its number and its operation as long as the document is
/// open, also while it is removed and waits to be brought back.
struct sGraphNode
{
    int m_iId = 0;                                 ///< above 0
    std::shared_ptr<CImageOperation> m_pOperation; ///< never null
    QPointF m_position;
    bool m_bPinned = false; ///< shows its parameters all the time

    const sOperationInfo& GetInfo() const { return m_pOperation->GetInfo(); }
};

/// Leads a node's picture to an input of another.
struct sGraphEdge
{
    int m_iFrom = 0;
    int m_iTo = 0;
    std::string m_sPad; ///< one of the inputs in sOperationInfo::m_vInputs

    bool operator==(const sGraphEdge& other) const;
};

/// Operations and what leads from one to another: no input has two edges, and no picture comes back
/// to where it started. Several nodes may be the end of a picture.
class CGraph
{
public:
    const std::map<int, sGraphNode>& GetNodes() const { return m_mapNodes; }
    /// Null when there is none of that number.
    const sGraphNode* Find(int node) const;
    bool Contains(int node) const { return Find(node) != nullptr; }

    /// In the order of the nodes and inputs that they lead to.
    const std::vector<sGraphEdge>& GetEdges() const { return m_vEdges; }
    /// What leads to that input; null when nothing does.
    const sGraphEdge* FindEdge(int to, const std::string& pad) const;
    /// The edges from and to the node.
    std::vector<sGraphEdge> GetEdgesOf(int node) const;

    /// The nodes whose picture goes nowhere, or that have none; by number.
    std::vector<int> GetEnds() const;
    /// The node and everything that its picture is made of, each once and before what it leads to.
    std::vector<int> GetUpstream(int node) const;

    /// The node whose picture is seen at \p node: itself, or what leads to it when it only writes a
    /// file; 0 when there is none.
    int GetPictureAt(int node) const;

    /// False says why, for the user. An input that is taken may be connected: the new edge takes
    /// the place of the old one.
    bool CanConnect(int from, int to, const std::string& pad, QString& reason) const;

    // What follows keeps no rule; the document, which does, calls it.
    void Insert(const sGraphNode& node);
    void Erase(int node);
    void Insert(const sGraphEdge& edge);
    void Erase(const sGraphEdge& edge);
    /// Null when there is none of that number.
    sGraphNode* Edit(int node);

private:
    std::map<int, sGraphNode> m_mapNodes;
    std::vector<sGraphEdge> m_vEdges;
};
