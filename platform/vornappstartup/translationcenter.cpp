#include <algorithm>
#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include <vornappstartup/translationcenter.h>

TranslationCenter::TranslationCenter() = default;
TranslationCenter::~TranslationCenter() = default;

TranslationCenter& TranslationCenter::Instance()
{
    // Never destroyed: libraries unregister while they are unloaded, at process end after all static objects are gone.
    static auto* const instance = new TranslationCenter;
    return *instance;
}

void TranslationCenter::Register(const QString& context)
{
    if (!GetContexts().contains(context)) {
        m_translations.push_back({context, nullptr});
    }
}

void TranslationCenter::Unregister(const QString& context)
{
    const auto isContext = [&context](const Translation& translation) { return translation.context == context; };
    m_translations.erase(std::remove_if(m_translations.begin(), m_translations.end(), isContext), m_translations.end());
}

QStringList TranslationCenter::GetContexts() const
{
    QStringList contexts;
    for (const Translation& translation : m_translations) {
        contexts += translation.context;
    }
    return contexts;
}

int TranslationCenter::InstallTranslators(const QLocale& locale, const QString& directory)
{
    int found = 0;
    for (Translation& translation : m_translations) {
        translation.translator.reset();
        if (!QCoreApplication::instance()) {
            continue;
        }
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(locale, translation.context, QStringLiteral("_"), directory)) {
            QCoreApplication::installTranslator(translator.get());
            translation.translator = std::move(translator);
            ++found;
        }
    }
    return found;
}
