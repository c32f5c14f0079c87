#ifndef XMLHELPER_BENCHMARKS_BAREDOM_H
#define XMLHELPER_BENCHMARKS_BAREDOM_H

#include <vector>

#include <QDomDocument>
#include <QString>

struct ReportElement;

/// Saves a document as the library does, with nothing but Qt: serialised into a string, and one write.
bool saveAtOnce(const QDomDocument& document, const QString& path);

/// Makes the report of @p elements with nothing but Qt's DOM, as the report builder would leave it.
QDomDocument buildReport(const std::vector<ReportElement>& elements, const QString& schema);

#endif
