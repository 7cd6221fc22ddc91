#pragma once

#include <QWidget>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// The operations that can be added, by category, with a field to search them.
class COperationPalette : public QWidget
{
    Q_OBJECT

public:
    explicit COperationPalette(QWidget* parent = nullptr);

    /// Shows what has every word of \p text in its title, name, category or description.
    void SetFilter(const QString& text);
    /// The names of the operations that are shown, top to bottom.
    QStringList GetShown() const;
    void FocusSearch();

Q_SIGNALS:
    void Chosen(const QString& operation);

private:
    void Fill();
    void ChooseCurrent();

    QLineEdit* m_pSearch;
    QTreeWidget* m_pTree;
};
