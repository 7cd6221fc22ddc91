#pragma once

#include "../chain/graphdocument.h"

#include <QWidget>

class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The operations of the document, the source on top; what goes into a second input stands below
/// the operation that has it, indented.
class CChainView : public QWidget
{
    Q_OBJECT

public:
    explicit CChainView(CGraphDocument& document, QWidget* parent = nullptr);

    sGraphItem* GetCurrent() const;
    void SetCurrent(const sGraphItem* item);

    void RemoveCurrent();
    void MoveCurrent(int step);

Q_SIGNALS:
    /// Null when nothing is selected.
    void CurrentChanged(sGraphItem* item);

private:
    void Rebuild(sGraphItem* current);
    void AddRows(const CGraphChain& chain, QTreeWidgetItem* parent);
    QToolButton* AddButton(const QString& text, const QString& help);
    void UpdateButtons();

    CGraphDocument& m_document;
    QTreeWidget* m_pTree;
    QToolButton* m_pUp = nullptr;
    QToolButton* m_pDown = nullptr;
    QToolButton* m_pRemove = nullptr;
};
