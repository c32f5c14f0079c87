#include <QtTest>

#include <memory>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/vcreporting.h>

#include "examine.h"
#include "reading/doctorlimits.h"
#include "render/buttonrendering.h"
#include "render/jsonrendering.h"
#include "render/textrendering.h"

using namespace schemadoctor;

namespace {

/// A schema whose root "Report" holds what is declared, and the global attributes.
QString schemaOf(const QString& elements, const QString& globals = QString())
{
    return QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n%2<xs:element name='Report'>"
                          "<xs:complexType><xs:sequence>\n%1</xs:sequence></xs:complexType></xs:element>\n"
                          "</xs:schema>\n")
        .arg(elements, globals);
}

QString container(const QString& name, const QString& inside, const QString& attributes = QString())
{
    return QStringLiteral("<xs:element name='%1'><xs:complexType><xs:sequence>%2</xs:sequence>%3</xs:complexType>"
                          "</xs:element>\n")
        .arg(name, inside, attributes);
}

QString value(const QString& name, const QString& type)
{
    return QStringLiteral("<xs:element name='%1' type='xs:%2'/>\n").arg(name, type);
}

QString restricted(const QString& name, const QString& base, const QString& facets)
{
    return QStringLiteral("<xs:element name='%1'><xs:simpleType><xs:restriction base='xs:%2'>%3</xs:restriction>"
                          "</xs:simpleType></xs:element>\n")
        .arg(name, base, facets);
}

QString withAttributes(const QString& name, const QString& type, const QString& attributes)
{
    return QStringLiteral("<xs:element name='%1'><xs:complexType><xs:simpleContent><xs:extension base='xs:%2'>%3"
                          "</xs:extension></xs:simpleContent></xs:complexType></xs:element>\n")
        .arg(name, type, attributes);
}

QString attribute(const QString& name, const QString& type)
{
    return QStringLiteral("<xs:attribute name='%1' type='xs:%2'/>").arg(name, type);
}

const QString enumeratedUnit
    = QStringLiteral("<xs:attribute name='Unit'><xs:simpleType><xs:restriction base='xs:string'>"
                     "<xs:enumeration value='dBm'/><xs:enumeration value='dBV'/></xs:restriction></xs:simpleType>"
                     "</xs:attribute>\n");

/// The element below @p parent to which a path of names leads.
QDomElement elementAt(const QDomNode& parent, const QString& path)
{
    QDomNode node = parent;
    const QStringList names = path.mid(1).split(QLatin1Char('/'));
    for (const QString& name : names) {
        node = node.firstChildElement(name);
    }
    return node.toElement();
}

/// A schema, and the report button on it.
class Scene
{
public:
    explicit Scene(const QString& schema)
    {
        QFile file(SchemaFile());
        m_isReady = file.open(QIODevice::WriteOnly) && file.write(schema.toUtf8()) > 0
            && QDir().mkpath(m_folder.filePath(QStringLiteral("reports")));
        Begin();
    }

    QString SchemaFile() const { return m_folder.filePath(QStringLiteral("schema.xsd")); }
    Examination Examined() const { return m_isReady ? examine(SchemaFile(), false, true) : Examination(); }
    VCReporting& Button() { return *m_button; }

    /// Without items.
    void Begin()
    {
        m_button = std::make_unique<VCReporting>(SchemaFile(), m_folder.filePath(QStringLiteral("reports")), nullptr,
                                                 false, "Reporting", false, QPixmap());
    }

    void Add(const QString& name, const QString& text, const QString& unit = QString())
    {
        m_button->AddReportData(name, QString(), text, 1, QString(), 0, unit);
    }

    void AddOf(const QString& name, ItemKind kind, const QString& text)
    {
        if (kind == ItemKind::Truth) {
            m_button->AddExplicitReportData(name, text == QLatin1String("true"), 1, QString(), 0, QString());
        } else if (kind == ItemKind::Integer) {
            m_button->AddExplicitReportData(name, text.toLong(), 1, QString(), 0, QString());
        } else {
            Add(name, text);
        }
    }

