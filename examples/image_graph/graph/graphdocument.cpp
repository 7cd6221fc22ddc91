#include "graphdocument.h"

#include "graphchange.h"

#include <algorithm>
#include <utility>

/// A step of the undo stack.
class CGraphDocument::CEdit : public QUndoCommand
{
public:
    CEdit(CGraphDocument& document, const QString& text, sGraphChange change, int drag)
        : QUndoCommand(text), m_document(document), m_change(std::move(change)), m_iDrag(drag)
    {
    }

    void redo() override { m_document.Apply(m_change); }
    void undo() override { m_document.Apply(m_change.Reversed()); }
    int id() const override { return m_iDrag ? 1 : -1; }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto* next = dynamic_cast<const CEdit*>(other);
        if (!next || next->m_iDrag != m_iDrag)
            return false;
        for (const auto& [node, step] : next->m_change.m_mapMoved)
            m_change.m_mapMoved.try_emplace(node, step).first->second.m_after = step.m_after;
        return true;
    }

private:
    CGraphDocument& m_document;
    sGraphChange m_change;
    int m_iDrag;
};

CGraphDocument::CGraphDocument(QObject* parent) : QObject(parent)
{
    connect(&m_undo, &QUndoStack::cleanChanged, this, &CGraphDocument::StateChanged);
}

CGraphDocument::~CGraphDocument()
{
    m_undo.disconnect(this);
}

bool CGraphDocument::CanConnect(int from, int to, const std::string& pad, QString& reason) const
{
    return m_graph.CanConnect(from, to, pad, reason);
}

int CGraphDocument::AddNode(const std::string& operation, const QPointF& position)
{
    sGraphNode node;
    node.m_pOperation = CImageOperation::Create(operation);
    if (!node.m_pOperation)
        return 0;
    node.m_iId = m_iNextId++;
    node.m_position = position;
    sGraphChange change;
    change.m_vAdded.push_back(node);
    Push(tr("Add %1").arg(QString::fromStdString(node.GetInfo().m_sTitle)), std::move(change));
    return node.m_iId;
}

void CGraphDocument::RemoveNodes(const std::vector<int>& nodes)
{
    const std::vector<int> present = Present(nodes);
    sGraphChange change;
    for (const sGraphEdge& edge : m_graph.GetEdges())
        if (std::count(present.begin(), present.end(), edge.m_iFrom) ||
            std::count(present.begin(), present.end(), edge.m_iTo))
            change.m_vDisconnected.push_back(edge);
    for (const int node : present)
        change.m_vRemoved.push_back(*m_graph.Find(node));
    Push(tr("Remove %1").arg(NameOf(present)), std::move(change));
}

std::vector<int> CGraphDocument::Duplicate(const std::vector<int>& nodes, const QPointF& offset)
{
    const std::vector<int> present = Present(nodes);
    sGraphChange change;
    std::map<int, int> copies;
    std::vector<int> added;
    for (const int id : present)
    {
        sGraphNode copy = *m_graph.Find(id);
        copy.m_pOperation = copy.m_pOperation->Copy();
        copy.m_iId = m_iNextId++;
        copy.m_position += offset;
        copies[id] = copy.m_iId;
        added.push_back(copy.m_iId);
        change.m_vAdded.push_back(copy);
    }
    for (const sGraphEdge& edge : m_graph.GetEdges())
    {
        const auto to = copies.find(edge.m_iTo);
        const auto from = copies.find(edge.m_iFrom);
        if (to != copies.end())
            change.m_vConnected.push_back(
                {from == copies.end() ? edge.m_iFrom : from->second, to->second, edge.m_sPad});
    }
    Push(tr("Duplicate %1").arg(NameOf(present)), std::move(change));
    return added;
}

bool CGraphDocument::Connect(int from, int to, const std::string& pad)
{
    QString reason;
    if (!CanConnect(from, to, pad, reason))
        return false;
    const sGraphEdge edge{from, to, pad};
    const sGraphEdge* old = m_graph.FindEdge(to, pad);
    if (old && *old == edge)
        return true;
    sGraphChange change;
    if (old)
        change.m_vDisconnected.push_back(*old);
    change.m_vConnected.push_back(edge);
    Push(tr("Connect"), std::move(change));
    return true;
}

void CGraphDocument::Disconnect(int to, const std::string& pad)
{
    sGraphChange change;
    if (const sGraphEdge* edge = m_graph.FindEdge(to, pad))
        change.m_vDisconnected.push_back(*edge);
    Push(tr("Disconnect"), std::move(change));
}

