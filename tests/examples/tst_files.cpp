#include "windowfixture.h"

#include <ui/filecommands.h>
#include <ui/recentfiles.h>

#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace
{

class CFileTest : public CWindowFixture
{
protected:
    /// Names a file in the dialog that comes next.
    void Name(const QString& path)
    {
        Answer<QFileDialog>(
            [path](QFileDialog& dialog)
            {
                auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                name->setText(path);
                QTest::keyClick(name, Qt::Key_Return);
            });
    }
    /// Presses a button of the question that comes next.
    void Press(QMessageBox::StandardButton button)
    {
        Answer<QMessageBox>([button](QMessageBox& box) { box.button(button)->click(); });
    }
    void Change() { Document().AddNode("gegl:perlin-noise", {0, 0}); }
    bool Exists(const char* name) const { return QFile::exists(PathOf(name)); }
};

} // namespace

TEST_F(CFileTest, SavesUnderANameAndThenUnderTheSame)
{
    Change();
    Name(PathOf("noise.xml"));
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(m_iAnswered, 1);
    EXPECT_TRUE(Exists("noise.xml"));
    EXPECT_FALSE(Document().IsModified());
    EXPECT_TRUE(m_pWindow->windowTitle().contains(QStringLiteral("noise.xml")));
    EXPECT_EQ(m_pWindow->GetMessage(), QStringLiteral("Saved noise.xml."));
    Change();
    EXPECT_TRUE(m_pWindow->isWindowModified());
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(m_pWindow->isWindowModified());
    EXPECT_EQ(m_iAnswered, 1);
}

TEST_F(CFileTest, SavesUnderAnotherName)
{
    Change();
    QString message;
    ASSERT_TRUE(Document().Save(PathOf("one.xml"), message));
    Name(PathOf("two.xml"));
    Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(Exists("two.xml"));
    EXPECT_EQ(Document().GetPath(), PathOf("two.xml"));
}

TEST_F(CFileTest, OpensWhatIsChosen)
{
    Name(Sample("lake-at-dusk.xml"));
    Key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(Graph().GetNodes().size(), Scene().GetNodeItems().size());
    EXPECT_GT(Graph().GetNodes().size(), 15u);
    EXPECT_TRUE(m_pWindow->windowTitle().contains(QStringLiteral("lake-at-dusk.xml")));
    EXPECT_FALSE(Document().IsModified());
    for (const auto& [id, item] : Scene().GetNodeItems())
        for (const auto& [other, otherItem] : Scene().GetNodeItems())
            EXPECT_TRUE(id == other || !item->GetFrame().intersects(otherItem->GetFrame()));
}

TEST_F(CFileTest, OpensASampleThatIsNeverOverwritten)
{
    Key(Qt::Key_4, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_TRUE(m_pWindow->windowTitle().contains(QStringLiteral("Kaleidoscope")));
    Name(PathOf("mine.xml"));
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(m_iAnswered, 1);
    EXPECT_TRUE(Exists("mine.xml"));
}

TEST_F(CFileTest, AsksBeforeChangesAreLost)
{
    Change();
    Press(QMessageBox::Cancel);
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(m_iAnswered, 1);
    EXPECT_EQ(Graph().GetNodes().size(), 1u);
    Press(QMessageBox::Cancel);
    Key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(m_iAnswered, 2);
    EXPECT_TRUE(m_pWindow->isVisible());
    Press(QMessageBox::Discard);
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(m_iAnswered, 3);
    EXPECT_TRUE(Graph().GetNodes().empty());
    Key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(m_pWindow->isVisible());
}

TEST_F(CFileTest, SavesWhenTheQuestionIsAnsweredSo)
{
    QString message;
    ASSERT_TRUE(Document().Save(PathOf("kept.xml"), message));
    Change();
    Press(QMessageBox::Save);
    EXPECT_TRUE(m_pWindow->close());
    EXPECT_EQ(m_iAnswered, 1);
    CGraphDocument again;
    ASSERT_TRUE(again.Load(PathOf("kept.xml"), message));
    EXPECT_EQ(again.GetGraph().GetNodes().size(), 1u);
}

TEST_F(CFileTest, StaysWhenSavingFailed)
{
    QString message;
    ASSERT_TRUE(Document().Save(PathOf("kept.xml"), message));
    Change();
    // The name leads nowhere, so that the graph cannot be saved.
    Name(PathOf("no-such-folder/graph.xml"));
    const auto dismiss = [](QMessageBox& box) { box.accept(); };
    Answer<QMessageBox>(dismiss);
    EXPECT_FALSE(m_pWindow->GetFileCommands().SaveAs());
    EXPECT_TRUE(Document().IsModified());
}

TEST_F(CFileTest, RemembersWhatWasOpenedLast)
{
    QString message;
    Change();
    for (const char* name : {"one.xml", "two.xml"})
    {
        ASSERT_TRUE(Document().Save(PathOf(name), message));
        ASSERT_TRUE(m_pWindow->OpenGraph(PathOf(name)));
    }
    EXPECT_EQ(CRecentFiles::Get(), (QStringList{PathOf("two.xml"), PathOf("one.xml")}));
    Key(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(Document().GetPath(), PathOf("one.xml"));
    EXPECT_EQ(CRecentFiles::Get(), (QStringList{PathOf("one.xml"), PathOf("two.xml")}));
    QFile::remove(PathOf("two.xml"));
    EXPECT_EQ(CRecentFiles::Get(), QStringList{PathOf("one.xml")});
}

TEST_F(CFileTest, KeepsTheGraphWhenAFileIsBad)
{
    Change();
    QString message;
    ASSERT_TRUE(Document().Save(PathOf("good.xml"), message));
    Answer<QMessageBox>([](QMessageBox& box) { box.accept(); });
    EXPECT_FALSE(m_pWindow->OpenGraph(QStringLiteral("/no/such/graph.xml")));
    EXPECT_EQ(m_iAnswered, 1);
    EXPECT_TRUE(m_pWindow->GetMessage().contains(QStringLiteral("cannot be opened")));
    EXPECT_EQ(Graph().GetNodes().size(), 1u);
    EXPECT_TRUE(m_pWindow->windowTitle().contains(QStringLiteral("good.xml")));
}
