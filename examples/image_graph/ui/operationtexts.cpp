#include "operationtexts.h"

#include "../gegl/imageproperty.h"

QString TitleOf(const sOperationInfo& info)
{
    return QString::fromStdString(info.m_sTitle);
}

QString CategoryOf(const sOperationInfo& info)
{
    QString category = QString::fromStdString(info.m_sCategories).section(QLatin1Char(':'), 0, 0);
    if (category.isEmpty())
        return QStringLiteral("Other");
    category[0] = category[0].toUpper();
    return category.replace(QLatin1Char('-'), QLatin1Char(' '));
}

QString HelpOf(const sOperationInfo& info)
{
    const QString name = QString::fromStdString(info.m_sName);
    return info.m_sDescription.empty()
               ? name
               : name + QLatin1Char('\n') + QString::fromStdString(info.m_sDescription);
}
