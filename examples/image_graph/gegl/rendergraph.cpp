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
    return info.m_bHasOutput && (!info.m_bNeedsItsFile || !GetFileToRead(operation).isEmpty());
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

CRenderGraph::CRenderGraph(const CGraph& graph, int node) : m_iLast(node)
{
    for (const int id : graph.GetUpstream(node))
    {
        const sGraphNode& part = *graph.Find(id);
        m_vParts.push_back({id, part.m_pOperation->GetSnapshot()});
        for (const std::string& pad : part.GetInfo().m_vInputs)
            if (const sGraphEdge* edge = graph.FindEdge(id, pad))
                m_vEdges.push_back(*edge);
    }
}

CRenderGraph::~CRenderGraph()
{
    g_clear_object(&m_pRoot);
}

void CRenderGraph::Build(sResult& result)
{
    g_clear_object(&m_pRoot);
    m_pRoot = gegl_node_new();
    m_mapNodes.clear();
    for (const sPart& part : m_vParts)
    {
        const std::string problem = FindProblem(*part.m_pOperation);
        if (!problem.empty())
            result.m_mapErrors[part.m_iId] = problem;
        if (!problem.empty() || !MayRun(*part.m_pOperation))
            continue;
        const std::string& name = part.m_pOperation->GetInfo().m_sName;
        GeglNode* node = gegl_node_new_child(m_pRoot, "operation", name.c_str(), nullptr);
        part.m_pOperation->WriteTo(node);
        m_mapNodes[part.m_iId] = node;
    }
    for (const sGraphEdge& edge : m_vEdges)
        if (m_mapNodes.count(edge.m_iFrom) && m_mapNodes.count(edge.m_iTo))
            gegl_node_connect_to(m_mapNodes[edge.m_iFrom], "output", m_mapNodes[edge.m_iTo],
                                 edge.m_sPad.c_str());
}

CRenderGraph::sResult CRenderGraph::Render(const CProgress& progress)
{
    sResult result;
    // What was said before is not about this picture.
    CGeglSession::TakeMessages();
    Build(result);
    TryReaders(result, progress);
    if (m_mapNodes.count(m_iLast) && !result.m_bCancelled)
        RenderPicture(m_mapNodes[m_iLast], result, progress);
    result.m_sMessage = TakeMessages();
    return result;
}

// The library does not say which operation a warning comes from. Those that read files are asked
// for a pixel, one after the other; the picture finds what they read ready.
void CRenderGraph::TryReaders(sResult& result, const CProgress& progress)
{
    for (const auto& [id, operation] : m_vParts)
    {
        const QString path = GetFileToRead(*operation);
        if (path.isEmpty() || !m_mapNodes.count(id))
            continue;
        result.m_bCancelled = !progress(0);
        if (result.m_bCancelled)
            return;
        GeglNode* node = m_mapNodes[id];
        std::string error = CheckPicture(path);
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

void CRenderGraph::RenderPicture(GeglNode* node, sResult& result, const CProgress& progress)
{
    const GeglRectangle bounds = VisibleBounds(node);
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
        gegl_node_blit(node, scale, &band, babl_format("R'G'B'A u8"), image.scanLine(y),
                       static_cast<int>(image.bytesPerLine()), GEGL_BLIT_DEFAULT);
    }
    result.m_bCancelled = !progress(100);
    if (!result.m_bCancelled)
        result.m_image = image;
}
