#include <QtTest>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>
#include <QToolButton>
#include <QXmlAttributes>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>

#include <xmlhelper/docbeginevent.h>
#include <xmlhelper/docendevent.h>
#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/elemendevent.h>
#include <xmlhelper/errorevent.h>

#include "domtext.h"
#include "reportingscene.h"
#include "tracecollector.h"

// What clients are warned of goes on doing what it did.
QT_WARNING_DISABLE_DEPRECATED

namespace {

using AddItem = void (*)(VCReporting&);
using Change = void (*)(ReportingScene&);

const char* const TraceSource = "tools/xmlhelper/vcreporting";

QString fixedClockFile()
{
    return QStringLiteral("2017-03-31_12-34-56-7.xml");
}

/// An attribute and what it holds.
using Attribute = std::pair<const char*, const char*>;

/// Announces @p element with attributes in the given order; the elements of a document have them in any order.
void announce(VCReporting& reporting, const QDomElement& element, const std::vector<Attribute>& attributes)
{
    QXmlAttributes list;
    for (const auto& [name, value] : attributes) {
        list.append(QLatin1String(name), QString(), QString(), QLatin1String(value));
    }
    ElemBeginEvent event(element, element.tagName(), list, QString());
    reporting.XmlUpdate(&event);
}

void addText(VCReporting& reporting, const char* name, const char* text)
{
    reporting.AddReportData(QLatin1String(name), QString(), QLatin1String(text), 1, QString(), 0, QString());
}

void sendError(VCReporting& reporting, IXMLHelper::ErrorID id)
{
    ErrorEvent event(id);
    reporting.XmlUpdate(&event);
}

/// Whether @p text is an ISO date and time between @p start and now, in whole seconds.
bool isSince(const QDateTime& start, const QString& text)
{
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return time.isValid() && time.toSecsSinceEpoch() >= start.toSecsSinceEpoch()
        && time <= QDateTime::currentDateTime();
}

/// The body of @p report, in which "now" stands for every time since @p start.
QString timedBodyText(const QDomDocument& report, const QDateTime& start)
{
    const QString now = QStringLiteral("now");
    QDomElement child = report.documentElement().firstChildElement();
    for (; !child.isNull(); child = child.nextSiblingElement()) {
        for (const QString& name : {QStringLiteral("DateTime"), QStringLiteral("DFDateTime")}) {
            if (isSince(start, child.attribute(name))) {
                child.setAttribute(name, now);
            }
        }
        if (isSince(start, child.text())) {
            child.firstChild().setNodeValue(now);
        }
    }
    return bodyText(report);
}

/// The comment dialogs that are open, in the order of their titles.
QList<QWidget*> openDialogs()
{
    QList<QWidget*> dialogs;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        if (window->isVisible() && window->objectName() == QLatin1String("ToReportCommentDialog")) {
            dialogs.append(window);
        }
    }
    std::sort(dialogs.begin(), dialogs.end(),
              [](const QWidget* a, const QWidget* b) { return a->windowTitle() < b->windowTitle(); });
    return dialogs;
}

void click(const QWidget* window, const char* button)
{
    QTest::mouseClick(window->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
}

void type(const QWidget* window, const char* comment)
{
    QTest::keyClicks(window->findChild<QTextEdit*>(QStringLiteral("m_pTextEdit")), QLatin1String(comment));
}

QString labelText(const QWidget* window, const char* label)
{
    return window->findChild<QLabel*>(QLatin1String(label))->text();
}

/// An element "Value" of that type, which the tests below fill.
QString declaredValue(const char* valueType)
{
    return declaredElement(QStringLiteral("Value"), QLatin1String(valueType));
}

/// An element "Value" with an attribute for the time.
QString declaredTimedValue(const char* timeName, const char* timeType)
{
    return declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                           declaredAttribute(QLatin1String(timeName), QLatin1String(timeType)));
}

/// A text element "Value" with an attribute "Quality" of that type.
QString declaredQuality(const char* attributeType)
{
    return declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                           declaredAttribute(QStringLiteral("Quality"), QLatin1String(attributeType)));
}

} // namespace

Q_DECLARE_METATYPE(AddItem)
Q_DECLARE_METATYPE(Change)

class TestVCReportingReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void offersAFixedTextTypeByType_data();
    void offersAFixedTextTypeByType();
    void offersAnExplicitValue_data();
    void offersAnExplicitValue();
    void offersALivingValue();
    void offersTheIdleNumberForASelectionWithoutNumber_data();
    void offersTheIdleNumberForASelectionWithoutNumber();

    void fillsAnAttributeOfAnUnmatchedElement_data();
    void fillsAnAttributeOfAnUnmatchedElement();
    void fillsAnAttributeOfAMatchedElement_data();
    void fillsAnAttributeOfAMatchedElement();
    void fillsAnAttributeWithTheIdleNumberForASelectionWithoutNumber_data();
    void fillsAnAttributeWithTheIdleNumberForASelectionWithoutNumber();
    void forgetsThePendingNumberAfterEachValue();
    void explicitValuesReachAttributesAsEmptyText();

    void firstMatchingItemWins_data();
    void firstMatchingItemWins();
    void qualifiedNameMatchesBelowItsParentOnly();
    void qualifiedNameIsSplitAtItsFirstSlash_data();
    void qualifiedNameIsSplitAtItsFirstSlash();
    void itemsOfOtherElementsAreLeftAlone();

    void attributeSetBeforeCountsAsTheValue();
    void timeAttributeSetBeforeCountsAsTheValue();
    void timeAttributeRefusedBeforeCountsAsTheValue();
    void attributeSetBeforeDoesNotStopExplicitValues();
    void eachItemSetsOneAttributeAtMost();
    void timeAttributeEndsTheSearchOfAnItem();
    void timeAttributeIsSetForAnyItem();
    void timeAttributeIsOfferedForEveryItem();
    void timeAttributeIsOfferedAsOftenAsItTells_data();
    void timeAttributeIsOfferedAsOftenAsItTells();
    void everyItemOfTheNameIsOfferedToAnUnmatchedElementsAttribute();
    void itemForATimeAttributeComesFirst();
    void matchedElementHandlesItsAttributes();
    void firstItemOfTheNameFillsAMatchedElementsAttribute();
    void firstItemDecidesAboutTimeAndDefaultOfAMatchedElement_data();
    void firstItemDecidesAboutTimeAndDefaultOfAMatchedElement();
    void defaultIsRemovedFromMatchedElementsOnly_data();
    void defaultIsRemovedFromMatchedElementsOnly();

    void unitIsWrittenWhereDeclared_data();
    void unitIsWrittenWhereDeclared();
    void unitIsNotWrittenForAttributesAlone();
    void refusedUnitIsTraced();

    void repeatsAnElementAsOftenAsItsItemSays();
    void qualifiedItemRepeatsAnElementByTheElementsName();
    void repeatedTooOftenIsWrittenOnce();
    void maxOccursOfOneIsNotAsked();

    void consumedItemServesOneReport();
    void consumedItemServesOneElement();
    void consumedItemOfSeveralOccurrencesServesTheFirst();
    void consumedItemIsTheOneThatMatched();
    void consumedQualifiedItemGoesByItsFullName();
    void consumedAlsoWhenItsValueWasNotWritten();
    void consumedAlsoWhenATimeAttributeCountedAsItsValue();
    void attributeItemsAreNotConsumed();
    void itemsStayWithoutConsuming();

    void timeElementReceivesTheCurrentTime_data();
    void timeElementReceivesTheCurrentTime();
    void timeElementKeepsTheValueOfItsItem();
    void timeElementOfAnotherTypeIsRefused();
    void timeElementLeavesItsTimeAttributeAlone();
    void timeAttributeReceivesTheCurrentTimeWithoutItems();
    void timeAttributeOfAnotherTypeIsLeftAlone();
    void timeAttributeIsJudgedByTheTypeAnnounced();

    void errorWithoutItemIsTraced_data();
    void errorWithoutItemIsTraced();
    void errorWithoutItemIsNotTracedWithoutItsBit();
    void doubleRefusedWithoutItemWritesTheIdleNumber();
    void otherErrorsAreIgnored_data();
    void otherErrorsAreIgnored();
    void otherEventsAreIgnored();
    void announcementsBeforeTheFirstReportAreIgnored();

    void needsASchemaFileEndingInXsd_data();
    void needsASchemaFileEndingInXsd();
    void namesTheFileAfterTheClock_data();
    void namesTheFileAfterTheClock();
    void writesIntoTheDirectory_data();
    void writesIntoTheDirectory();
    void preparesBeforeAnythingElse();
    void preparesWithChangesOfItems();
    void preparesWithChangesOfSchemaAndDialog();
    void slotAnswersThroughTheMetaObject();
    void failureIsToldAndTheFileWrittenAllTheSame_data();
    void failureIsToldAndTheFileWrittenAllTheSame();
    void unwritableFileIsNoFailure();
    void nextPressWorks_data();
    void nextPressWorks();
    void twoPressesMakeTwoReports();
    void twoPressesInOneMillisecondMakeOneFile();

    void dialogWritesTheCommentedReport();
    void dialogWritesTheUncommentedReport();
    void dialogOfEachReportAnswersForItself();
    void dialogOutlivesTheScreen();
    void dialogCancelledWritesNothingAndTheNextPressWorks();
    void dialogIsAskedForEachReport();
};

void TestVCReportingReport::cleanup()
{
    QVERIFY2(openDialogs().isEmpty(), "A test left a comment dialog open.");
}

