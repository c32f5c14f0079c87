#ifndef XMLHELPER_LANGUAGE_H
#define XMLHELPER_LANGUAGE_H

#include <QStringList>

/// Speaks a language from now on, in the application that there is. Call it before anything is said.
///
/// @param catalogues  by their names without language, such as SchemaDoctor for SchemaDoctor_de.qm
/// @param language    by its code, such as "de"; empty for that of the user's system, or English where that is unknown
/// @return false when a language was given that there are no texts in
bool speak(const QStringList& catalogues, const QString& language);

#endif
