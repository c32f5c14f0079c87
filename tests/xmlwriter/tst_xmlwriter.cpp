#include <QtTest>

#include <memory>
#include <type_traits>
#include <vector>

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/treeitem.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/xmlwriter.h>

#include "domtext.h"
#include "expectedfile.h"
#include "tracecollector.h"

class TestXmlWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void isAPolymorphicClassThatCanBeCopied();
    void refusesEverythingWithoutDocument();

    void writesDeclarationAndEmptyRoot();
    void writesNothingBeforeItIsSaved();
    void refusesASecondDocument();
    void keepsTheFirstFile();
    void leavesAnInvalidRootOut_data();
    void leavesAnInvalidRootOut();
    void staysWithoutRootAfterAnInvalidOne();

    void appendsElementsInOrder();
    void writesTextOfElements_data();
    void writesTextOfElements();
    void entersAnElementOnlyWhenAskedTo();
    void refusesChildrenBesideText();
    void takesChildrenBesideChildren();

    void setsAttributesOfTheCurrentElement();
    void replacesAnAttribute();
    void writesAttributeValues_data();
    void writesAttributeValues();

    void staysAtTheRoot();
    void leavesOneLevelAtATime();

    void indentsByFourBlanks();
    void writesUtf8();
    void replacesALongerFile();
    void savesAgainAfterChanges();
    void reportsNoFileThatCannotBeOpened();
    void makesNoFolder();
    void separatesFoldersByBackSlashesOnEveryPlatform();
    void writesWhatItReadsBack();
    void savesNothingAtItsEnd();
    void tracesNothing();

    void mirrorsANode();
    void mirrorsNodesBelowNodes();
    void mirrorsTheRootOfATree();
    void mirrorsBelowTheCurrentElement();
    void mirrorsNothingBesideText();
    void writesANodeWithoutItemsAsAnEmptyElement();
    void writesAValueWithoutTextAsAnEmptyElement();
    void leavesOutItemsWithoutValue();
    void leavesOutItemsThatAreNeitherValueNorNode();
    void saysThatItLeftItemsOut_data();
    void saysThatItLeftItemsOut();
    void comesBackFromTheNode();
    void writesTheTextOfEveryKindOfValue();
    void refusesToMirrorNull();
    void readsTheValuesOnly();

    void sharesItsDocumentWithACopy_data();
    void sharesItsDocumentWithACopy();
    void sharesItsDocumentByAssignment();

private:
    QString fileName() const { return m_folder->filePath(QStringLiteral("written.xml")); }
    /// Makes the writer's document, with the root "r".
    bool begin(XMLWriter& writer) const { return writer.CreateXmlFile(fileName(), QStringLiteral("r")); }
    /// Saves, and gives what is behind the declaration in the file.
    QString saved(XMLWriter& writer) const;
    /// Appends an element without text.
    static bool append(XMLWriter& writer, const char* name);
    /// Appends an element without text and enters it.
    static bool enter(XMLWriter& writer, const char* name);

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QString& declaration()
{
    static const QString text = QStringLiteral("<?xml version='1.0' encoding='UTF-8'?>\n");
    return text;
}

QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

/// Keeps a writer within reach to the end of the program: all but one of several shallow copies are never destroyed.
void neverDestroyed(XMLWriter* writer)
{
    static auto* const writers = new std::vector<XMLWriter*>;
    writers->push_back(writer);
}

/// Adds a text value to @p node, which owns it.
void addText(Node& node, const QString& name, const QString& text)
{
    new ValueItem(new ValueText(name, text), &node);
}

} // namespace

QString TestXmlWriter::saved(XMLWriter& writer) const
{
    if (!writer.SaveXmlFile()) {
        return QStringLiteral("(not saved)");
    }
    const QString text = expectedText(fileName());
    return text.startsWith(declaration()) ? text.mid(declaration().size()) : text;
}

bool TestXmlWriter::append(XMLWriter& writer, const char* name)
{
    return writer.CreateXmlElement(QString::fromLatin1(name), QString(), false);
}

bool TestXmlWriter::enter(XMLWriter& writer, const char* name)
{
    return writer.CreateXmlElement(QString::fromLatin1(name), QString(), true);
}

