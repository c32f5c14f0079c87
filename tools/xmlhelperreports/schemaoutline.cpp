#include "schemaoutline_p.h"

#include <algorithm>

#include <QXmlAttributes>

#include <xmlhelper/schemafault_p.h>
#include <xmlhelper/schemareadinglog_p.h>

#include "reportfiller.h"

QT_WARNING_DISABLE_DEPRECATED

/// What the schema says of a declaration beyond what the library reads.
struct SchemaOutline::Declaration
{
    Texts documentation;
    bool isRequired = false; ///< of an attribute
    QString value {}; ///< fixed or default
};

/// Hears the words of a schema's author, and which element of the skeleton they belong to.
class SchemaOutline::Log final : public SchemaFault
{
public:
    /// An element of the skeleton.
    struct LaidOut
    {
        QDomElement element;
        const Declaration* reference; ///< null without one
        const Declaration* declaration;
        std::map<QString, const Declaration*> attributes;
    };

    bool HearsLayout() const override { return true; }
    const std::vector<LaidOut>& GetLaidOut() const { return m_laidOut; }

    void FileBegun(int file, const QString& written, const QString& opened, const SchemaTag& include,
                   bool isAgain) override
    {
        SchemaFault::FileBegun(file, written, opened, include, isAgain);
        m_filesBegunAt.push_back(m_open.size());
    }

    void FileEnded(int) override
    {
        m_open.resize(m_filesBegunAt.back()); // Tags of a malformed one have not ended.
        m_filesBegunAt.pop_back();
    }

    void TagBegun(const SchemaTag& tag, const QString& name, int) override { m_open.push_back({tag, name, {}, {}}); }

    void AttributesRead(const QXmlAttributes& attributes) override
    {
        OpenTag& tag = m_open.back();
        tag.language = attributes.value(QStringLiteral("xml:lang"));
        if (tag.name == QLatin1String("xs:attribute")) {
            Declaration& declaration = m_declarations[keyOf(tag.tag)];
            declaration.isRequired = attributes.value(QStringLiteral("use")) == QLatin1String("required");
            for (const auto& word : {QStringLiteral("fixed"), QStringLiteral("default")}) {
                declaration.value = attributes.index(word) < 0 ? declaration.value : attributes.value(word);
            }
        }
    }

    void TextRead(const QString& text) override
    {
        if (isDocumentation(m_open.size() - 1)) {
            m_open.back().text += text;
        } else if (isDocumentation(m_open.size() - 2)) { // That of a tag for emphasis and its like.
            m_open[m_open.size() - 2].text += text;
        }
    }

    void TagEnded() override
    {
        const OpenTag& tag = m_open.back();
        const QString text = tag.text.simplified();
        if (!text.isEmpty() && m_open.size() > 2) {
            m_declarations[keyOf(m_open[m_open.size() - 3].tag)].documentation.push_back({tag.language, text});
        }
        m_open.pop_back();
    }

    void ElementLaidOut(const QDomElement& element, const SchemaTag& declaration, const SchemaTag& reference) override
    {
        m_laidOut.push_back({element, find(reference), find(declaration), {}});
    }

    void AttributeLaidOut(const QDomElement&, const QString& name, AttributeKind kind, const SchemaTag& tag) override
    {
        if (kind == AttributeKind::Declared) {
            m_laidOut.back().attributes[name] = find(tag);
        }
    }

private:
    struct OpenTag
    {
        SchemaTag tag;
        QString name;
        QString language;
        QString text;
    };

    static std::pair<int, int> keyOf(const SchemaTag& tag) { return {tag.file, tag.number}; }

    bool isDocumentation(std::size_t tag) const
    {
        return tag > 1 && tag < m_open.size() && m_open[tag].name == QLatin1String("xs:documentation");
    }

    const Declaration* find(const SchemaTag& tag) const
    {
        const auto found = m_declarations.find(keyOf(tag));
        return found == m_declarations.end() ? nullptr : &found->second;
    }

