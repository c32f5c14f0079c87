#include "reportfile_p.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <xmlhelper/filesaving_p.h>

bool isSameFile(const QString& schema, const QString& report)
{
    const QString canonical = QFileInfo(openableFileName(report)).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(openableFileName(schema)).canonicalFilePath();
}

QString reasonAgainst(const QString& schema)
{
    QFile file(openableFileName(schema));
    if (!QFileInfo::exists(file.fileName())) {
        return QStringLiteral("there is no such file");
    }
    if (!QFileInfo(file.fileName()).isFile() || !file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("it cannot be opened");
    }
    const QString fault = faultOfXml(file);
    return !fault.isEmpty() ? QStringLiteral("it is not well-formed XML, %1").arg(fault)
                            : QStringLiteral("a definition or a file that it uses is missing or at fault, or it is "
                                             "beyond the limits");
}

QString faultOfXml(QIODevice& device)
{
    QXmlStreamReader reader(&device);
    while (!reader.atEnd()) {
        reader.readNext();
    }
    return reader.hasError()
        ? QStringLiteral("line %1: %2").arg(QString::number(reader.lineNumber()), reader.errorString())
        : QString();
}

bool putFile(const QString& file, const QString& report, SavedFile& saved)
{
    QFile from(file);
    const auto copy = [&from](QIODevice& to) {
        const qint64 piece = 1024 * 1024;
        bool isTaken = from.seek(0);
        while (isTaken && !from.atEnd()) {
            const QByteArray bytes = from.read(piece);
            isTaken = !bytes.isEmpty() && to.write(bytes) == bytes.size();
        }
        return isTaken;
    };
    return from.open(QIODevice::ReadOnly) && saveFile(report, copy, &saved);
}
