#include "layoutplan.h"

#include <algorithm>
#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <xmlhelper/constants_p.h>
#include <xmlhelper/documentfile_p.h>
#include <xmlhelper/limits_p.h>
#include <xmlhelper/xmltext_p.h>

#include "doctorlimits.h"

namespace schemadoctor {

namespace {

const char Component[] = "LayoutPlan";

bool hasSchemaPrefix(const QString& name)
{
    return name.contains(SchemaPrefix);
}

bool isTypeTag(const QString& qName)
{
    return qName == QLatin1String("xs:complexType") || qName == QLatin1String("xs:simpleType");
}

bool isDeclarationTag(const QString& qName)
{
    return qName == QLatin1String("xs:element") || qName == QLatin1String("xs:attribute");
}

QString identityOfFile(const QString& fileName)
{
    const QString canonical = QFileInfo(fileName).canonicalFilePath();
    return canonical.isEmpty() ? fileName : canonical;
}

bool isBelowFolder(const QString& fileName, const QString& folder)
{
    const QString path = QDir::cleanPath(QFileInfo(fileName).absoluteFilePath());
    return path.startsWith(QDir::cleanPath(QFileInfo(folder).absolutePath()) + QLatin1Char('/'));
}

} // namespace

/// What the readers of all files share.
struct LayoutPlan::State
{
    explicit State(SchemaText& schemaText)
        : text(schemaText)
    {
    }

    SchemaText& text;
    std::vector<Node> nodes;
    std::vector<QString> names;
    QHash<QString, int> numbersOfNames;
    std::map<QString, Definition> definitions;
    std::map<QString, std::map<int, std::list<Reference>>> unresolved;

    std::vector<Replacement> replacements;
    std::map<const TextNode*, const TextNode*> hiddenRoots;
    std::map<QString, std::vector<const TextNode*>> missing;
    std::set<const TextNode*> deferred;
    QVector<RootCandidate> rootCandidates;
    std::vector<const TextFile*> readFiles;
    IncludedFile includes;
    QString topFile;

    QStringList openFiles;
    int openTags = 0;
    int files = 0;
    qint64 bytes = 0;
    int elementsOfAllDefinitions = 0;
    int elementsOfNamedTypes = 0;
    std::set<int> fragmentsOfNamedTypes;
    qint64 annotations = 0; ///< of all elements
    QString leftOutName; ///< of a global declaration, the first that XML does not allow
    int root = None;
    int elements = 0;
    End end = End::Reached;
    QString limit;
    bool isRefused = false;

