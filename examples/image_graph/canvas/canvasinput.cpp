// What the mouse and the keys do on the canvas.
#include "canvasview.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace
{

constexpr qreal g_dZoomStep = 1.2;
constexpr int g_iWheelStep = 120;
constexpr QPoint g_reasonOffset(14, 18); ///< from the mouse

} // namespace

void CCanvasView::mousePressEvent(QMouseEvent* event)
{
    const bool isLeft = event->button() == Qt::LeftButton;
    if (event->button() == Qt::MiddleButton || (isLeft && m_bSpaceHeld))
        return StartPan(event->pos());
    if (!isLeft)
        return event->ignore();
    const QPointF place = mapToScene(event->pos());
    CNodeItem* node = m_scene.NodeAt(place);
    if (node && node->IsOnPin(place))
        return m_scene.GetDocument().Pin({node->GetId()}, !node->IsPinned());
    if (!m_connectTool.Press(place))
        QGraphicsView::mousePressEvent(event);
    viewport()->update();
}

void CCanvasView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_bPanning)
    {
        const QPoint step = event->pos() - m_panFrom;
        m_panFrom = event->pos();
        m_bKeepAllShown = false;
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - step.x());
        verticalScrollBar()->setValue(verticalScrollBar()->value() - step.y());
        return;
    }
    if (!m_connectTool.IsActive())
        return QGraphicsView::mouseMoveEvent(event);
    m_connectTool.Move(mapToScene(event->pos()));
    ShowReason(event->pos());
    viewport()->update();
}

void CCanvasView::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_bPanning)
    {
        m_bPanning = false;
        return UpdateCursor();
    }
    if (!m_connectTool.IsActive())
    {
        QGraphicsView::mouseReleaseEvent(event);
        return CommitMoves();
    }
    m_connectTool.Release(mapToScene(event->pos()));
    m_pReason->hide();
    viewport()->update();
}

void CCanvasView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPointF place = mapToScene(event->pos());
    const CNodeItem* node = m_scene.NodeAt(place);
    if (node && !m_scene.PadAt(place).IsValid())
        Q_EMIT NodeChosen(node->GetId());
    else if (!itemAt(event->pos()))
        Q_EMIT PlaceChosen(event->pos());
}

void CCanvasView::CommitMoves()
{
    std::map<int, QPointF> moved;
    for (const auto& [id, item] : m_scene.GetNodeItems())
        if (item->pos() != m_scene.GetGraph().Find(id)->m_position)
            moved[id] = item->pos();
    if (!moved.empty())
        m_scene.GetDocument().Move(moved);
}

void CCanvasView::wheelEvent(QWheelEvent* event)
{
    const int turned = event->angleDelta().y();
    Zoom(std::pow(g_dZoomStep, qreal(turned) / g_iWheelStep), event->position().toPoint());
    event->accept();
}

void CCanvasView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        SetSpaceHeld(true);
    else if (event->key() == Qt::Key_Escape && m_connectTool.IsActive())
    {
        m_connectTool.Cancel();
        m_pReason->hide();
        viewport()->update();
    }
    else
        event->ignore(); // the view would scroll
}

void CCanvasView::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        SetSpaceHeld(false);
    else
        event->ignore();
}

void CCanvasView::focusOutEvent(QFocusEvent* event)
{
    SetSpaceHeld(false);
    QGraphicsView::focusOutEvent(event);
}

void CCanvasView::StartPan(const QPoint& place)
{
    m_bPanning = true;
    m_panFrom = place;
    UpdateCursor();
}

void CCanvasView::SetSpaceHeld(bool held)
{
    m_bSpaceHeld = held;
    UpdateCursor();
}

void CCanvasView::UpdateCursor()
{
    if (m_bPanning)
        viewport()->setCursor(Qt::ClosedHandCursor);
    else if (m_bSpaceHeld)
        viewport()->setCursor(Qt::OpenHandCursor);
    else
        viewport()->unsetCursor();
}

void CCanvasView::ShowReason(const QPoint& place)
{
    m_pReason->setVisible(m_connectTool.IsRefused());
    m_pReason->setText(m_connectTool.GetReason());
    m_pReason->adjustSize();
    const QSize room = viewport()->size() - m_pReason->size();
    const QPoint wanted = place + g_reasonOffset;
    m_pReason->move(std::clamp(wanted.x(), 0, std::max(0, room.width())),
                    std::clamp(wanted.y(), 0, std::max(0, room.height())));
    m_pReason->raise();
}
