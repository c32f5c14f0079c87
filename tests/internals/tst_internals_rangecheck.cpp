#include <QtTest>

#include <limits>
#include <vector>

#include <QStringList>

#include <xmlhelper/rangecheck_p.h>

class TestRangeCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boundsAreAbsentUntilTheyAreSet();
    void checksAgainstTheBounds_data();
    void checksAgainstTheBounds();
    void checksFractions_data();
    void checksFractions();
    void checksAtTheLimitsOfIntegers_data();
    void checksAtTheLimitsOfIntegers();
    void oneBoundOnEachSideMeansWhatItsNameSays();
    void followsTheOrderOfTheSteps();
};

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr UpperBoundBehindLower OfElements = UpperBoundBehindLower::Inclusive;
constexpr UpperBoundBehindLower OfAttributes = UpperBoundBehindLower::Strict;

const char* const refused = "refused";
const char* const nothing = "";

/// The facets that are used up, in the order of their removal.
template <typename Number> QString outcome(const RangeBounds<Number>& bounds, Number value, UpperBoundBehindLower rule)
{
    const RangeVerdict verdict = bounds.Check(value, rule);
    QStringList facets;
    for (const QLatin1String facet : verdict.usedFacets) {
        facets.append(facet);
    }
    if (verdict.isAccepted) {
        return facets.join(QLatin1Char(' '));
    }
    return facets.isEmpty() ? QLatin1String(refused)
                            : QStringLiteral("refused, but removes ") + facets.join(QLatin1Char(' '));
}

/// Reads bounds such as "minInclusive=0 maxExclusive=10".
template <typename Number> RangeBounds<Number> boundsOf(const QString& text)
{
    RangeBounds<Number> bounds;
    const QStringList facets = text.split(QLatin1Char(' '));
    for (const QString& facet : facets) {
        const QString name = facet.section(QLatin1Char('='), 0, 0);
        const auto value = static_cast<Number>(facet.section(QLatin1Char('='), 1).toDouble());
        if (name == QLatin1String("minInclusive")) {
            bounds.minInclusive = value;
        } else if (name == QLatin1String("maxInclusive")) {
            bounds.maxInclusive = value;
        } else if (name == QLatin1String("minExclusive")) {
            bounds.minExclusive = value;
        } else if (name == QLatin1String("maxExclusive")) {
            bounds.maxExclusive = value;
        }
    }
    return bounds;
}

void addCheckColumns()
{
    QTest::addColumn<QString>("bounds");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("ofElements");
    QTest::addColumn<QString>("ofAttributes");
}

/// A check that elements and attributes answer differently.
void newCheck(const char* row, const char* bounds, double value, const char* ofElements, const char* ofAttributes)
{
    QTest::newRow(row) << QString::fromLatin1(bounds) << value << QString::fromLatin1(ofElements)
                       << QString::fromLatin1(ofAttributes);
}

void newCheck(const char* row, const char* bounds, double value, const char* ofBoth)
{
    newCheck(row, bounds, value, ofBoth, ofBoth);
}

