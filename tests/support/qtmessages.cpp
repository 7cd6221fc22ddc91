#include <support/qtmessages.h>

#include <QMessageLogContext>

#include <gtest/gtest.h>

#include <cstdio>
#include <mutex>
#include <vector>

namespace
{

struct sKnownWarning
{
    QString m_sPart;
    bool m_bRequired;
    bool m_bCame = false;
};

// Qt may warn from any of its threads.
std::mutex g_mutex;
std::vector<sKnownWarning> g_vKnown;

bool IsKnown(const QString& message)
{
    // The tester's session is no matter of the tests.
    if (message.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR")))
        return true;
    // The offscreen platform says so whenever a tool-tip window is shown.
    if (message == QStringLiteral("This plugin does not support raise()"))
        return true;
    // Qt 5 hears late that a window which it gave the keyboard to was hidden meanwhile.
    if (message.startsWith(QStringLiteral("QXcbConnection: XCB error: 8 (BadMatch)")) &&
        message.contains(QStringLiteral("(SetInputFocus)")))
        return true;
    const std::lock_guard<std::mutex> lock(g_mutex);
    bool known = false;
    for (sKnownWarning& warning : g_vKnown)
    {
        if (message.contains(warning.m_sPart))
            known = warning.m_bCame = true;
    }
    return known;
}

void Add(const QString& part, bool required)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_vKnown.push_back({part, required});
}

void HandleMessage(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    if (isWarning && IsKnown(message))
        return;
    if (isWarning)
        ADD_FAILURE() << "Qt warns: " << message.toStdString();
    else
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

} // namespace

void qtmessages::Install()
{
    qInstallMessageHandler(HandleMessage);
}

void qtmessages::Expect(const QString& part)
{
    Add(part, true);
}

void qtmessages::Allow(const QString& part)
{
    Add(part, false);
}

void qtmessages::EndTest()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    for (const sKnownWarning& warning : g_vKnown)
    {
        if (warning.m_bRequired && !warning.m_bCame)
            ADD_FAILURE() << "Qt did not warn: " << warning.m_sPart.toStdString();
    }
    g_vKnown.clear();
}
