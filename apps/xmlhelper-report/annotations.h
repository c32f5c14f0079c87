#ifndef REPORTCHECK_ANNOTATIONS_H
#define REPORTCHECK_ANNOTATIONS_H

#include <QStringList>

#include "declaredattributes.h"
#include "reportelement.h"

namespace reportcheck {

/// What the library writes onto the elements of a report to know what may go into them. All of it is gone from an
/// element that was filled.
enum class AnnotationKind {
    None, ///< an attribute like any other
    Type,
    Default,
    Range, ///< minInclusive and its like
    Enumeration,
    OtherFacet, ///< a facet that the library does not check: it is never removed
    AttributeFacet, ///< of an attribute of the element: the facet's name, and the attribute's behind it
};

struct Annotation
{
    AnnotationKind kind = AnnotationKind::None;
    QString attribute; ///< whose facet it is, with AttributeFacet
};

/// An attribute that the schema declares under that name is none of the library's.
Annotation annotationIn(const ReportAttribute& attribute, const DeclaredAttributes& declared);

/// The names of the element's attributes that are annotations of one of these kinds, in document order.
QStringList annotationsOf(const ReportElement& element, const DeclaredAttributes& declared,
                          std::initializer_list<AnnotationKind> kinds);

/// Whether an operation of the report builder writes elements of this type; without prefix.
bool canBeFilled(const QString& type);

/// Whether it is the name of a type that XML Schema brings along; without prefix.
bool isBuiltInType(const QString& name);

} // namespace reportcheck

#endif
