#include <support/qtmessages.h>

#include <gegl/operationcatalog.h>
#include <ui/palettepopup.h>

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

namespace
{

class CPalettePopupTest : public testing::Test
{
protected:
    CPalettePopupTest() : m_palette(&m_window)
    {
        // The offscreen display has no place for hints and grabs nothing.
        qtmessages::Allow(QStringLiteral("propagateSizeHints"));
        qtmessages::Allow(QStringLiteral("grabbing the keyboard"));
        m_window.resize(900, 700);
        m_window.show();
        m_palette.PopUp(QPoint(40, 50));
    }
    QLineEdit& Search() { return *m_palette.findChild<QLineEdit*>(QStringLiteral("search")); }
    QTreeWidget& Tree() { return *m_palette.findChild<QTreeWidget*>(QStringLiteral("palette")); }

    QWidget m_window;
    CPalettePopup m_palette;
};

} // namespace

TEST_F(CPalettePopupTest, OffersEverythingThatNeedsNoProgramInGroups)
{
    const QStringList all = m_palette.GetShown();
    EXPECT_GT(all.size(), 100);
    EXPECT_TRUE(all.contains(QStringLiteral("gegl:gaussian-blur")));
    EXPECT_TRUE(all.contains(QStringLiteral("gegl:png-save")));
    EXPECT_FALSE(all.contains(QStringLiteral("gegl:buffer-source")));
    EXPECT_GT(Tree().topLevelItemCount(), 5);
    EXPECT_LT(Tree().topLevelItemCount(), 60);
}

TEST_F(CPalettePopupTest, FindsEveryWordThatIsTyped)
{
    QTest::keyClicks(&Search(), QStringLiteral("BLUR gauss"));
    const QStringList found = m_palette.GetShown();
    EXPECT_TRUE(found.contains(QStringLiteral("gegl:gaussian-blur")));
    EXPECT_LT(found.size(), 20);
    for (const QString& name : found)
    {
        const sOperationInfo& info = *FindOperation(name.toStdString());
        const QString text = QString::fromStdString(info.m_sName + info.m_sTitle +
                                                    info.m_sCategories + info.m_sDescription);
        EXPECT_TRUE(text.contains(QStringLiteral("blur"), Qt::CaseInsensitive));
        EXPECT_TRUE(text.contains(QStringLiteral("gauss"), Qt::CaseInsensitive));
    }
}

TEST_F(CPalettePopupTest, TakesTheTitleThatStartsLikeThatFirst)
{
    QTest::keyClicks(&Search(), QStringLiteral("crop"));
    EXPECT_EQ(m_palette.GetCurrent(), QStringLiteral("gegl:crop"));
}

TEST_F(CPalettePopupTest, IsGoneWithTheChoice)
{
    const QSignalSpy chosen(&m_palette, &CPalettePopup::Chosen);
    QTest::keyClicks(&Search(), QStringLiteral("crop"));
    QTest::keyClick(&Search(), Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("gegl:crop"));
    EXPECT_FALSE(m_palette.isVisible());
}

TEST_F(CPalettePopupTest, MovesThroughTheRowsWithTheArrows)
{
    QTest::keyClicks(&Search(), QStringLiteral("blur"));
    const QStringList shown = m_palette.GetShown();
    QString current = m_palette.GetCurrent();
    const int start = int(shown.indexOf(current));
    QTest::keyClick(&Search(), Qt::Key_Up);
    QTest::keyClick(&Search(), Qt::Key_Down);
    QTest::keyClick(&Search(), Qt::Key_Down);
    const int moved = start == 0 ? 2 : start + 1;
    EXPECT_EQ(m_palette.GetCurrent(), shown[moved]);
    const QSignalSpy chosen(&m_palette, &CPalettePopup::Chosen);
    QTest::keyClick(&Search(), Qt::Key_Enter);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), shown[moved]);
}

TEST_F(CPalettePopupTest, TakesARowThatIsClicked)
{
    QTest::keyClicks(&Search(), QStringLiteral("gegl:crop"));
    const QSignalSpy chosen(&m_palette, &CPalettePopup::Chosen);
    const QRect row = Tree().visualItemRect(Tree().currentItem());
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen[0][0].toString(), QStringLiteral("gegl:crop"));
}

TEST_F(CPalettePopupTest, OpensAGroupThatIsClicked)
{
    QTreeWidgetItem* group = Tree().topLevelItem(0);
    EXPECT_FALSE(group->isExpanded());
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, Qt::NoModifier,
                      Tree().visualItemRect(group).center());
    EXPECT_TRUE(group->isExpanded());
    EXPECT_TRUE(m_palette.isVisible());
}

TEST_F(CPalettePopupTest, IsGoneAtEscapeAndStartsAnewTheNextTime)
{
    QTest::keyClicks(&Search(), QStringLiteral("no such thing"));
    EXPECT_TRUE(m_palette.GetShown().isEmpty());
    const QSignalSpy chosen(&m_palette, &CPalettePopup::Chosen);
    QTest::keyClick(&Search(), Qt::Key_Return);
    EXPECT_EQ(chosen.count(), 0);
    QTest::keyClick(&Search(), Qt::Key_Escape);
    EXPECT_FALSE(m_palette.isVisible());
    m_palette.PopUp(QPoint(100000, 100000));
    EXPECT_GT(m_palette.GetShown().size(), 100);
    EXPECT_TRUE(m_window.geometry().contains(m_palette.geometry()));
}
