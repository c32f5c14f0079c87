#include <arbase/errorhandler.h>
#include <QtTest>

class TestErrorHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMaskIsEmptyAtStart();
    void theMaskIsKeptInTheOneInstance_data();
    void theMaskIsKeptInTheOneInstance();
};

void TestErrorHandler::theMaskIsEmptyAtStart()
{
    // A process starts once, so nothing may have set the mask before.
    QCOMPARE(ErrorHandler::Instance().GetTraceMask(), 0U);
}

void TestErrorHandler::theMaskIsKeptInTheOneInstance_data()
{
    QTest::addColumn<quint32>("mask");

    QTest::newRow("one-class") << 32U;
    QTest::newRow("several-classes") << 0x21U;
    QTest::newRow("all-classes") << 0xFFFFFFFFU;
    QTest::newRow("no-class") << 0U;
}

void TestErrorHandler::theMaskIsKeptInTheOneInstance()
{
    QFETCH(quint32, mask);

    ErrorHandler::Instance().SetTraceMask(mask);
    const quint32 kept = ErrorHandler::Instance().GetTraceMask();
    ErrorHandler::Instance().SetTraceMask(0);

    QCOMPARE(kept, mask);
}

QTEST_GUILESS_MAIN(TestErrorHandler)

#include "tst_errorhandler.moc"
