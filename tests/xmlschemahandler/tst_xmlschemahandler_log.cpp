#include <QtTest>

#include <random>

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QXmlSimpleReader>

#include <xmlhelper/limits_p.h>
#include <xmlhelper/schemareadinglog_p.h>

#include "schemafixture.h"
#include "tracecollector.h"

/// What a listener hears of the reading of a schema, and that nothing is read differently because somebody listens.
class TestXmlSchemaHandlerLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data();
    void tells();
    void tellsOfFiles();
    void tellsOfSkippedFiles();
    void tellsOfMalformedFiles();
    void tellsOnlyOfReferencesThatNeverCame();
    void tellsOfRefusals_data();
    void tellsOfRefusals();
    void tellsWhenTheLibraryItselfWouldGoOn();
    void tellsTheLineOfATag();
    void tellsTextAndAttributesAndEnds();
    void tellsWhereElementsComeFrom_data();
    void tellsWhereElementsComeFrom();
    void isToldOfEveryElementAndAttribute();
    void changesNothing_data();
    void changesNothing();
    void changesNothingOfRandomSchemas();
};

namespace {

QString tagText(const SchemaTag& tag)
{
    return tag.file < 0 ? QStringLiteral("-") : QStringLiteral("%1.%2").arg(tag.file).arg(tag.number);
}

QString fileOf(const QString& path)
{
    return path.section(QLatin1Char('/'), -1);
}

/// Writes what it hears in lines.
class LogRecorder : public SchemaReadingLog
{
public:
    QStringList events; ///< of the reading
    QStringList origins; ///< of elements and attributes of the skeleton
    QList<int> lines; ///< of the tags

    void FileBegun(int file, const QString& written, const QString&, const SchemaTag& include, bool isAgain) override
    {
        add(QStringLiteral("file %1 %2 by %3").arg(file).arg(fileOf(written), tagText(include))
            + (isAgain ? QStringLiteral(" again") : QString()));
    }
    void FileSkipped(const QString& written, const QString& opened, const SchemaTag& include, bool isCyclic) override
    {
        QVERIFY(opened.endsWith(written));
        add(QStringLiteral("skipped %1 by %2%3")
                .arg(written, tagText(include), isCyclic ? QStringLiteral(" cyclic") : QString()));
    }
    void FileMissing(int file) override { add(QStringLiteral("missing %1").arg(file)); }
    void FileMalformed(int file, const QString& fault, int line) override
    {
        QVERIFY(!fault.isEmpty());
        add(QStringLiteral("malformed %1 in line %2").arg(file).arg(line));
    }
    void FileEnded(int file) override { add(QStringLiteral("end of file %1").arg(file)); }
    void TagBegun(const SchemaTag& tag, const QString& name, int line) override
    {
        lines.append(line);
        add(QStringLiteral("%1 %2").arg(tagText(tag), name));
    }
    void TagPassedOver(const SchemaTag& tag) override { add(tagText(tag) + QStringLiteral(" passed over")); }
    void FacetRead(const SchemaTag& tag, const QString& name) override
    {
        add(QStringLiteral("%1 facet %2").arg(tagText(tag), name));
    }
    void ReferenceDeferred(const SchemaTag& tag, const QString& name) override
    {
        add(QStringLiteral("%1 waits for %2").arg(tagText(tag), name));
    }
    void Defined(const QString& name, const SchemaTag& tag) override
    {
        add(QStringLiteral("%1 defines %2").arg(tagText(tag), name));
    }
    void GlobalLeftOut(const QString& name, const SchemaTag& tag) override
    {
        add(QStringLiteral("%1 left out %2").arg(tagText(tag), name));
    }
    void NameRefused(const QString& name, const SchemaTag& tag) override
    {
        add(QStringLiteral("%1 refused name %2").arg(tagText(tag), name));
    }
    void Refused(const QString& sentence, qint64 asked, qint64 inForce, qint64 greatest) override
    {
        add(QStringLiteral("refused %1 of %2 of %3: %4").arg(asked).arg(inForce).arg(greatest).arg(sentence));
    }
    void ContentRefused(const QString& sentence) override { add(QStringLiteral("refused content: ") + sentence); }
    void ReferenceNeverCame(const QString& name, const SchemaTag& tag, const QString& waiting, bool isDefined) override
    {
        add(QStringLiteral("%1 in %2 never got %3%4")
                .arg(tagText(tag), waiting, name, isDefined ? QStringLiteral(", which waits") : QString()));
    }
    void UnusedGlobal(int file, const QString& name) override
    {
        add(QStringLiteral("unused at end of %1: %2").arg(file).arg(name));
    }
    void ElementLaidOut(const QDomElement& element, const SchemaTag& declaration, const SchemaTag& reference) override
    {
        const QString by = reference.file < 0 ? QString() : QStringLiteral(" by ") + tagText(reference);
        origins.append(QStringLiteral("%1 from %2").arg(element.tagName(), tagText(declaration)) + by);
    }
    void AttributeLaidOut(const QDomElement& element, const QString& name, AttributeKind kind,
                          const SchemaTag& tag) override
    {
        const QString kinds[] = {QStringLiteral("annotation"), QStringLiteral("declared"), QStringLiteral("facet")};
        origins.append(QStringLiteral("%1 @%2 %3 from %4")
                           .arg(element.tagName(), name, kinds[static_cast<int>(kind)], tagText(tag)));
    }

private:
    void add(const QString& event) { events.append(event); }
};

/// A folder with schema files, and what is heard when one is read.
/// What is left of a schema, in text.
QString remainsOf(const QString& file, SchemaReadingLog* log)
{
    const TraceCollector traces;
    SchemaFixture fixture(file);
    fixture.Handler().SetLog(log);
    const bool isRead = fixture.ReadFileByHandler(file);
    return QStringList({QString::number(isRead), fixture.Skeleton(), fixture.Occurs(), fixture.Choices(),
                        fixture.Definitions(), fixture.References(), traces.Messages()})
        .join(QStringLiteral("\n---\n"));
}

class SchemaFolder
{
public:
    QString Write(const QString& name, const QByteArray& content) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
    }

