#include "inputs.h"

#include <algorithm>

#include <QIODevice>
#include <QTextStream>

namespace {

const QLatin1String Declaration("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
const QLatin1String Optional(" minOccurs=\"0\"");

bool isGrouped(Shape shape)
{
    return shape != Shape::Flat && shape != Shape::RequiredFlat && shape != Shape::Choice;
}

bool areValuesOptional(Shape shape)
{
    return shape != Shape::Choice && shape != Shape::RequiredFlat;
}

int groupCount(int elements)
{
    return std::max(1, elements / (ValuesOfGroup + 1));
}

const ValueKind& kindAt(int index)
{
    return valueKinds()[static_cast<size_t>(index) % valueKinds().size()];
}

QString numbered(const QString& name, int index)
{
    return name + QString::number(index);
}

QString valueName(Shape shape, int index)
{
    const bool isShared = shape == Shape::SharedNames || shape == Shape::NamedTypes;
    return isShared ? kindAt(index).name : numbered(kindAt(index).name, index);
}

QString stationName(int group)
{
    return numbered(QStringLiteral("Station"), group);
}

void declareValue(QTextStream& out, Shape shape, int index)
{
    out << "<xs:element name=\"" << valueName(shape, index) << "\" type=\"xs:" << kindAt(index).type << '"'
        << (areValuesOptional(shape) ? Optional : QLatin1String("")) << "/>\n";
}

void declareValues(QTextStream& out, Shape shape, int first, int count)
{
    for (int i = first; i < first + count; ++i) {
        declareValue(out, shape, i);
    }
}

void declareGroup(QTextStream& out, Shape shape, int group)
{
    const QLatin1String occurs = shape == Shape::RequiredGroups ? QLatin1String("") : Optional;
    out << "<xs:element name=\"" << stationName(group) << '"' << occurs;
    if (shape == Shape::NamedTypes) {
        out << " type=\"Measurement\"/>\n";
        return;
    }
    out << ">\n<xs:complexType>\n<xs:sequence>\n";
    declareValues(out, shape, group * ValuesOfGroup, ValuesOfGroup);
    out << "</xs:sequence>\n</xs:complexType>\n</xs:element>\n";
}

} // namespace

QString toText(Shape shape)
{
    switch (shape) {
    case Shape::Flat:
        return QStringLiteral("flat");
    case Shape::Groups:
        return QStringLiteral("groups");
    case Shape::SharedNames:
        return QStringLiteral("shared-names");
    case Shape::NamedTypes:
        return QStringLiteral("named-types");
    case Shape::Choice:
        return QStringLiteral("choice");
    case Shape::RequiredFlat:
        return QStringLiteral("required-flat");
    case Shape::RequiredGroups:
        return QStringLiteral("required-groups");
    }
    return QString();
}

const std::vector<ValueKind>& valueKinds()
{
    static const std::vector<ValueKind> kinds = {
        {QStringLiteral("Frequency"), QStringLiteral("double"), QStringLiteral("98500000"), 98.5e6},
        {QStringLiteral("Bandwidth"), QStringLiteral("double"), QStringLiteral("120000"), 120e3},
        {QStringLiteral("Level"), QStringLiteral("double"), QStringLiteral("-73.5"), -73.5},
        {QStringLiteral("Azimuth"), QStringLiteral("double"), QStringLiteral("211.25"), 211.25},
        {QStringLiteral("Quality"), QStringLiteral("integer"), QStringLiteral("87"), 87},
        {QStringLiteral("Channel"), QStringLiteral("integer"), QStringLiteral("12"), 12},
        {QStringLiteral("Operator"), QStringLiteral("string"), QStringLiteral("Night shift"), 0},
        {QStringLiteral("Remark"), QStringLiteral("string"), QStringLiteral("Tower & Hill"), 0},
        {QStringLiteral("Valid"), QStringLiteral("boolean"), QStringLiteral("true"), 0},
    };
    return kinds;
}

const ValueKind& kindOf(const QString& name)
{
    static const std::vector<const ValueKind*> byLetter = [] {
        std::vector<const ValueKind*> table(128, &valueKinds().front());
        for (const ValueKind& kind : valueKinds()) {
            table[kind.name.at(0).unicode()] = &kind;
        }
        return table;
    }();
    return *byLetter[name.at(0).unicode() % 128];
}

bool isValueName(const QString& name)
{
    return !name.startsWith(QLatin1Char('S'));
}

QByteArray schemaText(Shape shape, int elements)
{
    QByteArray bytes;
    QTextStream out(&bytes, QIODevice::WriteOnly);
    out << Declaration << "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">\n";
    if (shape == Shape::NamedTypes) {
        out << "<xs:complexType name=\"Measurement\">\n<xs:sequence>\n";
        declareValues(out, shape, 0, ValuesOfGroup);
        out << "</xs:sequence>\n</xs:complexType>\n";
    }
    const QLatin1String model(shape == Shape::Choice ? "xs:choice" : "xs:sequence");
    out << "<xs:element name=\"Survey\">\n<xs:complexType>\n<" << model << ">\n";
    if (isGrouped(shape)) {
        for (int group = 0; group < groupCount(elements); ++group) {
            declareGroup(out, shape, group);
        }
    } else {
        declareValues(out, shape, 0, elements);
    }
    out << "</" << model << ">\n</xs:complexType>\n</xs:element>\n</xs:schema>\n";
    out.flush();
    return bytes;
}

std::vector<ReportElement> reportElements(Shape shape, int elements)
{
    std::vector<ReportElement> report;
    const int values = isGrouped(shape) ? groupCount(elements) * ValuesOfGroup : elements;
    for (int i = 0; i < values; ++i) {
        if (isGrouped(shape) && i % ValuesOfGroup == 0) {
            report.push_back({stationName(i / ValuesOfGroup), QString()});
        }
        report.push_back({valueName(shape, i), kindAt(i).text});
    }
    return report;
}

QByteArray reportText(int bytes)
{
    QByteArray text;
    text.reserve(bytes + 1000);
    text += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Survey>\n";
    for (int group = 0; text.size() < bytes; ++group) {
        text += "    <Station Id=\"" + QByteArray::number(group) + "\" Site=\"Hill\">\n";
        for (const ValueKind& kind : valueKinds()) {
            const QByteArray name = kind.name.toUtf8();
            text += "        <" + name + " Unit=\"" + kind.type.toUtf8() + "\">" + kind.text.toHtmlEscaped().toUtf8()
                + "</" + name + ">\n";
        }
        text += "    </Station>\n";
    }
    return text + "</Survey>\n";
}
