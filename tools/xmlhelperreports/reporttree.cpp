#include "reporttree_p.h"

#include <algorithm>
#include <utility>

#include <QXmlInputSource>
#include <QXmlStreamReader>

#include <xmlhelper/contentfile_p.h>
#include <xmlhelper/limits_p.h>

QT_WARNING_DISABLE_DEPRECATED

namespace {

/// What tells a parser or a validator something, and no reader.
bool isOfXmlItself(const QString& attribute)
{
    return attribute == QLatin1String("xmlns") || attribute.startsWith(QLatin1String("xmlns:"))
        || attribute.startsWith(QLatin1String("xsi:"));
}

/// The parser compares each attribute of a tag with all others of it: so many comparisons take some seconds.
constexpr qint64 MaxComparisons = 400000000;

/// What begins with "<" and is no tag.
const std::pair<QLatin1String, QLatin1String> nonTags[] = {
    {QLatin1String("<?"), QLatin1String("?>")},
    {QLatin1String("<!--"), QLatin1String("-->")},
    {QLatin1String("<![CDATA["), QLatin1String("]]>")},
};

/// The index of the end of what begins at @p index with "<". Counts attributes: each has its quotes.
int endOfMarkup(const QString& text, int index, qint64& attributes)
{
    for (const auto& [begin, end] : nonTags) {
        if (text.mid(index, int(begin.size())) == begin) {
            const int found = int(text.indexOf(end, index));
            return found < 0 ? int(text.size()) : found;
        }
    }
    QChar quote;
    for (; index < text.size() && (!quote.isNull() || text.at(index) != QLatin1Char('>')); ++index) {
        const QChar one = text.at(index);
        if (!quote.isNull()) {
            quote = one == quote ? QChar() : quote;
        } else if (one == QLatin1Char('"') || one == QLatin1Char('\'')) {
            quote = one;
            ++attributes;
        }
    }
    return index;
}

bool isTooCostly(const QString& text)
{
    qint64 comparisons = 0;
    int index = int(text.indexOf(QLatin1Char('<')));
    while (index >= 0 && comparisons <= MaxComparisons) {
        qint64 attributes = 0;
        index = int(text.indexOf(QLatin1Char('<'), endOfMarkup(text, index, attributes)));
        comparisons += attributes * attributes;
    }
    return comparisons > MaxComparisons;
}

/// The text of a file, from whichever encoding it declares.
QString decoded(const QByteArray& bytes)
{
    QXmlInputSource source;
    source.setData(bytes);
    return source.data();
}

} // namespace

/// Reads element after element, without recursion.
class ReportTree::Reader
{
public:
    Reader(const QString& text, ReportNode& root)
        : m_reader(text)
        , m_root(root)
    {
        m_reader.setNamespaceProcessing(false);
    }

    /// Gives why it could not be read; empty when it could.
    QString Read()
    {
        while (m_sReason.isEmpty() && !m_reader.atEnd()) {
            take(m_reader.readNext());
        }
        if (m_sReason.isEmpty() && m_reader.hasError()) {
            m_sReason = tr("It is not well-formed XML, line %1: %2.")
                            .arg(QString::number(m_reader.lineNumber()), m_reader.errorString());
        }
        return m_sReason;
    }

private:
    void take(QXmlStreamReader::TokenType token)
    {
        if (token == QXmlStreamReader::DTD) {
            m_sReason = tr("It has a document type, which no report has.");
        } else if (token == QXmlStreamReader::StartElement) {
            begin();
        } else if (token == QXmlStreamReader::Characters && !m_open.empty()) {
            m_open.back()->text += m_reader.text();
        } else if (token == QXmlStreamReader::EndElement) {
            m_open.back()->text = m_open.back()->text.trimmed();
            m_open.pop_back();
        }
    }

    void begin()
    {
        const QXmlStreamAttributes attributes = m_reader.attributes();
        m_iAttributes += int(attributes.size());
        if (++m_iElements > limits().elements || m_iAttributes > limits().attributes
            || int(m_open.size()) >= limits().elementNesting) {
            m_sReason = beyondLimits();
            return;
        }
        // The children of what is open do not move while one of them is open.
        if (!m_open.empty()) {
            m_open.back()->children.emplace_back();
        }
        ReportNode& node = m_open.empty() ? m_root : m_open.back()->children.back();
        node.name = m_reader.qualifiedName().toString();
        for (const QXmlStreamAttribute& attribute : attributes) {
            const QString name = attribute.qualifiedName().toString();
            if (!isOfXmlItself(name)) {
                node.attributes.append({name, attribute.value().toString()});
            }
        }
        m_open.push_back(&node);
    }

    QXmlStreamReader m_reader;
    ReportNode& m_root;
    std::vector<ReportNode*> m_open;
    int m_iElements = 0;
    int m_iAttributes = 0;
    QString m_sReason;
};

QString ReportNode::Attribute(const QString& attribute) const
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const QPair<QString, QString>& one) { return one.first == attribute; });
    return found == attributes.end() ? QString() : found->second;
}

bool ReportTree::Read(const QString& fileName)
{
    m_root = ReportNode();
    ContentFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_sReason = file.exists() ? tr("It cannot be opened.") : tr("There is no such file.");
    } else if (file.size() > limits().savedBytes) {
        m_sReason = tr("It holds more than any report: %1 bytes.").arg(file.size());
    } else {
        return ReadContent(file.readAll());
    }
    return false;
}

bool ReportTree::ReadContent(const QByteArray& content)
{
    m_root = ReportNode();
    const QString text = decoded(content);
    m_sReason = isTooCostly(text) ? beyondLimits() : Reader(text, m_root).Read();
    return m_sReason.isEmpty();
}

QString ReportTree::beyondLimits()
{
    return tr("It holds more than any report: too many elements or attributes, or nested too deeply.");
}
