#pragma once

#include <inspectorcontroller.h>
#include <qtinspectorview.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

/// What most of the examples share: a controller without notices, a window that keeps a panel at
/// its own size, and a main loop that a test can end.
class CPlainController : public CInspectorController
{
public:
    void BuildInspector() override {}
    void RefreshInspector() override {}
    void HandleDirtyItem(sInspectorControllerData*, IDirtyControllerDataInfo*) override {}
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override {}
};

class CPanelWindow : public QWidget
{
public:
    explicit CPanelWindow(CInspectorController& controller, int top = 0) : m_iTop(top)
    {
        controller.SetInspectorView(&m_View);
        m_View.SetController(&controller);
        m_View.setParent(this);
        m_View.setAutoFillBackground(true); // lets it scroll by moving its pixels
        m_View.move(0, top);
        resize(320, 400);
    }

    CQTInspectorView m_View;

protected:
    void resizeEvent(QResizeEvent*) override { m_View.ResizeInspector(width(), height() - m_iTop); }

private:
    int m_iTop; ///< what is left free above the panel
};

/// Shows the window and runs until it is closed; with --once only until it was painted.
inline int Run(QApplication& application, QWidget& window)
{
    window.show();
    if (application.arguments().contains(QStringLiteral("--once")))
        QTimer::singleShot(200, &application, &QApplication::quit);
    return application.exec();
}
