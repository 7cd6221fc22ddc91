#include "graphediting.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace
{

class CDocumentTest : public testing::Test
{
protected:
    int Add(const char* name, const QPointF& position = QPointF())
    {
        return m_document.AddNode(name, position);
    }
    const sGraphNode& Node(int id) const { return *m_document.GetGraph().Find(id); }
    const sImageProperty& Property(int id, const char* name) const
    {
        return *Node(id).GetInfo().FindProperty(name);
    }
    QUndoStack& Stack() { return m_document.GetUndoStack(); }

    CGraphDocument m_document;
};

/// Writes down what a document tells.
class CListener
{
public:
    explicit CListener(CGraphDocument& document)
    {
        const auto hear = [&](auto signal, const std::string& name)
        {
            QObject::connect(&document, signal, &m_receiver,
                             [this, name](auto... node)
                             { m_sHeard += name + (... + std::to_string(node)) + ' '; });
        };
        hear(&CGraphDocument::NodeAdded, "added");
        hear(&CGraphDocument::NodeRemoved, "removed");
        hear(&CGraphDocument::NodeMoved, "moved");
        hear(&CGraphDocument::NodeChanged, "changed");
        const auto hearAll = [&](auto signal, const std::string& name) {
            QObject::connect(&document, signal, &m_receiver,
                             [this, name] { m_sHeard += name + ' '; });
        };
        hearAll(&CGraphDocument::EdgesChanged, "edges");
        hearAll(&CGraphDocument::PictureChanged, "picture");
        hearAll(&CGraphDocument::GraphReplaced, "replaced");
    }

    std::string Take() { return std::exchange(m_sHeard, {}); }

private:
    QObject m_receiver;
    std::string m_sHeard;
};

} // namespace

TEST_F(CDocumentTest, NamesEachStepAfterWhatItDoes)
{
    const int board = Add("gegl:checkerboard");
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Add Checkerboard"));
    const int blur = Add("gegl:gaussian-blur");
    m_document.Connect(board, blur, "input");
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Connect"));
    SetText(m_document, blur, "std-dev-x", "3");
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Set Size X"));
    m_document.Move({{board, QPointF(1, 1)}, {blur, QPointF(2, 2)}});
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Move 2 Nodes"));
    m_document.Pin({blur}, true);
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Pin Gaussian Blur"));
    m_document.Duplicate({blur}, QPointF());
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Duplicate Gaussian Blur"));
    m_document.Reset({blur});
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Reset Gaussian Blur"));
    m_document.Disconnect(blur, "input");
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Disconnect"));
    m_document.RemoveNodes({board, blur});
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Remove 2 Nodes"));
}

TEST_F(CDocumentTest, TellsWhatEachStepChanges)
{
    CListener listener(m_document);
    const int board = Add("gegl:checkerboard");
    EXPECT_EQ(listener.Take(), "added1 picture ");
    const int blur = Add("gegl:gaussian-blur");
    listener.Take();
    m_document.Connect(board, blur, "input");
    EXPECT_EQ(listener.Take(), "edges picture ");
    m_document.Move({{blur, QPointF(5, 5)}});
    EXPECT_EQ(listener.Take(), "moved2 ");
    m_document.Pin({board}, true);
    EXPECT_EQ(listener.Take(), "changed1 ");
    SetText(m_document, board, "x", "5");
    EXPECT_EQ(listener.Take(), "changed1 picture ");
    m_document.RemoveNodes({board});
    EXPECT_EQ(listener.Take(), "edges removed1 picture ");
    Stack().undo();
    EXPECT_EQ(listener.Take(), "added1 edges picture ");
    m_document.Clear();
    EXPECT_EQ(listener.Take(), "replaced picture ");
}

TEST_F(CDocumentTest, MakesNoStepWhenNothingChanges)
{
    const int blur = Add("gegl:gaussian-blur", QPointF(4, 5));
    const int steps = Stack().count();
    CListener listener(m_document);
    EXPECT_EQ(SetText(m_document, blur, "std-dev-x", "1.50").m_eOutcome, sWriteResult::eAccepted);
    EXPECT_EQ(SetText(m_document, blur, "std-dev-x", "nonsense").m_eOutcome,
              sWriteResult::eRefused);
    m_document.Move({{blur, QPointF(4, 5)}});
    m_document.Move({{99, QPointF()}});
    m_document.Pin({blur}, false);
    m_document.Reset({blur, 99});
    m_document.Disconnect(blur, "input");
    m_document.RemoveNodes({99});
    EXPECT_TRUE(m_document.Duplicate({}, QPointF()).empty());
    EXPECT_EQ(Stack().count(), steps);
    EXPECT_EQ(listener.Take(), "");
    const int color = Add("gegl:color");
    m_document.Reset({color});
    EXPECT_EQ(Stack().undoText(), QStringLiteral("Add Color")) << "its colour is the first already";
}

