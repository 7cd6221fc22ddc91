#pragma once

#include "reference_layout.h"

#include <support/layoutpanel.h>

#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

/// How wild the numbers of a random tree are.
enum eRandomNumbers
{
    eNumbersUsual, ///< what panels look like
    eNumbersSmall, ///< around zero, where the borders are
    eNumbersHuge,  ///< anything that fits in 32 bits
};

/// A view whose metrics are given.
class CMetricView : public CRecordingView
{
public:
    using CRecordingView::CRecordingView;

    int GetInspectorLeftMargin() override { return m_metrics.m_iInspectorLeft; }
    int GetInspectorRightMargin() override { return m_metrics.m_iInspectorRight; }
    int GetInspectorTopMargin() override { return m_metrics.m_iInspectorTop; }
    int GetInspectorBottomMargin() override { return m_metrics.m_iInspectorBottom; }
    int GetGroupLeftMargin() override { return m_metrics.m_iGroupLeft; }
    int GetGroupRightMargin() override { return m_metrics.m_iGroupRight; }
    int GetGroupTopMargin() override { return m_metrics.m_iGroupTop; }
    int GetGroupBottomMargin() override { return m_metrics.m_iGroupBottom; }
    int GetGroupLabelHeight() override { return m_metrics.m_iGroupLabel; }
    int GetHeightBetweenControl() override { return m_metrics.m_iGap; }

    sReferenceMetrics m_metrics;
};

/// One random tree twice: as plain numbers and as a view with widgets.
class CRandomTree
{
public:
    CRandomTree(unsigned seed, eRandomNumbers numbers);

    CReferenceLayout m_reference;
    CCallLog m_log;
    std::vector<std::unique_ptr<CRecordingWidget>> m_vWidgets;
    CMetricView m_view{m_log};

    /// Gives both another size and mode and lays both out.
    void Layout();

    /// What differs between the two; empty when nothing does.
    std::string Compare();

    /// The tree in words, for the message of a failure.
    std::string Describe() const;

private:
    int Number(int usualLow, int usualHigh);
    bool Chance(int percent);
    void FillLevel(std::vector<sReferenceNode>& nodes, int depth, int& budget);
    sReferenceNode RandomNode(int depth, int& budget);
    sReferenceControl RandomControl();
    std::shared_ptr<sReferenceRequest> RandomRequest();
    void ChooseMetrics();
    void Build(std::vector<sReferenceNode>& nodes, CInspectorView::sInspectorElement* parent);
    void BuildControl(sReferenceControl& control, const std::string& name,
                      CInspectorView::sInspectorElement* parent);

    std::mt19937 m_random;
    eRandomNumbers m_eNumbers;
    int m_iNodes = 0;
    std::vector<std::pair<sReferenceNode*, CInspectorView::sInspectorElement*>> m_vNodes;
    std::vector<std::pair<sReferenceControl*, CInspectorView::sInspectorHolder*>> m_vControls;
};
