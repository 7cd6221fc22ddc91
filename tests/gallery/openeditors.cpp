#include "openeditors.h"

#include "samplepanel.h"

#include <qtenumdatawidget.h>
#include <qtsimpledatawidget.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>

namespace
{

/// Shows the panel: an editor floats over what is on the screen.
void Show(CSamplePanel& panel, int height)
{
    panel.m_View.ResizeInspector(320, height);
    panel.m_View.show();
    QApplication::processEvents();
}

/// The panel with the editor that floats in it, which is closed again.
template <class Editor>
QImage DrawAndClose(CSamplePanel& panel)
{
    QApplication::processEvents();
    QImage image = panel.Draw();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(panel.m_View.findChild<Editor*>(), &escape);
    return image;
}

} // namespace

QImage DrawOpenEditor()
{
    CSamplePanel panel;
    auto* group = panel.Group("Transform");
    panel.Text("Pivot", "Centre", group);
    panel.Text("Angle", "45", group);
    Show(panel, -1);
    panel.m_View.findChild<CQTSimpleDataWidget*>()->StartEditing();
    return DrawAndClose<QLineEdit>(panel);
}

QImage DrawOpenList()
{
    CSamplePanel panel;
    auto* group = panel.Group("Choice");
    panel.Enum("Blend mode", "multiply", group);
    Show(panel, 120);
    QWidget& control = *panel.m_View.findChild<CQTEnumDataWidget*>();
    const QPointF at(10, 10);
    QMouseEvent press(QEvent::MouseButtonPress, at, control.mapToGlobal(at.toPoint()),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&control, &press);
    return DrawAndClose<QListWidget>(panel);
}
