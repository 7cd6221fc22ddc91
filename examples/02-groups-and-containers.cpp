// Groups nest, a single-line container puts controls side by side, and size requests say how wide.
#include "support/panelwindow.h"

#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

class CBuilder
{
public:
    CBuilder(CInspectorController& controller, CQTInspectorView& view)
        : m_rController(controller), m_rView(view)
    {
    }

    void Field(const char* label, CInspectorView::sInspectorElement* parent,
               CInspectorView::sRequestSize* request = nullptr)
    {
        auto* element = new CSimpleDataElement;
        auto* widget = new CQTSimpleDataWidget;
        m_rController.AddItem(element, widget, nullptr);
        m_rView.AddElement(element, widget, label, request, parent);
    }

private:
    CInspectorController& m_rController;
    CQTInspectorView& m_rView;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CPlainController controller;
    CPanelWindow window(controller);
    CQTInspectorView& view = window.m_View;
    CBuilder build(controller, view);

    auto* transform = view.AddGroup("Transform", nullptr);
    build.Field("Name", transform);

    // Three fields with one label; they share the width evenly.
    auto* position = view.AddSingleLineContainer("Position", nullptr, transform);
    for (int axis = 0; axis < 3; ++axis)
        build.Field(nullptr, position);

    // A narrow field beside a wide one: 60 pixels and no more, and what is left.
    CInspectorView::sRequestSize narrow;
    narrow.SetMinValueAbsolute(60);
    narrow.SetMaxValueAbsolute(60);
    auto* angle = view.AddSingleLineContainer("Angle", nullptr, transform);
    build.Field(nullptr, angle, &narrow);
    build.Field(nullptr, angle);

    // A group inside a group; its rows align their labels among themselves.
    auto* limits = view.AddGroup("Limits", transform);
    build.Field("At least", limits);
    build.Field("At most", limits);

    // At most half of its row, at the right end.
    CInspectorView::sRequestSize half;
    half.SetMaxValueRelative(50);
    auto* colour = view.AddGroup("Colour", nullptr);
    build.Field("Opacity", colour, &half);

    controller.ConnectDataElements();
    return Run(application, window);
}
