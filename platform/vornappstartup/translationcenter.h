#ifndef VORNAPPSTARTUP_TRANSLATIONCENTER_H
#define VORNAPPSTARTUP_TRANSLATIONCENTER_H

#include <memory>
#include <QStringList>
#include <vector>
#include <vornappstartup/vornappstartupexport.h>

class QLocale;
class QTranslator;

/// The application's registry of translations: every library registers its translation context when it is loaded and
/// unregisters it when it is unloaded; the application then installs the translators of all of them in one go.
///
/// The contexts are a set in the order of their registration: registering one again changes nothing, and one call
/// unregisters it.
class VORNAPPSTARTUP_EXPORT TranslationCenter
{
public:
    /// The process's one instance. It can be asked at any time, also by the unload routine of a library while the
    /// process ends.
    static TranslationCenter& Instance();

    void Register(const QString& context);

    /// Forgets the context; its translator, if one is installed, is removed from the application. An unknown context
    /// changes nothing.
    void Unregister(const QString& context);

    QStringList GetContexts() const;

    /// Loads the file <context>_<locale>.qm of every registered context from the directory, by the rules of
    /// QTranslator::load, which accept a file of the language alone. The translators found are installed in the
    /// QCoreApplication and kept; those of an earlier call are removed, so the call also changes the language. A
    /// context that registers afterwards waits for the next call.
    ///
    /// @return how many contexts a translator was found for; 0 when there is no application to install it in
    int InstallTranslators(const QLocale& locale, const QString& directory);

private:
    Q_DISABLE_COPY(TranslationCenter)

    TranslationCenter();
    ~TranslationCenter();

    struct Translation
    {
        QString context;
        /// Null until one was found. Its destructor takes it off the application.
        std::unique_ptr<QTranslator> translator;
    };

    std::vector<Translation> m_translations;
};

#endif
