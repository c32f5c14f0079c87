#include "xmlschemahandler.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <set>

#include <QFileInfo>
#include <QStringList>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include "constants.h"
#include "contentfile.h"
#include "documentfile.h"
#include "domattributes.h"
#include "domextent.h"
#include "guardedsource.h"
#include "limits_p.h"
#include "tracing.h"
#include "xmltext.h"

QT_WARNING_DISABLE_DEPRECATED

/// What the handlers of a schema and of its included files share: the objects that the model points to, which must
/// outlive the handlers of included files, and the counts that limit the reading.
struct SchemaReading
{
    std::list<QDomDocument> includedDocuments; ///< of included files: nodes do not keep their document alive
    std::list<QDomDocumentFragment> fragments;
    std::list<QDomElement> elements; ///< the handles of the reference records
    std::set<const QDomElement*> servedOwners;
    std::set<QString> unusedGlobals; ///< the names of global declarations, until one is seen to be used
    std::set<QString> openReferences; ///< names that somebody may wait for, until they are laid out
    QStringList openFiles;
    int openTags = 0; ///< of the files that include the one being read
    int files = 0;
    int elementsOfAllDefinitions = 0;
    int elementsOfNamedTypes = 0;
    int attributesOfAllDefinitions = 0;
    std::set<const QDomDocumentFragment*> fragmentsOfNamedTypes;
    int choiceCounter = 0;
    bool isRefused = false;
};

/// What the attributes of an xs:element say.
struct XmlSchemaHandler::ElementDeclaration
{
    explicit ElementDeclaration(const QXmlAttributes& attributes);

    int Copies() const { return std::max(1, minOccurs); }
    bool HasOccursCode() const { return maxOccurs != OccursNotGiven || minOccurs == 0; }
    int OccursCode() const;

    QString name;
    QString type;
    QString ref;
    QString defaultValue;
    int minOccurs = OccursNotGiven;
    int maxOccurs = OccursNotGiven;
};

namespace {

const char Component[] = "xmlschemahandler";

const QLatin1String IncludeTag("xs:include");
const QLatin1String ComplexTypeTag("xs:complexType");
const QLatin1String SimpleTypeTag("xs:simpleType");
const QLatin1String ElementTag("xs:element");
const QLatin1String AttributeTag("xs:attribute");
const QLatin1String RestrictionTag("xs:restriction");
const QLatin1String ExtensionTag("xs:extension");
const QLatin1String ChoiceTag("xs:choice");

bool hasSchemaPrefix(const QString& name)
{
    return name.contains(SchemaPrefix);
}

/// The name without its first three characters when it contains the prefix, wherever that stands.
QString withoutSchemaPrefix(const QString& name)
{
    return hasSchemaPrefix(name) ? name.mid(SchemaPrefix.size()) : name;
}

bool isTypeTag(const QString& qName)
{
    return qName == ComplexTypeTag || qName == SimpleTypeTag;
}

bool isDeclarationTag(const QString& qName)
{
    return qName == ElementTag || qName == AttributeTag;
}

bool isFacet(const QString& attributeName)
{
    return attributeName.contains(EnumerationFacet) || attributeName.contains(RangeFacetMark);
}

bool isCarrier(const QDomNode& node)
{
    return node.nodeName() == CarrierName;
}

void copyAttributes(const QDomElement& from, QDomElement to)
{
    for (const QDomAttr& attribute : attributesOf(from)) {
        to.setAttribute(attribute.name(), attribute.value());
    }
}

/// Copies the facets of @p from to @p to, with @p suffix appended to their names.
void copyFacets(const QDomElement& from, QDomElement to, const QString& suffix = QString())
{
    for (const QDomAttr& attribute : attributesOf(from)) {
        if (isFacet(attribute.name())) {
            to.setAttribute(attribute.name() + suffix, attribute.value());
        }
    }
}

bool isNamespaceDeclaration(const QString& attributeName)
{
    const QLatin1String word("xmlns");
    return attributeName.startsWith(word)
        && (attributeName.size() == word.size() || attributeName.at(word.size()) == QLatin1Char(':'));
}

/// What a parser reports that looks after namespaces, as if no declaration stood among the attributes, and as a report
/// can carry it: Qt's parser lets characters pass that XML does not allow.
QXmlAttributes usableAttributes(const QXmlAttributes& attributes)
{
    int index = 0;
    while (index < attributes.count() && !isNamespaceDeclaration(attributes.qName(index))
           && isRepresentableText(attributes.value(index))) {
        ++index;
    }
    if (index == attributes.count()) {
        return attributes;
    }
    QXmlAttributes usable;
    for (index = 0; index < attributes.count(); ++index) {
        const QString name = attributes.qName(index);
        if (!isNamespaceDeclaration(name)) {
            usable.append(name, QString(), QString(), representableText(attributes.value(index), "XmlSchemaHandler"));
        }
    }
    return usable;
}

/// One name for every way to write the path of a file.
QString identityOfFile(const QString& fileName)
{
    const QString canonical = QFileInfo(fileName).canonicalFilePath();
    return canonical.isEmpty() ? fileName : canonical;
}

void traceMissingElement()
{
    trace(QStringLiteral("Missing Element was not found! XmlSchemaHandler terminates..."), Component, 1389);
}

} // namespace

