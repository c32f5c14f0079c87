#ifndef XMLHELPER_CONTENTFILE_P_H
#define XMLHELPER_CONTENTFILE_P_H

#include <QFile>

/// A file whose content is read. It is found by openableFileName(), and opens only if it is a regular file: opening a
/// pipe waits for its writer, and a device may have no end. Everything else counts as missing.
class ContentFile : public QFile
{
public:
    explicit ContentFile(const QString& fileName);

    bool open(OpenMode mode) override;

private:
    Q_DISABLE_COPY(ContentFile)
};

#endif
