#include "graph.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>
#include <tuple>

namespace
{

QString Tr(const char* text)
{
    return QCoreApplication::translate("CGraph", text);
}

bool IsBefore(const sGraphEdge& left, const sGraphEdge& right)
{
    return std::tie(left.m_iTo, left.m_sPad) < std::tie(right.m_iTo, right.m_sPad);
}

QString TitleOf(const sGraphNode& node)
{
    return QString::fromStdString(node.GetInfo().m_sTitle);
}

void VisitUpstream(const CGraph& graph, int node, std::set<int>& seen, std::vector<int>& order)
{
    const sGraphNode* visited = graph.Find(node);
    if (!visited || !seen.insert(node).second)
        return;
    for (const std::string& pad : visited->GetInfo().m_vInputs)
        if (const sGraphEdge* edge = graph.FindEdge(node, pad))
            VisitUpstream(graph, edge->m_iFrom, seen, order);
    order.push_back(node);
}

} // namespace

bool sGraphEdge::operator==(const sGraphEdge& other) const
{
    return m_iFrom == other.m_iFrom && m_iTo == other.m_iTo && m_sPad == other.m_sPad;
}

const sGraphNode* CGraph::Find(int node) const
{
    const auto found = m_mapNodes.find(node);
    return found == m_mapNodes.end() ? nullptr : &found->second;
}

const sGraphEdge* CGraph::FindEdge(int to, const std::string& pad) const
{
    const sGraphEdge wanted{0, to, pad};
    const auto found = std::lower_bound(m_vEdges.begin(), m_vEdges.end(), wanted, IsBefore);
    return found == m_vEdges.end() || IsBefore(wanted, *found) ? nullptr : &*found;
}

std::vector<sGraphEdge> CGraph::GetEdgesOf(int node) const
{
    std::vector<sGraphEdge> edges;
    std::copy_if(m_vEdges.begin(), m_vEdges.end(), std::back_inserter(edges),
                 [node](const sGraphEdge& edge)
                 { return edge.m_iFrom == node || edge.m_iTo == node; });
    return edges;
}

std::vector<int> CGraph::GetEnds() const
{
    std::set<int> used;
    for (const sGraphEdge& edge : m_vEdges)
        used.insert(edge.m_iFrom);
    std::vector<int> ends;
    for (const auto& [id, node] : m_mapNodes)
        if (!used.count(id))
            ends.push_back(id);
    return ends;
}

std::vector<int> CGraph::GetUpstream(int node) const
{
    std::set<int> seen;
    std::vector<int> order;
    VisitUpstream(*this, node, seen, order);
    return order;
}

int CGraph::GetPictureAt(int node) const
{
    const sGraphNode* found = Find(node);
    if (!found || found->GetInfo().m_bHasOutput)
        return found ? node : 0;
    const sGraphEdge* edge = FindEdge(node, "input");
    return edge ? edge->m_iFrom : 0;
}

bool CGraph::CanConnect(int from, int to, const std::string& pad, QString& reason) const
{
    const sGraphNode* source = Find(from);
    const sGraphNode* target = Find(to);
    reason.clear();
    if (!source || !target)
    {
        reason = Tr("The operation is no longer there.");
        return false;
    }
    const std::vector<std::string>& inputs = target->GetInfo().m_vInputs;
    if (!source->GetInfo().m_bHasOutput)
        reason = Tr("%1 has no output.").arg(TitleOf(*source));
    else if (inputs.empty())
        reason = Tr("%1 has no input: it makes a picture of its own.").arg(TitleOf(*target));
    else if (std::find(inputs.begin(), inputs.end(), pad) == inputs.end())
        reason = Tr("%1 has no input named %2.").arg(TitleOf(*target), QString::fromStdString(pad));
    else if (from == to)
        reason = Tr("The picture of %1 cannot lead to itself.").arg(TitleOf(*source));
    else
    {
        const std::vector<int> upstream = GetUpstream(from);
        if (std::find(upstream.begin(), upstream.end(), to) != upstream.end())
            reason = Tr("The picture of %1 is made of that of %2 already.")
                         .arg(TitleOf(*source), TitleOf(*target));
    }
    return reason.isEmpty();
}

void CGraph::Insert(const sGraphNode& node)
{
    m_mapNodes[node.m_iId] = node;
}

void CGraph::Erase(int node)
{
    m_mapNodes.erase(node);
}

void CGraph::Insert(const sGraphEdge& edge)
{
    m_vEdges.insert(std::upper_bound(m_vEdges.begin(), m_vEdges.end(), edge, IsBefore), edge);
}

void CGraph::Erase(const sGraphEdge& edge)
{
    const auto found = std::find(m_vEdges.begin(), m_vEdges.end(), edge);
    if (found != m_vEdges.end())
        m_vEdges.erase(found);
}

sGraphNode* CGraph::Edit(int node)
{
    const auto found = m_mapNodes.find(node);
    return found == m_mapNodes.end() ? nullptr : &found->second;
}
