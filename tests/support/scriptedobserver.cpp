#include "scriptedobserver.h"

#include <utility>

#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/errorevent.h>

void ScriptedObserver::OnElement(const QString& name, ElementScript script)
{
    m_scripts[name] = std::move(script);
}

void ScriptedObserver::OnEveryElement(ElementScript script)
{
    m_everyElement = std::move(script);
}

void ScriptedObserver::OnError(ErrorScript script)
{
    m_error = std::move(script);
}

void ScriptedObserver::XmlUpdate(XmlEvent* event)
{
    m_recorder.XmlUpdate(event);
    if (event->GetType() == XmlEvent::EVENT_ELEM_BEGIN) {
        auto& begin = static_cast<ElemBeginEvent&>(*event);
        m_log.append(begin.GetElementName());
        if (m_everyElement) {
            m_everyElement(begin);
        }
        const auto script = m_scripts.find(begin.GetElementName());
        if (script != m_scripts.end()) {
            script->second(begin);
        }
    } else if (event->GetType() == XmlEvent::EVENT_ERROR) {
        const int id = static_cast<ErrorEvent&>(*event).GetErrorID();
        m_log.append(QStringLiteral("error %1").arg(id));
        if (m_error) {
            m_error(id);
        }
    }
}
