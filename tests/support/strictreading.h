#ifndef XMLHELPER_TESTS_STRICTREADING_H
#define XMLHELPER_TESTS_STRICTREADING_H

#include <QString>

/// What a parser that follows W3C XML 1.0 to the letter has against the file called @p fileName; empty when it reads
/// it. Qt's SAX and DOM parsers let control characters and names pass that others do not.
QString strictErrorOf(const QString& fileName);

#endif
