// A preview strip: the parameters of a node on one line, as a node of a graph shows them.
#include "support/panelwindow.h"

#include <booldataelement.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QPainter>

/// A node with a title and a strip, which is as wide as the node.
class CNode : public QWidget
{
public:
    explicit CNode(CInspectorController& controller)
    {
        controller.SetInspectorView(&m_strip);
        m_strip.SetController(&controller);
        controller.SetPreviewMode(true); // after the view is set, so that it learns of it
        m_strip.setParent(this);
        m_strip.move(0, 20);
        resize(360, 44);
        setWindowTitle(QStringLiteral("Blur"));
    }

    /// Labels and fields, or a line that says why there are none.
    void ShowStrip(bool hasParameters)
    {
        m_strip.SetPreviewMessage(hasParameters ? "" : "no parameters", QColor(176, 74, 24));
        m_strip.ShowContent(hasParameters, false);
    }

    CQTInspectorView m_strip;

protected:
    // The strip keeps 20 pixels of its width for a scroll bar that it does not show.
    void resizeEvent(QResizeEvent*) override { m_strip.ResizeInspector(width() + 20, 24); }
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).drawText(QRect(0, 0, width(), 20), Qt::AlignCenter, windowTitle());
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CPlainController controller;
    CNode node(controller);
    const auto add =
        [&](CInspectorDataElement* element, CInspectorDataWidget* widget, const char* label)
    {
        controller.AddItem(element, widget, nullptr);
        node.m_strip.AddElement(element, widget, label, nullptr, nullptr);
    };
    add(new CSimpleDataElement, new CQTSimpleDataWidget, "Width");
    add(new CSimpleDataElement, new CQTSimpleDataWidget, "Height");
    add(new CBoolDataElement, new CQTSimpleBoolWidget, "Clip");
    controller.ConnectDataElements();
    node.ShowStrip(true);
    return Run(application, node);
}
