#include "languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

#include <vornappstartup/translationcenter.h>

namespace {

const QLatin1String English("en");

// The buttons of Qt's questions, among them that of the comment dialog: they are translated here, because Qt's own
// catalogues are often not installed.
const char* const textsOfQt[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
};

QString contextOfPanel()
{
    return QStringLiteral("MeasurementPanel");
}

/// Of the report checker, which the panel asks.
QString contextOfChecker()
{
    return QStringLiteral("ReportCheck");
}

QString catalogueFolderOfQt()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

Languages::Languages(const QString& directory)
    : m_sDirectory(directory)
    , m_sCurrent(English)
{
    Q_UNUSED(textsOfQt)
    TranslationCenter::Instance().Register(contextOfPanel());
    TranslationCenter::Instance().Register(contextOfChecker());
}

Languages::~Languages()
{
    TranslationCenter::Instance().Unregister(contextOfChecker());
    TranslationCenter::Instance().Unregister(contextOfPanel());
}

QStringList Languages::GetAvailable() const
{
    QStringList languages {English};
    const QString prefix = contextOfPanel() + QLatin1Char('_');
    const QStringList files = QDir(m_sDirectory).entryList({prefix + QStringLiteral("*.qm")}, QDir::Files);
    for (const QString& file : files) {
        languages.append(file.mid(prefix.size()).chopped(3));
    }
    languages.removeDuplicates();
    languages.sort();
    return languages;
}

QString Languages::NameOf(const QString& language)
{
    const QString name = QLocale(language).nativeLanguageName();
    // The name of a language that Qt does not know is empty.
    const QString first = name.left(1); // clazy:exclude=qstring-left
    // Without its country: Qt names the English of the United States.
    return language == English ? QStringLiteral("English") : first.toUpper() + name.mid(1);
}

QString Languages::OfSystem() const
{
    const QStringList available = GetAvailable();
    const QStringList wanted = QLocale::system().uiLanguages();
    for (const QString& language : wanted) {
        const QString code = language.section(QLatin1Char('-'), 0, 0);
        if (available.contains(code)) {
            return code;
        }
    }
    return English;
}

void Languages::Use(const QString& language)
{
    m_sCurrent = GetAvailable().contains(language) ? language : QString(English);
    useTextsOfQt();
    TranslationCenter::Instance().InstallTranslators(QLocale(m_sCurrent), m_sDirectory);
}

/// Installed before our own catalogues, which go first that way.
void Languages::useTextsOfQt()
{
    QCoreApplication::removeTranslator(&m_textsOfQt);
    if (m_textsOfQt.load(QLocale(m_sCurrent), QStringLiteral("qtbase"), QStringLiteral("_"), catalogueFolderOfQt())) {
        QCoreApplication::installTranslator(&m_textsOfQt);
    }
}
