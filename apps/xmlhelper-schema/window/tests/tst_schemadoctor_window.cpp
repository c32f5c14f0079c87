#include <QtTest>

#include <cmath>
#include <memory>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>
#include <QTreeView>
#include <QTreeWidget>

#include "doctorwindow.h"
#include "examine.h"
#include "mendwindow.h"
#include "sampleexamination.h"
#include "schematextview.h"
#include "skeletontreemodel.h"

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

QStringList namesOf(const Examination& examination)
{
    return namesBelow(SkeletonTreeModel(examination.tree), QModelIndex());
}

QString textOfMarkedLine(const SchemaTextView& view)
{
    return view.document()->findBlockByNumber(view.MarkedLine() - 1).text().trimmed();
}

Examination examined(const QString& file)
{
    return examine(file, false);
}

QString value(const QString& name)
{
    return QStringLiteral("<xs:element name='%1' type='xs:string'/>\n").arg(name);
}

/// Of a root "Report" that holds the elements.
QString schemaOf(const QString& elements, const QString& before = QString())
{
    return QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n%2<xs:element name='Report'>"
                          "<xs:complexType><xs:sequence>\n%1</xs:sequence></xs:complexType></xs:element>\n"
                          "</xs:schema>\n")
        .arg(elements, before);
}

const QString includeOfType = QStringLiteral("<xs:include schemaLocation='type.xsd'/>\n");
const QString elementOfType = QStringLiteral("<xs:element name='Included' type='IncludedType'/>\n");

QString typeWith(const QString& elements)
{
    return QStringLiteral("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n"
                          "<xs:complexType name='IncludedType'><xs:sequence>\n%1</xs:sequence></xs:complexType>\n"
                          "</xs:schema>\n")
        .arg(elements);
}

/// A folder with schemas, and the window on one of them, as an operator sees it.
class Desk
{
public:
    Desk() { QDir(m_folder.path()).mkdir(QStringLiteral("schemas")); }

    QString PathOf(const QString& name) const { return m_folder.filePath(QStringLiteral("schemas/") + name); }
    QString Folder() const { return m_folder.path(); }

    bool Write(const QString& name, const QString& text) const
    {
        QFile file(PathOf(name));
        return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) == text.toUtf8().size();
    }

    /// As editors do: another file takes the place of the file.
    bool Replace(const QString& name, const QString& text) const
    {
        QSaveFile file(PathOf(name));
        return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0 && file.commit();
    }

    bool Remove(const QString& name) const { return QFile::remove(PathOf(name)); }

    DoctorWindow& Show(const QString& name)
    {
        m_window = std::make_unique<DoctorWindow>(examined(PathOf(name)), [this](const QString& file) {
            ++m_iExaminations;
            return examined(file);
        });
        m_window->show();
        return *m_window;
    }

    int Examinations() const { return m_iExaminations; } ///< behind the first
    QTreeView& Tree() const { return *m_window->findChild<QTreeView*>(QStringLiteral("tree")); }
    QTreeWidget& Findings() const { return *m_window->findChild<QTreeWidget*>(QStringLiteral("findings")); }
    SchemaTextView& Text() const { return *m_window->findChild<SchemaTextView*>(QStringLiteral("text")); }
    QLabel& Message() const { return *m_window->findChild<QLabel*>(QStringLiteral("message")); }
    QStringList Names() const { return namesBelow(*Tree().model(), QModelIndex()); }
    QString Chosen() const { return Tree().currentIndex().siblingAtColumn(0).data().toString(); }

    void Choose(const QString& name) const
    {
        const QModelIndexList found = Tree().model()->match(Tree().model()->index(0, 0), Qt::DisplayRole, name, 1,
                                                            Qt::MatchRecursive | Qt::MatchExactly);
        Tree().setCurrentIndex(found.value(0));
    }

private:
    Q_DISABLE_COPY(Desk)

    QTemporaryDir m_folder;
    std::unique_ptr<DoctorWindow> m_window;
    int m_iExaminations = 0;
};

