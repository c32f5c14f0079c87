#ifndef XMLHELPER_TESTS_SCRIPTEDOBSERVER_H
#define XMLHELPER_TESTS_SCRIPTEDOBSERVER_H

#include <functional>
#include <map>

#include "eventrecorder.h"

class ElemBeginEvent;

/// An observer that answers: it runs a script, from inside the event, when an element of a given name begins, and one
/// for errors, and records everything like an EventRecorder. Unlike there, what the walk of a skeleton announces is not
/// indented, since no end events come.
class ScriptedObserver : public IXMLHelper
{
public:
    using ElementScript = std::function<void(ElemBeginEvent& event)>;
    using ErrorScript = std::function<void(int errorID)>;

    /// What to do each time an element called @p name begins; replaces an earlier script for the name.
    void OnElement(const QString& name, ElementScript script);
    /// What to do each time any element begins, before the script for its name.
    void OnEveryElement(ElementScript script);
    /// What to do for each error event.
    void OnError(ErrorScript script);

    void XmlUpdate(XmlEvent* event) override;

    /// The names of the elements that began and "error N" for errors, in their order.
    QStringList Log() const { return m_log; }
    const std::vector<int>& Errors() const { return m_recorder.Errors(); }
    const EventRecorder& Recorder() const { return m_recorder; }

private:
    std::map<QString, ElementScript> m_scripts;
    ElementScript m_everyElement;
    ErrorScript m_error;
    QStringList m_log;
    EventRecorder m_recorder;
};

#endif