XmlSchemaHandler::ElementDeclaration::ElementDeclaration(const QXmlAttributes& attributes)
    : name(attributes.value(QLatin1String("name")))
    , type(attributes.value(QLatin1String("type")))
    , ref(attributes.value(QLatin1String("ref")))
    , defaultValue(attributes.value(QLatin1String("default")))
{
    const int minIndex = attributes.index(QLatin1String("minOccurs"));
    minOccurs = minIndex < 0 ? OccursNotGiven : attributes.value(minIndex).toInt();
    if (minOccurs == OccursNotGiven) {
        minOccurs = 1;
    }
    const int maxIndex = attributes.index(QLatin1String("maxOccurs"));
    if (maxIndex >= 0) {
        const QString value = attributes.value(maxIndex);
        maxOccurs = value == QLatin1String("unbounded") ? UnboundedOccurs : value.toInt();
    }
}

int XmlSchemaHandler::ElementDeclaration::OccursCode() const
{
    if (maxOccurs == OccursNotGiven) {
        return 0;
    }
    constexpr int greatestFactor = std::numeric_limits<int>::max() / OptionalOccursFactor;
    constexpr int leastFactor = std::numeric_limits<int>::min() / OptionalOccursFactor;
    return minOccurs == 0 ? std::clamp(maxOccurs, leastFactor, greatestFactor) * OptionalOccursFactor : maxOccurs;
}

XmlSchemaHandler::XmlSchemaHandler(IXMLHelper* pCallback, const QString& schemaPath)
    : XmlSchemaHandler(std::make_shared<SchemaReading>(), pCallback, schemaPath)
{
    if (checkObserver(pCallback, "XmlSchemaHandler", Component, 35)) {
        m_pReading->openFiles.append(identityOfFile(openableFileName(schemaPath)));
        m_pReading->files = 1;
    } else {
        m_pDocument.reset();
    }
}

XmlSchemaHandler::XmlSchemaHandler(const std::shared_ptr<SchemaReading>& reading, IXMLHelper* pCallback,
                                   const QString& schemaPath)
    : m_sCurrentName(QLatin1String(""))
    , m_pCallback(pCallback)
    , m_iDefinitionDepth(0)
    , m_iEnumerationCounter(1)
    , m_bInsideRestriction(false)
    , m_bInsideChoice(false)
    , m_bInsideGlobal(false)
    , m_bGlobalIsAttribute(false)
    , m_bIncludeFollowed(false)
    , m_pDocument(std::make_unique<QDomDocument>())
    , m_pCurrentFragment(nullptr)
    , m_sDefinitionName(QLatin1String(""))
    , m_sSchemaPath(schemaPath)
    , m_eRootUse(RootUse::Copied)
    , m_iNesting(0)
    , m_pReading(reading)
{
}

XmlSchemaHandler::~XmlSchemaHandler() = default;

bool XmlSchemaHandler::HandOver(UnresolvedTypeMap& unresolvedTypes, OccursMap& occurs,
                                TypeDefinitionMap& typeDefinitions, ChoiceMap& choices) &
{
    unresolvedTypes = m_unresolvedTypes;
    occurs = m_occurs;
    typeDefinitions = m_typeDefinitions;
    choices = m_choices;
    return true;
}

bool XmlSchemaHandler::HandOver(UnresolvedTypeMap& unresolvedTypes, OccursMap& occurs,
                                TypeDefinitionMap& typeDefinitions, ChoiceMap& choices) &&
{
    unresolvedTypes = std::move(m_unresolvedTypes);
    occurs = std::move(m_occurs);
    typeDefinitions = std::move(m_typeDefinitions);
    choices = std::move(m_choices);
    return true;
}

