#include <inspector/view/bounds.h>

#include <support/layoutpanel.h>

#include <gtest/gtest.h>

namespace
{

struct sOwnRequest : CLayoutPanel::CRequest
{
    int GetMinValue(int reference) override { return reference / 4; }
    int GetMaxValue(int reference) override { return reference / 2; }
};

} // namespace

TEST(Bounds, AreNotGivenWithoutARequest)
{
    CLayoutPanel panel;
    const auto* holder = panel.AddControl("a", 30);
    EXPECT_EQ(holder->m_pRequest, nullptr);
    EXPECT_EQ(RequestedMin(*holder, 200), -1);
    EXPECT_EQ(RequestedMax(*holder, 200), -1);
}

TEST(Bounds, FallBackOnTheRequiredWidthAndTheReference)
{
    CLayoutPanel panel;
    const auto* holder = panel.AddControl("a", 30);
    const sBounds bounds = ControlBounds(*holder, 200);
    EXPECT_EQ(bounds.m_iMin, 30);
    EXPECT_EQ(bounds.m_iMax, 200);
}

TEST(Bounds, KeepARequiredWidthOfMinusOne)
{
    CLayoutPanel panel;
    EXPECT_EQ(ControlBounds(*panel.AddControl("a", -1), 200).m_iMin, -1);
}

TEST(Bounds, AskTheWidgetOnlyWhenTheMinimumIsNotGiven)
{
    CLayoutPanel panel;
    auto request = CLayoutPanel::Absolute(50, 80);
    const auto* holder = panel.AddControl("a", 30, nullptr, &request);
    panel.m_log.Clear();
    const sBounds bounds = ControlBounds(*holder, 200);
    EXPECT_EQ(bounds.m_iMin, 50);
    EXPECT_EQ(bounds.m_iMax, 80);
    EXPECT_EQ(panel.m_log.Take(), CCalls{});
}

TEST(Bounds, AreNotGivenWhenTheyResolveToMinusOne)
{
    CLayoutPanel panel;
    auto request = CLayoutPanel::Relative(-1, -1); // -1 % of 100 is -1
    const auto* holder = panel.AddControl("a", 30, nullptr, &request);
    EXPECT_EQ(ControlBounds(*holder, 100).m_iMin, 30);
    EXPECT_EQ(ControlBounds(*holder, 100).m_iMax, 100);
    EXPECT_EQ(ControlBounds(*holder, 99).m_iMin, 0);
    EXPECT_EQ(ControlBounds(*holder, 99).m_iMax, 0);
    EXPECT_EQ(ControlBounds(*holder, 200).m_iMin, -2);
    EXPECT_EQ(ControlBounds(*holder, 200).m_iMax, -2);
}

TEST(Bounds, ComeFromTheTableOfARecordThatAHostStores)
{
    CLayoutPanel panel;
    auto* holder = panel.AddControl("a", 30);
    holder->m_pRequest = new sOwnRequest;
    EXPECT_EQ(ControlBounds(*holder, 200).m_iMin, 50);
    EXPECT_EQ(ControlBounds(*holder, 200).m_iMax, 100);
}

TEST(Bounds, ComeFromABaseRecordWhenAHostHandsInADerivedOne)
{
    CLayoutPanel panel;
    sOwnRequest own;
    own.SetMinValueAbsolute(7);
    const auto* holder = panel.AddControl("a", 30, nullptr, &own);
    EXPECT_EQ(ControlBounds(*holder, 200).m_iMin, 7);
    EXPECT_EQ(ControlBounds(*holder, 200).m_iMax, 200);
}

TEST(Bounds, DoNotFollowTheCallersRecordLaterOn)
{
    CLayoutPanel panel;
    auto request = CLayoutPanel::Absolute(50, 80);
    const auto* holder = panel.AddControl("a", 30, nullptr, &request);
    request.SetMinValueAbsolute(60);
    request.SetMaxValueAbsolute(70);
    EXPECT_EQ(ControlBounds(*holder, 200).m_iMin, 50);
    EXPECT_EQ(ControlBounds(*holder, 200).m_iMax, 80);
}

TEST(Bounds, OfADestroyedWidgetHaveNoRequiredWidth)
{
    CLayoutPanel panel;
    const auto* holder = panel.AddControl("a", 30);
    panel.m_vWidgets.clear();
    EXPECT_EQ(RequiredWidth(*holder), -1);
    EXPECT_EQ(ControlBounds(*holder, 200).m_iMin, -1);
}
