#pragma once

#include <QStringList>

/// The files that were opened or saved last, kept from one run of the program to the next.
class CRecentFiles
{
public:
    /// The newest first; files that are gone are left out.
    static QStringList Get();
    /// Files that come with the program are not remembered.
    static void Add(const QString& path);

    static constexpr int g_iMost = 9;
};
