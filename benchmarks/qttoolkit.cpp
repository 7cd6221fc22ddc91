#include "qtpanel.h"
#include "toolkit.h"

#include <QApplication>

int RunWithToolkit(int argc, char** argv, int (*run)(int argc, char** argv))
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return run(argc, argv);
}

const std::vector<sTwin>& AllTwins()
{
    static const std::vector<sTwin> twins{
        {"inspector", MakeInspectorPanel},
        {"form", MakeFormPanel},
        {"tree", MakeTreePanel},
    };
    return twins;
}
