#include <graphdocument.h>
#include <renderer.h>

#include <gegl/geglsession.h>
#include <gegl/rendergraph.h>

#include <gtest/gtest.h>

#include <QTest>
#include <QThread>

namespace
{

constexpr int g_iPatience = 60000;

void Set(CGraphDocument& document, sGraphItem* item, const char* property, const char* text)
{
    document.SetText(item, *item->m_pOperation->GetInfo().FindProperty(property), text);
}

/// A plain red picture of the given size.
void AddRed(CGraphDocument& document, const char* width, const char* height)
{
    sGraphItem* color = document.Add("gegl:color", nullptr);
    document.SetColor(color, *color->m_pOperation->GetInfo().FindProperty("value"), {1, 0, 0, 1});
    sGraphItem* crop = document.Add("gegl:crop", nullptr);
    Set(document, crop, "width", width);
    Set(document, crop, "height", height);
}

/// Listens to a renderer in the thread of the tests, as a window does.
class CListener : public QObject
{
public:
    explicit CListener(CRenderer& renderer)
    {
        connect(&renderer, &CRenderer::Progress, this, [this] { ++m_iProgress; });
        connect(&renderer, &CRenderer::Cancelled, this, [this] { ++m_iCancelled; });
        connect(&renderer, &CRenderer::Finished, this,
                [this](const QImage& image)
                {
                    m_pThread = QThread::currentThread();
                    m_vImages.push_back(image);
                });
    }

    int m_iProgress = 0;
    int m_iCancelled = 0;
    std::vector<QImage> m_vImages;
    QThread* m_pThread = nullptr;
};

CRenderGraph::sResult Render(const CGraphDocument& document)
{
    return CRenderGraph(document.GetChain()).Render([](int) { return true; });
}

} // namespace

TEST(RenderGraph, RendersThePictureInItsBounds)
{
    CGraphDocument document;
    AddRed(document, "40", "130");
    const CRenderGraph::sResult result = Render(document);
    ASSERT_EQ(result.m_image.size(), QSize(40, 130));
    for (const QPoint& point : {QPoint(0, 0), QPoint(39, 129), QPoint(20, 65)})
        EXPECT_EQ(result.m_image.pixelColor(point), QColor(255, 0, 0));
    EXPECT_EQ(result.m_sMessage, "");
}

TEST(RenderGraph, TakesTheCanvasOfAPictureWithoutBounds)
{
    CGraphDocument document;
    document.Add("gegl:checkerboard", nullptr);
    EXPECT_EQ(Render(document).m_image.size(), QSize(800, 600));
}

TEST(RenderGraph, ShrinksALargePicture)
{
    CGraphDocument document;
    AddRed(document, "6400", "3200");
    const QImage image = Render(document).m_image;
    ASSERT_EQ(image.size(), QSize(1600, 800));
    EXPECT_EQ(image.pixelColor(1599, 799), QColor(255, 0, 0));
}

TEST(RenderGraph, GivesNothingForAnEmptyChain)
{
    CGraphDocument document;
    EXPECT_TRUE(Render(document).m_image.isNull());
    document.Add("gegl:gaussian-blur", nullptr);
    EXPECT_TRUE(Render(document).m_image.isNull());
}

TEST(RenderGraph, WritesNoFileWhenItIsLookedAt)
{
    CGraphDocument document;
    AddRed(document, "4", "4");
    sGraphItem* save = document.Add("gegl:png-save", nullptr);
    ASSERT_TRUE(save);
    Set(document, save, "path", "/no/such/folder/out.png");
    const CRenderGraph::sResult result = Render(document);
    EXPECT_EQ(result.m_image.size(), QSize(4, 4));
    EXPECT_EQ(result.m_sMessage, "");
}

TEST(RenderGraph, ReportsProgressAndStopsWhenItIsTold)
{
    CGraphDocument document;
    AddRed(document, "20", "200");
    std::vector<int> steps;
    const auto graph = std::make_unique<CRenderGraph>(document.GetChain());
    graph->Render(
        [&](int percent)
        {
            steps.push_back(percent);
            return true;
        });
    EXPECT_EQ(steps, (std::vector<int>{0, 25, 50, 75, 100}));
    steps.clear();
    const CRenderGraph::sResult result = graph->Render(
        [&](int percent)
        {
            steps.push_back(percent);
            return percent < 50;
        });
    EXPECT_TRUE(result.m_bCancelled);
    EXPECT_TRUE(result.m_image.isNull());
    EXPECT_EQ(steps, (std::vector<int>{0, 25, 50}));
}

TEST(RenderGraph, PassesOnWhatTheLibraryComplainsAbout)
{
    CGraphDocument document;
    sGraphItem* load = document.Add("gegl:png-load", nullptr);
    Set(document, load, "path", "/no/such/picture.png");
    sGraphItem* crop = document.Add("gegl:crop", nullptr);
    Set(document, crop, "width", "10");
    Set(document, crop, "height", "10");
    document.Add("gegl:checkerboard", nullptr);
    CGeglSession::TakeMessages();
    EXPECT_NE(Render(document).m_sMessage.find("/no/such/picture.png"), std::string::npos);
}

TEST(Renderer, WorksInAnotherThreadAndReportsInThisOne)
{
    CGraphDocument document;
    AddRed(document, "30", "100");
    CRenderer renderer;
    const CListener listener(renderer);
    renderer.Render(document.GetChain());
    QTRY_COMPARE_WITH_TIMEOUT(listener.m_vImages.size(), 1u, g_iPatience);
    EXPECT_EQ(listener.m_pThread, QThread::currentThread());
    EXPECT_EQ(listener.m_vImages[0].size(), QSize(30, 100));
    EXPECT_EQ(listener.m_iProgress, 3);
}

TEST(Renderer, ShowsTheNewestOfManyEdits)
{
    CGraphDocument document;
    sGraphItem* color = document.Add("gegl:color", nullptr);
    const sImageProperty& value = *color->m_pOperation->GetInfo().FindProperty("value");
    CRenderer renderer;
    const CListener listener(renderer);
    for (int i = 0; i <= 50; ++i)
    {
        document.SetColor(color, value, {i / 50.0, 0, 0, 1});
        renderer.Render(document.GetChain());
    }
    const auto isDone = [&]
    {
        return !listener.m_vImages.empty() &&
               listener.m_vImages.back().pixelColor(0, 0) == QColor(255, 0, 0);
    };
    QTRY_VERIFY_WITH_TIMEOUT(isDone(), g_iPatience);
    const std::size_t count = listener.m_vImages.size();
    QTest::qWait(200);
    EXPECT_EQ(listener.m_vImages.size(), count) << "something older came after the newest";
}

TEST(Renderer, GivesUpWhenItIsCancelled)
{
    CGraphDocument document;
    document.Add("gegl:cell-noise", nullptr);
    CRenderer renderer;
    const CListener listener(renderer);
    renderer.Render(document.GetChain());
    renderer.Cancel();
    QTRY_COMPARE_WITH_TIMEOUT(listener.m_iCancelled, 1, g_iPatience);
    EXPECT_TRUE(listener.m_vImages.empty());
}

TEST(Renderer, EndsWhileItIsRendering)
{
    CGraphDocument document;
    document.Add("gegl:cell-noise", nullptr);
    for (int i = 0; i < 5; ++i)
    {
        CRenderer renderer;
        renderer.Render(document.GetChain());
    }
}
