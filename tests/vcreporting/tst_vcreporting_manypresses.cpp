#include <QtTest>

#ifdef __GLIBC__
#include <malloc.h>
#if __GLIBC_PREREQ(2, 33)
#define XMLHELPER_HAS_MALLINFO2
#endif
#endif

#include <algorithm>
#include <vector>

#include <QApplication>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuetext.h>

#include <xmlhelper/commentdialogimpl.h>

#include "cputime.h"
#include "reportingscene.h"

namespace {

constexpr int Kilobyte = 1024;

/// The bytes of the heap that are in use; 0 where nobody can tell.
qint64 usedMemory()
{
#ifdef XMLHELPER_HAS_MALLINFO2
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

    /// The least processor time of a batch of presses, of some batches, in seconds.
    double PressingTime()
    {
        std::vector<double> times(3);
        for (double& time : times) {
            const double start = cpuSeconds();
            for (int i = 0; i < 10; ++i) {
                Press();
            }
            time = cpuSeconds() - start;
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
    void movedValuesAreSoughtInALargeTreeOnce_data();
    void movedValuesAreSoughtInALargeTreeOnce();
};

void TestVCReportingManyPresses::littleStaysOfAPress_data()
{
    QTest::addColumn<bool>("showsDialog");
    QTest::addColumn<int>("presses");
    QTest::addColumn<qint64>("limit");
    QTest::addColumn<int>("widgets");
    QTest::newRow("without-dialog") << false << 200 << qint64(4 * Kilobyte) << 0;
    QTest::newRow("with-an-answered-dialog") << true << 30 << qint64(64 * Kilobyte) << 1;
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
    QTest::newRow("without-dialog") << false << (XMLHELPER_SANITIZED ? 50 : 300);
    QTest::newRow("with-answered-dialogs") << true << (XMLHELPER_SANITIZED ? 50 : 300);
}

void TestVCReportingManyPresses::pressesStayAsFastAsTheFirst()
{
    QFETCH(bool, showsDialog);
    QFETCH(int, presses);
    Screen screen(showsDialog);
    screen.Press();
    const double first = screen.PressingTime();
    for (int i = 0; i < presses; ++i) {
        screen.Press();
    }
    double last = screen.PressingTime();
    for (int i = 0; i < 20 && last > 2 * first; ++i) { // What else slows the machine passes, growth does not.
        last = std::min(last, screen.PressingTime());
    }
    QVERIFY2(last <= 2 * (first + CpuTimeStep),
             qPrintable(QStringLiteral("%1 s at first, %2 s at last").arg(first).arg(last)));
}

void TestVCReportingManyPresses::movedValuesAreSoughtInALargeTreeOnce_data()
{
    QTest::addColumn<bool>("areDeleted");
    QTest::newRow("moved") << false;
    QTest::newRow("gone") << true;
}

void TestVCReportingManyPresses::movedValuesAreSoughtInALargeTreeOnce()
{
    QFETCH(bool, areDeleted);
    std::vector<double> times;
    for (const std::size_t count : {1, 20}) {
        const Tree tree;
        Screen screen(false);
        screen.Reporting().ClearReportData();
        std::vector<ValueBase*> values;
        for (int i = 0; i < 20; ++i) {
            values.push_back(new ValueText(QStringLiteral("Element%1").arg(i), QStringLiteral("value")));
            new ValueItem(values.back(), tree.GetRoot());
        }
        screen.Reporting().AddReportData(tree.GetRoot());
        Node* node = nullptr;
        for (int i = 0; i < (XMLHELPER_SANITIZED ? 20 : 100); ++i) {
            node = new Node(QStringLiteral("Node%1").arg(i), tree.GetRoot());
            for (int j = 0; j < 100; ++j) {
                new ValueItem(nullptr, node);
            }
        }
        values.resize(count);
        for (ValueBase* const value : values) {
            if (areDeleted) {
                delete value;
            } else {
                new ValueItem(value, node);
            }
        }
        times.push_back(screen.PressingTime());
        const QString text = screen.Report().documentElement().firstChildElement(QStringLiteral("Element0")).text();
        QCOMPARE(text, areDeleted ? QString() : QStringLiteral("value"));
    }
    QVERIFY2(times[1] <= 3 * (times[0] + CpuTimeStep),
             qPrintable(QStringLiteral("%1, %2").arg(times[0]).arg(times[1])));
}

QTEST_MAIN(TestVCReportingManyPresses)
#include "tst_vcreporting_manypresses.moc"
