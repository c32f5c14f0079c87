#include "documentfile_p.h"

#include <QBuffer>
#include <QTextStream>

#include "filesaving_p.h"
#include "xmlserialiser_p.h"

namespace {

bool writeDocument(const QDomDocument& document, QIODevice& device)
{
    constexpr int indent = 4;
    QTextStream stream(&device);
    return serialise(document, stream, indent);
}

} // namespace

bool saveDocument(const QDomDocument& document, const QString& fileName, SavedFile* saved)
{
    return saveFile(
        fileName, [&document](QIODevice& device) { return writeDocument(document, device); }, saved);
}

QByteArray savedBytesOf(const QDomDocument& document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    writeDocument(document, buffer);
    return buffer.data();
}
