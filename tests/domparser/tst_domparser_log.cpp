#include <QtTest>

#include <xmlhelper/domparser.h>
#include <xmlhelper/walklog_p.h>
#include <xmlhelper/xmlhelper.h>

#include "domtext.h"
#include "scriptedobserver.h"

QT_WARNING_DISABLE_DEPRECATED

Q_DECLARE_METATYPE(OccursMap)

namespace {

/// Writes each hook as a few words.
class WrittenLog : public WalkLog
{
public:
    void Announced(const QDomNode& node, Kind kind) override
    {
        static const char* const kinds[] = {"root", "value", "container", "other"};
        write(kinds[int(kind)], node.nodeName());
    }

    void Kept(const QDomElement& element, Keeping why) override
    {
        static const char* const reasons[] = {"answered", "announced again", "mandatory", "unjudged"};
        write("keep", element.tagName(), reasons[int(why)]);
    }

    void PutOnProbation(const QDomElement& container) override { write("probation", container.tagName()); }
    void EndedProbation(const QDomElement& container) override { write("passed", container.tagName()); }

    void Removed(const QDomElement& element, Removal why) override
    {
        static const char* const reasons[] = {"optional", "alternative", "probation", "builder"};
        write(element.parentNode().isNull() ? "gone" : "remove", element.tagName(), reasons[int(why)]);
    }

    void Copied(const QDomElement& element, int copies) override
    {
        write("copy", element.tagName(), QByteArray::number(copies).constData());
    }

    void CountRefused(const QDomElement& element, int count) override
    {
        write("refuse", element.tagName(), QByteArray::number(count).constData());
    }

    QString lines;

private:
    void write(const char* what, const QString& name, const char* why = nullptr)
    {
        lines += (lines.isEmpty() ? QString() : QStringLiteral(", ")) + QLatin1String(what) + QLatin1Char(' ') + name;
        lines += why ? QStringLiteral(" (%1)").arg(QLatin1String(why)) : QString();
    }
};

} // namespace

class TestDomParserLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatBecomesOfElements_data();
    void tellsWhatBecomesOfElements();
    void tellsOfCopiesAndOfWhatTheBuilderRemoves();
    void tellsOfRefusedCounts();
    void hasHooksThatDoNothing();
};

void TestDomParserLog::tellsWhatBecomesOfElements_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<OccursMap>("occurs");
    QTest::addColumn<QString>("filled");
    QTest::addColumn<QString>("log");

    const auto row
        = [](const char* rule, const char* xml, const OccursMap& occurs, const char* filled, const QString& log) {
              QTest::newRow(rule) << QString::fromLatin1(xml) << occurs << QString::fromLatin1(filled) << log;
          };
    const QString a = QStringLiteral("a");
    const QString c = QStringLiteral("c");
    const QString r = QStringLiteral("r");
    row("root-is-never-judged", "<r/>", {}, "", QStringLiteral("root r"));
    row("unfilled-value-without-limits-is-mandatory", "<r><a type='t'/></r>", {}, "",
        QStringLiteral("root r, value a, keep a (mandatory)"));
    row("unfilled-optional-value-is-removed", "<r><a type='t'/></r>", {{a, {{0, {r}}}}}, "",
        QStringLiteral("root r, value a, remove a (optional)"));
    row("unfilled-alternative-is-removed", "<r><alt type='t'/></r>", {}, "",
        QStringLiteral("root r, value alt, remove alt (alternative)"));
    row("optional-alternative-is-removed-as-optional", "<r><alt type='t'/></r>", {{QStringLiteral("alt"), {{0, {r}}}}},
        "", QStringLiteral("root r, value alt, remove alt (optional)"));
    row("answered-value-is-kept", "<r><a type='t'/></r>", {{a, {{0, {r}}}}}, "a",
        QStringLiteral("root r, value a, keep a (answered)"));
    row("text-of-the-root-is-announced-as-other", "<r>1</r>", {}, "",
        QStringLiteral("root r, other #text, keep  (mandatory)"));
    row("first-unfilled-value-removes-the-container-on-probation", "<r><m><c><a type='t'/></c></m></r>",
        {{c, {{0, {QStringLiteral("m")}}}}}, "",
        QStringLiteral("root r, container m, keep m (mandatory), container c, probation c, value a, "
                       "remove c (probation)"));
    row("first-answered-value-keeps-the-container", "<r><m><c><a type='t'/></c></m></r>",
        {{c, {{0, {QStringLiteral("m")}}}}}, "a",
        QStringLiteral("root r, container m, keep m (mandatory), container c, probation c, value a, "
                       "keep a (answered), passed c"));
    row("container-at-the-top-is-announced-again", "<r><c><a type='t'/></c></r>", {{c, {{0, {r}}}}}, "",
        QStringLiteral("root r, container c, probation c, container c, keep c (unjudged), value a, "
                       "remove c (probation)"));
    row("container-within-one-on-probation-is-not-judged", "<r><m><c><d><a type='t'/></d></c></m></r>",
        {{c, {{0, {QStringLiteral("m")}}}}, {QStringLiteral("d"), {{0, {c}}}}}, "a",
        QStringLiteral("root r, container m, keep m (mandatory), container c, probation c, container d, "
                       "keep d (unjudged), value a, keep a (answered), passed c"));
    row("container-without-values-goes-with-the-next-unfilled-value", "<r><m><c/><a type='t'/></m></r>",
        {{c, {{0, {QStringLiteral("m")}}}}}, "",
        QStringLiteral("root r, container m, keep m (mandatory), container c, probation c, value a, "
                       "remove c (probation), value a, keep a (mandatory)"));
    row("walk-goes-on-behind-the-container-that-goes", "<r><m><c/></m><a type='t'/><b type='t'/></r>",
        {{c, {{0, {QStringLiteral("m")}}}}}, "",
        QStringLiteral("root r, container m, keep m (mandatory), container c, probation c, value a, "
                       "remove c (probation)"));
}

