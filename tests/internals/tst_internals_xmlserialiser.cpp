#include <QtTest>

#include <QBuffer>
#include <QTextStream>

#include <xmlhelper/limits_p.h>
#include <xmlhelper/xmlserialiser_p.h>

#include "cputime.h"
#include "domtext.h"
#include "randomdocument.h"
#include "randomtree.h"
#include "tracecollector.h"

class TestXmlSerialiser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesWhatQtSaves_data();
    void savesWhatQtSaves();
    void savesDeclarationsAsQtDoes_data();
    void savesDeclarationsAsQtDoes();
    void savesInTheDeclaredEncoding_data();
    void savesInTheDeclaredEncoding();
    void savesDocumentsWithinAnotherAsQtDoes();
    void savesRandomDocumentsAsQtDoes();
    void savesLongTexts_data();
    void savesLongTexts();
    void savesNothingOfANullNode();
    void stopsAtTheLimit();
    void countsEveryByte();
    void stopsWhenTheDeviceFails();
    void savesAnyDepth();
    void takesATimeThatGrowsWithTheText_data();
    void takesATimeThatGrowsWithTheText();
    void writesSmallPieces();
};

namespace {

QString savedByQt(const QDomNode& node, int indent)
{
    QString text;
    QTextStream stream(&text);
    node.save(stream, indent);
    stream.flush();
    return text;
}

QString savedByTheLibrary(const QDomNode& node, int indent)
{
    QString text;
    QTextStream stream(&text);
    return serialise(node, stream, indent) ? text : QStringLiteral("not whole");
}

QByteArray bytesByQt(const QDomNode& node)
{
    QByteArray bytes;
    QTextStream stream(&bytes);
    node.save(stream, 4);
    stream.flush();
    return bytes;
}

QByteArray bytesByTheLibrary(const QDomNode& node)
{
    QByteArray bytes;
    QTextStream stream(&bytes);
    return serialise(node, stream, 4) ? bytes : QByteArray("not whole");
}

/// Takes everything and remembers how much of it came at once.
class PieceMeter : public QIODevice
{
public:
    PieceMeter() { setOpenMode(WriteOnly | Unbuffered); }

    qint64 longest = 0;

private:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override
    {
        longest = std::max(longest, size);
        return size;
    }
};

int numberOf(const char* variable, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? number : otherwise;
}

/// Whether both save @p node alike, and in which words they do not.
QString differenceAt(const QDomNode& node, int indent)
{
    const QString expected = savedByQt(node, indent);
    const QString saved = savedByTheLibrary(node, indent);
    return saved == expected
        ? QString()
        : QStringLiteral("indent %1\nby Qt:\n%2\nby the library:\n%3").arg(indent).arg(expected, saved);
}

/// The first difference below @p top, of the whole and of each node by itself.
QString firstDifferenceIn(const QDomNode& top)
{
    for (const int indent : {0, 1, 4, -1}) {
        const QString difference = differenceAt(top, indent);
        if (!difference.isEmpty()) {
            return difference;
        }
    }
    int indent = 0;
    for (const QDomNode& node : nodesOf(top)) {
        const QString difference = differenceAt(node, indent++ % 6 - 1);
        if (!difference.isEmpty()) {
            return difference;
        }
    }
    return QString();
}

/// The parts of a document that hang in no list of children.
std::vector<QDomNode> partsBesideTheTree(const QDomDocument& document)
{
    const QDomDocumentType type = document.doctype();
    std::vector<QDomNode> parts {type};
    for (const QDomNamedNodeMap& map : {type.entities(), type.notations(), document.documentElement().attributes()}) {
        for (int i = 0; i < map.count(); ++i) {
            parts.push_back(map.item(i));
        }
    }
    return parts;
}

} // namespace

