#include <QtTest>

#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QProcessEnvironment>
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

private:
    QHash<QString, double> m_totals; ///< by the name of the case and the side
};

namespace {

/// The bounds lie five percent above what was counted last. Lower them when the library got better.
struct Bounded
{
    const char* name;
    double optimised; ///< the greatest ratio of an optimised build
    double unoptimised; ///< and of one for debugging
};

constexpr Bounded Cases[] = {
    {"read/file/10000", 1.17, 1.51},
    {"read/document/10000", 0.71, 1.18},
    {"search/all/10000", 1.52, 1.80},
    {"search/below/10000", 1.52, 1.80},
    {"schema/read/groups/50", 1.18, 2.14},
    {"walk/flat/unfilled/1000", 1.50, 1.65},
    {"walk/flat/filled/1000", 1.15, 1.15},
    {"walk/groups/half-filled/1000", 1.75, 1.87},
    {"fill/text/500", 1.62, 2.47},
    {"fill/double/500", 1.43, 2.26},
    {"fill/integer/500", 1.67, 3.01},
    {"fill/attribute-text/500", 1.89, 2.97},
    {"fill/enumeration/100", 1.42, 1.45},
    {"occurs/copies/100", 1.08, 1.08},
    {"occurs/owners/100", 1.16, 1.10},
    {"save/10000", 0.26, 0.77},
    {"job/qt/50", 0.92, 1.72},
    {"button/10", 1.30, 1.35},
    {"writer/1000", 0.66, 1.28},
};

#ifdef __OPTIMIZE__
constexpr bool IsOptimised = true;
#else
constexpr bool IsOptimised = false;
#endif

/// What stands behind @p label in a profile.
QString entryOf(const QByteArray& profile, const QByteArray& label)
{
    for (const QByteArray& line : profile.split('\n')) {
        if (line.startsWith(label)) {
            return QString::fromUtf8(line.mid(label.size()).trimmed());
        }
    }
    return QString();
}

/// The instructions of every profile in a folder, by the name that the benchmarks gave it.
QHash<QString, double> totalsOf(const QDir& folder)
{
    QHash<QString, double> totals;
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            const QByteArray profile = file.readAll();
            totals.insert(entryOf(profile, "desc: Trigger: Client Request:"), entryOf(profile, "totals:").toDouble());
        }
    }
    return totals;
}

/// Lets exactly the bounded cases through.
QString filterOfCases()
{
    QStringList names;
    for (const Bounded& bounded : Cases) {
        names.append(QLatin1String(bounded.name));
    }
    return QStringLiteral("^(%1)$").arg(names.join(QLatin1Char('|')));
}

} // namespace

/// One run for all cases: it takes callgrind longer to start the program than to count a case.
void TestPerformanceInstructions::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("valgrind")).isEmpty()) {
        QSKIP("valgrind is not installed; scripts/install-packages check installs it");
    }
    const QTemporaryDir folder;
    QProcess valgrind;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_HASH_SEED"), QStringLiteral("0")); // the same hashes in every run
    valgrind.setProcessEnvironment(environment);
    valgrind.start(QStringLiteral("valgrind"),
                   {QStringLiteral("--tool=callgrind"), QStringLiteral("--collect-atstart=no"),
                    QStringLiteral("--callgrind-out-file=") + folder.filePath(QStringLiteral("profile")),
                    QStringLiteral(XMLHELPER_BENCHMARKS), QStringLiteral("--instructions"), QStringLiteral("--filter"),
                    filterOfCases()});
    QVERIFY(valgrind.waitForFinished(-1));
    QVERIFY2(valgrind.exitCode() == 0, valgrind.readAllStandardError().constData());
    m_totals = totalsOf(QDir(folder.path()));
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
    const QString name = QLatin1String(QTest::currentDataTag());
    const double library = m_totals.value(name + QStringLiteral(" library"));
    const double floor = m_totals.value(name + QStringLiteral(" floor"));
    QVERIFY(library > 0 && floor > 0);
    const double ratio = library / floor;
    qInfo("%.3f of at most %.3f", ratio, greatest);
    QVERIFY(ratio <= greatest);
}

QTEST_GUILESS_MAIN(TestPerformanceInstructions)
#include "tst_performance_instructions.moc"
