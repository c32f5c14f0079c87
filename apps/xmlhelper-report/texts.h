#ifndef REPORTCHECK_TEXTS_H
#define REPORTCHECK_TEXTS_H

#include <QCoreApplication>

namespace reportcheck {

/// What is said to people goes through Texts::tr(): whole sentences, which a translator can put in another order. What
/// programs read does not: identifiers of rules, keys and words of JSON.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ReportCheck)
};

} // namespace reportcheck

#endif
