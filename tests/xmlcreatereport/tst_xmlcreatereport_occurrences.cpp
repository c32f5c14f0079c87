#include <QtTest>

#include <functional>
#include <memory>
#include <vector>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <xmlhelper/xmlhelper.h>

#include "domtext.h"
#include "scriptedobserver.h"
#include "tracecollector.h"

using ErrorList = std::vector<int>;

Q_DECLARE_METATYPE(ErrorList)

class TestXmlCreateReportOccurrences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void multipliesWithinTheLimitsOfTheSchema_data();
    void multipliesWithinTheLimitsOfTheSchema();
    void putsDeepCopiesBehindTheElement();
    void announcesTheElementAgainAndThenTheCopies();
    void swallowsTheNameGivenLast_data();
    void swallowsTheNameGivenLast();
    void forgetsANameGivenBeforeTheReport();
    void asksForAnOwnerAboveTheElement_data();
    void asksForAnOwnerAboveTheElement();
    void takesTheLimitsOfTheNameForWhateverIsAnnounced();
    void acceptsTheRootWithoutCopyingIt();
    void multipliesFromInsideAnError();

    void discardsAlternatives_data();
    void discardsAlternatives();
    void guardsTheLastAlternativeByTheRemainderOfItsNumber_data();
    void guardsTheLastAlternativeByTheRemainderOfItsNumber();
    void refusesToDiscardAnElementTwice();
    void failedRemovalDoesNotCount();
    void discardsARootThatIsAnAlternative();
    void discardsFromInsideAnError();

    void refusesCopiesBeyondTheElementLimit();
    void endsWhenTwoItemsMultiplyEachOther();
};

namespace {

/// A schema of a root R made of @p elements, with other definitions before it.
QString schemaOf(const QString& elements, const QString& definitions = QString())
{
    return QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>%1<xs:element name='R'>"
                          "<xs:complexType><xs:sequence>%2</xs:sequence></xs:complexType></xs:element></xs:schema>")
        .arg(definitions, elements);
}

/// An element that holds a text.
QString textElement(const char* name, const QString& limits = QString())
{
    return QStringLiteral("<xs:element name='%1' type='xs:string' %2/>").arg(QLatin1String(name), limits);
}

QString container(const char* name, const QString& content, const QString& limits = QString())
{
    return QStringLiteral("<xs:element name='%1' %2><xs:complexType><xs:sequence>%3</xs:sequence></xs:complexType>"
                          "</xs:element>")
        .arg(QLatin1String(name), limits, content);
}

QString choice(const QString& alternatives)
{
    return QStringLiteral("<xs:choice>%1</xs:choice>").arg(alternatives);
}

/// Builds the report of a schema in a folder of its own.
template <class Observer> struct Building
{
    Building()
        : builder(&observer)
    {
    }

    bool Build(const QString& schema)
    {
        QFile file(directory.filePath(QStringLiteral("schema.xsd")));
        if (!file.open(QIODevice::WriteOnly)) {
            return false;
        }
        file.write(schema.toUtf8());
        file.close();
        return builder.CreateXmlFromSchema(file.fileName(), ReportPath(), false);
    }

    QString ReportPath() const { return directory.filePath(QStringLiteral("report.xml")); }

    QTemporaryDir directory;
    Observer observer;
    XmlCreateReport builder;
};

/// One with an observer that answers and records.
struct RecordedBuilding : Building<ScriptedObserver>
{
    bool Build(const QString& schema)
    {
        const bool isBuilt = Building::Build(schema);
        m_report = documentInFile(ReportPath());
        return isBuilt;
    }

    /// Multiplies and gives the errors that came of it.
    ErrorList Multiply(const char* name, int count)
    {
        return errorsOf([&] { builder.SetElementMaxOccurs(QLatin1String(name), count); });
    }

    /// Discards the current element and gives the errors that came of it.
    ErrorList Discard()
    {
        return errorsOf([&] { builder.DiscardChoiceItem(); });
    }

    void Fill(const QString& text = QStringLiteral("x")) { builder.SetXmlValue(text); }

    /// The root of the written report.
    QDomElement Root() const { return m_report.documentElement(); }

