#include "jsonrendering.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "buttonrendering.h"
#include "jsonkey.h"

namespace schemadoctor {

namespace {

QJsonObject jsonFor(const Place& place)
{
    return {{key("file"), place.file}, {key("line"), place.line}};
}

QJsonArray jsonFor(const QVector<Facet>& facets)
{
    QJsonArray all;
    for (const Facet& facet : facets) {
        all.append(
            QJsonObject {{key("name"), facet.name}, {key("value"), facet.value}, {key("checked"), facet.isChecked}});
    }
    return all;
}

QJsonObject jsonFor(const DeclaredAttribute& attribute)
{
    return {{key("name"), attribute.name},
            {key("type"), attribute.type},
            {key("facets"), jsonFor(attribute.facets)},
            {key("enumeration"), QJsonArray::fromStringList(attribute.enumeration)},
            {key("setters"), QJsonArray::fromStringList(namesOf(attribute.setters))},
            {key("place"), jsonFor(attribute.place)}};
}

QJsonValue numberOrNull(int number)
{
    return number == SkeletonElement::None ? QJsonValue() : QJsonValue(number);
}

QJsonValue maximum(int number)
{
    return number == AcceptedCounts::Unbounded ? QJsonValue(key("unbounded")) : QJsonValue(number);
}

QString wordFor(Fate fate)
{
    switch (fate) {
    case Fate::Stays:
        return key("stays");
    case Fate::IsRemoved:
        return key("removed");
    case Fate::IsRemovedWithItsValues:
        return key("removed-with-values");
    case Fate::IsRemovedWithItsContainer:
        return key("removed-with-container");
    case Fate::IsRemovedWithAnother:
        return key("removed-with-another");
    case Fate::IsUnknown:
        break;
    }
    return key("unknown");
}

QJsonObject jsonFor(const SkeletonElement& element)
{
    QJsonArray attributes;
    for (const DeclaredAttribute& attribute : element.attributes) {
        attributes.append(jsonFor(attribute));
    }
    return {{key("name"), element.name},
            {key("parent"), numberOrNull(element.parent)},
            {key("type"), element.type},
            {key("default"), element.defaultValue},
            {key("facets"), jsonFor(element.facets)},
            {key("enumeration"), QJsonArray::fromStringList(element.enumeration)},
            {key("attributes"), attributes},
            {key("minOccurs"), element.minOccurs},
            {key("maxOccurs"), maximum(element.maxOccurs)},
            {key("counts"),
             element.counts.isKnown ? QJsonValue(QJsonObject {{key("zero"), element.counts.takesZero},
                                                              {key("greatest"), maximum(element.counts.greatest)},
                                                              {key("firstCopyOnly"), element.isSingleInCopies}})
                                    : QJsonValue()},
            {key("choiceAlternative"), element.isChoiceAlternative},
            {key("choiceGroup"), numberOrNull(element.choiceGroup)},
            {key("choiceNumber"), numberOrNull(element.choiceNumber)},
            {key("unfilled"), wordFor(element.fate)},
            {key("unfilledInFirstCopyOnly"), element.staysInCopies},
            {key("setters"), QJsonArray::fromStringList(namesOf(element.setters))},
            {key("place"), jsonFor(element.place)}};
}

QJsonObject jsonFor(const Finding& finding)
{
    return {{key("severity"), nameOf(finding.severity)},
            {key("rule"), finding.rule},
            {key("place"), jsonFor(finding.place)},
            {key("subject"), finding.subject},
            {key("what"), finding.what},
            {key("effect"), finding.effect},
            {key("remedy"), finding.remedy},
            {key("cause"), causeOf(finding)},
            {key("path"), finding.path},
            {key("meantTree"), finding.meantTree},
            {key("laidOutTree"), finding.laidOutTree}};
}

QJsonObject jsonFor(const IncludedFile& file)
{
    QJsonArray includes;
    for (const IncludedFile& included : file.includes) {
        includes.append(jsonFor(included));
    }
    return {{key("written"), file.written},      {key("file"), file.file},
            {key("state"), nameOf(file.state)},  {key("outsideOfFolder"), file.isOutsideOfFolder},
            {key("place"), jsonFor(file.place)}, {key("includes"), includes}};
}

QJsonObject jsonFor(const RootCandidate& candidate)
{
    return {{key("name"), candidate.name},
            {key("attribute"), candidate.isAttribute},
            {key("chosen"), candidate.isChosen},
            {key("place"), jsonFor(candidate.place)}};
}

QJsonObject jsonFor(const ElementCount& count)
{
    return {{key("elements"), count.elements}, {key("beyondLimit"), count.isBeyondLimit}, {key("limit"), count.limit}};
}

QJsonObject jsonFor(const Proof& proof)
{
    return {{key("reports"), proof.reports}, {key("valid"), proof.validReports}, {key("leftOut"), proof.leftOut}};
}

template <typename Items> QJsonArray jsonForAll(const Items& items)
{
    QJsonArray all;
    for (const auto& item : items) {
        all.append(jsonFor(item));
    }
    return all;
}

} // namespace

QJsonObject jsonObjectOf(const Examination& examination)
{
    return {{key("file"), examination.file},
            {key("unreadable"), examination.unreadableReason},
            {key("status"), int(exitStatusOf(examination))},
            {key("count"), jsonFor(examination.count)},
            {key("rootCandidates"), jsonForAll(examination.rootCandidates)},
            {key("elements"), jsonForAll(examination.tree.elements)},
            {key("noTree"), examination.noTreeReason},
            {key("includes"), jsonFor(examination.includes)},
            {key("proof"), jsonFor(examination.proof)},
            {key("button"), buttonJson(examination)},
            {key("findings"), jsonForAll(examination.findings)}};
}

QByteArray jsonOf(const Examination& examination)
{
    return QJsonDocument(jsonObjectOf(examination)).toJson();
}

} // namespace schemadoctor
