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
// Whatever the names and texts are, the files are XML.

namespace {

const Vocabulary reportVocabulary {
    "Report",
    {"Frequency", "Bandwidth", "Level", "Signal_Level", "Azimuth", "DFAzimuth", "Comment"},
    {"Unit='MHz'", "Unit=''", "a='&amp;'"},
    {"98.5", "", " ", "<!--note-->", "<![CDATA[<]]>"},
};

/// A text as a parser gives it back: without the characters that XML cannot carry, and not at all when it is blank.
QString readable(const QString& text)
{
    const QString carried = xmlText(text);
    return carried.trimmed().isEmpty() ? QString() : carried;
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
        , m_root(name())
        , m_lines(lineOf(m_root, QString()))
    {
    }

    void Run()
    {
        const QString fileName = scratchFile(QStringLiteral("written.xml"));
        m_writer.CreateXmlFile(fileName, m_root);
        for (int i = 0; i < 200 && !m_input.IsAtEnd(); ++i) {
            act();
        }
        require(m_writer.SaveXmlFile(), "a document can be saved");
        QStringList lines;
        appendLines(readBack(fileName, isXmlName(m_root)).documentElement(), lines);
        require(!isXmlName(m_root) || lines == m_lines, "what is written is read again, in its order");
    }

private:
    void act();
    void createElement(const QString& elementName, const QString& text, bool isToEnter);
    void writeTree();
    void growTree(Node* node, int levels, bool isWritten);

    QString name()
    {
        static const char* const names[] = {"a", "b", "c:d", "e-f", "g.h"};
        const int choice = m_input.Choice(8);
        const QString line = choice < 5 ? QString() : m_input.Line();
        return choice < 5 || isDisputedName(line) ? QString::fromLatin1(names[choice % 5]) : line;
    }

    FuzzInput m_input;
    XMLWriter m_writer;
    QString m_root;
    QStringList m_lines; ///< of what has been written, which is in document order
    bool m_bTreeWritten = false; ///< nothing of the tree was left out for its name
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
        m_writer.SetXmlAttribute(attribute, m_input.Line());
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

void Script::createElement(const QString& elementName, const QString& text, bool isToEnter)
{
    if (m_writer.CreateXmlElement(elementName, text, isToEnter)) {
        m_lines << lineOf(elementName, text);
    }
}

/// Below an element of its own, because a tree is not written below one that ends with a text.
void Script::writeTree()
{
    const QString top = QStringLiteral("top");
    if (m_writer.CreateXmlElement(top, QString(), true)) {
        m_lines << lineOf(top, QString());
        Node tree(name(), nullptr);
        const bool isWritten = isXmlName(tree.GetName());
        if (isWritten) {
            m_lines << lineOf(tree.GetName(), QString());
        }
        m_bTreeWritten = isWritten;
        growTree(&tree, 3, isWritten);
        require(m_writer.CreateElementsFromNode(&tree) == m_bTreeWritten, "a tree is written whose items have names");
        require(m_writer.GoToXmlParent() || !isXmlName(m_root), "a tree leaves the cursor in place");
    }
}

/// Items whose names XML does not allow are left out, with what is below them.
void Script::growTree(Node* node, int levels, bool isWritten)
{
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): each item is owned by the node it is made for
    for (int items = m_input.Choice(4); items > 0; --items) {
        if (m_input.Choice(3) == 0 && levels > 0) {
            auto* const branch = new Node(name(), node);
            const bool isBranchWritten = isWritten && isXmlName(branch->GetName());
            m_bTreeWritten = m_bTreeWritten && isBranchWritten;
            if (isBranchWritten) {
                m_lines << lineOf(branch->GetName(), QString());
            }
            growTree(branch, levels - 1, isBranchWritten);
        } else if (m_input.Choice(8) == 0) {
            new ValueItem(nullptr, node);
        } else {
            auto* const value = new ValueText(name(), m_input.Line());
            new ValueItem(value, node);
            m_bTreeWritten = m_bTreeWritten && isXmlName(value->GetName());
            if (isWritten && isXmlName(value->GetName())) {
                m_lines << lineOf(value->GetName(), value->GetText());
            }
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
    const QString expected = readable(dialog.m_pTextEdit->toPlainText());
    dialog.SlotSaveWithComment();

    const bool isReport = isXml(report) && !report.documentElement().isNull();
    const QDomElement read = readBack(fileName, isReport).documentElement().lastChildElement();
    require(!isReport || expected.isEmpty() || (read.tagName() == QLatin1String("Comment") && read.text() == expected),
            "a comment is read again");
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
