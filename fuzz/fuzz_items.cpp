#include <cmath>
#include <memory>

#include <QDomDocument>
#include <QPixmap>
#include <QToolBar>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/reportdata.h>
#include <xmlhelper/vcreporting.h>

#include "fuzzing.h"
#include "fuzzinput.h"

// What clients are warned of goes on doing what it did.
QT_WARNING_DISABLE_DEPRECATED

// Each item is a name, a kind, and a text or a number; a press of the report button follows, and gives XML whatever
// they are.

namespace {

const char Schema[]
    = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:simpleType name='t'><xs:restriction base='xs:string'>"
      "<xs:enumeration value='a'/><xs:enumeration value='b'/></xs:restriction></xs:simpleType>"
      "<xs:element name='Report'><xs:complexType><xs:sequence><xs:element name='DateTime' type='xs:dateTime'/>"
      "<xs:element name='s' type='xs:string' minOccurs='0'/><xs:element name='i' type='xs:integer' minOccurs='0'/>"
      "<xs:element name='d' type='xs:double' maxOccurs='unbounded'/><xs:element name='b' type='xs:boolean'/>"
      "<xs:element name='h' type='xs:short' minOccurs='0' maxOccurs='4'/><xs:element name='t' type='t'/>"
      "<xs:element name='f'><xs:complexType><xs:simpleContent><xs:extension base='xs:double'>"
      "<xs:attribute name='Unit' type='xs:string'/><xs:attribute name='n' type='xs:integer'/>"
      "</xs:extension></xs:simpleContent></xs:complexType></xs:element>"
      "<xs:element name='g' minOccurs='0'><xs:complexType><xs:sequence><xs:element name='s' type='xs:string'/>"
      "<xs:element name='i' type='xs:int'/></xs:sequence><xs:attribute name='DateTime' type='xs:dateTime'/>"
      "</xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element></xs:schema>";

const char* const names[] = {"s", "i", "d", "b", "h", "t", "f", "g", "g/s", "g/i", "n", "Unit", "DateTime", "default"};
const double numbers[] = {0, 1, -1, 0.5, 150, 98.5e6, 65535, 1e12, 1e300, -2147483649.0, std::nan(""), INFINITY};

double factorOf(QChar prefix)
{
    const QString prefixes = QStringLiteral(" kKmMgG");
    static const double factors[] = {1, 1e3, 1e3, 1e6, 1e6, 1e9, 1e9};
    const auto index = prefixes.indexOf(prefix);
    return index < 0 ? 0.0 : factors[index];
}

/// What a selection reads as, told by its rules; @p untouched when its text is a frequency without a number.
double selectionNumber(double stored, const QString& text, double scale, double untouched)
{
    if (!text.contains(QLatin1String("Hz"))) {
        return stored / scale;
    }
    QString shown = text;
    shown.replace(text.right(2), QString());
    double factor = shown.isEmpty() ? 0.0 : factorOf(shown.back());
    if (factor != 0.0) {
        shown.replace(shown.right(1), QString());
    } else {
        factor = 1.0;
    }
    shown = shown.trimmed();
    bool isNumber = false;
    const double number = shown.toDouble(&isNumber) * factor;
    if (!isNumber) {
        return untouched;
    }
    return (QString::number(stored, 'g', 12).contains(shown) ? stored : number) / scale;
}

bool isSame(double one, double other)
{
    return one == other || (std::isnan(one) && std::isnan(other));
}

void checkSelection(const ReportData& item, double stored, const QString& text, int exponent)
{
    constexpr double untouched = -12345.0;
    double number = untouched;
    require(item.GetDataValue(number), "a selection has a number");
    require(isSame(number, selectionNumber(stored, text, std::pow(10.0, exponent), untouched)),
            "a selection reads as its text and number say");
    QString read;
    require(item.GetDataValue(read) && read == text, "a selection reads as its text");
}

void checkFixedText(const ReportData& item, const QString& text, int exponent)
{
    bool isNumber = false;
    const double expected = text.toDouble(&isNumber) / std::pow(10.0, exponent);
    double number = -1.0;
    require(item.GetDataValue(number) == isNumber && isSame(number, isNumber ? expected : -1.0),
            "a fixed text is read as the number it is");
    QString read = QStringLiteral("untouched");
    require(item.GetDataValue(read) == !text.isEmpty() && read == (text.isEmpty() ? QStringLiteral("untouched") : text),
            "a fixed text is read as it is");
    require(item.IsOpen() == !text.isEmpty(), "an item without a source is closed");
}

/// One for all inputs: making a widget takes longer than everything else.
VCReporting& reporting()
{
    static QToolBar toolBar;
    static auto* const widget = [] {
        writeScratchFile(QStringLiteral("schema.xsd"), Schema);
        return new VCReporting(scratchFile(QStringLiteral("schema.xsd")), scratchFile(QString()), &toolBar, true,
                               "ToReport", false, QPixmap());
    }();
    return *widget;
}

void addItem(FuzzInput& input, Tree& tree)
{
    const QString name = QString::fromLatin1(input.Of(names));
    const int kind = input.Choice(8);
    const double number = input.Of(numbers);
    const int exponent = input.Choice(9) - 4;
    const int maxOccurs = input.Choice(6);
    const QString unit = input.Choice(2) == 1 ? input.Line() : QString();
    const QString text = input.Line();
    const QString path = QStringLiteral("%1").arg(tree.GetRoot()->GetTreeItems().size());
    switch (kind) {
    case 0:
        return reporting().AddExplicitReportData(name, text, maxOccurs, QString(), exponent, unit);
    case 1:
        return reporting().AddExplicitReportData(name, number, maxOccurs, QString(), exponent, unit);
    case 2:
        return reporting().AddExplicitReportData(name, number > 0, maxOccurs, QString(), exponent, unit);
    case 3:
        return reporting().AddExplicitReportData(name, std::lround(std::fmin(number, 1e9)), maxOccurs, QString(),
                                                 exponent, unit);
    case 4: {
        auto* const selection = new ValueSelection(path);
        selection->AddChoice(number, text);
        new ValueItem(selection, tree.GetRoot());
        checkSelection(ReportData(name, path, unit, 1, QString(), exponent, unit, false), number, text, exponent);
        break;
    }
    case 5:
        new ValueItem(new ValueNumeric(path, number, unit), tree.GetRoot());
        break;
    case 6:
        new ValueItem(new ValueText(path, text), tree.GetRoot());
        break;
    default:
        checkFixedText(ReportData(name, QString(), text, 1, QString(), exponent, unit, false), text, exponent);
        return reporting().AddReportData(name, QString(), text, maxOccurs, QString(), exponent, unit);
    }
    reporting().AddReportData(name, path, text, maxOccurs, QString(), exponent, unit);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    Tree tree;
    for (int items = 0; items < 20 && !input.IsAtEnd(); ++items) {
        addItem(input, tree);
    }
    require(reporting().SlotToReport(), "a report is made of any items");
    readBack(scratchFile(QStringLiteral("2017-03-31_12-34-56-7.xml")), true);
    reporting().ClearReportData();
    return 0;
}
