#include <algorithm>
#include <functional>
#include <map>

#include <QDateTime>
#include <QDir>
#include <QDomDocument>
#include <QTest>

#include <xmlhelper/xmlhelper.h>

#include "examine.h"
#include "proof/filling.h"

using namespace schemadoctor;

namespace {

/// The element of the tree under the names of @p element and those around it; the first one of equal names.
int indexOf(const SkeletonTree& tree, const QDomElement& element)
{
    if (!element.parentNode().isElement()) {
        return 0;
    }
    const int parent = indexOf(tree, element.parentNode().toElement());
    for (const int child : tree.elements[std::size_t(parent)].children) {
        if (tree.elements[std::size_t(child)].name == element.tagName()) {
            return child;
        }
    }
    return SkeletonElement::None;
}

/// Does one thing when an element is announced for the first time, and listens what the library says to it.
class OneCall : public IXMLHelper
{
public:
    using Call = std::function<void(XmlCreateReport& builder)>;

    OneCall(const SkeletonTree& tree, int element, Call call)
        : m_tree(tree)
        , m_iElement(element)
        , m_call(std::move(call))
        , m_builder(this)
    {
    }

    /// The errors of the call; nothing at all when the element was never announced.
    bool Make(const QString& schema)
    {
        m_builder.CreateXmlFromSchema(schema, QStringLiteral("/dev/null"), false);
        return m_bMade;
    }
    bool Has(std::initializer_list<ErrorID> errors) const
    {
        return std::find_first_of(m_errors.begin(), m_errors.end(), errors.begin(), errors.end()) != m_errors.end();
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ERROR && m_bListening) {
            m_errors.push_back(static_cast<ErrorEvent*>(event)->GetErrorID());
        }
        if (event->GetType() != XmlEvent::EVENT_ELEM_BEGIN || m_bMade) {
            return;
        }
        const QDomElement element = static_cast<ElemBeginEvent*>(event)->GetElementNode().toElement();
        if (!element.isNull() && indexOf(m_tree, element) == m_iElement) {
            m_bMade = m_bListening = true;
            m_call(m_builder);
            m_bListening = false;
        }
    }

private:
    const SkeletonTree& m_tree;
    const int m_iElement;
    const Call m_call;
    bool m_bMade = false;
    bool m_bListening = false;
    std::vector<ErrorID> m_errors;
    XmlCreateReport m_builder;
};

/// Whether the element, and each around it, is the first of its name among its siblings: the one that names lead to.
bool isFirstOfItsNames(const SkeletonTree& tree, int index)
{
    for (; index > 0; index = tree.elements[std::size_t(index)].parent) {
        const SkeletonElement& element = tree.elements[std::size_t(index)];
        for (const int sibling : tree.elements[std::size_t(element.parent)].children) {
            if (sibling < index && tree.elements[std::size_t(sibling)].name == element.name) {
                return false;
            }
        }
    }
    return true;
}

bool isOrIsBelow(const SkeletonTree& tree, int inner, int outer)
{
    while (inner != SkeletonElement::None && inner != outer) {
        inner = tree.elements[std::size_t(inner)].parent;
    }
    return inner == outer;
}

bool hasElement(const QByteArray& report, const SkeletonTree& tree, int index)
{
    QStringList names;
    for (int element = index; element != SkeletonElement::None; element = tree.elements[std::size_t(element)].parent) {
        names.prepend(tree.elements[std::size_t(element)].name);
    }
    QDomDocument document;
    document.setContent(report);
    QDomElement element = document.documentElement();
    for (int level = 1; level < names.size(); ++level) {
        element = element.firstChildElement(names.at(level));
    }
    return !element.isNull();
}

} // namespace

/// Holds what the doctor says of many small schemas, each construct in each place, against what the library does.
class TestSchemaDoctorCorpus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasEnoughFiles();
    void isForetold_data() { addFiles(); }
    void isForetold();
    void settersAreTrue_data() { addFiles(); }
    void settersAreTrue();
    void countsAreTrue_data() { addFiles(); }
    void countsAreTrue();
    void fatesAreTrue_data() { addFiles(); }
    void fatesAreTrue();

private:
    /// Each file is examined once: most of the time goes into that.
    const Examination& examinationOf(const QString& file)
    {
        auto found = m_examinations.find(file);
        if (found == m_examinations.end()) {
            found = m_examinations.emplace(file, examine(file)).first;
        }
        return found->second;
    }
    static QStringList files()
    {
        return QDir(QStringLiteral(CORPUS_FOLDER)).entryList({QStringLiteral("*.xsd")}, QDir::Files, QDir::Name);
    }
    static void addFiles()
    {
        QTest::addColumn<QString>("file");
        const QStringList names = files();
        for (const QString& name : names) {
            QTest::newRow(qPrintable(name.chopped(4))) << QStringLiteral(CORPUS_FOLDER "/") + name;
        }
    }

    std::map<QString, Examination> m_examinations;
};

void TestSchemaDoctorCorpus::hasEnoughFiles()
{
    QVERIFY(files().size() >= 300 / CORPUS_SHARE);
}

