#include "canvascommands.h"

#include "../gegl/operationcatalog.h"
#include "../ui/operationtexts.h"
#include "autolayout.h"
#include "nodelook.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

const QSizeF g_sizeNode(nodelook::g_dWidth, nodelook::g_dHeight);

/// All that is done while it lives is one step for undo.
class COneStep
{
public:
    COneStep(CGraphDocument& document, const QString& text) : m_stack(document.GetUndoStack())
    {
        m_stack.beginMacro(text);
    }
    ~COneStep() { m_stack.endMacro(); }
    COneStep(const COneStep&) = delete;
    COneStep& operator=(const COneStep&) = delete;

private:
    QUndoStack& m_stack;
};

QString Text(const char* text)
{
    return QCoreApplication::translate("CCanvasCommands", text);
}

} // namespace

CCanvasCommands::CCanvasCommands(CGraphScene& scene)
    : m_scene(scene), m_document(scene.GetDocument())
{
}

int CCanvasCommands::Add(const std::string& operation, const QPointF& place)
{
    const sOperationInfo* info = FindOperation(operation);
    if (!info)
        return 0;
    int node = 0;
    {
        const COneStep step(m_document, Text("Add %1").arg(TitleOf(*info)));
        const QRectF frame(place - QPointF(nodelook::g_dWidth / 2, 0), g_sizeNode);
        const QPointF down(0, nodelook::g_dHeight / 2);
        node =
            m_document.AddNode(operation, frame.topLeft() + down * StepsToFreePlace({frame}, down));
        LeadThrough(node);
    }
    m_scene.SelectNodes({node});
    return node;
}

void CCanvasCommands::LeadThrough(int node)
{
    const sOperationInfo& info = m_scene.GetGraph().Find(node)->GetInfo();
    const std::vector<sGraphEdge> edges = m_scene.GetSelectedEdges();
    const std::vector<int> nodes = m_scene.GetSelectedNodes();
    if (info.m_vInputs.empty())
        return;
    if (edges.size() == 1)
    {
        m_document.Connect(edges[0].m_iFrom, node, info.m_vInputs[0]);
        m_document.Connect(node, edges[0].m_iTo, edges[0].m_sPad);
    }
    else if (edges.empty() && nodes.size() == 1)
        m_document.Connect(nodes[0], node, info.m_vInputs[0]);
}

void CCanvasCommands::Remove()
{
    const std::vector<int> nodes = m_scene.GetSelectedNodes();
    const std::vector<sGraphEdge> edges = m_scene.GetSelectedEdges();
    if (nodes.empty())
        return Disconnect();
    const QString title = TitleOf(m_scene.GetGraph().Find(nodes[0])->GetInfo());
    const QString name = nodes.size() == 1 ? title : Text("%1 Nodes").arg(nodes.size());
    const COneStep step(m_document, Text("Remove %1").arg(name));
    for (const sGraphEdge& edge : edges)
        m_document.Disconnect(edge.m_iTo, edge.m_sPad);
    RemoveNodes(nodes);
}

void CCanvasCommands::RemoveNodes(const std::vector<int>& nodes)
{
    const CGraph& graph = m_scene.GetGraph();
    const auto isRemoved = [&](int node)
    { return std::find(nodes.begin(), nodes.end(), node) != nodes.end(); };
    // What leads around the gaps.
    std::vector<sGraphEdge> around;
    for (const sGraphEdge& edge : graph.GetEdges())
    {
        int from = edge.m_iFrom;
        while (from && isRemoved(from))
        {
            const std::vector<std::string>& inputs = graph.Find(from)->GetInfo().m_vInputs;
            const sGraphEdge* feeding = inputs.empty() ? nullptr : graph.FindEdge(from, inputs[0]);
            from = feeding ? feeding->m_iFrom : 0;
        }
        if (from && from != edge.m_iFrom && !isRemoved(edge.m_iTo))
            around.push_back({from, edge.m_iTo, edge.m_sPad});
    }
    m_document.RemoveNodes(nodes);
    for (const sGraphEdge& edge : around)
        m_document.Connect(edge.m_iFrom, edge.m_iTo, edge.m_sPad);
}

int CCanvasCommands::StepsToFreePlace(const std::vector<QRectF>& frames, const QPointF& step) const
{
    const auto isTaken = [&](const QRectF& frame)
    {
        const auto& items = m_scene.GetNodeItems();
        return std::any_of(items.begin(), items.end(),
                           [&](const auto& item)
                           { return item.second->GetFrame().intersects(frame); });
    };
    int steps = 0;
    while (std::any_of(frames.begin(), frames.end(),
                       [&](const QRectF& frame)
                       { return isTaken(frame.translated(step * steps)); }))
        ++steps;
    return steps;
}

