#pragma once

#include <inspectordataelement.h>

/// Receives the end of an in-place edit.
class INSPECTOR_EXPORT IInPlaceEditSink
{
public:
    virtual ~IInPlaceEditSink();

    /// Called once for every edit, with the text it ended with (in the encoding of CQTTextEncoding)
    /// and the reason. A cancelled edit reports the text it started with.
    virtual void FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause) = 0;
};
