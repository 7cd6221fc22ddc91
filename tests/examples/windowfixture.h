#pragma once

#include <support/qtmessages.h>

#include <canvas/canvasview.h>
#include <ui/mainwindow.h>

#include <qttextencoding.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

/// The window of the program on the screen, without a graph. What it remembers is kept in a folder
/// that is gone after the test.
class CWindowFixture : public testing::Test
{
protected:
    CWindowFixture()
    {
        // The offscreen display has no place for hints and grabs nothing.
        qtmessages::Allow(QStringLiteral("propagateSizeHints"));
        qtmessages::Allow(QStringLiteral("grabbing the keyboard"));
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
        CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
        m_pWindow = std::make_unique<CMainWindow>();
        m_pWindow->show();
        m_pWindow->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(m_pWindow.get()));
        m_pWindow->GetCanvas().setFocus();
    }
    ~CWindowFixture() override
    {
        m_pWindow.reset();
        CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
    }

    CGraphDocument& Document() { return m_pWindow->GetDocument(); }
    const CGraph& Graph() { return Document().GetGraph(); }
    CGraphScene& Scene() { return m_pWindow->GetScene(); }
    CCanvasView& Canvas() { return m_pWindow->GetCanvas(); }
    QString Sample(const char* name)
    {
        return QStringLiteral(IMAGE_GRAPH_SAMPLES "/") + QString::fromUtf8(name);
    }
    QString PathOf(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    /// Presses a key on the canvas.
    void Key(int key, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        // No window manager gives the keyboard back after a dialog.
        m_pWindow->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_pWindow.get()));
        Canvas().setFocus();
        QTest::keyClick(&Canvas(), Qt::Key(key), keys);
    }
    QPoint Title(int node)
    {
        return Canvas().mapFromScene(Scene().FindNode(node)->GetFrame().topLeft() +
                                     QPointF(60, 14));
    }

    /// Every command of the menus.
    QList<QAction*> Commands()
    {
        QList<QAction*> commands;
        for (const QAction* menu : m_pWindow->menuBar()->actions())
            AddCommands(*menu->menu(), commands);
        return commands;
    }
    static void AddCommands(const QMenu& menu, QList<QAction*>& commands)
    {
        for (QAction* action : menu.actions())
            if (action->menu())
                AddCommands(*action->menu(), commands);
            else if (!action->isSeparator())
                commands << action;
    }

    /// Does that with the next window that wants an answer.
    template <class TDialog>
    void Answer(const std::function<void(TDialog&)>& answer)
    {
        QTimer::singleShot(0, m_pWindow.get(),
                           [this, answer]
                           {
                               auto* dialog =
                                   qobject_cast<TDialog*>(QApplication::activeModalWidget());
                               if (dialog)
                               {
                                   ++m_iAnswered;
                                   answer(*dialog);
                               }
                               else
                                   Answer<TDialog>(answer);
                           });
    }

    QTemporaryDir m_folder;
    std::unique_ptr<CMainWindow> m_pWindow;
    int m_iAnswered = 0;
};
