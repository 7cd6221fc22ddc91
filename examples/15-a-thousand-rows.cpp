// A thousand rows in groups of twenty: fill first, lay out once.
#include "support/panelwindow.h"

#include <booldataelement.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QElapsedTimer>

#include <string>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CPlainController controller;
    CPanelWindow window(controller);
    CQTInspectorView& view = window.m_View;

    QElapsedTimer timer;
    timer.start();
    CInspectorView::sInspectorElement* group = nullptr;
    for (int row = 0; row < 1000; ++row)
    {
        if (row % 20 == 0)
            group = view.AddGroup(("Group " + std::to_string(row / 20)).c_str(), nullptr);
        const std::string label = "Parameter " + std::to_string(row);
        CInspectorDataElement* element = nullptr;
        CInspectorDataWidget* widget = nullptr;
        if (row % 4 == 0)
        {
            element = new CBoolDataElement;
            widget = new CQTSimpleBoolWidget;
        }
        else
        {
            element = new CSimpleDataElement;
            widget = new CQTSimpleDataWidget;
        }
        controller.AddItem(element, widget, nullptr);
        view.AddElement(element, widget, label.c_str(), nullptr, group);
    }
    controller.ConnectDataElements();
    // The window lays the panel out when it gets its size. After a later change of the rows, that
    // is RecomputeLayout.
    window.show();
    qInfo("filled and laid out in %lld ms", static_cast<long long>(timer.elapsed()));
    return Run(application, window);
}
