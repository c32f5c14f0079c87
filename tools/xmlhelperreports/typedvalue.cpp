#include "typedvalue_p.h"

#include <algorithm>

#include <xmlhelper/valuerules_p.h>

namespace {

bool isTruth(const QString& text, bool& value)
{
    value = text == QLatin1String("true") || text == QLatin1String("1");
    return value || text == QLatin1String("false") || text == QLatin1String("0");
}

/// The value as what the schema asks for, or as a text when it cannot be read so.
TypedValue typedValue(const QString& text, const QString& type)
{
    bool truth = false;
    if (isOf(type, Setter::Truth) && isTruth(text, truth)) {
        return truth;
    }
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
    if (isOf(type, Setter::DateTime) && moment.isValid()) {
        return moment;
    }
    const QTime time = QTime::fromString(text, Qt::ISODate);
    if (isOf(type, Setter::Time) && time.isValid()) {
        return time;
    }
    // The builder would hold it against bounds of 32 bits.
    if (isUniversal(type)) {
        return text;
    }
    bool isInteger = false;
    const int integer = text.toInt(&isInteger);
    if (isInteger && settersOfElement(type).testFlag(Setter::Integer)) {
        return integer;
    }
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (isNumber && !isOf(type, Setter::Text)) {
        return number;
    }
    return text;
}

} // namespace

bool isOf(const QString& type, Setter setter)
{
    return type.contains(wordOf(setter));
}

bool isUniversal(const QString& type)
{
    return !isOf(type, Setter::Text) && settersOfElement(type).testFlag(Setter::Text);
}

std::vector<TypedValue> typedValues(const QString& text, const QString& type)
{
    std::vector<TypedValue> all {typedValue(text, type)};
    const auto append = [&all](const TypedValue& value) {
        if (std::none_of(all.begin(), all.end(),
                         [&value](const TypedValue& one) { return one.index() == value.index(); })) {
            all.push_back(value);
        }
    };
    bool isConverted = false;
    const double number = text.toDouble(&isConverted);
    if (isConverted) {
        append(number);
    }
    const int integer = text.toInt(&isConverted);
    if (isConverted) {
        append(integer);
    }
    append(text);
    return all;
}

QString nameOf(const TypedValue& value)
{
    static const char* const names[] = {"QString", "bool", "int", "double", "QDateTime", "QTime"};
    return QString::fromLatin1(names[value.index()]);
}

QString wordsFor(const TypedValue& value)
{
    static const char* const words[]
        = {"text", "truth value", "integer", "floating-point number", "date and time", "time"};
    return QString::fromLatin1(words[value.index()]);
}
