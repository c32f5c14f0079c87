#include <QtTest>

#include <memory>
#include <type_traits>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>

#include <xmlhelper/reportdata.h>
#include <xmlhelper/treesnapshot_p.h>

static_assert(ExplicitReportData::EXPLICIT_STRING == 0, "Clients store the numbers.");
static_assert(ExplicitReportData::EXPLICIT_BOOL == 1, "Clients store the numbers.");
static_assert(ExplicitReportData::EXPLICIT_DOUBLE == 2, "Clients store the numbers.");
static_assert(ExplicitReportData::EXPLICIT_LONG == 3, "Clients store the numbers.");
static_assert(ExplicitReportData::EXPLICIT_NONE == 4, "Clients store the numbers.");
static_assert(sizeof(ExplicitReportData::ExplicitDataType) == 4, "Kinds are 32-bit numbers to clients.");
static_assert(std::has_virtual_destructor_v<ExplicitReportData>, "Clients derive from it.");
static_assert(std::has_virtual_destructor_v<ReportData>, "Clients derive from it.");
static_assert(!std::is_constructible_v<ExplicitReportData, const char*>, "It would become a bool.");
static_assert(!std::is_convertible_v<const char*, ExplicitReportData>, "It would become a bool.");
static_assert(std::is_convertible_v<QString, ExplicitReportData>, "Clients give the value alone.");
static_assert(std::is_convertible_v<double, ExplicitReportData>, "Clients give the value alone.");
static_assert(std::is_convertible_v<bool, ExplicitReportData>, "Clients give the value alone.");
static_assert(std::is_convertible_v<long, ExplicitReportData>, "Clients give the value alone.");
static_assert(!std::is_constructible_v<ExplicitReportData, int>, "Nobody could tell which kind is meant.");

namespace {

/// What the tests put into a variable to see whether it was written.
constexpr double Untouched = -1234.5;

/// An entry of the tree that is no value but has a text to show.
class TextEntry : public TreeItem
{
public:
    TextEntry(const QString& name, const QString& text, Node* parent)
        : TreeItem(name, parent)
        , m_text(text)
    {
    }
    QString GetText() const override { return m_text; }

private:
    QString m_text;
};

/// A node that can get another name.
class NamedNode : public Node
{
public:
    NamedNode(const QString& name, Node* parent)
        : Node(name, parent)
        , m_name(name)
    {
    }
    QString GetName() const override { return m_name; }
    void Rename(const QString& name) { m_name = name; }

private:
    QString m_name;
};

/// A value tree with one of each kind:
///
///     Receiver/Frequency   the number 98500000 Hz
///     Receiver/Mode        the text "FM"
///     Receiver/Bandwidth   a selection, 150 shown as "150 kHz"
///     Receiver/State       no value, but an entry with the text "locked"
///     Receiver             a node
class ReceiverTree
{
public:
    ReceiverTree()
        : receiver(new NamedNode(QStringLiteral("Receiver"), m_tree.GetRoot()))
        , frequency(new ValueNumeric(QStringLiteral("Frequency"), 98500000.0, QStringLiteral("Hz")))
        , mode(new ValueText(QStringLiteral("Mode"), QStringLiteral("FM")))
        , bandwidth(new ValueSelection(QStringLiteral("Bandwidth")))
    {
        bandwidth->AddChoice(150.0, QStringLiteral("150 kHz"));
        new ValueItem(frequency, receiver);
        new ValueItem(mode, receiver);
        new ValueItem(bandwidth, receiver);
        new TextEntry(QStringLiteral("State"), QStringLiteral("locked"), receiver);
    }

    Node* Root() const { return m_tree.GetRoot(); }

private:
    Q_DISABLE_COPY(ReceiverTree)

    Tree m_tree;

public:
    // All owned by the tree.
    NamedNode* const receiver;
    ValueNumeric* const frequency;
    ValueText* const mode;
    ValueSelection* const bandwidth;
};

using Change = void (*)(const ReceiverTree&);

ReportData itemAt(const QString& path, int decimalExponent = 0)
{
    return ReportData(QStringLiteral("Item"), path, QString(), 1, QString(), decimalExponent, QString(), false);
}

ReportData itemWithText(const QString& fixedText, int decimalExponent = 0)
{
    return ReportData(QStringLiteral("Item"), QString(), fixedText, 1, QString(), decimalExponent, QString(), false);
}

ReportData itemWithExplicit(const ExplicitReportData& data)
{
    ReportData item = itemWithText(QString());
    item.SetExplicitData(data);
    return item;
}

/// The number that the item gives, or null.
std::unique_ptr<double> numberOf(const ReportData& item)
{
    auto number = std::make_unique<double>(Untouched);
    return item.GetDataValue(*number) ? std::move(number) : nullptr;
}

QString textOf(const ReportData& item)
{
    QString text;
    return item.GetDataValue(text) ? text : QStringLiteral("(none)");
}

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(ExplicitReportData)

class TestReportData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void explicitDataHoldsOneKindOfValue();
    void explicitDataIsCopiedWhole();

