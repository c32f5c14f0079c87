#include <QBuffer>
#include <QtTest>

#include <xmlhelper/tagscanner_p.h>

class TestTagScanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksAtTags_data();
    void looksAtTags();
    void looksAtContentOfManyBlocks();
};

namespace {

constexpr int Limit = 3;

bool isNested(const QByteArray& content)
{
    QBuffer buffer;
    buffer.setData(content);
    return buffer.open(QIODevice::ReadOnly) && isSurelyNestedWithin(Limit, buffer);
}

} // namespace

void TestTagScanner::looksAtTags_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isWithin");
    const auto row = [](const char* name, const QByteArray& content, bool isWithin) {
        QTest::newRow(name) << content << isWithin;
    };
    row("nothing-is-not-nested", "", true);
    row("as-deep-as-the-limit", "<a><b><c/></b><b><c></c></b></a>", true);
    row("one-deeper-than-the-limit", "<a><b><c><d></d></c></b></a>", false);
    row("one-empty-element-deeper-than-the-limit", "<a><b><c><d/></c></b></a>", false);
    row("unclosed-tags-count", "<a><b><c><d>", false);
    row("siblings-do-not-count", "<a><b/><b/><b/><b/><b></b><b></b><b></b></a>", true);
    row("attributes-may-hold-anything-but-their-quotes", "<a x='</a>/>\"' y=\"'/>\"><b><c/></b></a>", true);
    row("tags-in-attributes-close-nothing", "<a x='</a>'><b x='</a>'><c x='</a>'><d/></c></b></a>", false);
    row("a-slash-in-an-attribute-closes-nothing", "<a x='/'><b x='/'><c x='/'><d x='/'>", false);
    row("blanks-in-tags-are-fine", "<a\n x = '1' ><b\t/></a >", true);
    row("declaration-with-utf-8", "<?xml version='1.0' encoding='UTF-8'?><a/>", true);
    row("declaration-without-encoding", "<?xml version=\"1.0\"?>\n<a/>", true);
    row("declaration-behind-a-byte-order-mark",
        "\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8' standalone='yes'?><a/>", true);
    row("declaration-with-latin-1", "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE4</a>", true);
    row("declaration-with-ascii-in-small-letters", "<?xml version='1.0' encoding='us-ascii'?><a/>", true);
    row("declaration-with-blanks-everywhere",
        "<?xml\tversion = '1.1'\r\n encoding\n=\n\"UTF-8\" standalone ='no' ?><a/>", true);
    row("declaration-of-one-that-stands-alone", "<?xml version='1.0' standalone='yes'?><a/>", true);
    row("declaration-with-an-unknown-version", "<?xml version='2.0'?><a/>", false);
    row("declaration-with-a-longer-version", "<?xml version='1.05'?><a/>", false);
    row("declaration-without-version", "<?xml encoding='UTF-8'?><a/>", false);
    row("declaration-with-an-unnumbered-encoding", "<?xml version='1.0' encoding='ISO-8859-'?><a/>", false);
    row("declaration-with-a-longer-encoding", "<?xml version='1.0' encoding='UTF-81'?><a/>", false);
    row("declaration-with-a-wrong-answer", "<?xml version='1.0' standalone='maybe'?><a/>", false);
    row("declaration-without-a-blank", "<?xml version='1.0'encoding='UTF-8'?><a/>", false);
    row("declaration-without-equals-sign", "<?xml version '1.0'?><a/>", false);
    row("declaration-without-quotes", "<?xml version=1.0?><a/>", false);
    row("declaration-in-unlike-quotes", "<?xml version='1.0\"?><a/>", false);
    row("declaration-in-the-wrong-order", "<?xml encoding='UTF-8' version='1.0'?><a/>", false);
    row("declaration-that-does-not-end", "<?xml version='1.0'", false);
    row("byte-order-mark-without-declaration", "\xEF\xBB\xBF<a/>", true);
    row("declaration-with-another-encoding", "<?xml version='1.0' encoding='UTF-7'?><a/>", false);
    row("declaration-that-names-an-encoding-twice", "<?xml version='UTF-8' encoding='UTF-7'?><a/>", false);
    row("utf-16", QByteArray("\xFF\xFE<\0a\0/\0>\0", 10), false);
    row("utf-16-without-mark", QByteArray("\0<\0a\0/\0>", 8), false);
    row("comments-are-not-understood", "<a><!-- </a> --></a>", false);
    row("sections-are-not-understood", "<a><![CDATA[</a>]]></a>", false);
    row("instructions-are-not-understood", "<a><?p </a>?></a>", false);
    row("document-types-are-not-understood", "<!DOCTYPE a><a/>", false);
    row("more-ends-than-starts-are-not-understood", "</a><a/>", false);
    row("a-tag-without-name-is-not-understood", "<a><></a>", false);
    row("a-tag-inside-an-end-tag-is-not-understood", "<a></a<b></a>", false);
}

void TestTagScanner::looksAtTags()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isWithin);
    QCOMPARE(isNested(content), isWithin);
}

void TestTagScanner::looksAtContentOfManyBlocks()
{
    const QByteArray rows = QByteArray("<row x='1'>text</row>").repeated(20000);
    QVERIFY(isNested("<a>" + rows + "</a>"));
    QVERIFY(!isNested("<a>" + rows + "<b><c><d/></c></b></a>"));
}

QTEST_GUILESS_MAIN(TestTagScanner)
#include "tst_internals_tagscanner.moc"