    /// The names of the root's children, as "name, name".
    QString Children() const
    {
        QStringList names;
        for (QDomElement child = Root().firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            names.append(child.tagName());
        }
        return names.join(QStringLiteral(", "));
    }

    /// What was announced, as "name, error 16, name".
    QString Log() const { return observer.Log().join(QStringLiteral(", ")); }

private:
    ErrorList errorsOf(const std::function<void()>& operation)
    {
        const auto before = static_cast<std::ptrdiff_t>(observer.Errors().size());
        operation();
        return ErrorList(observer.Errors().begin() + before, observer.Errors().end());
    }

    QDomDocument m_report;
};

/// An observer for documents that are too large to be recorded.
class CountingObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            ++announcements;
            answer(static_cast<ElemBeginEvent*>(event)->GetElementName());
        } else if (event->GetType() == XmlEvent::EVENT_ERROR) {
            ++errors;
        }
    }

    std::function<void(const QString& name)> answer;
    int announcements = 0;
    int errors = 0;
};

int elementsBelow(const QDomElement& top)
{
    int elements = 1;
    for (QDomElement child = top.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        elements += elementsBelow(child);
    }
    return elements;
}

const ErrorList None;
const ErrorList Once {IXMLHelper::MAX_OCCURS_EXCEEDED};
const ErrorList Twice {IXMLHelper::MAX_OCCURS_EXCEEDED, IXMLHelper::MAX_OCCURS_EXCEEDED};
const ErrorList General {IXMLHelper::GENERAL_ERROR};

} // namespace

void TestXmlCreateReportOccurrences::multipliesWithinTheLimitsOfTheSchema_data()
{
    QTest::addColumn<QString>("limits");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("elements");
    QTest::addColumn<ErrorList>("errors");
    const auto addRow = [](const char* rule, const char* limits, int count, int elements, const ErrorList& errors) {
        QTest::newRow(rule) << QString::fromUtf8(limits) << count << elements << errors;
    };

    addRow("maximum-is-allowed", "maxOccurs='3'", 3, 3, None);
    addRow("more-than-the-maximum-is-refused", "maxOccurs='3'", 4, 1, Once);
    addRow("one-makes-no-copy", "maxOccurs='3'", 1, 1, None);
    addRow("required-element-refuses-0", "maxOccurs='3'", 0, 1, Once);
    addRow("negative-count-is-always-allowed-and-makes-no-copy", "maxOccurs='3'", -7, 1, None);
    addRow("required-element-with-maximum-100-allows-0", "maxOccurs='100'", 0, 1, None);
    addRow("copies-come-on-top-of-those-that-minOccurs-has-laid-out", "minOccurs='2' maxOccurs='3'", 3, 4, None);

    addRow("optional-element-allows-a-hundred-times-its-maximum", "minOccurs='0' maxOccurs='3'", 250, 250, None);
    addRow("optional-element-allows-exactly-a-hundred-times-its-maximum", "minOccurs='0' maxOccurs='3'", 300, 300,
           None);
    addRow("optional-element-refuses-more-than-a-hundred-times-its-maximum", "minOccurs='0' maxOccurs='3'", 301, 1,
           Once);
    addRow("optional-element-allows-0-and-stays", "minOccurs='0' maxOccurs='3'", 0, 1, None);
    addRow("optional-element-without-maximum-refuses-1", "minOccurs='0'", 1, 1, Once);
    addRow("optional-element-without-maximum-allows-0", "minOccurs='0'", 0, 1, None);
    addRow("optional-element-without-maximum-allows-a-negative-count", "minOccurs='0'", -1, 1, None);

    addRow("unbounded-element-allows-many", "maxOccurs='unbounded'", 1000, 1000, None);
    addRow("unbounded-required-element-refuses-0", "maxOccurs='unbounded'", 0, 1, Once);
    addRow("optional-unbounded-element-allows-many", "minOccurs='0' maxOccurs='unbounded'", 1000, 1000, None);
    addRow("optional-unbounded-element-allows-0", "minOccurs='0' maxOccurs='unbounded'", 0, 1, None);
    addRow("codes-from-minus-199-to-minus-100-count-as-unbounded", "maxOccurs='-199'", 5, 5, None);
    addRow("code-of-minus-200-does-not-count-as-unbounded", "maxOccurs='-200'", 5, 1, Once);
    addRow("code-of-minus-99-does-not-count-as-unbounded", "maxOccurs='-99'", 5, 1, Once);

    addRow("element-without-limits-is-refused-twice", "", 1, 1, Twice);
    addRow("negative-count-of-an-element-without-limits-is-refused-twice", "", -1, 1, Twice);
    addRow("minimum-alone-is-no-limit-and-refused-twice", "minOccurs='2'", 2, 2, Twice);
    addRow("limit-that-is-no-number-is-0-and-refuses-1", "maxOccurs='many'", 1, 1, Once);
    addRow("limit-that-is-no-number-is-0-and-allows-0", "maxOccurs='many'", 0, 1, None);
}

