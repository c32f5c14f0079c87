#include <QtTest>

#include <memory>

#include <QDir>
#include <QTemporaryDir>

#include "domtext.h"
#include "expectedfile.h"
#include "schemafixture.h"
#include "tracecollector.h"

/// How a schema is read that consists of several files. Each folder of data/includes shows one rule: its main.xsd is
/// read, the skeleton is beside it.
class TestXmlSchemaHandlerIncludes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laysOut_data();
    void laysOut();
    void findsIncludedFiles_data();
    void findsIncludedFiles();
    void findsFilesBelowASchemaPathWithoutFolder();
    void skipsFilesThatAreBeingRead_data();
    void skipsFilesThatAreBeingRead();
    void readsAChainOf64Files();
    void reads1000Files_data();
    void reads1000Files();
    void refusesMoreThan1000Files_data();
    void refusesMoreThan1000Files();
    void numbersChoicesOverAllFiles_data();
    void numbersChoicesOverAllFiles();
    void readsIncludedFilesWithFlagsOfTheirOwn();
    void entersOccurrencesOfAllFiles();
    void marksDefinitionsExpandedByAnIncludedFile();
    void revivesExpandedDefinitionsAtTheEndOfIncludingFilesOnly();
    void countsServedReferencesOfTheIncludingFile();
    void servesNobodyAgainWithAnotherDefinition();
    void tracesTypesThatAnIncludedFileMisses();
    void failsForATypeThatNoFileDefines();
    void keepsFragmentsOfIncludedFilesAsLongAsTheHandler();
    void leavesASkeletonThatOutlivesTheHandler();
};

namespace {

/// A folder with schema files that goes with the test.
class SchemaFolder
{
public:
    QString Path() const { return m_folder.path(); }
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    void Write(const QString& name, const QString& declarations) const
    {
        QDir(m_folder.path()).mkpath(QFileInfo(name).path());
        QFile file(Path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(schemaOf(declarations).toUtf8());
    }

private:
    QTemporaryDir m_folder;
};

/// Works in a folder for as long as it lives.
class CurrentDirectory
{
public:
    explicit CurrentDirectory(const QString& folder)
        : m_sBefore(QDir::currentPath())
    {
        QDir::setCurrent(folder);
    }
    ~CurrentDirectory() { QDir::setCurrent(m_sBefore); }

private:
    Q_DISABLE_COPY(CurrentDirectory)