void TestXmlWriter::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestXmlWriter::isAPolymorphicClassThatCanBeCopied()
{
    QVERIFY(std::has_virtual_destructor_v<XMLWriter>);
    QVERIFY(std::is_default_constructible_v<XMLWriter>);
    QVERIFY(std::is_copy_constructible_v<XMLWriter>);
    QVERIFY(std::is_copy_assignable_v<XMLWriter>);
}

void TestXmlWriter::refusesEverythingWithoutDocument()
{
    XMLWriter writer;
    Node node(QStringLiteral("n"), nullptr);
    QVERIFY(!append(writer, "a"));
    QVERIFY(!enter(writer, "a"));
    QVERIFY(!writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("v")));
    QVERIFY(!writer.GoToXmlParent());
    QVERIFY(!writer.SaveXmlFile());
    QVERIFY(!writer.CreateElementsFromNode(&node));
    // None of it has left anything behind.
    QVERIFY(begin(writer));
    QCOMPARE(saved(writer), QStringLiteral("<r/>\n"));
}

void TestXmlWriter::writesDeclarationAndEmptyRoot()
{
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(fileName(), QStringLiteral("Report")));
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(bytesOf(fileName()), QByteArray("<?xml version='1.0' encoding='UTF-8'?>\n<Report/>\n"));
}

void TestXmlWriter::writesNothingBeforeItIsSaved()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(append(writer, "a"));
    QVERIFY(!QFile::exists(fileName()));
}

void TestXmlWriter::refusesASecondDocument()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(enter(writer, "a"));
    QVERIFY(!writer.CreateXmlFile(fileName(), QStringLiteral("other")));
    // The cursor has stayed where it was, too.
    QVERIFY(append(writer, "b"));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <a>\n        <b/>\n    </a>\n</r>\n"));
    QVERIFY(!writer.CreateXmlFile(fileName(), QStringLiteral("other")));
}

void TestXmlWriter::keepsTheFirstFile()
{
    const QString otherName = m_folder->filePath(QStringLiteral("other.xml"));
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(!writer.CreateXmlFile(otherName, QStringLiteral("r")));
    QVERIFY(writer.SaveXmlFile());
    QVERIFY(QFile::exists(fileName()));
    QVERIFY(!QFile::exists(otherName));
}

void TestXmlWriter::leavesAnInvalidRootOut_data()
{
    QTest::addColumn<QString>("rootName");
    QTest::newRow("empty") << QString();
    QTest::newRow("digit-in-front") << QStringLiteral("1r");
    QTest::newRow("blank-within") << QStringLiteral("a b");
    QTest::newRow("letter-that-is-none-in-names") << QString(QChar(0xB5));
    QTest::newRow("superscript-within") << QStringLiteral("m") + QChar(0xB2);
    QTest::newRow("two-elements") << QStringLiteral("a/><b");
    QTest::newRow("unclosed-element") << QStringLiteral("a><b");
}

void TestXmlWriter::leavesAnInvalidRootOut()
{
    QFETCH(QString, rootName);
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(fileName(), rootName));
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(bytesOf(fileName()), QByteArray("<?xml version='1.0' encoding='UTF-8'?>\n"));
}

void TestXmlWriter::staysWithoutRootAfterAnInvalidOne()
{
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(fileName(), QStringLiteral("1r")));
    QVERIFY(!writer.CreateXmlFile(fileName(), QStringLiteral("r")));
    QVERIFY(!writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("v")));
    QVERIFY(!writer.GoToXmlParent());
    // There is a document, so the element is made, but nothing to append it to.
    QVERIFY(enter(writer, "a"));
    QVERIFY(!writer.GoToXmlParent());
    Node node(QStringLiteral("n"), nullptr);
    addText(node, QStringLiteral("v"), QStringLiteral("x"));
    new Node(QStringLiteral("inner"), &node);
    QVERIFY(writer.CreateElementsFromNode(&node));
    QVERIFY(!writer.GoToXmlParent());
    QCOMPARE(saved(writer), QString());
}

void TestXmlWriter::appendsElementsInOrder()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(append(writer, "b"));
    QVERIFY(append(writer, "a"));
    QVERIFY(append(writer, "b"));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <b/>\n    <a/>\n    <b/>\n</r>\n"));
}