    void keepsWhatItIsMadeWith();
    void isOpenWithAUsableSource_data();
    void isOpenWithAUsableSource();
    void isClosedWithoutATree();
    void ignoresTheFixedTextBesideAPath();
    void ignoresTheLastArgument();
    void looksTheValueUpOnce();
    void leavesValuesAlone();

    void explicitDataOpensAClosedItem();
    void explicitDataIsKeptAsACopy();
    void explicitDataIsMadeOfTheValueGiven();

    void readsANumber();
    void scalesANumber_data();
    void scalesANumber();
    void readsASelection_data();
    void readsASelection();
    void readsANumberFromTheFixedText_data();
    void readsANumberFromTheFixedText();
    void hasNoNumberOtherwise_data();
    void hasNoNumberOtherwise();

    void readsAText_data();
    void readsAText();
    void followsTheLivingValue();
    void hasNoTextWithoutASource();
    void valueIsReadWhereverTheTreeHoldsIt_data();
    void valueIsReadWhereverTheTreeHoldsIt();
    void valueThatHasGoneIsReadAsNone_data();
    void valueThatHasGoneIsReadAsNone();
    void entryIsReadWhereverTheTreeHoldsIt();
    void entryThatHasGoneIsReadAsNone();
    void valueIsFoundAgainWhileASnapshotLives();
    void valueHasGoneWhenAnotherItemIsWhereItsNodeWas();

    void givesExplicitBoolsAndLongsByKindOnly_data();
    void givesExplicitBoolsAndLongsByKindOnly();
    void readsTheFixedTextBesideExplicitData_data();
    void readsTheFixedTextBesideExplicitData();
    void hidesExplicitTextsAndDoublesFromTheReaders_data();
    void hidesExplicitTextsAndDoublesFromTheReaders();

    void isCopiedWhole_data();
    void isCopiedWhole();
};

void TestReportData::explicitDataHoldsOneKindOfValue()
{
    const ExplicitReportData none;
    QCOMPARE(none.GetType(), ExplicitReportData::EXPLICIT_NONE);
    QCOMPARE(none.GetString(), QString());
    QCOMPARE(none.GetDouble(), 0.0);
    QCOMPARE(none.GetBool(), false);
    QCOMPARE(none.GetLong(), 0L);

    const ExplicitReportData text(QStringLiteral("FM"));
    QCOMPARE(text.GetType(), ExplicitReportData::EXPLICIT_STRING);
    QCOMPARE(text.GetString(), QStringLiteral("FM"));
    QCOMPARE(text.GetDouble(), 0.0);
    QCOMPARE(text.GetBool(), false);
    QCOMPARE(text.GetLong(), 0L);

    const ExplicitReportData real(17.5);
    QCOMPARE(real.GetType(), ExplicitReportData::EXPLICIT_DOUBLE);
    QCOMPARE(real.GetString(), QString());
    QCOMPARE(real.GetDouble(), 17.5);
    QCOMPARE(real.GetBool(), false);
    QCOMPARE(real.GetLong(), 0L);

    const ExplicitReportData flag(true);
    QCOMPARE(flag.GetType(), ExplicitReportData::EXPLICIT_BOOL);
    QCOMPARE(flag.GetString(), QString());
    QCOMPARE(flag.GetDouble(), 0.0);
    QCOMPARE(flag.GetBool(), true);
    QCOMPARE(flag.GetLong(), 0L);

    const ExplicitReportData integer(-42L);
    QCOMPARE(integer.GetType(), ExplicitReportData::EXPLICIT_LONG);
    QCOMPARE(integer.GetString(), QString());
    QCOMPARE(integer.GetDouble(), 0.0);
    QCOMPARE(integer.GetBool(), false);
    QCOMPARE(integer.GetLong(), -42L);
}

void TestReportData::explicitDataIsCopiedWhole()
{
    const ExplicitReportData source(QStringLiteral("FM"));
    const ExplicitReportData constructed(source);
    ExplicitReportData assigned(true);
    assigned = source;
    for (const ExplicitReportData* const copy : {&constructed, &std::as_const(assigned)}) {
        QCOMPARE(copy->GetType(), ExplicitReportData::EXPLICIT_STRING);
        QCOMPARE(copy->GetString(), QStringLiteral("FM"));
        QCOMPARE(copy->GetBool(), false);
    }
}

