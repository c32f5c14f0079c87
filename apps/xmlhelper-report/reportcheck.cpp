#include "reportcheck.h"

#include <algorithm>
#include <utility>

#include <QFileInfo>
#include <QHash>
#include <QMap>

#include "elementpaths.h"
#include "rules/rule.h"
#include "texts.h"
#include "validation.h"
#include "xmlfile.h"

namespace reportcheck {

namespace {

ReportElement reportElement(const xmlNode* node)
{
    ReportElement element;
    element.name = qualifiedNameOf(node);
    element.isRoot = !node->parent || node->parent->type != XML_ELEMENT_NODE;
    for (const xmlNode* child = node->children; child; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            element.hasChildElements = true;
        } else if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
            element.text += textOf(child->content);
        }
    }
    for (const xmlAttr* attribute = node->properties; attribute; attribute = attribute->next) {
        element.attributes.push_back({qualifiedNameOf(attribute), valueOf(attribute)});
    }
    return element;
}

const xmlNode* nextInDocumentOrder(const xmlNode* node)
{
    if (node->children && node->type == XML_ELEMENT_NODE) {
        return node->children;
    }
    while (node && !node->next) {
        node = node->parent;
    }
    return node ? node->next : nullptr;
}

SchemaLocation schemaLocationIn(const xmlNode* root, const QString& report, const QString& givenSchema)
{
    SchemaLocation location;
    location.isGiven = !givenSchema.isEmpty();
    const ReportElement rootElement = reportElement(root);
    if (const ReportAttribute* const attribute = rootElement.Find(QStringLiteral("xsi:noNamespaceSchemaLocation"))) {
        location.written = attribute->value;
        location.foundFile = findSchema(attribute->value, report);
    }
    return location;
}

class Check
{
public:
    Check(const xmlNode* root, Result& result, RuleContext context)
        : m_pRoot(root)
        , m_result(result)
        , m_context(std::move(context))
    {
    }

    void ApplyRules(ElementPaths& paths)
    {

        for (const xmlNode* node = m_pRoot; node; node = nextInDocumentOrder(node)) {
            if (node->type == XML_ELEMENT_NODE) {
                applyRulesTo(node, paths);
            }
        }
        for (const Finding& last : std::as_const(m_leftOut)) {
            m_result.findings.push_back(last);
        }
    }

private:
    void applyRulesTo(const xmlNode* node, ElementPaths& paths)
    {
        const ReportElement element = reportElement(node);
        for (const Rule& rule : allRules()) {
            for (const Remark& remark : rule.apply(element, m_context)) {
                if (++m_counts[rule.name] > MaxFindingsOfARule) {
                    leaveOut(rule, remark);
                    continue;
                }
                m_result.findings.push_back({remark.severity, QLatin1String(rule.name), m_result.report, lineOf(node),
                                             paths.PathOf(node), remark.text, remark.advice});
            }
        }
    }

    void leaveOut(const Rule& rule, const Remark& remark)
    {
        Finding& last = m_leftOut[rule.name];
        last.severity = last.rule.isEmpty() ? remark.severity : std::max(last.severity, remark.severity);
        last.rule = QLatin1String(rule.name);
        last.file = m_result.report;
        last.count = m_counts[rule.name] - MaxFindingsOfARule;
        last.text = Texts::tr("%1 more of this kind are left out.").arg(last.count);
    }

    const xmlNode* m_pRoot;
    Result& m_result;
    const RuleContext m_context;
    QHash<const char*, int> m_counts; ///< of remarks, by the name of the rule
    QMap<QByteArray, Finding> m_leftOut; ///< by the name of the rule
};

QString withLine(const ReadFile& read)
{
    return read.line > 0 ? Texts::tr("line %1: %2").arg(read.line).arg(read.reason) : read.reason;
}

bool hasAny(const std::vector<Finding>& findings, Severity severity)
{
    return std::any_of(findings.begin(), findings.end(),
                       [severity](const Finding& finding) { return finding.severity == severity; });
}

const char* englishFor(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return QT_TRANSLATE_NOOP("ReportCheck", "note");
    case Severity::Warning:
        return QT_TRANSLATE_NOOP("ReportCheck", "warning");
    case Severity::Error:
        break;
    }
    return QT_TRANSLATE_NOOP("ReportCheck", "error");
}

} // namespace

Result checkReport(const QString& report, const QString& schema)
{
    Result result;
    result.report = report;
    const ReadFile read = readXmlFile(report);
    if (!read.document) {
        result.unreadableReason = withLine(read);
        return result;
    }
    const xmlNode* const root = xmlDocGetRootElement(read.document.get());
    const SchemaLocation location = schemaLocationIn(root, report, schema);
    result.schema = location.isGiven ? schema : location.foundFile;
    if (location.isGiven && !QFileInfo(schema).isFile()) {
        result.schema.clear();
        result.unreadableReason = Texts::tr("There is no schema \"%1\".").arg(schema);
        return result;
    }

    ElementPaths paths;
    RuleContext context;
    context.location = location;
    if (!result.schema.isEmpty()) {
        context.declared = DeclaredAttributes::FromSchema(result.schema);
        Validation validation = validate(read.document.get(), report, result.schema, paths);
        result.isValidated = validation.isDone;
        result.isStopped = validation.isStopped;
        result.validation = std::move(validation.messages);
    }
    Check(root, result, context).ApplyRules(paths);
    return result;
}

ExitStatus exitStatusOf(const Result& result)
{
    if (!result.IsReadable()) {
        return Unreadable;
    }
    if (hasAny(result.findings, Severity::Error) || hasAny(result.validation, Severity::Error)) {
        return HasErrors;
    }
    if (hasAny(result.findings, Severity::Warning) || hasAny(result.validation, Severity::Warning)) {
        return HasWarnings;
    }
    return NothingToSay;
}

QString nameOf(Severity severity)
{
    return QString::fromLatin1(englishFor(severity));
}

QString wordFor(Severity severity)
{
    return Texts::tr(englishFor(severity));
}

} // namespace reportcheck