void TestVCReportingReport::offersAFixedTextTypeByType_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("decimalExponent");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("refusals");

    const auto row = [](const char* rule, const QString& declaration, const char* text, int decimalExponent,
                        const char* expected, const char* refusals) {
        QTest::newRow(rule) << declaration << QString::fromLatin1(text) << decimalExponent
                            << QString::fromLatin1(expected) << QString::fromLatin1(refusals);
    };
    const QString boundedDouble
        = QStringLiteral("<xs:element name='Value'><xs:simpleType><xs:restriction base='xs:double'>"
                         "<xs:maxInclusive value='10'/></xs:restriction></xs:simpleType></xs:element>");
    const QString boundedInteger = QString(boundedDouble).replace(QLatin1String("double"), QLatin1String("integer"));

    row("number-for-double-is-taken", declaredValue("double"), "98.7", 0, "<Value>98.7</Value>", "");
    row("scaled-number-for-double-is-taken", declaredValue("double"), "9870", 2, "<Value>98.7</Value>", "");
    row("number-for-integer-is-truncated", declaredValue("integer"), "98.7", 0, "<Value>98</Value>", "double");
    row("negative-number-for-integer-is-truncated-toward-zero", declaredValue("integer"), "-2.7", 0,
        "<Value>-2</Value>", "double");
    row("scaled-number-for-integer-is-truncated", declaredValue("integer"), "9870", 2, "<Value>98</Value>", "double");
    row("number-for-int-is-truncated", declaredValue("int"), "98.7", 0, "<Value>98</Value>", "double");
    row("number-beyond-32-bits-for-integer-takes-the-upper-limit", declaredValue("integer"), "1e12", 0,
        "<Value>2147483647</Value>", "double");
    row("number-below-32-bits-for-integer-takes-the-lower-limit", declaredValue("integer"), "-1e12", 0,
        "<Value>-2147483648</Value>", "double");
    row("number-for-string-is-its-text", declaredValue("string"), "98.70", 2, "<Value>98.70</Value>", "double integer");
    row("number-for-date-time-gives-an-empty-text", declaredValue("dateTime"), "98.7", 0, "<Value/>",
        "double integer string");
    row("number-for-boolean-is-refused-to-the-end", declaredValue("boolean"), "1", 0, "<Value type='boolean'/>",
        "double integer string dateTime");

    row("text-for-string-is-taken", declaredValue("string"), "FM", 0, "<Value>FM</Value>", "");
    row("text-for-date-time-is-read-as-iso-date", declaredValue("dateTime"), "2017-03-31T12:34:56", 0,
        "<Value>2017-03-31T12:34:56</Value>", "string");
    row("text-for-date-time-that-is-none-gives-an-empty-text", declaredValue("dateTime"), "31.03.2017", 0, "<Value/>",
        "string");
    row("text-for-double-is-refused-to-the-end", declaredValue("double"), "loud", 0, "<Value type='double'/>",
        "string dateTime");
    row("text-for-integer-is-refused-to-the-end", declaredValue("integer"), "loud", 0, "<Value type='integer'/>",
        "string dateTime");
    row("text-for-time-is-refused-to-the-end", declaredValue("time"), "12:34:56", 0, "<Value type='time'/>",
        "string dateTime");
    row("text-for-boolean-is-refused-to-the-end", declaredValue("boolean"), "true", 0, "<Value type='boolean'/>",
        "string dateTime");

    row("number-out-of-range-ends-the-negotiation", boundedDouble, "11", 0, "<Value type='double' maxInclusive='10'/>",
        "value");
    row("retried-integer-out-of-range-ends-the-negotiation", boundedInteger, "11", 0, "<Value maxInclusive='10'/>",
        "double value");
}

void TestVCReportingReport::offersAFixedTextTypeByType()
{
    QFETCH(QString, declaration);
    QFETCH(QString, text);
    QFETCH(int, decimalExponent);
    QFETCH(QString, expected);
    QFETCH(QString, refusals);
    ReportingScene scene(declaration);
    scene.Reporting().AddReportData(QStringLiteral("Value"), QString(), text, 1, QString(), decimalExponent, QString());
    QCOMPARE(scene.MakeReport(), bodyText(expected));
    QCOMPARE(scene.Reporting().Refusals(), refusals);
}

void TestVCReportingReport::offersAnExplicitValue_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<AddItem>("add");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("refusals");

    const auto row
        = [](const char* rule, const char* valueType, AddItem add, const char* expected, const char* refusals) {
              QTest::newRow(rule) << declaredValue(valueType) << add << QString::fromLatin1(expected)
                                  << QString::fromLatin1(refusals);
          };
    const AddItem addTrue = [](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Value"), true, 1, QString(), 0, QString());
    };
    const AddItem addFalse = [](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Value"), false, 1, QString(), 0, QString());
    };
    const AddItem addLong = [](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Value"), -42L, 1, QString(), 1, QString());
    };
    const AddItem addText = [](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Value"), QStringLiteral("FM"), 1, QString(), 0, QString());
    };
    const AddItem addDouble = [](VCReporting& reporting) {
        reporting.AddExplicitReportData(QStringLiteral("Value"), 17.5, 1, QString(), 0, QString());
    };

    row("true-for-boolean-is-taken", "boolean", addTrue, "<Value>true</Value>", "");
    row("false-for-boolean-is-taken", "boolean", addFalse, "<Value>false</Value>", "");
    row("bool-for-short-is-taken", "short", addTrue, "<Value>true</Value>", "");
    row("bool-for-string-is-refused-and-not-retried", "string", addTrue, "<Value type='string'/>", "boolean");
    row("bool-for-integer-is-refused-and-not-retried", "integer", addTrue, "<Value type='integer'/>", "boolean");

    row("long-for-integer-is-taken-unscaled", "integer", addLong, "<Value>-42</Value>", "");
    row("long-for-int-is-taken", "int", addLong, "<Value>-42</Value>", "");
    row("long-for-long-is-taken", "long", addLong, "<Value>-42</Value>", "");
    row("long-for-string-gives-an-empty-text", "string", addLong, "<Value/>", "integer");
    row("long-for-date-time-gives-an-empty-text", "dateTime", addLong, "<Value/>", "integer string");
    row("long-for-double-is-refused-to-the-end", "double", addLong, "<Value type='double'/>",
        "integer string dateTime");
    // Where long has 32 bits its limits are these limits themselves.
    row(
        "greatest-long-takes-the-upper-limit", "integer",
        [](VCReporting& reporting) {
            reporting.AddExplicitReportData(QStringLiteral("Value"), std::numeric_limits<long>::max(), 1, QString(), 0,
                                            QString());
        },
        "<Value>2147483647</Value>", "");
    row(
        "least-long-takes-the-lower-limit", "integer",
        [](VCReporting& reporting) {
            reporting.AddExplicitReportData(QStringLiteral("Value"), std::numeric_limits<long>::min(), 1, QString(), 0,
                                            QString());
        },
        "<Value>-2147483648</Value>", "");

    // Calls that would fit none of the others best.
    row(
        "int-is-an-integer", "integer",
        [](VCReporting& reporting) {
            reporting.AddExplicitReportData(QStringLiteral("Value"), -42, 1, QString(), 0, QString());
        },
        "<Value>-42</Value>", "");
    row(
        "literal-zero-is-an-integer", "integer",
        [](VCReporting& reporting) {
            reporting.AddExplicitReportData(QStringLiteral("Value"), 0, 1, QString(), 0, QString());
        },
        "<Value>0</Value>", "");
    row(
        "short-is-an-integer", "integer",
        [](VCReporting& reporting) {
            reporting.AddExplicitReportData(QStringLiteral("Value"), qint16(7), 1, QString(), 0, QString());
        },
        "<Value>7</Value>", "");
    row(
        "greatest-unsigned-takes-the-upper-limit", "integer",
        [](VCReporting& reporting) {
            reporting.AddExplicitReportData(QStringLiteral("Value"), std::numeric_limits<unsigned>::max(), 1, QString(),
                                            0, QString());
        },
        "<Value>2147483647</Value>", "");
    row(
        "least-qint64-takes-the-lower-limit", "integer",
        [](VCReporting& reporting) {
            reporting.AddExplicitReportData(QStringLiteral("Value"), std::numeric_limits<qint64>::min(), 1, QString(),
                                            0, QString());
        },
        "<Value>-2147483648</Value>", "");

    row("explicit-text-for-string-gives-an-empty-text", "string", addText, "<Value/>", "");
    row("explicit-text-for-date-time-gives-an-empty-text", "dateTime", addText, "<Value/>", "string");
    row("explicit-double-for-string-gives-an-empty-text", "string", addDouble, "<Value/>", "");
    row("explicit-double-for-double-is-refused-to-the-end", "double", addDouble, "<Value type='double'/>",
        "string dateTime");
}

void TestVCReportingReport::offersAnExplicitValue()
{
    QFETCH(QString, declaration);
    QFETCH(AddItem, add);
    QFETCH(QString, expected);
    QFETCH(QString, refusals);
    ReportingScene scene(declaration);
    add(scene.Reporting());
    QCOMPARE(scene.MakeReport(), bodyText(expected));
    QCOMPARE(scene.Reporting().Refusals(), refusals);
}

