#ifndef XMLHELPER_VCREPORTING_H
#define XMLHELPER_VCREPORTING_H

#include <memory>

#include <QPixmap>
#include <QString>
#include <QWidget>

#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/reportdata.h>
#include <xmlhelper/xmlhelperexport.h>

class Node;
class QTimer;
class QToolBar;
class QToolButton;
class ReportAnswerer;
class VCButton;
class XmlCreateReport;

/// The "To Report" button of a measurement screen: writes the current measurement values as an XML report that conforms
/// to a schema.
///
/// The screen makes the widget with a schema, a directory for the reports and its tool bar, adds the widget to the tool
/// bar, and registers report items that name elements (or attributes) of the schema and the sources of their values.
/// Every ten seconds the widget looks whether schema and directory exist, keeps its button enabled only while both do,
/// and says so with ReportDirAndSchemaAvailable().
///
/// A press runs SlotToReport(): PrepareToReport() gives the screen the opportunity to add or change items, then a
/// report builder (XmlCreateReport) announces the elements of the schema to this widget, which answers with the values
/// of the matching items. A value that the builder refuses for its type is offered as the next one: floating-point
/// number, integer, text, ISO date and time. Elements and attributes called "DateTime" and "DFDateTime" receive the
/// current time. The file is named after the time and lies in the report directory; with the comment dialog it is
/// written when the operator answers. One press of the button is one report: neither a shortcut that is held nor the
/// second click of a double click is a press.
///
/// The widget owns its items, its button and its timer, not the tool bar. Report builders are never deleted, with the
/// comment dialogs that an operator may answer long after the screen is gone. A report that is over leaves no more than
/// these: with the next press, or with the widget, its document goes as soon as no dialog has to write it any more. A
/// node of it that a derived class has kept from an event then stands alone, with its name, its attributes and its
/// text, and without parent, siblings and children; a kept attribute has its name and value, and must not be asked for
/// more.
///
/// The widget may be deleted at any time: in a slot of its signals it ends there; while a report is being filled, which
/// reading a value may be used for, the report is filled with the items it had. Items and schema may change meanwhile;
/// items serve from the next element on, the schema from the next press. A press while a report is being filled is
/// refused; one from a slot of a signal makes a report of its own. Everything runs on the GUI thread.
class XMLHELPER_EXPORT VCReporting : public QWidget, public IXMLHelper
{
    Q_OBJECT

public:
    /// @param schema           the schema file, ending in ".xsd"; a bare file name lies in the application's directory
    /// @param reportDirectory  the directory for the reports; both kinds of slash separate folders on every platform
    /// @param toolBar          the widget's parent, not owned; adding the widget to it is up to the caller
    /// @param createButton     false: no button, and the widget is hidden; reports are made by SlotToReport()
    /// @param objectName       the widget's object name, in UTF-8
    /// @param consume          whether an item is deleted once a report has used it
    /// @param picture          the button's icon; a null one gives the built-in picture
    VCReporting(QString schema, QString reportDirectory, QToolBar* toolBar, bool createButton, const char* objectName,
                bool consume, QPixmap picture);

    /// Deletes the items, the button and the timer.
    ~VCReporting() override;

    /// Changes the schema. The availability is looked at with the next tick, or at once by EnableReportButton().
    /// @param schema  as for the constructor
    /// @return always true
    bool SetSchema(QString schema);

    /// Off: stops the availability watch and disables the button until it is switched on again. On: resumes the watch,
    /// which decides. Does nothing without a button.
    /// @param on  whether to switch on
    void EnableReportButton(bool on);

    /// @return the button, the widget's; null when there is none
    QToolButton* GetReportButton() const;

    /// Whether the operator is asked for a comment before a report is written. Off at first.
    /// @param show  whether to ask
    void SetShowCommentDialog(bool show);

    /// Registers every value below a node of the value tree under its name, see below. Nothing for null.
    /// @param node  not owned, only read
    void AddReportData(Node* node);

    /// Registers an item whose value is looked up in the value tree or is a fixed text. The item is kept even when the
    /// tree does not know the path; it then gives an empty text. Items are asked in the order in which they were
    /// registered; the first one that matches an element wins.
    ///
    /// @param name             the report element or attribute; "parent/child" names an element below a certain parent
    /// @param valuePath        the path of the value in the value tree; empty: there is none
    /// @param fixedText        used only when @p valuePath is empty
    /// @param maxOccurs        how often the element occurs in the report; above 1 it is repeated
    /// @param formatText       kept with the item, not used by this library
    /// @param decimalExponent  numbers are divided by 10 to the power of this
    /// @param unit             for the attribute "Unit" of the element; empty: none
    void AddReportData(const QString& name, const QString& valuePath, const QString& fixedText, int maxOccurs,
                       const QString& formatText, int decimalExponent, const QString& unit);

