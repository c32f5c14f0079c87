#include <arbase/vorndatetime.h>
#include <QDateTime>
#include <QLocale>

namespace {

/// The format with the milliseconds already written into it, so that Qt's own reading of z never comes into play.
/// Digits are no format letters: they pass through Qt unchanged.
QString withMilliseconds(const QString& format, int milliseconds)
{
    const QString counted = QString::number(milliseconds);
    const QString threeDigits = counted.rightJustified(3, QLatin1Char('0'));

    QString result;
    bool quoted = false;
    for (int i = 0; i < format.size(); ++i) {
        const QChar letter = format.at(i);
        if (letter == QLatin1Char('\'')) {
            quoted = !quoted; // A doubled quote stands for itself; it toggles twice.
        }
        if (quoted || letter != QLatin1Char('z')) {
            result += letter;
        } else if (format.mid(i, 3) == QLatin1String("zzz")) {
            result += threeDigits;
            i += 2;
        } else {
            result += counted;
        }
    }
    return result;
}

} // namespace

Vorn::DateTime::DateTime(qint64 time)
    : m_iTime(time)
{
}

QString Vorn::DateTime::toString(const QString& format) const
{
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(m_iTime);
    return QLocale::c().toString(local, withMilliseconds(format, local.time().msec()));
}
