#include <staticdataelement.h>

#include <support/calls.h>
#include <support/recordingwidget.h>

#include <gtest/gtest.h>

namespace
{

class CDefaultStatic : public CStaticDataElement
{
public:
    CDefaultStatic() = default; // the default constructor is for derived classes
};

} // namespace

TEST(StaticElement, HasItsTypeString)
{
    CStaticDataElement element("text", 0);
    EXPECT_STREQ(element.GetType(), "qt.static.data");
}

TEST(StaticElement, StoresTextAndFlags)
{
    CStaticDataElement element("text", 0x82);
    EXPECT_EQ(element.GetText(), "text");
    EXPECT_EQ(element.GetFlags(), 0x82);
    element.SetText("other");
    element.SetFlags(-1);
    EXPECT_EQ(element.GetText(), "other");
    EXPECT_EQ(element.GetFlags(), -1);
    element.SetText("");
    EXPECT_EQ(element.GetText(), "");
}

TEST(StaticElement, StartsEmptyInADerivedClass)
{
    CDefaultStatic element;
    EXPECT_EQ(element.GetText(), "");
}

TEST(StaticElement, GivesACopyOfItsText)
{
    CStaticDataElement element("text", 0);
    std::string text = element.GetText();
    text += "!";
    EXPECT_EQ(element.GetText(), "text");
}

TEST(StaticElement, TellsNobodyThatItChanged)
{
    CCallLog log;
    CRecordingWidget widget(log);
    CStaticDataElement element("text", 1);
    element.SetDataControl(&widget, nullptr);
    element.SetText("other");
    element.SetFlags(2);
    EXPECT_EQ(log.Take(), CCalls{});
}

TEST(StaticElement, KeepsItsTextWhenItIsConnectedAndDisconnected)
{
    CStaticDataElement element("text", 1);
    element.Connect();
    element.Disconnect();
    EXPECT_EQ(element.GetText(), "text");
    EXPECT_EQ(element.GetFlags(), 1);
}

TEST(StaticElement, DoesNothingWhenItsWidgetIsActivated)
{
    CCallLog log;
    CRecordingWidget widget(log);
    CStaticDataElement element("text", 1);
    element.SetDataControl(&widget, nullptr);
    element.OnCtrlValueChange(&widget);
    EXPECT_EQ(log.Take(), CCalls{});
}

TEST(StaticElement, CopiesAllItsMembers)
{
    CCallLog log;
    CRecordingWidget widget(log);
    CStaticDataElement element("text", 3);
    element.SetReadOnly(true);
    element.SetDataControl(&widget, nullptr);
    CStaticDataElement copy(element);
    CStaticDataElement assigned("", 0);
    assigned = element;
    for (CStaticDataElement* other : {&copy, &assigned})
    {
        EXPECT_EQ(other->GetText(), "text");
        EXPECT_EQ(other->GetFlags(), 3);
        EXPECT_TRUE(other->IsReadOnly());
        other->UpdateData();
        EXPECT_EQ(log.Take(), CCalls{"widget.OnValueChange(null)"});
    }
}

TEST(StaticElement, CountsANullTextAsEmpty)
{
    CStaticDataElement element(nullptr, 0);
    EXPECT_EQ(element.GetText(), "");
    element.SetText("text");
    element.SetText(nullptr);
    EXPECT_EQ(element.GetText(), "");
}