/// The foreground of the first occurrence of @p words in a text view.
QColor colourOf(const QPlainTextEdit& view, const QString& words)
{
    const QTextCursor found = view.document()->find(words);
    const int position = found.selectionStart() - found.block().position();
    const auto formats = found.block().layout()->formats();
    for (const QTextLayout::FormatRange& range : formats) {
        if (range.start <= position && position < range.start + range.length) {
            return range.format.foreground().color();
        }
    }
    return QColor();
}

void drop(QWidget& window, const QList<QUrl>& urls)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&window, &enter);
    if (enter.isAccepted()) {
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    }
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

    void showsBothTreesBesideEachOther();
    void coloursTheSchema();
    void coloursALongTextPieceByPiece();
    void showsTheBeginningOfAnEndlessLine();
    void coloursCanBeRead_data();
    void coloursCanBeRead();
    void coloursAreChosenAnewWithThePalette();

    void reloadsAFileThatIsWritten();
    void reloadsAFileThatIsReplaced();
    void reloadsAFileBehindItsBackup();
    void reloadsAnIncludedFile();
    void reloadsAnIncludedFileThatWasMissing();
    void waitsForAFileThatIsGone();
    void waitsForAFolderThatIsGone();
    void reloadsOnceForManyWrites();
    void looksAgainAtWhatWasWrittenMeanwhile();
    void reloadsByKeyboard();
    void elementStaysChosen();
    void attributeStaysChosen();
    void findingStaysChosen();
    void choosesAnotherForWhatIsGone();
    void filterStays();
    void opensAFileFromTheMenu();
    void mendsFromTheMenu();
    void saysWhyItDoesNotMend();
    void opensAFileThatIsDropped();
    void opensNothingThatIsNoFile();
    void saysThatAFileCannotBeRead_data();
    void saysThatAFileCannotBeRead();
};

void TestSchemaDoctorWindow::modelIsConsistent()
{
    const Examination examination = sampleExamination();
    SkeletonTreeModel model(examination.tree);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QCOMPARE(model.rowCount(), 1);
}

void TestSchemaDoctorWindow::modelShowsElementsAndTheirAttributes()
{
    const Examination examination = sampleExamination();
    const SkeletonTreeModel model(examination.tree);
    const QStringList expected {QStringLiteral("Report"), QStringLiteral("Station"), QStringLiteral("Signal"),
                                QStringLiteral("Level"),  QStringLiteral("@Unit"),   QStringLiteral("Price")};
    QCOMPARE(namesBelow(model, QModelIndex()), expected);
}

void TestSchemaDoctorWindow::modelTellsTheFactsOfAnElement()
{
    const Examination examination = sampleExamination();
    const SkeletonTreeModel model(examination.tree);
    const auto text = [&](int element, int column) {
        const QModelIndex index = model.IndexOf(element);
        return index.siblingAtColumn(column).data().toString();
    };
    QCOMPARE(text(3, SkeletonTreeModel::Type), QStringLiteral("double"));
    QCOMPARE(text(3, SkeletonTreeModel::Limits), QStringLiteral("minInclusive 0, pattern [0-9] (not checked)"));
    QCOMPARE(text(3, SkeletonTreeModel::SetBy), QStringLiteral("double"));
    QCOMPARE(text(1, SkeletonTreeModel::Limits), QStringLiteral("Tower | Mast, default Mast"));
    QVERIFY(text(1, SkeletonTreeModel::Occurs).endsWith(QLatin1String(", choice 1")));
    QCOMPARE(text(4, SkeletonTreeModel::SetBy), QStringLiteral("nothing can fill it"));
    QCOMPARE(text(2, SkeletonTreeModel::SetBy), QString());
}

void TestSchemaDoctorWindow::modelOfNothingHasNoRows()
{
    const SkeletonTree tree;
    const SkeletonTreeModel model(tree);
    QCOMPARE(model.rowCount(), 0);
    QVERIFY(!model.IndexOf(SkeletonElement::None).isValid());
    QVERIFY(model.PlaceOf(QModelIndex()).file.isEmpty());
}

void TestSchemaDoctorWindow::modelFindsTheRowOfAnElement()
{
    const Examination examination = sampleExamination();
    const SkeletonTreeModel model(examination.tree);
    for (int element = 0; element < int(examination.tree.elements.size()); ++element) {
        QCOMPARE(model.IndexOf(element).data().toString(), examination.tree.elements[std::size_t(element)].name);
    }
}

