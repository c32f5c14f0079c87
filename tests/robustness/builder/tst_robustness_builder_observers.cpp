#include <QtTest>

#include <algorithm>
#include <limits>
#include <memory>
#include <vector>

#include <QDomDocument>
#include <QTemporaryDir>
#include <QThread>

#include <xmlhelper/limits_p.h>
#include <xmlhelper/xmlcreatereport.h>

#include "answeredreport.h"
#include "domtext.h"
#include "strictreading.h"
#include "tracecollector.h"

/// What an observer does to the element that is being announced, through its node.
using Edit = std::function<void(QDomElement element)>;
Q_DECLARE_METATYPE(Edit)

/// Observers that call and edit what they should not, when they should not.
class TestRobustnessBuilderObservers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void operationBeforeTheWalkChangesNothing_data() { addOperations(); }
    void operationBeforeTheWalkChangesNothing();
    void operationAfterTheWalkLeavesTheFileAsItIs_data() { addOperations(); }
    void operationAfterTheWalkLeavesTheFileAsItIs();
    void operationOnTheRootLeavesAReadableReport_data() { addOperations(); }
    void operationOnTheRootLeavesAReadableReport();
    void operationOnARemovedElementLeavesTheOthers_data() { addOperations(); }
    void operationOnARemovedElementLeavesTheOthers();
    void operationOfASecondTimeAddsNothing_data() { addOperations(); }
    void operationOfASecondTimeAddsNothing();
    void operationInsideEveryErrorComesToAnEnd_data() { addOperations(); }
    void operationInsideEveryErrorComesToAnEnd();
    void everyOperationOnEveryElementComesToAnEnd();

    void answeringRefusalsWithoutEndIsCutOff();
    void answeringEachRefusalTwiceIsCutOff();
    void everyRefusalInsideAnErrorIsSent();
    void whatIsCutOffIsTracedForEachOutermostError();
    void refusalsOfAnotherCallAreSentAgain();

    void countWithoutCopiesKeepsOneElement_data();
    void countWithoutCopiesKeepsOneElement();
    void countBeyondTheLimitIsRefused_data();
    void countBeyondTheLimitIsRefused();
    void countOfManyAttributesIsRefused();
    void attributesUpToTheLimitAreCopied();
    void refusedCopiesAreNotCounted_data();
    void refusedCopiesAreNotCounted();
    void namesThatTakeTurnsComeToAnEnd_data();
    void namesThatTakeTurnsComeToAnEnd();
    void everyElementMayBeMultiplied();

    void editsOfTheDocumentLeaveAFile_data();
    void editsOfTheDocumentLeaveAFile();
    void nodesStayReadableAfterTheBuilder();

private:
    static void addOperations();
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    /// Builds a report from the schema of this test.
    bool create(XmlCreateReport& builder) const;
    /// The elements of the report file as text; a reason in brackets when there is no readable file.
    QString reportText() const;
    /// The report that an observer gets that answers nothing.
    QString unansweredText() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

struct Operation
{
    const char* name;
    Answer call;
};

/// Every operation of the builder, with values that the schema of this test takes somewhere.
std::vector<Operation> operations()
{
    return {
        {"text", value(QStringLiteral("text"))},
        {"double", value(1.5)},
        {"int", value(7)},
        {"bool", value(true)},
        {"date-time", value(QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56)))},
        {"time", value(QTime(12, 34, 56))},
        {"attribute-text", attribute("Mode", QStringLiteral("AM"))},
        {"attribute-date-time", attribute("Stamp", QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56)))},
        {"attribute-int", attribute("Number", 7)},
        {"attribute-double", attribute("Level", 1.5)},
        {"removed-attribute", removal("Mode")},
        {"occurrences", [](XmlCreateReport& builder) { builder.SetElementMaxOccurs(QStringLiteral("Many"), 3); }},
        {"discarded-alternative", [](XmlCreateReport& builder) { builder.DiscardChoiceItem(); }},
        {"second-document",
         [](XmlCreateReport& builder) {
             builder.CreateXmlFromSchema(QStringLiteral("/no/schema.xsd"), QStringLiteral("/no/report.xml"), false);
         }},
    };
}