void TestReportData::keepsWhatItIsMadeWith()
{
    const ReportData item(QStringLiteral("Signal/Level"), QString(), QStringLiteral("17"), 3, QStringLiteral("%.1f"), 0,
                          QStringLiteral("dBm"), false);
    QCOMPARE(item.GetName(), QStringLiteral("Signal/Level"));
    QCOMPARE(item.GetMaxOccurs(), 3);
    QCOMPARE(item.GetUnit(), QStringLiteral("dBm"));
    QVERIFY(!item.GetVTObject());
    QCOMPARE(item.GetExplicitData().GetType(), ExplicitReportData::EXPLICIT_NONE);
}

void TestReportData::isOpenWithAUsableSource_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fixedText");
    QTest::addColumn<bool>("isOpen");
    QTest::addColumn<bool>("hasValue");

    const QString none;
    const QString text = QStringLiteral("17");
    QTest::newRow("neither-path-nor-text-is-closed") << none << none << false << false;
    QTest::newRow("fixed-text-is-open") << none << text << true << false;
    QTest::newRow("path-of-a-value-is-open") << QStringLiteral("Receiver/Frequency") << none << true << true;
    QTest::newRow("path-of-an-entry-without-value-is-open")
        << QStringLiteral("Receiver/State") << none << true << false;
    QTest::newRow("path-of-a-node-is-open") << QStringLiteral("Receiver") << none << true << false;
    QTest::newRow("unknown-path-is-closed") << QStringLiteral("Receiver/Level") << none << false << false;
    QTest::newRow("unknown-path-beside-a-fixed-text-is-closed")
        << QStringLiteral("Receiver/Level") << text << false << false;
    QTest::newRow("known-path-beside-a-fixed-text-is-open")
        << QStringLiteral("Receiver/Frequency") << text << true << true;
}

void TestReportData::isOpenWithAUsableSource()
{
    QFETCH(QString, path);
    QFETCH(QString, fixedText);
    QFETCH(bool, isOpen);
    QFETCH(bool, hasValue);
    const ReceiverTree tree;
    const ReportData item(QStringLiteral("Item"), path, fixedText, 1, QString(), 0, QString(), false);
    QCOMPARE(item.IsOpen(), isOpen);
    QCOMPARE(item.GetVTObject(), hasValue ? tree.frequency : nullptr);
}

void TestReportData::isClosedWithoutATree()
{
    QVERIFY(!Tree::Instance());
    const ReportData item = itemAt(QStringLiteral("Receiver/Frequency"));
    QVERIFY(!item.IsOpen());
    QVERIFY(!item.GetVTObject());
    QVERIFY(!numberOf(item));
    QCOMPARE(textOf(item), QStringLiteral("(none)"));
}

void TestReportData::ignoresTheFixedTextBesideAPath()
{
    const ReceiverTree tree;
    const ReportData unknown(QStringLiteral("Item"), QStringLiteral("Receiver/Level"), QStringLiteral("17"), 1,
                             QString(), 0, QString(), false);
    QVERIFY(!numberOf(unknown));
    QCOMPARE(textOf(unknown), QStringLiteral("(none)"));
    const ReportData known(QStringLiteral("Item"), QStringLiteral("Receiver/Mode"), QStringLiteral("17"), 1, QString(),
                           0, QString(), false);
    QVERIFY(!numberOf(known));
    QCOMPARE(textOf(known), QStringLiteral("FM"));
}

void TestReportData::ignoresTheLastArgument()
{
    for (const bool last : {false, true}) {
        const ReportData item(QStringLiteral("Item"), QString(), QStringLiteral("12.5"), 1, QString(), 1, QString(),
                              last);
        QVERIFY(item.IsOpen());
        QCOMPARE(*numberOf(item), 1.25);
        QCOMPARE(item.GetExplicitData().GetType(), ExplicitReportData::EXPLICIT_NONE);
    }
}

void TestReportData::looksTheValueUpOnce()
{
    const ReportData early = itemAt(QStringLiteral("Receiver/Frequency"));
    const ReceiverTree tree;
    QVERIFY(!early.IsOpen());
    const ReportData item = itemAt(QStringLiteral("Receiver/Frequency"));
    const Tree other; // Takes the place of the tree that the value was found in.
    QCOMPARE(*numberOf(item), 98500000.0);
}

void TestReportData::leavesValuesAlone()
{
    const ReceiverTree tree;
    auto item = std::make_unique<ReportData>(itemAt(QStringLiteral("Receiver/Mode")));
    item.reset();
    QCOMPARE(Tree::Instance()->GetValue(QStringLiteral("Receiver/Mode")), tree.mode);
    QCOMPARE(tree.mode->GetText(), QStringLiteral("FM"));
}

