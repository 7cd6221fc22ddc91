#include "chainview.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace
{

constexpr int g_iItemRole = Qt::UserRole;
constexpr int g_iRowHeight = 22;

sGraphItem* ItemOf(const QTreeWidgetItem* row)
{
    return row ? reinterpret_cast<sGraphItem*>(row->data(0, g_iItemRole).value<quintptr>())
               : nullptr;
}

} // namespace

CChainView::CChainView(CGraphDocument& document, QWidget* parent)
    : QWidget(parent), m_document(document), m_pTree(new QTreeWidget)
{
    auto* title = new QLabel(tr("Operations"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    m_pUp = AddButton(tr("\u2191"), tr("Move the operation towards the source"));
    m_pDown = AddButton(tr("\u2193"), tr("Move the operation towards the end"));
    m_pRemove = AddButton(tr("\u2715"), tr("Remove the operation"));
    auto* heading = new QHBoxLayout;
    heading->setSpacing(2);
    heading->addWidget(title, 1);
    heading->addWidget(m_pUp);
    heading->addWidget(m_pDown);
    heading->addWidget(m_pRemove);

    m_pTree->setHeaderHidden(true);
    m_pTree->setIndentation(16);
    m_pTree->setItemsExpandable(false);
    m_pTree->setObjectName(QStringLiteral("chain"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(heading);
    layout->addWidget(m_pTree, 1);

    connect(m_pUp, &QToolButton::clicked, this, [this] { MoveCurrent(-1); });
    connect(m_pDown, &QToolButton::clicked, this, [this] { MoveCurrent(1); });
    connect(m_pRemove, &QToolButton::clicked, this, &CChainView::RemoveCurrent);
    connect(m_pTree, &QTreeWidget::currentItemChanged, this,
            [this]
            {
                UpdateButtons();
                Q_EMIT CurrentChanged(GetCurrent());
            });
    connect(&m_document, &CGraphDocument::ChainChanged, this, &CChainView::Rebuild);
    Rebuild(nullptr);
}

QToolButton* CChainView::AddButton(const QString& text, const QString& help)
{
    auto* button = new QToolButton;
    button->setText(text);
    button->setToolTip(help);
    button->setAutoRaise(true);
    return button;
}

sGraphItem* CChainView::GetCurrent() const
{
    return ItemOf(m_pTree->currentItem());
}

void CChainView::SetCurrent(const sGraphItem* item)
{
    QTreeWidgetItem* found = nullptr;
    for (QTreeWidgetItemIterator row(m_pTree); *row && !found; ++row)
        if (item && ItemOf(*row) == item)
            found = *row;
    m_pTree->setCurrentItem(found);
}

void CChainView::RemoveCurrent()
{
    if (sGraphItem* item = GetCurrent())
        m_document.Remove(item);
}

void CChainView::MoveCurrent(int step)
{
    if (sGraphItem* item = GetCurrent())
        m_document.Move(item, step);
}

void CChainView::Rebuild(sGraphItem* current)
{
    {
        const QSignalBlocker quiet(m_pTree);
        m_pTree->clear();
        AddRows(m_document.GetChain(), m_pTree->invisibleRootItem());
        m_pTree->expandAll();
        SetCurrent(current);
    }
    UpdateButtons();
    Q_EMIT CurrentChanged(current);
}

void CChainView::AddRows(const CGraphChain& chain, QTreeWidgetItem* parent)
{
    for (const auto& item : chain)
    {
        const sOperationInfo& info = item->m_pOperation->GetInfo();
        auto* row = new QTreeWidgetItem(parent);
        row->setText(0, QString::fromStdString(info.m_sTitle));
        row->setToolTip(0, QString::fromStdString(info.m_sName + '\n' + info.m_sDescription));
        row->setData(0, g_iItemRole, QVariant::fromValue(reinterpret_cast<quintptr>(item.get())));
        row->setSizeHint(0, QSize(0, g_iRowHeight));
        AddRows(item->m_vBranch, row);
    }
}

void CChainView::UpdateButtons()
{
    const sGraphItem* item = GetCurrent();
    m_pUp->setEnabled(m_document.CanMove(item, -1));
    m_pDown->setEnabled(m_document.CanMove(item, 1));
    m_pRemove->setEnabled(item != nullptr);
}
