#include "windowfixture.h"

#include <canvas/edgeitem.h>
#include <ui/messagelist.h>
#include <ui/palettepopup.h>

#include <QLineEdit>

#include <set>

namespace
{

/// A gradient that leads to a crop, and a noise beside them.
class CCommandTest : public CWindowFixture
{
protected:
    CCommandTest()
    {
        m_iSource = Document().AddNode("gegl:linear-gradient", {0, 0});
        m_iCrop = Document().AddNode("gegl:crop", {0, 120});
        m_iNoise = Document().AddNode("gegl:perlin-noise", {300, 0});
        Document().Connect(m_iSource, m_iCrop, "input");
        Canvas().ShowAll();
    }
    void Select(const std::vector<int>& nodes) { Scene().SelectNodes(nodes); }

    int m_iSource = 0;
    int m_iCrop = 0;
    int m_iNoise = 0;
};

} // namespace

TEST_F(CCommandTest, HaveAShortcutEachThatIsShownInTheMenu)
{
    // With a recent file, which is a command too.
    QString message;
    ASSERT_TRUE(Document().Save(PathOf("recent.xml"), message));
    ASSERT_TRUE(m_pWindow->OpenGraph(PathOf("recent.xml")));
    const QList<QAction*> commands = Commands();
    EXPECT_GT(commands.size(), 30);
    std::set<QString> keys;
    for (const QAction* command : commands)
    {
        const QString shortcut = command->shortcut().toString();
        EXPECT_FALSE(shortcut.isEmpty()) << command->text().toStdString();
        EXPECT_TRUE(keys.insert(shortcut).second) << shortcut.toStdString();
    }
}

TEST_F(CCommandTest, AddWithTabAndTyping)
{
    Select({m_iCrop});
    QTest::mouseMove(Canvas().viewport(), QPoint(20, 20));
    Key(Qt::Key_Tab);
    CPalettePopup& palette = m_pWindow->GetPalette();
    ASSERT_TRUE(palette.isVisible());
    QTest::keyClicks(palette.focusWidget(), QStringLiteral("gauss blur"));
    QTest::keyClick(palette.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(palette.isVisible());
    ASSERT_EQ(Scene().GetSelectedNodes().size(), 1u);
    const int node = Scene().GetSelectedNodes()[0];
    EXPECT_EQ(Graph().Find(node)->GetInfo().m_sName, "gegl:gaussian-blur");
    ASSERT_TRUE(Graph().FindEdge(node, "input"));
    EXPECT_EQ(Graph().FindEdge(node, "input")->m_iFrom, m_iCrop);
    EXPECT_EQ(Document().GetViewed(), node);
}

TEST_F(CCommandTest, AddWithADoubleClickWhereItWas)
{
    const QPoint place(60, Canvas().viewport()->height() - 90);
    QTest::mouseDClick(Canvas().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    CPalettePopup& palette = m_pWindow->GetPalette();
    ASSERT_TRUE(palette.isVisible());
    QTest::keyClicks(palette.focusWidget(), QStringLiteral("checkerboard"));
    QTest::keyClick(palette.focusWidget(), Qt::Key_Return);
    ASSERT_EQ(Scene().GetSelectedNodes().size(), 1u);
    const QRectF frame = Scene().FindNode(Scene().GetSelectedNodes()[0])->GetFrame();
    const QPointF wanted = Canvas().mapToScene(place);
    EXPECT_LT(std::abs(frame.center().x() - wanted.x()), 300);
    EXPECT_EQ(Graph().GetNodes().size(), 4u);
}

TEST_F(CCommandTest, RemoveUndoAndRedo)
{
    Select({m_iCrop});
    Key(Qt::Key_Delete);
    EXPECT_FALSE(Graph().Contains(m_iCrop));
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(Graph().Contains(m_iCrop));
    EXPECT_TRUE(Graph().FindEdge(m_iCrop, "input"));
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(Graph().Contains(m_iCrop));
}

TEST_F(CCommandTest, Duplicate)
{
    Select({m_iNoise});
    Key(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(Graph().GetNodes().size(), 4u);
    EXPECT_NE(Scene().GetSelectedNodes(), std::vector<int>{m_iNoise});
}

TEST_F(CCommandTest, SelectAllAndWhatFeedsANode)
{
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Scene().GetSelectedNodes().size(), 3u);
    Select({m_iCrop});
    Key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Scene().GetSelectedNodes(), (std::vector<int>{m_iSource, m_iCrop}));
}

TEST_F(CCommandTest, SelectTheNextAndThePreviousNode)
{
    Select({m_iSource});
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Scene().GetSelectedNodes(), std::vector<int>{m_iCrop});
    Key(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Scene().GetSelectedNodes(), std::vector<int>{m_iSource});
}

