#include "qtpanel.h"

#include <QCoreApplication>
#include <QEvent>

void CQtPanel::Paint()
{
    // A window that was just shown must first hear from the platform that it is exposed.
    QCoreApplication::processEvents();
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&Window(), &request);
}