void TestVCReportingReport::offersALivingValue()
{
    const Tree tree;
    auto* const value = new ValueNumeric(QStringLiteral("Value"), 98500000.0, QStringLiteral("Hz"));
    new ValueItem(value, tree.GetRoot());
    ReportingScene scene(declaredValue("double"));
    scene.Reporting().AddReportData(QStringLiteral("Value"), QStringLiteral("Value"), QString(), 1, QString(), 6,
                                    QString());
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>98.5</Value>")));
    value->SetValue(101300000.0);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>101.3</Value>")));
    // A text element shows the value as the screen does, not scaled.
    scene.WriteSchemaFile(reportSchema(declaredValue("string")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>101300000 Hz</Value>")));
}

void TestVCReportingReport::offersTheIdleNumberForASelectionWithoutNumber_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::newRow("as-double") << declaredValue("double");
    QTest::newRow("as-integer") << declaredValue("integer");
}

void TestVCReportingReport::offersTheIdleNumberForASelectionWithoutNumber()
{
    QFETCH(QString, declaration);
    const Tree tree;
    auto* const selection = new ValueSelection(QStringLiteral("Value"));
    selection->AddChoice(7.0, QStringLiteral("wide kHz"));
    new ValueItem(selection, tree.GetRoot());
    ReportingScene scene(declaration);
    scene.Reporting().AddReportData(tree.GetRoot());
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>65535</Value>")));
}

void TestVCReportingReport::fillsAnAttributeOfAnUnmatchedElement_data()
{
    QTest::addColumn<QString>("attributeType");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("refusals");

    const auto row = [](const char* rule, const char* attributeType, const char* text, const char* expected,
                        const char* refusals) {
        QTest::newRow(rule) << QString::fromLatin1(attributeType) << QString::fromLatin1(text)
                            << QString::fromLatin1(expected) << QString::fromLatin1(refusals);
    };
    row("number-for-double-is-taken", "double", "98.7", "98.7", "");
    row("number-for-integer-writes-the-idle-number", "integer", "98.7", "65535", "double");
    row("number-for-int-is-refused-to-the-end", "int", "98.7", "xs:int", "double integer string dateTime");
    row("number-for-string-is-its-text", "string", "98.70", "98.70", "double integer");
    row("number-for-boolean-is-refused-to-the-end", "boolean", "1", "xs:boolean", "double integer string dateTime");
    row("text-for-string-is-taken", "string", "good", "good", "");
    row("text-for-date-time-is-read-as-iso-date", "dateTime", "2017-03-31T12:34:56", "2017-03-31T12:34:56", "string");
    row("text-for-integer-is-refused-to-the-end", "integer", "good", "xs:integer", "string dateTime");
}

void TestVCReportingReport::fillsAnAttributeOfAnUnmatchedElement()
{
    QFETCH(QString, attributeType);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QFETCH(QString, refusals);
    ReportingScene scene(declaredQuality(qPrintable(attributeType)));
    scene.AddText(QStringLiteral("Quality"), text);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' Quality='%1'/>").arg(expected)));
    QCOMPARE(scene.Reporting().Refusals(), refusals);
}

void TestVCReportingReport::fillsAnAttributeOfAMatchedElement_data()
{
    QTest::addColumn<QString>("attributeType");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("refusals");

    const auto row = [](const char* rule, const char* attributeType, const char* text, const char* expected,
                        const char* refusals) {
        QTest::newRow(rule) << QString::fromLatin1(attributeType) << QString::fromLatin1(text)
                            << QString::fromLatin1(expected) << QString::fromLatin1(refusals);
    };
    row("number-for-double-is-taken", "double", "98.7", "98.7", "");
    row("number-for-integer-is-truncated", "integer", "98.7", "98", "double");
    row("number-for-int-is-refused-to-the-end", "int", "98.7", "xs:int", "double integer string dateTime");
    row("number-for-string-is-its-text", "string", "98.70", "98.70", "double integer");
    row("number-for-date-time-gives-an-empty-text", "dateTime", "98.7", "", "double integer string");
    row("text-for-string-is-taken", "string", "good", "good", "");
    row("text-for-date-time-is-read-as-iso-date", "dateTime", "2017-03-31T12:34:56", "2017-03-31T12:34:56", "string");
    row("text-for-double-is-refused-to-the-end", "double", "good", "xs:double", "string dateTime");
}

void TestVCReportingReport::fillsAnAttributeOfAMatchedElement()
{
    QFETCH(QString, attributeType);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QFETCH(QString, refusals);
    ReportingScene scene(declaredQuality(qPrintable(attributeType)));
    // The element's item comes first: an attribute set before it would count as the element's value.
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    scene.AddText(QStringLiteral("Quality"), text);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value Quality='%1'>FM</Value>").arg(expected)));
    QCOMPARE(scene.Reporting().Refusals(), refusals);
}

void TestVCReportingReport::fillsAnAttributeWithTheIdleNumberForASelectionWithoutNumber_data()
{
    QTest::addColumn<QString>("attributeType");
    QTest::addColumn<bool>("isMatched");
    QTest::addColumn<QString>("refusals");

    QTest::newRow("double-of-an-unmatched-element") << QStringLiteral("double") << false << QString();
    QTest::newRow("double-of-a-matched-element") << QStringLiteral("double") << true << QString();
    QTest::newRow("integer-of-a-matched-element") << QStringLiteral("integer") << true << QStringLiteral("double");
}

void TestVCReportingReport::fillsAnAttributeWithTheIdleNumberForASelectionWithoutNumber()
{
    QFETCH(QString, attributeType);
    QFETCH(bool, isMatched);
    QFETCH(QString, refusals);
    const Tree tree;
    auto* const selection = new ValueSelection(QStringLiteral("Quality"));
    selection->AddChoice(7.0, QStringLiteral("wide kHz"));
    new ValueItem(selection, tree.GetRoot());
    ReportingScene scene(declaredQuality(qPrintable(attributeType)));
    if (isMatched) {
        scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    }
    scene.Reporting().AddReportData(tree.GetRoot());
    QCOMPARE(scene.MakeReport(),
             bodyText(isMatched ? QStringLiteral("<Value Quality='65535'>FM</Value>")
                                : QStringLiteral("<Value type='string' Quality='65535'/>")));
    QCOMPARE(scene.Reporting().Refusals(), refusals);
}

void TestVCReportingReport::forgetsThePendingNumberAfterEachValue()
{
    // Whatever number was written before, the attribute of an unmatched element is retried with the idle number.
    const QString quality = declaredAttribute(QStringLiteral("Quality"), QStringLiteral("integer"));
    const QString string = QStringLiteral("string");
    ReportingScene scene(declaredElement(QStringLiteral("Level"), QStringLiteral("double"))
                         + declaredElement(QStringLiteral("BehindAnElement"), string, quality)
                         + declaredElement(QStringLiteral("Channel"), QStringLiteral("integer"), quality)
                         + declaredElement(QStringLiteral("BehindAnAttribute"), string, quality));
    scene.AddText(QStringLiteral("Level"), QStringLiteral("17.5"));
    scene.AddText(QStringLiteral("Channel"), QStringLiteral("21.5"));
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("98.7"));
    QCOMPARE(scene.MakeReport(),
             bodyText(QStringLiteral("<Level>17.5</Level>"
                                     "<BehindAnElement type='string' Quality='65535'/>"
                                     "<Channel Quality='98'>21</Channel>"
                                     "<BehindAnAttribute type='string' Quality='65535'/>")));
}

void TestVCReportingReport::explicitValuesReachAttributesAsEmptyText()
{
    const auto attribute
        = [](const char* name) { return declaredAttribute(QLatin1String(name), QStringLiteral("string")); };
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                                         attribute("A") + attribute("B") + attribute("C") + attribute("D")));
    VCReporting& reporting = scene.Reporting();
    reporting.AddExplicitReportData(QStringLiteral("A"), QStringLiteral("FM"), 1, QString(), 0, QString());
    reporting.AddExplicitReportData(QStringLiteral("B"), 17.5, 1, QString(), 0, QString());
    reporting.AddExplicitReportData(QStringLiteral("C"), true, 1, QString(), 0, QString());
    reporting.AddExplicitReportData(QStringLiteral("D"), 42L, 1, QString(), 0, QString());
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' A='' B='' C='' D=''/>")));
}

void TestVCReportingReport::firstMatchingItemWins_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("expected");

    const QString direct = QStringLiteral("Value");
    const QString qualified = QStringLiteral("Report/Value");
    const QString other = QStringLiteral("Other");
    QTest::newRow("of-two-direct-ones") << QStringList({direct, direct}) << QStringLiteral("item 0");
    QTest::newRow("direct-before-qualified") << QStringList({direct, qualified}) << QStringLiteral("item 0");
    QTest::newRow("qualified-before-direct") << QStringList({qualified, direct}) << QStringLiteral("item 0");
    QTest::newRow("behind-items-of-other-names")
        << QStringList({other, other, direct, direct}) << QStringLiteral("item 2");
}

void TestVCReportingReport::firstMatchingItemWins()
{
    QFETCH(QStringList, names);
    QFETCH(QString, expected);
    ReportingScene scene(declaredValue("string"));
    for (int i = 0; i < names.size(); ++i) {
        scene.AddText(names.at(i), QStringLiteral("item %1").arg(i));
    }
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>%1</Value>").arg(expected)));
}

void TestVCReportingReport::qualifiedNameMatchesBelowItsParentOnly()
{
    const auto group = [](const char* name) {
        return QStringLiteral("<xs:element name='%1'><xs:complexType><xs:sequence>%2</xs:sequence></xs:complexType>"
                              "</xs:element>")
            .arg(QLatin1String(name), declaredElement(QStringLiteral("Level"), QStringLiteral("double")));
    };
    ReportingScene scene(group("Noise") + group("Signal"));
    scene.AddText(QStringLiteral("Signal/Level"), QStringLiteral("17.5"));
    QCOMPARE(scene.MakeReport(),
             bodyText(QStringLiteral("<Noise><Level type='double'/></Noise>"
                                     "<Signal><Level>17.5</Level></Signal>")));
}

void TestVCReportingReport::qualifiedNameIsSplitAtItsFirstSlash_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isMatch");

    QTest::newRow("parent-and-child") << QStringLiteral("Report/Value") << true;
    QTest::newRow("slash-at-the-beginning") << QStringLiteral("/Value") << false;
    QTest::newRow("slash-at-the-end") << QStringLiteral("Value/") << false;
    QTest::newRow("slash-at-both-ends") << QStringLiteral("/Value/") << false;
    QTest::newRow("second-slash-belongs-to-the-child") << QStringLiteral("Report/Value/Value") << false;
    QTest::newRow("other-parent") << QStringLiteral("Signal/Value") << false;
    QTest::newRow("other-child") << QStringLiteral("Report/Level") << false;
    QTest::newRow("parent-is-case-sensitive") << QStringLiteral("report/Value") << false;
    QTest::newRow("slash-alone") << QStringLiteral("/") << false;
    QTest::newRow("back-slash-is-no-slash") << QStringLiteral("Report\\Value") << false;
}

void TestVCReportingReport::qualifiedNameIsSplitAtItsFirstSlash()
{
    QFETCH(QString, name);
    QFETCH(bool, isMatch);
    ReportingScene scene(declaredValue("string"));
    scene.AddText(name, QStringLiteral("FM"));
    QCOMPARE(scene.MakeReport(),
             bodyText(isMatch ? QStringLiteral("<Value>FM</Value>") : QStringLiteral("<Value type='string'/>")));
}

void TestVCReportingReport::itemsOfOtherElementsAreLeftAlone()
{
    ReportingScene scene(declaredElement(QStringLiteral("Frequency"), QStringLiteral("double"))
                         + declaredElement(QStringLiteral("SurveillanceJob_ProfileID"), QStringLiteral("string")));
    scene.AddText(QStringLiteral("Level"), QStringLiteral("17"));
    scene.AddText(QStringLiteral("Frequency"), QStringLiteral("98.5"));
    scene.AddText(QStringLiteral("SurveillanceJob_ProfileID"), QStringLiteral("P7"));
    QCOMPARE(scene.MakeReport(),
             bodyText(QStringLiteral("<Frequency>98.5</Frequency>"
                                     "<SurveillanceJob_ProfileID>P7</SurveillanceJob_ProfileID>")));
}