void TestReportData::explicitDataOpensAClosedItem()
{
    ReportData item = itemWithText(QString());
    QVERIFY(!item.IsOpen());
    item.SetExplicitData(ExplicitReportData()); // even one without a value
    QVERIFY(item.IsOpen());
}

void TestReportData::explicitDataIsKeptAsACopy()
{
    ReportData item = itemWithText(QString());
    ExplicitReportData data(QStringLiteral("FM"));
    item.SetExplicitData(data);
    data = ExplicitReportData(true);
    QCOMPARE(item.GetExplicitData().GetType(), ExplicitReportData::EXPLICIT_STRING);
    QCOMPARE(item.GetExplicitData().GetString(), QStringLiteral("FM"));

    item.SetExplicitData(data);
    QCOMPARE(item.GetExplicitData().GetType(), ExplicitReportData::EXPLICIT_BOOL);
    QCOMPARE(item.GetExplicitData().GetBool(), true);
    QCOMPARE(item.GetExplicitData().GetString(), QString());
}

void TestReportData::explicitDataIsMadeOfTheValueGiven()
{
    ReportData item = itemWithText(QString());
    item.SetExplicitData(3.5);
    QCOMPARE(item.GetExplicitData().GetType(), ExplicitReportData::EXPLICIT_DOUBLE);
    QCOMPARE(item.GetExplicitData().GetDouble(), 3.5);
    item.SetExplicitData(QStringLiteral("FM"));
    QCOMPARE(item.GetExplicitData().GetString(), QStringLiteral("FM"));
    item.SetExplicitData(true);
    QCOMPARE(item.GetExplicitData().GetBool(), true);
    item.SetExplicitData(21L);
    QCOMPARE(item.GetExplicitData().GetLong(), 21L);
}

void TestReportData::readsANumber()
{
    const ReceiverTree tree;
    double number = Untouched;
    QVERIFY(itemAt(QStringLiteral("Receiver/Frequency")).GetDataValue(number));
    QCOMPARE(number, 98500000.0);
}

void TestReportData::scalesANumber_data()
{
    QTest::addColumn<int>("decimalExponent");
    QTest::addColumn<double>("expected");

    QTest::newRow("exponent-0-leaves-the-number") << 0 << 98500000.0;
    QTest::newRow("exponent-6-divides-by-a-million") << 6 << 98.5;
    QTest::newRow("negative-exponent-multiplies") << -2 << 9850000000.0;
}

void TestReportData::scalesANumber()
{
    QFETCH(int, decimalExponent);
    QFETCH(double, expected);
    const ReceiverTree tree;
    QCOMPARE(*numberOf(itemAt(QStringLiteral("Receiver/Frequency"), decimalExponent)), expected);
}

