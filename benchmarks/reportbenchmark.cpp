// Measures how long a report takes to build, as a multiple of the least work that anybody would have to do for it:
// reading the finished report into a document and saving it again. The multiple should not grow with the report.
//
// usage: reportbenchmark [ROWS...]

#include <algorithm>
#include <cstdio>
#include <functional>

#include <QCoreApplication>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <QVector>

#include <xmlhelper/xmlhelper.h>

namespace {

constexpr int Repetitions = 5;

const char Schema[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
  <xs:element name="Scan">
    <xs:complexType>
      <xs:sequence>
        <xs:element name="Row" maxOccurs="unbounded">
          <xs:complexType>
            <xs:sequence>
              <xs:element name="Frequency" type="xs:double"/>
              <xs:element name="Level" type="xs:double"/>
              <xs:element name="Station" type="xs:string"/>
            </xs:sequence>
          </xs:complexType>
        </xs:element>
      </xs:sequence>
    </xs:complexType>
  </xs:element>
</xs:schema>
)";

/// Fills every row of a scan.
class Scanner : public IXMLHelper
{
public:
    explicit Scanner(int rows)
        : m_builder(this)
        , m_iRows(rows)
    {
    }

    bool Write(const QString& schema, const QString& report)
    {
        return m_builder.CreateXmlFromSchema(schema, report, false);
    }

    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() != XmlEvent::EVENT_ELEM_BEGIN) {
            return;
        }
        const QString name = static_cast<ElemBeginEvent*>(event)->GetElementName();
        if (name == QLatin1String("Row")) {
            m_builder.SetElementMaxOccurs(name, m_iRows);
        } else if (name == QLatin1String("Frequency")) {
            m_builder.SetXmlValue(98.5e6);
        } else if (name == QLatin1String("Level")) {
            m_builder.SetXmlValue(-73.5);
        } else if (name == QLatin1String("Station")) {
            m_builder.SetXmlValue(QStringLiteral("Tower & Hill"));
        }
    }

private:
    XmlCreateReport m_builder;
    int m_iRows;
};

double medianMs(const std::function<void()>& work)
{
    QVector<double> times;
    for (int i = 0; i < Repetitions; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.append(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[Repetitions / 2];
}

QDomDocument readReport(const QString& report)
{
    QFile file(report);
    QDomDocument document;
    if (file.open(QIODevice::ReadOnly)) {
        document.setContent(&file);
    }
    return document;
}

void readAndSave(const QString& report, const QString& copy)
{
    const QDomDocument document = readReport(report);
    QFile file(copy);
    if (file.open(QIODevice::WriteOnly)) {
        QTextStream stream(&file);
        document.save(stream, 4);
    }
}

/// Whether every row is there and filled.
bool isRight(const QString& report, int rows)
{
    const QDomDocument document = readReport(report);
    int filled = 0;
    QDomElement row = document.documentElement().firstChildElement(QStringLiteral("Row"));
    for (; !row.isNull(); row = row.nextSiblingElement(QStringLiteral("Row"))) {
        filled += row.text() == QLatin1String("98500000-73.5Tower & Hill") ? 1 : 0;
    }
    return filled == rows;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QTemporaryDir folder;
    const QString schema = folder.filePath(QStringLiteral("scan.xsd"));
    const QString report = folder.filePath(QStringLiteral("scan.xml"));
    QFile file(schema);
    if (!file.open(QIODevice::WriteOnly) || file.write(Schema) < 0) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(schema));
        return 1;
    }
    file.close();

    QVector<int> sizes;
    for (int i = 1; i < argc; ++i) {
        sizes.append(QString::fromLocal8Bit(argv[i]).toInt());
    }
    if (sizes.isEmpty()) {
        sizes = {100, 1000, 10000};
    }
    std::printf("%10s %12s %12s %8s\n", "rows", "report/ms", "floor/ms", "ratio");
    for (const int rows : std::as_const(sizes)) {
        if (!Scanner(rows).Write(schema, report) || !isRight(report, rows)) {
            std::fprintf(stderr, "the report of %d rows is wrong\n", rows);
            return 1;
        }
        const double built = medianMs([&] { Scanner(rows).Write(schema, report); });
        const double floor = medianMs([&] { readAndSave(report, folder.filePath(QStringLiteral("copy.xml"))); });
        std::printf("%10d %12.2f %12.2f %8.2f\n", rows, built, floor, built / floor);
    }
    return 0;
}
