#include <simpledataelement.h>

#include <support/calls.h>
#include <support/recordingelement.h>
#include <support/recordingwidget.h>
#include <support/rowname.h>

#include <gtest/gtest.h>

namespace
{

class CTestElement : public TRecordingElement<CSimpleDataElement>
{
public:
    using CSimpleDataElement::GetSafeControlDataProvider;
    using TRecordingElement::TRecordingElement;
};

class SimpleElement : public testing::Test
{
protected:
    void SetUp() override
    {
        m_element.SetDataControl(&m_widget, nullptr);
        m_log.Clear();
    }

    std::string Text()
    {
        std::string text = "overwritten";
        m_element.GetDataAsString(text);
        return text;
    }

    CCallLog m_log;
    CRecordingTextWidget m_widget{m_log};
    CTestElement m_element{m_log, "element"};
};

const CCalls g_taken = {"widget.GetDataAsString()", "element.InternalValueChanged()"};
const CCalls g_refused = {"widget.GetDataAsString()"};

struct sEdit
{
    const char* m_szName;
    std::string m_sOld;
    std::string m_sNew;
    bool m_bTaken;
};

class SimpleElementEdit : public SimpleElement, public testing::WithParamInterface<sEdit>
{
};

using namespace std::string_literals;

const sEdit g_edits[] = {
    {"EqualTexts", "ab", "ab", false},
    {"BothEmpty", "", "", false},
    {"FirstTextIsAPrefixOfTheSecond", "ab", "abc", true},
    {"SecondTextIsAPrefixOfTheFirst", "abc", "ab", true},
    {"Emptied", "ab", "", true},
    {"Filled", "", "ab", true},
    {"OtherLetter", "ab", "aB", true},
    {"DifferenceBehindAZeroByte", "a\0b"s, "a\0c"s, true},
    {"EqualWithAZeroByte", "a\0b"s, "a\0b"s, false},
    {"ZeroByteAtTheEnd", "a"s, "a\0"s, true},
    {"BytesAbove127", "\xe4", "\xc3\xa4", true},
};

} // namespace

TEST_F(SimpleElement, HasItsTypeString)
{
    EXPECT_STREQ(m_element.GetType(), "qt.simple.data");
}

TEST_F(SimpleElement, StartsEmptyReadsDefaultWhenConnectedAndEmptyWhenDisconnected)
{
    EXPECT_EQ(Text(), "");
    m_element.Connect();
    EXPECT_EQ(Text(), "Default");
    EXPECT_EQ(m_element.GetStrCurrentValue(), "Default");
    m_element.Disconnect();
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(m_log.Take(), (CCalls{"element.Connect()", "element.Disconnect()"}));
}

TEST_F(SimpleElement, OnlyStoresWhatItIsGiven)
{
    m_element.SetStrCurrentValue("value");
    EXPECT_EQ(m_element.GetStrCurrentValue(), "value");
    EXPECT_EQ(Text(), "value");
    EXPECT_EQ(m_log.Take(), CCalls{});
}

TEST_F(SimpleElement, StoresAReadOnlyValueThatTheHostSets)
{
    m_element.SetReadOnly(true);
    m_element.SetStrCurrentValue("value");
    EXPECT_EQ(Text(), "value");
}

TEST_P(SimpleElementEdit, IsTakenWhenTheTextsDiffer)
{
    m_element.SetStrCurrentValue(GetParam().m_sOld);
    m_widget.m_sText = GetParam().m_sNew;
    m_element.OnCtrlValueChange();
    EXPECT_EQ(m_log.Take(), GetParam().m_bTaken ? g_taken : g_refused);
    EXPECT_EQ(m_element.GetStrCurrentValue(), GetParam().m_sNew);
}

INSTANTIATE_TEST_SUITE_P(Texts, SimpleElementEdit, testing::ValuesIn(g_edits), sRowName());

TEST_F(SimpleElement, HasStoredTheTextWhenTheHookRuns)
{
    std::string seen;
    m_element.m_fnInternalValueChanged = [&] { seen = m_element.GetStrCurrentValue(); };
    m_widget.m_sText = "new";
    m_element.OnCtrlValueChange();
    EXPECT_EQ(seen, "new");
    m_element.OnCtrlValueChange();
    EXPECT_EQ(m_log.Count("InternalValueChanged"), 1u);
}

TEST_F(SimpleElement, IgnoresItsWidgetWhileItIsReadOnly)
{
    m_element.SetStrCurrentValue("old");
    m_element.SetReadOnly(true);
    m_widget.m_sText = "new";
    m_element.OnCtrlValueChange();
    EXPECT_EQ(m_log.Take(), CCalls{});
    EXPECT_EQ(Text(), "old");

    m_element.SetReadOnly(false);
    m_element.OnCtrlValueChange();
    EXPECT_EQ(Text(), "new");
}

TEST_F(SimpleElement, DoesNotTakeTheTextWhenTheWidgetIsActivatedAsAWhole)
{
    m_widget.m_sText = "new";
    m_element.OnCtrlValueChange(&m_widget);
    EXPECT_EQ(m_log.Take(), CCalls{});
    EXPECT_EQ(Text(), "");
}

TEST_F(SimpleElement, FindsTheProviderOfItsWidget)
{
    EXPECT_EQ(m_element.GetSafeControlDataProvider(), static_cast<ISimpleDataProvider*>(&m_widget));
    CRecordingWidget silent(m_log, "silent");
    m_element.SetDataControl(&silent, nullptr);
    EXPECT_EQ(m_element.GetSafeControlDataProvider(), nullptr);
    m_element.SetDataControl(nullptr, nullptr);
    EXPECT_EQ(m_element.GetSafeControlDataProvider(), nullptr);
}

TEST_F(SimpleElement, CopiesValueFlagAndWidget)
{
    m_element.SetStrCurrentValue("value");
    m_element.SetReadOnly(true);
    CSimpleDataElement copy(m_element);
    EXPECT_EQ(copy.GetStrCurrentValue(), "value");
    EXPECT_TRUE(copy.IsReadOnly());
    CSimpleDataElement assigned;
    assigned = m_element;
    EXPECT_EQ(assigned.GetStrCurrentValue(), "value");
    EXPECT_TRUE(assigned.IsReadOnly());
    copy.UpdateData();
    EXPECT_EQ(m_log.Take(), CCalls{"widget.OnValueChange(null)"});
}

TEST_F(SimpleElement, MayBeDestroyedByItsHook)
{
    auto* element = new CTestElement(m_log, "dying");
    element->SetDataControl(&m_widget, nullptr);
    element->m_fnInternalValueChanged = [element] { delete element; };
    m_widget.m_sText = "new";
    m_log.Clear();
    element->OnCtrlValueChange();
    EXPECT_EQ(m_log.Take(),
              (CCalls{"widget.GetDataAsString()", "dying.InternalValueChanged()", "dying.~()"}));
}

#ifndef NDEBUG
using SimpleElementDeathTest = SimpleElement;

TEST_F(SimpleElementDeathTest, NamesTheMissingProvider)
{
    CSimpleDataElement unbound;
    EXPECT_DEATH(unbound.OnCtrlValueChange(),
                 "CSimpleDataElement::OnCtrlValueChange: no providing widget is bound");
    CRecordingWidget silent(m_log);
    unbound.SetDataControl(&silent, nullptr);
    EXPECT_DEATH(unbound.OnCtrlValueChange(),
                 "CSimpleDataElement::OnCtrlValueChange: no providing widget is bound");
}
#endif
