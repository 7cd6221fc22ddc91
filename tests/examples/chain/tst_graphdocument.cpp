#include <graphdocument.h>

#include <gegl/graphfile.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace
{

std::string NameOf(const sGraphItem& item)
{
    return item.m_pOperation->GetInfo().m_sName;
}

/// "a b(c d) e": the names of a chain, with branches in brackets.
std::string Names(const CGraphChain& chain)
{
    std::string names;
    for (const auto& item : chain)
    {
        names += (names.empty() ? "" : " ") + NameOf(*item).substr(NameOf(*item).find(':') + 1);
        if (!item->m_vBranch.empty())
            names += '(' + Names(item->m_vBranch) + ')';
    }
    return names;
}

std::string Get(const sGraphItem& item, const char* property)
{
    return item.m_pOperation->GetText(*item.m_pOperation->GetInfo().FindProperty(property));
}

class CDocumentTest : public testing::Test
{
protected:
    sGraphItem* Add(const char* name, sGraphItem* after = nullptr)
    {
        return m_document.Add(name, after);
    }

    void Set(sGraphItem* item, const char* property, const char* text)
    {
        m_document.SetText(item, *item->m_pOperation->GetInfo().FindProperty(property), text);
    }

    QString WriteFile(const QByteArray& text)
    {
        const QString path = m_folder.filePath(QStringLiteral("graph.xml"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return path;
    }

    QTemporaryDir m_folder;
    CGraphDocument m_document;
    QString m_sMessage;
};

} // namespace

TEST_F(CDocumentTest, AddsAfterTheGivenOperation)
{
    sGraphItem* board = Add("gegl:checkerboard");
    Add("gegl:vignette");
    Add("gegl:gaussian-blur", board);
    EXPECT_EQ(Names(m_document.GetChain()), "checkerboard gaussian-blur vignette");
    EXPECT_TRUE(m_document.IsModified());
    EXPECT_EQ(Add("gegl:no-such-operation"), nullptr);
}

TEST_F(CDocumentTest, LaysAnotherSourceOverThePicture)
{
    sGraphItem* board = Add("gegl:checkerboard");
    sGraphItem* text = Add("gegl:text", board);
    Add("gegl:gaussian-blur", text);
    EXPECT_EQ(Names(m_document.GetChain()), "checkerboard src-over(text gaussian-blur)");
    EXPECT_TRUE(m_document.Contains(text));
}

TEST_F(CDocumentTest, PutsASourceIntoAnEmptySecondInput)
{
    Add("gegl:checkerboard");
    sGraphItem* multiply = Add("gegl:multiply");
    Add("gegl:linear-gradient", multiply);
    EXPECT_EQ(Names(m_document.GetChain()), "checkerboard multiply(linear-gradient)");
}

TEST_F(CDocumentTest, MovesOperationsButNothingBeforeASource)
{
    sGraphItem* board = Add("gegl:checkerboard");
    sGraphItem* blur = Add("gegl:gaussian-blur");
    sGraphItem* vignette = Add("gegl:vignette");
    EXPECT_FALSE(m_document.CanMove(board, -1));
    EXPECT_FALSE(m_document.CanMove(board, 1));
    EXPECT_FALSE(m_document.CanMove(blur, -1));
    EXPECT_FALSE(m_document.CanMove(vignette, 1));
    EXPECT_FALSE(m_document.CanMove(nullptr, 1));
    m_document.Move(vignette, -1);
    EXPECT_EQ(Names(m_document.GetChain()), "checkerboard vignette gaussian-blur");
    m_document.Move(vignette, -1);
    EXPECT_EQ(Names(m_document.GetChain()), "checkerboard vignette gaussian-blur");
}

TEST_F(CDocumentTest, SelectsANeighbourOfWhatWasRemoved)
{
    Add("gegl:checkerboard");
    sGraphItem* blur = Add("gegl:gaussian-blur");
    sGraphItem* vignette = Add("gegl:vignette");
    sGraphItem* current = nullptr;
    QObject::connect(&m_document, &CGraphDocument::ChainChanged, &m_document,
                     [&](sGraphItem* item) { current = item; });
    m_document.Remove(blur);
    EXPECT_EQ(current, vignette);
    EXPECT_FALSE(m_document.Contains(blur));
    m_document.Remove(vignette);
    EXPECT_EQ(NameOf(*current), "gegl:checkerboard");
    m_document.Remove(current);
    EXPECT_EQ(current, nullptr);
}

TEST_F(CDocumentTest, AsksForAPictureOnlyWhenAValueChanged)
{
    sGraphItem* blur = Add("gegl:gaussian-blur");
    const QSignalSpy pictures(&m_document, &CGraphDocument::PictureChanged);
    Set(blur, "std-dev-x", "1.50");
    EXPECT_EQ(pictures.count(), 0);
    Set(blur, "std-dev-x", "nonsense");
    EXPECT_EQ(pictures.count(), 0);
    Set(blur, "std-dev-x", "2");
    EXPECT_EQ(pictures.count(), 1);
}

TEST_F(CDocumentTest, OpensWhatItSaved)
{
    sGraphItem* board = Add("gegl:checkerboard");
    Set(board, "x", "37");
    sGraphItem* text = Add("gegl:text", board);
    Set(text, "string", "a <b> & \u00e9 \"q\" 'r' \u4f60\n second");
    const sImageProperty& color = *text->m_pOperation->GetInfo().FindProperty("color");
    m_document.SetColor(text, color, {0.1, 0.2, 0.3, 0.4});
    Add("gegl:dropshadow", text);
    Set(Add("gegl:unsharp-mask"), "std-dev", "4.25");
    Set(Add("gegl:gaussian-blur"), "filter", "iir");
    const QString path = m_folder.filePath(QStringLiteral("saved.xml"));
    ASSERT_TRUE(m_document.Save(path, m_sMessage)) << m_sMessage.toStdString();
    EXPECT_FALSE(m_document.IsModified());

    CGraphDocument other;
    ASSERT_TRUE(other.Load(path, m_sMessage)) << m_sMessage.toStdString();
    EXPECT_EQ(m_sMessage, QString());
    const CGraphChain& chain = other.GetChain();
    EXPECT_EQ(Names(chain), Names(m_document.GetChain()));
    EXPECT_EQ(Names(chain), "checkerboard src-over(text dropshadow) unsharp-mask gaussian-blur");
    EXPECT_EQ(Get(*chain[0], "x"), "37");
    const sGraphItem& otherText = *chain[1]->m_vBranch[0];
    EXPECT_EQ(Get(otherText, "string"), Get(*text, "string"));
    for (int component = 0; component < 4; ++component)
        EXPECT_EQ(otherText.m_pOperation->GetComponent(color, component),
                  text->m_pOperation->GetComponent(color, component));
    EXPECT_EQ(Get(*chain[2], "std-dev"), "4.25");
    EXPECT_EQ(Get(*chain[3], "filter"), "iir");
}

TEST_F(CDocumentTest, WritesPathsRelativeToTheFile)
{
    sGraphItem* load = Add("gegl:load");
    const QString picture = m_folder.filePath(QStringLiteral("a & b.png"));
    Set(load, "path", picture.toUtf8().constData());
    const std::string folder = m_folder.path().toStdString();
    const std::string text = sGraphText::Write(m_document.GetChain(), folder);
    EXPECT_NE(text.find(">a &amp; b.png<"), std::string::npos) << text;
    CGraphChain read;
    std::string message;
    ASSERT_TRUE(sGraphText::Read(text, folder, read, message)) << message;
    EXPECT_EQ(Get(*read[0], "path"), picture.toStdString());
}

TEST_F(CDocumentTest, CopiesAnOperationThatIsUsedTwice)
{
    const QString path =
        WriteFile("<gegl><node operation='gegl:over'><node operation='gegl:invert'/>"
                  "<clone ref='a'/></node><node id='a' operation='gegl:checkerboard'/></gegl>");
    ASSERT_TRUE(m_document.Load(path, m_sMessage)) << m_sMessage.toStdString();
    EXPECT_EQ(Names(m_document.GetChain()), "checkerboard src-over(checkerboard invert-linear)");
}

TEST_F(CDocumentTest, OpensEverySample)
{
    const QDir samples(QStringLiteral(IMAGE_GRAPH_SAMPLES));
    const QStringList names = samples.entryList({QStringLiteral("*.xml")}, QDir::Files);
    EXPECT_GE(names.size(), 3);
    for (const QString& name : names)
    {
        EXPECT_TRUE(m_document.Load(samples.filePath(name), m_sMessage)) << name.toStdString();
        EXPECT_EQ(m_sMessage, QString()) << name.toStdString();
    }
}

TEST_F(CDocumentTest, SaysWhyAFileCannotBeOpenedAndKeepsTheOpenGraph)
{
    struct sCase
    {
        const char* m_sText;
        const char* m_sReason;
    };
    const sCase cases[] = {
        {"", "The file is empty."},
        {" \n", "The file is empty."},
        {"hello", "Error on line 1"},
        {"<gegl>", "Document ended unexpectedly"},
        {"<gegl><node operation='gegl:checkerboard'>", "Document ended unexpectedly"},
        {"<gegl>\n<node operation='gegl:checkerboard'></gegl>", "Error on line 2"},
        {"<html><body/></html>", "line 1: this is not a graph"},
        {"<gegl><p/></gegl>", "<p> is not part of a graph"},
        {"<gegl>\n<node operation='gegl:nonsense'/></gegl>",
         "line 2: the operation 'gegl:nonsense' is not installed"},
        {"<gegl><node operation='gegl:gif-load'/></gegl>", "ends the program"},
        {"<gegl></gegl>", "It holds no operation"},
        {"<gegl><node operation='gegl:png-save'/></gegl>", "It holds no operation"},
        {"\xff\xfe\x01", "line 1"},
    };
    sGraphItem* board = Add("gegl:checkerboard");
    QObject::connect(&m_document, &CGraphDocument::ChainChanged, &m_document,
                     [] { ADD_FAILURE() << "the graph was touched"; });
    for (const sCase& bad : cases)
    {
        const QString path = WriteFile(bad.m_sText);
        EXPECT_FALSE(m_document.Load(path, m_sMessage)) << bad.m_sText;
        EXPECT_TRUE(m_sMessage.contains(QString::fromUtf8(bad.m_sReason)))
            << bad.m_sText << ": " << m_sMessage.toStdString();
        EXPECT_TRUE(m_sMessage.contains(path));
        EXPECT_TRUE(m_document.Contains(board));
        EXPECT_EQ(m_document.GetPath(), QString());
    }
}

TEST_F(CDocumentTest, SaysWhyAFileIsMissing)
{
    Add("gegl:checkerboard");
    EXPECT_FALSE(m_document.Load(m_folder.filePath(QStringLiteral("none.xml")), m_sMessage));
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("none.xml cannot be opened: No such file")))
        << m_sMessage.toStdString();
    EXPECT_EQ(Names(m_document.GetChain()), "checkerboard");
}

