#include "graphwriter.h"

#include "nodevalues.h"

#include <algorithm>
#include <set>

namespace
{

class CWriter
{
public:
    CWriter(const CGraph& graph, const std::string& folder) : m_graph(graph), m_sFolder(folder) {}

    std::string Write(int picture);

private:
    void WriteChain(int node, int indent);
    void WriteNode(const sGraphNode& node, int indent);
    void WriteLine(int indent, const std::string& text);
    bool IsShared(int node) const;

    const CGraph& m_graph;
    const std::string& m_sFolder;
    std::set<int> m_setWritten;
    int m_iPicture = 0;
    std::string m_sText;
};

std::string IdOf(int node)
{
    return "node" + std::to_string(node);
}

std::string PlaceOf(const sGraphNode& node)
{
    return "<!--at " + QString::number(node.m_position.x(), 'g', 17).toStdString() + ' ' +
           QString::number(node.m_position.y(), 'g', 17).toStdString() +
           (node.m_bPinned ? " pinned-->" : "-->");
}

std::string CWriter::Write(int picture)
{
    m_iPicture = picture;
    m_sText = "<?xml version='1.0' encoding='UTF-8'?>\n<gegl>\n";
    if (picture)
        WriteChain(picture, 2);
    for (const int end : m_graph.GetEnds())
    {
        if (end == picture)
            continue;
        WriteLine(2, "<?image-graph-end");
        WriteChain(end, 2);
        WriteLine(2, "?>");
    }
    m_sText += "</gegl>\n";
    return m_sText;
}

// A chain lists the last node first, each followed by what leads to its first input.
void CWriter::WriteChain(int node, int indent)
{
    while (node)
    {
        if (!m_setWritten.insert(node).second)
        {
            WriteLine(indent, "<clone ref='" + IdOf(node) + "'/>");
            return;
        }
        WriteNode(*m_graph.Find(node), indent);
        const sGraphEdge* edge = m_graph.FindEdge(node, "input");
        node = edge ? edge->m_iFrom : 0;
    }
}

void CWriter::WriteNode(const sGraphNode& node, int indent)
{
    const sNodeText values = WriteValues(*node.m_pOperation, m_sFolder);
    WriteLine(indent, "<node operation='" + node.GetInfo().m_sName + '\'' +
                          (IsShared(node.m_iId) ? " id='" + IdOf(node.m_iId) + '\'' : "") +
                          values.m_sAttributes + '>');
    WriteLine(indent + 2, PlaceOf(node));
    if (!values.m_vParams.empty())
        WriteLine(indent + 2, "<params>");
    for (const std::string& param : values.m_vParams)
        WriteLine(indent + 4, param);
    if (!values.m_vParams.empty())
        WriteLine(indent + 2, "</params>");
    if (const sGraphEdge* edge = m_graph.FindEdge(node.m_iId, "aux"))
        WriteChain(edge->m_iFrom, indent + 2);
    WriteLine(indent, "</node>");
}

void CWriter::WriteLine(int indent, const std::string& text)
{
    m_sText += std::string(static_cast<std::size_t>(indent), ' ') + text + '\n';
}

bool CWriter::IsShared(int node) const
{
    const std::vector<sGraphEdge>& edges = m_graph.GetEdges();
    const auto uses =
        std::count_if(edges.begin(), edges.end(),
                      [node](const sGraphEdge& edge) { return edge.m_iFrom == node; });
    // The picture of the file is used by the file.
    return uses + (node == m_iPicture ? 1 : 0) > 1;
}

} // namespace

std::string WriteGraph(const CGraph& graph, int picture, const std::string& folder)
{
    return CWriter(graph, folder).Write(picture);
}