void TestXmlWriter::writesTextOfElements_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");

    QTest::newRow("text-stands-in-the-element") << QStringLiteral("some text") << QStringLiteral("<a>some text</a>");
    QTest::newRow("empty-text-makes-an-empty-element") << QStringLiteral("") << QStringLiteral("<a/>");
    QTest::newRow("null-text-makes-an-empty-element") << QString() << QStringLiteral("<a/>");
    QTest::newRow("markup-is-escaped") << QStringLiteral("1 < 2 & 3") << QStringLiteral("<a>1 &lt; 2 &amp; 3</a>");
    QTest::newRow("blanks-are-kept") << QStringLiteral(" x ") << QStringLiteral("<a> x </a>");
}

void TestXmlWriter::writesTextOfElements()
{
    QFETCH(QString, text);
    QFETCH(QString, written);
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("a"), text, false));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    %1\n</r>\n").arg(written));
}

void TestXmlWriter::entersAnElementOnlyWhenAskedTo()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(append(writer, "a"));
    QVERIFY(append(writer, "b"));
    QVERIFY(enter(writer, "c"));
    QVERIFY(append(writer, "d"));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <a/>\n    <b/>\n    <c>\n        <d/>\n    </c>\n</r>\n"));
}

void TestXmlWriter::refusesChildrenBesideText()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("a"), QStringLiteral("x"), true));
    QVERIFY(!append(writer, "b"));
    QVERIFY(!enter(writer, "b"));
    QVERIFY(!writer.CreateXmlElement(QStringLiteral("b"), QStringLiteral("y"), false));
    // The cursor is still on a.
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("v")));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <a k=\"v\">x</a>\n</r>\n"));
    QVERIFY(writer.GoToXmlParent());
    QVERIFY(append(writer, "b"));
}

void TestXmlWriter::takesChildrenBesideChildren()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("a"), QStringLiteral("x"), false));
    QVERIFY(append(writer, "b"));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <a>x</a>\n    <b/>\n</r>\n"));
}

void TestXmlWriter::setsAttributesOfTheCurrentElement()
{
    const QString name = QStringLiteral("k");
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.SetXmlAttribute(name, QStringLiteral("root")));
    QVERIFY(append(writer, "a"));
    QVERIFY(enter(writer, "b"));
    QVERIFY(writer.SetXmlAttribute(name, QStringLiteral("entered")));
    QCOMPARE(saved(writer), QStringLiteral("<r k=\"root\">\n    <a/>\n    <b k=\"entered\"/>\n</r>\n"));
}

void TestXmlWriter::replacesAnAttribute()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("old")));
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("l"), QStringLiteral("kept")));
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("new")));
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(domText(documentInFile(fileName()).documentElement()), QStringLiteral("<r k=\"new\" l=\"kept\"/>\n"));
}

void TestXmlWriter::writesAttributeValues_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("empty") << QString();
    QTest::newRow("quotes") << QStringLiteral("it's \"quoted\"");
    QTest::newRow("markup") << QStringLiteral("<a> & b");
    QTest::newRow("beyond-ascii") << QString::fromUtf8("5 \xC2\xB5m");
}

void TestXmlWriter::writesAttributeValues()
{
    QFETCH(QString, value);
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("k"), value));
    QVERIFY(writer.SaveXmlFile());
    const QDomElement root = documentInFile(fileName()).documentElement();
    QVERIFY(root.hasAttribute(QStringLiteral("k")));
    QCOMPARE(root.attribute(QStringLiteral("k")), value);
}

void TestXmlWriter::staysAtTheRoot()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(!writer.GoToXmlParent());
    QVERIFY(append(writer, "not-entered"));
    QVERIFY(!writer.GoToXmlParent());
    QVERIFY(append(writer, "a"));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <not-entered/>\n    <a/>\n</r>\n"));
}

void TestXmlWriter::leavesOneLevelAtATime()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(enter(writer, "a"));
    QVERIFY(writer.GoToXmlParent());
    QVERIFY(!writer.GoToXmlParent());

    QVERIFY(enter(writer, "b"));
    QVERIFY(enter(writer, "c"));
    QVERIFY(writer.GoToXmlParent());
    QVERIFY(append(writer, "beside-c"));
    QVERIFY(writer.GoToXmlParent());
    QVERIFY(append(writer, "beside-b"));
    QVERIFY(!writer.GoToXmlParent());
    QCOMPARE(saved(writer),
             QStringLiteral("<r>\n    <a/>\n    <b>\n        <c/>\n        <beside-c/>\n    </b>\n    <beside-b/>\n"
                            "</r>\n"));
}

