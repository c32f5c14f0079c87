#include <QtTest>

#include <xmlhelper/reportitems.h>

class TestReportItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsTheFirstOfItsName();
    void keepsTheOrderWhenItemsGo();
    void listsWhatStandsBefore();
    void listsItemsOfSomeNamesInTheirOrder();
    void startsAnewWhenCleared();

private:
    void append(const char* name);
    QString nameAt(int index) const { return m_pItems->At(index).GetName(); }

    std::unique_ptr<ReportItems> m_pItems;
};

void TestReportItems::init()
{
    m_pItems = std::make_unique<ReportItems>();
    for (const char* const name : {"Level", "Frequency", "Level", "Azimuth"}) {
        append(name);
    }
}

void TestReportItems::append(const char* name)
{
    m_pItems->Append(
        new ReportData(QLatin1String(name), QString(), QStringLiteral("1"), 1, QString(), 0, QString(), false));
}

void TestReportItems::findsTheFirstOfItsName()
{
    QCOMPARE(m_pItems->First(), m_pItems->First(QStringLiteral("Level")));
    QCOMPARE(nameAt(m_pItems->First(QStringLiteral("Azimuth"))), QStringLiteral("Azimuth"));
    QCOMPARE(m_pItems->First(QStringLiteral("level")), NO_INDEX);
    QCOMPARE(m_pItems->First(QString()), NO_INDEX);
}

void TestReportItems::keepsTheOrderWhenItemsGo()
{
    const int firstLevel = m_pItems->First(QStringLiteral("Level"));
    m_pItems->DeleteFirst(QStringLiteral("Level"));
    const int secondLevel = m_pItems->First(QStringLiteral("Level"));
    QVERIFY(secondLevel > firstLevel);
    QCOMPARE(nameAt(m_pItems->First()), QStringLiteral("Frequency"));
    m_pItems->DeleteFirst(QStringLiteral("Level"));
    QCOMPARE(m_pItems->First(QStringLiteral("Level")), NO_INDEX);
    m_pItems->DeleteFirst(QStringLiteral("Level"));
    QCOMPARE(m_pItems->Before(NO_INDEX).size(), std::size_t(2));
}

void TestReportItems::listsWhatStandsBefore()
{
    QCOMPARE(m_pItems->Before(m_pItems->First()).size(), std::size_t(0));
    QCOMPARE(m_pItems->Before(m_pItems->First(QStringLiteral("Azimuth"))).size(), std::size_t(3));
    QCOMPARE(m_pItems->Before(NO_INDEX).size(), std::size_t(4));
}

void TestReportItems::listsItemsOfSomeNamesInTheirOrder()
{
    const std::vector<QString> names {QStringLiteral("Azimuth"), QStringLiteral("Level"), QStringLiteral("Level"),
                                      QStringLiteral("Unknown")};
    QStringList found;
    for (const int index : m_pItems->Before(NO_INDEX, names)) {
        found.append(nameAt(index));
    }
    QCOMPARE(found.join(QLatin1Char(' ')), QStringLiteral("Level Level Azimuth"));
    QCOMPARE(m_pItems->Before(m_pItems->First(QStringLiteral("Azimuth")), names).size(), std::size_t(2));
    QCOMPARE(m_pItems->Before(m_pItems->First(), names).size(), std::size_t(0));
}

void TestReportItems::startsAnewWhenCleared()
{
    m_pItems->Clear();
    QCOMPARE(m_pItems->First(), NO_INDEX);
    QCOMPARE(m_pItems->First(QStringLiteral("Level")), NO_INDEX);
    append("Level");
    QCOMPARE(nameAt(m_pItems->First()), QStringLiteral("Level"));
}

QTEST_GUILESS_MAIN(TestReportItems)
#include "tst_internals_reportitems.moc"
