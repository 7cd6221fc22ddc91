#pragma once

#include <QFrame>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

/// The operations that can be added, by category, with a field to search them: appears at the mouse
/// and is gone with the choice, or with a press elsewhere.
class CPalettePopup : public QFrame
{
    Q_OBJECT

public:
    explicit CPalettePopup(QWidget* parent);

    /// Appears with its corner there, in global coordinates, but inside the window, and takes the
    /// keyboard.
    void PopUp(const QPoint& corner);
    /// Shows what has every word of \p text in its title, name, category or description; the row
    /// that fits best is the current one.
    void SetFilter(const QString& text);
    /// The names of the operations that are shown, top to bottom.
    QStringList GetShown() const;
    /// The operation that Return chooses; empty when there is none.
    QString GetCurrent() const;

Q_SIGNALS:
    void Chosen(const QString& operation);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Fill();
    void Choose(const QTreeWidgetItem* row);
    void MoveCurrent(int step);

    QLineEdit* m_pSearch;
    QTreeWidget* m_pTree;
};