/// The steps of the check in their order, each as a label. "type" is the caller's business.
template <typename Number>
QString outcomeByTheSteps(const RangeBounds<Number>& bounds, Number x, UpperBoundBehindLower rule)
{
    const Number absent = 65535;
    const Number li = bounds.minInclusive;
    const Number ui = bounds.maxInclusive;
    const Number le = bounds.minExclusive;
    const Number ue = bounds.maxExclusive;
    const auto isAboveUpperBehindLower = [&] { return rule == OfAttributes ? x >= ui : x > ui; };
    const auto answer
        = [](bool isRefused, const char* removed) { return QString::fromLatin1(isRefused ? refused : removed); };

    if (li != absent) {
        if (x < li) {
            goto lowerExclusive;
        }
        if (ui != absent) {
            return answer(isAboveUpperBehindLower(), "maxInclusive minInclusive");
        }
        if (ue != absent) {
            return answer(x >= ue, "maxExclusive minInclusive");
        }
        return answer(false, "minInclusive");
    }
    if (le != absent) {
        goto aboveLowerExclusive;
    }
    if (ui != absent || ue != absent) {
        goto upperInclusive;
    }
    return answer(false, "");

lowerExclusive:
    if (le == absent) {
        goto upperInclusive;
    }

aboveLowerExclusive:
    if (x <= le) {
        goto upperInclusive;
    }
    if (ui != absent) {
        return answer(isAboveUpperBehindLower(), "maxInclusive minExclusive");
    }
    if (ue == absent) {
        return answer(false, "minExclusive");
    }
    return answer(x >= ue, "maxExclusive minExclusive");

upperInclusive:
    if (ui == absent || x > ui) {
        goto upperExclusive;
    }
    if (li != absent) {
        return answer(x < li, "minInclusive maxInclusive");
    }
    if (le == absent) {
        return answer(false, "maxInclusive");
    }
    return answer(x <= le, "minExclusive maxInclusive");

upperExclusive:
    if (ue == absent || x >= ue) {
        return answer(true, "");
    }
    if (li != absent) {
        return answer(x < li, "minInclusive maxExclusive");
    }
    if (le == absent) {
        return answer(false, "maxExclusive");
    }
    return answer(x <= le, "minExclusive maxExclusive");
}

template <typename Number>
void compareWithTheSteps(const std::vector<Number>& facets, const std::vector<Number>& values)
{
    for (const Number minInclusive : facets) {
        for (const Number maxInclusive : facets) {
            for (const Number minExclusive : facets) {
                for (const Number maxExclusive : facets) {
                    const RangeBounds<Number> bounds {minInclusive, maxInclusive, minExclusive, maxExclusive};
                    for (const Number value : values) {
                        for (const UpperBoundBehindLower rule : {OfElements, OfAttributes}) {
                            QCOMPARE(outcome(bounds, value, rule), outcomeByTheSteps(bounds, value, rule));
                        }
                    }
                }
            }
        }
    }
}

} // namespace

void TestRangeCheck::boundsAreAbsentUntilTheyAreSet()
{
    const RangeBounds<int> integers;
    QCOMPARE(integers.minInclusive, 65535);
    QCOMPARE(integers.maxInclusive, 65535);
    QCOMPARE(integers.minExclusive, 65535);
    QCOMPARE(integers.maxExclusive, 65535);
    const RangeBounds<double> doubles;
    QCOMPARE(doubles.minInclusive, 65535.0);
    QCOMPARE(doubles.maxInclusive, 65535.0);
    QCOMPARE(doubles.minExclusive, 65535.0);
    QCOMPARE(doubles.maxExclusive, 65535.0);
}