void TestDomParserLog::tellsWhatBecomesOfElements()
{
    QFETCH(QString, xml);
    QFETCH(OccursMap, occurs);
    QFETCH(QString, filled);
    QFETCH(QString, log);
    QDomDocument document = documentOf(xml);
    ScriptedObserver observer;
    DomParser parser(&observer, occurs, {{0, QStringLiteral("alt")}});
    parser.SetDocument(&document);
    WrittenLog written;
    parser.SetLog(&written);
    observer.OnElement(filled, [&](ElemBeginEvent&) { parser.ContinueAt(parser.GetCurrentElement(), false); });
    QVERIFY(parser.Walk());
    QCOMPARE(written.lines, log);
}

void TestDomParserLog::tellsOfCopiesAndOfWhatTheBuilderRemoves()
{
    QDomDocument document = documentOf(QStringLiteral("<r><a type='t'/></r>"));
    ScriptedObserver observer;
    DomParser parser(&observer, {}, {});
    parser.SetDocument(&document);
    WrittenLog written;
    parser.SetLog(&written);
    bool isCopied = false;
    observer.OnElement(QStringLiteral("a"), [&](ElemBeginEvent&) {
        QDomElement* const element = parser.GetCurrentElement();
        if (!std::exchange(isCopied, true)) {
            parser.InsertCopies(*element, 1);
            parser.ContinueAt(element, true);
            return;
        }
        QDomElement follower = element->nextSiblingElement();
        parser.Remove(*element);
        parser.ContinueAt(&follower, false);
    });
    QVERIFY(parser.Walk());
    QCOMPARE(written.lines,
             QStringLiteral("root r, value a, copy a (1), keep a (announced again), value a, remove a (builder), "
                            "keep a (answered)"));
}

void TestDomParserLog::tellsOfRefusedCounts()
{
    QDomDocument document = documentOf(QStringLiteral("<r><a type='t'/></r>"));
    ScriptedObserver observer;
    const QString name = QStringLiteral("a");
    DomParser parser(&observer, {{name, {{2, {QStringLiteral("r")}}}}}, {});
    parser.SetDocument(&document);
    const QDomElement element = document.documentElement().firstChildElement();
    QVERIFY(!parser.IsCountDeclared(name, name, 3, element)); // nobody is told
    WrittenLog written;
    parser.SetLog(&written);
    QVERIFY(parser.IsCountDeclared(name, name, 2, element));
    QVERIFY(!parser.IsCountDeclared(name, name, 3, element));
    QCOMPARE(written.lines, QStringLiteral("refuse a (3)"));
}

void TestDomParserLog::hasHooksThatDoNothing()
{
    const QString a = QStringLiteral("a");
    const QString c = QStringLiteral("c");
    QDomDocument document = documentOf(QStringLiteral("<r><alt type='t'/><m><c><a type='t'/></c></m></r>"));
    ScriptedObserver observer;
    DomParser parser(&observer, {{c, {{0, {QStringLiteral("m")}}}}, {a, {{2, {c}}}}}, {{0, QStringLiteral("alt")}});
    parser.SetDocument(&document);
    WalkLog log;
    parser.SetLog(&log);
    bool isCopied = false;
    observer.OnElement(a, [&](ElemBeginEvent&) {
        QDomElement* const element = parser.GetCurrentElement();
        QVERIFY(!parser.IsCountDeclared(a, a, 3, *element));
        if (!std::exchange(isCopied, true)) {
            parser.InsertCopies(*element, 1);
            parser.ContinueAt(element, true);
            return;
        }
        parser.ContinueAt(element, false);
    });
    QVERIFY(parser.Walk());
    QCOMPARE(domText(document), domText(documentOf(QStringLiteral("<r><m><c><a type='t'/><a type='t'/></c></m></r>"))));
}

QTEST_GUILESS_MAIN(TestDomParserLog)
#include "tst_domparser_log.moc"