    void Read(const QString& name, SchemaReadingLog& log) const
    {
        const QString path = m_folder.filePath(name);
        SchemaFixture fixture(path);
        fixture.Handler().SetLog(&log);
        fixture.ReadFileByHandler(path);
        SchemaReadingLog deaf;
        QCOMPARE(remainsOf(path, &deaf), remainsOf(path, nullptr));
    }

private:
    QTemporaryDir m_folder;
};

void hear(const QString& declarations, SchemaReadingLog& log)
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("main.xsd"), schemaOf(declarations).toUtf8());
    folder.Read(QStringLiteral("main.xsd"), log);
}

QString linesOf(const QStringList& lines)
{
    return lines.join(QLatin1Char('\n'));
}

/// Tags at random, most of which mean something: types, globals and references in any order, facets and attributes of
/// all kinds.
class RandomDeclarations
{
public:
    explicit RandomDeclarations(unsigned seed)
        : m_random(seed)
    {
    }

    QString Make()
    {
        QString text;
        for (unsigned count = 1 + below(6); count > 0; --count) {
            text += global();
        }
        return text;
    }

private:
    unsigned below(unsigned bound) { return static_cast<unsigned>(m_random()) % bound; }
    QString oneOf(std::initializer_list<const char*> texts)
    {
        return QString::fromLatin1(*(texts.begin() + below(static_cast<unsigned>(texts.size()))));
    }
    QString name() { return oneOf({"a", "b", "c", "type", "x:y", "dummy", "S", "T"}); }
    QString type() { return oneOf({"xs:int", "xs:string", "S", "T", "U", "a"}); }

    QString global()
    {
        switch (below(6)) {
        case 0:
            return tag("complexType", QStringLiteral("name='T'"), content(0));
        case 1:
            return tag("complexType", QStringLiteral("name='U'"), content(0));
        case 2:
            return tag("simpleType", QStringLiteral("name='S'"), restriction());
        case 3:
            return tag("attribute", QStringLiteral("name='%1'%2").arg(name(), optionalType()), simpleType());
        default:
            return tag("element", QStringLiteral("name='%1'%2").arg(name(), optionalType()), complexType(0));
        }
    }

    QString content(int depth)
    {
        QString text;
        for (unsigned count = below(5); count > 0; --count) {
            text += particle(depth);
        }
        return tag(below(3) == 0 ? "choice" : "sequence", QString(), text);
    }

