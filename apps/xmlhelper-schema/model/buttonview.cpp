#include "buttonview.h"

#include <utility>

namespace schemadoctor {

QStringList namesOf(ItemKinds kinds)
{
    static const std::pair<ItemKind, QLatin1String> names[] = {
        {ItemKind::Number, QLatin1String("number")}, {ItemKind::WholeNumber, QLatin1String("whole-number")},
        {ItemKind::Text, QLatin1String("text")},     {ItemKind::Time, QLatin1String("time")},
        {ItemKind::Truth, QLatin1String("truth")},   {ItemKind::Integer, QLatin1String("integer")},
    };
    QStringList all;
    for (const auto& [kind, name] : names) {
        if (kinds.testFlag(kind)) {
            all.append(name);
        }
    }
    return all;
}

QString nameOf(Obstacle obstacle)
{
    switch (obstacle) {
    case Obstacle::NoSetter:
        return QStringLiteral("no-setter");
    case Obstacle::NoOffer:
        return QStringLiteral("no-offer");
    case Obstacle::IdleNumber:
        return QStringLiteral("idle-number");
    case Obstacle::OtherAttribute:
        return QStringLiteral("other-attribute");
    case Obstacle::None:
        break;
    }
    return QStringLiteral("none");
}

} // namespace schemadoctor