    /// Presses the button.
    QDomElement Root()
    {
        QDir folder(m_folder.filePath(QStringLiteral("reports")));
        m_button->SlotToReport();
        const QStringList names = folder.entryList(QDir::Files);
        QFile file(folder.filePath(names.value(0)));
        m_report = QDomDocument();
        if (names.size() == 1 && file.open(QIODevice::ReadOnly)) {
            m_report.setContent(file.readAll());
        }
        file.remove();
        return m_report.documentElement();
    }

    QDomElement Element(const QString& path)
    {
        Root();
        return elementAt(m_report, path);
    }

private:
    Q_DISABLE_COPY(Scene)

    QTemporaryDir m_folder;
    bool m_isReady = false;
    std::unique_ptr<VCReporting> m_button;
    QDomDocument m_report;
};

/// What is registered, and what stands in the report when it is written as a value of the kind.
struct Offer
{
    ItemKind kind;
    QString text;
    QString written;
};

std::vector<Offer> offersOf(const QString& number, const QString& text)
{
    const QString whole = number.section(QLatin1Char('.'), 0, 0);
    const QString time = QStringLiteral("2026-05-06T07:08:09Z");
    const QString truth = QStringLiteral("true");
    return {{ItemKind::Number, number, number}, {ItemKind::WholeNumber, number, whole},
            {ItemKind::Text, text, text},       {ItemKind::Time, time, time},
            {ItemKind::Truth, truth, truth},    {ItemKind::Integer, whole, whole}};
}

/// A text includes that of a time, unless the texts are counted up.
bool isSaid(const ButtonFilling& filling, ItemKind kind, bool isEnumerated = false)
{
    return filling.kinds.testFlag(kind)
        || (kind == ItemKind::Time && filling.kinds.testFlag(ItemKind::Text) && !isEnumerated);
}

QStringList pathsOf(const Examination& examination, const char* rule)
{
    QStringList paths;
    for (const Finding& finding : examination.findings) {
        if (finding.rule == QLatin1String(rule)) {
            paths.append(finding.path);
        }
    }
    return paths;
}

const ButtonElement& viewOf(const Examination& examination, const QString& path)
{
    return examination.button.elements.at(std::size_t(findByPath(examination.tree, path)));
}

} // namespace

/// What the doctor says of the report button, beside what a real button writes.
class TestSchemaDoctorButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhichItemsFillAnElement_data();
    void tellsWhichItemsFillAnElement();
    void tellsWhichItemsFillAnAttribute_data();
    void tellsWhichItemsFillAnAttribute();
    void tellsWhatIsNeverFilled();
    void tellsThatAnIdleNumberIsWritten();
    void tellsThatAnAttributeTakesTheTurn();
    void tellsWhatTheTimeFills();
    void tellsOfUnitsOfANode();
    void tellsWhatAnItemReaches();
    void looksBehindWhatIsNeverFilled();
    void isSilentUnlessAsked();
    void tellsNothingOfTooMuch();
    void isWrittenAsTextAndJson();
};