    QString particle(int depth)
    {
        switch (below(7)) {
        case 0:
            return tag("attribute", QStringLiteral("name='%1'%2").arg(name(), optionalType()), simpleType());
        case 1:
            return tag("attribute", QStringLiteral("ref='%1'").arg(name()), QString());
        case 2:
            return tag("element", QStringLiteral("ref='%1'%2").arg(name(), occurs()), QString());
        case 3:
            return tag("extension", QStringLiteral("base='%1'").arg(type()), QString());
        case 4:
            return tag("element", QStringLiteral("name='%1'%2").arg(name(), occurs()), complexType(depth));
        default:
            return tag("element", QStringLiteral("name='%1' type='%2'%3").arg(name(), type(), occurs()), QString());
        }
    }

    QString complexType(int depth)
    {
        return below(2) == 0 && depth < 3 ? tag("complexType", QString(), content(depth + 1)) : simpleType();
    }
    QString simpleType() { return below(3) == 0 ? tag("simpleType", QString(), restriction()) : QString(); }
    QString optionalType() { return below(2) == 0 ? QStringLiteral(" type='%1'").arg(type()) : QString(); }
    QString occurs() { return oneOf({"", "", " minOccurs='0'", " minOccurs='2'", " maxOccurs='3' default='d'"}); }
    QString restriction()
    {
        return tag("restriction", QStringLiteral("base='%1'").arg(type()),
                   oneOf({"", "<xs:enumeration value='1'/><xs:enumeration value='2'/>", "<xs:minInclusive value='3'/>",
                          "<xs:maxLength value='4'/>"}));
    }
    static QString tag(const char* name, const QString& attributes, const QString& content)
    {
        return QStringLiteral("<xs:%1 %2>%3</xs:%1>").arg(QLatin1String(name), attributes, content);
    }

    std::mt19937 m_random;
};

} // namespace

void TestXmlSchemaHandlerLog::tells_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("events");
    QTest::newRow("tags-and-what-becomes-of-them")
        << QStringLiteral("<xs:annotation/><xs:element name='a'><xs:simpleType><xs:restriction base='xs:string'>"
                          "<xs:enumeration value='x'/><xs:maxLength value='1'/>"
                          "</xs:restriction></xs:simpleType></xs:element>")
        << QStringLiteral("file 0 main.xsd by -\n0.0 xs:schema\n0.0 passed over\n0.1 xs:annotation\n0.1 passed over\n"
                          "0.2 xs:element\n0.2 defines a\n0.3 xs:simpleType\n0.4 xs:restriction\n0.5 xs:enumeration\n"
                          "0.5 facet enumeration1\n0.6 xs:maxLength\n0.6 facet maxLength\nunused at end of 0: a\n"
                          "end of file 0");
    QTest::newRow("definitions-replaced-by-later-ones")
        << QStringLiteral("<xs:simpleType name='a'/><xs:element name='a'/>")
        << QStringLiteral("file 0 main.xsd by -\n0.0 xs:schema\n0.0 passed over\n0.1 xs:simpleType\n0.1 defines a\n"
                          "0.2 xs:element\n0.2 defines a\nunused at end of 0: a\nend of file 0");
    QTest::newRow("references-to-what-comes-later")
        << QStringLiteral("<xs:element name='a' type='T'/><xs:complexType name='T'/>")
        << QStringLiteral("file 0 main.xsd by -\n0.0 xs:schema\n0.0 passed over\n0.1 xs:element\n0.1 defines a\n"
                          "0.1 waits for T\n0.2 xs:complexType\n0.2 defines T\nunused at end of 0: a\nend of file 0");
    QTest::newRow("references-that-never-come")
        << QStringLiteral("<xs:element name='a' type='T'/>")
        << QStringLiteral("file 0 main.xsd by -\n0.0 xs:schema\n0.0 passed over\n0.1 xs:element\n0.1 defines a\n"
                          "0.1 waits for T\n0.1 in a never got T\nend of file 0");
    QTest::newRow("definitions-that-wait-for-each-other")
        << QStringLiteral("<xs:complexType name='S'><xs:element name='s' type='T'/></xs:complexType>"
                          "<xs:complexType name='T'><xs:element name='t' type='S'/></xs:complexType>")
        << QStringLiteral("file 0 main.xsd by -\n0.0 xs:schema\n0.0 passed over\n0.1 xs:complexType\n0.1 defines S\n"
                          "0.2 xs:element\n0.2 waits for T\n0.3 xs:complexType\n0.3 defines T\n0.4 xs:element\n"
                          "0.4 waits for S\n0.4 in T never got S, which waits\n0.2 in S never got T, which waits\n"
                          "end of file 0");
    QTest::newRow("candidates-for-the-root-in-the-order-of-names")
        << QStringLiteral("<xs:element name='b'/><xs:attribute name='a'/>")
        << QStringLiteral("file 0 main.xsd by -\n0.0 xs:schema\n0.0 passed over\n0.1 xs:element\n0.1 defines b\n"
                          "0.2 xs:attribute\n0.2 defines a\nunused at end of 0: a\nunused at end of 0: b\n"
                          "end of file 0");
    QTest::newRow("globals-left-out-for-their-names")
        << QStringLiteral("<xs:element name='a b'/>")
        << QStringLiteral("file 0 main.xsd by -\n0.0 xs:schema\n0.0 passed over\n0.1 xs:element\n0.1 left out a b\n"
                          "0.1 defines a b\nend of file 0");
    QTest::newRow("names-that-refuse-the-schema")
        << QStringLiteral("<xs:element name='a'><xs:complexType><xs:element name='b '/></xs:complexType></xs:element>")
        << QStringLiteral("file 0 main.xsd by -\n0.0 xs:schema\n0.0 passed over\n0.1 xs:element\n0.1 defines a\n"
                          "0.2 xs:complexType\n0.3 xs:element\n0.3 refused name b \nend of file 0");
}

