#include "catalogs/AddApplication.h"

#include "catalogs/CatalogEntries.h"
#include "catalogs/CatalogFiles.h"
#include "catalogs/Checks.h"
#include "catalogs/PalmHeader.h"
#include "document/Document.h"
#include "settings/Blanks.h"
#include "settings/LetterCase.h"

#include <algorithm>

namespace vypx {

namespace {

std::string MustBeDeleted(const std::string& known)
{
    return "\n\n" + InQuotes(known) + "\n\nYou will need to delete the application "
        + InQuotes(known) + " first to install this application.";
}

/// Whether the user agrees that the entry of that name goes.
bool MayOverwrite(const ShowBox& show)
{
    return show({ .text = "The application name you have entered already exists.\n"
                          "Press OK to overwrite the existing application.",
        .title = "Application Already Exists!",
        .icon = CatalogBox::Icon::Exclamation,
        .asks = true });
}

void Save(const CatalogEntry& entry, std::span<const std::string> removed, const ShowBox& show)
{
    if (!ChangeEntries(AppListFile(), removed, entry))
        show(NotSavedBox());
}

/// What keeps a file from being looked at closer.
constexpr Check<PalmHeader> HeaderChecks[] = {
    { [](const PalmHeader& header) { return !header.IsApplication(); },
        "The selected file isn't an application." },
    { [](const PalmHeader& header) { return header.IsOfPalmOS(); },
        "This is a Palm System file. Can't add the selected file." },
};

/// The entry that has the file's Creator, told in a box.
/// On purpose: here upper and lower case differ in names, but not where the user is asked.
std::optional<CatalogBox> CreatorInTheWay(const CatalogEntry& entry)
{
    if (const CatalogRow* const palm = FindCreator(PalmTable, entry.creator))
        return CatalogBox{ .text = "Error adding this application. The Palm system icon "
                + InQuotes(palm->name) + " has the same Creator ID." };
    for (const CatalogRow& row : AppTable)
        if (!row.name.empty() && row.creator == entry.creator
            && entry.name.find(row.name) == std::string::npos)
            return CatalogBox{
                .text = "The file you have selected has the same Creator ID as the application: "
                    + MustBeDeleted(row.name),
                .title = "Creator ID Already Exists!",
            };
    return std::nullopt;
}

/// Asks for every entry whose name is part of the new one. Empty: the user said no; else the
/// entries that go: those with the file's own Creator, and none under an open iconset, whose icons
/// they may name.
std::optional<std::vector<std::string>> AgreedToGo(const CatalogEntry& entry, const ShowBox& show)
{
    if (IsUntold(AppListFile(), AppTable, entry.name) && !MayOverwrite(show))
        return std::nullopt;
    std::vector<CatalogRow> parts;
    std::copy_if(AppTable.begin(), AppTable.end(), std::back_inserter(parts),
        [&](const CatalogRow& row) { return HasFullName(row) && OccursIn(row, entry.name); });
    std::vector<std::string> removed;
    for (const CatalogRow& row : parts) {
        if (!MayOverwrite(show))
            return std::nullopt;
        if (row.creator == entry.creator && !AreOneName(row.name, entry.name) && !FileLoaded)
            removed.push_back(row.name);
    }
    return removed;
}

constexpr Check<ManualEntry> ManualChecks[] = {
    { [](const ManualEntry& entry) { return WithoutBlanks(entry.name).empty(); },
        "Invalid application name entered" },
    { [](const ManualEntry& entry) { return IsShort(entry.creator); },
        "The Creator ID needs to be at least 4 characters." },
    { [](const ManualEntry& entry) { return IsShort(entry.type); },
        "The Type ID needs to be at least 4 characters." },
    { [](const ManualEntry& entry) { return entry.creator.empty(); }, "Invalid Creator ID." },
    { [](const ManualEntry& entry) { return entry.type.empty(); }, "Invalid Type ID." },
    { [](const ManualEntry& entry) { return IsOtherType(entry.type); },
        "The Type ID needs to be either \"appl\" or \"panl\"." },
};

bool IsKnownName(const std::string& name)
{
    const bool isLauncher = std::any_of(VYTable.begin(), VYTable.end(),
        [&](const LauncherRow& row) { return !row.name.empty() && AreOneName(row.name, name); });
    return FindName(AppTable, name) || isLauncher || FindName(PalmTable, name)
        || IsUntold(AppListFile(), AppTable, name);
}

std::optional<CatalogBox> CreatorInTheWayByHand(const CatalogEntry& entry)
{
    if (const CatalogRow* const palm = FindCreator(PalmTable, entry.creator))
        return CatalogBox{ .text = "Error. The Palm System icon " + InQuotes(palm->name)
                + " has the same Creator ID as the one you have entered." };
    if (const CatalogRow* const known = FindCreator(AppTable, entry.creator))
        return CatalogBox{
            .text = "The Creator ID you have entered is already being used by the application: "
                + MustBeDeleted(known->name),
            .icon = CatalogBox::Icon::Stop,
        };
    return std::nullopt;
}

} // namespace

bool AddSingle(const std::string& path, const ShowBox& show)
{
    if (!LowerCase(path).ends_with("prc")) {
        show({ .text = "Incorrect file type." });
        return false;
    }
    const std::optional<PalmHeader> header = ReadPalmHeader(path);
    if (!header)
        return false;
    if (const auto box = FirstFailure(HeaderChecks, *header)) {
        show(*box);
        return false;
    }
    const std::string name = CutAtStar(header->name);
    if (name.empty() || header->HasUnwritableCreator())
        return false;
    // On purpose: a panel is written as an application too; only its name tells.
    const CatalogEntry entry{ EntryName(name, header->IsPanel()), "appl", header->creator };
    if (const auto box = CreatorInTheWay(entry)) {
        show(*box);
        return false;
    }
    const auto removed = AgreedToGo(entry, show);
    if (!removed)
        return false;
    Save(entry, *removed, show);
    return true;
}

bool AddManual(const ManualEntry& typed, const ShowBox& show)
{
    if (const auto box = FirstFailure(ManualChecks, typed)) {
        show(*box);
        return false;
    }
    const CatalogEntry entry{ EntryName(
                                  std::string(WithoutBlanks(typed.name)), typed.type == "panl"),
        typed.type, typed.creator };
    if (IsKnownName(entry.name)) {
        show({ .text = "The application name already exists, please use a different name." });
        return false;
    }
    // Nobody is asked about overwriting here: no row can have the name by now.
    if (const auto box = CreatorInTheWayByHand(entry)) {
        show(*box);
        return false;
    }
    Save(entry, {}, show);
    return true;
}

} // namespace vypx
