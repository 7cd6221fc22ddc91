#include <support/qtmessages.h>

#include <gegl/operationcatalog.h>
#include <inspector/inspectorpanel.h>
#include <ui/chainview.h>
#include <ui/mainwindow.h>
#include <ui/operationpalette.h>
#include <ui/pictureview.h>

#include <qtinspectorview.h>
#include <qtsimpledatawidget.h>
#include <qttextencoding.h>

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <memory>

namespace
{

constexpr int g_iPatience = 120000;

class CWindowTest : public testing::Test
{
protected:
    CWindowTest()
    {
        // The offscreen display has no place for hints.
        qtmessages::Allow(QStringLiteral("propagateSizeHints"));
        CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
        m_pWindow = std::make_unique<CMainWindow>();
        m_pWindow->show();
    }
    ~CWindowTest() override
    {
        m_pWindow.reset();
        CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
    }

    QString Sample(const char* name)
    {
        return QStringLiteral(IMAGE_GRAPH_SAMPLES "/") + QString::fromUtf8(name);
    }
    CGraphDocument& Document() { return m_pWindow->GetDocument(); }
    CInspectorPanel& Inspector() { return m_pWindow->GetInspector(); }
    COperationPalette& Palette() { return *m_pWindow->findChild<COperationPalette*>(); }

    /// Types into the search field and takes the first operation that is found.
    void AddBySearch(const char* text)
    {
        auto* search = m_pWindow->findChild<QLineEdit*>(QStringLiteral("search"));
        search->clear();
        QTest::keyClicks(search, QString::fromUtf8(text));
        QTest::keyClick(search, Qt::Key_Return);
    }

    bool WaitForPicture(const QSignalSpy& rendered, int count)
    {
        return QTest::qWaitFor([&] { return rendered.count() >= count; }, g_iPatience);
    }

    std::unique_ptr<CMainWindow> m_pWindow;
};

} // namespace

TEST_F(CWindowTest, StartsWithNothingSelected)
{
    EXPECT_TRUE(Inspector().GetView()->HasPreviewMessage());
    EXPECT_EQ(m_pWindow->GetChainView().GetCurrent(), nullptr);
}

TEST_F(CWindowTest, ShowsTheSelectedOperationOfASample)
{
    ASSERT_TRUE(m_pWindow->OpenGraph(Sample("dusk-mountains.xml")));
    const sGraphItem* last = Document().GetChain().back().get();
    EXPECT_EQ(m_pWindow->GetChainView().GetCurrent(), last);
    EXPECT_EQ(Inspector().GetController().GetItem(), last);
    EXPECT_FALSE(Inspector().GetView()->HasPreviewMessage());
    sGraphItem* first = Document().GetChain().front().get();
    m_pWindow->GetChainView().SetCurrent(first);
    EXPECT_EQ(Inspector().GetController().GetItem(), first);
}

TEST_F(CWindowTest, RendersAgainAfterAnEdit)
{
    const QSignalSpy rendered(m_pWindow.get(), &CMainWindow::Rendered);
    AddBySearch("gegl:checkerboard");
    ASSERT_TRUE(WaitForPicture(rendered, 1));
    const QImage before = m_pWindow->GetPicture().GetImage();
    auto* field = Inspector().findChild<CQTSimpleDataWidget*>(QStringLiteral("x"));
    ASSERT_TRUE(field);
    field->FinishValueEdit("99", CInspectorDataElement::eEndEditValidate);
    ASSERT_TRUE(WaitForPicture(rendered, 2));
    EXPECT_NE(m_pWindow->GetPicture().GetImage(), before);
}

TEST_F(CWindowTest, AddsWhatIsFoundAndMovesAndRemovesIt)
{
    AddBySearch("gegl:checkerboard");
    AddBySearch("gegl:gaussian");
    AddBySearch("gegl:vignette");
    const CGraphChain& chain = Document().GetChain();
    ASSERT_EQ(chain.size(), 3u);
    EXPECT_EQ(chain[1]->m_pOperation->GetInfo().m_sName, "gegl:gaussian-blur");
    m_pWindow->GetChainView().MoveCurrent(-1);
    EXPECT_EQ(chain[1]->m_pOperation->GetInfo().m_sName, "gegl:vignette");
    EXPECT_EQ(m_pWindow->GetChainView().GetCurrent(), chain[1].get());
    m_pWindow->GetChainView().RemoveCurrent();
    ASSERT_EQ(chain.size(), 2u);
    EXPECT_EQ(Inspector().GetController().GetItem(), chain[1].get());
    m_pWindow->GetChainView().RemoveCurrent();
    m_pWindow->GetChainView().RemoveCurrent();
    EXPECT_TRUE(chain.empty());
    EXPECT_TRUE(Inspector().GetView()->HasPreviewMessage());
}

