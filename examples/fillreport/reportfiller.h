#ifndef FILLREPORT_REPORTFILLER_H
#define FILLREPORT_REPORTFILLER_H

#include <list>

#include <QString>
#include <QStringList>

#include <xmlhelper/xmlhelper.h>

/// Fills a report from named values: an observer without any widget.
///
/// A value belongs to the element of its name, "Frequency", to an element below a certain parent, "Signal/Frequency",
/// or to an attribute, "Frequency@Unit". Values of equal name go to repeated elements. Declared attributes without a
/// value are removed.
class ReportFiller final : public IXMLHelper
{
public:
    struct Value
    {
        QString name;
        QString text;
        bool isUsed;
    };

    explicit ReportFiller(std::list<Value> values);

    /// @return whether the schema could be read
    bool Fill(const QString& schema, const QString& report);

    /// What was refused, left unfilled, or belongs to no element, in a sentence each.
    QStringList Complaints() const;

    void XmlUpdate(XmlEvent* event) override;

private:
    void answerElement(ElemBeginEvent& event);
    void answerError(ErrorID error);
    void setElement(Value& value, const QString& type);
    void setAttribute(Value& value, const QString& attribute, const QString& type);
    void removeDeclaration(const QXmlAttributes& attributes, const QString& attribute);
    Value* findUnused(const QString& name);
    int countOf(const QString& name) const;

    XmlCreateReport m_builder;
    std::list<Value> m_values;
    const Value* m_pOffered = nullptr; ///< being set right now; null while the walk itself reports
    QString m_sElement; ///< announced last
    bool m_bElementHasType = false;
    QStringList m_complaints;
};

#endif
