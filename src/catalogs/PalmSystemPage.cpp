#include "catalogs/PalmSystemPage.h"

#include "catalogs/CatalogEntries.h"
#include "catalogs/CatalogFiles.h"
#include "catalogs/Checks.h"
#include "document/WorkingFolder.h"
#include "settings/Blanks.h"
#include "settings/IniStore.h"
#include "settings/Inifile.h"

#include <algorithm>
#include <array>

namespace vypx {

namespace {

constexpr std::string_view Prefix = "Palm ";

std::string NewName(const PalmSysChange& change)
{
    return std::string(Prefix) + std::string(WithoutBlanks(change.boxes.name));
}

std::string StoredValue(const std::string& entry, const char* key)
{
    cInifile ini;
    ini.path(PalmAppFile());
    ini.Section(entry);
    ini.key(key);
    return ini.Value();
}

/// Whether an entry other than the current one has the name, or one that the table does not show.
bool HasAnother(const PalmSysChange& change)
{
    const std::string name = NewName(change);
    const bool isShown =
        std::any_of(PalmTable.begin(), PalmTable.end(), [&](const CatalogRow& row) {
            return HasFullName(row) && row.name != change.current && AreOneName(row.name, name);
        });
    const bool keepsItsName = change.edits && AreOneName(change.current, name);
    return isShown || (!keepsItsName && IsUntold(PalmAppFile(), PalmTable, name));
}

/// Whether the name of a new entry is one of the table's, and no half of one.
bool IsInTable(const PalmSysChange& change)
{
    const std::string name = NewName(change);
    const bool isShown = std::any_of(PalmTable.begin(), PalmTable.end(),
        [&](const CatalogRow& row) { return AreOneName(row.name, name); });
    return FindName(PalmTable, name) || (isShown && ReadIni(PalmAppFile())->HasSection(name));
}

/// The boxes' own texts first, then what the entries say.
constexpr Check<PalmSysChange> Checks[] = {
    { [](const PalmSysChange& change) { return WithoutBlanks(change.boxes.name).empty(); },
        "An icon name is required" },
    { [](const PalmSysChange& change) { return !change.edits && IsInTable(change); },
        "This Palm system icon name already exists, please use a different name or use the edit "
        "function." },
    { [](const PalmSysChange& change) { return IsShort(change.boxes.type); },
        "The Type field must contain 4 characters" },
    // On purpose: whichever button is pressed, nothing is saved.
    { [](const PalmSysChange& change) { return IsOtherType(change.boxes.type); },
        "The Palm Type is needs to be either appl or panl.", "Unusual Entry",
        CatalogBox::Icon::Information, true },
    { [](const PalmSysChange& change) { return IsShort(change.boxes.creator); },
        "The Creator field must contain 4 characters" },
    { [](const PalmSysChange& change) { return HasOddCharacter(change.boxes.creator); },
        "Error! The Creator field contains an invalid character." },
    { &HasAnother, "Error! An icon with that name already exists." },
};

/// Whether an entry's stored Creator is the typed one.
/// On purpose: in edit mode the stored text is compared with its braces, so that only one without
/// them is found.
bool HasTypedCreator(const IniText& file, const CatalogRow& row, const PalmSysChange& change)
{
    if (change.edits)
        return row.name != change.current
            && file.Value(row.name, "Creator").value_or("") == change.boxes.creator;
    return StoredCreator(file, row.name) == change.boxes.creator;
}

std::optional<CatalogBox> CreatorInTheWay(const PalmSysChange& change)
{
    const auto file = ReadIni(PalmAppFile());
    for (const CatalogRow& row : PalmTable)
        if (!row.name.empty() && HasTypedCreator(*file, row, change))
            return CatalogBox{ .text = "Error! The icon " + InQuotes(row.name)
                    + ", has the same Creator ID as the one you have entered." };
    return std::nullopt;
}

} // namespace

PalmSysBoxes PalmSysBoxesOf(const std::string& name)
{
    // On purpose: five characters are cut whether they are "Palm " or not.
    return {
        .name = name.substr(std::min(Prefix.size(), name.size())),
        .type = StoredValue(name, "Type"),
        .creator = StoredCreator(*ReadIni(PalmAppFile()), name),
    };
}

PalmSysResult ApplyPalmSys(const PalmSysChange& change, const ShowBox& show)
{
    if (!NamedFileExists(PalmAppFile()))
        show({ .text = "Error! Can't find PalmApp.dat file." });
    std::optional<CatalogBox> box = FirstFailure(Checks, change);
    if (!box)
        box = CreatorInTheWay(change);
    if (box) {
        show(*box);
        return {};
    }
    const CatalogEntry entry{ NewName(change), change.boxes.type, change.boxes.creator };
    std::vector<std::string> removed;
    if (change.edits && !change.current.empty())
        removed.push_back(change.current);
    if (!ChangeEntries(PalmAppFile(), removed, entry)) {
        show(NotDeletedBox()); // On purpose: these words for a write too.
        return { .wasApplied = true };
    }
    PalmSysResult result{ .wasApplied = true, .name = entry.name };
    if (!change.edits)
        result.afterwards = CatalogBox{ .text = "Icon has been added" };
    return result;
}

} // namespace vypx