TEST_F(CDocumentTest, RefusesAFileThatWouldGrowWithoutEnd)
{
    QByteArray text("<gegl>");
    for (int i = 0; i < 40; ++i)
        text += QByteArray("<node id='n") + QByteArray::number(i) +
                "' operation='gegl:over'><clone ref='n" + QByteArray::number(i + 1) + "'/></node>";
    text += "<node id='n40' operation='gegl:checkerboard'/></gegl>";
    EXPECT_FALSE(m_document.Load(WriteFile(text), m_sMessage));
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("It has too many operations.")))
        << m_sMessage.toStdString();
}

TEST_F(CDocumentTest, SaysWhatItLeftOut)
{
    const QString path =
        WriteFile("<gegl><node operation='gegl:checkerboard'><params><param name='bogus'>1</param>"
                  "</params></node></gegl>");
    EXPECT_TRUE(m_document.Load(path, m_sMessage));
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("property bogus not found")))
        << m_sMessage.toStdString();
}

TEST_F(CDocumentTest, LeavesTheOldFileWhenItCannotWrite)
{
    Add("gegl:checkerboard");
    EXPECT_FALSE(m_document.Save(QStringLiteral("/no/such/folder/graph.xml"), m_sMessage));
    EXPECT_TRUE(m_sMessage.contains(QStringLiteral("cannot be written")));
    EXPECT_TRUE(m_document.IsModified());
}
