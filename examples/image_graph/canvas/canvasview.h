#pragma once

#include "connecttool.h"

#include <QGraphicsView>

class QLabel;

/// The canvas: shows the scene, is moved and zoomed, and turns what the mouse does to nodes and
/// edges into edits of the document.
class CCanvasView : public QGraphicsView
{
    Q_OBJECT

public:
    explicit CCanvasView(CGraphScene& scene, QWidget* parent = nullptr);

    CGraphScene& GetScene() { return m_scene; }
    CConnectTool& GetConnectTool() { return m_connectTool; }

    qreal GetZoom() const { return transform().m11(); }
    /// Zooms by a factor, within bounds; \p fixed, in the view, stays where it is.
    void Zoom(qreal factor, const QPoint& fixed);
    void ZoomIn();
    void ZoomOut();
    /// Shows the canvas as large as its texts are meant to be.
    void ZoomToOne();
    /// Shows all nodes, and keeps doing so while the window changes, until the user moves the
    /// canvas.
    void ShowAll();
    /// Moves the canvas as little as it takes to show the node.
    void ShowNode(int node);

    /// Where a new node goes: under the mouse when it is over the canvas, else in the middle.
    QPoint GetPlaceForNew() const;

Q_SIGNALS:
    /// A place on the canvas that was double-clicked, in the view.
    void PlaceChosen(const QPoint& place);
    /// A node that was double-clicked.
    void NodeChosen(int node);
    /// The canvas was moved or zoomed, or the window was resized.
    void Moved();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void drawBackground(QPainter* painter, const QRectF& area) override;
    void drawForeground(QPainter* painter, const QRectF& area) override;

private:
    void StartPan(const QPoint& place);
    void SetSpaceHeld(bool held);
    void ShowReason(const QPoint& place);
    void CommitMoves();
    void UpdateCursor();

    CGraphScene& m_scene;
    CConnectTool m_connectTool;
    QLabel* m_pReason;
    bool m_bPanning = false;
    bool m_bSpaceHeld = false;
    bool m_bKeepAllShown = false;
    QPoint m_panFrom;
};
