#pragma once

#include <support/calllog.h>

#include <inspectordatawidget.h>
#include <simpledataprovider.h>

#include <string>
#include <utility>

/// A widget that shows nothing and writes every call to the log.
class CRecordingWidget : public CInspectorDataWidget
{
public:
    explicit CRecordingWidget(CCallLog& log, std::string name = "widget", int requiredWidth = 10,
                              int requiredHeight = 20);
    ~CRecordingWidget() override;

    void SetDataElement(CInspectorDataElement* element) override;
    void InitFromElement() override;
    const char* GetType() override;
    void StartEditing() override;
    void OnValueChange(sValueChangeInfo* info) override;
    void OnTopoChange(sTopoChangeInfo* info) override;
    int GetRequiredWidth() override;
    int GetRequiredHeight(int width) override;
    void ResizeWidget(int width, int height) override;
    void MoveWidget(int x, int y) override;
    void Show() override;
    void Hide() override;

    CInspectorDataElement* GetElement() const { return m_pElement; }

    std::string m_sName;
    int m_iRequiredWidth;
    int m_iRequiredHeight;
    /// When not 0, the given width divided by it is added to the required height.
    int m_iHeightDivisor = 0;
    /// What the layout engine gave last.
    int m_iX = 0;
    int m_iY = 0;
    int m_iWidth = 0;
    int m_iHeight = 0;
    CHook m_fnInitFromElement;
    CHook m_fnStartEditing;
    CHook m_fnOnValueChange;
    CHook m_fnDestroyed;

protected:
    CCallLog* m_pLog;
};

/// A widget that has a text to give.
class CRecordingTextWidget : public CRecordingWidget, public ISimpleDataProvider
{
public:
    using CRecordingWidget::CRecordingWidget;

    void GetDataAsString(std::string& out) override;

    std::string m_sText;
};