bool XmlSchemaHandler::ReadFile(const QString& fileName, QXmlSimpleReader& parser)
{
    ContentFile file(fileName);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    // Qualified names are all that counts.
    parser.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    parser.setContentHandler(this);
    parser.setErrorHandler(this);
    if (m_eRootUse == RootUse::Copied) {
        m_eRootUse = RootUse::Moved;
    }
    QXmlInputSource plainSource;
    plainSource.setData(bytes);
    if (!GuardedSource::IsNeededFor(plainSource.data())) {
        return parser.parse(plainSource);
    }
    GuardedSource source(bytes);
    const bool isParsed = source.Parse(parser);
    if (!source.GetRefusal().isEmpty()) {
        refuse(source.GetRefusal());
    }
    return isParsed;
}

QDomDocument* XmlSchemaHandler::GetDocument() const
{
    return m_pDocument.get();
}

bool XmlSchemaHandler::startDocument()
{
    return true;
}

bool XmlSchemaHandler::endDocument()
{
    if (!m_pCallback) {
        trace(QStringLiteral("Callback-Pointer is NULL!"), Component, __LINE__);
        return false;
    }
    if (m_bIncludeFollowed) {
        reviveExpandedDefinitions();
    }
    return resolveReferences() && chooseRoot();
}

bool XmlSchemaHandler::startElement(const QString&, const QString&, const QString& qName,
                                    const QXmlAttributes& attributes)
{
    if (!m_pCallback) {
        return true;
    }
    m_sCurrentName = qName;
    m_attributes = usableAttributes(attributes);
    if (++m_iNesting > limits().elementNesting) {
        refuse(QStringLiteral("The schema is nested deeper than %1 elements!").arg(limits().elementNesting));
    } else if (m_pReading->openTags + m_iNesting > limits().openTags) {
        refuse(
            QStringLiteral("The schema and its includes are nested deeper than %1 elements!").arg(limits().openTags));
    } else if (m_bInsideRestriction) {
        readFacet();
    } else {
        readTag();
    }
    return !isRefused();
}

bool XmlSchemaHandler::endElement(const QString&, const QString&, const QString& qName)
{
    --m_iNesting;
    if (isTypeTag(qName) && m_iDefinitionDepth > 0) {
        endType();
    } else if (isDeclarationTag(qName) && m_iDefinitionDepth == 0) {
        m_bInsideGlobal = false;
        if (qName == AttributeTag) {
            m_bGlobalIsAttribute = false;
        }
    } else if (qName == RestrictionTag) {
        m_bInsideRestriction = false;
        m_iEnumerationCounter = 1;
    } else if (qName == ChoiceTag) {
        m_bInsideChoice = false;
    }
    return true;
}

bool XmlSchemaHandler::characters(const QString&)
{
    return true;
}

void XmlSchemaHandler::readTag()
{
    const QString& tag = m_sCurrentName;
    if (tag == IncludeTag) {
        readInclude();
    } else if (isTypeTag(tag)) {
        beginType();
    } else if (isDeclarationTag(tag) && m_iDefinitionDepth == 0) {
        beginGlobalDeclaration();
    } else if (tag == ElementTag) {
        readLocalElement();
    } else if (tag == RestrictionTag) {
        beginRestriction();
    } else if (tag == ExtensionTag) {
        beginExtension();
    } else if (tag == AttributeTag) {
        readAttribute();
    } else if (tag == ChoiceTag) {
        m_bInsideChoice = true;
    }
}

void XmlSchemaHandler::readInclude()
{
    m_bIncludeFollowed = true;
    const QString fileName = openableFileName(includedFileName());
    const QString identity = identityOfFile(fileName);
    QStringList& openFiles = m_pReading->openFiles;
    if (openFiles.contains(identity) || openFiles.size() >= limits().includeDepth) {
        trace(QStringLiteral("Include was skipped, it is already being read!"), Component, __LINE__);
        return;
    }
    if (++m_pReading->files > limits().schemaFiles) {
        refuse(QStringLiteral("The schema consists of more than %1 files!").arg(limits().schemaFiles));
        return;
    }

    // Includes inside the included file resolve against the top schema, so the handler gets this one's path.
    // The maps go there and come back: this file is not read in between.
    XmlSchemaHandler included(m_pReading, m_pCallback, m_sSchemaPath);
    std::move(*this).HandOver(included.m_unresolvedTypes, included.m_occurs, included.m_typeDefinitions,
                              included.m_choices);
    openFiles.append(identity);
    m_pReading->openTags += m_iNesting;
    included.m_eRootUse = RootUse::Unused;
    QXmlSimpleReader parser;
    included.ReadFile(fileName, parser);
    m_pReading->openTags -= m_iNesting;
    openFiles.removeLast();
    m_pReading->includedDocuments.push_back(*included.m_pDocument);
    std::move(included).HandOver(m_unresolvedTypes, m_occurs, m_typeDefinitions, m_choices);
}

