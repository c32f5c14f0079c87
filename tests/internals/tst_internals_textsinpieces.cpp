#include <QtTest>

#include <QRandomGenerator>

#include <xmlhelper/textsinpieces.h>

#include "domtext.h"

namespace {

/// A document with one text between an attribute and a child.
QDomDocument documentWith(const QString& text)
{
    QDomDocument document = documentOf(QStringLiteral("<r k='v'><a/></r>"));
    document.documentElement().insertBefore(createText(document, text), document.documentElement().firstChild());
    return document;
}

QString repeated(const char* text, int times)
{
    return QString::fromUtf8(text).repeated(times);
}

} // namespace

class TestTextsInPieces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savesTheBytesOfTheWholeText_data();
    void savesTheBytesOfTheWholeText();
    void savesTheBytesOfRandomTexts();
    void leavesTheDocumentAsItIs();
    void leavesShortTextsAlone();
};

void TestTextsInPieces::savesTheBytesOfTheWholeText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("as-long-as-a-piece") << repeated("<", 4096);
    QTest::newRow("one-longer-than-a-piece") << repeated("<", 4097);
    QTest::newRow("two-pieces") << repeated("<", 8192);
    QTest::newRow("surrogate-pair-across-a-cut") << repeated("x", 4095) + repeated("\xF0\x9F\x98\x80", 3);
    for (int before = 4092; before <= 4097; ++before) {
        QTest::addRow("section-end-behind-%d-characters", before) << repeated("x", before) + repeated("]]>", 2000);
        QTest::addRow("brackets-behind-%d-characters", before) << repeated("x", before) + repeated("]", 9) + u'>';
    }
}

void TestTextsInPieces::savesTheBytesOfTheWholeText()
{
    QFETCH(QString, text);
    const QDomDocument document = documentWith(text);
    const QByteArray bytes = document.toByteArray(4);
    const TextsInPieces pieces(document);
    QCOMPARE(document.toByteArray(4), bytes);
}

void TestTextsInPieces::savesTheBytesOfRandomTexts()
{
    QRandomGenerator random(20261121);
    const QString alphabet = QStringLiteral("]]]>><&\"'\r\n\t x");
    for (int run = 0; run < 50; ++run) {
        QString text;
        const int length = int(random.bounded(4000, 13000));
        while (text.size() < length) {
            text += alphabet.at(int(random.bounded(int(alphabet.size()))));
        }
        const QDomDocument document = documentWith(text);
        const QByteArray bytes = document.toByteArray(4);
        const TextsInPieces pieces(document);
        QCOMPARE(document.toByteArray(4), bytes);
    }
}

void TestTextsInPieces::leavesTheDocumentAsItIs()
{
    const QString longText = repeated("]]><&x", 5000);
    const QDomDocument document = documentWith(longText);
    const QDomText text = document.documentElement().firstChild().toText();
    const QString before = domText(document);
    {
        const TextsInPieces pieces(document);
        QVERIFY(document.documentElement().childNodes().count() > 5);
    }
    QCOMPARE(domText(document), before);
    QCOMPARE(document.documentElement().childNodes().count(), 2);
    QVERIFY(document.documentElement().firstChild() == text);
    QCOMPARE(text.data(), longText);
}

void TestTextsInPieces::leavesShortTextsAlone()
{
    const QDomDocument document = documentWith(repeated("<", 4096));
    const TextsInPieces pieces(document);
    QCOMPARE(document.documentElement().childNodes().count(), 2);
}

QTEST_GUILESS_MAIN(TestTextsInPieces)
#include "tst_internals_textsinpieces.moc"
