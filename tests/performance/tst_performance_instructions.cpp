#include <QtTest>

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

/// Counts the instructions of one small case of each kind under callgrind, library and floor in the same run. The
/// numbers depend on compiler and Qt, their ratio hardly: that is what is bounded.
class TestPerformanceInstructions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keepsTheRatioToTheFloor_data();
    void keepsTheRatioToTheFloor();
};

namespace {

/// The bounds lie a few percent above what was counted last. Lower them when the library got better.
struct Bounded
{
    const char* name;
    double optimised; ///< the greatest ratio of an optimised build
    double unoptimised; ///< and of one for debugging
};

constexpr Bounded Cases[] = {
    {"read/file/10000", 9, 9},
};

#ifdef __OPTIMIZE__
constexpr bool IsOptimised = true;
#else
constexpr bool IsOptimised = false;
#endif

/// The instructions that a profile has counted.
double totalOf(const QString& profile)
{
    QFile file(profile);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("totals:")) {
            return line.mid(7).trimmed().toDouble();
        }
    }
    return 0;
}

} // namespace

void TestPerformanceInstructions::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("valgrind")).isEmpty()) {
        QSKIP("valgrind is not installed; scripts/install-packages check installs it");
    }
}

void TestPerformanceInstructions::keepsTheRatioToTheFloor_data()
{
    QTest::addColumn<double>("greatest");
    for (const Bounded& bounded : Cases) {
        QTest::newRow(bounded.name) << (IsOptimised ? bounded.optimised : bounded.unoptimised);
    }
}

void TestPerformanceInstructions::keepsTheRatioToTheFloor()
{
    QFETCH(double, greatest);
    const QTemporaryDir folder;
    const QString profile = folder.filePath(QStringLiteral("profile"));
    const QString filter = QLatin1Char('^') + QLatin1String(QTest::currentDataTag()) + QLatin1Char('$');
    QProcess valgrind;
    valgrind.start(QStringLiteral("valgrind"),
                   {QStringLiteral("--tool=callgrind"), QStringLiteral("--collect-atstart=no"),
                    QStringLiteral("--callgrind-out-file=") + profile, QStringLiteral(XMLHELPER_BENCHMARKS),
                    QStringLiteral("--instructions"), QStringLiteral("--filter"), filter});
    QVERIFY(valgrind.waitForFinished(-1));
    QVERIFY2(valgrind.exitCode() == 0, valgrind.readAllStandardError().constData());

    // Callgrind numbers the profiles in the order in which they were asked for.
    const double library = totalOf(profile + QStringLiteral(".1"));
    const double floor = totalOf(profile + QStringLiteral(".2"));
    QVERIFY(library > 0 && floor > 0);
    const double ratio = library / floor;
    QVERIFY2(ratio <= greatest, qPrintable(QStringLiteral("%1, at most %2").arg(ratio).arg(greatest)));
}

QTEST_GUILESS_MAIN(TestPerformanceInstructions)
#include "tst_performance_instructions.moc"