/// The folder counts only when the path of the schema names a file: a path with another ending contributes a slash at
/// most. One might expect it to be taken for the folder; schemas are known to rely on this.
QString XmlSchemaHandler::includedFileName() const
{
    QString folder;
    if (m_sSchemaPath.endsWith(QLatin1String(".xsd"))) {
        folder = m_sSchemaPath.left(m_sSchemaPath.lastIndexOf(QLatin1Char('/'))) + QLatin1Char('/');
    } else if (!m_sSchemaPath.endsWith(QLatin1Char('/'))) {
        folder = QLatin1Char('/');
    }
    return folder + firstValue();
}

void XmlSchemaHandler::beginType()
{
    ++m_iDefinitionDepth;
    if (m_attributes.count() > 0) {
        beginNamedType();
    } else if (m_iDefinitionDepth != 1 && m_sCurrentName == ComplexTypeTag) {
        m_currentElement = m_currentElement.lastChild().toElement();
    }
}

void XmlSchemaHandler::beginNamedType()
{
    beginFragment(true);
    m_typeLevelElement = QDomElement();
    m_sDefinitionName = firstValue();
    define(m_sDefinitionName, TypeDefinition {1, 0, m_pCurrentFragment});
}

void XmlSchemaHandler::endType()
{
    if (--m_iDefinitionDepth > 0) {
        const QDomNode parent = m_currentElement.parentNode();
        if (!parent.isDocumentFragment()) {
            m_currentElement = parent.toElement();
        }
    }
}

void XmlSchemaHandler::beginGlobalDeclaration()
{
    if (m_sCurrentName == AttributeTag) {
        m_bGlobalIsAttribute = true;
    }
    m_bInsideGlobal = true;
    m_sDefinitionName = firstValue();
    beginFragment(false);
    // What is taken for the name may be any attribute that comes first. So a name that XML does not allow leaves the
    // declaration out, but is no reason to fail.
    m_currentElement = QDomElement();
    if (!m_sDefinitionName.isEmpty() && isRepresentableName(m_sDefinitionName, "XmlSchemaHandler")) {
        m_currentElement = createElement(m_sDefinitionName, currentFragment());
    }
    define(m_sDefinitionName, TypeDefinition {0, 0, m_pCurrentFragment});

    for (int i = 0; i < m_attributes.count(); ++i) {
        const QString name = m_attributes.qName(i);
        if (name == TypeAttribute() && !readGlobalType(m_attributes.value(i))) {
            return; // What stands behind a type that is not usable yet is not read.
        }
        if (name == DefaultAttribute()) {
            m_currentElement.setAttribute(DefaultAttribute(), m_attributes.value(i));
        }
    }
}

/// Gives false when the type is not usable yet.
bool XmlSchemaHandler::readGlobalType(const QString& type)
{
    if (hasSchemaPrefix(type)) {
        m_currentElement.setAttribute(TypeAttribute(), withoutSchemaPrefix(type));
    } else if (TypeDefinition* const definition = findUsableDefinition(type)) {
        layOutNow(*definition, m_currentElement);
    } else {
        deferReference(type, 1, recordOf(m_currentElement));
        return false;
    }
    return true;
}

void XmlSchemaHandler::readLocalElement()
{
    const ElementDeclaration declaration(m_attributes);
    if (!declaration.name.isEmpty() && checkName(declaration.name)) {
        layOutNamedElement(declaration);
        enterOccurs(declaration.name, declaration);
    } else if (!declaration.ref.isEmpty()) {
        layOutReference(declaration);
        enterOccurs(declaration.ref, declaration);
    }
}

void XmlSchemaHandler::layOutReference(const ElementDeclaration& declaration)
{
    TypeDefinition* const definition = findUsableDefinition(declaration.ref);
    if (!definition) {
        deferReference(declaration.ref, declaration.minOccurs,
                       recordOf(m_currentElement, m_currentElement.lastChildElement()));
        return;
    }
    layOutNow(*definition, m_currentElement, declaration.Copies());
}

