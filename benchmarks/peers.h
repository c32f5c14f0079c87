#ifndef XMLHELPER_BENCHMARKS_PEERS_H
#define XMLHELPER_BENCHMARKS_PEERS_H

#include <functional>
#include <vector>

#include <QString>

#include "inputs.h"

/// What a report is made of.
struct PeerInput
{
    QString schema; ///< the schema file
    QString report; ///< the file to write
    std::vector<ReportElement> elements;
};

/// A library that can do the whole job: read a schema, make a report, validate and write it.
struct Peer
{
    QString name;
    QString description;
    double target; ///< the library's time as a share of the peer's
    std::vector<int> sizes; ///< that it survives
    std::function<bool(const PeerInput&)> write; ///< gives whether the report is valid and written
};

/// Those that were found when the program was configured.
std::vector<Peer> peers();

#ifdef XMLHELPER_HAS_LIBXML2
bool writeByLibxml2(const PeerInput& input);
#endif
#ifdef XMLHELPER_HAS_XERCES
bool writeByXerces(const PeerInput& input);
#endif
#ifdef XMLHELPER_HAS_XMLPATTERNS
bool writeByXmlPatterns(const PeerInput& input);
#endif

#endif
