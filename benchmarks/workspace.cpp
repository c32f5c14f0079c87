#include "workspace.h"

#include <algorithm>

#include <QFile>
#include <QStringList>
#include <QXmlStreamReader>

namespace {

QString attributesText(const QXmlStreamAttributes& attributes)
{
    QStringList texts;
    for (const QXmlStreamAttribute& attribute : attributes) {
        texts.append(QLatin1Char(' ') + attribute.qualifiedName().toString() + QLatin1Char('=')
                     + attribute.value().toString());
    }
    texts.sort();
    return texts.join(QString());
}

} // namespace

QString Workspace::Write(const QString& name, const QByteArray& content) const
{
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    }
    return file.fileName();
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QDomDocument documentOf(const QByteArray& content)
{
    QDomDocument document;
    document.setContent(content);
    return document;
}

QString canonicalText(const QByteArray& content)
{
    QString text;
    QXmlStreamReader reader(content);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            text += QLatin1Char('<') + reader.qualifiedName().toString() + attributesText(reader.attributes())
                + QLatin1Char('>');
            break;
        case QXmlStreamReader::EndElement:
            text += QLatin1String("</>");
            break;
        case QXmlStreamReader::Characters:
            text += reader.text().toString().trimmed();
            break;
        default:
            break;
        }
    }
    return reader.hasError() ? reader.errorString() : text;
}

QString canonicalText(const QDomDocument& document)
{
    return canonicalText(document.toByteArray(-1));
}

QString differenceOf(const QString& library, const QString& floor)
{
    if (library == floor) {
        return QString();
    }
    const auto [here, there] = std::mismatch(library.begin(), library.end(), floor.begin(), floor.end());
    const auto position = static_cast<int>(here - library.begin());
    const int from = std::max(0, position - 40);
    return QStringLiteral("the results differ: '%1' and '%2'").arg(library.mid(from, 120), floor.mid(from, 120));
}