void TestVCReportingReport::attributeSetBeforeCountsAsTheValue()
{
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                                         declaredAttribute(QStringLiteral("Quality"), QStringLiteral("string"))
                                             + declaredAttribute(QStringLiteral("Other"), QStringLiteral("string"))
                                             + declaredAttribute(QStringLiteral("Unit"), QStringLiteral("string"))));
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("good"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"), QStringLiteral("kHz"));
    scene.AddText(QStringLiteral("Other"), QStringLiteral("behind the match"));
    // The element's item still ends the search and gives its unit.
    QCOMPARE(scene.MakeReport(),
             bodyText(QStringLiteral("<Value type='string' Quality='good' Other='xs:string' Unit='kHz'/>")));
}

void TestVCReportingReport::timeAttributeSetBeforeCountsAsTheValue()
{
    // Any item before the element's own meets the time attribute and sets it.
    ReportingScene scene(declaredTimedValue("DFDateTime", "dateTime"));
    scene.AddText(QStringLiteral("Unrelated"), QStringLiteral("17"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    const QDateTime start = QDateTime::currentDateTime();
    scene.MakeReport();
    QCOMPARE(timedBodyText(scene.Report(), start), bodyText(QStringLiteral("<Value type='string' DFDateTime='now'/>")));
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::timeAttributeRefusedBeforeCountsAsTheValue()
{
    // Nobody tells the button whether the time has been taken.
    ReportingScene scene(declaredTimedValue("DateTime", "string"));
    scene.AddText(QStringLiteral("Unrelated"), QStringLiteral("17"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' DateTime='xs:string'/>")));
    QCOMPARE(scene.Reporting().Refusals(), QStringLiteral("dateTime"));
}

void TestVCReportingReport::attributeSetBeforeDoesNotStopExplicitValues()
{
    ReportingScene scene(declaredElement(QStringLiteral("Locked"), QStringLiteral("boolean"),
                                         declaredAttribute(QStringLiteral("Quality"), QStringLiteral("string")))
                         + declaredElement(QStringLiteral("Channel"), QStringLiteral("integer"),
                                           declaredAttribute(QStringLiteral("Quality"), QStringLiteral("string"))));
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("good"));
    scene.Reporting().AddExplicitReportData(QStringLiteral("Locked"), true, 1, QString(), 0, QString());
    scene.Reporting().AddExplicitReportData(QStringLiteral("Channel"), 21L, 1, QString(), 0, QString());
    QCOMPARE(scene.MakeReport(),
             bodyText(QStringLiteral("<Locked Quality='good'>true</Locked>"
                                     "<Channel Quality='good'>21</Channel>")));
}

void TestVCReportingReport::eachItemSetsOneAttributeAtMost()
{
    // One item, one name: the other attributes wait for items of their own.
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                                         declaredAttribute(QStringLiteral("A"), QStringLiteral("string"))
                                             + declaredAttribute(QStringLiteral("B"), QStringLiteral("string"))));
    scene.AddText(QStringLiteral("B"), QStringLiteral("b"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' A='xs:string' B='b'/>")));
    scene.AddText(QStringLiteral("A"), QStringLiteral("a"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' A='a' B='b'/>")));
}

void TestVCReportingReport::timeAttributeEndsTheSearchOfAnItem()
{
    ReportingScene scene(
        declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                        declaredAttribute(QStringLiteral("Azimuth"), QStringLiteral("double"))
                            + declaredAttribute(QStringLiteral("DFDateTime"), QStringLiteral("dateTime"))));
    const QDateTime start = QDateTime::currentDateTime();
    // Without items nothing is set, and the element stays the one that answers act on.
    QCOMPARE(scene.MakeReport(),
             bodyText(QStringLiteral("<Value type='string' Azimuth='xs:double' DFDateTime='xs:dateTime'/>")));
    QDomElement value = scene.Reporting().Element(QStringLiteral("Value"));
    scene.AddText(QStringLiteral("Azimuth"), QStringLiteral("235.1"));

    announce(scene.Reporting(), value, {{"DFDateTime", "xs:dateTime"}, {"Azimuth", "xs:double"}});
    QCOMPARE(value.attribute(QStringLiteral("Azimuth")), QStringLiteral("xs:double"));
    QVERIFY(isSince(start, value.attribute(QStringLiteral("DFDateTime"))));

    // The other way round the item finds its attribute and never meets the time.
    value.setAttribute(QStringLiteral("DFDateTime"), QStringLiteral("xs:dateTime"));
    announce(scene.Reporting(), value, {{"Azimuth", "xs:double"}, {"DFDateTime", "xs:dateTime"}});
    QCOMPARE(value.attribute(QStringLiteral("Azimuth")), QStringLiteral("235.1"));
    QCOMPARE(value.attribute(QStringLiteral("DFDateTime")), QStringLiteral("xs:dateTime"));
}

void TestVCReportingReport::timeAttributeIsSetForAnyItem()
{
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                                         declaredAttribute(QStringLiteral("DFDateTime"), QStringLiteral("dateTime"))));
    const QDateTime start = QDateTime::currentDateTime();
    scene.AddText(QStringLiteral("Unrelated"), QStringLiteral("17"));
    scene.MakeReport();
    const QDomElement value = scene.Report().documentElement().firstChildElement(QStringLiteral("Value"));
    QVERIFY(isSince(start, value.attribute(QStringLiteral("DFDateTime"))));
    QCOMPARE(value.attribute(QStringLiteral("type")), QStringLiteral("string"));
}

void TestVCReportingReport::timeAttributeIsOfferedForEveryItem()
{
    ReportingScene scene(declaredTimedValue("DFDateTime", "dateTime"));
    scene.AddText(QStringLiteral("Unrelated"), QStringLiteral("17"));
    scene.AddText(QStringLiteral("Other"), QStringLiteral("18"));
    const QDateTime start = QDateTime::currentDateTime();
    scene.MakeReport();
    QCOMPARE(timedBodyText(scene.Report(), start), bodyText(QStringLiteral("<Value type='string' DFDateTime='now'/>")));
    // The attribute that the first has set is no declared type any more.
    QCOMPARE(scene.Reporting().Refusals(), QStringLiteral("dateTime"));
}

void TestVCReportingReport::timeAttributeIsOfferedAsOftenAsItTells_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("refusals");
    const QStringList others = QString(QStringLiteral("Other ")).repeated(100).split(QLatin1Char(' '));
    const QStringList quality(QStringLiteral("Quality"));
    const QString once = QStringLiteral("dateTime");
    QTest::newRow("for-many-items-as-for-two") << others << QStringLiteral("'xs:string'") << once;
    QTest::newRow("behind-an-item-for-an-attribute") << quality + others << QStringLiteral("'text'") << once;
    QTest::newRow("again-behind-an-item-for-an-attribute")
        << others + quality + others << QStringLiteral("'text'") << QStringLiteral("dateTime dateTime dateTime");
}

/// A press with many items and many such elements would otherwise block for seconds.
void TestVCReportingReport::timeAttributeIsOfferedAsOftenAsItTells()
{
    QFETCH(QStringList, names);
    QFETCH(QString, body);
    QFETCH(QString, refusals);
    ReportingScene scene(declaredTimedValue("DFDateTime", "dateTime"));
    for (const QString& name : names) {
        scene.AddText(name, QStringLiteral("text"));
    }
    scene.MakeReport();
    QDomElement value = scene.Reporting().Element(QStringLiteral("Value"));
    value.setAttribute(QStringLiteral("DFDateTime"), QStringLiteral("xs:dateTime"));
    value.setAttribute(QStringLiteral("Quality"), QStringLiteral("xs:string"));
    scene.Reporting().Forget();
    const QDateTime start = QDateTime::currentDateTime();
    announce(scene.Reporting(), value, {{"Quality", "xs:string"}, {"DFDateTime", "xs:dateTime"}});
    QVERIFY(isSince(start, value.attribute(QStringLiteral("DFDateTime"))));
    value.setAttribute(QStringLiteral("DFDateTime"), QStringLiteral("now"));
    QCOMPARE(domText(value), bodyText(QStringLiteral("<Value type='string' DFDateTime='now' Quality=%1/>").arg(body)));
    QCOMPARE(scene.Reporting().Refusals(), refusals);
}

void TestVCReportingReport::everyItemOfTheNameIsOfferedToAnUnmatchedElementsAttribute()
{
    ReportingScene scene(declaredQuality("string"));
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("good"));
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("bad"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' Quality='good'/>")));
    QCOMPARE(scene.Reporting().Refusals(), QStringLiteral("string dateTime"));
}

void TestVCReportingReport::itemForATimeAttributeComesFirst()
{
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                                         declaredAttribute(QStringLiteral("DateTime"), QStringLiteral("dateTime"))));
    scene.AddText(QStringLiteral("DateTime"), QStringLiteral("2001-02-03T04:05:06"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' DateTime='2001-02-03T04:05:06'/>")));
    // Offered as text first; the current time that follows is refused.
    QCOMPARE(scene.Reporting().Refusals(), QStringLiteral("string dateTime"));
}

void TestVCReportingReport::matchedElementHandlesItsAttributes()
{
    ReportingScene scene(
        declaredElement(QStringLiteral("Value"), QStringLiteral("double"),
                        declaredAttribute(QStringLiteral("Quality"), QStringLiteral("string"))
                            + declaredAttribute(QStringLiteral("DFDateTime"), QStringLiteral("dateTime"))
                            + declaredAttribute(QStringLiteral("Site"), QStringLiteral("string"))));
    const QDateTime start = QDateTime::currentDateTime();
    scene.AddText(QStringLiteral("Value"), QStringLiteral("17.5"));
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("good"));
    scene.MakeReport();
    QDomElement value = scene.Report().documentElement().firstChildElement(QStringLiteral("Value"));
    QVERIFY(isSince(start, value.attribute(QStringLiteral("DFDateTime"))));
    value.removeAttribute(QStringLiteral("DFDateTime"));
    QCOMPARE(domText(value), bodyText(QStringLiteral("<Value Quality='good' Site='xs:string'>17.5</Value>")));
}

void TestVCReportingReport::firstItemOfTheNameFillsAMatchedElementsAttribute()
{
    ReportingScene scene(declaredQuality("string"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("first"));
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("second"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value Quality='first'>FM</Value>")));
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::firstItemDecidesAboutTimeAndDefaultOfAMatchedElement_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<AddItem>("add");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("refusals");

    const auto row = [](const char* rule, const QString& declaration, AddItem add, const char* expected,
                        const char* refusals) {
        QTest::newRow(rule) << declaration << add << QString::fromLatin1(expected) << QString::fromLatin1(refusals);
    };
    const QString timedFlag
        = declaredElement(QStringLiteral("Locked"), QStringLiteral("boolean"),
                          declaredAttribute(QStringLiteral("DFDateTime"), QStringLiteral("dateTime")));
    const QString flag = QStringLiteral("<xs:element name='Value' type='xs:boolean' default='true'/>");
    const QString integer = QStringLiteral("<xs:element name='Value' type='xs:integer' default='7'/>");

    row(
        "time-takes-the-current-time-with-its-item-behind-another", declaredTimedValue("DFDateTime", "dateTime"),
        [](VCReporting& reporting) {
            addText(reporting, "Value", "FM");
            addText(reporting, "DFDateTime", "2001-02-03T04:05:06");
        },
        "<Value DFDateTime='now'>FM</Value>", "");
    // An explicit value is written although the attribute has been set before, and the attribute is offered again.
    row(
        "time-is-offered-its-item-when-that-is-the-first", timedFlag,
        [](VCReporting& reporting) {
            addText(reporting, "DFDateTime", "2001-02-03T04:05:06");
            reporting.AddExplicitReportData(QStringLiteral("Locked"), true, 1, QString(), 0, QString());
        },
        "<Locked DFDateTime='2001-02-03T04:05:06'>true</Locked>", "string string dateTime");
    row(
        "default-stays-when-its-item-is-the-first", flag,
        [](VCReporting& reporting) {
            addText(reporting, "default", "x");
            reporting.AddExplicitReportData(QStringLiteral("Value"), false, 1, QString(), 0, QString());
        },
        "<Value default='true'>false</Value>", "string dateTime string dateTime");
    row(
        "default-goes-with-its-item-behind-another", flag,
        [](VCReporting& reporting) {
            reporting.AddExplicitReportData(QStringLiteral("Value"), false, 1, QString(), 0, QString());
            addText(reporting, "default", "x");
        },
        "<Value>false</Value>", "");
    row(
        "default-of-an-integer-stays-when-its-item-is-the-first", integer,
        [](VCReporting& reporting) {
            addText(reporting, "default", "x");
            reporting.AddExplicitReportData(QStringLiteral("Value"), 42L, 1, QString(), 0, QString());
        },
        "<Value default='7'>42</Value>", "string dateTime string dateTime");
    row(
        "default-of-an-integer-goes-with-its-item-behind-another", integer,
        [](VCReporting& reporting) {
            reporting.AddExplicitReportData(QStringLiteral("Value"), 42L, 1, QString(), 0, QString());
            addText(reporting, "default", "x");
        },
        "<Value>42</Value>", "");
}

void TestVCReportingReport::firstItemDecidesAboutTimeAndDefaultOfAMatchedElement()
{
    QFETCH(QString, declaration);
    QFETCH(AddItem, add);
    QFETCH(QString, expected);
    QFETCH(QString, refusals);
    ReportingScene scene(declaration);
    add(scene.Reporting());
    const QDateTime start = QDateTime::currentDateTime();
    scene.MakeReport();
    QCOMPARE(timedBodyText(scene.Report(), start), bodyText(expected));
    QCOMPARE(scene.Reporting().Refusals(), refusals);
}

void TestVCReportingReport::defaultIsRemovedFromMatchedElementsOnly_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("expected");

    QTest::newRow("without-items-it-stays") << QStringList() << QStringLiteral("<Value type='string' default='AM'/>");
    QTest::newRow("with-unrelated-items-it-stays")
        << QStringList(QStringLiteral("Other")) << QStringLiteral("<Value type='string' default='AM'/>");
    QTest::newRow("with-the-elements-item-it-goes")
        << QStringList(QStringLiteral("Value")) << QStringLiteral("<Value>FM</Value>");
}

void TestVCReportingReport::defaultIsRemovedFromMatchedElementsOnly()
{
    QFETCH(QStringList, names);
    QFETCH(QString, expected);
    ReportingScene scene(QStringLiteral("<xs:element name='Value' type='xs:string' default='AM'/>"));
    for (const QString& name : std::as_const(names)) {
        scene.AddText(name, QStringLiteral("FM"));
    }
    QCOMPARE(scene.MakeReport(), bodyText(expected));
}

void TestVCReportingReport::unitIsWrittenWhereDeclared_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("expected");

    const QString withUnit = declaredElement(QStringLiteral("Value"), QStringLiteral("double"),
                                             declaredAttribute(QStringLiteral("Unit"), QStringLiteral("string")));
    QTest::newRow("declared-and-given") << withUnit << QStringLiteral("MHz")
                                        << QStringLiteral("<Value Unit='MHz'>98.5</Value>");
    QTest::newRow("declared-and-given-with-a-default-that-goes")
        << QString(withUnit).replace(QStringLiteral("name='Value'"), QStringLiteral("name='Value' default='7'"))
        << QStringLiteral("MHz") << QStringLiteral("<Value Unit='MHz'>98.5</Value>");
    QTest::newRow("declared-and-not-given")
        << withUnit << QString() << QStringLiteral("<Value Unit='xs:string'>98.5</Value>");
    QTest::newRow("given-and-not-declared")
        << declaredValue("double") << QStringLiteral("MHz") << QStringLiteral("<Value>98.5</Value>");
}

void TestVCReportingReport::unitIsWrittenWhereDeclared()
{
    QFETCH(QString, declaration);
    QFETCH(QString, unit);
    QFETCH(QString, expected);
    ReportingScene scene(declaration);
    scene.AddText(QStringLiteral("Value"), QStringLiteral("98.5"), unit);
    QCOMPARE(scene.MakeReport(), bodyText(expected));
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::unitIsNotWrittenForAttributesAlone()
{
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("double"),
                                         declaredAttribute(QStringLiteral("Azimuth"), QStringLiteral("double"))
                                             + declaredAttribute(QStringLiteral("Unit"), QStringLiteral("string"))));
    scene.AddText(QStringLiteral("Azimuth"), QStringLiteral("235.1"), QStringLiteral("deg"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='double' Azimuth='235.1' Unit='xs:string'/>")));
}

void TestVCReportingReport::refusedUnitIsTraced()
{
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("double"),
                                         declaredAttribute(QStringLiteral("Unit"), QStringLiteral("integer"))));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("98.5"), QStringLiteral("MHz"));
    const TraceCollector traces;
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value Unit='xs:integer'>98.5</Value>")));
    QVERIFY2(traces.IsOnly(QStringLiteral("VCReporting::XmlUpdate|ErrorEvent|ErrorID == CURRENT_TYPE_IS_NOT_STRING: "
                                          "m_iIndex is not valid."),
                           QLatin1String(TraceSource), 838),
             qPrintable(traces.Messages()));
}

