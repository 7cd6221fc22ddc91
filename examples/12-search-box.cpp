// A search box: only the rows whose label holds the text are in the view.
#include "support/panelwindow.h"

#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QLineEdit>

class CSearch : public CPlainController
{
public:
    void BuildInspector() override
    {
        for (const char* label : {"Radius", "Amount", "Blur radius", "Noise amount", "Seed"})
        {
            auto* element = new CSimpleDataElement;
            auto* field = new CQTSimpleDataWidget;
            AddItem(element, field, nullptr);
            m_vRows.push_back({QLatin1String(label), element, field});
        }
        ConnectDataElements();
        Show(QString());
    }

    /// Builds the view's tree from the rows that match; the others wait, hidden.
    void Show(const QString& wanted)
    {
        m_pView->RemoveAll();
        for (const sRow& row : m_vRows)
        {
            if (row.m_sLabel.contains(wanted, Qt::CaseInsensitive))
                m_pView->AddElement(row.m_pElement, row.m_pField,
                                    row.m_sLabel.toLatin1().constData(), nullptr, nullptr);
            else
                row.m_pField->Hide();
        }
        m_pView->RecomputeLayout();
    }

private:
    struct sRow
    {
        QString m_sLabel;
        CSimpleDataElement* m_pElement;
        CQTSimpleDataWidget* m_pField;
    };

    std::vector<sRow> m_vRows;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CSearch controller;
    CPanelWindow window(controller, 30);
    controller.BuildInspector();
    QLineEdit box(&window);
    box.setGeometry(5, 5, 290, 22);
    box.setPlaceholderText(QStringLiteral("Search"));
    box.setClearButtonEnabled(true);
    QObject::connect(&box, &QLineEdit::textChanged, &window,
                     [&](const QString& text) { controller.Show(text); });
    return Run(application, window);
}
