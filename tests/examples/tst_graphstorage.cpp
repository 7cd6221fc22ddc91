#include "graphediting.h"
#include "smallfiles.h"

#include <gegl/graphreader.h>
#include <gegl/graphwriter.h>
#include <gegl/rendergraph.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cstdlib>

namespace
{

class CStorageTest : public testing::Test
{
protected:
    int Add(const char* name) { return m_document.AddNode(name, QPointF()); }

    QString Path(const char* name) const { return m_folder.filePath(QString::fromUtf8(name)); }

    QString WriteFile(const QByteArray& text) const
    {
        const QString path = Path("graph.xml");
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return path;
    }

    static QByteArray ReadFile(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    void Save(const QString& path)
    {
        ASSERT_TRUE(m_document.Save(path, m_sMessage)) << m_sMessage.toStdString();
    }

    void Load(const QString& path)
    {
        ASSERT_TRUE(m_document.Load(path, m_sMessage)) << m_sMessage.toStdString();
    }

    /// What leads where, by the names of the operations: "a>b.input".
    std::string Edges() const
    {
        const CGraph& graph = m_document.GetGraph();
        const auto name = [&](int node)
        {
            const std::string& full = graph.Find(node)->GetInfo().m_sName;
            return full.substr(full.find(':') + 1);
        };
        std::string text;
        for (const sGraphEdge& edge : graph.GetEdges())
            text += name(edge.m_iFrom) + '>' + name(edge.m_iTo) + '.' + edge.m_sPad + ' ';
        return text;
    }

    QImage Picture() const
    {
        return CRenderGraph(m_document.GetGraph(), m_document.GetViewed())
            .Render([](int) { return true; })
            .m_image;
    }

    QTemporaryDir m_folder;
    CGraphDocument m_document;
    QString m_sMessage;
};

#ifdef GEGL_PROGRAM
int LargestDifference(const QImage& left, const QImage& right)
{
    int largest = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int i = 0; i < left.width() * 4; ++i)
            largest =
                std::max(largest, std::abs(left.constScanLine(y)[i] - right.constScanLine(y)[i]));
    return largest;
}
#endif

#ifdef GEGL_PROGRAM
/// What the image library's own program makes of a file.
QImage PictureOfTheProgram(const QString& graph)
{
    const QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("picture.png"));
    QProcess program;
    program.start(QStringLiteral(GEGL_PROGRAM), {graph, QStringLiteral("-o"), picture});
    EXPECT_TRUE(program.waitForFinished(120000));
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    return QImage(picture).convertToFormat(QImage::Format_RGBA8888);
}
#endif

} // namespace

TEST_F(CStorageTest, OpensWhatARandomUserSaved)
{
    for (unsigned seed = 1; seed <= 40; ++seed)
    {
        m_document.Clear();
        CRandomUser user(m_document, seed);
        for (int i = 0; i < 80; ++i)
            user.DoSomething();
        const std::string before = DescribeShape(m_document.GetGraph());
        Save(Path("random.xml"));
        EXPECT_FALSE(m_document.IsModified());
        Load(Path("random.xml"));
        EXPECT_EQ(m_sMessage, QString()) << "seed " << seed;
        ASSERT_EQ(DescribeShape(m_document.GetGraph()), before) << "seed " << seed;
        EXPECT_FALSE(m_document.NeedsPlaces());
        EXPECT_FALSE(m_document.IsModified());
    }
}

TEST_F(CStorageTest, WritesTheSameFileAgain)
{
    CRandomUser user(m_document, 7);
    for (int i = 0; i < 100; ++i)
        user.DoSomething();
    m_document.View(0);
    Save(Path("first.xml"));
    Load(Path("first.xml"));
    Save(Path("second.xml"));
    Load(Path("second.xml"));
    Save(Path("third.xml"));
    EXPECT_EQ(ReadFile(Path("second.xml")), ReadFile(Path("third.xml")));
}

TEST_F(CStorageTest, KeepsAnOperationThatIsUsedTwice)
{
    Load(WriteFile("<gegl><node operation='gegl:over'><node operation='gegl:invert'/>"
                   "<clone ref='a'/></node><node id='a' operation='gegl:checkerboard'/></gegl>"));
    EXPECT_EQ(m_document.GetGraph().GetNodes().size(), 3u);
    EXPECT_EQ(Edges(), "invert-linear>src-over.aux checkerboard>src-over.input "
                       "checkerboard>invert-linear.input ");
    EXPECT_TRUE(m_document.NeedsPlaces());
}

TEST_F(CStorageTest, KeepsEveryEndOfTheGraph)
{
    const int board = Add("gegl:checkerboard");
    const int blur = Add("gegl:gaussian-blur");
    const int invert = Add("gegl:invert-linear");
    const int save = Add("gegl:png-save");
    Add("gegl:color");
    m_document.Connect(board, blur, "input");
    m_document.Connect(board, invert, "input");
    m_document.Connect(invert, save, "input");
    Save(Path("ends.xml"));
    Load(Path("ends.xml"));
    EXPECT_EQ(m_document.GetGraph().GetNodes().size(), 5u);
    EXPECT_EQ(m_document.GetGraph().GetEnds().size(), 3u);
    EXPECT_NE(Edges().find("invert-linear>png-save.input"), std::string::npos) << Edges();
    EXPECT_NE(Edges().find("checkerboard>gaussian-blur.input"), std::string::npos) << Edges();
}

