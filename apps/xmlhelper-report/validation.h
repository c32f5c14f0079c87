#ifndef REPORTCHECK_VALIDATION_H
#define REPORTCHECK_VALIDATION_H

#include <vector>

#include <libxml/tree.h>

#include "elementpaths.h"
#include "reportcheck.h"

namespace reportcheck {

struct Validation
{
    bool isDone = false; ///< false: the schema is no schema, or
    bool isStopped = false; ///< there was no more time
    std::vector<Finding> messages; ///< in the validator's words
};

/// Validates a report against a schema file, with libxml2, in a process of its own: a validator can be kept busy for
/// hours by a schema or a report of a few lines. After @p seconds of processor time it is stopped.
Validation validate(xmlDoc* document, const QString& report, const QString& schema, ElementPaths& paths,
                    int seconds = MaxValidationSeconds);

} // namespace reportcheck

#endif
