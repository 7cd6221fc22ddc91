#include "gegl/geglsession.h"
#include "ui/mainwindow.h"
#include "ui/samples.h"
#include "ui/theme.h"

#include <qttextencoding.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <cstring>
#include <iostream>

namespace
{

bool IsForScreenshot(int count, char** arguments)
{
    for (int i = 1; i < count; ++i)
        if (std::strncmp(arguments[i], "--screenshot", std::strlen("--screenshot")) == 0)
            return true;
    return false;
}

// Writes the picture of the window once it shows the rendered graph, and ends the program.
void TakeScreenshot(CMainWindow& window, const QString& path)
{
    QObject::connect(&window, &CMainWindow::Rendered, &window,
                     [&window, path]
                     {
                         // Two turns of the event loop, so that everything was laid out.
                         QTimer::singleShot(100, &window,
                                            [&window, path]
                                            {
                                                const bool good = window.grab().save(path);
                                                if (!good)
                                                    std::cerr << "cannot write "
                                                              << path.toStdString() << '\n';
                                                QCoreApplication::exit(good ? 0 : 1);
                                            });
                     });
}

} // namespace

int main(int argc, char** argv)
{
    // A picture of the window needs no display.
    if (IsForScreenshot(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("image_graph"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Edits a graph of image operations."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Write a picture of the window and end."),
                                        QStringLiteral("file"));
    const QCommandLineOption graph(QStringLiteral("graph"), QStringLiteral("Open this graph."),
                                   QStringLiteral("file"));
    parser.addOptions({screenshot, graph});
    parser.process(application);

    ApplyTheme(*qApp);
    // The image library speaks UTF-8.
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    const CGeglSession session;
    CMainWindow window;
    if (parser.isSet(screenshot))
        TakeScreenshot(window, parser.value(screenshot));
    const QString path = parser.isSet(graph) ? parser.value(graph) : SamplePaths().value(0);
    if (!window.OpenGraph(path))
    {
        std::cerr << window.GetMessage().toStdString() << '\n';
        if (parser.isSet(screenshot))
            return 1;
    }
    window.show();
    return QApplication::exec();
}
