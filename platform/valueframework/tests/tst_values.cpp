#include <limits>
#include <QtTest>
#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>

class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kindsAreToldApartByDynamicCast();
    void aNumericValueShowsNumberAndUnit_data();
    void aNumericValueShowsNumberAndUnit();
    void aNumericValueIsNotRounded();
    void aTextValueShowsItsText();
    void aSelectionWithoutChoicesIsZeroAndEmpty();
    void theFirstChoiceIsSelectedAtStart();
    void theSelectedChoiceIsShown();
    void anIndexWithoutChoiceChangesNothing_data();
    void anIndexWithoutChoiceChangesNothing();
};

void TestValues::kindsAreToldApartByDynamicCast()
{
    ValueNumeric numeric(QStringLiteral("Frequency"), 1.0);
    ValueText text(QStringLiteral("Mode"), QString());
    ValueSelection selection(QStringLiteral("Bandwidth"));
    ValueBase* const asNumeric = &numeric;
    ValueBase* const asText = &text;
    ValueBase* const asSelection = &selection;

    QCOMPARE(dynamic_cast<IValueNumeric*>(asNumeric), static_cast<IValueNumeric*>(&numeric));
    QVERIFY(!dynamic_cast<IValueNumeric*>(asText));
    QVERIFY(!dynamic_cast<IValueNumeric*>(asSelection));
    QCOMPARE(dynamic_cast<ValueSelection*>(asSelection), &selection);
    QVERIFY(!dynamic_cast<ValueSelection*>(asNumeric));
}

void TestValues::aNumericValueShowsNumberAndUnit_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");

    QTest::newRow("number-and-unit") << 98500000.0 << "Hz"
                                     << "98500000 Hz";
    QTest::newRow("number-alone") << 98500000.0 << ""
                                  << "98500000";
    QTest::newRow("decimals-without-trailing-zeros") << -12.50 << "dBm"
                                                     << "-12.5 dBm";
    QTest::newRow("fifteen-significant-digits") << 12345678.1234567 << "Hz"
                                                << "12345678.1234567 Hz";
    QTest::newRow("noise-of-binary-fractions-is-rounded-away") << 0.1 + 0.2 << ""
                                                               << "0.3";
    QTest::newRow("terahertz-without-exponent") << 1e12 << "Hz"
                                                << "1000000000000 Hz";
    QTest::newRow("zero") << 0.0 << "deg"
                          << "0 deg";
    QTest::newRow("no-number") << std::numeric_limits<double>::quiet_NaN() << ""
                               << "nan";
}

void TestValues::aNumericValueShowsNumberAndUnit()
{
    QFETCH(double, value);
    QFETCH(QString, unit);
    QFETCH(QString, text);

    const ValueNumeric numeric(QStringLiteral("Frequency"), value, unit);
    QCOMPARE(numeric.GetName(), QStringLiteral("Frequency"));
    QCOMPARE(numeric.GetText(), text);
}

void TestValues::aNumericValueIsNotRounded()
{
    constexpr double third = 1.0 / 3.0;
    ValueNumeric numeric(QStringLiteral("Azimuth"), 0.0);
    numeric.SetValue(third);

    QVERIFY(std::equal_to<double>()(numeric.GetNumericValue(), third)); // QCOMPARE would allow for rounding
    QCOMPARE(numeric.GetText(), QStringLiteral("0.333333333333333"));
}

void TestValues::aTextValueShowsItsText()
{
    ValueText text(QStringLiteral("Mode"), QStringLiteral("FM"));
    QCOMPARE(text.GetName(), QStringLiteral("Mode"));
    QCOMPARE(text.GetText(), QStringLiteral("FM"));

    text.SetText(QString());
    QCOMPARE(text.GetText(), QString());
}

void TestValues::aSelectionWithoutChoicesIsZeroAndEmpty()
{
    ValueSelection selection(QStringLiteral("Bandwidth"));
    selection.Select(0);

    QCOMPARE(selection.GetName(), QStringLiteral("Bandwidth"));
    QCOMPARE(selection.GetNumericValue(), 0.0);
    QCOMPARE(selection.GetText(), QString());
}

void TestValues::theFirstChoiceIsSelectedAtStart()
{
    ValueSelection selection(QStringLiteral("Bandwidth"));
    selection.AddChoice(9000.0, QStringLiteral("9 kHz"));
    selection.AddChoice(150000.0, QStringLiteral("150 kHz"));

    QCOMPARE(selection.GetNumericValue(), 9000.0);
    QCOMPARE(selection.GetText(), QStringLiteral("9 kHz"));
}

void TestValues::theSelectedChoiceIsShown()
{
    ValueSelection selection(QStringLiteral("Bandwidth"));
    selection.AddChoice(9000.0, QStringLiteral("9 kHz"));
    selection.AddChoice(150000.0, QStringLiteral("150 kHz"));

    selection.Select(1);
    QCOMPARE(selection.GetNumericValue(), 150000.0);
    QCOMPARE(selection.GetText(), QStringLiteral("150 kHz"));
    selection.Select(0);
    QCOMPARE(selection.GetNumericValue(), 9000.0);
}

void TestValues::anIndexWithoutChoiceChangesNothing_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("behind-the-last") << 2;
    QTest::newRow("negative") << -1;
}

void TestValues::anIndexWithoutChoiceChangesNothing()
{
    QFETCH(int, index);
    ValueSelection selection(QStringLiteral("Bandwidth"));
    selection.AddChoice(9000.0, QStringLiteral("9 kHz"));
    selection.AddChoice(150000.0, QStringLiteral("150 kHz"));
    selection.Select(1);

    selection.Select(index);
    QCOMPARE(selection.GetText(), QStringLiteral("150 kHz"));
}

QTEST_GUILESS_MAIN(TestValues)

#include "tst_values.moc"