TEST_F(CCommandTest, ConnectAndDisconnect)
{
    Select({m_iNoise, m_iCrop});
    Key(Qt::Key_J, Qt::ControlModifier);
    ASSERT_TRUE(Graph().FindEdge(m_iCrop, "aux"));
    EXPECT_EQ(Graph().FindEdge(m_iCrop, "aux")->m_iFrom, m_iNoise);
    Select({m_iCrop});
    Key(Qt::Key_J, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(Graph().GetEdges().empty());
    Key(Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(m_pWindow->GetMessage(), QStringLiteral("Select two nodes to connect them."));
}

TEST_F(CCommandTest, MoveNodesStepByStep)
{
    Select({m_iNoise});
    Key(Qt::Key_Right, Qt::AltModifier);
    Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Graph().Find(m_iNoise)->m_position, QPointF(324, 24));
    Key(Qt::Key_Left, Qt::AltModifier);
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Graph().Find(m_iNoise)->m_position, QPointF(300, 0));
}

TEST_F(CCommandTest, LayOut)
{
    Document().Move({{m_iSource, QPointF(500, 700)}});
    Key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(Scene().FindNode(m_iSource)->x(), Scene().FindNode(m_iCrop)->x());
    EXPECT_LT(Scene().FindNode(m_iSource)->y(), Scene().FindNode(m_iCrop)->y());
}

TEST_F(CCommandTest, PinAndShowThePicture)
{
    Select({m_iNoise});
    Key(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(Graph().Find(m_iNoise)->m_bPinned);
    EXPECT_NE(Document().GetViewed(), m_iNoise);
    Key(Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(Document().GetViewed(), m_iNoise);
}

TEST_F(CCommandTest, ResetParameters)
{
    const sImageProperty& x = *Graph().Find(m_iCrop)->GetInfo().FindProperty("x");
    const std::string before = Graph().Find(m_iCrop)->m_pOperation->GetText(x);
    Document().SetText({m_iCrop}, x, "77");
    Select({m_iCrop});
    Key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(Graph().Find(m_iCrop)->m_pOperation->GetText(x), before);
}

TEST_F(CCommandTest, Zoom)
{
    Key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Canvas().GetZoom(), 1);
    Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(Canvas().GetZoom(), 1.2, 1e-9);
    Key(Qt::Key_Minus, Qt::ControlModifier);
    Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_NEAR(Canvas().GetZoom(), 1 / 1.2, 1e-9);
    Document().Move({{m_iNoise, QPointF(6000, 4000)}});
    Key(Qt::Key_F, Qt::ControlModifier);
    const QRectF shown = Canvas().mapToScene(Canvas().viewport()->rect()).boundingRect();
    EXPECT_TRUE(shown.contains(Scene().GetFrameOfNodes()));
}

TEST_F(CCommandTest, ShowTheMessagesOfWhichOneLeadsToItsNode)
{
    CMessageList& messages = m_pWindow->GetMessages();
    EXPECT_FALSE(messages.isVisible());
    Key(Qt::Key_M, Qt::ControlModifier);
    ASSERT_TRUE(messages.isVisible());
    messages.Add(QStringLiteral("Something is wrong"), m_iNoise);
    QApplication::processEvents();
    const QRect row = messages.visualItemRect(messages.item(messages.count() - 1));
    QTest::mouseClick(messages.viewport(), Qt::LeftButton, Qt::NoModifier,
                      row.topLeft() + QPoint(20, row.height() / 2));
    EXPECT_EQ(Scene().GetSelectedNodes(), std::vector<int>{m_iNoise});
    Key(Qt::Key_M, Qt::ControlModifier);
    EXPECT_FALSE(messages.isVisible());
}

TEST_F(CCommandTest, ShowThePictureOfANodeThatIsDoubleClicked)
{
    QTest::mouseDClick(Canvas().viewport(), Qt::LeftButton, Qt::NoModifier, Title(m_iNoise));
    EXPECT_EQ(Document().GetViewed(), m_iNoise);
}
