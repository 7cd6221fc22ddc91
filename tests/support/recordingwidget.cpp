#include "recordingwidget.h"

CRecordingWidget::CRecordingWidget(CCallLog& log, std::string name, int requiredWidth,
                                   int requiredHeight)
    : m_sName(std::move(name)), m_iRequiredWidth(requiredWidth), m_iRequiredHeight(requiredHeight),
      m_pLog(&log)
{
}

CRecordingWidget::~CRecordingWidget()
{
    m_pLog->Add(m_sName, "~");
    RunHook(m_fnDestroyed);
}

void CRecordingWidget::SetDataElement(CInspectorDataElement* element)
{
    m_pLog->Add(m_sName, "SetDataElement", {element ? "element" : "null"});
    CInspectorDataWidget::SetDataElement(element);
}

void CRecordingWidget::InitFromElement()
{
    m_pLog->Add(m_sName, "InitFromElement");
    RunHook(m_fnInitFromElement);
}

const char* CRecordingWidget::GetType()
{
    return "test.recording";
}

void CRecordingWidget::StartEditing()
{
    m_pLog->Add(m_sName, "StartEditing");
    RunHook(m_fnStartEditing);
}

void CRecordingWidget::OnValueChange(sValueChangeInfo* info)
{
    m_pLog->Add(m_sName, "OnValueChange", {info ? std::to_string(info->m_iCode) : "null"});
    RunHook(m_fnOnValueChange);
}

void CRecordingWidget::OnTopoChange(sTopoChangeInfo* info)
{
    m_pLog->Add(m_sName, "OnTopoChange", {info ? std::to_string(info->m_iCode) : "null"});
}

int CRecordingWidget::GetRequiredWidth()
{
    m_pLog->Add(m_sName, "GetRequiredWidth");
    return m_iRequiredWidth;
}

int CRecordingWidget::GetRequiredHeight(int width)
{
    m_pLog->Add(m_sName, "GetRequiredHeight", {std::to_string(width)});
    if (m_iHeightDivisor == 0)
        return m_iRequiredHeight;
    const auto height = static_cast<unsigned>(m_iRequiredHeight);
    return static_cast<int>(height + static_cast<unsigned>(width / m_iHeightDivisor));
}

void CRecordingWidget::ResizeWidget(int width, int height)
{
    m_pLog->Add(m_sName, "ResizeWidget", {std::to_string(width), std::to_string(height)});
    m_iWidth = width;
    m_iHeight = height;
}

void CRecordingWidget::MoveWidget(int x, int y)
{
    m_pLog->Add(m_sName, "MoveWidget", {std::to_string(x), std::to_string(y)});
    m_iX = x;
    m_iY = y;
}

void CRecordingWidget::Show()
{
    m_pLog->Add(m_sName, "Show");
}

void CRecordingWidget::Hide()
{
    m_pLog->Add(m_sName, "Hide");
}

void CRecordingTextWidget::GetDataAsString(std::string& out)
{
    m_pLog->Add(m_sName, "GetDataAsString");
    out = m_sText;
}
