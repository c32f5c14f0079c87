#include <QtTest>

#include <functional>
#include <memory>

#include <QDir>
#include <QTemporaryDir>

#include "confined.h"

/// What is made to exhaust the process: stack, memory or time. Each piece of content is read, and each schema built
/// from, by a process of its own, on a stack of 1 MB; it must end by itself, within a second of processor time (as an
/// optimised build) and 256 MB. What is beyond a limit is refused with one trace, at every parse.
class TestRobustnessLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsContent_data();
    void readsContent();
    void readsSchemas_data();
    void readsSchemas();
    void readsIncludes_data();
    void readsIncludes();

private:
    QString pathOf(const QString& name) const { return QDir(m_pFolder->path()).filePath(name); }
    QString write(const QString& name, const QString& text) const;

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

namespace {

QString nested(int levels, const QString& core = QString())
{
    return QStringLiteral("<e>").repeated(levels) + core + QStringLiteral("</e>").repeated(levels);
}

QString withDocumentType(const QString& declarations, const QString& content = QString())
{
    return QStringLiteral("<!DOCTYPE r [%1]><r>%2</r>").arg(declarations, content);
}

QString entity(const QString& name, const QString& value)
{
    return QStringLiteral("<!ENTITY %1 '%2'>").arg(name, value);
}

/// Entities e0 to e@p last, each of which holds the one before it ten times, in this order or the other way round.
QString multiplyingEntities(int last, bool isBackwards)
{
    QString entities = entity(QStringLiteral("e0"), QStringLiteral("x"));
    for (int i = 1; i <= last; ++i) {
        const QString ten = entity(QStringLiteral("e%1").arg(i), QStringLiteral("&e%1;").arg(i - 1).repeated(10));
        entities = isBackwards ? ten + entities : entities + ten;
    }
    return entities;
}

QString manyAttributes(int count)
{
    QString attributes;
    for (int i = 0; i < count; ++i) {
        attributes += QStringLiteral(" k%1='v'").arg(i);
    }
    return attributes;
}

QString contentNestingTrace()
{
    return QStringLiteral("XMLReader: The content is nested deeper than 512 elements!");
}

QString expansionTrace()
{
    return QStringLiteral("The entities of the content expand to more than 2000000 characters!");
}

QString entitiesTrace()
{
    return QStringLiteral("The content declares more than 1000 entities!");
}

QString contentModelTrace()
{
    return QStringLiteral("A content model is nested deeper than 512 parentheses!");
}

QString schemaNestingTrace()
{
    return QStringLiteral("The schema is nested deeper than 512 elements!");
}

QString elementsTrace()
{
    return QStringLiteral("The schema lays out more than 500000 elements!");
}

QString attributesTrace()
{
    return QStringLiteral("The schema lays out more than 2000000 attributes!");
}

QString elementNestingTrace()
{
    return QStringLiteral("The schema lays out elements nested deeper than 512!");
}

QString missingTrace()
{
    return QStringLiteral("Missing Element was not found! XmlSchemaHandler terminates...");
}

QString skippedTrace()
{
    return QStringLiteral("Include was skipped, it is already being read!");
}

QString schemaOf(const QString& declarations)
{
    return QStringLiteral("<xs:schema>%1</xs:schema>").arg(declarations);
}

QString named(const QString& name, const QString& content)
{
    return QStringLiteral("<xs:complexType name='%1'>%2</xs:complexType>").arg(name, content);
}

QString global(const QString& name, const QString& content)
{
    return QStringLiteral("<xs:element name='%1'><xs:complexType>%2</xs:complexType></xs:element>").arg(name, content);
}

/// Types T0 to T@p last, each of which holds @p content of the one before it; in this order or the other way round.
QString typeChain(int last, const QString& content, bool isBackwards = false)
{
    QString types = named(QStringLiteral("T0"), QStringLiteral("<xs:element name='leaf' type='xs:int'/>"));
    for (int i = 1; i <= last; ++i) {
        const QString type = named(QStringLiteral("T%1").arg(i), content.arg(i - 1));
        types = isBackwards ? type + types : types + type;
    }
    return types;
}

QString rootOf(const QString& type)
{
    return QStringLiteral("<xs:element name='root' type='%1'/>").arg(type);
}

QString enumeration(int values)
{
    return QStringLiteral("<xs:restriction base='xs:string'>%1</xs:restriction>")
        .arg(QStringLiteral("<xs:enumeration value='v'/>").repeated(values));
}

QString include(const QString& name)
{
    return QStringLiteral("<xs:include schemaLocation='%1'/>").arg(name);
}

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
// Its nodes need nearly three times the memory, and its documents a time that grows with the square of the defaults
// that a document type declares.
constexpr qint64 MostMilliseconds = 20000;
constexpr qint64 MostMegabytes = 768;
#else
#if defined(QT_NO_DEBUG) && !defined(Q_OS_WIN)
constexpr qint64 MostMilliseconds = 1000;
#else
constexpr qint64 MostMilliseconds = 4000; // What is not optimised is slower, and Windows counts the time of others.
#endif
constexpr qint64 MostMegabytes = 256;
#endif

void checkCosts(const ConfinedOutcome& outcome)
{
    if (isSanitized()) {
        return; // See there for the reason.
    }
    qInfo("%lld ms, %lld MB", outcome.milliseconds, outcome.megabytes);
    QVERIFY2(outcome.milliseconds <= MostMilliseconds, qPrintable(QString::number(outcome.milliseconds)));
    QVERIFY2(outcome.megabytes <= MostMegabytes, qPrintable(QString::number(outcome.megabytes)));
}

} // namespace

