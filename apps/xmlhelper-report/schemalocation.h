#ifndef REPORTCHECK_SCHEMALOCATION_H
#define REPORTCHECK_SCHEMALOCATION_H

#include <QString>

namespace reportcheck {

/// Where a report says that its schema is, and where that leads from here.
struct SchemaLocation
{
    QString written; ///< in the report; empty when it names none
    QString foundFile; ///< the file it leads to; empty when there is none
    bool isGiven = false; ///< the caller has given a schema, which is taken instead
};

/// Looks for a schema as written, in the folder of the report and in the working folder. The location is a path, as the
/// library writes it, or a URL of a file.
/// @return the file, or nothing
QString findSchema(const QString& written, const QString& report);

} // namespace reportcheck

#endif
