#include "gegl/geglsession.h"
#include "tour/tour.h"
#include "ui/mainwindow.h"
#include "ui/samples.h"
#include "ui/snapshot.h"
#include "ui/theme.h"

#include <qttextencoding.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <cstring>
#include <iostream>

namespace
{

bool IsForPictures(int count, char** arguments)
{
    for (int i = 1; i < count; ++i)
        for (const char* option : {"--screenshot", "--tour"})
            if (std::strncmp(arguments[i], option, std::strlen(option)) == 0)
                return true;
    return false;
}

// Writes the picture of the window once it shows the rendered graph, and ends the program.
void TakeScreenshot(CMainWindow& window, const QString& path)
{
    const auto take = [&window, path]
    {
        const bool good = TakeSnapshot(window).save(path);
        if (!good)
            std::cerr << "cannot write " << path.toStdString() << '\n';
        QCoreApplication::exit(good ? 0 : 1);
    };
    // A moment later everything is laid out.
    constexpr int moment = 100;
    QObject::connect(&window, &CMainWindow::Rendered, &window,
                     [&window, take] { QTimer::singleShot(moment, &window, take); });
}

} // namespace

int main(int argc, char** argv)
{
    // A picture of the window needs no display.
    if (IsForPictures(argc, argv) && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("image_graph"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Edits a graph of image operations."));
    parser.addHelpOption();
    const QCommandLineOption screenshot(QStringLiteral("screenshot"),
                                        QStringLiteral("Write a picture of the window and end."),
                                        QStringLiteral("file"));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        QStringLiteral("Make a list of edits, write a picture after each, and end."),
        QStringLiteral("folder"));
    const QCommandLineOption graph(QStringLiteral("graph"), QStringLiteral("Open this graph."),
                                   QStringLiteral("file"));
    parser.addOptions({screenshot, tour, graph});
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
        if (parser.isSet(screenshot) || parser.isSet(tour))
            return 1;
    }
    window.show();
    if (parser.isSet(tour))
        return CTour(window, parser.value(tour)).Run() ? 0 : 1;
    return QApplication::exec();
}