void CCanvasCommands::Duplicate()
{
    const std::vector<int> nodes = m_scene.GetSelectedNodes();
    if (nodes.empty())
        return;
    std::vector<QRectF> frames;
    frames.reserve(nodes.size());
    for (const int node : nodes)
        frames.push_back(m_scene.FindNode(node)->GetFrame());
    const QPointF aside(nodelook::g_dWidth + sLayoutSpacing().m_dBetweenColumns, 0);
    m_scene.SelectNodes(m_document.Duplicate(nodes, aside * StepsToFreePlace(frames, aside)));
}

bool CCanvasCommands::Connect(QString& reason)
{
    std::vector<int> nodes = m_scene.GetSelectedNodes();
    if (nodes.size() != 2)
    {
        reason = Text("Select two nodes to connect them.");
        return false;
    }
    const auto top = [this](int node) { return m_scene.FindNode(node)->pos().y(); };
    if (top(nodes[0]) > top(nodes[1]))
        std::swap(nodes[0], nodes[1]);
    const std::string pad = m_scene.FindNode(nodes[1])->DropInput();
    return m_document.CanConnect(nodes[0], nodes[1], pad, reason) &&
           m_document.Connect(nodes[0], nodes[1], pad);
}

void CCanvasCommands::Disconnect()
{
    std::vector<sGraphEdge> edges = m_scene.GetSelectedEdges();
    for (const int node : m_scene.GetSelectedNodes())
        for (const sGraphEdge& edge : m_scene.GetGraph().GetEdgesOf(node))
            if (std::find(edges.begin(), edges.end(), edge) == edges.end())
                edges.push_back(edge);
    if (edges.empty())
        return;
    const COneStep step(m_document, Text("Disconnect"));
    for (const sGraphEdge& edge : edges)
        m_document.Disconnect(edge.m_iTo, edge.m_sPad);
}

void CCanvasCommands::Move(const QPointF& step)
{
    std::map<int, QPointF> places;
    for (const int node : m_scene.GetSelectedNodes())
        places[node] = m_scene.GetGraph().Find(node)->m_position + step;
    m_document.Move(places);
}

void CCanvasCommands::Pin()
{
    const std::vector<int> nodes = m_scene.GetSelectedNodes();
    const auto isPinned = [this](int node) { return m_scene.GetGraph().Find(node)->m_bPinned; };
    m_document.Pin(nodes, !std::all_of(nodes.begin(), nodes.end(), isPinned));
}

void CCanvasCommands::View()
{
    const std::vector<int> nodes = m_scene.GetSelectedNodes();
    if (nodes.size() == 1)
        m_document.View(nodes[0]);
}

void CCanvasCommands::Reset()
{
    m_document.Reset(m_scene.GetSelectedNodes());
}

void CCanvasCommands::SelectAll()
{
    std::vector<int> nodes;
    for (const auto& [id, item] : m_scene.GetNodeItems())
        nodes.push_back(id);
    m_scene.SelectNodes(nodes);
}

void CCanvasCommands::SelectUpstream()
{
    for (const int node : m_scene.GetSelectedNodes())
        for (const int feeding : m_scene.GetGraph().GetUpstream(node))
            m_scene.FindNode(feeding)->setSelected(true);
}

int CCanvasCommands::SelectNext(int step)
{
    std::vector<int> nodes;
    for (const auto& [id, item] : m_scene.GetNodeItems())
        nodes.push_back(id);
    if (nodes.empty())
        return 0;
    const std::vector<int> selected = m_scene.GetSelectedNodes();
    const int count = int(nodes.size());
    int at = step > 0 ? -1 : count;
    if (!selected.empty())
        at = int(std::find(nodes.begin(), nodes.end(), selected.front()) - nodes.begin());
    const int node = nodes[size_t((at + step + count) % count)];
    m_scene.SelectNodes({node});
    return node;
}

void CCanvasCommands::LayOut()
{
    m_document.Move(FindPlaces(m_scene.GetGraph()));
}

std::map<int, QPointF> CCanvasCommands::FindPlaces(const CGraph& graph)
{
    std::vector<sLayoutNode> nodes;
    for (const auto& [id, node] : graph.GetNodes())
    {
        sLayoutNode wanted{id, g_sizeNode, {}};
        for (const std::string& pad : node.GetInfo().m_vInputs)
        {
            const sGraphEdge* edge = graph.FindEdge(id, pad);
            wanted.m_vInputs.push_back(edge ? edge->m_iFrom : 0);
        }
        nodes.push_back(wanted);
    }
    std::map<int, QPointF> places;
    const QHash<int, QPointF> found = LayOutGraph(nodes);
    for (auto place = found.begin(); place != found.end(); ++place)
        places[place.key()] = place.value();
    return places;
}