void TestSchemaDoctorWindow::showsTheLineOfAnElement()
{
    DoctorWindow window(sampleExamination(), examined);
    auto* const tree = window.findChild<QTreeView*>(QStringLiteral("tree"));
    const auto* const text = window.findChild<SchemaTextView*>(QStringLiteral("text"));
    tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0))); // Report/Station
    QCOMPARE(text->MarkedLine(), 4);
    QCOMPARE(textOfMarkedLine(*text), QStringLiteral("<xs:element name=\"Station\"/>"));
}

void TestSchemaDoctorWindow::showsTheFileOfAnAttribute()
{
    DoctorWindow window(sampleExamination(), examined);
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
    const DoctorWindow window(sampleExamination(), examined);
    const auto* const details = window.findChild<QPlainTextEdit*>(QStringLiteral("details"));
    QVERIFY(details->toPlainText().contains(QLatin1String("The type decimal can never be filled.")));
}

void TestSchemaDoctorWindow::showsAllOfAFinding()
{
    DoctorWindow window(sampleExamination(), examined);
    auto* const findings = window.findChild<QTreeWidget*>(QStringLiteral("findings"));
    QCOMPARE(findings->topLevelItemCount(), 3);
    findings->setCurrentItem(findings->topLevelItem(1));
    const QString details = window.findChild<QPlainTextEdit*>(QStringLiteral("details"))->toPlainText();
    for (const char* words : {"Siblings move up.", "They stand beside the container.", "Name the simple type."}) {
        QVERIFY2(details.contains(QLatin1String(words)), words);
    }
    QCOMPARE(window.findChild<SchemaTextView*>(QStringLiteral("text"))->MarkedLine(), 5);
}

void TestSchemaDoctorWindow::foldsFindingsOfOneCause()
{
    Examination examination = sampleExamination();
    examination.findings.insert(1, examination.findings.constFirst());
    examination.findings[1].effect = QStringLiteral("The second of its kind.");
    DoctorWindow window(examination, examined);
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
    DoctorWindow window(sampleExamination(), examined);
    auto* const findings = window.findChild<QTreeWidget*>(QStringLiteral("findings"));
    findings->setCurrentItem(findings->topLevelItem(1));
    findings->setCurrentItem(findings->topLevelItem(0));
    QCOMPARE(window.findChild<QTreeView*>(QStringLiteral("tree"))->currentIndex().data().toString(),
             QStringLiteral("Price"));
}

void TestSchemaDoctorWindow::filtersByName()
{
    DoctorWindow window(sampleExamination(), examined);
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
    DoctorWindow window(sampleExamination(), examined);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keySequence(&window, QKeySequence::Find);
    QTRY_VERIFY(window.findChild<QLineEdit*>(QStringLiteral("filter"))->hasFocus());
}

void TestSchemaDoctorWindow::showsAFileThatIsChosen()
{
    DoctorWindow window(sampleExamination(), examined);
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
    const DoctorWindow window(examination, examined);
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    QVERIFY(std::any_of(labels.begin(), labels.end(),
                        [&](const QLabel* label) { return label->text().contains(examination.unreadableReason); }));
}

void TestSchemaDoctorWindow::showsManyElements()
{
    DoctorWindow window(wideExamination(100000), examined);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto* const tree = window.findChild<QTreeView*>(QStringLiteral("tree"));
    QCOMPARE(tree->model()->rowCount(tree->model()->index(0, 0)), 100000);
}

void TestSchemaDoctorWindow::showsBothTreesBesideEachOther()
{
    DoctorWindow window(sampleExamination(), examined);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto* const findings = window.findChild<QTreeWidget*>(QStringLiteral("findings"));
    const auto* const meant = window.findChild<QPlainTextEdit*>(QStringLiteral("meant"));
    const auto* const laidOut = window.findChild<QPlainTextEdit*>(QStringLiteral("laidOut"));
    findings->setCurrentItem(findings->topLevelItem(1));
    QTRY_VERIFY(meant->isVisible() && laidOut->isVisible());
    QCOMPARE(meant->toPlainText(), QStringLiteral("Signal\n  Level"));
    QCOMPARE(laidOut->toPlainText(), QStringLiteral("Signal\nLevel"));
    QTRY_VERIFY(meant->mapToGlobal(QPoint()).x() < laidOut->mapToGlobal(QPoint()).x());
    QCOMPARE(meant->mapToGlobal(QPoint()).y(), laidOut->mapToGlobal(QPoint()).y());
    findings->setCurrentItem(findings->topLevelItem(0));
    QVERIFY(!meant->isVisible() && !laidOut->isVisible());
}

