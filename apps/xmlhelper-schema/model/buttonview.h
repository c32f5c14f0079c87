#ifndef SCHEMADOCTOR_BUTTONVIEW_H
#define SCHEMADOCTOR_BUTTONVIEW_H

#include <vector>

#include <QFlags>
#include <QString>
#include <QStringList>

namespace schemadoctor {

/// What an item of the report button gives.
enum class ItemKind {
    Number = 1,
    WholeNumber = 2, ///< a number, of which the fraction is left out
    Text = 4,
    Time = 8, ///< a text that is a date and time in ISO format
    Truth = 16, ///< an explicit one
    Integer = 32, ///< an explicit one
};
Q_DECLARE_FLAGS(ItemKinds, ItemKind)
Q_DECLARE_OPERATORS_FOR_FLAGS(ItemKinds)

/// Why no item fills a value.
enum class Obstacle {
    None,
    NoSetter, ///< no setter takes it, whoever calls
    NoOffer, ///< the button never calls the setter that takes it
    IdleNumber, ///< another number is written in place of the item's
    OtherAttribute, ///< an attribute beside it may be filled in its place
};

/// How the report button fills the value of an element or an attribute.
struct ButtonFilling
{
    QString item; ///< the name of an item that reaches it
    int others = 0; ///< how many further values such an item reaches
    ItemKinds kinds; ///< of items that are written; none: no item fills it
    bool isStamped = false; ///< the button fills it with the current time, whatever items there are
    bool isUnit = false; ///< an attribute that the unit of the element's item fills
    bool isToFollow = false; ///< an attribute: an item for it in front of the element's takes that one's turn
    Obstacle obstacle = Obstacle::None;

    bool IsFilled() const { return kinds || isStamped || isUnit; }
};

struct ButtonElement
{
    ButtonFilling value; ///< means nothing for a container
    std::vector<ButtonFilling> attributes; ///< as SkeletonElement::attributes
};

/// What a report button makes of a schema.
struct ButtonView
{
    std::vector<ButtonElement> elements; ///< as SkeletonTree::elements; empty when it was not tried
    QString leftOut; ///< why it was not tried, in a sentence; empty when it was, or was not asked for
};

QStringList namesOf(ItemKinds kinds); ///< "number", "whole-number", "text", "time", "truth", "integer"
QString nameOf(Obstacle obstacle); ///< "none", "no-setter", "no-offer", "idle-number", "other-attribute"

} // namespace schemadoctor

#endif
