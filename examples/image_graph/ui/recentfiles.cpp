#include "recentfiles.h"

#include <QFileInfo>
#include <QSettings>

namespace
{

const QString g_sKey = QStringLiteral("recentFiles");

class CSettings : public QSettings
{
public:
    CSettings() : QSettings(IniFormat, UserScope, QStringLiteral("image_graph")) {}
};

} // namespace

QStringList CRecentFiles::Get()
{
    QStringList paths;
    for (const QString& path : CSettings().value(g_sKey).toStringList())
        if (QFileInfo::exists(path))
            paths << path;
    return paths;
}

void CRecentFiles::Add(const QString& path)
{
    if (path.isEmpty() || path.startsWith(QLatin1Char(':')))
        return;
    const QString whole = QFileInfo(path).absoluteFilePath();
    QStringList paths = Get();
    paths.removeAll(whole);
    paths.prepend(whole);
    CSettings().setValue(g_sKey, QStringList(paths.mid(0, g_iMost)));
}