void TestSchemaDoctorWindow::coloursTheSchema()
{
    SchemaTextView view;
    view.setPlainText(QStringLiteral("<?xml version='1.0'?>\n<!-- first\nsecond <tag> --><xs:element name=\"wide\n"
                                     "value > here\" type='other'/>plain<![CDATA[ <data attr='x'> ]]><last/>"));
    const QColor tag = colourOf(view, QStringLiteral("xs:element"));
    const QColor name = colourOf(view, QStringLiteral("name"));
    const QColor text = colourOf(view, QStringLiteral("wide"));
    const QColor comment = colourOf(view, QStringLiteral("first"));
    const QList<QColor> all {tag, name, text, comment};
    for (int i = 0; i < all.size(); ++i) {
        QVERIFY(all.at(i).isValid());
        QCOMPARE(all.indexOf(all.at(i)), i);
    }
    QCOMPARE(colourOf(view, QStringLiteral("second")), comment);
    QCOMPARE(colourOf(view, QStringLiteral("<tag>")), comment);
    QCOMPARE(colourOf(view, QStringLiteral("value > here")), text);
    QCOMPARE(colourOf(view, QStringLiteral("> here")), text);
    QCOMPARE(colourOf(view, QStringLiteral("type")), name);
    QCOMPARE(colourOf(view, QStringLiteral("other")), text);
    QCOMPARE(colourOf(view, QStringLiteral("/>plain")), tag);
    QVERIFY(colourOf(view, QStringLiteral("plain")) != tag);
    QVERIFY(colourOf(view, QStringLiteral("data attr")) != tag);
    QCOMPARE(colourOf(view, QStringLiteral("last")), tag);
}

void TestSchemaDoctorWindow::coloursALongTextPieceByPiece()
{
    constexpr int lines = 3000;
    SchemaTextView view;
    view.ShowText(QStringLiteral("<first/>\n") + QStringLiteral("<next>\n").repeated(lines)
                  + QStringLiteral("<!-- second\n") + QStringLiteral("comment\n").repeated(lines)
                  + QStringLiteral("last --><end/>"));
    const QColor tag = colourOf(view, QStringLiteral("first"));
    QVERIFY(tag.isValid());
    QVERIFY(!colourOf(view, QStringLiteral("<end/>")).isValid());
    QTRY_COMPARE(colourOf(view, QStringLiteral("<end/>")), tag);
    QVERIFY(colourOf(view, QStringLiteral("last --")).isValid());
    QVERIFY(colourOf(view, QStringLiteral("last --")) != tag);
}

void TestSchemaDoctorWindow::showsTheBeginningOfAnEndlessLine()
{
    SchemaTextView view;
    const QString line = QStringLiteral("<element name='A'/>").repeated(10000);
    view.ShowText(QStringLiteral("<schema>\n") + line + QStringLiteral("\n</schema>"));
    const QString shown = view.document()->findBlockByNumber(1).text();
    QVERIFY(shown.size() < 20000);
    QVERIFY(shown.endsWith(QStringLiteral(" ...")));
    QVERIFY(line.startsWith(shown.chopped(4)));
    QCOMPARE(view.document()->findBlockByNumber(2).text(), QStringLiteral("</schema>"));
}

