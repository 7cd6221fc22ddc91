#include "filecommands.h"

#include "recentfiles.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace
{

bool ComesWithTheProgram(const QString& path)
{
    return path.startsWith(QLatin1Char(':'));
}

} // namespace

CFileCommands::CFileCommands(CGraphDocument& document, QWidget* window)
    : QObject(window), m_document(document), m_pWindow(window)
{
}

void CFileCommands::New()
{
    if (MayDiscard())
        m_document.Clear();
}

void CFileCommands::Open()
{
    if (!MayDiscard())
        return;
    const QString path =
        QFileDialog::getOpenFileName(m_pWindow, tr("Open a graph"), m_document.GetPath(),
                                     tr("Graphs (*.xml *.gegl);;All files (*)"));
    if (!path.isEmpty())
        OpenPath(path);
}

void CFileCommands::OpenRecent(const QString& path)
{
    if (MayDiscard())
        OpenPath(path);
}

bool CFileCommands::OpenPath(const QString& path)
{
    QString message;
    const bool isOpen = m_document.Load(path, message);
    Q_EMIT Message(message);
    if (isOpen)
    {
        CRecentFiles::Add(path);
        Q_EMIT RecentFilesChanged();
    }
    else if (m_pWindow->isVisible())
        QMessageBox::warning(m_pWindow, tr("Open a graph"), message);
    return isOpen;
}

bool CFileCommands::Save()
{
    const QString path = m_document.GetPath();
    return path.isEmpty() || ComesWithTheProgram(path) ? SaveAs() : SaveTo(path);
}

bool CFileCommands::SaveAs()
{
    QString suggested = m_document.GetPath();
    if (ComesWithTheProgram(suggested))
        suggested = QFileInfo(suggested).fileName();
    const QString path = QFileDialog::getSaveFileName(m_pWindow, tr("Save the graph"), suggested,
                                                      tr("Graphs (*.xml);;All files (*)"));
    return !path.isEmpty() && SaveTo(path);
}

bool CFileCommands::SaveTo(const QString& path)
{
    QString message;
    if (!m_document.Save(path, message))
    {
        Q_EMIT Message(message);
        QMessageBox::warning(m_pWindow, tr("Save the graph"), message);
        return false;
    }
    CRecentFiles::Add(path);
    Q_EMIT RecentFilesChanged();
    Q_EMIT Message(tr("Saved %1.").arg(QFileInfo(path).fileName()));
    return true;
}

bool CFileCommands::MayDiscard()
{
    if (!m_document.IsModified())
        return true;
    const QMessageBox::StandardButton answer = QMessageBox::question(
        m_pWindow, tr("Unsaved changes"), tr("The graph was changed and not saved."),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save());
}
