#include <qt/matrix/cell.h>

#include <inspector/qt/inplaceedit.h>
#include <inspector/qt/inplacelist.h>

#include <qtenumdatawidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QCoreApplication>
#include <QFocusEvent>
#include <QTest>
#include <QTextEdit>

#include <memory>

namespace
{

const char* const g_deaths[] = {"ThisRow", "Neighbour", "AllRows", "Rebuild", "View", "Controller"};
const char* const g_hooks[] = {"InternalValueChanged", "OnCtrlValueChange", "OnEndEditing",
                               "CallCommand",          "HandleDirtyItem",   "HandleControllerDirt",
                               "EnsureVisible",        "OnContentHeightSet"};

bool IsDelivery(eHook hook)
{
    return hook == eHook::HandleDirtyItem || hook == eHook::HandleControllerDirt;
}

/// Whether the row that was edited is gone afterwards.
bool KillsSubject(eDeath death)
{
    return death != eDeath::Neighbour && death != eDeath::View;
}

/// Whether the row behind it is.
bool KillsNeighbour(eDeath death)
{
    return death != eDeath::ThisRow && death != eDeath::View;
}

void Press(QWidget* widget)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, 8));
}

/// Ends an edit by the key or event of a cause, if there is an editor to take it.
void End(QWidget* editor, int cause)
{
    if (!editor)
        return;
    const Qt::Key keys[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab};
    if (cause < 4)
    {
        QTest::keyPress(editor, keys[cause]);
        return;
    }
    QEvent deactivation(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(editor, &deactivation);
}

void EndList(int cause)
{
    CInPlaceList* list = CQTEnumDataWidget::g_pInPlaceList.get();
    if (!list || !list->isVisible() || cause < 4)
    {
        End(list, cause);
        return;
    }
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(),
                      list->visualItemRect(list->item(2)).center());
}

QWidget* Editor()
{
    return CQTSimpleDataWidget::g_pInPlace;
}

/// The value of the element differs from the one shown, so that every end is a change.
void ChangeBehindTheWidget(CMatrixPanel& panel)
{
    dynamic_cast<CSimpleDataElement*>(panel.Element("subject"))->SetStrCurrentValue("behind");
}

/// An edit of the subject in one of the two shared editors.
void RunEditor(CMatrixPanel& panel, eSubject subject, eHook hook, eDeath death, int cause)
{
    ChangeBehindTheWidget(panel);
    panel.Arm(hook, death);
    Press(panel.Widget("subject"));
    const bool isList = subject == eSubject::List;
    QWidget* editor = isList ? CQTEnumDataWidget::g_pInPlaceList.get() : Editor();
    ASSERT_TRUE(editor && editor->isVisible());
    if (!isList)
        QTest::keyClicks(editor, QStringLiteral("12"));
    if (IsDelivery(hook))
    {
        panel.Deliver();
        ASSERT_TRUE(panel.HasStruck());
    }
    if (isList)
        EndList(cause);
    else
        End(Editor(), cause);
    EXPECT_TRUE(panel.HasStruck());

    const int reported = isList && cause > 0 ? 4 : cause;
    const bool diesFirst = IsDelivery(hook) && KillsSubject(death);
    const std::string finish = "subject.FinishValueEdit(" + std::to_string(reported) + ")";
    EXPECT_EQ(panel.m_log.Count("subject.FinishValueEdit"), diesFirst ? 0u : 1u);
    EXPECT_EQ(panel.m_log.Count(finish), diesFirst ? 0u : 1u);
    const bool isLast = hook == eHook::OnEndEditing || hook == eHook::EnsureVisible;
    const bool hearsTheEnd = isLast || !KillsSubject(death);
    EXPECT_EQ(panel.m_log.Count("subject.OnEndEditing"), hearsTheEnd ? 1u : 0u);
}

