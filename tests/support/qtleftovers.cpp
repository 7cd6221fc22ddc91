#include <support/qtleftovers.h>

#include <support/qtmessages.h>

#include <qtenumdatawidget.h>
#include <qtsimpledatawidget.h>
#include <qttextencoding.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include <algorithm>
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

const QWidget* FindSharedEditor()
{
    const QWidgetList widgets = QApplication::allWidgets();
    const auto editor =
        std::find_if(widgets.begin(), widgets.end(),
                     [](const QWidget* widget) {
                         return std::strncmp(widget->metaObject()->className(), "CInPlace", 8) == 0;
                     });
    return editor == widgets.end() ? nullptr : *editor;
}

void ExpectNoSharedEditor()
{
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, 0) << "a field was left";
    EXPECT_TRUE(CQTSimpleDataWidget::g_pInPlace == nullptr) << "the line editor was left";
    EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList == nullptr) << "the list was left";
    // Those that were dropped while they were in use are freed a little later.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QElapsedTimer waiting;
    for (waiting.start(); FindSharedEditor() && !waiting.hasExpired(1000);)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    if (const QWidget* editor = FindSharedEditor())
        ADD_FAILURE() << "an editor was left: " << editor->metaObject()->className();
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
