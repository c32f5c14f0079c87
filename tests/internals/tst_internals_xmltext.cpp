#include <QtTest>

#include <QDomDocument>

#include <xmlhelper/xmltext_p.h>

#include "domtext.h"
#include "tracecollector.h"

namespace {

const char Place[] = "Somewhere";

/// A text of code points, halves of surrogate pairs among them.
QString textOf(std::initializer_list<uint> characters)
{
    QString text;
    for (const uint character : characters) {
        if (QChar::requiresSurrogates(character)) {
            text.append(QChar(QChar::highSurrogate(character)));
            text.append(QChar(QChar::lowSurrogate(character)));
        } else {
            text.append(QChar(ushort(character)));
        }
    }
    return text;
}

/// The production Char of W3C XML 1.0, section 2.2.
bool isChar(uint character)
{
    return character == 0x9 || character == 0xA || character == 0xD || (character >= 0x20 && character <= 0xD7FF)
        || (character >= 0xE000 && character <= 0xFFFD) || (character >= 0x10000 && character <= 0x10FFFF);
}

} // namespace

class TestXmlText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsExactlyTheCharactersOfXml();
    void keepsATextThatNeedsNothingWithoutACopy();
    void dropsWhatXmlCannotCarryAndKeepsTheRest_data();
    void dropsWhatXmlCannotCarryAndKeepsTheRest();
    void tracesHowMuchWasDropped();
    void keptTextsAreReadBack();

    void takesExactlyTheNamesOfXml_data();
    void takesExactlyTheNamesOfXml();
    void takesFurtherCharactersBehindTheFirst_data();
    void takesFurtherCharactersBehindTheFirst();
    void tracesTheStartOfARefusedName();
};

void TestXmlText::keepsExactlyTheCharactersOfXml()
{
    for (uint character = 0; character <= 0x10FFFF; ++character) {
        const QString text = textOf({'a', character, 'b'});
        QCOMPARE(isRepresentableText(text), isChar(character));
        QCOMPARE(representableText(text, Place), isChar(character) ? text : QStringLiteral("ab"));
    }
}

void TestXmlText::keepsATextThatNeedsNothingWithoutACopy()
{
    const TraceCollector traces;
    for (const QString& text : {QString(), QStringLiteral("98.5 MHz"), QStringLiteral("\u00E4\u20AC\t\r\n")}) {
        const QString kept = representableText(text, Place);
        QCOMPARE(kept, text);
        QCOMPARE(kept.constData(), text.constData());
    }
    QVERIFY(traces.Traces().empty());
}

void TestXmlText::dropsWhatXmlCannotCarryAndKeepsTheRest_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    const QString ab = QStringLiteral("ab");
    QTest::newRow("null-character") << textOf({'a', 0, 'b'}) << ab;
    QTest::newRow("several-in-a-row") << textOf({'a', 1, 2, 3, 'b'}) << ab;
    QTest::newRow("at-both-ends") << textOf({0xFFFE, 'a', 'b', 0xFFFF}) << ab;
    QTest::newRow("nothing-else") << textOf({0x1B, 0xFFFF}) << QString();
    QTest::newRow("first-half-of-a-pair-at-the-end") << textOf({'a', 'b', 0xD83D}) << ab;
    QTest::newRow("two-first-halves") << textOf({'a', 0xD83D, 0xD83D, 'b'}) << ab;
    QTest::newRow("halves-in-the-wrong-order") << textOf({'a', 0xDE00, 0xD83D, 'b'}) << ab;
    static const QChar pairOfTwo[] = {QChar(0xD83D), QChar(0xDE00)};
    QTest::newRow("pair-across-the-end-of-raw-data") << QString::fromRawData(pairOfTwo, 1) << QString();
    QTest::newRow("half-before-a-pair") << textOf({0xD83D, 0x1F600}) << textOf({0x1F600});
    QTest::newRow("half-behind-a-pair") << textOf({0x1F600, 0xDE00}) << textOf({0x1F600});
}

void TestXmlText::dropsWhatXmlCannotCarryAndKeepsTheRest()
{
    QFETCH(QString, text);
    QVERIFY(!isRepresentableText(text));
    QTEST(representableText(text, Place), "kept");
}

void TestXmlText::tracesHowMuchWasDropped()
{
    const TraceCollector traces;
    representableText(textOf({'a', 1, 'b', 0xD83D, 0}), Place);
    QCOMPARE(traces.Messages(), QStringLiteral("Somewhere: XML cannot carry 3 of the characters, they were dropped!"));
    QCOMPARE(traces.Traces().front().source, QStringLiteral("tools/xmlhelper/xmltext"));
}

