#include "treemodel.h"

#include <algorithm>

void CTreeModel::Fill(const CRowPlan& plan)
{
    beginResetModel();
    for (const sPlannedGroup& group : plan)
    {
        auto node = std::make_unique<sNode>();
        node->m_iNumber = static_cast<int>(m_vGroups.size());
        node->m_sName = QString::fromStdString(group.m_sName);
        for (const sPlannedRow& row : group.m_vRows)
        {
            auto added = std::make_unique<sNode>();
            added->m_iNumber = GetRowCount();
            added->m_eKind = row.m_eKind;
            added->m_sName = QString::fromStdString(row.m_sName);
            added->m_sValue = QString::fromStdString(row.m_sValue);
            added->m_lChoices = GetChoices(row.m_vChoices);
            added->m_pGroup = node.get();
            added->m_pPlan = &row;
            m_vPlaces.push_back(added.get());
            node->m_vRows.push_back(std::move(added));
        }
        m_vGroups.push_back(std::move(node));
    }
    endResetModel();
}

QStringList CTreeModel::GetChoices(const std::vector<std::string>& choices)
{
    QStringList& list = m_mapChoices[choices];
    if (list.isEmpty())
    {
        for (const std::string& choice : choices)
            list.push_back(QString::fromStdString(choice));
    }
    return list;
}

void CTreeModel::Clear()
{
    beginResetModel();
    m_vGroups.clear();
    m_vPlaces.clear();
    endResetModel();
}

CTreeModel::sNode& CTreeModel::NodeOf(const QModelIndex& index)
{
    return *static_cast<sNode*>(index.internalPointer());
}

int CTreeModel::PlaceInGroup(const sNode& row)
{
    const auto& rows = row.m_pGroup->m_vRows;
    const auto place = std::lower_bound(rows.begin(), rows.end(), row.m_iNumber,
                                        [](const std::unique_ptr<sNode>& node, int number)
                                        { return node->m_iNumber < number; });
    return static_cast<int>(place - rows.begin());
}

QModelIndex CTreeModel::IndexOfRow(int row) const
{
    return createIndex(PlaceInGroup(*m_vPlaces[row]), 1, m_vPlaces[row]);
}

void CTreeModel::ChangeValue(int row, const std::string& value)
{
    m_vPlaces[row]->m_sValue = QString::fromStdString(value);
    const QModelIndex changed = IndexOfRow(row);
    Q_EMIT dataChanged(changed, changed);
}

void CTreeModel::RemoveRow(int row)
{
    sNode& group = *m_vPlaces[row]->m_pGroup;
    const int place = PlaceInGroup(*m_vPlaces[row]);
    beginRemoveRows(createIndex(group.m_iNumber, 0, &group), place, place);
    group.m_vRows.erase(group.m_vRows.begin() + place);
    endRemoveRows();
}

QModelIndex CTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const auto& nodes = parent.isValid() ? NodeOf(parent).m_vRows : m_vGroups;
    // The view asks an empty model, too.
    if (static_cast<std::size_t>(row) >= nodes.size())
        return QModelIndex();
    return createIndex(row, column, nodes[row].get());
}

QModelIndex CTreeModel::parent(const QModelIndex& index) const
{
    sNode* group = index.isValid() ? NodeOf(index).m_pGroup : nullptr;
    return group ? createIndex(group->m_iNumber, 0, group) : QModelIndex();
}

int CTreeModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_vGroups.size());
    return parent.column() == 0 ? static_cast<int>(NodeOf(parent).m_vRows.size()) : 0;
}

int CTreeModel::columnCount(const QModelIndex&) const
{
    return 2;
}

QVariant CTreeModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::CheckStateRole && role != eRoleKind)
        return QVariant();
    const sNode& row = NodeOf(index);
    if (index.column() == 0)
        return role == Qt::DisplayRole ? QVariant(row.m_sName) : QVariant();
    if (!row.m_pGroup)
        return QVariant();
    if (role == eRoleKind)
        return static_cast<int>(row.m_eKind);
    if (role == Qt::CheckStateRole)
    {
        if (row.m_eKind != ePlannedKind::Bool)
            return QVariant();
        return row.m_sValue == QLatin1String("1") ? Qt::Checked : Qt::Unchecked;
    }
    switch (row.m_eKind)
    {
    case ePlannedKind::Bool:
        return QVariant();
    case ePlannedKind::Enum:
        return row.m_lChoices[row.m_sValue.toInt()];
    case ePlannedKind::Button:
        return row.m_sName;
    case ePlannedKind::Container:
        return QStringList({row.m_sValue, row.m_sValue, row.m_sValue}).join(QLatin1String("   "));
    default:
        return row.m_sValue;
    }
}

Qt::ItemFlags CTreeModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() == 1)
        flags |= Qt::ItemIsEditable;
    return flags;
}