void TestReportData::readsASelection_data()
{
    QTest::addColumn<double>("stored");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("decimalExponent");
    QTest::addColumn<double>("expected");

    QTest::newRow("text-without-hz-gives-the-stored-number") << 3.0 << QStringLiteral("12 dB") << 0 << 3.0;
    QTest::newRow("stored-number-without-hz-is-scaled") << 300.0 << QStringLiteral("12 dB") << 2 << 3.0;
    QTest::newRow("hz-is-case-sensitive") << 3.0 << QStringLiteral("98.5 MHZ") << 0 << 3.0;
    QTest::newRow("empty-text-gives-the-stored-number") << 3.0 << QString() << 0 << 3.0;

    QTest::newRow("shown-number-counts-in-its-unit") << 98500000.0 << QStringLiteral("98.5 MHz") << 0 << 98.5e6;
    QTest::newRow("stored-number-wins-when-it-shows-the-same-digits")
        << 150.0 << QStringLiteral("150 kHz") << 0 << 150.0;
    QTest::newRow("stored-number-wins-when-it-contains-the-digits-shown")
        << 150000.0 << QStringLiteral("15 kHz") << 0 << 150000.0;
    QTest::newRow("stored-number-keeps-its-digits-beyond-the-twelfth")
        << 1234567.891234567 << QStringLiteral("1234567.89123 Hz") << 0 << 1234567.891234567;
    QTest::newRow("thirteenth-digit-of-the-stored-number-does-not-count")
        << 1234567.891234 << QStringLiteral("1234567.891234 kHz") << 0 << 1234567891.234;
    QTest::newRow("winning-stored-number-is-scaled") << 150.0 << QStringLiteral("150 kHz") << 2 << 1.5;
    QTest::newRow("winning-shown-number-is-scaled") << 7.0 << QStringLiteral("98.5 MHz") << 6 << 98.5;
    QTest::newRow("negative-exponent-multiplies-the-shown-number") << 7.0 << QStringLiteral("2 kHz") << -1 << 20000.0;

    QTest::newRow("prefix-blank-is-1") << 7.0 << QStringLiteral("440 Hz") << 0 << 440.0;
    QTest::newRow("prefix-k-is-1000") << 7.0 << QStringLiteral("2 kHz") << 0 << 2e3;
    QTest::newRow("prefix-K-is-1000") << 7.0 << QStringLiteral("2 KHz") << 0 << 2e3;
    QTest::newRow("prefix-M-is-mega") << 7.0 << QStringLiteral("2 MHz") << 0 << 2e6;
    QTest::newRow("prefix-m-is-mega-too") << 7.0 << QStringLiteral("2 mHz") << 0 << 2e6;
    QTest::newRow("prefix-g-is-giga") << 7.0 << QStringLiteral("2 gHz") << 0 << 2e9;
    QTest::newRow("prefix-G-is-giga") << 7.0 << QStringLiteral("2 GHz") << 0 << 2e9;
    QTest::newRow("no-prefix-is-1") << 7.0 << QStringLiteral("440Hz") << 0 << 440.0;
    QTest::newRow("prefix-needs-no-blank") << 7.0 << QStringLiteral("2kHz") << 0 << 2e3;
    QTest::newRow("shown-number-may-have-an-exponent") << 7.0 << QStringLiteral("1.5e3 Hz") << 0 << 1500.0;

    QTest::newRow("every-occurrence-of-the-blank-prefix-is-removed")
        << 7.0 << QStringLiteral("1 500 Hz") << 0 << 1500.0;
    QTest::newRow("every-occurrence-of-the-prefix-is-removed") << 7.0 << QStringLiteral("k2 kHz") << 0 << 2e3;
    QTest::newRow("every-occurrence-of-the-last-two-characters-is-removed")
        << 7.0 << QStringLiteral("Hz 10 Hz") << 0 << 10.0;

    QTest::newRow("unknown-prefix-leaves-the-value-untouched") << 7.0 << QStringLiteral("5 THz") << 0 << Untouched;
    QTest::newRow("hz-alone-leaves-the-value-untouched") << 7.0 << QStringLiteral("Hz") << 0 << Untouched;
    QTest::newRow("words-before-hz-leave-the-value-untouched")
        << 7.0 << QStringLiteral("unknown kHz") << 0 << Untouched;
    QTest::newRow("hz-not-at-the-end-leaves-the-value-untouched") << 7.0 << QStringLiteral("Hz 10") << 0 << Untouched;
    QTest::newRow("blank-behind-hz-leaves-the-value-untouched") << 7.0 << QStringLiteral("10 kHz ") << 0 << Untouched;
    QTest::newRow("untouched-value-is-not-scaled") << 7.0 << QStringLiteral("wide Hz") << 3 << Untouched;
}

void TestReportData::readsASelection()
{
    QFETCH(double, stored);
    QFETCH(QString, shown);
    QFETCH(int, decimalExponent);
    QFETCH(double, expected);
    const ReceiverTree tree;
    tree.bandwidth->AddChoice(stored, shown);
    tree.bandwidth->Select(1);

    double number = Untouched;
    QVERIFY(itemAt(QStringLiteral("Receiver/Bandwidth"), decimalExponent).GetDataValue(number));
    QCOMPARE(number, expected);
}

void TestReportData::readsANumberFromTheFixedText_data()
{
    QTest::addColumn<QString>("fixedText");
    QTest::addColumn<int>("decimalExponent");
    QTest::addColumn<double>("expected");

    QTest::newRow("exponent-0") << QStringLiteral("12.5") << 0 << 12.5;
    QTest::newRow("exponent-1-divides-by-10") << QStringLiteral("12.5") << 1 << 1.25;
    QTest::newRow("exponent-2-divides-by-100") << QStringLiteral("12.5") << 2 << 0.125;
    QTest::newRow("negative-exponent-multiplies") << QStringLiteral("12.5") << -2 << 1250.0;
    QTest::newRow("negative-number") << QStringLiteral("-3") << 0 << -3.0;
}

void TestReportData::readsANumberFromTheFixedText()
{
    QFETCH(QString, fixedText);
    QFETCH(int, decimalExponent);
    QFETCH(double, expected);
    QCOMPARE(*numberOf(itemWithText(fixedText, decimalExponent)), expected);
}

void TestReportData::hasNoNumberOtherwise_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fixedText");

    QTest::newRow("fixed-text-that-is-no-number") << QString() << QStringLiteral("12.5 MHz");
    QTest::newRow("no-source") << QString() << QString();
    QTest::newRow("text-value-that-looks-like-a-number") << QStringLiteral("Receiver/Mode") << QString();
    QTest::newRow("entry-of-the-tree-is-not-asked") << QStringLiteral("Receiver/State") << QString();
    QTest::newRow("unknown-path") << QStringLiteral("Receiver/Level") << QStringLiteral("12.5");
}

