#pragma once

#include <QKeySequence>
#include <QObject>

#include <functional>

class CMainWindow;
class QAction;
class QMenu;

/// The commands of the window: a menu entry and a shortcut for each.
class CMainMenu : public QObject
{
    Q_OBJECT

public:
    explicit CMainMenu(CMainWindow& window);

private:
    using CCommand = std::function<void()>;
    QAction* Add(QMenu* menu, const QString& text, const QKeySequence& keys, CCommand command);

    void BuildFile();
    void BuildSamples();
    void BuildEdit();
    void BuildNode();
    void BuildMove(QMenu* parent);
    void BuildView();
    void UpdateRecent();
    void SelectNext(int step);

    CMainWindow& m_window;
    QMenu* m_pRecent = nullptr;
};
