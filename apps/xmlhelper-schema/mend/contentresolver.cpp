#include "contentresolver.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <set>

#include <xmlhelper/constants_p.h>

#include "choices.h"
#include "documentation.h"
#include "mendlimits.h"
#include "mendwords.h"
#include "names.h"

namespace schemadoctor {

namespace {

constexpr int DeepestContent = 200;
constexpr int Unbounded = MendedElement::Unbounded;

int occursOf(const TextNode& tag, const char* attribute)
{
    const QString value = tag.Value(attribute);
    return value == QLatin1String("unbounded") ? Unbounded : value.isEmpty() ? 1 : std::max(0, value.toInt());
}

int product(int left, int right)
{
    if (left == 0 || right == 0) {
        return 0;
    }
    const qint64 product = left == Unbounded || right == Unbounded ? Unbounded : qint64(left) * right;
    return int(std::min<qint64>(product, std::numeric_limits<int>::max()));
}

const TextNode* childOf(const TextNode& tag, std::initializer_list<const char*> names)
{
    const auto found = std::find_if(tag.children.begin(), tag.children.end(),
                                    [names](const auto& child) { return child->IsAnyOf(names); });
    return found == tag.children.end() ? nullptr : found->get();
}

bool isTrue(const TextNode& tag, const char* attribute)
{
    return tag.Value(attribute) == QLatin1String("true") || tag.Value(attribute) == QLatin1String("1");
}

/// Whether the content is one choice and nothing else.
bool isChoice(const MendedContent& content)
{
    return !content.empty() && content.front().choice != MendedElement::None
        && std::all_of(content.begin(), content.end(),
                       [&content](const auto& one) { return one.choice == content.front().choice; });
}

/// Whether no alternative holds more than one element.
bool isOfSingleElements(const MendedContent& content)
{
    std::set<int> branches;
    return std::all_of(content.begin(), content.end(),
                       [&branches](const auto& one) { return branches.insert(one.branch).second; });
}

bool isRequiredOnceAtMost(const MendedContent& content)
{
    return std::all_of(content.begin(), content.end(), [](const auto& one) { return one.minOccurs < 2; });
}

bool isAllOptional(const MendedContent& content)
{
    return std::all_of(content.begin(), content.end(), [](const auto& one) { return one.minOccurs == 0; });
}

void makeOptional(MendedContent& content)
{
    for (MendedElement& element : content) {
        element.minOccurs = 0;
    }
}

QString describedOccurs(const TextNode& tag)
{
    return Mend::tr("minOccurs and maxOccurs of %1").arg(tag.qName);
}

/// Whether nothing has to stand between two elements, given that both are there.
bool isNothingBetween(const MendedContent& content, std::size_t first, std::size_t second)
{
    const auto isOtherBranch = [](const MendedElement& between, const MendedElement& one) {
        return between.choice != MendedElement::None && between.choice == one.choice && between.branch != one.branch;
    };
    std::map<int, std::map<int, bool>> mayBeEmpty; // the branches of the choices between
    for (std::size_t index = first + 1; index < second; ++index) {
        const MendedElement& between = content[index];
        if (isOtherBranch(between, content[first]) || isOtherBranch(between, content[second])) {
            continue;
        }
        const bool isInOtherChoice = between.choice != MendedElement::None && between.choice != content[first].choice
            && between.choice != content[second].choice;
        if (isInOtherChoice) {
            bool& isEmpty = mayBeEmpty[between.choice].emplace(between.branch, true).first->second;
            isEmpty = isEmpty && between.minOccurs == 0;
        } else if (between.minOccurs > 0) {
            return false;
        }
    }
    return std::all_of(mayBeEmpty.begin(), mayBeEmpty.end(), [](const auto& choice) {
        return std::any_of(choice.second.begin(), choice.second.end(),
                           [](const auto& branch) { return branch.second; });
    });
}

/// Whether an element can be the first of its alternative.
bool isFirstOfBranch(const MendedContent& content, std::size_t index)
{
    for (std::size_t before = index; before > 0 && content[before - 1].branch == content[index].branch; --before) {
        if (content[before - 1].minOccurs > 0) {
            return false;
        }
    }
    return true;
}

/// Whether a reader cannot tell to which of two elements of one name a tag belongs.
bool isAmbiguous(const MendedContent& content, std::size_t first, std::size_t second)
{
    const MendedElement& earlier = content[first];
    const bool isOneChoice = earlier.choice != MendedElement::None && earlier.choice == content[second].choice;
    if (isOneChoice && earlier.branch != content[second].branch) {
        return isFirstOfBranch(content, first) && isFirstOfBranch(content, second);
    }
    return isNothingBetween(content, first, second) && earlier.minOccurs != earlier.maxOccurs;
}

} // namespace

ContentResolver::ContentResolver(const SchemaSet& set, RewriteLog& log, int levels)
    : m_set(set)
    , m_log(log)
    , m_types(set, log)
    , m_mending(log)
    , m_attributes(set, m_types, log)
    , m_levels(levels)
{
}

std::optional<MendedElement> ContentResolver::Root(const TextNode& global)
{
    std::optional<MendedElement> root = element(global, global);
    return isBeyondLimit() ? std::nullopt : root;
}

bool ContentResolver::isBeyondLimit()
{
    const bool isTooMuch = m_particles > MaxFollowed || m_types.IsBeyondLimit() || m_attributes.IsBeyondLimit();
    if (isTooMuch) {
        m_refusal = Mend::tr("Written out, the groups and types hold each other more often than is followed.");
    } else if (m_elements > MaxMendedElements) {
        m_refusal = Mend::tr("Written out, the schema has more than %1 elements.").arg(MaxMendedElements);
    } else if (m_depth > DeepestContent) {
        m_refusal = Mend::tr("Definitions contain each other more than %1 levels deep.").arg(DeepestContent);
    }
    return !m_refusal.isEmpty();
}

ContentResolver::Content ContentResolver::particle(const TextNode& tag)
{
    if (!isBeyondLimit()) {
        using Read = Content (ContentResolver::*)(const TextNode&);
        static const std::map<QString, Read> readers {
            {QStringLiteral("element"), &ContentResolver::elementParticle},
            {QStringLiteral("sequence"), &ContentResolver::sequence},
            {QStringLiteral("all"), &ContentResolver::sequence},
            {QStringLiteral("choice"), &ContentResolver::choice},
            {QStringLiteral("group"), &ContentResolver::groupReference},
            {QStringLiteral("any"), &ContentResolver::wildcard},
        };
        const auto reader = readers.find(tag.localName);
        if (reader != readers.end() && tag.isOfSchemaNamespace) {
            ++m_particles;
            ++m_depth;
            Content content = (this->*reader->second)(tag);
            --m_depth;
            return content;
        }
    }
    return MendedContent();
}

/// Leaves out what cannot be written.
void ContentResolver::leaveOut(const TextNode& particle, const QString& before)
{
    if (occursOf(particle, "minOccurs") == 0) {
        m_log.Narrow(particle, before, Mend::tr("nothing"));
    } else {
        m_log.Lose(particle, before, Mend::tr("nothing"));
    }
}

ContentResolver::Content ContentResolver::elementParticle(const TextNode& tag)
{
    const QString ref = tag.Value("ref");
    const bool isOptional = occursOf(tag, "minOccurs") == 0;
    const TextNode* const declaration = ref.isEmpty() ? &tag : m_set.Find(GlobalKind::Element, tag, ref);
    if (occursOf(tag, "maxOccurs") == 0) {
        m_log.Narrow(tag, Mend::tr("an element that never occurs"), Mend::tr("nothing"));
        return MendedContent();
    }
    if (!declaration) {
        const QString before = m_set.IsOfOtherNamespace(tag, ref)
            ? Mend::tr("the element '%1' of a namespace that is not read").arg(ref)
            : Mend::tr("the element '%1', which is declared nowhere").arg(ref);
        leaveOut(tag, before);
        return MendedContent();
    }
    if (!ref.isEmpty()) {
        return substitutes(tag, *declaration);
    }
    const std::optional<MendedElement> read = element(tag, *declaration);
    return read ? MendedContent {*read} : isOptional ? std::make_optional(MendedContent()) : std::nullopt;
}

ContentResolver::Content ContentResolver::sequence(const TextNode& tag)
{
    MendedContent content;
    for (const auto& child : tag.children) {
        Content part = particle(*child);
        if (!part) {
            return occursOf(tag, "minOccurs") == 0 ? std::make_optional(MendedContent()) : std::nullopt;
        }
        std::move(part->begin(), part->end(), std::back_inserter(content));
    }
    if (tag.Is("all")) {
        m_log.Narrow(tag, QStringLiteral("xs:all"), QStringLiteral("xs:sequence"));
    }
    repeat(tag, content);
    dropRepeatedNames(tag, content);
    return content;
}

ContentResolver::Content ContentResolver::choice(const TextNode& tag)
{
    std::vector<MendedContent> alternatives;
    std::vector<const TextNode*> wildcards;
    for (const auto& child : tag.children) {
        if (child->Is("annotation")) {
            continue;
        }
        if (child->Is("any")) {
            wildcards.push_back(child.get());
            continue;
        }
        if (Content alternative = particle(*child)) {
            alternatives.push_back(std::move(*alternative));
        } else {
            m_log.Narrow(*child, Mend::tr("an alternative that leads deeper"), Mend::tr("nothing"));
        }
    }
    for (const TextNode* const any : wildcards) {
        if (alternatives.empty() && occursOf(tag, "minOccurs") > 0) {
            static_cast<void>(wildcard(*any));
        } else {
            m_log.Narrow(*any, QStringLiteral("xs:any"), Mend::tr("nothing"));
        }
    }
    if (alternatives.empty() && childOf(tag, {"element", "sequence", "choice", "group"})) {
        return occursOf(tag, "minOccurs") == 0 ? std::make_optional(MendedContent()) : std::nullopt;
    }
    Content content = chosen(tag, std::move(alternatives));
    repeat(tag, *content);
    dropRepeatedNames(tag, *content);
    return content;
}

/// One choice of all alternatives.
ContentResolver::Content ContentResolver::chosen(const TextNode& tag, std::vector<MendedContent> alternatives)
{
    const auto filled = std::stable_partition(alternatives.begin(), alternatives.end(),
                                              [](const MendedContent& one) { return !one.empty(); });
    const bool mayBeEmpty = filled != alternatives.end();
    alternatives.erase(filled, alternatives.end());
    MendedContent content;
    const int number = alternatives.size() > 1 ? ++m_choices : MendedElement::None;
    for (MendedContent& alternative : alternatives) {
        const bool isNested = isChoice(alternative);
        if (number != MendedElement::None && isNested) {
            m_log.Narrow(tag, Mend::tr("xs:choice inside of xs:choice"), Mend::tr("one choice of all alternatives"));
        } else if (number != MendedElement::None) {
            unnest(tag, alternative);
        }
        ++m_branches;
        for (MendedElement& element : alternative) {
            element.branch = isNested ? element.branch : m_branches;
            element.choice = number == MendedElement::None ? element.choice : number;
            content.push_back(std::move(element));
        }
    }
    if (mayBeEmpty && !content.empty()) {
        repeatAll(tag, 0, 1, content);
    }
    return content;
}

/// A choice that is a part of an alternative cannot be one.
void ContentResolver::unnest(const TextNode& tag, MendedContent& alternative)
{
    const bool isNested = std::any_of(alternative.begin(), alternative.end(),
                                      [](const auto& element) { return element.choice != MendedElement::None; });
    if (!isNested) {
        return;
    }
    const QString before = Mend::tr("xs:choice inside of an alternative");
    std::map<int, int> firstBranches;
    if (m_log.IsFormatKept()) {
        m_log.Narrow(tag, before, Mend::tr("its first alternative"));
        alternative.erase(std::remove_if(alternative.begin(), alternative.end(),
                                         [&firstBranches](const MendedElement& element) {
                                             return element.choice != MendedElement::None
                                                 && firstBranches.emplace(element.choice, element.branch).first->second
                                                 != element.branch;
                                         }),
                          alternative.end());
        return;
    }
    m_log.Change(tag, before, Mend::tr("its alternatives, each optional"));
    for (MendedElement& element : alternative) {
        element.minOccurs = element.choice == MendedElement::None ? element.minOccurs : 0;
    }
}

ContentResolver::Content ContentResolver::groupReference(const TextNode& tag)
{
    const TextNode* const group = m_set.Find(GlobalKind::Group, tag, tag.Value("ref"));
    const TextNode* const inside = group ? childOf(*group, {"sequence", "choice", "all"}) : nullptr;
    if (!inside) {
        leaveOut(tag,
                 m_set.IsOfOtherNamespace(tag, tag.Value("ref"))
                     ? Mend::tr("the group '%1' of a namespace that is not read").arg(tag.Value("ref"))
                     : Mend::tr("the group '%1', which is defined nowhere").arg(tag.Value("ref")));
        return MendedContent();
    }
    m_log.Narrow(tag, QStringLiteral("xs:group '%1'").arg(tag.Value("ref")), Mend::tr("its elements"));
    Content content = particle(*inside);
    if (content) {
        repeat(tag, *content);
        return content;
    }
    return occursOf(tag, "minOccurs") == 0 ? std::make_optional(MendedContent()) : std::nullopt;
}

ContentResolver::Content ContentResolver::wildcard(const TextNode& tag)
{
    leaveOut(tag, occursOf(tag, "minOccurs") == 0 ? QStringLiteral("xs:any") : Mend::tr("an xs:any that is required"));
    return MendedContent();
}

/// What a reference stands for: the element itself, or a choice of those that may take its place.
ContentResolver::Content ContentResolver::substitutes(const TextNode& tag, const TextNode& head)
{
    const std::vector<const TextNode*> members = m_set.GetSubstitutes(head);
    const bool isSubstituted = members.size() > 1;
    std::vector<MendedContent> alternatives;
    for (const TextNode* const member : members) {
        std::optional<MendedElement> read
            = isSubstituted && isTrue(*member, "abstract") ? std::nullopt : element(tag, *member);
        if (read) {
            alternatives.push_back({std::move(*read)});
        }
    }
    if (isSubstituted) {
        m_log.Narrow(tag, Mend::tr("the substitution group of '%1'").arg(head.Value("name")),
                     Mend::tr("a choice of its elements"));
    }
    if (alternatives.empty()) {
        return occursOf(tag, "minOccurs") == 0 ? std::make_optional(MendedContent()) : std::nullopt;
    }
    Content content = chosen(tag, std::move(alternatives));
    if (content->size() > 1) {
        for (MendedElement& one : *content) {
            one.minOccurs = one.maxOccurs = 1;
        }
        repeat(tag, *content);
    }
    return content;
}

/// Groups occur once: how often they may is said at what they hold.
void ContentResolver::repeat(const TextNode& tag, MendedContent& content)
{
    const int minOccurs = occursOf(tag, "minOccurs");
    const int maxOccurs = occursOf(tag, "maxOccurs");
    if ((minOccurs == 1 && maxOccurs == 1) || content.empty()) {
        return;
    }
    if (maxOccurs == 0) {
        m_log.Narrow(tag, Mend::tr("a group that never occurs"), Mend::tr("nothing"));
        content.clear();
    } else if (content.size() == 1) {
        MendedElement& element = content.front();
        const QString after = Mend::tr("minOccurs and maxOccurs of '%1'").arg(element.name);
        if (element.minOccurs < 2 && element.choice == MendedElement::None) {
            m_log.Narrow(tag, describedOccurs(tag), after);
        } else {
            m_log.Lose(tag, describedOccurs(tag), after);
        }
        element.minOccurs = product(element.minOccurs, minOccurs);
        element.maxOccurs = product(element.maxOccurs, maxOccurs);
    } else if (isChoice(content) && maxOccurs != 1) {
        repeatChoice(tag, minOccurs, maxOccurs, content);
    } else {
        repeatAll(tag, minOccurs, maxOccurs, content);
    }
}

/// Alternatives that may follow each other become elements that may all be there.
void ContentResolver::repeatChoice(const TextNode& tag, int minOccurs, int maxOccurs, MendedContent& content)
{
    if (m_log.IsFormatKept() && minOccurs < 2) {
        m_log.Narrow(tag, describedOccurs(tag), Mend::tr("one choice"));
        return;
    }
    const QString after = Mend::tr("its alternatives in their order, each optional");
    if (minOccurs == 0 && maxOccurs == Unbounded && isOfSingleElements(content) && isRequiredOnceAtMost(content)) {
        m_log.Narrow(tag, describedOccurs(tag), after);
    } else {
        m_log.Lose(tag, describedOccurs(tag), after);
    }
    makeOptional(content);
    for (MendedElement& element : content) {
        element.choice = element.branch = MendedElement::None;
        element.maxOccurs = product(element.maxOccurs, maxOccurs);
    }
}

void ContentResolver::repeatAll(const TextNode& tag, int minOccurs, int maxOccurs, MendedContent& content)
{
    const bool isExact = maxOccurs == 1
        && (minOccurs != 0 || isAllOptional(content)
            || (isChoice(content) && isOfSingleElements(content) && isRequiredOnceAtMost(content)));
    const QString after = Mend::tr("minOccurs and maxOccurs of each element inside");
    if (isExact) {
        m_log.Narrow(tag, describedOccurs(tag), after);
    } else if (m_log.IsFormatKept() && minOccurs < 2) {
        m_log.Narrow(tag, describedOccurs(tag), Mend::tr("the group once"));
        return;
    } else {
        m_log.Lose(tag, describedOccurs(tag), after);
    }
    for (MendedElement& element : content) {
        element.minOccurs = product(element.minOccurs, minOccurs);
        element.maxOccurs = product(element.maxOccurs, maxOccurs);
    }
}

/// Drops elements that a reader cannot tell from an earlier one, in a choice with their alternative.
void ContentResolver::dropRepeatedNames(const TextNode& tag, MendedContent& content)
{
    std::map<int, std::set<int>> branches = branchesOf(content);
    std::set<int> dropped;
    std::map<QString, std::size_t> last;
    MendedContent kept;
    for (MendedElement& element : content) {
        if (element.choice != MendedElement::None && dropped.count(element.branch) > 0) {
            continue;
        }
        kept.push_back(std::move(element));
        const MendedElement& repeated = kept.back();
        const auto [earlier, isFirst] = last.emplace(repeated.name, kept.size() - 1);
        if (isFirst) {
            continue;
        }
        if (!isAmbiguous(kept, earlier->second, kept.size() - 1) || !mayDrop(tag, repeated, branches)) {
            earlier->second = kept.size() - 1;
        } else if (repeated.minOccurs == 0 || repeated.choice == MendedElement::None) {
            kept.pop_back();
        } else {
            const int branch = repeated.branch;
            dropped.insert(branch);
            dropBranches(kept, {branch});
            last.clear();
            for (std::size_t index = 0; index < kept.size(); ++index) {
                last[kept[index].name] = index;
            }
        }
    }
    content = std::move(kept);
    settleChoices(content);
}

/// Whether an element that comes a second time may be dropped. Takes its alternative out of @p branches if that goes.
bool ContentResolver::mayDrop(const TextNode& tag, const MendedElement& repeated,
                              std::map<int, std::set<int>>& branches)
{
    const QString before = Mend::tr("'%1' a second time").arg(repeated.name);
    if (repeated.minOccurs == 0) {
        m_log.Narrow(tag, before, Mend::tr("nothing"));
        return true;
    }
    std::set<int>& alternatives = branches[repeated.choice];
    if (repeated.choice == MendedElement::None || alternatives.size() < 2) {
        return m_log.Change(tag, before, Mend::tr("nothing"));
    }
    alternatives.erase(repeated.branch);
    m_log.Narrow(tag, before, Mend::tr("the other alternatives"));
    return true;
}

std::optional<MendedElement> ContentResolver::element(const TextNode& tag, const TextNode& declaration)
{
    ++m_elements;
    if (m_open[&declaration] >= m_levels) {
        m_log.Narrow(tag, Mend::tr("'%1' inside of itself").arg(declaration.Value("name")),
                     Mend::tr("%1 levels").arg(m_levels));
        return std::nullopt;
    }
    MendedElement element;
    element.name = declaration.Value("name");
    element.particle = &tag;
    element.declaration = &declaration;
    element.minOccurs = &tag == &declaration && tag.IsGlobal() ? 1 : occursOf(tag, "minOccurs");
    element.maxOccurs = &tag == &declaration && tag.IsGlobal() ? 1 : occursOf(tag, "maxOccurs");
    element.comments = tag.comments.isEmpty() ? declaration.comments : tag.comments;
    element.documentation = documentationOf(declaration);
    ++m_open[&declaration];
    const bool isFinite = giveType(element, declaration);
    --m_open[&declaration];
    if (!isFinite) {
        return std::nullopt;
    }
    tellPassedOver(declaration);
    finishValue(element, declaration);
    m_attributes.Rename(element);
    rename(element);
    return element;
}

bool ContentResolver::giveType(MendedElement& element, const TextNode& declaration)
{
    if (const TextNode* const type = childOf(declaration, {"complexType"})) {
        return giveComplexType(element, *type);
    }
    const QString name = declaration.Value("type");
    const TextNode* const named = name.isEmpty() ? nullptr : m_set.Find(GlobalKind::Type, declaration, name);
    if (named && named->Is("complexType") && !m_set.IsBuiltIn(declaration, name)) {
        m_log.Narrow(*named, Mend::tr("the complex type '%1'").arg(named->Value("name")),
                     Mend::tr("written inside of the elements that are of it"));
        if (isTrue(*named, "abstract")) {
            m_log.Lose(*named, Mend::tr("an abstract type"), Mend::tr("the type itself"));
        }
        return giveComplexType(element, *named);
    }
    const QString head = declaration.Value("substitutionGroup");
    const TextNode* const type = childOf(declaration, {"simpleType"});
    const TextNode* const substituted
        = name.isEmpty() && !type ? m_set.Find(GlobalKind::Element, declaration, head) : nullptr;
    if (substituted && m_depth <= DeepestContent) {
        ++m_depth;
        const bool isFinite = giveType(element, *substituted);
        --m_depth;
        return isFinite;
    }
    element.hasValue = true;
    if (type || !name.isEmpty()) {
        element.value = type ? m_types.OfDefinition(*type) : m_types.Of(declaration, name);
    } else {
        element.value.base = QStringLiteral("anyType");
    }
    return true;
}

bool ContentResolver::giveComplexType(MendedElement& element, const TextNode& type)
{
    if (isBeyondLimit()) {
        return false;
    }
    ++m_depth;
    const bool isFinite = giveComplexContent(element, type);
    --m_depth;
    const TextNode* const content = childOf(type, {"complexContent"});
    if (isTrue(type, "mixed") || (content && isTrue(*content, "mixed"))) {
        const bool isText = element.children.empty() && !element.hasValue;
        m_log.Narrow(type, Mend::tr("mixed content"), isText ? QStringLiteral("xs:string") : Mend::tr("its elements"));
        if (isText) {
            element.hasValue = true;
            element.value.base = QStringLiteral("string");
        }
    }
    return isFinite;
}

bool ContentResolver::giveComplexContent(MendedElement& element, const TextNode& type)
{
    const TextNode* const derived = childOf(type, {"simpleContent", "complexContent"});
    if (element.documentation.isEmpty()) {
        element.documentation = documentationOf(type);
    }
    const TextNode* const derivation = derived ? childOf(*derived, {"extension", "restriction"}) : nullptr;
    if (!derivation) {
        return giveContent(element, type);
    }
    return derived->Is("simpleContent") ? giveSimpleContent(element, *derivation)
                                        : giveDerived(element, type, *derivation);
}

bool ContentResolver::giveDerived(MendedElement& element, const TextNode& type, const TextNode& derivation)
{
    const QString name = derivation.Value("base");
    const TextNode* base = m_set.Find(GlobalKind::Type, derivation, name);
    if (base == &type) {
        base = nullptr; // Nothing extends itself.
    }
    if (!base && !m_set.IsBuiltIn(derivation, name)) {
        m_log.Lose(derivation,
                   m_set.IsOfOtherNamespace(derivation, name)
                       ? Mend::tr("the type '%1' of a namespace that is not read").arg(name)
                       : Mend::tr("the type '%1', which is defined nowhere").arg(name),
                   Mend::tr("nothing"));
    }
    m_log.Narrow(derivation, QStringLiteral("xs:%1 '%2'").arg(derivation.localName, name),
                 Mend::tr("the content written out"));
    MendedElement inherited = element;
    if (base && base->Is("complexType") && !giveComplexType(inherited, *base) && derivation.Is("extension")) {
        return false;
    }
    element.attributes = inherited.attributes;
    if (derivation.Is("extension")) {
        element = std::move(inherited);
    }
    const bool isFinite = giveContent(element, derivation);
    dropRepeatedNames(derivation, element.children);
    return isFinite;
}

bool ContentResolver::giveSimpleContent(MendedElement& element, const TextNode& derivation)
{
    const QString name = derivation.Value("base");
    const TextNode* const base = m_set.Find(GlobalKind::Type, derivation, name);
    element.hasValue = true;
    if (base && base->Is("complexType")) {
        m_log.Narrow(derivation, QStringLiteral("xs:%1 '%2'").arg(derivation.localName, name),
                     Mend::tr("the content written out"));
        static_cast<void>(giveComplexType(element, *base));
        element.hasValue = true;
    } else {
        element.value = m_types.Of(derivation, name);
    }
    if (derivation.Is("restriction")) {
        if (const TextNode* const type = childOf(derivation, {"simpleType"})) {
            element.value = m_types.OfDefinition(*type);
        }
        m_types.Restrict(element.value, derivation);
        element.value.name.clear();
        element.value.definition = &derivation;
    }
    m_attributes.Add(derivation, element.attributes);
    return true;
}

bool ContentResolver::giveContent(MendedElement& element, const TextNode& owner)
{
    m_attributes.Add(owner, element.attributes);
    const TextNode* const inside = childOf(owner, {"sequence", "choice", "all", "group"});
    Content content = inside ? particle(*inside) : MendedContent();
    if (content) {
        std::move(content->begin(), content->end(), std::back_inserter(element.children));
    }
    return content.has_value();
}

void ContentResolver::finishValue(MendedElement& element, const TextNode& declaration)
{
    if (!element.hasValue) {
        return;
    }
    const SimpleValue value = element.value;
    const bool isFixed = declaration.Has("fixed");
    element.value = m_mending.OfElement(isFixed ? m_mending.OfFixed(declaration, declaration.Value("fixed")) : value,
                                        declaration);
    element.defaultValue = m_mending.DefaultOf(value, element.value, declaration);
}

void ContentResolver::tellPassedOver(const TextNode& declaration)
{
    if (isTrue(declaration, "nillable")) {
        m_log.Narrow(declaration, QStringLiteral("nillable"), Mend::tr("nothing"));
    }
    if (isTrue(declaration, "abstract")) {
        m_log.Lose(declaration, Mend::tr("an abstract element"), Mend::tr("the element itself"));
    }
    for (const auto& child : declaration.children) {
        if (child->IsAnyOf({"key", "keyref", "unique"})) {
            m_log.Lose(*child, QStringLiteral("xs:%1 '%2'").arg(child->localName, child->Value("name")),
                       Mend::tr("nothing"));
        }
    }
}

void ContentResolver::rename(MendedElement& element)
{
    const QString name = element.name == CarrierName ? QStringLiteral("itsDummy") : allowedXmlName(element.name);
    if (name != element.name
        && m_log.Change(*element.declaration, Mend::tr("the element '%1'").arg(element.name),
                        Mend::tr("the element '%1'").arg(name))) {
        element.name = name;
    }
}

} // namespace schemadoctor
