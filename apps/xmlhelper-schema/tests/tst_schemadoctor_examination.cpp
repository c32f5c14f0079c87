#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <xmlhelper/xmlhelper.h>

#include "examine.h"
#include "fill/dryrun.h"
#include "mend/mend.h"
#include "reading/doctorlimits.h"
#include "reading/skeletonbuilder.h"
#include "render/jsonrendering.h"
#include "render/textrendering.h"

QT_WARNING_DISABLE_DEPRECATED

using namespace schemadoctor;

namespace {

const char Head[] = "<?xml version='1.0' encoding='UTF-8'?>\n<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n";

const char Optional[] = "minOccurs='0'";

const char* const AllTags[]
    = {"all",       "annotation",     "any",          "anyAttribute",  "appinfo",     "attribute",    "attributeGroup",
       "choice",    "complexContent", "complexType",  "documentation", "element",     "enumeration",  "extension",
       "field",     "fractionDigits", "group",        "import",        "include",     "key",          "keyref",
       "length",    "list",           "maxExclusive", "maxInclusive",  "maxLength",   "minExclusive", "minInclusive",
       "minLength", "notation",       "pattern",      "redefine",      "restriction", "schema",       "selector",
       "sequence",  "simpleContent",  "simpleType",   "totalDigits",   "union",       "unique",       "whiteSpace"};

QByteArray value(const QByteArray& name, const QByteArray& occurs = QByteArray())
{
    return "<xs:element name='" + name + "' type='xs:double' " + occurs + "/>";
}

QByteArray container(const QByteArray& name, const QByteArray& content, const QByteArray& occurs = QByteArray())
{
    return "<xs:element name='" + name + "' " + occurs + "><xs:complexType><xs:sequence>" + content
        + "</xs:sequence></xs:complexType></xs:element>";
}

QByteArray report(const QByteArray& content)
{
    return container("Report", content);
}

/// Fills the first element of a report by every setter, and finds out which of them is not refused.
class SetterProbe : public IXMLHelper
{
public:
    explicit SetterProbe(Setter setter)
        : m_setter(setter)
        , m_builder(this)
    {
    }

    bool IsTaken(const QString& schema, const QString& report)
    {
        m_builder.CreateXmlFromSchema(schema, report, false);
        return m_isCalled && !m_isRefused;
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ERROR && m_isCalling) {
            m_isRefused = true;
        } else if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN
                   && static_cast<ElemBeginEvent*>(event)->GetElementName() == QLatin1String("Value")) {
            m_isCalling = m_isCalled = true;
            call();
            m_isCalling = false;
        }
    }

private:
    void call()
    {
        switch (m_setter) {
        case Setter::Text:
            return m_builder.SetXmlValue(QStringLiteral("1"));
        case Setter::Floating:
            return m_builder.SetXmlValue(1.0);
        case Setter::Integer:
            return m_builder.SetXmlValue(1);
        case Setter::Truth:
            return m_builder.SetXmlValue(true);
        case Setter::DateTime:
            return m_builder.SetXmlValue(QDateTime::fromMSecsSinceEpoch(0));
        case Setter::Time:
            return m_builder.SetXmlValue(QTime(1, 2));
        }
    }

    const Setter m_setter;
    XmlCreateReport m_builder;
    bool m_isCalling = false;
    bool m_isCalled = false;
    bool m_isRefused = false;
};

/// Small schemas in which every name occurs once.
class RandomSchema
{
public:
    explicit RandomSchema(quint32 seed)
        : m_random(seed)
    {
    }

    QByteArray Body()
    {
        const QByteArray top = report(content(0));
        return m_types + top;
    }

private:
    bool isOneIn(int chances) { return m_random.bounded(chances) == 0; }

    QByteArray content(int level)
    {
        QByteArray all;
        for (int children = m_random.bounded(level == 0 ? 3 : 1, 5); children > 0; --children) {
            all += declaration(level + 1);
        }
        return all;
    }

    QByteArray declaration(int level)
    {
        const QByteArray name = "N" + QByteArray::number(++m_names);
        const QByteArray occurs = isOneIn(2) ? Optional : isOneIn(5) ? "maxOccurs='unbounded'" : "";
        if (level == 4 || isOneIn(2)) {
            return isOneIn(8) ? "<xs:element name='" + name + "' type='xs:decimal' " + occurs + "/>"
                              : value(name, occurs);
        }
        if (isOneIn(4)) {
            return "<xs:element name='" + name + "' " + occurs
                + "><xs:complexType><xs:attribute name='A' type='xs:string'/></xs:complexType></xs:element>";
        }
        if (isOneIn(5)) {
            const QByteArray inside = content(level);
            m_types
                += "<xs:complexType name='T" + name + "'><xs:sequence>" + inside + "</xs:sequence></xs:complexType>\n";
            return "<xs:element name='" + name + "' type='T" + name + "' " + occurs + "/>";
        }
        if (isOneIn(6)) {
            const QByteArray inside = content(level);
            return "<xs:element name='" + name + "' " + occurs + "><xs:complexType><xs:choice>" + inside
                + "</xs:choice></xs:complexType></xs:element>";
        }
        return container(name, content(level), occurs);
    }

    QRandomGenerator m_random;
    QByteArray m_types;
    int m_names = 0;
};

/// Fills every value that a double fits, but not those of some names.
class Filler : public IXMLHelper
{
public:
    explicit Filler(const QSet<QString>& unfilled)
        : m_unfilled(unfilled)
        , m_builder(this)
    {
    }

    /// The elements of the report.
    QSet<QString> NamesIn(const QString& schema, const QString& report)
    {
        m_builder.CreateXmlFromSchema(schema, report, false);
        static const QRegularExpression tag(QStringLiteral("<(\\w+)"));
        QFile device(report);
        QSet<QString> names;
        if (device.open(QIODevice::ReadOnly)) {
            auto tags = tag.globalMatch(QString::fromUtf8(device.readAll()));
            while (tags.hasNext()) {
                names.insert(tags.next().captured(1));
            }
        }
        return names;
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            auto* const begin = static_cast<ElemBeginEvent*>(event);
            if (begin->GetElementAttributes().value(QLatin1String("type")) == QLatin1String("double")
                && !m_unfilled.contains(begin->GetElementName())) {
                m_builder.SetXmlValue(1.0);
            }
        }
    }

private:
    const QSet<QString> m_unfilled;
    XmlCreateReport m_builder;
};

QSet<QString> namesBelow(const SkeletonTree& tree, int top)
{
    const SkeletonElement& element = tree.elements.at(std::size_t(top));
    QSet<QString> names {element.name};
    for (const int child : element.children) {
        names += namesBelow(tree, child);
    }
    return names;
}

} // namespace