    QString m_sBefore;
};

QString include(const QString& name)
{
    return QStringLiteral("<xs:include schemaLocation='%1'/>").arg(name);
}

/// A named type with one element, called leaf.
QString type(const QString& name)
{
    return QStringLiteral("<xs:complexType name='%1'><xs:element name='leaf' type='xs:int'/></xs:complexType>")
        .arg(name);
}

QString choice(const QString& typeName, const QString& element)
{
    return QStringLiteral("<xs:complexType name='%1'><xs:choice><xs:element name='%2' type='xs:int'/></xs:choice>"
                          "</xs:complexType>")
        .arg(typeName, element);
}

QString skippedTrace()
{
    return QStringLiteral("Include was skipped, it is already being read!");
}

QString missingTrace()
{
    return QStringLiteral("Missing Element was not found! XmlSchemaHandler terminates...");
}

} // namespace

void TestXmlSchemaHandlerIncludes::laysOut_data()
{
    QTest::addColumn<QString>("folder");
    const QString data = QFINDTESTDATA("data/includes");
    const QStringList folders = QDir(data).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(!folders.isEmpty());
    for (const QString& folder : folders) {
        QTest::newRow(qPrintable(folder)) << data + QLatin1Char('/') + folder;
    }
}

void TestXmlSchemaHandlerIncludes::laysOut()
{
    QFETCH(QString, folder);
    const QString main = folder + QStringLiteral("/main.xsd");
    SchemaFixture schema(main);

    QVERIFY(schema.ReadFile(main));
    COMPARE_WITH_FILE(schema.Skeleton(), folder + QStringLiteral("/main.skeleton"));
    QCOMPARE(schema.Events(), QStringList());

    // The handler itself does without namespaces, which makes no difference.
    SchemaFixture schemaByHandler(main);
    QVERIFY(schemaByHandler.ReadFileByHandler(main));
    QCOMPARE(schemaByHandler.Skeleton(), expectedText(folder + QStringLiteral("/main.skeleton")));
    QCOMPARE(schemaByHandler.Events(), QStringList());
}

void TestXmlSchemaHandlerIncludes::findsIncludedFiles_data()
{
    QTest::addColumn<QString>("schemaPath"); // below the folder, which is %1, or %2 without its first slash
    QTest::addColumn<QString>("schemaLocation");
    QTest::addColumn<bool>("isFound");

    QTest::newRow("schema-file-stands-for-its-folder")
        << QStringLiteral("%1/main.xsd") << QStringLiteral("types.xsd") << true;
    QTest::newRow("folder-of-a-schema-file-comes-before-an-absolute-path")
        << QStringLiteral("%1/main.xsd") << QStringLiteral("%1/types.xsd") << false;
    QTest::newRow("schema-file-without-folder-counts-whole")
        << QStringLiteral("main.xsd") << QStringLiteral("%1/types.xsd") << false;
    QTest::newRow("path-with-another-ending-gives-a-slash-and-no-folder")
        << QStringLiteral("%1") << QStringLiteral("types.xsd") << false;
    QTest::newRow("path-with-another-ending-gives-a-slash")
        << QStringLiteral("%1") << QStringLiteral("%2/types.xsd") << true;
    QTest::newRow("ending-is-case-sensitive") << QStringLiteral("%1/main.XSD") << QStringLiteral("types.xsd") << false;
    QTest::newRow("path-with-an-upper-case-ending-gives-a-slash")
        << QStringLiteral("%1/main.XSD") << QStringLiteral("%2/types.xsd") << true;
    QTest::newRow("path-that-ends-with-a-slash-gives-nothing-and-no-folder")
        << QStringLiteral("%1/") << QStringLiteral("types.xsd") << false;
    QTest::newRow("path-that-ends-with-a-slash-gives-nothing")
        << QStringLiteral("%1/") << QStringLiteral("%1/types.xsd") << true;
}

void TestXmlSchemaHandlerIncludes::findsIncludedFiles()
{
    QFETCH(QString, schemaPath);
    QFETCH(QString, schemaLocation);
    QFETCH(bool, isFound);
    const SchemaFolder folder;
    folder.Write(QStringLiteral("types.xsd"), type(QStringLiteral("Known")));
    const QString top = folder.Path();
    // A path that starts with a slash starts at the root of the current drive, where there are drives.
    const auto rootLength = top.indexOf(QLatin1Char('/')) + 1;
    const CurrentDirectory current(top.left(rootLength));
    const QString topBelowRoot = top.mid(rootLength);
    const auto resolved = [&top, &topBelowRoot](QString path) {
        return path.replace(QStringLiteral("%1"), top).replace(QStringLiteral("%2"), topBelowRoot);
    };

    SchemaFixture schema(resolved(schemaPath));
    QVERIFY(schema.Read(include(resolved(schemaLocation))));
    QCOMPARE(schema.Definitions(), isFound ? QStringLiteral("Known 1 0 [leaf]\n") : QString());
}

void TestXmlSchemaHandlerIncludes::findsFilesBelowASchemaPathWithoutFolder()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("main.xsd/types.xsd"), type(QStringLiteral("Known")));
    const CurrentDirectory current(folder.Path());
    SchemaFixture schema(QStringLiteral("main.xsd"));
    QVERIFY(schema.Read(include(QStringLiteral("types.xsd"))));
    QCOMPARE(schema.Definitions(), QStringLiteral("Known 1 0 [leaf]\n"));
}

void TestXmlSchemaHandlerIncludes::skipsFilesThatAreBeingRead_data()
{
    QTest::addColumn<QString>("location");
    QTest::addColumn<QString>("locationInIncludedFile");
    QTest::addColumn<int>("skipped");

    QTest::newRow("schema-that-includes-itself") << QStringLiteral("main.xsd") << QString() << 1;
    QTest::newRow("schema-that-includes-itself-in-other-words")
        << QStringLiteral("./sub/../main.xsd") << QString() << 1;
    QTest::newRow("included-file-that-includes-the-schema")
        << QStringLiteral("part.xsd") << QStringLiteral("main.xsd") << 1;
    QTest::newRow("included-file-that-includes-itself")
        << QStringLiteral("part.xsd") << QStringLiteral("part.xsd") << 1;
    QTest::newRow("included-file-that-includes-another")
        << QStringLiteral("part.xsd") << QStringLiteral("sub/other.xsd") << 0;
}

