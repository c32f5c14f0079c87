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

/// Takes so many bytes and fails then.
class ShortBuffer : public QBuffer
{
public:
    explicit ShortBuffer(qint64 atMost)
        : m_iAtMost(atMost)
    {
    }

protected:
    qint64 writeData(const char* bytes, qint64 count) override
    {
        return size() + count > m_iAtMost ? -1 : QBuffer::writeData(bytes, count);
    }

private:
    Q_DISABLE_COPY(ShortBuffer)

    const qint64 m_iAtMost;
};

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

QByteArray savedBytesOf(const QDomDocument& document, qint64 atMost)
{
    ShortBuffer buffer(atMost);
    buffer.open(QIODevice::WriteOnly);
    return writeDocument(document, buffer) ? buffer.data() : QByteArray();
}
