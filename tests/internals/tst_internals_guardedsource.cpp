#include <QtTest>

#include <QBuffer>
#include <QXmlDefaultHandler>
#include <QXmlSimpleReader>

#include <xmlhelper/constants_p.h>
#include <xmlhelper/guardedsource_p.h>

QT_WARNING_DISABLE_DEPRECATED

/// What a document type may ask for. The rows of sound content show that the guard changes nothing of it.
class TestGuardedSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesSoundContentOn_data();
    void passesSoundContentOn();
    void readsFromADevice();
    void limitsTheCharactersOfEntities_data();
    void limitsTheCharactersOfEntities();
    void refusesReferencesWithoutEnd_data();
    void refusesReferencesWithoutEnd();
    void limitsTheNumberOfEntities();
    void limitsTheNestingOfContentModels_data();
    void limitsTheNestingOfContentModels();
    void deliversNothingBehindARefusal();
    void leavesTheParserWithoutItself();
};

namespace {

class TextCollector : public QXmlDefaultHandler
{
public:
    bool startElement(const QString&, const QString&, const QString&, const QXmlAttributes& attributes) override
    {
        ++m_iElements;
        m_sText += attributes.value(QStringLiteral("k"));
        return true;
    }
    bool characters(const QString& text) override
    {
        m_sText += text;
        return true;
    }

    QString m_sText;
    int m_iElements = 0;
};

struct Outcome
{
    explicit Outcome(const QString& xml)
    {
        QXmlSimpleReader parser;
        parser.setContentHandler(&collector);
        GuardedSource source(xml);
        isParsed = source.Parse(parser);
        refusal = source.GetRefusal();
    }

    TextCollector collector;
    bool isParsed;
    QString refusal;
};

QString withDocumentType(const QString& declarations, const QString& content)
{
    return QStringLiteral("<!DOCTYPE r [%1]><r>%2</r>").arg(declarations, content);
}

QString entity(const QString& name, const QString& value)
{
    return QStringLiteral("<!ENTITY %1 \"%2\">").arg(name, value);
}

QString letters(int count)
{
    return QString(count, QLatin1Char('x'));
}

QString parentheses(int levels)
{
    return QString(levels, QLatin1Char('(')) + QLatin1Char('a') + QString(levels, QLatin1Char(')'));
}

QString expansionRefusal()
{
    return QStringLiteral("The entities of the content expand to more than 2000000 characters!");
}

QString modelRefusal()
{
    return QStringLiteral("A content model is nested deeper than 512 parentheses!");
}

} // namespace

void TestGuardedSource::passesSoundContentOn_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("text");
    const QString x = QStringLiteral("x");

    QTest::newRow("no-document-type") << QStringLiteral("<r k='1'>2 &lt; 3 &amp;#38; 100%x;</r>")
                                      << QStringLiteral("12 < 3 &#38; 100%x;");
    QTest::newRow("empty-document-type") << QStringLiteral("<!DOCTYPE r><r>x</r>") << x;
    QTest::newRow("predefined-references-are-free")
        << withDocumentType(entity(QStringLiteral("e"), x), QStringLiteral("&lt;").repeated(100000))
        << QString(100000, QLatin1Char('<'));
    QTest::newRow("entity-in-a-text") << withDocumentType(entity(QStringLiteral("e"), x),
                                                          QStringLiteral("a&e;b&#99;&e;"))
                                      << QStringLiteral("axbcx");
    QTest::newRow("entity-in-an-attribute")
        << QStringLiteral("<!DOCTYPE r [<!ENTITY e 'x'>]><r k='&e;y'/>") << QStringLiteral("xy");
    QTest::newRow("entity-of-entities") << withDocumentType(
        entity(QStringLiteral("a"), x) + entity(QStringLiteral("b"), QStringLiteral("&a;&a;")), QStringLiteral("&b;"))
                                        << QStringLiteral("xx");
    QTest::newRow("first-declaration-of-an-entity-holds")
        << withDocumentType(entity(QStringLiteral("e"), x) + entity(QStringLiteral("e"), letters(10000)),
                            QStringLiteral("&e;").repeated(1000))
        << letters(1000);
    QTest::newRow("parameter-entity-that-declares-an-entity")
        << withDocumentType(QStringLiteral("<!ENTITY % p \"<!ENTITY e 'x'>\">%p;"), QStringLiteral("&e;")) << x;
    QTest::newRow("text-that-looks-like-a-parameter-entity-of-no-declaration")
        << withDocumentType(entity(QStringLiteral("e"), x), QStringLiteral("100%e;")) << QStringLiteral("100%e;");
    QTest::newRow("parentheses-in-a-text")
        << withDocumentType(entity(QStringLiteral("e"), x), parentheses(10000)) << parentheses(10000);
    QTest::newRow("parentheses-in-comments-are-closed-by-their-ends")
        << withDocumentType(QStringLiteral("<!-- :( -->").repeated(1000), x) << x;
}