void TestVCReportingReport::repeatsAnElementAsOftenAsItsItemSays()
{
    ReportingScene scene(QStringLiteral("<xs:element name='Value' type='xs:double' maxOccurs='3'/>"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("17.5"), QString(), 3);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>17.5</Value><Value>17.5</Value><Value>17.5</Value>")));
    // The value that follows the count ends the announcement, so each element is announced once.
    QCOMPARE(scene.Reporting().Announced(),
             QStringList({QStringLiteral("Report"), QStringLiteral("Value"), QStringLiteral("Value"),
                          QStringLiteral("Value")}));
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::qualifiedItemRepeatsAnElementByTheElementsName()
{
    // The limits of a schema know no "Report/Value".
    ReportingScene scene(QStringLiteral("<xs:element name='Value' type='xs:double' maxOccurs='3'/>"));
    scene.AddText(QStringLiteral("Report/Value"), QStringLiteral("17.5"), QString(), 3);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>17.5</Value><Value>17.5</Value><Value>17.5</Value>")));
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::repeatedTooOftenIsWrittenOnce()
{
    ReportingScene scene(QStringLiteral("<xs:element name='Value' type='xs:double' maxOccurs='3'/>"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("17.5"), QString(), 4);
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>17.5</Value>")));
    QCOMPARE(scene.Reporting().Refusals(), QStringLiteral("occurs"));
}

void TestVCReportingReport::maxOccursOfOneIsNotAsked()
{
    // The element has no occurrence limits, so that asking for a count would be refused.
    for (const int maxOccurs : {1, 0, -1}) {
        ReportingScene scene(declaredValue("double"));
        scene.AddText(QStringLiteral("Value"), QStringLiteral("17.5"), QString(), maxOccurs);
        QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>17.5</Value>")));
        QCOMPARE(scene.Reporting().Refusals(), QString());
    }
}

void TestVCReportingReport::consumedItemServesOneReport()
{
    ReportingScene scene(declaredValue("string"), true);
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>FM</Value>")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string'/>")));
}

void TestVCReportingReport::consumedItemServesOneElement()
{
    ReportingScene scene(QStringLiteral("<xs:element name='Value' type='xs:string' minOccurs='2' maxOccurs='2'/>"),
                         true);
    scene.AddText(QStringLiteral("Value"), QStringLiteral("first"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("second"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>first</Value><Value>second</Value>")));
}

void TestVCReportingReport::consumedItemOfSeveralOccurrencesServesTheFirst()
{
    ReportingScene scene(QStringLiteral("<xs:element name='Value' type='xs:double' maxOccurs='3'/>"), true);
    scene.AddText(QStringLiteral("Value"), QStringLiteral("17.5"), QString(), 3);
    QCOMPARE(scene.MakeReport(),
             bodyText(QStringLiteral("<Value>17.5</Value><Value type='double'/><Value type='double'/>")));
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::consumedItemIsTheOneThatMatched()
{
    ReportingScene scene(declaredValue("string"), true);
    scene.AddText(QStringLiteral("Report/Value"), QStringLiteral("qualified"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("direct"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>qualified</Value>")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>direct</Value>")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string'/>")));
}

void TestVCReportingReport::consumedQualifiedItemGoesByItsFullName()
{
    ReportingScene scene(declaredValue("string"), true);
    // The name of the element alone would find nothing to delete.
    scene.AddText(QStringLiteral("Report/Value"), QStringLiteral("first"));
    scene.AddText(QStringLiteral("Report/Value"), QStringLiteral("second"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>first</Value>")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>second</Value>")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string'/>")));
}

void TestVCReportingReport::consumedAlsoWhenItsValueWasNotWritten()
{
    ReportingScene scene(declaredQuality("string"), true);
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("good"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' Quality='good'/>")));
    scene.Reporting().DeleteReportData(QStringLiteral("Quality"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' Quality='xs:string'/>")));
}

void TestVCReportingReport::consumedAlsoWhenATimeAttributeCountedAsItsValue()
{
    ReportingScene scene(declaredTimedValue("DFDateTime", "dateTime"), true);
    scene.AddText(QStringLiteral("Unrelated"), QStringLiteral("17"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    const QDateTime start = QDateTime::currentDateTime();
    scene.MakeReport();
    QCOMPARE(timedBodyText(scene.Report(), start), bodyText(QStringLiteral("<Value type='string' DFDateTime='now'/>")));
    // Alone it would be written now.
    scene.Reporting().DeleteReportData(QStringLiteral("Unrelated"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' DFDateTime='xs:dateTime'/>")));
}

void TestVCReportingReport::attributeItemsAreNotConsumed()
{
    ReportingScene scene(declaredQuality("string"), true);
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    scene.AddText(QStringLiteral("Quality"), QStringLiteral("good"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value Quality='good'>FM</Value>")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' Quality='good'/>")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' Quality='good'/>")));
}

void TestVCReportingReport::itemsStayWithoutConsuming()
{
    ReportingScene scene(declaredValue("string"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    for (int report = 0; report < 3; ++report) {
        QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>FM</Value>")));
    }
}

void TestVCReportingReport::timeElementReceivesTheCurrentTime_data()
{
    QTest::addColumn<bool>("hasItems");
    for (const char* const name : {"DateTime", "DFDateTime"}) {
        QTest::addRow("%s-without-items", name) << false;
        QTest::addRow("%s-with-unrelated-items", name) << true;
    }
}

void TestVCReportingReport::timeElementReceivesTheCurrentTime()
{
    QFETCH(bool, hasItems);
    const QString name = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char('-'), 0, 0);
    ReportingScene scene(declaredElement(name, QStringLiteral("dateTime")));
    if (hasItems) {
        scene.AddText(QStringLiteral("Unrelated"), QStringLiteral("17"));
    }
    const QDateTime start = QDateTime::currentDateTime();
    scene.MakeReport();
    const QDomElement element = scene.Report().documentElement().firstChildElement(name);
    QVERIFY2(isSince(start, element.text()), qPrintable(domText(element)));
    QVERIFY(!element.hasAttributes());
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::timeElementKeepsTheValueOfItsItem()
{
    ReportingScene scene(declaredElement(QStringLiteral("DateTime"), QStringLiteral("dateTime")));
    scene.AddText(QStringLiteral("DateTime"), QStringLiteral("2001-02-03T04:05:06"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<DateTime>2001-02-03T04:05:06</DateTime>")));
    // The current time is offered all the same and refused like every second value.
    QCOMPARE(scene.Reporting().Refusals(), QStringLiteral("string unknown dateTime"));
}

void TestVCReportingReport::timeElementOfAnotherTypeIsRefused()
{
    ReportingScene scene(declaredElement(QStringLiteral("DateTime"), QStringLiteral("string")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<DateTime type='string'/>")));
    QCOMPARE(scene.Reporting().Refusals(), QStringLiteral("dateTime"));
}

void TestVCReportingReport::timeElementLeavesItsTimeAttributeAlone()
{
    ReportingScene scene(declaredElement(QStringLiteral("DateTime"), QStringLiteral("dateTime"),
                                         declaredAttribute(QStringLiteral("DateTime"), QStringLiteral("dateTime"))));
    const QDateTime start = QDateTime::currentDateTime();
    scene.MakeReport();
    QCOMPARE(timedBodyText(scene.Report(), start),
             bodyText(QStringLiteral("<DateTime DateTime='xs:dateTime'>now</DateTime>")));
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::timeAttributeReceivesTheCurrentTimeWithoutItems()
{
    ReportingScene scene(
        declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                        declaredAttribute(QStringLiteral("DateTime"), QStringLiteral("dateTime"))
                            + declaredAttribute(QStringLiteral("DFDateTime"), QStringLiteral("dateTime"))));
    const QDateTime start = QDateTime::currentDateTime();
    scene.MakeReport();
    const QDomElement value = scene.Report().documentElement().firstChildElement(QStringLiteral("Value"));
    QVERIFY(isSince(start, value.attribute(QStringLiteral("DateTime"))));
    // This one waits for an item, whichever.
    QCOMPARE(value.attribute(QStringLiteral("DFDateTime")), QStringLiteral("xs:dateTime"));
}

void TestVCReportingReport::timeAttributeOfAnotherTypeIsLeftAlone()
{
    ReportingScene scene(declaredElement(QStringLiteral("Value"), QStringLiteral("string"),
                                         declaredAttribute(QStringLiteral("DateTime"), QStringLiteral("string"))));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value type='string' DateTime='xs:string'/>")));
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::timeAttributeIsJudgedByTheTypeAnnounced()
{
    ReportingScene scene(declaredTimedValue("DateTime", "dateTime"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    const QDateTime start = QDateTime::currentDateTime();
    scene.MakeReport();
    QCOMPARE(timedBodyText(scene.Report(), start), bodyText(QStringLiteral("<Value DateTime='now'>FM</Value>")));
    // Set with the element's value; offered again by what the element was announced with, and refused.
    QCOMPARE(scene.Reporting().Refusals(), QStringLiteral("dateTime"));
}

void TestVCReportingReport::errorWithoutItemIsTraced_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("line");

    QTest::newRow("refused-as-integer") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER)
                                        << QStringLiteral("CURRENT_TYPE_IS_NOT_INTEGER") << 825;
    QTest::newRow("refused-as-text") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_STRING)
                                     << QStringLiteral("CURRENT_TYPE_IS_NOT_STRING") << 838;
}

void TestVCReportingReport::errorWithoutItemIsTraced()
{
    QFETCH(int, id);
    QFETCH(QString, name);
    QFETCH(int, line);
    ReportingScene scene(declaredValue("string"));
    scene.AddText(QStringLiteral("Unrelated"), QStringLiteral("17"));
    for (const bool hasReport : {false, true}) {
        if (hasReport) {
            scene.MakeReport();
        }
        const TraceCollector traces;
        sendError(scene.Reporting(), static_cast<IXMLHelper::ErrorID>(id));
        QVERIFY2(
            traces.IsOnly(
                QStringLiteral("VCReporting::XmlUpdate|ErrorEvent|ErrorID == %1: m_iIndex is not valid.").arg(name),
                QLatin1String(TraceSource), line),
            qPrintable(traces.Messages()));
    }
    QCOMPARE(domText(scene.Reporting().Element(QStringLiteral("Value"))),
             bodyText(QStringLiteral("<Value type='string'/>")));
}

void TestVCReportingReport::errorWithoutItemIsNotTracedWithoutItsBit()
{
    ReportingScene scene(declaredValue("string"));
    const TraceCollector traces(~32u);
    sendError(scene.Reporting(), IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER);
    sendError(scene.Reporting(), IXMLHelper::CURRENT_TYPE_IS_NOT_STRING);
    QCOMPARE(traces.Messages(), QString());
}

void TestVCReportingReport::doubleRefusedWithoutItemWritesTheIdleNumber()
{
    ReportingScene scene(declaredValue("integer"));
    scene.MakeReport();
    const TraceCollector traces;
    sendError(scene.Reporting(), IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE);
    QCOMPARE(domText(scene.Reporting().Element(QStringLiteral("Value"))),
             bodyText(QStringLiteral("<Value>65535</Value>")));
    QCOMPARE(traces.Messages(), QString());
}

void TestVCReportingReport::otherErrorsAreIgnored_data()
{
    QTest::addColumn<int>("id");
    QTest::newRow("general-error") << int(IXMLHelper::GENERAL_ERROR);
    QTest::newRow("no-current-element") << int(IXMLHelper::NO_CURRENT_ELEMENT);
    QTest::newRow("type-unknown") << int(IXMLHelper::CURRENT_TYPE_IS_UNKNOWN);
    QTest::newRow("not-date-time") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_DATETIME);
    QTest::newRow("not-time") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_TIME);
    QTest::newRow("not-boolean") << int(IXMLHelper::CURRENT_TYPE_IS_NOT_BOOLEAN);
    QTest::newRow("not-valid") << int(IXMLHelper::VALUE_IS_NOT_VALID);
    QTest::newRow("max-occurs-exceeded") << int(IXMLHelper::MAX_OCCURS_EXCEEDED);
}

void TestVCReportingReport::otherErrorsAreIgnored()
{
    QFETCH(int, id);
    ReportingScene scene(declaredValue("integer"));
    scene.AddText(QStringLiteral("Unrelated"), QStringLiteral("17"));
    scene.MakeReport();
    const TraceCollector traces;
    sendError(scene.Reporting(), static_cast<IXMLHelper::ErrorID>(id));
    QCOMPARE(traces.Messages(), QString());
    QCOMPARE(domText(scene.Reporting().Element(QStringLiteral("Value"))),
             bodyText(QStringLiteral("<Value type='integer'/>")));
}

void TestVCReportingReport::otherEventsAreIgnored()
{
    ReportingScene scene(declaredValue("string"));
    scene.MakeReport();
    const QDomElement value = scene.Reporting().Element(QStringLiteral("Value"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));

    DocBeginEvent documentBegins;
    DocEndEvent documentEnds;
    ElemEndEvent elementEnds(QStringLiteral("Value"));
    for (XmlEvent* const event : {static_cast<XmlEvent*>(&documentBegins), static_cast<XmlEvent*>(&documentEnds),
                                  static_cast<XmlEvent*>(&elementEnds)}) {
        scene.Reporting().XmlUpdate(event);
    }
    QCOMPARE(domText(value), bodyText(QStringLiteral("<Value type='string'/>")));
}

void TestVCReportingReport::announcementsBeforeTheFirstReportAreIgnored()
{
    ReportingScene scene(declaredValue("string"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    const QDomDocument document = documentOf(QStringLiteral("<Report><Value type='string'/></Report>"));
    announce(scene.Reporting(), document.documentElement().firstChildElement(), {{"type", "string"}});
    sendError(scene.Reporting(), IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE);
    QCOMPARE(bodyText(document), bodyText(QStringLiteral("<Value type='string'/>")));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>FM</Value>")));
}

void TestVCReportingReport::needsASchemaFileEndingInXsd_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("another-suffix") << QStringLiteral("schema.xml");
    QTest::newRow("suffix-is-case-sensitive") << QStringLiteral("schema.XSD");
    QTest::newRow("suffix-needs-its-dot") << QStringLiteral("schemaxsd");
    QTest::newRow("suffix-not-at-the-end") << QStringLiteral("schema.xsd.old");
    QTest::newRow("trailing-back-slash") << QStringLiteral("schema.xsd\\");
    QTest::newRow("no-name") << QString();
}

void TestVCReportingReport::needsASchemaFileEndingInXsd()
{
    QFETCH(QString, name);
    ReportingScene scene(declaredValue("string"));
    RecordingReporting& reporting = scene.Reporting();
    const QString folder = QFileInfo(scene.SchemaFile()).path() + QLatin1Char('/');
    QFile::copy(scene.SchemaFile(), folder + name);
    QVERIFY(reporting.SetSchema(folder + name));
    const QSignalSpy prepare(&reporting, &VCReporting::PrepareToReport);
    const QSignalSpy available(&reporting, &VCReporting::ReportDirAndSchemaAvailable);
    const QSignalSpy successful(&reporting, &VCReporting::ReportSuccessful);
    const QSignalSpy failed(&reporting, &VCReporting::ReportNotSuccessful);

    QVERIFY(!reporting.SlotToReport());
    QCOMPARE(prepare.count(), 1);
    QCOMPARE(available.count(), 0);
    QCOMPARE(successful.count(), 0);
    QCOMPARE(failed.count(), 0);
    QCOMPARE(scene.ReportFiles(), QStringList());
    QCOMPARE(reporting.Announced(), QStringList());
}

void TestVCReportingReport::namesTheFileAfterTheClock_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<QString>("name");

    const QDate day(2017, 3, 31);
    QTest::newRow("milliseconds-without-leading-zeros")
        << QDateTime(day, QTime(12, 34, 56, 7)) << QStringLiteral("2017-03-31_12-34-56-7.xml");
    QTest::newRow("three-digits-of-milliseconds")
        << QDateTime(day, QTime(12, 34, 56, 700)) << QStringLiteral("2017-03-31_12-34-56-700.xml");
    QTest::newRow("no-milliseconds") << QDateTime(day, QTime(12, 34, 56))
                                     << QStringLiteral("2017-03-31_12-34-56-0.xml");
    QTest::newRow("everything-else-with-leading-zeros")
        << QDateTime(QDate(2008, 1, 2), QTime(3, 4, 5, 60)) << QStringLiteral("2008-01-02_03-04-05-60.xml");
    QTest::newRow("afternoon-in-24-hours")
        << QDateTime(day, QTime(23, 59, 59, 999)) << QStringLiteral("2017-03-31_23-59-59-999.xml");
}

void TestVCReportingReport::namesTheFileAfterTheClock()
{
    QFETCH(QDateTime, time);
    QFETCH(QString, name);
    ReportingScene scene(declaredValue("string"));
    scene.Clock().Set(time);
    QVERIFY(scene.Reporting().SlotToReport());
    QCOMPARE(scene.ReportFiles(), QStringList(name));
}

void TestVCReportingReport::writesIntoTheDirectory_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("withBackSlashes");

    QTest::newRow("slashes") << QString() << false;
    QTest::newRow("trailing-slash") << QStringLiteral("/") << false;
    QTest::newRow("back-slashes") << QString() << true;
    QTest::newRow("trailing-back-slash") << QStringLiteral("\\") << true;
    QTest::newRow("trailing-back-slash-behind-slashes") << QStringLiteral("\\") << false;
}

void TestVCReportingReport::writesIntoTheDirectory()
{
    QFETCH(QString, end);
    QFETCH(bool, withBackSlashes);
    ReportingScene scene(declaredValue("string"));
    QString directory = scene.Directory();
    if (withBackSlashes) {
        directory.replace(QLatin1Char('/'), QLatin1Char('\\'));
    }
    VCReporting reporting(scene.SchemaFile(), directory + end, nullptr, false, "ToReport", false, QPixmap());
    QVERIFY(reporting.SlotToReport());
    QCOMPARE(scene.ReportFiles(), QStringList(fixedClockFile()));
}

void TestVCReportingReport::preparesBeforeAnythingElse()
{
    ReportingScene scene(declaredValue("string"));
    RecordingReporting& reporting = scene.Reporting();
    QStringList order;
    connect(&reporting, &VCReporting::PrepareToReport, this, [&] {
        order.append(QStringLiteral("prepare"));
        QCOMPARE(reporting.Announced(), QStringList());
        QCOMPARE(scene.ReportFiles(), QStringList());
    });
    connect(&reporting, &VCReporting::ReportSuccessful, this, [&] {
        order.append(QStringLiteral("successful"));
        QCOMPARE(scene.ReportFiles(), QStringList(fixedClockFile()));
    });
    connect(&reporting, &VCReporting::ReportNotSuccessful, this, [&] { order.append(QStringLiteral("failed")); });
    QVERIFY(reporting.SlotToReport());
    QCOMPARE(order, QStringList({QStringLiteral("prepare"), QStringLiteral("successful")}));
}

void TestVCReportingReport::preparesWithChangesOfItems()
{
    ReportingScene scene(declaredValue("string") + declaredElement(QStringLiteral("Site"), QStringLiteral("string")));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("old"));
    scene.AddText(QStringLiteral("Site"), QStringLiteral("Berlin"));
    connect(&scene.Reporting(), &VCReporting::PrepareToReport, this, [&scene] {
        scene.Reporting().DeleteReportData(QStringLiteral("Value"));
        scene.Reporting().DeleteReportData(QStringLiteral("Site"));
        scene.AddText(QStringLiteral("Value"), QStringLiteral("new"));
    });
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>new</Value><Site type='string'/>")));
}

void TestVCReportingReport::preparesWithChangesOfSchemaAndDialog()
{
    ReportingScene scene(declaredValue("string"));
    RecordingReporting& reporting = scene.Reporting();
    reporting.SetSchema(QStringLiteral("missing.xsd"));
    reporting.SetShowCommentDialog(true);
    connect(&reporting, &VCReporting::PrepareToReport, this, [&] {
        reporting.SetSchema(scene.SchemaFile());
        reporting.SetShowCommentDialog(false);
    });
    QVERIFY(reporting.SlotToReport());
    QCOMPARE(scene.ReportFiles(), QStringList(fixedClockFile()));
}

void TestVCReportingReport::slotAnswersThroughTheMetaObject()
{
    ReportingScene scene(declaredValue("string"));
    bool result = false;
    QVERIFY(QMetaObject::invokeMethod(&scene.Reporting(), "SlotToReport", Qt::DirectConnection,
                                      Q_RETURN_ARG(bool, result)));
    QVERIFY(result);
    scene.Reporting().SetSchema(QStringLiteral("missing.xml"));
    QVERIFY(QMetaObject::invokeMethod(&scene.Reporting(), "SlotToReport", Qt::DirectConnection,
                                      Q_RETURN_ARG(bool, result)));
    QVERIFY(!result);
}

void TestVCReportingReport::failureIsToldAndTheFileWrittenAllTheSame_data()
{
    QTest::addColumn<Change>("spoil");

    QTest::newRow("missing-schema") << Change([](ReportingScene& scene) { QFile::remove(scene.SchemaFile()); });
    QTest::newRow("malformed-schema") << Change([](ReportingScene& scene) {
        scene.WriteSchemaFile(QStringLiteral("<xs:schema><xs:element name='Report'></xs:schema>"));
    });
    QTest::newRow("schema-that-lacks-a-type") << Change([](ReportingScene& scene) {
        scene.WriteSchemaFile(reportSchema(QStringLiteral("<xs:element name='Value' type='LevelType'/>")));
    });
}

void TestVCReportingReport::failureIsToldAndTheFileWrittenAllTheSame()
{
    QFETCH(Change, spoil);
    ReportingScene scene(declaredValue("string"));
    spoil(scene);
    RecordingReporting& reporting = scene.Reporting();
    const QSignalSpy prepare(&reporting, &VCReporting::PrepareToReport);
    const QSignalSpy successful(&reporting, &VCReporting::ReportSuccessful);
    const QSignalSpy failed(&reporting, &VCReporting::ReportNotSuccessful);
    QVERIFY(!reporting.SlotToReport());
    QCOMPARE(prepare.count(), 1);
    QCOMPARE(successful.count(), 0);
    QCOMPARE(failed.count(), 1);
    QCOMPARE(scene.ReportFiles(), QStringList(fixedClockFile()));
}

void TestVCReportingReport::unwritableFileIsNoFailure()
{
    ReportingScene scene(declaredValue("string"));
    QVERIFY(QDir(scene.Directory()).removeRecursively());
    const QSignalSpy successful(&scene.Reporting(), &VCReporting::ReportSuccessful);
    QVERIFY(scene.Reporting().SlotToReport());
    QCOMPARE(successful.count(), 1);
    QVERIFY(!QDir(scene.Directory()).exists());
}

void TestVCReportingReport::nextPressWorks_data()
{
    QTest::addColumn<Change>("spoil");
    QTest::addColumn<Change>("repair");

    const Change rewriteSchema
        = [](ReportingScene& scene) { scene.WriteSchemaFile(reportSchema(declaredValue("string"))); };
    QTest::newRow("after-a-schema-of-another-suffix")
        << Change([](ReportingScene& scene) { scene.Reporting().SetSchema(QStringLiteral("schema.xml")); })
        << Change([](ReportingScene& scene) { scene.Reporting().SetSchema(scene.SchemaFile()); });
    QTest::newRow("after-a-missing-schema")
        << Change([](ReportingScene& scene) { QFile::remove(scene.SchemaFile()); }) << rewriteSchema;
    QTest::newRow("after-a-malformed-schema") << Change([](ReportingScene& scene) {
        QString schema = reportSchema(declaredValue("string"));
        scene.WriteSchemaFile(schema.replace(QLatin1String("</xs:schema>"), QLatin1String("<")));
    }) << rewriteSchema;
    QTest::newRow("after-a-schema-that-lacks-a-type") << Change([](ReportingScene& scene) {
        scene.WriteSchemaFile(reportSchema(QStringLiteral("<xs:element name='Value' type='LevelType'/>")));
    }) << rewriteSchema;
    QTest::newRow("after-a-missing-directory")
        << Change([](ReportingScene& scene) { QDir(scene.Directory()).removeRecursively(); })
        << Change([](ReportingScene& scene) { QDir().mkpath(scene.Directory()); });
    QTest::newRow("after-a-value-refused-to-the-end")
        << Change([](ReportingScene& scene) { scene.WriteSchemaFile(reportSchema(declaredValue("boolean"))); })
        << rewriteSchema;
    QTest::newRow("after-a-count-refused") << Change([](ReportingScene& scene) {
        scene.AddText(QStringLiteral("Other"), QStringLiteral("17"), QString(), 7);
        scene.WriteSchemaFile(reportSchema(declaredElement(QStringLiteral("Other"), QStringLiteral("boolean"))));
    }) << rewriteSchema;
}

void TestVCReportingReport::nextPressWorks()
{
    QFETCH(Change, spoil);
    QFETCH(Change, repair);
    ReportingScene scene(declaredValue("string"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    scene.Reporting().show();
    const QSignalSpy successful(&scene.Reporting(), &VCReporting::ReportSuccessful);

    spoil(scene);
    QTest::mouseClick(scene.Reporting().GetReportButton(), Qt::LeftButton);
    repair(scene);
    scene.Reporting().Forget();
    const auto before = successful.count();
    QTest::mouseClick(scene.Reporting().GetReportButton(), Qt::LeftButton);
    QCOMPARE(successful.count(), before + 1);
    QCOMPARE(bodyText(scene.Report()), bodyText(QStringLiteral("<Value>FM</Value>")));
    QCOMPARE(scene.Reporting().Refusals(), QString());
}

void TestVCReportingReport::twoPressesMakeTwoReports()
{
    ReportingScene scene(declaredValue("string"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("first"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>first</Value>")));
    scene.Clock().Advance(1);
    scene.Reporting().ClearReportData();
    scene.AddText(QStringLiteral("Value"), QStringLiteral("second"));
    QVERIFY(scene.Reporting().SlotToReport());

    const QString secondFile = QStringLiteral("2017-03-31_12-34-56-8.xml");
    QCOMPARE(scene.ReportFiles(), QStringList({fixedClockFile(), secondFile}));
    QCOMPARE(bodyText(scene.Report()), bodyText(QStringLiteral("<Value>first</Value>")));
    QCOMPARE(bodyText(documentInFile(QDir(scene.Directory()).filePath(secondFile))),
             bodyText(QStringLiteral("<Value>second</Value>")));
}

void TestVCReportingReport::twoPressesInOneMillisecondMakeOneFile()
{
    ReportingScene scene(declaredValue("string"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("a rather long first value"));
    scene.MakeReport();
    scene.Reporting().ClearReportData();
    scene.AddText(QStringLiteral("Value"), QStringLiteral("second"));
    QCOMPARE(scene.MakeReport(), bodyText(QStringLiteral("<Value>second</Value>")));
    QCOMPARE(scene.ReportFiles(), QStringList(fixedClockFile()));
}

void TestVCReportingReport::dialogWritesTheCommentedReport()
{
    ReportingScene scene(declaredElement(QStringLiteral("Frequency"), QStringLiteral("double"),
                                         declaredAttribute(QStringLiteral("Unit"), QStringLiteral("string")))
                         + declaredElement(QStringLiteral("Level"), QStringLiteral("double")));
    scene.AddText(QStringLiteral("Frequency"), QStringLiteral("98.5"), QStringLiteral("MHz"));
    scene.AddText(QStringLiteral("Level"), QStringLiteral("17"));
    VCReporting& reporting = scene.Reporting();
    reporting.SetShowCommentDialog(true);
    reporting.show();
    const QSignalSpy successful(&reporting, &VCReporting::ReportSuccessful);

    QTest::mouseClick(reporting.GetReportButton(), Qt::LeftButton);
    QCOMPARE(successful.count(), 1);
    QCOMPARE(scene.ReportFiles(), QStringList());
    QCOMPARE(openDialogs().size(), 1);
    const QWidget* const dialog = openDialogs().constFirst();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("ToReport - 2017/03/31 12:34:56"));
    QCOMPARE(labelText(dialog, "m_pFrequencyLabel"), QStringLiteral("98.5 MHz"));
    QCOMPARE(labelText(dialog, "m_pLevelLabel"), QStringLiteral("17"));
    QCOMPARE(labelText(dialog, "m_pAzimuthLabel"), QStringLiteral("---"));

    scene.Clock().Advance(60000); // The file keeps the time of the press.
    type(dialog, "Strong fading");
    click(dialog, "m_pSaveButton");
    QCOMPARE(openDialogs().size(), 0);
    QCOMPARE(scene.ReportFiles(), QStringList(fixedClockFile()));
    QCOMPARE(bodyText(scene.Report()),
             bodyText(QStringLiteral("<Frequency Unit='MHz'>98.5</Frequency><Level>17</Level>"
                                     "<Comment>Strong fading</Comment>")));
}

void TestVCReportingReport::dialogWritesTheUncommentedReport()
{
    ReportingScene scene(declaredValue("string"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    scene.Reporting().SetShowCommentDialog(true);
    QVERIFY(scene.Reporting().SlotToReport());
    click(openDialogs().constFirst(), "m_pNoCommentButton");
    QCOMPARE(bodyText(scene.Report()), bodyText(QStringLiteral("<Value>FM</Value>")));
}

void TestVCReportingReport::dialogOfEachReportAnswersForItself()
{
    ReportingScene scene(declaredElement(QStringLiteral("Level"), QStringLiteral("double")));
    scene.Reporting().SetShowCommentDialog(true);
    for (const char* const level : {"1", "2"}) {
        scene.Reporting().ClearReportData();
        scene.AddText(QStringLiteral("Level"), QLatin1String(level));
        QVERIFY(scene.Reporting().SlotToReport());
        scene.Clock().Advance(1000);
    }
    const QList<QWidget*> dialogs = openDialogs();
    QCOMPARE(dialogs.size(), 2);
    QCOMPARE(labelText(dialogs.at(0), "m_pLevelLabel"), QStringLiteral("1"));
    QCOMPARE(labelText(dialogs.at(1), "m_pLevelLabel"), QStringLiteral("2"));

    const QString secondFile = QStringLiteral("2017-03-31_12-34-57-7.xml");
    type(dialogs.at(1), "later");
    click(dialogs.at(1), "m_pSaveButton");
    QCOMPARE(scene.ReportFiles(), QStringList(secondFile));
    click(dialogs.at(0), "m_pNoCommentButton");
    QCOMPARE(scene.ReportFiles(), QStringList({fixedClockFile(), secondFile}));
    QCOMPARE(bodyText(scene.Report()), bodyText(QStringLiteral("<Level>1</Level>")));
    QCOMPARE(bodyText(documentInFile(QDir(scene.Directory()).filePath(secondFile))),
             bodyText(QStringLiteral("<Level>2</Level><Comment>later</Comment>")));
}

void TestVCReportingReport::dialogOutlivesTheScreen()
{
    ReportingScene scene(declaredValue("string"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    scene.Reporting().SetShowCommentDialog(true);
    QVERIFY(scene.Reporting().SlotToReport());
    scene.DeleteReporting();

    QCOMPARE(openDialogs().size(), 1);
    const QWidget* const dialog = openDialogs().constFirst();
    type(dialog, "late");
    click(dialog, "m_pSaveButton");
    QCOMPARE(bodyText(scene.Report()), bodyText(QStringLiteral("<Value>FM</Value><Comment>late</Comment>")));
}

void TestVCReportingReport::dialogCancelledWritesNothingAndTheNextPressWorks()
{
    ReportingScene scene(declaredValue("string"));
    scene.AddText(QStringLiteral("Value"), QStringLiteral("FM"));
    scene.Reporting().SetShowCommentDialog(true);
    QVERIFY(scene.Reporting().SlotToReport());
    type(openDialogs().constFirst(), "never mind");
    QTimer answering;
    connect(&answering, &QTimer::timeout, this, [&answering] {
        if (auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            answering.stop();
            QTest::mouseClick(question->button(QMessageBox::Cancel), Qt::LeftButton);
        }
    });
    answering.start(0);
    openDialogs().constFirst()->close();
    QVERIFY(!answering.isActive());
    QCOMPARE(openDialogs().size(), 0);
    QCOMPARE(scene.ReportFiles(), QStringList());

    QVERIFY(scene.Reporting().SlotToReport());
    QCOMPARE(openDialogs().size(), 1);
    click(openDialogs().constFirst(), "m_pSaveButton");
    QCOMPARE(bodyText(scene.Report()), bodyText(QStringLiteral("<Value>FM</Value>")));
}

void TestVCReportingReport::dialogIsAskedForEachReport()
{
    ReportingScene scene(declaredValue("string"));
    QVERIFY(scene.Reporting().SlotToReport()); // Without a word no dialog.
    QCOMPARE(openDialogs().size(), 0);
    QCOMPARE(scene.ReportFiles().size(), 1);
    scene.Clock().Advance(1);
    scene.Reporting().SetShowCommentDialog(true);
    QVERIFY(scene.Reporting().SlotToReport());
    QCOMPARE(openDialogs().size(), 1);
    QCOMPARE(scene.ReportFiles().size(), 1);
    click(openDialogs().constFirst(), "m_pNoCommentButton");
    scene.Clock().Advance(1);
    scene.Reporting().SetShowCommentDialog(false);
    QVERIFY(scene.Reporting().SlotToReport());
    QCOMPARE(openDialogs().size(), 0);
    QCOMPARE(scene.ReportFiles().size(), 3);
}

QTEST_MAIN(TestVCReportingReport)
#include "tst_vcreporting_report.moc"
