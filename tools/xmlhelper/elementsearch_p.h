#ifndef XMLHELPER_ELEMENTSEARCH_P_H
#define XMLHELPER_ELEMENTSEARCH_P_H

#include <list>

#include <QDomElement>
#include <QDomNode>
#include <QString>

/// Searches for nodes by name, shared by the reader and the DOM parser. Names are compared exactly.
///
/// Children are compared by their node name, so that "#text" finds texts and a processing instruction is found by its
/// target. The element at which a search starts, and each element that is searched below it, is compared by its tag
/// name; when that matches, the result names the top node of the content in its place. The two names differ only in
/// documents that were read with namespace processing, where the tag name lacks the prefix.
class ElementSearch
{
public:
    /// @param topNode  the top node of the content that is searched
    explicit ElementSearch(const QDomNode& topNode);

    /// Appends every match below @p start in document order to @p results. Matches inside a match are not reported.
    void AppendMatches(const QString& name, const QDomElement& start, std::list<QDomNode>& results) const;

    /// The first element that matches at or below @p start in document order, or the top node in place of an element
    /// compared by its tag name; a null node when there is none. A match that is no element ends the search below its
    /// parent: what follows it there is not found.
    QDomNode FirstMatch(const QString& name, const QDomElement& start) const;

    /// Whether AppendMatches() below @p start would report @p node; found by climbing from the node, not by a search.
    /// For documents read without namespace processing.
    bool IsMatch(const QString& name, const QDomElement& start, const QDomNode& node) const;

private:
    QDomNode m_topNode;
};

#endif
