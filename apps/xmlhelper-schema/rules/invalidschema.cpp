#include <set>

#include <QMap>
#include <QRegularExpression>

#include "rule.h"

namespace schemadoctor {

namespace {

/// The prefix of a name that has no namespace; empty for other faults.
QString undeclaredPrefixIn(const QString& message)
{
    static const QRegularExpression pattern(
        QStringLiteral("'([^':]+):[^']*' of simple type 'xs:QName' has no corresponding namespace declaration"));
    return pattern.match(message).captured(1);
}

/// Where the tag begins that ends in the line; the line itself when there are several.
Place beginOfTag(const Schema& schema, const Place& place)
{
    std::set<int> lines;
    for (const TextFile* const file : schema.GetFiles()) {
        for (const TextNode* const tag : file->tags) {
            if (tag->lastLine == place.line && file->name == place.file) {
                lines.insert(tag->line);
            }
        }
    }
    return lines.size() == 1 ? Place {place.file, *lines.begin()} : place;
}

} // namespace

/// What a validator says about the schema as a schema: a report is checked against it later. A prefix that is not
/// declared is told once, at its first use.
void invalidSchema(const Schema& schema, Findings& findings)
{
    QMap<QString, int> uses; // of each prefix
    for (const GrammarFault& fault : schema.GetFaults()) {
        ++uses[undeclaredPrefixIn(fault.message)];
    }
    for (const GrammarFault& fault : schema.GetFaults()) {
        const QString prefix = undeclaredPrefixIn(fault.message);
        const int count = prefix.isEmpty() ? 1 : uses.take(prefix);
        if (count == 0) {
            continue;
        }
        Finding& finding
            = findings.Add(Severity::Warning, beginOfTag(schema, fault.place), prefix,
                           count == 1 ? Texts::tr("libxml2 does not accept the schema: %1").arg(fault.message)
                                      : Texts::tr("libxml2 does not accept the schema: %1 The same of %2 other names.")
                                            .arg(fault.message)
                                            .arg(count - 1),
                           Texts::tr("The library does not look at it, but no report can be validated."),
                           prefix.isEmpty() ? Texts::tr("Mend the schema.")
                                            : Texts::tr("Declare the prefix: xmlns:%1=\"...\".").arg(prefix));
        if (!prefix.isEmpty()) {
            finding.cause = Texts::tr("the prefix '%1:'").arg(prefix);
        }
    }
}

} // namespace schemadoctor
