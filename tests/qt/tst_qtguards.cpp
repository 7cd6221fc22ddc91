#include <support/images.h>
#include <support/qtleftovers.h>
#include <support/qtmessages.h>

#include <qtenumdatawidget.h>
#include <qtsimpledatawidget.h>
#include <qttextencoding.h>

#include <QApplication>
#include <QFontInfo>
#include <QStyle>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>

// What watches over the other tests is worth nothing unless it can fail.

namespace
{

/// Does what is done after every test; the guards must find nothing afterwards.
void LookForLeftovers()
{
    CQtLeftovers leftovers;
    testing::TestEventListener& listener = leftovers;
    listener.OnTestEnd(*testing::UnitTest::GetInstance()->current_test_info());
}

/// The number of failures of some code, which are taken out of the running test's result.
template <typename Code>
int CountFailures(const Code& code)
{
    testing::TestPartResultArray results;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(&results);
        code();
    }
    int failures = 0;
    for (int i = 0; i < results.size(); ++i)
        failures += results.GetTestPartResult(i).failed();
    return failures;
}

} // namespace

TEST(QtGuards, FailATestForAWarning)
{
    EXPECT_NONFATAL_FAILURE(qWarning("a strange thing"), "Qt warns: a strange thing");
    EXPECT_NONFATAL_FAILURE(qCritical("a worse thing"), "Qt warns: a worse thing");
    EXPECT_EQ(CountFailures([] { qDebug("nothing of the kind"); }), 0);
}

TEST(QtGuards, LetAnExpectedWarningPass)
{
    qtmessages::Expect(QStringLiteral("strange"));
    EXPECT_EQ(CountFailures([] { qWarning("a strange thing"); }), 0);
    EXPECT_NONFATAL_FAILURE(qWarning("another thing"), "another thing");
}

TEST(QtGuards, FailATestWhoseExpectedWarningDidNotCome)
{
    qtmessages::Expect(QStringLiteral("strange"));
    qtmessages::Allow(QStringLiteral("usual"));
    EXPECT_NONFATAL_FAILURE(qtmessages::EndTest(), "Qt did not warn: strange");
}

TEST(QtGuards, ForgetTheListAtTheEndOfTheTest)
{
    qtmessages::Allow(QStringLiteral("strange"));
    qtmessages::EndTest();
    EXPECT_NONFATAL_FAILURE(qWarning("a strange thing"), "strange");
}

TEST(QtGuards, FindAVisibleWindow)
{
    QWidget window;
    EXPECT_EQ(CountFailures(LookForLeftovers), 0);
    window.show();
    EXPECT_NONFATAL_FAILURE(LookForLeftovers(), "a window was left visible: QWidget");
    EXPECT_TRUE(window.isHidden());
}

TEST(QtGuards, FindAFieldAndItsEditor)
{
    CQTSimpleDataWidget field;
    EXPECT_EQ(CountFailures(LookForLeftovers), 3);
}

TEST(QtGuards, FindAListThatIsStillShared)
{
    auto field = std::make_unique<CQTEnumDataWidget>();
    EXPECT_EQ(CountFailures(LookForLeftovers), 2);
    const std::shared_ptr<CInPlaceList> list = CQTEnumDataWidget::g_pInPlaceList;
    field.reset();
    CQTEnumDataWidget::g_pInPlaceList.reset();
    EXPECT_NONFATAL_FAILURE(LookForLeftovers(), "an editor was left: CInPlaceList");
}

TEST(QtGuards, FindAChangedEncodingAndTakeItBack)
{
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    EXPECT_NONFATAL_FAILURE(LookForLeftovers(), "the text encoding was left changed");
    EXPECT_EQ(CQTTextEncoding::GetEncoding(), CQTTextEncoding::eTextEncodingLatin1);
}

TEST(QtGuards, FindTheOnePixelThatDiffers)
{
    QImage image(4, 3, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QImage other = image;
    images::ExpectSame(image, other);
    other.setPixel(2, 1, 0xFFFFFFFE);
    EXPECT_EQ(images::CountDifferent(image, other), 1);
    EXPECT_NONFATAL_FAILURE(images::ExpectSame(image, other), "1 pixels differ");
}

TEST(QtGuards, GiveEveryTestTheSameStyleAndFont)
{
    EXPECT_EQ(QApplication::style()->objectName(), QStringLiteral("fusion"));
    EXPECT_EQ(QFontInfo(QApplication::font()).family(), QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(QApplication::font().pixelSize(), 12);
}
