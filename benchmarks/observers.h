#ifndef XMLHELPER_BENCHMARKS_OBSERVERS_H
#define XMLHELPER_BENCHMARKS_OBSERVERS_H

#include <array>

#include <QDomElement>

#include <xmlhelper/xmlhelper.h>

#include "inputs.h"

/// Takes events and does nothing with them but count.
class CountingObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override { ++m_counts[static_cast<size_t>(event->GetType())]; }

    int Count(XmlEvent::type type) const { return m_counts[static_cast<size_t>(type)]; }
    const std::array<int, 6>& Counts() const { return m_counts; }

private:
    std::array<int, 6> m_counts = {};
};

/// Remembers the element that was announced last.
class LastElementObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override
    {
        if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
            m_element = static_cast<ElemBeginEvent*>(event)->GetElementNode().toElement();
        }
    }

    const QDomElement& Element() const { return m_element; }

private:
    QDomElement m_element;
};

/// Which values of a schema are filled.
enum class Filling { Unfilled, HalfFilled, Filled };

/// Makes a report as a module would that knows its values by name: every value, every second one or none is filled.
class ReportFiller final : public CountingObserver
{
public:
    explicit ReportFiller(Filling filling = Filling::Filled)
        : m_builder(this)
        , m_filling(filling)
    {
    }

    bool Write(const QString& schema, const QString& report)
    {
        return m_builder.CreateXmlFromSchema(schema, report, false);
    }

    void XmlUpdate(XmlEvent* event) override
    {
        CountingObserver::XmlUpdate(event);
        if (m_filling == Filling::Unfilled || event->GetType() != XmlEvent::EVENT_ELEM_BEGIN) {
            return;
        }
        const QString name = static_cast<ElemBeginEvent*>(event)->GetElementName();
        if (isValueName(name) && (m_filling == Filling::Filled || ++m_values % 2 == 0)) {
            fill(kindOf(name));
        }
    }

private:
    void fill(const ValueKind& kind)
    {
        switch (kind.type.at(0).unicode()) {
        case u'd':
            m_builder.SetXmlValue(kind.number);
            break;
        case u'i':
            m_builder.SetXmlValue(static_cast<int>(kind.number));
            break;
        case u's':
            m_builder.SetXmlValue(kind.text);
            break;
        default:
            m_builder.SetXmlValue(true);
        }
    }

    XmlCreateReport m_builder;
    Filling m_filling;
    int m_values = 0;
};

#endif
