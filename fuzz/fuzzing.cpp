#include "fuzzing.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <arbase/errorhandler.h>
#include <arbase/vornos.h>

#include "fuzzinput.h"

namespace {

constexpr quint32 TraceMask = 32;

void dropMessage(QtMsgType, const QMessageLogContext&, const QString&) { }

qint64 fixedTime()
{
    return 1490963696007; // 2017-03-31
}

} // namespace

/// Called once before the first input. Traces are made, so that their texts are tried too, and dropped.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qSetGlobalQHashSeed(0); // The order of attributes must not depend on the process.
    qInstallMessageHandler(dropMessage);
    ErrorHandler::Instance().SetTraceMask(TraceMask);
    VornOS::SetTimeSource(fixedTime);
    static QApplication application(*argc, *argv);
    return 0;
}

void require(bool holds, const char* rule)
{
    if (!holds) {
        std::fprintf(stderr, "This does not hold: %s\n", rule);
        std::abort();
    }
}

QString scratchFile(const QString& name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

void writeScratchFile(const QString& name, const QByteArray& content)
{
    QFile file(scratchFile(name));
    if (content.isNull()) {
        file.remove();
    } else {
        require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
                "the scratch folder has room");
    }
}

QDomDocument readBack(const QString& fileName, bool isDue)
{
    QFile file(fileName);
    require(file.open(QIODevice::ReadOnly), "a file is written");
    const QByteArray bytes = file.readAll();
    // A stricter parser than that of the DOM, which takes control characters.
    QXmlStreamReader parser(bytes);
    parser.setNamespaceProcessing(false);
    while (!parser.atEnd()) {
        parser.readNext();
    }
    QDomDocument document;
    require((document.setContent(bytes) && !parser.hasError()) || !isDue, "a written file can be read again");
    return document;
}

bool isXmlName(const QString& name)
{
    static const QString letters = QStringLiteral("A-Z_a-z\\x{C0}-\\x{D6}\\x{D8}-\\x{F6}\\x{F8}-\\x{FF}");
    static const QRegularExpression names(QStringLiteral("\\A[%1][%1.0-9-]*(:[%1][%1.0-9-]*)?\\z").arg(letters));
    return names.match(name).hasMatch();
}

bool isDisputedName(const QString& name)
{
    return std::any_of(name.begin(), name.end(), [](QChar character) {
        return character == QLatin1Char(':') || character == QChar(0xB7) || character.unicode() > 0xFF;
    });
}

QString xmlText(const QString& text)
{
    QString kept;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            kept += character;
            kept += text.at(++i);
        } else if (character.unicode() >= 0x20 ? !character.isSurrogate() && character.unicode() < 0xFFFE
                                               : QStringLiteral("\t\n\r").contains(character)) {
            kept += character;
        }
    }
    return kept;
}

bool isXml(const QDomNode& node)
{
    if (node.isDocumentType()) {
        return false; // Qt writes the declarations in it in its own way, and no report has one.
    }
    if (node.isElement() ? !isXmlName(node.nodeName()) : xmlText(node.nodeValue()) != node.nodeValue()) {
        return false;
    }
    const QDomNamedNodeMap attributes = node.attributes();
    for (int i = 0; i < attributes.count(); ++i) {
        const QDomNode attribute = attributes.item(i);
        if (!isXmlName(attribute.nodeName()) || xmlText(attribute.nodeValue()) != attribute.nodeValue()) {
            return false;
        }
    }
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (!isXml(child)) {
            return false;
        }
    }
    return true;
}

bool isRepeatingMuch(const QByteArray& schema)
{
    static const QRegularExpression greatNumber(QStringLiteral("Occurs\\s*=\\s*[\"'][^\"']{3,}[\"']"));
    QRegularExpressionMatchIterator numbers
        = greatNumber.globalMatch(QString(QLatin1String(schema.constData(), int(schema.size()))));
    while (numbers.hasNext()) {
        if (!numbers.next().captured().contains(QLatin1String("unbounded"))) {
            return true;
        }
    }
    return false;
}

const Vocabulary& schemaVocabulary()
{
    static const Vocabulary vocabulary {
        "xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'",
        {"xs:element", "xs:complexType", "xs:simpleType", "xs:sequence", "xs:choice", "xs:attribute", "xs:restriction",
         "xs:extension", "xs:enumeration", "xs:minInclusive", "xs:maxInclusive", "xs:minExclusive", "xs:maxExclusive",
         "xs:simpleContent", "xs:complexContent", "xs:include", "xs:all", "xs:annotation"},
        {"name='a'",
         "name='b'",
         "name='c'",
         "name='dummy'",
         "name='type'",
         "name='d e'",
         "name=''",
         "type='a'",
         "type='b'",
         "type='c'",
         "type='t'",
         "name='t'",
         "type='xs:string'",
         "type='xs:integer'",
         "type='xs:int'",
         "type='xs:double'",
         "type='xs:boolean'",
         "type='xs:dateTime'",
         "type='xs:time'",
         "type='xs:short'",
         "ref='a'",
         "ref='b'",
         "ref='c'",
         "base='t'",
         "base='a'",
         "base='xs:string'",
         "base='xs:integer'",
         "base='xs:double'",
         "minOccurs='0'",
         "minOccurs='1'",
         "minOccurs='3'",
         "minOccurs='-1'",
         "maxOccurs='0'",
         "maxOccurs='1'",
         "maxOccurs='4'",
         "maxOccurs='unbounded'",
         "default='a'",
         "value='0'",
         "value='5'",
         "value='-5'",
         "value='0.5'",
         "value='65535'",
         "value='a'",
         "value=''",
         "schemaLocation='a.xsd'",
         "schemaLocation='b.xsd'",
         "schemaLocation='c.xsd'",
         "schemaLocation='schema.xsd'",
         "use='required'",
         "mixed='true'"},
        {"text", "<!-- comment -->", "<?target data?>", "<![CDATA[data]]>", " ", "&amp;"},
    };
    return vocabulary;
}