namespace {

/// As the guidelines for accessible content define it.
double luminanceOf(const QColor& colour)
{
    const auto linear
        = [](double part) { return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(double(colour.redF())) + 0.7152 * linear(double(colour.greenF()))
        + 0.0722 * linear(double(colour.blueF()));
}

QPalette paletteOn(const QColor& base)
{
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    return palette;
}

} // namespace

void TestSchemaDoctorWindow::coloursCanBeRead_data()
{
    QTest::addColumn<QColor>("base");
    QTest::newRow("on-light") << QColor(Qt::white);
    QTest::newRow("on-dark") << QColor(40, 40, 40);
}

void TestSchemaDoctorWindow::coloursCanBeRead()
{
    QFETCH(QColor, base);
    SchemaTextView view;
    view.setPalette(paletteOn(base));
    view.setPlainText(QStringLiteral("<!-- comment --><tag attribute='value'/>"));
    for (const char* words : {"comment", "tag", "attribute", "value"}) {
        const double one = luminanceOf(colourOf(view, QLatin1String(words)));
        const double other = luminanceOf(base);
        QVERIFY2((std::max(one, other) + 0.05) / (std::min(one, other) + 0.05) >= 4.5, words);
    }
}

void TestSchemaDoctorWindow::coloursAreChosenAnewWithThePalette()
{
    SchemaTextView view;
    view.setPalette(paletteOn(Qt::white));
    view.setPlainText(QStringLiteral("<tag/>"));
    const QColor before = colourOf(view, QStringLiteral("tag"));
    view.setPalette(paletteOn(Qt::black));
    QVERIFY(colourOf(view, QStringLiteral("tag")) != before);
}

void TestSchemaDoctorWindow::reloadsAFileThatIsWritten()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    desk.Show(QStringLiteral("a.xsd"));
    QVERIFY(!desk.Names().contains(QStringLiteral("Second")));
    QVERIFY(desk.Write(QStringLiteral("a.xsd"),
                       schemaOf(value(QStringLiteral("First")) + value(QStringLiteral("Second")))));
    QTRY_VERIFY(desk.Names().contains(QStringLiteral("Second")));
    QVERIFY(desk.Text().toPlainText().contains(QStringLiteral("Second")));
}

void TestSchemaDoctorWindow::reloadsAFileThatIsReplaced()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    desk.Show(QStringLiteral("a.xsd"));
    for (const QString& name : {QStringLiteral("Second"), QStringLiteral("TheThird"), QStringLiteral("TheFourthOne")}) {
        QVERIFY(desk.Replace(QStringLiteral("a.xsd"), schemaOf(value(name))));
        QTRY_VERIFY(desk.Names().contains(name));
    }
}

/// The file moves aside, another one is made in its place, and that is written to.
void TestSchemaDoctorWindow::reloadsAFileBehindItsBackup()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    desk.Show(QStringLiteral("a.xsd"));
    QVERIFY(QFile::rename(desk.PathOf(QStringLiteral("a.xsd")), desk.PathOf(QStringLiteral("a.xsd~"))));
    for (const QString& name : {QStringLiteral("Second"), QStringLiteral("TheThird"), QStringLiteral("TheFourthOne")}) {
        QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(name))));
        QTRY_VERIFY(desk.Names().contains(name));
    }
}

void TestSchemaDoctorWindow::reloadsAnIncludedFile()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(elementOfType, includeOfType)));
    QVERIFY(desk.Write(QStringLiteral("type.xsd"), typeWith(value(QStringLiteral("Inside")))));
    desk.Show(QStringLiteral("a.xsd"));
    QVERIFY(desk.Names().contains(QStringLiteral("Inside")));
    QVERIFY(desk.Replace(QStringLiteral("type.xsd"), typeWith(value(QStringLiteral("Otherwise")))));
    QTRY_VERIFY(desk.Names().contains(QStringLiteral("Otherwise")));
}

void TestSchemaDoctorWindow::reloadsAnIncludedFileThatWasMissing()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(elementOfType, includeOfType)));
    desk.Show(QStringLiteral("a.xsd"));
    QVERIFY(desk.Names().isEmpty());
    QVERIFY(desk.Message().isVisible());
    QVERIFY(desk.Write(QStringLiteral("type.xsd"), typeWith(value(QStringLiteral("Inside")))));
    QTRY_VERIFY(desk.Names().contains(QStringLiteral("Inside")));
    QVERIFY(!desk.Message().isVisible());
}

