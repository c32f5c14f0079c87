#include "panelsettings.h"

#include <QDir>
#include <QStandardPaths>

namespace {

const QLatin1String SchemaKey("schema");
const QLatin1String ReportDirectoryKey("reportDirectory");
const QLatin1String LanguageKey("language");
const QLatin1String AskForCommentKey("askForComment");

} // namespace

PanelSettings::PanelSettings(const QString& file)
    : m_settings(file, QSettings::IniFormat)
{
}

PanelSettings::~PanelSettings() = default;

QString PanelSettings::DefaultFile()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
        .filePath(QStringLiteral("settings.ini"));
}

QString PanelSettings::DefaultReportDirectory()
{
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString directory = documents.filePath(QStringLiteral("Measurement Reports"));
    QDir().mkpath(directory);
    return directory;
}

QString PanelSettings::GetSchema() const
{
    return m_settings.value(SchemaKey).toString();
}

void PanelSettings::SetSchema(const QString& schema)
{
    m_settings.setValue(SchemaKey, schema);
}

QString PanelSettings::GetReportDirectory() const
{
    return m_settings.value(ReportDirectoryKey).toString();
}

void PanelSettings::SetReportDirectory(const QString& directory)
{
    m_settings.setValue(ReportDirectoryKey, directory);
}

QString PanelSettings::GetLanguage() const
{
    return m_settings.value(LanguageKey).toString();
}

void PanelSettings::SetLanguage(const QString& language)
{
    m_settings.setValue(LanguageKey, language);
}

bool PanelSettings::GetAskForComment() const
{
    return m_settings.value(AskForCommentKey).toBool();
}

void PanelSettings::SetAskForComment(bool isWanted)
{
    m_settings.setValue(AskForCommentKey, isWanted);
}
