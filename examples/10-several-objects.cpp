// Several objects at once: what they have in common is shown, what differs is said to differ, and
// an edit goes to all of them.
#include "support/panelwindow.h"

#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>

using CObject = std::map<std::string, std::string>;

class CCommonValue : public CSimpleDataElement
{
public:
    CCommonValue(std::vector<CObject*> objects, std::string name)
        : m_vObjects(std::move(objects)), m_sName(std::move(name))
    {
    }

    void Connect() override
    {
        const std::string& first = m_vObjects.front()->at(m_sName);
        const bool isSame =
            std::all_of(m_vObjects.begin(), m_vObjects.end(),
                        [&](const CObject* object) { return object->at(m_sName) == first; });
        m_sValue = isSame ? first : "(several values)";
    }

protected:
    // Called only for a text that differs from the one shown, so leaving "(several values)" alone
    // changes nothing.
    void InternalValueChanged() override
    {
        for (CObject* object : m_vObjects)
            (*object)[m_sName] = m_sValue;
    }

private:
    std::vector<CObject*> m_vObjects;
    std::string m_sName;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CObject wall{{"Colour", "red"}, {"Height", "3"}};
    CObject door{{"Colour", "red"}, {"Height", "2"}, {"Handle", "left"}};
    const std::vector<CObject*> selection{&wall, &door};

    CPlainController controller;
    CPanelWindow window(controller);
    for (const auto& entry : wall)
    {
        const std::string& name = entry.first;
        // Only what every selected object has.
        if (!std::all_of(selection.begin(), selection.end(),
                         [&](const CObject* object) { return object->count(name) != 0; }))
            continue;
        auto* element = new CCommonValue(selection, name);
        auto* widget = new CQTSimpleDataWidget;
        controller.AddItem(element, widget, nullptr);
        window.m_View.AddElement(element, widget, name.c_str(), nullptr, nullptr);
    }
    controller.ConnectDataElements();
    return Run(application, window);
}
