#ifndef MEASUREMENTPANEL_LANGUAGES_H
#define MEASUREMENTPANEL_LANGUAGES_H

#include <QString>
#include <QStringList>
#include <QTranslator>

/// The languages that the panel speaks, and the one that it speaks now.
///
/// The catalogues lie in one folder, a file for each translation context and language, such as XMLHelper_de.qm. The
/// library has registered its context when it was loaded; this object registers the panel's own, and that of the report
/// checker, for as long as it lives. The application's registry of translations loads them all, and every widget is
/// told by Qt.
class Languages
{
public:
    /// @param directory  of the catalogues; need not exist: then there is English only
    explicit Languages(const QString& directory);
    ~Languages();

    /// Those with a catalogue, and English, by their codes: "de", "en", "fr".
    QStringList GetAvailable() const;
    /// What a language calls itself, with the codes above.
    static QString NameOf(const QString& language);
    /// The first language of the user's system that has a catalogue; English when none has.
    QString OfSystem() const;

    /// Speaks a language from now on; English in place of one that is not available.
    void Use(const QString& language);
    QString GetCurrent() const { return m_sCurrent; }

private:
    Q_DISABLE_COPY(Languages)

    void useTextsOfQt();

    QString m_sDirectory;
    QString m_sCurrent;
    QTranslator m_textsOfQt; ///< of its own dialogs and menus, where they are installed
};

#endif
