#include "includetree.h"

#include "texts.h"

namespace schemadoctor {

namespace {

const char* englishFor(IncludeState state)
{
    switch (state) {
    case IncludeState::Read:
        return QT_TRANSLATE_NOOP("SchemaDoctor", "read");
    case IncludeState::ReadAgain:
        return QT_TRANSLATE_NOOP("SchemaDoctor", "read again");
    case IncludeState::Missing:
        return QT_TRANSLATE_NOOP("SchemaDoctor", "missing");
    case IncludeState::Malformed:
        return QT_TRANSLATE_NOOP("SchemaDoctor", "malformed");
    case IncludeState::Cyclic:
        return QT_TRANSLATE_NOOP("SchemaDoctor", "cyclic, skipped");
    case IncludeState::TooDeep:
        return QT_TRANSLATE_NOOP("SchemaDoctor", "too deep, skipped");
    }
    return "";
}

} // namespace

QString nameOf(IncludeState state)
{
    return QString::fromLatin1(englishFor(state));
}

QString wordsFor(const IncludedFile& file)
{
    const QString words = Texts::tr(englishFor(file.state));
    return file.isOutsideOfFolder ? Texts::tr("%1, outside of the folder").arg(words) : words;
}

} // namespace schemadoctor