TEST_F(CDocumentTest, KeepsEditsOfOneParameterApartAndMovesOfOneDragTogether)
{
    const int blur = Add("gegl:gaussian-blur");
    SetText(m_document, blur, "std-dev-x", "2");
    SetText(m_document, blur, "std-dev-x", "3");
    Stack().undo();
    EXPECT_EQ(GetText(m_document, blur, "std-dev-x"), "2");
    Stack().undo();
    EXPECT_EQ(GetText(m_document, blur, "std-dev-x"), "1.5");
    for (int i = 1; i <= 10; ++i)
        m_document.Move({{blur, QPointF(i, 0)}}, 1);
    m_document.Move({{blur, QPointF(50, 0)}}, 2);
    Stack().undo();
    EXPECT_EQ(Node(blur).m_position, QPointF(10, 0));
    Stack().undo();
    EXPECT_EQ(Node(blur).m_position, QPointF());
    Stack().redo();
    EXPECT_EQ(Node(blur).m_position, QPointF(10, 0));
}

TEST_F(CDocumentTest, SetsAValueOfSeveralNodesInOneStep)
{
    const int first = Add("gegl:gaussian-blur");
    const int second = Add("gegl:gaussian-blur");
    SetText(m_document, second, "std-dev-x", "7");
    const sWriteResult result =
        m_document.SetText({first, second}, Property(first, "std-dev-x"), "-4");
    EXPECT_EQ(result.m_eOutcome, sWriteResult::eClamped);
    EXPECT_EQ(GetText(m_document, first, "std-dev-x"), "0");
    EXPECT_EQ(GetText(m_document, second, "std-dev-x"), "0");
    Stack().undo();
    EXPECT_EQ(GetText(m_document, first, "std-dev-x"), "1.5");
    EXPECT_EQ(GetText(m_document, second, "std-dev-x"), "7");
}

TEST_F(CDocumentTest, DuplicatesNodesWithWhatLeadsToThem)
{
    const int board = Add("gegl:checkerboard");
    const int blur = Add("gegl:gaussian-blur", QPointF(10, 10));
    const int over = Add("svg:src-over");
    m_document.Connect(board, blur, "input");
    m_document.Connect(blur, over, "aux");
    SetText(m_document, blur, "std-dev-x", "9");
    const std::vector<int> copies = m_document.Duplicate({blur, over}, QPointF(5, 5));
    ASSERT_EQ(copies.size(), 2u);
    EXPECT_EQ(Node(copies[0]).m_position, QPointF(15, 15));
    EXPECT_EQ(GetText(m_document, copies[0], "std-dev-x"), "9");
    EXPECT_EQ(
        m_document.GetGraph().GetEdgesOf(copies[0]),
        (std::vector<sGraphEdge>{{board, copies[0], "input"}, {copies[0], copies[1], "aux"}}));
    SetText(m_document, copies[0], "std-dev-x", "1");
    EXPECT_EQ(GetText(m_document, blur, "std-dev-x"), "9") << "a copy has values of its own";
}

TEST_F(CDocumentTest, PlacesNodesWithoutAStep)
{
    const int board = Add("gegl:checkerboard");
    Stack().setClean();
    m_document.Place({{board, QPointF(7, 7)}, {99, QPointF()}});
    EXPECT_EQ(Node(board).m_position, QPointF(7, 7));
    EXPECT_FALSE(m_document.IsModified());
}

TEST_F(CDocumentTest, IsModifiedUntilEverythingIsTakenBack)
{
    EXPECT_FALSE(m_document.IsModified());
    const QSignalSpy states(&m_document, &CGraphDocument::StateChanged);
    Add("gegl:checkerboard");
    EXPECT_TRUE(m_document.IsModified());
    Stack().undo();
    EXPECT_FALSE(m_document.IsModified());
    EXPECT_GE(states.count(), 2);
}

TEST_F(CDocumentTest, ComesBackToEveryGraphThatARandomUserMade)
{
    for (unsigned seed = 1; seed <= 20; ++seed)
    {
        m_document.Clear();
        CRandomUser user(m_document, seed);
        std::vector<std::string> graphs{Describe(m_document.GetGraph())};
        for (int i = 0; i < 60; ++i)
        {
            user.DoSomething();
            const auto steps = static_cast<std::size_t>(Stack().count());
            graphs.resize(steps);
            graphs.push_back(Describe(m_document.GetGraph()));
        }
        EXPECT_GT(Stack().count(), 20);
        for (int round = 0; round < 2; ++round)
        {
            while (Stack().canUndo())
            {
                ASSERT_EQ(Describe(m_document.GetGraph()),
                          graphs[static_cast<std::size_t>(Stack().index())])
                    << "seed " << seed << ", step " << Stack().index();
                Stack().undo();
            }
            ASSERT_EQ(Describe(m_document.GetGraph()), graphs[0]);
            while (Stack().canRedo())
                Stack().redo();
        }
        ASSERT_EQ(Describe(m_document.GetGraph()), graphs.back());
    }
}
