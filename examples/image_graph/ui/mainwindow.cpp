#include "mainwindow.h"

#include "../canvas/autolayout.h"
#include "../canvas/canvasview.h"
#include "../canvas/nodelook.h"
#include "../canvas/nodestates.h"
#include "../canvas/striplayer.h"
#include "../inspector/inspectorpanel.h"
#include "../inspector/previewstrip.h"
#include "filecommands.h"
#include "mainmenu.h"
#include "messagelist.h"
#include "operationtexts.h"
#include "palettepopup.h"
#include "pictureview.h"
#include "samples.h"

#include <qtsimpledatawidget.h>

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QSplitter>
#include <QStatusBar>
#include <QTextEdit>

namespace
{

constexpr QSize g_size(1440, 900);
constexpr int g_iSideWidth = 430;
constexpr int g_iPictureHeight = 350;
constexpr int g_iMessagesHeight = 110;

} // namespace

CMainWindow::CMainWindow()
    : m_pScene(std::make_unique<CGraphScene>(m_document)),
      m_pCommands(std::make_unique<CCanvasCommands>(*m_pScene)),
      m_pFiles(new CFileCommands(m_document, this)), m_pCanvas(new CCanvasView(*m_pScene)),
      m_pStrips(new CStripLayer(*m_pCanvas, [this](int node, QWidget* parent)
                                { return MakeStrip(node, parent); })),
      m_pPalette(new CPalettePopup(this)), m_pPicture(new CPictureView),
      m_pInspector(new CInspectorPanel(m_document)), m_pMessages(new CMessageList),
      m_pMessage(new QLabel), m_pSummary(new QLabel)
{
    new CNodeStates(*m_pScene, m_renderer); // the scene owns it
    BuildPanels();
    new CMainMenu(*this); // owned by this window
    ConnectDocument();
    ConnectCanvas();
    ConnectRenderer();
    UpdateTitle();
    UpdateSummary();
    resize(g_size);
}

CMainWindow::~CMainWindow()
{
    // The panels look at the document and the scene, which go before the widgets that Qt destroys.
    delete takeCentralWidget();
}

QString CMainWindow::GetMessage() const
{
    return m_pMessage->toolTip();
}

QWidget* CMainWindow::MakeStrip(int node, QWidget* parent)
{
    auto* strip = new CPreviewStrip(m_document, m_renderer, node, parent);
    connect(strip, &CPreviewStrip::Message, this, &CMainWindow::ShowMessage);
    return strip;
}

void CMainWindow::BuildPanels()
{
    auto* left = new QSplitter(Qt::Vertical);
    left->addWidget(m_pCanvas);
    left->addWidget(m_pMessages);
    left->setStretchFactor(0, 1);
    left->setSizes({g_size.height(), g_iMessagesHeight});
    m_pMessages->hide();
    auto* right = new QSplitter(Qt::Vertical);
    right->addWidget(m_pPicture);
    right->addWidget(m_pInspector);
    right->setStretchFactor(1, 1);
    right->setSizes({g_iPictureHeight, g_size.height() - g_iPictureHeight});
    auto* all = new QSplitter;
    all->addWidget(left);
    all->addWidget(right);
    all->setStretchFactor(0, 1);
    all->setSizes({g_size.width() - g_iSideWidth, g_iSideWidth});
    for (QSplitter* splitter : {left, right, all})
    {
        splitter->setHandleWidth(1);
        splitter->setChildrenCollapsible(false);
    }
    setCentralWidget(all);
    m_pSummary->setEnabled(false);
    statusBar()->addWidget(m_pMessage, 1);
    statusBar()->addPermanentWidget(m_pSummary);
    statusBar()->setSizeGripEnabled(false);
}

void CMainWindow::ConnectDocument()
{
    connect(&m_document, &CGraphDocument::StateChanged, this, &CMainWindow::UpdateTitle);
    connect(&m_document, &CGraphDocument::GraphReplaced, this, &CMainWindow::OnGraphReplaced);
    connect(&m_document, &CGraphDocument::PictureChanged, this,
            [this] { m_renderer.Render(m_document.GetGraph(), m_document.GetViewed()); });
    connect(m_pFiles, &CFileCommands::Message, this, &CMainWindow::ShowMessage);
    connect(m_pInspector, &CInspectorPanel::Message, this, &CMainWindow::ShowMessage);
}

void CMainWindow::ConnectCanvas()
{
    connect(m_pScene.get(), &QGraphicsScene::selectionChanged, this,
            [this] { m_pInspector->ShowNodes(m_pScene->GetSelectedNodes()); });
    connect(m_pScene.get(), &CGraphScene::NodesChanged, this, &CMainWindow::UpdateSummary);
    connect(m_pCanvas, &CCanvasView::Moved, this, &CMainWindow::UpdateSummary);
    connect(m_pCanvas, &CCanvasView::PlaceChosen, this, &CMainWindow::OfferOperations);
    connect(m_pCanvas, &CCanvasView::NodeChosen, &m_document, &CGraphDocument::View);
    connect(m_pMessages, &CMessageList::NodeChosen, this,
            [this](int node)
            {
                m_pScene->SelectNodes({node});
                m_pCanvas->ShowNode(node);
            });
    connect(m_pPalette, &CPalettePopup::Chosen, this,
            [this](const QString& operation)
            {
                const int node = m_pCommands->Add(operation.toStdString(), m_placeForNew);
                m_pCanvas->ShowNode(node);
                m_pCanvas->setFocus();
            });
}