void TestSchemaDoctorWindow::waitsForAFileThatIsGone()
{
    Desk desk;
    const QString schema = schemaOf(value(QStringLiteral("First")) + value(QStringLiteral("Second")));
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schema));
    desk.Show(QStringLiteral("a.xsd"));
    desk.Choose(QStringLiteral("Second"));
    QVERIFY(desk.Remove(QStringLiteral("a.xsd")));
    QTRY_VERIFY(desk.Message().isVisible());
    QVERIFY(desk.Message().text().contains(QStringLiteral("a.xsd cannot be read")));
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schema));
    QTRY_VERIFY(!desk.Message().isVisible());
    QCOMPARE(desk.Chosen(), QStringLiteral("Second"));
}

void TestSchemaDoctorWindow::waitsForAFolderThatIsGone()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    desk.Show(QStringLiteral("a.xsd"));
    QDir folder(desk.Folder());
    QVERIFY(folder.rename(QStringLiteral("schemas"), QStringLiteral("elsewhere")));
    QTRY_VERIFY(desk.Message().isVisible());
    QVERIFY(folder.rename(QStringLiteral("elsewhere"), QStringLiteral("schemas")));
    QTRY_VERIFY(!desk.Message().isVisible());
    QVERIFY(desk.Names().contains(QStringLiteral("First")));
}

void TestSchemaDoctorWindow::reloadsOnceForManyWrites()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    desk.Show(QStringLiteral("a.xsd"));
    QTRY_COMPARE(desk.Text().toPlainText().isEmpty(), false);
    for (int i = 0; i < 20; ++i) {
        QVERIFY(desk.Write(QStringLiteral("unrelated%1.xsd").arg(i), QStringLiteral("none")));
        QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("Number%1").arg(i + 100)))));
    }
    const int before = desk.Examinations();
    QTRY_VERIFY(desk.Names().contains(QStringLiteral("Number119")));
    QCOMPARE(desk.Examinations(), before + 1);
}

/// What is written while the schema is examined may have been read before.
void TestSchemaDoctorWindow::looksAgainAtWhatWasWrittenMeanwhile()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    bool isFirst = true;
    DoctorWindow window(examined(desk.PathOf(QStringLiteral("a.xsd"))), [&](const QString& file) {
        const Examination examination = examined(file);
        if (isFirst) {
            isFirst = false;
            // Later than the beginning, in the clock of the file system, too.
            const QDateTime begin = QDateTime::currentDateTime();
            do {
                desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("Third"))));
            } while (QFileInfo(file).lastModified() < begin);
        }
        return examination;
    });
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("TheSecond")))));
    const auto* const tree = window.findChild<QTreeView*>(QStringLiteral("tree"));
    QTRY_VERIFY(namesBelow(*tree->model(), QModelIndex()).contains(QStringLiteral("Third")));
}

void TestSchemaDoctorWindow::reloadsByKeyboard()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    DoctorWindow& window = desk.Show(QStringLiteral("a.xsd"));
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const int before = desk.Examinations();
    QTest::keySequence(&window, QKeySequence::Refresh);
    QTRY_VERIFY(desk.Examinations() > before);
}

void TestSchemaDoctorWindow::elementStaysChosen()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"),
                       schemaOf(value(QStringLiteral("First")) + value(QStringLiteral("Second")))));
    desk.Show(QStringLiteral("a.xsd"));
    desk.Choose(QStringLiteral("Second"));
    QVERIFY(desk.Replace(
        QStringLiteral("a.xsd"),
        schemaOf(value(QStringLiteral("New")) + value(QStringLiteral("First")) + value(QStringLiteral("Second")))));
    QTRY_VERIFY(desk.Names().contains(QStringLiteral("New")));
    QCOMPARE(desk.Chosen(), QStringLiteral("Second"));
    QVERIFY(textOfMarkedLine(desk.Text()).contains(QStringLiteral("Second")));
}

void TestSchemaDoctorWindow::attributeStaysChosen()
{
    const QString element = QStringLiteral("<xs:element name='A'><xs:complexType><xs:simpleContent>"
                                           "<xs:extension base='xs:string'><xs:attribute name='One' type='xs:string'/>"
                                           "<xs:attribute name='Two' type='xs:string'/></xs:extension>"
                                           "</xs:simpleContent></xs:complexType></xs:element>\n");
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(element)));
    desk.Show(QStringLiteral("a.xsd"));
    desk.Choose(QStringLiteral("@Two"));
    QVERIFY(desk.Replace(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("New")) + element)));
    QTRY_VERIFY(desk.Names().contains(QStringLiteral("New")));
    QCOMPARE(desk.Chosen(), QStringLiteral("@Two"));
}

