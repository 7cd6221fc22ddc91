#pragma once

#include "../graph/graph.h"

#include <QImage>

#include <functional>
#include <map>
#include <string>

/// What makes the picture of a node, as it was when this was made. It may be handed to another
/// thread, as long as one thread at a time uses it: making one takes no time, rendering does.
class CRenderGraph
{
public:
    CRenderGraph(const CGraph& graph, int node);
    ~CRenderGraph();
    CRenderGraph(const CRenderGraph&) = delete;
    CRenderGraph& operator=(const CRenderGraph&) = delete;

    struct sResult
    {
        QImage m_image; ///< null when there is none
        bool m_bCancelled = false;
        std::map<int, std::string> m_mapErrors; ///< by node
        std::string m_sMessage; ///< other warnings and errors, one a line; may be empty
    };
    /// Called now and then with the percentage that is done; false stops the rendering.
    using CProgress = std::function<bool(int)>;

    /// Renders the whole picture, or the canvas of a picture without bounds. Takes its time.
    sResult Render(const CProgress& progress);

    static constexpr int g_iCanvasWidth = 800;
    static constexpr int g_iCanvasHeight = 600;

private:
    struct sPart
    {
        int m_iId;
        std::shared_ptr<const CImageOperation> m_pOperation;
    };

    void Build(sResult& result);
    void TryReaders(sResult& result, const CProgress& progress);
    void RenderPicture(GeglNode* node, sResult& result, const CProgress& progress);

    std::vector<sPart> m_vParts; ///< sources first
    std::vector<sGraphEdge> m_vEdges;
    int m_iLast;

    // The graph of the image library, from the first rendering on.
    GeglNode* m_pRoot = nullptr;
    std::map<int, GeglNode*> m_mapNodes;
};
