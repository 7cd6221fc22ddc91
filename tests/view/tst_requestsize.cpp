#include <inspectorview.h>

#include <support/rowname.h>

#include <gtest/gtest.h>

#include <climits>
#include <type_traits>

namespace
{

using CRequest = CInspectorView::sRequestSize;

struct sBound
{
    const char* m_szName;
    int m_iType;
    int m_iValue;
    int m_iReference;
    int m_iResolved;
};

class RequestSizeBound : public testing::TestWithParam<sBound>
{
};

const sBound g_bounds[] = {
    {"AbsoluteIsTakenAsItIs", 0, 40, 100, 40},
    {"AbsoluteIgnoresAZeroReference", 0, 40, 0, 40},
    {"AbsoluteIgnoresANegativeReference", 0, 40, -7, 40},
    {"AbsoluteMayBeNegative", 0, -40, 100, -40},
    {"AbsoluteMinusOneStaysMinusOne", 0, -1, 100, -1},
    {"AbsoluteAtTheUpperEnd", 0, INT_MAX, 5, INT_MAX},
    {"AbsoluteAtTheLowerEnd", 0, INT_MIN, 5, INT_MIN},
    {"HalfOfSeven", 1, 50, 7, 3},
    {"HalfOfMinusSeven", 1, 50, -7, -3},
    {"MinusHalfOfSeven", 1, -50, 7, -3},
    {"MinusHalfOfMinusSeven", 1, -50, -7, 3},
    {"HalfOfNothing", 1, 50, 0, 0},
    {"AThirdOfAHundred", 1, 33, 100, 33},
    {"MoreThanAll", 1, 150, 200, 300},
    {"LessThanNothing", 1, -150, 200, -300},
    {"All", 1, 100, 123, 123},
    {"Nothing", 1, 0, 123, 0},
    {"RelativeMinusOneOfLittleIsZero", 1, -1, 99, 0},
    {"RelativeMinusOneOfAHundredIsMinusOne", 1, -1, 100, -1},
    {"RelativeMinusOneOfMuchIsSmall", 1, -1, 250, -2},
    // 50,000 * 50,000 is 2,500,000,000, which wraps around to -1,794,967,296.
    {"TheProductWrapsAround", 1, 50000, 50000, -17949672},
    {"TheProductWrapsAroundAtTheLowerEnd", 1, INT_MIN, -1, -21474836},
    {"TheProductWrapsAroundToZero", 1, INT_MIN, 2, 0},
    {"TypeTwoIsRelative", 2, 50, 7, 3},
    {"TypeMinusOneIsRelative", -1, 50, 7, 3},
};

} // namespace

TEST(RequestSize, NumbersItsTypesAndOptionsAsStated)
{
    EXPECT_EQ(CInspectorView::eRequestSizeAbsolute, 0);
    EXPECT_EQ(CInspectorView::eRequestSizeRelative, 1);
    EXPECT_EQ(CInspectorView::eRequestOptionNoLabel, 1);
    EXPECT_EQ(sizeof(CInspectorView::eRequestSizeType), 4u);
}

TEST(RequestSize, StartsWithoutBoundsAndOptions)
{
    CRequest request;
    EXPECT_EQ(request.m_eMinType, CInspectorView::eRequestSizeAbsolute);
    EXPECT_EQ(request.m_iMin, -1);
    EXPECT_EQ(request.m_eMaxType, CInspectorView::eRequestSizeAbsolute);
    EXPECT_EQ(request.m_iMax, -1);
    EXPECT_EQ(request.GetOptions(), 0);
    for (int reference : {INT_MIN, -100, -1, 0, 1, 100, INT_MAX})
    {
        EXPECT_EQ(request.GetMinValue(reference), -1);
        EXPECT_EQ(request.GetMaxValue(reference), -1);
    }
}

TEST_P(RequestSizeBound, ResolvesAsAMinimum)
{
    CRequest request;
    request.SetMinValue(CInspectorView::eRequestSizeType(GetParam().m_iType), GetParam().m_iValue);
    EXPECT_EQ(request.GetMinValue(GetParam().m_iReference), GetParam().m_iResolved);
    EXPECT_EQ(request.GetMaxValue(GetParam().m_iReference), -1);
}

