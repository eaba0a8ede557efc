#include "catalogs/ResourceIds.h"
#include "catalogs/RowParts.h"

#include <utility>

namespace vypx {

namespace {

/// The catalog that the label's name stands in. On purpose: an application comes first, so an icon
/// of the launcher that bears its name becomes the application's.
Catalog Classify(std::string_view label)
{
    const std::string_view name = NameInLabel(label);
    if (FindEntry(Catalog::Apps, name))
        return Catalog::Apps;
    for (const SizeClass size : { SizeClass::Large, SizeClass::Small })
        if (FindLauncherRow(LabelOf(name, size)))
            return Catalog::Launcher;
    return FindEntry(Catalog::Palm, name) ? Catalog::Palm : Catalog::None;
}

IconRow NewRow(const std::string& label, Catalog catalog, int id)
{
    return { .IconLabel = label,
        .ResourceKey = ResourceKeyOf(id),
        .LowResFile = std::string(NoImage),
        .HighResFile = std::string(NoImage),
        .IconState = 1,
        .IconKind = std::string(KindOf(catalog).word),
        .owner = OwnerOfEntry(catalog, NameInLabel(label)) };
}

RowsOutcome Added(const std::string& label, Catalog catalog, int id)
{
    AppendRow(NewRow(label, catalog, id));
    return { .note = NoteOfOwner(IconTable.back()), .node = label, .isDone = true };
}

RowsOutcome AddLauncherIcon(const std::string& label)
{
    const LauncherRow* const entry = FindLauncherRow(label);
    if (!entry)
        return Stopped(NotInTreeText);
    const std::optional<int> id = LauncherId(entry->id);
    if (!id)
        return Stopped(NotAssignedText);
    if (const IconRow* const holder = RowWithResource(ResourceKeyOf(*id)))
        return StoppedBy(*holder);
    return Added(label, Catalog::Launcher, *id);
}

RowsOutcome AddIcon(const std::string& label, Catalog catalog, ResourceIds& ids)
{
    const bool isLarge = label == LabelOf(NameInLabel(label), SizeClass::Large);
    const std::optional<int> id = ids.Next(isLarge ? SizeClass::Large : SizeClass::Small);
    if (!id) {
        IconTable.emplace_back(); // On purpose: the row for it stays, empty.
        return Stopped(NoIdLeftText);
    }
    return Added(label, catalog, *id);
}

/// Adds one icon; what does not end well ends the run.
RowsOutcome AddIcon(const std::string& label, ResourceIds& ids)
{
    if (label.size() < ShortestLabel)
        return Stopped(NotAddedText);
    const Catalog catalog = Classify(label);
    if (catalog == Catalog::None)
        return Stopped(NotInTreeText);
    return KindOf(catalog).ids == IdRule::OfEntry ? AddLauncherIcon(label)
                                                  : AddIcon(label, catalog, ids);
}

std::string Joined(const std::string& first, const std::string& second)
{
    return first + (first.empty() || second.empty() ? "" : " ") + second;
}

/// New icons whose resource others have too, as happens beyond the last ID.
std::string NoteOfSharedKeys(std::size_t firstNew)
{
    std::string labels;
    for (std::size_t row = firstNew; row < IconTable.size(); ++row)
        if (!IconTable[row].IconLabel.empty() && RowWithResource(IconTable[row].ResourceKey, row))
            for (const IconRow& other : IconTable)
                if (other.ResourceKey == IconTable[row].ResourceKey)
                    labels += (labels.empty() ? "" : ", ") + Quoted(other.IconLabel);
    if (labels.empty())
        return {};
    return "There is no free resource ID. These icons have the same one, and so the same pictures: "
        + labels + ".";
}

} // namespace

bool IsListed(std::string_view label)
{
    return label.size() >= ShortestLabel && Classify(label) != Catalog::None;
}

RowsOutcome ApplyAddIcons(std::span<const std::string> labels)
{
    if (!FileLoaded || !Tree.HasRoot()) // a new iconset without a name has no tree
        return Stopped(NotInTreeText);
    const std::size_t firstNew = IconTable.size();
    ResourceIds ids;
    RowsOutcome outcome{ .isDone = true };
    for (const std::string& label : labels) {
        if (IsTaken(label))
            continue;
        const RowsOutcome before = std::exchange(outcome, AddIcon(label, ids));
        if (!outcome.isDone) {
            outcome.node = before.node;
            if (outcome.note.empty())
                outcome.note = Quoted(label) + " could not be added.";
        }
        outcome.note = Joined(before.note, outcome.note);
        if (!outcome.isDone)
            break;
    }
    outcome.note = Joined(outcome.note, NoteOfSharedKeys(firstNew));
    if (outcome.isDone && outcome.node.empty())
        outcome.note = "No icon was added: "
            + std::string(labels.empty() ? "the list of icons to be added was empty."
                                         : "the tree has them already.");
    if (outcome.isDone) {
        HighResPath.clear();
        LowResPath.clear();
        IconsetChanged = true;
    }
    return outcome;
}

RowsOutcome ApplyShareIcon(const AssignRequest& request)
{
    const std::optional<std::size_t> lender = FindIconRow(request.selected);
    if (!FileLoaded || !lender)
        return Stopped(NotInTreeText);
    if (request.entry.empty())
        return Stopped(NotAddedText);
    const std::string label = LabelOf(request.entry, request.size);
    if (IsTaken(label))
        return PassedOver(label);
    const Catalog catalog = FindEntry(Catalog::Apps, request.entry) ? Catalog::Apps : Catalog::Palm;
    if (!FindEntry(catalog, request.entry))
        return Stopped(NotInTreeText);
    IconRow row = IconTable[*lender];
    row.IconLabel = label;
    row.IconState = 1;
    row.IconKind = KindOf(catalog).word;
    row.owner = OwnerOfEntry(catalog, request.entry);
    const std::string note = NoteOfOwner(row);
    AppendRow(std::move(row));
    AddIconAssignMode = false;
    return { .note = note, .node = label, .isDone = true };
}

} // namespace vypx
