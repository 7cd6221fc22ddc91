#pragma once

#include <QListWidget>

/// What the program had to say, the newest at the bottom. A message about a node leads to it.
class CMessageList : public QListWidget
{
    Q_OBJECT

public:
    explicit CMessageList(QWidget* parent = nullptr);

    /// \p node is 0 for what concerns no node. What was said last is not repeated.
    void Add(const QString& text, int node = 0);

Q_SIGNALS:
    void NodeChosen(int node);

private:
    static constexpr int g_iMost = 200;
};
