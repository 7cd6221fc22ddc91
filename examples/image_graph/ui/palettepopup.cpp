#include "palettepopup.h"

#include "../canvas/nodelook.h"
#include "../gegl/operationcatalog.h"
#include "operationtexts.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMap>
#include <QPainter>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

constexpr int g_iNameRole = Qt::UserRole;
constexpr int g_iSearchRole = Qt::UserRole + 1;
constexpr int g_iRowHeight = 22;
constexpr QSize g_size(320, 420);
constexpr int g_iSearchHeight = 56; ///< of all that is no row
constexpr int g_iLeastHeight = 100;
constexpr int g_iFromEdge = 8; ///< of the window

// Rows of the palette carry the colour that nodes of the category have.
QIcon CategoryIcon(const QString& category)
{
    QPixmap mark(6, 14);
    mark.fill(nodelook::CategoryColor(category));
    return QIcon(mark);
}

/// How well a row fits what was typed: the smaller the better.
int Rank(const QString& title, const QString& text)
{
    if (title.startsWith(text, Qt::CaseInsensitive))
        return 0;
    if (title.contains(QLatin1Char(' ') + text, Qt::CaseInsensitive))
        return 1;
    return title.contains(text, Qt::CaseInsensitive) ? 2 : 3;
}

bool HasWords(const QString& text, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word)
                       { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

CPalettePopup::CPalettePopup(QWidget* parent)
    : QFrame(parent, Qt::Popup), m_pSearch(new QLineEdit), m_pTree(new QTreeWidget)
{
    setFrameStyle(QFrame::StyledPanel);
    resize(g_size);
    m_pSearch->setPlaceholderText(tr("Search operations"));
    m_pSearch->setClearButtonEnabled(true);
    m_pSearch->setObjectName(QStringLiteral("search"));
    m_pSearch->installEventFilter(this);
    m_pTree->setObjectName(QStringLiteral("palette"));
    m_pTree->setHeaderHidden(true);
    m_pTree->setIndentation(14);
    m_pTree->setIconSize(QSize(6, 14));
    m_pTree->setFocusPolicy(Qt::NoFocus); // keys belong to the field
    m_pTree->setFrameShape(QFrame::NoFrame);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_pSearch);
    layout->addWidget(m_pTree, 1);
    Fill();
    connect(m_pSearch, &QLineEdit::textChanged, this, &CPalettePopup::SetFilter);
    connect(m_pSearch, &QLineEdit::returnPressed, this, [this] { Choose(m_pTree->currentItem()); });
    connect(m_pTree, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* row)
            {
                if (row->parent())
                    Choose(row);
                else
                    row->setExpanded(!row->isExpanded());
            });
}

void CPalettePopup::Fill()
{
    QMap<QString, QTreeWidgetItem*> groups;
    for (const sOperationInfo& info : GetOperationCatalog())
    {
        if (info.m_bForPrograms)
            continue;
        const QString category = CategoryOf(info);
        QTreeWidgetItem*& group = groups[category];
        if (!group)
        {
            group = new QTreeWidgetItem(m_pTree, {category});
            group->setFlags(Qt::ItemIsEnabled);
            group->setForeground(0, nodelook::g_colorFaint);
            group->setSizeHint(0, QSize(0, g_iRowHeight));
        }
        const QString name = QString::fromStdString(info.m_sName);
        auto* row = new QTreeWidgetItem(group, {TitleOf(info)});
        row->setIcon(0, CategoryIcon(category));
        row->setToolTip(0, HelpOf(info));
        row->setSizeHint(0, QSize(0, g_iRowHeight));
        row->setData(0, g_iNameRole, name);
        row->setData(
            0, g_iSearchRole,
            QStringList{TitleOf(info), name, category,
                        QString::fromStdString(info.m_sCategories + ' ' + info.m_sDescription)}
                .join(QLatin1Char(' ')));
    }
    m_pTree->sortItems(0, Qt::AscendingOrder);
}

void CPalettePopup::PopUp(const QPoint& corner)
{
    m_pSearch->clear();
    SetFilter(QString());
    const QWidget& window = *parentWidget()->window();
    const QRect room = QRect(window.mapToGlobal(QPoint(0, 0)), window.size())
                           .adjusted(g_iFromEdge, g_iFromEdge, -g_iFromEdge, -g_iFromEdge);
    move(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width())),
         std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    m_pTree->scrollToTop();
    show();
    m_pSearch->setFocus();
}

void CPalettePopup::SetFilter(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QTreeWidgetItem* best = nullptr;
    int bestRank = 0;
    int rows = 0;
    for (int i = 0; i < m_pTree->topLevelItemCount(); ++i)
    {
        QTreeWidgetItem* group = m_pTree->topLevelItem(i);
        bool isEmpty = true;
        for (int j = 0; j < group->childCount(); ++j)
        {
            QTreeWidgetItem* row = group->child(j);
            const bool isShown = HasWords(row->data(0, g_iSearchRole).toString(), words);
            row->setHidden(!isShown);
            rows += isShown;
            isEmpty = isEmpty && !isShown;
            const int rank = Rank(row->text(0), text.trimmed());
            if (isShown && !words.isEmpty() && (!best || rank < bestRank))
            {
                best = row;
                bestRank = rank;
            }
        }
        group->setHidden(isEmpty);
        rows += !isEmpty;
        group->setExpanded(!words.isEmpty());
    }
    m_pTree->setCurrentItem(best);
    // As tall as what was found.
    const int height = words.isEmpty() ? g_size.height() : g_iSearchHeight + rows * g_iRowHeight;
    resize(width(), std::clamp(height, g_iLeastHeight, g_size.height()));
}

QStringList CPalettePopup::GetShown() const
{
    QStringList names;
    for (QTreeWidgetItemIterator row(m_pTree, QTreeWidgetItemIterator::NotHidden); *row; ++row)
        if ((*row)->parent())
            names << (*row)->data(0, g_iNameRole).toString();
    return names;
}

QString CPalettePopup::GetCurrent() const
{
    const QTreeWidgetItem* row = m_pTree->currentItem();
    return row ? row->data(0, g_iNameRole).toString() : QString();
}

void CPalettePopup::Choose(const QTreeWidgetItem* row)
{
    if (!row || !row->parent())
        return;
    const QString name = row->data(0, g_iNameRole).toString();
    close();
    Q_EMIT Chosen(name);
}

void CPalettePopup::MoveCurrent(int step)
{
    QTreeWidgetItem* before = m_pTree->currentItem();
    QList<QTreeWidgetItem*> rows;
    for (QTreeWidgetItemIterator row(m_pTree, QTreeWidgetItemIterator::NotHidden); *row; ++row)
        if ((*row)->parent())
            rows << *row;
    if (rows.isEmpty())
        return;
    const int at = before ? int(rows.indexOf(before)) : -step;
    QTreeWidgetItem* row = rows[std::clamp(at + step, 0, int(rows.size()) - 1)];
    m_pTree->setCurrentItem(row); // opens its group
    m_pTree->scrollToItem(row);
}

bool CPalettePopup::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key())
    {
    case Qt::Key_Down:
    case Qt::Key_Tab:
        MoveCurrent(1);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        MoveCurrent(-1);
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        return QFrame::eventFilter(watched, event);
    }
}
