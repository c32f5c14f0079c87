#include <memory>

#include <QFile>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <xmlhelper/domparser.h>
#include <xmlhelper/xmlschemahandler.h>

#include "floorwalk.h"
#include "inputs.h"
#include "observers.h"
#include "rows.h"
#include "workspace.h"

QT_WARNING_DISABLE_DEPRECATED

namespace {

/// Parses a schema file as the report builder does.
bool readSchema(XmlSchemaHandler& handler, const QString& path)
{
    QXmlSimpleReader parser;
    return handler.ReadFile(path, parser);
}

/// The elements of a generated schema's skeleton, the root among them.
int skeletonElements(Shape shape, int elements)
{
    const bool isGrouped = shape != Shape::Flat && shape != Shape::Choice && shape != Shape::RequiredFlat;
    return 1 + (isGrouped ? elements / (ValuesOfGroup + 1) * (ValuesOfGroup + 1) : elements);
}

int countElements(const QDomElement& element)
{
    int count = element.isNull() ? 0 : 1;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        count += countElements(child);
    }
    return count;
}

struct SchemaReadingState
{
    CountingObserver observer;
    std::unique_ptr<XmlSchemaHandler> handler;
    bool isRead = false;
    bool isFloorRead = false;
};

Contest readSchemaOf(const Workspace& workspace, Shape shape, int elements)
{
    const QString path = workspace.Write(QStringLiteral("read.xsd"), schemaText(shape, elements));
    auto state = std::make_shared<SchemaReadingState>();
    return {{{},
             [state, path] {
                 state->handler = std::make_unique<XmlSchemaHandler>(&state->observer, path);
                 state->isRead = readSchema(*state->handler, path);
             },
             [state] { state->handler.reset(); }},
            {{},
             [state, path] {
                 QFile file(path);
                 QXmlDefaultHandler nobody;
                 QXmlSimpleReader parser;
                 parser.setContentHandler(&nobody);
                 parser.setErrorHandler(&nobody);
                 state->isFloorRead = parser.parse(QXmlInputSource(&file));
             },
             {}},
            [=] {
                const int count = countElements(state->handler->GetDocument()->documentElement());
                const bool isRight = state->isRead && state->isFloorRead && count == skeletonElements(shape, elements);
                return isRight ? QString() : QStringLiteral("the skeleton has %1 elements").arg(count);
            }};
}

QString toText(Filling filling)
{
    switch (filling) {
    case Filling::Unfilled:
        return QStringLiteral("unfilled");
    case Filling::HalfFilled:
        return QStringLiteral("half-filled");
    case Filling::Filled:
        return QStringLiteral("filled");
    }
    return QString();
}

/// What is to be held while the document of a walk is changed.
OwnerIndex::OwnChange changeOf(DomParser& walk)
{
    return walk.Change();
}

/// The floor keeps no index that would have to be told.
std::nullptr_t changeOf(FloorWalk&)
{
    return nullptr;
}

/// Answers a walk by editing the document as the report builder does: what the walk costs without the builder's checks.
template <class Walk> class WalkFiller final : public CountingObserver
{
public:
    explicit WalkFiller(Filling filling)
        : m_filling(filling)
    {
    }

    void SetWalk(Walk* walk) { m_walk = walk; }

    void XmlUpdate(XmlEvent* event) override
    {
        CountingObserver::XmlUpdate(event);
        if (m_filling == Filling::Unfilled || event->GetType() != XmlEvent::EVENT_ELEM_BEGIN) {
            return;
        }
        const QString name = static_cast<ElemBeginEvent*>(event)->GetElementName();
        if (isValueName(name) && (m_filling == Filling::Filled || ++m_values % 2 == 0)) {
            fill(kindOf(name));
        }
    }

private:
    void fill(const ValueKind& kind)
    {
        QDomElement* const element = m_walk->GetCurrentElement();
        [[maybe_unused]] const auto change = changeOf(*m_walk);
        element->removeAttribute(QStringLiteral("type"));
        element->appendChild(element->ownerDocument().createTextNode(kind.text));
        m_walk->ContinueAt(element, false);
    }

    Filling m_filling;
    Walk* m_walk = nullptr;
    int m_values = 0;
};