    int NumberOf(const QString& name);
    int Add(const QString& name, int parent, const TextNode* declaration);
    void Append(int child, int parent);
    void InsertAfter(int child, int sibling);
    int CopyOf(int top);
    std::pair<int, int> ExtentOf(int top) const;
    int LevelOf(int node) const;
    void Annotate(int node, int count = 1);
    bool IsCarrier(int node) const
    {
        return node != None && names[std::size_t(nodes[std::size_t(node)].name)] == CarrierName;
    }
    Node& At(int index) { return nodes[std::size_t(index)]; }
    const Node& At(int index) const { return nodes[std::size_t(index)]; }
};

int LayoutPlan::State::NumberOf(const QString& name)
{
    const auto found = numbersOfNames.constFind(name);
    if (found != numbersOfNames.constEnd()) {
        return *found;
    }
    names.push_back(name);
    return *numbersOfNames.insert(name, int(names.size()) - 1);
}

/// A new node; the last child of @p parent unless that is None.
int LayoutPlan::State::Add(const QString& name, int parent, const TextNode* declaration)
{
    Node node;
    node.name = name.isNull() ? None : NumberOf(name);
    node.declaration = declaration;
    nodes.push_back(node);
    const int index = int(nodes.size()) - 1;
    if (parent != None) {
        Append(index, parent);
    }
    return index;
}

void LayoutPlan::State::Append(int child, int parent)
{
    At(child).parent = parent;
    if (At(parent).lastChild == None) {
        At(parent).firstChild = child;
    } else {
        At(At(parent).lastChild).next = child;
    }
    At(parent).lastChild = child;
}

void LayoutPlan::State::InsertAfter(int child, int sibling)
{
    const int parent = At(sibling).parent;
    At(child).parent = parent;
    At(child).next = At(sibling).next;
    At(sibling).next = child;
    if (At(parent).lastChild == sibling) {
        At(parent).lastChild = child;
    }
}

/// A deep copy that stands nowhere yet.
int LayoutPlan::State::CopyOf(int top)
{
    const auto copyOfOne = [this](int index) {
        Node copy = At(index);
        copy.parent = copy.firstChild = copy.lastChild = copy.next = None;
        nodes.push_back(copy);
        annotations += copy.annotations;
        return int(nodes.size()) - 1;
    };
    const int copyOfTop = copyOfOne(top);
    int node = top;
    int copy = copyOfTop;
    for (;;) {
        if (At(node).firstChild != None) {
            node = At(node).firstChild;
            const int child = copyOfOne(node);
            Append(child, copy);
            copy = child;
            continue;
        }
        while (node != top && At(node).next == None) {
            node = At(node).parent;
            copy = At(copy).parent;
        }
        if (node == top) {
            return copyOfTop;
        }
        node = At(node).next;
        const int sibling = copyOfOne(node);
        Append(sibling, At(copy).parent);
        copy = sibling;
    }
}

void LayoutPlan::State::Annotate(int node, int count)
{
    if (node != None) {
        At(node).annotations += count;
        annotations += count;
    }
}

/// How many elements, and in how many levels.
std::pair<int, int> LayoutPlan::State::ExtentOf(int top) const
{
    int count = 0;
    int levels = 0;
    int level = 0;
    int node = top;
    while (node != None) {
        const int own = At(node).name == None ? 0 : 1;
        count += own;
        levels = std::max(levels, level + own);
        if (At(node).firstChild != None) {
            level += own;
            node = At(node).firstChild;
            continue;
        }
        while (node != top && At(node).next == None) {
            node = At(node).parent;
            level -= At(node).name == None ? 0 : 1;
        }
        node = node == top ? None : At(node).next;
    }
    return {count, levels};
}

int LayoutPlan::State::LevelOf(int node) const
{
    int level = 0;
    for (int ancestor = node; ancestor != None; ancestor = At(ancestor).parent) {
        level += At(ancestor).name == None ? 0 : 1;
    }
    return level;
}

/// Goes the steps for one file.
class LayoutPlan::Reader
{
public:
    Reader(State& state, const TextFile& file, IncludedFile& includedFile, const TextNode* include)
        : m_state(state)
        , m_file(file)
        , m_includedFile(includedFile)
        , m_include(include)
    {
    }

    void Read();

private:
    /// How many elements have been laid into a definition.
    struct TreeCount
    {
        int elements = 0;
        bool isOfNamedType = false;
    };

    struct Element
    {
        explicit Element(const TextNode& tag);

        QString name;
        QString type;
        QString ref;
        int minOccurs;
    };

    void readTree(const TextNode& tag);
    void begin(const TextNode& tag);
    void end(const TextNode& tag);
    void readInclude(const TextNode& tag);
    QString includedFileName(const TextNode& tag) const;
    void beginFragment(bool isOfNamedType, const TextNode& tag);
    void define(const QString& name, int usedFlag, const TextNode& tag);
    void beginGlobal(const TextNode& tag);
    void readElement(const TextNode& tag);
    void readNamedElement(const TextNode& tag, const Element& element);
    void deferElement(const TextNode& tag, const Element& element, int first);
    void beginExtension(const TextNode& tag);
    void readAttribute(const TextNode& tag);
    int createElement(const QString& name, int owner, const TextNode& tag);
    void beginCarrier(const TextNode& tag);
    int lastChildOrCurrent() const;
    Definition* findDefinition(const QString& name);
    Definition* findUsableDefinition(const QString& name);
    void layOut(Definition& definition, int owner, int anchor, int copies, TreeCount& tree);
    void deferReference(const QString& name, int copies, const Reference& reference);
    void recordReference(const QString& name, int copies, const Reference& reference);
    Reference referenceFrom(const TextNode& tag, int owner, int anchor = None) const;
    bool resolveReferences();
    void expand(const QString& name, Definition& definition);
    void serve(Definition& definition, int copies, const Reference& reference);
    TreeCount& treeCountOf(const QString& definitionName);
    void chooseRoot();
    bool isWithinLimits(int elements, int levels, int owner, TreeCount& tree);
    void refuse(End end, const QString& reason);
    void refuseElements();
    void checkName(const QString& name);
    void checkAnnotations();

