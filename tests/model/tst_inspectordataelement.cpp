#include <inspectordataelement.h>

#include <support/calls.h>
#include <support/recordingcontroller.h>
#include <support/recordingelement.h>
#include <support/recordingview.h>
#include <support/recordingwidget.h>

#include <gtest/gtest.h>

namespace
{

/// Three bound rows in a view, as a host sets them up.
class DataElement : public testing::Test
{
protected:
    void SetUp() override
    {
        m_controller.SetInspectorView(&m_view);
        for (int i = 0; i < 3; ++i)
        {
            m_apElement[i] = new CRecordingElement(m_log, "element" + std::to_string(i));
            m_apWidget[i] = new CRecordingWidget(m_log, "widget" + std::to_string(i));
            m_controller.AddItem(m_apElement[i], m_apWidget[i], nullptr);
            m_view.AddElement(m_apElement[i], m_apWidget[i], nullptr, nullptr, nullptr);
        }
        m_log.Clear();
    }

    CCallLog m_log;
    CRecordingView m_view{m_log};
    CRecordingController m_controller{m_log};
    CRecordingElement* m_apElement[3] = {};
    CRecordingWidget* m_apWidget[3] = {};
};

class CBareElement : public CPlainElement
{
public:
    using CInspectorDataElement::InternalValueChanged;
};

} // namespace

TEST_F(DataElement, NumbersTheCausesOfAnEndAsStated)
{
    EXPECT_EQ(CInspectorDataElement::eEndEditCancel, 0);
    EXPECT_EQ(CInspectorDataElement::eEndEditValidate, 1);
    EXPECT_EQ(CInspectorDataElement::eEndEditNext, 2);
    EXPECT_EQ(CInspectorDataElement::eEndEditPrevious, 3);
    EXPECT_EQ(CInspectorDataElement::eEndEditFocusLost, 4);
}

TEST_F(DataElement, IsWritableUntilToldOtherwise)
{
    CPlainElement element;
    EXPECT_FALSE(element.IsReadOnly());
    element.SetReadOnly(true);
    EXPECT_TRUE(element.IsReadOnly());
    element.SetReadOnly(false);
    EXPECT_FALSE(element.IsReadOnly());
}

TEST_F(DataElement, DoesNotTellItsWidgetThatItBecameReadOnly)
{
    m_apElement[0]->SetReadOnly(true);
    EXPECT_TRUE(m_apElement[0]->IsReadOnly());
    EXPECT_EQ(m_log.Take(), CCalls{});
}

TEST_F(DataElement, StoresWidgetAndController)
{
    CRecordingElement element(m_log, "loose");
    element.SetDataControl(m_apWidget[1], &m_controller);
    EXPECT_EQ(element.GetWidget(), m_apWidget[1]);
    EXPECT_EQ(element.GetController(), &m_controller);
    element.SetDataControl(nullptr, nullptr);
    EXPECT_EQ(element.GetWidget(), nullptr);
    EXPECT_EQ(element.GetController(), nullptr);
    EXPECT_EQ(m_log.Take(), (CCalls{"loose.SetDataControl()", "loose.SetDataControl()"}));
}

TEST_F(DataElement, TellsItsWidgetOnceWithoutANoticeWhenItsDataChanged)
{
    m_apElement[1]->UpdateData();
    EXPECT_EQ(m_log.Take(), CCalls{"widget1.OnValueChange(null)"});
}

TEST_F(DataElement, HandsEditingToTheNextRow)
{
    m_apElement[0]->OnEndEditing(m_apWidget[0], CInspectorDataElement::eEndEditNext);
    EXPECT_EQ(m_log.Take(), (CCalls{"element0.OnEndEditing(2)", "view.EnsureVisible(widget1)",
                                    "widget1.StartEditing()"}));
}

TEST_F(DataElement, HandsEditingToThePreviousRow)
{
    m_apElement[2]->OnEndEditing(m_apWidget[2], CInspectorDataElement::eEndEditPrevious);
    EXPECT_EQ(m_log.Take(), (CCalls{"element2.OnEndEditing(3)", "view.EnsureVisible(widget1)",
                                    "widget1.StartEditing()"}));
}

TEST_F(DataElement, StartsFromTheWidgetItIsGivenAndNotFromItsOwn)
{
    m_apElement[0]->OnEndEditing(m_apWidget[1], CInspectorDataElement::eEndEditNext);
    EXPECT_EQ(m_log.Take(), (CCalls{"element0.OnEndEditing(2)", "view.EnsureVisible(widget2)",
                                    "widget2.StartEditing()"}));
    m_apElement[0]->OnEndEditing(m_apWidget[2], CInspectorDataElement::eEndEditPrevious);
    EXPECT_EQ(m_log.Take(), (CCalls{"element0.OnEndEditing(3)", "view.EnsureVisible(widget1)",
                                    "widget1.StartEditing()"}));
}

TEST_F(DataElement, LeavesTheFocusAloneForEveryOtherCause)
{
    for (int cause : {0, 1, 4, 5, -1})
    {
        CPlainElement element; // not even bound
        element.OnEndEditing(m_apWidget[0], CInspectorDataElement::eEndEditCause(cause));
        m_apElement[0]->OnEndEditing(m_apWidget[0], CInspectorDataElement::eEndEditCause(cause));
        EXPECT_EQ(m_log.Take(), CCalls{"element0.OnEndEditing(" + std::to_string(cause) + ")"});
    }
}

TEST_F(DataElement, DoesNothingInItsEmptyOperations)
{
    CBareElement element;
    element.SetDataControl(m_apWidget[0], &m_controller);
    element.Mute();
    element.Unmute();
    element.Connect();
    element.Disconnect();
    element.InternalValueChanged();
    element.OnCtrlValueChange(m_apWidget[0]);
    EXPECT_EQ(m_log.Take(), CCalls{});
    EXPECT_FALSE(element.IsReadOnly());
}

TEST_F(DataElement, SharesWidgetAndControllerWithItsCopies)
{
    m_apElement[0]->SetReadOnly(true);
    const CRecordingElement copy(*m_apElement[0]);
    EXPECT_EQ(copy.GetWidget(), m_apWidget[0]);
    EXPECT_EQ(copy.GetController(), &m_controller);
    EXPECT_TRUE(const_cast<CRecordingElement&>(copy).IsReadOnly());

    CPlainElement assigned;
    assigned = *m_apElement[0];
    EXPECT_TRUE(assigned.IsReadOnly());
    m_log.Clear();
    assigned.UpdateData();
    EXPECT_EQ(m_log.Take(), CCalls{"widget0.OnValueChange(null)"});
}

TEST_F(DataElement, IsDestroyedThroughItsBase)
{
    CInspectorDataElement* element = new CRecordingElement(m_log, "loose");
    delete element;
    EXPECT_EQ(m_log.Take(), CCalls{"loose.~()"});
}

#ifndef NDEBUG
using DataElementDeathTest = DataElement;

TEST_F(DataElementDeathTest, NamesTheMissingPartner)
{
    CPlainElement element;
    EXPECT_DEATH(element.UpdateData(), "CInspectorDataElement::UpdateData: no widget is bound");
    EXPECT_DEATH(element.OnEndEditing(m_apWidget[0], CInspectorDataElement::eEndEditNext),
                 "CInspectorDataElement::OnEndEditing: no controller is bound");
    EXPECT_DEATH(element.OnEndEditing(m_apWidget[0], CInspectorDataElement::eEndEditPrevious),
                 "CInspectorDataElement::OnEndEditing: no controller is bound");
}
#endif