void TestXmlSchemaHandlerIncludes::skipsFilesThatAreBeingRead()
{
    QFETCH(QString, location);
    QFETCH(QString, locationInIncludedFile);
    QFETCH(int, skipped);
    const SchemaFolder folder;
    folder.Write(QStringLiteral("main.xsd"), include(location) + type(QStringLiteral("Known")));
    folder.Write(QStringLiteral("part.xsd"), include(locationInIncludedFile));
    folder.Write(QStringLiteral("sub/other.xsd"), type(QStringLiteral("Other")));
    TraceCollector traces;
    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));

    QVERIFY(schema.ReadFile(folder.Path(QStringLiteral("main.xsd"))));
    QCOMPARE(traces.Messages(),
             QStringList(QVector<QString>(skipped, skippedTrace()).toList()).join(QLatin1Char('\n')));
    QVERIFY(schema.Definitions().startsWith(QStringLiteral("Known 1 0 [leaf]\n")));
}

void TestXmlSchemaHandlerIncludes::readsAChainOf64Files()
{
    const SchemaFolder folder;
    const auto fileName = [](int i) { return QStringLiteral("file%1.xsd").arg(i); };
    for (int i = 1; i <= 70; ++i) {
        folder.Write(fileName(i), type(QStringLiteral("T%1").arg(i)) + include(fileName(i + 1)));
    }
    TraceCollector traces;
    SchemaFixture schema(folder.Path(fileName(1)));

    QVERIFY(schema.ReadFile(folder.Path(fileName(1))));
    const QString definitions = schema.Definitions();
    QCOMPARE(definitions.count(QLatin1Char('\n')), 64);
    QVERIFY(definitions.contains(QStringLiteral("T64 1 0")));
    QVERIFY(!definitions.contains(QStringLiteral("T65")));
    QCOMPARE(traces.Messages(), skippedTrace());
}

void TestXmlSchemaHandlerIncludes::reads1000Files_data()
{
    QTest::addColumn<bool>("areThere");

    QTest::newRow("included-files-that-are-there") << true;
    QTest::newRow("missing-included-files") << false;
}

void TestXmlSchemaHandlerIncludes::reads1000Files()
{
    QFETCH(bool, areThere);
    const SchemaFolder folder;
    QString includes;
    for (int i = 2; i <= 1000; ++i) {
        const QString name = QStringLiteral("file%1.xsd").arg(i);
        if (areThere) {
            folder.Write(name, type(QStringLiteral("T%1").arg(i)));
        }
        includes += include(name);
    }
    folder.Write(QStringLiteral("main.xsd"), includes + type(QStringLiteral("Known")));
    TraceCollector traces;
    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));

    QVERIFY(schema.ReadFile(folder.Path(QStringLiteral("main.xsd"))));
    QVERIFY(schema.Definitions().startsWith(QStringLiteral("Known 1 0 [leaf]\n")));
    QCOMPARE(schema.Definitions().count(QLatin1Char('\n')), areThere ? 1000 : 1);
    QCOMPARE(traces.Messages(), QString());
}

void TestXmlSchemaHandlerIncludes::refusesMoreThan1000Files_data()
{
    QTest::addColumn<QString>("inSchema");
    QTest::addColumn<QString>("inPart");

    QTest::newRow("includes-of-the-schema") << include(QStringLiteral("part.xsd")).repeated(1000) << QString();
    QTest::newRow("includes-of-included-files-count")
        << include(QStringLiteral("part.xsd")).repeated(11) << include(QStringLiteral("other.xsd")).repeated(100);
    QTest::newRow("missing-included-files-count") << include(QStringLiteral("missing.xsd")).repeated(1000) << QString();
}

