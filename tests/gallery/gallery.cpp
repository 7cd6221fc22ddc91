#include "pictures.h"

#include <qttextencoding.h>

#include <QApplication>
#include <QDir>
#include <QTextStream>

// Writes every picture of the gallery into a folder.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QTextStream out(stdout);
    if (application.arguments().size() != 2)
    {
        out << "usage: inspector-gallery FOLDER\n";
        return 2;
    }
    const QDir folder(application.arguments().at(1));
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    PrepareGallery();
    for (const sPicture& picture : GalleryPictures())
    {
        const QString file = folder.filePath(picture.m_sName + QStringLiteral(".png"));
        if (!picture.m_Draw().save(file))
        {
            out << "cannot write " << file << '\n';
            return 1;
        }
        out << file << '\n';
    }
    return 0;
}
