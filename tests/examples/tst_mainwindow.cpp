#include "windowfixture.h"

#include <canvas/nodestates.h>
#include <canvas/striplayer.h>
#include <ui/messagelist.h>
#include <ui/pictureview.h>

#include <QSignalSpy>

namespace
{

constexpr int g_iPatience = 120000;

class CWindowTest : public CWindowFixture
{
protected:
    CWindowTest() : m_rendered(m_pWindow.get(), &CMainWindow::Rendered) {}

    int Add(const char* operation, const QPointF& position)
    {
        return Document().AddNode(operation, position);
    }
    void Set(int node, const char* property, const char* value)
    {
        Document().SetText({node}, *Graph().Find(node)->GetInfo().FindProperty(property), value);
    }
    bool WaitForPicture(int count)
    {
        return QTest::qWaitFor([&] { return m_rendered.count() >= count; }, g_iPatience);
    }
    const QImage& Picture() { return m_pWindow->GetPicture().GetImage(); }

    const QSignalSpy m_rendered;
};

} // namespace

TEST_F(CWindowTest, ShowsThePictureAnewAfterAnEdit)
{
    const int board = Add("gegl:checkerboard", {0, 0});
    ASSERT_TRUE(WaitForPicture(1));
    const QImage before = Picture();
    EXPECT_FALSE(before.isNull());
    Set(board, "x", "99");
    ASSERT_TRUE(WaitForPicture(2));
    EXPECT_NE(Picture(), before);
    Key(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(WaitForPicture(3));
    EXPECT_EQ(Picture(), before);
}

TEST_F(CWindowTest, ShowsThePictureOfTheChosenEnd)
{
    Add("gegl:checkerboard", {0, 0});
    const int noise = Add("gegl:perlin-noise", {300, 0});
    ASSERT_TRUE(WaitForPicture(1));
    const QImage first = Picture();
    QTest::mouseDClick(Canvas().viewport(), Qt::LeftButton, Qt::NoModifier, Title(noise));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Picture() != first; }, g_iPatience));
}

TEST_F(CWindowTest, SaysWhatIsWrongInTheNodeAndInAMessage)
{
    const int load = Add("gegl:load", {0, 0});
    Set(load, "path", "/no/such/picture.png");
    const auto isFaulty = [&] { return Scene().FindNode(load)->GetState().m_eState == eNodeError; };
    ASSERT_TRUE(QTest::qWaitFor(isFaulty, g_iPatience));
    EXPECT_FALSE(Scene().FindNode(load)->GetState().m_sError.isEmpty());
    EXPECT_TRUE(m_pWindow->GetMessage().contains(Scene().FindNode(load)->GetState().m_sError));
    EXPECT_TRUE(m_pWindow->GetStrips().FindStrip(load));
    CMessageList& messages = m_pWindow->GetMessages();
    ASSERT_GT(messages.count(), 0);
    EXPECT_TRUE(messages.item(messages.count() - 1)
                    ->text()
                    .contains(Scene().FindNode(load)->GetState().m_sError));
    Document().RemoveNodes({load});
    EXPECT_FALSE(m_pWindow->GetStrips().FindStrip(load));
}

TEST_F(CWindowTest, CancelsARenderingAndTellsThatItTakesItsTime)
{
    const int noise = Add("gegl:perlin-noise", {0, 0});
    int last = noise;
    // A picture that takes long enough to be cancelled.
    for (int i = 0; i < 4; ++i)
    {
        const int blur = Add("gegl:median-blur", {0, 120.0 * (i + 1)});
        Set(blur, "radius", "60");
        Document().Connect(last, blur, "input");
        last = blur;
    }
    const int count = int(m_rendered.count());
    Document().View(last);
    const auto isBusy = [&]
    { return Scene().FindNode(last)->GetState().m_eState == eNodeRendering; };
    ASSERT_TRUE(QTest::qWaitFor(isBusy, g_iPatience));
    EXPECT_TRUE(m_pWindow->GetStrips().FindStrip(last));
    Key(Qt::Key_Period, Qt::ControlModifier);
    EXPECT_EQ(Scene().FindNode(last)->GetState().m_eState, eNodeIdle);
    EXPECT_EQ(m_rendered.count(), count);
    EXPECT_FALSE(m_pWindow->GetStrips().FindStrip(last));
}

TEST_F(CWindowTest, LaysOutAFileWithoutPlacesAndShowsAllOfIt)
{
    ASSERT_TRUE(m_pWindow->OpenGraph(Sample("lake-at-dusk.xml")));
    const QRectF shown = Canvas().mapToScene(Canvas().viewport()->rect()).boundingRect();
    EXPECT_TRUE(shown.contains(Scene().GetFrameOfNodes()));
    EXPECT_EQ(Graph().GetEnds().size(), 2u);
    EXPECT_EQ(Scene().GetSelectedNodes(), std::vector<int>{Document().GetViewed()});
    EXPECT_FALSE(Document().GetUndoStack().canUndo());
}

TEST_F(CWindowTest, KeepsTheCanvasAliveThroughManyGraphs)
{
    for (const char* sample : {"dusk-mountains.xml", "halftone-title.xml", "lake-at-dusk.xml"})
    {
        ASSERT_TRUE(m_pWindow->OpenGraph(Sample(sample)));
        Scene().SelectNodes({Graph().GetNodes().begin()->first});
        QTest::mouseMove(Canvas().viewport(), Title(Graph().GetNodes().begin()->first));
        EXPECT_EQ(Scene().GetNodeItems().size(), Graph().GetNodes().size());
    }
    Document().Clear();
    EXPECT_TRUE(Scene().GetNodeItems().empty());
}