void TestXmlCreateReportOccurrences::multipliesWithinTheLimitsOfTheSchema()
{
    QFETCH(QString, limits);
    QFETCH(int, count);
    QFETCH(int, elements);
    QFETCH(ErrorList, errors);
    RecordedBuilding building;
    ErrorList sent;
    bool isMultiplied = false;
    building.observer.OnElement(QStringLiteral("E"), [&](ElemBeginEvent&) {
        if (!isMultiplied) {
            isMultiplied = true;
            sent = building.Multiply("E", count);
            if (sent.empty()) {
                return; // It is announced again.
            }
        }
        building.Fill();
    });
    QVERIFY(building.Build(schemaOf(textElement("E", limits))));

    QVERIFY(sent == errors);
    const QDomNodeList found = building.Root().elementsByTagName(QStringLiteral("E"));
    QCOMPARE(found.count(), elements);
    for (int i = 0; i < elements; ++i) {
        QCOMPARE(domText(found.at(i)), QStringLiteral("<E>\n  \"x\"\n</E>\n"));
    }
}

void TestXmlCreateReportOccurrences::putsDeepCopiesBehindTheElement()
{
    RecordedBuilding building;
    building.observer.OnElement(QStringLiteral("E"),
                                [&](ElemBeginEvent&) { QVERIFY(building.Multiply("E", 3) == None); });
    const QString unit = QStringLiteral("<xs:attribute name='unit' type='xs:string'/>");
    QVERIFY(building.Build(schemaOf(textElement("A")
                                    + container("E", textElement("V") + unit, QStringLiteral("maxOccurs='3'"))
                                    + textElement("Z"))));
    QCOMPARE(building.Children(), QStringLiteral("A, E, E, E, Z"));
    for (QDomElement copy = building.Root().firstChildElement(QStringLiteral("E")); !copy.isNull();
         copy = copy.nextSiblingElement(QStringLiteral("E"))) {
        QCOMPARE(domText(copy), QStringLiteral("<E unit=\"xs:string\">\n  <V type=\"string\"/>\n</E>\n"));
    }
}

void TestXmlCreateReportOccurrences::announcesTheElementAgainAndThenTheCopies()
{
    RecordedBuilding building;
    int value = 0;
    building.observer.OnElement(QStringLiteral("E"), [&](ElemBeginEvent&) {
        QVERIFY(building.Multiply("E", 3) == None); // swallowed from the second announcement on
    });
    building.observer.OnElement(QStringLiteral("V"), [&](ElemBeginEvent&) { building.Fill(QString::number(++value)); });
    QVERIFY(
        building.Build(schemaOf(container("E", textElement("V"), QStringLiteral("maxOccurs='3'")) + textElement("Z"))));
    QCOMPARE(building.Log(),
             QStringLiteral("R, E, E, error 16, V, E, error 16, V, E, error 16, V, Z, error 15, error 16"));
    QCOMPARE(building.Root().text(), QStringLiteral("123"));
}

