#include "canvasfixture.h"

#include <canvas/edgeitem.h>

#include <QLabel>
#include <QSignalSpy>

namespace
{

/// A gradient and a blur that is not connected, one above the other, and a blend beside them.
class CCanvasTest : public CCanvasFixture
{
protected:
    CCanvasTest()
    {
        m_iSource = Add("gegl:linear-gradient", {100, 50});
        m_iBlur = Add("gegl:gaussian-blur", {100, 200});
        m_iBlend = Add("gegl:multiply", {450, 350});
    }
    bool HasEdge(int from, int to, const char* pad) const
    {
        const sGraphEdge* edge = Graph().FindEdge(to, pad);
        return edge && edge->m_iFrom == from;
    }
    /// A point of an edge near its start, where the edge is and the pad is not.
    QPoint NearStart(const sGraphEdge& edge)
    {
        const QPainterPath path = m_scene.FindEdge(edge)->path();
        return InView(path.pointAtPercent(path.percentAtLength(18)));
    }
    QLabel& Reason() { return *m_view.findChild<QLabel*>(QStringLiteral("reason")); }
    QPoint Nowhere() const { return {850, 20}; }

    int m_iSource = 0;
    int m_iBlur = 0;
    int m_iBlend = 0;
};

} // namespace

TEST_F(CCanvasTest, DrawsAnEdgeFromAnOutputToAnInput)
{
    const int steps = Undo().count();
    Drag(Output(m_iSource), Input(m_iBlur));
    EXPECT_TRUE(HasEdge(m_iSource, m_iBlur, "input"));
    EXPECT_EQ(Undo().undoText(), QStringLiteral("Connect"));
    ExpectOneStep(steps);
}

TEST_F(CCanvasTest, DrawsAnEdgeFromAnInputToAnOutput)
{
    Drag(Input(m_iBlend, "aux"), Output(m_iSource));
    EXPECT_TRUE(HasEdge(m_iSource, m_iBlend, "aux"));
}

TEST_F(CCanvasTest, FindsTheFreeInputOfANodeThatAnEdgeIsDroppedOn)
{
    Drag(Output(m_iSource), Title(m_iBlend));
    EXPECT_TRUE(HasEdge(m_iSource, m_iBlend, "input"));
    Drag(Output(m_iBlur), Title(m_iBlend));
    EXPECT_TRUE(HasEdge(m_iBlur, m_iBlend, "aux"));
}

TEST_F(CCanvasTest, MovesTheEndOfAnEdgeToAnotherInput)
{
    m_document.Connect(m_iSource, m_iBlend, "input");
    const int steps = Undo().count();
    Drag(Input(m_iBlend), Input(m_iBlend, "aux"));
    EXPECT_FALSE(Graph().FindEdge(m_iBlend, "input"));
    EXPECT_TRUE(HasEdge(m_iSource, m_iBlend, "aux"));
    ExpectOneStep(steps);
}

TEST_F(CCanvasTest, MovesTheStartOfAnEdgeToAnotherOutput)
{
    m_document.Connect(m_iSource, m_iBlend, "input");
    m_scene.LeadEdges();
    const int steps = Undo().count();
    Drag(NearStart({m_iSource, m_iBlend, "input"}), Output(m_iBlur));
    EXPECT_TRUE(HasEdge(m_iBlur, m_iBlend, "input"));
    EXPECT_EQ(Graph().GetEdges().size(), 1u);
    ExpectOneStep(steps);
}

TEST_F(CCanvasTest, DisconnectsAnEdgeThatIsDroppedOnNothing)
{
    m_document.Connect(m_iSource, m_iBlur, "input");
    const int steps = Undo().count();
    Drag(Input(m_iBlur), Nowhere());
    EXPECT_TRUE(Graph().GetEdges().empty());
    EXPECT_EQ(Undo().undoText(), QStringLiteral("Disconnect"));
    ExpectOneStep(steps);
}