void TestXmlWriter::indentsByFourBlanks()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(enter(writer, "a"));
    QVERIFY(enter(writer, "b"));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("c"), QStringLiteral("x"), false));
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(bytesOf(fileName()),
             QByteArray("<?xml version='1.0' encoding='UTF-8'?>\n"
                        "<r>\n"
                        "    <a>\n"
                        "        <b>\n"
                        "            <c>x</c>\n"
                        "        </b>\n"
                        "    </a>\n"
                        "</r>\n"));
}

void TestXmlWriter::writesUtf8()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    // A letter of two bytes, a sign of three and one of four.
    const QByteArray text("\xC3\xA4 \xE2\x82\xAC \xF0\x9D\x84\x9E");
    QVERIFY(writer.CreateXmlElement(QString::fromUtf8("gr\xC3\xB6\xC3\x9F"
                                                      "e"),
                                    QString::fromUtf8(text), false));
    QVERIFY(writer.SaveXmlFile());
    QVERIFY(bytesOf(fileName())
                .contains("<gr\xC3\xB6\xC3\x9F"
                          "e>"
                          + text
                          + "</gr\xC3\xB6\xC3\x9F"
                            "e>"));
}

void TestXmlWriter::replacesALongerFile()
{
    QFile file(fileName());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(10000, 'x'));
    file.close();
    XMLWriter writer;
    QVERIFY(begin(writer));
    QCOMPARE(saved(writer), QStringLiteral("<r/>\n"));
}

void TestXmlWriter::savesAgainAfterChanges()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(enter(writer, "a"));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <a/>\n</r>\n"));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <a/>\n</r>\n"));
    QVERIFY(append(writer, "b"));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <a>\n        <b/>\n    </a>\n</r>\n"));
}

void TestXmlWriter::reportsNoFileThatCannotBeOpened()
{
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(m_folder->path(), QStringLiteral("r")));
    QVERIFY(writer.SaveXmlFile());
    QVERIFY(QDir(m_folder->path()).isEmpty());

    XMLWriter nameless;
    QVERIFY(nameless.CreateXmlFile(QString(), QStringLiteral("r")));
    QVERIFY(nameless.SaveXmlFile());
}

void TestXmlWriter::makesNoFolder()
{
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(m_folder->filePath(QStringLiteral("none/written.xml")), QStringLiteral("r")));
    QVERIFY(writer.SaveXmlFile());
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void TestXmlWriter::separatesFoldersByBackSlashesOnEveryPlatform()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("inner")));
    const QString name = m_folder->filePath(QStringLiteral("inner/written.xml"));
    QString backSlashed = name;
    XMLWriter writer;
    QVERIFY(writer.CreateXmlFile(backSlashed.replace(QLatin1Char('/'), QLatin1Char('\\')), QStringLiteral("r")));
    QVERIFY(writer.SaveXmlFile());
    QCOMPARE(documentInFile(name).documentElement().tagName(), QStringLiteral("r"));
}

void TestXmlWriter::writesWhatItReadsBack()
{
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("<\"&'>")));
    QVERIFY(enter(writer, "a"));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("b"), QStringLiteral("x < y & z]]>"), false));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("c"), QString::fromUtf8("\xC3\xA4\xE2\x82\xAC"), false));
    QVERIFY(writer.SaveXmlFile());
    const QString written = expectedText(fileName());
    const QDomDocument read = documentInFile(fileName());
    QCOMPARE(domText(read.documentElement()),
             QString::fromUtf8("<r k=\"<\"&'>\">\n"
                               "  <a>\n"
                               "    <b>\n"
                               "      \"x < y & z]]>\"\n"
                               "    </b>\n"
                               "    <c>\n"
                               "      \"\xC3\xA4\xE2\x82\xAC\"\n"
                               "    </c>\n"
                               "  </a>\n"
                               "</r>\n"));
    QCOMPARE(read.toString(4), written);
}

