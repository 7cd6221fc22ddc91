#pragma once

#include "panelcontroller.h"

#include <QWidget>

#include <memory>

class CQTInspectorView;
class QLabel;

/// The inspector in a panel of the window: a heading, and the view of the selected nodes.
class CInspectorPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CInspectorPanel(CGraphDocument& document, QWidget* parent = nullptr);
    ~CInspectorPanel() override;

    /// Shows the parameters of a node, or of several nodes of the same operation together. Other
    /// selections are told in a message.
    void ShowNodes(const std::vector<int>& nodes);

    CQTInspectorView* GetView() { return m_pView.get(); }
    CPanelController& GetController() { return *m_pController; }

Q_SIGNALS:
    /// What became of a value; empty when there is nothing to say.
    void Message(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void UpdateHeading(std::size_t selected);
    void FitView();

    QLabel* m_pTitle;
    QLabel* m_pName;
    QWidget* m_pFrame;
    std::unique_ptr<CQTInspectorView> m_pView;
    std::unique_ptr<CPanelController> m_pController;
};
