#include "documentfile_p.h"

#include <QTextStream>

#include "filesaving_p.h"
#include "xmlserialiser_p.h"

bool saveDocument(const QDomDocument& document, const QString& fileName)
{
    constexpr int indent = 4;
    return saveFile(fileName, [&document](QIODevice& device) {
        QTextStream stream(&device);
        return serialise(document, stream, indent);
    });
}
