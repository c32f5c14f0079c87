#ifndef SCHEMADOCTOR_TEXTS_H
#define SCHEMADOCTOR_TEXTS_H

#include <QCoreApplication>

namespace schemadoctor {

/// What is said to people goes through Texts::tr(): whole sentences, which a translator can put in another order. What
/// programs read does not: identifiers of rules, keys and words of JSON.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SchemaDoctor)
};

} // namespace schemadoctor

#endif
