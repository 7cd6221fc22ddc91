#pragma once

#include <inspectorcontroller.h>
#include <inspectordatawidget.h>
#include <qtinspectorview.h>

#include <string>

struct HostPayload : CInspectorController::IControllerData
{
    int m_iId = 0;
};

struct HostNotice : CInspectorController::IDirtyControllerDataInfo
{
};

struct HostValueNotice : CInspectorDataWidget::sValueChangeInfo
{
};

struct HostTopoNotice : CInspectorDataWidget::sTopoChangeInfo
{
};

/// Half of the row, whatever was asked for.
struct HostRequest : CInspectorView::sRequestSize
{
    int GetMaxValue(int reference) override { return reference / 2; }
};

class HostView : public CQTInspectorView
{
public:
    int GetHeightBetweenControl() override { return 3; }
};

/// The layout engine without a toolkit.
class HostEngine : public CInspectorView
{
public:
    void UpdateView() override {}
    void ParentControlToInspector(CInspectorDataWidget*) override {}
};

class HostController : public CInspectorController
{
public:
    void BuildInspector() override {}
    void RefreshInspector() override {}
    void CallCommand(const char* command, unsigned long value) override
    {
        m_sCommand = command;
        m_ulValue = value;
    }
    void HandleDirtyItem(sInspectorControllerData* record, IDirtyControllerDataInfo*) override
    {
        record->m_pElement->UpdateData();
        ++m_iDelivered;
    }
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override {}

    sInspectorControllerData* FirstRow() { return m_lItems.front(); }

    std::string m_sCommand;
    unsigned long m_ulValue = 0;
    int m_iDelivered = 0;
};
