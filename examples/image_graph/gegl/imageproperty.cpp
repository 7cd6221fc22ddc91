#include "imageproperty.h"

#include <algorithm>

const sImageProperty* sOperationInfo::FindProperty(const std::string& name) const
{
    const auto found =
        std::find_if(m_vProperties.begin(), m_vProperties.end(),
                     [&](const sImageProperty& property) { return property.m_sName == name; });
    return found == m_vProperties.end() ? nullptr : &*found;
}
