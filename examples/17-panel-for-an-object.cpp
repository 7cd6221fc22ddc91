// A panel for an object of the host: each row reads its field in Connect and writes it when the
// user changed it. Building, and bringing up to date, is then the same for every row.
#include "support/panelwindow.h"

#include <booldataelement.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <string>

struct sCamera
{
    std::string m_sName = "Camera";
    bool m_bActive = true;
};

class CTextRow : public CSimpleDataElement
{
public:
    explicit CTextRow(std::string& field) : m_rField(field) {}
    void Connect() override { m_sValue = m_rField; }

protected:
    void InternalValueChanged() override { m_rField = m_sValue; }

private:
    std::string& m_rField;
};

class CBoolRow : public CBoolDataElement
{
public:
    explicit CBoolRow(bool& field) : m_rField(field) {}
    void Connect() override { m_bValue = m_rField; }

protected:
    void InternalValueChanged() override { m_rField = m_bValue; }

private:
    bool& m_rField;
};

class CCameraPanel : public CPlainController
{
public:
    explicit CCameraPanel(sCamera& camera) : m_rCamera(camera) {}

    void BuildInspector() override
    {
        ClearAllData(); // the rows of the object that was shown before; the view is emptied too
        Add(new CTextRow(m_rCamera.m_sName), new CQTSimpleDataWidget, "Name");
        Add(new CBoolRow(m_rCamera.m_bActive), new CQTSimpleBoolWidget, "Active");
        RefreshInspector();
        m_pView->RecomputeLayout();
    }

    // Every row reads its field again; the widgets take the values, and the panel is drawn anew.
    void RefreshInspector() override
    {
        ConnectDataElements();
        m_pView->DirtyView();
    }

    // The host changed the object: the rows follow in the frame that is drawn next.
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override
    {
        RefreshInspector();
    }

private:
    void Add(CInspectorDataElement* element, CInspectorDataWidget* widget, const char* label)
    {
        AddItem(element, widget, nullptr);
        m_pView->AddElement(element, widget, label, nullptr, nullptr);
    }

    sCamera& m_rCamera;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    sCamera camera;
    CCameraPanel controller(camera);
    CPanelWindow window(controller);
    controller.BuildInspector();

    QTimer timer; // the host at work: it says that something changed, as often as it likes
    QObject::connect(&timer, &QTimer::timeout, &window,
                     [&]
                     {
                         camera.m_bActive = !camera.m_bActive;
                         controller.DirtifyController(nullptr);
                     });
    timer.start(1000);
    return Run(application, window);
}