void TestXmlWriter::savesNothingAtItsEnd()
{
    auto writer = std::make_unique<XMLWriter>();
    QVERIFY(begin(*writer));
    QVERIFY(writer->SaveXmlFile());
    QVERIFY(append(*writer, "a"));
    writer.reset();
    QVERIFY(!bytesOf(fileName()).contains("<a/>"));
}

void TestXmlWriter::tracesNothing()
{
    TraceCollector traces(~0u);
    XMLWriter writer;
    Node node(QStringLiteral("n"), nullptr);
    new TreeItem(QStringLiteral("neither value nor node"), &node);
    Node invalidNode(QStringLiteral("not a name"), nullptr);
    QVERIFY(!append(writer, "a"));
    QVERIFY(!writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("v")));
    // What is missing is asked for before the name is.
    QVERIFY(!writer.SetXmlAttribute(QStringLiteral("not a name"), QStringLiteral("v")));
    QVERIFY(!writer.CreateElementsFromNode(nullptr));
    QVERIFY(!writer.CreateElementsFromNode(&node));
    QVERIFY(!writer.CreateElementsFromNode(&invalidNode));
    QVERIFY(!writer.SaveXmlFile());
    QVERIFY(writer.CreateXmlFile(m_folder->path(), QString()));
    QVERIFY(!writer.CreateXmlFile(m_folder->path(), QString()));
    QVERIFY(writer.SaveXmlFile());

    XMLWriter withRoot;
    QVERIFY(begin(withRoot));
    QVERIFY(!withRoot.GoToXmlParent());
    QVERIFY(!withRoot.CreateElementsFromNode(nullptr));
    QVERIFY(withRoot.CreateElementsFromNode(&node));
    QVERIFY(withRoot.CreateXmlElement(QStringLiteral("a"), QStringLiteral("x"), true));
    QVERIFY(!append(withRoot, "b"));
    QVERIFY(!append(withRoot, "not a name")); // The text that is there is asked for first, too.
    QCOMPARE(saved(withRoot), QStringLiteral("<r>\n    <n/>\n    <a>x</a>\n</r>\n"));
    QCOMPARE(traces.Messages(), QString());
}

void TestXmlWriter::mirrorsANode()
{
    Node node(QStringLiteral("Receiver"), nullptr);
    addText(node, QStringLiteral("Mode"), QStringLiteral("FM"));
    addText(node, QStringLiteral("Antenna"), QStringLiteral("HE 600"));
    addText(node, QStringLiteral("Mode"), QStringLiteral("AM"));
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QCOMPARE(saved(writer),
             QStringLiteral("<r>\n"
                            "    <Receiver>\n"
                            "        <Mode>FM</Mode>\n"
                            "        <Antenna>HE 600</Antenna>\n"
                            "        <Mode>AM</Mode>\n"
                            "    </Receiver>\n"
                            "</r>\n"));
}

void TestXmlWriter::mirrorsNodesBelowNodes()
{
    Node node(QStringLiteral("a"), nullptr);
    addText(node, QStringLiteral("before"), QStringLiteral("1"));
    auto* const inner = new Node(QStringLiteral("b"), &node);
    addText(*inner, QStringLiteral("v"), QStringLiteral("2"));
    new Node(QStringLiteral("c"), inner);
    addText(*inner, QStringLiteral("w"), QStringLiteral("3"));
    addText(node, QStringLiteral("behind"), QStringLiteral("4"));
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QCOMPARE(saved(writer),
             QStringLiteral("<r>\n"
                            "    <a>\n"
                            "        <before>1</before>\n"
                            "        <b>\n"
                            "            <v>2</v>\n"
                            "            <c/>\n"
                            "            <w>3</w>\n"
                            "        </b>\n"
                            "        <behind>4</behind>\n"
                            "    </a>\n"
                            "</r>\n"));
}

void TestXmlWriter::mirrorsTheRootOfATree()
{
    const Tree tree;
    addText(*tree.GetRoot(), QStringLiteral("v"), QStringLiteral("x"));
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateElementsFromNode(tree.GetRoot()));
    QCOMPARE(saved(writer),
             QStringLiteral("<r>\n    <%1>\n        <v>x</v>\n    </%1>\n</r>\n").arg(tree.GetRoot()->GetName()));
}

