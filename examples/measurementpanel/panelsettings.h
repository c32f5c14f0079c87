#ifndef MEASUREMENTPANEL_PANELSETTINGS_H
#define MEASUREMENTPANEL_PANELSETTINGS_H

#include <QSettings>
#include <QString>

/// What the operator has chosen, remembered from one session to the next in a file. What is not there is empty or off.
class PanelSettings
{
public:
    explicit PanelSettings(const QString& file);
    ~PanelSettings();

    /// The file of the user who runs the program.
    static QString DefaultFile();
    /// Among the documents of that user. It is made when it is missing, so that the first press finds it.
    static QString DefaultReportDirectory();

    QString GetSchema() const;
    void SetSchema(const QString& schema);
    QString GetReportDirectory() const;
    void SetReportDirectory(const QString& directory);
    QString GetLanguage() const;
    void SetLanguage(const QString& language);
    bool GetAskForComment() const;
    void SetAskForComment(bool isWanted);

private:
    Q_DISABLE_COPY(PanelSettings)

    QSettings m_settings;
};

#endif
