#include "graphediting.h"

#include <gegl/numbertext.h>
#include <gegl/operationcatalog.h>

#include <algorithm>
#include <iterator>

namespace
{

std::string ValueText(const CImageOperation& operation, const sImageProperty& property)
{
    if (property.m_eKind != ePropertyColor)
        return operation.GetText(property);
    std::string text;
    for (const double part : operation.GetColor(property))
        text += NumberToText(RoundToDigits(part, 4)) + ' ';
    return text;
}

std::string Describe(const sGraphNode& node)
{
    std::string text = node.GetInfo().m_sName + " at " + NumberToText(node.m_position.x()) + ' ' +
                       NumberToText(node.m_position.y()) + (node.m_bPinned ? " pinned" : "");
    for (const sImageProperty& property : node.GetInfo().m_vProperties)
        if (!property.m_bReadOnly)
            text += "\n  " + property.m_sName + '=' + ValueText(*node.m_pOperation, property);
    return text + '\n';
}

// A number for each node that depends on what it is and what leads to it.
std::string DescribeTree(const CGraph& graph, int node)
{
    std::string text = Describe(*graph.Find(node));
    for (const std::string& pad : graph.Find(node)->GetInfo().m_vInputs)
        if (const sGraphEdge* edge = graph.FindEdge(node, pad))
            text += pad + " from " +
                    std::to_string(std::hash<std::string>()(DescribeTree(graph, edge->m_iFrom))) +
                    '\n';
    return text;
}

} // namespace

std::string Describe(const CGraph& graph)
{
    std::string text;
    for (const auto& [id, node] : graph.GetNodes())
        text += std::to_string(id) + ": " + Describe(node);
    for (const sGraphEdge& edge : graph.GetEdges())
        text += std::to_string(edge.m_iFrom) + " to " + std::to_string(edge.m_iTo) + ' ' +
                edge.m_sPad + '\n';
    return text;
}

std::string DescribeShape(const CGraph& graph)
{
    std::vector<std::string> parts;
    for (const auto& node : graph.GetNodes())
        parts.push_back(DescribeTree(graph, node.first));
    std::sort(parts.begin(), parts.end());
    std::string text;
    for (const std::string& part : parts)
        text += part;
    return text;
}

std::string GetText(const CGraphDocument& document, int node, const char* property)
{
    const sGraphNode& found = *document.GetGraph().Find(node);
    return found.m_pOperation->GetText(*found.GetInfo().FindProperty(property));
}

sWriteResult SetText(CGraphDocument& document, int node, const char* property,
                     const std::string& text)
{
    return document.SetText(
        {node}, *document.GetGraph().Find(node)->GetInfo().FindProperty(property), text);
}

int CRandomUser::Number(int end)
{
    return static_cast<int>(m_random() % static_cast<unsigned>(end));
}

int CRandomUser::AnyNode()
{
    const auto& nodes = m_document.GetGraph().GetNodes();
    return nodes.empty() ? 0
                         : std::next(nodes.begin(), Number(static_cast<int>(nodes.size())))->first;
}

std::vector<int> CRandomUser::SomeNodes()
{
    std::vector<int> nodes;
    for (int i = Number(3); i >= 0; --i)
        nodes.push_back(AnyNode());
    return nodes;
}

void CRandomUser::AddNode()
{
    const std::vector<sOperationInfo>& catalog = GetOperationCatalog();
    const sOperationInfo& info =
        catalog[static_cast<std::size_t>(Number(static_cast<int>(catalog.size())))];
    if (!info.m_bNeedsItsFile)
        m_document.AddNode(info.m_sName, QPointF(Number(2000) / 2.0, Number(2000) / 4.0));
}

void CRandomUser::Connect()
{
    m_document.Connect(AnyNode(), AnyNode(), Number(2) ? "input" : "aux");
}

std::string CRandomUser::AnyText(const sImageProperty& property)
{
    static const std::vector<std::string> texts{
        "", "a <b> & 'c' \"d\"", "\u00e9\u4f60\n two", " ", "?> --> ]]>", "\r\n\tx", "plain"};
    switch (property.m_eKind)
    {
    case ePropertyBool:
        return Number(2) ? "true" : "false";
    case ePropertyEnum:
        return property.m_vNicknames.empty()
                   ? std::string()
                   : property.m_vNicknames[static_cast<std::size_t>(
                         Number(static_cast<int>(property.m_vNicknames.size())))];
    case ePropertyText:
        return texts[static_cast<std::size_t>(Number(static_cast<int>(texts.size())))];
    case ePropertyFile:
        return "/no such folder/" + std::to_string(Number(100)) + "&.png";
    default:
        return NumberToText((Number(20001) - 10000) / 7.0);
    }
}

void CRandomUser::SetAnyValue()
{
    const sGraphNode* node = m_document.GetGraph().Find(AnyNode());
    if (!node || node->GetInfo().m_vProperties.empty())
        return;
    const std::vector<sImageProperty>& properties = node->GetInfo().m_vProperties;
    const sImageProperty& property =
        properties[static_cast<std::size_t>(Number(static_cast<int>(properties.size())))];
    if (property.m_eKind != ePropertyColor)
        m_document.SetText({node->m_iId}, property, AnyText(property));
    else if (Number(2))
        m_document.SetComponent({node->m_iId}, property, Number(4),
                                NumberToText(Number(99) / 98.0));
    else
        m_document.SetColor({node->m_iId}, property, {Number(9) / 8.0, 0.25, Number(7) / 6.0, 0.5});
}

void CRandomUser::DoSomething()
{
    const int choice = Number(20);
    if (choice < 4)
        AddNode();
    else if (choice < 9)
        Connect();
    else if (choice < 13)
        SetAnyValue();
    else if (choice == 13)
        m_document.RemoveNodes(SomeNodes());
    else if (choice == 14)
        m_document.Duplicate(SomeNodes(), QPointF(20, 10));
    else if (choice == 15)
        m_document.Disconnect(AnyNode(), Number(2) ? "input" : "aux");
    else if (choice == 16)
        m_document.Move({{AnyNode(), QPointF(Number(500), Number(500))}}, Number(2));
    else if (choice == 17)
        m_document.Pin(SomeNodes(), Number(2));
    else if (choice == 18)
        m_document.Reset(SomeNodes());
    else
        m_document.View(AnyNode());
}
