#pragma once

#include "panelcontroller.h"

#include <QWidget>

#include <memory>

class CQTInspectorView;
class QLabel;
class QToolButton;

/// The inspector in a panel of the window: a heading, a switch for the preview mode, and the view
/// of the selected operation.
class CInspectorPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CInspectorPanel(CGraphDocument& document, QWidget* parent = nullptr);
    ~CInspectorPanel() override;

    /// Null shows that nothing is selected.
    void ShowItem(sGraphItem* item);
    void SetPreview(bool on);

    CQTInspectorView* GetView() { return m_pView.get(); }
    CPanelController& GetController() { return *m_pController; }

Q_SIGNALS:
    /// What became of a value; empty when there is nothing to say.
    void Message(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowOperation(sGraphItem* item);
    void FitView();

    CGraphDocument& m_document;
    QLabel* m_pTitle;
    QLabel* m_pName;
    QToolButton* m_pPreview;
    QWidget* m_pFrame;
    std::unique_ptr<CQTInspectorView> m_pView;
    std::unique_ptr<CPanelController> m_pController;
};