TEST_P(RequestSizeBound, ResolvesAsAMaximum)
{
    CRequest request;
    request.SetMaxValue(CInspectorView::eRequestSizeType(GetParam().m_iType), GetParam().m_iValue);
    EXPECT_EQ(request.GetMaxValue(GetParam().m_iReference), GetParam().m_iResolved);
    EXPECT_EQ(request.GetMinValue(GetParam().m_iReference), -1);
}

INSTANTIATE_TEST_SUITE_P(Table, RequestSizeBound, testing::ValuesIn(g_bounds), sRowName());

TEST(RequestSize, StoresWhatItsSettersGet)
{
    CRequest request;
    request.SetMinValueRelative(-250);
    EXPECT_EQ(request.m_eMinType, CInspectorView::eRequestSizeRelative);
    EXPECT_EQ(request.m_iMin, -250);
    request.SetMinValueAbsolute(-4);
    EXPECT_EQ(request.m_eMinType, CInspectorView::eRequestSizeAbsolute);
    EXPECT_EQ(request.m_iMin, -4);
    EXPECT_EQ(request.m_iMax, -1);
    request.SetMaxValueRelative(400);
    EXPECT_EQ(request.m_eMaxType, CInspectorView::eRequestSizeRelative);
    EXPECT_EQ(request.m_iMax, 400);
    request.SetMaxValueAbsolute(7);
    EXPECT_EQ(request.m_eMaxType, CInspectorView::eRequestSizeAbsolute);
    EXPECT_EQ(request.m_iMax, 7);
    EXPECT_EQ(request.m_iMin, -4);
    EXPECT_EQ(request.GetOptions(), 0);
}

TEST(RequestSize, ReplacesItsOptionsWhole)
{
    CRequest request;
    request.SetOptions(2);
    EXPECT_EQ(request.GetOptions(), 2);
    request.SetOptions(1);
    EXPECT_EQ(request.GetOptions(), 1);
    request.SetOptions(-1);
    EXPECT_EQ(request.GetOptions(), -1);
}

TEST(RequestSize, IsCopiedWithAllItsFields)
{
    CRequest request;
    request.SetMinValueRelative(10);
    request.SetMaxValueRelative(90);
    request.SetOptions(5);
    const CRequest copy(request);
    CRequest assigned;
    EXPECT_EQ(&(assigned = request), &assigned);
    CRequest taken;
    taken.CopyValue(&request);
    for (const CRequest* other :
         {&copy, const_cast<const CRequest*>(&assigned), const_cast<const CRequest*>(&taken)})
    {
        EXPECT_EQ(other->m_eMinType, CInspectorView::eRequestSizeRelative);
        EXPECT_EQ(other->m_iMin, 10);
        EXPECT_EQ(other->m_eMaxType, CInspectorView::eRequestSizeRelative);
        EXPECT_EQ(other->m_iMax, 90);
        EXPECT_EQ(other->m_iOptions, 5);
    }
}

TEST(RequestSize, AnswersAsTheBaseDoesInACopyOfADerivedRecord)
{
    struct sDerived : CRequest
    {
        int GetMinValue(int reference) override { return reference + 1; }
        int GetMaxValue(int reference) override { return reference + 2; }
    };
    sDerived derived;
    derived.SetMinValueAbsolute(3);
    CRequest& throughTable = derived;
    EXPECT_EQ(throughTable.GetMinValue(10), 11);
    EXPECT_EQ(throughTable.GetMaxValue(10), 12);
    CRequest copy(derived);
    EXPECT_EQ(copy.GetMinValue(10), 3);
    EXPECT_EQ(copy.GetMaxValue(10), -1);
}

TEST(RequestSize, HasATableButNoVirtualDestructor)
{
    EXPECT_TRUE(std::is_polymorphic<CRequest>::value);
    EXPECT_FALSE(std::has_virtual_destructor<CRequest>::value);
}
