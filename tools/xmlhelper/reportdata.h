#ifndef XMLHELPER_REPORTDATA_H
#define XMLHELPER_REPORTDATA_H

#include <QString>

#include <xmlhelper/xmlhelperexport.h>

class Tree;
class TreeItem;
class ValueBase;

/// A value given explicitly instead of being looked up: a text, a truth value, a number, or none.
class XMLHELPER_EXPORT ExplicitReportData
{
public:
    /// Which of the members holds the value. The numbers never change.
    enum ExplicitDataType : qint32 {
        EXPLICIT_STRING = 0,
        EXPLICIT_BOOL = 1,
        EXPLICIT_DOUBLE = 2,
        EXPLICIT_LONG = 3,
        EXPLICIT_NONE = 4
    };

    /// No value (EXPLICIT_NONE).
    ExplicitReportData();
    // A value may be given wherever its data is expected. An int fits none better than the others: say which is meant.

    /// A text. @param value  kept as it is
    ExplicitReportData(const QString& value);
    /// A floating-point number. @param value  kept as it is
    ExplicitReportData(double value);
    /// A truth value. @param value  kept as it is
    ExplicitReportData(bool value);
    /// An integer. @param value  kept as it is
    ExplicitReportData(long value);
    /// A text literal would silently become a bool.
    ExplicitReportData(const char* value) = delete;
    /// Copies kind and value.
    /// @param other  copied
    ExplicitReportData(const ExplicitReportData& other);
    /// Copies kind and value.
    /// @param other  copied
    /// @return this object
    ExplicitReportData& operator=(const ExplicitReportData& other);
    virtual ~ExplicitReportData();

    /// @return which of the getters below has the value
    ExplicitDataType GetType() const;
    /// @return the text; empty for the other kinds
    QString GetString() const;
    /// @return the floating-point number; 0 for the other kinds
    double GetDouble() const;
    /// @return the truth value; false for the other kinds
    bool GetBool() const;
    /// @return the integer; 0 for the other kinds
    long GetLong() const;

private:
    ExplicitDataType m_eType;
    QString m_sText;
    double m_dReal;
    bool m_bFlag;
    long m_lInteger;
};

/// One value that a measurement report can carry: the name of a report element and where its value comes from.
///
/// The source is a value of the suite's value tree, found by its path when the item is made, or a fixed text, or a
/// value given explicitly. An item with a usable source is open. Values of the tree are not owned. One that moves to
/// another place, gets another name or gives its path to another is still read, as long as the tree holds it anywhere;
/// finding it again takes a look at the whole tree. One that goes away leaves the item without a value: it stays open,
/// but nothing is read from it. Only while another tree has taken the place of the tree must its values outlive the
/// items that name them.
class XMLHELPER_EXPORT ReportData
{
public:
    /// Looks the value up in the living value tree, if there is one.
    ///
    /// @param name             the report element or attribute; "parent/child" names an element below a certain parent
    /// @param valuePath        the path of the value in the value tree; empty: there is none
    /// @param fixedText        used only when @p valuePath is empty: a path that the tree does not know leaves the
    ///                         item closed
    /// @param maxOccurs        how often the element may occur in the report
    /// @param formatText       kept with the item, not used by this library
    /// @param decimalExponent  every number read from the item is divided by 10 to the power of this
    /// @param unit             for the attribute "Unit" of the element; empty: none
    /// @param ignored          accepted and ignored
    ReportData(const QString& name, const QString& valuePath, const QString& fixedText, int maxOccurs,
               const QString& formatText, int decimalExponent, const QString& unit, bool ignored);
    /// Copies every member, pointers as they are.
    /// @param other  copied
    ReportData(const ReportData& other);
    /// Copies every member, pointers as they are.
    /// @param other  copied
    /// @return this object
    ReportData& operator=(const ReportData& other);
    virtual ~ReportData();

    /// Gives the item an explicit value and opens it.
    /// @param data  copied; one of kind EXPLICIT_NONE opens the item too
    void SetExplicitData(ExplicitReportData data);
    /// @return a copy of the explicit value; of kind EXPLICIT_NONE when none was given
    ExplicitReportData GetExplicitData() const;

    /// @return the report element or attribute
    QString GetName() const;
    /// @return the unit; empty when there is none
    QString GetUnit() const;
    /// @return how often the element may occur in the report
    int GetMaxOccurs() const;

    /// @return the value found in the tree, or null; the tree's, and dangling when it has gone away
    ValueBase* GetVTObject() const;

    /// @return whether the item has a usable source
    bool IsOpen() const;

    /// Reads a number: from the value of the tree, if it is numeric or a selection, else from the fixed text. Explicit
    /// values are not read.
    ///
    /// The number of a selection whose text is a frequency, such as "98.5 MHz", is the one shown, with its prefix (k, m
    /// or M for mega, g), unless the stored number shows the same digits.
    ///
    /// @param value  receives the number
    /// @return false, with @p value untouched, when there is no number; true with @p value untouched for a selection
    ///         whose text ends in "Hz" behind something that is not a number
    bool GetDataValue(double& value) const;

    /// Reads the text of the value of the tree, or the fixed text. Explicit values are not read.
    /// @param value  receives the text
    /// @return false, with @p value untouched, when there is none
    bool GetDataValue(QString& value) const;

    /// Reads an explicit truth value.
    /// @param value  receives it
    /// @return false, with @p value untouched, for every other item
    bool GetDataValue(bool& value) const;

    /// Reads an explicit integer.
    /// @param value  receives it
    /// @return false, with @p value untouched, for every other item
    bool GetDataValue(long& value) const;

private:
    double valueScale() const;
    bool isSourceGone() const;

    QString m_sName;
    QString m_sValuePath;
    QString m_sFixedText; ///< only without a value path
    ValueBase* m_pValue; ///< not owned; never together with the tree entry
    TreeItem* m_pEntry; ///< not owned; what the tree knows under the path when it is no value
    QString m_sFormatText;
    int m_iDecimalExponent;
    int m_iMaxOccurs;
    QString m_sUnit;
    bool m_bOpen;
    [[maybe_unused]] void* m_pReserved; ///< always null
    ExplicitReportData m_explicitData;

    const Tree* m_pTree; ///< where the value was looked up; compared, never followed
};

#endif
