#ifndef REPORTCHECK_VALIDATION_H
#define REPORTCHECK_VALIDATION_H

#include <vector>

#include <libxml/tree.h>

#include "elementpaths.h"
#include "reportcheck.h"

namespace reportcheck {

struct Validation
{
    bool isDone = false; ///< false: the schema is no schema
    std::vector<Finding> messages; ///< in the validator's words
};

/// Validates a report against a schema file, with libxml2.
Validation validate(xmlDoc* document, const QString& report, const QString& schema, ElementPaths& paths);

} // namespace reportcheck

#endif
