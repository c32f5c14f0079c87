#include "xmlschemahandler.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include <QFileInfo>
#include <QStringList>
#include <QXmlInputSource>
#include <QXmlLocator>
#include <QXmlParseException>
#include <QXmlSimpleReader>

#include "constants_p.h"
#include "contentfile_p.h"
#include "domextent_p.h"
#include "domorder_p.h"
#include "filesaving_p.h"
#include "guardedsource_p.h"
#include "schemaorigin_p.h"
#include "skeletonwords_p.h"
#include "tracing_p.h"
#include "valuerules_p.h"
#include "xmltext_p.h"

QT_WARNING_DISABLE_DEPRECATED

/// What the end of a file has to know of the names that are referred to. Only those about which something is new are
/// looked at, so that many files cost no more than one.
struct ReferredNames
{
    std::set<QString> changed; ///< defined or referred to since the last end of a file
    std::set<QString> missing; ///< that have no definition
    std::set<QString> blocked; ///< whose definitions wait for others
    std::set<QString> usable; ///< to be laid out
    std::set<QString> usableLater; ///< the same, in the next pass
    std::set<QString> expanded; ///< that have been laid out
    std::set<QString> expandedAwaited; ///< of these, the ones for which somebody waits again
    std::map<QString, std::map<int, std::vector<const ElementPathRecord*>>> unserved; ///< records; owned by the model

    void Forget(const QString& name);
};

void ReferredNames::Forget(const QString& name)
{
    for (std::set<QString>* const names : {&missing, &blocked, &usable, &expanded, &expandedAwaited}) {
        names->erase(name);
    }
}

/// How many attributes the elements of a fragment had when the values of enumerations among them were counted.
struct CountedAttributes
{
    int attributes = 0;
    int enumerationValues = 0;
};

/// What the handlers of a schema and of its included files share: the objects that the model points to, which must
/// outlive the handlers of included files, and what is known of the schema as a whole.
struct SchemaReading
{
    std::list<QDomDocument> includedDocuments; ///< of included files: nodes do not keep their document alive
    std::list<QDomDocumentFragment> fragments;
    std::map<const QDomDocumentFragment*, SchemaBudget::Share> shares; ///< of fragments; null: of what lies in none
    std::map<const QDomDocumentFragment*, CountedAttributes> countedAttributes; ///< of fragments
    std::list<QDomElement> elements; ///< the handles of the reference records
    std::set<QString> unusedGlobals; ///< the names of global declarations with content, until one is seen to be used
    bool isGlobalLeftOut = false; ///< for its name
    ReferredNames names;
    SchemaBudget budget;
    int choiceCounter = 0;

    // For the listener.
    SchemaReadingLog* log = nullptr; ///< null: nobody listens, and nothing below is filled; not owned
    bool isMarked = false; ///< what is laid out, with where it comes from
    int files = 0; ///< that have been begun
    std::set<QString> begunFiles; ///< one name for each
    std::map<const QDomElement*, SchemaTag> referringTags; ///< by the owner elements of the records
};

/// What the attributes of an xs:element say.
struct XmlSchemaHandler::ElementDeclaration
{
    explicit ElementDeclaration(const QXmlAttributes& attributes);

    int Copies() const { return std::max(1, minOccurs); }

    QString name;
    QString type;
    QString ref;
    QString defaultValue;
    int minOccurs = OccursNotGiven;
    int maxOccurs = OccursNotGiven;
};

