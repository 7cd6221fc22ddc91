#pragma once

#include "../graph/graph.h"

#include <QImage>

#include <functional>
#include <map>
#include <string>

/// A graph of the image library that makes the picture of a node, of copies of the operations. It
/// may be handed to another thread, as long as one thread at a time uses it.
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
    void AddNode(const sGraphNode& node);
    void Link(const CGraph& graph, const sGraphNode& node);
    void TryReaders(sResult& result, const CProgress& progress);
    void RenderPicture(sResult& result, const CProgress& progress);

    GeglNode* m_pRoot;
    GeglNode* m_pLast = nullptr;
    std::map<int, GeglNode*> m_mapNodes;
    /// Copies of the operations that read a file: the thread that renders tells them.
    std::map<int, std::shared_ptr<const CImageOperation>> m_mapReaders;
    std::map<int, std::string> m_mapErrors; ///< what was wrong before anything was rendered
};