void TestRobustnessLimits::init()
{
    m_pFolder = std::make_unique<QTemporaryDir>();
}

QString TestRobustnessLimits::write(const QString& name, const QString& text) const
{
    QFile file(pathOf(name));
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
}

void TestRobustnessLimits::readsContent_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("trace"); // at each of the two parses; empty for none
    const QString none;

    QTest::newRow("nesting-of-512") << nested(512) << true << none;
    QTest::newRow("nesting-of-1000") << nested(1000) << false << contentNestingTrace();
    QTest::newRow("nesting-of-10000") << nested(10000) << false << contentNestingTrace();
    QTest::newRow("nesting-of-100000") << nested(100000) << false << contentNestingTrace();
    QTest::newRow("nesting-of-100000-never-closed")
        << QStringLiteral("<e>").repeated(100000) << false << contentNestingTrace();
    QTest::newRow("nesting-of-512-never-closed") << QStringLiteral("<e>").repeated(512) << false << none;
    QTest::newRow("nesting-made-by-entities")
        << withDocumentType(entity(QStringLiteral("e"), nested(300)), nested(300, QStringLiteral("&e;"))) << false
        << contentNestingTrace();
    QTest::newRow("nesting-of-512-under-a-document-type")
        << QStringLiteral("<!DOCTYPE e [<!ENTITY x 'y'>]>") + nested(512, QStringLiteral("&x;")) << true << none;
    QTest::newRow("attributes-50000") << QStringLiteral("<r%1/>").arg(manyAttributes(50000)) << true << none;
    QTest::newRow("text-of-10-megabytes")
        << QStringLiteral("<r>%1</r>").arg(QString(10000000, QLatin1Char('x'))) << true << none;
    QTest::newRow("text-of-a-million-references")
        << QStringLiteral("<r>%1</r>").arg(QStringLiteral("&lt;").repeated(1000000)) << true << none;
    QTest::newRow("attribute-of-1-megabyte")
        << QStringLiteral("<r k='%1'/>").arg(QString(1000000, QLatin1Char('x'))) << true << none;
    QTest::newRow("siblings-100000") << QStringLiteral("<r>%1</r>").arg(QStringLiteral("<a/>").repeated(100000)) << true
                                     << none;
    QTest::newRow("comments-and-instructions-100000")
        << QStringLiteral("<r>%1</r>").arg(QStringLiteral("<!----><?p d?>").repeated(100000)) << true << none;
    QTest::newRow("attribute-defaults-50000") << withDocumentType(
        QStringLiteral("<!ATTLIST r%1>").arg(manyAttributes(50000).replace(QLatin1Char('='), QLatin1String(" CDATA "))))
                                              << true << none;

    QTest::newRow("entity-of-itself") << withDocumentType(entity(QStringLiteral("e"), QStringLiteral("&e;")),
                                                          QStringLiteral("&e;"))
                                      << false << expansionTrace();
    QTest::newRow("entities-of-each-other") << withDocumentType(
        entity(QStringLiteral("a"), QStringLiteral("&b;")) + entity(QStringLiteral("b"), QStringLiteral("&a;")),
        QStringLiteral("&a;")) << false << expansionTrace();
    QTest::newRow("entities-of-each-other-never-referred-to") << withDocumentType(
        entity(QStringLiteral("a"), QStringLiteral("&b;")) + entity(QStringLiteral("b"), QStringLiteral("&a;")))
                                                              << true << none;
    // The parser has a limit for entities that refer to what is declared before them, and for no others.
    QTest::newRow("exponential-expansion-in-order")
        << withDocumentType(multiplyingEntities(9, false), QStringLiteral("&e9;")) << false << none;
    QTest::newRow("exponential-expansion-in-reverse-order")
        << withDocumentType(multiplyingEntities(9, true), QStringLiteral("&e9;")) << false << expansionTrace();
    QTest::newRow("exponential-expansion-in-an-attribute")
        << QStringLiteral("<!DOCTYPE r [%1]><r k='&e9;'/>").arg(multiplyingEntities(9, true)) << false
        << expansionTrace();
    QTest::newRow("exponential-expansion-in-an-attribute-list")
        << withDocumentType(multiplyingEntities(9, true) + QStringLiteral("<!ATTLIST r k CDATA '&e9;'>")) << false
        << expansionTrace();
    const QString longEntity = entity(QStringLiteral("e"), QString(4000, QLatin1Char('x')));
    QTest::newRow("quadratic-expansion-of-10-kilobytes")
        << withDocumentType(longEntity, QStringLiteral("&e;").repeated(2000)) << false << expansionTrace();
    QTest::newRow("quadratic-expansion-of-1-megabyte")
        << withDocumentType(longEntity, QStringLiteral("&e;").repeated(330000)) << false << expansionTrace();
    QTest::newRow("quadratic-expansion-to-elements") << withDocumentType(
        entity(QStringLiteral("e"), QStringLiteral("<a/>").repeated(1000)), QStringLiteral("&e;").repeated(33000))
                                                     << false << expansionTrace();
    QTest::newRow("quadratic-expansion-of-a-parameter-entity") << withDocumentType(
        entity(QStringLiteral("% p"), QStringLiteral("<!--%1-->").arg(QString(4000, QLatin1Char('x'))))
        + QStringLiteral("%p;").repeated(33000)) << false << expansionTrace();
    QTest::newRow("expansion-to-2-megabytes")
        << withDocumentType(longEntity, QStringLiteral("&e;").repeated(500)) << true << none;
    QString entities;
    for (int i = 0; i < 20000; ++i) {
        entities += entity(QStringLiteral("e%1").arg(i), QStringLiteral("x"));
    }
    QTest::newRow("entities-20000") << withDocumentType(entities) << false << entitiesTrace();
    QTest::newRow("content-model-of-100000-parentheses") << withDocumentType(
        QStringLiteral("<!ELEMENT r %1a%2>").arg(QString(100000, QLatin1Char('(')), QString(100000, QLatin1Char(')'))))
                                                         << false << contentModelTrace();
    const QString closedBetween = QStringLiteral("((a),(b),").repeated(513);
    QTest::newRow("content-model-with-closed-parentheses-between")
        << withDocumentType(QStringLiteral("<!ELEMENT r %1c%2>").arg(closedBetween, QString(513, QLatin1Char(')'))))
        << false << contentModelTrace();
    QTest::newRow("parenthesis-that-closes-none-does-not-count")
        << withDocumentType(entity(QStringLiteral("e"), QLatin1Char(')') + QString(512, QLatin1Char('(')))) << true
        << none;
    QTest::newRow("content-model-of-512-parentheses") << withDocumentType(
        QStringLiteral("<!ELEMENT r %1a%2>").arg(QString(512, QLatin1Char('(')), QString(512, QLatin1Char(')'))))
                                                      << true << none;
    QTest::newRow("conditional-sections-100000")
        << withDocumentType(QStringLiteral("<![INCLUDE[").repeated(100000)) << false << none;
}