TEST_F(CCanvasTest, MakesNothingOfANewEdgeThatIsDroppedOnNothing)
{
    const int steps = Undo().count();
    Drag(Output(m_iSource), Nowhere());
    EXPECT_TRUE(Graph().GetEdges().empty());
    EXPECT_EQ(Undo().count(), steps);
}

TEST_F(CCanvasTest, RefusesACircleAndSaysWhy)
{
    m_document.Connect(m_iBlur, m_iBlend, "input");
    const int steps = Undo().count();
    Press(Output(m_iBlend));
    MoveTo(Title(m_iBlur));
    MoveTo(Input(m_iBlur));
    EXPECT_TRUE(Reason().isVisible());
    QString reason;
    EXPECT_FALSE(m_document.CanConnect(m_iBlend, m_iBlur, "input", reason));
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(Reason().text(), reason);
    const QPoint offset = Reason().pos() - Input(m_iBlur);
    EXPECT_LT(offset.manhattanLength(), 60) << "the reason is not at the mouse";
    Release(Input(m_iBlur));
    EXPECT_FALSE(Reason().isVisible());
    EXPECT_EQ(Undo().count(), steps);
    EXPECT_EQ(Graph().GetEdges().size(), 1u);
}

TEST_F(CCanvasTest, RefusesTwoOutputsAndLeavesAnEdgeThatWasTakenUp)
{
    m_document.Connect(m_iSource, m_iBlur, "input");
    const int steps = Undo().count();
    Drag(Input(m_iBlur), Output(m_iBlend));
    EXPECT_TRUE(HasEdge(m_iSource, m_iBlur, "input"));
    EXPECT_EQ(Undo().count(), steps);
}

TEST_F(CCanvasTest, GivesADragUpAtEscape)
{
    m_document.Connect(m_iSource, m_iBlur, "input");
    const int steps = Undo().count();
    Press(Input(m_iBlur));
    MoveTo(Nowhere());
    QTest::keyClick(&m_view, Qt::Key_Escape);
    EXPECT_FALSE(m_view.GetConnectTool().IsActive());
    Release(Nowhere());
    EXPECT_TRUE(HasEdge(m_iSource, m_iBlur, "input"));
    EXPECT_EQ(Undo().count(), steps);
}

TEST_F(CCanvasTest, SelectsAnEdgeThatIsClickedAlsoAtItsEnd)
{
    m_document.Connect(m_iSource, m_iBlur, "input");
    m_scene.LeadEdges();
    Click((Output(m_iSource) + Input(m_iBlur)) / 2);
    EXPECT_EQ(m_scene.GetSelectedEdges().size(), 1u);
    m_scene.clearSelection();
    Click(NearStart({m_iSource, m_iBlur, "input"}));
    EXPECT_EQ(m_scene.GetSelectedEdges().size(), 1u);
    EXPECT_EQ(Graph().GetEdges().size(), 1u);
}

TEST_F(CCanvasTest, MovesTheSelectedNodesInOneStep)
{
    const int steps = Undo().count();
    Click(Title(m_iSource));
    Click(Title(m_iBlur), Qt::ControlModifier);
    EXPECT_EQ(m_scene.GetSelectedNodes(), (std::vector<int>{m_iSource, m_iBlur}));
    Drag(Title(m_iBlur), Title(m_iBlur) + QPoint(60, 30));
    EXPECT_EQ(Graph().Find(m_iSource)->m_position, QPointF(160, 80));
    EXPECT_EQ(Graph().Find(m_iBlur)->m_position, QPointF(160, 230));
    ExpectOneStep(steps);
    Undo().undo();
    EXPECT_EQ(Node(m_iSource).pos(), QPointF(100, 50));
}

TEST_F(CCanvasTest, SelectsWhatABoxTouches)
{
    Drag({20, 20}, InView({480, 300}));
    EXPECT_EQ(m_scene.GetSelectedNodes(), (std::vector<int>{m_iSource, m_iBlur}));
    EXPECT_EQ(Undo().count(), 3);
}