void TestXmlCreateReportOccurrences::swallowsTheNameGivenLast_data()
{
    using Calls = QStringList;
    QTest::addColumn<Calls>("calls"); // "name count"
    QTest::addColumn<ErrorList>("errors");
    QTest::addColumn<QString>("children");

    QTest::newRow("second-call-for-a-name-does-nothing")
        << Calls {QStringLiteral("E 2"), QStringLiteral("E 3")} << None << "E, E";
    QTest::newRow("refused-name-is-not-tried-again")
        << Calls {QStringLiteral("E 9"), QStringLiteral("E 2")} << Once << "E";
    QTest::newRow("another-name-between-lets-a-name-in-again")
        << Calls {QStringLiteral("E 9"), QStringLiteral("unknown 1"), QStringLiteral("E 2")}
        << ErrorList(3, IXMLHelper::MAX_OCCURS_EXCEEDED) << "E, E";
    QTest::newRow("names-differ-in-case") << Calls {QStringLiteral("e 2"), QStringLiteral("E 2")} << Twice << "E, E";
    QTest::newRow("name-that-is-not-limited-is-refused-twice") << Calls {QStringLiteral("unknown 1")} << Twice << "E";
    QTest::newRow("empty-name-is-swallowed-at-first") << Calls {QStringLiteral(" 2")} << None << "E";
    QTest::newRow("empty-name-behind-another-is-refused-twice")
        << Calls {QStringLiteral("E 2"), QStringLiteral(" 2")} << Twice << "E, E";
}

void TestXmlCreateReportOccurrences::swallowsTheNameGivenLast()
{
    QFETCH(QStringList, calls);
    QFETCH(ErrorList, errors);
    QFETCH(QString, children);
    RecordedBuilding building;
    ErrorList sent;
    bool isFirst = true;
    building.observer.OnElement(QStringLiteral("E"), [&](ElemBeginEvent&) {
        for (const QString& call : isFirst ? calls : QStringList()) {
            const QStringList parts = call.split(QLatin1Char(' '));
            const ErrorList more = building.Multiply(qPrintable(parts[0]), parts[1].toInt());
            sent.insert(sent.end(), more.begin(), more.end());
        }
        isFirst = false;
    });
    QVERIFY(building.Build(schemaOf(textElement("E", QStringLiteral("maxOccurs='3'")))));
    QVERIFY(sent == errors);
    QCOMPARE(building.Children(), children);
}

void TestXmlCreateReportOccurrences::forgetsANameGivenBeforeTheReport()
{
    RecordedBuilding building;
    QVERIFY(building.Multiply("E", 2) == None); // does nothing without a current element
    building.observer.OnElement(QStringLiteral("E"),
                                [&](ElemBeginEvent&) { QVERIFY(building.Multiply("E", 2) == None); });
    QVERIFY(building.Build(schemaOf(textElement("E", QStringLiteral("maxOccurs='3'")))));
    QCOMPARE(building.Children(), QStringLiteral("E, E"));
}

void TestXmlCreateReportOccurrences::asksForAnOwnerAboveTheElement_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("refusals"); // at the first E of each container

    const auto definition
        = [](const char* name, const QString& limits) { return container(name, textElement("E", limits)); };
    const auto type = [](const char* name) {
        return QStringLiteral("<xs:complexType name='%1'>%2</xs:complexType>")
            .arg(QLatin1String(name), textElement("E", QStringLiteral("maxOccurs='3'")));
    };
    const auto reference = [](const char* name, const QString& limits = QString()) {
        return QStringLiteral("<xs:element ref='%1' %2/>").arg(QLatin1String(name), limits);
    };
    const QString max3 = QStringLiteral("maxOccurs='3'");
    const QString max5 = QStringLiteral("maxOccurs='5'");
    const QString accepted = QStringLiteral("0");
    const QString refused = QStringLiteral("1");

    QTest::newRow("below-the-owner") << schemaOf(definition("A", max3)) << 2 << QStringList {accepted};
    QTest::newRow("below-the-first-owner-of-the-name-only")
        << schemaOf(reference("A", QStringLiteral("minOccurs='2'")), definition("A", max3)) << 2
        << QStringList {accepted, refused};
    QTest::newRow("below-any-of-several-owners")
        << schemaOf(reference("A") + reference("B"), definition("A", max3) + definition("B", max3)) << 2
        << QStringList {accepted, accepted};
    QTest::newRow("below-an-owner-whose-limit-allows-the-count")
        << schemaOf(reference("A") + reference("B"), definition("A", max3) + definition("B", max5)) << 4
        << QStringList {refused, accepted};
    QTest::newRow("member-of-a-named-type-is-refused-since-no-element-has-the-name-of-the-type")
        << schemaOf(QStringLiteral("<xs:element name='A' type='T'/>"), type("T")) << 2 << QStringList {refused};
    QTest::newRow("member-of-a-type-that-shares-its-name-with-an-element-above")
        << schemaOf(QStringLiteral("<xs:element name='A' type='A'/>"), type("A")) << 2 << QStringList {accepted};
}