QByteArray schema()
{
    return R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
  <xs:element name="Report">
    <xs:complexType>
      <xs:sequence>
        <xs:element name="Title" type="xs:string"/>
        <xs:element name="Frequency" type="xs:double" minOccurs="0"/>
        <xs:element name="Signal">
          <xs:complexType>
            <xs:sequence>
              <xs:element name="Many" type="xs:string" minOccurs="0" maxOccurs="unbounded"/>
              <xs:element name="Time" type="xs:time"/>
            </xs:sequence>
            <xs:attribute name="Mode" type="xs:string"/>
            <xs:attribute name="Stamp" type="xs:dateTime"/>
            <xs:attribute name="Number" type="xs:integer"/>
            <xs:attribute name="Level" type="xs:double"/>
          </xs:complexType>
        </xs:element>
        <xs:choice>
          <xs:element name="First" type="xs:short"/>
          <xs:element name="Second" type="xs:string"/>
        </xs:choice>
        <xs:element name="Last" type="xs:string"/>
      </xs:sequence>
    </xs:complexType>
  </xs:element>
</xs:schema>)";
}

/// Runs @p work on a stack as small as that of a Windows main thread, and with fewer errors within one, of which a
/// million would take seconds each time.
void runOnASmallStack(const std::function<void()>& work)
{
    const std::unique_ptr<QThread> thread(QThread::create([&work] {
        Limits few;
        few.errorsWithinOne = 1000;
        const LimitsInForce inForce(few);
        work();
    }));
    thread->setStackSize(1024 * 1024);
    thread->start();
    QVERIFY(thread->wait());
}

/// Two elements without attributes. Their names are given by turns, because the one given last is swallowed.
QString elementsWithoutAttributes()
{
    return QStringLiteral("<xs:element name='Many' maxOccurs='unbounded'/>"
                          "<xs:element name='Other' maxOccurs='unbounded'/>");
}

/// Leaves @p element with @p count attributes.
void setAttributeCount(QDomElement element, int count)
{
    const auto name = [](int number) { return QStringLiteral("k%1").arg(number); };
    for (int number = element.attributes().count(); number > count; --number) {
        element.removeAttribute(name(number));
    }
    for (int number = element.attributes().count() + 1; number <= count; ++number) {
        element.setAttribute(name(number), number);
    }
}

/// Removes the copies of @p element and gives their number.
int removeCopies(const QDomElement& element)
{
    int copies = 0;
    while (element.nextSibling().nodeName() == element.nodeName()) {
        element.parentNode().removeChild(element.nextSibling());
        ++copies;
    }
    return copies;
}

const QLatin1String NestedErrorsTrace("More than 100 errors nested in each other are not sent!");

} // namespace

void TestRobustnessBuilderObservers::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile file(path("schema.xsd"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(schema()), qint64(schema().size()));
}

void TestRobustnessBuilderObservers::addOperations()
{
    QTest::addColumn<Answer>("operation");
    for (const Operation& operation : operations()) {
        QTest::newRow(operation.name) << operation.call;
    }
}

bool TestRobustnessBuilderObservers::create(XmlCreateReport& builder) const
{
    return builder.CreateXmlFromSchema(path("schema.xsd"), path("report.xml"), false);
}

QString TestRobustnessBuilderObservers::reportText() const
{
    const QString error = strictErrorOf(path("report.xml"));
    return error.isEmpty() ? domText(documentInFile(path("report.xml")).documentElement())
                           : QStringLiteral("(%1)").arg(error);
}

QString TestRobustnessBuilderObservers::unansweredText() const
{
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    return create(builder) ? reportText() : QStringLiteral("(failed)");
}

void TestRobustnessBuilderObservers::operationBeforeTheWalkChangesNothing()
{
    QFETCH(Answer, operation);
    const QString expected = unansweredText();
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    if (QTest::currentDataTag() == QByteArray("second-document")) {
        return; // It would be the first.
    }
    operation(builder);
    QVERIFY(create(builder));
    QCOMPARE(reportText(), expected);
}

void TestRobustnessBuilderObservers::operationAfterTheWalkLeavesTheFileAsItIs()
{
    QFETCH(Answer, operation);
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    QVERIFY(create(builder));
    const QString before = reportText();
    operation(builder);
    operation(builder);
    QCOMPARE(reportText(), before);
}

void TestRobustnessBuilderObservers::operationOnTheRootLeavesAReadableReport()
{
    QFETCH(Answer, operation);
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("Report"), [&](ElemBeginEvent&) { operation(builder); });
    QVERIFY(create(builder));
    QVERIFY2(reportText().startsWith(QStringLiteral("<Report ")), qPrintable(reportText()));
}

