#include "annotations.h"

#include <algorithm>
#include <iterator>

#include <xmlhelper/skeletonwords_p.h>
#include <xmlhelper/valuerules_p.h>

namespace reportcheck {

namespace {

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

template <std::size_t Count> bool isAmong(const QString& name, const char* const (&names)[Count])
{
    return std::any_of(std::begin(names), std::end(names),
                       [&](const char* candidate) { return name == QLatin1String(candidate); });
}

Annotation annotationNamed(const QString& name)
{
    if (name == TypeAttribute()) {
        return {AnnotationKind::Type, {}};
    }
    if (name == DefaultAttribute()) {
        return {AnnotationKind::Default, {}};
    }
    if (isAmong(name, otherFacets)) {
        return {AnnotationKind::OtherFacet, {}};
    }
    const FacetName facet = facetNameIn(name);
    if (facet.facet.size() == 0) {
        return {};
    }
    if (!facet.attribute.isEmpty()) {
        return {AnnotationKind::AttributeFacet, facet.attribute};
    }
    return {facet.facet == EnumerationFacet ? AnnotationKind::Enumeration : AnnotationKind::Range, {}};
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
    return settersOfElement(type) != Setters();
}

bool isBuiltInType(const QString& name)
{
    return isAmong(name, builtInTypes);
}

} // namespace reportcheck