void TestXmlCreateReportOccurrences::asksForAnOwnerAboveTheElement()
{
    QFETCH(QString, schema);
    QFETCH(int, count);
    QFETCH(QStringList, refusals);
    RecordedBuilding building;
    QStringList found;
    bool isFirst = false;
    const auto enter = [&](ElemBeginEvent&) { isFirst = true; };
    building.observer.OnElement(QStringLiteral("A"), enter);
    building.observer.OnElement(QStringLiteral("B"), enter);
    building.observer.OnElement(QStringLiteral("E"), [&](ElemBeginEvent&) {
        if (isFirst) {
            isFirst = false;
            building.Multiply("unknown", 1); // so that the name is tried again
            found.append(QString::number(building.Multiply("E", count).size()));
        }
    });
    QVERIFY(building.Build(schema));
    QCOMPARE(found, refusals);
}

void TestXmlCreateReportOccurrences::takesTheLimitsOfTheNameForWhateverIsAnnounced()
{
    RecordedBuilding building;
    building.observer.OnElement(QStringLiteral("F"),
                                [&](ElemBeginEvent&) { QVERIFY(building.Multiply("E", 2) == None); });
    QVERIFY(building.Build(schemaOf(textElement("E", QStringLiteral("maxOccurs='3'")) + textElement("F"))));
    QCOMPARE(building.Children(), QStringLiteral("E, F, F"));
}

void TestXmlCreateReportOccurrences::acceptsTheRootWithoutCopyingIt()
{
    RecordedBuilding building;
    building.observer.OnElement(QStringLiteral("R"),
                                [&](ElemBeginEvent&) { QVERIFY(building.Multiply("E", 3) == None); });
    QVERIFY(building.Build(schemaOf(textElement("E", QStringLiteral("maxOccurs='3'")))));
    // The notice is taken at the first child; the root comes again there and is walked from one level deeper.
    QCOMPARE(building.Log(), QStringLiteral("R, E, R, error 15, error 16, E, error 16"));
    QCOMPARE(building.Children(), QStringLiteral("E"));
}

void TestXmlCreateReportOccurrences::multipliesFromInsideAnError()
{
    RecordedBuilding building;
    bool isFirst = true;
    building.observer.OnError([&](int error) {
        if (isFirst && error == IXMLHelper::CURRENT_TYPE_IS_NOT_TIME) {
            isFirst = false;
            QVERIFY(building.Multiply("E", 2) == None);
        }
    });
    building.observer.OnElement(QStringLiteral("E"), [&](ElemBeginEvent&) {
        if (isFirst) {
            building.builder.SetXmlValue(QTime(1, 2));
        } else {
            building.Fill();
        }
    });
    QVERIFY(building.Build(schemaOf(textElement("E", QStringLiteral("maxOccurs='3'")))));
    QCOMPARE(building.Log(), QStringLiteral("R, E, error 13, E, E"));
    QCOMPARE(building.Children(), QStringLiteral("E, E"));
}

