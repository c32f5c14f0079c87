#include "language.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

#include <vornappstartup/translationcenter.h>

namespace {

QString folderOfCatalogues()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString beside = programs.filePath(QStringLiteral("translations"));
    return QDir(beside).exists() ? beside : programs.filePath(QStringLiteral(INSTALLED_TRANSLATIONS));
}

} // namespace

bool speak(const QStringList& catalogues, const QString& language)
{
    TranslationCenter& center = TranslationCenter::Instance();
    for (const QString& catalogue : catalogues) {
        center.Register(catalogue);
    }
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    const int found = center.InstallTranslators(locale, folderOfCatalogues());
    return found > 0 || language.isEmpty() || language == QLatin1String("en");
}