TEST_F(CStorageTest, KeepsTextsAsTheyAre)
{
    const int text = Add("gegl:text");
    const std::vector<std::string> texts{
        "",          " ",          "a <b> & \u00e9 \"q\" 'r' \u4f60\n second",
        "\r\n\tx\r", "?> --> ]]>", "&amp;#10;"};
    for (const std::string& string : texts)
    {
        SetText(m_document, text, "string", string);
        Save(Path("text.xml"));
        CGraphDocument other;
        ASSERT_TRUE(other.Load(Path("text.xml"), m_sMessage)) << m_sMessage.toStdString();
        EXPECT_EQ(GetText(other, 1, "string"), string);
    }
}

TEST_F(CStorageTest, WritesPathsRelativeToTheFile)
{
    const int load = Add("gegl:load");
    const std::string inside = m_folder.filePath(QStringLiteral("a & b.png")).toStdString();
    const std::string beside = m_folder.path().toStdString() + "x/c.png";
    for (const std::string& path : {inside, beside})
    {
        SetText(m_document, load, "path", path);
        Save(Path("paths.xml"));
        const QByteArray text = ReadFile(Path("paths.xml"));
        EXPECT_EQ(text.contains(">a &amp; b.png<"), path == inside) << text.toStdString();
        CGraphDocument other;
        ASSERT_TRUE(other.Load(Path("paths.xml"), m_sMessage));
        EXPECT_EQ(GetText(other, 1, "path"), path);
    }
}

TEST_F(CStorageTest, OpensFilesThatWereWrittenByHand)
{
    Load(WriteFile("<!-- a comment -->\n<gegl>\n"
                   "<gegl:crop width='30' height='20'/>\n"
                   "<node operation='gegl:color' value='rgb(1.0, 0.0, 0.0)'>"
                   "<!--at home--></node></gegl>"));
    EXPECT_EQ(m_sMessage, QString());
    EXPECT_EQ(Edges(), "color>crop.input ");
    const QImage picture = Picture();
    ASSERT_EQ(picture.size(), QSize(30, 20));
    EXPECT_EQ(picture.pixelColor(3, 3), QColor(255, 0, 0));
    EXPECT_TRUE(m_document.NeedsPlaces());
}

TEST_F(CStorageTest, OpensEverySample)
{
    const QDir samples(QStringLiteral(IMAGE_GRAPH_SAMPLES));
    const QStringList names = samples.entryList({QStringLiteral("*.xml")}, QDir::Files);
    EXPECT_GE(names.size(), 3);
    for (const QString& name : names)
    {
        Load(samples.filePath(name));
        EXPECT_EQ(m_sMessage, QString()) << name.toStdString();
    }
}

TEST_F(CStorageTest, OpensAnEmptyGraph)
{
    Save(Path("empty.xml"));
    Add("gegl:color");
    Load(Path("empty.xml"));
    EXPECT_TRUE(m_document.GetGraph().GetNodes().empty());
}

TEST_F(CStorageTest, SaysWhatItCouldNotTake)
{
    Load(WriteFile("<gegl><node operation='gegl:gaussian-blur' no-such='1'/>\n"
                   "<node operation='gegl:color'/>\n<node operation='gegl:checkerboard'>"
                   "<params><param name='x'>7</param><param name='wrong'>1</param></params>"
                   "</node></gegl>"));
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("no-such"))) << m_sMessage.toStdString();
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("wrong"))) << m_sMessage.toStdString();
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("line 3: Color has no input")))
        << m_sMessage.toStdString();
    EXPECT_EQ(GetText(m_document, 3, "x"), "7");
}

TEST_F(CStorageTest, SaysWhyAFileCannotBeOpenedAndKeepsTheOpenGraph)
{
    const std::string deep = []
    {
        std::string text = "<gegl>";
        for (int i = 0; i < 2000; ++i)
            text += "<node operation='gegl:over'>";
        return text;
    }();
    struct sCase
    {
        std::string m_sText;
        const char* m_sReason;
    };
    const sCase cases[] = {
        {"", "The file is empty."},
        {" \n", "The file is empty."},
        {"hello", "line 1: "},
        {"<gegl>", "line 1: "},
        {"<gegl><node operation='gegl:checkerboard'>", "line 1: "},
        {"<gegl>\n<node operation='gegl:checkerboard'></gegl>", "line 2: "},
        {"<html><body/></html>", "line 1: this is not a graph"},
        {"<gegl><p/></gegl>", "line 1: <p> is not part of a graph"},
        {"<gegl>\n<node operation='gegl:nonsense'/></gegl>",
         "line 2: the operation 'gegl:nonsense' is not installed"},
        {"<gegl><node operation='gegl:gif-load'/></gegl>", "ends the program"},
        {"<gegl>\n<clone ref='x'/></gegl>", "line 2: there is no operation with the id 'x'"},
        {"<gegl><clone/></gegl>", "line 1: there is no operation with the id ''"},
        {deep, "line 1: operations are nested too deeply"},
        {"\xff\xfe\x01", "line 1: "},
    };
    Add("gegl:checkerboard");
    QObject::connect(&m_document, &CGraphDocument::GraphReplaced, &m_document,
                     [] { ADD_FAILURE() << "the graph was touched"; });
    for (const sCase& bad : cases)
    {
        const QString path = WriteFile(QByteArray::fromStdString(bad.m_sText));
        EXPECT_FALSE(m_document.Load(path, m_sMessage)) << bad.m_sText;
        EXPECT_TRUE(m_sMessage.contains(QString::fromUtf8(bad.m_sReason)))
            << bad.m_sText << ": " << m_sMessage.toStdString();
        EXPECT_TRUE(m_sMessage.contains(path));
        EXPECT_EQ(m_document.GetGraph().GetNodes().size(), 1u);
        EXPECT_EQ(m_document.GetPath(), QString());
    }
    EXPECT_FALSE(m_document.Load(Path("none.xml"), m_sMessage));
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("none.xml cannot be opened: No such file")))
        << m_sMessage.toStdString();
}

