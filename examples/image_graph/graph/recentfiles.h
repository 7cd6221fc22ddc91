#pragma once

#include <QStringList>

class QSettings;

/// The graphs that were opened or saved last, the newest first. They are kept in the settings.
class CRecentFiles
{
public:
    /// \p settings is not owned and outlives this.
    explicit CRecentFiles(QSettings& settings) : m_settings(settings) {}

    /// Only the files that are still there.
    QStringList Get() const;
    void Add(const QString& path);
    void Clear();

    static constexpr int g_iCount = 10;

private:
    QSettings& m_settings;
};
