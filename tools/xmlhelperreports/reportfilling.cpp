#include "reportfilling_p.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include <QDateTime>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <xmlhelper/filesaving_p.h>
#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/valuerules_p.h>

#include "reportfile_p.h"
#include "schemapatterns_p.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

bool isTypeError(IXMLHelper::ErrorID error)
{
    return error >= IXMLHelper::CURRENT_TYPE_IS_UNKNOWN && error <= IXMLHelper::CURRENT_TYPE_IS_NOT_BOOLEAN;
}

QString wordsFor(IXMLHelper::ErrorID error)
{
    return isTypeError(error)                     ? QStringLiteral("its type takes nothing of that kind")
        : error == IXMLHelper::VALUE_IS_NOT_VALID ? QStringLiteral("it is outside of its range or enumeration")
                                                  : QStringLiteral("error %1").arg(error);
}

/// The attributes of an element, in the order of their names.
QVector<QPair<QString, QString>> attributesOf(const QDomElement& element)
{
    QVector<QPair<QString, QString>> all;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        all.append({attributes.item(i).nodeName(), attributes.item(i).nodeValue()});
    }
    std::sort(all.begin(), all.end());
    return all;
}

void removeTexts(QDomElement element)
{
    for (QDomNode child = element.firstChild(), next; !child.isNull(); child = next) {
        next = child.nextSibling();
        if (child.isText()) {
            element.removeChild(child);
        }
    }
}

} // namespace

ReportFilling::ReportFilling(std::vector<GivenValue> values, const ReportFiller::Source& source,
                             const ReportFiller::Journal& journal)
    : m_values(std::move(values))
    , m_source(source)
    , m_journal(journal)
    , m_builder(this)
{
}

bool ReportFilling::Fill(const QString& schema, const QString& report)
{
    if (isSameFile(schema, report)) {
        m_complaints.append(QStringLiteral("the report would replace its schema"));
        return false;
    }
    m_schema = openableFileName(schema);
    m_writtenFile = m_folder.filePath(QStringLiteral("report.xml"));
    bool isPut = false;
    const auto put = [&](SavedFile& file) {
        if (m_instances.empty()) {
            file.reason = QStringLiteral("The schema lays out no element");
            return false;
        }
        isPut = putFile(m_writtenFile, report, file);
        return isPut;
    };
    const bool isRead = ReportFiller::makeAside(m_builder, schema, report, m_writtenFile, put);
    m_bSchemaRead = isRead && !m_instances.empty();
    complainOfSchema(schema, isRead);
    if (isPut) {
        m_writtenFile = QFileInfo(report).isFile() ? report : m_writtenFile;
    } else if (!m_instances.empty()) {
        m_complaints.append(QStringLiteral("the report could not be written"));
    }
    m_instances.clear();
    m_places.reset();
    m_document = QDomDocument();
    ReportFiller::release(m_builder);
    return m_complaints.isEmpty();
}

void ReportFilling::complainOfSchema(const QString& schema, bool isRead)
{
    if (!isRead) {
        m_complaints.append(QStringLiteral("the schema cannot be read: %1").arg(reasonAgainst(schema)));
    } else if (!m_bSchemaRead) {
        m_complaints.append(QStringLiteral("the schema lays out no element"));
    }
    if (!m_document.documentElement().nextSiblingElement().isNull()) {
        m_complaints.append(QStringLiteral("the schema lays out several roots: the report is no XML document"));
    }
}

std::vector<ReportFiller::Verdict> ReportFilling::TakeVerdicts()
{
    std::vector<ReportFiller::Verdict> verdicts;
    if (!m_bSchemaRead) {
        return verdicts; // What speaks against the schema says it all.
    }
    m_valueVerdicts.resize(m_values.size());
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        const GivenValue& value = m_values[i];
        const std::size_t judged = value.sameAs < 0 ? i : std::size_t(value.sameAs);
        verdicts.push_back(m_valueVerdicts[judged].value_or(ReportFiller::Verdict {
            State::Refused, value.name, value.text, QStringLiteral("its element was not announced")}));
    }
    verdicts.insert(verdicts.end(), m_elementVerdicts.begin(), m_elementVerdicts.end());
    return verdicts;
}

