#pragma once

#include <inspectordatawidget.h>

#include <QWidget>

class CStaticDataElement;

/// Draws the text of a CStaticDataElement with the element's flags, in the first 20 pixel rows.
class INSPECTOR_EXPORT CQTStaticWidget : public QWidget, public CInspectorDataWidget
{
    Q_OBJECT

public:
    CQTStaticWidget();
    ~CQTStaticWidget() override;

    /// Does nothing: the element is read when the text is painted.
    void InitFromElement() override;
    const char* GetType() override;            ///< "qt.static"
    int GetRequiredWidth() override;           ///< -1
    int GetRequiredHeight(int width) override; ///< 20
    void ResizeWidget(int width, int height) override;
    void MoveWidget(int x, int y) override;
    void Show() override;
    void Hide() override;

protected:
    /// Draws the text and no background.
    void paintEvent(QPaintEvent* event) override;

    /// The bound element; null when there is none or it is of another type.
    CStaticDataElement* GetSafeData();
};
