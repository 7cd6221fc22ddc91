#include "panelfixture.h"

#include <qtbuttonwidget.h>
#include <qtenumdatawidget.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>

#include <QSignalSpy>
#include <QTest>

namespace
{

constexpr auto g_eValidate = CInspectorDataElement::eEndEditValidate;

class CPanel : public CPanelFixture
{
protected:
    CQTSimpleDataWidget& Field(const char* property)
    {
        return *Controls<CQTSimpleDataWidget>(property).at(0);
    }

    std::string Shown(const char* property)
    {
        std::string text;
        Field(property).GetDataAsString(text);
        return text;
    }

    QString LastMessage(const QSignalSpy& messages)
    {
        return messages.isEmpty() ? QString() : messages.last().at(0).toString();
    }

    /// The captions of the groups, in their order.
    std::vector<std::string> Groups()
    {
        std::vector<std::string> names;
        for (const CInspectorView::sInspectorElement& node :
             *m_pPanel->GetView()->GetListElements())
            if (node.m_iKind == CInspectorView::eElementGroup)
                names.push_back(node.m_sName);
        return names;
    }
};

std::size_t ControlCount(const sImageProperty& property)
{
    switch (property.m_eKind)
    {
    case ePropertyColor:
        return 5;
    case ePropertyFile:
        return 2;
    default:
        return 1;
    }
}

void CountControls(const CInspectorView::sInspectorHolder& holder, std::size_t& count)
{
    count += holder.m_pWidget != nullptr;
    for (const CInspectorView::sInspectorHolder* child : holder.m_lChildren)
        CountControls(*child, count);
}

void CountControls(const std::list<CInspectorView::sInspectorElement>& nodes, std::size_t& count)
{
    for (const CInspectorView::sInspectorElement& node : nodes)
    {
        if (node.m_pHolder)
            CountControls(*node.m_pHolder, count);
        CountControls(node.m_lChildren, count);
    }
}

} // namespace

TEST_F(CPanel, IsBuiltForEveryOperation)
{
    for (const sOperationInfo& info : GetOperationCatalog())
    {
        const testing::ScopedTrace trace(__FILE__, __LINE__, info.m_sName);
        Show(info.m_sName);
        std::size_t expected = 1; // the note
        expected += !info.m_sDescription.empty();
        expected += !info.m_vProperties.empty(); // the reset button
        for (const sImageProperty& property : info.m_vProperties)
            expected += ControlCount(property);
        std::size_t count = 0;
        CountControls(*m_pPanel->GetView()->GetListElements(), count);
        EXPECT_EQ(count, expected);
        EXPECT_FALSE(m_pPanel->GetView()->HasPreviewMessage());
        EXPECT_FALSE(m_pPanel->grab().isNull());
    }
}

TEST_F(CPanel, HasAGroupForEachKindOfProperty)
{
    Show("gegl:text");
    EXPECT_EQ(Groups(), (std::vector<std::string>{"Numbers", "Colours", "Text"}));
    Show("gegl:gaussian-blur");
    EXPECT_EQ(Groups(), (std::vector<std::string>{"Numbers", "Options"}));
    Show("gegl:load");
    EXPECT_EQ(Groups(), (std::vector<std::string>{"Text", "Files", "Other"}));
}

TEST_F(CPanel, ClampsANumberOutOfRangeAndSaysSo)
{
    Show("gegl:gaussian-blur");
    const QSignalSpy messages(m_pPanel.get(), &CInspectorPanel::Message);
    Field("std-dev-x").FinishValueEdit("2000", g_eValidate);
    Deliver();
    EXPECT_EQ(Shown("std-dev-x"), "1500");
    EXPECT_EQ(Value("std-dev-x"), "1500");
    EXPECT_EQ(LastMessage(messages),
              QStringLiteral("Size X: 2000 is above 1500, which was taken instead."));
}