void TestXmlSchemaHandlerLog::tells()
{
    QFETCH(QString, declarations);
    LogRecorder log;
    hear(declarations, log);
    QTEST(linesOf(log.events), "events");
}

void TestXmlSchemaHandlerLog::tellsOfFiles()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("main.xsd"),
                 "<xs:schema><xs:include schemaLocation='types.xsd'/><xs:include schemaLocation='nowhere.xsd'/>"
                 "<xs:include schemaLocation='types.xsd'/></xs:schema>");
    folder.Write(QStringLiteral("types.xsd"), "<xs:schema><xs:element name='a'/></xs:schema>");
    LogRecorder log;
    folder.Read(QStringLiteral("main.xsd"), log);
    QCOMPARE(linesOf(log.events),
             QStringLiteral("file 0 main.xsd by -\n0.0 xs:schema\n0.0 passed over\n0.1 xs:include\n"
                            "file 1 types.xsd by 0.1\n1.0 xs:schema\n1.0 passed over\n1.1 xs:element\n1.1 defines a\n"
                            "unused at end of 1: a\nend of file 1\n0.2 xs:include\nfile 2 nowhere.xsd by 0.2\n"
                            "missing 2\nend of file 2\n0.3 xs:include\nfile 3 types.xsd by 0.3 again\n3.0 xs:schema\n"
                            "3.0 passed over\n3.1 xs:element\n3.1 defines a\nunused at end of 3: a\nend of file 3\n"
                            "end of file 0"));
}

void TestXmlSchemaHandlerLog::tellsOfSkippedFiles()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("main.xsd"), "<xs:include schemaLocation='deep.xsd'/>");
    folder.Write(QStringLiteral("deep.xsd"),
                 "<xs:schema><xs:include schemaLocation='main.xsd'/><xs:include schemaLocation='deeper.xsd'/>"
                 "</xs:schema>");
    Limits limits;
    limits.includeDepth = 2;
    const LimitsInForce inForce(limits);
    LogRecorder log;
    folder.Read(QStringLiteral("main.xsd"), log);
    QVERIFY(log.events.contains(QStringLiteral("skipped main.xsd by 1.1 cyclic")));
    QVERIFY(log.events.contains(QStringLiteral("skipped deeper.xsd by 1.2")));
}

void TestXmlSchemaHandlerLog::tellsOfMalformedFiles()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("main.xsd"),
                 "<xs:schema>\n<xs:include schemaLocation='broken.xsd'/>\n<xs:element name='b' type='a'/></xs:schema>");
    folder.Write(QStringLiteral("broken.xsd"), "<xs:schema>\n<xs:simpleType name='a'/></xs:schema");
    LogRecorder log;
    folder.Read(QStringLiteral("main.xsd"), log);
    QVERIFY(log.events.contains(QStringLiteral("1.1 defines a")));
    QVERIFY(log.events.contains(QStringLiteral("malformed 1 in line 2")));
    QVERIFY(log.events.contains(QStringLiteral("unused at end of 0: b")));
    QVERIFY(!linesOf(log.events).contains(QLatin1String("malformed 0")));
}