class TestSchemaDoctorExamination : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheSettersThatTheBuilderTakes_data();
    void namesTheSettersThatTheBuilderTakes();
    void readsAnyTagAtTheTop_data();
    void readsAnyTagAtTheTop();
    void tellsOfAnElement();
    void tellsOfAnAttribute();
    void hasNoAttributeThatIsOnlyCalledLikeAnAnnotation();
    void tellsOfAReferenceByItsOwnOccurrence_data();
    void tellsOfAReferenceByItsOwnOccurrence();
    void placesTagsWhereTheyBegin_data();
    void placesTagsWhereTheyBegin();
    void placesWhatStandsBehindTagsOfAnEntityInTheFile();
    void tellsWhichCountsAreAccepted_data();
    void tellsWhichCountsAreAccepted();
    void tellsWhatBecomesOfUnfilledElements_data();
    void tellsWhatBecomesOfUnfilledElements();
    void saysWhatTheBuilderDoes_data();
    void saysWhatTheBuilderDoes();
    void tellsWhatIsAlwaysThere();
    void tellsOfFurtherCopies_data();
    void tellsOfFurtherCopies();
    void keepsInFurtherCopiesWhatTheBuilderKeeps();
    void claimsNothingThatWasNotTried();
    void claimsNothingOfCopiesThatWereNotTried();
    void tellsWhatIsNeverKept();
    void prunesWhatTheWalkPrunes();
    void findsElementsByTheirPaths();
    void tellsOfIncludedFiles();
    void readsAnIncludedFileUpToItsFault();
    void callsNoTypeMissingThatALimitKeptFromBeingRead();
    void saysWhenATypeMayBeInAFileThatCannotBeRead();
    void doesNotRefuseWhatTheLibraryReads();
    void ofAMissingFileIsUnreadable();
    void ofAMalformedFileIsUnreadable();
    void endsWithTheWorstFinding_data();
    void endsWithTheWorstFinding();
    void putsFindingsOfOneCauseTogether();
    void tellsOfANamespaceOnce_data();
    void tellsOfANamespaceOnce();
    void showsEachPairOfTreesOnce();
    void printsEveryElementAndFinding();
    void writesEveryElementAndFindingAsJson();
    void fillsAReport();
    void tellsOfRefusalsRetriesAndRemovals();
    void refusesALineThatIsNoValue();
    void tellsWhatAValidatorSaysOfAFilledReport();
    void hasNothingToSayAboutTheMeasurementPanel();

private:
    QString schema(const QByteArray& body);
    Examination examined(const QByteArray& body) { return examine(schema(body)); }
    QStringList dryRunOf(const QByteArray& body, const QByteArray& values, DryRunEnd expected);

    QTemporaryDir m_folder;
};

