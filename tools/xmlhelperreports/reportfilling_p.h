#ifndef XMLHELPERREPORTS_REPORTFILLING_P_H
#define XMLHELPERREPORTS_REPORTFILLING_P_H

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <QDomDocument>
#include <QDomElement>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

#include <xmlhelper/xmlhelper.h>

#include "facets_p.h"
#include "givenvalues_p.h"
#include "reportfiller.h"
#include "skeletonplaces_p.h"
#include "typedvalue_p.h"
#include "valuetree_p.h"

/// The filling of one report: the observer behind a ReportFiller.
///
/// When the root is announced the skeleton is brought into the shape of the report: what repeats is copied, what has no
/// value and may be missing goes. So the walk meets each element once, in its place, and has nothing to remove. Each
/// element that holds values is answered, because one that is not would take an optional container around it away: one
/// without a value gets an empty text for the time of the walk, and what it held is put back in the end.
class ReportFilling final : public IXMLHelper
{
public:
    ReportFilling(std::vector<GivenValue> values, const ReportFiller::Source& source,
                  const ReportFiller::Journal& journal);
    ~ReportFilling() = default;

    bool Fill(const QString& schema, const QString& report);
    QString WrittenFile() const { return m_writtenFile; } ///< the report, or what went to a device, as a file
    bool IsSchemaRead() const { return m_bSchemaRead; }
    std::vector<ReportFiller::Verdict> TakeVerdicts();
    QStringList TakeComplaints() { return std::exchange(m_complaints, QStringList()); } ///< of no value or element

    void XmlUpdate(XmlEvent* event) override;

private:
    Q_DISABLE_COPY(ReportFilling)
    using State = ReportFiller::State;

    /// An element of the report.
    struct Instance
    {
        const Place* place;
        QDomElement element;
        QString path;
        int around; ///< the instance around it; -1 for the root
        int text; ///< indices of values
        std::map<QString, int> attributes;
        bool isRequired;
        bool isHeld = false; ///< answered without a value
        QVector<QPair<QString, QString>> heldAttributes {};
    };

    /// What became of a text that was offered.
    struct Outcome
    {
        State state = State::Written; ///< Written, Doubtful or Refused
        QString reason {};
    };

    void shapeReport(const QDomElement& root);
    int addInstance(const Place& place, const QDomElement& element, const ValueBranch& branch, const QString& path,
                    int around);
    void shapeChildren(const Place& place, const ValueBranch& branch, int around);
    static QVector<QDomElement> occurrencesOf(const QVector<QDomElement>& laidOut, int count);
    void shapeChild(const Place& child, const QVector<QDomElement>& laidOut, const ValueBranch& branch, int around);
    void leaveOut(const Place& place, const QDomElement& element, const QString& path);
    void judgeChoices(const Place& place, const ValueBranch& branch, const QString& path);
    void judgeChoice(const std::vector<const Place*>& alternatives, const ValueBranch& branch, const QString& path);

    void answer(const QDomNode& node);
    void setAttributes(Instance& instance);
    void removeDeclaration(const QDomElement& element, const QString& attribute);
    void setAttribute(Instance& instance, const QString& attribute, const QString& type, const Facets& facets);
    void setText(Instance& instance, const Facets& facets);
    void judgeText(const Instance& instance, const QString& text, const Outcome& outcome);
    void tidy(Instance& instance);
    void hold(Instance& instance, const QDomElement& before);
    template <typename Setting>
    QString offer(const QString& text, const QString& type, const QString& call, const Setting& set);
    template <typename Setting, typename Reading>
    Outcome offerChecked(const QString& text, const QString& type, const Facets& facets, const QString& call,
                         const Setting& set, const Reading& read);
    bool isOneOfSeveral(const QString& pattern);
    void setByAttribute(const QString& attribute, const QString& text, const TypedValue& value);

    void finish();
    void release(Instance& instance);
    void removeEmptied(int instance);
    void complainOfSchema(const QString& schema, bool isRead);

    void judge(int value, State state, const QString& path, const QString& reason);
    void judgeElement(State state, const QString& path, const QString& reason);
    void note(const QString& line) const;
    void noteAnnouncement(const Instance& instance) const;

    std::vector<GivenValue> m_values;
    const ReportFiller::Source& m_source;
    const ReportFiller::Journal& m_journal;
    const QTemporaryDir
        m_folder; ///< where the builder writes: it would empty a good report for a schema without a root
    QString m_writtenFile;
    QString m_schema;
    std::optional<QSet<QString>> m_patternsBesideOthers; ///< read when a text breaks a pattern
    XmlCreateReport m_builder;
    QDomDocument m_document;
    std::unique_ptr<SkeletonPlaces> m_places;
    std::vector<Instance> m_instances; ///< in document order
    std::size_t m_next = 0; ///< the instance announced last
    std::vector<std::optional<ReportFiller::Verdict>> m_valueVerdicts; ///< by value
    std::vector<ReportFiller::Verdict> m_elementVerdicts;
    QStringList m_complaints;
    std::vector<ErrorID> m_refusals; ///< of what is being offered
    bool m_bOffering = false;
    bool m_bSchemaRead = false;
};

#endif
