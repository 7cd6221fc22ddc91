#include <enumdataelement.h>

#include <support/calls.h>
#include <support/recordingelement.h>
#include <support/recordingwidget.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

using CDefinition = CEnumDataElement::sEnumDefinition;
using CEntries = std::vector<std::pair<std::string, std::string>>;
using CTexts = std::map<std::string, std::string>;

class CTestElement : public CEnumDataElement
{
public:
    using CEnumDataElement::m_bOwnsDefinition;
    using CEnumDataElement::m_pDefinition;
};

class EnumElement : public testing::Test
{
protected:
    std::string Display(const char* value)
    {
        std::string text = "overwritten";
        m_element.GetDisplayString(value, text);
        return text;
    }

    CTestElement m_element;
    CDefinition m_external;
};

} // namespace

TEST_F(EnumElement, HasItsTypeString)
{
    EXPECT_STREQ(m_element.GetType(), "qt.simple.enum");
}

TEST_F(EnumElement, StartsWithoutADefinition)
{
    EXPECT_EQ(m_element.GetDefinition(), nullptr);
    EXPECT_FALSE(m_element.m_bOwnsDefinition);
    EXPECT_EQ(Display("a"), "");
}

TEST_F(EnumElement, HasADefinitionOfTheStatedTypes)
{
    const bool isMap = std::is_same<decltype(CDefinition::m_mapDisplay), CTexts>::value;
    const bool isVector = std::is_same<decltype(CDefinition::m_vEntries), CEntries>::value;
    EXPECT_TRUE(isMap);
    EXPECT_TRUE(isVector);
}

TEST_F(EnumElement, IgnoresEntriesWithoutADefinition)
{
    m_element.AddEnum("a", "Alpha");
    m_element.ClearEnum();
    EXPECT_EQ(m_element.GetDefinition(), nullptr);
    m_element.CreateEnum();
    EXPECT_EQ(m_element.GetDefinition()->m_vEntries, CEntries{});
}

TEST_F(EnumElement, CreatesAnEmptyDefinitionOfItsOwn)
{
    m_element.CreateEnum();
    ASSERT_NE(m_element.GetDefinition(), nullptr);
    EXPECT_TRUE(m_element.m_bOwnsDefinition);
    EXPECT_TRUE(m_element.GetDefinition()->m_mapDisplay.empty());
    EXPECT_TRUE(m_element.GetDefinition()->m_vEntries.empty());
    m_element.AddEnum("a", "Alpha");
    m_element.CreateEnum();
    EXPECT_TRUE(m_element.GetDefinition()->m_mapDisplay.empty());
    EXPECT_TRUE(m_element.GetDefinition()->m_vEntries.empty());
    EXPECT_TRUE(m_element.m_bOwnsDefinition);
}

TEST_F(EnumElement, KeepsEveryEntryAndTheLastTextOfEachValue)
{
    m_element.CreateEnum();
    m_element.AddEnum("a", "Alpha");
    m_element.AddEnum("a", "Alpha");
    EXPECT_EQ(m_element.GetDefinition()->m_mapDisplay, (CTexts{{"a", "Alpha"}}));
    EXPECT_EQ(m_element.GetDefinition()->m_vEntries, (CEntries{{"a", "Alpha"}, {"a", "Alpha"}}));
    m_element.AddEnum("a", "First");
    EXPECT_EQ(Display("a"), "First");
    EXPECT_EQ(m_element.GetDefinition()->m_mapDisplay, (CTexts{{"a", "First"}}));
    EXPECT_EQ(m_element.GetDefinition()->m_vEntries,
              (CEntries{{"a", "Alpha"}, {"a", "Alpha"}, {"a", "First"}}));
}

TEST_F(EnumElement, KeepsEntriesInTheOrderOfTheCalls)
{
    m_element.CreateEnum();
    m_element.AddEnum("b", "Beta");
    m_element.AddEnum("", "Nothing");
    m_element.AddEnum("a", "");
    EXPECT_EQ(m_element.GetDefinition()->m_vEntries,
              (CEntries{{"b", "Beta"}, {"", "Nothing"}, {"a", ""}}));
    EXPECT_EQ(Display(""), "Nothing");
    EXPECT_EQ(Display("a"), "");
}

TEST_F(EnumElement, FindsOnlyTheExactValue)
{
    m_element.CreateEnum();
    m_element.AddEnum("ab", "Both");
    EXPECT_EQ(Display("ab"), "Both");
    EXPECT_EQ(Display("a"), "");
    EXPECT_EQ(Display("abc"), "");
    EXPECT_EQ(Display("AB"), "");
    EXPECT_EQ(Display("Both"), "");
}

TEST_F(EnumElement, ForgetsTheTextsButNotTheEntriesWhenCleared)
{
    m_element.CreateEnum();
    m_element.AddEnum("a", "Alpha");
    m_element.AddEnum("b", "Beta");
    m_element.ClearEnum();
    EXPECT_EQ(Display("a"), "");
    EXPECT_EQ(Display("b"), "");
    EXPECT_EQ(m_element.GetDefinition()->m_vEntries, (CEntries{{"a", "Alpha"}, {"b", "Beta"}}));
}

