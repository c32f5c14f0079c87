#include "flows.h"

#include <memory>

#include <QApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QPushButton>
#include <QTextEdit>
#include <QToolButton>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/elembeginevent.h>
#include <xmlhelper/vcreporting.h>
#include <xmlhelper/xmlcreatereport.h>
#include <xmlhelper/xmlreader.h>
#include <xmlhelper/xmlwriter.h>

#include "eventrecorder.h"
#include "fakeclock.h"
#include "scriptedobserver.h"

namespace {

const char Content[] = "<?xml version='1.0' encoding='UTF-8'?><report><a k='v'>text</a><b><c>1.5</c></b></report>";

const char Schema[] = R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
<xs:complexType name="level"><xs:sequence><xs:element name="Level" type="xs:double"/></xs:sequence></xs:complexType>
<xs:element name="Report"><xs:complexType><xs:sequence>
  <xs:element name="Frequency" type="xs:double"/>
  <xs:element name="Mode" type="xs:string" minOccurs="0" maxOccurs="3"/>
  <xs:element name="Signal" type="level"/>
</xs:sequence></xs:complexType></xs:element>
</xs:schema>)";

const char IncludingSchema[] = R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
<xs:include schemaLocation="included.xsd"/>
<xs:element name="Report"><xs:complexType><xs:sequence>
  <xs:element name="Signal" type="signal"/>
</xs:sequence></xs:complexType></xs:element>
</xs:schema>)";

const char IncludedSchema[] = R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema">
<xs:complexType name="signal"><xs:sequence><xs:element name="Level" type="xs:double"/></xs:sequence></xs:complexType>
</xs:schema>)";

bool writeFile(const QString& fileName, const char* content)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(content) == qint64(qstrlen(content)) && file.flush();
}

QString resultText(bool isSuccessful)
{
    return isSuccessful ? QStringLiteral("succeeded") : QStringLiteral("failed");
}

QString parse(XMLReader& reader, EventRecorder& recorder)
{
    return resultText(reader.ParseXml()) + QLatin1Char('\n') + recorder.Text();
}

QString readFile(const QString& folder)
{
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    reader.SetXmlContent(folder + QStringLiteral("/content.xml"));
    return parse(reader, recorder);
}

QString readDocument(const QString&)
{
    QDomDocument document;
    document.setContent(QString::fromLatin1(Content));
    EventRecorder recorder;
    XMLReader reader(&recorder, nullptr);
    reader.SetXmlContent(document);
    return parse(reader, recorder);
}

/// Builds a report whose elements are filled, or only laid out, from @p schema.
QString build(const QString& folder, const char* schema, const char* report, bool isFilled)
{
    ScriptedObserver observer;
    XmlCreateReport builder(&observer);
    if (isFilled) {
        observer.OnElement(QStringLiteral("Frequency"), [&](ElemBeginEvent&) { builder.SetXmlValue(98.5); });
        observer.OnElement(QStringLiteral("Mode"), [&](ElemBeginEvent&) {
            builder.SetElementMaxOccurs(QStringLiteral("Mode"), 2);
            builder.SetXmlValue(QStringLiteral("F\u0001M"));
        });
    }
    const bool isSuccessful = builder.CreateXmlFromSchema(folder + QLatin1Char('/') + QLatin1String(schema),
                                                          folder + QLatin1Char('/') + QLatin1String(report), false);
    return resultText(isSuccessful) + QLatin1Char('\n') + observer.Log().join(QLatin1Char('\n'));
}

QString layOutSchema(const QString& folder)
{
    return build(folder, "schema.xsd", "laidout.xml", false);
}

QString readIncludes(const QString& folder)
{
    return build(folder, "including.xsd", "included.xml", false);
}

QString fillReport(const QString& folder)
{
    return build(folder, "schema.xsd", "filled.xml", true);
}

QString write(const QString& folder)
{
    XMLWriter writer;
    const bool isSuccessful = writer.CreateXmlFile(folder + QStringLiteral("/written.xml"), QStringLiteral("r"))
        && writer.CreateXmlElement(QStringLiteral("a"), QStringLiteral("text"), true)
        && writer.SetXmlAttribute(QStringLiteral("k"), QStringLiteral("v")) && writer.SaveXmlFile();
    return resultText(isSuccessful);
}