void TestXmlSchemaHandlerIncludes::refusesMoreThan1000Files()
{
    QFETCH(QString, inSchema);
    QFETCH(QString, inPart);
    const SchemaFolder folder;
    folder.Write(QStringLiteral("main.xsd"), inSchema + type(QStringLiteral("Known")));
    folder.Write(QStringLiteral("part.xsd"), inPart);
    folder.Write(QStringLiteral("other.xsd"), QString());
    TraceCollector traces;
    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));

    QVERIFY(!schema.ReadFile(folder.Path(QStringLiteral("main.xsd"))));
    QCOMPARE(schema.Definitions(), QString());
    QCOMPARE(traces.Messages(), QStringLiteral("The schema consists of more than 1000 files!"));
}

void TestXmlSchemaHandlerIncludes::numbersChoicesOverAllFiles_data()
{
    QTest::addColumn<QString>("schema");
    QTest::addColumn<QString>("part");
    QTest::addColumn<QString>("choices");
    const QString a = choice(QStringLiteral("A"), QStringLiteral("a"));
    const QString b = choice(QStringLiteral("B"), QStringLiteral("b"));
    const QString c = choice(QStringLiteral("C"), QStringLiteral("c"));
    const QString part = include(QStringLiteral("part.xsd"));
    const QString other = include(QStringLiteral("other.xsd"));

    QTest::newRow("included-file-goes-on-from-the-including-one") << a + part << b << QStringLiteral("0 a\n1 b\n");
    QTest::newRow("including-file-goes-on-from-the-included-one")
        << part + a + c << b << QStringLiteral("0 b\n1 a\n2 c\n");
    QTest::newRow("numbers-go-through-files-in-files")
        << a + part + c << b + other + b << QStringLiteral("0 a\n1 b\n2 o\n3 b\n4 c\n");
    QTest::newRow("file-included-twice-is-numbered-twice") << part + part << b << QStringLiteral("0 b\n1 b\n");
    QTest::newRow("numbers-of-a-broken-file-are-not-used-again")
        << part + a << b + QStringLiteral("<broken") << QStringLiteral("0 b\n1 a\n");
}

void TestXmlSchemaHandlerIncludes::numbersChoicesOverAllFiles()
{
    QFETCH(QString, schema);
    QFETCH(QString, part);
    QFETCH(QString, choices);
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part.xsd"), part);
    folder.Write(QStringLiteral("other.xsd"), choice(QStringLiteral("O"), QStringLiteral("o")));

    SchemaFixture fixture(folder.Path(QStringLiteral("main.xsd")));
    QVERIFY(fixture.Read(schema));
    QCOMPARE(fixture.Choices(), choices);
}

void TestXmlSchemaHandlerIncludes::readsIncludedFilesWithFlagsOfTheirOwn()
{
    const SchemaFolder folder;
    // The include stands inside a choice of a type, and a choice is still open where the included file breaks off.
    folder.Write(QStringLiteral("part.xsd"),
                 QStringLiteral("<xs:element name='global'><xs:complexType><xs:element name='b' maxOccurs='2'/>"
                                "</xs:complexType></xs:element><xs:choice>"));
    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));

    QVERIFY(schema.Read(QStringLiteral("<xs:complexType name='Known'><xs:choice><xs:element name='a' maxOccurs='2'/>%1"
                                       "<xs:element name='c' maxOccurs='2'/></xs:choice><xs:element name='d'/>"
                                       "</xs:complexType>")
                            .arg(include(QStringLiteral("part.xsd")))));
    QCOMPARE(schema.Choices(), QStringLiteral("0 a\n1 c\n"));
    QCOMPARE(schema.Occurs(), QStringLiteral("a 2: Known\nb 2: global\nc 2: Known\n"));
    QCOMPARE(schema.Definitions(), QStringLiteral("Known 1 0 [a c d]\nglobal 1 0 [global]\n"));
}

void TestXmlSchemaHandlerIncludes::entersOccurrencesOfAllFiles()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part.xsd"),
                 QStringLiteral("<xs:complexType name='Part'><xs:element name='a' maxOccurs='2'/></xs:complexType>"));
    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));

    const QString own
        = QStringLiteral("<xs:complexType name='%1'><xs:element name='a' maxOccurs='2'/></xs:complexType>");
    QVERIFY(schema.Read(own.arg(QStringLiteral("Before")) + include(QStringLiteral("part.xsd"))
                        + own.arg(QStringLiteral("After"))));
    QCOMPARE(schema.Occurs(), QStringLiteral("a 2: Before, Part, After\n"));
}

