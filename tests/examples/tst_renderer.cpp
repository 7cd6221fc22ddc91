#include "graphediting.h"

#include <gegl/operationcatalog.h>
#include <gegl/rendergraph.h>
#include <render/renderer.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

namespace
{

constexpr int g_iPatience = 60000;

class CRenderTest : public testing::Test
{
protected:
    int Add(const char* name) { return m_document.AddNode(name, QPointF()); }

    void Paint(int node, const CImageOperation::CColor& color)
    {
        const sOperationInfo& info = m_document.GetGraph().Find(node)->GetInfo();
        m_document.SetColor({node}, *info.FindProperty("value"), color);
    }

    /// A plain red picture of the given size.
    int AddRed(const char* width, const char* height)
    {
        const int red = Add("gegl:color");
        Paint(red, {1, 0, 0, 1});
        const int crop = Add("gegl:crop");
        m_document.Connect(red, crop, "input");
        SetText(m_document, crop, "width", width);
        SetText(m_document, crop, "height", height);
        return crop;
    }

    CRenderGraph::sResult Picture(int node)
    {
        return CRenderGraph(m_document.GetGraph(), node).Render([](int) { return true; });
    }

    void Render(int node) { m_renderer.Render(m_document.GetGraph(), node); }

    CGraphDocument m_document;
    CRenderer m_renderer;
};

/// Listens to a renderer in the thread of the tests, as a window does.
class CListener : public QObject
{
public:
    explicit CListener(CRenderer& renderer)
    {
        connect(&renderer, &CRenderer::Progress, this, [this] { ++m_iProgress; });
        connect(&renderer, &CRenderer::Cancelled, this, [this] { ++m_iCancelled; });
        connect(&renderer, &CRenderer::Finished, this,
                [this](const QImage& image, const QString& message)
                {
                    m_pThread = QThread::currentThread();
                    m_vImages.push_back(image);
                    m_sMessage = message;
                });
        connect(&renderer, &CRenderer::NodeStateChanged, this,
                [this, &renderer](int node)
                {
                    m_sStates += std::to_string(node) + ':' +
                                 std::to_string(renderer.GetNodeState(node).m_eState) + ' ';
                });
    }

    int m_iProgress = 0;
    int m_iCancelled = 0;
    std::vector<QImage> m_vImages;
    QString m_sMessage;
    std::string m_sStates;
    QThread* m_pThread = nullptr;
};

} // namespace

TEST_F(CRenderTest, RendersThePictureInItsBounds)
{
    const CRenderGraph::sResult result = Picture(AddRed("40", "130"));
    ASSERT_EQ(result.m_image.size(), QSize(40, 130));
    for (const QPoint& point : {QPoint(0, 0), QPoint(39, 129), QPoint(20, 65)})
        EXPECT_EQ(result.m_image.pixelColor(point), QColor(255, 0, 0));
    EXPECT_EQ(result.m_sMessage, "");
    EXPECT_TRUE(result.m_mapErrors.empty());
}

TEST_F(CRenderTest, RendersAnyNodeOfTheGraph)
{
    const int red = AddRed("20", "20");
    const int invert = Add("gegl:invert-gamma");
    m_document.Connect(red, invert, "input");
    EXPECT_EQ(Picture(red).m_image.pixelColor(5, 5), QColor(255, 0, 0));
    EXPECT_EQ(Picture(invert).m_image.pixelColor(5, 5), QColor(0, 255, 255));
    EXPECT_TRUE(Picture(0).m_image.isNull());
    EXPECT_TRUE(Picture(Add("gegl:gaussian-blur")).m_image.isNull());
}

TEST_F(CRenderTest, LaysTheSecondInputOverTheFirst)
{
    const int red = AddRed("20", "20");
    const int green = Add("gegl:color");
    Paint(green, {0, 1, 0, 1});
    const int over = Add("svg:src-over");
    const int last = Add("gegl:crop");
    SetText(m_document, last, "width", "20");
    SetText(m_document, last, "height", "20");
    m_document.Connect(red, over, "aux");
    m_document.Connect(green, over, "input");
    m_document.Connect(over, last, "input");
    EXPECT_EQ(Picture(last).m_image.pixelColor(5, 5), QColor(255, 0, 0));
    m_document.Connect(red, over, "input");
    m_document.Connect(green, over, "aux");
    EXPECT_EQ(Picture(last).m_image.pixelColor(5, 5), QColor(0, 255, 0));
}