/// The included file has served its references before its type is replaced by one that waits.
void TestXmlSchemaHandlerLog::tellsOnlyOfReferencesThatNeverCame()
{
    const SchemaFolder folder;
    folder.Write(QStringLiteral("main.xsd"),
                 "<xs:schema><xs:include schemaLocation='part.xsd'/><xs:complexType name='Later'>"
                 "<xs:element name='b' type='Never'/></xs:complexType></xs:schema>");
    folder.Write(QStringLiteral("part.xsd"),
                 "<xs:schema><xs:complexType name='Holder'><xs:element name='a' type='Later'/></xs:complexType>"
                 "<xs:complexType name='Later'><xs:element name='leaf' type='xs:int'/></xs:complexType></xs:schema>");
    LogRecorder log;
    folder.Read(QStringLiteral("main.xsd"), log);
    QCOMPARE(linesOf(log.events.filter(QStringLiteral("never got"))), QStringLiteral("0.3 in Later never got Never"));
}

void TestXmlSchemaHandlerLog::tellsOfRefusals_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("refusal");
    const QString enumeration = QStringLiteral("<xs:simpleType name='S'><xs:restriction base='xs:int'>%1"
                                               "</xs:restriction></xs:simpleType>");
    const QString value = QStringLiteral("<xs:enumeration value='1'/>");
    const QString used = QStringLiteral("<xs:element name='a'><xs:complexType>"
                                        "<xs:element name='b' type='S' minOccurs='9'/></xs:complexType></xs:element>");
    QTest::newRow("elements-are-counted-with-those-asked-for")
        << QStringLiteral("<xs:element name='a'><xs:complexType><xs:element name='b' minOccurs='700000'/>"
                          "</xs:complexType></xs:element>")
        << QStringLiteral("refused 700001 of 20 of 500000: The schema lays out more than %1 elements!");
    QTest::newRow("nesting-of-tags") << QStringLiteral("<x>").repeated(5) + QStringLiteral("</x>").repeated(5)
                                     << QStringLiteral(
                                            "refused 6 of 5 of 512: The schema is nested deeper than %1 elements!");
    QTest::newRow("values-of-an-enumeration")
        << enumeration.arg(value.repeated(4))
        << QStringLiteral("refused 4 of 3 of 100000: An enumeration has more than %1 values!");
    QTest::newRow("copied-attributes") << enumeration.arg(value.repeated(3))
            + used << QStringLiteral("refused 36 of 30 of 2000000: The schema lays out more than %1 attributes!");
    QTest::newRow("bytes") << QStringLiteral("<!-- %1 -->").arg(QString(5000, QLatin1Char('x')))
                           << QStringLiteral("refused 5032 of 5000 of 9223372036854775807: The schema consists of more "
                                             "than %1 bytes, repeated includes counted again!");
    QTest::newRow("what-the-document-type-declares")
        << QStringLiteral("&e;") << QStringLiteral("refused content: The content declares more than 1 entities!");
}

void TestXmlSchemaHandlerLog::tellsOfRefusals()
{
    QFETCH(QString, declarations);
    QFETCH(QString, refusal);
    Limits limits;
    limits.elements = 20;
    limits.elementNesting = 5;
    limits.enumerationValues = 3;
    limits.attributes = 30;
    limits.schemaBytes = 5000;
    limits.entities = 1;
    const LimitsInForce inForce(limits);
    const SchemaFolder folder;
    const QByteArray type
        = declarations.contains(QLatin1Char('&')) ? "<!DOCTYPE x [<!ENTITY e ''><!ENTITY f ''>]>" : "";
    folder.Write(QStringLiteral("main.xsd"), type + schemaOf(declarations).toUtf8());
    LogRecorder log;
    folder.Read(QStringLiteral("main.xsd"), log);
    const QStringList refusals = log.events.filter(QRegularExpression(QStringLiteral("refused|malformed")));
    QCOMPARE(linesOf(refusals), refusal);
}