void XmlSchemaHandler::layOutNamedElement(const ElementDeclaration& declaration)
{
    if (qint64(m_fragmentElements.elements) + declaration.Copies() > limits().elements) {
        refuseElements();
        return;
    }
    const bool isTypeRepeated = declaration.Copies() > 1 && !hasSchemaPrefix(declaration.type);
    const TypeDefinition* const type = isTypeRepeated ? findUsableDefinition(declaration.type) : nullptr;
    if (type && !areAttributesWithinLimit(qint64(extentOf(*type->fragment).attributes) * declaration.Copies())) {
        return;
    }
    for (int copy = 0; copy < declaration.Copies() && !isRefused(); ++copy) {
        QDomElement element
            = createElement(declaration.name, m_bInsideGlobal ? QDomNode(m_currentElement) : currentFragment());
        m_typeLevelElement = element;
        if (!declaration.defaultValue.isEmpty()) {
            element.setAttribute(DefaultAttribute(), declaration.defaultValue);
        }
        if (hasSchemaPrefix(declaration.type)) {
            element.setAttribute(TypeAttribute(), withoutSchemaPrefix(declaration.type));
        } else if (!declaration.type.isEmpty()) {
            TypeDefinition* const definition = findUsableDefinition(declaration.type);
            if (!definition) {
                deferNamedElement(declaration, element);
                return; // The end of the document lays out the other copies.
            }
            layOutNow(*definition, element);
        }
    }
}

/// The type of @p first is not usable yet: the end of the document gives it to @p first and to a template of the
/// element, and then inserts the other copies, clones of the template, behind @p first.
void XmlSchemaHandler::deferNamedElement(const ElementDeclaration& declaration, const QDomElement& first)
{
    deferReference(declaration.type, 1, recordOf(first));
    if (declaration.minOccurs < 2) {
        return;
    }
    recordReference(declaration.name, declaration.minOccurs - 1, recordOf(m_currentElement, first));
    const ElementCount ofGlobal = m_fragmentElements;
    beginFragment(true);
    m_typeLevelElement = createElement(declaration.name, currentFragment());
    if (m_bInsideGlobal) {
        m_fragmentElements = ofGlobal; // What follows still goes there.
    }
    define(declaration.name, TypeDefinition {1, 1, m_pCurrentFragment});
    ElementPathRecord record = recordOf(m_typeLevelElement);
    record.definitionName = declaration.name;
    recordReference(declaration.type, 1, record);
}

void XmlSchemaHandler::enterOccurs(QString name, const ElementDeclaration& declaration)
{
    if (declaration.HasOccursCode()) {
        const QString owner = m_bInsideGlobal ? m_currentElement.tagName() : m_sDefinitionName;
        const auto entry = m_occurs.try_emplace(name).first;
        if (entry == m_occurs.end()) { // unreached: what was entered is there
            name = LostElementName;
        } else {
            entry->second[declaration.OccursCode()].push_back(owner);
        }
    }
    if (m_bInsideChoice) {
        m_choices[m_pReading->choiceCounter++] = name;
    }
}

void XmlSchemaHandler::beginRestriction()
{
    if (firstName() == QLatin1String("base")) {
        if (!m_bInsideGlobal && m_typeLevelElement.isNull()) {
            beginCarrier();
        }
        annotatedElement().setAttribute(TypeAttribute(), withoutSchemaPrefix(firstValue()));
    }
    m_bInsideRestriction = true;
}

void XmlSchemaHandler::readFacet()
{
    QString facet = withoutSchemaPrefix(m_sCurrentName);
    if (facet.contains(EnumerationFacet)) {
        if (m_iEnumerationCounter > limits().enumerationValues) {
            refuse(QStringLiteral("An enumeration has more than %1 values!").arg(limits().enumerationValues));
            return;
        }
        facet += QString::number(m_iEnumerationCounter++);
    }
    if (checkName(facet)) {
        annotatedElement().setAttribute(facet, firstValue());
    }
}

void XmlSchemaHandler::beginExtension()
{
    if (!m_bInsideGlobal) {
        beginCarrier();
    }
    if (firstName() != QLatin1String("base")) {
        return;
    }
    const QString base = firstValue();
    if (hasSchemaPrefix(base)) {
        lastChildOrCurrent().setAttribute(TypeAttribute(), withoutSchemaPrefix(base));
    } else {
        extendDefinition(base);
    }
}

void XmlSchemaHandler::extendDefinition(const QString& base)
{
    QDomElement target = lastChildOrCurrent();
    TypeDefinition* const definition = findUsableDefinition(base);
    if (!definition) {
        deferReference(base, 1, recordOf(target));
        return;
    }
    const QDomElement extended = definition->fragment->firstChildElement();
    if (isCarrier(extended)) {
        layOutNow(*definition, target);
        return;
    }
    definition->usedFlag = 1;
    if (!countAttributes(extended.attributes().count())) {
        return;
    }
    if (extended.hasAttribute(TypeAttribute())) {
        target.setAttribute(TypeAttribute(), extended.attribute(TypeAttribute()));
    }
    copyFacets(extended, target);
}

