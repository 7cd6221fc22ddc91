#include "nodestates.h"

CNodeStates::CNodeStates(CGraphScene& scene, const CRenderer& renderer)
    : QObject(&scene), m_scene(scene), m_renderer(renderer)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(g_iPatience);
    connect(&m_timer, &QTimer::timeout, this, &CNodeStates::ShowAll);
    connect(&m_renderer, &CRenderer::NodeStateChanged, this, &CNodeStates::OnStateChanged);
}

void CNodeStates::OnStateChanged(int node)
{
    const sNodeState state = m_renderer.GetNodeState(node);
    if (state.m_eState != eNodeRendering)
        m_scene.SetState(node, state);
    else if (!m_timer.isActive())
        m_timer.start();
}

void CNodeStates::ShowAll()
{
    for (const auto& [node, item] : m_scene.GetNodeItems())
        m_scene.SetState(node, m_renderer.GetNodeState(node));
}
