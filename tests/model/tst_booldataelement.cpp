#include <booldataelement.h>

#include <qtsimpleboolwidget.h>

#include <support/calls.h>
#include <support/recordingelement.h>
#include <support/recordingwidget.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

class CBox : public CQTSimpleBoolWidget
{
public:
    using CQTSimpleBoolWidget::m_bValue;
};

class BoolElement : public testing::Test
{
protected:
    void SetUp() override
    {
        m_element.SetDataControl(&m_box, nullptr);
        m_log.Clear();
    }

    CCallLog m_log;
    CBox m_box;
    TRecordingElement<CBoolDataElement> m_element{m_log, "element"};
};

const CCalls g_taken = {"element.InternalValueChanged()"};

} // namespace

TEST_F(BoolElement, IsADataElementAndNoProviderOfText)
{
    EXPECT_TRUE((std::is_base_of_v<CInspectorDataElement, CBoolDataElement>));
    EXPECT_FALSE((std::is_base_of_v<ISimpleDataProvider, CBoolDataElement>));
    EXPECT_TRUE(std::is_copy_constructible_v<CBoolDataElement>);
    EXPECT_TRUE(std::is_copy_assignable_v<CBoolDataElement>);
}

TEST_F(BoolElement, HasItsTypeStringAndStartsFalseAndEditable)
{
    EXPECT_STREQ(m_element.GetType(), "qt.bool.data");
    EXPECT_FALSE(m_element.GetValue());
    EXPECT_FALSE(m_element.IsReadOnly());
}

TEST_F(BoolElement, StoresAValueWithoutTellingAnybody)
{
    m_element.SetValue(true);
    EXPECT_TRUE(m_element.GetValue());
    EXPECT_FALSE(m_box.GetValue());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(BoolElement, BecomesFalseWhenItIsConnected)
{
    m_element.SetValue(true);
    m_element.Connect();
    EXPECT_FALSE(m_element.GetValue());
    EXPECT_EQ(m_log.Take(), CCalls{"element.Connect()"});
}

TEST_F(BoolElement, KeepsItsValueWhenItIsDisconnected)
{
    m_element.SetValue(true);
    m_element.Disconnect();
    EXPECT_TRUE(m_element.GetValue());
}

TEST_F(BoolElement, TakesADifferentValueOfItsBoxAndCallsTheHookWithTheValueStored)
{
    bool seen = false;
    m_element.m_fnInternalValueChanged = [&] { seen = m_element.GetValue(); };
    m_box.m_bValue = true;
    m_element.OnCtrlValueChange();
    EXPECT_TRUE(seen);
    EXPECT_EQ(m_log.Take(), g_taken);
    m_box.m_bValue = false;
    m_element.OnCtrlValueChange();
    EXPECT_FALSE(m_element.GetValue());
    EXPECT_EQ(m_log.Take(), g_taken);
}

TEST_F(BoolElement, IgnoresAnEqualValue)
{
    m_element.OnCtrlValueChange();
    m_box.m_bValue = true;
    m_element.SetValue(true);
    m_element.OnCtrlValueChange();
    EXPECT_TRUE(m_element.GetValue());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(BoolElement, TakesTheValueAlsoWhenItIsReadOnly)
{
    m_element.SetReadOnly(true);
    m_box.m_bValue = true;
    m_element.OnCtrlValueChange();
    EXPECT_TRUE(m_element.GetValue());
    EXPECT_EQ(m_log.Take(), g_taken);
}

TEST_F(BoolElement, IgnoresAWidgetOfAnotherClassAndNoWidget)
{
    CRecordingTextWidget other(m_log);
    for (CInspectorDataWidget* widget :
         {static_cast<CInspectorDataWidget*>(&other), static_cast<CInspectorDataWidget*>(nullptr)})
    {
        m_element.SetDataControl(widget, nullptr);
        m_element.SetValue(true);
        m_log.Clear();
        m_element.OnCtrlValueChange();
        EXPECT_TRUE(m_element.GetValue());
        EXPECT_EQ(m_log.GetCalls(), CCalls());
    }
}

TEST_F(BoolElement, AsksTheBoundWidgetOnlyAndNotTheOneThatIsNamed)
{
    CBox named;
    named.m_bValue = true;
    CInspectorDataElement& element = m_element;
    element.OnCtrlValueChange(&named);
    EXPECT_FALSE(m_element.GetValue());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(BoolElement, IsCopiedWithValueFlagAndWidget)
{
    CBoolDataElement source;
    source.SetDataControl(&m_box, nullptr);
    source.SetValue(true);
    source.SetReadOnly(true);
    const auto expectCopy = [this](CBoolDataElement& copy)
    {
        EXPECT_TRUE(copy.GetValue());
        EXPECT_TRUE(copy.IsReadOnly());
        m_box.m_bValue = false;
        copy.OnCtrlValueChange();
        EXPECT_FALSE(copy.GetValue());
    };
    CBoolDataElement constructed(source);
    expectCopy(constructed);
    CBoolDataElement assigned;
    assigned = source;
    expectCopy(assigned);
    EXPECT_TRUE(source.GetValue());
}
