#pragma once

#include <QString>

#include <string>

// The one place where narrow strings become Qt's strings and back, in the encoding of
// CQTTextEncoding.

/// Reads the whole string, zero bytes included.
QString ToQString(const std::string& text);

/// Writes the string up to its first null character, as everything that leaves an editor does.
std::string ToNarrow(const QString& text);
