#include "schemarecord.h"

#include <algorithm>
#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QXmlSimpleReader>

#include <xmlhelper/filesaving_p.h>
#include <xmlhelper/ixmlhelper.h>
#include <xmlhelper/limits_p.h>
#include <xmlhelper/xmlschemahandler.h>

#include "doctorlimits.h"
#include "model/texts.h"

QT_WARNING_DISABLE_DEPRECATED

namespace schemadoctor {

namespace {

/// Schema reading asks for an observer and sends it nothing.
class SilentObserver : public IXMLHelper
{
public:
    void XmlUpdate(XmlEvent*) override { }
};

IXMLHelper* observer()
{
    static SilentObserver silent;
    return &silent;
}

Limits limitsOfTheDoctor()
{
    Limits limits;
    limits.schemaBytes = MaxSchemaBytes;
    limits.elements = MaxShownElements;
    limits.elementsOfAllDefinitions = MaxSkeletonElements;
    limits.attributes = MaxLaidOutAnnotations;
    limits.copiedEnumerationValues = MaxLaidOutAnnotations;
    return limits;
}

bool isBelowFolder(const QString& fileName, const QString& folder)
{
    const QString path = QDir::cleanPath(QFileInfo(fileName).absoluteFilePath());
    return path.startsWith(QDir::cleanPath(QFileInfo(folder).absolutePath()) + QLatin1Char('/'));
}

/// A trace ends with more emphasis.
QString asSentence(QString trace)
{
    return trace.endsWith(QLatin1Char('!')) ? trace.replace(trace.size() - 1, 1, QLatin1Char('.')) : trace;
}

} // namespace

SchemaRecord::SchemaRecord(SchemaText& text, const QString& file)
    : m_text(text)
{
    const LimitsInForce inForce(limitsOfTheDoctor());
    const QString schemaPath = QString(file).replace(QLatin1Char('\\'), QLatin1Char('/'));
    m_includes.written = file;
    m_handler = std::make_unique<XmlSchemaHandler>(observer(), schemaPath);
    m_handler->SetLog(this);
    QXmlSimpleReader parser;
    m_handler->ReadFile(openableFileName(file), parser);
    m_handler->HandOver(m_unresolvedTypes, m_occurs, m_handlerDefinitions, m_choices);
}

SchemaRecord::~SchemaRecord() = default;

Place SchemaRecord::PlaceOf(const TextNode* tag) const
{
    return tag ? tag->GetPlace() : Place {m_includes.file, 0};
}

QDomElement SchemaRecord::GetRoot() const
{
    return m_handler->GetDocument()->documentElement();
}

void SchemaRecord::FileBegun(int file, const QString& written, const QString& opened, const SchemaTag& include,
                             bool isAgain)
{
    IncludedFile& begun = file == 0 ? m_includes : addInclude(written, opened, include);
    begun.file = opened;
    begun.state = isAgain ? IncludeState::ReadAgain : IncludeState::Read;
    m_openFiles.push_back(&begun);
    const TextFile* const text = m_text.Open(opened);
    m_begunFiles.push_back({text, tagOf(include), 0});
    const bool isKnown = std::find(m_readFiles.begin(), m_readFiles.end(), text) != m_readFiles.end();
    if (!isKnown && !text->isMissing) {
        m_readFiles.push_back(text);
    }
}

void SchemaRecord::FileSkipped(const QString& written, const QString& opened, const SchemaTag& include, bool isCyclic)
{
    addInclude(written, opened, include).state = isCyclic ? IncludeState::Cyclic : IncludeState::TooDeep;
    m_isEverythingRead = m_isEverythingRead && isCyclic;
}

/// Stays where it is until the including file goes on.
IncludedFile& SchemaRecord::addInclude(const QString& written, const QString& opened, const SchemaTag& include)
{
    IncludedFile& included = m_openFiles.back()->includes.emplace_back();
    included.written = written;
    included.file = opened;
    included.isOutsideOfFolder = !isBelowFolder(opened, m_includes.file);
    const TextNode* const tag = tagOf(include);
    included.place = tag ? tag->GetPlace() : Place {m_openFiles.back()->file, 0};
    return included;
}

void SchemaRecord::FileMissing(int)
{
    m_openFiles.back()->state = IncludeState::Missing;
    m_isEverythingRead = false;
}

/// The text has the better words, if it stumbles too.
void SchemaRecord::FileMalformed(int file, const QString& fault, int line)
{
    const TextFile& text = *m_begunFiles[std::size_t(file)].text;
    IncludedFile& malformed = *m_openFiles.back();
    malformed.state = IncludeState::Malformed;
    malformed.fault = text.fault.isEmpty() ? fault : text.fault;
    malformed.faultLine = text.fault.isEmpty() ? line : text.faultLine;
    m_isEverythingRead = false;
}

void SchemaRecord::FileEnded(int)
{
    m_openFiles.pop_back();
}

void SchemaRecord::TagBegun(const SchemaTag& tag, const QString& name, int)
{
    BegunFile& file = m_begunFiles[std::size_t(tag.file)];
    const std::vector<const TextNode*>& tags = file.text->tags;
    const auto number = std::size_t(tag.number);
    if (number == file.tags && number < tags.size() && tags[number]->qName == name) {
        ++file.tags;
    }
}

/// Null for no tag, and for one that the text does not have.
const TextNode* SchemaRecord::tagOf(const SchemaTag& tag) const
{
    if (tag.file < 0) {
        return nullptr;
    }
    const BegunFile& file = m_begunFiles[std::size_t(tag.file)];
    return std::size_t(tag.number) < file.tags ? file.text->tags[std::size_t(tag.number)] : nullptr;
}

void SchemaRecord::ReferenceDeferred(const SchemaTag& tag, const QString&)
{
    m_deferred.insert(tagOf(tag));
}

/// An element that is repeated and waits for its type defines a template of itself, which replaces nobody's
/// declaration.
void SchemaRecord::Defined(const QString& name, const SchemaTag& tag)
{
    const TextNode* const later = tagOf(tag);
    const TextNode* const earlier = std::exchange(m_definitions[name], later);
    const bool isTemplate = later && later->Is("element") && !later->IsGlobal();
    if (earlier && later && earlier != later && !isTemplate) {
        m_replacements.push_back({earlier, later});
    }
}

void SchemaRecord::GlobalLeftOut(const QString& name, const SchemaTag& tag)
{
    m_refusedNames.push_back({name, tagOf(tag), true});
}

void SchemaRecord::NameRefused(const QString& name, const SchemaTag& tag)
{
    m_refusedNames.push_back({name, tagOf(tag), false});
    end(End::NameRefused, Texts::tr("XML does not allow the name '%1'.").arg(name));
}

void SchemaRecord::Refused(const QString& sentence, qint64 asked, qint64 inForce, qint64 greatest)
{
    const bool isOfTheLibrary = asked > greatest;
    const QString translated = QCoreApplication::translate("SchemaBudget", sentence.toUtf8().constData());
    end(isOfTheLibrary ? End::LimitExceeded : End::TooMuchForTheDoctor,
        asSentence(translated.arg(isOfTheLibrary ? greatest : inForce)));
}

void SchemaRecord::ContentRefused(const QString& sentence)
{
    end(End::LimitExceeded, asSentence(sentence));
}

void SchemaRecord::end(End end, const QString& sentence)
{
    m_end = end;
    m_limit = sentence;
    m_isEverythingRead = false;
}

void SchemaRecord::ReferenceNeverCame(const QString& name, const SchemaTag& reference, const QString&, bool isDefined)
{
    if (!isDefined) {
        m_end = End::TypeIsMissing;
        if (const TextNode* const tag = tagOf(reference)) {
            m_missing[name].push_back(tag);
        }
    } else if (m_end == End::Reached) {
        m_end = End::TypesWaitForEachOther;
    }
}

void SchemaRecord::UnusedGlobal(int file, const QString& name)
{
    const TextNode* const declaration = m_definitions[name];
    if (file != 0) {
        if (const TextNode* const include = m_begunFiles[std::size_t(file)].include; include && declaration) {
            m_hiddenRoots.emplace(declaration, include);
        }
        return;
    }
    if (!m_rootCandidates.isEmpty()) {
        m_rootCandidates.last().isChosen = false;
    }
    m_rootCandidates.append({name, declaration && declaration->Is("attribute"), true, PlaceOf(declaration)});
}

void SchemaRecord::ElementLaidOut(const QDomElement&, const SchemaTag& declaration, const SchemaTag& reference)
{
    m_origins.push_back({tagOf(declaration), tagOf(reference), {}});
}

void SchemaRecord::AttributeLaidOut(const QDomElement&, const QString& name, AttributeKind kind, const SchemaTag& tag)
{
    m_origins.back().attributes.push_back({name, kind, tagOf(tag)});
}

} // namespace schemadoctor
