#pragma once

#include <support/calls.h>
#include <support/recordingcontroller.h>
#include <support/recordingwidget.h>

#include <qtinspectorview.h>

#include <QPaintEvent>
#include <QRegion>
#include <QScrollBar>

#include <string>

/// The inspector view with its state open, writing what happens to it to the log.
class CTestView : public CQTInspectorView
{
public:
    explicit CTestView(CCallLog& log) : m_log(log) {}

    void UpdateView() override
    {
        m_log.Add("view", "UpdateView");
        CQTInspectorView::UpdateView();
    }

    void RecomputeLayout() override
    {
        m_log.Add("view", "RecomputeLayout", {Sizes()});
        CQTInspectorView::RecomputeLayout();
    }

    void OnToggleShowContent(bool shown) override
    {
        m_log.Add("view", "OnToggleShowContent", {shown ? "true" : "false"});
        CQTInspectorView::OnToggleShowContent(shown);
    }

    void OnPreDraw() override
    {
        m_log.Add("view", "OnPreDraw");
        CQTInspectorView::OnPreDraw();
    }

    void OnContentHeightSet() override
    {
        m_log.Add("view", "OnContentHeightSet", {Sizes()});
        CQTInspectorView::OnContentHeightSet();
    }

    void OffsetControls(int dx, int dy) override
    {
        m_log.Add("view", "OffsetControls", {std::to_string(dx), std::to_string(dy)});
        CQTInspectorView::OffsetControls(dx, dy);
    }

    using CQTInspectorView::m_bPreview;
    using CQTInspectorView::m_colorPreview;
    using CQTInspectorView::m_iContentHeight;
    using CQTInspectorView::m_iInspectorHeight;
    using CQTInspectorView::m_iInspectorWidth;
    using CQTInspectorView::m_iOffsetX;
    using CQTInspectorView::m_iOffsetY;
    using CQTInspectorView::m_lElements;
    using CQTInspectorView::m_pContent;
    using CQTInspectorView::m_pScrollBar;
    using CQTInspectorView::m_sPreviewMessage;
    using CQTInspectorView::SliderValueChanged;

    /// The region of the last paint event.
    QRegion m_regionPainted;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        m_log.Add("view", "paintEvent");
        m_regionPainted = event->region();
        CQTInspectorView::paintEvent(event);
        m_log.Add("view", "painted");
    }

private:
    static std::string Pair(int width, int height)
    {
        return std::to_string(width) + "x" + std::to_string(height);
    }

    /// The widget, what the engine lays out for, and the content widget.
    std::string Sizes() const
    {
        return Pair(width(), height()) + " " + Pair(m_iInspectorWidth, m_iInspectorHeight) + " " +
               Pair(m_pContent->width(), m_pContent->height());
    }

    CCallLog& m_log;
};

/// A control that is a widget of Qt, shows nothing and writes every call to the log.
class CTestControl : public QWidget, public CRecordingWidget
{
public:
    using CRecordingWidget::CRecordingWidget;

    void ResizeWidget(int width, int height) override
    {
        CRecordingWidget::ResizeWidget(width, height);
        resize(width, height);
    }

    void MoveWidget(int x, int y) override
    {
        CRecordingWidget::MoveWidget(x, y);
        move(x, y);
    }

    void Show() override
    {
        CRecordingWidget::Show();
        show();
    }
};

/// A view with its controller. Controls that are only placed belong to the view's content.
struct sTestPanel
{
    using sElement = CInspectorView::sInspectorElement;

    sTestPanel()
    {
        m_controller.SetInspectorView(&m_view);
        m_view.SetController(&m_controller);
    }

    /// Places a control; -1 is a width that follows the layout.
    CTestControl* AddRow(const char* label, int height = 20, sElement* parent = nullptr,
                         int width = -1)
    {
        auto* control = new CTestControl(m_log, label && *label ? label : "row", width, height);
        m_view.AddElement(nullptr, control, label, nullptr, parent);
        return control;
    }

    CCallLog m_log;
    CRecordingController m_controller{m_log};
    CTestView m_view{m_log};
};