void TestSchemaDoctorWindow::findingStaysChosen()
{
    const auto wrong = [](const char* name) {
        return QStringLiteral("<xs:element name='%1' type='xs:decimal'/>\n").arg(QLatin1String(name));
    };
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(wrong("First") + wrong("Second"))));
    desk.Show(QStringLiteral("a.xsd"));
    QTreeWidgetItem* const group = desk.Findings().topLevelItem(0);
    QCOMPARE(group->childCount(), 2);
    desk.Findings().setCurrentItem(group->child(1));
    QVERIFY(desk.Replace(QStringLiteral("a.xsd"), schemaOf(wrong("New") + wrong("First") + wrong("Second"))));
    QTRY_VERIFY(desk.Names().contains(QStringLiteral("New")));
    QVERIFY(desk.Findings().currentItem()->text(3).contains(QStringLiteral("'Second'")));
    QVERIFY(textOfMarkedLine(desk.Text()).contains(QStringLiteral("Second")));
}

void TestSchemaDoctorWindow::choosesAnotherForWhatIsGone()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"),
                       schemaOf(value(QStringLiteral("First")) + value(QStringLiteral("Second")))));
    desk.Show(QStringLiteral("a.xsd"));
    desk.Choose(QStringLiteral("Second"));
    QVERIFY(desk.Replace(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    QTRY_VERIFY(!desk.Names().contains(QStringLiteral("Second")));
    QCOMPARE(desk.Chosen(), QStringLiteral("Report"));
}

void TestSchemaDoctorWindow::filterStays()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"),
                       schemaOf(value(QStringLiteral("First")) + value(QStringLiteral("Second")))));
    const DoctorWindow& window = desk.Show(QStringLiteral("a.xsd"));
    window.findChild<QLineEdit*>(QStringLiteral("filter"))->setText(QStringLiteral("sec"));
    QVERIFY(desk.Replace(QStringLiteral("a.xsd"),
                         schemaOf(value(QStringLiteral("First")) + value(QStringLiteral("Seconds")))));
    const QStringList expected {QStringLiteral("Report"), QStringLiteral("Seconds")};
    QTRY_COMPARE(desk.Names(), expected);
}

void TestSchemaDoctorWindow::opensAFileFromTheMenu()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    QVERIFY(desk.Write(QStringLiteral("b.xsd"), schemaOf(value(QStringLiteral("Second")))));
    DoctorWindow& window = desk.Show(QStringLiteral("a.xsd"));
    window.findChild<QAction*>(QStringLiteral("open"))->trigger();
    auto* const dialog = window.findChild<QFileDialog*>(QStringLiteral("openDialog"));
    QVERIFY(dialog);
    QTRY_VERIFY(dialog->isVisible());
    auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QVERIFY(name);
    name->setText(desk.PathOf(QStringLiteral("b.xsd")));
    QTest::keyClick(name, Qt::Key_Return);
    QTRY_VERIFY(desk.Names().contains(QStringLiteral("Second")));
    QVERIFY(window.windowTitle().contains(QStringLiteral("b.xsd")));
    // The new one is watched, and the old one is not.
    QVERIFY(desk.Replace(QStringLiteral("b.xsd"), schemaOf(value(QStringLiteral("TheThird")))));
    QTRY_VERIFY(desk.Names().contains(QStringLiteral("TheThird")));
    QCOMPARE(desk.Examinations(), 2);
}

