#include "merging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QXmlStreamReader>

namespace schemadoctor {

namespace {

struct Span
{
    qint64 begin = 0;
    qint64 end = 0;
};

/// Where an xs:include stands in a text, and what it names.
struct IncludeSpan
{
    Span span;
    QString location;
};

struct TextSpans
{
    Span inside; ///< of the root
    QVector<IncludeSpan> includes;
};

qint64 beginOfTag(const QString& text, qint64 end)
{
    return text.lastIndexOf(QLatin1Char('<'), int(end) - 1);
}

TextSpans spansOf(const QString& text)
{
    TextSpans spans;
    QXmlStreamReader reader(text);
    int depth = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        const qint64 end = reader.characterOffset();
        if (token == QXmlStreamReader::StartElement && ++depth == 1) {
            spans.inside.begin = end;
        } else if (token == QXmlStreamReader::StartElement && depth == 2 && reader.name() == QLatin1String("include")) {
            const QString location = reader.attributes().value(QLatin1String("schemaLocation")).toString();
            spans.includes.append({{beginOfTag(text, end), end}, location});
        } else if (token == QXmlStreamReader::EndElement && --depth == 0) {
            spans.inside.end = beginOfTag(text, end);
        } else if (token == QXmlStreamReader::EndElement && depth == 1 && reader.name() == QLatin1String("include")) {
            spans.includes.last().span.end = end;
        }
    }
    return spans;
}

QString textOfFile(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The text with its includes replaced, each file once; of an included file what is inside of its root.
QString merged(const QString& name, QSet<QString>& read, bool isTop)
{
    const QString text = textOfFile(name);
    const TextSpans spans = spansOf(text);
    const Span whole {isTop ? 0 : spans.inside.begin, isTop ? qint64(text.size()) : spans.inside.end};
    QString result;
    qint64 position = whole.begin;
    for (const IncludeSpan& include : spans.includes) {
        result.append(text.constData() + position, int(include.span.begin - position));
        position = include.span.end;
        const QString file = QFileInfo(name).dir().filePath(include.location);
        const qsizetype before = read.size();
        read.insert(QFileInfo(file).absoluteFilePath());
        if (read.size() != before) {
            result += merged(file, read, false).trimmed();
        }
    }
    return result + text.mid(int(position), int(whole.end - position));
}

} // namespace

QByteArray mergedText(const TextFile& top)
{
    QSet<QString> read {QFileInfo(top.name).absoluteFilePath()};
    return merged(top.name, read, true).toUtf8();
}

} // namespace schemadoctor