void TestReportData::hasNoNumberOtherwise()
{
    QFETCH(QString, path);
    QFETCH(QString, fixedText);
    const ReceiverTree tree;
    tree.mode->SetText(QStringLiteral("12.5"));
    const ReportData item(QStringLiteral("Item"), path, fixedText, 1, QString(), 0, QString(), false);

    double number = Untouched;
    QVERIFY(!item.GetDataValue(number));
    QCOMPARE(number, Untouched);
}

void TestReportData::readsAText_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fixedText");
    QTest::addColumn<QString>("expected");

    QTest::newRow("numeric-value-gives-what-it-shows")
        << QStringLiteral("Receiver/Frequency") << QString() << QStringLiteral("98500000 Hz");
    QTest::newRow("selection-gives-what-it-shows")
        << QStringLiteral("Receiver/Bandwidth") << QString() << QStringLiteral("150 kHz");
    QTest::newRow("text-value-gives-its-text") << QStringLiteral("Receiver/Mode") << QString() << QStringLiteral("FM");
    QTest::newRow("entry-of-the-tree-gives-its-text")
        << QStringLiteral("Receiver/State") << QString() << QStringLiteral("locked");
    QTest::newRow("node-gives-its-empty-text") << QStringLiteral("Receiver") << QString() << QString();
    QTest::newRow("fixed-text-gives-itself") << QString() << QStringLiteral("12.50") << QStringLiteral("12.50");
}

void TestReportData::readsAText()
{
    QFETCH(QString, path);
    QFETCH(QString, fixedText);
    QFETCH(QString, expected);
    const ReceiverTree tree;
    // The exponent scales numbers only.
    const ReportData item(QStringLiteral("Item"), path, fixedText, 1, QString(), 6, QString(), false);
    QCOMPARE(textOf(item), expected);
}

void TestReportData::followsTheLivingValue()
{
    const ReceiverTree tree;
    const ReportData frequency = itemAt(QStringLiteral("Receiver/Frequency"));
    const ReportData mode = itemAt(QStringLiteral("Receiver/Mode"));
    tree.frequency->SetValue(7.0);
    tree.mode->SetText(QStringLiteral("AM"));
    QCOMPARE(*numberOf(frequency), 7.0);
    QCOMPARE(textOf(mode), QStringLiteral("AM"));
}

void TestReportData::hasNoTextWithoutASource()
{
    QString text = QStringLiteral("before");
    QVERIFY(!itemWithText(QString()).GetDataValue(text));
    QCOMPARE(text, QStringLiteral("before"));
}

void TestReportData::valueIsReadWhereverTheTreeHoldsIt_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("moved-into-another-node") << Change([](const ReceiverTree& tree) {
        auto* const spare = new Node(QStringLiteral("Spare"), tree.Root());
        new ValueItem(tree.frequency, new Node(QStringLiteral("Deep"), spare));
        new ValueItem(tree.mode, spare);
    });
    QTest::newRow("moved-to-the-top") << Change([](const ReceiverTree& tree) {
        new ValueItem(tree.frequency, tree.Root());
        new ValueItem(tree.mode, tree.Root());
    });
    QTest::newRow("its-node-renamed") << Change(
        [](const ReceiverTree& tree) { tree.receiver->Rename(QStringLiteral("Tuner")); });
    QTest::newRow("hidden-behind-another-of-its-path") << Change([](const ReceiverTree& tree) {
        for (ValueBase* const value : {static_cast<ValueBase*>(tree.frequency), static_cast<ValueBase*>(tree.mode)}) {
            auto* const other = new ValueText(value->GetName(), QStringLiteral("other"));
            new ValueItem(other, tree.receiver);
            new ValueItem(value, tree.receiver); // now behind the other
        }
    });
}

void TestReportData::valueIsReadWhereverTheTreeHoldsIt()
{
    QFETCH(Change, change);
    const ReceiverTree tree;
    const ReportData frequency = itemAt(QStringLiteral("Receiver/Frequency"));
    const ReportData mode = itemAt(QStringLiteral("Receiver/Mode"));
    change(tree);
    QVERIFY(Tree::Instance()->GetValue(QStringLiteral("Receiver/Mode")) != tree.mode);
    QCOMPARE(*numberOf(frequency), 98500000.0);
    QCOMPARE(textOf(mode), QStringLiteral("FM"));
    const TreeSnapshot snapshot;
    QCOMPARE(*numberOf(frequency), 98500000.0);
    QCOMPARE(textOf(mode), QStringLiteral("FM"));
}

