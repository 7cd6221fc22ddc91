#include "qtpanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace
{

class CFormPanel : public CQtPanel
{
public:
    CFormPanel()
    {
        m_area.setWidgetResizable(true);
        m_area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    QWidget& Window() override { return m_area; }

    void Fill(const CRowPlan& plan) override
    {
        m_area.resize(g_iPanelWidth, g_iPanelHeight);
        auto* content = new QWidget;
        auto* boxes = new QVBoxLayout(content);
        for (const sPlannedGroup& group : plan)
        {
            auto* box = new QGroupBox(QString::fromStdString(group.m_sName));
            auto* form = new QFormLayout(box);
            for (const sPlannedRow& row : group.m_vRows)
            {
                QWidget* editor = MakeEditor(row);
                form->addRow(QString::fromStdString(row.m_sName), editor);
                m_vRows.push_back({form, editor, row});
            }
            boxes->addWidget(box);
        }
        m_area.setWidget(content);
        m_area.show();
    }

    void SetWidth(int width) override
    {
        m_area.resize(width, g_iPanelHeight);
        // The area lays its content out when the request comes round.
        QCoreApplication::sendPostedEvents();
    }

    int GetScrollSteps() override { return m_area.verticalScrollBar()->maximum() / GetRowHeight(); }

    void ScrollTo(int step) override
    {
        m_area.verticalScrollBar()->setValue(step * GetRowHeight());
    }

    int GetRowCount() override { return static_cast<int>(m_vRows.size()); }

    void ChangeValue(int row, int round) override
    {
        const std::string value = NextValue(m_vRows[row].m_plan, round);
        ShowValue(m_vRows[row].m_pEditor, m_vRows[row].m_plan, value);
    }

    void ChangeAllValues(int round) override
    {
        for (int row = 0; row < GetRowCount(); ++row)
            ChangeValue(row, round);
    }

    void RemoveRows(const std::vector<int>& rows) override
    {
        for (int row : rows)
            m_vRows[row].m_pForm->removeRow(m_vRows[row].m_pEditor);
    }

    void Clear() override
    {
        delete m_area.takeWidget();
        m_vRows.clear();
    }

    void GoToNextRow() override
    {
        QWidget* editor = m_vRows[m_iFocus++ % m_vRows.size()].m_pEditor;
        editor->setFocus(Qt::TabFocusReason);
        m_area.ensureWidgetVisible(editor);
    }

private:
    struct sRow
    {
        QFormLayout* m_pForm;
        QWidget* m_pEditor;
        const sPlannedRow& m_plan;
    };

    int GetRowHeight() const { return m_vRows.front().m_pEditor->height() + 6; }

    static QWidget* MakeEditor(const sPlannedRow& row)
    {
        QWidget* editor = nullptr;
        switch (row.m_eKind)
        {
        case ePlannedKind::Bool:
            editor = new QCheckBox;
            break;
        case ePlannedKind::Enum:
        {
            auto* combo = new QComboBox;
            for (const std::string& choice : row.m_vChoices)
                combo->addItem(QString::fromStdString(choice));
            editor = combo;
            break;
        }
        case ePlannedKind::Button:
            return new QPushButton(QString::fromStdString(row.m_sName));
        case ePlannedKind::Container:
        {
            editor = new QWidget;
            auto* line = new QHBoxLayout(editor);
            line->setContentsMargins(0, 0, 0, 0);
            for (int i = 0; i < 3; ++i)
            {
                auto* field = new QLineEdit;
                field->setText(QString::fromStdString(row.m_sValue));
                line->addWidget(field);
                if (i == 0)
                    editor->setFocusProxy(field);
            }
            return editor;
        }
        default:
            editor = new QLineEdit;
        }
        ShowValue(editor, row, row.m_sValue);
        return editor;
    }

    static void ShowValue(QWidget* editor, const sPlannedRow& row, const std::string& value)
    {
        switch (row.m_eKind)
        {
        case ePlannedKind::Bool:
            static_cast<QCheckBox*>(editor)->setChecked(value == "1");
            break;
        case ePlannedKind::Enum:
            static_cast<QComboBox*>(editor)->setCurrentIndex(std::stoi(value));
            break;
        case ePlannedKind::Button:
            break;
        case ePlannedKind::Container:
            static_cast<QLineEdit*>(editor->focusProxy())->setText(QString::fromStdString(value));
            break;
        default:
            static_cast<QLineEdit*>(editor)->setText(QString::fromStdString(value));
        }
    }

    QScrollArea m_area;
    std::vector<sRow> m_vRows;
    std::size_t m_iFocus = 0;
};

} // namespace

std::unique_ptr<CPanel> MakeFormPanel()
{
    return std::make_unique<CFormPanel>();
}
