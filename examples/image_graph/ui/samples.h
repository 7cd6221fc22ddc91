#pragma once

#include <QString>
#include <QStringList>

/// The graphs that come with the program; the first is opened when nothing else is asked for.
QStringList SamplePaths();
QString SampleTitle(const QString& path);
