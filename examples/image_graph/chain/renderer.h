#pragma once

#include "graphchain.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

class CRenderGraph;

/// Renders graphs in a thread of its own, one at a time and the newest first: a new one ends the
/// one that is being rendered. All signals arrive in the thread of the renderer's user.
class CRenderer : public QObject
{
    Q_OBJECT

public:
    explicit CRenderer(QObject* parent = nullptr);
    /// Waits for the band of the picture that is being rendered.
    ~CRenderer() override;

    /// Takes a copy of the chain and renders it.
    void Render(const CGraphChain& chain);
    /// Gives up what is being rendered or waits for it.
    void Cancel();

Q_SIGNALS:
    void Progress(int percent);
    /// The newest graph is rendered. The image may be null; \p message may be empty.
    void Finished(const QImage& image, const QString& message);
    void Cancelled();

private:
    void Run();

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::unique_ptr<CRenderGraph> m_pNext;
    bool m_bStop = false; ///< the graph in work is no longer wanted
    bool m_bQuit = false;
    bool m_bBusy = false;
    std::thread m_thread;
};