void TestXmlSerialiser::savesWhatQtSaves_data()
{
    QTest::addColumn<QString>("xml");
    QTest::newRow("empty-element") << QStringLiteral("<r/>");
    QTest::newRow("declaration-only") << QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>");
    QTest::newRow("children-and-texts") << QStringLiteral("<r><a>x</a><b/>text<c><d/></c>text</r>");
    QTest::newRow("comments-and-instructions")
        << QStringLiteral("<!--c--><?p d?><r>x<!--c--><?p d?>y<!--c--></r><!--c-->");
    QTest::newRow("sections") << QStringLiteral("<r><![CDATA[<&>]]><a/><![CDATA[x]]></r>");
    QTest::newRow("escapes") << QStringLiteral(
        "<r k='&lt;&gt;&amp;&quot;&apos;&#10;&#13;&#9;'>&lt;&gt;&amp;\"'&#13;]]&gt;</r>");
    QTest::newRow("document-type") << QStringLiteral("<!DOCTYPE r PUBLIC 'p' 's' [<!NOTATION n SYSTEM 's'>"
                                                     "<!ENTITY e SYSTEM 's' NDATA n>]><r/>");
    QTest::newRow("many-attributes-of-a-leaf") << QStringLiteral("<r><a/></r>");
}

void TestXmlSerialiser::savesWhatQtSaves()
{
    QFETCH(QString, xml);
    QDomDocument document;
    document.setContent(xml);
    QDomElement leaf = document.documentElement().firstChildElement();
    for (int i = 0; i < 2000; ++i) {
        leaf.setAttribute(QStringLiteral("name%1").arg(i), QStringLiteral("<value> \"%1\"").arg(i));
    }
    QCOMPARE(firstDifferenceIn(document), QString());
}

void TestXmlSerialiser::savesDeclarationsAsQtDoes_data()
{
    QTest::addColumn<QString>("declarations");
    QTest::addColumn<int>("nodes"); // what Qt makes of them
    QTest::newRow("notations") << QStringLiteral("<!NOTATION a SYSTEM 's'><!NOTATION b PUBLIC 'p'>"
                                                 "<!NOTATION c PUBLIC 'p' \"it's\"><!NOTATION d SYSTEM ''>")
                               << 4;
    QTest::newRow("entities-of-files") << QStringLiteral("<!ENTITY a SYSTEM \"it's\"><!ENTITY b PUBLIC 'p' 's'>") << 2;
    QTest::newRow("entities-of-a-notation")
        << QStringLiteral("<!NOTATION n SYSTEM 's'><!ENTITY a SYSTEM 's' NDATA n><!ENTITY b PUBLIC 'p' 's' NDATA n>")
        << 3;
    QTest::newRow("parameter-entities") << QStringLiteral("<!ENTITY % a SYSTEM 's'><!ENTITY % b PUBLIC 'p' 's'>") << 2;
    QTest::newRow("texts-of-entities-are-not-kept") << QStringLiteral("<!ENTITY a 'text'>") << 0;
}

/// In their document, each by itself, and moved among the elements.
void TestXmlSerialiser::savesDeclarationsAsQtDoes()
{
    QFETCH(QString, declarations);
    QFETCH(int, nodes);
    QDomDocument document = documentOf(QStringLiteral("<!DOCTYPE r [%1]><r><a/>text</r>").arg(declarations));
    QCOMPARE(firstDifferenceIn(document), QString());
    const std::vector<QDomNode> parts = partsBesideTheTree(document);
    QCOMPARE(int(parts.size()), 1 + nodes);
    for (const QDomNode& part : parts) {
        QCOMPARE(firstDifferenceIn(part), QString());
        document.documentElement().insertBefore(part, document.documentElement().lastChild());
        QCOMPARE(firstDifferenceIn(document), QString());
    }
}

void TestXmlSerialiser::savesInTheDeclaredEncoding_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<bool>("isUnicode");
    QTest::newRow("none") << QString() << true;
    QTest::newRow("usual") << QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>") << true;
    QTest::newRow("in-other-quotes") << QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>") << true;
    QTest::newRow("without-encoding") << QStringLiteral("<?xml version='1.0'?>") << true;
    QTest::newRow("standing-alone") << QStringLiteral("<?xml version='1.0' encoding='UTF-8' standalone='yes'?>")
                                    << true;
    QTest::newRow("latin-1") << QStringLiteral("<?xml version='1.0' encoding='ISO-8859-1'?>") << false;
    QTest::newRow("another-instruction-of-that-text") << QStringLiteral("<?p version='1.0' encoding='UTF-8'?>") << true;
}