void CGraphDocument::Move(const std::map<int, QPointF>& positions, int drag)
{
    sGraphChange change;
    std::vector<int> moved;
    for (const auto& [id, position] : positions)
    {
        const sGraphNode* node = m_graph.Find(id);
        if (!node || node->m_position == position)
            continue;
        change.m_mapMoved[id] = {node->m_position, position};
        moved.push_back(id);
    }
    Push(tr("Move %1").arg(NameOf(moved)), std::move(change), drag);
}

void CGraphDocument::Pin(const std::vector<int>& nodes, bool pinned)
{
    sGraphChange change;
    std::vector<int> changed;
    for (const int id : Present(nodes))
    {
        if (m_graph.Find(id)->m_bPinned == pinned)
            continue;
        change.m_mapPinned[id] = {!pinned, pinned};
        changed.push_back(id);
    }
    const QString name = NameOf(changed);
    Push(pinned ? tr("Pin %1").arg(name) : tr("Unpin %1").arg(name), std::move(change));
}

void CGraphDocument::Place(const std::map<int, QPointF>& positions)
{
    m_bNeedsPlaces = false;
    for (const auto& [id, position] : positions)
    {
        if (sGraphNode* node = m_graph.Edit(id))
        {
            node->m_position = position;
            Q_EMIT NodeMoved(id);
        }
    }
}

void CGraphDocument::View(int node)
{
    const int before = GetViewed();
    m_iViewed = node;
    if (GetViewed() == before)
        return;
    Q_EMIT StateChanged();
    Q_EMIT PictureChanged();
}

int CGraphDocument::GetViewed() const
{
    if (const int chosen = m_graph.GetPictureAt(m_iViewed))
        return chosen;
    int best = 0;
    std::size_t size = 0;
    for (const int end : m_graph.GetEnds())
    {
        const int picture = m_graph.GetPictureAt(end);
        const std::size_t count = m_graph.GetUpstream(picture).size();
        if (count > size)
        {
            best = picture;
            size = count;
        }
    }
    return best;
}

void CGraphDocument::Clear()
{
    Replace({}, {}, false);
}

void CGraphDocument::Replace(CGraph graph, const QString& path, bool needsPlaces)
{
    m_undo.clear();
    // The old operations live until everybody has heard of the new ones.
    const CGraph old = std::exchange(m_graph, std::move(graph));
    m_iNextId = m_graph.GetNodes().empty() ? 1 : m_graph.GetNodes().rbegin()->first + 1;
    m_iViewed = 0;
    m_bNeedsPlaces = needsPlaces;
    m_sPath = path;
    Q_EMIT GraphReplaced();
    Q_EMIT PictureChanged();
    Q_EMIT StateChanged();
}

void CGraphDocument::Push(const QString& text, sGraphChange change, int drag)
{
    if (!change.IsEmpty())
        m_undo.push(new CEdit(*this, text, std::move(change), drag));
}

void CGraphDocument::Apply(const sGraphChange& change)
{
    // Finding out what is viewed walks through the graph, which values and places do not change.
    const int viewed = change.ChangesStructure() ? GetViewed() : 0;
    change.ApplyTo(m_graph);
    for (const sGraphNode& node : change.m_vAdded)
        Q_EMIT NodeAdded(node.m_iId);
    if (change.ChangesEdges())
        Q_EMIT EdgesChanged();
    for (const sGraphNode& node : change.m_vRemoved)
        Q_EMIT NodeRemoved(node.m_iId);
    for (const auto& moved : change.m_mapMoved)
        Q_EMIT NodeMoved(moved.first);
    for (const auto& pinned : change.m_mapPinned)
        Q_EMIT NodeChanged(pinned.first);
    int last = 0;
    for (const sGraphChange::sValue& value : change.m_vValues)
    {
        if (value.m_iNode != last)
            Q_EMIT NodeChanged(value.m_iNode);
        last = value.m_iNode;
    }
    if (change.ChangesPicture())
        Q_EMIT PictureChanged();
    if (change.ChangesStructure() && GetViewed() != viewed)
        Q_EMIT StateChanged();
}

std::vector<int> CGraphDocument::Present(const std::vector<int>& nodes) const
{
    std::vector<int> present;
    for (const int node : nodes)
        if (m_graph.Contains(node) && !std::count(present.begin(), present.end(), node))
            present.push_back(node);
    return present;
}

QString CGraphDocument::NameOf(const std::vector<int>& nodes) const
{
    if (nodes.size() != 1)
        return tr("%1 Nodes").arg(nodes.size());
    return QString::fromStdString(m_graph.Find(nodes.front())->GetInfo().m_sTitle);
}
