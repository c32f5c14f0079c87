#ifndef SCHEMADOCTOR_GRAMMARCHECK_H
#define SCHEMADOCTOR_GRAMMARCHECK_H

#include <QString>
#include <QVector>

#include "model/finding.h"

namespace schemadoctor {

/// What libxml2 has against a schema as a schema.
struct GrammarFault
{
    Place place;
    QString message;
};

/// Lets libxml2's schema parser read a file and what it includes, without a network. The parser runs in a process of
/// its own, which is ended when it needs too long or too much: then there is one fault that says so.
QVector<GrammarFault> grammarFaultsOf(const QString& file);

} // namespace schemadoctor

#endif
