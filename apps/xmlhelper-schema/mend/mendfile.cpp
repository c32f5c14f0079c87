#include "mendfile.h"

#include <algorithm>

#include <QFileInfo>
#include <QSaveFile>

#include "examine.h"
#include "mendwords.h"

namespace schemadoctor {

namespace {

/// Whether both names lead to one file, by whatever links.
bool isSameFile(const QString& left, const QString& right)
{
    const QString path = QFileInfo(left).canonicalFilePath();
    return !path.isEmpty() && path == QFileInfo(right).canonicalFilePath();
}

/// Gives why the text cannot be written; empty when it was.
QString write(const QString& out, const QByteArray& text)
{
    QSaveFile file(out);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
    return isWritten ? QString() : QStringLiteral("%1: %2").arg(out, file.errorString());
}

} // namespace

MendedFile mendInto(const QString& out, const QString& file, const MendOptions& options)
{
    MendedFile result;
    Mending& mending = result.mending;
    mending = mend(file, options);
    if (!mending.refusal.isEmpty()) {
        return result;
    }
    if (std::any_of(mending.texts.begin(), mending.texts.end(),
                    [&out](const auto& read) { return isSameFile(out, read.first); })) {
        mending.refusal = Mend::tr("%1 is a file of the schema itself, and is not written over.").arg(out);
        return result;
    }
    mending.refusal = write(out, mending.text);
    if (mending.refusal.isEmpty()) {
        result.examination = examine(out);
    }
    return result;
}

} // namespace schemadoctor
