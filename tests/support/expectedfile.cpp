#include "expectedfile.h"

#include <QFile>

QString expectedText(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("(there is no file %1)").arg(fileName);
    }
    QString text = QString::fromUtf8(file.readAll());
    return text.remove(QLatin1Char('\r'));
}

bool isRewritingExpected()
{
    return qEnvironmentVariableIsSet("XMLHELPER_REWRITE_EXPECTED");
}

void rewriteExpected(const QString& fileName, const QString& text)
{
    QFile file(fileName);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(text.toUtf8());
    }
}