void TestRangeCheck::checksAgainstTheBounds_data()
{
    addCheckColumns();

    newCheck("no-bound-accepts-everything", "", -70000, nothing);

    newCheck("lower-inclusive-bound-accepts-itself", "minInclusive=0", 0, "minInclusive");
    newCheck("lower-inclusive-bound-accepts-what-is-above", "minInclusive=0", 70000, "minInclusive");
    newCheck("lower-inclusive-bound-refuses-what-is-below", "minInclusive=0", -1, refused);
    newCheck("lower-exclusive-bound-refuses-itself", "minExclusive=0", 0, refused);
    newCheck("lower-exclusive-bound-accepts-what-is-above", "minExclusive=0", 1, "minExclusive");
    newCheck("lower-exclusive-bound-refuses-what-is-below", "minExclusive=0", -1, refused);
    newCheck("upper-inclusive-bound-alone-accepts-itself", "maxInclusive=10", 10, "maxInclusive");
    newCheck("upper-inclusive-bound-accepts-what-is-below", "maxInclusive=10", -70000, "maxInclusive");
    newCheck("upper-inclusive-bound-refuses-what-is-above", "maxInclusive=10", 11, refused);
    newCheck("upper-exclusive-bound-refuses-itself", "maxExclusive=10", 10, refused);
    newCheck("upper-exclusive-bound-accepts-what-is-below", "maxExclusive=10", 9, "maxExclusive");
    newCheck("upper-exclusive-bound-refuses-what-is-above", "maxExclusive=10", 11, refused);

    const char* const inclusive = "minInclusive=0 maxInclusive=10";
    newCheck("inclusive-bounds-accept-what-is-between", inclusive, 5, "maxInclusive minInclusive");
    newCheck("inclusive-bounds-accept-the-lower-one", inclusive, 0, "maxInclusive minInclusive");
    newCheck("upper-inclusive-bound-behind-lower-inclusive-is-refused-for-attributes-only", inclusive, 10,
             "maxInclusive minInclusive", refused);
    newCheck("inclusive-bounds-refuse-what-is-above", inclusive, 11, refused);
    newCheck("inclusive-bounds-refuse-what-is-below", inclusive, -1, refused);

    const char* const halfOpen = "minInclusive=0 maxExclusive=10";
    newCheck("half-open-bounds-accept-the-lower-one", halfOpen, 0, "maxExclusive minInclusive");
    newCheck("half-open-bounds-accept-what-is-between", halfOpen, 9, "maxExclusive minInclusive");
    newCheck("half-open-bounds-refuse-the-upper-one", halfOpen, 10, refused);
    newCheck("half-open-bounds-refuse-what-is-above", halfOpen, 11, refused);
    newCheck("half-open-bounds-refuse-what-is-below", halfOpen, -1, refused);

    const char* const openBelow = "minExclusive=0 maxInclusive=10";
    newCheck("bounds-open-below-accept-what-is-between", openBelow, 1, "maxInclusive minExclusive");
    newCheck("upper-inclusive-bound-behind-lower-exclusive-is-refused-for-attributes-only", openBelow, 10,
             "maxInclusive minExclusive", refused);
    newCheck("bounds-open-below-refuse-what-is-above", openBelow, 11, refused);
    newCheck("bounds-open-below-refuse-the-lower-one", openBelow, 0, refused);
    newCheck("bounds-open-below-refuse-what-is-below", openBelow, -1, refused);

    const char* const open = "minExclusive=0 maxExclusive=10";
    newCheck("open-bounds-accept-what-is-between", open, 9, "maxExclusive minExclusive");
    newCheck("open-bounds-refuse-the-upper-one", open, 10, refused);
    newCheck("open-bounds-refuse-what-is-above", open, 11, refused);
    newCheck("open-bounds-refuse-the-lower-one", open, 0, refused);
    newCheck("open-bounds-refuse-what-is-below", open, -1, refused);

    // Two facets on one side: the order of the steps decides, and what is not named stays.
    newCheck("satisfied-lower-inclusive-hides-lower-exclusive", "minInclusive=0 minExclusive=5", 3, "minInclusive");
    newCheck("satisfied-lower-inclusive-hides-lower-exclusive-before-upper",
             "minInclusive=0 minExclusive=5 maxInclusive=10", 3, "maxInclusive minInclusive");
    newCheck("lower-exclusive-stands-in-for-lower-inclusive", "minInclusive=10 minExclusive=0", 5, "minExclusive");
    newCheck("lower-exclusive-stands-in-before-upper-inclusive", "minInclusive=10 minExclusive=0 maxInclusive=20", 5,
             "maxInclusive minExclusive");
    newCheck("upper-inclusive-bound-behind-lower-that-stands-in-is-refused-for-attributes-only",
             "minInclusive=10 minExclusive=0 maxInclusive=5", 5, "maxInclusive minExclusive", refused);
    newCheck("lower-exclusive-stands-in-before-upper-exclusive", "minInclusive=10 minExclusive=0 maxExclusive=20", 5,
             "maxExclusive minExclusive");
    newCheck("lower-exclusive-stands-in-below-upper-exclusive-only", "minInclusive=10 minExclusive=0 maxExclusive=5", 5,
             refused);
    newCheck("value-below-both-lower-bounds-is-refused", "minInclusive=10 minExclusive=7", 5, refused);
    newCheck("value-below-both-lower-bounds-is-refused-below-upper-inclusive",
             "minInclusive=10 minExclusive=7 maxInclusive=20", 5, refused);
    newCheck("value-below-both-lower-bounds-is-refused-below-upper-exclusive",
             "minInclusive=10 minExclusive=7 maxExclusive=20", 5, refused);
    newCheck("satisfied-upper-inclusive-hides-upper-exclusive", "maxInclusive=10 maxExclusive=5", 7, "maxInclusive");
    newCheck("upper-exclusive-stands-in-for-upper-inclusive", "maxInclusive=5 maxExclusive=10", 7, "maxExclusive");
    newCheck("value-above-both-upper-bounds-is-refused", "maxInclusive=5 maxExclusive=10", 10, refused);
    newCheck("upper-inclusive-hides-upper-exclusive-behind-lower-inclusive",
             "minInclusive=0 maxInclusive=10 maxExclusive=5", 7, "maxInclusive minInclusive");
    newCheck("upper-exclusive-does-not-stand-in-behind-lower-inclusive",
             "minInclusive=0 maxInclusive=5 maxExclusive=10", 7, refused);
    newCheck("upper-inclusive-hides-upper-exclusive-behind-lower-exclusive",
             "minExclusive=0 maxInclusive=10 maxExclusive=5", 7, "maxInclusive minExclusive");

    newCheck("crossed-inclusive-bounds-refuse-what-is-between", "minInclusive=10 maxInclusive=0", 5, refused);
    newCheck("crossed-half-open-bounds-refuse-what-is-between", "minInclusive=10 maxExclusive=0", 5, refused);
    newCheck("crossed-open-bounds-refuse-what-is-between", "minExclusive=10 maxExclusive=0", 5, refused);

    // The number that stands for an absent bound cannot be a bound.
    newCheck("lower-inclusive-bound-of-65535-is-absent", "minInclusive=65535", 1, nothing);
    newCheck("upper-inclusive-bound-of-65535-is-absent", "maxInclusive=65535", 70000, nothing);
    newCheck("lower-exclusive-bound-of-65535-is-absent", "minExclusive=65535", 1, nothing);
    newCheck("upper-exclusive-bound-of-65535-is-absent", "maxExclusive=65535", 70000, nothing);
    newCheck("bound-of-65535-stays-beside-one-that-is-used", "minInclusive=0 maxInclusive=65535", 70000,
             "minInclusive");
    newCheck("value-of-65535-is-a-value-like-others", "minInclusive=0 maxInclusive=65536", 65535,
             "maxInclusive minInclusive");
    newCheck("bound-beside-65535-is-a-bound", "maxInclusive=65534", 65535, refused);
}

