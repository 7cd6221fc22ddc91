#pragma once

#include "../canvas/canvascommands.h"
#include "../graph/graphdocument.h"
#include "../render/renderer.h"

#include <QMainWindow>

class CCanvasView;
class CFileCommands;
class CInspectorPanel;
class CMessageList;
class CPalettePopup;
class CPictureView;
class CStripLayer;
class QLabel;

/// The window: the canvas, the picture, the parameters of what is selected, and the messages. It
/// owns the document and all that works on it, and connects them.
class CMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    CMainWindow();
    ~CMainWindow() override;

    /// Says why in the window when the file cannot be opened; the open graph stays then.
    bool OpenGraph(const QString& path);

    CGraphDocument& GetDocument() { return m_document; }
    CGraphScene& GetScene() { return *m_pScene; }
    CCanvasCommands& GetCommands() { return *m_pCommands; }
    CFileCommands& GetFileCommands() { return *m_pFiles; }
    CCanvasView& GetCanvas() { return *m_pCanvas; }
    CStripLayer& GetStrips() { return *m_pStrips; }
    CInspectorPanel& GetInspector() { return *m_pInspector; }
    CPictureView& GetPicture() { return *m_pPicture; }
    CMessageList& GetMessages() { return *m_pMessages; }
    CPalettePopup& GetPalette() { return *m_pPalette; }
    /// What was said last.
    QString GetMessage() const;

    /// Offers the operations that can be added, there in the canvas.
    void OfferOperations(const QPoint& place);
    /// The same at the mouse; when it is elsewhere, below the one selected node.
    void OfferOperationsAtMouse();
    /// Opens the editor of the first value of the inspector that is typed.
    void EditFirstValue();
    void CancelRendering();
    bool IsRendering() const { return m_renderer.IsRendering(); }
    void ShowMessage(const QString& text);

Q_SIGNALS:
    /// The picture of the graph as it is now is shown.
    void Rendered();

private:
    QWidget* MakeStrip(int node, QWidget* parent);
    void BuildPanels();
    void ConnectDocument();
    void ConnectCanvas();
    void ConnectRenderer();
    void OnGraphReplaced();
    void Say(const QString& text, int node);
    void UpdateTitle();
    void UpdateSummary();
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    CGraphDocument m_document;
    std::unique_ptr<CGraphScene> m_pScene;
    std::unique_ptr<CCanvasCommands> m_pCommands;
    CRenderer m_renderer;
    CFileCommands* m_pFiles;
    CCanvasView* m_pCanvas;
    CStripLayer* m_pStrips;
    CPalettePopup* m_pPalette;
    CPictureView* m_pPicture;
    CInspectorPanel* m_pInspector;
    CMessageList* m_pMessages;
    QLabel* m_pMessage;
    QLabel* m_pSummary;
    QPointF m_placeForNew;
    int m_iMessageNode = 0; ///< whose fault is shown; 0 for other messages
};