/// A tool with smaller limits than the library's own can tell which of them is passed.
void TestXmlSchemaHandlerLog::tellsWhenTheLibraryItselfWouldGoOn()
{
    Limits limits;
    limits.schemaFiles = 1;
    const LimitsInForce inForce(limits);
    LogRecorder log;
    hear(QStringLiteral("<xs:include schemaLocation='a.xsd'/>"), log);
    QVERIFY(log.events.contains(QStringLiteral("refused 2 of 1 of 1000: The schema consists of more than %1 files!")));
}

void TestXmlSchemaHandlerLog::tellsTheLineOfATag()
{
    LogRecorder log;
    hear(QStringLiteral("\n<xs:element\n  name='a'\n/>\n<xs:element name='b'/>"), log);
    QCOMPARE(log.lines, QList<int>({1, 4, 5}));
}

void TestXmlSchemaHandlerLog::tellsTextAndAttributesAndEnds()
{
    class TextRecorder : public SchemaReadingLog
    {
    public:
        QString told;

        void TagBegun(const SchemaTag&, const QString& name, int) override { told += name + QLatin1Char('('); }
        void AttributesRead(const QXmlAttributes& attributes) override
        {
            told += attributes.value(QStringLiteral("xml:lang"));
        }
        void TextRead(const QString& text) override { told += text; }
        void TagEnded() override { told += QLatin1Char(')'); }
    };
    TextRecorder log;
    hear(QStringLiteral("<xs:element name='a'><xs:annotation><xs:documentation xml:lang='de'> eins &amp; <b>zwei</b>"
                        "</xs:documentation></xs:annotation></xs:element>"),
         log);
    QVERIFY2(log.told.contains(QStringLiteral("xs:element(xs:annotation(xs:documentation(de eins & b(zwei))))")),
             qPrintable(log.told));
}

void TestXmlSchemaHandlerLog::tellsWhereElementsComeFrom_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<QString>("origins");
    QTest::newRow("elements-of-their-own-declaration")
        << QStringLiteral("<xs:element name='a'><xs:complexType><xs:element name='b' type='xs:int' minOccurs='2'/>"
                          "</xs:complexType></xs:element>")
        << QStringLiteral(
               "a from 0.1\nb from 0.3\nb @type annotation from 0.3\nb from 0.3\nb @type annotation from 0.3");
    for (const bool isLater : {false, true}) {
        // Tags in front of the type: none or three; behind it: three or none.
        const QString type = QStringLiteral("<xs:complexType name='T'><xs:element name='b'/></xs:complexType>");
        const QString user = QStringLiteral("<xs:element name='a' type='T'/>");
        QTest::newRow(isLater ? "elements-of-a-later-type" : "elements-of-an-earlier-type")
            << (isLater ? user + type : type + user)
            << (isLater ? QStringLiteral("a from 0.1\nb from 0.3") : QStringLiteral("a from 0.3\nb from 0.2"));
        const QString global = QStringLiteral("<xs:element name='b' type='xs:int'/>");
        const QString root = QStringLiteral("<xs:element name='a'><xs:complexType><xs:element ref='b' minOccurs='0'/>"
                                            "</xs:complexType></xs:element>");
        QTest::newRow(isLater ? "references-to-a-later-global" : "references-to-an-earlier-global")
            << (isLater ? root + global : global + root)
            << (isLater ? QStringLiteral("a from 0.1\nb from 0.4 by 0.3\nb @type annotation from 0.4")
                        : QStringLiteral("a from 0.2\nb from 0.1 by 0.4\nb @type annotation from 0.1"));
        const QString attribute = QStringLiteral("<xs:attribute name='c'><xs:simpleType><xs:restriction base='xs:int'>"
                                                 "<xs:minInclusive value='1'/></xs:restriction></xs:simpleType>"
                                                 "</xs:attribute>");
        const QString owner = QStringLiteral("<xs:element name='a'><xs:complexType><xs:attribute ref='c'/>"
                                             "</xs:complexType></xs:element>");
        QTest::newRow(isLater ? "later-global-attributes" : "earlier-global-attributes")
            << (isLater ? owner + attribute : attribute + owner)
            << (isLater ? QStringLiteral("a from 0.1\na @c declared from 0.3\na @minInclusivec facet from 0.7")
                        : QStringLiteral("a from 0.5\na @c declared from 0.7\na @minInclusivec facet from 0.4"));
    }
    QTest::newRow("attributes-of-the-element-itself")
        << QStringLiteral("<xs:element name='a' type='xs:int' default='1'><xs:complexType>"
                          "<xs:attribute name='type' type='xs:string'/></xs:complexType></xs:element>")
        << QStringLiteral("a from 0.1\na @default annotation from 0.1\na @type declared from 0.3");
    QTest::newRow("annotations-of-a-simple-type")
        << QStringLiteral("<xs:simpleType name='S'><xs:restriction base='xs:int'><xs:maxInclusive value='1'/>"
                          "</xs:restriction></xs:simpleType><xs:element name='a' type='S'/>")
        << QStringLiteral("a from 0.4\na @maxInclusive annotation from 0.3\na @type annotation from 0.2");
}

