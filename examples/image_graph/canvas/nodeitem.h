#pragma once

#include "../render/nodestate.h"
#include "padref.h"

#include <QGraphicsObject>
#include <QString>

#include <set>
#include <vector>

struct sGraphNode;

/// A node on the canvas: a title, the pads, and below the title a place for its parameters. Shows
/// what it is told; changes nothing.
class CNodeItem : public QGraphicsObject
{
    Q_OBJECT

public:
    explicit CNodeItem(const sGraphNode& node);

    int GetId() const { return m_iId; }
    /// The pad that can be grabbed there, in the coordinates of the scene; none is not valid.
    sPadRef PadAt(const QPointF& scenePosition) const;
    /// The middle of a pad, in the coordinates of the scene.
    QPointF PadPosition(const sPadRef& pad) const;
    /// The input that a picture goes to that is dropped on the node itself: the first that is free,
    /// or the first. Empty when the node has none.
    std::string DropInput() const;
    bool HasOutput() const { return m_bHasOutput; }
    bool IsOnPin(const QPointF& scenePosition) const;
    /// The node without its pads, in the coordinates of the scene.
    QRectF GetFrame() const;

    void SetPinned(bool pinned);
    bool IsPinned() const { return m_bPinned; }
    void SetViewed(bool viewed);
    void SetState(const sNodeState& state);
    const sNodeState& GetState() const { return m_state; }
    void SetConnected(const std::set<std::string>& pads);
    /// A pad that would be the end of the edge that is being dragged, and whether it may.
    void SetTarget(const sPadRef& pad, bool isAllowed);

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

Q_SIGNALS:
    void Moved(int node);
    void HoverChanged(int node, bool isHovered);

protected:
    QVariant itemChange(GraphicsItemChange change, const QVariant& value) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;

private:
    void PaintFrame(QPainter& painter) const;
    void PaintTexts(QPainter& painter) const;
    void PaintPads(QPainter& painter) const;
    void PaintPad(QPainter& painter, const sPadRef& pad, const QPointF& centre) const;
    void PaintPin(QPainter& painter) const;
    void PaintEye(QPainter& painter) const;

    const int m_iId;
    QString m_sTitle;
    QString m_sName;
    QColor m_colorCategory;
    std::vector<std::string> m_vInputs;
    bool m_bHasOutput = false;
    bool m_bPinned = false;
    bool m_bViewed = false;
    bool m_bHovered = false;
    sNodeState m_state;
    std::set<std::string> m_vConnected; ///< inputs by name, the output as an empty text
    sPadRef m_target;
    bool m_bTargetAllowed = false;
};
