#include "mend.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>

#include <QFile>
#include <QTemporaryDir>

#include "choices.h"
#include "contentresolver.h"
#include "examine.h"
#include "mendlimits.h"
#include "mendwords.h"
#include "merging.h"
#include "rewritelog.h"
#include "schemaset.h"
#include "schemawriter.h"

namespace schemadoctor {

namespace {

constexpr int DefaultLevels = 2;
constexpr int MostRounds = 8;

bool isWithoutFindings(const Examination& examination)
{
    return !examination.tree.IsEmpty() && exitStatusOf(examination) == NothingToSay;
}

QByteArray bytesOf(const TextFile& text)
{
    QFile file(text.name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Whether the texts can be put together as they are: they are in one encoding, and the top file declares all prefixes.
bool isMergeable(const SchemaSet& set)
{
    const auto& prefixes = set.GetTop().namespaces;
    const std::vector<const TextFile*>& files = set.GetFiles();
    return set.GetIncludes().empty() || std::all_of(files.begin(), files.end(), [&prefixes](const TextFile* file) {
               return !file->text.contains(QChar(QChar::ReplacementCharacter))
                   && std::includes(prefixes.begin(), prefixes.end(), file->namespaces.begin(), file->namespaces.end());
           });
}

/// The global declarations that something refers to, or that may take the place of such a one.
std::set<const TextNode*> referredIn(const SchemaSet& set)
{
    std::set<const TextNode*> referred;
    for (const TextFile* const file : set.GetFiles()) {
        for (const TextNode* const tag : file->tags) {
            const GlobalKind kind = tag->Is("attribute") ? GlobalKind::Attribute
                : tag->Is("group")                       ? GlobalKind::Group
                : tag->Is("attributeGroup")              ? GlobalKind::AttributeGroup
                                                         : GlobalKind::Element;
            referred.insert(set.Find(kind, *tag, tag->Value("ref")));
            referred.insert(set.Find(GlobalKind::Element, *tag, tag->Value("substitutionGroup")));
        }
    }
    referred.erase(nullptr);
    const std::set<const TextNode*> heads = referred;
    for (const TextNode* const head : heads) {
        const std::vector<const TextNode*> members = set.GetSubstitutes(*head);
        referred.insert(members.begin(), members.end());
    }
    return referred;
}

/// The global elements that nothing refers to, or all of them; the one to begin reports with stands last.
std::vector<const TextNode*> rootsOf(const SchemaSet& set)
{
    const std::vector<const TextNode*>& globals = set.GetGlobals(GlobalKind::Element);
    const std::set<const TextNode*> referred = referredIn(set);
    std::vector<const TextNode*> roots;
    std::copy_if(globals.begin(), globals.end(), std::back_inserter(roots),
                 [&referred](const TextNode* global) { return referred.count(global) == 0; });
    if (roots.empty() && !globals.empty()) {
        roots.push_back(globals.front());
    }
    std::stable_sort(roots.begin(), roots.end(), [](const TextNode* left, const TextNode* right) {
        return left->Value("name") < right->Value("name");
    });
    return roots;
}

const TextNode* rootOf(const SchemaSet& set, const QString& name)
{
    const std::vector<const TextNode*>& globals = set.GetGlobals(GlobalKind::Element);
    if (name.isEmpty()) {
        const std::vector<const TextNode*> roots = rootsOf(set);
        return roots.empty() ? nullptr : roots.back();
    }
    const auto found = std::find_if(globals.begin(), globals.end(),
                                    [&name](const TextNode* global) { return global->Value("name") == name; });
    return found == globals.end() ? nullptr : *found;
}

void tellFiles(const SchemaSet& set, RewriteLog& log)
{
    for (const TextNode* const include : set.GetIncludes()) {
        log.Narrow(*include, QStringLiteral("xs:%1 '%2'").arg(include->localName, include->Value("schemaLocation")),
                   Mend::tr("what stands in that file"));
    }
    for (const TextNode* const include : set.GetUnread()) {
        log.Narrow(*include, QStringLiteral("xs:%1 '%2'").arg(include->localName, include->Value("schemaLocation")),
                   Mend::tr("nothing: it is not read"));
    }
    for (const TextFile* const file : set.GetFiles()) {
        if (!file->root->qName.startsWith(QLatin1String("xs:"))) {
            log.Narrow(*file->root, Mend::tr("tags without the prefix xs:"), Mend::tr("the prefix xs:"));
        }
    }
}

void tellUnused(const SchemaSet& set, const TextNode& root, RewriteLog& log)
{
    const std::set<const TextNode*> referred = referredIn(set);
    for (const GlobalKind kind :
         {GlobalKind::Element, GlobalKind::Attribute, GlobalKind::Group, GlobalKind::AttributeGroup}) {
        for (const TextNode* const global : set.GetGlobals(kind)) {
            if (global != &root && referred.count(global) == 0) {
                log.Narrow(
                    *global,
                    Mend::tr("xs:%1 '%2', to which nothing refers").arg(global->localName, global->Value("name")),
                    Mend::tr("nothing: reports begin with '%1'").arg(root.Value("name")));
            }
        }
    }
}

/// What may be missing in the schema, and yet stays in reports.
struct Staying
{
    std::set<const TextNode*> optional; ///< the particles of optional elements
    std::set<const TextNode*> alternatives; ///< those of alternatives

    bool IsEmpty() const { return optional.empty() && alternatives.empty(); }
};

/// Drops the alternatives that the library does not remove. The last one of a choice stays, as no choice.
void dropAlternatives(MendedContent& content, const Staying& staying, RewriteLog& log)
{
    std::map<int, std::set<int>> left = branchesOf(content);
    std::set<int> dropped;
    for (const MendedElement& child : content) {
        const bool mayStay = child.choice != MendedElement::None && staying.alternatives.count(child.particle) > 0;
        if (mayStay && dropped.count(child.branch) == 0 && left[child.choice].size() > 1) {
            log.Narrow(*child.particle, Mend::tr("the alternative '%1', which holds no value").arg(child.name),
                       Mend::tr("nothing"));
            left[child.choice].erase(child.branch);
            dropped.insert(child.branch);
        }
    }
    dropBranches(content, dropped);
    settleChoices(content);
}

void require(MendedElement& element, const Staying& staying, RewriteLog& log)
{
    dropAlternatives(element.children, staying, log);
    for (MendedElement& child : element.children) {
        if (child.minOccurs == 0 && staying.optional.count(child.particle) > 0) {
            log.Narrow(*child.particle, Mend::tr("'%1', which may be missing").arg(child.name), Mend::tr("required"));
            child.minOccurs = 1;
        }
        require(child, staying, log);
    }
}

/// @param asked  becomes how many elements the doctor has been asked about
Staying stayingIn(const SchemaWriter& writer, const QByteArray& text, const QTemporaryDir& folder, int& asked)
{
    Staying staying;
    const QString name = folder.filePath(QStringLiteral("mended.xsd"));
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        return staying;
    }
    file.close();
    const SkeletonTree tree = examineAlone(name).tree;
    asked += int(tree.elements.size());
    for (const SkeletonElement& element : tree.elements) {
        const bool mayStay = element.fate == Fate::Stays || element.fate == Fate::IsRemovedWithAnother;
        const TextNode* const particle = writer.ParticleAt(element.particle.line);
        if (particle && element.minOccurs == 0 && (mayStay || element.staysInCopies)) {
            staying.optional.insert(particle);
        } else if (particle && element.choiceGroup != SkeletonElement::None && mayStay) {
            staying.alternatives.insert(particle);
        }
    }
    return staying;
}

/// Writes the schema, and asks the doctor each time whether what may be missing is removed then.
QByteArray written(const SchemaSet& set, MendedElement root, RewriteLog& log)
{
    const QTemporaryDir folder;
    int asked = 0;
    for (int round = 0;; ++round) {
        const SchemaWriter writer(set, log, root);
        const QByteArray text = writer.GetText().toUtf8();
        const bool isToAsk = round < MostRounds && asked < MaxAskedElements;
        const Staying staying = isToAsk ? stayingIn(writer, text, folder, asked) : Staying();
        if (staying.IsEmpty()) {
            return text;
        }
        require(root, staying, log);
    }
}

std::optional<MendedElement> resolved(const SchemaSet& set, const TextNode& root, int levels, RewriteLog& log,
                                      QString& refusal)
{
    ContentResolver resolver(set, log, levels);
    std::optional<MendedElement> element = resolver.Root(root);
    refusal = resolver.GetRefusal();
    if (!element && refusal.isEmpty()) {
        refusal
            = Mend::tr("No report is finite with '%1' inside of itself %2 times.").arg(root.Value("name")).arg(levels);
    }
    return element;
}

void mendSet(const SchemaSet& set, const MendOptions& options, Mending& mending)
{
    const TextNode* const root = rootOf(set, options.root);
    if (!root) {
        mending.refusal = options.root.isEmpty() ? Mend::tr("The schema declares no global element.")
                                                 : Mend::tr("There is no global element '%1'.").arg(options.root);
        return;
    }
    std::optional<MendedElement> element;
    for (int levels = options.levels > 0 ? options.levels : DefaultLevels; levels > 0; --levels) {
        RewriteLog log(options.isFormatKept);
        element = resolved(set, *root, levels, log, mending.refusal);
        if (element && mending.refusal.isEmpty()) {
            tellFiles(set, log);
            tellUnused(set, *root, log);
            mending.text = written(set, *element, log);
            mending.rewrites = log.GetRewrites();
            mending.left = log.GetLeft();
            mending.isFormatLost = options.isFormatKept
                && std::any_of(mending.rewrites.begin(), mending.rewrites.end(),
                               [](const Rewrite& rewrite) { return rewrite.effect == RewriteEffect::ChangesFormat; });
        }
        if (mending.refusal.isEmpty() || options.levels > 0) {
            return;
        }
    }
}

} // namespace

Mending mend(const QString& file, const MendOptions& options)
{
    Mending mending;
    const bool isBareName = !file.contains(QLatin1Char('/')) && !file.contains(QLatin1Char('\\'));
    const QString path = isBareName ? QStringLiteral("./") + file : file; // Seen from no folder no include is found.
    const Examination examination = examineAlone(path);
    if (!examination.IsReadable()) {
        mending.refusal = examination.unreadableReason;
        return mending;
    }
    const SchemaSet set(file);
    for (const TextFile* const one : set.GetFiles()) {
        mending.texts[one->name] = one->text;
        mending.files.append(one->name);
    }
    for (const TextNode* const unread : set.GetUnread()) {
        mending.files.append(set.LocationOf(*unread));
    }
    mending.refusal = set.GetRefusal();
    if (!mending.refusal.isEmpty()) {
        return mending;
    }
    const bool isRoot = options.root.isEmpty()
        || (!examination.tree.IsEmpty() && examination.tree.elements.front().name == options.root);
    if (isRoot && isMergeable(set) && isWithoutFindings(examination) && isWithoutFindings(examine(path))) {
        mending.text = set.GetIncludes().empty() ? bytesOf(set.GetTop()) : mergedText(set.GetTop());
        return mending;
    }
    mendSet(set, options, mending);
    if (mending.refusal.isEmpty() && mending.rewrites.isEmpty()) {
        mending.text = bytesOf(set.GetTop());
    }
    return mending;
}

} // namespace schemadoctor
