#pragma once

#include <qtstaticwidget.h>

/// A static text that is broken into as many lines as its width asks for.
class CWrappedTextWidget : public CQTStaticWidget
{
    Q_OBJECT

public:
    int GetRequiredHeight(int width) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString Text();
};

/// Paints the colour of a CSwatchElement; a click lets the user pick another.
class CSwatchWidget : public CQTStaticWidget
{
    Q_OBJECT

public:
    void OnValueChange(sValueChangeInfo* info) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};