void TestXmlWriter::mirrorsBelowTheCurrentElement()
{
    Node node(QStringLiteral("n"), nullptr);
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(enter(writer, "a"));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <a>\n        <n/>\n        <n/>\n    </a>\n</r>\n"));
}

void TestXmlWriter::mirrorsNothingBesideText()
{
    Node node(QStringLiteral("n"), nullptr);
    addText(node, QStringLiteral("v"), QStringLiteral("1"));
    new Node(QStringLiteral("in"), &node);
    addText(node, QStringLiteral("w"), QStringLiteral("2"));
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateXmlElement(QStringLiteral("a"), QStringLiteral("x"), true));
    QVERIFY(!writer.CreateElementsFromNode(&node));
    // The cursor is where it was.
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("1")));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <a k=\"1\">x</a>\n</r>\n"));
}

void TestXmlWriter::writesANodeWithoutItemsAsAnEmptyElement()
{
    Node node(QStringLiteral("n"), nullptr);
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <n/>\n</r>\n"));
}

void TestXmlWriter::writesAValueWithoutTextAsAnEmptyElement()
{
    Node node(QStringLiteral("n"), nullptr);
    addText(node, QStringLiteral("v"), QString());
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <n>\n        <v/>\n    </n>\n</r>\n"));
}

void TestXmlWriter::leavesOutItemsWithoutValue()
{
    Node node(QStringLiteral("n"), nullptr);
    new ValueItem(nullptr, &node);
    addText(node, QStringLiteral("v"), QStringLiteral("x"));
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <n>\n        <v>x</v>\n    </n>\n</r>\n"));
}

void TestXmlWriter::leavesOutItemsThatAreNeitherValueNorNode()
{
    Node node(QStringLiteral("n"), nullptr);
    addText(node, QStringLiteral("v"), QStringLiteral("x"));
    new TreeItem(QStringLiteral("plain"), &node);
    addText(node, QStringLiteral("w"), QStringLiteral("y"));
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <n>\n        <v>x</v>\n        <w>y</w>\n    </n>\n</r>\n"));
}

void TestXmlWriter::saysThatItLeftItemsOut_data()
{
    QTest::addColumn<QString>("valueName");
    QTest::addColumn<QString>("nodeName");
    QTest::addColumn<bool>("isComplete");
    QTest::addColumn<QString>("written");

    const QString value = QStringLiteral("Level");
    const QString node = QStringLiteral("Mode");
    const QString invalid = QStringLiteral("1st mode");
    const QString writtenNode = QStringLiteral("<Mode><below>x</below></Mode>");
    const QString writtenValue = QStringLiteral("<Level>x</Level>");
    QTest::newRow("nothing-left-out") << value << node << true << writtenValue + writtenNode;
    QTest::newRow("value-left-out-for-its-name") << invalid << node << false << writtenNode;
    QTest::newRow("value-without-name-left-out") << QString() << node << false << writtenNode;
    QTest::newRow("node-left-out-for-its-name") << value << invalid << false << writtenValue;
}

/// Two levels down, between items that are mirrored.
void TestXmlWriter::saysThatItLeftItemsOut()
{
    QFETCH(QString, valueName);
    QFETCH(QString, nodeName);
    QFETCH(bool, isComplete);
    QFETCH(QString, written);
    Node node(QStringLiteral("n"), nullptr);
    auto* const inner = new Node(QStringLiteral("in"), &node);
    addText(*inner, valueName, QStringLiteral("x"));
    addText(*new Node(nodeName, inner), QStringLiteral("below"), QStringLiteral("x\x01"));
    new TreeItem(QStringLiteral("1 plain item"), inner);
    new ValueItem(nullptr, inner);
    addText(node, QStringLiteral("behind"), QStringLiteral("y"));
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(enter(writer, "a"));
    QCOMPARE(writer.CreateElementsFromNode(&node), isComplete);
    // The cursor has come back.
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("v")));
    QCOMPARE(saved(writer).remove(QLatin1Char('\n')).remove(QStringLiteral("  ")),
             QStringLiteral("<r><a k=\"v\"><n><in>%1</in><behind>y</behind></n></a></r>").arg(written));
}

