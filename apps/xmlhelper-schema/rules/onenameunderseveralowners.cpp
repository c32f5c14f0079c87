#include <map>

#include "rule.h"

namespace schemadoctor {

namespace {

QString limitsOf(const TextNode& tag)
{
    const QString maximum = tag.Has("maxOccurs") ? tag.Value("maxOccurs") : Texts::tr("not given");
    const QString limits = tag.Around("choice") ? Texts::tr("minOccurs %1, maxOccurs %2, in a choice")
                                                : Texts::tr("minOccurs %1, maxOccurs %2");
    return limits.arg(occursOf(tag, "minOccurs", 1)).arg(maximum);
}

/// An anonymous type is another one each time.
QString typeOf(const TextNode& tag)
{
    return tag.children.empty() ? tag.Value("type") : Texts::tr("its own in line %1").arg(tag.line);
}

} // namespace

/// The limits of an element are found by its name and that of its owner, whatever stands between.
void oneNameUnderSeveralOwners(const Schema& schema, Findings& findings)
{
    std::map<QString, const TextNode*> firsts;
    for (const TextNode* const tag : schema.Tags({"element"})) {
        const QString name = tag->Value("name");
        if (tag->IsGlobal() || name.isEmpty()) {
            continue;
        }
        const auto [known, isFirst] = firsts.emplace(name, tag);
        const TextNode& first = *known->second;
        if (isFirst) {
            continue;
        }
        if (limitsOf(first) != limitsOf(*tag)) {
            findings.Add(
                Severity::Warning, *tag,
                Texts::tr("%1 has the limits: %2; in line %3 it has: %4.")
                    .arg(described(*tag), limitsOf(*tag))
                    .arg(first.line)
                    .arg(limitsOf(first)),
                Texts::tr("Limits are found by name: those of the one may be applied to the other where one of "
                          "their owners stands inside of the other, and an alternative of any choice may be "
                          "missing everywhere."),
                Texts::tr("Give the two elements different names, or the same limits."));
        } else if (typeOf(first) != typeOf(*tag)) {
            findings.Add(Severity::Note, *tag,
                         Texts::tr("%1 is of the type '%2'; in line %3 it is of '%4'.")
                             .arg(described(*tag), typeOf(*tag))
                             .arg(first.line)
                             .arg(typeOf(first)),
                         Texts::tr("An observer that knows elements by their name alone offers both the same value."),
                         Texts::tr("Give the two elements different names, or the same type."));
        }
    }
}

} // namespace schemadoctor