TEST_F(EnumElement, UsesAnExternalDefinitionWithoutOwningIt)
{
    m_external.m_mapDisplay["x"] = "Ex";
    m_element.SetExternalEnum(&m_external);
    EXPECT_EQ(m_element.GetDefinition(), &m_external);
    EXPECT_FALSE(m_element.m_bOwnsDefinition);
    EXPECT_EQ(Display("x"), "Ex");
    m_element.AddEnum("y", "Why");
    EXPECT_EQ(m_external.m_vEntries, (CEntries{{"y", "Why"}}));
    EXPECT_EQ(m_external.m_mapDisplay, (CTexts{{"x", "Ex"}, {"y", "Why"}}));
    m_element.SetExternalEnum(nullptr);
    EXPECT_EQ(m_element.GetDefinition(), nullptr);
    EXPECT_EQ(Display("x"), "");
}

TEST_F(EnumElement, EmptiesASharedDefinitionForAll)
{
    CEnumDataElement other;
    m_element.SetExternalEnum(&m_external);
    other.SetExternalEnum(&m_external);
    m_element.AddEnum("a", "Alpha");
    std::string text;
    other.GetDisplayString("a", text);
    EXPECT_EQ(text, "Alpha");
    other.ClearEnum();
    EXPECT_EQ(Display("a"), "");
    EXPECT_EQ(m_external.m_vEntries, (CEntries{{"a", "Alpha"}}));
}

// The next three rest on the sanitizers: what is freed twice, too early or never shows there.

TEST_F(EnumElement, FreesItsOwnDefinitionForAnExternalOne)
{
    m_element.CreateEnum();
    m_element.AddEnum("a", "Alpha");
    m_element.SetExternalEnum(&m_external);
    EXPECT_EQ(m_element.GetDefinition(), &m_external);
    {
        CEnumDataElement dying;
        dying.CreateEnum();
        dying.SetExternalEnum(&m_external);
    }
    m_external.m_mapDisplay["still"] = "here";
    EXPECT_EQ(Display("still"), "here");
}

TEST_F(EnumElement, DropsAnExternalDefinitionUntouchedForItsOwn)
{
    m_element.SetExternalEnum(&m_external);
    m_element.AddEnum("a", "Alpha");
    m_element.CreateEnum();
    EXPECT_NE(m_element.GetDefinition(), &m_external);
    EXPECT_EQ(m_external.m_mapDisplay, (CTexts{{"a", "Alpha"}}));
    EXPECT_EQ(m_external.m_vEntries, (CEntries{{"a", "Alpha"}}));
}

TEST_F(EnumElement, SharesAnOwnedDefinitionWithItsCopies)
{
    auto* owner = new CTestElement;
    owner->CreateEnum();
    owner->AddEnum("a", "Alpha");
    owner->SetStrCurrentValue("a");
    {
        CTestElement copy(*owner);
        EXPECT_EQ(copy.GetDefinition(), owner->GetDefinition());
        EXPECT_TRUE(copy.m_bOwnsDefinition);
        EXPECT_EQ(copy.GetStrCurrentValue(), "a");
        CTestElement assigned;
        assigned = *owner;
        EXPECT_EQ(assigned.GetDefinition(), owner->GetDefinition());
        EXPECT_TRUE(assigned.m_bOwnsDefinition);
        // All but one let go of it.
        copy.m_bOwnsDefinition = false;
        assigned.m_bOwnsDefinition = false;
    }
    std::string text;
    owner->GetDisplayString("a", text);
    EXPECT_EQ(text, "Alpha");
    delete owner;
}

TEST_F(EnumElement, GivesItsOwnDefinitionAwayWhenItIsHandedBackAsExternal)
{
    m_element.CreateEnum();
    CDefinition* definition = m_element.GetDefinition();
    m_element.SetExternalEnum(definition);
    EXPECT_FALSE(m_element.m_bOwnsDefinition);
    m_element.AddEnum("a", "Alpha");
    EXPECT_EQ(Display("a"), "Alpha");
    m_element.SetExternalEnum(nullptr);
    delete definition;
}

TEST_F(EnumElement, IgnoresNullTexts)
{
    m_element.CreateEnum();
    m_element.AddEnum(nullptr, "Alpha");
    m_element.AddEnum("a", nullptr);
    EXPECT_TRUE(m_element.GetDefinition()->m_vEntries.empty());
    EXPECT_EQ(Display(nullptr), "");
}

TEST_F(EnumElement, IsASimpleElementInAllElse)
{
    CCallLog log;
    CRecordingTextWidget widget(log);
    TRecordingElement<CEnumDataElement> element(log, "element");
    element.SetDataControl(&widget, nullptr);
    element.Connect();
    EXPECT_EQ(element.GetStrCurrentValue(), "Default");
    widget.m_sText = "not among the values";
    log.Clear();
    element.OnCtrlValueChange();
    EXPECT_EQ(log.Take(), (CCalls{"widget.GetDataAsString()", "element.InternalValueChanged()"}));
    EXPECT_EQ(element.GetStrCurrentValue(), "not among the values");
    element.Disconnect();
    EXPECT_EQ(element.GetStrCurrentValue(), "");
}