void TestGuardedSource::passesSoundContentOn()
{
    QFETCH(QString, xml);
    QFETCH(QString, text);
    const Outcome outcome(xml);
    QVERIFY(outcome.isParsed);
    QCOMPARE(outcome.refusal, QString());
    QCOMPARE(outcome.collector.m_sText, text);
}

void TestGuardedSource::readsFromADevice()
{
    // The device is read in pieces, whose ends fall into references.
    QBuffer device;
    device.setData(
        withDocumentType(entity(QStringLiteral("e"), letters(1001)), QStringLiteral("&e;").repeated(2000)).toUtf8());
    QXmlSimpleReader parser;
    TextCollector collector;
    parser.setContentHandler(&collector);
    GuardedSource source(&device);
    QVERIFY(!source.Parse(parser));
    QCOMPARE(source.GetRefusal(), expansionRefusal());
}

void TestGuardedSource::limitsTheCharactersOfEntities_data()
{
    QTest::addColumn<QString>("xml"); // %1 stands for characters of a value
    QTest::addColumn<int>("greatest"); // how many of them are within the limit

    const QString references = QStringLiteral("&e;").repeated(2000);
    const QString declared = QStringLiteral("<!ENTITY e '%1'>");
    QTest::newRow("references-in-a-text") << withDocumentType(declared, references) << 1000;
    QTest::newRow("references-in-an-attribute")
        << QStringLiteral("<!DOCTYPE r [%1]><r k='%2'/>").arg(declared, references) << 1000;
    QTest::newRow("references-in-several-places")
        << withDocumentType(declared, QStringLiteral("<a k='%1'/>%1").arg(references.left(3000))) << 1000;
    // A value counts with the references in it, "&e;" of three characters each.
    QTest::newRow("references-of-an-entity-to-one-declared-behind-it") << withDocumentType(
        entity(QStringLiteral("a"), QStringLiteral("&e;").repeated(1000)) + declared, QStringLiteral("&a;&a;"))
                                                                       << 997;
    QTest::newRow("references-of-an-attribute-list") << withDocumentType(
        declared + QStringLiteral("<!ATTLIST r k CDATA '") + references + QStringLiteral("'>"), QString())
                                                     << 1000;
    QTest::newRow("references-to-a-parameter-entity") << withDocumentType(
        QStringLiteral("<!ENTITY % p '<!--%1-->'>") + QStringLiteral("%p;").repeated(2000), QString())
                                                      << 993;
}

void TestGuardedSource::limitsTheCharactersOfEntities()
{
    QFETCH(QString, xml);
    QFETCH(int, greatest);
    const Outcome within(QString(xml).replace(QLatin1String("%1"), letters(greatest)));
    QCOMPARE(within.refusal, QString());
    QVERIFY(within.isParsed);

    const Outcome beyond(QString(xml).replace(QLatin1String("%1"), letters(greatest + 1)));
    QCOMPARE(beyond.refusal, expansionRefusal());
    QVERIFY(!beyond.isParsed);
}

void TestGuardedSource::refusesReferencesWithoutEnd_data()
{
    QTest::addColumn<QString>("xml");
    QString doubling = entity(QStringLiteral("e0"), QStringLiteral("x"));
    for (int i = 1; i <= 100; ++i) {
        // Declared before what it refers to: only then does the parser itself set no limit.
        doubling.prepend(entity(QStringLiteral("e%1").arg(i), QStringLiteral("&e%1;&e%1;").arg(i - 1)));
    }

    QTest::newRow("entities-that-double") << withDocumentType(doubling, QStringLiteral("&e100;"));
    QTest::newRow("entities-that-double-in-an-attribute")
        << QStringLiteral("<!DOCTYPE r [%1]><r k='&e100;'/>").arg(doubling);
    QTest::newRow("entity-of-itself") << withDocumentType(entity(QStringLiteral("e"), QStringLiteral("&e;")),
                                                          QStringLiteral("&e;"));
    QTest::newRow("entities-of-each-other") << withDocumentType(
        entity(QStringLiteral("a"), QStringLiteral("&b;")) + entity(QStringLiteral("b"), QStringLiteral("&a;")),
        QStringLiteral("&a;"));
    QTest::newRow("parameter-entities-of-each-other")
        << withDocumentType(QStringLiteral("<!ENTITY % a '&#37;b;'><!ENTITY % b '&#37;a;'>%a;"), QString());
    QTest::newRow("parameter-entity-that-refers-to-what-it-declares") << withDocumentType(
        QStringLiteral("<!ENTITY % p \"<!ENTITY &#37; q '%1'>%2\">%p;")
            .arg(QStringLiteral("<!-- -->").repeated(2000), QStringLiteral("&#37;q;").repeated(2000)),
        QString());
}

