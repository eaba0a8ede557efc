#include "catalogs/AvailableIcons.h"
#include "catalogs/CatalogFiles.h"
#include "catalogs/MovedPictures.h"
#include "catalogs/ResourceIds.h"
#include "catalogs/RowParts.h"
#include "settings/Inifile.h"

namespace vypx {

namespace {

/// Why the request changes nothing. Empty: it can go on.
std::optional<RowsOutcome> Refusal(const AssignRequest& request)
{
    if (!FileLoaded || !FindIconRow(request.selected))
        return Stopped(NotInTreeText);
    if (request.entry.empty())
        return Stopped(NotAddedText);
    const std::string label = LabelOfEntry(request.catalog, request.size, request.entry);
    if (IsTaken(label))
        return PassedOver(label);
    if (request.catalog != Catalog::Launcher && !FindEntry(request.catalog, request.entry))
        return Stopped(NotInTreeText); // the catalog has lost it
    return std::nullopt;
}

/// Gives row and node the label, kind and owner of the entry.
void Relabel(std::size_t row, const AssignRequest& request)
{
    IconRow& icon = IconTable[row];
    const std::string label = LabelOfEntry(request.catalog, request.size, request.entry);
    const IconKindRow& kind = KindOf(request.catalog);
    Tree.Replace(icon.IconLabel, { .key = label, .image = kind.image });
    icon.IconLabel = label;
    icon.IconState = 1;
    icon.IconKind = kind.word;
    icon.owner = OwnerOfEntry(request.catalog, request.entry);
    IconsetChanged = true;
}

RowsOutcome Assigned(std::size_t row)
{
    AddIconAssignMode = false;
    return {
        .note = NoteOfOwner(IconTable[row]), .node = IconTable[row].IconLabel, .isDone = true
    };
}

/// Gives the row another resource, its pictures moved along, and then what the entry says.
RowsOutcome MoveTo(int id, std::size_t row, const AssignRequest& request)
{
    const std::string key = ResourceKeyOf(id);
    if (const IconRow* const holder = RowWithResource(key, row))
        return StoppedBy(*holder);
    RowsOutcome failed = Stopped(NotAssignedText);
    if (!MovePictures(row, key, failed.note))
        return failed;
    IconTable[row].ResourceKey = key;
    Relabel(row, request);
    return Assigned(row);
}

std::optional<int> IdInCatalogFile(const std::string& entry)
{
    cInifile ini;
    ini.path(VYIconsFile());
    ini.Section(entry);
    ini.key("ID");
    return LauncherId(ini.Value());
}

RowsOutcome AssignToLauncher(std::size_t row, const AssignRequest& request)
{
    if (const std::optional<int> id = IdInCatalogFile(request.entry))
        return MoveTo(*id, row, request);
    // On purpose: by then the icon has its new label, though not the resource that goes with it.
    Relabel(row, request);
    RowsOutcome outcome = Stopped(NotAssignedText);
    outcome.node = IconTable[row].IconLabel;
    return outcome;
}

} // namespace

RowsOutcome ApplyAssignIcon(const AssignRequest& request)
{
    if (const std::optional<RowsOutcome> refusal = Refusal(request))
        return *refusal;
    const std::size_t row = *FindIconRow(request.selected);
    if (request.catalog == Catalog::Launcher)
        return AssignToLauncher(row, request);
    if (IconTable[row].IconKind == KindVY)
        return ReassignVYIcon(request);
    Relabel(row, request); // resource and pictures stay
    return Assigned(row);
}

RowsOutcome ReassignVYIcon(const AssignRequest& request)
{
    if (const std::optional<RowsOutcome> refusal = Refusal(request))
        return *refusal;
    const std::optional<int> id = ResourceIds().Next(request.size);
    if (!id)
        return Stopped(NoIdLeftText);
    return MoveTo(*id, *FindIconRow(request.selected), request);
}

} // namespace vypx
