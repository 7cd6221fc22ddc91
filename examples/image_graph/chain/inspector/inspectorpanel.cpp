#include "inspectorpanel.h"

#include <qtinspectorview.h>

#include <QEvent>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{

const QColor g_colorNothing(240, 184, 100);
const QColor g_colorLabels(188, 189, 190);

} // namespace

CInspectorPanel::CInspectorPanel(CGraphDocument& document, QWidget* parent)
    : QWidget(parent), m_document(document), m_pTitle(new QLabel), m_pName(new QLabel),
      m_pPreview(new QToolButton), m_pFrame(new QWidget), m_pView(new CQTInspectorView),
      m_pController(new CPanelController(document))
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
    m_pPreview->setText(tr("Preview"));
    m_pPreview->setToolTip(tr("Show the parameters on one line, as a node would"));
    m_pPreview->setCheckable(true);
    connect(m_pPreview, &QToolButton::toggled, this, &CInspectorPanel::SetPreview);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addWidget(m_pTitle);
    texts->addWidget(m_pName);
    auto* heading = new QHBoxLayout;
    heading->setContentsMargins(6, 0, 6, 0);
    heading->addLayout(texts, 1);
    heading->addWidget(m_pPreview, 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 8, 0, 0);
    layout->addLayout(heading);
    layout->addWidget(m_pFrame, 1);
    m_pFrame->installEventFilter(this);
    m_pFrame->setMinimumSize(280, 120);
    ShowItem(nullptr);
}

CInspectorPanel::~CInspectorPanel()
{
    m_pFrame->removeEventFilter(this);
    // The rows go before the view that shows them.
    m_pController.reset();
}

void CInspectorPanel::ShowItem(sGraphItem* item)
{
    if (item != m_pController->GetItem() || !item)
        ShowOperation(item);
}

void CInspectorPanel::ShowOperation(sGraphItem* item)
{
    m_pController->SetItem(item);
    const sOperationInfo* info = item ? &item->m_pOperation->GetInfo() : nullptr;
    m_pTitle->setText(info ? QString::fromStdString(info->m_sTitle) : tr("Nothing selected"));
    m_pName->setText(info ? QString::fromStdString(info->m_sName) : QString());
    m_pView->SetPreviewMessage(item ? "" : "\u00a0\u00a0Select an operation to see its parameters.",
                               g_colorNothing);
    m_pView->RecomputeLayout();
}

void CInspectorPanel::SetPreview(bool on)
{
    m_pPreview->setChecked(on);
    if (m_pController->IsPreviewMode() == on)
        return;
    // The two modes have different rows.
    sGraphItem* item = m_pController->GetItem();
    m_pController->SetItem(nullptr);
    m_pController->SetPreviewMode(on);
    ShowOperation(item);
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