void TestRobustnessBuilderObservers::operationOnARemovedElementLeavesTheOthers()
{
    QFETCH(Answer, operation);
    for (const char* const removed : {"Title", "Frequency", "Signal", "Many", "First", "Last"}) {
        ScriptedObserver observer;
        XmlCreateReport builder(&observer);
        observer.OnElement(QLatin1String(removed), [&](ElemBeginEvent& event) {
            const QDomNode node = event.GetElementNode();
            node.parentNode().removeChild(node);
            operation(builder);
        });
        QVERIFY(create(builder));
        const QString report = reportText();
        QVERIFY2(report.startsWith(QStringLiteral("<Report ")), qPrintable(report));
        QVERIFY2(!report.contains(QLatin1Char('<') + QLatin1String(removed)), qPrintable(report));
    }
}

void TestRobustnessBuilderObservers::operationOfASecondTimeAddsNothing()
{
    QFETCH(Answer, operation);
    for (const char* const name : {"Title", "Frequency", "Signal", "Many", "Time", "Last"}) {
        QStringList reports;
        for (const bool isTwice : {false, true}) {
            ScriptedObserver observer;
            XmlCreateReport builder(&observer);
            observer.OnElement(QLatin1String(name), [&](ElemBeginEvent&) {
                operation(builder);
                if (isTwice) {
                    operation(builder);
                }
            });
            QVERIFY(create(builder));
            reports.append(reportText());
        }
        QCOMPARE(reports.at(1), reports.at(0));
    }
}

void TestRobustnessBuilderObservers::operationInsideEveryErrorComesToAnEnd()
{
    QFETCH(Answer, operation);
    runOnASmallStack([&] {
        ScriptedObserver observer;
        XmlCreateReport builder(&observer);
        observer.OnError([&](int) { operation(builder); });
        QVERIFY(create(builder));
        QVERIFY2(reportText().startsWith(QStringLiteral("<Report ")), qPrintable(reportText()));
    });
}

void TestRobustnessBuilderObservers::everyOperationOnEveryElementComesToAnEnd()
{
    runOnASmallStack([&] {
        ScriptedObserver observer;
        XmlCreateReport builder(&observer);
        const auto callAll = [&builder] {
            for (const Operation& operation : operations()) {
                operation.call(builder);
            }
        };
        observer.OnEveryElement([&](ElemBeginEvent&) { callAll(); });
        observer.OnError([&](int) { callAll(); });
        QVERIFY(create(builder));
        QVERIFY2(reportText().startsWith(QStringLiteral("<Report ")), qPrintable(reportText()));
    });
}

void TestRobustnessBuilderObservers::answeringRefusalsWithoutEndIsCutOff()
{
    const TraceCollector traces;
    runOnASmallStack([&] {
        ScriptedObserver observer;
        XmlCreateReport builder(&observer);
        int refusals = 0;
        observer.OnElement(QStringLiteral("Title"), [&](ElemBeginEvent&) { builder.SetXmlValue(1.5); });
        observer.OnError([&](int error) {
            if (error == IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE) {
                ++refusals;
                builder.SetXmlValue(1.5);
            }
        });
        QVERIFY(create(builder));
        QCOMPARE(refusals, 101);
    });
    QCOMPARE(traces.Messages(), QString(NestedErrorsTrace));
}

/// As a tree of answers this would be two to the power of its depth.
void TestRobustnessBuilderObservers::answeringEachRefusalTwiceIsCutOff()
{
    Limits few;
    few.errorsWithinOne = 1000;
    const LimitsInForce inForce(few);
    const TraceCollector traces;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    int refusals = 0;
    observer.OnElement(QStringLiteral("Title"), [&](ElemBeginEvent&) { builder.SetXmlValue(1.5); });
    observer.OnError([&](int error) {
        if (error == IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE) {
            ++refusals;
            builder.SetXmlValue(1.5);
            builder.SetXmlValue(1.5);
        }
    });
    QVERIFY(create(builder));
    QCOMPARE(refusals, 1001);
    QCOMPARE(traces.Messages(),
             NestedErrorsTrace + QStringLiteral("\nMore than 1000 errors while one is being answered are not sent!"));
}

