#include "hand.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTest>
#include <QWidget>

namespace
{

constexpr int g_iStepsOfDrag = 8;
constexpr int g_iBreath = 20; ///< in milliseconds

} // namespace

QWidget* CHand::Receiver()
{
    // A window that has just appeared gets the keyboard a little later.
    QTest::qWait(g_iBreath);
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup->focusWidget() ? popup->focusWidget() : popup;
    return QApplication::focusWidget();
}

bool CHand::Move(QWidget* widget, const QPoint& place)
{
    if (!widget)
        return false;
    m_place = widget->mapToGlobal(place);
    QTest::mouseMove(widget, place);
    return true;
}

bool CHand::Click(QWidget* widget, const QPoint& place, Qt::KeyboardModifiers keys)
{
    if (!Move(widget, place))
        return false;
    QTest::mouseClick(widget, Qt::LeftButton, keys, place);
    return true;
}

bool CHand::Click(QWidget* widget)
{
    return widget && Click(widget, widget->rect().center());
}

bool CHand::DoubleClick(QWidget* widget, const QPoint& place)
{
    if (!Move(widget, place))
        return false;
    QTest::mouseDClick(widget, Qt::LeftButton, Qt::NoModifier, place);
    return true;
}

bool CHand::Drag(QWidget* widget, const QPoint& from, const QPoint& to, bool stays)
{
    if (!Move(widget, from))
        return false;
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= g_iStepsOfDrag; ++step)
    {
        const QPoint place = from + (to - from) * step / g_iStepsOfDrag;
        m_place = widget->mapToGlobal(place);
        // Not every version of the test library remembers what it has pressed.
        QMouseEvent event(QEvent::MouseMove, place, m_place, Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }
    return stays || Release(widget, to);
}

bool CHand::Release(QWidget* widget, const QPoint& place)
{
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, place);
    return true;
}

bool CHand::Type(const QString& text)
{
    QWidget* receiver = Receiver();
    if (receiver)
        QTest::keyClicks(receiver, text);
    return receiver;
}

bool CHand::Key(int key, Qt::KeyboardModifiers keys)
{
    QWidget* receiver = Receiver();
    if (!receiver)
        receiver = &m_window;
    QTest::keyClick(receiver, Qt::Key(key), keys);
    return true;
}

void CHand::DrawPointer(QPainter& painter) const
{
    QPainterPath arrow;
    arrow.addPolygon(QPolygonF(
        {{0, 0}, {0, 17}, {4, 13.4}, {6.8, 19.6}, {9.6, 18.4}, {6.9, 12.4}, {12.4, 12.4}, {0, 0}}));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(m_window.mapFromGlobal(m_place));
    painter.setPen(QPen(Qt::white, 1.4));
    painter.setBrush(Qt::black);
    painter.drawPath(arrow);
}