void TestReportData::valueThatHasGoneIsReadAsNone_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("deleted") << Change([](const ReceiverTree& tree) {
        delete tree.frequency;
        delete tree.mode;
    });
    QTest::newRow("its-node-deleted") << Change([](const ReceiverTree& tree) { delete tree.receiver; });
    QTest::newRow("with-an-item-in-its-memory") << Change([](const ReceiverTree& tree) {
        delete tree.receiver;
        for (int i = 0; i < 100; ++i) { // of every size that the values had
            new Node(QStringLiteral("Node"), tree.Root());
            new ValueItem(nullptr, tree.Root());
            new TextEntry(QStringLiteral("Entry"), QStringLiteral("text"), tree.Root());
        }
    });
}

void TestReportData::valueThatHasGoneIsReadAsNone()
{
    QFETCH(Change, change);
    const ReceiverTree tree;
    const ReportData frequency = itemAt(QStringLiteral("Receiver/Frequency"));
    const ReportData mode = itemAt(QStringLiteral("Receiver/Mode"));
    change(tree);
    QVERIFY(!numberOf(frequency));
    QCOMPARE(textOf(mode), QStringLiteral("(none)"));
    QVERIFY(mode.IsOpen());
    const TreeSnapshot snapshot;
    QVERIFY(!numberOf(frequency));
    QCOMPARE(textOf(mode), QStringLiteral("(none)"));
}

void TestReportData::entryIsReadWhereverTheTreeHoldsIt()
{
    const ReceiverTree tree;
    const ReportData state = itemAt(QStringLiteral("Receiver/State"));
    // A value under the path of the entry hides it from the first look.
    new ValueItem(new ValueText(QStringLiteral("State"), QStringLiteral("other")), tree.receiver);
    QCOMPARE(textOf(state), QStringLiteral("locked"));
    tree.receiver->Rename(QStringLiteral("Tuner"));
    QCOMPARE(textOf(state), QStringLiteral("locked"));
}

void TestReportData::entryThatHasGoneIsReadAsNone()
{
    const ReceiverTree tree;
    const ReportData state = itemAt(QStringLiteral("Receiver/State"));
    delete Tree::Instance()->GetTreeItem(QStringLiteral("Receiver/State"));
    QCOMPARE(textOf(state), QStringLiteral("(none)"));
}

void TestReportData::valueIsFoundAgainWhileASnapshotLives()
{
    const ReceiverTree tree;
    const ReportData mode = itemAt(QStringLiteral("Receiver/Mode"));
    const ReportData frequency = itemAt(QStringLiteral("Receiver/Frequency"));
    tree.receiver->Rename(QStringLiteral("Tuner"));
    const TreeSnapshot snapshot;
    QCOMPARE(textOf(mode), QStringLiteral("FM"));
    auto* const spare = new Node(QStringLiteral("Spare"), tree.Root());
    new ValueItem(tree.mode, spare);
    QCOMPARE(textOf(mode), QStringLiteral("FM"));
    delete spare;
    QCOMPARE(textOf(mode), QStringLiteral("(none)"));
    QCOMPARE(*numberOf(frequency), 98500000.0);
    const Tree other; // While it covers the tree, nothing is asked.
    QCOMPARE(*numberOf(frequency), 98500000.0);
}

void TestReportData::valueHasGoneWhenAnotherItemIsWhereItsNodeWas()
{
    static std::aligned_union_t<0, NamedNode, ValueItem> memory;
    /// Stands in that memory, and is deleted by its parent like any other item.
    class PlacedNode : public NamedNode
    {
    public:
        using NamedNode::NamedNode;
        static void* operator new(std::size_t) { return &memory; }
        static void operator delete(void*) { }
    };
    class PlacedItem : public ValueItem
    {
    public:
        using ValueItem::ValueItem;
        static void* operator new(std::size_t) { return &memory; }
        static void operator delete(void*) { }
    };

    const ReceiverTree tree;
    auto* const node = new PlacedNode(QStringLiteral("Spare"), tree.Root());
    new ValueItem(new ValueText(QStringLiteral("Text"), QStringLiteral("text")), node);
    const ReportData item = itemAt(QStringLiteral("Spare/Text"));
    node->Rename(QStringLiteral("Renamed"));
    const TreeSnapshot snapshot;
    QCOMPARE(textOf(item), QStringLiteral("text"));
    delete node;
    new PlacedItem(nullptr, tree.Root());
    QCOMPARE(textOf(item), QStringLiteral("(none)"));
}

void TestReportData::givesExplicitBoolsAndLongsByKindOnly_data()
{
    QTest::addColumn<ExplicitReportData>("data");
    QTest::newRow("text") << ExplicitReportData(QStringLiteral("1"));
    QTest::newRow("bool-true") << ExplicitReportData(true);
    QTest::newRow("bool-false") << ExplicitReportData(false);
    QTest::newRow("double") << ExplicitReportData(1.0);
    QTest::newRow("long") << ExplicitReportData(1L);
    QTest::newRow("none") << ExplicitReportData();
}

