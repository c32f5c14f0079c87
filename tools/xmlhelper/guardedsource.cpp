#include "guardedsource_p.h"

#include <algorithm>

#include <QScopeGuard>
#include <QXmlSimpleReader>

#include "limits_p.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

/// Stands for every size beyond the limit, so that sums stay in range.
int tooManyCharacters()
{
    return limits().expandedCharacters + 1;
}

bool isCharacterReference(const QString& name)
{
    return name.startsWith(QLatin1Char('#'));
}

bool isContentModelTooDeep(const QString& text)
{
    ParenthesisCounter parentheses;
    return std::any_of(text.begin(), text.end(),
                       [&parentheses](QChar c) { return parentheses.Take(c) > limits().contentModelNesting; });
}

} // namespace

bool ReferenceFinder::Ends(QChar c)
{
    if (c == QLatin1Char('&') || c == QLatin1Char('%')) {
        m_sName = c == QLatin1Char('%') ? QString(c) : QString();
        m_bInside = true;
    } else if (m_bInside && c == QLatin1Char(';')) {
        m_bInside = false;
        return true;
    } else if (c.isSpace()) {
        m_bInside = false;
    } else if (m_bInside) {
        m_sName += c;
    }
    return false;
}

int ParenthesisCounter::Take(QChar c)
{
    if (c == QLatin1Char('(')) {
        ++m_iOpen;
    } else if (c == QLatin1Char(')')) {
        m_iOpen = std::max(0, m_iOpen - 1);
    } else if (c == QLatin1Char('>')) {
        m_iOpen = 0;
    }
    return m_iOpen;
}

GuardedSource::GuardedSource(QIODevice* device)
    : QXmlInputSource(device)
{
}

GuardedSource::GuardedSource(const QString& text)
{
    setData(text);
}

GuardedSource::GuardedSource(const QByteArray& bytes)
{
    setData(bytes);
}

GuardedSource::~GuardedSource() = default;

bool GuardedSource::IsNeededFor(const QString& text)
{
    return text.contains(QLatin1String("<!DOCTYPE"));
}

bool GuardedSource::Parse(QXmlSimpleReader& parser)
{
    parser.setLexicalHandler(this);
    parser.setDeclHandler(this);
    const auto leave = qScopeGuard([&] { // also when an observer throws
        parser.setLexicalHandler(nullptr);
        parser.setDeclHandler(nullptr);
    });
    return parser.parse(this);
}

QChar GuardedSource::next()
{
    // At the start of each piece of a device, Qt calls this function from inside its own.
    if (!m_bDocumentTypeSeen || m_bInsideNext) {
        return QXmlInputSource::next();
    }
    m_bInsideNext = true;
    const QChar c = QXmlInputSource::next();
    m_bInsideNext = false;
    if (c != EndOfData) {
        watch(c);
    }
    return m_sRefusal.isEmpty() ? c : QChar(EndOfDocument);
}

bool GuardedSource::startDTD(const QString&, const QString&, const QString&)
{
    m_bDocumentTypeSeen = true;
    m_bInsideDocumentType = true;
    return true;
}

bool GuardedSource::endDTD()
{
    m_bInsideDocumentType = false;
    return true;
}

bool GuardedSource::internalEntityDecl(const QString& name, const QString& value)
{
    m_entities.emplace(name, value);
    if (int(m_entities.size()) > limits().entities) {
        refuse(QStringLiteral("The content declares more than %1 entities!").arg(limits().entities));
    }
    // A value may bring parentheses that were written as numbers, and were not seen as such on their way in.
    if (isContentModelTooDeep(value)) {
        refuseContentModel();
    }
    if (m_missing.erase(name) > 0) {
        m_expandedSizes.clear();
    }
    return m_sRefusal.isEmpty();
}

void GuardedSource::watch(QChar c)
{
    if (m_bInsideDocumentType && m_parentheses.Take(c) > limits().contentModelNesting) {
        refuseContentModel();
    }
    if (!m_references.Ends(c)) {
        return;
    }
    m_iExpandedCharacters += expandedSize(m_references.Name());
    if (m_iExpandedCharacters > limits().expandedCharacters) {
        refuse(QStringLiteral("The entities of the content expand to more than %1 characters!")
                   .arg(limits().expandedCharacters));
    }
}

/// How many characters a reference to an entity becomes; 0 when none of that name has been declared yet.
int GuardedSource::expandedSize(const QString& name)
{
    const auto entity = m_entities.find(name);
    if (entity == m_entities.end()) {
        if (m_bInsideDocumentType) {
            m_missing.insert(name);
        }
        return 0;
    }
    // What is found by an entity that refers to itself.
    const auto [size, isNew] = m_expandedSizes.emplace(name, tooManyCharacters());
    if (isNew) {
        size->second = expandedSizeOfValue(entity->second);
    }
    return size->second;
}

int GuardedSource::expandedSizeOfValue(const QString& value)
{
    // References to what is declared right before them, as the value is expanded, cannot be measured.
    const bool isDeclaringEntities = value.contains(QLatin1String("<!ENTITY"));
    qint64 size = value.size();
    ReferenceFinder references;
    for (const QChar c : value) {
        if (references.Ends(c) && !isCharacterReference(references.Name())) {
            size += isDeclaringEntities ? tooManyCharacters() : expandedSize(references.Name());
        }
    }
    return static_cast<int>(std::min<qint64>(size, tooManyCharacters()));
}

void GuardedSource::refuse(const QString& reason)
{
    if (m_sRefusal.isEmpty()) {
        m_sRefusal = reason;
    }
}

void GuardedSource::refuseContentModel()
{
    refuse(QStringLiteral("A content model is nested deeper than %1 parentheses!").arg(limits().contentModelNesting));
}