QString TestSchemaDoctorExamination::schema(const QByteArray& body)
{
    QFile file(m_folder.filePath(QStringLiteral("schema.xsd")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(Head + body + "\n</xs:schema>\n");
    }
    return file.fileName();
}

QStringList TestSchemaDoctorExamination::dryRunOf(const QByteArray& body, const QByteArray& values, DryRunEnd expected)
{
    QFile file(m_folder.filePath(QStringLiteral("values.txt")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(values);
        file.close();
    }
    QStringList lines;
    const DryRunEnd end = dryRun(schema(body), file.fileName(), [&lines](const QString& line) { lines.append(line); });
    return end == expected ? lines : QStringList {QStringLiteral("end %1").arg(int(end))} + lines;
}

void TestSchemaDoctorExamination::namesTheSettersThatTheBuilderTakes_data()
{
    QTest::addColumn<QString>("type");
    for (const char* const type :
         {"string", "double", "int", "integer", "short", "long", "boolean", "dateTime", "time", "decimal", "float",
          "date", "token", "normalizedString", "unsignedShort", "unsignedInt", "nonNegativeInteger", "anyURI"}) {
        QTest::newRow(type) << QString::fromLatin1(type);
    }
}

void TestSchemaDoctorExamination::namesTheSettersThatTheBuilderTakes()
{
    QFETCH(QString, type);
    const QString file = schema("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                "<xs:element name='Value' type='xs:"
                                + type.toLatin1() + "'/></xs:sequence></xs:complexType></xs:element>");
    for (const Setter setter :
         {Setter::Text, Setter::Floating, Setter::Integer, Setter::Truth, Setter::DateTime, Setter::Time}) {
        SetterProbe probe(setter);
        const bool isTaken = probe.IsTaken(file, m_folder.filePath(QStringLiteral("report.xml")));
        QVERIFY2(settersOfElement(type).testFlag(setter) == isTaken, qPrintable(QString::number(int(setter))));
    }
}

void TestSchemaDoctorExamination::readsAnyTagAtTheTop_data()
{
    QTest::addColumn<QByteArray>("tag");
    for (const char* const tag : AllTags) {
        QTest::newRow(tag) << QByteArray(tag);
    }
}

/// A file may begin with any tag: doctor and mender have an answer to it, and to any that stands in it.
void TestSchemaDoctorExamination::readsAnyTagAtTheTop()
{
    QFETCH(QByteArray, tag);
    const QByteArray attributes = " name='n' type='t' base='b' ref='r' value='v'";
    for (const char* const inner : AllTags) {
        const QString name = m_folder.filePath(QStringLiteral("top.xsd"));
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<xs:" + tag + " xmlns:xs='http://www.w3.org/2001/XMLSchema'" + attributes + "><xs:" + inner
                   + attributes + "/></xs:" + tag + ">");
        file.close();
        const Mending mending = mend(name); // It asks the doctor first.
        QVERIFY2(mending.refusal.isEmpty() != mending.text.isEmpty(), inner);
    }
}

void TestSchemaDoctorExamination::tellsOfAnElement()
{
    const Examination examination
        = examined("<xs:element name='Report'><xs:complexType><xs:choice>\n"
                   "<xs:element name='Mode' default='B' minOccurs='0' maxOccurs='3'>\n"
                   "<xs:simpleType><xs:restriction base='xs:string'><xs:enumeration value='A'/>"
                   "<xs:enumeration value='B'/><xs:maxLength value='1'/></xs:restriction>"
                   "</xs:simpleType></xs:element></xs:choice></xs:complexType></xs:element>");
    QCOMPARE(examination.count.elements, 2);
    QCOMPARE(int(examination.tree.elements.size()), 2);
    const SkeletonElement& mode = examination.tree.elements.at(1);
    QCOMPARE(mode.name, QStringLiteral("Mode"));
    QCOMPARE(mode.parent, 0);
    QCOMPARE(mode.type, QStringLiteral("string"));
    QCOMPARE(mode.defaultValue, QStringLiteral("B"));
    QCOMPARE(mode.enumeration, QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(mode.facets.size(), 1);
    QCOMPARE(mode.facets.first().name, QStringLiteral("maxLength"));
    QVERIFY(!mode.facets.first().isChecked);
    QCOMPARE(mode.minOccurs, 0);
    QCOMPARE(mode.maxOccurs, 3);
    QCOMPARE(mode.choiceGroup, 1);
    QCOMPARE(mode.choiceNumber, 0);
    QVERIFY(mode.isChoiceAlternative);
    QCOMPARE(mode.setters, Setters(Setter::Text));
    QCOMPARE(mode.place.line, 4);
}

void TestSchemaDoctorExamination::tellsOfAnAttribute()
{
    const Examination examination
        = examined("<xs:element name='Report'><xs:complexType><xs:attribute ref='Level'/>\n"
                   "<xs:attribute name='Site' type='xs:string'/></xs:complexType></xs:element>\n"
                   "<xs:attribute name='Level'><xs:simpleType><xs:restriction base='xs:integer'>"
                   "<xs:minInclusive value='1'/></xs:restriction></xs:simpleType></xs:attribute>");
    const QVector<DeclaredAttribute>& attributes = examination.tree.elements.at(0).attributes;
    QCOMPARE(attributes.size(), 2);
    QCOMPARE(attributes.at(0).name, QStringLiteral("Level"));
    QCOMPARE(attributes.at(0).type, QStringLiteral("integer"));
    QCOMPARE(attributes.at(0).facets.size(), 1);
    QCOMPARE(attributes.at(0).facets.first().value, QStringLiteral("1"));
    QCOMPARE(attributes.at(0).setters, Setters(Setter::Integer));
    QCOMPARE(attributes.at(1).type, QStringLiteral("xs:string"));
    QCOMPARE(attributes.at(1).place.line, 4);
}

void TestSchemaDoctorExamination::hasNoAttributeThatIsOnlyCalledLikeAnAnnotation()
{
    const Examination examination
        = examined("<xs:element name='Report'><xs:complexType><xs:sequence><xs:element name='Level' type='xs:double'/>"
                   "<xs:element name='Site'><xs:complexType><xs:attribute name='type' type='xs:string'/>"
                   "</xs:complexType></xs:element></xs:sequence></xs:complexType></xs:element>");
    QCOMPARE(examination.tree.elements.at(1).attributes.size(), 0);
    QCOMPARE(examination.tree.elements.at(1).type, QStringLiteral("double"));
    QCOMPARE(examination.tree.elements.at(2).attributes.size(), 1);
    QCOMPARE(examination.tree.elements.at(2).type, QStringLiteral("xs:string"));
}

void TestSchemaDoctorExamination::tellsOfAReferenceByItsOwnOccurrence_data()
{
    QTest::addColumn<bool>("isDeclaredLater");
    QTest::newRow("earlier-global") << false;
    QTest::newRow("later-global") << true;
}

void TestSchemaDoctorExamination::tellsOfAReferenceByItsOwnOccurrence()
{
    QFETCH(bool, isDeclaredLater);
    const QByteArray global = "<xs:element name='Level' type='xs:double'/>\n";
    const QByteArray root = "<xs:element name='Report'><xs:complexType><xs:choice>\n"
                            "<xs:element ref='Level' minOccurs='0' maxOccurs='7'/>\n"
                            "</xs:choice></xs:complexType></xs:element>\n";
    const Examination examination = examined(isDeclaredLater ? root + global : global + root);
    const SkeletonElement& level = examination.tree.elements.at(1);
    QCOMPARE(wordsForOccurs(level), QStringLiteral("0..7"));
    QCOMPARE(level.choiceGroup, 1);
    QCOMPARE(level.place.line, isDeclaredLater ? 6 : 3);
    QCOMPARE(level.particle.line, isDeclaredLater ? 4 : 5);
}

void TestSchemaDoctorExamination::placesTagsWhereTheyBegin_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<int>("line");
    QTest::newRow("tag-of-several-lines") << QByteArray() << 3;
    QTest::newRow("behind-another") << QByteArray("<xs:annotation\nid='a'\n/>\n") << 6;
    QTest::newRow("behind-text-like-a-tag")
        << QByteArray("<!-- <xs:element\n--><xs:annotation><xs:appinfo><![CDATA[<a>\n]]></xs:appinfo>"
                      "</xs:annotation><?go <b>?>\n")
        << 6;
}

void TestSchemaDoctorExamination::placesTagsWhereTheyBegin()
{
    QFETCH(QByteArray, before);
    QFETCH(int, line);
    const Examination examination = examined(before
                                             + "<xs:element\n  name='Report'\n  nillable='true'\n>\n<xs:complexType>\n"
                                               "<xs:attribute\nname='Site'\ntype='xs:string'/></xs:complexType>"
                                               "</xs:element>");
    QCOMPARE(examination.tree.elements.at(0).place.line, line);
    QCOMPARE(examination.tree.elements.at(0).attributes.at(0).place.line, line + 5);
    const auto nillable = std::find_if(examination.findings.begin(), examination.findings.end(),
                                       [](const Finding& one) { return one.rule == QLatin1String("nillable"); });
    QVERIFY(nillable != examination.findings.end());
    QCOMPARE(nillable->place.line, line);
}

/// The library reads them, and the text does not show them: what follows has no line, rather than a wrong one, but
/// never no file. Neither have the faults of an entity, in which libxml2 counts lines on their own.
void TestSchemaDoctorExamination::placesWhatStandsBehindTagsOfAnEntityInTheFile()
{
    QFile file(m_folder.filePath(QStringLiteral("schema.xsd")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<!DOCTYPE xs:schema [<!ENTITY level \"<xs:element name='Level' type='xs:double'/>\">]>\n"
               "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n"
               "<xs:element name='Report'><xs:complexType>&level;<xs:element name='Cost' type='xs:decimal'/>"
               "<xs:attribute name='Site' type='xs:string'/></xs:complexType></xs:element></xs:schema>");
    file.close();
    const Examination examination = examine(file.fileName());
    QCOMPARE(int(examination.tree.elements.size()), 3);
    QCOMPARE(examination.tree.elements.at(0).place.line, 3);
    QCOMPARE(examination.tree.elements.at(1).name, QStringLiteral("Level"));
    for (const Place& place : {examination.tree.elements.at(2).place, examination.tree.elements.at(2).particle}) {
        QCOMPARE(place.line, 0);
        QCOMPARE(place.file, file.fileName());
    }
    for (const SkeletonElement& element : examination.tree.elements) {
        for (const DeclaredAttribute& attribute : element.attributes) {
            QCOMPARE(attribute.place.file, file.fileName());
        }
    }
    QStringList rules;
    for (const Finding& finding : examination.findings) {
        QCOMPARE(finding.place.file, file.fileName());
        rules.append(finding.rule);
    }
    QVERIFY(rules.contains(QStringLiteral("unfillable-element")));
    QVERIFY(rules.contains(QStringLiteral("invalid-schema")));
    const QString text = textOf(examination);
    QVERIFY2(text.contains(QStringLiteral("no setter  [schema.xsd]\n")), qPrintable(text));
    QVERIFY2(!text.contains(QRegularExpression(QStringLiteral("^:"), QRegularExpression::MultilineOption)),
             qPrintable(text));
}

void TestSchemaDoctorExamination::tellsWhichCountsAreAccepted_data()
{
    QTest::addColumn<QByteArray>("occurs");
    QTest::addColumn<QString>("words");
    QTest::newRow("required-without-maximum") << QByteArray() << QStringLiteral("no count");
    QTest::newRow("required-with-maximum") << QByteArray("maxOccurs='5'") << QStringLiteral("1 to 5");
    QTest::newRow("required-unbounded") << QByteArray("maxOccurs='unbounded'") << QStringLiteral("1 or more");
    QTest::newRow("optional-without-maximum") << QByteArray("minOccurs='0'") << QStringLiteral("0 only");
    QTest::newRow("optional-with-maximum-takes-a-hundred-times-as-many")
        << QByteArray("minOccurs='0' maxOccurs='3'") << QStringLiteral("0 to 300");
    QTest::newRow("optional-unbounded") << QByteArray("minOccurs='0' maxOccurs='unbounded'") << QStringLiteral("any");
}

void TestSchemaDoctorExamination::tellsWhichCountsAreAccepted()
{
    QFETCH(QByteArray, occurs);
    QFETCH(QString, words);
    const Examination examination = examined("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                             "<xs:element name='Value' type='xs:double' "
                                             + occurs + "/></xs:sequence></xs:complexType></xs:element>");
    QCOMPARE(wordsForCounts(examination.tree.elements.at(1)), words);
}

void TestSchemaDoctorExamination::tellsWhatBecomesOfUnfilledElements_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* rule, const QByteArray& content, const char* path, const char* words) {
        QTest::newRow(rule) << content << QString::fromLatin1(path) << QString::fromLatin1(words);
    };
    const QByteArray signal = container("Signal", value("Peak") + value("Width") + value("Offset", Optional), Optional);
    const QByteArray marker = "<xs:element name='Marker' minOccurs='0'><xs:complexType>"
                              "<xs:attribute name='Number' type='xs:integer'/></xs:complexType></xs:element>";
    row("mandatory-value", value("Level"), "/Report/Level", "stays");
    row("optional-value", value("Level", Optional), "/Report/Level", "is removed");
    row("mandatory-container", container("Signal", value("Peak")), "/Report/Signal", "stays");
    row("optional-container", signal, "/Report/Signal", "is removed when its first value is unfilled");
    row("first-value-of-an-optional-container", signal, "/Report/Signal/Peak",
        "is removed with the container around it");
    row("mandatory-value-behind-the-first", signal, "/Report/Signal/Width", "stays");
    row("optional-value-behind-the-first", signal, "/Report/Signal/Offset", "is removed");
    row("optional-container-first-in-another", container("Outer", signal, Optional), "/Report/Outer/Signal",
        "is removed with the container around it");
    row("optional-container-behind-the-first-value", container("Outer", value("First") + signal, Optional),
        "/Report/Outer/Signal", "is removed when its first value is unfilled");
    row("attributes-only", marker + value("Level"), "/Report/Marker", "stays, unless a value behind it is unfilled");
    row("attributes-only-with-nothing-behind", value("Level") + marker, "/Report/Marker", "stays");
    row("value-behind-attributes-only", marker + value("Level", Optional), "/Report/Level", "is removed");
    row("optional-container-behind-an-emptied-one", container("Device", marker) + signal, "/Report/Signal", "stays");
    row("its-first-value", container("Device", marker) + signal, "/Report/Signal/Peak", "stays");
    row("optional-value-behind-an-emptied-one", container("Device", marker) + value("Level", Optional), "/Report/Level",
        "stays");
    row("what-the-walk-does-not-come-to-then", container("Device", marker) + signal + value("Level", Optional),
        "/Report/Level", "is removed");
}

void TestSchemaDoctorExamination::tellsWhatBecomesOfUnfilledElements()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, path);
    QFETCH(QString, words);
    const SkeletonTree tree = examined(report(content)).tree;
    const int index = findByPath(tree, path);
    QVERIFY(index != SkeletonElement::None);
    QCOMPARE(wordsForUnfilled(tree.elements.at(std::size_t(index))), words);
}

