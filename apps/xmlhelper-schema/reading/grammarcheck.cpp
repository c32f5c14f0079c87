#include "grammarcheck.h"

#include <csignal>
#include <cstdio>

#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

namespace schemadoctor {

namespace {

constexpr rlim_t MaxProcessorSeconds = 1;

/// Long enough for the second that the parser may use, on a machine that has other work.
constexpr int MaxMilliseconds = 30000;
constexpr rlim_t MaxMemory = rlim_t(256) * 1024 * 1024;
constexpr int MaxFaults = 100;

void collect(void* userData, xmlError* error)
{
    auto* const faults = static_cast<QJsonArray*>(userData);
    if (faults->size() < MaxFaults) {
        faults->append(QJsonObject {{QStringLiteral("file"), QString::fromUtf8(error->file)},
                                    {QStringLiteral("line"), error->line},
                                    {QStringLiteral("message"), QString::fromUtf8(error->message).trimmed()}});
    }
}

QByteArray checked(const QString& file)
{
    QJsonArray faults;
    // Imports are not the library's business either, and may name places in a network.
    xmlSetExternalEntityLoader(xmlNoNetExternalEntityLoader);
    // The XML parser below the schema parser reports on its own.
    xmlSetStructuredErrorFunc(&faults, collect);
    xmlSchemaParserCtxt* const parser = xmlSchemaNewParserCtxt(QFile::encodeName(file).constData());
    xmlSchemaSetParserStructuredErrors(parser, collect, &faults);
    xmlSchemaFree(xmlSchemaParse(parser));
    xmlSchemaFreeParserCtxt(parser);
    return QJsonDocument(faults).toJson(QJsonDocument::Compact);
}

/// The child's part. It ends without the parent's destructors and exit handlers.
[[noreturn]] void checkInChild(const QString& file, int output)
{
    // A limit for the address space would end a program that is run with an address sanitizer at once.
#if !defined(__SANITIZE_ADDRESS__)
    const rlimit memory {MaxMemory, MaxMemory};
    setrlimit(RLIMIT_DATA, &memory);
#endif
    const rlimit seconds {MaxProcessorSeconds, MaxProcessorSeconds};
    setrlimit(RLIMIT_CPU, &seconds);
    const rlimit noCore {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    const QByteArray result = checked(file);
    const char* data = result.constData();
    for (ssize_t left = result.size(); left > 0;) {
        const ssize_t written = write(output, data, std::size_t(left));
        if (written <= 0) {
            break;
        }
        data += written;
        left -= written;
    }
    _exit(0);
}

/// What the child writes until it ends; nothing when it takes too long.
QByteArray readAll(int input)
{
    QElapsedTimer timer;
    timer.start();
    QByteArray result;
    char buffer[65536];
    for (;;) {
        pollfd waiting {input, POLLIN, 0};
        const int left = MaxMilliseconds - int(timer.elapsed());
        if (left <= 0 || poll(&waiting, 1, left) <= 0) {
            return QByteArray();
        }
        const ssize_t count = read(input, buffer, sizeof buffer);
        if (count <= 0) {
            return result;
        }
        result.append(buffer, int(count));
    }
}

} // namespace

QVector<GrammarFault> grammarFaultsOf(const QString& file)
{
    int ends[2];
    if (pipe(ends) != 0) {
        return {};
    }
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        checkInChild(file, ends[1]);
    }
    close(ends[1]);
    QByteArray result;
    if (child > 0) {
        result = readAll(ends[0]);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
    close(ends[0]);

    const QJsonDocument document = QJsonDocument::fromJson(result);
    if (!document.isArray()) {
        return {{{file, 0}, QStringLiteral("libxml2 needs too much time or memory to check the schema.")}};
    }
    QVector<GrammarFault> faults;
    const QJsonArray all = document.array();
    for (const QJsonValue& fault : all) {
        faults.append({{fault[QStringLiteral("file")].toString(), fault[QStringLiteral("line")].toInt()},
                       fault[QStringLiteral("message")].toString()});
    }
    return faults;
}

} // namespace schemadoctor
