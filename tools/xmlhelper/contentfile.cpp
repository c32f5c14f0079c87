#include "contentfile_p.h"

#include <QFileInfo>

#include "filesaving_p.h"

ContentFile::ContentFile(const QString& fileName)
    : QFile(openableFileName(fileName))
{
}

bool ContentFile::open(OpenMode mode)
{
    return QFileInfo(fileName()).isFile() && QFile::open(mode);
}