void TestXmlSchemaHandlerIncludes::marksDefinitionsExpandedByAnIncludedFile()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part.xsd"),
                 QStringLiteral("<xs:complexType name='Holder'><xs:element name='a' type='Later'/></xs:complexType>")
                     + type(QStringLiteral("Later")));
    const QString declarations = include(QStringLiteral("part.xsd"))
        + QStringLiteral("<xs:element name='root'><xs:complexType><xs:element name='b' type='Later'/>"
                         "</xs:complexType></xs:element>");

    SchemaFixture halfRead(folder.Path(QStringLiteral("main.xsd")));
    halfRead.ReadWithoutEnd(declarations);
    QCOMPARE(halfRead.Definitions(), QStringLiteral("Holder 1 0 [a]\nLater 1 -1 [leaf]\nroot 0 1 [root]\n"));
    QCOMPARE(halfRead.References(), QStringLiteral("Later 1: a in Holder\nLater 1: b in root\n"));

    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));
    QVERIFY(schema.Read(declarations));
    QCOMPARE(schema.Definitions(), QStringLiteral("Holder 1 0 [a]\nLater 1 -1 [leaf]\nroot 1 0 [root]\n"));
}

void TestXmlSchemaHandlerIncludes::revivesExpandedDefinitionsAtTheEndOfIncludingFilesOnly()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part1.xsd"),
                 QStringLiteral("<xs:complexType name='Holder'><xs:element name='a' type='Later'/></xs:complexType>")
                     + type(QStringLiteral("Later")));
    folder.Write(QStringLiteral("part2.xsd"),
                 QStringLiteral("<xs:complexType name='Other'><xs:element name='b' type='Later'/></xs:complexType>"));
    const QString declarations = include(QStringLiteral("part1.xsd")) + include(QStringLiteral("part2.xsd"));

    // The second file includes none: what the first one has expanded does not serve its users at its own end.
    SchemaFixture halfRead(folder.Path(QStringLiteral("main.xsd")));
    halfRead.ReadWithoutEnd(declarations);
    QCOMPARE(halfRead.Definitions(), QStringLiteral("Holder 1 0 [a]\nLater 1 -1 [leaf]\nOther 1 1 [b]\n"));

    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));
    QVERIFY(schema.Read(declarations + QStringLiteral("<xs:element name='root' type='Other'/>")));
    QCOMPARE(schema.Definitions(),
             QStringLiteral("Holder 1 0 [a]\nLater 1 -1 [leaf]\nOther 1 -1 [b]\nroot 1 0 [root]\n"));
    QCOMPARE(domText(schema.Handler().GetDocument()->documentElement()),
             QStringLiteral("<root>\n  <b>\n    <leaf type=\"int\"/>\n  </b>\n</root>\n"));
}

void TestXmlSchemaHandlerIncludes::countsServedReferencesOfTheIncludingFile()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part.xsd"), type(QStringLiteral("Later")));
    const QString declarations = QStringLiteral("<xs:complexType name='Holder'><xs:element name='a' type='Later'/>"
                                                "<xs:element name='b' type='Last'/></xs:complexType>")
        + include(QStringLiteral("part.xsd"));

    // In the order of names the end of the included file misses Last before it comes to Later, and serves nothing.
    SchemaFixture halfRead(folder.Path(QStringLiteral("main.xsd")));
    halfRead.ReadWithoutEnd(declarations + type(QStringLiteral("Last")));
    QCOMPARE(halfRead.Definitions(), QStringLiteral("Holder 1 2 [a b]\nLast 1 0 [leaf]\nLater 1 0 [leaf]\n"));

    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));
    QVERIFY(schema.Read(declarations + type(QStringLiteral("Last"))));
    QCOMPARE(schema.Definitions(), QStringLiteral("Holder 1 0 [a b]\nLast 1 -1 [leaf]\nLater 1 -1 [leaf]\n"));
}

