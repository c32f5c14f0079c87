#include <QtTest>

#include <QComboBox>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTreeWidget>

#include "mendwindow.h"
#include "schematextview.h"

using namespace schemadoctor;

namespace {

bool write(const QString& file, const QByteArray& text)
{
    QFile device(file);
    return device.open(QIODevice::WriteOnly) && device.write(text) == text.size();
}

/// A schema in two files: a group that can be written out, and a namespace that reports would lose.
class Desk
{
public:
    Desk()
    {
        m_isReady = write(PathOf("top.xsd"),
                          "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns='urn:r'"
                          " targetNamespace='urn:r' elementFormDefault='qualified'>\n"
                          "<xs:include schemaLocation='groups.xsd'/>\n"
                          "<xs:element name='Report'><xs:complexType><xs:sequence>\n"
                          "<xs:element name='First' type='xs:string'/>\n"
                          "<xs:group ref='Pair'/>\n"
                          "</xs:sequence></xs:complexType></xs:element>\n"
                          "</xs:schema>\n")
            && write(PathOf("groups.xsd"),
                     "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns='urn:r'"
                     " targetNamespace='urn:r' elementFormDefault='qualified'>\n"
                     "<xs:group name='Pair'><xs:sequence>\n"
                     "<xs:element name='Second' type='xs:anyURI'/>\n"
                     "</xs:sequence></xs:group>\n"
                     "</xs:schema>\n");
    }

    bool IsReady() const { return m_isReady; }
    QString PathOf(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    MendedFile Mended(bool isFormatKept) const
    {
        MendOptions options;
        options.isFormatKept = isFormatKept;
        return mendInto(PathOf("out.xsd"), PathOf("top.xsd"), options);
    }

private:
    QTemporaryDir m_folder;
    bool m_isReady = false;
};

QString textOfMarkedLine(const SchemaTextView& view)
{
    return view.document()->findBlockByNumber(view.MarkedLine() - 1).text().trimmed();
}

QStringList headingsOf(const QTreeWidget& list)
{
    QStringList headings;
    for (int i = 0; i < list.topLevelItemCount(); ++i) {
        headings.append(list.topLevelItem(i)->text(0));
    }
    return headings;
}

int indexOf(const QTreeWidget& list, const QString& heading)
{
    return int(headingsOf(list).indexOf(heading));
}

} // namespace

class TestSchemaDoctorMendWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsWhatIsWrittenOtherwise();
    void listsWhatIsLeft();
    void showsTheLineOfAnEntry();
    void saysThatNothingIsWrittenOtherwise();
};

void TestSchemaDoctorMendWindow::listsWhatIsWrittenOtherwise()
{
    const Desk desk;
    QVERIFY(desk.IsReady());
    const MendedFile mended = desk.Mended(false);
    QCOMPARE(mended.mending.refusal, QString());
    const MendWindow window(mended);
    const auto* const list = window.findChild<QTreeWidget*>(QStringLiteral("rewrites"));
    QCOMPARE(headingsOf(*list), QStringList {QStringLiteral("Written otherwise")});
    const QTreeWidgetItem* const heading = list->topLevelItem(0);
    QCOMPARE(heading->childCount(), mended.mending.rewrites.size());
    QVERIFY(heading->childCount() >= 3);
    for (int i = 0; i < heading->childCount(); ++i) {
        const Rewrite& rewrite = mended.mending.rewrites.at(i);
        const QTreeWidgetItem* const item = heading->child(i);
        QCOMPARE(item->text(0),
                 QStringLiteral("%1:%2").arg(QFileInfo(rewrite.place.file).fileName()).arg(rewrite.place.line));
        QCOMPARE(item->text(1), rewrite.before);
        QCOMPARE(item->text(2), rewrite.after);
        QCOMPARE(item->text(3),
                 rewrite.effect == RewriteEffect::StaysValid ? QStringLiteral("reports stay valid by the original")
                                                             : QStringLiteral("changes the format"));
    }
    QCOMPARE(window.findChild<SchemaTextView*>(QStringLiteral("mended"))->toPlainText().toUtf8(), mended.mending.text);
}

void TestSchemaDoctorMendWindow::listsWhatIsLeft()
{
    const Desk desk;
    QVERIFY(desk.IsReady());
    const MendedFile mended = desk.Mended(true);
    QCOMPARE(mended.mending.refusal, QString());
    QVERIFY(!mended.mending.left.isEmpty());
    const MendWindow window(mended);
    const auto* const list = window.findChild<QTreeWidget*>(QStringLiteral("rewrites"));
    const int left = indexOf(*list, QStringLiteral("Left as it is, because it would change the format"));
    QVERIFY(left >= 0);
    QCOMPARE(list->topLevelItem(left)->childCount(), mended.mending.left.size());
    // What is left is what the doctor still finds.
    const int found = indexOf(*list, QStringLiteral("The doctor finds in the mended schema"));
    QVERIFY(found > left);
    QCOMPARE(list->topLevelItem(found)->childCount(), mended.examination.findings.size());
}

void TestSchemaDoctorMendWindow::showsTheLineOfAnEntry()
{
    const Desk desk;
    QVERIFY(desk.IsReady());
    const MendedFile mended = desk.Mended(true);
    const MendWindow window(mended);
    auto* const list = window.findChild<QTreeWidget*>(QStringLiteral("rewrites"));
    const auto* const files = window.findChild<QComboBox*>(QStringLiteral("file"));
    const auto* const original = window.findChild<SchemaTextView*>(QStringLiteral("original"));
    const auto* const result = window.findChild<SchemaTextView*>(QStringLiteral("mended"));
    bool isSecondShown = false;
    for (QTreeWidgetItemIterator it(list); *it; ++it) {
        list->setCurrentItem(*it);
        if ((*it)->text(1) == QStringLiteral("xs:anyURI")) {
            isSecondShown = true;
            QCOMPARE(files->currentText(), desk.PathOf("groups.xsd"));
            QCOMPARE(textOfMarkedLine(*original), QStringLiteral("<xs:element name='Second' type='xs:anyURI'/>"));
        }
    }
    QVERIFY(isSecondShown);
    const QTreeWidgetItem* const findings = list->topLevelItem(list->topLevelItemCount() - 1);
    list->setCurrentItem(findings->child(0));
    QCOMPARE(result->MarkedLine(), mended.examination.findings.constFirst().place.line);
}

void TestSchemaDoctorMendWindow::saysThatNothingIsWrittenOtherwise()
{
    const QTemporaryDir folder;
    const QString schema = folder.filePath(QStringLiteral("a.xsd"));
    QVERIFY(write(schema,
                  "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n"
                  "<xs:element name='Report'><xs:complexType><xs:sequence>\n"
                  "<xs:element name='First' type='xs:string'/>\n"
                  "</xs:sequence></xs:complexType></xs:element>\n"
                  "</xs:schema>\n"));
    const MendWindow window(mendInto(folder.filePath(QStringLiteral("b.xsd")), schema, MendOptions()));
    const auto* const list = window.findChild<QTreeWidget*>(QStringLiteral("rewrites"));
    QCOMPARE(headingsOf(*list), QStringList {QStringLiteral("Nothing is written otherwise.")});
}

QTEST_MAIN(TestSchemaDoctorMendWindow)
#include "tst_schemadoctor_mendwindow.moc"
