#include "annotations.h"

#include <algorithm>
#include <iterator>

#include <QRegularExpression>

namespace reportcheck {

namespace {

const char* const rangeFacets[] = {"minInclusive", "maxInclusive", "minExclusive", "maxExclusive"};

const char* const otherFacets[] = {"pattern",        "length",     "minLength", "maxLength",       "totalDigits",
                                   "fractionDigits", "whiteSpace", "assertion", "explicitTimezone"};

const char* const builtInTypes[] = {"anySimpleType",
                                    "anyType",
                                    "anyURI",
                                    "base64Binary",
                                    "boolean",
                                    "byte",
                                    "date",
                                    "dateTime",
                                    "dateTimeStamp",
                                    "dayTimeDuration",
                                    "decimal",
                                    "double",
                                    "duration",
                                    "ENTITIES",
                                    "ENTITY",
                                    "float",
                                    "gDay",
                                    "gMonth",
                                    "gMonthDay",
                                    "gYear",
                                    "gYearMonth",
                                    "hexBinary",
                                    "ID",
                                    "IDREF",
                                    "IDREFS",
                                    "int",
                                    "integer",
                                    "language",
                                    "long",
                                    "Name",
                                    "NCName",
                                    "negativeInteger",
                                    "NMTOKEN",
                                    "NMTOKENS",
                                    "nonNegativeInteger",
                                    "nonPositiveInteger",
                                    "normalizedString",
                                    "NOTATION",
                                    "positiveInteger",
                                    "QName",
                                    "short",
                                    "string",
                                    "time",
                                    "token",
                                    "unsignedByte",
                                    "unsignedInt",
                                    "unsignedLong",
                                    "unsignedShort",
                                    "yearMonthDuration"};

// The report builder looks for these words in a type's name.
const char* const fillableWords[] = {"string", "double", "integer", "bool", "dateTime", "time", "short", "long"};

template <std::size_t Count> bool isAmong(const QString& name, const char* const (&names)[Count])
{
    return std::any_of(std::begin(names), std::end(names),
                       [&](const char* candidate) { return name == QLatin1String(candidate); });
}

Annotation enumerationIn(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("^enumeration[0-9]+(.*)$"));
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch()) {
        return {};
    }
    const QString attribute = match.captured(1);
    return {attribute.isEmpty() ? AnnotationKind::Enumeration : AnnotationKind::AttributeFacet, attribute};
}

Annotation attributeRangeIn(const QString& name)
{
    for (const char* facet : rangeFacets) {
        if (name.startsWith(QLatin1String(facet))) {
            return {AnnotationKind::AttributeFacet, name.mid(QLatin1String(facet).size())};
        }
    }
    return {};
}

Annotation annotationNamed(const QString& name)
{
    if (name == QLatin1String("type")) {
        return {AnnotationKind::Type, {}};
    }
    if (name == QLatin1String("default")) {
        return {AnnotationKind::Default, {}};
    }
    if (isAmong(name, rangeFacets)) {
        return {AnnotationKind::Range, {}};
    }
    if (isAmong(name, otherFacets)) {
        return {AnnotationKind::OtherFacet, {}};
    }
    const Annotation enumeration = enumerationIn(name);
    return enumeration.kind == AnnotationKind::None ? attributeRangeIn(name) : enumeration;
}

} // namespace

Annotation annotationIn(const ReportAttribute& attribute, const DeclaredAttributes& declared)
{
    return declared.Has(attribute.name) ? Annotation {} : annotationNamed(attribute.name);
}

QStringList annotationsOf(const ReportElement& element, const DeclaredAttributes& declared,
                          std::initializer_list<AnnotationKind> kinds)
{
    QStringList names;
    for (const ReportAttribute& attribute : element.attributes) {
        const AnnotationKind kind = annotationIn(attribute, declared).kind;
        if (std::find(kinds.begin(), kinds.end(), kind) != kinds.end()) {
            names.append(attribute.name);
        }
    }
    return names;
}

bool canBeFilled(const QString& type)
{
    return type == QLatin1String("int")
        || std::any_of(std::begin(fillableWords), std::end(fillableWords),
                       [&](const char* word) { return type.contains(QLatin1String(word)); });
}

bool isBuiltInType(const QString& name)
{
    return isAmong(name, builtInTypes);
}

} // namespace reportcheck
