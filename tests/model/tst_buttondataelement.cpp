#include <buttondataelement.h>

#include <support/calls.h>
#include <support/recordingcontroller.h>
#include <support/recordingelement.h>
#include <support/recordingwidget.h>

#include <gtest/gtest.h>

namespace
{

class CDefaultButton : public CButtonDataElement
{
public:
    CDefaultButton() = default; // the default constructor is for derived classes
};

/// Removes the row of the button and only then looks at the command.
class CRemovingController : public CRecordingController
{
public:
    using CRecordingController::CRecordingController;

    void CallCommand(const char* command, unsigned long) override
    {
        RemoveItem(m_pVictim);
        m_sCommand = command;
    }

    CInspectorDataElement* m_pVictim = nullptr;
    std::string m_sCommand;
};

class ButtonElement : public testing::Test
{
protected:
    CCallLog m_log;
    CRecordingController m_controller{m_log};
    CRecordingWidget m_widget{m_log};
    CButtonDataElement m_element{42};
};

} // namespace

TEST_F(ButtonElement, HasItsTypeString)
{
    EXPECT_STREQ(m_element.GetType(), "qt.button.data");
}

TEST_F(ButtonElement, StartsEmptyAndDisabled)
{
    EXPECT_EQ(m_element.GetText(), "");
    EXPECT_FALSE(m_element.GetEnable());
    CDefaultButton other;
    EXPECT_EQ(other.GetText(), "");
    EXPECT_FALSE(other.GetEnable());
}

TEST_F(ButtonElement, OnlyStoresWhatItIsGiven)
{
    m_element.SetDataControl(&m_widget, &m_controller);
    m_element.SetText("Browse");
    m_element.SetCommandString("browse");
    m_element.SetEnable(true);
    EXPECT_EQ(m_element.GetText(), "Browse");
    EXPECT_TRUE(m_element.GetEnable());
    m_element.SetText("");
    EXPECT_EQ(m_element.GetText(), "");
    m_element.SetEnable(false);
    EXPECT_FALSE(m_element.GetEnable());
    EXPECT_EQ(m_log.Take(), CCalls{});
}

TEST_F(ButtonElement, GivesACopyOfItsText)
{
    m_element.SetText("Browse");
    std::string text = m_element.GetText();
    text += "!";
    EXPECT_EQ(m_element.GetText(), "Browse");
}

TEST_F(ButtonElement, SendsItsCommandOncePerPress)
{
    m_element.SetDataControl(&m_widget, &m_controller);
    m_element.SetCommandString("reset");
    m_element.SetEnable(true);
    m_element.OnCtrlValueChange(&m_widget);
    EXPECT_EQ(m_log.Take(), CCalls{"controller.CallCommand(reset, 42)"});
    m_element.OnCtrlValueChange(nullptr); // the widget is not looked at
    EXPECT_EQ(m_log.Take(), CCalls{"controller.CallCommand(reset, 42)"});
}

TEST_F(ButtonElement, SendsAnEmptyCommandToo)
{
    m_element.SetDataControl(&m_widget, &m_controller);
    m_element.SetEnable(true);
    m_element.OnCtrlValueChange(&m_widget);
    m_element.SetCommandString("x");
    m_element.SetCommandString("");
    m_element.OnCtrlValueChange(&m_widget);
    EXPECT_EQ(m_log.Take(),
              (CCalls{"controller.CallCommand(, 42)", "controller.CallCommand(, 42)"}));
}

TEST_F(ButtonElement, SendsNothingWhileItIsDisabled)
{
    m_element.OnCtrlValueChange(&m_widget); // not even bound
    m_element.SetDataControl(&m_widget, &m_controller);
    m_element.SetCommandString("reset");
    m_element.OnCtrlValueChange(&m_widget);
    m_element.SetEnable(true);
    m_element.SetEnable(false);
    m_element.OnCtrlValueChange(&m_widget);
    EXPECT_EQ(m_log.Take(), CCalls{});
}

TEST_F(ButtonElement, SendsItsCommandWhenItIsReadOnly)
{
    m_element.SetDataControl(&m_widget, &m_controller);
    m_element.SetEnable(true);
    m_element.SetReadOnly(true);
    m_element.OnCtrlValueChange(&m_widget);
    EXPECT_EQ(m_log.Count("CallCommand"), 1u);
}

TEST_F(ButtonElement, PassesIdentifiersOf32Bits)
{
    CButtonDataElement element(0xFFFFFFFFul);
    element.SetDataControl(&m_widget, &m_controller);
    element.SetEnable(true);
    element.OnCtrlValueChange(&m_widget);
    EXPECT_EQ(m_log.Take(), CCalls{"controller.CallCommand(, 4294967295)"});
}

TEST_F(ButtonElement, CopiesAllItsMembers)
{
    m_element.SetDataControl(&m_widget, &m_controller);
    m_element.SetText("Reset");
    m_element.SetCommandString("reset");
    m_element.SetEnable(true);
    CButtonDataElement copy(m_element);
    CButtonDataElement assigned(1);
    assigned = m_element;
    for (CButtonDataElement* element : {&copy, &assigned})
    {
        EXPECT_EQ(element->GetText(), "Reset");
        EXPECT_TRUE(element->GetEnable());
        element->OnCtrlValueChange(nullptr);
        EXPECT_EQ(m_log.Take(), CCalls{"controller.CallCommand(reset, 42)"});
    }
}

TEST_F(ButtonElement, CountsNullTextsAsEmpty)
{
    m_element.SetDataControl(&m_widget, &m_controller);
    m_element.SetText(nullptr);
    m_element.SetCommandString(nullptr);
    m_element.SetEnable(true);
    m_element.OnCtrlValueChange(nullptr);
    EXPECT_EQ(m_element.GetText(), "");
    EXPECT_EQ(m_log.Take(), CCalls{"controller.CallCommand(, 42)"});
}

TEST_F(ButtonElement, MayBeRemovedByItsCommandWhichStaysReadable)
{
    CRemovingController controller(m_log);
    auto* element = new CButtonDataElement(7);
    controller.AddItem(element, new CRecordingWidget(m_log, "own"), nullptr);
    element->SetCommandString("a command that is too long to be stored in place");
    element->SetEnable(true);
    controller.m_pVictim = element;
    m_log.Clear();
    element->OnCtrlValueChange(nullptr);
    EXPECT_EQ(m_log.Take(), CCalls{"own.~()"});
    EXPECT_EQ(controller.m_sCommand, "a command that is too long to be stored in place");
}

#ifndef NDEBUG
using ButtonElementDeathTest = ButtonElement;

TEST_F(ButtonElementDeathTest, NamesTheMissingController)
{
    m_element.SetEnable(true);
    EXPECT_DEATH(m_element.OnCtrlValueChange(&m_widget),
                 "CButtonDataElement::OnCtrlValueChange: no controller is bound");
}
#endif
