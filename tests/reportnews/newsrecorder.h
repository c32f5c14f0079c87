#ifndef XMLHELPER_TESTS_NEWSRECORDER_H
#define XMLHELPER_TESTS_NEWSRECORDER_H

#include <functional>
#include <map>

#include <QDialog>
#include <QPointer>
#include <QStringList>

#include <xmlhelper/xmlcreatereport.h>

#include "scriptedobserver.h"

/// Records what is told of reports while it lives, a line for each signal, such as
///
///     1 begun report.xml by schema.xsd
///     1 schema not understood: schema.xsd cannot be opened.
///     1 written report.xml, 42 bytes
///
/// Reports are numbered as they come, and the paths of a folder are left out.
class NewsRecorder : public QObject
{
public:
    explicit NewsRecorder(const QString& folder);

    QStringList Lines() const { return m_lines; }
    /// What would have been written, of the report that was not written last.
    QByteArray Content() const { return m_content; }
    /// The dialog that was told last.
    QDialog* Dialog() const { return m_dialog; }
    /// What to do when the line of a signal begins with this word, after it is recorded.
    void On(const QString& word, std::function<void()> deed);

private:
    void record(quint64 report, const QString& line);

    QString m_folder;
    QStringList m_lines;
    QByteArray m_content;
    QPointer<QDialog> m_dialog;
    std::map<quint64, int> m_numbers;
    std::map<QString, std::function<void()>> m_deeds;
};

/// A builder with an observer that gives Frequency a value.
class FilledReport
{
public:
    FilledReport();

    XmlCreateReport& Builder() { return *m_builder; }
    void DeleteBuilder() { m_builder.reset(); }

private:
    Q_DISABLE_COPY(FilledReport)

    ScriptedObserver m_observer;
    std::unique_ptr<XmlCreateReport> m_builder;
};

/// A schema whose root "Report" holds a "Frequency", with @p declarations behind it.
QByteArray schemaWith(const QByteArray& declarations = QByteArray());

bool writeFile(const QString& fileName, const QByteArray& content);
QByteArray bytesOf(const QString& fileName);

#endif
