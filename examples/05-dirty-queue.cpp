// Values that change in the host reach the screen through the dirty queue: however often they
// change, a row is brought up to date once before each frame.
#include "support/panelwindow.h"

#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <cmath>
#include <string>

class CWave : public CPlainController
{
public:
    void Build(CQTInspectorView& view)
    {
        for (const char* label : {"Sine", "Cosine"})
        {
            auto* element = new CSimpleDataElement;
            auto* widget = new CQTSimpleDataWidget;
            element->SetReadOnly(true);
            AddItem(element, widget, nullptr);
            view.AddElement(element, widget, label, nullptr, nullptr);
            m_vRecords.push_back(m_lItems.back()); // the record of the row just added
        }
        ConnectDataElements();
    }

    // Called far more often than the screen is drawn.
    void Tick()
    {
        m_dTime += 0.001;
        for (sInspectorControllerData* record : m_vRecords)
            DirtifyItem(record, nullptr);
    }

    // Called once per row, just before the panel is drawn.
    void HandleDirtyItem(sInspectorControllerData* record, IDirtyControllerDataInfo*) override
    {
        const double value = record == m_vRecords[0] ? std::sin(m_dTime) : std::cos(m_dTime);
        auto* element = static_cast<CSimpleDataElement*>(record->m_pElement);
        element->SetStrCurrentValue(std::to_string(value));
        element->UpdateData();
    }

private:
    std::vector<sInspectorControllerData*> m_vRecords;
    double m_dTime = 0;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CWave controller;
    CPanelWindow window(controller);
    controller.Build(window.m_View);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &window, [&] { controller.Tick(); });
    timer.start(1);
    return Run(application, window);
}
