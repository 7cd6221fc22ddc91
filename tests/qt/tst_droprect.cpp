#include <inspector/qt/droprect.h>

#include <support/rowname.h>

#include <QRect>
#include <QWidget>

#include <gtest/gtest.h>

namespace
{

const QRect g_desktop(0, 0, 800, 600);

struct sDrop
{
    const char* m_szName;
    QRect m_rectField; ///< on the screen
    int m_iWantedHeight;
    QRect m_rectDesktop;
    QRect m_rectExpected;
};

const sDrop g_drops[] = {
    {"FifteenRowsOfEighteenPixels", {100, 50, 200, 20}, 270, g_desktop, {100, 70, 200, 276}},
    {"OneRowThatFitsIntoTheField", {100, 50, 200, 20}, 18, g_desktop, {100, 70, 200, 20}},
    {"RowsExactlyAsHighAsTheField", {100, 50, 200, 20}, 20, g_desktop, {100, 70, 200, 20}},
    {"RowsOnePixelHigherThanTheField", {100, 50, 200, 20}, 21, g_desktop, {100, 70, 200, 27}},
    {"NoRows", {100, 50, 200, 20}, 0, g_desktop, {100, 70, 200, 20}},
    {"NarrowFieldDropsAListOfAHundred", {100, 50, 60, 20}, 18, g_desktop, {100, 70, 100, 20}},
    {"FieldOfNinetyNine", {100, 50, 99, 20}, 18, g_desktop, {100, 70, 100, 20}},
    {"FieldOfAHundred", {100, 50, 100, 20}, 18, g_desktop, {100, 70, 100, 20}},
    {"FieldOfAHundredAndOne", {100, 50, 101, 20}, 18, g_desktop, {100, 70, 101, 20}},
    // The right end may lie one pixel past the last column, the lower end one past the last row.
    {"EndsOnTheBoundAtTheRight", {701, 50, 60, 20}, 18, g_desktop, {701, 70, 100, 20}},
    {"OnePastTheBoundAtTheRight", {702, 50, 60, 20}, 18, g_desktop, {701, 70, 100, 20}},
    {"FarPastTheRight", {790, 50, 60, 20}, 18, g_desktop, {701, 70, 100, 20}},
    {"EndsOnTheBoundAtTheBottom", {100, 475, 200, 20}, 100, g_desktop, {100, 495, 200, 106}},
    {"OnePastTheBoundAtTheBottom", {100, 476, 200, 20}, 100, g_desktop, {100, 495, 200, 106}},
    {"AtTheVeryBottom", {100, 580, 200, 20}, 270, g_desktop, {100, 325, 200, 276}},
    {"InTheCorner", {790, 590, 60, 20}, 270, g_desktop, {701, 325, 100, 276}},
    {"NotClampedAtTheTop", {100, 150, 200, 20}, 700, g_desktop, {100, -105, 200, 706}},
    {"NotClampedAtTheLeft", {-30, 50, 200, 20}, 18, g_desktop, {-30, 70, 200, 20}},
    {"WiderThanTheDesktop", {0, 50, 900, 20}, 18, g_desktop, {-99, 70, 900, 20}},
    {"ScreenLeftOfThePrimaryOne",
     {-1850, 50, 60, 20},
     18,
     {-1920, 0, 2720, 600},
     {-1850, 70, 100, 20}},
    {"RightEndOfADesktopThatBeginsLeft",
     {750, 50, 60, 20},
     18,
     {-1920, 0, 2720, 600},
     {701, 70, 100, 20}},
    {"BottomOfADesktopThatBeginsAbove",
     {100, 580, 200, 20},
     100,
     {0, -1080, 800, 1680},
     {100, 495, 200, 106}},
};

class DropRectTable : public testing::TestWithParam<sDrop>
{
};

} // namespace

TEST_P(DropRectTable, IsBelowTheFieldAndOnTheDesktop)
{
    const sDrop& drop = GetParam();
    QWidget field;
    field.setGeometry(drop.m_rectField);
    EXPECT_EQ(DropRect(field, field.rect(), drop.m_iWantedHeight, drop.m_rectDesktop),
              drop.m_rectExpected);
}

INSTANTIATE_TEST_SUITE_P(Fields, DropRectTable, testing::ValuesIn(g_drops), sRowName());

TEST(DropRect, TakesTheAreaInTheCoordinatesOfItsOwner)
{
    QWidget window;
    window.setGeometry(100, 200, 300, 300);
    QWidget field(&window);
    field.setGeometry(10, 20, 150, 20);
    EXPECT_EQ(DropRect(field, QRect(5, 3, 120, 10), 40, g_desktop), QRect(115, 233, 120, 46));
}
