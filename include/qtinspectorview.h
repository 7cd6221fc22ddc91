#pragma once

#include <inspectorview.h>

#include <QColor>
#include <QRegion>
#include <QWidget>

#include <memory>
#include <string>

class CLabelMeter;
class QScrollBar;

/// The inspector on the screen: the layout engine in a Qt widget, with a vertical scroll bar.
///
/// The host embeds it like any other widget and calls ResizeInspector whenever its panel changes
/// size. The view must have its controller (SetController) before it is first painted. Controls are
/// children of the content widget; a control whose row still belongs to a controller survives the
/// view, any other is destroyed with it.
///
/// The wheel scrolls by three text rows a notch, wherever the pointer is in the panel.
///
/// A control of the library that is out of sight counts as shown and is placed at once, but has its
/// show, move and resize events when it first comes into sight.
class INSPECTOR_EXPORT CQTInspectorView : public QWidget, public CInspectorView
{
    Q_OBJECT

public:
    /// A widget without parent and with default window flags.
    CQTInspectorView();
    ~CQTInspectorView() override;

    /// Shows a one-line message in the given colour instead of frames and labels; an empty message
    /// shows them again. The controls stay where they are: see ShowContent.
    void SetPreviewMessage(const std::string& message, QColor color);
    /// Whether a message is set.
    bool HasPreviewMessage();

    /// Resizes the panel in pixels and lays it out anew if the size changed; 20 pixels of the width
    /// are kept for the scroll bar. A height of -1 makes the panel as tall as its content.
    void ResizeInspector(int width, int height) override;
    void UpdateView() override;
    /// Scrolls as little as it takes to show the whole control.
    void EnsureVisible(CInspectorDataWidget* widget) override;

    /// These six are the same in preview mode.
    int GetGroupLeftMargin() override;      ///< 5
    int GetGroupRightMargin() override;     ///< 5
    int GetGroupTopMargin() override;       ///< 5
    int GetGroupBottomMargin() override;    ///< 5
    int GetGroupLabelHeight() override;     ///< 14
    int GetHeightBetweenControl() override; ///< 5

    /// The width of the label in the view's font, plus 2; 0 for an empty name. In preview mode the
    /// label ends in "=".
    int GetElementLabelWidth(sInspectorElement* element) override;

    void OnToggleShowContent(bool shown) override;
    void OnContentHeightSet() override;
    void ParentControlToInspector(CInspectorDataWidget* widget) override;

protected:
    /// Delivers the controller's notices, then draws frames, titles and labels, or the message.
    void paintEvent(QPaintEvent* event) override;

protected Q_SLOTS:
    /// Moves the controls to the scroll bar's value.
    void SliderValueChanged(int value);

protected:
    /// Parent of all controls; owned.
    QWidget* m_pContent;
    /// Shown while the content is taller than the panel; owned.
    QScrollBar* m_pScrollBar;
    /// Drawn instead of frames and labels when it is not empty.
    std::string m_sPreviewMessage;
    /// Of the message; invalid at first.
    QColor m_colorPreview;

private:
    void ReleaseControls();
    /// The part of the panel whose pixels, moved, are what a repaint would show after a scroll
    /// step; empty when they are not.
    QRect FindMovablePixels() const;
    /// What a paint event is about.
    struct sExposed
    {
        QRegion m_region;
        QRect m_rect;       ///< around the region
        QRect m_rectAround; ///< as far as letters may stand out
        bool m_bUpright;    ///< letters are not slanted
    };

    bool IsOutOfSight(const sInspectorElement& element, const sExposed& exposed) const;
    void PaintLabel(QPainter& painter, const sExposed& exposed, const sInspectorElement& row);
    void PaintGroup(QPainter& painter, const sExposed& exposed, const sInspectorElement& group);

    std::unique_ptr<CLabelMeter> m_pLabelMeter;
    /// True from a call of UpdateView until the whole panel is painted.
    bool m_bRepaintAsked = false;
};
