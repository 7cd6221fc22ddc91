#include <inspector/qt/applicationstore.h>

#include <QApplication>

#include <gtest/gtest.h>

#include <memory>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

// It has applications of its own, so the tests' main function has none.

namespace
{

struct sStore
{
    sStore() { ++g_iAlive; }
    ~sStore() { --g_iAlive; }
    void Empty() { ++g_iEmptied; }

    static int g_iAlive;
    static int g_iEmptied;
};

int sStore::g_iAlive = 0;
int sStore::g_iEmptied = 0;

std::unique_ptr<QApplication> MakeApplication()
{
#ifdef __SANITIZE_ADDRESS__
    // What Qt keeps from its own start is no leak of the library.
    const __lsan::ScopedDisabler disabler;
#endif
    static int count = 1;
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return std::make_unique<QApplication>(count, arguments);
}

} // namespace

TEST(ApplicationStore, LivesAsLongAsItsApplication)
{
    for (int round = 1; round <= 2; ++round)
    {
        std::unique_ptr<QApplication> application = MakeApplication();
        EXPECT_EQ(sStore::g_iAlive, 0);
        sStore& store = ApplicationStore<sStore>();
        EXPECT_EQ(&ApplicationStore<sStore>(), &store);
        EXPECT_EQ(sStore::g_iAlive, 1);

        Q_EMIT application->fontDatabaseChanged();
        EXPECT_EQ(sStore::g_iEmptied, round);

        application.reset();
        EXPECT_EQ(sStore::g_iAlive, 0);
    }
}

TEST(ApplicationStore, IsNotMissedWhereNobodyAskedForIt)
{
    const std::unique_ptr<QApplication> application = MakeApplication();
    Q_EMIT application->fontDatabaseChanged();
    EXPECT_EQ(sStore::g_iAlive, 0);
}