/// A press on a subject without an editor, while the line editor is open for its neighbour.
void RunPress(CMatrixPanel& panel, eSubject subject, eHook hook, eDeath death, int cause)
{
    if (subject == eSubject::TextBox)
    {
        ChangeBehindTheWidget(panel);
        static_cast<QTextEdit*>(panel.Widget("subject"))->setPlainText(QStringLiteral("typed"));
    }
    panel.m_pView->grab();
    // The cause that the next end without one of its own reports.
    End(Editor(), cause);
    const bool opensItself = hook == eHook::EnsureVisible;
    if (!opensItself)
        Press(panel.Widget("next"));
    ASSERT_EQ(Editor()->isVisible(), !opensItself);
    panel.Arm(hook, death);
    if (subject == eSubject::TextBox)
    {
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(panel.Widget("subject"), &out);
    }
    else if (subject == eSubject::Button)
    {
        QWidget* button = panel.Widget("subject");
        QTest::mousePress(button, Qt::LeftButton, Qt::KeyboardModifiers(), button->rect().center());
    }
    else
        Press(panel.Widget("subject"));
    EXPECT_TRUE(panel.HasStruck());
    End(Editor(), cause);

    const bool isOpen = !KillsNeighbour(death) && (!opensItself || death == eDeath::ThisRow);
    EXPECT_EQ(panel.m_log.Count("next.FinishValueEdit"), isOpen ? 1u : 0u);
    EXPECT_EQ(panel.m_log.Count("next.FinishValueEdit(" + std::to_string(cause) + ")"),
              isOpen ? 1u : 0u);
    EXPECT_EQ(panel.m_log.Count("next.OnEndEditing"), isOpen ? 1u : 0u);
    EXPECT_EQ(panel.m_log.Count("subject"), 0u);
}

/// An edit in the panel as it is after everything.
void UseAfterwards(CMatrixPanel& panel)
{
    // What the ends of the cell opened is closed by whoever has it.
    End(Editor(), 1);
    if (CQTEnumDataWidget::g_pInPlaceList)
        CQTEnumDataWidget::g_pInPlaceList->EndChoice();
    QCoreApplication::processEvents();
    panel.Restore();
    panel.m_log.Clear();
    Press(panel.Widget("prev"));
    ASSERT_TRUE(Editor()->isVisible());
    QTest::keyClicks(Editor(), QStringLiteral("7"));
    QTest::keyClick(Editor(), Qt::Key_Return);
    EXPECT_FALSE(Editor()->isVisible());
    EXPECT_EQ(panel.Value("prev"), "7");
    EXPECT_EQ(panel.m_log.GetCalls(),
              (CCallLog::CCalls{"prev.FinishValueEdit(1)", "prev.OnEndEditing(1)"}));
    panel.m_pView->grab();
}

} // namespace

std::string NameOfCell(const testing::TestParamInfo<CCell>& cell)
{
    const auto [hook, death] = cell.param;
    return std::string(g_deaths[static_cast<int>(death)]) + "In" + g_hooks[static_cast<int>(hook)];
}

void RunCell(eSubject subject, const CCell& cell)
{
    const auto [hook, death] = cell;
    const bool isEditor = subject == eSubject::LineEditor || subject == eSubject::List;
    for (int cause = 0; cause < 5; ++cause)
    {
        SCOPED_TRACE("end " + std::to_string(cause));
        auto panel = std::make_unique<CMatrixPanel>(subject);
        if (isEditor)
            RunEditor(*panel, subject, hook, death, cause);
        else
            RunPress(*panel, subject, hook, death, cause);
        UseAfterwards(*panel);
        // The rows die before what counts them.
        panel->m_pController.reset();
        panel->m_pView.reset();
        EXPECT_GT(panel->m_lives.Born(), 20);
        EXPECT_EQ(panel->m_lives.Alive(), 0);
        EXPECT_EQ(panel->m_lives.DoubleDeaths(), 0);
    }
}
