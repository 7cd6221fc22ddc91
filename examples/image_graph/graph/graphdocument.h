#pragma once

#include "graph.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <map>
#include <string>
#include <vector>

struct sGraphChange;

/// The graph that is open: the only place where it is changed, so that everything that shows it
/// learns of every change, and so that every change can be taken back. One call is one step of the
/// undo stack, unless it changes nothing; several calls are one step between beginMacro and
/// endMacro of the stack.
class CGraphDocument : public QObject
{
    Q_OBJECT

public:
    explicit CGraphDocument(QObject* parent = nullptr);
    ~CGraphDocument() override;

    const CGraph& GetGraph() const { return m_graph; }
    QUndoStack& GetUndoStack() { return m_undo; }
    const QString& GetPath() const { return m_sPath; }
    bool IsModified() const { return !m_undo.isClean(); }

    /// False says why, for the user. A taken input may be connected, see Connect.
    bool CanConnect(int from, int to, const std::string& pad, QString& reason) const;

    /// Adds a node and returns its number; 0 when there is no operation of that name.
    int AddNode(const std::string& operation, const QPointF& position);
    /// Removes nodes and their edges.
    void RemoveNodes(const std::vector<int>& nodes);
    /// Copies nodes with the edges between them, and returns the copies in the same order. What
    /// leads to a node from outside leads to its copy too.
    std::vector<int> Duplicate(const std::vector<int>& nodes, const QPointF& offset);
    /// Leads a picture to an input, in the place of what led there. False, and no step, when
    /// CanConnect says no.
    bool Connect(int from, int to, const std::string& pad);
    void Disconnect(int to, const std::string& pad);
    /// Moves nodes to new positions. Calls with the same \p drag, a number other than 0 that
    /// differs from drag to drag, are one step as long as nothing else is done between them.
    void Move(const std::map<int, QPointF>& positions, int drag = 0);
    void Pin(const std::vector<int>& nodes, bool pinned);

    /// A value of one or several nodes of the same operation. All are told the same, the result is
    /// that of the node which liked it least; \p property belongs to the operation.
    sWriteResult SetText(const std::vector<int>& nodes, const sImageProperty& property,
                         const std::string& text);
    sWriteResult SetComponent(const std::vector<int>& nodes, const sImageProperty& property,
                              int component, const std::string& text);
    void SetColor(const std::vector<int>& nodes, const sImageProperty& property,
                  const CImageOperation::CColor& color);
    /// Gives every parameter of the nodes its first value.
    void Reset(const std::vector<int>& nodes);

    // What follows is no edit: it has no step and does not make the document modified.

    /// Puts nodes where nobody put them yet, as after opening a file without positions.
    void Place(const std::map<int, QPointF>& positions);
    /// Whether a file was opened that does not say where all its nodes are.
    bool NeedsPlaces() const { return m_bNeedsPlaces; }

    /// Shows the picture of that node, or what leads to it when it only writes a file; 0 shows that
    /// of the whole graph.
    void View(int node);
    /// The node whose picture is shown: the one that was chosen last, as long as it is there, or
    /// the end that is made of the most nodes; 0 when the graph makes no picture.
    int GetViewed() const;

    void Clear();
    /// Opens a file. On failure the open graph stays as it is and \p message says why; it may also
    /// hold a remark about a file that was opened.
    bool Load(const QString& path, QString& message);
    /// Saves the graph. On failure a file that was there stays whole and \p message says why.
    bool Save(const QString& path, QString& message);

Q_SIGNALS:
    /// Everything is different: another file was opened, or the graph was cleared.
    void GraphReplaced();
    void NodeAdded(int node);
    /// The node is gone, and so are its edges; it may come back by undo, under the same number.
    void NodeRemoved(int node);
    void NodeMoved(int node);
    /// Values or the pin of the node changed.
    void NodeChanged(int node);
    void EdgesChanged();
    /// The picture that is shown is no longer the one of the graph.
    void PictureChanged();
    /// The path, the modified flag or the viewed node changed.
    void StateChanged();

private:
    class CEdit;

    void Apply(const sGraphChange& change);
    void Push(const QString& text, sGraphChange change, int drag = 0);
    void Replace(CGraph graph, const QString& path, bool needsPlaces);
    /// The end whose picture a file shows: the viewed node or what it leads to; 0 for none.
    int GetSavedEnd() const;
    /// "Blur" for one node, "3 Nodes" for several.
    QString NameOf(const std::vector<int>& nodes) const;
    /// The numbers of the list that are in the graph, each once.
    std::vector<int> Present(const std::vector<int>& nodes) const;

    template <class TWrite>
    sWriteResult Write(const std::vector<int>& nodes, const sImageProperty& property, TWrite write);

    CGraph m_graph;
    QUndoStack m_undo;
    QString m_sPath;
    int m_iNextId = 1;
    int m_iViewed = 0;
    bool m_bNeedsPlaces = false;
};
