#pragma once

#include <inspectorexport.h>

#include <string>

/// Something that can give its value as text.
///
/// Elements and widgets that carry text implement it as a second base. A party that needs the
/// text of its partner asks for this interface with a run-time cast and must cope with null.
class INSPECTOR_EXPORT ISimpleDataProvider
{
public:
    virtual ~ISimpleDataProvider();

    /// Writes the current value into \p out, replacing what \p out held.
    virtual void GetDataAsString(std::string& out) = 0;
};
