#include "rendergraph.h"

#include "geglhandle.h"
#include "geglsession.h"
#include "picturefile.h"

#include <algorithm>
#include <array>
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
    return info.m_bHasOutput && (!info.m_bNeedsItsFile || !GetFileToRead(operation).isEmpty()) &&
           FindProblem(operation).empty();
}

std::string TakeMessages()
{
    std::string text;
    for (const std::string& message : CGeglSession::TakeMessages())
        text += (text.empty() ? "" : "\n") + message;
    return text;
}

// Reads one pixel, and returns what the library complains about meanwhile.
std::string TryReader(GeglNode* node)
{
    const GeglRectangle bounds = gegl_node_get_bounding_box(node);
    const GeglRectangle first{bounds.x, bounds.y, 1, 1};
    std::array<unsigned char, 4> pixel{};
    if (bounds.width > 0 && bounds.height > 0)
        gegl_node_blit(node, 1, &first, babl_format("R'G'B'A u8"), pixel.data(),
                       GEGL_AUTO_ROWSTRIDE, GEGL_BLIT_DEFAULT);
    const std::string error = TakeMessages();
    return error.empty() && bounds.width <= 0 ? "The file is in a format that cannot be read"
                                              : error;
}

// What cannot be read gives no picture; some readers give a picture of no sensible size instead.
void TakeOut(GeglNode* node)
{
    gegl_node_set(node, "operation", "gegl:nop", nullptr);
}

} // namespace

CRenderGraph::CRenderGraph(const CGraph& graph, int node) : m_pRoot(gegl_node_new())
{
    for (const int id : graph.GetUpstream(node))
    {
        const sGraphNode& added = *graph.Find(id);
        const std::string problem = FindProblem(*added.m_pOperation);
        if (!problem.empty())
            m_mapErrors[id] = problem;
        if (MayRun(*added.m_pOperation))
            AddNode(added);
        Link(graph, added);
    }
    const auto last = m_mapNodes.find(node);
    m_pLast = last == m_mapNodes.end() ? nullptr : last->second;
}

CRenderGraph::~CRenderGraph()
{
    g_object_unref(m_pRoot);
}

void CRenderGraph::AddNode(const sGraphNode& node)
{
    GeglNode* added =
        gegl_node_new_child(m_pRoot, "operation", node.GetInfo().m_sName.c_str(), nullptr);
    node.m_pOperation->WriteTo(added);
    m_mapNodes[node.m_iId] = added;
    if (!GetFileToRead(*node.m_pOperation).isEmpty())
        m_mapReaders[node.m_iId] = node.m_pOperation->Copy();
}

void CRenderGraph::Link(const CGraph& graph, const sGraphNode& node)
{
    const auto target = m_mapNodes.find(node.m_iId);
    if (target == m_mapNodes.end())
        return;
    for (const std::string& pad : node.GetInfo().m_vInputs)
    {
        const sGraphEdge* edge = graph.FindEdge(node.m_iId, pad);
        const auto source = edge ? m_mapNodes.find(edge->m_iFrom) : m_mapNodes.end();
        if (source != m_mapNodes.end())
            gegl_node_connect_to(source->second, "output", target->second, pad.c_str());
    }
}

CRenderGraph::sResult CRenderGraph::Render(const CProgress& progress)
{
    sResult result;
    result.m_mapErrors = m_mapErrors;
    // What was said before is not about this picture.
    CGeglSession::TakeMessages();
    TryReaders(result, progress);
    if (m_pLast && !result.m_bCancelled)
        RenderPicture(result, progress);
    result.m_sMessage = TakeMessages();
    return result;
}

// The library does not say which operation a warning comes from. Those that read files are asked
// for a pixel, one after the other; the picture finds what they read ready.
void CRenderGraph::TryReaders(sResult& result, const CProgress& progress)
{
    for (const auto& [id, operation] : m_mapReaders)
    {
        result.m_bCancelled = !progress(0);
        if (result.m_bCancelled)
            return;
        GeglNode* node = m_mapNodes[id];
        std::string error = CheckPicture(GetFileToRead(*operation));
        if (error.empty())
        {
            operation->WritePathsTo(node);
            error = TryReader(node);
        }
        if (error.empty())
            continue;
        TakeOut(node);
        result.m_mapErrors[id] = error;
    }
}

void CRenderGraph::RenderPicture(sResult& result, const CProgress& progress)
{
    const GeglRectangle bounds = VisibleBounds(m_pLast);
    if (bounds.width <= 0 || bounds.height <= 0)
        return;
    const double longest = std::max(bounds.width, bounds.height);
    const double scale = std::min(1.0, g_iMaxSide / longest);
    const GeglRectangle region = Scaled(bounds, scale);
    QImage image(region.width, region.height, QImage::Format_RGBA8888);
    for (int y = 0; y < region.height; y += g_iBandHeight)
    {
        result.m_bCancelled = !progress(100 * y / region.height);
        if (result.m_bCancelled)
            return;
        const GeglRectangle band{region.x, region.y + y, region.width,
                                 std::min(g_iBandHeight, region.height - y)};
        gegl_node_blit(m_pLast, scale, &band, babl_format("R'G'B'A u8"), image.scanLine(y),
                       static_cast<int>(image.bytesPerLine()), GEGL_BLIT_DEFAULT);
    }
    result.m_bCancelled = !progress(100);
    if (!result.m_bCancelled)
        result.m_image = image;
}