/// A client that tries candidates takes the one of which it hears nothing for the one that was accepted.
void TestRobustnessBuilderObservers::everyRefusalInsideAnErrorIsSent()
{
    const TraceCollector traces;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    int refusals = 0;
    observer.OnElement(QStringLiteral("Title"), [&](ElemBeginEvent&) { builder.SetXmlValue(1.5); });
    observer.OnError([&](int error) {
        if (error == IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE) {
            for (int candidate = 0; candidate < 250; ++candidate) {
                builder.SetXmlValue(true);
            }
        }
        refusals += error == IXMLHelper::CURRENT_TYPE_IS_NOT_BOOLEAN ? 1 : 0;
    });
    QVERIFY(create(builder));
    QCOMPARE(refusals, 250);
    QCOMPARE(traces.Messages(), QString());
}

void TestRobustnessBuilderObservers::whatIsCutOffIsTracedForEachOutermostError()
{
    Limits few;
    few.nestedErrors = 3;
    const LimitsInForce inForce(few);
    const TraceCollector traces;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("Title"), [&](ElemBeginEvent&) {
        builder.SetXmlValue(1.5);
        builder.SetXmlValue(1.5);
    });
    observer.OnError([&](int error) {
        if (error == IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE) {
            builder.SetXmlValue(1.5);
        }
    });
    QVERIFY(create(builder));
    QCOMPARE(
        std::count(observer.Errors().begin(), observer.Errors().end(), int(IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE)), 8);
    const QString message = QStringLiteral("More than 3 errors nested in each other are not sent!");
    QCOMPARE(traces.Messages(), message + QLatin1Char('\n') + message);
}

void TestRobustnessBuilderObservers::refusalsOfAnotherCallAreSentAgain()
{
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    int refusals = 0;
    observer.OnElement(QStringLiteral("Title"), [&](ElemBeginEvent&) {
        for (int call = 0; call < 1000; ++call) {
            builder.SetXmlValue(1.5);
        }
    });
    observer.OnError([&](int error) { refusals += error == IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE ? 1 : 0; });
    QVERIFY(create(builder));
    QCOMPARE(refusals, 1000);
}

void TestRobustnessBuilderObservers::countWithoutCopiesKeepsOneElement_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("zero") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("minus-one") << -1;
    QTest::newRow("least-number") << std::numeric_limits<int>::min();
}

void TestRobustnessBuilderObservers::countWithoutCopiesKeepsOneElement()
{
    QFETCH(int, count);
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("Many"), [&](ElemBeginEvent&) {
        builder.SetElementMaxOccurs(QStringLiteral("Many"), count);
        builder.SetXmlValue(QStringLiteral("x"));
    });
    QVERIFY(create(builder));
    QCOMPARE(reportText().count(QStringLiteral("<Many")), 1);
}

void TestRobustnessBuilderObservers::countBeyondTheLimitIsRefused_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("half-a-million") << 500000;
    QTest::newRow("greatest-number") << std::numeric_limits<int>::max();
}

void TestRobustnessBuilderObservers::countBeyondTheLimitIsRefused()
{
    QFETCH(int, count);
    const TraceCollector traces;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    int errorsOfTheCall = 0;
    observer.OnElement(QStringLiteral("Many"), [&](ElemBeginEvent&) {
        const std::size_t before = observer.Errors().size();
        builder.SetElementMaxOccurs(QStringLiteral("Many"), count);
        errorsOfTheCall = int(observer.Errors().size() - before);
        QCOMPARE(observer.Errors().back(), int(IXMLHelper::MAX_OCCURS_EXCEEDED));
        builder.SetXmlValue(QStringLiteral("x"));
    });
    QVERIFY(create(builder));
    QCOMPARE(errorsOfTheCall, 1);
    QCOMPARE(reportText().count(QStringLiteral("<Many")), 1);
    QCOMPARE(traces.Messages(), QStringLiteral("Copies would give the report more than 500000 elements!"));
}

/// An enumeration gives an element thousands of attributes; here the observer does.
void TestRobustnessBuilderObservers::countOfManyAttributesIsRefused()
{
    const TraceCollector traces;
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    observer.OnElement(QStringLiteral("Many"), [&](ElemBeginEvent& event) {
        for (int i = 0; i < 10; ++i) {
            event.GetElementNode().toElement().setAttribute(QStringLiteral("k%1").arg(i), i);
        }
        builder.SetElementMaxOccurs(QStringLiteral("Many"), 200001);
        QCOMPARE(observer.Errors().back(), int(IXMLHelper::MAX_OCCURS_EXCEEDED));
        builder.SetXmlValue(QStringLiteral("x"));
    });
    QVERIFY(create(builder));
    QCOMPARE(reportText().count(QStringLiteral("<Many")), 1);
    QCOMPARE(traces.Messages(), QStringLiteral("Copies would give the report more than 2000000 attributes!"));
}