/// Whatever the stream would have written by itself.
void TestXmlSerialiser::savesInTheDeclaredEncoding()
{
    QFETCH(QString, declaration);
    QFETCH(bool, isUnicode);
    const QDomDocument document = documentOf(declaration + QStringLiteral("<r>\u00e4</r>"));
    QCOMPARE(document.firstChild().isProcessingInstruction(), !declaration.isEmpty());
    QByteArray bytes;
    QTextStream stream(&bytes);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    stream.setCodec(isUnicode ? "ISO-8859-1" : "UTF-8");
#else
    stream.setEncoding(isUnicode ? QStringConverter::Latin1 : QStringConverter::Utf8);
#endif
    QVERIFY(serialise(document, stream, 4));
    QVERIFY2(bytes.contains(isUnicode ? "<r>\xC3\xA4</r>" : "<r>\xE4</r>"), bytes.constData());
}

void TestXmlSerialiser::savesDocumentsWithinAnotherAsQtDoes()
{
    for (const QString& inner : {QStringLiteral("<a/>"), QStringLiteral("<?p d?><a><b/></a><!--c-->"), QString()}) {
        QDomDocument document = documentOf(QStringLiteral("<r><a/>text<b/>text</r>"));
        QDomElement root = document.documentElement();
        for (QDomNode child = root.firstChild(); !child.isNull(); child = child.nextSibling()) {
            QDomDocument other;
            other.setContent(inner);
            root.insertBefore(other, child);
        }
        QDomDocument last = documentOf(QStringLiteral("<last/>"));
        last.appendChild(last.createTextNode(QStringLiteral("text")));
        root.appendChild(last);
        QCOMPARE(root.childNodes().count(), 9);
        QCOMPARE(firstDifferenceIn(document), QString());
    }
}

void TestXmlSerialiser::savesRandomDocumentsAsQtDoes()
{
    const auto seed = static_cast<unsigned>(numberOf("XMLHELPER_SERIALISER_SEED", 1));
    const int documents = numberOf("XMLHELPER_SERIALISER_DOCUMENTS", 1000);
    for (int i = 0; i < documents; ++i) {
        const unsigned ownSeed = seed + static_cast<unsigned>(i);
        RandomDocument random(ownSeed);
        QDomDocument document = random.Make();
        QString difference = firstDifferenceIn(document);
        for (const QDomNode& part : partsBesideTheTree(document)) {
            difference += differenceAt(part, 4);
        }
        difference += bytesByTheLibrary(document) == bytesByQt(document) ? QString() : QStringLiteral("other bytes");
        difference += firstDifferenceIn(random.TakeFragment(document));
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("XMLHELPER_SERIALISER_SEED=%1: %2").arg(ownSeed).arg(difference)));
    }
}

void TestXmlSerialiser::savesLongTexts_data()
{
    QTest::addColumn<QString>("text");
    // Behind what comes before the text, the first piece ends in the middle of these.
    const int piece = 2 * 1024 * 1024;
    for (const int before : {piece - 7, piece - 6, piece - 5, piece - 4}) {
        const QString plain(before, QLatin1Char('x'));
        QTest::addRow("surrogate-pairs-behind-%d", before) << plain + QString::fromUtf8("\xF0\x9F\x98\x80").repeated(3);
        QTest::addRow("ends-of-sections-behind-%d", before) << plain + QStringLiteral("]]>").repeated(3);
    }
    QTest::newRow("three-pieces") << (QString(piece / 10, QLatin1Char('x')) + QStringLiteral("<&\r ]]>")).repeated(25);
}

void TestXmlSerialiser::savesLongTexts()
{
    QFETCH(QString, text);
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    document.documentElement().appendChild(document.createTextNode(text));
    document.documentElement().setAttribute(QStringLiteral("k"), text);
    // Qt would need minutes under a sanitizer.
    QString escaped = text;
    escaped.replace(QStringLiteral("&"), QStringLiteral("&amp;")).replace(QStringLiteral("<"), QStringLiteral("&lt;"));
    escaped.replace(QStringLiteral("\r"), QStringLiteral("&#xd;"))
        .replace(QStringLiteral("]]>"), QStringLiteral("]]&gt;"));
    QCOMPARE(savedByTheLibrary(document, 4),
             QStringLiteral("<r k=\"") + escaped + QStringLiteral("\">") + escaped + QStringLiteral("</r>\n"));
}