TEST_F(CStorageTest, LeavesOutAnEdgeThatWouldCloseACircle)
{
    Load(WriteFile("<gegl><node id='a' operation='gegl:over'><node operation='gegl:invert'/>"
                   "<clone ref='a'/></node></gegl>"));
    EXPECT_EQ(Edges(), "invert-linear>src-over.aux ");
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("is made of that of")))
        << m_sMessage.toStdString();
}

TEST_F(CStorageTest, LeavesTheOldFileWhenItCannotWriteTheNewOne)
{
    Add("gegl:checkerboard");
    const QString path = Path("kept.xml");
    Save(path);
    const QByteArray before = ReadFile(path);
    Add("gegl:color");
    {
        const CSmallFiles small(100);
        EXPECT_FALSE(m_document.Save(path, m_sMessage));
    }
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("kept.xml cannot be written: File too large")))
        << m_sMessage.toStdString();
    EXPECT_FALSE(m_document.Save(path + QStringLiteral("/inside.xml"), m_sMessage));
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("inside.xml cannot be written")))
        << m_sMessage.toStdString();
    EXPECT_EQ(ReadFile(path), before);
    EXPECT_EQ(m_document.GetPath(), path);
    EXPECT_TRUE(m_document.IsModified());
}

#ifdef GEGL_PROGRAM
TEST_F(CStorageTest, GivesTheSamePictureInTheImageLibrarysOwnProgram)
{
    const int red = Add("gegl:color");
    const int crop = Add("gegl:crop");
    const int board = Add("gegl:checkerboard");
    const int over = Add("svg:src-over");
    const int blur = Add("gegl:gaussian-blur");
    const int text = Add("gegl:text");
    const int texts = Add("svg:src-over");
    Add("gegl:cell-noise");
    const sGraphNode& color = *m_document.GetGraph().Find(red);
    m_document.SetColor({red}, *color.GetInfo().FindProperty("value"), {0.9, 0.21, 0.123, 0.7});
    SetText(m_document, crop, "width", "120");
    SetText(m_document, crop, "height", "90");
    SetText(m_document, blur, "std-dev-x", "3.3");
    SetText(m_document, text, "string", "<a & b>\n\u00e9");
    m_document.Connect(board, crop, "input");
    m_document.Connect(crop, blur, "input");
    m_document.Connect(red, over, "aux");
    m_document.Connect(crop, over, "input");
    m_document.Connect(over, texts, "input");
    m_document.Connect(text, texts, "aux");
    const int last = Add("gegl:crop");
    m_document.Connect(texts, last, "input");
    SetText(m_document, last, "width", "110");
    SetText(m_document, last, "height", "80");
    m_document.View(last);
    Save(Path("picture.xml"));
    const QImage here = Picture();
    ASSERT_EQ(here.size(), QSize(110, 80));

    const QImage there = PictureOfTheProgram(Path("picture.xml"));
    ASSERT_EQ(there.size(), here.size());
    // The program writes 16 bits, which are rounded here.
    EXPECT_LE(LargestDifference(here, there), 1);
    EXPECT_GT(LargestDifference(here, here.mirrored()), 50) << "this picture would prove nothing";
}

TEST_F(CStorageTest, GivesTheSamplesTheSamePictureBeforeAndAfterSaving)
{
    const QDir samples(QStringLiteral(IMAGE_GRAPH_SAMPLES));
    for (const QString& name : samples.entryList({QStringLiteral("*.xml")}, QDir::Files))
    {
        const QImage before = PictureOfTheProgram(samples.filePath(name));
        Load(samples.filePath(name));
        Save(Path("saved.xml"));
        const QImage after = PictureOfTheProgram(Path("saved.xml"));
        ASSERT_FALSE(before.isNull()) << name.toStdString();
        ASSERT_EQ(after.size(), before.size()) << name.toStdString();
        EXPECT_LE(LargestDifference(before, after), 1) << name.toStdString();
    }
}
#endif
