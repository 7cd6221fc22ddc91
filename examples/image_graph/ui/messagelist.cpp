#include "messagelist.h"

#include "../canvas/nodelook.h"

#include <QTime>

namespace
{

constexpr int g_iNodeRole = Qt::UserRole;
constexpr int g_iTextRole = Qt::UserRole + 1;

} // namespace

CMessageList::CMessageList(QWidget* parent) : QListWidget(parent)
{
    setObjectName(QStringLiteral("messages"));
    setFrameShape(QFrame::NoFrame);
    setWordWrap(true);
    connect(this, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* row)
            {
                if (const int node = row->data(g_iNodeRole).toInt())
                    Q_EMIT NodeChosen(node);
            });
}

void CMessageList::Add(const QString& text, int node)
{
    const QListWidgetItem* last = item(count() - 1);
    if (text.isEmpty() || (last && last->data(g_iTextRole).toString() == text &&
                           last->data(g_iNodeRole).toInt() == node))
        return;
    auto* row = new QListWidgetItem(QTime::currentTime().toString(QStringLiteral("hh:mm:ss")) +
                                    QStringLiteral("   ") + text);
    row->setData(g_iNodeRole, node);
    row->setData(g_iTextRole, text);
    if (node)
        row->setForeground(nodelook::g_colorError);
    addItem(row);
    while (count() > g_iMost)
        delete takeItem(0);
    scrollToBottom();
}
