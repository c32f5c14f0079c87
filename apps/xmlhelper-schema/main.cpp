// Shows how the library understands an XML schema, and what its author should know. See the man page.

#include <algorithm>
#include <cstdio>
#include <memory>

#include <QApplication>

#include <xmlhelper/filesaving_p.h>
#include <xmlhelper/xmlhelperversion.h>

#include "commandline.h"
#include "doctorwindow.h"
#include "examine.h"
#include "fill/dryrun.h"
#include "htmlrendering.h"
#include "language.h"
#include "mend/mendfile.h"
#include "mend/mendrendering.h"
#include "mendpage.h"
#include "mendwindow.h"
#include "outputfile.h"
#include "render/jsonrendering.h"
#include "render/textrendering.h"

namespace {

using namespace schemadoctor;

void print(const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
}

int exitStatusOf(DryRunEnd end)
{
    switch (end) {
    case DryRunEnd::Complete:
        return NothingToSay;
    case DryRunEnd::Incomplete:
        return HasWarnings;
    default:
        return Unreadable;
    }
}

/// @param files  which must not be written over
bool writePage(const QString& fileName, const QByteArray& page, const QStringList& files)
{
    const QString fault = isFileAmong(fileName, files)
        ? QStringLiteral("%1 is a file of the schema itself, and is not written over.").arg(fileName)
        : writeOutput(fileName, page);
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "xmlhelper-schema: %s\n", qUtf8Printable(fault));
    }
    return fault.isEmpty();
}

int showPage(const CommandLine& line, const Examination& examination)
{
    QStringList files;
    for (const auto& text : examination.texts) {
        files.append(openableFileName(text.first));
    }
    files.append(openableFileName(line.schema));
    return writePage(line.page, htmlOf(examination), files) ? exitStatusOf(examination) : Unreadable;
}

template <class Window> void showUntilClosed(Window& window)
{
    window.show();
    QApplication::exec();
}

int showWindow(const CommandLine& line)
{
    const auto examineAsAsked = [&line](const QString& file) { return examine(file, line.isToProve, line.isAsButton); };
    DoctorWindow window(examineAsAsked(line.schema), examineAsAsked);
    showUntilClosed(window);
    return exitStatusOf(window.GetExamination());
}

/// Shows what was mended; false when it cannot be shown.
bool showMended(const CommandLine& line, const MendedFile& mended)
{
    switch (line.show) {
    case CommandLine::Show::Html:
        return writePage(line.page, htmlOf(mended.mending), mended.mending.files + QStringList(line.mended));
    case CommandLine::Show::Window: {
        MendWindow window(mended);
        showUntilClosed(window);
        return true;
    }
    case CommandLine::Show::Json:
        return true; // printed, refused or not
    default:
        print(textOf(mended.mending, mended.examination));
        return true;
    }
}

int mendAndShow(const CommandLine& line)
{
    const MendedFile mended = mendInto(line.mended, line.schema, line.mending);
    const bool isRefused = !mended.mending.refusal.isEmpty();
    if (line.show == CommandLine::Show::Json) {
        print(QString::fromUtf8(jsonOf(mended.mending, mended.examination)));
    } else if (isRefused) {
        std::fprintf(stderr, "xmlhelper-schema: %s\n", qUtf8Printable(mended.mending.refusal));
    }
    if (isRefused || !showMended(line, mended)) {
        return Unreadable;
    }
    return mended.mending.isFormatLost ? HasErrors : exitStatusOf(mended.examination);
}

int run(const CommandLine& line)
{
    if (line.isToMend) {
        return mendAndShow(line);
    }
    if (line.show == CommandLine::Show::Fill) {
        return exitStatusOf(
            dryRun(line.schema, line.values, [](const QString& text) { print(text + QLatin1Char('\n')); }));
    }
    if (line.show == CommandLine::Show::Window) {
        return showWindow(line);
    }
    const Examination examination = examine(line.schema, line.isToProve, line.isAsButton);
    switch (line.show) {
    case CommandLine::Show::Html:
        return showPage(line, examination);
    case CommandLine::Show::Json:
        print(QString::fromUtf8(jsonOf(examination)));
        break;
    default:
        print(textOf(examination));
        break;
    }
    return exitStatusOf(examination);
}

/// Everything but the window works without a screen.
std::unique_ptr<QCoreApplication> applicationFor(int& argc, char** argv)
{
    const bool isForWindow = std::any_of(argv, argv + argc, [](const char* argument) {
        return QByteArray(argument) == "--window" || QByteArray(argument) == "-window";
    });
    if (isForWindow) {
        return std::make_unique<QApplication>(argc, argv);
    }
    return std::make_unique<QCoreApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv)
{
    // Reports of the same values come out the same each time.
    qSetGlobalQHashSeed(0);
    const std::unique_ptr<QCoreApplication> application = applicationFor(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("xmlhelper-schema"));
    QCoreApplication::setApplicationVersion(QStringLiteral(XMLHELPER_VERSION_STRING));
    const CommandLine line = commandLineOf(QCoreApplication::arguments());
    switch (line.show) {
    case CommandLine::Show::WrongUsage:
        std::fprintf(stderr, "xmlhelper-schema: %s Try --help.\n", qUtf8Printable(line.message));
        return Unreadable;
    case CommandLine::Show::Help:
        print(line.message);
        return NothingToSay;
    case CommandLine::Show::Version:
        print(QStringLiteral("xmlhelper-schema %1\n").arg(QCoreApplication::applicationVersion()));
        return NothingToSay;
    default:
        break;
    }
    if (!speak({QStringLiteral("XMLHelper"), QStringLiteral("SchemaDoctor")}, line.language)) {
        std::fprintf(stderr, "xmlhelper-schema: There are no texts in the language '%s'.\n",
                     qUtf8Printable(line.language));
        return Unreadable;
    }
    return run(line);
}
