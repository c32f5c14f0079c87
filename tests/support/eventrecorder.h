#ifndef XMLHELPER_TESTS_EVENTRECORDER_H
#define XMLHELPER_TESTS_EVENTRECORDER_H

#include <vector>

#include <QDomNode>
#include <QStringList>

#include <xmlhelper/ixmlhelper.h>

class XmlEvent;

/// Writes every event down as one line of text, indented by the nesting of the elements:
///
///     document begins
///       begin a [b="1" c="2"] "text" -> a
///       end a
///     document ends
///     error 15
///
/// Attributes are sorted by name, because their order differs from process to process. The name behind the arrow is
/// that of the event's node, "null" for a null node.
class EventRecorder : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent* event) override;

    /// The lines so far.
    QStringList Lines() const { return m_lines; }
    /// The lines so far as one text that ends with a line feed; empty when there are none.
    QString Text() const;
    /// The nodes of the begin events, in their order.
    const std::vector<QDomNode>& Nodes() const { return m_nodes; }
    /// The identifiers of the error events, in their order.
    const std::vector<int>& Errors() const { return m_errors; }
    void Clear();

private:
    void write(const QString& line);

    QStringList m_lines;
    std::vector<QDomNode> m_nodes;
    std::vector<int> m_errors;
    int m_iIndent = 0;
};

#endif