namespace {

const char HandlerComponent[] = "xmlschemahandler";

const QLatin1String IncludeTag("xs:include");
const QLatin1String ComplexTypeTag("xs:complexType");
const QLatin1String SimpleTypeTag("xs:simpleType");
const QLatin1String ElementTag("xs:element");
const QLatin1String AttributeTag("xs:attribute");
const QLatin1String RestrictionTag("xs:restriction");
const QLatin1String ExtensionTag("xs:extension");
const QLatin1String ChoiceTag("xs:choice");

const QLatin1String NameWord("name");
const QLatin1String TypeWord("type");
const QLatin1String RefWord("ref");
const QLatin1String DefaultWord("default");
const QLatin1String MinOccursWord("minOccurs");
const QLatin1String MaxOccursWord("maxOccurs");

// For the few short words of a schema, which are compared for every tag: calls into Qt would take longer.
inline bool beginsWith(const QString& text, QLatin1String word)
{
    return text.size() >= word.size()
        && std::equal(word.begin(), word.end(), text.constData(),
                      [](char letter, QChar c) { return c == QLatin1Char(letter); });
}
inline bool isWord(const QString& text, QLatin1String word)
{
    return text.size() == word.size() && beginsWith(text, word);
}

/// Nearly every number of a schema is a digit, for which Qt's conversion is a long way.
int numberIn(const QString& text)
{
    const int digit = text.size() == 1 ? text.at(0).unicode() - '0' : -1;
    return digit >= 0 && digit <= 9 ? digit : text.toInt();
}

int greatestIn(const QString& maxOccurs)
{
    return maxOccurs == QLatin1String("unbounded") ? UnboundedOccurs : numberIn(maxOccurs);
}

/// Wherever it stands; nearly always in front, which is seen without a search.
bool hasSchemaPrefix(const QString& name)
{
    return beginsWith(name, SchemaPrefix) || name.contains(SchemaPrefix);
}

/// The name without its first three characters when it contains the prefix, wherever that stands.
QString withoutSchemaPrefix(const QString& name)
{
    return hasSchemaPrefix(name) ? name.mid(SchemaPrefix.size()) : name;
}

bool isTypeTag(const QString& qName)
{
    return isWord(qName, ComplexTypeTag) || isWord(qName, SimpleTypeTag);
}

bool isDeclarationTag(const QString& qName)
{
    return isWord(qName, ElementTag) || isWord(qName, AttributeTag);
}

int enumerationValuesAmong(const DomAttributes& attributes)
{
    return static_cast<int>(std::count_if(attributes.begin(), attributes.end(), [](const QDomAttr& attribute) {
        return attribute.name().contains(EnumerationFacet);
    }));
}

/// The values of enumerations that the elements below @p fragment have.
int enumerationValuesBelow(const QDomNode& fragment)
{
    int values = 0;
    for (QDomNode top = fragment.firstChild(); !top.isNull(); top = top.nextSibling()) {
        for (QDomNode node = top; !node.isNull(); node = nextBelow(top, node, false)) {
            values += enumerationValuesAmong(attributesOf(node.toElement()));
        }
    }
    return values;
}

bool isNamespaceDeclaration(const QString& attributeName)
{
    const QLatin1String word("xmlns");
    return beginsWith(attributeName, word)
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

} // namespace

XmlSchemaHandler::ElementDeclaration::ElementDeclaration(const QXmlAttributes& attributes)
{
    for (int i = attributes.count(); i-- > 0;) { // backwards: of several of one name the first one counts
        const QString attribute = attributes.qName(i);
        if (isWord(attribute, NameWord)) {
            name = attributes.value(i);
        } else if (isWord(attribute, TypeWord)) {
            type = attributes.value(i);
        } else if (isWord(attribute, MinOccursWord)) {
            minOccurs = numberIn(attributes.value(i));
        } else if (isWord(attribute, MaxOccursWord)) {
            maxOccurs = greatestIn(attributes.value(i));
        } else if (isWord(attribute, RefWord)) {
            ref = attributes.value(i);
        } else if (isWord(attribute, DefaultWord)) {
            defaultValue = attributes.value(i);
        }
    }
    if (minOccurs == OccursNotGiven) {
        minOccurs = 1;
    }
}

XmlSchemaHandler::XmlSchemaHandler(IXMLHelper* pCallback, const QString& schemaPath)
    : XmlSchemaHandler(std::make_shared<SchemaReading>(), pCallback, schemaPath)
{
    if (checkObserver(pCallback, "XmlSchemaHandler", HandlerComponent, 35)) {
        m_pReading->budget.OpenFile(identityOfFile(openableFileName(schemaPath)), 0);
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
    , m_bFaultIsTold(false)
    , m_pLocator(nullptr)
    , m_pGuardedSource(nullptr)
    , m_pReading(reading)
    , m_pShare(&m_pReading->shares[nullptr])
    , m_pLog(reading->log)
{
}

XmlSchemaHandler::~XmlSchemaHandler() = default;

void XmlSchemaHandler::SetLog(SchemaReadingLog* log)
{
    m_pLog = m_pReading->log = log;
    m_pReading->isMarked = log && log->HearsLayout();
    m_pReading->budget.SetLog(log);
}

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
    const bool isTop = m_eRootUse != RootUse::Unused;
    if (isTop) {
        m_eRootUse = RootUse::Moved;
        if (m_pLog) {
            tellFileBegun(m_sSchemaPath, fileName, SchemaTag());
        }
    }
    const QByteArray bytes = readBytes(fileName);
    // Qualified names are all that counts.
    parser.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    parser.setContentHandler(this);
    parser.setErrorHandler(this);
    const bool isParsed = parse(bytes, parser);
    if (m_pLog) {
        m_pLog->FileEnded(m_tag.file);
    }
    if (isTop && m_pReading->isMarked) {
        takeOffAllOrigins();
    }
    return isParsed;
}

/// Nothing when the file cannot be opened or is more than may be read.
QByteArray XmlSchemaHandler::readBytes(const QString& fileName)
{
    ContentFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        m_bFaultIsTold = true;
        if (m_pLog) {
            m_pLog->FileMissing(m_tag.file);
        }
        return QByteArray();
    }
    return m_pReading->budget.TakeBytes(file.size()) ? file.readAll() : QByteArray();
}

bool XmlSchemaHandler::parse(const QByteArray& bytes, QXmlSimpleReader& parser)
{
    QXmlInputSource plainSource;
    plainSource.setData(bytes);
    if (!GuardedSource::IsNeededFor(plainSource.data())) {
        return parser.parse(plainSource);
    }
    GuardedSource source(bytes);
    m_pGuardedSource = &source;
    const bool isParsed = source.Parse(parser);
    m_pGuardedSource = nullptr;
    if (!source.GetRefusal().isEmpty()) {
        m_pReading->budget.Refuse(source.GetRefusal());
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
        trace(QStringLiteral("Callback-Pointer is NULL!"), HandlerComponent, __LINE__);
        return false;
    }
    m_bFaultIsTold = true;
    const bool isResolved = resolveReferences();
    const bool isGivenUp = !isResolved && !m_pReading->budget.IsRefused() && m_eRootUse != RootUse::Unused;
    if (isGivenUp && m_pLog) {
        tellMissingReferences();
    }
    return isResolved && chooseRoot();
}

bool XmlSchemaHandler::startElement(const QString&, const QString&, const QString& qName,
                                    const QXmlAttributes& attributes)
{
    if (!m_pCallback) {
        return true;
    }
    m_sCurrentName = qName;
    m_attributes = usableAttributes(attributes);
    ++m_tag.number;
    if (m_pLog) {
        m_pLog->TagBegun(m_tag, qName, m_pLocator ? m_pLocator->lineNumber() : 0);
        m_pLog->AttributesRead(m_attributes);
    }
    if (!m_pReading->budget.CheckTag(++m_iNesting)) {
        return false;
    }
    if (m_bInsideRestriction) {
        readFacet();
    } else {
        readTag();
    }
    return !m_pReading->budget.IsRefused();
}

bool XmlSchemaHandler::endElement(const QString&, const QString&, const QString& qName)
{
    --m_iNesting;
    if (m_pLog && m_pCallback) {
        m_pLog->TagEnded();
    }
    if (isTypeTag(qName) && m_iDefinitionDepth > 0) {
        endType();
    } else if (isDeclarationTag(qName) && m_iDefinitionDepth == 0) {
        m_bInsideGlobal = false;
        if (qName == AttributeTag) {
            m_bGlobalIsAttribute = false;
        }
    } else if (isWord(qName, RestrictionTag)) {
        m_bInsideRestriction = false;
        m_iEnumerationCounter = 1;
    } else if (isWord(qName, ChoiceTag)) {
        m_bInsideChoice = false;
    }
    return true;
}

bool XmlSchemaHandler::characters(const QString& ch)
{
    if (m_pLog && m_pCallback) {
        m_pLog->TextRead(ch);
    }
    return true;
}

void XmlSchemaHandler::setDocumentLocator(QXmlLocator* locator)
{
    m_pLocator = locator;
}

/// Comes for every parse that fails, also for what a function of this handler has refused.
bool XmlSchemaHandler::fatalError(const QXmlParseException& exception)
{
    // A source that refuses its content ends it in the middle, which is no fault of the text.
    const bool isCutOff = m_pGuardedSource && !m_pGuardedSource->GetRefusal().isEmpty();
    if (m_pLog && !m_bFaultIsTold && !isCutOff && !m_pReading->budget.IsRefused()) {
        m_bFaultIsTold = true;
        m_pLog->FileMalformed(m_tag.file, exception.message(), exception.lineNumber());
    }
    return true;
}

/// The element may be a handle that lives for this call.
template <typename Element>
void XmlSchemaHandler::annotate(Element&& element, const QString& name, const QString& value,
                                SchemaReadingLog::AttributeKind kind) const
{
    if (m_pReading->isMarked) {
        element.setAttribute(name, valueFrom(m_tag, kind, value));
    } else {
        element.setAttribute(name, value);
    }
}

void XmlSchemaHandler::tellFileBegun(const QString& written, const QString& opened, const SchemaTag& include)
{
    m_tag.file = m_pReading->files++;
    const bool isAgain = !m_pReading->begunFiles.insert(identityOfFile(opened)).second;
    m_pLog->FileBegun(m_tag.file, written, opened, include, isAgain);
}

/// What is left when the whole schema is given up.
void XmlSchemaHandler::tellMissingReferences() const
{
    const ReferredNames& names = m_pReading->names;
    for (const std::set<QString>* const kind : {&names.missing, &names.blocked}) {
        for (const QString& name : *kind) {
            const auto unserved = names.unserved.find(name);
            if (unserved == names.unserved.end()) {
                continue;
            }
            for (const auto& ofCopies : unserved->second) {
                for (const ElementPathRecord* const record : ofCopies.second) {
                    m_pLog->ReferenceNeverCame(name, m_pReading->referringTags[record->ownerElement],
                                               record->definitionName, kind == &names.blocked);
                }
            }
        }
    }
}

/// From what the model points to, too, so that it is the same with a listener as without. The skeleton is told.
void XmlSchemaHandler::takeOffAllOrigins()
{
    takeOffOrigins(*m_pDocument, m_pLog);
    for (const QDomDocumentFragment& fragment : m_pReading->fragments) {
        takeOffOrigins(fragment, nullptr);
    }
    for (const QDomElement& element : m_pReading->elements) {
        QDomNode top = element;
        while (!top.parentNode().isNull()) {
            top = top.parentNode();
        }
        if (nameOf(top) != top.nodeName()) { // lost elements: they stand in no fragment
            takeOffOrigins(top, nullptr);
        }
    }
}

void XmlSchemaHandler::readTag()
{
    using Construct = std::pair<QLatin1String, void (XmlSchemaHandler::*)()>;
    static const Construct constructs[] = {
        {ElementTag, &XmlSchemaHandler::readElement},          {AttributeTag, &XmlSchemaHandler::readAttribute},
        {ComplexTypeTag, &XmlSchemaHandler::beginType},        {SimpleTypeTag, &XmlSchemaHandler::beginType},
        {RestrictionTag, &XmlSchemaHandler::beginRestriction}, {ExtensionTag, &XmlSchemaHandler::beginExtension},
        {ChoiceTag, &XmlSchemaHandler::beginChoice},           {IncludeTag, &XmlSchemaHandler::readInclude},
    };
    for (const auto& [tag, read] : constructs) {
        if (isWord(m_sCurrentName, tag)) {
            (this->*read)();
            return;
        }
    }
    if (m_pLog) {
        m_pLog->TagPassedOver(m_tag);
    }
}

void XmlSchemaHandler::readElement()
{
    if (m_iDefinitionDepth == 0) {
        beginGlobalDeclaration();
    } else {
        readLocalElement();
    }
}

void XmlSchemaHandler::readAttribute()
{
    if (m_iDefinitionDepth == 0) {
        beginGlobalDeclaration();
    } else {
        readLocalAttribute();
    }
}

void XmlSchemaHandler::beginChoice()
{
    m_bInsideChoice = true;
}

void XmlSchemaHandler::readInclude()
{
    m_bIncludeFollowed = true;
    const QString fileName = openableFileName(includedFileName());
    const QString identity = identityOfFile(fileName);
    SchemaBudget& budget = m_pReading->budget;
    if (!budget.MayOpen(identity)) {
        trace(QStringLiteral("Include was skipped, it is already being read!"), HandlerComponent, __LINE__);
        if (m_pLog) {
            m_pLog->FileSkipped(firstValue(), fileName, m_tag, budget.IsOpen(identity));
        }
        return;
    }
    if (!budget.OpenFile(identity, m_iNesting)) {
        return;
    }

    // Includes inside the included file resolve against the top schema, so the handler gets this one's path.
    // The maps go there and come back: this file is not read in between.
    XmlSchemaHandler included(m_pReading, m_pCallback, m_sSchemaPath);
    std::move(*this).HandOver(included.m_unresolvedTypes, included.m_occurs, included.m_typeDefinitions,
                              included.m_choices);
    included.m_eRootUse = RootUse::Unused;
    if (m_pLog) {
        included.tellFileBegun(firstValue(), fileName, m_tag);
    }
    QXmlSimpleReader parser;
    included.ReadFile(fileName, parser);
    budget.CloseFile(m_iNesting);
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
    if (!m_sDefinitionName.isEmpty()) {
        if (isRepresentableName(m_sDefinitionName, "XmlSchemaHandler")) {
            m_currentElement = createElement(m_sDefinitionName, currentFragment());
        } else {
            m_pReading->isGlobalLeftOut = true;
            if (m_pLog) {
                m_pLog->GlobalLeftOut(m_sDefinitionName, m_tag);
            }
        }
    }
    define(m_sDefinitionName, TypeDefinition {0, 0, m_pCurrentFragment});

    for (int i = 0; i < m_attributes.count(); ++i) {
        const QString name = m_attributes.qName(i);
        if (name == TypeAttribute() && !readGlobalType(m_attributes.value(i))) {
            return; // What stands behind a type that is not usable yet is not read.
        }
        if (name == DefaultAttribute()) {
            annotate(m_currentElement, DefaultAttribute(), m_attributes.value(i));
        }
    }
}

/// Gives false when the type is not usable yet.
bool XmlSchemaHandler::readGlobalType(const QString& type)
{
    if (hasSchemaPrefix(type)) {
        annotate(m_currentElement, TypeAttribute(), withoutSchemaPrefix(type));
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
    if (!declaration.name.isEmpty() && m_pReading->budget.CheckName(declaration.name, m_tag)) {
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
    if (!mayRepeat(declaration)) {
        return;
    }
    for (int copy = 0; copy < declaration.Copies() && !m_pReading->budget.IsRefused(); ++copy) {
        QDomElement element
            = createElement(declaration.name, m_bInsideGlobal ? QDomNode(m_currentElement) : currentFragment());
        m_typeLevelElement = element;
        if (!declaration.defaultValue.isEmpty()) {
            annotate(element, DefaultAttribute(), declaration.defaultValue);
        }
        if (hasSchemaPrefix(declaration.type)) {
            annotate(element, TypeAttribute(), withoutSchemaPrefix(declaration.type));
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

/// Whether an element may be laid out as often as it is declared, with what a usable type gives to it.
bool XmlSchemaHandler::mayRepeat(const ElementDeclaration& declaration)
{
    const int copies = declaration.Copies();
    if (!m_pReading->budget.CheckElements(copies, *m_pShare)) {
        return false;
    }
    const bool isTypeRepeated = copies > 1 && !hasSchemaPrefix(declaration.type);
    const TypeDefinition* const type = isTypeRepeated ? findUsableDefinition(declaration.type) : nullptr;
    if (!type) {
        return true;
    }
    const int attributes = extentOf(*type->fragment).attributes;
    return m_pReading->budget.CheckAttributes(qint64(attributes) * copies,
                                              qint64(enumerationValuesOf(*type, attributes)) * copies);
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
    SchemaBudget::Share* const shareOfFirst = m_pShare;
    beginFragment(true);
    m_typeLevelElement = createElement(declaration.name, currentFragment());
    if (m_bInsideGlobal) {
        m_pShare = shareOfFirst; // What follows still goes there.
    }
    define(declaration.name, TypeDefinition {1, 1, m_pCurrentFragment});
    ElementPathRecord record = recordOf(m_typeLevelElement);
    record.definitionName = declaration.name;
    recordReference(declaration.type, 1, record);
}

void XmlSchemaHandler::enterOccurs(QString name, const ElementDeclaration& declaration)
{
    if (const std::optional<int> code = occursCodeOf(declaration.minOccurs, declaration.maxOccurs)) {
        const QString owner = m_bInsideGlobal ? nameOf(m_currentElement) : m_sDefinitionName;
        const auto entry = m_occurs.try_emplace(name).first;
        if (entry == m_occurs.end()) { // unreached: what was entered is there
            name = LostElementName;
        } else {
            entry->second[*code].push_back(owner);
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
        annotate(annotatedElement(), TypeAttribute(), withoutSchemaPrefix(firstValue()));
    }
    m_bInsideRestriction = true;
}

void XmlSchemaHandler::readFacet()
{
    QString facet = withoutSchemaPrefix(m_sCurrentName);
    if (facet.contains(EnumerationFacet)) {
        if (!m_pReading->budget.TakeEnumerationValue(m_iEnumerationCounter)) {
            return;
        }
        facet += QString::number(m_iEnumerationCounter++);
    }
    if (m_pReading->budget.CheckName(facet, m_tag)) {
        annotate(annotatedElement(), facet, firstValue());
        if (m_pLog) {
            m_pLog->FacetRead(m_tag, facet);
        }
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
        annotate(lastChildOrCurrent(), TypeAttribute(), withoutSchemaPrefix(base));
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
    const DomAttributes attributes = attributesOf(extended);
    if (!takeAttributes(attributes)) {
        return;
    }
    if (extended.hasAttribute(TypeAttribute())) {
        target.setAttribute(TypeAttribute(), extended.attribute(TypeAttribute()));
    }
    copyFacets(attributes, target);
}

void XmlSchemaHandler::readLocalAttribute()
{
    const QString name = m_attributes.value(QLatin1String("name"));
    const QString ref = m_attributes.value(QLatin1String("ref"));
    if (!name.isEmpty() && m_pReading->budget.CheckName(name, m_tag)) {
        annotate(attributedElement(), name, m_attributes.value(QLatin1String("type")),
                 SchemaReadingLog::AttributeKind::Declared);
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
    m_pShare = &m_pReading->shares[m_pCurrentFragment];
    m_pShare->isOfNamedType = isOfNamedType;
}

/// The fragment of the definition being read; null outside of any.
QDomNode XmlSchemaHandler::currentFragment() const
{
    return m_pCurrentFragment ? *m_pCurrentFragment : QDomNode();
}

/// Creates an element and appends it to @p owner; a null element when the limits do not allow it.
QDomElement XmlSchemaHandler::createElement(const QString& name, QDomNode owner)
{
    if (!m_pReading->budget.TakeElements({1, 1, 0}, 0, 1, levelOf(owner), *m_pShare)) {
        return QDomElement();
    }
    QDomElement element = m_pDocument->createElement(m_pReading->isMarked ? nameFrom(m_tag, name) : name);
    if (!owner.isNull()) {
        owner.appendChild(element);
    }
    if (owner.isDocumentFragment() && !m_pShare->isOfNamedType) {
        m_pReading->unusedGlobals.insert(m_sDefinitionName);
    }
    return element;
}

/// The carrier of a simple type: declarations that follow go to it as well.
void XmlSchemaHandler::beginCarrier()
{
    m_currentElement = createElement(CarrierName, currentFragment());
    m_typeLevelElement = m_currentElement;
}

/// The name of an element without where it comes from.
QString XmlSchemaHandler::nameOf(const QDomNode& node) const
{
    return m_pReading->isMarked ? withoutOrigin(node.nodeName()) : node.nodeName();
}

bool XmlSchemaHandler::isCarrier(const QDomNode& node) const
{
    return nameOf(node) == CarrierName;
}

/// Gives the facets among @p attributes to @p to, with @p suffix, the name of a declared attribute, appended to their
/// names.
void XmlSchemaHandler::copyFacets(const DomAttributes& attributes, QDomElement to, const QString& suffix) const
{
    const bool isOfDeclared = m_pReading->isMarked && !suffix.isEmpty();
    for (const QDomAttr& attribute : attributes) {
        if (isFacetOfType(attribute.name())) {
            const QString value = attribute.value();
            to.setAttribute(attribute.name() + suffix,
                            isOfDeclared ? valueOfKind(SchemaReadingLog::AttributeKind::FacetOfDeclared, value)
                                         : value);
        }
    }
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
    m_pReading->names.changed.insert(name);
    if (m_pLog) {
        m_pLog->Defined(name, m_tag);
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
                              SchemaBudget::Share& share)
{
    definition.usedFlag = 1;
    const QDomNode first = definition.fragment->firstChild();
    if (isCarrier(first)) {
        copyAttributes(first.toElement(), owner);
        return;
    }
    if (first.isNull() || owner.isNull()) {
        return;
    }
    for (; copies > 0; --copies) {
        // Measured for each copy: a definition that refers to itself grows under way.
        const DomExtent extent = extentOf(*definition.fragment);
        if (!m_pReading->budget.TakeElements(extent, enumerationValuesOf(definition, extent.attributes), copies,
                                             levelOf(owner), share)) {
            return;
        }
        const QDomNode content = definition.fragment->cloneNode(true);
        if (m_pReading->isMarked && !m_pReading->shares[definition.fragment].isOfNamedType) {
            addReference(content, m_tag);
        }
        if (anchor.isNull()) {
            owner.appendChild(content);
        } else {
            owner.insertAfter(content, anchor);
        }
    }
}

void XmlSchemaHandler::layOutNow(TypeDefinition& definition, const QDomElement& owner, int copies)
{
    layOut(definition, owner, QDomNode(), copies, *m_pShare);
}

void XmlSchemaHandler::copyAttributes(const QDomElement& from, QDomElement to)
{
    const DomAttributes attributes = attributesOf(from);
    if (takeAttributes(attributes)) {
        for (const QDomAttr& attribute : attributes) {
            to.setAttribute(attribute.name(), attribute.value());
        }
    }
}

/// Whether so many attributes more may be copied.
bool XmlSchemaHandler::takeAttributes(const DomAttributes& attributes)
{
    return m_pReading->budget.TakeAttributes(static_cast<int>(attributes.size()), enumerationValuesAmong(attributes));
}

/// Gives @p owner the attribute that @p definition, a global attribute, declares, and its facets.
void XmlSchemaHandler::setDeclaredAttribute(TypeDefinition& definition, QDomElement owner)
{
    definition.usedFlag = 1;
    // A clone, because a global attribute that refers to itself is its own owner.
    const QDomElement declared = definition.fragment->firstChildElement().cloneNode(false).toElement();
    const DomAttributes attributes = attributesOf(declared);
    if (!declared.isNull() && takeAttributes(attributes)) {
        const QString name = nameOf(declared);
        annotate(owner, name, declared.attribute(TypeAttribute()), SchemaReadingLog::AttributeKind::Declared);
        copyFacets(attributes, owner, name);
    }
}

/// Records a reference that also keeps the definition being read from being usable.
void XmlSchemaHandler::deferReference(const QString& name, int copies, const ElementPathRecord& record)
{
    if (TypeDefinition* const definition = findDefinition(m_sDefinitionName)) {
        ++definition->pendingCount;
        m_pReading->names.changed.insert(m_sDefinitionName);
    }
    recordReference(name, copies, record);
}

void XmlSchemaHandler::recordReference(const QString& name, int copies, const ElementPathRecord& record)
{
    std::list<ElementPathRecord>& records = m_unresolvedTypes[name][copies];
    records.push_back(record);
    m_pReading->names.unserved[name][copies].push_back(&records.back());
    m_pReading->names.changed.insert(name);
    if (m_pLog) {
        m_pReading->referringTags[record.ownerElement] = m_tag;
        m_pLog->ReferenceDeferred(m_tag, name);
    }
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

/// What an included file has expanded already serves this file's waiting users too. Where nobody waits it makes a
/// difference behind a name that is missing only: such a definition stays usable.
void XmlSchemaHandler::reviveExpandedDefinitions()
{
    ReferredNames& names = m_pReading->names;
    std::set<QString> revived = std::exchange(names.expandedAwaited, {});
    if (!names.missing.empty()) {
        revived.insert(names.expanded.upper_bound(*names.missing.begin()), names.expanded.end());
    }
    for (const QString& name : revived) {
        findDefinition(name)->pendingCount = 0;
        names.expanded.erase(name);
        names.usable.insert(name);
    }
}

/// Lays out the names that are referred to in the order of passes over them, looking at each only once it is usable.
/// What becomes usable under way belongs to the same pass when its name is still to come, else to the next one. Gives
/// false when the first pass comes to a name that has no definition, and when definitions are left that wait for each
/// other.
bool XmlSchemaHandler::resolveReferences()
{
    ReferredNames& names = m_pReading->names;
    for (const QString& name : std::exchange(names.changed, {})) {
        sortIn(name);
    }
    if (m_bIncludeFollowed) {
        reviveExpandedDefinitions();
    }
    const std::set<QString>& missing = names.missing;
    while (!names.usable.empty() && (missing.empty() || *names.usable.begin() < *missing.begin())) {
        const QString name = *names.usable.begin();
        expand(name);
        if (m_pReading->budget.IsRefused()) {
            return false;
        }
        if (names.usable.empty() && missing.empty()) {
            names.usable.swap(names.usableLater);
        }
    }
    names.usable.merge(names.usableLater);
    if (!missing.empty() || !names.blocked.empty()) {
        trace(QStringLiteral("Missing Element was not found! XmlSchemaHandler terminates..."), HandlerComponent, 1389);
        return false;
    }
    return true;
}

/// Puts @p name where it belongs now.
void XmlSchemaHandler::sortIn(const QString& name)
{
    if (name.isEmpty() || m_unresolvedTypes.count(name) == 0) {
        return;
    }
    ReferredNames& names = m_pReading->names;
    names.Forget(name);
    const TypeDefinition* const definition = findDefinition(name);
    if (!definition) {
        names.missing.insert(name);
    } else if (definition->pendingCount > 0) {
        names.blocked.insert(name);
    } else if (definition->pendingCount == 0) {
        names.usable.insert(name);
    } else {
        names.expanded.insert(name);
        if (names.unserved.count(name) > 0) {
            names.expandedAwaited.insert(name);
        }
    }
}

/// Lays the definition of @p name, which is usable, out wherever it is waited for.
void XmlSchemaHandler::expand(const QString& name)
{
    ReferredNames& names = m_pReading->names;
    names.usable.erase(name);
    names.expanded.insert(name);
    findDefinition(name)->pendingCount = -1;
    const auto unserved = names.unserved.find(name);
    if (unserved == names.unserved.end()) {
        return;
    }
    const auto recordsOfCopies = std::move(unserved->second);
    names.unserved.erase(unserved);
    for (const auto& [copies, records] : recordsOfCopies) {
        for (const ElementPathRecord* const record : records) {
            if (m_pReading->budget.IsRefused()) {
                return;
            }
            serve(name, std::max(1, copies), *record);
        }
    }
}

/// Every copy counts as one of the pieces that the definition of the record waits for.
void XmlSchemaHandler::serve(const QString& name, int copies, const ElementPathRecord& record)
{
    TypeDefinition& definition = *findDefinition(name);
    const SchemaTag lastTag = m_tag;
    if (m_pLog) {
        m_tag = m_pReading->referringTags[record.ownerElement];
    }
    if (record.isAttributeReference) {
        setDeclaredAttribute(definition, *record.ownerElement);
    } else {
        layOut(definition, *record.ownerElement, record.anchorElement ? *record.anchorElement : QDomElement(), copies,
               shareOf(record.definitionName));
    }
    m_tag = lastTag;
    TypeDefinition* const waiting = findDefinition(record.definitionName);
    if (!waiting || waiting->pendingCount <= 0) {
        return;
    }
    waiting->pendingCount -= std::min(copies, waiting->pendingCount);
    ReferredNames& names = m_pReading->names;
    if (waiting->pendingCount == 0 && names.blocked.erase(record.definitionName) > 0) {
        (name < record.definitionName ? names.usable : names.usableLater).insert(record.definitionName);
    }
}

SchemaBudget::Share& XmlSchemaHandler::shareOf(const QString& definitionName)
{
    const TypeDefinition* const definition = findDefinition(definitionName);
    SchemaBudget::Share& share = m_pReading->shares[definition ? definition->fragment : nullptr];
    if (definition && !std::exchange(share.isMeasured, true)) {
        share.elements = extentOf(*definition->fragment).elements;
    }
    return share;
}

/// The values of enumerations among the attributes that a definition holds. None is ever taken away, so they are
/// counted again only when there are more attributes.
int XmlSchemaHandler::enumerationValuesOf(const TypeDefinition& definition, int attributes)
{
    if (!m_pReading->budget.HasEnumerations()) {
        return 0;
    }
    CountedAttributes& counted = m_pReading->countedAttributes[definition.fragment];
    if (counted.attributes != attributes) {
        counted = {attributes, enumerationValuesBelow(*definition.fragment)};
    }
    return counted.enumerationValues;
}

/// The last unused global declaration in the order of names becomes the root; all of them count as used from then on.
/// Gives false when it has grown beyond the limit, by references of other definitions that landed in it, and when no
/// root is left because of a name that XML does not allow.
bool XmlSchemaHandler::chooseRoot()
{
    for (const QString& name : std::exchange(m_pReading->unusedGlobals, {})) {
        TypeDefinition* const definition = findDefinition(name);
        if (definition && definition->usedFlag == 0 && definition->fragment->hasChildNodes()) {
            m_pCurrentFragment = definition->fragment;
            definition->usedFlag = 1;
            if (m_pLog) {
                m_pLog->UnusedGlobal(m_tag.file, name);
            }
        }
    }
    const QDomNode root = currentFragment();
    if (!m_pReading->budget.CheckElements(extentOf(root).elements, SchemaBudget::Share())) {
        return false;
    }
    return m_eRootUse == RootUse::Unused || makeSkeleton(root);
}

bool XmlSchemaHandler::makeSkeleton(const QDomNode& root)
{
    if (m_pReading->isGlobalLeftOut && root.firstChildElement().isNull()) {
        return false;
    }
    m_pDocument->setContent(QString(SkeletonDeclaration));
    if (!root.isNull()) {
        m_pDocument->appendChild(m_eRootUse == RootUse::Moved ? root : root.cloneNode(true));
    }
    if (!m_pDocument->documentElement().nextSiblingElement().isNull()) {
        trace(QStringLiteral("The schema lays out several roots, the report is no XML document!"), HandlerComponent,
              __LINE__);
    }
    return true;
}
