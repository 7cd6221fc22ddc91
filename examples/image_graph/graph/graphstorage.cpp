// Opening and saving of the document.
#include "../gegl/graphreader.h"
#include "../gegl/graphwriter.h"
#include "graphdocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace
{

std::string FolderOf(const QString& path)
{
    return QFileInfo(path).absolutePath().toStdString();
}

// Without a buffer, so that a full disk is noticed here and not by nobody when the file is closed.
bool WriteAll(QSaveFile& file, const std::string& text)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    const auto size = static_cast<qint64>(text.size());
    for (qint64 done = 0; done < size;)
    {
        const qint64 written = file.write(text.c_str() + done, size - done);
        if (written <= 0)
            return false;
        done += written;
    }
    return true;
}

} // namespace

bool CGraphDocument::Load(const QString& path, QString& message)
{
    QFile file(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!file.open(QIODevice::ReadOnly))
    {
        message = tr("%1 cannot be opened: %2").arg(name, file.errorString());
        return false;
    }
    sGraphFile read;
    std::string error;
    if (!ReadGraph(file.readAll().toStdString(), FolderOf(path), read, error))
    {
        message =
            tr("%1 is not a graph that can be opened: %2").arg(name, QString::fromStdString(error));
        return false;
    }
    message = QString::fromStdString(read.m_sRemark).trimmed();
    Replace(read.m_graph, path, !read.m_bAllPlaced);
    return true;
}

bool CGraphDocument::Save(const QString& path, QString& message)
{
    // The old file stays until the new one is whole.
    QSaveFile file(path);
    const std::string text = WriteGraph(m_graph, GetSavedEnd(), FolderOf(path));
    if (!WriteAll(file, text) || !file.commit())
    {
        message =
            tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(path), file.errorString());
        return false;
    }
    message.clear();
    m_sPath = path;
    m_undo.setClean();
    Q_EMIT StateChanged();
    return true;
}

int CGraphDocument::GetSavedEnd() const
{
    const int viewed = GetViewed();
    for (const int end : m_graph.GetEnds())
    {
        const std::vector<int> upstream = m_graph.GetUpstream(end);
        if (m_graph.Find(end)->GetInfo().m_bHasOutput &&
            std::count(upstream.begin(), upstream.end(), viewed))
            return end;
    }
    // It leads to nothing but files that are written.
    return viewed;
}