void TestSchemaDoctorExamination::saysWhatTheBuilderDoes_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 25; ++seed) {
        QTest::newRow(qPrintable(QStringLiteral("schema-%1").arg(seed))) << seed;
    }
}

/// Of each element in turn nothing is filled, of the others everything that can be.
void TestSchemaDoctorExamination::saysWhatTheBuilderDoes()
{
    QFETCH(quint32, seed);
    const QString file = schema(RandomSchema(seed).Body());
    const Examination examination = examine(file);
    const SkeletonTree& tree = examination.tree;
    const QByteArray shown = textOf(examination).toUtf8();
    const QString written = m_folder.filePath(QStringLiteral("report.xml"));
    QSet<QString> kept = Filler(QSet<QString>()).NamesIn(file, written);
    for (const SkeletonElement& element : tree.elements) {
        QVERIFY2(kept.contains(element.name) != element.isNeverKept,
                 (element.name.toUtf8() + '\n' + shown).constData());
    }
    for (int index = 1; index < int(tree.elements.size()); ++index) {
        const SkeletonElement& element = tree.elements.at(std::size_t(index));
        if (element.isNeverKept || element.fate == Fate::IsUnknown) {
            continue;
        }
        kept = Filler(namesBelow(tree, index)).NamesIn(file, written);
        const bool isToStay = element.fate == Fate::Stays || element.fate == Fate::IsRemovedWithAnother;
        QVERIFY2(kept.contains(element.name) == isToStay, (element.name.toUtf8() + '\n' + shown).constData());
    }
}

