#include "sampleexamination.h"

namespace schemadoctor {

namespace {

int append(SkeletonTree& tree, int parent, const QString& name, const QString& type, const Place& place)
{
    SkeletonElement element;
    element.name = name;
    element.type = type;
    element.place = place;
    element.parent = parent;
    const int index = int(tree.elements.size());
    if (parent != SkeletonElement::None) {
        std::vector<int>& siblings = tree.elements[std::size_t(parent)].children;
        element.row = int(siblings.size());
        siblings.push_back(index);
    }
    tree.elements.push_back(element);
    return index;
}

} // namespace

Examination sampleExamination(const QString& suffix)
{
    const auto text = [&suffix](const char* words) { return QString::fromLatin1(words) + suffix; };
    Examination examination;
    const QString top = text("/schemas/report.xsd");
    const QString types = text("/schemas/types.xsd");
    examination.file = top;
    examination.texts[top]
        = text("<xs:schema>\n  <xs:include schemaLocation=\"types.xsd\"/>\n  <xs:element name=\"Report\"/>\n"
               "  <xs:element name=\"Station\"/>\n  <xs:element name=\"Signal\"/>\n</xs:schema>");
    examination.texts[types] = text("<xs:schema>\n  <xs:element name=\"Level\"/>\n</xs:schema>");
    examination.includes.written = examination.includes.file = top;
    IncludedFile included;
    included.written = text("types.xsd");
    included.file = types;
    included.place = {top, 2};
    included.isOutsideOfFolder = true;
    examination.includes.includes.push_back(included);

    SkeletonTree& tree = examination.tree;
    const int root = append(tree, SkeletonElement::None, text("Report"), QString(), {top, 3});
    const int station = append(tree, root, text("Station"), QStringLiteral("string"), {top, 4});
    const int signal = append(tree, root, text("Signal"), QString(), {top, 5});
    const int level = append(tree, signal, text("Level"), QStringLiteral("double"), {types, 2});
    const int price = append(tree, signal, text("Price"), QStringLiteral("decimal"), {types, 2});
    const auto at = [&tree](int index) -> SkeletonElement& { return tree.elements[std::size_t(index)]; };
    at(station).setters = Setter::Text;
    at(station).enumeration = QStringList {text("Tower"), text("Mast")};
    at(station).defaultValue = text("Mast");
    at(station).isChoiceAlternative = true;
    at(station).choiceGroup = 1;
    at(signal).fate = Fate::IsRemovedWithItsValues;
    at(signal).minOccurs = 0;
    at(level).setters = Setter::Floating;
    at(level).facets
        = {{QStringLiteral("minInclusive"), text("0"), true}, {QStringLiteral("pattern"), text("[0-9]"), false}};
    at(level).maxOccurs = 5;
    at(level).counts.greatest = 5;
    DeclaredAttribute unit;
    unit.name = text("Unit");
    unit.type = text("xs:string");
    unit.enumeration = QStringList {text("dBm")};
    unit.setters = Setter::Text;
    unit.place = {types, 2};
    at(level).attributes = {unit};

    Finding error;
    error.severity = Severity::Error;
    error.rule = QStringLiteral("never-fillable");
    error.place = {types, 2};
    error.subject = text("Price");
    error.what = text("The type decimal can never be filled.");
    error.effect = text("The element stays empty.");
    error.remedy = text("xs:double");
    error.path = pathOf(tree, price);
    Finding warning;
    warning.severity = Severity::Warning;
    warning.rule = QStringLiteral("moved-siblings");
    warning.place = {top, 5};
    warning.what = text("Siblings move up.");
    warning.effect = text("They stand beside the container.");
    warning.remedy = text("Name the simple type.");
    warning.meantTree = text("Signal\n  Level");
    warning.laidOutTree = text("Signal\nLevel");
    Finding note;
    note.severity = Severity::Note;
    note.rule = QStringLiteral("outside");
    note.place = {top, 0};
    note.what = text("An include leads out of the folder.");
    note.effect = text("It is read.");
    note.remedy = text("Keep the files together.");
    examination.findings = {error, warning, note};
    examination.rootCandidates = {{text("Report"), false, true, {top, 3}}, {text("Code"), true, false, {top, 1}}};
    examination.count.elements = int(tree.elements.size());
    return examination;
}

Examination wideExamination(int elements)
{
    Examination examination;
    examination.file = QStringLiteral("wide.xsd");
    examination.texts[examination.file] = QStringLiteral("<xs:schema/>");
    examination.includes.file = examination.file;
    const int root = append(examination.tree, SkeletonElement::None, QStringLiteral("Report"), QString(), {});
    for (int i = 0; i < elements; ++i) {
        append(examination.tree, root, QStringLiteral("Level%1").arg(i), QStringLiteral("double"),
               {examination.file, 1});
    }
    examination.count.elements = elements + 1;
    return examination;
}

} // namespace schemadoctor
