#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTest>
#include <QWidget>

#include <utility>

/// Shows a control and counts how often it is repainted.
class CPaintCounter : public QObject
{
public:
    explicit CPaintCounter(QWidget& control)
    {
        control.show();
        if (!QTest::qWaitForWindowExposed(&control))
            m_iPaints = -1000;
        QCoreApplication::processEvents();
        control.installEventFilter(this);
    }

    /// The repaints since the last question.
    int Take()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_iPaints, 0);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        m_iPaints += event->type() == QEvent::Paint;
        return false;
    }

private:
    int m_iPaints = 0;
};