/// What has been copied counts, also when it is gone again: so this holds 100,000 attributes at a time, not 2,000,000.
void TestRobustnessBuilderObservers::attributesUpToTheLimitAreCopied()
{
    const TraceCollector traces;
    AnsweredReport report(elementsWithoutAttributes());
    bool isFirst = true;
    report.Observer().OnElement(QStringLiteral("Many"), [&](ElemBeginEvent& event) {
        if (!std::exchange(isFirst, false)) {
            return;
        }
        const QDomElement element = event.GetElementNode().toElement();
        int copies = 0;
        setAttributeCount(element, 1000);
        for (int turn = 0; turn < 20; ++turn) {
            report.Builder().SetElementMaxOccurs(turn % 2 == 0 ? QStringLiteral("Many") : QStringLiteral("Other"), 101);
            copies += removeCopies(element);
        }
        QCOMPARE(copies, 2000);
        QVERIFY(report.Observer().Errors().empty());

        setAttributeCount(element, 1);
        report.Builder().SetElementMaxOccurs(QStringLiteral("Many"), 2);
        QCOMPARE(removeCopies(element), 0);
        QVERIFY(report.Observer().Errors() == std::vector<int>({IXMLHelper::MAX_OCCURS_EXCEEDED}));

        setAttributeCount(element, 0);
        report.Builder().SetElementMaxOccurs(QStringLiteral("Other"), 2);
        QCOMPARE(removeCopies(element), 1);
    });
    QVERIFY(report.Create());
    QVERIFY(!isFirst);
    QCOMPARE(traces.Messages(), QStringLiteral("Copies would give the report more than 2000000 attributes!"));
}

void TestRobustnessBuilderObservers::refusedCopiesAreNotCounted_data()
{
    QTest::addColumn<int>("refusedAttributes");
    QTest::addColumn<int>("refusedCount");
    QTest::addColumn<int>("allowedAttributes");
    QTest::addColumn<int>("allowedCount");
    QTest::addColumn<QString>("trace");
    const QString trace = QStringLiteral("Copies would give the report more than %1!");
    // Little would be left of the other limit if what is refused for the one were counted for it.
    QTest::newRow("elements-refused-for-their-attributes")
        << 5 << 499991 << 0 << 1001 << trace.arg(QStringLiteral("2000000 attributes"));
    QTest::newRow("attributes-refused-with-their-elements")
        << 3 << 666001 << 300 << 11 << trace.arg(QStringLiteral("500000 elements"));
}

void TestRobustnessBuilderObservers::refusedCopiesAreNotCounted()
{
    QFETCH(int, refusedAttributes);
    QFETCH(int, refusedCount);
    QFETCH(int, allowedAttributes);
    QFETCH(int, allowedCount);
    const TraceCollector traces;
    AnsweredReport report(elementsWithoutAttributes());
    bool isFirst = true;
    report.Observer().OnElement(QStringLiteral("Many"), [&](ElemBeginEvent& event) {
        if (!std::exchange(isFirst, false)) {
            return;
        }
        const QDomElement element = event.GetElementNode().toElement();
        setAttributeCount(element, refusedAttributes);
        report.Builder().SetElementMaxOccurs(QStringLiteral("Many"), refusedCount);
        QCOMPARE(removeCopies(element), 0);
        QVERIFY(report.Observer().Errors() == std::vector<int>({IXMLHelper::MAX_OCCURS_EXCEEDED}));

        setAttributeCount(element, allowedAttributes);
        report.Builder().SetElementMaxOccurs(QStringLiteral("Other"), allowedCount);
        QCOMPARE(removeCopies(element), allowedCount - 1);
        QCOMPARE(int(report.Observer().Errors().size()), 1);
    });
    QVERIFY(report.Create());
    QVERIFY(!isFirst);
    QTEST(traces.Messages(), "trace");
}

