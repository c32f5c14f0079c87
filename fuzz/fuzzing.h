#ifndef XMLHELPER_FUZZ_FUZZING_H
#define XMLHELPER_FUZZ_FUZZING_H

#include <QByteArray>
#include <QDomDocument>
#include <QString>

// What the fuzz targets share. Each target is one function, LLVMFuzzerTestOneInput(), and is linked into two programs:
// fuzz_<target>, which libFuzzer drives, and replay_<target>, which runs the inputs of given folders.

/// Ends the process, with the rule that does not hold.
void require(bool holds, const char* rule);

/// A file of that name in a folder that lives as long as the process.
QString scratchFile(const QString& name);
/// Writes the file; one without content is removed.
void writeScratchFile(const QString& name, const QByteArray& content);

/// The document in a file that the library has written. Its content must be XML when @p isDue.
QDomDocument readBack(const QString& fileName, bool isDue);

/// Whether a schema or an observer has left names and texts at and below @p node that every parser takes.
bool isXml(const QDomNode& node);
bool isXmlName(const QString& name);
/// Whether XML may allow the name and Qt's parsers still not read it: they know the names of earlier editions.
bool isDisputedName(const QString& name);
/// What XML can carry of @p text.
QString xmlText(const QString& text);

/// Whether a schema repeats elements so often that laying it out takes longer than a fuzzer should wait: the limits
/// themselves are tested elsewhere.
bool isRepeatingMuch(const QByteArray& schema);

struct Vocabulary;
/// What generated schemas are made of.
const Vocabulary& schemaVocabulary();

#endif
