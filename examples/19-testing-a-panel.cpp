// A test of a panel: events made by hand, as a user would bring them about. The exit code says
// whether all arrived. With QT_QPA_PLATFORM=offscreen it needs no screen.
#include "support/panelwindow.h"

#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWheelEvent>

#include <string>

class CRow : public CSimpleDataElement
{
public:
    std::string m_sArrived;

protected:
    void InternalValueChanged() override { m_sArrived = m_sValue; }
};

/// A press on the control itself: Qt does not look for a child below the pointer here.
void Click(QWidget& control)
{
    const QPointF at(10, 10);
    QMouseEvent press(QEvent::MouseButtonPress, at, control.mapToGlobal(at.toPoint()),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&control, &press);
}

/// The shared editor, while it is open.
QLineEdit* OpenEditor(const QWidget& window)
{
    auto* editor = window.findChild<QLineEdit*>();
    return editor && editor->isVisible() ? editor : nullptr;
}

void Key(QWidget& receiver, int key, const char* text = "")
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QLatin1String(text));
    QApplication::sendEvent(&receiver, &press);
}

int main(int argc, char** argv)
{
    // The editor in the host's window, not in one of its own: it is found there, and in pictures.
    qputenv("INSPECTOR_EDITOR", "child");
    QApplication application(argc, argv);
    CPlainController controller;
    CPanelWindow window(controller);
    std::vector<std::pair<CRow*, CQTSimpleDataWidget*>> rows;
    for (int i = 0; i < 20; ++i)
    {
        rows.emplace_back(new CRow, new CQTSimpleDataWidget);
        controller.AddItem(rows[i].first, rows[i].second, nullptr);
        window.m_View.AddElement(rows[i].first, rows[i].second, "Value", nullptr, nullptr);
    }
    controller.ConnectDataElements();
    window.show();
    QApplication::processEvents();

    // Click, type and Tab: the first value arrives, and the second row is edited.
    Click(*rows[0].second);
    if (QLineEdit* editor = OpenEditor(window))
    {
        Key(*editor, Qt::Key_7, "7");
        Key(*editor, Qt::Key_Tab);
        Key(*editor, Qt::Key_8, "8");
        Key(*editor, Qt::Key_Return);
    }
    if (rows[0].first->m_sArrived != "7" || rows[1].first->m_sArrived != "8")
        return 1;
    if (OpenEditor(window))
        return 2;

    // A wheel event that is made by hand stays where it is sent: to the view.
    const int before = rows[0].second->y();
    QWheelEvent wheel(QPointF(50, 50), window.mapToGlobal(QPoint(50, 50)), QPoint(),
                      QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&window.m_View, &wheel);
    if (rows[0].second->y() != before - 75)
        return 3;

    window.grab(); // draws everything, and delivers what is queued
    return 0;
}
