#pragma once

#include "imageoperation.h"

#include <QString>

#include <string>

/// The path of the file that an operation reads; empty for none.
QString GetFileToRead(const CImageOperation& operation);

/// What is wrong with an operation that can be told without rendering it: a file that it reads is
/// missing. Empty when nothing is.
std::string FindProblem(const CImageOperation& operation);

/// What is wrong with a file that the image library must not be shown, because the reader that it
/// uses ends the program; empty when it may try. Takes its time.
std::string CheckPicture(const QString& path);
