#include "faultyflows.h"

#include <cstdlib>
#include <memory>

#include <QFile>
#include <QXmlDefaultHandler>
#include <QXmlSimpleReader>

QT_WARNING_DISABLE_DEPRECATED

namespace {

QString resultText(bool isSuccessful)
{
    return isSuccessful ? QStringLiteral("succeeded") : QStringLiteral("failed");
}

QString followANullPointer(const QString&)
{
    volatile char* const memory = static_cast<volatile char*>(std::malloc(1));
    *memory = 'x';
    std::free(const_cast<char*>(memory));
    return resultText(true);
}

QString freeTwice(const QString&)
{
    auto first = std::make_unique<int>(1);
    std::unique_ptr<int> second(first.get());
    const auto third = std::make_unique<int>(3); // When this fails both are owners.
    return resultText(second.release() == first.get());
}

QString freeTwiceBelowTheParser(const QString& folder)
{
    class Handler : public QXmlDefaultHandler
    {
        bool startElement(const QString&, const QString&, const QString&, const QXmlAttributes&) override
        {
            return !freeTwice(QString()).isEmpty();
        }
    };
    QFile file(folder + QStringLiteral("/content.xml"));
    const QXmlInputSource source(&file);
    Handler handler;
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    return resultText(reader.parse(source));
}

/// Whether an allocation has failed.
bool isWithoutMemory()
{
    const std::unique_ptr<void, decltype(&std::free)> memory(std::malloc(1), std::free);
    return !memory;
}

QString stayChanged(const QString&)
{
    static bool isChanged = false;
    isChanged = isChanged || isWithoutMemory();
    return resultText(!isChanged);
}

QString leaveAnotherFile(const QString& folder)
{
    const bool isOther = isWithoutMemory();
    QFile file(folder + QStringLiteral("/other.xml"));
    return resultText(file.open(QIODevice::WriteOnly) && file.write(isOther ? "<half/>" : "<whole/>") > 0);
}

} // namespace

const std::vector<Flow>& faultyFlows()
{
    static const std::vector<Flow> all {
        {"null-pointer-followed", followANullPointer, QString(), false},
        {"null-pointer-followed-with-widgets", followANullPointer, QString(), true},
        {"memory-freed-twice", freeTwice, QString(), false},
        {"memory-freed-twice-below-the-parser", freeTwiceBelowTheParser, QString(), false},
        {"next-run-changed", stayChanged, QString(), false},
        {"other-file-left", leaveAnotherFile, QStringLiteral("other.xml"), false},
    };
    return all;
}