void TestRobustnessLimits::readsContent()
{
    QFETCH(QString, xml);
    QFETCH(bool, result);
    QFETCH(QString, trace);
    const ConfinedOutcome outcome = readConfined(write(QStringLiteral("content.xml"), xml));
    const QStringList traces = trace.isEmpty() ? QStringList() : QStringList {trace, trace};
    QCOMPARE(outcomeText(outcome), outcomeText(result, traces));
    QCOMPARE(outcome.errors, 0);
    checkCosts(outcome);
}

void TestRobustnessLimits::readsSchemas_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("trace"); // empty for none
    const QString none;
    const QString twice = QStringLiteral("<xs:element name='a' type='T%1'/><xs:element name='b' type='T%1'/>");

    QTest::newRow("types-that-multiply-to-2-to-the-20")
        << typeChain(20, twice) + rootOf(QStringLiteral("T20")) << false << elementsTrace();
    QTest::newRow("later-types-that-multiply-to-2-to-the-20")
        << rootOf(QStringLiteral("T20")) + typeChain(20, twice, true) << false << elementsTrace();
    QTest::newRow("copies-that-multiply-to-2-to-the-30")
        << typeChain(3, QStringLiteral("<xs:element name='e' type='T%1' minOccurs='1024'/>"))
            + rootOf(QStringLiteral("T3"))
        << false << elementsTrace();
    QTest::newRow("minimum-of-10-to-the-9")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='e' type='xs:int' minOccurs='1000000000'/>"))
        << false << elementsTrace();
    QTest::newRow("minimum-of-10-to-the-9-of-a-later-type")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element name='e' type='L' minOccurs='1000000000'/>"))
            + named(QStringLiteral("L"), QStringLiteral("<xs:element name='leaf'/>"))
        << false << elementsTrace();
    QTest::newRow("minimum-of-10-to-the-9-references")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element ref='unit' minOccurs='1000000000'/>"))
            + QStringLiteral("<xs:element name='unit'/>")
        << false << elementsTrace();
    QTest::newRow("element-that-holds-itself")
        << global(QStringLiteral("root"), QStringLiteral("<xs:element ref='root'/>").repeated(100)) << false
        << elementsTrace();
    QTest::newRow("types-that-hold-each-other")
        << named(QStringLiteral("A"), QStringLiteral("<xs:element name='b' type='B'/>"))
            + named(QStringLiteral("B"), QStringLiteral("<xs:element name='a' type='A'/>"))
            + rootOf(QStringLiteral("A"))
        << false << missingTrace();
    const QString oneInTheOther = QStringLiteral("<xs:element name='e' type='T%1'/>");
    QTest::newRow("elements-nested-512") << typeChain(510, oneInTheOther) + rootOf(QStringLiteral("T510")) << true
                                         << none;
    QTest::newRow("elements-nested-513") << typeChain(511, oneInTheOther) + rootOf(QStringLiteral("T511")) << false
                                         << elementNestingTrace();
    QTest::newRow("later-elements-nested-512")
        << rootOf(QStringLiteral("T510")) + typeChain(510, oneInTheOther, true) << true << none;
    QTest::newRow("tags-nested-512") << QStringLiteral("<xs:sequence>").repeated(511)
            + QStringLiteral("</xs:sequence>").repeated(511)
                                     << true << none;
    QTest::newRow("tags-nested-100000") << QStringLiteral("<xs:sequence>").repeated(100000) << false
                                        << schemaNestingTrace();
    QTest::newRow("enumeration-of-100000-values")
        << QStringLiteral("<xs:simpleType name='S'>%1</xs:simpleType>").arg(enumeration(100000))
            + rootOf(QStringLiteral("S"))
        << true << none;
    QTest::newRow("enumeration-of-more-than-100000-values")
        << QStringLiteral("<xs:simpleType name='S'>%1</xs:simpleType>").arg(enumeration(100001))
            + rootOf(QStringLiteral("S"))
        << false << QStringLiteral("An enumeration has more than 100000 values!");
    QTest::newRow("enumeration-of-500-values-on-3900-elements")
        << QStringLiteral("<xs:simpleType name='S'>%1</xs:simpleType>").arg(enumeration(500))
            + global(QStringLiteral("root"), QStringLiteral("<xs:element name='e' type='S' minOccurs='3900'/>"))
        << false << QStringLiteral("The schema gives elements more than 500000 values of enumerations!");
    const QString tenThousand = QStringLiteral("<xs:simpleType name='S'>%1</xs:simpleType>").arg(enumeration(10000));
    const QString valuesThatMultiply
        = global(QStringLiteral("root"), QStringLiteral("<xs:element name='e' type='S' minOccurs='201'/>"));
    QTest::newRow("values-that-multiply") << tenThousand + valuesThatMultiply << false << attributesTrace();
    QTest::newRow("later-values-that-multiply") << valuesThatMultiply + tenThousand << false << attributesTrace();
    QTest::newRow("elements-with-values-that-multiply")
        << tenThousand + named(QStringLiteral("T"), QStringLiteral("<xs:element name='e' type='S'/>"))
            + global(QStringLiteral("root"), QStringLiteral("<xs:element name='t' type='T' minOccurs='201'/>"))
        << false << attributesTrace();
    QString declaredAttributes;
    for (int i = 0; i < 50000; ++i) {
        declaredAttributes += QStringLiteral("<xs:attribute name='k%1' type='xs:int'/>").arg(i);
    }
    QTest::newRow("declared-attributes-50000") << global(QStringLiteral("root"), declaredAttributes) << true << none;
    QTest::newRow("declared-attributes-50000-of-a-type")
        << named(QStringLiteral("T"), QStringLiteral("<xs:extension base='xs:int'/>") + declaredAttributes)
            + global(QStringLiteral("root"), QStringLiteral("<xs:element name='e' type='T'/>"))
        << true << none;
    QTest::newRow("tag-of-50000-attributes")
        << QStringLiteral("<xs:element name='root'%1/>").arg(manyAttributes(50000)) << true << none;
    QTest::newRow("name-of-a-million-letters")
        << QStringLiteral("<xs:element name='%1'/>").arg(QString(1000000, QLatin1Char('x'))) << true << none;
    // In the order of names each becomes usable when its turn is over.
    QString extensions = QStringLiteral("<xs:simpleType name='T23000'><xs:restriction base='xs:int'/></xs:simpleType>");
    for (int i = 22999; i >= 10000; --i) {
        extensions.prepend(
            named(QStringLiteral("T%1").arg(i), QStringLiteral("<xs:extension base='T%1'/>").arg(i + 1)));
    }
    QTest::newRow("types-13000-that-each-extend-a-later-one")
        << extensions + rootOf(QStringLiteral("T10000")) << true << none;
    // A search for an owner of this name meets all texts.
    QTest::newRow("type-called-like-texts")
        << named(QStringLiteral("#text"),
                 QStringLiteral("<xs:element name='e' type='xs:string' minOccurs='0' "
                                "default='x'/>"))
            + named(QStringLiteral("T"), QStringLiteral("<xs:element name='t' type='#text' minOccurs='800'/>"))
            + rootOf(QStringLiteral("T"))
        << true << none;
    // Each leaf has 240 ancestors, of which each might be an owner if it were not for the chain before.
    QString owners;
    QString ancestors = QStringLiteral("<xs:element name='leaf' type='xs:int' minOccurs='5000'/>");
    for (int i = 0; i < 240; ++i) {
        const QString name = QStringLiteral("c%1").arg(i);
        owners = global(name, owners + QStringLiteral("<xs:element name='leaf' type='xs:int' minOccurs='0'/>"));
        ancestors = global(name, ancestors);
    }
    QTest::newRow("leaves-5000-of-240-ancestors-of-later-rank")
        << global(QStringLiteral("root"), owners + ancestors) << true << none;
    QTest::newRow("types-100000-that-nobody-uses")
        << QStringLiteral("<xs:complexType name='T'/>").repeated(100000) + QStringLiteral("<xs:element name='root'/>")
        << true << none;
}

