#include "mainmenu.h"

#include "../canvas/canvasview.h"
#include "filecommands.h"
#include "mainwindow.h"
#include "messagelist.h"
#include "recentfiles.h"
#include "samples.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>

#include <utility>

namespace
{

/// How far a node is moved with the keyboard.
constexpr qreal g_dStep = 24;

QKeySequence Ctrl(int key)
{
    return QKeySequence(int(Qt::CTRL) | key);
}

QKeySequence CtrlShift(int key)
{
    return QKeySequence(int(Qt::CTRL) | int(Qt::SHIFT) | key);
}

QKeySequence CtrlAlt(int key)
{
    return QKeySequence(int(Qt::CTRL) | int(Qt::ALT) | key);
}

QKeySequence Alt(int key)
{
    return QKeySequence(int(Qt::ALT) | key);
}

} // namespace

CMainMenu::CMainMenu(CMainWindow& window) : QObject(&window), m_window(window)
{
    BuildFile();
    BuildEdit();
    BuildNode();
    BuildView();
    BuildSamples();
}

QAction* CMainMenu::Add(QMenu* menu, const QString& text, const QKeySequence& keys,
                        CCommand command)
{
    QAction* action = menu->addAction(text);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, &m_window, std::move(command));
    return action;
}

void CMainMenu::BuildFile()
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&File"));
    CFileCommands& files = m_window.GetFileCommands();
    Add(menu, tr("&New"), Ctrl(Qt::Key_N), [&files] { files.New(); });
    Add(menu, tr("&Open\u2026"), Ctrl(Qt::Key_O), [&files] { files.Open(); });
    m_pRecent = menu->addMenu(tr("Open &Recent"));
    menu->addSeparator();
    Add(menu, tr("&Save"), Ctrl(Qt::Key_S), [&files] { files.Save(); });
    Add(menu, tr("Save &As\u2026"), CtrlShift(Qt::Key_S), [&files] { files.SaveAs(); });
    menu->addSeparator();
    Add(menu, tr("&Quit"), Ctrl(Qt::Key_Q), [this] { m_window.close(); });
    connect(&files, &CFileCommands::RecentFilesChanged, this, &CMainMenu::UpdateRecent);
    UpdateRecent();
}

void CMainMenu::UpdateRecent()
{
    m_pRecent->clear();
    int key = Qt::Key_1;
    for (const QString& path : CRecentFiles::Get())
        Add(m_pRecent, QFileInfo(path).fileName(), Ctrl(key++),
            [this, path] { m_window.GetFileCommands().OpenRecent(path); })
            ->setToolTip(path);
    m_pRecent->setEnabled(!m_pRecent->isEmpty());
    m_pRecent->setToolTipsVisible(true);
}

void CMainMenu::BuildSamples()
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Samples"));
    int key = Qt::Key_1;
    for (const QString& path : SamplePaths())
        Add(menu, SampleTitle(path), CtrlAlt(key++),
            [this, path] { m_window.GetFileCommands().OpenRecent(path); });
}

void CMainMenu::BuildEdit()
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Edit"));
    CCanvasCommands& commands = m_window.GetCommands();
    QUndoStack& stack = m_window.GetDocument().GetUndoStack();
    QAction* undo = stack.createUndoAction(menu, tr("&Undo"));
    undo->setShortcut(Ctrl(Qt::Key_Z));
    QAction* redo = stack.createRedoAction(menu, tr("&Redo"));
    redo->setShortcut(CtrlShift(Qt::Key_Z));
    menu->addAction(undo);
    menu->addAction(redo);
    menu->addSeparator();
    Add(menu, tr("&Duplicate"), Ctrl(Qt::Key_D), [&commands] { commands.Duplicate(); });
    Add(menu, tr("Re&move"), QKeySequence(Qt::Key_Delete), [&commands] { commands.Remove(); });
    menu->addSeparator();
    Add(menu, tr("Select &All"), Ctrl(Qt::Key_A), [&commands] { commands.SelectAll(); });
    Add(menu, tr("Select What &Feeds It"), CtrlShift(Qt::Key_A),
        [&commands] { commands.SelectUpstream(); });
    Add(menu, tr("Select Ne&xt"), Ctrl(Qt::Key_PageDown), [this] { SelectNext(1); });
    Add(menu, tr("Select &Previous"), Ctrl(Qt::Key_PageUp), [this] { SelectNext(-1); });
}

