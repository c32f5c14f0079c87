#include "reportfile.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <arbase/vorndatetime.h>

namespace {

/// A clock that is set forward during a press must not make us ask for the names of hours.
constexpr qint64 LongestPressMs = 60000;

/// The name that the report widget gives to a report of that moment.
QString reportName(qint64 time)
{
    return Vorn::DateTime(time).toString(QStringLiteral("yyyy-MM-dd_hh-mm-ss-z")) + QStringLiteral(".xml");
}

} // namespace

FileVerdict judgeFile(const QString& path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    if (file.size() == 0) {
        return {FileVerdict::Kind::Empty};
    }
    QXmlStreamReader reader(&file);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    bool isRootOver = false;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : token == QXmlStreamReader::EndElement ? -1 : 0;
        isRootOver = isRootOver || (token == QXmlStreamReader::EndElement && depth == 0);
    }
    if (reader.hasError() && isRootOver) {
        return {FileVerdict::Kind::SeveralRoots, reader.lineNumber(), reader.columnNumber()};
    }
    if (reader.hasError()) {
        return {FileVerdict::Kind::Malformed, reader.lineNumber(), reader.columnNumber()};
    }
    return {FileVerdict::Kind::Sound};
}

QString reportMadeBetween(qint64 first, qint64 last, const QString& directory)
{
    const QDir reports(directory);
    for (qint64 time = first; time <= std::min(last, first + LongestPressMs); ++time) {
        if (reports.exists(reportName(time))) {
            return reports.filePath(reportName(time));
        }
    }
    return {};
}