void TestXmlSchemaHandlerLog::tellsWhereElementsComeFrom()
{
    QFETCH(QString, declarations);
    LogRecorder log;
    hear(declarations, log);
    // Attributes of one element come in the order of a hash.
    for (int i = 0; i + 1 < log.origins.size(); ++i) {
        for (int k = 0; k + 1 < log.origins.size(); ++k) {
            const bool areAttributes
                = log.origins.at(k).contains(QLatin1Char('@')) && log.origins.at(k + 1).contains(QLatin1Char('@'));
            if (areAttributes && log.origins.at(k + 1) < log.origins.at(k)) {
                log.origins.swapItemsAt(k, k + 1);
            }
        }
    }
    QTEST(linesOf(log.origins), "origins");
}

void TestXmlSchemaHandlerLog::isToldOfEveryElementAndAttribute()
{
    const SchemaFolder folder;
    for (unsigned seed = 1; seed <= 300; ++seed) {
        const QString file
            = folder.Write(QStringLiteral("main.xsd"), schemaOf(RandomDeclarations(seed).Make()).toUtf8());
        SchemaFixture fixture(file);
        LogRecorder log;
        fixture.Handler().SetLog(&log);
        fixture.ReadFileByHandler(file);
        const QString skeleton = fixture.Skeleton();
        const auto told = log.origins.filter(QStringLiteral(" @")).size();
        QCOMPARE(int(told), int(skeleton.count(QStringLiteral("=\""))));
        QCOMPARE(int(log.origins.size() - told),
                 int(skeleton.count(QLatin1Char('<')) - skeleton.count(QStringLiteral("</"))
                     - skeleton.count(QStringLiteral("<?"))));
    }
}

void TestXmlSchemaHandlerLog::changesNothing_data()
{
    QTest::addColumn<QString>("file");
    for (const char* const folder : {"tests", "examples", "apps"}) {
        QDirIterator schemas(QStringLiteral(PROJECT_FOLDER "/") + QLatin1String(folder), {QStringLiteral("*.xsd")},
                             QDir::Files, QDirIterator::Subdirectories);
        while (schemas.hasNext()) {
            const QString file = schemas.next();
            QTest::newRow(qPrintable(file.mid(int(sizeof(PROJECT_FOLDER))))) << file;
        }
    }
}

void TestXmlSchemaHandlerLog::changesNothing()
{
    QFETCH(QString, file);
    LogRecorder log;
    QCOMPARE(remainsOf(file, &log), remainsOf(file, nullptr));
}

void TestXmlSchemaHandlerLog::changesNothingOfRandomSchemas()
{
    const SchemaFolder folder;
    int laidOut = 0;
    for (unsigned seed = 1; seed <= 2000; ++seed) {
        const QString text = schemaOf(RandomDeclarations(seed).Make());
        const QString file = folder.Write(QStringLiteral("main.xsd"), text.toUtf8());
        LogRecorder log;
        const QString remains = remainsOf(file, &log);
        laidOut += remains.startsWith(QLatin1Char('1')) ? 1 : 0;
        if (remains != remainsOf(file, nullptr)) {
            qInfo("%s", qPrintable(text));
            QCOMPARE(remains, remainsOf(file, nullptr));
        }
    }
    QVERIFY2(laidOut > 500, qPrintable(QString::number(laidOut)));
}

QTEST_GUILESS_MAIN(TestXmlSchemaHandlerLog)
#include "tst_xmlschemahandler_log.moc"
