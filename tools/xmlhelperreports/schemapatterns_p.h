#ifndef XMLHELPERREPORTS_SCHEMAPATTERNS_P_H
#define XMLHELPERREPORTS_SCHEMAPATTERNS_P_H

#include <QSet>
#include <QString>

/// The patterns of a schema, and of what it includes, that stand beside others in one restriction. A text has to match
/// one of them, and the skeleton holds the last alone.
QSet<QString> patternsBesideOthers(const QString& schema);

#endif
