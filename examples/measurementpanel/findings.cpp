#include "findings.h"

#include <algorithm>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

#ifdef MEASUREMENTPANEL_HAS_REPORTCHECK
#include <reportcheck.h>
#endif

namespace {

/// An operator who waits for a message shall not wait for long.
constexpr int DoctorsTimeMs = 5000;

/// Beside this program, or where programs are.
QString doctor()
{
    const QString name = QStringLiteral("xmlhelper-schema");
    const QString beside = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
}

/// The doctor speaks the language of the panel, not that of the system.
QProcessEnvironment environmentOfDoctor()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LANGUAGE"),
                       QCoreApplication::translate("Findings", "en", "the code of the language that is spoken"));
    return environment;
}

/// What the doctor says of a schema. A program of its own: it has the library's inner classes in it, which must not
/// meet those of the library in one process. Empty when it is not there or has not ended in time.
QJsonObject examine(const QString& schema)
{
    const QString program = doctor();
    QProcess process;
    process.setProcessEnvironment(environmentOfDoctor());
    if (!program.isEmpty()) {
        process.start(program, {QStringLiteral("--json"), QStringLiteral("--"), schema});
    }
    if (program.isEmpty() || !process.waitForFinished(DoctorsTimeMs)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
}

} // namespace

#ifdef MEASUREMENTPANEL_HAS_REPORTCHECK

namespace {

using Findings = std::vector<reportcheck::Finding>;

/// The first that makes the report wrong: notes and warnings are for the author of the schema.
QString firstErrorIn(const Findings& findings)
{
    const auto error = std::find_if(findings.begin(), findings.end(), [](const reportcheck::Finding& finding) {
        return finding.severity == reportcheck::Severity::Error;
    });
    return error == findings.end() ? QString() : error->text;
}

} // namespace

bool areReportsChecked()
{
    return true;
}

QString firstFindingInReport(const QString& report, const QString& schema)
{
    const reportcheck::Result result = reportcheck::checkReport(report, schema);
    if (!result.IsReadable()) {
        return result.unreadableReason;
    }
    const QString finding = firstErrorIn(result.findings);
    return finding.isEmpty() ? firstErrorIn(result.validation) : finding;
}

#else

bool areReportsChecked()
{
    return false;
}

QString firstFindingInReport(const QString& /*report*/, const QString& /*schema*/)
{
    return {};
}

#endif

QString firstFindingInSchema(const QString& schema)
{
    const QJsonObject examination = examine(schema);
    const QString unreadable = examination.value(QLatin1String("unreadable")).toString();
    const QJsonObject finding = examination.value(QLatin1String("findings")).toArray().at(0).toObject();
    return unreadable.isEmpty() ? finding.value(QLatin1String("what")).toString() : unreadable;
}
