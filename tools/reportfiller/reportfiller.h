#ifndef REPORTFILLER_REPORTFILLER_H
#define REPORTFILLER_REPORTFILLER_H

#include <functional>
#include <list>
#include <vector>

#include <QDomDocument>
#include <QDomNode>
#include <QString>
#include <QStringList>

#include <xmlhelper/xmlhelper.h>

/// Fills a report from named values: an observer without any widget.
///
/// A value belongs to the element of its name, "Frequency", to an element below a certain parent, "Signal/Frequency",
/// or to an attribute, "Frequency@Unit". Values of equal name go to repeated elements. Declared attributes without a
/// value are removed.
///
/// A value is offered as what its type asks for; when the type refuses it, as everything else that its text can be read
/// as: a floating-point number, an integer, a text, a date and time.
class ReportFiller final : public IXMLHelper
{
public:
    struct Value
    {
        QString name;
        QString text;
        bool isUsed;
    };

    /// Takes a line of text for each thing that happens; lines about an announced element are indented.
    using Journal = std::function<void(const QString& line)>;

    explicit ReportFiller(std::list<Value> values);

    /// Writes down what happens while the report is filled.
    void SetJournal(Journal journal);

    /// @return whether the schema could be read
    bool Fill(const QString& schema, const QString& report);

    /// What was refused, left unfilled, or belongs to no element, in a sentence each.
    QStringList Complaints() const;

    void XmlUpdate(XmlEvent* event) override;

private:
    /// What was announced last, or stands around it.
    struct Announced
    {
        QDomNode node;
        QString path;
    };

    void note(const QString& line) const;
    void noteAnnouncement(ElemBeginEvent& event);
    void noteRemovals();
    void complainOfRoots();
    void answerElement(ElemBeginEvent& event);
    void answerError(ErrorID error);
    void setElement(Value& value, const QString& type);
    void setAttribute(Value& value, const QString& attribute, const QString& type);
    void removeDeclaration(const QXmlAttributes& attributes, const QString& attribute);
    template <typename Setting> void offer(Value& value, const QString& type, const QString& call, const Setting& set);
    void complainOfRefusal();
    Value* findUnused(const QString& name);
    int countOf(const QString& name) const;

    XmlCreateReport m_builder;
    std::list<Value> m_values;
    const Value* m_pOffered = nullptr; ///< being set right now; null while the walk itself reports
    QDomDocument m_document; ///< the report
    QString m_sElement; ///< announced last
    bool m_bElementHasType = false;
    QStringList m_complaints;
    std::vector<ErrorID> m_refusals; ///< of what is being offered
    Journal m_journal;
    std::vector<Announced> m_way; ///< to the element announced last
};

#endif
