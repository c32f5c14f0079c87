#ifndef SCHEMADOCTOR_MENDEDELEMENT_H
#define SCHEMADOCTOR_MENDEDELEMENT_H

#include <vector>

#include <QString>
#include <QStringList>

#include "simplevalue.h"

namespace schemadoctor {

struct MendedAttribute
{
    QString name;
    SimpleValue value;
    bool isRequired = false;
    bool isInPlace = false; ///< its type is written where the attribute is: another has its name
    QString defaultValue;
    const TextNode* declaration = nullptr;
    const TextNode* reference = nullptr; ///< where it stands: the declaration, or what refers to it
};

/// An element as the mended schema declares it, with all that it holds. Groups and types are written out.
struct MendedElement
{
    static constexpr int Unbounded = -1;
    static constexpr int None = 0;

    QString name;
    int minOccurs = 1;
    int maxOccurs = 1;
    int choice = None; ///< the number of the choice that it stands in
    int branch = None; ///< the number of the alternative that it belongs to
    bool isReference = false; ///< to a global element of the mended schema
    bool hasValue = false;
    SimpleValue value;
    QString defaultValue;
    std::vector<MendedAttribute> attributes;
    std::vector<MendedElement> children;
    QStringList comments;
    QStringList documentation;
    const TextNode* particle = nullptr; ///< the tag that says how often it occurs
    const TextNode* declaration = nullptr;

    /// Whether its type is no more than the name of one.
    bool IsPlain() const { return hasValue && attributes.empty(); }
};

using MendedContent = std::vector<MendedElement>;

} // namespace schemadoctor

#endif
