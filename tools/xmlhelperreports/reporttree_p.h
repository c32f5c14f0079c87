#ifndef XMLHELPERREPORTS_REPORTTREE_P_H
#define XMLHELPERREPORTS_REPORTTREE_P_H

#include <vector>

#include <QByteArray>
#include <QCoreApplication>
#include <QPair>
#include <QString>
#include <QVector>

/// An element of a report that has been read.
struct ReportNode
{
    QString name;
    QVector<QPair<QString, QString>> attributes; ///< without those of XML Schema and of namespaces
    QString text; ///< its own, without blanks around it
    std::vector<ReportNode> children;

    QString Attribute(const QString& attribute) const; ///< null when there is none
};

/// Reads a report for who shows it: within the limits of the library, without a document type, and so without
/// entities.
class ReportTree
{
    Q_DECLARE_TR_FUNCTIONS(ReportPage)

public:
    bool Read(const QString& fileName);
    bool ReadContent(const QByteArray& content); ///< of a file

    const ReportNode& GetRoot() const { return m_root; }
    const QString& GetReason() const { return m_sReason; } ///< why it could not be read, in a sentence

private:
    class Reader;
    static QString beyondLimits();

    ReportNode m_root;
    QString m_sReason;
};

#endif
