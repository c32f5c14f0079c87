#include "mendfile.h"

#include <QFileInfo>

#include "examine.h"
#include "mendwords.h"
#include "outputfile.h"

namespace schemadoctor {

MendedFile mendInto(const QString& out, const QString& file, const MendOptions& options)
{
    MendedFile result;
    Mending& mending = result.mending;
    mending = mend(file, options);
    if (!mending.refusal.isEmpty()) {
        return result;
    }
    const QFileInfo there(out);
    if (there.exists() && !there.isFile()) {
        mending.refusal = Mend::tr("%1 is no file.").arg(out); // What is written is read again.
    } else if (isFileAmong(out, mending.files)) {
        mending.refusal = Mend::tr("%1 is a file of the schema itself, and is not written over.").arg(out);
    } else {
        mending.refusal = writeOutput(out, mending.text);
    }
    if (mending.refusal.isEmpty()) {
        result.examination = examine(out);
    }
    return result;
}

} // namespace schemadoctor