void TestXmlWriter::comesBackFromTheNode()
{
    Node node(QStringLiteral("n"), nullptr);
    new Node(QStringLiteral("inner"), &node);
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(enter(writer, "a"));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QVERIFY(writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("v")));
    QVERIFY(writer.GoToXmlParent());
    QVERIFY(!writer.GoToXmlParent());
    QCOMPARE(saved(writer),
             QStringLiteral("<r>\n    <a k=\"v\">\n        <n>\n            <inner/>\n        </n>\n    </a>\n</r>\n"));
}

void TestXmlWriter::writesTheTextOfEveryKindOfValue()
{
    Node node(QStringLiteral("n"), nullptr);
    new ValueItem(new ValueNumeric(QStringLiteral("number"), 98500000, QStringLiteral("Hz")), &node);
    auto* const selection = new ValueSelection(QStringLiteral("selection"));
    new ValueItem(selection, &node);
    selection->AddChoice(9000, QStringLiteral("9 kHz"));
    selection->AddChoice(150000, QStringLiteral("150 kHz"));
    selection->Select(1);
    addText(node, QStringLiteral("text"), QStringLiteral("a < b"));
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QCOMPARE(saved(writer),
             QStringLiteral("<r>\n"
                            "    <n>\n"
                            "        <number>98500000 Hz</number>\n"
                            "        <selection>150 kHz</selection>\n"
                            "        <text>a &lt; b</text>\n"
                            "    </n>\n"
                            "</r>\n"));
}

void TestXmlWriter::refusesToMirrorNull()
{
    XMLWriter writer;
    QVERIFY(!writer.CreateElementsFromNode(nullptr));
    QVERIFY(begin(writer));
    QVERIFY(!writer.CreateElementsFromNode(nullptr));
    QCOMPARE(saved(writer), QStringLiteral("<r/>\n"));
}

void TestXmlWriter::readsTheValuesOnly()
{
    Node node(QStringLiteral("n"), nullptr);
    auto* const value = new ValueText(QStringLiteral("v"), QStringLiteral("old"));
    new ValueItem(value, &node);
    XMLWriter writer;
    QVERIFY(begin(writer));
    QVERIFY(writer.CreateElementsFromNode(&node));
    QCOMPARE(node.GetTreeItems().size(), std::size_t(1));
    QCOMPARE(value->GetText(), QStringLiteral("old"));
    // What has been written is a copy of the moment.
    value->SetText(QStringLiteral("new"));
    QCOMPARE(saved(writer), QStringLiteral("<r>\n    <n>\n        <v>old</v>\n    </n>\n</r>\n"));
}

void TestXmlWriter::sharesItsDocumentWithACopy_data()
{
    QTest::addColumn<bool>("isSourceDestroyed");
    QTest::newRow("source-is-destroyed") << true;
    QTest::newRow("copy-is-destroyed") << false;
}

void TestXmlWriter::sharesItsDocumentWithACopy()
{
    QFETCH(bool, isSourceDestroyed);
    auto* const made = new XMLWriter;
    QVERIFY(begin(*made));
    auto* const copy = new XMLWriter(*made);
    // File, document and cursor are the same.
    QVERIFY(enter(*copy, "a"));
    QVERIFY(append(*made, "b"));
    QVERIFY(copy->GoToXmlParent());
    QVERIFY(!made->GoToXmlParent());
    QVERIFY(!copy->CreateXmlFile(fileName(), QStringLiteral("other")));
    const QString written = QStringLiteral("<r>\n    <a>\n        <b/>\n    </a>\n</r>\n");
    QCOMPARE(saved(*copy), written);
    QCOMPARE(saved(*made), written);

    delete (isSourceDestroyed ? made : copy);
    neverDestroyed(isSourceDestroyed ? copy : made);
}

void TestXmlWriter::sharesItsDocumentByAssignment()
{
    XMLWriter made;
    QVERIFY(begin(made));
    auto* const assigned = new XMLWriter(made);
    neverDestroyed(assigned);
    QCOMPARE(&(*assigned = made), assigned);
    QVERIFY(append(*assigned, "a"));
    QCOMPARE(saved(made), QStringLiteral("<r>\n    <a/>\n</r>\n"));
}

QTEST_GUILESS_MAIN(TestXmlWriter)
#include "tst_xmlwriter.moc"
