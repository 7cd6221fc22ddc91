#pragma once

#include "graph.h"

/// One step of editing: what it takes from a graph, brings to it and sets. Reversed, it is the step
/// back.
struct sGraphChange
{
    template <class T>
    struct sStep
    {
        T m_before{};
        T m_after{};
    };

    struct sValue
    {
        int m_iNode = 0;
        const sImageProperty* m_pProperty = nullptr; ///< of the node's operation
        sStep<CImageValue> m_step;
    };

    std::vector<sGraphNode> m_vAdded;
    std::vector<sGraphNode> m_vRemoved;
    std::vector<sGraphEdge> m_vConnected;
    std::vector<sGraphEdge> m_vDisconnected;
    std::map<int, sStep<QPointF>> m_mapMoved;
    std::map<int, sStep<bool>> m_mapPinned;
    std::vector<sValue> m_vValues;

    bool IsEmpty() const;
    bool ChangesPicture() const;
    bool ChangesStructure() const;
    bool ChangesEdges() const { return !m_vConnected.empty() || !m_vDisconnected.empty(); }

    void ApplyTo(CGraph& graph) const;
    sGraphChange Reversed() const;
};