void ReportFilling::XmlUpdate(XmlEvent* event)
{
    if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
        const QDomNode node = static_cast<ElemBeginEvent*>(event)->GetElementNode();
        if (!m_places) {
            shapeReport(node.toElement());
        }
        answer(node);
    } else if (event->GetType() == XmlEvent::EVENT_DOC_END) {
        finish();
    } else if (event->GetType() == XmlEvent::EVENT_ERROR && m_bOffering) {
        m_refusals.push_back(static_cast<ErrorEvent*>(event)->GetErrorID());
        note(QStringLiteral("    refused: %1").arg(wordsFor(m_refusals.back())));
    }
    // Every other error is one of the walk about a container or a text, and means nothing.
}

void ReportFilling::shapeReport(const QDomElement& root)
{
    m_document = root.ownerDocument();
    m_places = std::make_unique<SkeletonPlaces>(root, ReportFiller::alternativesOf(m_builder),
                                                [this](const QDomElement& element, int count) {
                                                    return ReportFiller::isCountAllowed(m_builder, element, count);
                                                });
    ValueTree tree(*m_places, m_values, [this](int value, bool isUnknown, const QString& reason) {
        judge(value, isUnknown ? State::NotAskedFor : State::Refused, m_values[std::size_t(value)].name, reason);
    });
    tree.Assign();
    if (m_source) {
        tree.Ask(m_source);
    }
    tree.KeepCounts();
    const Place& place = m_places->GetRoot();
    shapeChildren(place, tree.GetRoot(), addInstance(place, root, tree.GetRoot(), stepTo(place, 1), -1));
}

int ReportFilling::addInstance(const Place& place, const QDomElement& element, const ValueBranch& branch,
                               const QString& path, int around)
{
    m_instances.push_back(
        {&place, element, path, around, branch.text, branch.attributes, place.IsRequired() || !place.parent});
    return int(m_instances.size()) - 1;
}

void ReportFilling::shapeChildren(const Place& place, const ValueBranch& branch, int around)
{
    QDomElement child = m_instances[std::size_t(around)].element.firstChildElement();
    judgeChoices(place, branch, m_instances[std::size_t(around)].path);
    for (const auto& one : place.children) {
        QVector<QDomElement> laidOut;
        for (int i = 0; i < one->laidOut; ++i) {
            laidOut.append(child);
            child = child.nextSiblingElement();
        }
        shapeChild(*one, laidOut, branch, around);
    }
}

/// Makes @p count elements, at least one, of those that are laid out. Of several laid out one holds what the others
/// lack.
QVector<QDomElement> ReportFilling::occurrencesOf(const QVector<QDomElement>& laidOut, int count)
{
    const auto richest
        = std::max_element(laidOut.begin(), laidOut.end(), [](const QDomElement& left, const QDomElement& right) {
              return left.childNodes().count() < right.childNodes().count();
          });
    QDomElement last = laidOut.last();
    QVector<QDomElement> occurrences {*richest};
    while (int(occurrences.size()) < count) {
        last = last.parentNode().insertAfter(richest->cloneNode(true), last).toElement();
        occurrences.append(last);
    }
    for (const QDomElement& element : laidOut) {
        if (element != *richest) {
            element.parentNode().removeChild(element);
        }
    }
    return occurrences;
}

/// Lets the child occur as often as it has values, or is required.
void ReportFilling::shapeChild(const Place& child, const QVector<QDomElement>& laidOut, const ValueBranch& branch,
                               int around)
{
    static const ValueBranch nothing;
    const QString path = m_instances[std::size_t(around)].path;
    const auto found = branch.children.find(&child);
    const int given = found == branch.children.end() ? 0 : int(found->second.size());
    const int least = child.IsRequired() || given > 0 ? child.laidOut : 0;
    const QVector<QDomElement> shaped = occurrencesOf(laidOut, std::max(given, least));
    if (std::max(given, least) == 0) {
        leaveOut(child, shaped.first(), path + stepTo(child, 1));
        return;
    }
    if (shaped.size() > 1) {
        note(QStringLiteral("copied %1: %2 of them").arg(path + QLatin1Char('/') + child.name).arg(shaped.size()));
    }
    for (int i = 0; i < int(shaped.size()); ++i) {
        const ValueBranch& below = i < given ? found->second.at(i + 1) : nothing;
        shapeChildren(child, below, addInstance(child, shaped[i], below, path + stepTo(child, i + 1), around));
    }
}