/// Nothing of it can be set, so nobody is told to. The builder is asked whether it stays.
void TestSchemaDoctorExamination::tellsWhatIsAlwaysThere()
{
    const auto empty = [](const QByteArray& name) {
        return "<xs:element name='" + name + "' minOccurs='0'><xs:complexType/></xs:element>\n";
    };
    const QString file = schema(report(empty("Removed") + value("Level") + empty("Kept")));
    const Examination examination = examine(file);
    QStringList effects;
    for (const Finding& finding : examination.findings) {
        QCOMPARE(finding.rule, QStringLiteral("optional-that-stays"));
        QVERIFY2(!finding.effect.contains(QLatin1String("ttribute")), qPrintable(finding.effect));
        QVERIFY2(!finding.remedy.contains(QLatin1String("ttribute")), qPrintable(finding.remedy));
        effects.append(finding.effect);
    }
    QCOMPARE(effects.size(), 2);
    QVERIFY2(effects.at(0).contains(QLatin1String("unless a value behind it is unfilled")), qPrintable(effects.at(0)));
    QVERIFY2(effects.at(1).endsWith(QLatin1String("to have it or not.")), qPrintable(effects.at(1)));

    const QString written = m_folder.filePath(QStringLiteral("report.xml"));
    const QSet<QString> unfilled = Filler({QStringLiteral("Level")}).NamesIn(file, written);
    QVERIFY(!unfilled.contains(QStringLiteral("Removed")));
    QVERIFY(unfilled.contains(QStringLiteral("Kept")));
    const QSet<QString> filled = Filler(QSet<QString>()).NamesIn(file, written);
    QVERIFY(filled.contains(QStringLiteral("Removed")));
    QVERIFY(filled.contains(QStringLiteral("Kept")));
}

void TestSchemaDoctorExamination::tellsOfFurtherCopies_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("counts");
    const auto row
        = [](const char* rule, const QByteArray& body, const char* path, const char* words, const char* counts) {
              QTest::newRow(rule) << body << QString::fromLatin1(path) << QString::fromLatin1(words)
                                  << QString::fromLatin1(counts);
          };
    const QByteArray often = "maxOccurs='unbounded'";
    const QByteArray signal
        = container("Signal", value("Peak") + value("Sample", "minOccurs='0' maxOccurs='unbounded'"), often);
    row("repeated-container", report(signal), "/Report/Signal", "stays", "1 or more");
    row("mandatory-value-of-a-repeated-container", report(signal), "/Report/Signal/Peak", "stays", "no count");
    row("optional-value-of-a-repeated-container", report(signal), "/Report/Signal/Sample",
        "is removed in the first copy only", "any in the first copy only");
    row("repeated-optional-value", report(value("Level", "minOccurs='0' maxOccurs='unbounded'")), "/Report/Level",
        "is removed", "any");
    row("repeated-element-of-a-named-type",
        "<xs:complexType name='SignalType'><xs:sequence>" + value("Peak", often) + value("Width", "minOccurs='0'")
            + "</xs:sequence></xs:complexType>" + report("<xs:element name='Signal' type='SignalType'/>"),
        "/Report/Signal/Peak", "stays", "no count");
    row("repeated-element-of-a-type-called-like-its-element",
        "<xs:complexType name='Signal'><xs:sequence>" + value("Peak", often) + "</xs:sequence></xs:complexType>"
            + report("<xs:element name='Signal' type='Signal'/>"),
        "/Report/Signal/Peak", "stays", "1 or more");
}

void TestSchemaDoctorExamination::tellsOfFurtherCopies()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, path);
    QFETCH(QString, words);
    QFETCH(QString, counts);
    const SkeletonTree tree = examined(body).tree;
    const int index = findByPath(tree, path);
    QVERIFY(index != SkeletonElement::None);
    QCOMPARE(wordsForUnfilled(tree.elements.at(std::size_t(index))), words);
    QCOMPARE(wordsForCounts(tree.elements.at(std::size_t(index))), counts);
}

/// The same with the builder itself: the optional value is left in the second of two copies.
void TestSchemaDoctorExamination::keepsInFurtherCopiesWhatTheBuilderKeeps()
{
    class Twice : public IXMLHelper
    {
    public:
        void XmlUpdate(XmlEvent* event) override
        {
            if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN
                && static_cast<ElemBeginEvent*>(event)->GetElementName() == QLatin1String("Signal")) {
                builder.SetElementMaxOccurs(QStringLiteral("Signal"), 2);
            }
        }
        XmlCreateReport builder {this};
    } twice;
    const QString file
        = schema(report(container("Signal", value("Peak") + value("Width", Optional), "maxOccurs='unbounded'")));
    const QString written = m_folder.filePath(QStringLiteral("report.xml"));
    QVERIFY(twice.builder.CreateXmlFromSchema(file, written, false));
    QDomDocument document;
    QFile device(written);
    QVERIFY(document.setContent(&device));
    const QDomElement first = document.documentElement().firstChildElement();
    QVERIFY(first.firstChildElement(QStringLiteral("Width")).isNull());
    QVERIFY(!first.nextSiblingElement().firstChildElement(QStringLiteral("Width")).isNull());
}

/// Thousands of declarations of one name, none of them optional, are more than a walk on trial may look at.
void TestSchemaDoctorExamination::claimsNothingThatWasNotTried()
{
    QByteArray content;
    for (int i = 0; i < 6000; ++i) {
        content += value("Level", "maxOccurs='" + QByteArray::number(1 + i % 7) + "'");
    }
    const SkeletonTree tree = examined(report(content)).tree;
    QCOMPARE(int(tree.elements.size()), 6001);
    QCOMPARE(wordsForUnfilled(tree.elements.at(1)), QStringLiteral("was not tried"));
    QCOMPARE(wordsForCounts(tree.elements.at(1)), QStringLiteral("not tried"));
}

/// As many elements are copied as are shown: not those of the innermost of many containers that are all repeated.
void TestSchemaDoctorExamination::claimsNothingOfCopiesThatWereNotTried()
{
    const int containers = 60;
    const int values = MaxShownElements / containers;
    QByteArray content;
    for (int i = 0; i < values; ++i) {
        content += value("Level", Optional);
    }
    for (int i = containers; i > 0; --i) {
        content = container("C" + QByteArray::number(i), content, "maxOccurs='unbounded'");
    }
    const SkeletonTree tree = examined(report(content)).tree;
    QCOMPARE(int(tree.elements.size()), 1 + containers + values);
    QCOMPARE(wordsForUnfilled(tree.elements.at(1)), QStringLiteral("stays"));
    QCOMPARE(wordsForUnfilled(tree.elements.back()),
             QStringLiteral("is removed in the first copy, the others were not tried"));
}

