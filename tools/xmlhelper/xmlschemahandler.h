#ifndef XMLHELPER_XMLSCHEMAHANDLER_H
#define XMLHELPER_XMLSCHEMAHANDLER_H

#include <memory>

#include <QDomDocument>
#include <QDomElement>
#include <QString>
#include <QXmlAttributes>
#include <QXmlDefaultHandler>

#include "domattributes_p.h"
#include "schemabudget_p.h"
#include "schemamodel.h"
#include "schemareadinglog_p.h"

class GuardedSource;
class IXMLHelper;
class QXmlSimpleReader;
struct SchemaReading;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // The SAX classes: Qt keeps them, with a warning.

/// Reads an XSD file (W3C XML Schema, a fixed small part of it) and leaves behind the skeleton document, which
/// holds every element that the schema declares with its type and constraints as attributes, and the schema model
/// of four maps.
///
/// The report builder makes one handler for the schema, sets it as content and error handler of a SAX parser,
/// parses the file once, takes the maps with HandOver() and works on the document of GetDocument(). Files named by
/// xs:include are read when their tag is met, each by a handler of its own that begins with these maps and hands
/// them back.
///
/// Understood are the qualified names xs:include, xs:complexType, xs:simpleType, xs:element, xs:attribute,
/// xs:restriction with its range and enumeration facets, xs:extension and xs:choice, recognised by the literal
/// prefix; every other tag is passed over and its children are read as if they stood in its place. Attributes are
/// mostly addressed by position: what counts is the first one.
///
/// The content is built in fragments, one for each named type and global declaration. References to definitions
/// that are not usable yet are recorded and laid out at the end of the document; then the skeleton becomes a clone
/// of the fragment of the global declaration that nothing has used, the one with the greatest name when there are
/// several.
///
/// The parse fails at the end of the document when a definition never comes, and early when one of the limits in
/// limits_p.h is exceeded or a local declaration has a name that W3C XML does not allow; all of it is traced. A
/// global declaration of such a name is left out, and characters that XML cannot carry are dropped from what the
/// schema says, with a trace too. No event is ever sent.
///
/// The handler owns the document, the fragments and the elements that the maps point to. Maps that were handed over
/// dangle once it is destroyed. A handler made with a null observer traces it and must not be used.
class XmlSchemaHandler : public QXmlDefaultHandler
{
public:
    /// @param pCallback   the observer; checked and handed on, never called, not owned
    /// @param schemaPath  the path of the file that will be parsed, with slashes; includes are resolved against it
    XmlSchemaHandler(IXMLHelper* pCallback, const QString& schemaPath);
    ~XmlSchemaHandler() override;

    /// Hands over who hears what is made of the schema; null for nobody. Before the file is read; not owned.
    void SetLog(SchemaReadingLog* log);

    /// Makes every given map a copy of the handler's own; one that is the handler's own stays as it is. Always true.
    bool HandOver(UnresolvedTypeMap& unresolvedTypes, OccursMap& occurs, TypeDefinitionMap& typeDefinitions,
                  ChoiceMap& choices) &;
    /// The same for a handler that has done its work: the maps are moved.
    bool HandOver(UnresolvedTypeMap& unresolvedTypes, OccursMap& occurs, TypeDefinitionMap& typeDefinitions,
                  ChoiceMap& choices) &&;

    /// Parses the file called @p fileName with @p parser, which gets the handler for its content and its errors. Gives
    /// what the parse gives. The root's definition is left without content, which is the skeleton's then.
    bool ReadFile(const QString& fileName, QXmlSimpleReader& parser);

    /// The skeleton document itself; stays the handler's. Empty until the end of the schema has been reached.
    QDomDocument* GetDocument() const;

    bool startDocument() override;
    bool endDocument() override;
    bool startElement(const QString& namespaceURI, const QString& localName, const QString& qName,
                      const QXmlAttributes& attributes) override;
    bool endElement(const QString& namespaceURI, const QString& localName, const QString& qName) override;
    bool characters(const QString& ch) override;
    void setDocumentLocator(QXmlLocator* locator) override;
    bool fatalError(const QXmlParseException& exception) override;

private:
    Q_DISABLE_COPY(XmlSchemaHandler)

    struct ElementDeclaration;

    /// What becomes of the content of the root's definition at the end of the document.
    enum class RootUse {
        Copied,
        Moved, ///< into the skeleton: nobody looks at the definition again
        Unused ///< the skeleton of an included file
    };

    XmlSchemaHandler(const std::shared_ptr<SchemaReading>& reading, IXMLHelper* pCallback, const QString& schemaPath);

    // What a listener hears besides the constructs.
    void tellFileBegun(const QString& written, const QString& opened, const SchemaTag& include);
    void tellMissingReferences() const;
    void takeOffAllOrigins();

    QByteArray readBytes(const QString& fileName);
    bool parse(const QByteArray& bytes, QXmlSimpleReader& parser);