void TestXmlCreateReportOccurrences::discardsAlternatives_data()
{
    QTest::addColumn<QString>("elements");
    QTest::addColumn<QString>("discarded");
    QTest::addColumn<QString>("log"); // refused elements are filled instead, the others are filled
    QTest::addColumn<QString>("children");

    const QString a = textElement("a");
    const QString b = textElement("b");
    const QString c = textElement("c");
    const QString x = textElement("x");
    const QString y = textElement("y");

    QTest::newRow("sibling-behind-a-discarded-alternative-is-not-announced") << choice(a + b) + x << "a"
                                                                             << "R, a, x"
                                                                             << "b, x";
    QTest::newRow("last-alternative-is-kept-once-as-many-are-gone-as-its-number-says")
        << choice(a) + x + choice(b) + y + choice(c) << "a, b, c"
        << "R, a, b, c, error -1"
        << "x, y, c";
    QTest::newRow("last-alternative-goes-while-fewer-are-gone") << choice(a + b + c) << "a, c"
                                                                << "R, a, c"
                                                                << "b";
    QTest::newRow("only-alternative-is-kept") << choice(a) << "a"
                                              << "R, a, error -1"
                                              << "a";
    QTest::newRow("last-of-two-alternatives-goes") << choice(a + b) << "b"
                                                   << "R, a, b"
                                                   << "a";
    QTest::newRow("choices-share-the-count-of-what-is-gone") << choice(a) + x + choice(b) << "a, b"
                                                             << "R, a, b, error -1"
                                                             << "x, b";
    QTest::newRow("greatest-number-of-a-name-counts") << choice(a) + x + choice(a) << "a"
                                                      << "R, a, a, error -1"
                                                      << "x, a";
    QTest::newRow("element-outside-of-choices-is-kept") << a + choice(b + c) << "a"
                                                        << "R, a, error -1, b, c"
                                                        << "a, b, c";
    QTest::newRow("alternative-that-is-a-container-goes-whole") << choice(container("a", x) + b) + y << "a"
                                                                << "R, a, y"
                                                                << "b, y";
    QTest::newRow("discarding-the-last-child-ends-its-level") << container("g", choice(a + b)) + x << "b"
                                                              << "R, g, error 8, error 9, error 15, error 16, a, b, x"
                                                              << "g, x";
}

void TestXmlCreateReportOccurrences::discardsAlternatives()
{
    QFETCH(QString, elements);
    QFETCH(QString, discarded);
    QFETCH(QString, log);
    QFETCH(QString, children);
    RecordedBuilding building;
    for (const char* const name : {"a", "b", "c", "g", "x", "y"}) {
        const bool isToDiscard = discarded.split(QStringLiteral(", ")).contains(QLatin1String(name));
        building.observer.OnElement(QLatin1String(name), [&building, isToDiscard](ElemBeginEvent&) {
            if (!isToDiscard || building.Discard() == General) {
                building.Fill();
            }
        });
    }
    QVERIFY(building.Build(schemaOf(elements)));
    QCOMPARE(building.Log(), log);
    QCOMPARE(building.Children(), children);
}

void TestXmlCreateReportOccurrences::guardsTheLastAlternativeByTheRemainderOfItsNumber_data()
{
    QTest::addColumn<int>("alternatives");
    QTest::addColumn<bool>("isKept");

    QTest::newRow("number-99-goes") << 100 << false;
    QTest::newRow("number-100-is-kept-though-nothing-is-gone") << 101 << true;
    QTest::newRow("number-101-goes") << 102 << false;
}

void TestXmlCreateReportOccurrences::guardsTheLastAlternativeByTheRemainderOfItsNumber()
{
    QFETCH(int, alternatives);
    QFETCH(bool, isKept);
    QString elements;
    for (int i = 1; i < alternatives; ++i) {
        elements += textElement("a");
    }
    RecordedBuilding building;
    ErrorList errors;
    building.observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) { building.Fill(); });
    building.observer.OnElement(QStringLiteral("last"), [&](ElemBeginEvent&) {
        errors = building.Discard();
        if (!errors.empty()) {
            building.Fill();
        }
    });
    QVERIFY(building.Build(schemaOf(choice(elements + textElement("last")))));
    QVERIFY(errors == (isKept ? General : None));
    QCOMPARE(!building.Root().firstChildElement(QStringLiteral("last")).isNull(), isKept);
}

void TestXmlCreateReportOccurrences::refusesToDiscardAnElementTwice()
{
    RecordedBuilding building;
    building.observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) {
        QVERIFY(building.Discard() == None);
        QVERIFY(building.Discard() == General);
    });
    QVERIFY(building.Build(schemaOf(choice(textElement("a") + textElement("b") + textElement("c")))));
    // The second notice names no element, for nothing follows one that is gone: the level ends.
    QCOMPARE(building.Log(), QStringLiteral("R, a, error -1"));
    QCOMPARE(building.Children(), QStringLiteral("b, c"));
}