void TestSchemaDoctorExamination::tellsWhatIsNeverKept()
{
    const Examination examination
        = examined(report(container("Signal", "<xs:element name='Peak' type='xs:decimal'/>" + value("Width"), Optional)
                          + value("Level", Optional)));
    QVERIFY(!examination.tree.elements.at(0).isNeverKept);
    for (const int index : {1, 2, 3}) {
        QVERIFY2(examination.tree.elements.at(std::size_t(index)).isNeverKept, qPrintable(QString::number(index)));
    }
    QVERIFY(!examination.tree.elements.at(4).isNeverKept);
    QVERIFY(textOf(examination).contains(QLatin1String("removed from every report, with the container around it")));
}

/// An observer that fills nothing sees which elements are left.
void TestSchemaDoctorExamination::prunesWhatTheWalkPrunes()
{
    const QString file = QStringLiteral(PROJECT_FOLDER "/examples/measurementpanel/measurementreport.xsd");
    const QString report = m_folder.filePath(QStringLiteral("report.xml"));
    class Silent : public IXMLHelper
    {
    public:
        void XmlUpdate(XmlEvent*) override { }
    } silent;
    XmlCreateReport builder(&silent);
    QVERIFY(builder.CreateXmlFromSchema(file, report, false));
    QDomDocument document;
    QFile device(report);
    QVERIFY(document.setContent(&device));
    const Examination examination = examine(file);
    for (const SkeletonElement& element : examination.tree.elements) {
        const SkeletonElement* container = &element;
        bool isLeft = true;
        while (container->parent != SkeletonElement::None) {
            isLeft = isLeft && container->fate == Fate::Stays;
            container = &examination.tree.elements.at(std::size_t(container->parent));
        }
        if (element.name != QLatin1String("Name")) { // both of the mandatory and of an optional container
            QVERIFY2(document.elementsByTagName(element.name).isEmpty() != isLeft, qPrintable(element.name));
        }
    }
}

void TestSchemaDoctorExamination::findsElementsByTheirPaths()
{
    const Examination examination = examined("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                             "<xs:element name='Value' type='xs:double' minOccurs='3' maxOccurs='3'/>"
                                             "<xs:element name='Site' type='xs:string'/>"
                                             "</xs:sequence></xs:complexType></xs:element>");
    QSet<QString> paths;
    for (int index = 0; index < int(examination.tree.elements.size()); ++index) {
        const QString path = pathOf(examination.tree, index);
        QCOMPARE(findByPath(examination.tree, path), index);
        paths.insert(path);
    }
    QVERIFY(paths.contains(QStringLiteral("/Report/Value[3]")));
    QVERIFY(paths.contains(QStringLiteral("/Report/Site")));
    QCOMPARE(findByPath(examination.tree, QStringLiteral("/Report/Value[4]")), int(SkeletonElement::None));
    QCOMPARE(findByPath(examination.tree, QStringLiteral("/Other")), int(SkeletonElement::None));
    QCOMPARE(findByPath(examination.tree, QString()), int(SkeletonElement::None));
}

void TestSchemaDoctorExamination::tellsOfIncludedFiles()
{
    const Examination examination
        = examine(QStringLiteral(PROJECT_FOLDER "/examples/measurementpanel/measurementreport.xsd"));
    QCOMPARE(int(examination.includes.includes.size()), 1);
    const IncludedFile& types = examination.includes.includes.front();
    QCOMPARE(types.written, QStringLiteral("measurementtypes.xsd"));
    QCOMPARE(types.state, IncludeState::Read);
    QVERIFY(!types.isOutsideOfFolder);
    QCOMPARE(types.place.line, 7);
    QVERIFY(examination.texts.at(types.file).contains(QLatin1String("FrequencyInMHz")));
}

/// What stands in front of a fault is read, in the same line, too.
void TestSchemaDoctorExamination::readsAnIncludedFileUpToItsFault()
{
    QFile types(m_folder.filePath(QStringLiteral("types.xsd")));
    QVERIFY(types.open(QIODevice::WriteOnly));
    types.write("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:simpleType name='Site'>"
                "<xs:restriction base='xs:string'/></xs:simpleType><xs:oops></xs:schema>");
    types.close();
    const Examination examination
        = examined("<xs:include schemaLocation='types.xsd'/><xs:element name='Report' type='Site'/>");
    QCOMPARE(int(examination.tree.elements.size()), 1);
    QCOMPARE(examination.tree.elements.at(0).type, QStringLiteral("string"));
    QCOMPARE(examination.includes.includes.at(0).state, IncludeState::Malformed);
    const auto malformed
        = std::find_if(examination.findings.begin(), examination.findings.end(),
                       [](const Finding& finding) { return finding.rule == QLatin1String("malformed-include"); });
    QVERIFY(malformed != examination.findings.end());
    QCOMPARE(malformed->place.line, 1);
}

void TestSchemaDoctorExamination::callsNoTypeMissingThatALimitKeptFromBeingRead()
{
    const Examination examination
        = examined("<xs:element name='Report'><xs:complexType><xs:sequence><xs:element name='Site' type='Later'/>"
                   "<xs:element name='Value' type='xs:double' minOccurs='600000'/></xs:sequence></xs:complexType>"
                   "</xs:element><xs:simpleType name='Later'><xs:restriction base='xs:string'/></xs:simpleType>");
    QCOMPARE(examination.noTreeReason,
             QStringLiteral("The library gives the schema up: The schema lays out more than 500000 elements."));
    for (const Finding& finding : examination.findings) {
        QVERIFY(finding.rule != QLatin1String("missing-type"));
    }
}

void TestSchemaDoctorExamination::saysWhenATypeMayBeInAFileThatCannotBeRead()
{
    const QByteArray report = "<xs:element name='Report' type='Site'/>";
    const auto missingType = [](const Examination& examination) {
        const auto found
            = std::find_if(examination.findings.begin(), examination.findings.end(),
                           [](const Finding& finding) { return finding.rule == QLatin1String("missing-type"); });
        return found == examination.findings.end() ? QString() : found->what;
    };
    QCOMPARE(missingType(examined(report)),
             QStringLiteral("xs:element 'Report' refers to 'Site', which is defined nowhere."));
    QCOMPARE(missingType(examined("<xs:include schemaLocation='nowhere.xsd'/>" + report)),
             QStringLiteral("xs:element 'Report' refers to 'Site', which nothing defines that could be read."));
}

