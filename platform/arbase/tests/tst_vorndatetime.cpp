#include <arbase/vorndatetime.h>
#include <ctime>
#include <QtTest>

namespace {

/// A zone 5:30 hours ahead of UTC, so that local time cannot be mistaken for UTC on any machine.
void useZoneAheadOfUtc()
{
    qputenv("TZ", "IST-05:30");
#ifdef Q_OS_WIN
    _tzset();
#else
    tzset();
#endif
}

} // namespace

class TestVornDateTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theTimeIsLocal();
    void theFormatHasQtsLetters_data();
    void theFormatHasQtsLetters();
    void millisecondsAreCounted_data();
    void millisecondsAreCounted();
    void quotedPartsStayAsTheyAre_data();
    void quotedPartsStayAsTheyAre();

private:
    static QString write(int milliseconds, const QString& format);
};

void TestVornDateTime::initTestCase()
{
    useZoneAheadOfUtc();
}

QString TestVornDateTime::write(int milliseconds, const QString& format)
{
    const QDateTime local(QDate(2026, 11, 21), QTime(9, 8, 7, milliseconds));
    return Vorn::DateTime(local.toMSecsSinceEpoch()).toString(format);
}

void TestVornDateTime::theTimeIsLocal()
{
    QCOMPARE(Vorn::DateTime(0).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")), QStringLiteral("1970-01-01 05:30:00"));
    QCOMPARE(Vorn::DateTime(-1).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz")),
             QStringLiteral("1970-01-01 05:29:59.999"));
}

void TestVornDateTime::theFormatHasQtsLetters_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");

    QTest::newRow("file-name-of-a-report") << "yyyy-MM-dd_hh-mm-ss-z"
                                           << "2026-11-21_09-08-07-5";
    QTest::newRow("time-stamp-of-a-comment") << "yyyy/MM/dd hh:mm:ss"
                                             << "2026/11/21 09:08:07";
    QTest::newRow("single-letters-without-leading-zeros") << "d.M.yy h:m:s"
                                                          << "21.11.26 9:8:7";
    QTest::newRow("names-are-english") << "ddd dddd MMM MMMM AP"
                                       << "Sat Saturday Nov November AM";
    QTest::newRow("empty") << ""
                           << "";
}

void TestVornDateTime::theFormatHasQtsLetters()
{
    QFETCH(QString, format);
    QFETCH(QString, text);

    QCOMPARE(write(5, format), text);
}

void TestVornDateTime::millisecondsAreCounted_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");

    QTest::newRow("one-letter-zero") << 0 << "z"
                                     << "0";
    QTest::newRow("one-letter-without-leading-zeros") << 5 << "z"
                                                      << "5";
    QTest::newRow("one-letter-keeps-a-trailing-zero-of-tens") << 50 << "z"
                                                              << "50";
    QTest::newRow("one-letter-keeps-trailing-zeros-of-hundreds") << 500 << "z"
                                                                 << "500";
    QTest::newRow("one-letter-keeps-a-trailing-zero-of-hundreds") << 120 << "z"
                                                                  << "120";
    QTest::newRow("one-letter-greatest") << 999 << "z"
                                         << "999";
    QTest::newRow("three-letters-zero") << 0 << "zzz"
                                        << "000";
    QTest::newRow("three-letters-fill-ones") << 5 << "zzz"
                                             << "005";
    QTest::newRow("three-letters-fill-tens") << 50 << "zzz"
                                             << "050";
    QTest::newRow("three-letters-hundreds") << 500 << "zzz"
                                            << "500";
    QTest::newRow("two-letters-are-one-and-one") << 5 << "zz"
                                                 << "55";
    QTest::newRow("four-letters-are-three-and-one") << 5 << "zzzz"
                                                    << "0055";
    QTest::newRow("several-places") << 50 << "z.zzz s"
                                    << "50.050 7";
}

void TestVornDateTime::millisecondsAreCounted()
{
    QFETCH(int, milliseconds);
    QFETCH(QString, format);
    QFETCH(QString, text);

    QCOMPARE(write(milliseconds, format), text);
}

void TestVornDateTime::quotedPartsStayAsTheyAre_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");

    QTest::newRow("quoted-letters") << "'z zzz hh' z"
                                    << "z zzz hh 5";
    QTest::newRow("between-quoted-parts") << "'z'z'zzz'"
                                          << "z5zzz";
    QTest::newRow("doubled-quote-is-a-quote") << "''z"
                                              << "'5";
    QTest::newRow("doubled-quote-in-a-quoted-part") << "'z''z'z"
                                                    << "z'z5";
    QTest::newRow("quote-never-closed") << "z'z"
                                        << "5z";
}

void TestVornDateTime::quotedPartsStayAsTheyAre()
{
    QFETCH(QString, format);
    QFETCH(QString, text);

    QCOMPARE(write(5, format), text);
}

QTEST_GUILESS_MAIN(TestVornDateTime)

#include "tst_vorndatetime.moc"
