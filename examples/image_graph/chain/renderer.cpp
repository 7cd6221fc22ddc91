#include "renderer.h"

#include "gegl/rendergraph.h"

#include <utility>

CRenderer::CRenderer(QObject* parent) : QObject(parent), m_thread(&CRenderer::Run, this)
{
}

CRenderer::~CRenderer()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_bQuit = true;
        m_bStop = true;
    }
    m_wake.notify_one();
    m_thread.join();
}

void CRenderer::Render(const CGraphChain& chain)
{
    auto graph = std::make_unique<CRenderGraph>(chain);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_pNext.swap(graph);
    m_bStop = true;
    m_wake.notify_one();
}

void CRenderer::Cancel()
{
    bool isTakenBack = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_bStop = true;
        // A graph that waits is taken back here, one in work ends with a report of its thread.
        isTakenBack = m_pNext && !m_bBusy;
        m_pNext.reset();
    }
    if (isTakenBack)
        Q_EMIT Cancelled();
}

void CRenderer::Run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_bQuit)
    {
        m_wake.wait(lock, [this] { return m_bQuit || m_pNext; });
        std::unique_ptr<CRenderGraph> graph = std::move(m_pNext);
        if (m_bQuit)
            return;
        m_bStop = false;
        m_bBusy = true;
        lock.unlock();
        const CRenderGraph::sResult result = graph->Render(
            [this](int percent)
            {
                {
                    const std::lock_guard<std::mutex> guard(m_mutex);
                    if (m_bStop)
                        return false;
                }
                Q_EMIT Progress(percent);
                return true;
            });
        graph.reset();
        lock.lock();
        m_bBusy = false;
        if (m_bQuit || m_pNext)
            continue;
        if (result.m_bCancelled)
            Q_EMIT Cancelled();
        else
            Q_EMIT Finished(result.m_image, QString::fromStdString(result.m_sMessage));
    }
}