    /// Registers an item with an explicit text. It reaches the report as an empty text: use a fixed text instead.
    ///
    /// @param name             as above
    /// @param value            the explicit value
    /// @param maxOccurs        as above
    /// @param formatText       as above
    /// @param decimalExponent  as above
    /// @param unit             as above
    [[deprecated("an explicit text is written as an empty one: use AddReportData() with a fixed text")]] void
    AddExplicitReportData(const QString& name, const QString& value, int maxOccurs, const QString& formatText,
                          int decimalExponent, const QString& unit);
    /// Registers an item with an explicit floating-point number, which reaches the report as an empty text.
    /// @copydetails AddExplicitReportData(const QString&,const QString&,int,const QString&,int,const QString&)
    [[deprecated(
        "an explicit double is written as an empty text: use AddReportData() with a value or a fixed text")]] void
    AddExplicitReportData(const QString& name, double value, int maxOccurs, const QString& formatText,
                          int decimalExponent, const QString& unit);
    /// Registers an item with an explicit truth value, written as such.
    /// @copydetails AddExplicitReportData(const QString&,const QString&,int,const QString&,int,const QString&)
    void AddExplicitReportData(const QString& name, bool value, int maxOccurs, const QString& formatText,
                               int decimalExponent, const QString& unit);
    /// Registers an item with an explicit integer, written as such; outside of 32 bits the nearest limit is written.
    /// @copydetails AddExplicitReportData(const QString&,const QString&,int,const QString&,int,const QString&)
    void AddExplicitReportData(const QString& name, long value, int maxOccurs, const QString& formatText,
                               int decimalExponent, const QString& unit);
    /// Does the same with an int, which would fit none of the other types best.
    /// @copydetails AddExplicitReportData(const QString&,const QString&,int,const QString&,int,const QString&)
    void AddExplicitReportData(const QString& name, int value, int maxOccurs, const QString& formatText,
                               int decimalExponent, const QString& unit);
    /// Does the same with an integer without sign.
    /// @copydetails AddExplicitReportData(const QString&,const QString&,int,const QString&,int,const QString&)
    void AddExplicitReportData(const QString& name, unsigned value, int maxOccurs, const QString& formatText,
                               int decimalExponent, const QString& unit);
    /// Does the same with an integer of 64 bits.
    /// @copydetails AddExplicitReportData(const QString&,const QString&,int,const QString&,int,const QString&)
    void AddExplicitReportData(const QString& name, qint64 value, int maxOccurs, const QString& formatText,
                               int decimalExponent, const QString& unit);
    /// A text literal would silently become a bool.
    void AddExplicitReportData(const QString& name, const char* value, int maxOccurs, const QString& formatText,
                               int decimalExponent, const QString& unit)
        = delete;

    /// Deletes the first item of a name; nothing when there is none.
    /// @param name  the item's name
    void DeleteReportData(QString name);

    /// Deletes every item.
    void ClearReportData();

    /// Answers the report builder; not for clients.
    /// @param event  the builder's
    void XmlUpdate(XmlEvent* event) override;

Q_SIGNALS:
    /// A report is about to be made: the last opportunity to add, change or delete items.
    void PrepareToReport();
    /// What the watch has found, sent after every look.
    /// @param available  whether both schema and report directory exist
    void ReportDirAndSchemaAvailable(bool available);
    /// A report was made, and its comment dialog is open when one is wanted. Only ReportNews tells whether its file is
    /// written.
    void ReportSuccessful();
    /// The schema could not be read.
    void ReportNotSuccessful();

public Q_SLOTS:
    /// Makes one report.
    /// @return whether the schema was read; false, without any signal but PrepareToReport(), when the path of the
    ///         schema does not end in ".xsd" or the widget was deleted by then; false, without any signal and with a
    ///         trace, while a report of this widget is being filled. Only ReportNews tells of a file that cannot be
    ///         written.
    bool SlotToReport();

protected:
    /// Translates the button's tool tip anew when the application changes its language, unless it has set another one.
    /// @param event  Qt's
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void SlotCheckFileAndDirectory();

private:
    Q_DISABLE_COPY(VCReporting)

    void SetInputPathToSchema(const QString& schema);
    void createReportButton();
    void press();
    QString newReportPath() const;
    XmlCreateReport* createBuilder();

    void addExplicitItem(const ExplicitReportData& value, const QString& name, int maxOccurs, const QString& formatText,
                         int decimalExponent, const QString& unit);

    QToolBar* m_pToolBar; ///< not owned
    VCButton* m_pReportButton;
    QTimer* m_pCheckTimer;
    QPixmap m_picture;
    bool m_bUnused; ///< set, and not read by this library
    int m_iCheckInterval; ///< milliseconds
    QString m_sSchemaPath;
    QString m_sReportDirectory; ///< with back slashes
    std::shared_ptr<ReportAnswerer> m_pAnswerer; ///< with the items; outlives the widget while it makes a report
    bool m_bShowComment;
    bool m_bPressing; ///< the button has been clicked, and the report is not yet made
    QString m_sToolTip; ///< of the button, as it was set here last
};

#endif