TEST_F(CPanel, ShowsTheOldValueAgainForWhatIsNotANumber)
{
    Show("gegl:gaussian-blur");
    const QSignalSpy messages(m_pPanel.get(), &CInspectorPanel::Message);
    Field("std-dev-x").FinishValueEdit("wide", g_eValidate);
    Deliver();
    EXPECT_EQ(Shown("std-dev-x"), "1.5");
    EXPECT_EQ(Value("std-dev-x"), "1.5");
    EXPECT_EQ(LastMessage(messages),
              QStringLiteral("Size X: 'wide' is not a number; the old value stays."));
    Field("std-dev-x").FinishValueEdit("3", g_eValidate);
    EXPECT_EQ(LastMessage(messages), QString());
}

TEST_F(CPanel, ShowsWhatTheOperationMadeOfAText)
{
    Show("gegl:gaussian-blur");
    Field("std-dev-x").FinishValueEdit(" 2,50 ", g_eValidate);
    Deliver();
    EXPECT_EQ(Shown("std-dev-x"), "2.5");
}

TEST_F(CPanel, ResetsTheOperationThroughTheDirtyQueue)
{
    Show("gegl:gaussian-blur");
    Field("std-dev-x").FinishValueEdit("40", g_eValidate);
    Controls<CQTEnumDataWidget>("filter").at(0)->FinishValueEdit("iir", g_eValidate);
    m_pPanel->grab(); // a button has no face until it is painted
    const auto buttons = m_pPanel->findChildren<CQTButtonWidget*>();
    ASSERT_EQ(buttons.size(), 1);
    QTest::mouseClick(buttons[0], Qt::LeftButton, Qt::NoModifier,
                      QPoint(buttons[0]->width() / 2, 10));
    EXPECT_EQ(Value("std-dev-x"), "1.5");
    EXPECT_EQ(Value("filter"), "auto");
    EXPECT_EQ(Shown("std-dev-x"), "40") << "the rows wait for the next painting";
    m_pPanel->grab();
    EXPECT_EQ(Shown("std-dev-x"), "1.5");
}

TEST_F(CPanel, ShowsAMessageWhenNothingIsSelected)
{
    EXPECT_TRUE(m_pPanel->GetView()->HasPreviewMessage());
    Show("gegl:gaussian-blur");
    EXPECT_FALSE(m_pPanel->GetView()->HasPreviewMessage());
    m_pPanel->ShowNodes({});
    EXPECT_TRUE(m_pPanel->GetView()->HasPreviewMessage());
    EXPECT_TRUE(m_pPanel->findChildren<CQTSimpleDataWidget*>().isEmpty());
}

TEST_F(CPanel, FollowsItsOwnSize)
{
    Show("gegl:gaussian-blur");
    m_pPanel->grab();
    const int narrow = Field("std-dev-x").width();
    m_pPanel->resize(600, 700);
    m_pPanel->grab();
    EXPECT_EQ(m_pPanel->GetView()->width(), m_pPanel->GetView()->parentWidget()->width());
    EXPECT_GT(Field("std-dev-x").width(), narrow);
}

TEST_F(CPanel, BeginsTheControlsOfAllGroupsInOneColumn)
{
    Show("gegl:gaussian-blur");
    m_pPanel->grab();
    EXPECT_EQ(Field("std-dev-x").x(), Controls<CQTEnumDataWidget>("filter").at(0)->x());
    EXPECT_EQ(Field("std-dev-x").x(), Controls<CQTSimpleBoolWidget>("clip-extent").at(0)->x());
}

