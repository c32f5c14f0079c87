#ifndef SCHEMADOCTOR_CONTENTRESOLVER_H
#define SCHEMADOCTOR_CONTENTRESOLVER_H

#include <map>
#include <optional>
#include <set>

#include "attributes.h"
#include "mendedelement.h"
#include "schemaset.h"
#include "simpletypes.h"
#include "valuemending.h"

namespace schemadoctor {

/// Writes the elements of a schema out: groups, derived types, references, substitutes and recursion, in the order that
/// reports have.
class ContentResolver
{
public:
    /// @param levels  how many of one declaration may stand inside of each other
    ContentResolver(const SchemaSet& set, RewriteLog& log, int levels);

    /// The root with all that is below it; nothing when no report is finite with so many levels.
    std::optional<MendedElement> Root(const TextNode& global);

    /// Which limit was exceeded; empty when none was.
    const QString& GetRefusal() const { return m_refusal; }

private:
    /// Nothing: no report can have it with so many levels.
    using Content = std::optional<MendedContent>;

    Content particle(const TextNode& tag);
    void leaveOut(const TextNode& particle, const QString& before);
    Content elementParticle(const TextNode& tag);
    Content sequence(const TextNode& tag);
    Content choice(const TextNode& tag);
    Content groupReference(const TextNode& tag);
    Content wildcard(const TextNode& tag);
    Content substitutes(const TextNode& tag, const TextNode& head);
    Content chosen(const TextNode& tag, std::vector<MendedContent> alternatives);
    void unnest(const TextNode& tag, MendedContent& alternative);

    void repeat(const TextNode& tag, MendedContent& content);
    void repeatChoice(const TextNode& tag, int minOccurs, int maxOccurs, MendedContent& content);
    void repeatAll(const TextNode& tag, int minOccurs, int maxOccurs, MendedContent& content);
    void dropRepeatedNames(const TextNode& tag, MendedContent& content);
    bool mayDrop(const TextNode& tag, const MendedElement& repeated, std::map<int, std::set<int>>& branches);

    std::optional<MendedElement> element(const TextNode& tag, const TextNode& declaration);
    bool giveType(MendedElement& element, const TextNode& declaration);
    bool giveComplexType(MendedElement& element, const TextNode& type);
    bool giveComplexContent(MendedElement& element, const TextNode& type);
    bool giveDerived(MendedElement& element, const TextNode& type, const TextNode& derivation);
    bool giveSimpleContent(MendedElement& element, const TextNode& derivation);
    bool giveContent(MendedElement& element, const TextNode& owner);
    void finishValue(MendedElement& element, const TextNode& declaration);
    void tellPassedOver(const TextNode& declaration);
    void rename(MendedElement& element);
    bool isBeyondLimit();

    const SchemaSet& m_set;
    RewriteLog& m_log;
    SimpleTypes m_types;
    ValueMending m_mending;
    Attributes m_attributes;
    const int m_levels;
    std::map<const TextNode*, int> m_open; ///< declarations and definitions that are being written out
    int m_depth = 0;
    int m_elements = 0;
    int m_particles = 0;
    int m_choices = 0;
    int m_branches = 0;
    QString m_refusal;
};

} // namespace schemadoctor

#endif
