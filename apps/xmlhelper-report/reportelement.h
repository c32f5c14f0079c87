#ifndef REPORTCHECK_REPORTELEMENT_H
#define REPORTCHECK_REPORTELEMENT_H

#include <vector>

#include <QString>

namespace reportcheck {

struct ReportAttribute
{
    QString name; ///< with its prefix
    QString value;
};

/// An element of a report as the rules look at it.
struct ReportElement
{
    QString name;
    QString text; ///< its own, without that of its children
    bool hasChildElements = false;
    bool isRoot = false;
    std::vector<ReportAttribute> attributes; ///< in document order; declarations of namespaces are none

    bool IsWithoutContent() const { return !hasChildElements && text.trimmed().isEmpty(); }
    const ReportAttribute* Find(const QString& attribute) const&; ///< null when there is none
    const ReportAttribute* Find(const QString& attribute) && = delete;
};

} // namespace reportcheck

#endif
