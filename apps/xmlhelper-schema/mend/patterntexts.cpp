#include "patterntexts.h"

#include <algorithm>
#include <map>

namespace schemadoctor {

namespace {

/// What means something else in a pattern than itself; the bar divides alternatives.
const QLatin1String Special("\\.?*+{}()[]|^$-");

bool isLiteral(const QString& text)
{
    return std::none_of(text.begin(), text.end(), [](QChar one) { return QString(Special).contains(one); });
}

QString escaped(const QString& text)
{
    QString pattern;
    for (const QChar one : text) {
        pattern += QString(Special).contains(one) ? QLatin1Char('\\') + QString(one) : QString(one);
    }
    return pattern;
}

bool isItem(const QString& text)
{
    return !text.isEmpty()
        && std::none_of(text.begin(), text.end(), [](QChar one) { return QStringLiteral(" \t\n\r").contains(one); });
}

} // namespace

QStringList textsListedBy(const QString& pattern)
{
    const QStringList texts = pattern.split(QLatin1Char('|'));
    return std::all_of(texts.begin(), texts.end(), isLiteral) ? texts : QStringList();
}

QString patternOfItem(const SimpleValue& item, TextCheck& check)
{
    static const std::map<QString, QString> patterns {
        {QStringLiteral("string"), QStringLiteral("\\S+")},
        {QStringLiteral("normalizedString"), QStringLiteral("\\S+")},
        {QStringLiteral("token"), QStringLiteral("\\S+")},
        {QStringLiteral("boolean"), QStringLiteral("true|false")},
        {QStringLiteral("double"), QStringLiteral("-?[0-9]{1,9}(\\.[0-9]{1,9})?")},
        {QStringLiteral("float"), QStringLiteral("-?[0-9]{1,9}(\\.[0-9]{1,9})?")},
        {QStringLiteral("decimal"), QStringLiteral("-?[0-9]{1,9}(\\.[0-9]{1,9})?")},
        {QStringLiteral("integer"), QStringLiteral("-?[0-9]{1,9}")},
        {QStringLiteral("long"), QStringLiteral("-?[0-9]{1,9}")},
        {QStringLiteral("int"), QStringLiteral("-?[0-9]{1,9}")},
        {QStringLiteral("short"), QStringLiteral("-?[0-9]{1,4}")},
        {QStringLiteral("byte"), QStringLiteral("-?[0-9]{1,2}")},
        {QStringLiteral("unsignedLong"), QStringLiteral("[0-9]{1,9}")},
        {QStringLiteral("unsignedInt"), QStringLiteral("[0-9]{1,9}")},
        {QStringLiteral("unsignedShort"), QStringLiteral("[0-9]{1,4}")},
        {QStringLiteral("unsignedByte"), QStringLiteral("[0-9]{1,2}")},
        {QStringLiteral("nonNegativeInteger"), QStringLiteral("[0-9]{1,9}")},
        {QStringLiteral("positiveInteger"), QStringLiteral("[1-9][0-9]{0,8}")},
        {QStringLiteral("nonPositiveInteger"), QStringLiteral("-[0-9]{1,9}")},
        {QStringLiteral("negativeInteger"), QStringLiteral("-[1-9][0-9]{0,8}")},
    };
    if (item.item || item.isUnknown) {
        return QString();
    }
    if (item.IsPlain()) {
        const auto found = patterns.find(item.base);
        return found == patterns.end() ? QString() : found->second;
    }
    QStringList texts = check.AllowedOf(item).value_or(QStringList());
    texts.erase(std::remove_if(texts.begin(), texts.end(), [](const QString& text) { return !isItem(text); }),
                texts.end());
    std::transform(texts.begin(), texts.end(), texts.begin(), escaped);
    return texts.join(QLatin1Char('|'));
}

} // namespace schemadoctor
