#include <memory>

#include <QDomDocument>
#include <QStringList>

#include <valueframework/node.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuetext.h>

#include <xmlhelper/commentdialogimpl.h>
#include <xmlhelper/xmlwriter.h>

#include "fuzzing.h"
#include "fuzzinput.h"

// The first part tells a writer what to do, the second is a report, and the third the comment that a dialog adds to it.

namespace {

const Vocabulary reportVocabulary {
    "Report",
    {"Frequency", "Bandwidth", "Level", "Signal_Level", "Azimuth", "DFAzimuth", "Comment"},
    {"Unit='MHz'", "Unit=''", "a='&amp;'"},
    {"98.5", "", " ", "<!--note-->", "<![CDATA[<]]>"},
};

/// Texts as a parser gives them back: those of blanks alone are left out.
QString readable(const QString& text)
{
    return text.trimmed().isEmpty() ? QString() : text;
}

/// An element in a line: its name and its text, if it has nothing but a text.
QString lineOf(const QString& name, const QString& text)
{
    return name + QLatin1Char('=') + readable(text);
}

void appendLines(const QDomElement& element, QStringList& lines)
{
    lines << lineOf(element.tagName(), element.firstChild().isText() ? element.text() : QString());
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        appendLines(child, lines);
    }
}

class Script
{
public:
    explicit Script(const QByteArray& bytes)
        : m_input(bytes)
    {
    }

    void Run()
    {
        const QString root = name();
        m_isXml = isXmlName(root);
        m_lines << lineOf(root, QString());
        m_writer.CreateXmlFile(scratchFile(QStringLiteral("written.xml")), root);
        for (int i = 0; i < 200 && !m_input.IsAtEnd(); ++i) {
            act();
        }
        require(m_writer.SaveXmlFile(), "a document can be saved");
        const QDomDocument document = readBack(scratchFile(QStringLiteral("written.xml")), m_isXml);
        QStringList lines;
        appendLines(document.documentElement(), lines);
        require(!m_isXml || lines == m_lines, "what is written is read again, in its order");
    }

private:
    void act();
    void createElement(const QString& elementName, const QString& text, bool isToEnter);
    void writeTree();
    void growTree(Node* node, int levels);
    void note(const QString& elementName, const QString& text);

    QString name()
    {
        static const char* const names[] = {"a", "b", "c:d", "e-f", "g.h"};
        const int choice = m_input.Choice(8);
        return choice < 5 ? QString::fromLatin1(names[choice]) : m_input.Line();
    }

    FuzzInput m_input;
    XMLWriter m_writer;
    QStringList m_lines; ///< of what has been written, which is in document order
    bool m_isXml = true; ///< all names and texts so far
};

void Script::act()
{
    switch (m_input.Choice(6)) {
    case 0:
        return createElement(name(), m_input.Line(), false);
    case 1:
        return createElement(name(), QString(), true);
    case 2: {
        const QString attribute = name();
        const QString value = m_input.Line();
        if (m_writer.SetXmlAttribute(attribute, value)) {
            m_isXml = m_isXml && isXmlName(attribute) && isXmlText(value);
        }
        return;
    }
    case 3:
        m_writer.GoToXmlParent();
        return;
    case 4:
        return writeTree();
    default:
        require(!m_writer.CreateXmlFile(QStringLiteral("other"), QStringLiteral("other")), "a writer has one document");
    }
}

void Script::note(const QString& elementName, const QString& text)
{
    m_lines << lineOf(elementName, text);
    m_isXml = m_isXml && isXmlName(elementName) && isXmlText(text);
}

void Script::createElement(const QString& elementName, const QString& text, bool isToEnter)
{
    if (m_writer.CreateXmlElement(elementName, text, isToEnter)) {
        note(elementName, text);
    }
}

/// Below an element of its own, because a tree is not written below one that ends with a text.
void Script::writeTree()
{
    const QString top = QStringLiteral("top");
    if (m_writer.CreateXmlElement(top, QString(), true)) {
        note(top, QString());
        Node tree(name(), nullptr);
        note(tree.GetName(), QString());
        growTree(&tree, 3);
        require(m_writer.CreateElementsFromNode(&tree) && (m_writer.GoToXmlParent() || !m_isXml),
                "a tree leaves the cursor in place");
    }
}

void Script::growTree(Node* node, int levels)
{
    for (int items = m_input.Choice(4); items > 0; --items) {
        if (m_input.Choice(3) == 0 && levels > 0) {
            auto* const branch = new Node(name(), node);
            note(branch->GetName(), QString());
            growTree(branch, levels - 1);
        } else if (m_input.Choice(8) == 0) {
            new ValueItem(nullptr, node);
        } else {
            auto* const value = new ValueText(name(), m_input.Line());
            new ValueItem(value, node);
            note(value->GetName(), value->GetText());
        }
    }
}

void writeComment(QDomDocument report, const QString& comment)
{
    // One for all inputs: making a dialog takes longer than everything else.
    static CommentDialogImpl dialog;
    const QString fileName = scratchFile(QStringLiteral("commented.xml"));
    dialog.SetDocument(&report);
    dialog.SetFileName(fileName);
    dialog.ShowReportSummary();
    dialog.m_pTextEdit->setPlainText(comment);
    const QString entered = dialog.m_pTextEdit->toPlainText();
    dialog.SlotSaveWithComment();

    const QDomElement written = report.documentElement().lastChildElement();
    const QDomElement read
        = readBack(fileName, isXml(report) && !report.documentElement().isNull()).documentElement().lastChildElement();
    if (isXml(report) && !report.documentElement().isNull() && !readable(entered).isEmpty()) {
        require(written.text() == entered && read.tagName() == QLatin1String("Comment") && read.text() == entered,
                "a comment is read again");
    }
    dialog.SlotSaveWithoutComment();
    dialog.SetDocument(nullptr);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    Script(input.Part()).Run();
    QDomDocument report;
    report.setContent(xmlOf(input.Part(), reportVocabulary));
    writeComment(report, FuzzInput(input.Part().replace('\n', '\t')).Line());
    return 0;
}
