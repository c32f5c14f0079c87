#include <QDomDocument>
#include <QFile>
#include <QTextStream>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/domextent_p.h>
#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/limits_p.h>
#include <xmlhelper/xmlschemahandler.h>

#include "fuzzing.h"
#include "fuzzinput.h"

QT_WARNING_DISABLE_DEPRECATED

// Each part is a schema file; the later ones are there to be included.

namespace {

class SilentObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent*) override { require(false, "reading a schema sends no event"); }
};

struct Result
{
    bool isRead;
    QString skeleton;
};

Result readSchema(const QString& fileName)
{
    SilentObserver observer;
    XmlSchemaHandler handler(&observer, fileName);
    QFile file(fileName);
    QXmlSimpleReader parser;
    parser.setContentHandler(&handler);
    parser.setErrorHandler(&handler);
    const bool isRead = parser.parse(QXmlInputSource(&file));

    const DomExtent extent = extentOf(*handler.GetDocument());
    require(extent.levels <= limits().elementNesting && extent.elements <= limits().elements,
            "a skeleton is within the limits");
    UnresolvedTypeMap unresolved;
    OccursMap occurs;
    TypeDefinitionMap definitions;
    ChoiceMap choices;
    handler.HandOver(unresolved, occurs, definitions, choices);
    require(choices.empty() || choices.rbegin()->first == int(choices.size()) - 1, "choice numbers have no gaps");
    for (const auto& definition : definitions) {
        require(definition.second.fragment && !definition.second.fragment->isNull(), "a definition has a fragment");
    }
    return {isRead, handler.GetDocument()->toString()};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    for (const char* const name : {"schema.xsd", "a.xsd", "b.xsd", "c.xsd"}) {
        const QByteArray schema = input.IsAtEnd() ? QByteArray() : xmlOf(input.Part(), schemaVocabulary());
        if (isRepeatingMuch(schema)) {
            return 0;
        }
        writeScratchFile(QLatin1String(name), schema);
    }
    const Result first = readSchema(scratchFile(QStringLiteral("schema.xsd")));
    const Result second = readSchema(scratchFile(QStringLiteral("schema.xsd")));
    require(first.isRead == second.isRead && first.skeleton == second.skeleton, "a schema reads the same every time");
    return 0;
}