void TestReportData::givesExplicitBoolsAndLongsByKindOnly()
{
    QFETCH(ExplicitReportData, data);
    const ReportData item = itemWithExplicit(data);

    const bool isBool = data.GetType() == ExplicitReportData::EXPLICIT_BOOL;
    for (const bool before : {false, true}) {
        bool flag = before;
        QCOMPARE(item.GetDataValue(flag), isBool);
        QCOMPARE(flag, isBool ? data.GetBool() : before);
    }
    long integer = -7;
    const bool isLong = data.GetType() == ExplicitReportData::EXPLICIT_LONG;
    QCOMPARE(item.GetDataValue(integer), isLong);
    QCOMPARE(integer, isLong ? 1L : -7L);
}

void TestReportData::readsTheFixedTextBesideExplicitData_data()
{
    QTest::addColumn<ExplicitReportData>("data");
    QTest::newRow("text") << ExplicitReportData(QStringLiteral("FM"));
    QTest::newRow("bool") << ExplicitReportData(true);
    QTest::newRow("double") << ExplicitReportData(17.5);
    QTest::newRow("long") << ExplicitReportData(42L);
    QTest::newRow("none") << ExplicitReportData();
}

void TestReportData::readsTheFixedTextBesideExplicitData()
{
    QFETCH(ExplicitReportData, data);
    ReportData item = itemWithText(QStringLiteral("12.5"));
    item.SetExplicitData(data);
    double number = Untouched;
    QVERIFY(item.GetDataValue(number));
    QCOMPARE(number, 12.5);
    QCOMPARE(textOf(item), QStringLiteral("12.5"));
    QCOMPARE(item.GetExplicitData().GetType(), data.GetType());
}

void TestReportData::hidesExplicitTextsAndDoublesFromTheReaders_data()
{
    QTest::addColumn<bool>("isText");
    QTest::newRow("explicit-text") << true;
    QTest::newRow("explicit-double") << false;
}

void TestReportData::hidesExplicitTextsAndDoublesFromTheReaders()
{
    QFETCH(bool, isText);
    const ReportData item
        = itemWithExplicit(isText ? ExplicitReportData(QStringLiteral("17.5")) : ExplicitReportData(17.5));
    QVERIFY(!numberOf(item));
    QCOMPARE(textOf(item), QStringLiteral("(none)"));
}

void TestReportData::isCopiedWhole_data()
{
    QTest::addColumn<bool>("byAssignment");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fixedText");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");

    for (const bool byAssignment : {false, true}) {
        const char* const way = byAssignment ? "assigned" : "constructed";
        const QString none;
        QTest::addRow("%s-with-a-value", way)
            << byAssignment << QStringLiteral("Receiver/Frequency") << none << QStringLiteral("98500000 Hz") << true;
        QTest::addRow("%s-with-an-entry-of-the-tree", way)
            << byAssignment << QStringLiteral("Receiver/State") << none << QStringLiteral("locked") << false;
        QTest::addRow("%s-with-a-fixed-text", way)
            << byAssignment << none << QStringLiteral("98500000") << QStringLiteral("98500000") << true;
    }
}

void TestReportData::isCopiedWhole()
{
    QFETCH(bool, byAssignment);
    QFETCH(QString, path);
    QFETCH(QString, fixedText);
    QFETCH(QString, text);
    QFETCH(bool, isNumber);
    const ReceiverTree tree;
    auto source = std::make_unique<ReportData>(QStringLiteral("Frequency"), path, fixedText, 3, QStringLiteral("%.1f"),
                                               6, QStringLiteral("MHz"), false);
    source->SetExplicitData(ExplicitReportData(5L));
    ValueBase* const value = source->GetVTObject();
    ReportData copy = byAssignment ? itemWithText(QStringLiteral("other")) : *source;
    if (byAssignment) {
        copy = *source;
    }
    source.reset();

    QCOMPARE(copy.GetName(), QStringLiteral("Frequency"));
    QCOMPARE(copy.GetMaxOccurs(), 3);
    QCOMPARE(copy.GetUnit(), QStringLiteral("MHz"));
    QVERIFY(copy.IsOpen());
    QCOMPARE(copy.GetVTObject(), value);
    double number = Untouched;
    QCOMPARE(copy.GetDataValue(number), isNumber);
    QCOMPARE(number, isNumber ? 98.5 : Untouched);
    QCOMPARE(textOf(copy), text);
    QCOMPARE(copy.GetExplicitData().GetLong(), 5L);
}

QTEST_GUILESS_MAIN(TestReportData)
#include "tst_reportdata.moc"
