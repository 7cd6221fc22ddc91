#pragma once

#include <QString>

struct sOperationInfo;

/// What is shown of an operation, for users.
QString TitleOf(const sOperationInfo& info);
/// The first of its categories, "Other" when it has none.
QString CategoryOf(const sOperationInfo& info);
/// Its name and description, for a hint.
QString HelpOf(const sOperationInfo& info);
