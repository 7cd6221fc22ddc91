#pragma once

#include <support/calllog.h>

#include <inspectorcontroller.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

/// A notice that writes its end to the log.
class CRecordingNotice : public CInspectorController::IDirtyControllerDataInfo
{
public:
    CRecordingNotice(CCallLog& log, std::string name) : m_sName(std::move(name)), m_log(log) {}
    ~CRecordingNotice() override { m_log.Add(m_sName, "~"); }

    std::string m_sName;

private:
    CCallLog& m_log;
};

/// A payload that writes its end to the log.
class CRecordingPayload : public CInspectorController::IControllerData
{
public:
    CRecordingPayload(CCallLog& log, std::string name) : m_sName(std::move(name)), m_log(log) {}
    ~CRecordingPayload() override { m_log.Add(m_sName, "~"); }

    std::string m_sName;

private:
    CCallLog& m_log;
};

/// A host's controller that writes the handlers' calls to the log, with the protected state open.
class CRecordingController : public CInspectorController
{
public:
    using CRecord = sInspectorControllerData;
    using CNotice = IDirtyControllerDataInfo;

    explicit CRecordingController(CCallLog& log);
    CRecordingController(const CRecordingController& other) = default;
    ~CRecordingController() override;

    void BuildInspector() override;
    void RefreshInspector() override;
    void CallCommand(const char* command, unsigned long value) override;
    void HandleDirtyItem(CRecord* record, CNotice* info) override;
    void HandleControllerDirt(std::vector<CNotice*>& dirt) override;

    /// The record of the row that was added as number \p index.
    CRecord* RecordAt(std::size_t index) const;
    /// The record of an element; null when it has none.
    CRecord* RecordOf(const CInspectorDataElement* element) const;

    using CInspectorController::m_bPreview;
    using CInspectorController::m_lItems;
    using CInspectorController::m_mapDirtyItems;
    using CInspectorController::m_pView;
    using CInspectorController::m_vControllerDirt;

    CHook m_fnCallCommand;
    std::function<void(CRecord*, CNotice*)> m_fnHandleDirtyItem;
    std::function<void(std::vector<CNotice*>&)> m_fnHandleControllerDirt;

private:
    CCallLog* m_pLog;
};
