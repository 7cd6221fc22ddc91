#pragma once

#include <inspectordatawidget.h>

#include <QRect>
#include <QWidget>

class CButtonDataElement;

/// A push button for a CButtonDataElement: a face centred on its text, in a row 20 pixels high.
///
/// A press of any mouse button on the face calls the element's OnCtrlValueChange, also for a
/// disabled element, which then sends nothing. Until it was painted once the button has no face.
class INSPECTOR_EXPORT CQTButtonWidget : public QWidget, public CInspectorDataWidget
{
    Q_OBJECT

public:
    CQTButtonWidget();
    ~CQTButtonWidget() override;

    /// Does nothing: the element is read when the button is painted.
    void InitFromElement() override;
    const char* GetType() override;            ///< "qt.button"
    int GetRequiredWidth() override;           ///< -1
    int GetRequiredHeight(int width) override; ///< 20
    void ResizeWidget(int width, int height) override;
    void MoveWidget(int x, int y) override;
    void Show() override;
    void Hide() override;

protected:
    /// Draws the face with the application's style and remembers where it is.
    void paintEvent(QPaintEvent* event) override;
    /// Fires for a press on the face.
    void mousePressEvent(QMouseEvent* event) override;

    /// The bound element; null when there is none or it is of another type.
    CButtonDataElement* GetSafeData();

    QRect m_rectButton; ///< the face as last painted
};
