#include "catalogs/CatalogEdits.h"

#include "catalogs/CatalogEntries.h"
#include "catalogs/CatalogFiles.h"
#include "catalogs/Checks.h"
#include "document/WorkingFolder.h"
#include "settings/IniStore.h"

namespace vypx {

namespace {

void Delete(const std::string& file, std::span<const std::string> names, const ShowBox& show)
{
    if (names.empty() || ChangeEntries(file, names, std::nullopt))
        return;
    for (std::size_t i = 0; i < names.size(); ++i)
        show(NotDeletedBox());
}

constexpr Check<std::string> SearchChecks[] = {
    { [](const std::string& creator) { return IsShort(creator); },
        "The Creator field must contain 4 characters" },
    { [](const std::string& creator) { return HasOddCharacter(creator); },
        "Error! The Creator field can contains an invalid character." },
};

/// The first row whose entry in the file has that Creator; null: none has.
const CatalogRow* FindStored(
    const std::vector<CatalogRow>& table, const std::string& file, const std::string& creator)
{
    const auto text = ReadIni(file);
    for (const CatalogRow& row : table)
        if (!row.name.empty() && StoredCreator(*text, row.name) == creator)
            return &row;
    return nullptr;
}

CatalogBox FoundBox(const CatalogRow& row, const char* list)
{
    return { .text = "The icon " + InQuotes(row.name)
            + " has the Creator ID you have entered.\nIt is located in the " + list
            + " Icon list." };
}

} // namespace

void DeleteApplications(std::span<const std::string> names, const ShowBox& show)
{
    Delete(AppListFile(), names, show);
}

void DeletePalmItems(std::span<const std::string> names, const ShowBox& show)
{
    Delete(PalmAppFile(), names, show);
}

void SearchIcon(const std::string& creator, const ShowBox& show)
{
    if (!NamedFileExists(PalmAppFile()))
        show({ .text = "Error! Can't find PalmApp.dat file." });
    if (!NamedFileExists(AppListFile()))
        show({ .text = "Error! Can't find AppList.dat file." });
    if (const auto box = FirstFailure(SearchChecks, creator))
        show(*box);
    else if (const CatalogRow* const app = FindStored(AppTable, AppListFile(), creator))
        show(FoundBox(*app, "Applications"));
    else if (const CatalogRow* const palm = FindStored(PalmTable, PalmAppFile(), creator))
        show(FoundBox(*palm, "Palm System"));
    else
        show({ .text = "The Creator ID you have entered wasn't found." });
}

} // namespace vypx