TEST_F(CRenderTest, TakesTheCanvasOfAPictureWithoutBoundsAndShrinksALargeOne)
{
    EXPECT_EQ(Picture(Add("gegl:checkerboard")).m_image.size(), QSize(800, 600));
    const QImage image = Picture(AddRed("6400", "3200")).m_image;
    ASSERT_EQ(image.size(), QSize(1600, 800));
    EXPECT_EQ(image.pixelColor(1599, 799), QColor(255, 0, 0));
}

TEST_F(CRenderTest, RendersEveryOperation)
{
    int pictures = 0;
    for (const sOperationInfo& info : GetOperationCatalog())
    {
        m_document.Clear();
        const int first = AddRed("40", "30");
        const int node = Add(info.m_sName.c_str());
        const int last = Add("gegl:crop");
        m_document.Connect(first, node, "input");
        m_document.Connect(first, node, "aux");
        m_document.Connect(node, last, "input");
        SetText(m_document, last, "width", "40");
        SetText(m_document, last, "height", "30");
        const QImage image = Picture(last).m_image;
        EXPECT_LE(image.width(), 40) << info.m_sName;
        EXPECT_LE(image.height(), 30) << info.m_sName;
        pictures += !image.isNull();
    }
    EXPECT_GT(pictures, 120);
}

TEST_F(CRenderTest, KeepsThePictureOfTheMomentWhenTheGraphChanges)
{
    const int color = Add("gegl:color");
    Paint(color, {1, 0, 0, 1});
    CRenderGraph before(m_document.GetGraph(), color);
    Paint(color, {0, 1, 0, 1});
    CRenderGraph after(m_document.GetGraph(), color);
    m_document.GetUndoStack().undo();
    const auto pixel = [](CRenderGraph& graph)
    { return graph.Render([](int) { return true; }).m_image.pixelColor(0, 0); };
    EXPECT_EQ(pixel(before), QColor(255, 0, 0));
    EXPECT_EQ(pixel(after), QColor(0, 255, 0));
    EXPECT_EQ(Picture(color).m_image.pixelColor(0, 0), QColor(255, 0, 0));
}

TEST_F(CRenderTest, ReportsProgressAndStopsWhenItIsTold)
{
    std::vector<int> steps;
    const int red = AddRed("20", "200");
    CRenderGraph graph(m_document.GetGraph(), red);
    graph.Render(
        [&](int percent)
        {
            steps.push_back(percent);
            return true;
        });
    EXPECT_EQ(steps, (std::vector<int>{0, 25, 50, 75, 100}));
    steps.clear();
    const CRenderGraph::sResult result = graph.Render(
        [&](int percent)
        {
            steps.push_back(percent);
            return percent < 50;
        });
    EXPECT_TRUE(result.m_bCancelled);
    EXPECT_TRUE(result.m_image.isNull());
    EXPECT_EQ(steps, (std::vector<int>{0, 25, 50}));
}

TEST_F(CRenderTest, SaysWhichNodeMissesItsFile)
{
    const int load = Add("gegl:load");
    SetText(m_document, load, "path", "/no/such/picture.png");
    const int blur = Add("gegl:gaussian-blur");
    m_document.Connect(load, blur, "input");
    const CRenderGraph::sResult result = Picture(blur);
    ASSERT_EQ(result.m_mapErrors.size(), 1u);
    EXPECT_EQ(result.m_mapErrors.at(load), "There is no file /no/such/picture.png");
}

TEST_F(CRenderTest, SaysWhichNodeCannotReadItsFile)
{
    const QTemporaryDir folder;
    for (const char* name : {"broken.png", "broken.jpg", "unknown.abc"})
    {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("this is no picture at all");
        file.close();
        const int load = Add("gegl:load");
        SetText(m_document, load, "path", file.fileName().toStdString());
        const CRenderGraph::sResult result = Picture(load);
        EXPECT_EQ(result.m_mapErrors.count(load), 1u) << name << ": " << result.m_sMessage;
    }
}