void TestSchemaDoctorWindow::mendsFromTheMenu()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"),
                       schemaOf(QStringLiteral("<xs:group ref='Pair'/>\n"),
                                QStringLiteral("<xs:group name='Pair'><xs:sequence>%1"
                                               "</xs:sequence></xs:group>\n")
                                    .arg(value(QStringLiteral("First"))))));
    DoctorWindow& window = desk.Show(QStringLiteral("a.xsd"));
    window.findChild<QAction*>(QStringLiteral("mend"))->trigger();
    auto* const dialog = window.findChild<QFileDialog*>(QStringLiteral("mendDialog"));
    QVERIFY(dialog);
    QTRY_VERIFY(dialog->isVisible());
    auto* const name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QVERIFY(name);
    QCOMPARE(name->text(), QStringLiteral("a-mended.xsd"));
    name->setText(desk.PathOf(QStringLiteral("b")));
    QTest::keyClick(name, Qt::Key_Return);
    QTRY_VERIFY(window.findChild<MendWindow*>());
    const auto* const mended = window.findChild<MendWindow*>();
    QVERIFY(mended->isVisible());
    QVERIFY(mended->windowTitle().contains(desk.PathOf(QStringLiteral("b.xsd"))));
    QCOMPARE(namesOf(examined(desk.PathOf(QStringLiteral("b.xsd")))),
             (QStringList {QStringLiteral("Report"), QStringLiteral("First")}));
}

void TestSchemaDoctorWindow::saysWhyItDoesNotMend()
{
    Desk desk;
    const QString text = schemaOf(value(QStringLiteral("First")));
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), text));
    DoctorWindow& window = desk.Show(QStringLiteral("a.xsd"));
    window.Mend(desk.PathOf(QStringLiteral("a.xsd")));
    const auto* const refusal = window.findChild<QMessageBox*>(QStringLiteral("refusal"));
    QVERIFY(refusal);
    QVERIFY(refusal->isVisible());
    QVERIFY2(refusal->text().contains(QStringLiteral("is not written over")), qPrintable(refusal->text()));
    QVERIFY(!window.findChild<MendWindow*>());
    QFile file(desk.PathOf(QStringLiteral("a.xsd")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()), text);
}

void TestSchemaDoctorWindow::opensAFileThatIsDropped()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    QVERIFY(desk.Write(QStringLiteral("b.xsd"), schemaOf(value(QStringLiteral("Second")))));
    DoctorWindow& window = desk.Show(QStringLiteral("a.xsd"));
    drop(window, {QUrl::fromLocalFile(desk.PathOf(QStringLiteral("b.xsd")))});
    QVERIFY(desk.Names().contains(QStringLiteral("Second")));
}

void TestSchemaDoctorWindow::opensNothingThatIsNoFile()
{
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    DoctorWindow& window = desk.Show(QStringLiteral("a.xsd"));
    const QUrl file = QUrl::fromLocalFile(desk.PathOf(QStringLiteral("a.xsd")));
    drop(window, {});
    drop(window, {file, file});
    drop(window, {QUrl(QStringLiteral("http://localhost/a.xsd"))});
    QCOMPARE(desk.Examinations(), 0);
}

void TestSchemaDoctorWindow::saysThatAFileCannotBeRead_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QString() << QStringLiteral("The file cannot be opened.");
    QTest::newRow("no-xml") << QStringLiteral("plain text") << QStringLiteral("XML");
    QTest::newRow("not-well-formed") << QStringLiteral("<xs:schema>\n<open>\n</xs:schema>") << QStringLiteral("line 3");
}

void TestSchemaDoctorWindow::saysThatAFileCannotBeRead()
{
    QFETCH(QString, content);
    QFETCH(QString, reason);
    Desk desk;
    QVERIFY(desk.Write(QStringLiteral("a.xsd"), schemaOf(value(QStringLiteral("First")))));
    QVERIFY(content.isEmpty() || desk.Write(QStringLiteral("b.xsd"), content));
    DoctorWindow& window = desk.Show(QStringLiteral("a.xsd"));
    QVERIFY(!desk.Message().isVisible());
    drop(window, {QUrl::fromLocalFile(desk.PathOf(QStringLiteral("b.xsd")))});
    QVERIFY(desk.Message().isVisible());
    QVERIFY2(desk.Message().text().contains(QStringLiteral("b.xsd cannot be read: ")),
             qPrintable(desk.Message().text()));
    QVERIFY2(desk.Message().text().contains(reason), qPrintable(desk.Message().text()));
    QCOMPARE(desk.Text().toPlainText(), content);
    drop(window, {QUrl::fromLocalFile(desk.PathOf(QStringLiteral("a.xsd")))});
    QVERIFY(!desk.Message().isVisible());
}

QTEST_MAIN(TestSchemaDoctorWindow)

#include "tst_schemadoctor_window.moc"
