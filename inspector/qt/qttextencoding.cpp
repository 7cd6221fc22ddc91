#include <qttextencoding.h>

#include "text.h"

#include <QByteArray>

namespace
{

CQTTextEncoding::eTextEncoding g_eEncoding = CQTTextEncoding::eTextEncodingLatin1;

QString FromUtf8(const std::string& text)
{
    // Qt swallows one leading byte order mark, which is a character of the text here.
    const std::string mark("\xEF\xBB\xBF");
    const std::string bytes = text.compare(0, mark.size(), mark) == 0 ? mark + text : text;
    return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size()));
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
    // With the size given, as Qt 5 otherwise reads up to the first zero byte.
    if (g_eEncoding == CQTTextEncoding::eTextEncodingUtf8)
        return FromUtf8(text);
    return QString::fromLatin1(text.data(), static_cast<int>(text.size()));
}

std::string ToNarrow(const QString& text)
{
    const QByteArray bytes =
        g_eEncoding == CQTTextEncoding::eTextEncodingUtf8 ? text.toUtf8() : text.toLatin1();
    return bytes.constData();
}
