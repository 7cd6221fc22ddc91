#pragma once

#include <QObject>

class QScrollBar;

/// Scrolls the panel by the wheel: a fixed number of pixels a notch, the pixels of a touchpad as
/// they come. Rows leave the wheel to the panel, so it arrives here wherever the pointer is.
class CWheelFilter : public QObject
{
    Q_OBJECT

public:
    CWheelFilter(QObject& panel, QScrollBar& scrollBar, int pixelsPerNotch);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QScrollBar& m_rScrollBar;
    int m_iPixelsPerNotch;
    int m_iRemainder = 0; ///< what wheels with fine steps have turned without moving a pixel yet
};
