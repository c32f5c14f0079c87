#include "givenvalues_p.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>
#include <QLocale>
#include <QSet>
#include <QStringList>

namespace {

const QLatin1String TextKey("#text");
const QLatin1String BelowRoot(".");
const char ByteOrderMark[] = "\xEF\xBB\xBF";

/// The shortest text that gives the same number.
QString textOfNumber(double number)
{
    const double exactIntegers = 9007199254740992; // 2^53: above, not every integer is a number of this type
    return std::trunc(number) == number && std::abs(number) < exactIntegers
        ? QString::number(static_cast<qint64>(number))
        : QString::number(number, 'g', QLocale::FloatingPointShortest);
}

int lastRecordOf(const std::vector<GivenValue>& values)
{
    int last = 0;
    for (const GivenValue& value : values) {
        last = std::max(last, value.record);
    }
    return last;
}

/// Goes through a text that is known to be JSON. Qt's own objects have lost all but one value of a key that is given
/// twice, the order of the keys, and what a long integer does not share with a double.
class JsonText
{
public:
    JsonText(const QByteArray& text, std::vector<GivenValue>& values)
        : m_text(text)
        , m_values(values)
    {
    }

    /// Gives the key that is there twice in one object, behind the number of its line; nothing otherwise.
    QString ReadDocument(int lastRecord);

private:
    char next();
    bool isEnd(char mark) { return next() == mark || next() == '\0'; }
    QByteArray token();
    void readValue(const QString& path, int record);
    void readObject(const QString& path, int record);
    void readArray(const QString& path, int record);
    void readRecords(int lastRecord);

    const QByteArray& m_text;
    std::vector<GivenValue>& m_values;
    int m_at = 0;
    QString m_fault;
};

/// The next character that is no blank.
char JsonText::next()
{
    while (m_at < int(m_text.size()) && std::strchr(" \t\r\n", m_text.at(m_at))) {
        ++m_at;
    }
    return m_at < int(m_text.size()) ? m_text.at(m_at) : '\0';
}

/// A text with its quotes, a number or a word.
QByteArray JsonText::token()
{
    const bool isText = next() == '"';
    const int begin = m_at++;
    while (m_at < int(m_text.size()) && !std::strchr(isText ? "\"" : ",]} \t\r\n", m_text.at(m_at))) {
        m_at += isText && m_text.at(m_at) == '\\' ? 2 : 1;
    }
    m_at += isText ? 1 : 0;
    return m_text.mid(begin, m_at - begin);
}

QJsonValue valueOf(const QByteArray& token)
{
    return QJsonDocument::fromJson('[' + token + ']').array().first();
}

bool isIntegerToken(const QByteArray& token)
{
    return std::all_of(token.begin() + (token.startsWith('-') ? 1 : 0), token.end(),
                       [](char one) { return one >= '0' && one <= '9'; });
}

QString JsonText::ReadDocument(int lastRecord)
{
    if (m_text.startsWith(ByteOrderMark)) {
        m_at = int(std::strlen(ByteOrderMark));
    }
    if (next() == '[') {
        readRecords(lastRecord);
    } else {
        readValue(BelowRoot, 0);
    }
    return m_fault;
}

void JsonText::readRecords(int lastRecord)
{
    ++m_at;
    while (!isEnd(']')) {
        const std::size_t before = m_values.size();
        readValue(BelowRoot, lastRecord + 1);
        lastRecord += m_values.size() > before ? 1 : 0;
        m_at += next() == ',' ? 1 : 0;
    }
}

/// What the object or value at @p path gives.
void JsonText::readValue(const QString& path, int record)
{
    const char first = next();
    if (first == '[') {
        readArray(path, record);
    } else if (first == '{') {
        readObject(path, record);
    } else {
        const QByteArray one = token();
        const QJsonValue value = valueOf(one);
        if (!value.isNull()) {
            const bool isExact = value.isDouble() && isIntegerToken(one);
            m_values.push_back({path, isExact ? QString::fromLatin1(one) : textOf(value.toVariant()), record, -1});
        }
    }
}

void JsonText::readArray(const QString& path, int record)
{
    ++m_at;
    for (int i = 1; !isEnd(']'); ++i) {
        readValue(QStringLiteral("%1[%2]").arg(path).arg(i), record);
        m_at += next() == ',' ? 1 : 0;
    }
    ++m_at;
}

void JsonText::readObject(const QString& path, int record)
{
    QSet<QString> keys;
    ++m_at;
    while (!isEnd('}')) {
        const QString key = valueOf(token()).toString();
        if (keys.contains(key) && m_fault.isEmpty()) {
            const int line = int(m_text.left(m_at).count('\n')) + 1;
            m_fault = QStringLiteral("%1: The key %2 is there twice").arg(QString::number(line), key);
        }
        keys.insert(key);
        m_at += next() == ':' ? 1 : 0;
        const bool isOfObject = key == TextKey || key.startsWith(AttributeMark);
        readValue(isOfObject ? path + (key == TextKey ? QString() : key) : path + QLatin1Char('/') + key, record);
        m_at += next() == ',' ? 1 : 0;
    }
    ++m_at;
}

/// Takes the cells of a text apart. One that begins with a quote may hold separators, line ends and, doubled, quotes,
/// and keeps its blanks; in others a quote is a character.
class CsvText
{
public:
    explicit CsvText(QChar separator)
        : m_separator(separator)
    {
    }

