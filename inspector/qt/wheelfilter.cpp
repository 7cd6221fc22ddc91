#include "wheelfilter.h"

#include <QScrollBar>
#include <QWheelEvent>

CWheelFilter::CWheelFilter(QObject& panel, QScrollBar& scrollBar, int pixelsPerNotch)
    : QObject(&panel), m_rScrollBar(scrollBar), m_iPixelsPerNotch(pixelsPerNotch)
{
    panel.installEventFilter(this);
    scrollBar.installEventFilter(this);
}

bool CWheelFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || m_rScrollBar.isHidden())
        return QObject::eventFilter(watched, event);
    const auto* wheel = static_cast<QWheelEvent*>(event);
    int pixels = wheel->pixelDelta().y();
    if (wheel->pixelDelta().isNull())
    {
        const int turned = m_iRemainder + wheel->angleDelta().y() * m_iPixelsPerNotch;
        pixels = turned / QWheelEvent::DefaultDeltasPerStep;
        m_iRemainder = turned % QWheelEvent::DefaultDeltasPerStep;
    }
    m_rScrollBar.setValue(m_rScrollBar.value() - pixels);
    event->accept();
    return true;
}
