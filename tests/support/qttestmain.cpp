#include <support/qtleftovers.h>
#include <support/qtmessages.h>

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <QStyleFactory>

#include <gtest/gtest.h>

#include <memory>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace
{

std::unique_ptr<QApplication> MakeApplication(int& argc, char** argv)
{
#ifdef __SANITIZE_ADDRESS__
    // What Qt keeps from its own start is no leak of the tests: the offscreen platform of Qt 5
    // never frees its screen.
    const __lsan::ScopedDisabler disabler;
#endif
    return std::make_unique<QApplication>(argc, argv);
}

} // namespace

// The main function of every test that needs Qt: the same style, font and colours everywhere, so
// that pixels can be compared.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();

    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The look of the tester's desktop stays outside.
    qunsetenv("QT_STYLE_OVERRIDE");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    QApplication::setDesktopSettingsAware(false);

    qtmessages::Install();
    const std::unique_ptr<QApplication> application = MakeApplication(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    QApplication::setFont(font);
    QApplication::setCursorFlashTime(0);

    testing::UnitTest::GetInstance()->listeners().Append(new CQtLeftovers);
    return RUN_ALL_TESTS();
}