/// One side of a walk: a copy of the skeleton, the walk on it and its observer.
template <class Walk> struct Walking
{
    QDomDocument document;
    std::unique_ptr<WalkFiller<Walk>> filler;
    std::unique_ptr<Walk> walk;

    void prepare(const QDomDocument& skeleton, Filling filling)
    {
        document = skeleton.cloneNode(true).toDocument();
        filler = std::make_unique<WalkFiller<Walk>>(filling);
    }

    template <class... Rest> void run(const OccursMap& occurs, const ChoiceMap& choices, Rest... rest)
    {
        walk = std::make_unique<Walk>(filler.get(), occurs, choices, rest...);
        filler->SetWalk(walk.get());
        walk->SetDocument(&document);
        walk->Walk();
    }

    void release()
    {
        walk.reset();
        document = QDomDocument();
    }
};

Leave leaveOptional(const QDomElement&)
{
    return Leave::Optional;
}

Leave leaveAlternative(const QDomElement&)
{
    return Leave::Alternative;
}

/// Owners that are types stand nowhere in the document, so what a type declares is never found below its owner.
Leave leaveOfNamedTypes(const QDomElement& element)
{
    return isValueName(element.tagName()) ? Leave::Required : Leave::Optional;
}

FloorWalk::Answer answerFor(Shape shape)
{
    switch (shape) {
    case Shape::Choice:
        return leaveAlternative;
    case Shape::NamedTypes:
        return leaveOfNamedTypes;
    default:
        return leaveOptional;
    }
}

struct WalkState
{
    CountingObserver observer;
    std::unique_ptr<XmlSchemaHandler> handler;
    UnresolvedTypeMap unresolvedTypes;
    OccursMap occurs;
    TypeDefinitionMap typeDefinitions;
    ChoiceMap choices;
    Walking<DomParser> library;
    Walking<FloorWalk> floor;
};

Contest walk(const Workspace& workspace, Shape shape, Filling filling, int elements)
{
    const QString path = workspace.Write(QStringLiteral("walk.xsd"), schemaText(shape, elements));
    auto state = std::make_shared<WalkState>();
    state->handler = std::make_unique<XmlSchemaHandler>(&state->observer, path);
    readSchema(*state->handler, path);
    state->handler->HandOver(state->unresolvedTypes, state->occurs, state->typeDefinitions, state->choices);
    const QDomDocument skeleton = *state->handler->GetDocument();
    const FloorWalk::Answer answer = answerFor(shape);
    return {{[=] { state->library.prepare(skeleton, filling); },
             [=] { state->library.run(state->occurs, state->choices); }, [=] { state->library.release(); }},
            {[=] { state->floor.prepare(skeleton, filling); },
             [=] { state->floor.run(state->occurs, state->choices, answer); }, [=] { state->floor.release(); }},
            [=] {
                if (state->library.filler->Counts() != state->floor.filler->Counts()) {
                    return QStringLiteral("the events differ");
                }
                return differenceOf(canonicalText(state->library.document), canonicalText(state->floor.document));
            }};
}

} // namespace

std::vector<Row> schemaRows(const Workspace& workspace)
{
    std::vector<Row> rows;
    for (const Shape shape : {Shape::Flat, Shape::Groups, Shape::SharedNames, Shape::NamedTypes}) {
        rows.push_back({QStringLiteral("schema/read/") + toText(shape),
                        QStringLiteral("a SAX pass without listener"),
                        1.15,
                        {50, 500, 5000, 50000},
                        [&workspace, shape](int size) { return readSchemaOf(workspace, shape, size); }});
    }
    return rows;
}

std::vector<Row> walkRows(const Workspace& workspace)
{
    std::vector<Row> rows;
    for (const Shape shape : {Shape::Flat, Shape::Groups, Shape::SharedNames, Shape::NamedTypes, Shape::Choice}) {
        for (const Filling filling : {Filling::Unfilled, Filling::HalfFilled, Filling::Filled}) {
            rows.push_back({QStringLiteral("walk/") + toText(shape) + QLatin1Char('/') + toText(filling),
                            QStringLiteral("the same walk, its question answered by a stub"),
                            filling == Filling::Filled ? 1.1 : 1.4,
                            {1000, 10000, 100000},
                            [=, &workspace](int size) { return walk(workspace, shape, filling, size); },
                            0.05});
        }
    }
    return rows;
}
