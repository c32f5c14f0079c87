#ifndef XMLHELPER_SCHEMAFAULT_P_H
#define XMLHELPER_SCHEMAFAULT_P_H

#include <array>
#include <vector>

#include <QCoreApplication>
#include <QString>

#include "schemareadinglog_p.h"

/// Hears why a schema is not understood.
///
/// A schema may be at fault in several places, and some faults are none by themselves: the reading goes on without an
/// included file. What ends the reading counts most; then a file that lacks, since what never comes stands there
/// mostly.
class SchemaFault : public SchemaReadingLog
{
    Q_DECLARE_TR_FUNCTIONS(SchemaFault)

public:
    /// The sentence for a schema that was not understood; of several that weigh the same, the first.
    QString GetReason() const;

    bool HearsLayout() const override { return false; }
    void FileBegun(int file, const QString& written, const QString& opened, const SchemaTag& include,
                   bool isAgain) override;
    void FileSkipped(const QString& written, const QString& opened, const SchemaTag& include, bool isCyclic) override;
    void FileMissing(int file) override;
    void FileMalformed(int file, const QString& fault, int line) override;
    void GlobalLeftOut(const QString& name, const SchemaTag& tag) override;
    void NameRefused(const QString& name, const SchemaTag& tag) override;
    void Refused(const QString& sentence, qint64 asked, qint64 inForce, qint64 greatest) override;
    void ContentRefused(const QString& sentence) override;
    void ReferenceNeverCame(const QString& name, const SchemaTag& reference, const QString& waiting,
                            bool isDefined) override;

private:
    /// How much a fault explains, the most first.
    enum Weight { EndOfReading, IncludedFile, Reference, LeftOut, Weights };

    void tell(Weight weight, const QString& sentence);

    std::vector<QString> m_files; ///< that have been begun, as they were opened
    std::array<QString, Weights> m_sentences; ///< the first of each weight
};

#endif
