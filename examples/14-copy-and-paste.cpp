// Copy and paste of a whole panel as text: one "label=value" line for every row.
#include "support/panelwindow.h"

#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QClipboard>
#include <QKeySequence>
#include <QShortcut>

#include <string>

/// What the host keeps with a row.
struct sRowName : CInspectorController::IControllerData
{
    explicit sRowName(const char* name) : m_sName(QLatin1String(name)) {}
    QString m_sName;
};

/// A pasted value goes the same way as a typed one, so the host learns of it in the same hook.
class CPastable : public CSimpleDataElement
{
public:
    void Paste(const QString& text)
    {
        const std::string value = text.toLatin1().toStdString();
        if (IsReadOnly() || value == m_sValue)
            return;
        m_sValue = value;
        UpdateData();
        InternalValueChanged();
    }

protected:
    void InternalValueChanged() override { qInfo("changed to %s", m_sValue.c_str()); }
};

class CController : public CPlainController
{
public:
    QString Copy() const
    {
        QString text;
        for (const sInspectorControllerData* row : m_lItems)
            text += NameOf(*row) + QLatin1Char('=') +
                    QString::fromLatin1(ElementOf(*row)->GetStrCurrentValue().c_str()) +
                    QLatin1Char('\n');
        return text;
    }

    void Paste(const QString& text)
    {
        for (const QString& line : text.split(QLatin1Char('\n')))
        {
            const QString name = line.section(QLatin1Char('='), 0, 0);
            const QString value = line.section(QLatin1Char('='), 1);
            for (const sInspectorControllerData* row : m_lItems)
            {
                if (NameOf(*row) == name)
                    ElementOf(*row)->Paste(value);
            }
        }
    }

private:
    static const QString& NameOf(const sInspectorControllerData& row)
    {
        return static_cast<const sRowName*>(row.m_pData)->m_sName;
    }
    static CPastable* ElementOf(const sInspectorControllerData& row)
    {
        return static_cast<CPastable*>(row.m_pElement);
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CController controller;
    CPanelWindow window(controller);
    for (const char* name : {"Radius", "Colour", "Opacity"})
    {
        auto* element = new CPastable;
        auto* field = new CQTSimpleDataWidget;
        controller.AddItem(element, field, new sRowName(name));
        window.m_View.AddElement(element, field, name, nullptr, nullptr);
    }
    controller.ConnectDataElements();
    const auto onKey = [&window](QKeySequence::StandardKey key, auto action)
    { QObject::connect(new QShortcut(key, &window), &QShortcut::activated, &window, action); };
    onKey(QKeySequence::Copy, [&] { QApplication::clipboard()->setText(controller.Copy()); });
    onKey(QKeySequence::Paste, [&] { controller.Paste(QApplication::clipboard()->text()); });
    return Run(application, window);
}
