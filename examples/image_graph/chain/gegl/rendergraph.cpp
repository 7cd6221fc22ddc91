#include "rendergraph.h"

#include <gegl/geglsession.h>

#include <gegl.h>

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace
{

// Pictures larger than this are shown smaller.
constexpr int g_iMaxSide = 1600;
// Progress and cancelling happen between bands of the picture.
constexpr int g_iBandHeight = 50;

GeglRectangle VisibleBounds(GeglNode* node)
{
    const GeglRectangle canvas{0, 0, CRenderGraph::g_iCanvasWidth, CRenderGraph::g_iCanvasHeight};
    const GeglRectangle bounds = gegl_node_get_bounding_box(node);
    return gegl_rectangle_is_infinite_plane(&bounds) ? canvas : bounds;
}

GeglRectangle Scaled(const GeglRectangle& bounds, double scale)
{
    const auto toPixels = [scale](int value)
    { return static_cast<int>(std::floor(value * scale)); };
    return {toPixels(bounds.x), toPixels(bounds.y), std::max(1, toPixels(bounds.width)),
            std::max(1, toPixels(bounds.height))};
}

// What only writes files has nothing to show, and looking must not write.
bool MayRun(const CImageOperation& operation)
{
    const sOperationInfo& info = operation.GetInfo();
    if (!info.m_bHasOutput)
        return false;
    return !info.m_bNeedsItsFile ||
           QFileInfo::exists(QString::fromStdString(operation.GetText(*info.FindProperty("path"))));
}

std::string TakeMessages()
{
    std::string text;
    for (const std::string& message : CGeglSession::TakeMessages())
        text += (text.empty() ? "" : "\n") + message;
    return text;
}

} // namespace

CRenderGraph::CRenderGraph(const CGraphChain& chain) : m_pRoot(gegl_node_new())
{
    m_pLast = AddChain(chain);
    if (m_pLast)
        gegl_node_link(m_pLast, gegl_node_get_output_proxy(m_pRoot, "output"));
}

CRenderGraph::~CRenderGraph()
{
    g_object_unref(m_pRoot);
}

GeglNode* CRenderGraph::AddChain(const CGraphChain& chain)
{
    GeglNode* last = nullptr;
    for (const auto& item : chain)
    {
        const sOperationInfo& info = item->m_pOperation->GetInfo();
        if (!MayRun(*item->m_pOperation))
            continue;
        GeglNode* node = gegl_node_new_child(m_pRoot, "operation", info.m_sName.c_str(), nullptr);
        item->m_pOperation->WriteTo(node);
        item->m_pOperation->WritePathsTo(node);
        GeglNode* branch = AddChain(item->m_vBranch);
        if (branch && info.m_bHasAux)
            gegl_node_connect_to(branch, "output", node, "aux");
        if (last && info.m_bHasInput)
            gegl_node_link(last, node);
        last = node;
    }
    return last;
}

CRenderGraph::sResult CRenderGraph::Render(const CProgress& progress)
{
    sResult result;
    const GeglRectangle bounds = m_pLast ? VisibleBounds(m_pLast) : GeglRectangle{0, 0, 0, 0};
    if (bounds.width <= 0 || bounds.height <= 0)
    {
        result.m_sMessage = TakeMessages();
        return result;
    }
    const double longest = std::max(bounds.width, bounds.height);
    const double scale = std::min(1.0, g_iMaxSide / longest);
    const GeglRectangle region = Scaled(bounds, scale);
    QImage image(region.width, region.height, QImage::Format_RGBA8888);
    for (int y = 0; y < region.height; y += g_iBandHeight)
    {
        result.m_bCancelled = !progress(100 * y / region.height);
        if (result.m_bCancelled)
            return result;
        const GeglRectangle band{region.x, region.y + y, region.width,
                                 std::min(g_iBandHeight, region.height - y)};
        gegl_node_blit(m_pLast, scale, &band, babl_format("R'G'B'A u8"), image.scanLine(y),
                       static_cast<int>(image.bytesPerLine()), GEGL_BLIT_DEFAULT);
    }
    result.m_bCancelled = !progress(100);
    result.m_image = image;
    result.m_sMessage = TakeMessages();
    return result;
}