    /// Gives whether each quote is closed.
    bool Read(const QString& text);
    const std::vector<QStringList>& Rows() const { return m_rows; }

private:
    void endCell();

    const QChar m_separator;
    std::vector<QStringList> m_rows;
    QStringList m_row;
    QString m_cell;
    bool m_bQuoted = false; ///< the cell began with a quote
    bool m_bOpen = false; ///< and is within its quotes
};

bool CsvText::Read(const QString& text)
{
    const QLatin1Char quote('"');
    for (int i = 0; i < int(text.size()); ++i) {
        const QChar one = text.at(i);
        if (m_bOpen && one == quote) {
            const bool isDoubled = i + 1 < int(text.size()) && text.at(i + 1) == quote;
            m_bOpen = isDoubled;
            if (isDoubled) {
                m_cell.append(quote);
                ++i;
            }
        } else if (!m_bOpen && (one == m_separator || one == QLatin1Char('\n'))) {
            endCell();
            if (one != m_separator) {
                m_rows.push_back(std::exchange(m_row, QStringList()));
            }
        } else if (!m_bQuoted && one == quote && m_cell.trimmed().isEmpty()) {
            m_bQuoted = true;
            m_bOpen = true;
            m_cell.clear();
        } else if (m_bOpen || !m_bQuoted || !one.isSpace()) {
            m_cell.append(one);
        }
    }
    endCell();
    m_rows.push_back(m_row);
    return !m_bOpen;
}

void CsvText::endCell()
{
    m_row.append(m_bQuoted ? m_cell : m_cell.trimmed());
    m_cell.clear();
    m_bQuoted = false;
}

/// Whichever separator the first row has.
QChar separatorIn(const QString& text)
{
    const QString head = text.section(QLatin1Char('\n'), 0, 0);
    const QString separators = QStringLiteral(",;\t");
    const auto* const separator
        = std::find_if(separators.begin(), separators.end(), [&head](QChar one) { return head.contains(one); });
    return separator == separators.end() ? separators.front() : *separator;
}

/// The text with line feeds as line ends, or what is wrong with it.
QString textIn(QByteArray bytes, QString& fault)
{
    if (bytes.startsWith(ByteOrderMark)) {
        bytes.remove(0, int(std::strlen(ByteOrderMark)));
    }
    QString text = QString::fromUtf8(bytes.constData(), int(bytes.size()));
    const QByteArray understood = text.toUtf8(); // Other than the bytes from the first on that is no UTF-8.
    if (understood != bytes) {
        const auto differing = std::mismatch(bytes.cbegin(), bytes.cend(), understood.cbegin(), understood.cend());
        const auto lineEnds = std::count(bytes.cbegin(), differing.first, '\n');
        fault = QStringLiteral("%1: The text is not in UTF-8").arg(lineEnds + 1);
        return QString();
    }
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

bool isEmpty(const QStringList& row)
{
    return std::all_of(row.begin(), row.end(), [](const QString& cell) { return cell.isEmpty(); });
}

/// What the rows below the first give, under the names that stand in that one. Returns what is wrong with them.
QString readRows(const std::vector<QStringList>& rows, int record, std::vector<GivenValue>& given)
{
    const QStringList& names = rows.front();
    for (std::size_t number = 1; number < rows.size(); ++number) {
        const QStringList& row = rows[number];
        if (isEmpty(row)) {
            continue;
        }
        if (row.size() > names.size()) {
            return QStringLiteral("%1: The row has more cells than the first").arg(number + 1);
        }
        ++record;
        for (int column = 0; column < int(row.size()); ++column) {
            if (!row.at(column).isEmpty()) {
                given.push_back({names.at(column).trimmed(), row.at(column), record, -1});
            }
        }
    }
    return {};
}

} // namespace

QString textOf(const QVariant& value)
{
    switch (static_cast<int>(value.userType())) {
    case QMetaType::Double:
    case QMetaType::Float:
        return textOfNumber(value.toDouble());
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODate);
    case QMetaType::QTime:
        return value.toTime().toString(Qt::ISODate);
    default:
        return value.toString();
    }
}

