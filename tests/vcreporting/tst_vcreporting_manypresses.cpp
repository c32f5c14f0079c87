#include <QtTest>

#include <algorithm>
#include <ctime>
#include <vector>

#ifdef Q_OS_LINUX
#include <malloc.h>
#endif

#include <QApplication>

#include <xmlhelper/commentdialogimpl.h>

#include "reportingscene.h"

namespace {

constexpr int Kilobyte = 1024;

/// The bytes of the heap that are in use; 0 where nobody can tell.
qint64 usedMemory()
{
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 info = mallinfo2();
    return XMLHELPER_SANITIZED ? 0 : static_cast<qint64>(info.uordblks + info.hblkhd);
#else
    return 0;
#endif
}

/// A screen with an ordinary report.
class Screen : public ReportingScene
{
public:
    explicit Screen(bool showsDialog)
        : ReportingScene(declarations())
    {
        for (int i = 0; i < 20; ++i) {
            AddText(QStringLiteral("Element%1").arg(i), QStringLiteral("value"));
        }
        Reporting().SetShowCommentDialog(showsDialog);
    }

    /// Presses and answers the dialog, if there is one.
    void Press()
    {
        Reporting().Forget();
        QVERIFY(Reporting().SlotToReport());
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (auto* const dialog = qobject_cast<CommentDialogImpl*>(window); dialog && dialog->isVisible()) {
                QCoreApplication::processEvents(); // paints it
                dialog->SlotSaveWithoutComment();
            }
        }
        QCoreApplication::processEvents();
    }

    /// The least processor time of a batch of presses, of some batches.
    std::clock_t PressingTime()
    {
        std::vector<std::clock_t> times(5);
        for (std::clock_t& time : times) {
            const std::clock_t start = std::clock();
            for (int i = 0; i < 10; ++i) {
                Press();
            }
            time = std::clock() - start;
        }
        return *std::min_element(times.cbegin(), times.cend());
    }

private:
    static QString declarations()
    {
        QString text;
        for (int i = 0; i < 20; ++i) {
            text += declaredElement(QStringLiteral("Element%1").arg(i), QStringLiteral("string"));
        }
        return text;
    }
};

} // namespace

class TestVCReportingManyPresses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void littleStaysOfAPress_data();
    void littleStaysOfAPress();
    void pressesStayAsFastAsTheFirst_data();
    void pressesStayAsFastAsTheFirst();
};

void TestVCReportingManyPresses::littleStaysOfAPress_data()
{
    QTest::addColumn<bool>("showsDialog");
    QTest::addColumn<int>("presses");
    QTest::addColumn<qint64>("limit");
    QTest::addColumn<int>("widgets");
    QTest::newRow("without-dialog") << false << 300 << qint64(4 * Kilobyte) << 0;
    QTest::newRow("with-an-answered-dialog") << true << 50 << qint64(64 * Kilobyte) << 1;
}

void TestVCReportingManyPresses::littleStaysOfAPress()
{
    QFETCH(bool, showsDialog);
    QFETCH(int, presses);
    QFETCH(qint64, limit);
    QFETCH(int, widgets);
    Screen screen(showsDialog);
    for (int i = 0; i < 10; ++i) { // what Qt keeps of the first ones
        screen.Press();
    }
    const qint64 before = usedMemory();
    const auto widgetsBefore = QApplication::allWidgets().size();
    for (int i = 0; i < presses; ++i) {
        screen.Press();
    }
    const qint64 left = (usedMemory() - before) / presses;
    QVERIFY2(left <= limit, qPrintable(QStringLiteral("%1 bytes of each press").arg(left)));
    QCOMPARE(int(QApplication::allWidgets().size() - widgetsBefore), presses * widgets);
    QVERIFY(QGuiApplication::allWindows().size() <= 1);
}

void TestVCReportingManyPresses::pressesStayAsFastAsTheFirst_data()
{
    QTest::addColumn<bool>("showsDialog");
    QTest::addColumn<int>("presses");
    QTest::newRow("without-dialog") << false << 600;
    QTest::newRow("with-answered-dialogs") << true << 300;
}

void TestVCReportingManyPresses::pressesStayAsFastAsTheFirst()
{
    QFETCH(bool, showsDialog);
    QFETCH(int, presses);
    Screen screen(showsDialog);
    screen.Press();
    const std::clock_t first = screen.PressingTime();
    for (int i = 0; i < presses; ++i) {
        screen.Press();
    }
    const std::clock_t last = screen.PressingTime();
    QVERIFY2(last <= 2 * first, qPrintable(QStringLiteral("%1 at first, %2 at last").arg(first).arg(last)));
}

QTEST_MAIN(TestVCReportingManyPresses)
#include "tst_vcreporting_manypresses.moc"
