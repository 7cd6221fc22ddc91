// A complete host: a window with three parameters of a circle.
#include <booldataelement.h>
#include <inspectorcontroller.h>
#include <qtinspectorview.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QApplication>
#include <QTimer>

// The host learns of an edit in the hook of its own element.
class CRadius : public CSimpleDataElement
{
    void InternalValueChanged() override { qInfo("the radius is now %s", m_sValue.c_str()); }
};

class CController : public CInspectorController
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

    auto* group = view.AddGroup("Circle", nullptr);
    const auto add =
        [&](CInspectorDataElement* element, CInspectorDataWidget* widget, const char* label)
    {
        controller.AddItem(element, widget, nullptr); // owns both from now on
        view.AddElement(element, widget, label, nullptr, group);
    };
    auto* radius = new CRadius;
    auto* centre = new CSimpleDataElement;
    auto* filled = new CBoolDataElement;
    add(radius, new CQTSimpleDataWidget, "Radius");
    add(centre, new CQTSimpleDataWidget, "Centre");
    add(filled, new CQTSimpleBoolWidget, "Filled");
    controller.ConnectDataElements();

    radius->SetStrCurrentValue("12.5");
    centre->SetStrCurrentValue("0, 0");
    filled->SetValue(true);
    // Setters only store: this shows the values.
    radius->UpdateData();
    centre->UpdateData();
    filled->UpdateData();

    view.ResizeInspector(300, -1); // as tall as its content
    view.show();
    if (application.arguments().contains(QStringLiteral("--once")))
        QTimer::singleShot(200, &application, &QApplication::quit);
    return application.exec();
}
