#include "qtpanel.h"
#include "treemodel.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace
{

/// Paints combo boxes and buttons as the other panels show them.
class CTreeDelegate : public QStyledItemDelegate
{
public:
    void paint(QPainter* painter, const QStyleOptionViewItem& item,
               const QModelIndex& index) const override
    {
        const QVariant kind = index.column() == 1 ? index.data(CTreeModel::eRoleKind) : QVariant();
        if (kind == QVariant(static_cast<int>(ePlannedKind::Enum)))
        {
            QStyleOptionComboBox option;
            option.rect = item.rect;
            option.state = QStyle::State_Enabled;
            option.palette = item.palette;
            option.currentText = index.data().toString();
            QStyle* style = QApplication::style();
            style->drawComplexControl(QStyle::CC_ComboBox, &option, painter, nullptr);
            style->drawControl(QStyle::CE_ComboBoxLabel, &option, painter, nullptr);
        }
        else if (kind == QVariant(static_cast<int>(ePlannedKind::Button)))
        {
            QStyleOptionButton option;
            option.rect = item.rect;
            option.state = QStyle::State_Raised;
            option.palette = item.palette;
            option.text = index.data().toString();
            QApplication::style()->drawControl(QStyle::CE_PushButton, &option, painter, nullptr);
        }
        else
            QStyledItemDelegate::paint(painter, item, index);
    }

    QSize sizeHint(const QStyleOptionViewItem& item, const QModelIndex& index) const override
    {
        QSize size = QStyledItemDelegate::sizeHint(item, index);
        size.setHeight(25);
        return size;
    }
};

class CTreePanel : public CQtPanel
{
public:
    CTreePanel()
    {
        m_view.setItemDelegate(&m_delegate);
        m_view.setUniformRowHeights(true);
        m_view.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        m_view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_view.setHeaderHidden(true);
        m_view.setModel(&m_model);
        m_view.header()->resizeSection(0, g_iPanelWidth / 2);
    }

    QWidget& Window() override { return m_view; }

    void Fill(const CRowPlan& plan) override
    {
        m_view.resize(g_iPanelWidth, g_iPanelHeight);
        m_model.Fill(plan);
        m_view.expandAll();
        m_view.show();
    }

    void SetWidth(int width) override { m_view.resize(width, g_iPanelHeight); }

    int GetScrollSteps() override { return m_view.verticalScrollBar()->maximum() / 25; }

    void ScrollTo(int step) override { m_view.verticalScrollBar()->setValue(step * 25); }

    int GetRowCount() override { return m_model.GetRowCount(); }

    void ChangeValue(int row, int round) override
    {
        m_model.ChangeValue(row, NextValue(m_model.GetPlan(row), round));
    }

    void ChangeAllValues(int round) override
    {
        for (int row = 0; row < GetRowCount(); ++row)
            ChangeValue(row, round);
    }

    void RemoveRows(const std::vector<int>& rows) override
    {
        for (int row : rows)
            m_model.RemoveRow(row);
    }

    void Clear() override { m_model.Clear(); }

    void GoToNextRow() override
    {
        m_view.setCurrentIndex(m_model.IndexOfRow(m_iFocus++ % GetRowCount()));
    }

private:
    CTreeModel m_model;
    CTreeDelegate m_delegate;
    QTreeView m_view;
    int m_iFocus = 0;
};

} // namespace

std::unique_ptr<CPanel> MakeTreePanel()
{
    return std::make_unique<CTreePanel>();
}
