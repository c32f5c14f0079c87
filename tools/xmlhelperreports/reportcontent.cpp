#include "reportcontent_p.h"

#include <vector>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QXmlStreamReader>

#include "skeletonplaces_p.h"

namespace {

/// An element that has begun and not ended.
struct OpenElement
{
    QString name;
    int index; ///< among those of its name below one parent
    QHash<QString, int> children; ///< how many of each name there are so far
    QString text;
};

bool isMeant(const ValuePath& path, const std::vector<OpenElement>& way)
{
    const std::size_t above = path.anchor == ValuePath::Anchor::BelowRoot ? 1 : 0;
    const bool isAnywhere = path.anchor == ValuePath::Anchor::Anywhere;
    if (way.size() < path.steps.size() + above || (!isAnywhere && way.size() > path.steps.size() + above)) {
        return false;
    }
    const std::size_t first = way.size() - path.steps.size();
    for (std::size_t i = 0; i < path.steps.size(); ++i) {
        const ValuePath::Step& step = path.steps[i];
        const OpenElement& element = way[first + i];
        if (step.name != element.name || (step.index > 0 && step.index != element.index)) {
            return false;
        }
    }
    return true;
}

/// Takes values by their names from a report as it is read.
class ValueTaker
{
public:
    explicit ValueTaker(const QStringList& names)
        : m_names(names)
    {
        for (const QString& name : names) {
            m_paths.push_back(parsedPath(name));
        }
    }

    void Take(QIODevice& device);

    QMap<QString, QString> values;
    QString comment;

private:
    void begin(const QXmlStreamReader& reader);
    void end();
    void add(int name, const QString& value);

    const QStringList m_names;
    std::vector<ValuePath> m_paths;
    std::vector<OpenElement> m_way;
};

void ValueTaker::Take(QIODevice& device)
{
    QXmlStreamReader reader(&device);
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            begin(reader);
            break;
        case QXmlStreamReader::EndElement:
            end();
            break;
        case QXmlStreamReader::Characters:
            m_way.back().text += reader.text();
            break;
        default:
            break;
        }
    }
}

void ValueTaker::begin(const QXmlStreamReader& reader)
{
    const QString name = reader.qualifiedName().toString();
    const int index = m_way.empty() ? 1 : ++m_way.back().children[name];
    m_way.push_back({name, index, {}, {}});
    for (int i = 0; i < int(m_paths.size()); ++i) {
        const ValuePath& path = m_paths[std::size_t(i)];
        if (!path.attribute.isEmpty() && reader.attributes().hasAttribute(path.attribute) && isMeant(path, m_way)) {
            add(i, reader.attributes().value(path.attribute).toString());
        }
    }
}

void ValueTaker::end()
{
    const OpenElement& element = m_way.back();
    for (int i = 0; i < int(m_paths.size()); ++i) {
        const ValuePath& path = m_paths[std::size_t(i)];
        if (path.attribute.isEmpty() && element.children.isEmpty() && isMeant(path, m_way)) {
            add(i, element.text.trimmed());
        }
    }
    // The library appends the operator's comment to the root.
    if (m_way.size() == 2 && element.name == QLatin1String("Comment")) {
        comment = element.text;
    }
    m_way.pop_back();
}

void ValueTaker::add(int name, const QString& value)
{
    if (!m_paths[std::size_t(name)].isValid) {
        return;
    }
    QString& all = values[m_names[name]];
    all += all.isEmpty() ? value : QStringLiteral("; ") + value;
}

/// A fault in the middle looks like an end.
QByteArray hashOf(QFile& file)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return hash.addData(&file) && file.error() == QFile::NoError ? hash.result().toHex() : QByteArray();
}

/// A pipe or a device is not read: it could last for ever.
bool openToRead(QFile& file)
{
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
}

} // namespace

ReportContent readContent(const QString& fileName, const QStringList& names)
{
    ReportContent content;
    QFile file(fileName);
    if (!openToRead(file)) {
        return content;
    }
    content.time = QFileInfo(file).lastModified().toUTC();
    content.size = file.size();
    content.hash = hashOf(file);
    content.isRead = !content.hash.isEmpty() && file.seek(0);
    ValueTaker taker(names);
    taker.Take(file);
    content.comment = taker.comment;
    content.values = taker.values;
    return content;
}

QByteArray hashOf(const QString& fileName)
{
    QFile file(fileName);
    return openToRead(file) ? hashOf(file) : QByteArray();
}