TEST_F(CWindowTest, OffersOnlyWhatMakesAPicture)
{
    Palette().SetFilter(QString());
    const QStringList all = Palette().GetShown();
    EXPECT_GT(all.size(), 100);
    EXPECT_TRUE(all.contains(QStringLiteral("gegl:gaussian-blur")));
    EXPECT_FALSE(all.contains(QStringLiteral("gegl:png-save")));
    EXPECT_FALSE(all.contains(QStringLiteral("gegl:buffer-source")));
    Palette().SetFilter(QStringLiteral("BLUR gauss"));
    for (const QString& name : Palette().GetShown())
    {
        const sOperationInfo& info = *FindOperation(name.toStdString());
        const QString text = QString::fromStdString(info.m_sName + info.m_sTitle +
                                                    info.m_sCategories + info.m_sDescription);
        EXPECT_TRUE(text.contains(QStringLiteral("blur"), Qt::CaseInsensitive));
        EXPECT_TRUE(text.contains(QStringLiteral("gauss"), Qt::CaseInsensitive));
    }
    EXPECT_LT(Palette().GetShown().size(), 20);
}

TEST_F(CWindowTest, BringsTheRowsUpToDateAfterAReset)
{
    AddBySearch("gegl:checkerboard");
    auto* field = Inspector().findChild<CQTSimpleDataWidget*>(QStringLiteral("x"));
    ASSERT_TRUE(field);
    field->FinishValueEdit("99", CInspectorDataElement::eEndEditValidate);
    Document().Reset(Document().GetChain()[0].get());
    Inspector().grab();
    std::string text;
    field->GetDataAsString(text);
    EXPECT_EQ(text, "16");
}

TEST_F(CWindowTest, KeepsTheRowsForAnotherOperationOfTheSameKind)
{
    AddBySearch("gegl:checkerboard");
    auto* field = Inspector().findChild<CQTSimpleDataWidget*>(QStringLiteral("x"));
    ASSERT_TRUE(field);
    field->FinishValueEdit("99", CInspectorDataElement::eEndEditValidate);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("board.xml"));
    QString message;
    ASSERT_TRUE(Document().Save(path, message));
    field->FinishValueEdit("5", CInspectorDataElement::eEndEditValidate);
    Inspector().grab();

    ASSERT_TRUE(m_pWindow->OpenGraph(path));
    EXPECT_EQ(Inspector().findChild<CQTSimpleDataWidget*>(QStringLiteral("x")), field);
    std::string text;
    field->GetDataAsString(text);
    EXPECT_EQ(text, "5") << "the rows wait for the next painting";
    Inspector().grab();
    field->GetDataAsString(text);
    EXPECT_EQ(text, "99");
    field->FinishValueEdit("7", CInspectorDataElement::eEndEditValidate);
    const CImageOperation& board = *Document().GetChain()[0]->m_pOperation;
    EXPECT_EQ(board.GetText(*board.GetInfo().FindProperty("x")), "7");
}

TEST_F(CWindowTest, KeepsTheGraphWhenAFileIsBad)
{
    ASSERT_TRUE(m_pWindow->OpenGraph(Sample("dusk-mountains.xml")));
    const sGraphItem* item = Inspector().GetController().GetItem();
    EXPECT_FALSE(m_pWindow->OpenGraph(QStringLiteral("/no/such/graph.xml")));
    EXPECT_TRUE(m_pWindow->GetMessage().contains(QStringLiteral("cannot be opened")));
    EXPECT_EQ(Inspector().GetController().GetItem(), item);
    EXPECT_TRUE(m_pWindow->windowTitle().contains(QStringLiteral("dusk-mountains.xml")));
}
