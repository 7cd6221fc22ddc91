#include "canvasfixture.h"

#include <canvas/edgeitem.h>

namespace
{

/// A gradient, a blur and a crop in a chain, and a text beside it.
class CCanvasCommandsTest : public CCanvasFixture
{
protected:
    CCanvasCommandsTest()
    {
        m_iSource = Add("gegl:linear-gradient", {100, 50});
        m_iBlur = Add("gegl:gaussian-blur", {100, 200});
        m_iCrop = Add("gegl:crop", {100, 350});
        m_iText = Add("gegl:text", {450, 50});
        m_document.Connect(m_iSource, m_iBlur, "input");
        m_document.Connect(m_iBlur, m_iCrop, "input");
        m_iSteps = Undo().count();
    }
    bool HasEdge(int from, int to, const char* pad) const
    {
        const sGraphEdge* edge = Graph().FindEdge(to, pad);
        return edge && edge->m_iFrom == from;
    }

    int m_iSource = 0;
    int m_iBlur = 0;
    int m_iCrop = 0;
    int m_iText = 0;
    int m_iSteps = 0;
};

} // namespace

TEST_F(CCanvasCommandsTest, AddsANodeAndSelectsIt)
{
    const int node = m_commands.Add("gegl:perlin-noise", {600, 300});
    ASSERT_NE(node, 0);
    EXPECT_EQ(m_scene.GetSelectedNodes(), std::vector<int>{node});
    EXPECT_EQ(Node(node).GetFrame().center().x(), 600);
    EXPECT_EQ(Node(node).GetFrame().top(), 300);
    EXPECT_EQ(Undo().undoText(), QStringLiteral("Add Perlin Noise"));
    ExpectOneStep(m_iSteps);
}

TEST_F(CCanvasCommandsTest, LeadsTheSelectedNodeIntoTheNewOne)
{
    m_scene.SelectNodes({m_iText});
    const int node = m_commands.Add("gegl:invert", {566, 200});
    EXPECT_TRUE(HasEdge(m_iText, node, "input"));
    ExpectOneStep(m_iSteps);
}

TEST_F(CCanvasCommandsTest, LeadsASelectedEdgeThroughTheNewNode)
{
    m_scene.FindEdge({m_iSource, m_iBlur, "input"})->setSelected(true);
    const int node = m_commands.Add("gegl:invert", {600, 200});
    EXPECT_TRUE(HasEdge(m_iSource, node, "input"));
    EXPECT_TRUE(HasEdge(node, m_iBlur, "input"));
    ExpectOneStep(m_iSteps);
    EXPECT_TRUE(HasEdge(node, m_iBlur, "input"));
}

TEST_F(CCanvasCommandsTest, DoesNotLeadAnythingIntoASource)
{
    m_scene.SelectNodes({m_iCrop});
    const size_t edges = Graph().GetEdges().size();
    m_commands.Add("gegl:perlin-noise", {600, 400});
    EXPECT_EQ(Graph().GetEdges().size(), edges);
}

TEST_F(CCanvasCommandsTest, AddsBelowWhatIsInTheWay)
{
    const int node = m_commands.Add("gegl:perlin-noise", Node(m_iBlur).GetFrame().center());
    for (const int other : {m_iSource, m_iBlur, m_iCrop, m_iText})
        EXPECT_FALSE(Node(node).GetFrame().intersects(Node(other).GetFrame()));
}

TEST_F(CCanvasCommandsTest, AddsNothingThatIsUnknown)
{
    EXPECT_EQ(m_commands.Add("no:such-operation", {0, 0}), 0);
    EXPECT_EQ(Undo().count(), m_iSteps);
}

TEST_F(CCanvasCommandsTest, RemovesANodeAndClosesTheGap)
{
    m_scene.SelectNodes({m_iBlur});
    m_commands.Remove();
    EXPECT_FALSE(Graph().Contains(m_iBlur));
    EXPECT_TRUE(HasEdge(m_iSource, m_iCrop, "input"));
    EXPECT_EQ(Undo().undoText(), QStringLiteral("Remove Gaussian Blur"));
    ExpectOneStep(m_iSteps);
    Undo().undo();
    EXPECT_TRUE(HasEdge(m_iSource, m_iBlur, "input"));
    EXPECT_TRUE(HasEdge(m_iBlur, m_iCrop, "input"));
}

TEST_F(CCanvasCommandsTest, RemovesSeveralNodesAndTheSelectedEdgeInOneStep)
{
    m_scene.SelectNodes({m_iSource, m_iText});
    m_scene.FindEdge({m_iBlur, m_iCrop, "input"})->setSelected(true);
    m_commands.Remove();
    EXPECT_EQ(Graph().GetNodes().size(), 2u);
    EXPECT_TRUE(Graph().GetEdges().empty());
    EXPECT_EQ(Undo().undoText(), QStringLiteral("Remove 2 Nodes"));
    ExpectOneStep(m_iSteps);
}

TEST_F(CCanvasCommandsTest, RemovesASelectedEdge)
{
    m_scene.FindEdge({m_iBlur, m_iCrop, "input"})->setSelected(true);
    m_commands.Remove();
    EXPECT_EQ(Graph().GetEdges().size(), 1u);
    EXPECT_EQ(Undo().undoText(), QStringLiteral("Disconnect"));
    ExpectOneStep(m_iSteps);
}

