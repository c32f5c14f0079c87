#ifndef XMLHELPER_LIMITS_P_H
#define XMLHELPER_LIMITS_P_H

#include <limits>

#include <QtGlobal>

/// What one content, schema or document may ask for: the limits that protect the process that loads the library.
///
/// Each refusal traces one sentence that names the limit. The values given here are the library's; a test, a tool or
/// any other program built with the library's sources may work with smaller ones by LimitsInForce.
struct Limits
{
    /// Nesting of elements in XML content, in schemas and in what schemas lay out. Qt recurses over the levels of a
    /// document when it reads, clones and deletes one, and the stack of a Windows main thread ends below 1,000 levels.
    int elementNesting = 512;

    /// Tags that may be open at once in all files of an include chain: the parser recurses over them, so the limit of
    /// each file does not protect the stack when deep places include each other.
    int openTags = 1024;

    /// Elements of one document, laid out by a schema or made by copying.
    int elements = 500000;

    /// Elements laid out while one schema is read, all its definitions together.
    int elementsOfAllDefinitions = 2000000;

    /// Of these, elements laid out in named types. Types that double each other hold, all together, twice what the
    /// greatest one holds, before that reaches the limit of a document.
    int elementsOfNamedTypes = 600000;

    /// Attributes that a schema gives to elements by copying, in all its definitions together, and those of one
    /// document when elements are copied. Each takes as much memory as an element.
    int attributes = 2000000;

    /// Values of one enumeration. Each becomes an attribute.
    int enumerationValues = 100000;

    /// Values of enumerations that a schema gives to elements by copying, in all its definitions together. Qt needs
    /// some 400 bytes for each.
    int copiedEnumerationValues = 500000;

    /// Schema files read for one report, repeated reads of a file and missing ones included.
    int schemaFiles = 1000;

    /// Bytes of these files. The library itself reads them however long they are: the text is not what costs.
    qint64 schemaBytes = std::numeric_limits<qint64>::max();

    /// Schema files that may be open at once, each included by the one before it.
    int includeDepth = 64;

    /// Error events of a builder that may be under way, each sent while the one before it is answered. Each is an
    /// answer that was refused; an observer that answers every refusal with the same value would use up the stack.
    int nestedErrors = 100;

    /// Error events sent while an outermost one is answered: an observer that answers each refusal with two calls would
    /// otherwise be answered for years.
    int errorsWithinOne = 1000000;

    /// Steps of work for the calls that multiply elements of one document, each of which has its element announced
    /// again: 30 for a call, 15 for an attribute of the element, 1 for a level above it and for an element measured to
    /// be copied. It is enough to multiply each element of the greatest document, and takes some seconds.
    int multiplyingSteps = 60000000;

    /// Nodes of a document that a walk looks at again because an observer has changed something, before it looks at
    /// only so many as are in proportion to the walk.
    int nodesLookedAtAgain = 1000000;

    /// Bytes of a saved document.
    qint64 savedBytes = qint64(256) * 1024 * 1024;

    /// Characters that the references to entities of one content or schema become, all together. Qt replaces them
    /// without end.
    int expandedCharacters = 2000000;

    /// Entities declared by the document type of one content or schema. Qt compares each with all others.
    int entities = 1000;

    /// Parentheses of a content model in a document type that are open at once. Qt recurses over them.
    int contentModelNesting = 512;
};

/// The limits in force on this thread.
const Limits& limits();

/// Puts other limits in force on its thread while it lives. They may be nested; the innermost counts.
class LimitsInForce
{
public:
    explicit LimitsInForce(const Limits& limits);
    ~LimitsInForce();

private:
    Q_DISABLE_COPY(LimitsInForce)

    const Limits m_limits;
    const Limits* const m_pOuter;
};

#endif
