#include "mainwindow.h"

#include "../chain/inspector/inspectorpanel.h"
#include "chainview.h"
#include "operationpalette.h"
#include "pictureview.h"
#include "samples.h"

#include <QAction>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

CMainWindow::CMainWindow()
    : m_pChain(new CChainView(m_document)), m_pPalette(new COperationPalette),
      m_pPicture(new CPictureView), m_pInspector(new CInspectorPanel(m_document)),
      m_pMessage(new QLabel)
{
    BuildPanels();
    BuildActions();
    ConnectParts();
    UpdateTitle();
    resize(1360, 780);
}

CMainWindow::~CMainWindow()
{
    // The panels look at the document, which goes before the widgets that Qt destroys.
    delete takeCentralWidget();
}

QString CMainWindow::GetMessage() const
{
    return m_pMessage->text();
}

void CMainWindow::BuildPanels()
{
    auto* left = new QSplitter(Qt::Vertical);
    left->addWidget(m_pChain);
    left->addWidget(m_pPalette);
    left->setSizes({400, 300});
    auto* leftFrame = new QWidget;
    auto* leftLayout = new QVBoxLayout(leftFrame);
    leftLayout->setContentsMargins(8, 8, 4, 8);
    leftLayout->addWidget(left);
    auto* all = new QSplitter;
    all->addWidget(leftFrame);
    all->addWidget(m_pPicture);
    all->addWidget(m_pInspector);
    all->setStretchFactor(1, 1);
    all->setSizes({230, 750, 380});
    all->setHandleWidth(1);
    left->setHandleWidth(8);
    all->setChildrenCollapsible(false);
    setCentralWidget(all);
    statusBar()->addWidget(m_pMessage, 1);
    statusBar()->setSizeGripEnabled(false);
}

void CMainWindow::BuildActions()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    const auto add = [this](QMenu* menu, const QString& text, const QKeySequence& keys,
                            void (CMainWindow::*slot)())
    {
        QAction* action = menu->addAction(text);
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, slot);
    };
    QAction* fresh = file->addAction(tr("&New"));
    fresh->setShortcut(QKeySequence::New);
    connect(fresh, &QAction::triggered, this,
            [this]
            {
                if (MayDiscard())
                    m_document.Clear();
            });
    add(file, tr("&Open\u2026"), QKeySequence::Open, &CMainWindow::Open);
    add(file, tr("&Save As\u2026"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
        &CMainWindow::SaveAs);
    QAction* quit = file->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);

    QMenu* samples = menuBar()->addMenu(tr("S&amples"));
    for (const QString& path : SamplePaths())
    {
        QAction* action = samples->addAction(SampleTitle(path));
        connect(action, &QAction::triggered, this,
                [this, path]
                {
                    if (MayDiscard())
                        OpenGraph(path);
                });
    }
    QMenu* operation = menuBar()->addMenu(tr("&Operation"));
    QAction* search = operation->addAction(tr("&Add\u2026"));
    search->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F));
    connect(search, &QAction::triggered, m_pPalette, &COperationPalette::FocusSearch);
    QAction* remove = operation->addAction(tr("&Remove"));
    remove->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Delete));
    connect(remove, &QAction::triggered, m_pChain, &CChainView::RemoveCurrent);
    QAction* up = operation->addAction(tr("Move &Up"));
    up->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Up));
    connect(up, &QAction::triggered, this, [this] { m_pChain->MoveCurrent(-1); });
    QAction* down = operation->addAction(tr("Move &Down"));
    down->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Down));
    connect(down, &QAction::triggered, this, [this] { m_pChain->MoveCurrent(1); });
}

void CMainWindow::ConnectParts()
{
    connect(m_pChain, &CChainView::CurrentChanged, m_pInspector, &CInspectorPanel::ShowItem);
    connect(m_pPalette, &COperationPalette::Chosen, this, &CMainWindow::AddOperation);
    connect(m_pInspector, &CInspectorPanel::Message, this, &CMainWindow::ShowMessage);
    connect(&m_document, &CGraphDocument::StateChanged, this, &CMainWindow::UpdateTitle);
    connect(&m_document, &CGraphDocument::ItemChanged, this,
            [this](sGraphItem* item)
            {
                if (item == m_pInspector->GetController().GetItem())
                    m_pInspector->GetController().RefreshInspector();
            });
    connect(&m_document, &CGraphDocument::PictureChanged, this,
            [this] { m_renderer.Render(m_document.GetChain()); });
    connect(m_pPicture, &CPictureView::CancelClicked, &m_renderer, &CRenderer::Cancel);
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
}

void CMainWindow::ShowMessage(const QString& text)
{
    m_pMessage->setText(text.section(QLatin1Char('\n'), 0, 0));
    m_pMessage->setToolTip(text);
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

void CMainWindow::AddOperation(const QString& name)
{
    m_document.Add(name.toStdString(), m_pChain->GetCurrent());
}

bool CMainWindow::OpenGraph(const QString& path)
{
    QString message;
    const bool good = m_document.Load(path, message);
    ShowMessage(message);
    return good;
}

void CMainWindow::Open()
{
    if (!MayDiscard())
        return;
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a graph"), QString(),
                                                      tr("Graphs (*.xml);;All files (*)"));
    if (!path.isEmpty() && !OpenGraph(path))
        QMessageBox::warning(this, tr("Open a graph"), m_pMessage->toolTip());
}

void CMainWindow::SaveAs()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save the graph"), QString(),
                                                      tr("Graphs (*.xml);;All files (*)"));
    if (path.isEmpty())
        return;
    QString message;
    if (m_document.Save(path, message))
        ShowMessage(tr("Saved."));
    else
        QMessageBox::warning(this, tr("Save the graph"), message);
}

bool CMainWindow::MayDiscard()
{
    return !m_document.IsModified() || m_document.GetChain().empty() ||
           QMessageBox::question(this, tr("Unsaved changes"),
                                 tr("The graph was changed and not saved. Discard the changes?")) ==
               QMessageBox::Yes;
}

void CMainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(MayDiscard());
}
