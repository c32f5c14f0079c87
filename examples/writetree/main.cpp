// Builds a document element by element and mirrors a value tree into it.
//
// usage: writetree FILE

#include <cstdio>

#include <QCoreApplication>
#include <QStringList>

#include <valueframework/node.h>
#include <valueframework/tree.h>
#include <valueframework/valueitem.h>
#include <valueframework/valuenumeric.h>
#include <valueframework/valueselection.h>
#include <valueframework/valuetext.h>
#include <xmlhelper/xmlhelper.h>

namespace {

/// The values of a receiver, as an application keeps them in its value tree.
void growReceiver(Tree& tree)
{
    auto* const receiver = new Node(QStringLiteral("Receiver"), tree.GetRoot());
    new ValueItem(new ValueNumeric(QStringLiteral("Level"), 17.5, QStringLiteral("dBµV")), receiver);
    auto* const bandwidth = new ValueSelection(QStringLiteral("Bandwidth"));
    bandwidth->AddChoice(150e3, QStringLiteral("150 kHz"));
    new ValueItem(bandwidth, receiver);
    auto* const antenna = new Node(QStringLiteral("Antenna"), receiver);
    new ValueItem(new ValueText(QStringLiteral("Name"), QStringLiteral("Tower & Hill")), antenna);
    new ValueItem(new ValueText(QStringLiteral("Remark"), QString()), antenna);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr, "usage: writetree FILE\n");
        return 2;
    }
    Tree tree;
    growReceiver(tree);

    XMLWriter writer;
    writer.CreateXmlFile(arguments.at(1), QStringLiteral("Inventory"));
    writer.SetXmlAttribute(QStringLiteral("site"), QStringLiteral("North"));
    // Entered, so that what follows is appended below it.
    writer.CreateXmlElement(QStringLiteral("Station"), QString(), true);
    writer.CreateXmlElement(QStringLiteral("Operator"), QStringLiteral("Miller"), false);
    writer.CreateElementsFromNode(dynamic_cast<Node*>(tree.GetTreeItem(QStringLiteral("Receiver"))));
    writer.GoToXmlParent();
    writer.CreateXmlElement(QStringLiteral("Checked"), QStringLiteral("true"), false);
    return writer.SaveXmlFile() ? 0 : 1;
}
