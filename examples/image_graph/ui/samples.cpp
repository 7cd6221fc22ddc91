#include "samples.h"

#include <QDir>
#include <QFileInfo>

QStringList SamplePaths()
{
    QStringList paths;
    const QDir folder(QStringLiteral(":/samples"));
    for (const QString& name : folder.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name))
        paths << folder.filePath(name);
    return paths;
}

QString SampleTitle(const QString& path)
{
    QString title = QFileInfo(path).completeBaseName();
    title.replace(QLatin1Char('-'), QLatin1Char(' '));
    title.replace(0, 1, title.left(1).toUpper());
    return title;
}
