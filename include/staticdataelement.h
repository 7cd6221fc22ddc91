#pragma once

#include <inspectordataelement.h>

#include <string>

/// A fixed text.
class INSPECTOR_EXPORT CStaticDataElement : public CInspectorDataElement
{
public:
    /// \p flags are the toolkit's alignment and text flags, handed unchanged to its text drawing.
    CStaticDataElement(const char* text, int flags);
    /// A copy has the same text and shares the widget and the controller.
    CStaticDataElement(const CStaticDataElement& other);
    /// Copies the text and shares the widget and the controller from now on.
    CStaticDataElement& operator=(const CStaticDataElement& other);
    ~CStaticDataElement() override;

    const char* GetType() override; ///< "qt.static.data"

    /// Sets the text; null counts as empty. Like all setters it only stores: repaint the widget to
    /// show the change.
    void SetText(const char* text);
    /// The text.
    std::string GetText();
    /// Sets the toolkit's alignment and text flags.
    void SetFlags(int flags);
    /// The toolkit's alignment and text flags.
    int GetFlags();

protected:
    /// For derived classes: no text, no flags.
    CStaticDataElement();

    /// The text.
    std::string m_sText;
    /// The toolkit's alignment and text flags.
    int m_iFlags = 0;
};