TEST_F(CCanvasTest, PinsANodeAtItsPin)
{
    const QPointF pin = Node(m_iBlur).GetFrame().topRight() + QPointF(-15, 15);
    Click(InView(pin));
    EXPECT_TRUE(Graph().Find(m_iBlur)->m_bPinned);
    EXPECT_TRUE(Node(m_iBlur).IsPinned());
    Click(InView(pin));
    EXPECT_FALSE(Graph().Find(m_iBlur)->m_bPinned);
}

TEST_F(CCanvasTest, IsMovedWithTheMiddleButtonAndWithTheSpaceBar)
{
    const QPointF before = m_view.mapToScene(0, 0);
    Press({400, 300}, Qt::MiddleButton);
    MoveTo({450, 340});
    Release({450, 340});
    EXPECT_EQ(m_view.mapToScene(0, 0), before - QPointF(50, 40));
    QTest::keyPress(&m_view, Qt::Key_Space);
    Drag({450, 340}, {400, 300});
    QTest::keyRelease(&m_view, Qt::Key_Space);
    EXPECT_EQ(m_view.mapToScene(0, 0), before);
    EXPECT_EQ(Undo().count(), 3);
}

TEST_F(CCanvasTest, ZoomsAroundTheMouse)
{
    const QPoint mouse(700, 150);
    const QPointF below = m_view.mapToScene(mouse);
    const auto turn = [&](int angle)
    {
        QWheelEvent event(mouse, m_view.viewport()->mapToGlobal(mouse), {}, {0, angle},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_view.viewport(), &event);
    };
    turn(120);
    EXPECT_NEAR(m_view.GetZoom(), 1.2, 1e-9);
    EXPECT_LT(QLineF(m_view.mapToScene(mouse), below).length(), 1.5);
    turn(-240);
    EXPECT_NEAR(m_view.GetZoom(), 1 / 1.2, 1e-9);
    for (int i = 0; i < 100; ++i)
        turn(-240);
    EXPECT_NEAR(m_view.GetZoom(), 0.1, 1e-9);
}

TEST_F(CCanvasTest, ShowsAllNodesAlsoAfterTheWindowChanged)
{
    Add("gegl:crop", {2500, 1800});
    m_view.ShowAll();
    const auto showsAll = [&]
    {
        const QRectF shown = m_view.mapToScene(m_view.viewport()->rect()).boundingRect();
        return shown.contains(m_scene.GetFrameOfNodes());
    };
    EXPECT_TRUE(showsAll());
    m_view.resize(500, 400);
    EXPECT_TRUE(showsAll());
}

TEST_F(CCanvasTest, AnswersToDoubleClicksOnNodesAndOnNothing)
{
    const QSignalSpy places(&m_view, &CCanvasView::PlaceChosen);
    const QSignalSpy nodes(&m_view, &CCanvasView::NodeChosen);
    QTest::mouseDClick(m_view.viewport(), Qt::LeftButton, Qt::NoModifier, Nowhere());
    ASSERT_EQ(places.count(), 1);
    EXPECT_EQ(places[0][0].toPoint(), Nowhere());
    QTest::mouseDClick(m_view.viewport(), Qt::LeftButton, Qt::NoModifier, Title(m_iBlur));
    ASSERT_EQ(nodes.count(), 1);
    EXPECT_EQ(nodes[0][0].toInt(), m_iBlur);
    EXPECT_EQ(Undo().count(), 3);
}

TEST_F(CCanvasTest, LeadsEdgesAroundNodes)
{
    const int crop = Add("gegl:crop", {100, 600});
    m_document.Connect(m_iSource, crop, "input");
    m_scene.LeadEdges();
    const sGraphEdge edge{m_iSource, crop, "input"};
    ASSERT_TRUE(m_scene.FindEdge(edge));
    const QPainterPath path = m_scene.FindEdge(edge)->path();
    for (int percent = 0; percent <= 100; ++percent)
        EXPECT_FALSE(Node(m_iBlur).GetFrame().contains(path.pointAtPercent(percent / 100.0)));
}
