#include <QDomDocument>
#include <QFile>

#include <mend/mend.h>

#include "fuzzing.h"
#include "fuzzinput.h"

// Each part is a schema file; the later ones are there to be included. The doctor is asked by the mending.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    for (const char* const name : {"schema.xsd", "a.xsd", "b.xsd", "c.xsd"}) {
        const QByteArray schema = input.IsAtEnd() ? QByteArray() : xmlOf(input.Part(), schemaVocabulary());
        if (isRepeatingMuch(schema)) {
            return 0;
        }
        writeScratchFile(QLatin1String(name), schema);
    }
    const schemadoctor::Mending first = schemadoctor::mend(scratchFile(QStringLiteral("schema.xsd")));
    require(first.refusal.isEmpty() != first.text.isEmpty(), "a schema is either mended or refused");
    if (first.refusal.isEmpty()) {
        require(QDomDocument().setContent(first.text), "a mended schema is XML");
        writeScratchFile(QStringLiteral("mended.xsd"), first.text);
        const schemadoctor::Mending second = schemadoctor::mend(scratchFile(QStringLiteral("mended.xsd")));
        require(second.text == first.text, "mending twice changes nothing");
    }
    return 0;
}
