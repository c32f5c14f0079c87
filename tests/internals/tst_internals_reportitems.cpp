#include <QtTest>

#include <xmlhelper/reportitems_p.h>

class TestReportItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsTheFirstOfItsName();
    void keepsTheOrderWhenItemsGo();
    void listsOthersBesideThem();
    void listsItemsOfSomeNamesInTheirOrder();
    void startsAnewWhenCleared();

private:
    void append(const char* name);
    QString namesBefore(const char* end, const std::vector<QString>& names, int others = 0) const;
    QString nameAt(int index) const { return m_pItems->At(index)->GetName(); }

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
    m_pItems->Append(std::make_shared<ReportData>(QLatin1String(name), QString(), QStringLiteral("1"), 1, QString(), 0,
                                                  QString(), false));
}

QString TestReportItems::namesBefore(const char* end, const std::vector<QString>& names, int others) const
{
    QStringList found;
    for (const ReportItems::Item& item : m_pItems->Before(m_pItems->First(QLatin1String(end)), names, others)) {
        found.append(item->GetName());
    }
    return found.join(QLatin1Char(' '));
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
    QCOMPARE(namesBefore("", {}, 9), QStringLiteral("Frequency Azimuth"));
}

void TestReportItems::listsItemsOfSomeNamesInTheirOrder()
{
    const std::vector<QString> names {QStringLiteral("Azimuth"), QStringLiteral("Level"), QStringLiteral("Level"),
                                      QStringLiteral("Unknown")};
    QCOMPARE(namesBefore("", names), QStringLiteral("Level Level Azimuth"));
    QCOMPARE(namesBefore("Azimuth", names), QStringLiteral("Level Level"));
    QCOMPARE(namesBefore("Level", names), QString());
}

void TestReportItems::listsOthersBesideThem()
{
    for (const char* const name : {"A", "B", "C", "Frequency", "D"}) {
        append(name);
    }
    const std::vector<QString> frequency {QStringLiteral("Frequency")};
    QCOMPARE(namesBefore("", frequency, 1), QStringLiteral("Level Frequency Level Frequency D"));
    QCOMPARE(namesBefore("", frequency, 2), QStringLiteral("Level Frequency Level Azimuth Frequency D"));
    QCOMPARE(namesBefore("C", frequency, 9), QStringLiteral("Level Frequency Level Azimuth A B"));
    QCOMPARE(namesBefore("B", {}, 2), QStringLiteral("Level Frequency"));
    QCOMPARE(namesBefore("Level", frequency, 2), QString());
    m_pItems->Clear();
    QCOMPARE(namesBefore("", frequency, 2), QString());
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
