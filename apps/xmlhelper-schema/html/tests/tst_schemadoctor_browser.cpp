#include <QtTest>

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include "htmlrendering.h"
#include "sampleexamination.h"

using namespace schemadoctor;

/// The page in a browser, where there is one.
class TestSchemaDoctorBrowser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isWholeWithoutAFragment();
    void searchesForTheFragment();
    void unfoldsWhatALinkLeadsTo();

private:
    QString pageAt(const QString& fragment);
    bool isHidden(const QString& page, const QString& name) const;

    QString m_sBrowser;
    QTemporaryDir m_folder;
};

void TestSchemaDoctorBrowser::initTestCase()
{
    m_sBrowser = QStandardPaths::findExecutable(QStringLiteral("chromium"));
    if (m_sBrowser.isEmpty()) {
        QSKIP("There is no chromium.");
    }
    QFile page(m_folder.filePath(QStringLiteral("page.html")));
    QVERIFY(page.open(QIODevice::WriteOnly));
    page.write(htmlOf(sampleExamination()));
}

// The page as it is after its script has run.
QString TestSchemaDoctorBrowser::pageAt(const QString& fragment)
{
    QUrl url = QUrl::fromLocalFile(m_folder.filePath(QStringLiteral("page.html")));
    url.setFragment(fragment);
    QProcess browser;
    browser.start(m_sBrowser,
                  {QStringLiteral("--headless"), QStringLiteral("--no-sandbox"), QStringLiteral("--disable-gpu"),
                   QStringLiteral("--no-first-run"), QStringLiteral("--disable-background-networking"),
                   QStringLiteral("--disable-component-update"), QStringLiteral("--disable-sync"),
                   QStringLiteral("--disable-quic"),
                   QStringLiteral("--user-data-dir=") + m_folder.filePath(QStringLiteral("profile")),
                   QStringLiteral("--dump-dom"), url.toString(QUrl::FullyEncoded)});
    return browser.waitForFinished(120000) ? QString::fromUtf8(browser.readAllStandardOutput()) : QString();
}

// Of the row with that name.
bool TestSchemaDoctorBrowser::isHidden(const QString& page, const QString& name) const
{
    const QString item = page.section(QStringLiteral("<span class=\"name\">%1</span>").arg(name), 0, 0);
    return item.mid(item.lastIndexOf(QLatin1String("<li"))).startsWith(QLatin1String("<li hidden"));
}

void TestSchemaDoctorBrowser::isWholeWithoutAFragment()
{
    const QString page = pageAt(QString());
    QVERIFY(page.contains(QLatin1String("class=\"bar\" data-script=\"\">"))); // shown by the script, so it has run
    QVERIFY(!isHidden(page, QStringLiteral("Station")));
    QVERIFY(!isHidden(page, QStringLiteral("Price")));
}

void TestSchemaDoctorBrowser::searchesForTheFragment()
{
    const QString page = pageAt(QStringLiteral("q=pric"));
    QVERIFY(isHidden(page, QStringLiteral("Station")));
    QVERIFY(isHidden(page, QStringLiteral("Level")));
    QVERIFY(!isHidden(page, QStringLiteral("Report"))); // the way to it
    QVERIFY(!isHidden(page, QStringLiteral("Signal")));
    QVERIFY(!isHidden(page, QStringLiteral("Price")));
    QVERIFY(page.contains(QLatin1String("1 in the tree, 1 findings")));
}

void TestSchemaDoctorBrowser::unfoldsWhatALinkLeadsTo()
{
    QVERIFY(!pageAt(QString()).contains(QLatin1String("<details id=\"t1\" open=")));
    QVERIFY(pageAt(QStringLiteral("t1-2")).contains(QLatin1String("<details id=\"t1\" open=")));
}

QTEST_GUILESS_MAIN(TestSchemaDoctorBrowser)

#include "tst_schemadoctor_browser.moc"
