#include "canvasview.h"

#include "edgeitem.h"
#include "nodelook.h"

#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QtMath>

#include <algorithm>

using namespace nodelook;

namespace
{

constexpr qreal g_dLeastZoom = 0.1;
constexpr qreal g_dMostZoom = 3;
constexpr qreal g_dZoomStep = 1.2;
constexpr qreal g_dMargin = 28; ///< around the nodes when all are shown
constexpr int g_iGrid = 24;
constexpr qreal g_dLeastZoomOfGrid = 0.5;

} // namespace

CCanvasView::CCanvasView(CGraphScene& scene, QWidget* parent)
    : QGraphicsView(&scene, parent), m_scene(scene), m_connectTool(scene),
      m_pReason(new QLabel(viewport()))
{
    setObjectName(QStringLiteral("canvas"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(AnchorViewCenter);
    setDragMode(RubberBandDrag);
    setViewportUpdateMode(FullViewportUpdate); // scrolling would take the strips along
    setRenderHint(QPainter::Antialiasing);
    setMouseTracking(true);
    setMinimumSize(320, 240);

    m_pReason->setObjectName(QStringLiteral("reason"));
    m_pReason->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_pReason->setStyleSheet(QStringLiteral("background: #5a2a24; color: #ffe4de; padding: 3px 7px;"
                                            " border: 1px solid #ec6e5a; border-radius: 3px;"));
    m_pReason->hide();
}

void CCanvasView::Zoom(qreal factor, const QPoint& fixed)
{
    m_bKeepAllShown = false;
    const qreal zoom = std::clamp(GetZoom() * factor, g_dLeastZoom, g_dMostZoom);
    const QPointF before = mapToScene(fixed);
    setTransform(QTransform::fromScale(zoom, zoom));
    const QPointF off = (before - mapToScene(fixed)) * zoom;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(off.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(off.y()));
    Q_EMIT Moved();
}

void CCanvasView::ZoomIn()
{
    Zoom(g_dZoomStep, viewport()->rect().center());
}

void CCanvasView::ZoomOut()
{
    Zoom(1 / g_dZoomStep, viewport()->rect().center());
}

void CCanvasView::ZoomToOne()
{
    Zoom(1 / GetZoom(), viewport()->rect().center());
}

void CCanvasView::ShowAll()
{
    m_bKeepAllShown = true;
    const QRectF frame =
        m_scene.GetFrameOfNodes().adjusted(-g_dMargin, -g_dMargin, g_dMargin, g_dMargin);
    const qreal fitting =
        std::min(viewport()->width() / frame.width(), viewport()->height() / frame.height());
    const qreal zoom = std::clamp(fitting, g_dLeastZoom, 1.0);
    setTransform(QTransform::fromScale(zoom, zoom));
    centerOn(frame.center());
    Q_EMIT Moved();
}

void CCanvasView::ShowNode(int node)
{
    if (const CNodeItem* item = m_scene.FindNode(node))
        ensureVisible(item->GetFrame(), qRound(g_dMargin), qRound(g_dMargin));
}

QPoint CCanvasView::GetPlaceForNew() const
{
    const QPoint mouse = viewport()->mapFromGlobal(QCursor::pos());
    return viewport()->rect().contains(mouse) ? mouse : viewport()->rect().center();
}

void CCanvasView::resizeEvent(QResizeEvent* event)
{
    QGraphicsView::resizeEvent(event);
    if (m_bKeepAllShown)
        ShowAll();
    Q_EMIT Moved();
}

void CCanvasView::scrollContentsBy(int dx, int dy)
{
    QGraphicsView::scrollContentsBy(dx, dy);
    Q_EMIT Moved();
}

void CCanvasView::drawBackground(QPainter* painter, const QRectF& area)
{
    painter->fillRect(area, g_colorCanvas);
    if (GetZoom() < g_dLeastZoomOfGrid)
        return;
    QVector<QPointF> dots;
    for (int x = qFloor(area.left() / g_iGrid) * g_iGrid; x < area.right(); x += g_iGrid)
        for (int y = qFloor(area.top() / g_iGrid) * g_iGrid; y < area.bottom(); y += g_iGrid)
            dots.append(QPointF(x, y));
    painter->setPen(QPen(g_colorGrid, 2));
    painter->drawPoints(dots.constData(), int(dots.size()));
}

void CCanvasView::drawForeground(QPainter* painter, const QRectF& /*area*/)
{
    if (m_scene.GetNodeItems().empty())
    {
        painter->resetTransform();
        painter->setPen(g_colorFaint);
        painter->drawText(viewport()->rect(), Qt::AlignCenter,
                          tr("Double-click, or press Tab, to add an operation."));
    }
    if (!m_connectTool.IsActive())
        return;
    const QColor color = m_connectTool.IsRefused() ? g_colorError : g_colorAccent;
    CEdgeItem::Draw(*painter, m_connectTool.GetPath(), color);
}
