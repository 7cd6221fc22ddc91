#include "snapshot.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

QPixmap TakeSnapshot(QWidget& window)
{
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    for (QWidget* other : QApplication::topLevelWidgets())
        if (other != &window && other->isVisible())
            painter.drawPixmap(other->mapToGlobal(QPoint(0, 0)) - window.mapToGlobal(QPoint(0, 0)),
                               other->grab());
    return picture;
}