void ReportFilling::leaveOut(const Place& place, const QDomElement& element, const QString& path)
{
    note(QStringLiteral("removed %1").arg(path));
    judgeElement(State::LeftOut, path,
                 place.isAlternative ? QStringLiteral("an alternative without a value")
                                     : QStringLiteral("optional, and without a value"));
    element.parentNode().removeChild(element);
}

/// Alternatives that stand side by side count as one choice: the library does not say where one ends.
void ReportFilling::judgeChoices(const Place& place, const ValueBranch& branch, const QString& path)
{
    std::vector<const Place*> alternatives;
    for (const auto& child : place.children) {
        if (child->isAlternative) {
            alternatives.push_back(child.get());
        } else {
            judgeChoice(std::exchange(alternatives, {}), branch, path);
        }
    }
    judgeChoice(alternatives, branch, path);
}

void ReportFilling::judgeChoice(const std::vector<const Place*>& alternatives, const ValueBranch& branch,
                                const QString& path)
{
    QStringList names;
    QStringList taken;
    bool mayBeEmpty = alternatives.empty();
    for (const Place* const alternative : alternatives) {
        names.append(alternative->name);
        mayBeEmpty = mayBeEmpty || alternative->isOptional;
        const auto found = branch.children.find(alternative);
        if (alternative->IsRequired() || (found != branch.children.end() && !found->second.empty())) {
            taken.append(alternative->name);
        }
    }
    const QString between = QStringLiteral(", ");
    if (taken.isEmpty() && !mayBeEmpty) {
        judgeElement(State::Unfilled, path,
                     QStringLiteral("none of the alternatives %1 has a value").arg(names.join(between)));
    } else if (taken.size() > 1) {
        judgeElement(State::Doubtful, path,
                     QStringLiteral("of the alternatives %1 more than one has values: %2; whether they are of one "
                                    "choice is not known")
                         .arg(names.join(between), taken.join(between)));
    }
}

/// The walk comes to the instances in their order; a container below the root may be announced twice.
void ReportFilling::answer(const QDomNode& node)
{
    std::size_t found = m_next;
    while (found < m_instances.size() && m_instances[found].element != node) {
        ++found;
    }
    if (found == m_instances.size()) {
        return; // A text below the root.
    }
    Instance& instance = m_instances[found];
    noteAnnouncement(instance);
    if (found == m_next && found > 0) {
        return; // It is announced again.
    }
    m_next = found;
    const Facets facets = facetsOf(instance.element); // Attributes that are set take some of them away.
    setAttributes(instance);
    if (isValueType(instance.place->type)) {
        setText(instance, facets);
    } else {
        // Whether it may be empty is not said: its content may be what the library does not read.
        const bool isNothing = instance.place->children.empty() && instance.place->attributes.isEmpty();
        judgeElement(isNothing ? State::Unfilled : State::Written, instance.path,
                     isNothing ? QStringLiteral("the schema lays out neither a type nor content for it") : QString());
        tidy(instance);
    }
}

void ReportFilling::setAttributes(Instance& instance)
{
    std::map<QString, Facets> facets;
    std::map<QString, QString> types;
    for (const QString& attribute : instance.place->attributes) {
        facets[attribute] = facetsOf(instance.element, attribute);
        types[attribute] = instance.element.attribute(attribute);
    }
    for (const QString& attribute : instance.place->attributes) {
        if (instance.attributes.find(attribute) != instance.attributes.end()) {
            setAttribute(instance, attribute, types[attribute], facets[attribute]);
            continue;
        }
        judgeElement(State::LeftOut, instance.path + AttributeMark + attribute,
                     QStringLiteral("without a value; whether it is required is not known"));
        removeDeclaration(instance.element, attribute);
    }
}

void ReportFilling::setAttribute(Instance& instance, const QString& attribute, const QString& type,
                                 const Facets& facets)
{
    const int value = instance.attributes.at(attribute);
    const QString text = m_values[std::size_t(value)].text;
    const Outcome outcome = offerChecked(
        text, type, facets, QStringLiteral("SetAttributeValue(%1, ").arg(attribute),
        [&](const TypedValue& one) { setByAttribute(attribute, text, one); },
        [&] { return instance.element.attribute(attribute); });
    judge(value, outcome.state, instance.path + AttributeMark + attribute, outcome.reason);
    if (outcome.state == State::Refused) {
        instance.attributes.erase(attribute);
        removeDeclaration(instance.element, attribute);
    }
}

