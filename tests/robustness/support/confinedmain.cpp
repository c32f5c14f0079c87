// Reads content or builds a report on a stack of 1 MB, and says on the standard output what came of it; see confined.h.
//
// usage: xmlhelper_confined read FILE
//        xmlhelper_confined build SCHEMA REPORT

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/xmlcreatereport.h>
#include <xmlhelper/xmlevent.h>
#include <xmlhelper/xmlreader.h>

#include "cputime.h"
#include "smallstack.h"
#include "tracecollector.h"

namespace {

/// Counts, so that what is measured is the library.
class CountingObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        m_iBegun += event->GetType() == XmlEvent::EVENT_ELEM_BEGIN ? 1 : 0;
        m_iErrors += event->GetType() == XmlEvent::EVENT_ERROR ? 1 : 0;
    }

    int m_iBegun = 0;
    int m_iErrors = 0;
};

/// The greatest amount of memory that the process has had, where the system tells.
qint64 peakMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray& line : lines) {
            if (line.startsWith("VmHWM:")) {
                return line.simplified().split(' ').at(1).toLongLong() / 1024;
            }
        }
    }
    return 0;
}

bool read(IXMLHelper& observer, const QString& fileName, bool& isSameAgain)
{
    XMLReader reader(&observer, nullptr);
    const bool isSet = reader.SetXmlContent(fileName);
    const bool isParsed = reader.ParseXml();
    isSameAgain = reader.ParseXml() == isParsed;
    return isSet && isParsed;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        return 2;
    }
    CountingObserver observer;
    bool result = false;
    bool isSameAgain = true;
    TraceCollector traces;
    const double begin = cpuSeconds();
    runOnSmallStack([&] {
        if (arguments.at(1) == QLatin1String("read")) {
            result = read(observer, arguments.at(2), isSameAgain);
        } else {
            XmlCreateReport builder(&observer);
            result = builder.CreateXmlFromSchema(arguments.at(2), arguments.value(3), false);
        }
    });
    const double seconds = cpuSeconds() - begin;

    QTextStream out(stdout);
    out << "result " << (result ? "true" : "false") << '\n';
    out << "begun " << observer.m_iBegun << '\n';
    out << "errors " << observer.m_iErrors << '\n';
    for (const TraceCollector::Trace& trace : traces.Traces()) {
        out << "trace " << trace.message << '\n';
    }
    out << "milliseconds " << qint64(seconds * 1000) << '\n';
    out << "megabytes " << peakMegabytes() << '\n';
    return isSameAgain ? 0 : 1;
}