    std::vector<OpenTag> m_open;
    std::vector<std::size_t> m_filesBegunAt; ///< how many tags were open
    std::map<std::pair<int, int>, Declaration> m_declarations; ///< by file and number of the tag
    std::vector<LaidOut> m_laidOut;
};

namespace {

/// Stands on the elements of the skeleton for their numbers. No name of XML looks so.
QString numberMark()
{
    return QStringLiteral("#");
}

} // namespace

SchemaOutline::SchemaOutline()
    : m_builder(this)
    , m_log(std::make_unique<Log>())
{
}

SchemaOutline::~SchemaOutline()
{
    m_places.reset();
    m_log.reset();
    ReportFiller::release(m_builder);
}

bool SchemaOutline::Read(const QString& schemaPath)
{
    const QDomDocument* const skeleton = ReportFiller::layOut(m_builder, schemaPath, *m_log);
    if (!skeleton || skeleton->documentElement().isNull()) {
        m_sReason = m_log->GetReason();
        return false;
    }
    m_places = std::make_unique<SkeletonPlaces>(skeleton->documentElement(), ReportFiller::alternativesOf(m_builder),
                                                [this](const QDomElement& element, int count) {
                                                    return ReportFiller::isCountAllowed(m_builder, element, count);
                                                });
    int number = 0;
    for (const Log::LaidOut& one : m_log->GetLaidOut()) {
        QDomElement(one.element).setAttribute(numberMark(), number++);
    }
    enter(GetRoot());
    return true;
}

void SchemaOutline::enter(const Place& place)
{
    m_laidOut.insert(&place, place.element.attribute(numberMark(), QStringLiteral("-1")).toInt());
    for (const auto& child : place.children) {
        if (!m_children.contains({&place, child->name})) { // The first of a name that stands at several places.
            m_children.insert({&place, child->name}, child.get());
        }
        enter(*child);
    }
}

const Place* SchemaOutline::FindChild(const Place* place, const QString& name) const
{
    return place ? m_children.value({place, name}) : nullptr;
}

QString SchemaOutline::DocumentationOf(const Place& place, const QString& language) const
{
    const int number = m_laidOut.value(&place, -1);
    if (number < 0) {
        return QString();
    }
    const Log::LaidOut& laidOut = m_log->GetLaidOut()[std::size_t(number)];
    const QString ofReference = textIn(laidOut.reference, language);
    return ofReference.isEmpty() ? textIn(laidOut.declaration, language) : ofReference;
}

QString SchemaOutline::DocumentationOf(const Place& place, const QString& attribute, const QString& language) const
{
    return textIn(declarationOf(place, attribute), language);
}

QString SchemaOutline::textIn(const Declaration* declaration, const QString& language)
{
    if (!declaration || declaration->documentation.empty()) {
        return QString();
    }
    const Texts& texts = declaration->documentation;
    const auto wanted = std::find_if(texts.begin(), texts.end(), [&](const auto& text) {
        return text.first.section(QLatin1Char('-'), 0, 0).compare(language, Qt::CaseInsensitive) == 0;
    });
    return wanted == texts.end() ? texts.front().second : wanted->second;
}

const SchemaOutline::Declaration* SchemaOutline::declarationOf(const Place& place, const QString& attribute) const
{
    const int number = m_laidOut.value(&place, -1);
    if (number < 0) {
        return nullptr;
    }
    const auto& attributes = m_log->GetLaidOut()[std::size_t(number)].attributes;
    const auto found = attributes.find(attribute);
    return found == attributes.end() ? nullptr : found->second;
}

bool SchemaOutline::IsRequired(const Place& place, const QString& attribute) const
{
    const Declaration* const declaration = declarationOf(place, attribute);
    return declaration && declaration->isRequired;
}

QString SchemaOutline::ValueOfSchema(const Place& place, const QString& attribute) const
{
    const Declaration* const declaration = declarationOf(place, attribute);
    return declaration ? declaration->value : QString();
}

QString SchemaOutline::PlaceholderOf(const Place& place, const QString& attribute)
{
    return place.element.attribute(attribute);
}

void SchemaOutline::XmlUpdate(XmlEvent*) { }