void XmlSchemaHandler::readAttribute()
{
    const QString name = m_attributes.value(QLatin1String("name"));
    const QString ref = m_attributes.value(QLatin1String("ref"));
    if (!name.isEmpty() && checkName(name)) {
        attributedElement().setAttribute(name, m_attributes.value(QLatin1String("type")));
    } else if (!ref.isEmpty()) {
        readAttributeReference(ref);
    }
}

void XmlSchemaHandler::readAttributeReference(const QString& name)
{
    if (TypeDefinition* const definition = findUsableDefinition(name)) {
        setDeclaredAttribute(*definition, attributedElement());
        return;
    }
    ElementPathRecord record = recordOf(m_currentElement);
    record.isAttributeReference = true;
    deferReference(name, 1, record);
}

QString XmlSchemaHandler::firstName() const
{
    return m_attributes.count() > 0 ? m_attributes.qName(0) : QString();
}

QString XmlSchemaHandler::firstValue() const
{
    return m_attributes.count() > 0 ? m_attributes.value(0) : QString();
}

void XmlSchemaHandler::beginFragment(bool isOfNamedType)
{
    m_pCurrentFragment = &m_pReading->fragments.emplace_back(m_pDocument->createDocumentFragment());
    m_fragmentElements = ElementCount {0, isOfNamedType};
    if (isOfNamedType) {
        m_pReading->fragmentsOfNamedTypes.insert(m_pCurrentFragment);
    }
}

/// The fragment of the definition being read; null outside of any.
QDomNode XmlSchemaHandler::currentFragment() const
{
    return m_pCurrentFragment ? *m_pCurrentFragment : QDomNode();
}

/// Creates an element and appends it to @p owner; a null element when the limits do not allow it.
QDomElement XmlSchemaHandler::createElement(const QString& name, QDomNode owner)
{
    if (!isWithinLimits({1, 1, 0}, 1, owner, m_fragmentElements)) {
        return QDomElement();
    }
    QDomElement element = m_pDocument->createElement(name);
    if (!owner.isNull()) {
        owner.appendChild(element);
    }
    return element;
}

/// The carrier of a simple type: declarations that follow go to it as well.
void XmlSchemaHandler::beginCarrier()
{
    m_currentElement = createElement(CarrierName, currentFragment());
    m_typeLevelElement = m_currentElement;
}

QDomElement XmlSchemaHandler::lastChildOrCurrent() const
{
    return m_currentElement.hasChildNodes() ? m_currentElement.lastChildElement() : m_currentElement;
}

/// Where the type and the facets of a restriction go.
QDomElement XmlSchemaHandler::annotatedElement() const
{
    if (m_bInsideGlobal) {
        return m_bGlobalIsAttribute ? m_currentElement : lastChildOrCurrent();
    }
    // None yet in a simple type whose restriction names no base: the current element is an earlier definition's.
    return m_typeLevelElement;
}

/// Where declared attributes go.
QDomElement XmlSchemaHandler::attributedElement() const
{
    return m_bInsideGlobal ? m_currentElement : m_typeLevelElement;
}

/// Enters a definition; a later one of the same name takes its place.
void XmlSchemaHandler::define(const QString& name, const TypeDefinition& definition)
{
    m_typeDefinitions[name] = definition;
    m_pReading->openReferences.insert(name);
    if (definition.usedFlag == 0) {
        m_pReading->unusedGlobals.insert(name);
    }
}

TypeDefinition* XmlSchemaHandler::findDefinition(const QString& name)
{
    const auto found = m_typeDefinitions.find(name);
    return found == m_typeDefinitions.end() ? nullptr : &found->second;
}

TypeDefinition* XmlSchemaHandler::findUsableDefinition(const QString& name)
{
    TypeDefinition* const definition = findDefinition(name);
    return definition && definition->pendingCount == 0 ? definition : nullptr;
}

/// Gives @p owner the content of @p definition: the attributes of a carrier, else clones of everything as children,
/// after @p anchor or at the end. What leaves nothing behind is done once, however many copies are wanted.
void XmlSchemaHandler::layOut(TypeDefinition& definition, QDomElement owner, const QDomNode& anchor, int copies,
                              ElementCount& tree)
{
    definition.usedFlag = 1;
    const QDomNode first = definition.fragment->firstChild();
    if (isCarrier(first)) {
        if (countAttributes(first.attributes().count())) {
            copyAttributes(first.toElement(), owner);
        }
        return;
    }
    if (first.isNull() || owner.isNull()) {
        return;
    }
    for (; copies > 0; --copies) {
        // Measured for each copy: a definition that refers to itself grows under way.
        if (!isWithinLimits(extentOf(*definition.fragment), copies, owner, tree)) {
            return;
        }
        const QDomNode content = definition.fragment->cloneNode(true);
        if (anchor.isNull()) {
            owner.appendChild(content);
        } else {
            owner.insertAfter(content, anchor);
        }
    }
}

