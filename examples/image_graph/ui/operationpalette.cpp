#include "operationpalette.h"

#include "../gegl/operationcatalog.h"

#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace
{

constexpr int g_iNameRole = Qt::UserRole;
constexpr int g_iSearchRole = Qt::UserRole + 1;
constexpr int g_iRowHeight = 22;

QString CategoryOf(const sOperationInfo& info)
{
    QString category = QString::fromStdString(info.m_sCategories).section(QLatin1Char(':'), 0, 0);
    if (category.isEmpty())
        return QStringLiteral("Other");
    category[0] = category[0].toUpper();
    return category.replace(QLatin1Char('-'), QLatin1Char(' '));
}

} // namespace

COperationPalette::COperationPalette(QWidget* parent)
    : QWidget(parent), m_pSearch(new QLineEdit), m_pTree(new QTreeWidget)
{
    auto* title = new QLabel(tr("Add an operation"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    m_pSearch->setPlaceholderText(tr("Search"));
    m_pSearch->setClearButtonEnabled(true);
    m_pSearch->setObjectName(QStringLiteral("search"));
    m_pTree->setHeaderHidden(true);
    m_pTree->setIndentation(14);
    m_pTree->setRootIsDecorated(true);
    m_pTree->setObjectName(QStringLiteral("palette"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(m_pSearch);
    layout->addWidget(m_pTree, 1);
    Fill();
    connect(m_pSearch, &QLineEdit::textChanged, this, &COperationPalette::SetFilter);
    connect(m_pSearch, &QLineEdit::returnPressed, this, &COperationPalette::ChooseCurrent);
    connect(m_pTree, &QTreeWidget::itemActivated, this, &COperationPalette::ChooseCurrent);
}

void COperationPalette::Fill()
{
    QMap<QString, QTreeWidgetItem*> groups;
    for (const sOperationInfo& info : GetOperationCatalog())
    {
        if (info.m_bForPrograms || !info.m_bHasOutput)
            continue;
        const QString category = CategoryOf(info);
        QTreeWidgetItem*& group = groups[category];
        if (!group)
        {
            group = new QTreeWidgetItem(m_pTree, {category});
            group->setFlags(Qt::ItemIsEnabled);
            group->setSizeHint(0, QSize(0, g_iRowHeight));
        }
        auto* row = new QTreeWidgetItem(group, {QString::fromStdString(info.m_sTitle)});
        row->setToolTip(0, QString::fromStdString(info.m_sName + '\n' + info.m_sDescription));
        row->setSizeHint(0, QSize(0, g_iRowHeight));
        row->setData(0, g_iNameRole, QString::fromStdString(info.m_sName));
        row->setData(0, g_iSearchRole,
                     QString::fromStdString(info.m_sTitle + ' ' + info.m_sName + ' ' +
                                            info.m_sCategories + ' ' + info.m_sDescription));
    }
    m_pTree->sortItems(0, Qt::AscendingOrder);
}

void COperationPalette::SetFilter(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QTreeWidgetItem* first = nullptr;
    for (int i = 0; i < m_pTree->topLevelItemCount(); ++i)
    {
        QTreeWidgetItem* group = m_pTree->topLevelItem(i);
        bool isEmpty = true;
        for (int j = 0; j < group->childCount(); ++j)
        {
            QTreeWidgetItem* row = group->child(j);
            const QString known = row->data(0, g_iSearchRole).toString();
            bool hasAll = true;
            for (const QString& word : words)
                hasAll = hasAll && known.contains(word, Qt::CaseInsensitive);
            row->setHidden(!hasAll);
            isEmpty = isEmpty && !hasAll;
            if (hasAll && !words.isEmpty() && !first)
                first = row;
        }
        group->setHidden(isEmpty);
        group->setExpanded(!words.isEmpty());
    }
    m_pTree->setCurrentItem(first);
}

QStringList COperationPalette::GetShown() const
{
    QStringList names;
    for (QTreeWidgetItemIterator row(m_pTree, QTreeWidgetItemIterator::NotHidden); *row; ++row)
        if ((*row)->parent())
            names << (*row)->data(0, g_iNameRole).toString();
    return names;
}

void COperationPalette::FocusSearch()
{
    m_pSearch->setFocus();
    m_pSearch->selectAll();
}

void COperationPalette::ChooseCurrent()
{
    const QTreeWidgetItem* row = m_pTree->currentItem();
    if (row && row->parent())
        Q_EMIT Chosen(row->data(0, g_iNameRole).toString());
}
