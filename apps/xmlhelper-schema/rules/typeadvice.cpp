#include "typeadvice.h"

#include <QHash>

#include <xmlhelper/valuerules_p.h>

#include "rule.h"

namespace schemadoctor {

namespace {

enum class Kind { Number, Integer, Truth, Moment, Text, Unknown };

Kind kindOf(const QString& type)
{
    static const QHash<QString, Kind> kinds {
        {QStringLiteral("decimal"), Kind::Number},
        {QStringLiteral("float"), Kind::Number},
        {QStringLiteral("double"), Kind::Number},
        {QStringLiteral("int"), Kind::Integer},
        {QStringLiteral("short"), Kind::Integer},
        {QStringLiteral("long"), Kind::Integer},
        {QStringLiteral("byte"), Kind::Integer},
        {QStringLiteral("unsignedByte"), Kind::Integer},
        {QStringLiteral("unsignedShort"), Kind::Integer},
        {QStringLiteral("unsignedInt"), Kind::Integer},
        {QStringLiteral("unsignedLong"), Kind::Integer},
        {QStringLiteral("nonNegativeInteger"), Kind::Integer},
        {QStringLiteral("positiveInteger"), Kind::Integer},
        {QStringLiteral("nonPositiveInteger"), Kind::Integer},
        {QStringLiteral("negativeInteger"), Kind::Integer},
        {QStringLiteral("boolean"), Kind::Truth},
        {QStringLiteral("date"), Kind::Moment},
        {QStringLiteral("time"), Kind::Moment},
        {QStringLiteral("dateTimeStamp"), Kind::Moment},
        {QStringLiteral("anyURI"), Kind::Text},
        {QStringLiteral("token"), Kind::Text},
        {QStringLiteral("normalizedString"), Kind::Text},
        {QStringLiteral("language"), Kind::Text},
        {QStringLiteral("Name"), Kind::Text},
        {QStringLiteral("NCName"), Kind::Text},
        {QStringLiteral("NMTOKEN"), Kind::Text},
        {QStringLiteral("ID"), Kind::Text},
        {QStringLiteral("IDREF"), Kind::Text},
        {QStringLiteral("QName"), Kind::Text},
        {QStringLiteral("duration"), Kind::Text},
        {QStringLiteral("gYear"), Kind::Text},
        {QStringLiteral("gYearMonth"), Kind::Text},
        {QStringLiteral("hexBinary"), Kind::Text},
        {QStringLiteral("base64Binary"), Kind::Text},
        {QStringLiteral("anySimpleType"), Kind::Text},
    };
    return kinds.value(localPart(type), Kind::Unknown);
}

QString listOf(const QStringList& types)
{
    return QLatin1String("xs:") + types.join(QLatin1String(", xs:"));
}

} // namespace

QString adviceForElement(const QString& type)
{
    switch (kindOf(type)) {
    case Kind::Number:
        return Texts::tr("Write xs:double.");
    case Kind::Integer:
        return Texts::tr("Write xs:integer, restricted to the range.");
    case Kind::Moment:
        return Texts::tr("Write xs:dateTime, or xs:string.");
    case Kind::Text:
        return Texts::tr("Write xs:string.");
    default:
        return Texts::tr("Write one of %1, or a named xs:simpleType that restricts one of them.")
            .arg(listOf(builtInTypesOfElements()));
    }
}

QString adviceForAttribute(const QString& type)
{
    switch (kindOf(type)) {
    case Kind::Number:
        return Texts::tr("Write xs:double.");
    case Kind::Integer:
        return Texts::tr("Write xs:integer.");
    case Kind::Truth:
        return Texts::tr("Write xs:string, and 'true' or 'false' as its value.");
    case Kind::Moment:
        return Texts::tr("Write xs:dateTime, or xs:string.");
    case Kind::Text:
        return Texts::tr("Write xs:string.");
    default:
        return Texts::tr("Write one of %1; for a restricted type, declare the attribute globally with the type "
                         "inside, and refer to it.")
            .arg(listOf(builtInTypesOfAttributes()));
    }
}

} // namespace schemadoctor
