#include <QtTest>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTreeView>
#include <QTreeWidget>

#include "doctorwindow.h"
#include "laidouttreemodel.h"
#include "sampleexamination.h"
#include "schematextview.h"

using namespace schemadoctor;

namespace {

QStringList namesBelow(const QAbstractItemModel& model, const QModelIndex& parent)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        names.append(index.data().toString());
        names.append(namesBelow(model, index));
    }
    return names;
}

QString textOfMarkedLine(const SchemaTextView& view)
{
    return view.document()->findBlockByNumber(view.MarkedLine() - 1).text().trimmed();
}

} // namespace

class TestSchemaDoctorWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelIsConsistent();
    void modelShowsElementsAndTheirAttributes();
    void modelTellsTheFactsOfAnElement();
    void modelOfNothingHasNoRows();
    void modelFindsTheRowOfAnElement();

    void showsTheLineOfAnElement();
    void showsTheFileOfAnAttribute();
    void startsWithTheFirstFinding();
    void showsAllOfAFinding();
    void foldsFindingsOfOneCause();
    void showsTheElementOfAFinding();
    void filtersByName();
    void findsByKeyboard();
    void showsAFileThatIsChosen();
    void saysWhyThereIsNothing();
    void showsManyElements();
};

void TestSchemaDoctorWindow::modelIsConsistent()
{
    const Examination examination = sampleExamination();
    LaidOutTreeModel model(examination.tree);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QCOMPARE(model.rowCount(), 1);
}

void TestSchemaDoctorWindow::modelShowsElementsAndTheirAttributes()
{
    const Examination examination = sampleExamination();
    const LaidOutTreeModel model(examination.tree);
    const QStringList expected {QStringLiteral("Report"), QStringLiteral("Station"), QStringLiteral("Signal"),
                                QStringLiteral("Level"),  QStringLiteral("@Unit"),   QStringLiteral("Price")};
    QCOMPARE(namesBelow(model, QModelIndex()), expected);
}

void TestSchemaDoctorWindow::modelTellsTheFactsOfAnElement()
{
    const Examination examination = sampleExamination();
    const LaidOutTreeModel model(examination.tree);
    const auto text = [&](int element, int column) {
        const QModelIndex index = model.IndexOf(element);
        return index.siblingAtColumn(column).data().toString();
    };
    QCOMPARE(text(3, LaidOutTreeModel::Type), QStringLiteral("double"));
    QCOMPARE(text(3, LaidOutTreeModel::Limits), QStringLiteral("minInclusive 0, pattern [0-9] (not checked)"));
    QCOMPARE(text(3, LaidOutTreeModel::SetBy), QStringLiteral("double"));
    QCOMPARE(text(1, LaidOutTreeModel::Limits), QStringLiteral("Tower | Mast, default Mast"));
    QVERIFY(text(1, LaidOutTreeModel::Occurs).endsWith(QLatin1String(", choice 1")));
    QCOMPARE(text(4, LaidOutTreeModel::SetBy), QStringLiteral("nothing can fill it"));
    QCOMPARE(text(2, LaidOutTreeModel::SetBy), QString());
}

void TestSchemaDoctorWindow::modelOfNothingHasNoRows()
{
    const LaidOutTree tree;
    const LaidOutTreeModel model(tree);
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.IndexOf(LaidOutElement::None).isValid());
    QVERIFY(model.PlaceOf(QModelIndex()).file.isEmpty());
}

void TestSchemaDoctorWindow::modelFindsTheRowOfAnElement()
{
    const Examination examination = sampleExamination();
    const LaidOutTreeModel model(examination.tree);
    for (int element = 0; element < int(examination.tree.elements.size()); ++element) {
        QCOMPARE(model.IndexOf(element).data().toString(), examination.tree.elements[std::size_t(element)].name);
    }
}

void TestSchemaDoctorWindow::showsTheLineOfAnElement()
{
    DoctorWindow window(sampleExamination());
    auto* const tree = window.findChild<QTreeView*>(QStringLiteral("tree"));
    const auto* const text = window.findChild<SchemaTextView*>(QStringLiteral("text"));
    tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0))); // Report/Station
    QCOMPARE(text->MarkedLine(), 4);
    QCOMPARE(textOfMarkedLine(*text), QStringLiteral("<xs:element name=\"Station\"/>"));
}

void TestSchemaDoctorWindow::showsTheFileOfAnAttribute()
{
    DoctorWindow window(sampleExamination());
    auto* const tree = window.findChild<QTreeView*>(QStringLiteral("tree"));
    const auto* const text = window.findChild<SchemaTextView*>(QStringLiteral("text"));
    const QModelIndexList units = tree->model()->match(
        tree->model()->index(0, 0), Qt::DisplayRole, QStringLiteral("@Unit"), 1, Qt::MatchRecursive | Qt::MatchExactly);
    QCOMPARE(units.size(), 1);
    tree->setCurrentIndex(units.first());
    QCOMPARE(window.findChild<QComboBox*>(QStringLiteral("file"))->currentText(), QStringLiteral("/schemas/types.xsd"));
    QCOMPARE(textOfMarkedLine(*text), QStringLiteral("<xs:element name=\"Level\"/>"));
}

