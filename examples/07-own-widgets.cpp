// Widgets of one's own: a slider for a number and a swatch for a colour, each for a text element.
#include "support/panelwindow.h"

#include <inspectordatawidget.h>
#include <simpledataelement.h>
#include <simpledataprovider.h>

#include <QColorDialog>
#include <QMouseEvent>
#include <QPainter>

/// What both have in common: a value as text, taken from and given to the element.
class CValueWidget : public QWidget, public CInspectorDataWidget, public ISimpleDataProvider
{
public:
    void InitFromElement() override { OnValueChange(nullptr); }
    void OnValueChange(sValueChangeInfo*) override
    {
        dynamic_cast<ISimpleDataProvider&>(*m_pElement).GetDataAsString(m_sValue);
        update();
    }
    int GetRequiredWidth() override { return -1; }
    int GetRequiredHeight(int) override { return 20; }
    void ResizeWidget(int width, int height) override { resize(width, height); }
    void MoveWidget(int x, int y) override { move(x, y); }
    void Show() override { show(); }
    void Hide() override { hide(); }
    void GetDataAsString(std::string& out) override { out = m_sValue; }

protected:
    void Take(const QString& value)
    {
        m_sValue = value.toStdString();
        update();
        static_cast<CSimpleDataElement*>(m_pElement)->OnCtrlValueChange(); // may remove this row
    }
    QString Value() const { return QString::fromStdString(m_sValue); }

private:
    std::string m_sValue;
};

class CSlider : public CValueWidget
{
    const char* GetType() override { return "example.slider"; }
    void mousePressEvent(QMouseEvent* event) override { mouseMoveEvent(event); }
    void mouseMoveEvent(QMouseEvent* event) override
    {
        Take(QString::number(qBound(0, event->pos().x() * 100 / qMax(1, width()), 100)));
    }
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Base));
        painter.fillRect(0, 0, width() * Value().toInt() / 100, height(),
                         palette().color(QPalette::Highlight));
        painter.drawText(rect(), Qt::AlignCenter, Value());
    }
};

class CSwatch : public CValueWidget
{
    const char* GetType() override { return "example.swatch"; }
    void mousePressEvent(QMouseEvent*) override
    {
        const QColor chosen = QColorDialog::getColor(QColor(Value()), this);
        if (chosen.isValid())
            Take(chosen.name());
    }
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), QColor(Value())); }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CPlainController controller;
    CPanelWindow window(controller);
    const auto add = [&](CInspectorDataWidget* widget, const char* label, const char* value)
    {
        auto* element = new CSimpleDataElement;
        controller.AddItem(element, widget, nullptr);
        window.m_View.AddElement(element, widget, label, nullptr, nullptr);
        element->SetStrCurrentValue(value);
        element->UpdateData();
    };
    add(new CSlider, "Opacity", "70");
    add(new CSwatch, "Colour", "#c05020");
    return Run(application, window);
}
