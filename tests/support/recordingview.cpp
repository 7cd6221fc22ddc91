#include "recordingview.h"

#include <support/recordingwidget.h>

#include <utility>

namespace
{

std::string NameOf(CInspectorDataWidget* widget)
{
    const auto* recording = dynamic_cast<CRecordingWidget*>(widget);
    return recording ? recording->m_sName : "null";
}

} // namespace

CRecordingView::CRecordingView(CCallLog& log, std::string name)
    : m_sName(std::move(name)), m_pLog(&log)
{
}

CRecordingView::~CRecordingView()
{
    m_pLog->Add(m_sName, "~");
}

void CRecordingView::RemoveAll()
{
    m_pLog->Add(m_sName, "RemoveAll");
    CInspectorView::RemoveAll();
}

void CRecordingView::DirtyView()
{
    m_pLog->Add(m_sName, "DirtyView");
    CInspectorView::DirtyView();
}

void CRecordingView::UpdateView()
{
    m_pLog->Add(m_sName, "UpdateView");
    RunHook(m_fnUpdateView);
}

void CRecordingView::RecomputeLayout()
{
    m_pLog->Add(m_sName, "RecomputeLayout");
    CInspectorView::RecomputeLayout();
}

void CRecordingView::ComputeHoldersWidth()
{
    m_pLog->Add(m_sName, "ComputeHoldersWidth");
    CInspectorView::ComputeHoldersWidth();
}

void CRecordingView::ComputeHoldersWidthForPreview()
{
    m_pLog->Add(m_sName, "ComputeHoldersWidthForPreview");
    CInspectorView::ComputeHoldersWidthForPreview();
}

void CRecordingView::EnsureVisible(CInspectorDataWidget* widget)
{
    m_pLog->Add(m_sName, "EnsureVisible", {NameOf(widget)});
    CInspectorView::EnsureVisible(widget);
    if (const auto hook = m_fnEnsureVisible)
        hook(widget);
}

int CRecordingView::GetElementLabelWidth(sInspectorElement* element)
{
    m_pLog->Add(m_sName, "GetElementLabelWidth", {element->m_sName});
    const auto known = m_mapLabelWidths.find(element->m_sName);
    return known == m_mapLabelWidths.end() ? m_iLabelWidth : known->second;
}

void CRecordingView::OnToggleShowContent(bool shown)
{
    m_pLog->Add(m_sName, "OnToggleShowContent", {shown ? "true" : "false"});
    CInspectorView::OnToggleShowContent(shown);
}

void CRecordingView::OnContentHeightSet()
{
    m_pLog->Add(m_sName, "OnContentHeightSet");
    CInspectorView::OnContentHeightSet();
    RunHook(m_fnOnContentHeightSet);
}

void CRecordingView::ParentControlToInspector(CInspectorDataWidget* widget)
{
    m_pLog->Add(m_sName, "ParentControlToInspector", {NameOf(widget)});
}

void CRecordingView::PositionControl(sInspectorHolder* holder)
{
    m_pLog->Add(m_sName, "PositionControl", {NameOf(holder->GetWidget())});
    CInspectorView::PositionControl(holder);
}
