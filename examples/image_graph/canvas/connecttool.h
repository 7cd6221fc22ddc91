#pragma once

#include "graphscene.h"

#include <QPainterPath>

#include <optional>

/// Draws edges and moves their ends: a drag that starts at a pad or at the end of an edge.
class CConnectTool
{
public:
    explicit CConnectTool(CGraphScene& scene) : m_scene(scene) {}

    /// Starts a drag if there is something to drag. An input that is taken gives its edge away.
    bool Press(const QPointF& place);
    /// The free end is there now.
    void Move(const QPointF& place);
    /// Connects, moves or, where nothing is, removes the edge; one step for undo. An edge that was
    /// pressed and not moved is selected.
    void Release(const QPointF& place);
    void Cancel();

    bool IsActive() const { return m_fixed.IsValid(); }
    /// Why the free end cannot be dropped where it is; empty when it can.
    const QString& GetReason() const { return m_sReason; }
    /// The edge as it would be; empty while nothing is dragged.
    QPainterPath GetPath() const;
    bool IsRefused() const { return !m_sReason.isEmpty(); }

private:
    bool PressPad(const sPadRef& pad);
    bool PressEdge(const QPointF& place);
    void TakeUp(const sGraphEdge& edge, bool isEndFree);
    /// The pad that the free end would be dropped on.
    sPadRef FindTarget(const QPointF& place) const;
    std::optional<sGraphEdge> EdgeTo(const sPadRef& target) const;
    void ShowTarget(const sPadRef& target);
    void Apply(const sGraphEdge& edge, const std::optional<sGraphEdge>& before);

    CGraphScene& m_scene;
    sPadRef m_fixed;                     ///< the end that stays; not valid while nothing is dragged
    std::optional<sGraphEdge> m_takenUp; ///< the edge whose end is dragged
    sPadRef m_target;
    QPointF m_pressed;
    QPointF m_free;
    bool m_bMoved = false;
    QString m_sReason;
};
