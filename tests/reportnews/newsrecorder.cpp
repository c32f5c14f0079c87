#include "newsrecorder.h"

#include <QFile>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/reportnews.h>

NewsRecorder::NewsRecorder(const QString& folder)
    : m_folder(folder + QLatin1Char('/'))
{
    const ReportNews* const news = &ReportNews::Instance();
    connect(news, &ReportNews::Begun, this,
            [this](quint64 report, const QString& reportPath, const QString& schemaPath) {
                record(report, QStringLiteral("begun %1 by %2").arg(reportPath, schemaPath));
            });
    connect(news, &ReportNews::SchemaRead, this, [this](quint64 report, bool isUnderstood, const QString& reason) {
        record(report,
               isUnderstood ? QStringLiteral("schema understood") + reason
                            : QStringLiteral("schema not understood: ") + reason);
    });
    connect(news, &ReportNews::CommentAsked, this, [this](quint64 report, QDialog* dialog) {
        m_dialog = dialog;
        record(report,
               QStringLiteral("asked by a ") + QLatin1String(dialog->isVisible() ? "shown dialog" : "hidden dialog"));
    });
    connect(news, &ReportNews::Written, this, [this](quint64 report, const QString& fileName, qint64 size) {
        record(report, QStringLiteral("written %1, %2 bytes").arg(fileName).arg(size));
    });
    connect(news, &ReportNews::NotWritten, this,
            [this](quint64 report, const QString& reason, const QByteArray& content) {
                m_content = content;
                record(report, QStringLiteral("not written: ") + reason);
            });
}

void NewsRecorder::On(const QString& word, std::function<void()> deed)
{
    m_deeds[word] = std::move(deed);
}

void NewsRecorder::record(quint64 report, const QString& line)
{
    const int number = m_numbers.emplace(report, int(m_numbers.size()) + 1).first->second;
    m_lines += QString::number(number) + QLatin1Char(' ') + QString(line).remove(m_folder);
    const auto deed = m_deeds.find(line.section(QLatin1Char(' '), 0, 0));
    if (deed != m_deeds.end()) {
        const std::function<void()> copy = deed->second; // The deed may end the recorder.
        copy();
    }
}

FilledReport::FilledReport()
    : m_builder(std::make_unique<XmlCreateReport>(&m_observer))
{
    m_observer.OnElement(QStringLiteral("Frequency"), [this](ElemBeginEvent&) { m_builder->SetXmlValue(98.5); });
}

QByteArray schemaWith(const QByteArray& declarations)
{
    return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>\n<xs:element name='Report'><xs:complexType>"
           "<xs:sequence><xs:element name='Frequency' type='xs:double'/>"
        + declarations + "</xs:sequence></xs:complexType></xs:element></xs:schema>";
}

bool writeFile(const QString& fileName, const QByteArray& content)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray bytesOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}
