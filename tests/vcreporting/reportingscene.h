#ifndef XMLHELPER_TESTS_REPORTINGSCENE_H
#define XMLHELPER_TESTS_REPORTINGSCENE_H

#include <memory>

#include <QDomElement>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <xmlhelper/vcreporting.h>

#include "fakeclock.h"

/// A schema whose root "Report" holds the elements that @p declarations declares.
QString reportSchema(const QString& declarations);

/// The declaration of an element of the simple type @p type, built in.
QString declaredElement(const QString& name, const QString& type);

/// The declaration of an element of the simple type @p type with attributes, declared by @p attributes.
QString declaredElement(const QString& name, const QString& type, const QString& attributes);

/// The declaration of an attribute of the simple type @p type, built in.
QString declaredAttribute(const QString& name, const QString& type);

/// What lies below the root of a report, as text with sorted attributes.
QString bodyText(const QDomDocument& report);

/// The same for a report that holds @p elements, given in XML.
QString bodyText(const QString& elements);

/// A report widget that remembers what the report builder says to it.
class RecordingReporting : public VCReporting
{
public:
    using VCReporting::VCReporting;

    void XmlUpdate(XmlEvent* event) override;

    /// The names of the announced elements, in their order.
    QStringList Announced() const { return m_announced; }
    /// The element of that name that was announced last; it lives in the document of its builder.
    QDomElement Element(const QString& name) const;
    /// What values were refused as while elements were being answered, in order and separated by blanks, such as
    /// "double integer". The walk's own diagnostics do not count.
    QString Refusals() const { return m_refusals.join(QLatin1Char(' ')); }
    void Forget();

private:
    QStringList m_announced;
    QList<QDomElement> m_elements;
    QStringList m_refusals;
    int m_depth = 0;
};

/// A measurement screen: a schema file and a report directory on disk, a clock that shows 2017-03-31 12:34:56.007, and
/// the report widget on them.
class ReportingScene
{
public:
    explicit ReportingScene(const QString& declarations, bool consume = false);

    RecordingReporting& Reporting() { return *m_reporting; }
    FakeClock& Clock() { return m_clock; }
    void DeleteReporting() { m_reporting.reset(); }

    QString SchemaFile() const { return m_folder.filePath(QStringLiteral("schema.xsd")); }
    QString Directory() const { return m_folder.filePath(QStringLiteral("reports")); }
    void WriteSchemaFile(const QString& content) const;
    /// The names of the report files.
    QStringList ReportFiles() const;
    /// The report that is named after the time the clock shows; a null document when there is none.
    QDomDocument Report() const;

    /// Registers an item with a fixed text.
    void AddText(const QString& name, const QString& text, const QString& unit = QString(), int maxOccurs = 1);
    /// Makes a report and gives its body; "(failed)" when that was not successful.
    QString MakeReport();

private:
    Q_DISABLE_COPY(ReportingScene)

    QTemporaryDir m_folder;
    FakeClock m_clock;
    std::unique_ptr<RecordingReporting> m_reporting;
};

#endif
