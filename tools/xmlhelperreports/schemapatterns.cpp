#include "schemapatterns_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QXmlStreamReader>

#include <xmlhelper/limits_p.h>

namespace {

class PatternSearch
{
public:
    QSet<QString> Search(const QString& schema);

private:
    void readFile(const QString& fileName);
    void readTag(const QXmlStreamReader& reader, const QDir& folder);

    QStringList m_files; ///< found so far
    QStringList m_patterns; ///< of the restriction that is being read
    QSet<QString> m_found;
};

QSet<QString> PatternSearch::Search(const QString& schema)
{
    m_files.append(QFileInfo(schema).absoluteFilePath());
    for (int i = 0; i < int(m_files.size()) && i < limits().schemaFiles; ++i) {
        readFile(m_files.at(i));
    }
    return m_found;
}

void PatternSearch::readFile(const QString& fileName)
{
    QFile file(fileName);
    if (!QFileInfo(fileName).isFile() || !file.open(QIODevice::ReadOnly)) {
        return;
    }
    const QDir folder = QFileInfo(fileName).absoluteDir();
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            readTag(reader, folder);
        }
    }
}

void PatternSearch::readTag(const QXmlStreamReader& reader, const QDir& folder)
{
    if (reader.name() == QLatin1String("restriction")) {
        m_patterns.clear();
    } else if (reader.name() == QLatin1String("pattern")) {
        m_patterns.append(reader.attributes().value(QLatin1String("value")).toString());
        if (m_patterns.size() > 1) {
            m_found.insert(m_patterns.last());
        }
    } else if (reader.name() == QLatin1String("include")) {
        const QString included = reader.attributes().value(QLatin1String("schemaLocation")).toString();
        const QString path = QDir::cleanPath(folder.absoluteFilePath(included));
        if (!m_files.contains(path)) {
            m_files.append(path);
        }
    }
}

} // namespace

QSet<QString> patternsBesideOthers(const QString& schema)
{
    return PatternSearch().Search(schema);
}