void TestRangeCheck::checksAgainstTheBounds()
{
    QFETCH(QString, bounds);
    QFETCH(double, value);
    QFETCH(QString, ofElements);
    QFETCH(QString, ofAttributes);
    const auto integer = static_cast<int>(value);
    QCOMPARE(outcome(boundsOf<int>(bounds), integer, OfElements), ofElements);
    QCOMPARE(outcome(boundsOf<int>(bounds), integer, OfAttributes), ofAttributes);
    QCOMPARE(outcome(boundsOf<double>(bounds), value, OfElements), ofElements);
    QCOMPARE(outcome(boundsOf<double>(bounds), value, OfAttributes), ofAttributes);
}

void TestRangeCheck::checksFractions_data()
{
    addCheckColumns();

    newCheck("fraction-above-the-upper-bound-is-refused", "minInclusive=0 maxInclusive=10", 10.5, refused);
    newCheck("fraction-below-the-lower-bound-is-refused", "minInclusive=0.5", 0.25, refused);
    newCheck("fraction-equal-to-the-bound-is-accepted", "minInclusive=0.5", 0.5, "minInclusive");
    newCheck("fraction-below-the-upper-bound-is-accepted-for-attributes-too", "minInclusive=0 maxInclusive=10",
             9.999999, "maxInclusive minInclusive");
    newCheck("bound-next-to-65535-is-a-bound", "maxInclusive=65535.5", 70000, refused);

    newCheck("infinity-is-above-every-bound", "maxInclusive=10", Infinity, refused);
    newCheck("infinity-satisfies-a-lower-bound", "minExclusive=10", Infinity, "minExclusive");
    newCheck("negative-infinity-is-below-every-bound", "minInclusive=10", -Infinity, refused);

    // It is on neither side of any bound, so nothing refuses it.
    newCheck("not-a-number-needs-no-bound", "", NotANumber, nothing);
    newCheck("not-a-number-passes-lower-inclusive", "minInclusive=0", NotANumber, "minInclusive");
    newCheck("not-a-number-passes-lower-exclusive", "minExclusive=0", NotANumber, "minExclusive");
    newCheck("not-a-number-passes-upper-inclusive", "maxInclusive=0", NotANumber, "maxInclusive");
    newCheck("not-a-number-passes-upper-exclusive", "maxExclusive=0", NotANumber, "maxExclusive");
    newCheck("not-a-number-passes-inclusive-bounds", "minInclusive=0 maxInclusive=10", NotANumber,
             "maxInclusive minInclusive");
    newCheck("not-a-number-passes-open-bounds", "minExclusive=0 maxExclusive=10", NotANumber,
             "maxExclusive minExclusive");
}

