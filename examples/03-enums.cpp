// Enumerations: one with a definition of its own, two that share one, and the order of their lists.
#include "support/panelwindow.h"

#include <enumdataelement.h>
#include <qtenumdatawidget.h>

class CChoice : public CEnumDataElement
{
    void InternalValueChanged() override { qInfo("chosen: %s", m_sValue.c_str()); }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    // A shared definition belongs to the host and must outlive the rows that use it.
    CEnumDataElement::sEnumDefinition spaces;
    CEnumDataElement filler;
    filler.SetExternalEnum(&spaces);
    filler.AddEnum("rgb", "Linear RGB");
    filler.AddEnum("srgb", "sRGB");
    filler.AddEnum("lab", "CIE Lab");

    CPlainController controller;
    CPanelWindow window(controller);
    auto* group = window.m_View.AddGroup("Conversion", nullptr);
    const auto add = [&](CEnumDataElement* element, CQTEnumDataWidget* widget, const char* label)
    {
        controller.AddItem(element, widget, nullptr);
        window.m_View.AddElement(element, widget, label, nullptr, group);
    };

    auto* from = new CChoice;
    auto* to = new CChoice;
    from->SetExternalEnum(&spaces);
    to->SetExternalEnum(&spaces);
    add(from, new CQTEnumDataWidget, "From");
    add(to, new CQTEnumDataWidget, "To");

    auto* depth = new CChoice;
    depth->CreateEnum(); // owned by the element
    depth->AddEnum("16", "16 bits");
    depth->AddEnum("8", "8 bits");
    depth->AddEnum("32", "32 bits");
    auto* depthWidget = new CQTEnumDataWidget;
    depthWidget->SetEnumSortingMethod(3); // by the value, read as a number
    add(depth, depthWidget, "Depth");

    controller.ConnectDataElements();
    from->SetStrCurrentValue("srgb"); // the value, not its display text
    to->SetStrCurrentValue("lab");
    depth->SetStrCurrentValue("16");
    for (CChoice* element : {from, to, depth})
        element->UpdateData();

    return Run(application, window);
}