void TestRobustnessBuilderObservers::namesThatTakeTurnsComeToAnEnd_data()
{
    QTest::addColumn<int>("attributes");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    // Each call takes 30 steps, 15 for an attribute and 2 for the levels.
    QTest::newRow("element-without-attributes") << 0 << 4600 << 4700;
    QTest::newRow("element-with-a-long-enumeration") << 9900 << 1 << 3;
}

/// Each call is allowed, makes no copy and has the element announced again: what it costs is counted, not the calls.
void TestRobustnessBuilderObservers::namesThatTakeTurnsComeToAnEnd()
{
    QFETCH(int, attributes);
    Limits few;
    few.multiplyingSteps = 150000;
    const LimitsInForce inForce(few);
    const TraceCollector traces;
    AnsweredReport report(elementsWithoutAttributes());
    int announcements = 0;
    report.Observer().OnElement(QStringLiteral("Many"), [&](ElemBeginEvent& event) {
        if (++announcements == 1) {
            setAttributeCount(event.GetElementNode().toElement(), attributes);
        }
        report.Builder().SetElementMaxOccurs(announcements % 2 == 0 ? QStringLiteral("Many") : QStringLiteral("Other"),
                                             1);
    });
    QVERIFY(report.Create());
    QFETCH(int, least);
    QFETCH(int, most);
    QVERIFY2(announcements >= least && announcements <= most, qPrintable(QString::number(announcements)));
    QCOMPARE(traces.Messages(), QStringLiteral("Multiplying elements takes more than 150000 steps of work!"));
}

/// The elements have four attributes each, as many as the greatest document may have, and stand in containers.
void TestRobustnessBuilderObservers::everyElementMayBeMultiplied()
{
    constexpr int groups = 19;
    Limits few;
    few.elements = few.elements / 500;
    few.attributes = few.attributes / 500;
    few.multiplyingSteps = few.multiplyingSteps / 500;
    const LimitsInForce inForce(few);
    QString declarations;
    for (int group = 0; group < groups; ++group) {
        declarations += QStringLiteral("<xs:element name='Group%1' maxOccurs='2'><xs:complexType><xs:sequence>"
                                       "<xs:element name='A%1' maxOccurs='12'/><xs:element name='B%1' maxOccurs='12'/>"
                                       "</xs:sequence></xs:complexType></xs:element>")
                            .arg(group);
    }
    AnsweredReport report(declarations);
    int multiplications = 0;
    report.Observer().OnEveryElement([&](ElemBeginEvent& event) {
        const QDomElement element = event.GetElementNode().toElement();
        const QString name = element.tagName();
        if (name != QLatin1String("report") && element.attributes().isEmpty()) {
            setAttributeCount(element, 4);
            report.Builder().SetElementMaxOccurs(name, name.startsWith(QLatin1String("Group")) ? 2 : 12);
            ++multiplications;
        }
    });
    const TraceCollector traces;
    QVERIFY(report.Create());
    QVERIFY2(multiplications >= 3 * groups, qPrintable(QString::number(multiplications)));
    QCOMPARE(traces.Messages(), QString());
}

