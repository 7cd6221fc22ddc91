#include <graph/graphdocument.h>

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace
{

class CGraphTest : public testing::Test
{
protected:
    int Add(const char* name) { return m_document.AddNode(name, QPointF()); }

    /// Why a connection is refused; empty when it is not.
    std::string Reason(int from, int to, const char* pad)
    {
        QString reason;
        const bool can = m_document.CanConnect(from, to, pad, reason);
        EXPECT_EQ(can, reason.isEmpty());
        return reason.toStdString();
    }

    const CGraph& Graph() const { return m_document.GetGraph(); }

    CGraphDocument m_document;
    const int m_iBoard = Add("gegl:checkerboard");
    const int m_iBlur = Add("gegl:gaussian-blur");
    const int m_iOver = Add("svg:src-over");
    const int m_iSave = Add("gegl:png-save");
};

} // namespace

TEST_F(CGraphTest, HasTheInputsOfTheOperation)
{
    const auto inputs = [this](int node) { return Graph().Find(node)->GetInfo().m_vInputs; };
    EXPECT_EQ(inputs(m_iBoard), (std::vector<std::string>{}));
    EXPECT_EQ(inputs(m_iBlur), (std::vector<std::string>{"input"}));
    EXPECT_EQ(inputs(m_iOver), (std::vector<std::string>{"input", "aux"}));
    EXPECT_EQ(Add("gegl:no-such-operation"), 0);
}

TEST_F(CGraphTest, SaysWhyAConnectionIsRefused)
{
    EXPECT_EQ(Reason(m_iBoard, m_iBlur, "input"), "");
    EXPECT_EQ(Reason(m_iBoard, m_iOver, "aux"), "");
    EXPECT_EQ(Reason(m_iSave, m_iBlur, "input"), "PNG File Saver has no output.");
    EXPECT_EQ(Reason(m_iBlur, m_iBoard, "input"),
              "Checkerboard has no input: it makes a picture of its own.");
    EXPECT_EQ(Reason(m_iBoard, m_iBlur, "aux"), "Gaussian Blur has no input named aux.");
    EXPECT_EQ(Reason(m_iBlur, m_iBlur, "input"),
              "The picture of Gaussian Blur cannot lead to itself.");
    EXPECT_EQ(Reason(m_iBoard, 77, "input"), "The operation is no longer there.");
    EXPECT_FALSE(m_document.Connect(m_iBlur, m_iBlur, "input"));
    EXPECT_TRUE(Graph().GetEdges().empty());
}

TEST_F(CGraphTest, RefusesACircle)
{
    const int second = Add("gegl:invert-linear");
    ASSERT_TRUE(m_document.Connect(m_iBlur, second, "input"));
    ASSERT_TRUE(m_document.Connect(second, m_iOver, "aux"));
    EXPECT_EQ(Reason(m_iOver, m_iBlur, "input"),
              "The picture of Normal compositing is made of that of Gaussian Blur already.");
    EXPECT_EQ(Reason(m_iBlur, m_iOver, "input"), "") << "two ways to the same end are no circle";
}

TEST_F(CGraphTest, GivesAnInputOneEdge)
{
    ASSERT_TRUE(m_document.Connect(m_iBoard, m_iBlur, "input"));
    const int other = Add("gegl:color");
    const int steps = m_document.GetUndoStack().count();
    ASSERT_TRUE(m_document.Connect(other, m_iBlur, "input"));
    EXPECT_EQ(m_document.GetUndoStack().count(), steps + 1);
    EXPECT_EQ(Graph().GetEdges(), (std::vector<sGraphEdge>{{other, m_iBlur, "input"}}));
    m_document.GetUndoStack().undo();
    EXPECT_EQ(Graph().GetEdges(), (std::vector<sGraphEdge>{{m_iBoard, m_iBlur, "input"}}));
    ASSERT_TRUE(m_document.Connect(m_iBoard, m_iBlur, "input"));
    EXPECT_EQ(m_document.GetUndoStack().count(), steps + 1) << "nothing was changed by that";
}

TEST_F(CGraphTest, ListsEndsAndWhatTheyAreMadeOf)
{
    m_document.Connect(m_iBoard, m_iBlur, "input");
    m_document.Connect(m_iBlur, m_iOver, "aux");
    m_document.Connect(m_iBoard, m_iOver, "input");
    m_document.Connect(m_iBlur, m_iSave, "input");
    EXPECT_EQ(Graph().GetEnds(), (std::vector<int>{m_iOver, m_iSave}));
    EXPECT_EQ(Graph().GetUpstream(m_iOver), (std::vector<int>{m_iBoard, m_iBlur, m_iOver}));
    EXPECT_EQ(Graph().GetEdgesOf(m_iBlur).size(), 3u);
    EXPECT_TRUE(Graph().GetUpstream(0).empty());
}

TEST_F(CGraphTest, ShowsTheEndThatIsMadeOfMost)
{
    EXPECT_EQ(m_document.GetViewed(), m_iBoard);
    m_document.Connect(m_iBoard, m_iBlur, "input");
    EXPECT_EQ(m_document.GetViewed(), m_iBlur);
    m_document.Connect(m_iBlur, m_iSave, "input");
    EXPECT_EQ(m_document.GetViewed(), m_iBlur) << "what the file will show";
    EXPECT_EQ(Graph().GetPictureAt(m_iSave), m_iBlur);
    const QSignalSpy pictures(&m_document, &CGraphDocument::PictureChanged);
    m_document.View(m_iBoard);
    EXPECT_EQ(m_document.GetViewed(), m_iBoard);
    m_document.View(m_iBoard);
    EXPECT_EQ(pictures.count(), 1);
    m_document.View(m_iSave);
    EXPECT_EQ(m_document.GetViewed(), m_iBlur);
    m_document.View(m_iOver);
    m_document.RemoveNodes({m_iOver});
    EXPECT_EQ(m_document.GetViewed(), m_iBlur);
}
