#include <ctime>
#include <functional>

#include <sys/resource.h>

#include <QTemporaryDir>
#include <QTest>

#include "examine.h"
#include "mend/mend.h"
#include "reading/doctorlimits.h"
#include "render/jsonrendering.h"
#include "render/textrendering.h"

using namespace schemadoctor;

namespace {

using Writer = std::function<QByteArray()>;

// Of the processor's time: the machine may have other work. Sanitizers take their share, and so does a build without
// optimisation; the promise is made for the program as it is installed.
#if defined(__SANITIZE_ADDRESS__)
constexpr long MaxMilliseconds = 20000;
#elif !defined(__OPTIMIZE__)
constexpr long MaxMilliseconds = 6000;
#else
constexpr long MaxMilliseconds = 2000;
#endif

const char Head[] = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n";

QByteArray repeated(int count, const std::function<QByteArray(int)>& part)
{
    QByteArray text;
    for (int i = 0; i < count; ++i) {
        text += part(i);
    }
    return text;
}

QByteArray element(const QByteArray& name, const QByteArray& rest)
{
    return "<xs:element name='" + name + "' " + rest + "/>\n";
}

QByteArray type(const QByteArray& name, const QByteArray& content)
{
    return "<xs:complexType name='" + name + "'><xs:sequence>" + content + "</xs:sequence></xs:complexType>\n";
}

QByteArray report(const QByteArray& content)
{
    return "<xs:element name='Report'><xs:complexType><xs:sequence>\n" + content
        + "</xs:sequence></xs:complexType></xs:element>\n";
}

QByteArray numbered(const char* name, int number)
{
    return name + QByteArray::number(number);
}

} // namespace

Q_DECLARE_METATYPE(Writer)

/// Whatever a file holds, the doctor has an answer soon.
class TestSchemaDoctorLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersSoon_data();
    void answersSoon();
    void mendsSoon_data();
    void mendsSoon();
};

void TestSchemaDoctorLimits::answersSoon_data()
{
    QTest::addColumn<Writer>("body");
    QTest::newRow("thousands-of-types") << Writer([] {
        return report(element("Top", "type='T0'")) + repeated(6000, [](int i) {
                   return type(numbered("T", i),
                               i < 5999 && i % 100 != 99
                                   ? element(numbered("E", i), "type='" + numbered("T", i + 1) + "'")
                                   : element(numbered("E", i), "type='xs:double'"));
               });
    });
    QTest::newRow("chain-deeper-than-the-limit") << Writer([] {
        return report(element("Top", "type='T0'"))
            + repeated(3000,
                       [](int i) {
                           return type(numbered("T", i),
                                       element(numbered("E", i), "type='" + numbered("T", i + 1) + "'"));
                       })
            + type("T3000", element("Last", "type='xs:double'"));
    });
    QTest::newRow("types-that-double-each-other") << Writer([] {
        return report(element("Top", "type='T0'"))
            + repeated(40,
                       [](int i) {
                           const QByteArray next = "type='" + numbered("T", i + 1) + "'";
                           return type(numbered("T", i), element("A", next) + element("B", next));
                       })
            + type("T40", element("Last", "type='xs:double'"));
    });
    QTest::newRow("repeated-half-a-million-times")
        << Writer([] { return report(element("Value", "type='xs:double' minOccurs='499000' maxOccurs='unbounded'")); });
    QTest::newRow("as-many-elements-as-are-shown") << Writer([] {
        return report(element("Value",
                              "type='xs:double' minOccurs='" + QByteArray::number(MaxShownElements - 1)
                                  + "' maxOccurs='unbounded'"));
    });
    QTest::newRow("thousands-of-optional-containers") << Writer([] {
        return report(repeated(5000, [](int i) {
            return "<xs:element name='" + numbered("C", i) + "' minOccurs='0'><xs:complexType><xs:sequence>"
                + element(numbered("V", i), "type='xs:double'") + "</xs:sequence></xs:complexType></xs:element>\n";
        }));
    });
    QTest::newRow("thousands-of-empty-containers") << Writer([] {
        return report(repeated(10000, [](int i) { return element(numbered("E", i), "type='Empty' minOccurs='0'"); }))
            + type("Empty", "");
    });
    QTest::newRow("containers-that-are-repeated-in-each-other") << Writer([] {
        return report(element("Top", "type='T0' maxOccurs='unbounded'")) + repeated(450, [](int i) {
                   const QByteArray next = i < 449
                       ? element(numbered("T", i + 1), "type='" + numbered("T", i + 1) + "' maxOccurs='unbounded'")
                       : QByteArray();
                   return type(numbered("T", i),
                               repeated(60, [](int value) {
                                   return element(numbered("V", value),
                                                  "type='xs:double' minOccurs='0' maxOccurs='unbounded'");
                               }) + next);
               });
    });
    QTest::newRow("as-many-annotations-as-are-shown") << Writer([] {
        return report(repeated(145, [](int i) { return element(numbered("E", i), "type='Word'"); }))
            + "<xs:simpleType name='Word'><xs:restriction base='xs:string'>"
            + repeated(2000, [](int i) { return "<xs:enumeration value='" + numbered("W", i) + "'/>"; })
            + "</xs:restriction></xs:simpleType>";
    });
    QTest::newRow("repeated-without-end")
        << Writer([] { return report(element("Value", "type='xs:double' minOccurs='2000000000'")); });
    QTest::newRow("thousands-of-types-that-contain-each-other") << Writer([] {
        return report(element("Top", "type='T0'")) + repeated(4000, [](int i) {
                   return type(numbered("T", i),
                               element(numbered("E", i), "type='" + numbered("T", (i + 1) % 4000) + "'"));
               });
    });
    QTest::newRow("great-enumeration-used-often") << Writer([] {
        return report(repeated(2000, [](int i) { return element(numbered("E", i), "type='Word'"); }))
            + "<xs:simpleType name='Word'><xs:restriction base='xs:string'>"
            + repeated(9000, [](int i) { return "<xs:enumeration value='" + numbered("W", i) + "'/>"; })
            + "</xs:restriction></xs:simpleType>";
    });
    QTest::newRow("hundred-thousand-findings") << Writer([] {
        return report(
            repeated(30000, [](int i) { return element(numbered("E", i), "type='xs:decimal' nillable='true'"); }));
    });
    QTest::newRow("one-name-thousands-of-times") << Writer([] {
        return report(repeated(20000, [](int i) {
            return element("E", "type='xs:string' minOccurs='0' maxOccurs='" + QByteArray::number(1 + i % 7) + "'");
        }));
    });
    QTest::newRow("nested-tags") << Writer(
        [] { return QByteArray("<xs:sequence>").repeated(20000) + QByteArray("</xs:sequence>").repeated(20000); });
    QTest::newRow("longer-than-what-is-read")
        << Writer([] { return "<!-- " + QByteArray(MaxSchemaBytes, '=').replace("==", "= ") + " -->"; });
    QTest::newRow("groups-that-refer-to-each-other") << Writer([] {
        return report("<xs:group ref='G0'/>")
            + repeated(60,
                       [](int i) {
                           const QByteArray next = "<xs:group ref='" + numbered("G", i + 1) + "'/>";
                           return "<xs:group name='" + numbered("G", i) + "'><xs:sequence>" + next + next
                               + "</xs:sequence></xs:group>\n";
                       })
            + "<xs:group name='G60'><xs:sequence/></xs:group>";
    });
    QTest::newRow("includes-itself-by-many-names") << Writer([] {
        return repeated(900, [](int i) {
            return "<xs:include schemaLocation='" + QByteArray("./").repeated(i + 1) + "types.xsd'/>\n";
        });
    });
}

