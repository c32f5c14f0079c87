#include "reportdata.h"

#include <cmath>

#include <valueframework/ivaluenumeric.h>
#include <valueframework/tree.h>
#include <valueframework/treeitem.h>
#include <valueframework/valuebase.h>
#include <valueframework/valueselection.h>

#include "numberconversion_p.h"
#include "treesnapshot_p.h"

namespace {

const QLatin1String FrequencyUnit("Hz");

/// What a unit prefix multiplies by; 0 for anything else. A small m means mega here: receivers show no millihertz.
double prefixFactor(QChar prefix)
{
    switch (prefix.unicode()) {
    case ' ':
        return 1.0;
    case 'k':
    case 'K':
        return 1e3;
    case 'm':
    case 'M':
        return 1e6;
    case 'g':
    case 'G':
        return 1e9;
    default:
        return 0.0;
    }
}

/// Reads the frequency that a selection shows. Gives false, with @p frequency untouched, when it shows none.
bool readShownFrequency(const QString& shownText, double stored, double& frequency)
{
    QString text = shownText;
    text.remove(shownText.right(FrequencyUnit.size()));
    const QChar prefix = text.isEmpty() ? QChar() : text.at(text.size() - 1);
    double factor = prefixFactor(prefix);
    if (factor != 0.0) {
        text.remove(prefix);
    } else {
        factor = 1.0;
    }
    text = text.trimmed();
    bool isNumber = false;
    const double shown = text.toDouble(&isNumber) * factor;
    if (isNumber) {
        // The stored number already is what is displayed when it shows the same digits.
        frequency = toReportText(stored).contains(text) ? stored : shown;
    }
    return isNumber;
}

} // namespace

ExplicitReportData::ExplicitReportData()
    : m_eType(EXPLICIT_NONE)
    , m_dReal(0.0)
    , m_bFlag(false)
    , m_lInteger(0)
{
}

ExplicitReportData::ExplicitReportData(const QString& value)
    : ExplicitReportData()
{
    m_eType = EXPLICIT_STRING;
    m_sText = value;
}

ExplicitReportData::ExplicitReportData(double value)
    : ExplicitReportData()
{
    m_eType = EXPLICIT_DOUBLE;
    m_dReal = value;
}

ExplicitReportData::ExplicitReportData(bool value)
    : ExplicitReportData()
{
    m_eType = EXPLICIT_BOOL;
    m_bFlag = value;
}

ExplicitReportData::ExplicitReportData(long value)
    : ExplicitReportData()
{
    m_eType = EXPLICIT_LONG;
    m_lInteger = value;
}

ExplicitReportData::ExplicitReportData(const ExplicitReportData& other) = default;
ExplicitReportData& ExplicitReportData::operator=(const ExplicitReportData& other) = default;
ExplicitReportData::~ExplicitReportData() = default;

ExplicitReportData::ExplicitDataType ExplicitReportData::GetType() const
{
    return m_eType;
}

QString ExplicitReportData::GetString() const
{
    return m_sText;
}

double ExplicitReportData::GetDouble() const
{
    return m_dReal;
}

bool ExplicitReportData::GetBool() const
{
    return m_bFlag;
}

long ExplicitReportData::GetLong() const
{
    return m_lInteger;
}

ReportData::ReportData(const QString& name, const QString& valuePath, const QString& fixedText, int maxOccurs,
                       const QString& formatText, int decimalExponent, const QString& unit, bool)
    : m_sName(name)
    , m_sValuePath(valuePath)
    , m_pValue(nullptr)
    , m_pEntry(nullptr)
    , m_sFormatText(formatText)
    , m_iDecimalExponent(decimalExponent)
    , m_iMaxOccurs(maxOccurs)
    , m_sUnit(unit)
    , m_bOpen(false)
    , m_pReserved(nullptr)
    , m_pTree(Tree::Instance())
{
    if (valuePath.isEmpty()) {
        m_sFixedText = fixedText;
    } else if (m_pTree) {
        m_pValue = m_pTree->GetValue(valuePath);
        m_pEntry = m_pValue ? nullptr : m_pTree->GetTreeItem(valuePath);
    }
    m_bOpen = m_pValue || m_pEntry || !m_sFixedText.isEmpty();
}

ReportData::ReportData(const ReportData& other) = default;
ReportData& ReportData::operator=(const ReportData& other) = default;

ReportData::~ReportData()
{
    m_pValue = nullptr;
}

void ReportData::SetExplicitData(ExplicitReportData data)
{
    m_explicitData = data;
    m_bOpen = true;
}

ExplicitReportData ReportData::GetExplicitData() const
{
    return m_explicitData;
}

QString ReportData::GetName() const
{
    return m_sName;
}

QString ReportData::GetUnit() const
{
    return m_sUnit;
}

int ReportData::GetMaxOccurs() const
{
    return m_iMaxOccurs;
}

ValueBase* ReportData::GetVTObject() const
{
    return m_pValue;
}

bool ReportData::IsOpen() const
{
    return m_bOpen;
}

bool ReportData::GetDataValue(double& value) const
{
    if (isSourceGone()) {
        return false;
    }
    if (const auto* const numeric = dynamic_cast<const IValueNumeric*>(m_pValue)) {
        value = numeric->GetNumericValue() / valueScale();
        return true;
    }
    if (const auto* const selection = dynamic_cast<const ValueSelection*>(m_pValue)) {
        double number = selection->GetNumericValue();
        const QString text = selection->GetText();
        // A text in Hz without a number is no refusal: the value stays what it was.
        if (!text.contains(FrequencyUnit) || readShownFrequency(text, number, number)) {
            value = number / valueScale();
        }
        return true;
    }
    bool isNumber = false;
    const double number = m_sFixedText.toDouble(&isNumber);
    if (isNumber) {
        value = number / valueScale();
    }
    return isNumber;
}

bool ReportData::GetDataValue(QString& value) const
{
    if (isSourceGone()) {
        return false;
    }
    if (m_pValue) {
        value = m_pValue->GetText();
    } else if (m_pEntry) {
        value = m_pEntry->GetText();
    } else if (!m_sFixedText.isEmpty()) {
        value = m_sFixedText;
    } else {
        return false;
    }
    return true;
}

bool ReportData::GetDataValue(bool& value) const
{
    const bool isFlag = m_explicitData.GetType() == ExplicitReportData::EXPLICIT_BOOL;
    if (isFlag) {
        value = m_explicitData.GetBool();
    }
    return isFlag;
}

bool ReportData::GetDataValue(long& value) const
{
    const bool isInteger = m_explicitData.GetType() == ExplicitReportData::EXPLICIT_LONG;
    if (isInteger) {
        value = m_explicitData.GetLong();
    }
    return isInteger;
}

double ReportData::valueScale() const
{
    return std::pow(10.0, m_iDecimalExponent);
}

/// Whether the tree no longer holds the object that it had under the path, where it is looked for first. Another tree
/// that has taken the place of the tree since cannot tell.
bool ReportData::isSourceGone() const
{
    if (!m_pValue && !m_pEntry) {
        return false;
    }
    const Tree* const tree = Tree::Instance();
    if (!tree || tree != m_pTree) {
        return !tree;
    }
    if (m_pValue) {
        return tree->GetValue(m_sValuePath) != m_pValue && !TreeSnapshot::Holds(*tree, m_pValue);
    }
    return tree->GetTreeItem(m_sValuePath) != m_pEntry && !TreeSnapshot::Holds(*tree, m_pEntry);
}