TEST_F(CRenderTest, WritesNoFileWhenItIsLookedAt)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("out.png"));
    const int red = AddRed("4", "4");
    const int save = Add("gegl:png-save");
    m_document.Connect(red, save, "input");
    SetText(m_document, save, "path", path.toStdString());
    m_document.View(save);
    EXPECT_EQ(Picture(m_document.GetViewed()).m_image.size(), QSize(4, 4));
    EXPECT_TRUE(Picture(save).m_image.isNull());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(CRenderTest, WorksInAnotherThreadAndReportsInThisOne)
{
    const CListener listener(m_renderer);
    const int red = AddRed("30", "100");
    Render(red);
    EXPECT_TRUE(m_renderer.IsRendering());
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.m_vImages.size() == 1u; }, g_iPatience));
    EXPECT_FALSE(m_renderer.IsRendering());
    EXPECT_EQ(listener.m_pThread, QThread::currentThread());
    EXPECT_EQ(listener.m_vImages[0].size(), QSize(30, 100));
    EXPECT_EQ(listener.m_iProgress, 3);
}

TEST_F(CRenderTest, ShowsTheNewestOfManyEdits)
{
    const CListener listener(m_renderer);
    const int color = Add("gegl:color");
    for (int i = 0; i <= 50; ++i)
    {
        Paint(color, {i / 50.0, 0, 0, 1});
        Render(color);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.m_vImages.size() == 1u; }, g_iPatience));
    EXPECT_EQ(listener.m_vImages[0].pixelColor(0, 0), QColor(255, 0, 0));
    QTest::qWait(200);
    EXPECT_EQ(listener.m_vImages.size(), 1u) << "something older came after the newest";
}

TEST_F(CRenderTest, TellsWhatBecomesOfEachNode)
{
    const int red = AddRed("8", "8");
    const int load = Add("gegl:load");
    SetText(m_document, load, "path", "/no/such/picture.png");
    CListener listener(m_renderer);
    Render(red);
    EXPECT_EQ(listener.m_sStates, "1:1 2:1 3:2 ") << "a file is missing, and nobody looks there";
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.m_vImages.size() == 1u; }, g_iPatience));
    EXPECT_EQ(listener.m_sStates, "1:1 2:1 3:2 1:0 2:0 ");
    EXPECT_EQ(m_renderer.GetNodeState(load).m_sError,
              QStringLiteral("There is no file /no/such/picture.png"));
    listener.m_sStates.clear();
    SetText(m_document, load, "path", "");
    Render(0);
    EXPECT_EQ(listener.m_sStates, "3:0 ");
}

TEST_F(CRenderTest, GivesUpWhenItIsCancelled)
{
    const int noise = Add("gegl:cell-noise");
    const CListener listener(m_renderer);
    m_renderer.Cancel();
    EXPECT_EQ(listener.m_iCancelled, 0) << "there was nothing to cancel";
    Render(noise);
    m_renderer.Cancel();
    EXPECT_EQ(listener.m_iCancelled, 1);
    EXPECT_EQ(listener.m_sStates, "1:1 1:0 ");
    QTest::qWait(300);
    EXPECT_TRUE(listener.m_vImages.empty());
    Render(noise);
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.m_vImages.size() == 1u; }, g_iPatience));
}

TEST_F(CRenderTest, DropsAPictureThatIsNoLongerWantedWhenItArrives)
{
    const CListener listener(m_renderer);
    const int red = AddRed("8", "8");
    const int small = AddRed("4", "4");
    const auto renderUnheard = [this](int node)
    {
        Render(node);
        QThread::msleep(300); // it is done meanwhile, and waits to be heard
    };
    renderUnheard(red);
    m_renderer.Cancel();
    renderUnheard(red);
    Render(small);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_renderer.IsRendering(); }, g_iPatience));
    ASSERT_EQ(listener.m_vImages.size(), 1u);
    EXPECT_EQ(listener.m_vImages[0].size(), QSize(4, 4));
}

TEST_F(CRenderTest, EndsWhileItIsRendering)
{
    const int noise = Add("gegl:cell-noise");
    for (int i = 0; i < 5; ++i)
    {
        CRenderer renderer;
        renderer.Render(m_document.GetGraph(), noise);
    }
}