void TestSchemaDoctorButton::tellsWhichItemsFillAnElement_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("kinds");
    const QString number = QStringLiteral("1.5");
    const QString text = QStringLiteral("some text");
    const auto row = [&](const char* type, const QStringList& kinds) {
        QTest::newRow(type) << value(QStringLiteral("A"), QLatin1String(type)) << number << text << kinds;
    };
    row("string", {QStringLiteral("number"), QStringLiteral("text")});
    row("double", {QStringLiteral("number")});
    row("integer", {QStringLiteral("whole-number"), QStringLiteral("integer")});
    row("int", {QStringLiteral("whole-number"), QStringLiteral("integer")});
    row("short",
        {QStringLiteral("whole-number"), QStringLiteral("text"), QStringLiteral("truth"), QStringLiteral("integer")});
    row("boolean", {QStringLiteral("truth")});
    row("dateTime", {QStringLiteral("time")});
    row("time", {});
    row("decimal", {});
    QTest::newRow("enumeration") << restricted(
        QStringLiteral("A"), QStringLiteral("string"),
        QStringLiteral("<xs:enumeration value='low'/><xs:enumeration value='high'/>"))
                                 << number << QStringLiteral("high") << QStringList {QStringLiteral("text")};
    QTest::newRow("bounds-of-numbers") << restricted(
        QStringLiteral("A"), QStringLiteral("double"),
        QStringLiteral("<xs:minInclusive value='10'/><xs:maxInclusive value='20'/>"))
                                       << QStringLiteral("15.5") << text << QStringList {QStringLiteral("number")};
    QTest::newRow("bounds-of-integers") << restricted(
        QStringLiteral("A"), QStringLiteral("integer"),
        QStringLiteral("<xs:minInclusive value='10'/><xs:maxInclusive value='20'/>"))
                                        << QStringLiteral("15.5") << text
                                        << QStringList {QStringLiteral("whole-number"), QStringLiteral("integer")};
}

void TestSchemaDoctorButton::tellsWhichItemsFillAnElement()
{
    QFETCH(QString, declaration);
    QFETCH(QString, number);
    QFETCH(QString, text);
    QFETCH(QStringList, kinds);
    const QString path = QStringLiteral("/Report/A");
    // The value that is set first of all is never truncated.
    Scene scene(schemaOf(value(QStringLiteral("First"), QStringLiteral("string")) + declaration));
    const Examination examination = scene.Examined();
    const ButtonFilling filling = viewOf(examination, path).value;
    const int index = findByPath(examination.tree, path);
    const bool isEnumerated = !examination.tree.elements.at(std::size_t(index)).enumeration.isEmpty();
    QCOMPARE(namesOf(filling.kinds), kinds);
    QCOMPARE(filling.item, QStringLiteral("A"));
    for (const Offer& offer : offersOf(number, text)) {
        scene.Begin();
        scene.Add(QStringLiteral("First"), QStringLiteral("first"));
        scene.AddOf(filling.item, offer.kind, offer.text);
        QCOMPARE(scene.Element(path).text() == offer.written, isSaid(filling, offer.kind, isEnumerated));
    }
}

void TestSchemaDoctorButton::tellsWhichItemsFillAnAttribute_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("isOfValue");
    QTest::addColumn<QStringList>("kinds");
    const auto row = [](const char* name, const char* type, bool isOfValue, const QStringList& kinds) {
        QTest::newRow(name) << QString::fromLatin1(type) << isOfValue << kinds;
    };
    row("text-of-a-value", "string", true, {QStringLiteral("number"), QStringLiteral("text")});
    row("number-of-a-value", "double", true, {QStringLiteral("number")});
    row("integer-of-a-value", "integer", true, {QStringLiteral("whole-number")});
    row("time-of-a-value", "dateTime", true, {QStringLiteral("time")});
    row("truth-of-a-value", "boolean", true, {});
    row("text-of-a-container", "string", false, {QStringLiteral("number"), QStringLiteral("text")});
    row("number-of-a-container", "double", false, {QStringLiteral("number")});
    row("integer-of-a-container", "integer", false, {});
    row("time-of-a-container", "dateTime", false, {QStringLiteral("time")});
    row("truth-of-a-container", "boolean", false, {});
}

