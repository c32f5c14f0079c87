#include "contentfile.h"

#include <QFileInfo>

#include "documentfile.h"

ContentFile::ContentFile(const QString& fileName)
    : QFile(openableFileName(fileName))
{
}

bool ContentFile::open(OpenMode mode)
{
    return QFileInfo(fileName()).isFile() && QFile::open(mode);
}