    State& m_state;
    const TextFile& m_file;
    IncludedFile& m_includedFile;
    const TextNode* m_include; ///< the tag that includes this file; null for the top file
    int m_depth = 0;
    bool m_isInsideRestriction = false;
    bool m_isInsideGlobal = false;
    bool m_isIncludeFollowed = false;
    int m_currentElement = None;
    int m_typeLevelElement = None;
    int m_currentFragment = None;
    QString m_definitionName;
    int m_nesting = 0;
    int m_enumerationValues = 0;
    TreeCount m_fragmentElements;
    std::map<QString, TreeCount> m_treeElements;
};

LayoutPlan::Reader::Element::Element(const TextNode& tag)
    : name(tag.Value("name"))
    , type(tag.Value("type"))
    , ref(tag.Value("ref"))
    , minOccurs(tag.Has("minOccurs") ? tag.Value("minOccurs").toInt() : 1)
{
    if (minOccurs == OccursNotGiven) {
        minOccurs = 1;
    }
}

void LayoutPlan::Reader::Read()
{
    if (!m_file.root) {
        return;
    }
    readTree(*m_file.root);
    if (m_state.isRefused || !m_file.fault.isEmpty()) {
        return;
    }
    if (m_isIncludeFollowed) {
        for (const auto& unresolved : m_state.unresolved) {
            Definition* const definition = unresolved.first.isEmpty() ? nullptr : findDefinition(unresolved.first);
            if (definition && definition->pendingCount == -1) {
                definition->pendingCount = 0;
            }
        }
    }
    if (resolveReferences()) {
        chooseRoot();
    }
}

void LayoutPlan::Reader::readTree(const TextNode& tag)
{
    if (!m_file.fault.isEmpty() && tag.line >= m_file.faultLine) {
        return;
    }
    begin(tag);
    for (const auto& child : tag.children) {
        if (m_state.isRefused) {
            return;
        }
        readTree(*child);
    }
    end(tag);
}

void LayoutPlan::Reader::begin(const TextNode& tag)
{
    if (++m_nesting > limits().elementNesting) {
        refuse(End::LimitExceeded,
               QStringLiteral("The schema is nested deeper than %1 tags.").arg(limits().elementNesting));
        return;
    }
    if (m_state.openTags + m_nesting > limits().openTags) {
        refuse(End::LimitExceeded,
               QStringLiteral("The schema and its includes are nested deeper than %1 tags.").arg(limits().openTags));
        return;
    }
    const QString& name = tag.qName;
    if (m_isInsideRestriction) {
        m_state.Annotate(m_isInsideGlobal ? lastChildOrCurrent() : m_typeLevelElement);
        if (name.contains(EnumerationFacet) && ++m_enumerationValues > limits().enumerationValues) {
            refuse(End::LimitExceeded,
                   QStringLiteral("An enumeration has more than %1 values.").arg(limits().enumerationValues));
        }
    } else if (name == QLatin1String("xs:include")) {
        readInclude(tag);
    } else if (isTypeTag(name)) {
        ++m_depth;
        if (!tag.attributes.isEmpty()) {
            m_typeLevelElement = None;
            define(tag.FirstValue(), 1, tag);
        } else if (m_depth != 1 && name == QLatin1String("xs:complexType")) {
            m_currentElement = m_currentElement == None ? None : m_state.At(m_currentElement).lastChild;
        }
    } else if (isDeclarationTag(name) && m_depth == 0) {
        beginGlobal(tag);
    } else if (name == QLatin1String("xs:element")) {
        readElement(tag);
    } else if (name == QLatin1String("xs:restriction")) {
        if (tag.FirstName() == QLatin1String("base") && !m_isInsideGlobal && m_typeLevelElement == None) {
            beginCarrier(tag);
        }
        m_isInsideRestriction = true;
    } else if (name == QLatin1String("xs:extension")) {
        beginExtension(tag);
    } else if (name == QLatin1String("xs:attribute")) {
        readAttribute(tag);
    }
}

void LayoutPlan::Reader::end(const TextNode& tag)
{
    --m_nesting;
    if (isTypeTag(tag.qName) && m_depth > 0) {
        if (--m_depth > 0 && m_currentElement != None) {
            const int parent = m_state.At(m_currentElement).parent;
            if (parent == None || m_state.At(parent).name != None) {
                m_currentElement = parent;
            }
        }
    } else if (isDeclarationTag(tag.qName) && m_depth == 0) {
        m_isInsideGlobal = false;
    } else if (tag.qName == QLatin1String("xs:restriction")) {
        m_isInsideRestriction = false;
        m_enumerationValues = 0;
    }
}

void LayoutPlan::Reader::readInclude(const TextNode& tag)
{
    m_isIncludeFollowed = true;
    m_includedFile.includes.emplace_back();
    IncludedFile& included = m_includedFile.includes.back();
    included.written = tag.FirstValue();
    included.file = openableFileName(includedFileName(tag));
    included.place = tag.GetPlace();
    included.isOutsideOfFolder = !isBelowFolder(included.file, m_state.topFile);
    const QString identity = identityOfFile(included.file);
    if (m_state.openFiles.contains(identity)) {
        included.state = IncludeState::Cyclic;
        return;
    }
    if (m_state.openFiles.size() >= limits().includeDepth) {
        included.state = IncludeState::TooDeep;
        return;
    }
    if (++m_state.files > limits().schemaFiles) {
        refuse(End::LimitExceeded,
               QStringLiteral("The schema consists of more than %1 files.").arg(limits().schemaFiles));
        return;
    }
    const TextFile& file = *m_state.text.Open(included.file);
    if (file.isMissing) {
        included.state = IncludeState::Missing;
        return;
    }
    m_state.bytes += file.text.size();
    if (file.isTooBig || m_state.bytes > MaxSchemaBytes) {
        refuse(End::TooMuchForTheDoctor,
               QStringLiteral("The doctor reads schemas of up to %1 characters, repeated includes counted again.")
                   .arg(MaxSchemaBytes));
        return;
    }
    const bool isReadBefore
        = std::find(m_state.readFiles.begin(), m_state.readFiles.end(), &file) != m_state.readFiles.end();
    included.state = !file.fault.isEmpty() ? IncludeState::Malformed
        : isReadBefore                     ? IncludeState::ReadAgain
                                           : IncludeState::Read;
    if (!isReadBefore) {
        m_state.readFiles.push_back(&file);
    }
    m_state.openFiles.append(identity);
    m_state.openTags += m_nesting;
    Reader(m_state, file, included, &tag).Read();
    m_state.openTags -= m_nesting;
    m_state.openFiles.removeLast();
}

/// Includes of included files, too, count from the path of the top file.
QString LayoutPlan::Reader::includedFileName(const TextNode& tag) const
{
    const QString& top = m_state.topFile;
    QString folder;
    if (top.endsWith(QLatin1String(".xsd"))) {
        folder = top.left(top.lastIndexOf(QLatin1Char('/'))) + QLatin1Char('/');
    } else if (!top.endsWith(QLatin1Char('/'))) {
        folder = QLatin1Char('/');
    }
    return folder + tag.FirstValue();
}

void LayoutPlan::Reader::beginFragment(bool isOfNamedType, const TextNode& tag)
{
    m_currentFragment = m_state.Add(QString(), None, &tag);
    m_fragmentElements = TreeCount {0, isOfNamedType};
    if (isOfNamedType) {
        m_state.fragmentsOfNamedTypes.insert(m_currentFragment);
    }
}

void LayoutPlan::Reader::define(const QString& name, int usedFlag, const TextNode& tag)
{
    beginFragment(usedFlag == 1, tag);
    m_definitionName = name;
    const auto earlier = m_state.definitions.find(name);
    if (earlier != m_state.definitions.end() && earlier->second.declaration != &tag) {
        m_state.replacements.push_back({earlier->second.declaration, &tag});
    }
    m_state.definitions[name] = {usedFlag, 0, m_currentFragment, &tag};
}

void LayoutPlan::Reader::beginGlobal(const TextNode& tag)
{
    m_isInsideGlobal = true;
    define(tag.FirstValue(), 0, tag);
    m_currentElement = None;
    if (isRepresentableName(tag.FirstValue(), Component)) {
        m_currentElement = createElement(tag.FirstValue(), m_currentFragment, tag);
    } else if (m_state.leftOutName.isEmpty()) {
        m_state.leftOutName = tag.FirstValue();
    }
    for (const TextNode::Attribute& attribute : tag.attributes) {
        if (attribute.name != TypeAttribute() || hasSchemaPrefix(attribute.value)) {
            continue;
        }
        if (Definition* const definition = findUsableDefinition(attribute.value)) {
            layOut(*definition, m_currentElement, None, 1, m_fragmentElements);
        } else {
            deferReference(attribute.value, 1, referenceFrom(tag, m_currentElement));
            return;
        }
    }
}

void LayoutPlan::Reader::readElement(const TextNode& tag)
{
    const Element element(tag);
    if (!element.name.isEmpty()) {
        checkName(element.name);
        readNamedElement(tag, element);
    } else if (!element.ref.isEmpty()) {
        if (Definition* const definition = findUsableDefinition(element.ref)) {
            layOut(*definition, m_currentElement, None, std::max(1, element.minOccurs), m_fragmentElements);
        } else {
            const int anchor = m_currentElement == None ? None : m_state.At(m_currentElement).lastChild;
            deferReference(element.ref, element.minOccurs, referenceFrom(tag, m_currentElement, anchor));
        }
    }
}

void LayoutPlan::Reader::readNamedElement(const TextNode& tag, const Element& element)
{
    const int copies = std::max(1, element.minOccurs);
    if (m_fragmentElements.elements + qint64(copies) > limits().elements) {
        refuseElements();
        return;
    }
    for (int copy = 0; copy < copies && !m_state.isRefused; ++copy) {
        const int node = createElement(element.name, m_isInsideGlobal ? m_currentElement : m_currentFragment, tag);
        m_typeLevelElement = node;
        if (element.type.isEmpty() || hasSchemaPrefix(element.type)) {
            continue;
        }
        if (Definition* const definition = findUsableDefinition(element.type)) {
            layOut(*definition, node, None, 1, m_fragmentElements);
        } else {
            deferElement(tag, element, node);
            return;
        }
    }
}

void LayoutPlan::Reader::deferElement(const TextNode& tag, const Element& element, int first)
{
    deferReference(element.type, 1, referenceFrom(tag, first));
    if (element.minOccurs < 2) {
        return;
    }
    recordReference(element.name, element.minOccurs - 1, referenceFrom(tag, m_currentElement, first));
    beginFragment(true, tag);
    m_typeLevelElement = createElement(element.name, m_currentFragment, tag);
    m_state.definitions[element.name] = {1, 1, m_currentFragment, &tag};
    Reference reference = referenceFrom(tag, m_typeLevelElement);
    reference.definitionName = element.name;
    recordReference(element.type, 1, reference);
}

void LayoutPlan::Reader::beginExtension(const TextNode& tag)
{
    if (!m_isInsideGlobal) {
        beginCarrier(tag);
    }
    if (tag.FirstName() != QLatin1String("base") || hasSchemaPrefix(tag.FirstValue())) {
        return;
    }
    if (Definition* const definition = findUsableDefinition(tag.FirstValue())) {
        definition->usedFlag = 1;
    } else {
        deferReference(tag.FirstValue(), 1, referenceFrom(tag, lastChildOrCurrent()));
    }
}

void LayoutPlan::Reader::readAttribute(const TextNode& tag)
{
    const QString ref = tag.Value("ref");
    m_state.Annotate(m_isInsideGlobal ? m_currentElement : m_typeLevelElement);
    if (!tag.Value("name").isEmpty()) {
        checkName(tag.Value("name"));
        return;
    }
    if (ref.isEmpty()) {
        return;
    }
    if (Definition* const definition = findUsableDefinition(ref)) {
        definition->usedFlag = 1;
    } else {
        Reference reference = referenceFrom(tag, m_currentElement);
        reference.isOfAttribute = true;
        deferReference(ref, 1, reference);
    }
}

int LayoutPlan::Reader::createElement(const QString& name, int owner, const TextNode& tag)
{
    // A null string stands for a fragment; the tag of an element may be an empty one.
    const QString tagName = name.isNull() ? QLatin1String("") : name;
    return isWithinLimits(1, 1, owner, m_fragmentElements) ? m_state.Add(tagName, owner, &tag) : None;
}

void LayoutPlan::Reader::beginCarrier(const TextNode& tag)
{
    m_currentElement = createElement(CarrierName, m_currentFragment, tag);
    m_typeLevelElement = m_currentElement;
}

int LayoutPlan::Reader::lastChildOrCurrent() const
{
    const int last = m_currentElement == None ? None : m_state.At(m_currentElement).lastChild;
    return last == None ? m_currentElement : last;
}

LayoutPlan::Definition* LayoutPlan::Reader::findDefinition(const QString& name)
{
    const auto found = m_state.definitions.find(name);
    return found == m_state.definitions.end() ? nullptr : &found->second;
}

LayoutPlan::Definition* LayoutPlan::Reader::findUsableDefinition(const QString& name)
{
    Definition* const definition = findDefinition(name);
    return definition && definition->pendingCount == 0 ? definition : nullptr;
}

void LayoutPlan::Reader::layOut(Definition& definition, int owner, int anchor, int copies, TreeCount& tree)
{
    definition.usedFlag = 1;
    const int fragment = definition.fragment;
    const int first = m_state.At(fragment).firstChild;
    if (first == None || owner == None) {
        return;
    }
    if (m_state.IsCarrier(first)) {
        m_state.Annotate(owner, m_state.At(first).annotations);
        checkAnnotations();
        return;
    }
    if (tree.elements + qint64(copies) * m_state.ExtentOf(fragment).first > limits().elements) {
        refuseElements();
        return;
    }
    // Nothing is inserted behind an element that stands elsewhere.
    const bool isLost = anchor != None && m_state.At(anchor).parent != owner;
    for (int copy = 0; copy < copies; ++copy) {
        const auto [elements, levels] = m_state.ExtentOf(fragment);
        if (!isWithinLimits(elements, levels, owner, tree)) {
            return;
        }
        if (isLost) {
            continue;
        }
        const int clone = m_state.CopyOf(fragment);
        checkAnnotations();
        int after = anchor;
        for (int child = m_state.At(clone).firstChild; child != None;) {
            const int next = m_state.At(child).next;
            m_state.At(child).next = None;
            if (after == None) {
                m_state.Append(child, owner);
            } else {
                m_state.InsertAfter(child, after);
                after = child;
            }
            child = next;
        }
    }
}

void LayoutPlan::Reader::deferReference(const QString& name, int copies, const Reference& reference)
{
    if (Definition* const definition = findDefinition(m_definitionName)) {
        ++definition->pendingCount;
    }
    recordReference(name, copies, reference);
}

void LayoutPlan::Reader::recordReference(const QString& name, int copies, const Reference& reference)
{
    m_state.deferred.insert(reference.place);
    m_state.unresolved[name][copies].push_back(reference);
}

LayoutPlan::Reference LayoutPlan::Reader::referenceFrom(const TextNode& tag, int owner, int anchor) const
{
    return {owner, anchor, m_definitionName, false, &tag, false};
}

bool LayoutPlan::Reader::resolveReferences()
{
    bool isAnotherPassNeeded = true;
    while (isAnotherPassNeeded) {
        isAnotherPassNeeded = false;
        bool isAnythingExpanded = false;
        for (const auto& unresolved : m_state.unresolved) {
            const QString& name = unresolved.first;
            if (name.isEmpty()) {
                continue;
            }
            Definition* const definition = findDefinition(name);
            if (!definition) {
                if (!m_include) {
                    m_state.end = End::TypeIsMissing;
                }
                return false;
            }
            if (definition->pendingCount > 0) {
                isAnotherPassNeeded = true;
            } else if (definition->pendingCount == 0) {
                expand(name, *definition);
                isAnythingExpanded = true;
            }
            if (m_state.isRefused) {
                return false;
            }
        }
        if (isAnotherPassNeeded && !isAnythingExpanded) {
            if (!m_include) {
                m_state.end = End::TypesWaitForEachOther;
            }
            return false;
        }
    }
    return true;
}

void LayoutPlan::Reader::expand(const QString& name, Definition& definition)
{
    definition.pendingCount = -1;
    for (auto& [copies, references] : m_state.unresolved[name]) {
        for (Reference& reference : references) {
            if (!std::exchange(reference.isServed, true) && !m_state.isRefused) {
                serve(definition, std::max(1, copies), reference);
            }
        }
    }
}

void LayoutPlan::Reader::serve(Definition& definition, int copies, const Reference& reference)
{
    if (reference.isOfAttribute) {
        definition.usedFlag = 1;
    } else {
        layOut(definition, reference.owner, reference.anchor, copies, treeCountOf(reference.definitionName));
    }
    Definition* const waiting = findDefinition(reference.definitionName);
    if (waiting && waiting->pendingCount > 0) {
        waiting->pendingCount -= std::min(copies, waiting->pendingCount);
    }
}

LayoutPlan::Reader::TreeCount& LayoutPlan::Reader::treeCountOf(const QString& definitionName)
{
    const auto [counted, isNew] = m_treeElements.emplace(definitionName, TreeCount());
    const Definition* const definition = isNew ? findDefinition(definitionName) : nullptr;
    if (definition) {
        counted->second.elements = m_state.ExtentOf(definition->fragment).first;
        counted->second.isOfNamedType = m_state.fragmentsOfNamedTypes.count(definition->fragment) > 0;
    }
    return counted->second;
}

void LayoutPlan::Reader::chooseRoot()
{
    QVector<RootCandidate> candidates;
    for (auto& [name, definition] : m_state.definitions) {
        if (definition.usedFlag != 0 || m_state.At(definition.fragment).firstChild == None) {
            continue;
        }
        m_currentFragment = definition.fragment;
        definition.usedFlag = 1;
        candidates.append({name, definition.declaration->Is("attribute"), false, definition.declaration->GetPlace()});
        if (m_include && definition.declaration) {
            m_state.hiddenRoots.emplace(definition.declaration, m_include);
        }
    }
    if (m_currentFragment != None && m_state.ExtentOf(m_currentFragment).first > limits().elements) {
        refuseElements();
    }
    if (m_include) {
        return;
    }
    if (!candidates.isEmpty()) {
        candidates.last().isChosen = true;
    }
    m_state.rootCandidates = candidates;
    m_state.root = m_currentFragment == None ? None : m_state.At(m_currentFragment).firstChild;
    m_state.elements = m_state.root == None ? 0 : m_state.ExtentOf(m_state.root).first;
    if (m_state.root == None && !m_state.leftOutName.isEmpty()) {
        checkName(m_state.leftOutName);
    }
}

bool LayoutPlan::Reader::isWithinLimits(int elements, int levels, int owner, TreeCount& tree)
{
    if (m_state.LevelOf(owner) + levels > limits().elementNesting) {
        refuse(End::LimitExceeded,
               QStringLiteral("The schema lays out elements nested deeper than %1.").arg(limits().elementNesting));
        return false;
    }
    int& total = m_state.elementsOfAllDefinitions;
    int& ofNamedTypes = m_state.elementsOfNamedTypes;
    const int forNamedTypes = tree.isOfNamedType ? elements : 0;
    if (tree.elements + elements > limits().elements || total + elements > limits().elementsOfAllDefinitions
        || ofNamedTypes + forNamedTypes > limits().elementsOfNamedTypes) {
        refuseElements();
        return false;
    }
    tree.elements += elements;
    total += elements;
    ofNamedTypes += forNamedTypes;
    m_state.elements = std::max(m_state.elements, tree.elements);
    return true;
}

void LayoutPlan::Reader::refuse(End end, const QString& reason)
{
    if (!m_state.isRefused) {
        m_state.isRefused = true;
        m_state.end = end;
        m_state.limit = reason;
    }
}

void LayoutPlan::Reader::refuseElements()
{
    refuse(End::LimitExceeded, QStringLiteral("The schema lays out more than %1 elements.").arg(limits().elements));
}

void LayoutPlan::Reader::checkName(const QString& name)
{
    if (!isRepresentableName(name, Component)) {
        refuse(End::LimitExceeded, QStringLiteral("XML does not allow the name '%1'.").arg(name));
    }
}

void LayoutPlan::Reader::checkAnnotations()
{
    if (m_state.annotations > MaxLaidOutAnnotations) {
        refuse(End::TooMuchForTheDoctor,
               QStringLiteral("The elements that the schema lays out carry more than %1 annotations.")
                   .arg(MaxLaidOutAnnotations));
    }
}

LayoutPlan::LayoutPlan(SchemaText& text, const QString& file)
    : m_state(std::make_unique<State>(text))
{
    m_state->topFile = QString(file).replace(QLatin1Char('\\'), QLatin1Char('/'));
    IncludedFile& top = m_state->includes;
    top.written = file;
    top.file = openableFileName(file);
    const TextFile& topFile = *text.Open(top.file);
    m_state->files = 1;
    m_state->bytes = topFile.text.size();
    m_state->openFiles.append(identityOfFile(top.file));
    m_state->readFiles.push_back(&topFile);
    top.state = topFile.isMissing ? IncludeState::Missing
        : topFile.fault.isEmpty() ? IncludeState::Read
                                  : IncludeState::Malformed;
    Reader(*m_state, topFile, top, nullptr).Read();
    for (const auto& [name, references] : m_state->unresolved) {
        const auto definition = m_state->definitions.find(name);
        const bool isMissing = definition == m_state->definitions.end();
        const bool isWaiting = !isMissing && definition->second.pendingCount > 0;
        if (name.isEmpty() || (!isMissing && !isWaiting)) {
            continue;
        }
        for (const auto& byCopies : references) {
            for (const Reference& reference : byCopies.second) {
                m_state->missing[name].push_back(reference.place);
            }
        }
    }
}

LayoutPlan::~LayoutPlan() = default;

LayoutPlan::End LayoutPlan::GetEnd() const
{
    return m_state->end;
}

const QString& LayoutPlan::GetLimit() const
{
    return m_state->limit;
}

ElementCount LayoutPlan::GetCount() const
{
    const bool isBeyondLimit = m_state->end == End::LimitExceeded;
    return {m_state->elements, isBeyondLimit, isBeyondLimit ? m_state->limit : QString()};
}

int LayoutPlan::GetElementsOfAllDefinitions() const
{
    return m_state->elementsOfAllDefinitions;
}

int LayoutPlan::GetRoot() const
{
    return m_state->root;
}

const LayoutPlan::Node& LayoutPlan::GetNode(int index) const
{
    return m_state->At(index);
}

QString LayoutPlan::GetName(int index) const
{
    return m_state->names[std::size_t(m_state->At(index).name)];
}

const IncludedFile& LayoutPlan::GetIncludes() const
{
    return m_state->includes;
}

const std::map<QString, LayoutPlan::Definition>& LayoutPlan::GetDefinitions() const
{
    return m_state->definitions;
}

const std::vector<LayoutPlan::Replacement>& LayoutPlan::GetReplacements() const
{
    return m_state->replacements;
}

const QVector<RootCandidate>& LayoutPlan::GetRootCandidates() const
{
    return m_state->rootCandidates;
}

const std::map<QString, std::vector<const TextNode*>>& LayoutPlan::GetMissing() const
{
    return m_state->missing;
}

const std::map<const TextNode*, const TextNode*>& LayoutPlan::GetHiddenRoots() const
{
    return m_state->hiddenRoots;
}

bool LayoutPlan::IsDeferred(const TextNode* tag) const
{
    return m_state->deferred.count(tag) > 0;
}

const std::vector<const TextFile*>& LayoutPlan::GetReadFiles() const
{
    return m_state->readFiles;
}

} // namespace schemadoctor
