#include "bounds.h"
#include "rule.h"

namespace schemadoctor {

namespace {

bool isInteger(const QString& type)
{
    return type.contains(QLatin1String("integer")) || type == QLatin1String("xs:int");
}

bool isNumeric(const QString& type)
{
    return isInteger(type) || type.contains(QLatin1String("double")) || type.contains(QLatin1String("short"))
        || type.contains(QLatin1String("long"));
}

/// Whether a setter takes the type, but one that looks at no bounds.
bool isUnbounded(const QString& type)
{
    return type.contains(QLatin1String("dateTime")) || type.contains(QLatin1String("time"))
        || type.contains(QLatin1String("string")) || type.contains(QLatin1String("bool"));
}

} // namespace

/// Bounds of attributes are read otherwise, which is a rule of its own.
void unconvertibleBound(const Schema& schema, Findings& findings)
{
    for (const TextNode* const tag : schema.Tags(RangeFacetTags)) {
        const TextNode* const restriction = tag->Around("restriction");
        const QString type = restriction ? restriction->Value("base") : QString();
        const QString value = tag->Value("value");
        bool isConverted = false;
        if (isInteger(type)) {
            static_cast<void>(value.toInt(&isConverted));
        } else {
            static_cast<void>(value.toDouble(&isConverted));
        }
        const QString what = Texts::tr("%1 of '%2' is '%3'.").arg(tag->localName, type, value);
        if (isUnbounded(type)) {
            findings.Add(Severity::Error, *tag, what,
                         Texts::tr("Only numbers have bounds: it is not checked, and stays in the report as an "
                                   "attribute."),
                         Texts::tr("Leave the facet out."));
        } else if (isNumeric(type) && !isConverted && !tag->Around("attribute")) {
            findings.Add(Severity::Error, *tag, what,
                         Texts::tr("It cannot be read as a number of that type and counts as 0."),
                         isInteger(type) ? Texts::tr("Write an integer between -2147483648 and 2147483647.")
                                         : Texts::tr("Write a number in digits, with a point."));
        }
    }
}

} // namespace schemadoctor
