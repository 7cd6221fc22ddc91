#include "recordinghost.h"

#include <algorithm>
#include <functional>

CRecordingHost::CRecordingHost()
    : m_pView(std::make_unique<CRecordingView>(m_log)),
      m_pController(std::make_unique<CRecordingController>(m_log))
{
    m_pController->SetInspectorView(m_pView.get());
    m_pView->SetController(m_pController.get());
}

CRecordingHost::~CRecordingHost() = default;

CRecordingHost::sRow CRecordingHost::RegisterRow(const std::string& name)
{
    sRow row;
    row.m_pElement = new CElement(m_log, name + ".element");
    row.m_pWidget = new CRecordingTextWidget(m_log, name + ".widget");
    row.m_pData = new CRecordingPayload(m_log, name + ".data");
    m_pController->AddItem(row.m_pElement, row.m_pWidget, row.m_pData);
    row.m_pRecord = m_pController->m_lItems.back();
    return row;
}

CRecordingHost::sRow CRecordingHost::AddRow(const std::string& name, CNode* parent)
{
    const sRow row = RegisterRow(name);
    m_pView->AddElement(row.m_pElement, row.m_pWidget, name.c_str(), nullptr, parent);
    return row;
}

std::vector<CRecordingHost::sRow> CRecordingHost::AddRowsByAddress(std::size_t count)
{
    std::vector<sRow> rows;
    for (std::size_t i = 0; i < count; ++i)
        rows.push_back(AddRow("row"));
    std::sort(rows.begin(), rows.end(),
              [](const sRow& a, const sRow& b) { return std::less<>()(a.m_pRecord, b.m_pRecord); });
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::string name = "r" + std::to_string(i);
        rows[i].m_pElement->m_sName = name + ".element";
        rows[i].m_pWidget->m_sName = name + ".widget";
        rows[i].m_pData->m_sName = name + ".data";
    }
    m_log.Clear();
    return rows;
}

CRecordingNotice* CRecordingHost::Notice(const std::string& name)
{
    return new CRecordingNotice(m_log, name);
}

CRecordingNotice* CRecordingHost::Dirtify(const sRow& row, const std::string& name)
{
    CRecordingNotice* notice = Notice(name);
    m_pController->DirtifyItem(row.m_pRecord, notice);
    return notice;
}

CCalls CRecordingHost::End(const std::string& name)
{
    return {name + ".element.Disconnect()", name + ".data.~()", name + ".element.~()",
            name + ".widget.~()"};
}