void CMainWindow::ConnectRenderer()
{
    connect(m_pPicture, &CPictureView::CancelClicked, this, &CMainWindow::CancelRendering);
    connect(&m_renderer, &CRenderer::Progress, m_pPicture, &CPictureView::ShowProgress);
    connect(&m_renderer, &CRenderer::Cancelled, m_pPicture, &CPictureView::ShowCancelled);
    connect(&m_renderer, &CRenderer::Finished, this,
            [this](const QImage& image, const QString& message)
            {
                m_pPicture->ShowImage(image);
                if (!message.isEmpty())
                    ShowMessage(message);
                Q_EMIT Rendered();
            });
    connect(&m_renderer, &CRenderer::NodeStateChanged, this,
            [this](int node)
            {
                const sNodeState state = m_renderer.GetNodeState(node);
                const sGraphNode* known = m_document.GetGraph().Find(node);
                if (known && state.m_eState == eNodeError)
                    Say(TitleOf(known->GetInfo()) + QStringLiteral(": ") + state.m_sError, node);
                else if (node == m_iMessageNode)
                    Say(QString(), node);
            });
}

void CMainWindow::EditFirstValue()
{
    CQTSimpleDataWidget* first = nullptr;
    for (auto* field : m_pInspector->findChildren<CQTSimpleDataWidget*>())
        if (field->isVisible() && (!first || field->y() < first->y()))
            first = field;
    if (first)
        first->StartEditing();
}

void CMainWindow::CancelRendering()
{
    m_renderer.Cancel();
}

void CMainWindow::ShowMessage(const QString& text)
{
    // What is wrong with a node stays said until it is right, or something else is to be said.
    if (!text.isEmpty() || !m_iMessageNode)
        Say(text, 0);
}

void CMainWindow::Say(const QString& text, int node)
{
    m_iMessageNode = text.isEmpty() ? 0 : node;
    QPalette palette = statusBar()->palette();
    if (m_iMessageNode)
        palette.setColor(QPalette::WindowText, nodelook::g_colorError);
    m_pMessage->setPalette(palette);
    m_pMessage->setText(text.section(QLatin1Char('\n'), 0, 0));
    m_pMessage->setToolTip(text);
    m_pMessages->Add(text, node);
}

void CMainWindow::OfferOperations(const QPoint& place)
{
    m_placeForNew = m_pCanvas->mapToScene(place);
    m_pPalette->PopUp(m_pCanvas->viewport()->mapToGlobal(place));
}

void CMainWindow::OfferOperationsAtMouse()
{
    const std::vector<int> selected = m_pScene->GetSelectedNodes();
    const bool isMouseElsewhere = !m_pCanvas->viewport()->underMouse();
    if (!isMouseElsewhere || selected.size() != 1)
        return OfferOperations(m_pCanvas->GetPlaceForNew());
    m_pCanvas->ShowNode(selected[0]);
    const QRectF frame = m_pScene->FindNode(selected[0])->GetFrame();
    OfferOperations(m_pCanvas->mapFromScene(
        QPointF(frame.center().x(), frame.bottom() + sLayoutSpacing().m_dBetweenRows)));
}

void CMainWindow::OnGraphReplaced()
{
    if (m_document.NeedsPlaces())
        m_document.Place(CCanvasCommands::FindPlaces(m_document.GetGraph()));
    m_pCanvas->ShowAll();
    if (const int viewed = m_document.GetViewed())
        m_pScene->SelectNodes({viewed});
    else
        m_pInspector->ShowNodes({});
}

void CMainWindow::UpdateTitle()
{
    const QString path = m_document.GetPath();
    QString name = tr("New graph");
    if (path.startsWith(QLatin1Char(':')))
        name = SampleTitle(path);
    else if (!path.isEmpty())
        name = QFileInfo(path).fileName();
    setWindowTitle(tr("%1[*] \u2013 Image Graph").arg(name));
    setWindowModified(m_document.IsModified());
}

void CMainWindow::UpdateSummary()
{
    constexpr int percent = 100;
    m_pSummary->setText(tr("%1 nodes, %2 %")
                            .arg(m_pScene->GetNodeItems().size())
                            .arg(qRound(m_pCanvas->GetZoom() * percent)));
}

bool CMainWindow::OpenGraph(const QString& path)
{
    return m_pFiles->OpenPath(path);
}

bool CMainWindow::event(QEvent* event)
{
    // The fields of the panels keep their keys, a text box keeps but those that it knows.
    if (event->type() == QEvent::ShortcutOverride &&
        qobject_cast<QTextEdit*>(QApplication::focusWidget()))
    {
        event->accept();
        return true;
    }
    return QMainWindow::event(event);
}

void CMainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_pFiles->MayDiscard());
}
