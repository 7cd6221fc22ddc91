#pragma once

#include "../render/renderer.h"
#include "panelcontroller.h"

#include <QTimer>
#include <QWidget>

#include <memory>

class CQTInspectorView;

/// The parameters of a node on one line, to be edited in place; or a message where there is nothing
/// to edit: the node has no parameters, has an error, or has been rendering for a while.
class CPreviewStrip : public QWidget
{
    Q_OBJECT

public:
    CPreviewStrip(CGraphDocument& document, CRenderer& renderer, int node,
                  QWidget* parent = nullptr);
    ~CPreviewStrip() override;

    CQTInspectorView* GetView() { return m_pView.get(); }
    CPanelController& GetController() { return *m_pController; }

    /// How long a node is rendered before its parameters make room for the message, in
    /// milliseconds: what is done at once does not flicker.
    static constexpr int g_iPatience = 400;

Q_SIGNALS:
    /// What became of a value; empty when there is nothing to say.
    void Message(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void OnState(int node);
    void ShowState();
    void ShowMessage(const QString& text, const QColor& color);
    bool IsEdited() const;

    CRenderer& m_renderer;
    const int m_iNode;
    QTimer m_patience;
    std::unique_ptr<CQTInspectorView> m_pView;
    std::unique_ptr<CPanelController> m_pController;
};
