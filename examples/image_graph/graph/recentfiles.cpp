#include "recentfiles.h"

#include <QFileInfo>
#include <QSettings>

namespace
{

const QString g_sKey = QStringLiteral("recentFiles");

} // namespace

QStringList CRecentFiles::Get() const
{
    QStringList found;
    const QStringList paths = m_settings.value(g_sKey).toStringList();
    for (const QString& path : paths)
        if (QFileInfo::exists(path))
            found += path;
    return found;
}

void CRecentFiles::Add(const QString& path)
{
    const QString full = QFileInfo(path).absoluteFilePath();
    QStringList paths = m_settings.value(g_sKey).toStringList();
    paths.removeAll(full);
    paths.prepend(full);
    m_settings.setValue(g_sKey, QStringList(paths.mid(0, g_iCount)));
}

void CRecentFiles::Clear()
{
    m_settings.remove(g_sKey);
}
