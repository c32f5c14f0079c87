#ifndef XMLHELPER_XMLTEXT_P_H
#define XMLHELPER_XMLTEXT_P_H

#include <QString>

// What W3C XML 1.0 can say. Qt's DOM takes and saves everything else too, and no parser reads such a file back, so
// every text and every name that comes from outside passes one of these on its way into a document.

/// What XML can carry of @p text, in an element or an attribute (section 2.2, Char). A report is not lost for a stray
/// character: the other ones, which are control characters, halves of surrogate pairs, U+FFFE and U+FFFF, are dropped.
/// That is traced with @p place, which says where the text was to go. Nearly every text is given back as it is, without
/// a copy.
QString representableText(const QString& text, const char* place);

/// Whether XML can carry all of @p text.
bool isRepresentableText(const QString& text);

/// Whether @p name is one that XML allows (section 2.3, Name).
bool isName(const QString& name);

/// Whether XML allows @p name for an element or an attribute (section 2.3, Name). Nothing can be kept of one that it
/// does not, because a name that differs is another name: the caller refuses it. That is traced with @p place.
bool isRepresentableName(const QString& name, const char* place);

#endif