void TestSchemaDoctorExamination::doesNotRefuseWhatTheLibraryReads()
{
    const QByteArray body = "<xs:element name='Report'><xs:complexType><xs:sequence>"
                            "<xs:element name='Site' type='Later' minOccurs='3' maxOccurs='3'/>"
                            "<xs:element name='Value' type='xs:double' minOccurs='310000' maxOccurs='unbounded'/>"
                            "</xs:sequence></xs:complexType></xs:element><xs:complexType name='Later'><xs:sequence/>"
                            "</xs:complexType><xs:complexType name='Unused'><xs:sequence>"
                            "<xs:element name='Value' type='xs:double' minOccurs='295000'/></xs:sequence>"
                            "</xs:complexType>";
    const Examination examination = examined(body);
    QVERIFY(examination.tree.IsEmpty());
    QVERIFY(!examination.count.isBeyondLimit);
    QVERIFY2(examination.noTreeReason.startsWith(QLatin1String("Too much to be shown: ")),
             qPrintable(examination.noTreeReason));
    QVERIFY(textOf(examination).contains(examination.count.limit));
    for (const Finding& finding : examination.findings) {
        QVERIFY(finding.rule != QLatin1String("element-count") || finding.severity == Severity::Note);
    }
}

void TestSchemaDoctorExamination::ofAMissingFileIsUnreadable()
{
    const Examination examination = examine(m_folder.filePath(QStringLiteral("nowhere.xsd")));
    QVERIFY(!examination.IsReadable());
    QCOMPARE(exitStatusOf(examination), Unreadable);
    QVERIFY(textOf(examination).contains(examination.unreadableReason));
}

void TestSchemaDoctorExamination::ofAMalformedFileIsUnreadable()
{
    const Examination examination = examined("<xs:element name='Report'>");
    QVERIFY(!examination.IsReadable());
    QCOMPARE(exitStatusOf(examination), Unreadable);
}

void TestSchemaDoctorExamination::endsWithTheWorstFinding_data()
{
    QTest::addColumn<QVector<int>>("severities");
    QTest::addColumn<int>("status");
    QTest::newRow("nothing") << QVector<int>() << 0;
    QTest::newRow("notes-count-as-nothing") << QVector<int> {0} << 0;
    QTest::newRow("warnings") << QVector<int> {0, 1} << 1;
    QTest::newRow("errors-behind-warnings") << QVector<int> {1, 2, 0} << 2;
}

void TestSchemaDoctorExamination::endsWithTheWorstFinding()
{
    QFETCH(QVector<int>, severities);
    QFETCH(int, status);
    Examination examination;
    for (const int severity : severities) {
        examination.findings.append(Finding());
        examination.findings.last().severity = Severity(severity);
    }
    QCOMPARE(int(exitStatusOf(examination)), status);
}

/// What keeps the whole schema from being read comes first, whatever stands in front of it.
void TestSchemaDoctorExamination::putsFindingsOfOneCauseTogether()
{
    const Examination examination = examined("<xs:element name='Report'><xs:complexType><xs:sequence>\n"
                                             "<xs:element name='Note' nillable='true' type='xs:string'/>\n"
                                             "<xs:element name='Cost' type='st:Level'/>\n"
                                             "<xs:any/>\n"
                                             "<xs:element name='Size' type='st:Level'/>\n"
                                             "</xs:sequence></xs:complexType></xs:element>");
    const QVector<FindingGroup> groups = groupsOf(examination.findings);
    QCOMPARE(wordsFor(groups.constFirst()), QStringLiteral("the prefix 'st:': 3 findings"));
    QStringList causes;
    int count = 0;
    for (const FindingGroup& group : groups) {
        causes.append(group.cause);
        QCOMPARE(group.first, count);
        count += group.count;
    }
    QCOMPARE(count, int(examination.findings.size()));
    QCOMPARE(causes.removeDuplicates(), 0);
    QStringList rules;
    for (int index = 0; index < groups.constFirst().count; ++index) {
        rules.append(examination.findings.at(index).rule);
    }
    QCOMPARE(rules,
             (QStringList {QStringLiteral("prefixed-type"), QStringLiteral("prefixed-type"),
                           QStringLiteral("invalid-schema")}));
    QVERIFY(textOf(examination).contains(QStringLiteral("\nthe prefix 'st:': 3 findings\n")));
    QVERIFY(!textOf(examination).contains(QStringLiteral("any: 1 findings")));
}

void TestSchemaDoctorExamination::tellsOfANamespaceOnce_data()
{
    QTest::addColumn<QByteArray>("root");
    QTest::addColumn<QByteArray>("prefix");
    QTest::addColumn<QString>("cause");
    QTest::newRow("not-imported") << QByteArray("xmlns:st='urn:st'>") << QByteArray("st:")
                                  << QStringLiteral("the prefix 'st:'");
    QTest::newRow("imported-from-nowhere")
        << QByteArray("xmlns:st='urn:st'>\n<xs:import namespace='urn:st' schemaLocation='nowhere.xsd'/>")
        << QByteArray("st:") << QStringLiteral("the prefix 'st:'");
    QTest::newRow("default-namespace") << QByteArray("xmlns='urn:st'>") << QByteArray()
                                       << QStringLiteral("the namespace 'urn:st'");
    QTest::newRow("no-namespace") << QByteArray("targetNamespace='urn:st'>") << QByteArray()
                                  << QStringLiteral("target-namespace");
}

