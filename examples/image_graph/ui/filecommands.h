#pragma once

#include "../graph/graphdocument.h"

#include <QObject>

class QWidget;

/// Opens and saves the document, and asks the user what it takes to do so.
class CFileCommands : public QObject
{
    Q_OBJECT

public:
    CFileCommands(CGraphDocument& document, QWidget* window);

    void New();
    void Open();
    /// Asks about unsaved changes first.
    void OpenRecent(const QString& path);
    /// False, and a message, when there is no opening that; the open graph stays then.
    bool OpenPath(const QString& path);
    /// False when the graph was not saved. A graph without a path asks for one.
    bool Save();
    bool SaveAs();
    /// Asks what is to become of unsaved changes, if there are any. False when the user wants to
    /// stay.
    bool MayDiscard();

Q_SIGNALS:
    void Message(const QString& text);
    void RecentFilesChanged();

private:
    bool SaveTo(const QString& path);

    CGraphDocument& m_document;
    QWidget* m_pWindow;
};
