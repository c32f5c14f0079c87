#ifndef XMLHELPER_REPORTANSWERER_P_H
#define XMLHELPER_REPORTANSWERER_P_H

#include <QPointer>
#include <QString>
#include <QXmlAttributes>

#include "ixmlhelper.h"
#include "reportitems_p.h"

class ElemBeginEvent;
class QDomNode;
class VCReporting;
class XmlCreateReport;

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED // QXmlAttributes: Qt keeps the SAX classes, with a warning.

/// Has the reports of a report button made, and fills them with the values of the button's items.
///
/// The button makes one, which is the observer of all its report builders. It hands each event to the button, whose
/// XmlUpdate() an application may have overridden, and gets it back by Answer().
///
/// Reading a value, and answering an error of the builder, may run anything, an event loop too: items may come and
/// go meanwhile, and the button may be deleted. Therefore whoever has the answerer work keeps a share in it, an
/// element is answered with the items that there were when it was announced, and the report of a button that is
/// gone is filled all the same.
///
/// Builders are never deleted: an operator may answer a comment dialog long after the screen is gone. All but the
/// latest, which late announcements still reach, give back what they hold, and so does that when the answerer goes.
class ReportAnswerer final : public IXMLHelper
{
public:
    /// @param button   gets every event while it lives; not owned
    /// @param consume  whether an item is taken out once a report has used it
    ReportAnswerer(VCReporting* button, bool consume);
    ~ReportAnswerer();

    ReportItems& Items() { return m_items; }

    /// Whether a report is being filled, or an announcement answered: no other report can be made now.
    bool IsBusy() const { return m_iBusy > 0; }

    /// Makes a report. Gives whether the schema was read.
    /// @param builder  a new one, whose observer this is; never deleted
    bool MakeReport(XmlCreateReport* builder, const QString& schemaPath, const QString& reportPath, bool showComment);

    void XmlUpdate(XmlEvent* event) override;

    /// Answers an announcement or an error; ignores all other events.
    void Answer(XmlEvent* event);

private:
    Q_DISABLE_COPY(ReportAnswerer)

    using Item = ReportItems::Item;

    /// The item that the announced element has matched.
    struct Match
    {
        Item item; ///< null when there is none
        int index;
        bool isQualified;
    };

    void releaseBuilder();

    void answerElement(ElemBeginEvent* event);
    Match findMatch(const QString& name, const QDomNode& node) const;
    void fillElement(const QString& name, const QXmlAttributes& attributes, const Item& item);
    void fillAttribute(const QXmlAttributes& attributes, const Item& item);
    void handleAttributes(const QXmlAttributes& attributes);
    void handleAttribute(const QString& name, const Item& item);
    void finishElement(const Match& match, const QString& name, const QXmlAttributes& attributes);
    void stampTime(const QString& name, const QXmlAttributes& attributes);

    template <class Value> void setElement(Value value, const Item& item);
    void setAttribute(const QString& name, const Item& item, double& number);
    bool setTimeAttribute(const QString& name);

    void answerError(int errorID);
    template <class Value> void retryWith(Value value);
    Item pendingItem(const char* errorName, int traceLine) const;

    const QPointer<VCReporting> m_pButton;
    const bool m_bConsume;
    ReportItems m_items;
    XmlCreateReport* m_pBuilder; ///< of the latest report; never deleted
    int m_iBusy; ///< reports and answers under way, nested in each other
    bool m_bValueSet;
    bool m_bAttributePending; ///< a value is being set on an attribute, not on the element
    double m_dPending; ///< the number being set, for the retry as integer
    Item m_pPendingItem; ///< whose value is being set, for the retries; null when none is
    QString m_sAttributeName; ///< the attribute being looked at, for the retries
};

QT_WARNING_POP

#endif
