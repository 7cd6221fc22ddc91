// Undo and redo: every edit becomes a command, named after its row.
#include "support/panelwindow.h"

#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QKeySequence>
#include <QShortcut>
#include <QUndoStack>

#include <map>

/// The object that is edited: named values.
using CDocument = std::map<QString, std::string>;

class CParameter : public CSimpleDataElement
{
public:
    CParameter(CDocument& document, QUndoStack& undo, const QString& name)
        : m_rDocument(document), m_rUndo(undo), m_sName(name)
    {
    }

    void Connect() override { m_sValue = m_rDocument[m_sName]; }

    void Reload()
    {
        m_sValue = m_rDocument[m_sName];
        UpdateData();
    }

protected:
    void InternalValueChanged() override;

private:
    CDocument& m_rDocument;
    QUndoStack& m_rUndo;
    QString m_sName;
};

class CEdit : public QUndoCommand
{
public:
    CEdit(CDocument& document, const QString& name, const std::string& value)
        : QUndoCommand(QStringLiteral("Change ") + name), m_rDocument(document), m_sName(name),
          m_sValue(value)
    {
    }
    void redo() override { std::swap(m_rDocument[m_sName], m_sValue); }
    void undo() override { redo(); } // the old value and the new one change places

private:
    CDocument& m_rDocument;
    QString m_sName;
    std::string m_sValue;
};

void CParameter::InternalValueChanged()
{
    m_rUndo.push(new CEdit(m_rDocument, m_sName, m_sValue));
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CDocument document{{QStringLiteral("Radius"), "12"}, {QStringLiteral("Opacity"), "0.5"}};
    QUndoStack undo;
    CPlainController controller;
    CPanelWindow window(controller);
    std::vector<CParameter*> rows;
    for (const auto& [name, value] : document)
    {
        rows.push_back(new CParameter(document, undo, name));
        auto* widget = new CQTSimpleDataWidget;
        controller.AddItem(rows.back(), widget, nullptr);
        window.m_View.AddElement(rows.back(), widget, name.toLatin1().constData(), nullptr,
                                 nullptr);
    }
    controller.ConnectDataElements();

    // What undo and redo change in the document is shown in the rows.
    QObject::connect(&undo, &QUndoStack::indexChanged, &window,
                     [&]
                     {
                         for (CParameter* row : rows)
                             row->Reload();
                         window.setWindowTitle(undo.undoText());
                     });
    new QShortcut(QKeySequence::Undo, &window, [&] { undo.undo(); });
    new QShortcut(QKeySequence::Redo, &window, [&] { undo.redo(); });
    return Run(application, window);
}