void TestRobustnessBuilderObservers::editsOfTheDocumentLeaveAFile_data()
{
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char* name, const Edit& edit) { QTest::newRow(name) << edit; };
    const auto otherElement
        = [](const QDomElement& near) { return near.ownerDocument().createElement(QStringLiteral("Other")); };
    row("removes-the-element", [](QDomElement element) { element.parentNode().removeChild(element); });
    row("removes-the-parent", [](QDomElement element) {
        const QDomNode parent = element.parentNode();
        parent.parentNode().removeChild(parent);
    });
    row("removes-the-root", [](QDomElement element) {
        QDomDocument document = element.ownerDocument();
        document.removeChild(document.documentElement());
    });
    row("removes-the-next-sibling",
        [](QDomElement element) { element.parentNode().removeChild(element.nextSibling()); });
    row("removes-the-previous-sibling",
        [](QDomElement element) { element.parentNode().removeChild(element.previousSibling()); });
    row("removes-all-siblings", [](QDomElement element) {
        QDomNode parent = element.parentNode();
        while (parent.hasChildNodes()) {
            parent.removeChild(parent.firstChild());
        }
    });
    row("removes-the-children", [](QDomElement element) {
        while (element.hasChildNodes()) {
            element.removeChild(element.firstChild());
        }
    });
    row("appends-a-child", [=](QDomElement element) { element.appendChild(otherElement(element)); });
    row("appends-a-text", [](QDomElement element) {
        element.appendChild(element.ownerDocument().createTextNode(QStringLiteral("text")));
    });
    row("appends-a-comment", [](QDomElement element) {
        element.appendChild(element.ownerDocument().createComment(QStringLiteral("comment")));
    });
    row("inserts-a-sibling-before",
        [=](QDomElement element) { element.parentNode().insertBefore(otherElement(element), element); });
    row("inserts-a-sibling-behind",
        [=](QDomElement element) { element.parentNode().insertAfter(otherElement(element), element); });
    row("replaces-the-element",
        [=](QDomElement element) { element.parentNode().replaceChild(otherElement(element), element); });
    row("moves-the-element-to-the-front",
        [](QDomElement element) { element.parentNode().insertBefore(element, element.parentNode().firstChild()); });
    row("moves-the-element-into-its-sibling", [](QDomElement element) {
        QDomElement sibling = element.nextSiblingElement();
        if (!sibling.isNull()) {
            sibling.appendChild(element);
        }
    });
    row("moves-the-element-to-another-document", [](QDomElement element) {
        QDomDocument other(QStringLiteral("other"));
        other.appendChild(other.importNode(element, true));
        element.parentNode().removeChild(element);
    });
    row("renames-the-element", [](QDomElement element) { element.setTagName(QStringLiteral("Other")); });
    row("removes-the-attributes", [](QDomElement element) {
        while (element.attributes().count() > 0) {
            element.removeAttribute(element.attributes().item(0).nodeName());
        }
    });
    row("adds-attributes", [](QDomElement element) {
        for (int i = 0; i < 100; ++i) {
            element.setAttribute(QStringLiteral("a%1").arg(i), i);
        }
    });
    row("changes-the-type",
        [](QDomElement element) { element.setAttribute(QStringLiteral("type"), QStringLiteral("dateTime")); });
    row("clears-its-handle-of-the-document", [](QDomElement element) { element.ownerDocument().clear(); });
}

/// Each edit is made once, on each element of the schema in turn, before the element is given a value and behind it.
void TestRobustnessBuilderObservers::editsOfTheDocumentLeaveAFile()
{
    QFETCH(Edit, edit);
    for (const char* const name :
         {"Report", "Title", "Frequency", "Signal", "Many", "Time", "First", "Second", "Last"}) {
        for (const bool isBeforeTheValue : {true, false}) {
            QFile::remove(path("report.xml"));
            ScriptedObserver observer;
            XmlCreateReport builder(&observer);
            bool isEdited = false;
            observer.OnElement(QLatin1String(name), [&](ElemBeginEvent& event) {
                if (isBeforeTheValue && !std::exchange(isEdited, true)) {
                    edit(event.GetElementNode().toElement());
                }
                builder.SetXmlValue(QStringLiteral("text"));
                builder.SetAttributeValue(QStringLiteral("Mode"), QStringLiteral("AM"));
                builder.SetElementMaxOccurs(QString::fromUtf8(name), 2);
                if (!std::exchange(isEdited, true)) {
                    edit(event.GetElementNode().toElement());
                }
            });
            QVERIFY(create(builder));
            QVERIFY(QFile::exists(path("report.xml")));
            const bool isRootGone = documentInFile(path("report.xml")).documentElement().isNull();
            QVERIFY2(isRootGone || strictErrorOf(path("report.xml")).isEmpty(), qPrintable(reportText()));
        }
    }
}

void TestRobustnessBuilderObservers::nodesStayReadableAfterTheBuilder()
{
    std::vector<QDomNode> nodes;
    QStringList textsBefore;
    {
        ScriptedObserver observer;
        XmlCreateReport builder(&observer);
        observer.OnEveryElement([&](ElemBeginEvent& event) {
            nodes.push_back(event.GetElementNode());
            builder.SetElementMaxOccurs(QStringLiteral("Many"), 5);
            builder.SetXmlValue(QStringLiteral("text"));
        });
        QVERIFY(create(builder));
        for (const QDomNode& node : nodes) {
            textsBefore.append(domText(node));
        }
    }
    QVERIFY(nodes.size() > 8);
    QStringList textsAfter;
    for (const QDomNode& node : nodes) {
        textsAfter.append(domText(node));
    }
    QCOMPARE(textsAfter, textsBefore);
}

QTEST_GUILESS_MAIN(TestRobustnessBuilderObservers)
#include "tst_robustness_builder_observers.moc"
