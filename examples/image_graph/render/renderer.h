#pragma once

#include "../graph/graph.h"
#include "nodestate.h"

#include <QImage>
#include <QObject>

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

class CRenderGraph;

/// Renders the picture of a node in a thread of its own, one at a time and the newest first: a new
/// one ends the one that is being rendered. To be used from one thread, in which all signals
/// arrive.
class CRenderer : public QObject
{
    Q_OBJECT

public:
    explicit CRenderer(QObject* parent = nullptr);
    /// Waits for the band of the picture that is being rendered.
    ~CRenderer() override;

    /// Takes a copy of what makes the picture of the node and renders it; 0 gives no picture.
    void Render(const CGraph& graph, int node);
    void Cancel();
    bool IsRendering() const { return m_bRendering; }

    sNodeState GetNodeState(int node) const;

Q_SIGNALS:
    void Progress(int percent);
    /// The newest picture is rendered. The image may be null; \p message holds what concerns no
    /// single node, and may be empty.
    void Finished(const QImage& image, const QString& message);
    void Cancelled();
    void NodeStateChanged(int node);

private:
    /// A picture to be rendered, and which of the calls of Render wants it.
    struct sOrder
    {
        std::unique_ptr<CRenderGraph> m_pGraph;
        int m_iNumber = 0;
    };
    struct sOutcome;
    using CStates = std::map<int, sNodeState>;

    void Run();
    void Work(sOrder& order);
    void Finish(const sOutcome& outcome);
    CStates GetErrors() const;
    void SetStates(CStates states);

    // Used by the thread of the user only.
    CStates m_mapStates; ///< of the nodes that are not idle
    int m_iNumber = 0;   ///< of the newest order
    bool m_bRendering = false;

    std::mutex m_mutex; ///< for what follows
    std::condition_variable m_wake;
    sOrder m_next;
    bool m_bStop = false; ///< the picture in work is no longer wanted
    bool m_bQuit = false;

    std::thread m_thread;
};
