#pragma once

#include "imageproperty.h"

/// Every operation that the library lists, by name. Read once, at the first call; needs a
/// CGeglSession.
const std::vector<sOperationInfo>& GetOperationCatalog();

/// The operation of that name, also of an old name of it; null when there is none.
const sOperationInfo* FindOperation(const std::string& name);
