#pragma once

#include "rowplan.h"

#include <QAbstractItemModel>
#include <QStringList>

#include <map>
#include <memory>
#include <string>
#include <vector>

/// The rows of a panel as a model of two columns: the label and the value.
class CTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum eRole
    {
        eRoleKind = Qt::UserRole,
    };

    void Fill(const CRowPlan& plan);
    void Clear();
    /// The value's index of a row, by the number it was filled with; invalid once it was removed.
    QModelIndex IndexOfRow(int row) const;
    int GetRowCount() const { return static_cast<int>(m_vPlaces.size()); }
    const sPlannedRow& GetPlan(int row) const { return *m_vPlaces[row]->m_pPlan; }
    void ChangeValue(int row, const std::string& value);
    void RemoveRow(int row);

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct sNode
    {
        int m_iNumber = 0; ///< of a group among the groups, of a row among all rows
        ePlannedKind m_eKind = ePlannedKind::Text;
        QString m_sName;
        QString m_sValue;
        QStringList m_lChoices;
        sNode* m_pGroup = nullptr; ///< null for a group
        const sPlannedRow* m_pPlan = nullptr;
        std::vector<std::unique_ptr<sNode>> m_vRows;
    };

    /// Rows with the same choices share them.
    QStringList GetChoices(const std::vector<std::string>& choices);
    static sNode& NodeOf(const QModelIndex& index);
    static int PlaceInGroup(const sNode& row);

    std::map<std::vector<std::string>, QStringList> m_mapChoices;
    std::vector<std::unique_ptr<sNode>> m_vGroups;
    std::vector<sNode*> m_vPlaces; ///< by row number
};
