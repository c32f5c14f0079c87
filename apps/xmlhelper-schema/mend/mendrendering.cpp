#include "mendrendering.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "mendwords.h"
#include "render/jsonrendering.h"
#include "render/textrendering.h"

namespace schemadoctor {

namespace {

QString textOf(const QVector<Rewrite>& rewrites, const QString& heading)
{
    QString text = rewrites.isEmpty() ? QString() : heading + QLatin1Char('\n');
    for (const Rewrite& rewrite : rewrites) {
        text += Mend::tr("%1:%2: %3 -> %4 [%5]\n")
                    .arg(rewrite.place.file)
                    .arg(rewrite.place.line)
                    .arg(rewrite.before, rewrite.after, wordsFor(rewrite.effect));
    }
    return text;
}

/// Why findings remain, and whether the format does.
QString wordsForRest(const Mending& mending, const Examination& result)
{
    QString words;
    if (exitStatusOf(result) != NothingToSay) {
        words = mending.left.isEmpty() ? Mend::tr("The mender knows no way of writing without these findings; another "
                                                  "root or number of levels may help.\n")
                                       : Mend::tr("More can be mended where the format may change.\n");
    }
    return mending.isFormatLost ? words + Mend::tr("The format is not kept: what changes it cannot be left as it is.\n")
                                : words;
}

QJsonArray jsonOf(const QVector<Rewrite>& rewrites)
{
    QJsonArray all;
    for (const Rewrite& rewrite : rewrites) {
        all.append(QJsonObject {
            {QStringLiteral("file"), rewrite.place.file},
            {QStringLiteral("line"), rewrite.place.line},
            {QStringLiteral("before"), rewrite.before},
            {QStringLiteral("after"), rewrite.after},
            {QStringLiteral("staysValid"), rewrite.effect == RewriteEffect::StaysValid},
            {QStringLiteral("effect"), wordsFor(rewrite.effect)},
        });
    }
    return all;
}

} // namespace

QString textOf(const Mending& mending, const Examination& result)
{
    if (!mending.refusal.isEmpty()) {
        return mending.refusal + QLatin1Char('\n');
    }
    const QString none = mending.rewrites.isEmpty() ? Mend::tr("Nothing is written otherwise.\n") : QString();
    return none + textOf(mending.rewrites, Mend::tr("Written otherwise:"))
        + textOf(mending.left, Mend::tr("Left as it is, because it would change the format:"))
        + Mend::tr("\nThe mended schema:\n") + findingsTextOf(result) + wordsForRest(mending, result);
}

QByteArray jsonOf(const Mending& mending, const Examination& result)
{
    const QJsonObject object {
        {QStringLiteral("refusal"), mending.refusal},
        {QStringLiteral("rewrites"), jsonOf(mending.rewrites)},
        {QStringLiteral("left"), jsonOf(mending.left)},
        {QStringLiteral("formatLost"), mending.isFormatLost},
        {QStringLiteral("result"), mending.refusal.isEmpty() ? QJsonValue(jsonObjectOf(result)) : QJsonValue()},
    };
    return QJsonDocument(object).toJson();
}

} // namespace schemadoctor
