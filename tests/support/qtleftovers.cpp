#include <support/qtleftovers.h>

#include <support/qtmessages.h>

#include <qtenumdatawidget.h>
#include <qtsimpledatawidget.h>
#include <qttextencoding.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <cstring>

namespace
{

void ExpectNoWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
    {
        if (!window->isVisible())
            continue;
        ADD_FAILURE() << "a window was left visible: " << window->metaObject()->className();
        window->hide();
    }
}

void ExpectNoSharedEditor()
{
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 0) << "a field was left";
    EXPECT_TRUE(CQTSimpleDataWidget::g_pInPlace == nullptr) << "the line editor was left";
    EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList == nullptr) << "the list was left";
    // Those that were dropped while they were in use are freed a little later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets)
    {
        const char* name = widget->metaObject()->className();
        EXPECT_NE(std::strncmp(name, "CInPlace", 8), 0) << "an editor was left: " << name;
    }
}

} // namespace

void CQtLeftovers::OnTestEnd(const testing::TestInfo&)
{
    ExpectNoWindow();
    ExpectNoSharedEditor();
    EXPECT_EQ(CQTTextEncoding::GetEncoding(), CQTTextEncoding::eTextEncodingLatin1)
        << "the text encoding was left changed";
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
    qtmessages::EndTest();
}
