#pragma once

#include "../graphchain.h"

#include <QImage>

#include <functional>
#include <string>

/// A graph of the image library, made from copies of a chain's operations. It may be handed to
/// another thread, as long as one thread at a time uses it.
class CRenderGraph
{
public:
    explicit CRenderGraph(const CGraphChain& chain);
    ~CRenderGraph();
    CRenderGraph(const CRenderGraph&) = delete;
    CRenderGraph& operator=(const CRenderGraph&) = delete;

    struct sResult
    {
        QImage m_image; ///< null when there is none
        bool m_bCancelled = false;
        std::string m_sMessage; ///< warnings and errors, one a line; may be empty
    };
    /// Called now and then with the percentage that is done; false stops the rendering.
    using CProgress = std::function<bool(int)>;

    /// Renders the whole picture, or the canvas of a picture without bounds. Takes its time.
    sResult Render(const CProgress& progress);

    /// For the sources of this folder: the graph, its node at the end (null for an empty chain) and
    /// the nodes in the order in which a file lists them.
    GeglNode* GetRoot() const { return m_pRoot; }

    static constexpr int g_iCanvasWidth = 800;
    static constexpr int g_iCanvasHeight = 600;

private:
    GeglNode* AddChain(const CGraphChain& chain);

    GeglNode* m_pRoot;
    GeglNode* m_pLast = nullptr;
};
