#include <QDirIterator>
#include <QDomElement>
#include <QTest>

#include <xmlhelper/domextent_p.h>

#include "reading/layoutplan.h"
#include "reading/libraryreading.h"

using namespace schemadoctor;

namespace {

/// The names of a tree in document order, each with its level.
QStringList namesOf(const QDomElement& root)
{
    QStringList names;
    int level = 0;
    for (QDomElement element = root; !element.isNull();) {
        names.append(QStringLiteral("%1 %2").arg(level).arg(element.tagName()));
        if (!element.firstChildElement().isNull()) {
            element = element.firstChildElement();
            ++level;
            continue;
        }
        while (element != root && element.nextSiblingElement().isNull()) {
            element = element.parentNode().toElement();
            --level;
        }
        element = element == root ? QDomElement() : element.nextSiblingElement();
    }
    return names;
}

void appendNames(const LayoutPlan& plan, int node, int level, QStringList& names)
{
    names.append(QStringLiteral("%1 %2").arg(level).arg(plan.GetName(node)));
    for (int child = plan.GetNode(node).firstChild; child != LayoutPlan::None; child = plan.GetNode(child).next) {
        appendNames(plan, child, level + 1, names);
    }
}

} // namespace

/// Holds the plan, which is worked out from the text, against what the library lays out: for every schema of the tests
/// and of the examples, the odd ones above all.
class TestSchemaDoctorLayoutPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void foreseesWhatIsLaidOut_data();
    void foreseesWhatIsLaidOut();
};

void TestSchemaDoctorLayoutPlan::foreseesWhatIsLaidOut_data()
{
    QTest::addColumn<QString>("file");
    for (const char* const folder : {"tests", "examples", "apps"}) {
        QDirIterator schemas(QStringLiteral(PROJECT_FOLDER "/") + QLatin1String(folder), {QStringLiteral("*.xsd")},
                             QDir::Files, QDirIterator::Subdirectories);
        while (schemas.hasNext()) {
            const QString file = schemas.next();
            QTest::newRow(qPrintable(file.mid(int(sizeof(PROJECT_FOLDER))))) << file;
        }
    }
}

void TestSchemaDoctorLayoutPlan::foreseesWhatIsLaidOut()
{
    QFETCH(QString, file);
    SchemaText text;
    const LayoutPlan plan(text, file);
    const LibraryReading reading(file);
    if (text.Open(file)->fault.isEmpty()) {
        QCOMPARE(plan.GetEnd() == LayoutPlan::End::Reached, reading.IsParsed());
    }
    if (!reading.IsParsed() || reading.GetRoot().isNull()) {
        return;
    }
    QCOMPARE(plan.GetCount().elements, extentOf(reading.GetRoot()).elements);
    QStringList planned;
    appendNames(plan, plan.GetRoot(), 0, planned);
    QCOMPARE(planned, namesOf(reading.GetRoot()));
}

QTEST_GUILESS_MAIN(TestSchemaDoctorLayoutPlan)
#include "tst_schemadoctor_layoutplan.moc"