void TestGuardedSource::refusesReferencesWithoutEnd()
{
    QFETCH(QString, xml);
    const Outcome outcome(xml);
    QVERIFY(!outcome.isParsed);
    QCOMPARE(outcome.refusal, expansionRefusal());
}

void TestGuardedSource::limitsTheNumberOfEntities()
{
    QString declarations;
    for (int i = 0; i < 1000; ++i) {
        declarations += entity(QStringLiteral("e%1").arg(i), QStringLiteral("x"));
    }
    const Outcome within(withDocumentType(declarations, QStringLiteral("&e0;&e999;")));
    QVERIFY(within.isParsed);
    QCOMPARE(within.collector.m_sText, QStringLiteral("xx"));

    const Outcome beyond(withDocumentType(declarations + entity(QStringLiteral("more"), QString()), QString()));
    QVERIFY(!beyond.isParsed);
    QCOMPARE(beyond.refusal, QStringLiteral("The content declares more than 1000 entities!"));
}

void TestGuardedSource::limitsTheNestingOfContentModels_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<bool>("isWithin");
    const QString model = QStringLiteral("<!ELEMENT r %1>");
    const QString asNumbers = parentheses(513).replace(QLatin1Char('('), QLatin1String("&#40;"));

    QTest::newRow("512-parentheses-are-within") << model.arg(parentheses(512)) << true;
    QTest::newRow("513-parentheses-are-beyond") << model.arg(parentheses(513)) << false;
    QTest::newRow("1000000-parentheses-are-beyond") << model.arg(parentheses(1000000)) << false;
    QTest::newRow("parentheses-without-end-are-beyond") << model.arg(QString(1000000, QLatin1Char('('))) << false;
    QTest::newRow("parentheses-side-by-side-are-within")
        << model.arg(QStringLiteral("((a)%1)").arg(QStringLiteral(",(a)").repeated(1000))) << true;
    QTest::newRow("each-content-model-counts-by-itself")
        << (model.arg(parentheses(512)) + QStringLiteral("<!ELEMENT a %1>").arg(parentheses(512))) << true;
    QTest::newRow("content-model-in-a-parameter-entity")
        << QStringLiteral("<!ENTITY % p '<!ELEMENT r %1>'>%p;").arg(parentheses(513)) << false;
    QTest::newRow("parentheses-written-as-numbers")
        << QStringLiteral("<!ENTITY % p '<!ELEMENT r %1>'>%p;").arg(asNumbers) << false;
    QTest::newRow("parentheses-written-as-numbers-in-an-inner-declaration")
        << QStringLiteral("<!ENTITY % q \"<!ENTITY &#37; p '<!ELEMENT r %1>'>\">%q;%p;")
               .arg(QString(asNumbers).replace(QLatin1Char('&'), QLatin1String("&#38;")))
        << false;
}

void TestGuardedSource::limitsTheNestingOfContentModels()
{
    QFETCH(QString, declarations);
    QFETCH(bool, isWithin);
    const Outcome outcome(withDocumentType(declarations, QString()));
    QCOMPARE(outcome.refusal, isWithin ? QString() : modelRefusal());
    QCOMPARE(outcome.isParsed, isWithin);
}

void TestGuardedSource::deliversNothingBehindARefusal()
{
    const Outcome outcome(
        withDocumentType(entity(QStringLiteral("e"), letters(1000001)), QStringLiteral("<a/>&e;<b/>&e;<c/>&e;<d/>")));
    QVERIFY(!outcome.isParsed);
    QCOMPARE(outcome.collector.m_iElements, 3); // r, a and b
    QCOMPARE(int(outcome.collector.m_sText.size()), 1000001);
}

void TestGuardedSource::leavesTheParserWithoutItself()
{
    QXmlSimpleReader parser;
    {
        GuardedSource source(QStringLiteral("<!DOCTYPE r><r/>"));
        QVERIFY(source.Parse(parser));
    }
    QVERIFY(!parser.lexicalHandler());
    QVERIFY(!parser.declHandler());
}

QTEST_GUILESS_MAIN(TestGuardedSource)
#include "tst_internals_guardedsource.moc"
