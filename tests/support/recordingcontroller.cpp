#include "recordingcontroller.h"

#include <support/recordingelement.h>

#include <iterator>

namespace
{

std::string NameOf(CInspectorController::IDirtyControllerDataInfo* notice)
{
    const auto* recording = dynamic_cast<CRecordingNotice*>(notice);
    return recording ? recording->m_sName : "null";
}

/// Rows are named by their payload.
std::string NameOf(CInspectorController::sInspectorControllerData* record)
{
    const auto* recording = dynamic_cast<CRecordingPayload*>(record->m_pData);
    return recording ? recording->m_sName : "row";
}

} // namespace

CRecordingController::CRecordingController(CCallLog& log) : m_pLog(&log)
{
}

CRecordingController::~CRecordingController()
{
    m_pLog->Add("controller", "~");
}

void CRecordingController::BuildInspector()
{
    m_pLog->Add("controller", "BuildInspector");
}

void CRecordingController::RefreshInspector()
{
    m_pLog->Add("controller", "RefreshInspector");
}

void CRecordingController::CallCommand(const char* command, unsigned long value)
{
    m_pLog->Add("controller", "CallCommand", {command, std::to_string(value)});
    CInspectorController::CallCommand(command, value);
    RunHook(m_fnCallCommand);
}

void CRecordingController::HandleDirtyItem(CRecord* record, CNotice* info)
{
    m_pLog->Add("controller", "HandleDirtyItem", {NameOf(record), NameOf(info)});
    if (const auto hook = m_fnHandleDirtyItem)
        hook(record, info);
}

void CRecordingController::HandleControllerDirt(std::vector<CNotice*>& dirt)
{
    std::string names;
    for (CNotice* notice : dirt)
        names += (names.empty() ? "" : " ") + NameOf(notice);
    m_pLog->Add("controller", "HandleControllerDirt", {names});
    if (const auto hook = m_fnHandleControllerDirt)
        hook(dirt);
}

CRecordingController::CRecord* CRecordingController::RecordAt(std::size_t index) const
{
    return *std::next(m_lItems.begin(), static_cast<std::ptrdiff_t>(index));
}

CRecordingController::CRecord*
CRecordingController::RecordOf(const CInspectorDataElement* element) const
{
    for (CRecord* record : m_lItems)
    {
        if (record->m_pElement == element)
            return record;
    }
    return nullptr;
}