TEST_F(CPanel, FollowsUndoAndRedoThroughTheDirtyQueue)
{
    Show("gegl:gaussian-blur");
    QUndoStack& stack = m_document.GetUndoStack();
    Field("std-dev-x").FinishValueEdit("40", g_eValidate);
    Controls<CQTSimpleBoolWidget>("clip-extent").at(0)->grab();
    EXPECT_EQ(stack.undoText(), QStringLiteral("Set Size X"));
    stack.undo();
    EXPECT_EQ(Shown("std-dev-x"), "40") << "the rows wait for the next painting";
    m_pPanel->grab();
    EXPECT_EQ(Shown("std-dev-x"), "1.5");
    stack.redo();
    m_pPanel->grab();
    EXPECT_EQ(Shown("std-dev-x"), "40");
}

TEST_F(CPanel, ShowsAnEmptyTextAgainAfterUndo)
{
    Show("gegl:load");
    Field("path").FinishValueEdit("/tmp/a.png", g_eValidate);
    m_document.GetUndoStack().undo();
    Deliver();
    EXPECT_EQ(Shown("path"), "");
}

TEST_F(CPanel, LeavesAnUndoneValueWhenNothingWasTyped)
{
    Show("gegl:gaussian-blur");
    m_pPanel->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_pPanel.get()));
    CQTSimpleDataWidget& field = Field("std-dev-x");
    field.FinishValueEdit("40", g_eValidate);
    Deliver();
    const auto edit = [&](const char* keys)
    {
        QTest::mouseClick(&field, Qt::LeftButton);
        QLineEdit* editor = Editor();
        ASSERT_TRUE(editor);
        m_document.GetUndoStack().undo();
        Deliver();
        QTest::keyClicks(editor, QString::fromLatin1(keys));
        QTest::keyClick(editor, Qt::Key_Return);
        Deliver();
    };
    edit("");
    EXPECT_EQ(Value("std-dev-x"), "1.5");
    EXPECT_EQ(Shown("std-dev-x"), "1.5");
    EXPECT_TRUE(m_document.GetUndoStack().canRedo()) << "an edit without a change is no step";
    m_document.GetUndoStack().redo();
    edit("7");
    EXPECT_EQ(Value("std-dev-x"), "7") << "what was typed counts";
}

TEST_F(CPanel, UndoesLettersWhileAFieldIsOpenAndValuesOtherwise)
{
    Show("gegl:gaussian-blur");
    m_pPanel->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_pPanel.get()));
    Field("std-dev-x").FinishValueEdit("40", g_eValidate);
    Deliver();
    QTest::mouseClick(&Field("std-dev-x"), Qt::LeftButton);
    QLineEdit* editor = Editor();
    ASSERT_TRUE(editor);
    QTest::keyClicks(editor, QStringLiteral("25"));
    EXPECT_EQ(editor->text(), QStringLiteral("25"));
    QTest::keyClick(editor, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor->text(), QStringLiteral("40"));
    EXPECT_EQ(Value("std-dev-x"), "40");
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_EQ(Value("std-dev-x"), "40");
}

TEST_F(CPanel, ForgetsNodesThatAreRemoved)
{
    Show("gegl:gaussian-blur");
    m_document.RemoveNodes({m_iNode});
    EXPECT_TRUE(m_pPanel->findChildren<CQTSimpleDataWidget*>().isEmpty());
    m_document.GetUndoStack().undo();
    m_pPanel->ShowNodes({m_iNode});
    EXPECT_EQ(Shown("std-dev-x"), "1.5");
    m_document.Clear();
    EXPECT_TRUE(m_pPanel->findChildren<CQTSimpleDataWidget*>().isEmpty());
}

TEST_F(CPanel, SurvivesTheRemovalOfTheNodeThatIsBeingEdited)
{
    Show("gegl:gaussian-blur");
    m_pPanel->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_pPanel.get()));
    QTest::mouseClick(&Field("std-dev-x"), Qt::LeftButton);
    ASSERT_TRUE(Editor());
    QTest::keyClicks(Editor(), QStringLiteral("25"));
    m_document.RemoveNodes({m_iNode});
    m_pPanel->grab();
    m_document.GetUndoStack().undo();
    EXPECT_EQ(Value("std-dev-x"), "1.5");
}
