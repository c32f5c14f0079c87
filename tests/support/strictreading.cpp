#include "strictreading.h"

#include <QFile>
#include <QXmlStreamReader>

QString strictErrorOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("There is no file.");
    }
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return reader.errorString();
}
