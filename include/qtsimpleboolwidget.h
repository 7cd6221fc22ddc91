#pragma once

#include <inspectordatawidget.h>

#include <QWidget>

class CBoolDataElement;

/// A box of 20 by 20 pixels with a cross for true. A press of any mouse button in its columns
/// toggles it, unless the element is read-only.
class INSPECTOR_EXPORT CQTSimpleBoolWidget : public QWidget, public CInspectorDataWidget
{
    Q_OBJECT

public:
    CQTSimpleBoolWidget();
    ~CQTSimpleBoolWidget() override;

    void InitFromElement() override;
    const char* GetType() override; ///< "qt.simple.bool"
    /// Takes the element's value. An element must be bound.
    void OnValueChange(sValueChangeInfo* info) override;
    int GetRequiredWidth() override;           ///< 20
    int GetRequiredHeight(int width) override; ///< 20
    void ResizeWidget(int width, int height) override;
    void MoveWidget(int x, int y) override;
    void Show() override;
    void Hide() override;

    /// The value as shown.
    bool GetValue();

protected:
    /// Draws the box, and the cross for true.
    void paintEvent(QPaintEvent* event) override;
    /// Toggles for a press in the columns of the box.
    void mousePressEvent(QMouseEvent* event) override;

    /// The bound element; null when there is none or it is of another type.
    CBoolDataElement* GetSafeData();

    /// The value as shown.
    bool m_bValue = false;
};