bool readJson(const QByteArray& json, std::vector<GivenValue>& values, QString& fault)
{
    QJsonParseError error;
    const int nullByte = int(json.indexOf('\0'));
    if (nullByte >= 0) {
        fault = QStringLiteral("%1: The text has a null byte").arg(json.left(nullByte).count('\n') + 1);
        return false;
    }
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (document.isNull()) {
        const int line = int(json.left(error.offset).count('\n')) + 1;
        fault = QStringLiteral("%1: %2").arg(line).arg(error.errorString());
        return false;
    }
    std::vector<GivenValue> given;
    fault = JsonText(json, given).ReadDocument(lastRecordOf(values));
    if (!fault.isEmpty()) {
        return false;
    }
    values.insert(values.end(), given.begin(), given.end());
    return true;
}

bool readCsv(const QByteArray& csv, std::vector<GivenValue>& values, QString& fault)
{
    const QString text = textIn(csv, fault);
    if (!fault.isEmpty()) {
        return false;
    }
    CsvText cells(separatorIn(text));
    const bool isClosed = cells.Read(text);
    if (!isClosed) {
        fault = QStringLiteral("%1: A quote is not closed").arg(cells.Rows().size());
        return false;
    }
    std::vector<GivenValue> given;
    fault = readRows(cells.Rows(), lastRecordOf(values), given);
    if (!fault.isEmpty()) {
        return false;
    }
    values.insert(values.end(), given.begin(), given.end());
    return true;
}

bool readLines(const QByteArray& text, std::vector<GivenValue>& values, QString& fault)
{
    const QStringList lines = textIn(text, fault).split(QLatin1Char('\n'));
    if (!fault.isEmpty()) {
        return false;
    }
    std::vector<GivenValue> given;
    for (int number = 0; number < int(lines.size()); ++number) {
        const QString line = lines.at(number).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        const int separator = int(line.indexOf(QLatin1Char('=')));
        if (separator < 1) {
            fault = QStringLiteral("%1: The line is not of the form name=value").arg(number + 1);
            return false;
        }
        given.push_back({line.left(separator).trimmed(), line.mid(separator + 1).trimmed(), 0, -1});
    }
    values.insert(values.end(), given.begin(), given.end());
    return true;
}