void TestSchemaDoctorWindow::startsWithTheFirstFinding()
{
    const DoctorWindow window(sampleExamination());
    const auto* const details = window.findChild<QPlainTextEdit*>(QStringLiteral("details"));
    QVERIFY(details->toPlainText().contains(QLatin1String("The type decimal can never be filled.")));
}

void TestSchemaDoctorWindow::showsAllOfAFinding()
{
    DoctorWindow window(sampleExamination());
    auto* const findings = window.findChild<QTreeWidget*>(QStringLiteral("findings"));
    QCOMPARE(findings->topLevelItemCount(), 3);
    findings->setCurrentItem(findings->topLevelItem(1));
    const QString details = window.findChild<QPlainTextEdit*>(QStringLiteral("details"))->toPlainText();
    for (const char* words : {"Siblings move up.", "They stand beside the container.", "Name the simple type.",
                              "    Signal\n      Level", "    Signal\n    Level"}) {
        QVERIFY2(details.contains(QLatin1String(words)), words);
    }
    QCOMPARE(window.findChild<SchemaTextView*>(QStringLiteral("text"))->MarkedLine(), 5);
}

void TestSchemaDoctorWindow::foldsFindingsOfOneCause()
{
    Examination examination = sampleExamination();
    examination.findings.insert(1, examination.findings.constFirst());
    examination.findings[1].effect = QStringLiteral("The second of its kind.");
    DoctorWindow window(examination);
    auto* const findings = window.findChild<QTreeWidget*>(QStringLiteral("findings"));
    QCOMPARE(findings->topLevelItemCount(), 3);
    QTreeWidgetItem* const group = findings->topLevelItem(0);
    QCOMPARE(group->text(3), QStringLiteral("never-fillable: 2 findings"));
    QCOMPARE(group->childCount(), 2);
    findings->setCurrentItem(group->child(1));
    const auto* const details = window.findChild<QPlainTextEdit*>(QStringLiteral("details"));
    QVERIFY(details->toPlainText().contains(QStringLiteral("The second of its kind.")));
}

void TestSchemaDoctorWindow::showsTheElementOfAFinding()
{
    DoctorWindow window(sampleExamination());
    auto* const findings = window.findChild<QTreeWidget*>(QStringLiteral("findings"));
    findings->setCurrentItem(findings->topLevelItem(1));
    findings->setCurrentItem(findings->topLevelItem(0));
    QCOMPARE(window.findChild<QTreeView*>(QStringLiteral("tree"))->currentIndex().data().toString(),
             QStringLiteral("Price"));
}

void TestSchemaDoctorWindow::filtersByName()
{
    DoctorWindow window(sampleExamination());
    const auto* const tree = window.findChild<QTreeView*>(QStringLiteral("tree"));
    auto* const filter = window.findChild<QLineEdit*>(QStringLiteral("filter"));
    filter->setText(QStringLiteral("pric"));
    const QStringList expected {QStringLiteral("Report"), QStringLiteral("Signal"), QStringLiteral("Price")};
    QCOMPARE(namesBelow(*tree->model(), QModelIndex()), expected);
    filter->clear();
    QCOMPARE(namesBelow(*tree->model(), QModelIndex()).size(), 6);
}

void TestSchemaDoctorWindow::findsByKeyboard()
{
    DoctorWindow window(sampleExamination());
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keySequence(&window, QKeySequence::Find);
    QTRY_VERIFY(window.findChild<QLineEdit*>(QStringLiteral("filter"))->hasFocus());
}

void TestSchemaDoctorWindow::showsAFileThatIsChosen()
{
    DoctorWindow window(sampleExamination());
    auto* const file = window.findChild<QComboBox*>(QStringLiteral("file"));
    QCOMPARE(file->count(), 2);
    file->setCurrentIndex(0);
    QVERIFY(
        window.findChild<SchemaTextView*>(QStringLiteral("text"))->toPlainText().contains(QLatin1String("Station")));
    file->setCurrentIndex(1);
    QVERIFY(
        !window.findChild<SchemaTextView*>(QStringLiteral("text"))->toPlainText().contains(QLatin1String("Station")));
}

void TestSchemaDoctorWindow::saysWhyThereIsNothing()
{
    Examination examination;
    examination.unreadableReason = QStringLiteral("There is no such file.");
    const DoctorWindow window(examination);
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    QVERIFY(std::any_of(labels.begin(), labels.end(),
                        [&](const QLabel* label) { return label->text().contains(examination.unreadableReason); }));
}

void TestSchemaDoctorWindow::showsManyElements()
{
    DoctorWindow window(wideExamination(100000));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto* const tree = window.findChild<QTreeView*>(QStringLiteral("tree"));
    QCOMPARE(tree->model()->rowCount(tree->model()->index(0, 0)), 100000);
}

QTEST_MAIN(TestSchemaDoctorWindow)

#include "tst_schemadoctor_window.moc"
