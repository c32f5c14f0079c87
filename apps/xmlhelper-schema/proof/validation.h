#ifndef SCHEMADOCTOR_VALIDATION_H
#define SCHEMADOCTOR_VALIDATION_H

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

class QDataStream;

namespace schemadoctor {

/// What libxml2 has against a report.
struct ValidityError
{
    int report = 0; ///< which of those that were validated, from 0
    QStringList names; ///< of the element and those around it, the root first
    bool isOfContent = false; ///< an element is missing or misplaced: told at the one that is there instead
    QString sentence;
};

QDataStream& operator<<(QDataStream& stream, const ValidityError& error);
QDataStream& operator>>(QDataStream& stream, ValidityError& error);

/// Validates reports against a schema file and the files that it includes, without a network. Gives false when the
/// schema cannot be compiled. Of each report the first 100 errors are kept.
bool validate(const QString& schema, const QVector<QByteArray>& reports, QVector<ValidityError>& errors);

} // namespace schemadoctor

#endif
