#include "previewstrip.h"

#include <qtinspectorview.h>

#include <QApplication>
#include <QLineEdit>

namespace
{

const QColor g_colorError(236, 128, 112);
const QColor g_colorBusy(126, 178, 236);
const QColor g_colorNothing(160, 162, 165);
const QColor g_colorLabels(188, 189, 190);

} // namespace

CPreviewStrip::CPreviewStrip(CGraphDocument& document, CRenderer& renderer, int node,
                             QWidget* parent)
    : QWidget(parent), m_renderer(renderer), m_iNode(node), m_pView(new CQTInspectorView),
      m_pController(new CPanelController(document))
{
    m_pView->setParent(this);
    QPalette palette = m_pView->palette();
    palette.setColor(QPalette::WindowText, g_colorLabels);
    m_pView->setPalette(palette);
    m_pView->SetController(m_pController.get());
    m_pController->SetInspectorView(m_pView.get());
    m_pController->SetDialogParent(this);
    m_pController->SetMessageSink([this](const std::string& text)
                                  { Q_EMIT Message(QString::fromStdString(text)); });
    m_pController->SetPreviewMode(true);
    m_pController->ShowNodes({node});

    m_patience.setSingleShot(true);
    m_patience.setInterval(g_iPatience);
    connect(&m_patience, &QTimer::timeout, this, &CPreviewStrip::ShowState);
    connect(&renderer, &CRenderer::NodeStateChanged, this, &CPreviewStrip::OnState);
    OnState(node);
}

CPreviewStrip::~CPreviewStrip()
{
    // The rows go before the view that shows them.
    m_pController.reset();
}

void CPreviewStrip::OnState(int node)
{
    if (node != m_iNode)
        return;
    if (m_renderer.GetNodeState(node).m_eState == eNodeRendering)
        m_patience.start();
    else
        m_patience.stop();
    ShowState();
}

void CPreviewStrip::ShowState()
{
    const sNodeState state = m_renderer.GetNodeState(m_iNode);
    const sOperationInfo* info = m_pController->GetInfo();
    if (state.m_eState == eNodeError)
        ShowMessage(state.m_sError, g_colorError);
    else if (state.m_eState == eNodeRendering && !m_patience.isActive() && !IsEdited())
        ShowMessage(tr("Rendering\u2026"), g_colorBusy);
    else if (info && info->m_vProperties.empty())
        ShowMessage(tr("No parameters"), g_colorNothing);
    else
        ShowMessage({}, g_colorNothing);
}

void CPreviewStrip::ShowMessage(const QString& text, const QColor& color)
{
    const QString firstLine = text.section(QLatin1Char('\n'), 0, 0);
    m_pView->SetPreviewMessage(
        firstLine.isEmpty() ? std::string() : "\u00a0" + firstLine.toStdString(), color);
    m_pView->ShowContent(firstLine.isEmpty(), false);
    m_pView->UpdateView();
    setToolTip(text);
}

// An open editor lies over its field, in the same window or in one of its own.
bool CPreviewStrip::IsEdited() const
{
    const auto* editor = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
    const auto area = [](const QWidget& widget)
    { return QRect(widget.mapToGlobal(QPoint()), widget.size()); };
    return editor && area(*editor).intersects(area(*this));
}

void CPreviewStrip::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_pView->ResizeInspector(width(), height());
}
