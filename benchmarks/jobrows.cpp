#include <functional>
#include <memory>

#include <QFile>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/vcreporting.h>

#include "baredom.h"
#include "inputs.h"
#include "observers.h"
#include "peers.h"
#include "rows.h"
#include "workspace.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

/// The least that a report costs with Qt's classes: nothing is checked.
bool writeByQt(const PeerInput& input)
{
    QFile file(input.schema);
    QXmlDefaultHandler nobody;
    QXmlSimpleReader parser;
    parser.setContentHandler(&nobody);
    parser.setErrorHandler(&nobody);
    return parser.parse(QXmlInputSource(&file)) && saveAtOnce(buildReport(input.elements, input.schema), input.report);
}

struct Job
{
    PeerInput input;
    std::unique_ptr<ReportFiller> filler;
    bool isWritten = false;
    bool isFloorWritten = false;
};

/// Whether two files hold the same report. Peers need not refer to the schema, so the root's attributes do not count.
QString differenceOfReports(const QString& library, const QString& floor)
{
    const auto withoutRoot = [](const QString& path) {
        QDomDocument document = documentOf(contentOf(path));
        QDomElement root = document.documentElement();
        root.removeAttribute(QStringLiteral("xsi:noNamespaceSchemaLocation"));
        root.removeAttribute(QStringLiteral("xmlns:xsi"));
        return canonicalText(document);
    };
    return differenceOf(withoutRoot(library), withoutRoot(floor));
}

Contest job(const Workspace& workspace, int elements, const std::function<bool(const PeerInput&)>& writeByPeer)
{
    const Shape shape = Shape::RequiredGroups;
    auto state = std::make_shared<Job>();
    state->input.schema = workspace.Write(QStringLiteral("job.xsd"), schemaText(shape, elements));
    state->input.report = workspace.Path(QStringLiteral("job-floor.xml"));
    state->input.elements = reportElements(shape, elements);
    const QString report = workspace.Path(QStringLiteral("job.xml"));
    return {{[=] { state->filler = std::make_unique<ReportFiller>(); },
             [=] { state->isWritten = state->filler->Write(state->input.schema, report); },
             [=] { state->filler.reset(); }},
            {{}, [=] { state->isFloorWritten = writeByPeer(state->input); }, {}},
            [=] {
                if (!state->isWritten || !state->isFloorWritten) {
                    return QStringLiteral("a report was refused");
                }
                const QByteArray written = contentOf(report);
                if (written.count("</") != elements + 1 || written.contains(" type=")) {
                    return QStringLiteral("the report is not complete");
                }
                return differenceOfReports(report, state->input.report);
            }};
}

/// A measurement screen whose items answer every value of a schema.
class Screen
{
public:
    Screen(const QString& schema, const QString& folder, const std::vector<ReportElement>& elements)
        : m_reporting(schema, folder, nullptr, false, "ToReport", false, QPixmap())
    {
        for (const ReportElement& element : elements) {
            if (kindOf(element.name).type == QLatin1String("boolean")) {
                m_reporting.AddExplicitReportData(element.name, true, 1, QString(), 0, QString());
            } else {
                m_reporting.AddReportData(element.name, QString(), element.text, 1, QString(), 0, QString());
            }
        }
    }

    bool Press() { return m_reporting.SlotToReport(); }

private:
    VCReporting m_reporting;
};

struct ButtonState
{
    std::unique_ptr<Screen> screen;
    std::unique_ptr<ReportFiller> filler;
    bool isReported = false;
    bool isFilled = false;
};

Contest pressButton(const Workspace& workspace, int items)
{
    const Shape shape = Shape::RequiredFlat;
    const QString schema = workspace.Write(QStringLiteral("button.xsd"), schemaText(shape, items));
    const QString folder = workspace.Path(QStringLiteral("reports"));
    QDir().mkpath(folder);
    const QString report = workspace.Path(QStringLiteral("button-floor.xml"));
    auto state = std::make_shared<ButtonState>();
    state->screen = std::make_unique<Screen>(schema, folder, reportElements(shape, items));
    // The files of earlier presses go before each run: they are named after the time.
    return {{[=] {
                 QDir(folder).removeRecursively();
                 QDir().mkpath(folder);
             },
             [=] { state->isReported = state->screen->Press(); },
             {}},
            {[=] { state->filler = std::make_unique<ReportFiller>(); },
             [=] { state->isFilled = state->filler->Write(schema, report); }, [=] { state->filler.reset(); }},
            [=] {
                const QStringList files = QDir(folder).entryList(QDir::Files);
                if (!state->isReported || !state->isFilled || files.size() != 1
                    || contentOf(report).count("</") != items + 1) {
                    return QStringLiteral("a report is not complete");
                }
                return differenceOfReports(folder + QLatin1Char('/') + files.front(), report);
            }};
}

} // namespace

std::vector<Row> jobRows(const Workspace& workspace)
{
    std::vector<Peer> opponents = peers();
    opponents.insert(opponents.begin(),
                     {QStringLiteral("qt"),
                      QStringLiteral("SAX over the schema, DOM by hand, one write"),
                      1.05,
                      {50, 500, 5000, 50000},
                      writeByQt});
    std::vector<Row> rows;
    rows.reserve(opponents.size());
    for (const Peer& opponent : opponents) {
        rows.push_back({QStringLiteral("job/") + opponent.name, opponent.description, opponent.target, opponent.sizes,
                        [=, &workspace](int size) { return job(workspace, size, opponent.write); }});
    }
    return rows;
}

std::vector<Row> buttonRows(const Workspace& workspace)
{
    return {{QStringLiteral("button"),
             QStringLiteral("the job filled by hand"),
             1.0,
             {10, 100, 1000, 10000},
             [&workspace](int items) { return pressButton(workspace, items); }}};
}