void TestRobustnessLimits::readsSchemas()
{
    QFETCH(QString, declarations);
    QFETCH(bool, result);
    QFETCH(QString, trace);
    const QString report = pathOf(QStringLiteral("report.xml"));
    const ConfinedOutcome outcome = buildConfined(write(QStringLiteral("schema.xsd"), schemaOf(declarations)), report);
    QCOMPARE(outcomeText(outcome), outcomeText(result, trace.isEmpty() ? QStringList() : QStringList {trace}));
    // After a schema that failed the builder goes on with what there is, and leaves a file.
    QVERIFY(QFile::exists(report));
    checkCosts(outcome);
}

void TestRobustnessLimits::readsIncludes_data()
{
    QTest::addColumn<QStringList>("files"); // file0.xsd and so on; the first one is the schema
    QTest::addColumn<bool>("result");
    QTest::addColumn<QString>("trace"); // empty for none
    const QString none;
    const auto fileName = [](int i) { return QStringLiteral("file%1.xsd").arg(i); };
    QStringList chain;
    QStringList doubling;
    for (int i = 1; i <= 1100; ++i) {
        chain.append(include(fileName(i)));
    }
    for (int i = 1; i <= 30; ++i) {
        doubling.append(include(fileName(i)).repeated(2));
    }
    const QString root = QStringLiteral("<xs:element name='root'/>");
    chain.first().append(root);

    QTest::newRow("chain-of-1100-is-cut-off") << chain << true << skippedTrace();
    QStringList many;
    for (int i = 1; i <= 400; ++i) {
        many.append(include(fileName(i)));
    }
    many = QStringList {many.join(QString()) + root};
    for (int i = 1; i <= 400; ++i) {
        QString types;
        for (int j = 0; j < 100; ++j) {
            const QString type = QStringLiteral("T%1-%2").arg(i).arg(j);
            types += rootOf(type) + QStringLiteral("<xs:simpleType name='%1'/>").arg(type);
        }
        many.append(types);
    }
    QTest::newRow("files-400-with-100-later-types-each") << many << true << none;
    many = many.mid(0, 201);
    many.first() = root;
    for (int i = 1; i <= 200; ++i) {
        many[i].prepend(include(QStringLiteral("missing.xsd")));
        many.first().prepend(include(fileName(i)));
    }
    QTest::newRow("including-files-200-with-100-later-types-each") << many << true << none;
    QString badNames;
    QStringList refusals;
    for (int i = 0; i < 20000; ++i) {
        badNames += QStringLiteral("<xs:element name='%1'/>").arg(i);
        refusals.append(QStringLiteral("XmlSchemaHandler: XML does not allow the name \"%1\", it was refused!").arg(i));
    }
    QTest::newRow("includes-990-beside-20000-globals-of-bad-names")
        << QStringList {badNames + include(fileName(1)).repeated(990) + root, QString()} << true
        << refusals.join(QLatin1Char('\n'));
    QTest::newRow("each-twice") << doubling << false << QStringLiteral("The schema consists of more than 1000 files!");
    QTest::newRow("itself") << QStringList {include(fileName(0)) + root} << true << skippedTrace();
    QTest::newRow("each-other") << QStringList {include(fileName(1)) + root, include(fileName(0))} << true
                                << skippedTrace();
    QTest::newRow("file-that-multiplies")
        << QStringList {include(fileName(1)) + root,
                        global(QStringLiteral("e"),
                               QStringLiteral("<xs:element name='e' type='xs:int' minOccurs='1000000000'/>"))}
        << false << elementsTrace();
    QTest::newRow("file-that-is-nested-too-deep")
        << QStringList {include(fileName(1)) + root, QStringLiteral("<a>").repeated(100000)} << false
        << schemaNestingTrace();
}

void TestRobustnessLimits::readsIncludes()
{
    QFETCH(QStringList, files);
    QFETCH(bool, result);
    QFETCH(QString, trace);
    for (int i = 0; i < files.size(); ++i) {
        QVERIFY(!write(QStringLiteral("file%1.xsd").arg(i), schemaOf(files.at(i))).isEmpty());
    }
    const QString report = pathOf(QStringLiteral("report.xml"));
    const ConfinedOutcome outcome = buildConfined(pathOf(QStringLiteral("file0.xsd")), report);
    QCOMPARE(outcomeText(outcome), outcomeText(result, trace.isEmpty() ? QStringList() : QStringList {trace}));
    QVERIFY(QFile::exists(report));
    checkCosts(outcome);
}

QTEST_GUILESS_MAIN(TestRobustnessLimits)
#include "tst_robustness_limits.moc"
