#include "names.h"

#include <xmlhelper/xmltext_p.h>

namespace schemadoctor {

QString allowedXmlName(const QString& name)
{
    if (isName(name)) {
        return name;
    }
    QString allowed = name;
    for (QChar& character : allowed) {
        const bool isAllowed = isName(QLatin1Char('_') + QString(character)) || character.isSurrogate();
        character = isAllowed ? character : QLatin1Char('_');
    }
    return isName(allowed) ? allowed : QLatin1Char('_') + allowed;
}

QString capitalised(QString name)
{
    if (!name.isEmpty()) {
        name[0] = name.at(0).toUpper();
    }
    return name;
}

} // namespace schemadoctor
