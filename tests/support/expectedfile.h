#ifndef XMLHELPER_TESTS_EXPECTEDFILE_H
#define XMLHELPER_TESTS_EXPECTEDFILE_H

#include <QString>
#include <QtTest>

/// The text of the file called @p fileName.
QString expectedText(const QString& fileName);

/// Whether expected files are to be rewritten (XMLHELPER_REWRITE_EXPECTED is set), for a person to review the
/// difference.
bool isRewritingExpected();

/// Writes @p text to the file called @p fileName.
void rewriteExpected(const QString& fileName, const QString& text);

/// Compares @p actual with the text of an expected file; rewrites the file instead while scripts/rewrite-expected runs.
#define COMPARE_WITH_FILE(actual, fileName)                                                                            \
    do {                                                                                                               \
        if (isRewritingExpected()) {                                                                                   \
            rewriteExpected(fileName, actual);                                                                         \
        }                                                                                                              \
        QCOMPARE(actual, expectedText(fileName));                                                                      \
    } while (false)

#endif
