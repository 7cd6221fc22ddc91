// An element of one's own: a number with a range and a step. What cannot be taken is explained.
#include "support/panelwindow.h"

#include <qtsimpledatawidget.h>
#include <qtstaticwidget.h>
#include <simpledataelement.h>
#include <staticdataelement.h>

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <string>

class CNumberElement : public CSimpleDataElement
{
public:
    CNumberElement(double least, double most, double step, CStaticDataElement& message)
        : m_dLeast(least), m_dMost(most), m_dStep(step), m_rMessage(message)
    {
    }

    const char* GetType() override { return "example.number"; }
    void Connect() override { Show(m_dLeast); }

    double GetNumber() const { return m_dNumber; }

protected:
    // The text was stored already; what is shown in the end is decided here.
    void InternalValueChanged() override
    {
        bool isNumber = false;
        const double typed = QLocale::c().toDouble(QString::fromStdString(m_sValue), &isNumber);
        if (!isNumber)
        {
            Explain("\"" + m_sValue + "\" is not a number.");
            Show(m_dNumber);
            return;
        }
        const double stepped = m_dLeast + std::round((typed - m_dLeast) / m_dStep) * m_dStep;
        const double taken = std::clamp(stepped, m_dLeast, m_dMost);
        Explain(taken == typed ? "" : "Taken as " + Format(taken) + ".");
        Show(taken);
    }

private:
    static std::string Format(double number) { return QString::number(number).toStdString(); }

    void Show(double number)
    {
        m_dNumber = number;
        SetStrCurrentValue(Format(number));
        UpdateData();
    }

    void Explain(const std::string& text)
    {
        m_rMessage.SetText(text.c_str());
        if (m_pController)
            static_cast<CPlainController*>(m_pController)->RefreshInspector();
    }

    double m_dLeast, m_dMost, m_dStep;
    double m_dNumber = 0;
    CStaticDataElement& m_rMessage;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    struct CController : CPlainController
    {
        void RefreshInspector() override { m_pMessageWidget->update(); }
        QWidget* m_pMessageWidget = nullptr;
    } controller;
    CPanelWindow window(controller);

    auto* message = new CStaticDataElement("", Qt::AlignLeft | Qt::AlignVCenter);
    auto* messageWidget = new CQTStaticWidget;
    controller.m_pMessageWidget = messageWidget;
    auto* radius = new CNumberElement(0, 100, 0.5, *message);
    auto* widget = new CQTSimpleDataWidget;
    controller.AddItem(radius, widget, nullptr);
    controller.AddItem(message, messageWidget, nullptr);
    window.m_View.AddElement(radius, widget, "Radius", nullptr, nullptr);
    window.m_View.AddElement(message, messageWidget, nullptr, nullptr, nullptr);
    controller.ConnectDataElements();
    return Run(application, window);
}