/// Removes a declared attribute and its facets.
void ReportFilling::removeDeclaration(const QDomElement& element, const QString& attribute)
{
    const auto attributes = attributesOf(element);
    for (const auto& one : attributes) {
        if (one.first == attribute || facetNameIn(one.first).attribute == attribute) {
            m_builder.RemoveAttribute(one.first);
        }
    }
}

/// There is no operation for truth and time as attributes.
void ReportFilling::setByAttribute(const QString& attribute, const QString& text, const TypedValue& value)
{
    std::visit(
        [&](const auto& typed) {
            using Typed = std::decay_t<decltype(typed)>;
            if constexpr (std::is_same_v<Typed, bool> || std::is_same_v<Typed, QTime>) {
                m_builder.SetAttributeValue(attribute, text);
            } else {
                m_builder.SetAttributeValue(attribute, typed);
            }
        },
        value);
}

void ReportFilling::setText(Instance& instance, const Facets& facets)
{
    const QDomElement before = instance.element.cloneNode(false).toElement();
    const QString byDefault = instance.place->defaultValue;
    const bool isGiven = instance.text != ValueBranch::None;
    if (!isGiven && byDefault.isEmpty()) {
        judgeElement(State::Unfilled, instance.path, QStringLiteral("required, and without a value"));
        hold(instance, before);
        return;
    }
    const QString text = isGiven ? m_values[std::size_t(instance.text)].text : byDefault;
    const Outcome outcome = offerChecked(
        text, instance.place->type, facets, QStringLiteral("SetXmlValue("),
        [this](const TypedValue& one) { std::visit([this](const auto& typed) { m_builder.SetXmlValue(typed); }, one); },
        [&] { return instance.element.text(); });
    judgeText(instance, text, outcome);
    if (outcome.state != State::Refused) {
        tidy(instance);
    } else {
        removeTexts(instance.element);
        hold(instance, before);
    }
}

/// What became of a text that was offered, given or a default.
void ReportFilling::judgeText(const Instance& instance, const QString& text, const Outcome& outcome)
{
    const bool isRefused = outcome.state == State::Refused;
    if (instance.text != ValueBranch::None) {
        judge(instance.text, outcome.state, instance.path, outcome.reason);
        if (isRefused && instance.isRequired) {
            judgeElement(State::Unfilled, instance.path, QStringLiteral("required, and its value was refused"));
        }
        return;
    }
    const QString further = outcome.reason.isEmpty() ? QString() : QStringLiteral(": ") + outcome.reason;
    judgeElement(
        isRefused ? State::Unfilled : outcome.state, instance.path,
        (isRefused ? QStringLiteral("its default is refused") : QStringLiteral("by the schema's default, %1").arg(text))
            + further);
}

/// Offers a text, and looks at what stands there then: it may be written otherwise than it was given.
template <typename Setting, typename Reading>
ReportFilling::Outcome ReportFilling::offerChecked(const QString& text, const QString& type, const Facets& facets,
                                                   const QString& call, const Setting& set, const Reading& read)
{
    const FacetVerdict before = verdictOnValue(text, type, facets);
    const QString refusal = before.kind == FacetVerdict::Broken ? before.reason : offer(text, type, call, set);
    if (!refusal.isEmpty()) {
        return {State::Refused, refusal};
    }
    const QString written = read();
    const FacetVerdict verdict
        = verdictOnText(written, type, facets, [this](const QString& pattern) { return isOneOfSeveral(pattern); });
    const QString change = written == text ? QString() : QStringLiteral("written as %1").arg(written);
    return {verdict.kind == FacetVerdict::Kept         ? State::Written
                : verdict.kind == FacetVerdict::Broken ? State::Refused
                                                       : State::Doubtful,
            change + (change.isEmpty() || verdict.reason.isEmpty() ? QString() : QStringLiteral(", "))
                + verdict.reason};
}

bool ReportFilling::isOneOfSeveral(const QString& pattern)
{
    if (!m_patternsBesideOthers) {
        m_patternsBesideOthers = patternsBesideOthers(m_schema);
    }
    return m_patternsBesideOthers->contains(pattern);
}

