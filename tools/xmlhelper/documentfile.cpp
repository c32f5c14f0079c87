#include "documentfile.h"

#include <optional>

#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif
#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "textsinpieces.h"
#include "tracing.h"

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

bool isForUtf8(const QDomDocument& document)
{
    const QString declaration = document.firstChild().toProcessingInstruction().data();
    return !declaration.contains(QLatin1String("encoding")) || declaration.contains(QLatin1String("UTF-8"));
}

QByteArray serialised(const QDomDocument& document)
{
    std::optional<TextsInPieces> pieces;
    if (isLongTextKnown()) {
        pieces.emplace(document);
    }
    if (isForUtf8(document)) {
        return document.toString(SavedIndent).toUtf8(); // A stream that encodes does so line by line.
    }
    // Qt gives the stream the encoding that the document declares, if it knows that.
    QByteArray bytes;
    QTextStream stream(&bytes, QIODevice::WriteOnly);
    useUtf8(stream);
    document.save(stream, SavedIndent);
    stream.flush();
    return bytes;
}

/// Whether opening the file for writing would wait until somebody reads it, which may be never.
bool isPipeWithoutReader(const QString& fileName)
{
#ifdef Q_OS_UNIX
    const QByteArray path = QFile::encodeName(fileName);
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0 || !S_ISFIFO(status.st_mode)) {
        return false;
    }
    const int descriptor = ::open(path.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return true;
    }
    ::close(descriptor);
#else
    Q_UNUSED(fileName)
#endif
    return false;
}

/// Takes back what was written of a file: half a document is of no use to anybody. A device stays, and so does a link,
/// over an empty file.
void discard(QFile& file)
{
    trace(QStringLiteral("Only a part could be written of %1, it was discarded!").arg(file.fileName()), "documentfile",
          __LINE__);
    const QFileInfo info(file.fileName());
    if (info.isSymLink() || !info.isFile() || !file.remove()) {
        file.resize(0);
    }
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
    // One write instead of one for every line; the bytes are those that a stream on the file would write. They are
    // complete before the earlier content of the file is lost.
    const QByteArray bytes = serialised(document);
    QFile file(openableFileName(fileName));
    if (isPipeWithoutReader(file.fileName()) || !file.open(QIODevice::WriteOnly)) {
        return false;
    }
    const bool isFlushed = file.write(bytes) == bytes.size() && file.flush();
    file.close();
    const bool isWritten = isFlushed && file.error() == QFile::NoError;
    if (!isWritten) {
        discard(file);
    }
    return isWritten;
}
