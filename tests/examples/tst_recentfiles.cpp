#include <graph/recentfiles.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace
{

class CRecentTest : public testing::Test
{
protected:
    QString Make(int number) const
    {
        const QString path = m_folder.filePath(QStringLiteral("%1.xml").arg(number));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }

    QTemporaryDir m_folder;
    QSettings m_settings{m_folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    CRecentFiles m_recent{m_settings};
};

} // namespace

TEST_F(CRecentTest, ListsTheNewestFirstAndEachOnce)
{
    EXPECT_TRUE(m_recent.Get().isEmpty());
    m_recent.Add(Make(1));
    m_recent.Add(Make(2));
    m_recent.Add(Make(1));
    EXPECT_EQ(m_recent.Get(), (QStringList{Make(1), Make(2)}));
    m_recent.Clear();
    EXPECT_TRUE(m_recent.Get().isEmpty());
}

TEST_F(CRecentTest, ForgetsTheOldestAndWhatIsGone)
{
    for (int i = 1; i <= CRecentFiles::g_iCount + 2; ++i)
        m_recent.Add(Make(i));
    EXPECT_EQ(m_recent.Get().size(), CRecentFiles::g_iCount);
    EXPECT_FALSE(m_recent.Get().contains(Make(2)));
    ASSERT_TRUE(QFile::remove(Make(7)));
    EXPECT_EQ(m_recent.Get().size(), CRecentFiles::g_iCount - 1);
}

TEST_F(CRecentTest, AreStillKnownTheNextTime)
{
    m_recent.Add(Make(1));
    m_settings.sync();
    QSettings later(m_settings.fileName(), QSettings::IniFormat);
    EXPECT_EQ(CRecentFiles(later).Get(), QStringList{Make(1)});
}
