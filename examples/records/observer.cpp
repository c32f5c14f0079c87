// Fills a report with a repeating container as the observer of a report builder.
//
// usage: records_observer SCHEMA REPORT

#include <QCoreApplication>
#include <QXmlAttributes>

#include <xmlhelper/xmlhelper.h>

#include "records.h"

namespace {

class RecordsObserver : public IXMLHelper
{
public:
    RecordsObserver()
        : m_builder(this)
        , m_records(records())
    {
    }

    bool Write(const QString& schema, const QString& report)
    {
        return m_builder.CreateXmlFromSchema(schema, report, false);
    }

    void XmlUpdate(XmlEvent* event) override
    {
        // Errors of the walk about the container arrive here too: they mean nothing.
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            answer(static_cast<ElemBeginEvent*>(event)->GetElementName());
        }
    }

private:
    void answer(const QString& name)
    {
        if (name == QLatin1String("Station")) {
            m_builder.SetXmlValue(QStringLiteral("Tower"));
        } else if (name == QLatin1String("Emission")) {
            // The copies are made at once, the element is announced again, then each copy: the builder passes over the
            // calls that these announcements bring, because no other name was multiplied in between.
            m_builder.SetElementMaxOccurs(name, int(m_records.size()));
        } else if (name == QLatin1String("Frequency")) {
            ++m_record; // The first child that every copy has tells the copies apart.
            m_builder.SetAttributeValue(QStringLiteral("Unit"), QStringLiteral("Hz"));
            m_builder.SetXmlValue(m_records[m_record - 1].frequency);
        } else if (name == QLatin1String("Level")) {
            m_builder.SetXmlValue(m_records[m_record - 1].level);
        } else if (name == QLatin1String("Remark")) {
            // Optional, and removed by the walk from the first copy only: set it in every copy.
            m_builder.SetXmlValue(m_records[m_record - 1].remark);
        } else if (name == QLatin1String("Operator")) {
            // Repeated values need nothing but a count, and a value at each announcement.
            m_builder.SetElementMaxOccurs(name, 2);
            m_builder.SetXmlValue(++m_operator == 1 ? QStringLiteral("Ada") : QStringLiteral("Ben"));
        }
    }

    XmlCreateReport m_builder;
    const std::vector<Record> m_records;
    std::size_t m_record = 0; ///< the number of the one that is being filled
    int m_operator = 0;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    return arguments.size() == 3 && RecordsObserver().Write(arguments.at(1), arguments.at(2)) ? 0 : 1;
}