void TestRangeCheck::checksFractions()
{
    QFETCH(QString, bounds);
    QFETCH(double, value);
    QFETCH(QString, ofElements);
    QFETCH(QString, ofAttributes);
    QCOMPARE(outcome(boundsOf<double>(bounds), value, OfElements), ofElements);
    QCOMPARE(outcome(boundsOf<double>(bounds), value, OfAttributes), ofAttributes);
}

void TestRangeCheck::checksAtTheLimitsOfIntegers_data()
{
    QTest::addColumn<QString>("bounds");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("ofElements");

    const int least = std::numeric_limits<int>::min();
    const int greatest = std::numeric_limits<int>::max();
    QTest::newRow("least-integer-as-bound-accepts-itself")
        << QStringLiteral("minInclusive=-2147483648") << least << QStringLiteral("minInclusive");
    QTest::newRow("greatest-integer-as-bound-accepts-itself")
        << QStringLiteral("maxInclusive=2147483647") << greatest << QStringLiteral("maxInclusive");
    QTest::newRow("least-integer-is-below-every-bound")
        << QStringLiteral("minExclusive=-2147483648") << least << QString::fromLatin1(refused);
    QTest::newRow("greatest-integer-is-above-every-bound")
        << QStringLiteral("maxExclusive=2147483647") << greatest << QString::fromLatin1(refused);
}

void TestRangeCheck::checksAtTheLimitsOfIntegers()
{
    QFETCH(QString, bounds);
    QFETCH(int, value);
    QFETCH(QString, ofElements);
    QCOMPARE(outcome(boundsOf<int>(bounds), value, OfElements), ofElements);
}

void TestRangeCheck::oneBoundOnEachSideMeansWhatItsNameSays()
{
    const double absent = 65535;
    for (const double lower : {-3.0, 0.0, 2.5}) {
        for (const double upper : {2.5, 4.0, 9.0}) {
            for (double value = -5; value < 12; value += 0.5) {
                const RangeBounds<double> closed {lower, upper, absent, absent};
                QCOMPARE(closed.Check(value, OfElements).isAccepted, lower <= value && value <= upper);
                QCOMPARE(closed.Check(value, OfAttributes).isAccepted, lower <= value && value < upper);
                const RangeBounds<double> halfOpen {lower, absent, absent, upper};
                QCOMPARE(halfOpen.Check(value, OfElements).isAccepted, lower <= value && value < upper);
                const RangeBounds<double> openBelow {absent, upper, lower, absent};
                QCOMPARE(openBelow.Check(value, OfElements).isAccepted, lower < value && value <= upper);
                const RangeBounds<double> open {absent, absent, lower, upper};
                QCOMPARE(open.Check(value, OfElements).isAccepted, lower < value && value < upper);
            }
        }
    }
}

void TestRangeCheck::followsTheOrderOfTheSteps()
{
    compareWithTheSteps<int>({65535, 0, 5, 10, -7}, {-8, -7, -1, 0, 1, 5, 7, 10, 11, 65535});
    compareWithTheSteps<double>({65535, 0, 5, 10, NotANumber},
                                {-1, 0, 0.5, 5, 7, 10, 10.5, 65535, Infinity, -Infinity, NotANumber});
}

QTEST_GUILESS_MAIN(TestRangeCheck)
#include "tst_internals_rangecheck.moc"
