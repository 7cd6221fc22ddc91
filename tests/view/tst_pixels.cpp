#include <inspector/view/pixels.h>

#include <gtest/gtest.h>

#include <climits>

TEST(Pixels, AddUp)
{
    EXPECT_EQ(pixels::Sum(3, 4), 7);
    EXPECT_EQ(pixels::Sum(3, -4), -1);
    EXPECT_EQ(pixels::Sum(1, 2, 3), 6);
    EXPECT_EQ(pixels::Difference(3, 4), -1);
    EXPECT_EQ(pixels::Product(-3, 4), -12);
}

TEST(Pixels, WrapAroundAt32Bits)
{
    EXPECT_EQ(pixels::Sum(INT_MAX, 1), INT_MIN);
    EXPECT_EQ(pixels::Sum(INT_MIN, -1), INT_MAX);
    EXPECT_EQ(pixels::Sum(INT_MAX, INT_MAX, 2), 0);
    EXPECT_EQ(pixels::Difference(INT_MIN, 1), INT_MAX);
    EXPECT_EQ(pixels::Difference(0, INT_MIN), INT_MIN);
    EXPECT_EQ(pixels::Product(INT_MAX, 2), -2);
    EXPECT_EQ(pixels::Product(INT_MIN, -1), INT_MIN);
    EXPECT_EQ(pixels::Product(1 << 16, 1 << 16), 0);
}