void TestSchemaDoctorLimits::answersSoon()
{
    QFETCH(Writer, body);
    const QTemporaryDir folder;
    QFile types(folder.filePath(QStringLiteral("types.xsd")));
    QVERIFY(types.open(QIODevice::WriteOnly));
    types.write(Head + repeated(400, [](int i) { return type(numbered("I", i), element("E", "type='xs:double'")); })
                + "</xs:schema>");
    types.close();
    QFile file(folder.filePath(QStringLiteral("schema.xsd")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(Head + body() + "</xs:schema>\n");
    file.close();

    const std::clock_t start = std::clock();
    const Examination examination = examine(file.fileName());
    const QString text = textOf(examination);
    QVERIFY(!jsonOf(examination).isEmpty());
    const long milliseconds = long((std::clock() - start) * 1000 / CLOCKS_PER_SEC);
    QVERIFY(!text.isEmpty());
    QVERIFY(!examination.IsReadable() || !examination.findings.isEmpty() || !examination.tree.IsEmpty());
    QVERIFY2(milliseconds < MaxMilliseconds, qPrintable(QString::number(milliseconds)));
#if !defined(__SANITIZE_ADDRESS__)
    rusage used {};
    getrusage(RUSAGE_SELF, &used);
    QVERIFY2(used.ru_maxrss < 512 * 1024, qPrintable(QString::number(used.ru_maxrss)));
#endif
}

void TestSchemaDoctorLimits::mendsSoon_data()
{
    QTest::addColumn<Writer>("body");
    const QByteArray day = element("Day", "type='xs:date'");
    QTest::newRow("thousands-of-optional-elements") << Writer([day] {
        return report(repeated(9000, [](int i) { return element(numbered("E", i), "type='xs:string' minOccurs='0'"); })
                      + day);
    });
    QTest::newRow("thousands-of-alternatives") << Writer([day] {
        return report("<xs:choice>"
                      + repeated(9000, [](int i) { return element(numbered("E", i), "type='xs:string'"); })
                      + "</xs:choice>" + day);
    });
}

/// libxml2, which needs most of the time, looks at the mended schema only, once that is written.
void TestSchemaDoctorLimits::mendsSoon()
{
    QFETCH(Writer, body);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("schema.xsd")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(Head + body() + "</xs:schema>\n");
    file.close();

    rusage before {};
    getrusage(RUSAGE_CHILDREN, &before);
    const std::clock_t start = std::clock();
    const Mending mending = mend(file.fileName());
    const long milliseconds = long((std::clock() - start) * 1000 / CLOCKS_PER_SEC);
    rusage after {};
    getrusage(RUSAGE_CHILDREN, &after);
    QCOMPARE(mending.refusal, QString());
    QVERIFY(!mending.rewrites.isEmpty());
    QCOMPARE(after.ru_minflt, before.ru_minflt); // No process was started.
    QVERIFY2(milliseconds < MaxMilliseconds, qPrintable(QString::number(milliseconds)));
}

QTEST_GUILESS_MAIN(TestSchemaDoctorLimits)
#include "tst_schemadoctor_limits.moc"
