#pragma once

#include <support/calllog.h>

#include <inplaceeditsink.h>

#include <string>
#include <utility>

/// Writes the ends of edits to the log.
class CRecordingSink : public IInPlaceEditSink
{
public:
    CRecordingSink(CCallLog& log, std::string name) : m_sName(std::move(name)), m_log(log) {}

    void FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause) override
    {
        m_sValue = value;
        m_log.Add(m_sName, "FinishValueEdit", {m_sValue, std::to_string(cause)});
        RunHook(m_fnFinishValueEdit);
    }

    std::string m_sValue; ///< as reported last
    CHook m_fnFinishValueEdit;

private:
    std::string m_sName;
    CCallLog& m_log;
};