void TestXmlText::keptTextsAreReadBack()
{
    QString everything;
    for (uint character = 0; character < 0x20000; ++character) {
        everything += textOf({character});
    }
    const QString kept = representableText(everything, Place);
    QDomDocument document;
    document.appendChild(document.createElement(QStringLiteral("r"))).appendChild(document.createTextNode(kept));
    QCOMPARE(documentOf(document.toString(-1)).documentElement().text(), kept);
}

void TestXmlText::takesExactlyTheNamesOfXml_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isAllowed");
    QTest::newRow("letters") << QStringLiteral("Frequency") << true;
    QTest::newRow("letters-beyond-ascii") << QStringLiteral("H\u00F6he") << true;
    QTest::newRow("letters-beyond-the-basic-plane") << textOf({0x20000, 0xEFFFF}) << true;
    QTest::newRow("underscore-in-front") << QStringLiteral("_a") << true;
    QTest::newRow("colon") << QStringLiteral("xsi:type") << true;
    QTest::newRow("digits-dots-and-dashes-behind") << QStringLiteral("a-1.2") << true;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("digit-in-front") << QStringLiteral("1a") << false;
    QTest::newRow("dash-in-front") << QStringLiteral("-a") << false;
    QTest::newRow("dot-in-front") << QStringLiteral(".a") << false;
    QTest::newRow("blank-within") << QStringLiteral("a b") << false;
    QTest::newRow("slash-within") << QStringLiteral("a/b") << false;
    QTest::newRow("tag-within") << QStringLiteral("a><b") << false;
    QTest::newRow("control-character-within") << textOf({'a', 1}) << false;
    QTest::newRow("half-of-a-pair-within") << textOf({'a', 0xD83D, 'b'}) << false;
    QTest::newRow("plane-beyond-the-letters") << textOf({0xF0000}) << false;
}

void TestXmlText::takesExactlyTheNamesOfXml()
{
    QFETCH(QString, name);
    QTEST(isRepresentableName(name, Place), "isAllowed");
}

void TestXmlText::takesFurtherCharactersBehindTheFirst_data()
{
    QTest::addColumn<uint>("character");
    QTest::addColumn<bool>("isFirstAllowed");
    QTest::addColumn<bool>("isFurtherAllowed");
    const auto row = [](uint character, bool isFirstAllowed, bool isFurtherAllowed) {
        QTest::addRow("character-%x", character) << character << isFirstAllowed << isFurtherAllowed;
    };
    // The first and last character of each range of the productions NameStartChar and NameChar of W3C XML 1.0, section
    // 2.3, and their neighbours.
    for (const uint letter :
         {0x3Au,   0x41u,   0x5Au,   0x5Fu,   0x61u,   0x7Au,   0xC0u,   0xD6u,   0xD8u,    0xF6u,
          0xF8u,   0x2FFu,  0x370u,  0x37Du,  0x37Fu,  0x1FFFu, 0x200Cu, 0x200Du, 0x2070u,  0x218Fu,
          0x2C00u, 0x2FEFu, 0x3001u, 0xD7FFu, 0xF900u, 0xFDCFu, 0xFDF0u, 0xFFFDu, 0x10000u, 0xEFFFFu}) {
        row(letter, true, true);
    }
    for (const uint further : {0x2Du, 0x2Eu, 0x30u, 0x39u, 0xB7u, 0x300u, 0x36Fu, 0x203Fu, 0x2040u}) {
        row(further, false, true);
    }
    for (const uint neither :
         {0x2Cu,   0x2Fu,   0x3Bu,   0x40u,   0x5Bu,   0x5Eu,   0x60u,   0x7Bu,   0xB6u,   0xB8u,
          0xBFu,   0xD7u,   0xF7u,   0x37Eu,  0x2000u, 0x200Bu, 0x200Eu, 0x203Eu, 0x2041u, 0x206Fu,
          0x2190u, 0x2BFFu, 0x2FF0u, 0x3000u, 0xE000u, 0xF8FFu, 0xFDD0u, 0xFDEFu, 0xFFFEu, 0xF0000u}) {
        row(neither, false, false);
    }
}

void TestXmlText::takesFurtherCharactersBehindTheFirst()
{
    QFETCH(uint, character);
    QTEST(isRepresentableName(textOf({character}), Place), "isFirstAllowed");
    QTEST(isRepresentableName(textOf({'a', character}), Place), "isFurtherAllowed");
}

void TestXmlText::tracesTheStartOfARefusedName()
{
    const TraceCollector traces;
    isRepresentableName(QStringLiteral("a b") + QString(1000, QLatin1Char('c')), Place);
    isRepresentableName(QStringLiteral("a"), Place);
    QCOMPARE(traces.Messages(),
             QStringLiteral("Somewhere: XML does not allow the name \"a b%1\", it was refused!")
                 .arg(QString(77, QLatin1Char('c'))));
}

QTEST_GUILESS_MAIN(TestXmlText)
#include "tst_internals_xmltext.moc"
