#include "rewritelog.h"

#include <algorithm>

namespace schemadoctor {

void RewriteLog::Narrow(const TextNode& tag, const QString& before, const QString& after)
{
    const Rewrite rewrite {tag.GetPlace(), before, after, RewriteEffect::StaysValid};
    if (isNew(rewrite)) {
        m_rewrites.append(rewrite);
    }
}

bool RewriteLog::Change(const TextNode& tag, const QString& before, const QString& after)
{
    const Rewrite rewrite {tag.GetPlace(), before, after, RewriteEffect::ChangesFormat};
    if (isNew(rewrite)) {
        (m_isFormatKept ? m_left : m_rewrites).append(rewrite);
    }
    return !m_isFormatKept;
}

void RewriteLog::Lose(const TextNode& tag, const QString& before, const QString& after)
{
    const Rewrite rewrite {tag.GetPlace(), before, after, RewriteEffect::ChangesFormat};
    if (isNew(rewrite)) {
        m_rewrites.append(rewrite);
    }
}

bool RewriteLog::isNew(const Rewrite& rewrite)
{
    return m_told.emplace(rewrite.place.file, rewrite.place.line, rewrite.before, rewrite.after).second;
}

QVector<Rewrite> RewriteLog::sorted(QVector<Rewrite> rewrites)
{
    std::stable_sort(rewrites.begin(), rewrites.end(), [](const Rewrite& left, const Rewrite& right) {
        return std::tie(left.place.file, left.place.line) < std::tie(right.place.file, right.place.line);
    });
    return rewrites;
}

} // namespace schemadoctor
