#include "inspectorpanel.h"

#include <qtinspectorview.h>

#include <QEvent>
#include <QFontInfo>
#include <QLabel>
#include <QVBoxLayout>

namespace
{

const QColor g_colorNothing(240, 184, 100);
const QColor g_colorLabels(188, 189, 190);

} // namespace

CInspectorPanel::CInspectorPanel(CGraphDocument& document, QWidget* parent)
    : QWidget(parent), m_pTitle(new QLabel), m_pName(new QLabel), m_pFrame(new QWidget),
      m_pView(new CQTInspectorView), m_pController(new CPanelController(document))
{
    m_pView->setParent(m_pFrame);
    m_pView->SetController(m_pController.get());
    m_pController->SetInspectorView(m_pView.get());
    // Frames are a darker tone of the labels; the values shall stand out more than both.
    QPalette palette = m_pView->palette();
    palette.setColor(QPalette::WindowText, g_colorLabels);
    m_pView->setPalette(palette);
    m_pController->SetDialogParent(this);
    m_pController->SetMessageSink([this](const std::string& text)
                                  { Q_EMIT Message(QString::fromStdString(text)); });

    QFont titleFont = font();
    titleFont.setBold(true);
    titleFont.setPixelSize(QFontInfo(titleFont).pixelSize() * 6 / 5);
    m_pTitle->setFont(titleFont);
    m_pName->setEnabled(false);
    auto* heading = new QVBoxLayout;
    heading->setContentsMargins(6, 0, 6, 0);
    heading->setSpacing(1);
    heading->addWidget(m_pTitle);
    heading->addWidget(m_pName);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 8, 0, 0);
    layout->addLayout(heading);
    layout->addWidget(m_pFrame, 1);
    m_pFrame->installEventFilter(this);
    m_pFrame->setMinimumSize(280, 120);
    ShowNodes({});
}

CInspectorPanel::~CInspectorPanel()
{
    m_pFrame->removeEventFilter(this);
    // The rows go before the view that shows them.
    m_pController.reset();
}

void CInspectorPanel::ShowNodes(const std::vector<int>& nodes)
{
    m_pController->ShowNodes(nodes);
    UpdateHeading(nodes.size());
    const char* message = "";
    if (nodes.empty())
        message = "\u00a0\u00a0Select a node to see its parameters.";
    else if (!m_pController->GetInfo())
        message = "\u00a0\u00a0These nodes have no parameters in common.";
    m_pView->SetPreviewMessage(message, g_colorNothing);
    m_pView->RecomputeLayout();
}

void CInspectorPanel::UpdateHeading(std::size_t selected)
{
    const sOperationInfo* info = m_pController->GetInfo();
    QString title = tr("Nothing selected");
    if (info && selected > 1)
        title = tr("%1 \u00d7 %2").arg(selected).arg(QString::fromStdString(info->m_sTitle));
    else if (info)
        title = QString::fromStdString(info->m_sTitle);
    else if (selected > 0)
        title = tr("%1 nodes").arg(selected);
    m_pTitle->setText(title);
    m_pName->setText(info ? QString::fromStdString(info->m_sName) : QString());
}

bool CInspectorPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_pFrame && event->type() == QEvent::Resize)
        FitView();
    return QWidget::eventFilter(watched, event);
}

void CInspectorPanel::FitView()
{
    m_pView->ResizeInspector(m_pFrame->width(), m_pFrame->height());
}
