#ifndef XMLHELPER_TESTS_DOMTEXT_H
#define XMLHELPER_TESTS_DOMTEXT_H

#include <QDomDocument>
#include <QString>

/// A document made of @p xml; a null one when it is malformed.
QDomDocument documentOf(const QString& xml);

/// The document in the file called @p fileName; a null one when there is none.
QDomDocument documentInFile(const QString& fileName);

/// @p node and everything below it as indented text with sorted attributes, so that equal content gives equal text
/// whatever the order of Qt's attributes is:
///
///     <a b="1" c="2">
///       "text"
///       <d/>
///     </a>
QString domText(const QDomNode& node);

#endif