    // One small function for each construct of a schema.
    void readTag();
    void readInclude();
    void beginType();
    void beginNamedType();
    void beginGlobalDeclaration();
    bool readGlobalType(const QString& type);
    void readElement();
    void readLocalElement();
    void layOutReference(const ElementDeclaration& declaration);
    void layOutNamedElement(const ElementDeclaration& declaration);
    bool mayRepeat(const ElementDeclaration& declaration);
    void deferNamedElement(const ElementDeclaration& declaration, const QDomElement& first);
    void enterOccurs(QString name, const ElementDeclaration& declaration);
    void beginChoice();
    void beginRestriction();
    void beginExtension();
    void extendDefinition(const QString& base);
    void readAttribute();
    void readLocalAttribute();
    void readAttributeReference(const QString& name);
    void readFacet();
    void endType();

    // The first attribute of the current tag; empty when there is none.
    QString firstName() const;
    QString firstValue() const;
    QString includedFileName() const;

    // Where declarations and annotations go.
    void beginFragment(bool isOfNamedType);
    QDomNode currentFragment() const;
    QDomElement createElement(const QString& name, QDomNode owner);
    void beginCarrier();
    QString nameOf(const QDomNode& node) const;
    bool isCarrier(const QDomNode& node) const;
    template <typename Element>
    void annotate(Element&& element, const QString& name, const QString& value,
                  SchemaReadingLog::AttributeKind kind = SchemaReadingLog::AttributeKind::Annotation) const;
    void copyFacets(const DomAttributes& attributes, QDomElement to, const QString& suffix = QString()) const;
    QDomElement lastChildOrCurrent() const;
    QDomElement annotatedElement() const;
    QDomElement attributedElement() const;

    // Definitions and the references to them.
    void define(const QString& name, const TypeDefinition& definition);
    TypeDefinition* findDefinition(const QString& name);
    TypeDefinition* findUsableDefinition(const QString& name);
    int enumerationValuesOf(const TypeDefinition& definition, int attributes);
    void layOut(TypeDefinition& definition, QDomElement owner, const QDomNode& anchor, int copies,
                SchemaBudget::Share& share);
    void layOutNow(TypeDefinition& definition, const QDomElement& owner, int copies = 1);
    bool takeAttributes(const DomAttributes& attributes);
    void copyAttributes(const QDomElement& from, QDomElement to);
    void setDeclaredAttribute(TypeDefinition& definition, QDomElement owner);
    void deferReference(const QString& name, int copies, const ElementPathRecord& record);
    void recordReference(const QString& name, int copies, const ElementPathRecord& record);
    ElementPathRecord recordOf(const QDomElement& owner, const QDomElement& anchor = QDomElement());

    // The end of the document.
    void reviveExpandedDefinitions();
    bool resolveReferences();
    void sortIn(const QString& name);
    void expand(const QString& name);
    void serve(const QString& name, int copies, const ElementPathRecord& record);
    SchemaBudget::Share& shareOf(const QString& definitionName);
    bool chooseRoot();
    bool makeSkeleton(const QDomNode& root);

    QXmlAttributes m_attributes;
    QString m_sCurrentName; ///< the qualified name of the last start tag
    IXMLHelper* m_pCallback;
    UnresolvedTypeMap m_unresolvedTypes;
    OccursMap m_occurs;
    TypeDefinitionMap m_typeDefinitions;
    ChoiceMap m_choices;
    int m_iDefinitionDepth; ///< nesting of types, named or not; 0: global level
    int m_iEnumerationCounter; ///< the number of the next enumeration value of a restriction
    bool m_bInsideRestriction;
    bool m_bInsideChoice;
    bool m_bInsideGlobal; ///< inside a global element or attribute
    bool m_bGlobalIsAttribute;
    bool m_bIncludeFollowed;
    std::unique_ptr<QDomDocument> m_pDocument;
    QDomElement m_currentElement; ///< the skeleton element being filled
    QDomElement m_typeLevelElement; ///< the element created last inside a named type, or its carrier
    QDomDocumentFragment* m_pCurrentFragment;
    QString m_sDefinitionName; ///< the definition being read
    QString m_sSchemaPath;
    RootUse m_eRootUse;

    int m_iNesting; ///< of the tags of this file
    SchemaTag m_tag; ///< that is being read, or whose reference is laid out
    bool m_bFaultIsTold; ///< to the log; or there is none to tell
    QXmlLocator* m_pLocator; ///< the parser's
    const GuardedSource* m_pGuardedSource; ///< what is parsed; null for a text without a document type
    std::shared_ptr<SchemaReading> m_pReading; ///< shared with the handlers of included files
    SchemaBudget::Share* m_pShare; ///< of the fragment that is being filled; one of those that are shared
    SchemaReadingLog* m_pLog; ///< not owned; null: nobody listens
};

QT_WARNING_POP

#endif
