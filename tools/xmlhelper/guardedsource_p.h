#ifndef XMLHELPER_GUARDEDSOURCE_P_H
#define XMLHELPER_GUARDEDSOURCE_P_H

#include <map>
#include <set>

#include <QString>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>

class QXmlSimpleReader;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // The SAX classes: Qt keeps them, with a warning.

/// Finds the references to entities in a text that comes character by character.
class ReferenceFinder
{
public:
    /// Whether @p c is the last character of a reference.
    bool Ends(QChar c);

    /// The name in the reference that ended last; that of a parameter entity begins with "%".
    const QString& Name() const { return m_sName; }

private:
    QString m_sName;
    bool m_bInside = false;
};

/// Counts how deep the parentheses of a text that comes character by character are nested. The end of a markup
/// declaration closes all of them.
class ParenthesisCounter
{
public:
    /// Takes @p c in and gives how many parentheses are open behind it.
    int Take(QChar c);

private:
    int m_iOpen = 0;
};

/// Hands XML to the SAX parser, and ends it early, so that the parse fails, when its document type asks for more than a
/// process should give: the limits are in limits_p.h. Qt itself has no sufficient ones. Its parser replaces references
/// without end when an entity is declared before those it refers to, compares each entity with all others, and recurses
/// over the parentheses of content models.
///
/// Used in place of a QXmlInputSource: Parse() in place of the parser's own. Content without a document type passes
/// untouched.
class GuardedSource : public QXmlInputSource, private QXmlDefaultHandler
{
public:
    /// @param device  what the content is read from, opened by the source if need be; not owned
    explicit GuardedSource(QIODevice* device);
    explicit GuardedSource(const QString& text);
    explicit GuardedSource(const QByteArray& bytes);
    ~GuardedSource() override;

    /// Whether @p text may have a document type at all; reading it through this class takes longer.
    static bool IsNeededFor(const QString& text);

    /// Parses the content with @p parser, whose content and error handlers are the caller's, and gives its result.
    /// Once.
    bool Parse(QXmlSimpleReader& parser);

    /// Which limit the content has exceeded, as a sentence to be traced; empty while it has exceeded none.
    const QString& GetRefusal() const { return m_sRefusal; }

    QChar next() override;

private:
    Q_DISABLE_COPY(GuardedSource)

    bool startDTD(const QString& name, const QString& publicId, const QString& systemId) override;
    bool endDTD() override;
    bool internalEntityDecl(const QString& name, const QString& value) override;

    void watch(QChar c);
    int expandedSize(const QString& name);
    int expandedSizeOfValue(const QString& value);
    void refuse(const QString& reason);
    void refuseContentModel();

    bool m_bDocumentTypeSeen = false;
    bool m_bInsideDocumentType = false;
    bool m_bInsideNext = false;
    ReferenceFinder m_references;
    ParenthesisCounter m_parentheses;
    std::map<QString, QString> m_entities; ///< the value of each name
    std::map<QString, int> m_expandedSizes; ///< as far as they have been asked for
    std::set<QString> m_missing; ///< names that were asked for before they were declared
    int m_iExpandedCharacters = 0;
    QString m_sRefusal;
};

QT_WARNING_POP

#endif
