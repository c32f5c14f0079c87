#ifndef XMLHELPER_TESTS_REFERENCEREPORT_H
#define XMLHELPER_TESTS_REFERENCEREPORT_H

#include <list>
#include <memory>

#include <QDomDocument>
#include <QDomElement>
#include <QString>

#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/schemamodel.h>

class XmlSchemaHandler;

/// Walks and fills the skeleton of a schema by the rules of the library as they are told, without any of its short
/// cuts: whether an element may be missing is found out by searching the whole document, and the walk recurses. Slow,
/// and meant to be read beside the rules; the library is held against it.
///
/// Knows texts as values only, and no facets.
class ReferenceReport
{
public:
    explicit ReferenceReport(IXMLHelper* observer);
    ~ReferenceReport();

    /// Reads the schema with the library's handler and walks what it has laid out.
    void Create(const QString& schemaPath);

    void SetXmlValue(const QString& value);
    void SetElementMaxOccurs(const QString& name, int count);
    void DiscardChoiceItem();

    const QDomDocument& Document() const { return *m_pDocument; }

private:
    Q_DISABLE_COPY(ReferenceReport)

    using Nodes = std::list<QDomNode>;

    // The walk.
    void walk();
    void walkChildren(const QDomNode& parent);
    void takeText(const QDomNode& node, QString& text);
    void announce(const QDomNode& node, const QString& text);
    bool checkCurrentElement();
    bool isOptional();
    bool isChoiceAlternative() const;
    void continueAt(const QDomNode& node, bool revisit);
    QDomNode remove(const QDomNode& node);

    // The searches.
    void searchNodes(const QString& name, const QDomElement& element, Nodes& results) const;
    QDomNode searchStartNode(const QString& name, const QDomElement& element) const;
    Nodes searchElements(const QString& name, const QString& ownerName) const;

    bool isBelow(const QString& owner, const QString& tagName, const QDomElement& element) const;
    bool isCountAllowed(const QString& name, const QString& tagName, int count, const QDomElement& element);
    void send(int errorID);

    IXMLHelper* m_pObserver;
    std::unique_ptr<XmlSchemaHandler> m_pHandler;
    QDomDocument* m_pDocument;
    OccursMap m_occurs;
    ChoiceMap m_choices;
    QDomElement m_current;
    QDomElement m_probation;
    QDomNode m_resume;
    bool m_bResume;
    bool m_bRevisit;
    QString m_sLastMultiplied;
    int m_iDiscarded;
    Nodes m_removed; ///< kept alive until the walk has ended
};

#endif