void TestSchemaDoctorButton::tellsWhichItemsFillAnAttribute()
{
    QFETCH(QString, type);
    QFETCH(bool, isOfValue);
    QFETCH(QStringList, kinds);
    const QString path = QStringLiteral("/Report/A");
    const QString inside = value(QStringLiteral("Inside"), QStringLiteral("string"));
    const QString declared = attribute(QStringLiteral("Mark"), type);
    Scene scene(schemaOf(isOfValue ? withAttributes(QStringLiteral("A"), QStringLiteral("double"), declared)
                                   : container(QStringLiteral("A"), inside, declared)));
    const ButtonElement view = viewOf(scene.Examined(), path);
    const ButtonFilling& filling = view.attributes.at(0);
    QCOMPARE(namesOf(filling.kinds), kinds);
    for (const Offer& offer : offersOf(QStringLiteral("1.5"), QStringLiteral("some text"))) {
        scene.Begin();
        if (isOfValue) {
            scene.Add(view.value.item, QStringLiteral("2.5"));
        }
        scene.AddOf(filling.item, offer.kind, offer.text);
        QCOMPARE(scene.Element(path).attribute(QStringLiteral("Mark")) == offer.written, isSaid(filling, offer.kind));
    }
}

void TestSchemaDoctorButton::tellsWhatIsNeverFilled()
{
    const Scene scene(schemaOf(value(QStringLiteral("A"), QStringLiteral("time"))
                               + value(QStringLiteral("B"), QStringLiteral("decimal"))
                               + value(QStringLiteral("C"), QStringLiteral("string"))));
    const Examination examination = scene.Examined();
    QCOMPARE(viewOf(examination, QStringLiteral("/Report/A")).value.obstacle, Obstacle::NoOffer);
    QCOMPARE(viewOf(examination, QStringLiteral("/Report/B")).value.obstacle, Obstacle::NoSetter);
    // What no setter takes is told without the button.
    QCOMPARE(pathsOf(examination, "button-cannot-fill"), QStringList {QStringLiteral("/Report/A")});
    QCOMPARE(pathsOf(examination, "unfillable-element"), QStringList {QStringLiteral("/Report/B")});
}

void TestSchemaDoctorButton::tellsThatAnIdleNumberIsWritten()
{
    const QString path = QStringLiteral("/Report/A");
    Scene scene(schemaOf(container(QStringLiteral("A"), value(QStringLiteral("B"), QStringLiteral("string")),
                                   attribute(QStringLiteral("Rows"), QStringLiteral("integer")))));
    const Examination examination = scene.Examined();
    QCOMPARE(viewOf(examination, path).attributes.at(0).obstacle, Obstacle::IdleNumber);
    QCOMPARE(pathsOf(examination, "button-cannot-fill"), QStringList {path});
    scene.Add(QStringLiteral("Rows"), QStringLiteral("7"));
    QCOMPARE(scene.Element(path).attribute(QStringLiteral("Rows")), QStringLiteral("65535"));
}

void TestSchemaDoctorButton::tellsThatAnAttributeTakesTheTurn()
{
    const QString path = QStringLiteral("/Report/A");
    Scene scene(schemaOf(withAttributes(QStringLiteral("A"), QStringLiteral("double"),
                                        attribute(QStringLiteral("Mark"), QStringLiteral("string")))));
    QVERIFY(viewOf(scene.Examined(), path).attributes.at(0).isToFollow);
    scene.Add(QStringLiteral("A"), QStringLiteral("2.5"));
    scene.Add(QStringLiteral("Mark"), QStringLiteral("m"));
    QCOMPARE(scene.Element(path).text(), QStringLiteral("2.5"));
    scene.Begin();
    scene.Add(QStringLiteral("Mark"), QStringLiteral("m"));
    scene.Add(QStringLiteral("A"), QStringLiteral("2.5"));
    QCOMPARE(scene.Element(path).text(), QString());
}

