#pragma once

#include <memory>

using GValue = struct _GValue;

/// The value of a property as it is, of any kind: what taking back a change needs. Cheap to copy.
class CImageValue
{
public:
    CImageValue() = default;

    /// Whether both hold the same. Objects other than colours and paths are compared by address.
    bool operator==(const CImageValue& other) const;
    bool operator!=(const CImageValue& other) const { return !(*this == other); }

    /// For the sources of this folder.
    explicit CImageValue(const GValue& value);
    const GValue* Get() const { return m_pValue.get(); }

private:
    std::shared_ptr<const GValue> m_pValue;
};
