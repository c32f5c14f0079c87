#include "schemawriter.h"

#include <utility>

#include "documentation.h"
#include "mendwords.h"

namespace schemadoctor {

namespace {

QString attribute(const char* name, const QString& value)
{
    return QStringLiteral(" %1=\"%2\"").arg(QLatin1String(name), value.toHtmlEscaped());
}

QString occurs(const MendedElement& element)
{
    QString text;
    if (element.minOccurs != 1) {
        text += attribute("minOccurs", QString::number(element.minOccurs));
    }
    if (element.maxOccurs == MendedElement::Unbounded) {
        text += attribute("maxOccurs", QStringLiteral("unbounded"));
    } else if (element.maxOccurs != 1) {
        text += attribute("maxOccurs", QString::number(element.maxOccurs));
    }
    return text;
}

QString defaultOf(const SimpleValue& value, const QString& text)
{
    const bool isAllowed = value.enumeration.isEmpty() || value.enumeration.contains(text);
    return text.isEmpty() || !isAllowed ? QString() : attribute("default", text);
}

} // namespace

SchemaWriter::SchemaWriter(const SchemaSet& set, RewriteLog& log, MendedElement root)
    : m_set(set)
    , m_log(log)
    , m_names(set, log, root)
{
    plan(root);
    m_text.clear();
    m_lines = 0;
    m_particles.clear();
    writeHead();
    for (const GlobalNames::Type& type : m_names.GetTypes()) {
        writeType(type);
    }
    for (const MendedAttribute& one : m_names.GetAttributes()) {
        writeAttribute(one);
    }
    for (const auto& [body, element] : m_globals) {
        writeElement(element, 1, true);
        write(0, QString());
    }
    writeElement(root, 1, true);
    write(0, QStringLiteral("</xs:schema>"));
}

const TextNode* SchemaWriter::ParticleAt(int line) const
{
    const auto found = m_particles.find(line);
    return found == m_particles.end() ? nullptr : found->second;
}

/// What is referred to stands in front of what refers to it.
void SchemaWriter::plan(MendedElement& element)
{
    for (MendedElement& child : element.children) {
        plan(child);
    }
    for (MendedElement* const child : GlobalNames::NeedingGlobals(element.children)) {
        planGlobal(*child);
    }
    for (const MendedElement& child : element.children) {
        tellReference(child);
    }
}

void SchemaWriter::planGlobal(MendedElement& element)
{
    const auto [known, isNew] = m_globalIndex.emplace(element.name, m_globals.size());
    const QString body = bodyOf(element);
    if (isNew) {
        m_globals.emplace_back(body, element);
    }
    element.isReference = m_globals[known->second].first == body;
    if (!element.isReference && element.minOccurs > 1
        && m_log.Change(*element.particle, Mend::tr("'%1', required %2 times").arg(element.name).arg(element.minOccurs),
                        Mend::tr("required once"))) {
        element.minOccurs = 1;
    }
}

void SchemaWriter::tellReference(const MendedElement& element)
{
    const TextNode& particle = *element.particle;
    const bool isWritten = particle.Has("ref");
    // What is global has the namespace; what stands in its place has it only where that is the default.
    const auto tell
        = isNamespaceKept() && m_set.GetTop().root->Value("elementFormDefault") != QLatin1String("qualified")
        ? &RewriteLog::Lose
        : &RewriteLog::Narrow;
    if (isWritten && !element.isReference) {
        (m_log.*tell)(particle, Mend::tr("a reference to '%1'").arg(element.name),
                      Mend::tr("the element in its place"));
    } else if (element.isReference && !isWritten) {
        (m_log.*tell)(*element.declaration, Mend::tr("the element '%1'").arg(element.name),
                      Mend::tr("a global element in front of a reference to it"));
    } else if (element.isReference && !m_set.IsBefore(*element.declaration, particle)) {
        m_log.Narrow(*element.declaration, Mend::tr("the element '%1'").arg(element.name),
                     Mend::tr("a global element in front of a reference to it"));
    }
}

/// The text of a global element, whatever the lines.
QString SchemaWriter::bodyOf(const MendedElement& element)
{
    const QString text = std::exchange(m_text, QString());
    writeElement(element, 1, true);
    return std::exchange(m_text, text);
}

bool SchemaWriter::isNamespaceKept() const
{
    return m_log.IsFormatKept() && m_set.GetTop().root->Has("targetNamespace");
}

void SchemaWriter::tellForms()
{
    for (const TextFile* const file : m_set.GetFiles()) {
        for (const TextNode* const tag : file->tags) {
            if (tag->Has("form")) {
                m_log.Lose(*tag, QStringLiteral("form='%1'").arg(tag->Value("form")), Mend::tr("nothing"));
            }
        }
    }
}

void SchemaWriter::writeHead()
{
    const TextNode& schema = *m_set.GetTop().root;
    write(0, QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    writeComments(schema.comments, 0);
    const QString space = schema.Value("targetNamespace");
    QString head = QStringLiteral("<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"");
    if (!space.isEmpty()
        && !m_log.Change(schema, Mend::tr("the target namespace '%1'").arg(space), Mend::tr("no namespace"))) {
        head += attribute("xmlns", space) + attribute("targetNamespace", space);
        for (const char* const form : {"elementFormDefault", "attributeFormDefault"}) {
            head += schema.Has(form) ? attribute(form, schema.Value(form)) : QString();
        }
        tellForms();
    }
    write(0, head + QLatin1Char('>'));
    const QStringList texts = documentationOf(schema);
    if (!texts.isEmpty()) {
        writeDocumentation(texts, 1);
        write(0, QString());
    }
}

void SchemaWriter::writeType(const GlobalNames::Type& type)
{
    const TextNode* const definition = type.value.definition;
    const bool isDefined = definition && definition->Is("simpleType");
    writeComments(isDefined ? definition->comments : QStringList(), 1);
    write(1, QStringLiteral("<xs:simpleType") + attribute("name", type.name) + QLatin1Char('>'));
    writeDocumentation(isDefined ? documentationOf(*definition) : QStringList(), 2);
    writeRestriction(type.value, 2);
    write(1, QStringLiteral("</xs:simpleType>"));
    write(0, QString());
}

void SchemaWriter::writeRestriction(const SimpleValue& value, int level)
{
    write(level, QStringLiteral("<xs:restriction") + attribute("base", m_names.BaseOf(value)) + QLatin1Char('>'));
    for (const QString& text : value.enumeration) {
        write(level + 1, QStringLiteral("<xs:enumeration") + attribute("value", text) + QLatin1String("/>"));
    }
    for (const auto& facet : value.facets) {
        write(level + 1, QLatin1String("<xs:") + facet.first + attribute("value", facet.second) + QLatin1String("/>"));
    }
    write(level, QStringLiteral("</xs:restriction>"));
}

void SchemaWriter::writeInlineType(const SimpleValue& value, int level)
{
    write(level, QStringLiteral("<xs:simpleType>"));
    writeRestriction(value, level + 1);
    write(level, QStringLiteral("</xs:simpleType>"));
}

void SchemaWriter::writeAttribute(const MendedAttribute& one)
{
    if (isNamespaceKept() && !one.declaration->IsGlobal()) {
        m_log.Lose(*one.declaration, Mend::tr("the attribute '%1'").arg(one.name), Mend::tr("a global attribute"));
    }
    writeComments(one.declaration->comments, 1);
    write(1, QStringLiteral("<xs:attribute") + attribute("name", one.name) + QLatin1Char('>'));
    writeDocumentation(documentationOf(*one.declaration), 2);
    writeInlineType(one.value, 2);
    write(1, QStringLiteral("</xs:attribute>"));
    write(0, QString());
}

void SchemaWriter::writeElement(const MendedElement& element, int level, bool isGlobal)
{
    writeComments(element.comments, level);
    QString tag = QStringLiteral("<xs:element") + attribute("name", element.name);
    if (element.IsPlain()) {
        tag += attribute("type", m_names.TypeOf(element));
    }
    tag += (isGlobal ? QString() : occurs(element)) + defaultOf(element.value, element.defaultValue);
    m_particles[m_lines + 1] = element.particle;
    if (element.IsPlain() && element.documentation.isEmpty()) {
        write(level, tag + QLatin1String("/>"));
        return;
    }
    write(level, tag + QLatin1Char('>'));
    writeDocumentation(element.documentation, level + 1);
    if (!element.IsPlain()) {
        writeComplexType(element, level + 1);
    }
    write(level, QStringLiteral("</xs:element>"));
}

void SchemaWriter::writeComplexType(const MendedElement& element, int level)
{
    if (!element.hasValue && element.children.empty() && element.attributes.empty()) {
        write(level, QStringLiteral("<xs:complexType/>"));
        return;
    }
    write(level, QStringLiteral("<xs:complexType>"));
    if (element.hasValue) {
        write(level + 1, QStringLiteral("<xs:simpleContent>"));
        write(level + 2, QStringLiteral("<xs:extension base=\"%1\">").arg(m_names.TypeOf(element)));
        writeUses(element.attributes, level + 3);
        write(level + 2, QStringLiteral("</xs:extension>"));
        write(level + 1, QStringLiteral("</xs:simpleContent>"));
    } else {
        writeContent(element.children, level + 1);
        writeUses(element.attributes, level + 1);
    }
    write(level, QStringLiteral("</xs:complexType>"));
}

void SchemaWriter::writeContent(const MendedContent& content, int level)
{
    if (content.empty()) {
        return;
    }
    write(level, QStringLiteral("<xs:sequence>"));
    for (std::size_t index = 0; index < content.size(); ++index) {
        const MendedElement& element = content[index];
        const MendedElement* const before = index > 0 ? &content[index - 1] : nullptr;
        const MendedElement* const after = index + 1 < content.size() ? &content[index + 1] : nullptr;
        const bool isChoice = element.choice != MendedElement::None;
        const bool isFirst = isChoice && (!before || before->choice != element.choice);
        const bool isLast = isChoice && (!after || after->choice != element.choice);
        const bool isBranchOpen = isChoice && !isFirst && before->branch == element.branch;
        const bool isBranchLeft = isChoice && !isLast && after->branch == element.branch;
        const int inner = level + 1 + (isChoice ? 1 : 0);
        if (isFirst) {
            write(level + 1, QStringLiteral("<xs:choice>"));
        }
        if (!isBranchOpen && isBranchLeft) {
            write(inner, QStringLiteral("<xs:sequence>"));
        }
        writeChild(element, inner + (isBranchOpen || isBranchLeft ? 1 : 0));
        if (isBranchOpen && !isBranchLeft) {
            write(inner, QStringLiteral("</xs:sequence>"));
        }
        if (isLast) {
            write(level + 1, QStringLiteral("</xs:choice>"));
        }
    }
    write(level, QStringLiteral("</xs:sequence>"));
}

void SchemaWriter::writeChild(const MendedElement& element, int level)
{
    if (!element.isReference) {
        writeElement(element, level, false);
        return;
    }
    m_particles[m_lines + 1] = element.particle;
    write(level,
          QStringLiteral("<xs:element") + attribute("ref", element.name) + occurs(element) + QLatin1String("/>"));
}

void SchemaWriter::writeUses(const std::vector<MendedAttribute>& attributes, int level)
{
    for (const MendedAttribute& one : attributes) {
        const bool isGlobal = GlobalNames::IsGlobal(one);
        const QString type = one.isInPlace ? QString() : attribute("type", QLatin1String("xs:") + one.value.base);
        const QString tag = QStringLiteral("<xs:attribute")
            + (isGlobal ? attribute("ref", one.name) : attribute("name", one.name) + type)
            + (one.isRequired ? attribute("use", QStringLiteral("required")) : defaultOf(one.value, one.defaultValue));
        const QStringList texts = isGlobal ? QStringList() : documentationOf(*one.declaration);
        writeComments(isGlobal ? QStringList() : one.reference->comments, level);
        const bool isClosed = texts.isEmpty() && !one.isInPlace;
        write(level, tag + QLatin1String(isClosed ? "/>" : ">"));
        writeDocumentation(texts, level + 1);
        if (one.isInPlace) {
            writeInlineType(one.value, level + 1);
        }
        if (!isClosed) {
            write(level, QStringLiteral("</xs:attribute>"));
        }
    }
}

void SchemaWriter::writeComments(const QStringList& comments, int level)
{
    for (const QString& comment : comments) {
        write(level, QStringLiteral("<!--%1-->").arg(comment));
    }
}

void SchemaWriter::writeDocumentation(const QStringList& texts, int level)
{
    if (texts.isEmpty()) {
        return;
    }
    write(level, QStringLiteral("<xs:annotation>"));
    for (const QString& text : texts) {
        const QStringList lines = text.toHtmlEscaped().split(QLatin1Char('\n'));
        if (lines.size() == 1) {
            write(level + 1, QStringLiteral("<xs:documentation>%1</xs:documentation>").arg(lines.first()));
            continue;
        }
        write(level + 1, QStringLiteral("<xs:documentation>"));
        for (const QString& line : lines) {
            write(level + 2, line.trimmed());
        }
        write(level + 1, QStringLiteral("</xs:documentation>"));
    }
    write(level, QStringLiteral("</xs:annotation>"));
}

void SchemaWriter::write(int level, const QString& line)
{
    m_text += (line.isEmpty() ? QString() : QString(level * 4, QLatin1Char(' '))) + line + QLatin1Char('\n');
    m_lines += 1 + int(line.count(QLatin1Char('\n')));
}

} // namespace schemadoctor
