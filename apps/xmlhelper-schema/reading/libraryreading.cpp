#include "libraryreading.h"

#include <QFile>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/documentfile.h>
#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/xmlschemahandler.h>

QT_WARNING_DISABLE_DEPRECATED

namespace schemadoctor {

namespace {

/// Schema reading asks for an observer and sends it nothing.
class SilentObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent*) override { }
};

class FaultRecorder : public QXmlDefaultHandler
{
public:
    bool fatalError(const QXmlParseException& exception) override
    {
        message = exception.message();
        line = exception.lineNumber();
        return false;
    }

    QString message;
    int line = 0;
};

IXMLHelper* observer()
{
    static SilentObserver silent;
    return &silent;
}

} // namespace

LibraryReading::LibraryReading(const QString& file)
{
    const QString schemaPath = QString(file).replace(QLatin1Char('\\'), QLatin1Char('/'));
    m_handler = std::make_unique<XmlSchemaHandler>(observer(), schemaPath);
    FaultRecorder faults;
    QFile device(openableFileName(file));
    const QXmlInputSource source(&device);
    QXmlSimpleReader reader;
    reader.setContentHandler(m_handler.get());
    reader.setErrorHandler(&faults);
    m_isParsed = reader.parse(source);
    m_fault = faults.message;
    m_faultLine = faults.line;
    m_handler->HandOver(m_unresolvedTypes, m_occurs, m_definitions, m_choices);
}

LibraryReading::~LibraryReading() = default;

QDomElement LibraryReading::GetRoot() const
{
    return m_handler->GetDocument()->documentElement();
}

} // namespace schemadoctor