void XmlSchemaHandler::layOutNow(TypeDefinition& definition, const QDomElement& owner, int copies)
{
    layOut(definition, owner, QDomNode(), copies, m_fragmentElements);
}

/// Gives @p owner the attribute that @p definition, a global attribute, declares, and its facets.
void XmlSchemaHandler::setDeclaredAttribute(TypeDefinition& definition, QDomElement owner)
{
    definition.usedFlag = 1;
    // A clone, because a global attribute that refers to itself is its own owner.
    const QDomElement declared = definition.fragment->firstChildElement().cloneNode(false).toElement();
    if (!declared.isNull() && countAttributes(declared.attributes().count())) {
        owner.setAttribute(declared.tagName(), declared.attribute(TypeAttribute()));
        copyFacets(declared, owner, declared.tagName());
    }
}

/// Records a reference that also keeps the definition being read from being usable.
void XmlSchemaHandler::deferReference(const QString& name, int copies, const ElementPathRecord& record)
{
    if (TypeDefinition* const definition = findDefinition(m_sDefinitionName)) {
        ++definition->pendingCount;
        m_pReading->openReferences.insert(m_sDefinitionName);
    }
    recordReference(name, copies, record);
}

void XmlSchemaHandler::recordReference(const QString& name, int copies, const ElementPathRecord& record)
{
    m_unresolvedTypes[name][copies].push_back(record);
    m_pReading->openReferences.insert(name);
}

ElementPathRecord XmlSchemaHandler::recordOf(const QDomElement& owner, const QDomElement& anchor)
{
    std::list<QDomElement>& elements = m_pReading->elements;
    ElementPathRecord record {&elements.emplace_back(owner), nullptr, m_sDefinitionName, false};
    if (!anchor.isNull()) {
        record.anchorElement = &elements.emplace_back(anchor);
    }
    return record;
}

/// What an included file has expanded already serves this file's waiting users too.
void XmlSchemaHandler::reviveExpandedDefinitions()
{
    for (const auto& unresolved : m_unresolvedTypes) {
        TypeDefinition* const definition = unresolved.first.isEmpty() ? nullptr : findDefinition(unresolved.first);
        if (definition && definition->pendingCount == -1) {
            definition->pendingCount = 0;
            m_pReading->openReferences.insert(unresolved.first);
        }
    }
}

/// Makes passes over the recorded references until all are laid out. Gives false when a definition never comes, and
/// when a pass gets nowhere because definitions refer to each other.
bool XmlSchemaHandler::resolveReferences()
{
    std::set<QString>& names = m_pReading->openReferences;
    bool isAnotherPassNeeded = true;
    while (isAnotherPassNeeded) {
        isAnotherPassNeeded = false;
        bool isAnythingExpanded = false;
        for (auto name = names.begin(); name != names.end() && !isRefused();) {
            if (name->isEmpty() || m_unresolvedTypes.count(*name) == 0) {
                name = names.erase(name);
                continue;
            }
            TypeDefinition* const definition = findDefinition(*name);
            if (!definition) {
                traceMissingElement();
                return false;
            }
            if (definition->pendingCount > 0) {
                isAnotherPassNeeded = true;
                ++name;
                continue;
            }
            if (definition->pendingCount == 0) {
                expand(*name, *definition);
                isAnythingExpanded = true;
            }
            name = names.erase(name);
        }
        if (isRefused()) {
            return false;
        }
        if (isAnotherPassNeeded && !isAnythingExpanded) {
            traceMissingElement();
            return false;
        }
    }
    return true;
}

/// Lays @p definition out wherever it is waited for.
void XmlSchemaHandler::expand(const QString& name, TypeDefinition& definition)
{
    definition.pendingCount = -1;
    for (const auto& [copies, records] : m_unresolvedTypes[name]) {
        for (const ElementPathRecord& record : records) {
            // What the end of an included file has served is not served again.
            if (!m_pReading->servedOwners.insert(record.ownerElement).second) {
                continue;
            }
            if (!isRefused()) {
                serve(definition, std::max(1, copies), record);
            }
        }
    }
}

/// Every copy counts as one of the pieces that the definition of the record waits for.
void XmlSchemaHandler::serve(TypeDefinition& definition, int copies, const ElementPathRecord& record)
{
    if (record.isAttributeReference) {
        setDeclaredAttribute(definition, *record.ownerElement);
    } else {
        layOut(definition, *record.ownerElement, record.anchorElement ? *record.anchorElement : QDomElement(), copies,
               elementCountOf(record.definitionName));
    }
    TypeDefinition* const waiting = findDefinition(record.definitionName);
    if (waiting && waiting->pendingCount > 0) {
        waiting->pendingCount -= std::min(copies, waiting->pendingCount);
    }
}

