// The smallest complete host: a panel with one text and one yes or no.
#include <booldataelement.h>
#include <inspectorcontroller.h>
#include <qtinspectorview.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QApplication>
#include <QTimer>

struct CName : CSimpleDataElement
{
    void InternalValueChanged() override { qInfo("the name is now %s", m_sValue.c_str()); }
};

struct CController : CInspectorController
{
    void BuildInspector() override {}
    void RefreshInspector() override {}
    void HandleDirtyItem(sInspectorControllerData*, IDirtyControllerDataInfo*) override {}
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override {}
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CController controller;
    CQTInspectorView view;
    controller.SetInspectorView(&view);
    view.SetController(&controller);

    auto* name = new CName;
    auto* nameField = new CQTSimpleDataWidget;
    auto* visible = new CBoolDataElement;
    auto* visibleBox = new CQTSimpleBoolWidget;
    controller.AddItem(name, nameField, nullptr); // the controller owns both from now on
    controller.AddItem(visible, visibleBox, nullptr);
    view.AddElement(name, nameField, "Name", nullptr, nullptr);
    view.AddElement(visible, visibleBox, "Visible", nullptr, nullptr);
    controller.ConnectDataElements();

    view.ResizeInspector(300, -1); // as tall as its content
    view.show();
    if (application.arguments().contains(QStringLiteral("--once")))
        QTimer::singleShot(200, &application, &QApplication::quit);
    return application.exec();
}
