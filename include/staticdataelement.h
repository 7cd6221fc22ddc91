#pragma once

#include <inspectordataelement.h>

#include <string>

/// A fixed text.
class INSPECTOR_EXPORT CStaticDataElement : public CInspectorDataElement
{
public:
    /// \p flags are the toolkit's alignment and text flags, handed unchanged to its text drawing.
    CStaticDataElement(const char* text, int flags);
    CStaticDataElement(const CStaticDataElement& other);
    CStaticDataElement& operator=(const CStaticDataElement& other);
    ~CStaticDataElement() override;

    const char* GetType() override; ///< "qt.static.data"

    /// The setters only store; a null text counts as empty. Dirty the row to show the change.
    void SetText(const char* text);
    std::string GetText();
    void SetFlags(int flags);
    int GetFlags();

protected:
    CStaticDataElement();

    std::string m_sText;
    int m_iFlags = 0;
};
