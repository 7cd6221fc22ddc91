#pragma once

#include <support/calllog.h>

#include <inspectorview.h>

#include <functional>
#include <map>
#include <string>

/// The layout engine with a toolkit side that writes every call to the log, and with its protected
/// operations and state open to the tests.
class CRecordingView : public CInspectorView
{
public:
    explicit CRecordingView(CCallLog& log, std::string name = "view");
    CRecordingView(const CRecordingView& other) = default;
    ~CRecordingView() override;

    void RemoveAll() override;
    void DirtyView() override;
    void UpdateView() override;
    void RecomputeLayout() override;
    void ComputeHoldersWidth() override;
    void ComputeHoldersWidthForPreview() override;
    void EnsureVisible(CInspectorDataWidget* widget) override;
    int GetElementLabelWidth(sInspectorElement* element) override;
    void OnToggleShowContent(bool shown) override;
    void OnContentHeightSet() override;
    void ParentControlToInspector(CInspectorDataWidget* widget) override;
    void PositionControl(sInspectorHolder* holder) override;

    using CInspectorView::BuildPositionHolderListFromContainer;
    using CInspectorView::CreateNewHolder;
    using CInspectorView::GetHolderFromControl;
    using CInspectorView::m_bAlignLabels;
    using CInspectorView::m_bContentShown;
    using CInspectorView::m_bPreview;
    using CInspectorView::m_iContentHeight;
    using CInspectorView::m_iInspectorHeight;
    using CInspectorView::m_iInspectorWidth;
    using CInspectorView::m_iOffsetX;
    using CInspectorView::m_iOffsetY;
    using CInspectorView::m_lElements;
    using CInspectorView::m_pController;
    using CInspectorView::m_setControlHolders;
    using CInspectorView::m_setHolders;
    using CInspectorView::PositionChildrenInContainer;
    using CInspectorView::recBuildListElementToComputeWidth;
    using CInspectorView::recRecomputeLayout;

    std::string m_sName;
    /// Measured label widths by label; the last resort is m_iLabelWidth.
    std::map<std::string, int> m_mapLabelWidths;
    int m_iLabelWidth = 0;
    std::function<void(CInspectorDataWidget*)> m_fnEnsureVisible;
    CHook m_fnOnContentHeightSet;
    CHook m_fnUpdateView;

private:
    CCallLog* m_pLog;
};
