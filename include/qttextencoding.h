#pragma once

#include <inspectorexport.h>

/// How the narrow strings of elements, labels and messages are read when they are drawn, measured
/// or edited: one choice for the process.
///
/// A host makes it before it builds its first panel. A text that is valid in the chosen encoding
/// comes back byte for byte from an edit that was opened and left unchanged; a character that the
/// encoding does not have comes back as a question mark.
class INSPECTOR_EXPORT CQTTextEncoding
{
public:
    /// How bytes are read as characters.
    enum eTextEncoding
    {
        eTextEncodingLatin1 = 0, ///< one byte a character; the default
        eTextEncodingUtf8 = 1,
    };

    /// Chooses the encoding; what is on the screen already is not read again.
    static void SetEncoding(eTextEncoding encoding);
    /// The encoding in use.
    static eTextEncoding GetEncoding();
};
