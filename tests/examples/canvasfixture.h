#pragma once

#include <support/qtmessages.h>

#include <canvas/canvascommands.h>
#include <canvas/canvasview.h>

#include <gtest/gtest.h>

#include <QTest>

/// A canvas on the screen, in its natural size, and the mouse over it.
class CCanvasFixture : public testing::Test
{
protected:
    CCanvasFixture() : m_scene(m_document), m_view(m_scene), m_commands(m_scene)
    {
        // The offscreen display has no place for hints.
        qtmessages::Allow(QStringLiteral("propagateSizeHints"));
        m_view.resize(900, 700);
        m_view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_view));
        m_view.centerOn(400, 300);
    }

    int Add(const char* operation, const QPointF& position)
    {
        return m_document.AddNode(operation, position);
    }
    const CGraph& Graph() const { return m_document.GetGraph(); }
    QUndoStack& Undo() { return m_document.GetUndoStack(); }
    CNodeItem& Node(int node) { return *m_scene.FindNode(node); }

    QPoint InView(const QPointF& place) const { return m_view.mapFromScene(place); }
    QPoint Output(int node) { return InView(Node(node).PadPosition({node, std::string()})); }
    QPoint Input(int node, const char* pad = "input")
    {
        return InView(Node(node).PadPosition({node, pad}));
    }
    /// The title, where a node is taken to be moved.
    QPoint Title(int node) { return InView(Node(node).GetFrame().topLeft() + QPointF(60, 15)); }

    void Press(const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(m_view.viewport(), button, Qt::NoModifier, place);
        m_held = button;
    }
    void MoveTo(const QPoint& place)
    {
        if (m_held == Qt::NoButton)
            return QTest::mouseMove(m_view.viewport(), place);
        // Not every version of the test library remembers what it has pressed.
        QMouseEvent event(QEvent::MouseMove, place, m_view.viewport()->mapToGlobal(place),
                          Qt::NoButton, m_held, Qt::NoModifier);
        QCoreApplication::sendEvent(m_view.viewport(), &event);
    }
    void Release(const QPoint& place)
    {
        QTest::mouseRelease(m_view.viewport(), m_held, Qt::NoModifier, place);
        m_held = Qt::NoButton;
    }
    void Drag(const QPoint& from, const QPoint& to)
    {
        Press(from);
        MoveTo((from + to) / 2);
        MoveTo(to);
        Release(to);
    }
    void Click(const QPoint& place, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QTest::mouseClick(m_view.viewport(), Qt::LeftButton, keys, place);
    }
    /// Takes back one step and does it again: the graph is the same before and after.
    void ExpectOneStep(int before)
    {
        EXPECT_EQ(Undo().count(), before + 1);
        Undo().undo();
        EXPECT_EQ(Undo().index(), before);
        Undo().redo();
    }

    CGraphDocument m_document;
    CGraphScene m_scene;
    CCanvasView m_view;
    CCanvasCommands m_commands;
    Qt::MouseButton m_held = Qt::NoButton;
};
