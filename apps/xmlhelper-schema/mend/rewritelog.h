#ifndef SCHEMADOCTOR_REWRITELOG_H
#define SCHEMADOCTOR_REWRITELOG_H

#include <set>
#include <tuple>

#include <QVector>

#include "reading/schematext.h"
#include "rewrite.h"

namespace schemadoctor {

/// Keeps what is rewritten, and what is not because the format is to be kept. What is read several times is told once.
class RewriteLog
{
public:
    explicit RewriteLog(bool isFormatKept)
        : m_isFormatKept(isFormatKept)
    {
    }

    bool IsFormatKept() const { return m_isFormatKept; }

    /// Tells a rewrite that allows nothing new.
    void Narrow(const TextNode& tag, const QString& before, const QString& after);

    /// Tells a rewrite that allows what the original does not. Gives false when it must not be made.
    bool Change(const TextNode& tag, const QString& before, const QString& after);

    /// Tells a rewrite that allows what the original does not, and that is made all the same: what it rewrites can be
    /// written in no other way.
    void Lose(const TextNode& tag, const QString& before, const QString& after);

    /// In the order of files and lines.
    QVector<Rewrite> GetRewrites() const { return sorted(m_rewrites); }
    QVector<Rewrite> GetLeft() const { return sorted(m_left); } ///< what would have changed the format

private:
    bool isNew(const Rewrite& rewrite);
    static QVector<Rewrite> sorted(QVector<Rewrite> rewrites);

    const bool m_isFormatKept;
    QVector<Rewrite> m_rewrites;
    QVector<Rewrite> m_left;
    std::set<std::tuple<QString, int, QString, QString>> m_told;
};

} // namespace schemadoctor

#endif
