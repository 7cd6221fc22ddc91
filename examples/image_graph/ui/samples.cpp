#include "samples.h"

#include <QFileInfo>

// Outside of every namespace, as Qt wants it.
static void UseResources()
{
    Q_INIT_RESOURCE(samples);
}

QStringList SamplePaths()
{
    UseResources();
    QStringList paths;
    for (const char* name : {"lake-at-dusk", "dusk-mountains", "halftone-title", "kaleidoscope"})
        paths << QStringLiteral(":/samples/%1.xml").arg(QLatin1String(name));
    return paths;
}

QString SampleTitle(const QString& path)
{
    QString title = QFileInfo(path).completeBaseName();
    title.replace(QLatin1Char('-'), QLatin1Char(' '));
    title.replace(0, 1, title.left(1).toUpper());
    return title;
}