void TestXmlSerialiser::savesNothingOfANullNode()
{
    QCOMPARE(savedByTheLibrary(QDomNode(), 4), QString());
    QCOMPARE(savedByTheLibrary(QDomDocument(), 4), QString());
}

void TestXmlSerialiser::stopsAtTheLimit()
{
    const QDomDocument document
        = documentOf(QStringLiteral("<r>%1</r>")
                         .arg(QStringLiteral("<a>%1</a>").arg(QString(1000, QLatin1Char('x'))).repeated(5000)));
    Limits limits;
    limits.savedBytes = 1000000;
    const LimitsInForce inForce(limits);
    QString text;
    QTextStream stream(&text);
    const TraceCollector traces;
    QVERIFY(!serialise(document, stream, 4));
    QCOMPARE(traces.Messages(), QStringLiteral("Documents that are saved as more than 1000000 bytes are refused!"));
    QVERIFY2(text.size() > 1000000 && text.size() < 3000000, qPrintable(QString::number(text.size())));
}

void TestXmlSerialiser::countsEveryByte()
{
    const QDomDocument document = documentOf(QStringLiteral("<r>\u20AC</r>"));
    Limits limits;
    for (const bool isEnough : {true, false}) {
        limits.savedBytes = bytesByQt(document).size() - (isEnough ? 0 : 1);
        const LimitsInForce inForce(limits);
        QCOMPARE(bytesByTheLibrary(document) != "not whole", isEnough);
    }
}

void TestXmlSerialiser::stopsWhenTheDeviceFails()
{
    QBuffer readOnly;
    QVERIFY(readOnly.open(QIODevice::ReadOnly));
    QTextStream stream(&readOnly);
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::write (QBuffer): ReadOnly device");
    QVERIFY(!serialise(documentOf(QStringLiteral("<r/>")), stream, 4));
}

void TestXmlSerialiser::savesAnyDepth()
{
    constexpr int Levels = 100000;
    QDomDocument document;
    std::vector<QDomElement> elements {document.createElement(QStringLiteral("e"))};
    while (elements.size() < Levels) {
        elements.push_back(document.createElement(QStringLiteral("e")));
        elements.back().appendChild(elements[elements.size() - 2]); // Qt looks at all ancestors of the new parent.
    }
    document.appendChild(elements.back());
    const QString text = savedByTheLibrary(document, 0);
    QCOMPARE(text.count(QStringLiteral("<e>")), Levels - 1);
    QCOMPARE(text.count(QStringLiteral("</e>")), Levels - 1);
    // Qt recurses over the levels when it deletes them, so they are taken apart first.
    for (; !elements.empty(); elements.pop_back()) {
        elements.back().parentNode().removeChild(elements.back());
    }
}

void TestXmlSerialiser::takesATimeThatGrowsWithTheText_data()
{
    QTest::addColumn<bool>("isAttribute");
    QTest::newRow("text") << false;
    QTest::newRow("attribute") << true;
}

void TestXmlSerialiser::takesATimeThatGrowsWithTheText()
{
    QFETCH(bool, isAttribute);
    // For a million characters Qt needs more than ten seconds.
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    const QString text(1000000, QLatin1Char('<'));
    if (isAttribute) {
        document.documentElement().setAttribute(QStringLiteral("k"), text);
    } else {
        document.documentElement().appendChild(document.createTextNode(text));
    }
    const double begin = cpuSeconds();
    const QByteArray bytes = bytesByTheLibrary(document);
    const double seconds = cpuSeconds() - begin;
    QVERIFY(bytes.size() > 4 * text.size());
    QVERIFY2(seconds < 5, qPrintable(QString::number(seconds)));
}

void TestXmlSerialiser::writesSmallPieces()
{
    QDomDocument document = documentOf(QStringLiteral("<r/>"));
    const QString text(1500000, QLatin1Char('<'));
    document.documentElement().setAttribute(QStringLiteral("k"), text);
    document.documentElement().appendChild(document.createComment(text));
    PieceMeter meter;
    QTextStream stream(&meter);
    QVERIFY(serialise(document, stream, 4));
    QVERIFY2(meter.longest > 1000000 && meter.longest < 3000000, qPrintable(QString::number(meter.longest)));
}

QTEST_GUILESS_MAIN(TestXmlSerialiser)
#include "tst_internals_xmlserialiser.moc"
