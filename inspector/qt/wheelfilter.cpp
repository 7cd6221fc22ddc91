#include "wheelfilter.h"

#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

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
    qint64 pixels = wheel->pixelDelta().y();
    if (wheel->pixelDelta().isNull())
    {
        const qint64 turned = m_iRemainder + qint64(wheel->angleDelta().y()) * m_iPixelsPerNotch;
        pixels = turned / QWheelEvent::DefaultDeltasPerStep;
        m_iRemainder = static_cast<int>(turned % QWheelEvent::DefaultDeltasPerStep);
    }
    const qint64 value = std::clamp<qint64>(m_rScrollBar.value() - pixels, m_rScrollBar.minimum(),
                                            m_rScrollBar.maximum());
    m_rScrollBar.setValue(static_cast<int>(value));
    event->accept();
    return true;
}
