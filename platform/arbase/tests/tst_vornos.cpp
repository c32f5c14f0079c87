#include <arbase/vornos.h>
#include <QtTest>

namespace {

qint64 replayedTime = 0;

qint64 replay()
{
    return replayedTime;
}

} // namespace

class TestVornOS : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void thereIsOneInstance();
    void theTimeIsThatOfTheSystemClock();
    void theTimeSourceIsAskedEveryTime();
    void nullGivesTheSystemClockBack();

private:
    static bool isSystemTime();
};

void TestVornOS::cleanup()
{
    VornOS::SetTimeSource(nullptr);
}

bool TestVornOS::isSystemTime()
{
    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    const qint64 now = VornOS::Create()->GetCurrentTime();
    return before <= now && now <= QDateTime::currentMSecsSinceEpoch();
}

void TestVornOS::thereIsOneInstance()
{
    QVERIFY(VornOS::Create());
    QCOMPARE(VornOS::Create(), VornOS::Create());
}

void TestVornOS::theTimeIsThatOfTheSystemClock()
{
    QVERIFY(isSystemTime());
}

void TestVornOS::theTimeSourceIsAskedEveryTime()
{
    VornOS::SetTimeSource(replay);
    for (const qint64 time : {qint64(5), qint64(-1), qint64(4102444800000)}) {
        replayedTime = time;
        QCOMPARE(VornOS::Create()->GetCurrentTime(), time);
    }
}

void TestVornOS::nullGivesTheSystemClockBack()
{
    VornOS::SetTimeSource(replay);
    VornOS::SetTimeSource(nullptr);
    QVERIFY(isSystemTime());
}

QTEST_GUILESS_MAIN(TestVornOS)

#include "tst_vornos.moc"