/// However often it is used: 150 times here.
void TestSchemaDoctorExamination::tellsOfANamespaceOnce()
{
    QFETCH(const QByteArray, root);
    QFETCH(const QByteArray, prefix);
    QFETCH(const QString, cause);
    QByteArray content = "\n\n";
    for (int i = 0; i < 150; ++i) {
        const QByteArray number = QByteArray::number(i);
        content += "<xs:element name='N" + number + "' type='" + prefix + "T" + QByteArray::number(i % 3) + "'/>\n";
    }
    QFile file(m_folder.filePath(QStringLiteral("schema.xsd")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' " + root + report(content) + "</xs:schema>");
    file.close();
    const Examination examination = examine(file.fileName());
    QVector<Finding> told;
    for (const Finding& finding : examination.findings) {
        if (finding.rule == QLatin1String("invalid-schema") && finding.place.line > 2) {
            told.append(finding);
        }
    }
    QCOMPARE(told.size(), 1);
    QCOMPARE(causeOf(told.first()), cause);
    QVERIFY2(told.first().what.contains(QLatin1String("149 other")), qPrintable(told.first().what));
}

void TestSchemaDoctorExamination::showsEachPairOfTreesOnce()
{
    const Examination examination = examined("<xs:complexType name='Signal'><xs:sequence>\n"
                                             "<xs:element name='Level' type='xs:double'/></xs:sequence>\n"
                                             "<xs:attribute name='First' type='xs:string'/>\n"
                                             "<xs:attribute name='Second' type='xs:string'/></xs:complexType>\n"
                                             "<xs:element name='Report'><xs:complexType><xs:sequence>"
                                             "<xs:element name='Signal' type='Signal'/>"
                                             "</xs:sequence></xs:complexType></xs:element>");
    QStringList trees;
    int findings = 0;
    for (const Finding& finding : examination.findings) {
        findings += finding.rule == QLatin1String("attributes-after-elements") ? 1 : 0;
        if (!finding.meantTree.isEmpty()) {
            trees.append(finding.meantTree + finding.laidOutTree);
        }
    }
    QCOMPARE(findings, 2);
    QVERIFY(!trees.isEmpty());
    QCOMPARE(trees.removeDuplicates(), 0);
}

void TestSchemaDoctorExamination::printsEveryElementAndFinding()
{
    const Examination examination = examined("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                             "<xs:element name='Cost' type='xs:decimal'/>"
                                             "<xs:group ref='Rest'/></xs:sequence></xs:complexType></xs:element>"
                                             "<xs:group name='Rest'><xs:sequence/></xs:group>");
    const QString text = textOf(examination);
    QVERIFY(text.contains(QLatin1String("Report: container")));
    QVERIFY(text.contains(QLatin1String("  Cost: decimal")));
    for (const Finding& finding : examination.findings) {
        QVERIFY(text.contains(finding.effect));
        QVERIFY(text.contains(finding.remedy));
        QVERIFY(text.contains(QLatin1Char('[') + finding.rule + QLatin1Char(']')));
    }
    QVERIFY(text.contains(QLatin1String("as it is laid out")));
}

void TestSchemaDoctorExamination::writesEveryElementAndFindingAsJson()
{
    const Examination examination = examined("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                             "<xs:element name='Cost' type='xs:decimal' maxOccurs='unbounded'/>"
                                             "</xs:sequence></xs:complexType></xs:element>");
    const QJsonObject object = QJsonDocument::fromJson(jsonOf(examination)).object();
    QCOMPARE(object[QStringLiteral("status")].toInt(), 2);
    QCOMPARE(object[QStringLiteral("count")][QStringLiteral("elements")].toInt(), 2);
    const QJsonArray elements = object[QStringLiteral("elements")].toArray();
    QCOMPARE(elements.size(), 2);
    QCOMPARE(elements.at(1)[QStringLiteral("name")].toString(), QStringLiteral("Cost"));
    QCOMPARE(elements.at(1)[QStringLiteral("maxOccurs")].toString(), QStringLiteral("unbounded"));
    QVERIFY(elements.at(0)[QStringLiteral("parent")].isNull());
    const QJsonArray findings = object[QStringLiteral("findings")].toArray();
    QCOMPARE(int(findings.size()), int(examination.findings.size()));
    QCOMPARE(findings.at(0)[QStringLiteral("rule")].toString(), QStringLiteral("unfillable-element"));
    QCOMPARE(findings.at(0)[QStringLiteral("path")].toString(), QStringLiteral("/Report/Cost"));
}

void TestSchemaDoctorExamination::fillsAReport()
{
    const QStringList lines = dryRunOf("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                       "<xs:element name='Level' type='xs:double'/>"
                                       "</xs:sequence></xs:complexType></xs:element>",
                                       "# a level\n\nLevel = 17.5\n", DryRunEnd::Complete);
    QCOMPARE(lines.mid(0, 3),
             QStringList({QStringLiteral("announced /Report"), QStringLiteral("announced /Report/Level type=double"),
                          QStringLiteral("  call SetXmlValue(double 17.5)")}));
    QVERIFY(lines.contains(QStringLiteral("    <Level>17.5</Level>")));
}

void TestSchemaDoctorExamination::tellsOfRefusalsRetriesAndRemovals()
{
    const QStringList lines = dryRunOf("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                       "<xs:element name='Cost' type='xs:decimal'/>"
                                       "<xs:element name='Site' type='xs:string' minOccurs='0'/>"
                                       "</xs:sequence></xs:complexType></xs:element>",
                                       "Cost=17.5\n", DryRunEnd::Incomplete);
    QVERIFY2(!lines.first().startsWith(QLatin1String("end")), qPrintable(lines.first()));
    const int call = int(lines.indexOf(QStringLiteral("  call SetXmlValue(double 17.5)")));
    QVERIFY(call > 0);
    QVERIFY(lines.at(call + 1).startsWith(QLatin1String("    refused: ")));
    QCOMPARE(lines.at(call + 2), QStringLiteral("  retry SetXmlValue(QString 17.5)"));
    QVERIFY(lines.at(call + 3).startsWith(QLatin1String("    refused: ")));
    QVERIFY(lines.contains(QStringLiteral("removed /Report/Site")));
    QVERIFY(lines.contains(
        QStringLiteral("complaint: /Report/Cost=17.5: its type, decimal, takes no floating-point number")));
}

void TestSchemaDoctorExamination::refusesALineThatIsNoValue()
{
    const QStringList lines
        = dryRunOf("<xs:element name='Report' type='xs:string'/>", "Level 17.5\n", DryRunEnd::NoValues);
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().contains(QLatin1String("values.txt:1:")));
}

void TestSchemaDoctorExamination::tellsWhatAValidatorSaysOfAFilledReport()
{
    const QStringList lines = dryRunOf("<xs:element name='Report'><xs:complexType><xs:sequence>"
                                       "<xs:choice><xs:element name='A' type='xs:string'/>"
                                       "<xs:element name='B' type='xs:string'/></xs:choice>"
                                       "<xs:choice><xs:element name='C' type='xs:string'/>"
                                       "<xs:element name='D' type='xs:string'/></xs:choice>"
                                       "</xs:sequence></xs:complexType></xs:element>",
                                       "A=1\n", DryRunEnd::Incomplete);
    QVERIFY2(lines.contains(QStringLiteral("complaint: /Report: Element 'Report': Missing child element(s). Expected "
                                           "is one of ( C, D )")),
             qPrintable(lines.join(QLatin1Char('\n'))));
}

void TestSchemaDoctorExamination::hasNothingToSayAboutTheMeasurementPanel()
{
    const Examination examination
        = examine(QStringLiteral(PROJECT_FOLDER "/examples/measurementpanel/measurementreport.xsd"));
    QVERIFY(examination.IsReadable());
    QVERIFY(!examination.tree.IsEmpty());
    // A value of its type may be anything, which the application sees to.
    for (const Finding& finding : examination.findings) {
        QVERIFY2(finding.rule == QLatin1String("any-value-type"), qPrintable(textOf(examination)));
    }
    QCOMPARE(int(exitStatusOf(examination)), int(NothingToSay));
}

QTEST_GUILESS_MAIN(TestSchemaDoctorExamination)
#include "tst_schemadoctor_examination.moc"