void TestSchemaDoctorButton::tellsWhatTheTimeFills()
{
    const QString path = QStringLiteral("/Report/A");
    Scene scene(schemaOf(value(QStringLiteral("DateTime"), QStringLiteral("dateTime"))
                         + value(QStringLiteral("DFDateTime"), QStringLiteral("double"))
                         + value(QStringLiteral("Time"), QStringLiteral("dateTime"))
                         + container(QStringLiteral("A"), value(QStringLiteral("B"), QStringLiteral("string")),
                                     attribute(QStringLiteral("DFDateTime"), QStringLiteral("dateTime")))));
    const Examination examination = scene.Examined();
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    const auto isNow = [&](const QString& text) {
        const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
        return time.isValid() && time >= before;
    };
    scene.Add(QStringLiteral("Unrelated"), QStringLiteral("1"));
    const QDomElement root = scene.Root();
    QVERIFY(viewOf(examination, QStringLiteral("/Report/DateTime")).value.isStamped);
    QVERIFY(isNow(root.firstChildElement(QStringLiteral("DateTime")).text()));
    QVERIFY(!viewOf(examination, QStringLiteral("/Report/DFDateTime")).value.isStamped);
    QVERIFY(!isNow(root.firstChildElement(QStringLiteral("DFDateTime")).text()));
    QVERIFY(!viewOf(examination, QStringLiteral("/Report/Time")).value.isStamped);
    QVERIFY(!isNow(root.firstChildElement(QStringLiteral("Time")).text()));
    QVERIFY(viewOf(examination, path).attributes.at(0).isStamped);
    QVERIFY(isNow(root.firstChildElement(QStringLiteral("A")).attribute(QStringLiteral("DFDateTime"))));
}

void TestSchemaDoctorButton::tellsOfUnitsOfANode()
{
    const QString path = QStringLiteral("/Report/Level");
    Scene scene(schemaOf(
        withAttributes(QStringLiteral("Level"), QStringLiteral("string"), QStringLiteral("<xs:attribute ref='Unit'/>")),
        enumeratedUnit));
    const Examination examination = scene.Examined();
    const DeclaredAttribute& unit
        = examination.tree.elements.at(std::size_t(findByPath(examination.tree, path))).attributes.at(0);
    QVERIFY(viewOf(examination, path).attributes.at(0).isUnit);
    QCOMPARE(pathsOf(examination, "button-unit-of-node"), QStringList {path});
    scene.Add(QStringLiteral("Level"), QStringLiteral("3"), QStringLiteral("dBV"));
    QCOMPARE(scene.Element(path).attribute(QStringLiteral("Unit")), QStringLiteral("dBV"));

    const Tree tree;
    auto* const receiver = new Node(QStringLiteral("Receiver"), tree.GetRoot());
    new ValueItem(new ValueText(QStringLiteral("Level"), QStringLiteral("4")), receiver);
    scene.Begin();
    scene.Button().AddReportData(receiver);
    QCOMPARE(scene.Element(path).text(), QStringLiteral("4"));
    QCOMPARE(scene.Element(path).attribute(QStringLiteral("Unit")), unit.type);
    QVERIFY(!unit.enumeration.contains(unit.type));
}

void TestSchemaDoctorButton::tellsWhatAnItemReaches()
{
    const QString inside = value(QStringLiteral("X"), QStringLiteral("string"));
    Scene scene(schemaOf(value(QStringLiteral("Alone"), QStringLiteral("string"))
                         + container(QStringLiteral("A"), inside) + container(QStringLiteral("B"), inside)
                         + container(QStringLiteral("C"), container(QStringLiteral("B"), inside))));
    const Examination examination = scene.Examined();
    const auto itemAt = [&](const char* path) { return viewOf(examination, QLatin1String(path)).value; };
    QCOMPARE(itemAt("/Report/Alone").item, QStringLiteral("Alone"));
    QCOMPARE(itemAt("/Report/A/X").item, QStringLiteral("A/X"));
    QCOMPARE(itemAt("/Report/A/X").others, 0);
    QCOMPARE(itemAt("/Report/B/X").item, QStringLiteral("B/X"));
    QCOMPARE(itemAt("/Report/B/X").others, 1);
    QCOMPARE(pathsOf(examination, "button-shared-item"), QStringList {QStringLiteral("/Report/B/X")});

    scene.Add(QStringLiteral("A/X"), QStringLiteral("a"));
    scene.Add(QStringLiteral("B/X"), QStringLiteral("b"));
    const QDomElement root = scene.Root();
    QCOMPARE(elementAt(root, QStringLiteral("/A/X")).text(), QStringLiteral("a"));
    QCOMPARE(elementAt(root, QStringLiteral("/B/X")).text(), QStringLiteral("b"));
    QCOMPARE(elementAt(root, QStringLiteral("/C/B/X")).text(), QStringLiteral("b"));
}

