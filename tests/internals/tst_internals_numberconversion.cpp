#include <QtTest>

#include <limits>

#include <xmlhelper/numberconversion_p.h>

class TestNumberConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesIntegersOfDoubles_data();
    void makesIntegersOfDoubles();
    void makesIntegersOfLongs_data();
    void makesIntegersOfLongs();
    void writesDoubles_data();
    void writesDoubles();
};

namespace {

using Doubles = std::numeric_limits<double>;
using Longs = std::numeric_limits<long>;

constexpr int Least = std::numeric_limits<int>::min();
constexpr int Greatest = std::numeric_limits<int>::max();

} // namespace

void TestNumberConversion::makesIntegersOfDoubles_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("integer");

    QTest::newRow("whole-number-stays") << 42.0 << 42;
    QTest::newRow("zero-stays") << 0.0 << 0;
    QTest::newRow("negative-zero-is-zero") << -0.0 << 0;
    QTest::newRow("positive-fraction-is-cut-off") << 1.9 << 1;
    QTest::newRow("negative-fraction-is-cut-off") << -2.7 << -2;
    QTest::newRow("small-positive-number-is-zero") << 0.999999 << 0;
    QTest::newRow("small-negative-number-is-zero") << -0.999999 << 0;
    QTest::newRow("greatest-integer-stays") << 2147483647.0 << Greatest;
    QTest::newRow("fraction-above-the-greatest-integer-is-cut-off") << 2147483647.9 << Greatest;
    QTest::newRow("number-above-32-bits-takes-the-upper-limit") << 2147483648.0 << Greatest;
    QTest::newRow("great-number-takes-the-upper-limit") << 1e300 << Greatest;
    QTest::newRow("infinity-takes-the-upper-limit") << Doubles::infinity() << Greatest;
    QTest::newRow("least-integer-stays") << -2147483648.0 << Least;
    QTest::newRow("fraction-below-the-least-integer-is-cut-off") << -2147483648.9 << Least;
    QTest::newRow("number-below-32-bits-takes-the-lower-limit") << -2147483649.0 << Least;
    QTest::newRow("negative-infinity-takes-the-lower-limit") << -Doubles::infinity() << Least;
    QTest::newRow("not-a-number-is-zero") << Doubles::quiet_NaN() << 0;
}

void TestNumberConversion::makesIntegersOfDoubles()
{
    QFETCH(double, value);
    QFETCH(int, integer);
    QCOMPARE(toInt32(value), integer);
}

void TestNumberConversion::makesIntegersOfLongs_data()
{
    QTest::addColumn<long>("value");
    QTest::addColumn<int>("integer");

    QTest::newRow("number-within-32-bits-stays") << -70000L << -70000;
    QTest::newRow("greatest-integer-stays") << long(Greatest) << Greatest;
    QTest::newRow("least-integer-stays") << long(Least) << Least;
    // On platforms where long has 32 bits these are the integer limits themselves.
    QTest::newRow("greatest-long-takes-the-upper-limit") << Longs::max() << Greatest;
    QTest::newRow("least-long-takes-the-lower-limit") << Longs::min() << Least;
    if (sizeof(long) > sizeof(int)) {
        QTest::newRow("number-above-32-bits-takes-the-upper-limit")
            << Longs::max() / 0x100000000 + Greatest << Greatest;
        QTest::newRow("number-below-32-bits-takes-the-lower-limit") << Longs::min() / 0x100000000 + Least << Least;
    }
}

void TestNumberConversion::makesIntegersOfLongs()
{
    QFETCH(long, value);
    QFETCH(int, integer);
    QCOMPARE(toInt32(value), integer);
}

void TestNumberConversion::writesDoubles_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("whole-number-has-no-point") << 10.0 << QStringLiteral("10");
    QTest::newRow("zero") << 0.0 << QStringLiteral("0");
    QTest::newRow("fraction-has-a-point") << -0.5 << QStringLiteral("-0.5");
    QTest::newRow("12-digits-are-written") << 1.23456789012345 << QStringLiteral("1.23456789012");
    QTest::newRow("13th-digit-rounds") << 1.23456789999999 << QStringLiteral("1.2345679");
    QTest::newRow("12-digit-number-has-no-exponent") << 123456789012.0 << QStringLiteral("123456789012");
    QTest::newRow("13-digit-number-has-an-exponent") << 1e12 << QStringLiteral("1e+12");
    QTest::newRow("small-number-has-an-exponent") << 0.00001 << QStringLiteral("1e-05");
    QTest::newRow("marker-of-absent-bounds-is-a-number-like-others") << 65535.0 << QStringLiteral("65535");
    QTest::newRow("not-a-number") << Doubles::quiet_NaN() << QStringLiteral("nan");
    QTest::newRow("infinity") << Doubles::infinity() << QStringLiteral("inf");
    QTest::newRow("negative-infinity") << -Doubles::infinity() << QStringLiteral("-inf");
}

void TestNumberConversion::writesDoubles()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(toReportText(value), text);
}

QTEST_GUILESS_MAIN(TestNumberConversion)
#include "tst_internals_numberconversion.moc"
