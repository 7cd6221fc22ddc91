#pragma once

#include "../chain/graphdocument.h"
#include "../chain/renderer.h"

#include <QMainWindow>

class CChainView;
class CInspectorPanel;
class COperationPalette;
class CPictureView;
class QLabel;

class CMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    CMainWindow();
    ~CMainWindow() override;

    /// Says why in the window when the file cannot be opened; the open graph stays then.
    bool OpenGraph(const QString& path);
    CGraphDocument& GetDocument() { return m_document; }
    CChainView& GetChainView() { return *m_pChain; }
    CInspectorPanel& GetInspector() { return *m_pInspector; }
    CPictureView& GetPicture() { return *m_pPicture; }
    QString GetMessage() const;

Q_SIGNALS:
    /// The picture of the graph as it is now is shown.
    void Rendered();

private:
    void BuildActions();
    void BuildPanels();
    void ConnectParts();
    void ShowMessage(const QString& text);
    void UpdateTitle();
    void AddOperation(const QString& name);
    void Open();
    void SaveAs();
    bool MayDiscard();
    void closeEvent(QCloseEvent* event) override;

    CGraphDocument m_document;
    CRenderer m_renderer;
    CChainView* m_pChain;
    COperationPalette* m_pPalette;
    CPictureView* m_pPicture;
    CInspectorPanel* m_pInspector;
    QLabel* m_pMessage;
};
