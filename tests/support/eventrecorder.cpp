#include "eventrecorder.h"

#include <algorithm>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/elemendevent.h>
#include <xmlhelper/errorevent.h>

QT_WARNING_DISABLE_DEPRECATED

namespace {

QString attributesText(const QXmlAttributes& attributes)
{
    QStringList texts;
    for (int i = 0; i < attributes.count(); ++i) {
        texts.append(QStringLiteral("%1=\"%2\"").arg(attributes.qName(i), attributes.value(i)));
    }
    texts.sort();
    return texts.join(QLatin1Char(' '));
}

} // namespace

void EventRecorder::XmlUpdate(XmlEvent* event)
{
    switch (event->GetType()) {
    case XmlEvent::EVENT_NONE:
        write(QStringLiteral("none"));
        break;
    case XmlEvent::EVENT_DOC_BEGIN:
        write(QStringLiteral("document begins"));
        ++m_iIndent;
        break;
    case XmlEvent::EVENT_DOC_END:
        m_iIndent = 0;
        write(QStringLiteral("document ends"));
        break;
    case XmlEvent::EVENT_ELEM_BEGIN: {
        auto* const begin = static_cast<ElemBeginEvent*>(event);
        const QDomNode node = begin->GetElementNode();
        m_nodes.push_back(node);
        write(QStringLiteral("begin %1 [%2] \"%3\" -> %4")
                  .arg(begin->GetElementName(), attributesText(begin->GetElementAttributes()), begin->GetElementText(),
                       node.isNull() ? QStringLiteral("null") : node.nodeName()));
        ++m_iIndent;
        break;
    }
    case XmlEvent::EVENT_ELEM_END:
        m_iIndent = std::max(0, m_iIndent - 1);
        write(QStringLiteral("end %1").arg(static_cast<ElemEndEvent*>(event)->GetElementName()));
        break;
    case XmlEvent::EVENT_ERROR: {
        const int id = static_cast<ErrorEvent*>(event)->GetErrorID();
        m_errors.push_back(id);
        write(QStringLiteral("error %1").arg(id));
        break;
    }
    }
}

QString EventRecorder::Text() const
{
    return m_lines.isEmpty() ? QString() : m_lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void EventRecorder::Clear()
{
    *this = EventRecorder();
}

void EventRecorder::write(const QString& line)
{
    m_lines.append(QString(2 * m_iIndent, QLatin1Char(' ')) + line);
}
