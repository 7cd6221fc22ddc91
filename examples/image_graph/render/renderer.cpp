#include "renderer.h"

#include "../gegl/picturefile.h"
#include "../gegl/rendergraph.h"

#include <utility>

struct CRenderer::sOutcome
{
    QImage m_image;
    std::map<int, std::string> m_mapErrors;
    QString m_sMessage;
};

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

void CRenderer::Render(const CGraph& graph, int node)
{
    auto copy = std::make_unique<CRenderGraph>(graph, node);
    m_bRendering = true;
    CStates states;
    for (const auto& [id, other] : graph.GetNodes())
    {
        const std::string problem = FindProblem(*other.m_pOperation);
        if (!problem.empty())
            states[id] = {eNodeError, QString::fromStdString(problem)};
    }
    for (const int id : graph.GetUpstream(node))
        states.insert({id, {eNodeRendering, {}}});
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_next = {std::move(copy), ++m_iNumber};
        m_bStop = true;
    }
    m_wake.notify_one();
    SetStates(std::move(states));
}

void CRenderer::Cancel()
{
    if (!m_bRendering)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_next = {};
        m_bStop = true;
    }
    m_bRendering = false;
    ++m_iNumber; // what the thread still reports is about an older one
    SetStates(GetErrors());
    Q_EMIT Cancelled();
}

sNodeState CRenderer::GetNodeState(int node) const
{
    const auto found = m_mapStates.find(node);
    return found == m_mapStates.end() ? sNodeState() : found->second;
}

CRenderer::CStates CRenderer::GetErrors() const
{
    CStates errors;
    for (const auto& [node, state] : m_mapStates)
        if (state.m_eState == eNodeError)
            errors[node] = state;
    return errors;
}

void CRenderer::SetStates(CStates states)
{
    const CStates before = std::exchange(m_mapStates, std::move(states));
    const CStates now = m_mapStates;
    for (const auto& old : before)
        if (!now.count(old.first))
            Q_EMIT NodeStateChanged(old.first);
    for (const auto& [node, state] : now)
    {
        const auto old = before.find(node);
        if (old == before.end() || !(old->second == state))
            Q_EMIT NodeStateChanged(node);
    }
}

void CRenderer::Finish(const sOutcome& outcome)
{
    m_bRendering = false;
    CStates states = GetErrors();
    for (const auto& [node, error] : outcome.m_mapErrors)
        states[node] = {eNodeError, QString::fromStdString(error)};
    SetStates(std::move(states));
    Q_EMIT Finished(outcome.m_image, outcome.m_sMessage);
}

void CRenderer::Run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (true)
    {
        m_wake.wait(lock, [this] { return m_bQuit || m_next.m_pGraph; });
        if (m_bQuit)
            return;
        sOrder order = std::exchange(m_next, {});
        m_bStop = false;
        lock.unlock();
        Work(order);
        order.m_pGraph.reset();
        lock.lock();
    }
}

// What this reports arrives in the thread of the user, unless something newer was ordered.
void CRenderer::Work(sOrder& order)
{
    const int number = order.m_iNumber;
    const auto report = [this, number](auto function)
    {
        QMetaObject::invokeMethod(
            this,
            [this, number, function]
            {
                if (number == m_iNumber)
                    function();
            },
            Qt::QueuedConnection);
    };
    const CRenderGraph::sResult result = order.m_pGraph->Render(
        [this, &report](int percent)
        {
            {
                const std::lock_guard<std::mutex> guard(m_mutex);
                if (m_bStop)
                    return false;
            }
            report([this, percent] { Q_EMIT Progress(percent); });
            return true;
        });
    if (result.m_bCancelled)
        return;
    const sOutcome outcome{result.m_image, result.m_mapErrors,
                           QString::fromStdString(result.m_sMessage)};
    report([this, outcome] { Finish(outcome); });
}
