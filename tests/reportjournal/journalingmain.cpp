// Stands for a program whose reports are remembered, until it is killed or has made them.
//
// usage: xmlhelper_journaling JOURNAL FOLDER NAME COUNT [URL]
//
// Makes reports NAME-1.xml and so on in a folder, a line of output for each. With a URL it then waits until all entries
// have arrived there or the first attempt to send them has failed, and says how many are left.

#include <iostream>

#include <QCoreApplication>
#include <QFile>
#include <QUrl>

#include <xmlhelper/reportnews.h>
#include <xmlhelperreports/reportjournal.h>
#include <xmlhelperreports/reportsupervisor.h>

namespace {

void makeReport(int number, const QString& path)
{
    const QByteArray content = "<Survey><Number>" + QByteArray::number(number) + "</Number></Survey>";
    Q_EMIT ReportNews::Instance().Begun(quint64(number), path, QStringLiteral("survey.xsd"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written.", qPrintable(path));
    }
    file.close();
    Q_EMIT ReportNews::Instance().Written(quint64(number), path, content.size());
}

int waitUntilSent(ReportJournal& journal)
{
    // What is told may be older than the last report.
    QObject::connect(&journal, &ReportJournal::Sent, &journal, [&journal](int, const QString& fault) {
        if (journal.Unsent() == 0 || !fault.isEmpty()) {
            QCoreApplication::quit();
        }
    });
    if (journal.Unsent() > 0) {
        QCoreApplication::exec();
    }
    return journal.Unsent();
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString url = arguments.value(5);
    ReportSupervisor supervisor;
    supervisor.SetEmergencyFolder(QString());
    ReportJournal journal;
    QString message;
    if (!journal.Open(arguments.value(1), &message)) {
        qFatal("%s", qPrintable(message));
    }
    QObject::connect(&journal, &ReportJournal::Troubled, &journal,
                     [](const QString& trouble) { std::cerr << qPrintable(trouble) << std::endl; });
    journal.SetValueNames({QStringLiteral("Number")});
    journal.Watch(supervisor);
    if (!url.isEmpty() && !journal.Share(QUrl(url))) {
        qFatal("%s is no URL of a database.", qPrintable(url));
    }
    ReportJournal::Entry last;
    QObject::connect(&journal, &ReportJournal::Changed, &journal,
                     [&journal, &last](const QString& id) { last = journal.Find(id); });
    for (int i = 1; i <= arguments.value(4).toInt(); ++i) {
        const QString path = QStringLiteral("%1/%2-%3.xml").arg(arguments.value(2), arguments.value(3)).arg(i);
        makeReport(i, path);
        while (last.path != path || last.hash.isEmpty()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        std::cout << i << std::endl;
    }
    if (!url.isEmpty()) {
        std::cout << "left " << waitUntilSent(journal) << std::endl;
    }
    return 0;
}