/// Every report that is not valid has a finding of a rule that says why.
void TestSchemaDoctorCorpus::isForetold()
{
    QFETCH(QString, file);
    const Examination& examination = examinationOf(file);
    QVERIFY2(examination.IsReadable(), qPrintable(examination.unreadableReason));
    for (const Finding& finding : examination.findings) {
        QVERIFY2(finding.rule != QLatin1String("unforetold"),
                 qPrintable(finding.path + QLatin1Char(' ') + finding.what));
    }
    QVERIFY(examination.tree.IsEmpty() || examination.proof.reports > 0);
}

void TestSchemaDoctorCorpus::settersAreTrue()
{
    QFETCH(QString, file);
    const std::pair<Setter, OneCall::Call> calls[] = {
        {Setter::Text, [](XmlCreateReport& builder) { builder.SetXmlValue(QStringLiteral("a")); }},
        {Setter::Floating, [](XmlCreateReport& builder) { builder.SetXmlValue(1.5); }},
        {Setter::Integer, [](XmlCreateReport& builder) { builder.SetXmlValue(1); }},
        {Setter::Truth, [](XmlCreateReport& builder) { builder.SetXmlValue(true); }},
        {Setter::DateTime, [](XmlCreateReport& builder) { builder.SetXmlValue(QDateTime::currentDateTimeUtc()); }},
        {Setter::Time, [](XmlCreateReport& builder) { builder.SetXmlValue(QTime(1, 2, 3)); }},
    };
    const Examination& examination = examinationOf(file);
    for (int index = 0; index < int(examination.tree.elements.size()); ++index) {
        const SkeletonElement& element = examination.tree.elements[std::size_t(index)];
        for (const auto& [setter, call] : calls) {
            OneCall trial(examination.tree, index, call);
            if (isFirstOfItsNames(examination.tree, index) && trial.Make(file)) {
                const bool isTaken
                    = !trial.Has({IXMLHelper::CURRENT_TYPE_IS_UNKNOWN, IXMLHelper::CURRENT_TYPE_IS_NOT_STRING,
                                  IXMLHelper::CURRENT_TYPE_IS_NOT_DOUBLE, IXMLHelper::CURRENT_TYPE_IS_NOT_INTEGER,
                                  IXMLHelper::CURRENT_TYPE_IS_NOT_DATETIME, IXMLHelper::CURRENT_TYPE_IS_NOT_TIME,
                                  IXMLHelper::CURRENT_TYPE_IS_NOT_BOOLEAN});
                QVERIFY2(element.setters.testFlag(setter) == isTaken,
                         qPrintable(QStringLiteral("%1, setter %2").arg(element.name).arg(int(setter))));
            }
        }
    }
}

void TestSchemaDoctorCorpus::countsAreTrue()
{
    QFETCH(QString, file);
    const Examination& examination = examinationOf(file);
    for (int index = 0; index < int(examination.tree.elements.size()); ++index) {
        const SkeletonElement& element = examination.tree.elements[std::size_t(index)];
        const int greatest = element.counts.greatest;
        for (const int count : {0, 1, 2, greatest, greatest + 1, 1000}) {
            const QString name = element.name;
            OneCall trial(examination.tree, index,
                          [&](XmlCreateReport& builder) { builder.SetElementMaxOccurs(name, count); });
            if (count < 0 || !isFirstOfItsNames(examination.tree, index) || !trial.Make(file)) {
                continue;
            }
            const bool isSaid
                = count == 0 ? element.counts.takesZero : greatest == AcceptedCounts::Unbounded || count <= greatest;
            QVERIFY2(trial.Has({IXMLHelper::MAX_OCCURS_EXCEEDED}) != isSaid,
                     qPrintable(QStringLiteral("%1, count %2").arg(name).arg(count)));
        }
    }
}

/// Where everything else is filled, what nobody fills stays or goes as it is said.
void TestSchemaDoctorCorpus::fatesAreTrue()
{
    QFETCH(QString, file);
    const Examination& examination = examinationOf(file);
    const SkeletonTree& tree = examination.tree;
    for (int index = 1; index < int(tree.elements.size()); ++index) {
        const SkeletonElement& element = tree.elements[std::size_t(index)];
        bool areAllAroundStaying = true;
        for (int around = element.parent; around != SkeletonElement::None;
             around = tree.elements[std::size_t(around)].parent) {
            areAllAroundStaying = areAllAroundStaying && tree.elements[std::size_t(around)].fate == Fate::Stays;
        }
        if (!areAllAroundStaying || !isFirstOfItsNames(tree, index)) {
            continue;
        }
        Filling filling;
        filling.isWanted.assign(tree.elements.size(), true);
        filling.isWithOptionalAttributes = true;
        for (std::size_t other = 0; other < tree.elements.size(); ++other) {
            // Elements of one name are filled or left alone together.
            const bool isOfTheName
                = tree.elements[other].name == element.name && tree.elements[other].parent == element.parent;
            filling.isWanted[other] = !isOrIsBelow(tree, int(other), index) && !isOfTheName;
        }
        QVERIFY2(hasElement(filledReport(file, tree, filling), tree, index) == (element.fate == Fate::Stays),
                 qPrintable(element.name));
    }
}

QTEST_GUILESS_MAIN(TestSchemaDoctorCorpus)
#include "tst_schemadoctor_corpus.moc"