QString mirror(const QString& folder)
{
    Node node(QStringLiteral("Receiver"), nullptr);
    new ValueItem(new ValueText(QStringLiteral("Mode"), QStringLiteral("FM")), &node);
    XMLWriter writer;
    const bool isSuccessful = writer.CreateXmlFile(folder + QStringLiteral("/mirrored.xml"), QStringLiteral("r"))
        && writer.CreateElementsFromNode(&node) && writer.SaveXmlFile();
    return resultText(isSuccessful);
}

enum class Answer { NoDialog, NoComment, Comment };

/// Presses the report button of a screen whose reports go into the folder of its own called @p name.
QString press(const QString& folder, const char* name, Answer answer)
{
    const FakeClock clock(QDateTime(QDate(2017, 3, 31), QTime(12, 34, 56, 7)));
    const Tree tree;
    new ValueItem(new ValueNumeric(QStringLiteral("Frequency"), 98.5), tree.GetRoot());
    new ValueItem(new ValueText(QStringLiteral("Mode"), QStringLiteral("FM")), tree.GetRoot());
    VCReporting reporting(folder + QStringLiteral("/schema.xsd"), folder + QLatin1Char('/') + QLatin1String(name),
                          nullptr, true, "ToReport", false, QPixmap());
    reporting.AddReportData(tree.GetRoot());
    reporting.SetShowCommentDialog(answer != Answer::NoDialog);
    const bool isSuccessful = reporting.SlotToReport();
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (!widget->isVisible() || widget->objectName() != QLatin1String("ToReportCommentDialog")) {
            continue;
        }
        if (answer == Answer::Comment) {
            widget->findChild<QTextEdit*>()->setPlainText(QStringLiteral("comment"));
        }
        const QLatin1String button(answer == Answer::Comment ? "m_pSaveButton" : "m_pNoCommentButton");
        widget->findChild<QPushButton*>(button)->click();
    }
    return resultText(isSuccessful);
}

QString pressButton(const QString& folder)
{
    return press(folder, "pressed", Answer::NoDialog);
}

QString answerWithoutComment(const QString& folder)
{
    return press(folder, "uncommented", Answer::NoComment);
}

QString answerWithComment(const QString& folder)
{
    return press(folder, "commented", Answer::Comment);
}

} // namespace

const std::vector<Flow>& flows()
{
    const QString report = QStringLiteral("/2017-03-31_12-34-56-7.xml");
    static const std::vector<Flow> all {
        {"read-a-file", readFile, QString(), false},
        {"read-a-document", readDocument, QString(), false},
        {"lay-out-a-schema", layOutSchema, QStringLiteral("laidout.xml"), false},
        {"read-includes", readIncludes, QStringLiteral("included.xml"), false},
        {"fill-a-report", fillReport, QStringLiteral("filled.xml"), false},
        {"write-a-document", write, QStringLiteral("written.xml"), false},
        {"mirror-a-value-tree", mirror, QStringLiteral("mirrored.xml"), false},
        {"press-the-button", pressButton, QStringLiteral("pressed") + report, true},
        {"answer-without-comment", answerWithoutComment, QStringLiteral("uncommented") + report, true},
        {"answer-with-comment", answerWithComment, QStringLiteral("commented") + report, true},
    };
    return all;
}

bool writeInputs(const QString& folder)
{
    const QDir directory(folder);
    return writeFile(directory.filePath(QStringLiteral("content.xml")), Content)
        && writeFile(directory.filePath(QStringLiteral("schema.xsd")), Schema)
        && writeFile(directory.filePath(QStringLiteral("including.xsd")), IncludingSchema)
        && writeFile(directory.filePath(QStringLiteral("included.xsd")), IncludedSchema)
        && directory.mkdir(QStringLiteral("pressed")) && directory.mkdir(QStringLiteral("uncommented"))
        && directory.mkdir(QStringLiteral("commented"));
}