void TestXmlSchemaHandlerIncludes::servesNobodyAgainWithAnotherDefinition()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part.xsd"),
                 QStringLiteral("<xs:complexType name='Holder'><xs:element name='a' type='Later'/></xs:complexType>")
                     + type(QStringLiteral("Later")));
    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));
    QVERIFY(schema.Read(include(QStringLiteral("part.xsd"))
                        + QStringLiteral("<xs:complexType name='Later'><xs:element name='other' type='xs:int'/>"
                                         "</xs:complexType><xs:element name='root' type='Holder'/>")));
    QCOMPARE(schema.Definitions(), QStringLiteral("Holder 1 0 [a]\nLater 1 -1 [other]\nroot 1 0 [root]\n"));
    QCOMPARE(domText(schema.Handler().GetDocument()->documentElement()),
             QStringLiteral("<root>\n  <a>\n    <leaf type=\"int\"/>\n  </a>\n</root>\n"));
}

void TestXmlSchemaHandlerIncludes::tracesTypesThatAnIncludedFileMisses()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part.xsd"),
                 QStringLiteral("<xs:complexType name='Holder'><xs:element name='a' type='Later'/></xs:complexType>"));
    TraceCollector traces;
    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));

    // The type comes in the including file: the trace of the included one is all that happens.
    QVERIFY(schema.Read(include(QStringLiteral("part.xsd")) + type(QStringLiteral("Later"))));
    QCOMPARE(traces.Messages(), missingTrace());
}

void TestXmlSchemaHandlerIncludes::failsForATypeThatNoFileDefines()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part.xsd"),
                 QStringLiteral("<xs:complexType name='Holder'><xs:element name='a' type='Never'/></xs:complexType>"));
    TraceCollector traces;
    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));

    QVERIFY(!schema.Read(include(QStringLiteral("part.xsd"))));
    QCOMPARE(traces.Messages(), missingTrace() + QLatin1Char('\n') + missingTrace());
}

void TestXmlSchemaHandlerIncludes::keepsFragmentsOfIncludedFilesAsLongAsTheHandler()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part.xsd"),
                 include(QStringLiteral("other.xsd"))
                     + QStringLiteral("<xs:complexType name='Holder'><xs:element name='a' type='Later' minOccurs='2'/>"
                                      "</xs:complexType>"));
    folder.Write(QStringLiteral("other.xsd"), type(QStringLiteral("Later")));
    SchemaFixture schema(folder.Path(QStringLiteral("main.xsd")));
    QVERIFY(schema.Read(include(QStringLiteral("part.xsd"))));

    UnresolvedTypeMap references;
    OccursMap occurs;
    TypeDefinitionMap definitions;
    ChoiceMap choices;
    QVERIFY(schema.Handler().HandOver(references, occurs, definitions, choices));
    QCOMPARE(domText(definitions[QStringLiteral("Later")].fragment->cloneNode(true)),
             QStringLiteral("<leaf type=\"int\"/>\n"));
    const QString copy = QStringLiteral("<a>\n  <leaf type=\"int\"/>\n</a>\n");
    QCOMPARE(domText(definitions[QStringLiteral("Holder")].fragment->cloneNode(true)), copy + copy);
}

void TestXmlSchemaHandlerIncludes::leavesASkeletonThatOutlivesTheHandler()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("part.xsd"), type(QStringLiteral("Known")));
    auto schema = std::make_unique<SchemaFixture>(folder.Path(QStringLiteral("main.xsd")));
    QVERIFY(
        schema->Read(include(QStringLiteral("part.xsd")) + QStringLiteral("<xs:element name='root' type='Known'/>")));
    QDomDocument skeleton = *schema->Handler().GetDocument();
    const QString before = domText(skeleton);
    schema.reset();

    QCOMPARE(domText(skeleton), before);
    QDomElement root = skeleton.documentElement();
    root.firstChildElement().appendChild(skeleton.createElement(QStringLiteral("more")));
    QCOMPARE(domText(root.cloneNode(true)),
             QStringLiteral("<root>\n  <leaf type=\"int\">\n    <more/>\n  </leaf>\n</root>\n"));
}

QTEST_GUILESS_MAIN(TestXmlSchemaHandlerIncludes)
#include "tst_xmlschemahandler_includes.moc"