/// An optional container goes with a first value that is never filled; what is in it is told all the same.
void TestSchemaDoctorButton::looksBehindWhatIsNeverFilled()
{
    const QString inside = value(QStringLiteral("Clock"), QStringLiteral("time"))
        + value(QStringLiteral("Level"), QStringLiteral("double"));
    QString optional = container(QStringLiteral("A"), inside);
    optional.replace(QLatin1String("name='A'"), QLatin1String("name='A' minOccurs='0'"));
    const Scene scene(schemaOf(optional + value(QStringLiteral("Last"), QStringLiteral("string"))));
    const Examination examination = scene.Examined();
    QCOMPARE(viewOf(examination, QStringLiteral("/Report/A/Level")).value.kinds, ItemKinds(ItemKind::Number));
    QVERIFY(viewOf(examination, QStringLiteral("/Report/Last")).value.IsFilled());
}

void TestSchemaDoctorButton::isSilentUnlessAsked()
{
    const Scene scene(schemaOf(value(QStringLiteral("A"), QStringLiteral("time"))));
    const Examination examination = examine(scene.SchemaFile(), false);
    QVERIFY(examination.button.elements.empty());
    QVERIFY(examination.findings.isEmpty());
    QCOMPARE(buttonText(examination), QString());
    QVERIFY(buttonJson(examination).isNull());
}

void TestSchemaDoctorButton::tellsNothingOfTooMuch()
{
    QString many;
    for (int i = 0; i <= MaxProofElements; ++i) {
        many += value(QStringLiteral("E%1").arg(i), QStringLiteral("time"));
    }
    const Scene scene(schemaOf(many));
    const Examination examination = scene.Examined();
    QVERIFY(int(examination.tree.elements.size()) > MaxProofElements);
    QVERIFY(examination.button.elements.empty());
    QVERIFY(buttonText(examination).contains(QStringLiteral("was not tried")));
}

void TestSchemaDoctorButton::isWrittenAsTextAndJson()
{
    const Scene scene(schemaOf(value(QStringLiteral("A"), QStringLiteral("time"))
                               + value(QStringLiteral("B"), QStringLiteral("integer"))));
    const Examination examination = scene.Examined();
    QVERIFY(textOf(examination)
                .contains(QStringLiteral("As the report button fills it\n  Report: container\n"
                                         "    A: never: the button offers no value of its kind\n"
                                         "    B: item 'B' with a number without its fraction, an explicit long\n")));
    const QJsonArray all
        = QJsonDocument::fromJson(jsonOf(examination)).object().value(QStringLiteral("button")).toArray();
    QCOMPARE(all.size(), 3);
    QVERIFY(all.at(0).toObject().value(QStringLiteral("value")).isNull());
    const QJsonObject clock = all.at(1).toObject().value(QStringLiteral("value")).toObject();
    QCOMPARE(clock.value(QStringLiteral("obstacle")).toString(), QStringLiteral("no-offer"));
    const QJsonObject number = all.at(2).toObject().value(QStringLiteral("value")).toObject();
    QCOMPARE(number.value(QStringLiteral("item")).toString(), QStringLiteral("B"));
    QCOMPARE(number.value(QStringLiteral("takes")).toArray(),
             QJsonArray({QStringLiteral("whole-number"), QStringLiteral("integer")}));
}

QTEST_MAIN(TestSchemaDoctorButton)

#include "tst_schemadoctor_button.moc"