XmlSchemaHandler::ElementCount& XmlSchemaHandler::elementCountOf(const QString& definitionName)
{
    const auto [counted, isNew] = m_treeElements.emplace(definitionName, ElementCount());
    const TypeDefinition* const definition = isNew ? findDefinition(definitionName) : nullptr;
    if (definition) {
        counted->second.elements = extentOf(*definition->fragment).elements;
        counted->second.isOfNamedType = m_pReading->fragmentsOfNamedTypes.count(definition->fragment) > 0;
    }
    return counted->second;
}

/// The last unused global declaration in the order of names becomes the root; all of them count as used from then on.
/// Gives false when it has grown beyond the limit, by references of other definitions that landed in it.
bool XmlSchemaHandler::chooseRoot()
{
    std::set<QString>& names = m_pReading->unusedGlobals;
    for (auto name = names.begin(); name != names.end();) {
        TypeDefinition* const definition = findDefinition(*name);
        if (definition && definition->usedFlag == 0 && definition->fragment->hasChildNodes()) {
            m_pCurrentFragment = definition->fragment;
            definition->usedFlag = 1;
        }
        name = definition && definition->usedFlag == 0 ? std::next(name) : names.erase(name);
    }
    if (extentOf(currentFragment()).elements > limits().elements) {
        refuseElements();
        return false;
    }
    if (m_eRootUse == RootUse::Unused) {
        return true;
    }
    m_pDocument->setContent(QString(SkeletonDeclaration));
    if (m_pCurrentFragment) {
        m_pDocument->appendChild(m_eRootUse == RootUse::Moved ? *m_pCurrentFragment
                                                              : m_pCurrentFragment->cloneNode(true));
    }
    return true;
}

bool XmlSchemaHandler::isRefused() const
{
    return m_pReading->isRefused;
}

/// Fails the parse for a limit, here and in the files that include this one. Only the first reason is traced.
void XmlSchemaHandler::refuse(const QString& reason)
{
    if (!isRefused()) {
        m_pReading->isRefused = true;
        trace(reason, Component, __LINE__);
    }
}

/// Whether an element or an attribute of the skeleton may have the name; fails the parse when XML does not allow it.
bool XmlSchemaHandler::checkName(const QString& name)
{
    if (!isRepresentableName(name, "XmlSchemaHandler")) {
        m_pReading->isRefused = true;
    }
    return !isRefused();
}

void XmlSchemaHandler::refuseElements()
{
    refuse(QStringLiteral("The schema lays out more than %1 elements!").arg(limits().elements));
}

/// Whether @p copies of so much may be laid below @p owner; counts one of them when they may and refuses when not.
bool XmlSchemaHandler::isWithinLimits(const DomExtent& extent, int copies, const QDomNode& owner, ElementCount& tree)
{
    if (levelOf(owner) + extent.levels > limits().elementNesting) {
        refuse(QStringLiteral("The schema lays out elements nested deeper than %1!").arg(limits().elementNesting));
        return false;
    }
    int& total = m_pReading->elementsOfAllDefinitions;
    int& ofNamedTypes = m_pReading->elementsOfNamedTypes;
    const qint64 elements = qint64(copies) * extent.elements;
    const qint64 forNamedTypes = tree.isOfNamedType ? elements : 0;
    if (tree.elements + elements > limits().elements || total + elements > limits().elementsOfAllDefinitions
        || ofNamedTypes + forNamedTypes > limits().elementsOfNamedTypes) {
        refuseElements();
        return false;
    }
    if (!areAttributesWithinLimit(qint64(copies) * extent.attributes)) {
        return false;
    }
    tree.elements += extent.elements;
    total += extent.elements;
    ofNamedTypes += tree.isOfNamedType ? extent.elements : 0;
    m_pReading->attributesOfAllDefinitions += extent.attributes;
    return true;
}

/// Whether so many attributes may be copied to other elements; refuses when not.
bool XmlSchemaHandler::areAttributesWithinLimit(qint64 attributes)
{
    if (m_pReading->attributesOfAllDefinitions + attributes > limits().attributes) {
        refuse(QStringLiteral("The schema lays out more than %1 attributes!").arg(limits().attributes));
    }
    return !isRefused();
}

/// The same, and counts them.
bool XmlSchemaHandler::countAttributes(int attributes)
{
    if (areAttributesWithinLimit(attributes)) {
        m_pReading->attributesOfAllDefinitions += attributes;
    }
    return !isRefused();
}
