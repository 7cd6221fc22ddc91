#include <simpledataprovider.h>

ISimpleDataProvider::~ISimpleDataProvider() = default;