TEST_F(CCanvasCommandsTest, RemovesNothingWhenNothingIsSelected)
{
    m_commands.Remove();
    m_commands.Duplicate();
    m_commands.Disconnect();
    EXPECT_EQ(Undo().count(), m_iSteps);
}

TEST_F(CCanvasCommandsTest, CopiesToAFreePlaceAndSelectsTheCopies)
{
    m_scene.SelectNodes({m_iBlur, m_iCrop});
    m_commands.Duplicate();
    const std::vector<int> copies = m_scene.GetSelectedNodes();
    ASSERT_EQ(copies.size(), 2u);
    EXPECT_TRUE(HasEdge(copies[0], copies[1], "input"));
    for (const auto& [id, item] : m_scene.GetNodeItems())
        for (const int copy : copies)
            if (id != copy)
            {
                EXPECT_FALSE(Node(copy).GetFrame().intersects(item->GetFrame()));
            }
    ExpectOneStep(m_iSteps);
}

TEST_F(CCanvasCommandsTest, ConnectsTheUpperOfTwoNodesToTheLower)
{
    QString reason;
    m_scene.SelectNodes({m_iText, m_iCrop});
    EXPECT_TRUE(m_commands.Connect(reason));
    EXPECT_TRUE(HasEdge(m_iText, m_iCrop, "aux"));
    ExpectOneStep(m_iSteps);
    m_scene.SelectNodes({m_iSource, m_iText});
    EXPECT_FALSE(m_commands.Connect(reason));
    EXPECT_FALSE(reason.isEmpty());
    m_scene.SelectNodes({m_iSource});
    EXPECT_FALSE(m_commands.Connect(reason));
    EXPECT_EQ(reason, QStringLiteral("Select two nodes to connect them."));
}

TEST_F(CCanvasCommandsTest, DisconnectsAllEdgesOfTheSelectedNodes)
{
    m_scene.SelectNodes({m_iBlur});
    m_commands.Disconnect();
    EXPECT_TRUE(Graph().GetEdges().empty());
    ExpectOneStep(m_iSteps);
}

TEST_F(CCanvasCommandsTest, PinsWhatIsNotPinnedAndElseTakesThePinsOff)
{
    m_document.Pin({m_iBlur}, true);
    m_scene.SelectNodes({m_iBlur, m_iCrop});
    m_commands.Pin();
    EXPECT_TRUE(Graph().Find(m_iCrop)->m_bPinned);
    EXPECT_TRUE(Graph().Find(m_iBlur)->m_bPinned);
    m_commands.Pin();
    EXPECT_FALSE(Graph().Find(m_iCrop)->m_bPinned);
    EXPECT_FALSE(Graph().Find(m_iBlur)->m_bPinned);
}

TEST_F(CCanvasCommandsTest, SelectsWhatFeedsANode)
{
    m_scene.SelectNodes({m_iBlur});
    m_commands.SelectUpstream();
    EXPECT_EQ(m_scene.GetSelectedNodes(), (std::vector<int>{m_iSource, m_iBlur}));
}

TEST_F(CCanvasCommandsTest, SelectsOneNodeAfterTheOther)
{
    m_scene.clearSelection();
    for (const int node : {m_iSource, m_iBlur, m_iCrop, m_iText, m_iSource})
    {
        EXPECT_EQ(m_commands.SelectNext(1), node);
        EXPECT_EQ(m_scene.GetSelectedNodes(), std::vector<int>{node});
    }
    EXPECT_EQ(m_commands.SelectNext(-1), m_iText);
    m_scene.clearSelection();
    EXPECT_EQ(m_commands.SelectNext(-1), m_iText);
}

TEST_F(CCanvasCommandsTest, LaysOutAllNodesInOneStep)
{
    m_document.Connect(m_iText, m_iCrop, "aux");
    m_iSteps = Undo().count();
    m_commands.LayOut();
    EXPECT_EQ(Node(m_iSource).x(), Node(m_iCrop).x());
    EXPECT_GT(Node(m_iText).x(), Node(m_iCrop).x());
    EXPECT_LT(Node(m_iText).y(), Node(m_iCrop).y());
    ExpectOneStep(m_iSteps);
}

TEST_F(CCanvasCommandsTest, KeepsTheCanvasLikeTheGraphThroughUndoAndRedo)
{
    m_scene.SelectNodes({m_iBlur});
    m_commands.Duplicate();
    m_commands.Add("gegl:invert", {800, 100});
    m_commands.SelectAll();
    m_commands.Move({30, 40});
    m_scene.SelectNodes({m_iSource, m_iCrop});
    m_commands.Remove();
    const auto expectSame = [&]
    {
        ASSERT_EQ(m_scene.GetNodeItems().size(), Graph().GetNodes().size());
        for (const auto& [id, node] : Graph().GetNodes())
            EXPECT_EQ(Node(id).pos(), node.m_position);
        for (const sGraphEdge& edge : Graph().GetEdges())
            EXPECT_TRUE(m_scene.FindEdge(edge));
    };
    while (Undo().canUndo())
    {
        expectSame();
        Undo().undo();
    }
    EXPECT_TRUE(m_scene.GetNodeItems().empty());
    while (Undo().canRedo())
    {
        Undo().redo();
        expectSame();
    }
}
