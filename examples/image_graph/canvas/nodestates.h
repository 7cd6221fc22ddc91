#pragma once

#include "../render/renderer.h"
#include "graphscene.h"

#include <QTimer>

/// Tells the nodes of the canvas what the renderer says of them. That a node is being rendered is
/// told only when it takes its time: most pictures are there before one could read it.
class CNodeStates : public QObject
{
    Q_OBJECT

public:
    CNodeStates(CGraphScene& scene, const CRenderer& renderer);

    static constexpr int g_iPatience = 300; ///< in milliseconds

private:
    void OnStateChanged(int node);
    void ShowAll();

    CGraphScene& m_scene;
    const CRenderer& m_renderer;
    QTimer m_timer;
};
