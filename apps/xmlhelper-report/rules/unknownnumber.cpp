#include "rule.h"

#include "../annotations.h"

namespace reportcheck {

namespace {

// How Qt writes what is not a number; XML Schema knows NaN, INF and -INF.
bool isUnknownNumber(const QString& text)
{
    const QString value = text.startsWith(QLatin1Char('-')) ? text.mid(1) : text;
    return value == QLatin1String("nan") || value == QLatin1String("inf");
}

Remark remarkOf(const QString& what)
{
    return {Severity::Error, what, Texts::tr("Offer no value while there is none to report.")};
}

} // namespace

Remarks unknownNumber(const ReportElement& element, const RuleContext&)
{
    Remarks remarks;
    const QString text = element.text.trimmed();
    if (!element.hasChildElements && isUnknownNumber(text)) {
        remarks.push_back(
            remarkOf(Texts::tr("The element holds \"%1\", a number that XML Schema does not know.").arg(text)));
    }
    for (const ReportAttribute& attribute : element.attributes) {
        if (isUnknownNumber(attribute.value)) {
            remarks.push_back(
                remarkOf(Texts::tr("The attribute %1 holds \"%2\", a number that XML Schema does not know.")
                             .arg(attribute.name, attribute.value)));
        }
    }
    return remarks;
}

} // namespace reportcheck
