#include "documentfile.h"

#include <QFile>
#include <QTextStream>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

namespace {

constexpr int SavedIndent = 4;

void useUtf8(QTextStream& stream)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    stream.setCodec(QTextCodec::codecForName("UTF-8"));
#else
    stream.setEncoding(QStringConverter::Utf8);
#endif
    stream.setAutoDetectUnicode(true);
}

QByteArray serialised(const QDomDocument& document)
{
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    useUtf8(stream);
    document.save(stream, SavedIndent);
    stream.flush();
    return bytes;
}

} // namespace

QString openableFileName(const QString& fileName)
{
#ifdef Q_OS_WIN
    return fileName;
#else
    if (QFile::exists(fileName)) {
        return fileName;
    }
    QString slashed = fileName;
    return slashed.replace(QLatin1Char('\\'), QLatin1Char('/'));
#endif
}

bool saveDocument(const QDomDocument& document, const QString& fileName)
{
    QFile file(openableFileName(fileName));
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    // One write instead of one for every line; the bytes are those that a stream on the file would write.
    const QByteArray bytes = serialised(document);
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
    file.close();
    return isWritten;
}
