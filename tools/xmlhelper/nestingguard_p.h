#ifndef XMLHELPER_NESTINGGUARD_P_H
#define XMLHELPER_NESTINGGUARD_P_H

#include <QXmlDefaultHandler>

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // The SAX classes: Qt keeps them, with a warning.

/// Stands between the SAX parser and a content handler and fails the parse when elements are nested too deep,
/// because Qt recurses over the levels of such content until the stack is gone.
class NestingGuard : public QXmlDefaultHandler
{
public:
    /// @param handler  receives everything within the limit; not owned
    explicit NestingGuard(QXmlContentHandler* handler);

    /// Whether the content parsed last was nested too deep.
    bool IsExceeded() const { return m_bExceeded; }

    bool startDocument() override;
    bool endDocument() override;
    bool startElement(const QString& namespaceURI, const QString& localName, const QString& qName,
                      const QXmlAttributes& attributes) override;
    bool endElement(const QString& namespaceURI, const QString& localName, const QString& qName) override;
    bool characters(const QString& ch) override;

private:
    Q_DISABLE_COPY(NestingGuard)

    QXmlContentHandler* m_pHandler;
    int m_iNesting;
    bool m_bExceeded;
};

QT_WARNING_POP

#endif
