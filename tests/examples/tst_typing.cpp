#include "windowfixture.h"

#include <canvas/striplayer.h>
#include <inspector/inspectorpanel.h>
#include <ui/palettepopup.h>

#include <QLineEdit>
#include <QSignalSpy>

namespace
{

/// A value is being typed, and none of the keys that are commands elsewhere must be one now.
class CTypingTest : public CWindowFixture
{
protected:
    CTypingTest()
    {
        m_iNode = Document().AddNode("gegl:text", {0, 0});
        Document().AddNode("gegl:checkerboard", {0, 150});
        Canvas().ZoomToOne();
        Canvas().centerOn(100, 100);
        Scene().SelectNodes({m_iNode});
    }

    /// The keys of the commands, and whether one was triggered while they were pressed there.
    void PressAllShortcuts(const std::function<QWidget*()>& openEditor)
    {
        // A command that should not have come may ask something, and would wait for ever.
        QTimer dismiss;
        QObject::connect(&dismiss, &QTimer::timeout,
                         []
                         {
                             if (QWidget* dialog = QApplication::activeModalWidget())
                                 dialog->close();
                         });
        constexpr int often = 50;
        dismiss.start(often);
        for (QAction* command : Commands())
        {
            QWidget* editor = openEditor();
            ASSERT_TRUE(editor);
            const QSignalSpy triggered(command, &QAction::triggered);
            const int keys = command
                                 ->shortcut()[0]
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
                                 .toCombined()
#endif
                ;
            const int modifiers = keys & int(Qt::KeyboardModifierMask);
            QTest::keyClick(editor, Qt::Key(keys & ~modifiers), Qt::KeyboardModifiers(modifiers));
            EXPECT_EQ(triggered.count(), 0) << command->text().toStdString();
        }
        EXPECT_EQ(Graph().GetNodes().size(), 2u);
        EXPECT_TRUE(m_pWindow->isVisible());
    }
    /// Clicks a control and returns what has the keyboard then.
    static QWidget* Open(QWidget* control)
    {
        if (!control)
            return nullptr;
        QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        const auto isOpen = []
        { return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; };
        return QTest::qWaitFor(isOpen, 5000) ? QApplication::focusWidget() : nullptr;
    }

    int m_iNode = 0;
};

} // namespace

TEST_F(CTypingTest, InAFieldOfTheInspectorTriggersNoCommand)
{
    PressAllShortcuts(
        [this]
        { return Open(m_pWindow->GetInspector().findChild<QWidget*>(QStringLiteral("size"))); });
}

TEST_F(CTypingTest, InATextBoxTriggersNoCommand)
{
    auto* box = m_pWindow->GetInspector().findChild<QWidget*>(QStringLiteral("string"));
    ASSERT_TRUE(box);
    ASSERT_TRUE(box->inherits("QTextEdit"));
    PressAllShortcuts(
        [this, box]() -> QWidget*
        {
            m_pWindow->activateWindow();
            box->setFocus();
            return QTest::qWaitFor([box] { return box->hasFocus(); }, 5000) ? box : nullptr;
        });
}

TEST_F(CTypingTest, InANodeTriggersNoCommand)
{
    Document().Pin({m_iNode}, true);
    PressAllShortcuts(
        [this]() -> QWidget*
        {
            QWidget* strip = m_pWindow->GetStrips().FindStrip(m_iNode);
            return strip ? Open(strip->findChild<QWidget*>(QStringLiteral("size"))) : nullptr;
        });
}

TEST_F(CTypingTest, InThePaletteTriggersNoCommand)
{
    PressAllShortcuts(
        [this]() -> QWidget*
        {
            m_pWindow->GetPalette().close();
            m_pWindow->OfferOperations(QPoint(30, 30));
            return m_pWindow->GetPalette().focusWidget();
        });
}

TEST_F(CTypingTest, StartsInTheFirstFieldWithAKey)
{
    Key(Qt::Key_F2);
    const auto isOpen = []
    { return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; };
    ASSERT_TRUE(QTest::qWaitFor(isOpen, 5000));
    const int step = Document().GetUndoStack().index();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("33"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Document().GetUndoStack().index(), step + 1);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Document().GetUndoStack().index(), step);
}
