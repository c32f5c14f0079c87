#include "peers.h"

std::vector<Peer> peers()
{
    std::vector<Peer> found;
#ifdef XMLHELPER_HAS_LIBXML2
    found.push_back({QStringLiteral("libxml2"),
                     QStringLiteral("libxml2: schema, tree, validation, save"),
                     0.6,
                     {50, 500, 5000, 50000},
                     writeByLibxml2});
#endif
#ifdef XMLHELPER_HAS_XERCES
    found.push_back({QStringLiteral("xerces"),
                     QStringLiteral("Xerces-C: grammar, DOM, serialisation, validation"),
                     0.3,
                     {50, 500, 5000, 50000},
                     writeByXerces});
#endif
#ifdef XMLHELPER_HAS_XMLPATTERNS
    // It overflows its stack with 50,000 elements.
    found.push_back({QStringLiteral("qt-validator"),
                     QStringLiteral("QXmlStreamWriter and QXmlSchemaValidator"),
                     0.2,
                     {50, 500, 5000},
                     writeByXmlPatterns});
#endif
    return found;
}
