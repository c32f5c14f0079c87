#include "pageparts.h"

#include <QCryptographicHash>
#include <QFile>

// Resources of a static library have to be asked for, outside of any namespace.
static void initialiseResources()
{
    Q_INIT_RESOURCE(page);
}

namespace schemadoctor {

QString resource(const QString& name)
{
    initialiseResources();
    QFile file(QStringLiteral(":/xmlhelper-schema/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString hashOf(const QString& content)
{
    const QByteArray hash = QCryptographicHash::hash(content.toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("'sha256-%1'").arg(QString::fromLatin1(hash.toBase64()));
}

} // namespace schemadoctor
