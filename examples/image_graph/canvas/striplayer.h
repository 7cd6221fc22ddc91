#pragma once

#include "canvasview.h"

#include <QPointer>
#include <QTimer>

#include <functional>
#include <map>

/// The strips of parameters on the nodes: which nodes have one, and where they lie. Strips are
/// widgets in front of the canvas rather than items of it, so that their controls and editors work
/// as in any panel; they move with their nodes and keep the size of their texts.
class CStripLayer : public QObject
{
    Q_OBJECT

public:
    /// Makes the strip of a node as a child of \p parent.
    using CFactory = std::function<QWidget*(int node, QWidget* parent)>;

    CStripLayer(CCanvasView& view, CFactory factory);
    ~CStripLayer() override;

    /// Null when the node has none just now.
    QWidget* FindStrip(int node) const;

    /// How long a strip stays when the mouse has left its node, in milliseconds.
    static constexpr int g_iLeaveTime = 300;
    /// Below this zoom there is no room on a node, and only the one below the mouse shows a strip,
    /// under the node.
    static constexpr qreal g_dLeastZoom = 0.72;

private:
    void OnHover(int node, bool isHovered);
    void OnLeft();
    void Update();
    QWidget* MakeStrip(int node);
    void Place();
    bool IsWanted(int node) const;
    QRect AreaOf(int node, bool& isShown) const;
    bool IsEditing() const;

    CCanvasView& m_view;
    CGraphScene& m_scene;
    CFactory m_factory;
    std::map<int, QPointer<QWidget>> m_vStrips;
    int m_iHovered = 0;
    QTimer m_leave;
};
