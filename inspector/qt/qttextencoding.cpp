#include <qttextencoding.h>

#include "text.h"

#include <QByteArray>

namespace
{

CQTTextEncoding::eTextEncoding g_eEncoding = CQTTextEncoding::eTextEncodingLatin1;

QString FromUtf8(const QByteArray& bytes)
{
    // Qt swallows a leading byte order mark, which is a character of the text here.
    const QByteArray mark("\xEF\xBB\xBF");
    if (!bytes.startsWith(mark))
        return QString::fromUtf8(bytes);
    return QChar(QChar::ByteOrderMark) + QString::fromUtf8(bytes.mid(mark.size()));
}

} // namespace

void CQTTextEncoding::SetEncoding(eTextEncoding encoding)
{
    g_eEncoding = encoding;
}

CQTTextEncoding::eTextEncoding CQTTextEncoding::GetEncoding()
{
    return g_eEncoding;
}

QString ToQString(const std::string& text)
{
    const QByteArray bytes = QByteArray::fromRawData(text.data(), static_cast<int>(text.size()));
    if (g_eEncoding == CQTTextEncoding::eTextEncodingUtf8)
        return FromUtf8(bytes);
    return QString::fromLatin1(bytes);
}

std::string ToNarrow(const QString& text)
{
    const QByteArray bytes =
        g_eEncoding == CQTTextEncoding::eTextEncodingUtf8 ? text.toUtf8() : text.toLatin1();
    return bytes.constData();
}