void CMainMenu::SelectNext(int step)
{
    if (const int node = m_window.GetCommands().SelectNext(step))
        m_window.GetCanvas().ShowNode(node);
}

void CMainMenu::BuildNode()
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Node"));
    CCanvasCommands& commands = m_window.GetCommands();
    QAction* add = Add(menu, tr("&Add\u2026"), QKeySequence(Qt::Key_Tab),
                       [this] { m_window.OfferOperationsAtMouse(); });
    // Elsewhere, Tab leads from field to field.
    m_window.GetCanvas().addAction(add);
    add->setShortcutContext(Qt::WidgetShortcut);
    Add(menu, tr("&Connect"), Ctrl(Qt::Key_J),
        [this]
        {
            QString reason;
            m_window.GetCommands().Connect(reason);
            m_window.ShowMessage(reason);
        });
    Add(menu, tr("&Disconnect"), CtrlShift(Qt::Key_J), [&commands] { commands.Disconnect(); });
    menu->addSeparator();
    Add(menu, tr("&Edit Parameters"), QKeySequence(Qt::Key_F2),
        [this] { m_window.EditFirstValue(); });
    Add(menu, tr("&Reset Parameters"), Ctrl(Qt::Key_R), [&commands] { commands.Reset(); });
    Add(menu, tr("&Pin Parameters"), Ctrl(Qt::Key_P), [&commands] { commands.Pin(); });
    Add(menu, tr("Show the &Picture"), Ctrl(Qt::Key_E), [&commands] { commands.View(); });
    menu->addSeparator();
    BuildMove(menu);
    Add(menu, tr("&Lay Out All"), Ctrl(Qt::Key_L), [&commands] { commands.LayOut(); });
}

void CMainMenu::BuildMove(QMenu* parent)
{
    QMenu* menu = parent->addMenu(tr("&Move"));
    const auto add = [&](const QString& text, int key, const QPointF& step)
    { Add(menu, text, Alt(key), [this, step] { m_window.GetCommands().Move(step); }); };
    add(tr("&Left"), Qt::Key_Left, {-g_dStep, 0});
    add(tr("&Right"), Qt::Key_Right, {g_dStep, 0});
    add(tr("&Up"), Qt::Key_Up, {0, -g_dStep});
    add(tr("&Down"), Qt::Key_Down, {0, g_dStep});
}

void CMainMenu::BuildView()
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&View"));
    CCanvasView& canvas = m_window.GetCanvas();
    Add(menu, tr("Zoom &In"), Ctrl(Qt::Key_Plus), [&canvas] { canvas.ZoomIn(); });
    Add(menu, tr("Zoom &Out"), Ctrl(Qt::Key_Minus), [&canvas] { canvas.ZoomOut(); });
    Add(menu, tr("&Natural Size"), Ctrl(Qt::Key_0), [&canvas] { canvas.ZoomToOne(); });
    Add(menu, tr("Show &All"), Ctrl(Qt::Key_F), [&canvas] { canvas.ShowAll(); });
    menu->addSeparator();
    QAction* messages = Add(menu, tr("&Messages"), Ctrl(Qt::Key_M),
                            [this]
                            {
                                QWidget& list = m_window.GetMessages();
                                list.setVisible(!list.isVisible());
                            });
    messages->setCheckable(true);
    Add(menu, tr("&Cancel Rendering"), Ctrl(Qt::Key_Period),
        [this] { m_window.CancelRendering(); });
}