void TestXmlCreateReportOccurrences::failedRemovalDoesNotCount()
{
    RecordedBuilding building;
    building.observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) {
        QVERIFY(building.Discard() == None);
        QVERIFY(building.Discard() == General);
    });
    building.observer.OnElement(QStringLiteral("c"), [&](ElemBeginEvent&) { QVERIFY(building.Discard() == None); });
    QVERIFY(building.Build(
        schemaOf(container("g", choice(textElement("a") + textElement("b"))) + choice(textElement("c")))));
    // The last alternative has number 2: it goes because one element is gone, and would stay if two were.
    QCOMPARE(building.Log(), QStringLiteral("R, g, error 15, error 16, a, error -1, c"));
    QCOMPARE(building.Children(), QStringLiteral("g"));
}

void TestXmlCreateReportOccurrences::discardsARootThatIsAnAlternative()
{
    RecordedBuilding building;
    bool isRoot = true;
    building.observer.OnElement(QStringLiteral("R"), [&](ElemBeginEvent&) {
        if (isRoot) {
            isRoot = false;
            QVERIFY(building.Discard() == None);
        }
    });
    QVERIFY(building.Build(schemaOf(choice(textElement("R") + textElement("b")))));
    QCOMPARE(building.Log(), QStringLiteral("R, R")); // the notice is taken at the first child and ends the level
    QFile file(building.ReportPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("<?xml version='1.0' encoding='UTF-8'?>\n"));
}

void TestXmlCreateReportOccurrences::discardsFromInsideAnError()
{
    RecordedBuilding building;
    building.observer.OnError([&](int error) {
        if (error == IXMLHelper::VALUE_IS_NOT_VALID) {
            QVERIFY(building.Discard() == None);
        }
    });
    QVERIFY(building.Build(schemaOf(choice(textElement("a") + textElement("b")))));
    // The check goes on with an alternative that is gone already: it cannot be removed, and nothing follows it.
    QCOMPARE(building.Log(), QStringLiteral("R, a, error 15, error -1"));
    QCOMPARE(building.Children(), QStringLiteral("b"));
}

void TestXmlCreateReportOccurrences::refusesCopiesBeyondTheElementLimit()
{
    // The root and n times an element with 126 children make 1 + 127 n elements: 500,000 for n = 3937.
    const QString schema = schemaOf(container("E", textElement("V", QStringLiteral("minOccurs='126'")),
                                              QStringLiteral("minOccurs='0' maxOccurs='unbounded'")));
    TraceCollector traces;
    Building<CountingObserver> building;
    CountingObserver& observer = building.observer;
    std::vector<int> errors;
    observer.answer = [&](const QString& name) {
        if (name == QLatin1String("E") && errors.empty()) {
            building.builder.SetElementMaxOccurs(QStringLiteral("E"), 3938);
            errors.push_back(observer.errors);
            building.builder.SetElementMaxOccurs(QStringLiteral("unknown"), 1);
            errors.push_back(observer.errors);
            building.builder.SetElementMaxOccurs(QStringLiteral("E"), 3937);
            errors.push_back(observer.errors);
        }
    };
    QVERIFY(building.Build(schema));
    QVERIFY(errors == std::vector<int>({1, 3, 3}));
    QCOMPARE(traces.Messages(), QStringLiteral("Copies would give the report more than 500000 elements!"));
    // The first E comes three times, because a container that goes on probation is announced again; each brings a V.
    QCOMPARE(observer.announcements, 1 + 3 + 3936 + 3937);
    QVERIFY(!documentInFile(building.ReportPath()).documentElement().hasChildNodes());
}

void TestXmlCreateReportOccurrences::endsWhenTwoItemsMultiplyEachOther()
{
    const QString unbounded = QStringLiteral("maxOccurs='unbounded'");
    Building<CountingObserver> building;
    building.observer.answer = [&](const QString& name) {
        if (name != QLatin1String("R")) {
            building.builder.SetElementMaxOccurs(name, 2);
        }
    };
    QElapsedTimer timer;
    timer.start();
    QVERIFY(building.Build(schemaOf(container("A", textElement("B", unbounded), unbounded))));
    QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
    const int elements = elementsBelow(documentInFile(building.ReportPath()).documentElement());
    QVERIFY2(elements > 499990 && elements <= 500000, qPrintable(QString::number(elements)));
}

QTEST_GUILESS_MAIN(TestXmlCreateReportOccurrences)
#include "tst_xmlcreatereport_occurrences.moc"
