#include "catalogs/RowParts.h"

#include "catalogs/OwnerRules.h"
#include "companion/Latin1.h"
#include "companion/Numbers.h"

#include <algorithm>
#include <utility>

namespace vypx {

std::string Quoted(std::string_view label) { return "\"" + Utf8FromLatin1(label) + "\""; }

RowsOutcome Stopped(std::string_view message) { return { .message = std::string(message) }; }

bool IsTaken(const std::string& label)
{
    return FindIconRow(label) || Tree.Find(label) || (Tree.HasRoot() && Tree.Root() == label);
}

const IconRow* RowWithResource(std::string_view resourceKey, std::optional<std::size_t> except)
{
    for (std::size_t row = 0; row < IconTable.size(); ++row)
        if (row != except && !IconTable[row].IconLabel.empty()
            && IconTable[row].ResourceKey == resourceKey)
            return &IconTable[row];
    return nullptr;
}

RowsOutcome PassedOver(const std::string& label)
{
    return { .note = Quoted(label) + " is in the tree already." };
}

RowsOutcome StoppedBy(const IconRow& holder)
{
    RowsOutcome outcome = Stopped(NotAssignedText);
    outcome.note = Quoted(holder.IconLabel) + " has " + holder.ResourceKey + " already.";
    return outcome;
}

const CatalogRow* FindEntry(Catalog catalog, std::string_view name)
{
    const std::vector<CatalogRow>* const table = catalog == Catalog::Apps ? &AppTable
        : catalog == Catalog::Palm                                        ? &PalmTable
                                                                          : nullptr;
    if (!table || name.empty())
        return nullptr;
    const auto found = std::find_if(
        table->begin(), table->end(), [&](const CatalogRow& row) { return row.name == name; });
    return found == table->end() ? nullptr : &*found;
}

const LauncherRow* FindLauncherRow(std::string_view label)
{
    const auto found = std::find_if(
        VYTable.begin(), VYTable.end(), [&](const LauncherRow& row) { return row.name == label; });
    return found == VYTable.end() ? nullptr : &*found;
}

Owner OwnerOfEntry(Catalog catalog, std::string_view name)
{
    const CatalogRow* const entry = FindEntry(catalog, name);
    return entry ? Owner{ entry->type, entry->creator } : Owner();
}

std::optional<int> LauncherId(std::string_view text) { return LeadingWhole(text, 0, UINT16_MAX); }

void AppendRow(IconRow row)
{
    Tree.Add({ .key = row.IconLabel, .image = ImageOfKind(row.IconKind) });
    IconTable.push_back(std::move(row));
    IconsetChanged = true;
}

std::string NoteOfOwner(const IconRow& row)
{
    if (!row.owner.IsKnown() || CanBeIndexed(row.ResourceKey))
        return {};
    return "A saved iconset can't tie " + row.ResourceKey + " to "
        + Quoted(NameInLabel(row.IconLabel))
        + ": only tAIB resources from 3500 to 9999 can have an application.";
}

} // namespace vypx