/// Offers the value as one type after the other, until one is not refused for its type. Gives why all were refused, by
/// the first refusal: it is about what the type asks for.
template <typename Setting>
QString ReportFilling::offer(const QString& text, const QString& type, const QString& call, const Setting& set)
{
    const QScopedValueRollback<bool> offering(m_bOffering, true);
    m_refusals.clear();
    const std::vector<TypedValue> offered = typedValues(text, type);
    for (const TypedValue& typed : offered) {
        const QString verb = m_refusals.empty() ? QStringLiteral("call") : QStringLiteral("retry");
        note(QStringLiteral("  %1 %2%3 %4)").arg(verb, call, nameOf(typed), text));
        const std::size_t before = m_refusals.size();
        set(typed);
        if (m_refusals.size() == before) {
            return QString();
        }
        if (!isTypeError(m_refusals.back())) {
            break;
        }
    }
    return isTypeError(m_refusals.front())
        ? QStringLiteral("its type, %1, takes no %2").arg(type, ::wordsFor(offered.front()))
        : QStringLiteral("%1, as the library reads them").arg(wordsFor(m_refusals.front()));
}

/// What is left of the skeleton on an element that is in the report goes.
void ReportFilling::tidy(Instance& instance)
{
    const auto attributes = attributesOf(instance.element);
    for (const auto& [name, value] : attributes) {
        if (instance.attributes.find(name) == instance.attributes.end()) {
            m_builder.RemoveAttribute(name);
        }
    }
}

/// Answers an element that has no value, so that the walk takes away nothing around it. It gets back what it has in
/// @p before.
void ReportFilling::hold(Instance& instance, const QDomElement& before)
{
    instance.isHeld = true;
    const auto attributes = attributesOf(before);
    for (const auto& attribute : attributes) {
        if (instance.attributes.find(attribute.first) == instance.attributes.end()) {
            instance.heldAttributes.append(attribute);
        }
    }
    tidy(instance);
    instance.element.setAttribute(TypeAttribute(), wordOf(Setter::Text));
    m_builder.SetXmlValue(QLatin1String(""));
}

void ReportFilling::finish()
{
    for (int i = int(m_instances.size()) - 1; i >= 0; --i) {
        if (m_instances[std::size_t(i)].isHeld) {
            release(m_instances[std::size_t(i)]);
            removeEmptied(i);
        }
    }
}

/// Gives back what the element held. A refused integer has cost it its type.
void ReportFilling::release(Instance& instance)
{
    removeTexts(instance.element);
    for (const auto& [name, value] : std::as_const(instance.heldAttributes)) {
        instance.element.setAttribute(name, value);
    }
    instance.element.setAttribute(TypeAttribute(), instance.place->type);
}

/// Takes out what has no value in the end, and the containers that are empty without it, as far as they may be missing.
void ReportFilling::removeEmptied(int instance)
{
    while (instance > 0) {
        Instance& emptied = m_instances[std::size_t(instance)];
        if (emptied.isRequired || !emptied.attributes.empty() || !emptied.element.firstChildElement().isNull()) {
            return;
        }
        note(QStringLiteral("removed %1").arg(emptied.path));
        emptied.element.parentNode().removeChild(emptied.element);
        instance = emptied.around;
    }
}

void ReportFilling::judge(int value, State state, const QString& path, const QString& reason)
{
    m_valueVerdicts.resize(std::max(m_values.size(), m_valueVerdicts.size()));
    m_valueVerdicts[std::size_t(value)]
        = ReportFiller::Verdict {state, path, m_values[std::size_t(value)].text, reason};
}

void ReportFilling::judgeElement(State state, const QString& path, const QString& reason)
{
    m_elementVerdicts.push_back({state, path, QString(), reason});
}

void ReportFilling::note(const QString& line) const
{
    if (m_journal) {
        m_journal(line);
    }
}

void ReportFilling::noteAnnouncement(const Instance& instance) const
{
    if (!m_journal) {
        return;
    }
    QString line = QStringLiteral("announced ") + instance.path;
    const auto attributes = attributesOf(instance.element);
    for (const auto& [name, value] : attributes) {
        line += QStringLiteral(" %1=%2").arg(name, value);
    }
    m_journal(line);
}
