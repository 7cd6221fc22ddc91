#include "picturefile.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace
{

bool IsJpeg(const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending.startsWith(QLatin1String("jp")) || ending == QLatin1String("jfif"))
        return ending != QLatin1String("jp2");
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(2) == "\xff\xd8";
}

} // namespace

QString GetFileToRead(const CImageOperation& operation)
{
    for (const sImageProperty& property : operation.GetInfo().m_vProperties)
        if (property.m_eKind == ePropertyFile && !property.m_bSavesFile)
            return QString::fromStdString(operation.GetText(property));
    return {};
}

std::string FindProblem(const CImageOperation& operation)
{
    const QString path = GetFileToRead(operation);
    // Some read from elsewhere when they are given an address.
    if (path.isEmpty() || path.contains(QLatin1String("://")))
        return {};
    const QFileInfo file(path);
    if (!file.exists())
        return "There is no file " + path.toStdString();
    if (!file.isFile() || !file.isReadable())
        return "The file " + path.toStdString() + " cannot be read";
    return {};
}

std::string CheckPicture(const QString& path)
{
    if (IsJpeg(path) && QImage(path, "jpg").isNull())
        return "The file is no JPEG picture, or is damaged";
    return {};
}
