#include "catalogs/CatalogFiles.h"

#include "catalogs/CatalogEntries.h"
#include "document/Catalogs.h"
#include "document/WorkingFolder.h"
#include "settings/IniStore.h"
#include "settings/Inifile.h"
#include "settings/LetterCase.h"

#include <array>
#include <stdexcept>
#include <vector>

namespace vypx {

namespace {

/// A value has no column to go to.
class BeyondTheLastColumn : public std::exception { };

/// Where the file of applications and the file of system items differ.
struct OwnerFile {
    std::string_view file;
    std::vector<CatalogRow>& table;
    std::size_t lastColumn;
    std::string_view missing, corrupt, failed;
};

const OwnerFile AppFile{
    .file = AppListName,
    .table = AppTable,
    .lastColumn = 3,
    .missing = "Error! Can't find Applist.dat.",
    .corrupt = "Error! Corrupt Creator ID entry found in Applist.dat for ",
    .failed = "Error reading Applist.dat file!!!",
};

const OwnerFile PalmFile{
    .file = PalmAppName,
    .table = PalmTable,
    .lastColumn = 2,
    .missing = "Error! Can't find PalmApp.dat.",
    .corrupt = "Error! Corrupt Creator ID entry found in PalmApp.dat for ",
    .failed = "Error reading PalmApp.Dat file!!!",
};

std::string& CellOf(CatalogRow& row, std::size_t column, std::size_t lastColumn)
{
    const std::array<std::string*, 4> cells{ &row.name, &row.type, &row.creator, &row.extra };
    if (column > lastColumn)
        throw BeyondTheLastColumn();
    return *cells.at(column);
}

/// One read of such a file.
struct OwnerRead {
    const OwnerFile& file;
    const ShowMessage& show;
    bool couldRepair = true;
};

/// The Creator that a value stands for; writes a repaired one back to where `ini` stands.
std::string CreatorOf(const std::string& value, cInifile& ini, OwnerRead& read)
{
    constexpr std::size_t Letters = 4;
    const std::string creator = CreatorOfValue(value);
    if (value.size() > Letters)
        return creator;
    if (value.empty())
        read.show(std::string(read.file.corrupt) + ini.Section()
            + ".\nA Creator ID or XXXX has been assigned to it.");
    ini.Value("{" + creator + "}");
    read.couldRepair = read.couldRepair && ini.Success();
    return creator;
}

/// On purpose: the column is the key's position in its section, whatever the key's name.
void ReadOwner(CatalogRow& row, cInifile& ini, OwnerRead& read)
{
    std::vector<std::string> keys;
    std::int32_t count = 0;
    ini.EnumerateCurrentSection(keys, count);
    for (std::size_t k = 1; k <= static_cast<std::size_t>(count); ++k) {
        const std::string name = LowerCase(keys[k]);
        ini.key(keys[k]);
        if (name == "type")
            CellOf(row, k, read.file.lastColumn) = ini.Value();
        else if (name == "creator")
            CellOf(row, k, read.file.lastColumn) = CreatorOf(ini.Value(), ini, read);
    }
}

void ReadLauncherItem(LauncherRow& row, cInifile& ini)
{
    const std::array<std::string*, 3> cells{ &row.name, &row.id, &row.extra };
    std::vector<std::string> keys;
    std::int32_t count = 0;
    ini.EnumerateCurrentSection(keys, count);
    for (std::size_t k = 1; k <= static_cast<std::size_t>(count); ++k) {
        if (k >= cells.size())
            throw BeyondTheLastColumn();
        ini.key(keys[k]);
        *cells[k] = ini.Value();
    }
}

/// What the list of names, counted from 1, lacks of those that stand in the file. The last one that
/// is listed may be half a name.
std::optional<CutCatalog> CutOff(
    std::string_view file, const cInifile& ini, const std::vector<std::string>& listed)
{
    std::vector<std::string> names = ReadIni(ini.path())->SectionNames();
    std::erase(names, std::string());
    std::size_t known = 0;
    while (known < names.size() && known + 1 < listed.size() && listed[known + 1] == names[known])
        ++known;
    if (known == names.size())
        return std::nullopt;
    return CutCatalog{ .file = std::string(file),
        .known = static_cast<int>(known),
        .total = static_cast<int>(names.size()) };
}

/// Rows 1 to n of the table are the file's sections; `readRow` fills what stands below a name.
template <typename Row, typename ReadRow>
std::optional<CutCatalog> ReadSections(std::string_view file, std::vector<Row>& table,
    std::string_view missing, std::string_view failed, const ShowMessage& show,
    const ReadRow& readRow)
{
    cInifile ini;
    ini.path(AppFolder + BelowFolder(file));
    if (!IniIsThere(ini.path())) // one that can't be read is as good as missing
        show(missing);
    std::vector<std::string> sections;
    std::int32_t count = 0;
    ini.EnumerateAllSections(sections, count);
    const std::optional<CutCatalog> cut = CutOff(file, ini, sections);
    // Of its own: another read may fill the table while a box of this one stands.
    std::vector<Row> rows(static_cast<std::size_t>(count) + 1);
    bool isWhole = true;
    try {
        for (std::size_t i = 1; i < rows.size(); ++i) {
            rows[i].name = sections[i];
            ini.Section(sections[i]);
            readRow(rows[i], ini);
        }
    } catch (const BeyondTheLastColumn&) {
        isWhole = false; // the rows read so far stay
    }
    table.swap(rows);
    if (!isWhole)
        show(failed);
    return cut;
}

CatalogRead ReadOwners(const OwnerFile& file, const ShowMessage& show)
{
    OwnerRead read{ file, show };
    const auto cut = ReadSections(file.file, file.table, file.missing, file.failed, show,
        [&](CatalogRow& row, cInifile& ini) { ReadOwner(row, ini, read); });
    return { cut, read.couldRepair };
}

class DuplicateCheck {
public:
    explicit DuplicateCheck(const ShowMessage& show)
        : m_show(show)
    {
    }

    void Run()
    {
        for (const CatalogRow& row : AppTable) {
            if (row.name.empty())
                continue;
            TellEarlier(row, AppTable, "the Application List.");
            for (const CatalogRow& palm : PalmTable)
                if (!palm.name.empty() && palm.creator == row.creator)
                    Tell(row, palm, "the Application List and Palm System List.");
        }
        for (const CatalogRow& row : PalmTable)
            if (!row.name.empty())
                TellEarlier(row, PalmTable, "the Palm System List.");
        if (m_found)
            m_show("After you have corrected this error, you will need to close and restart VY "
                   "Pixelworks.");
    }

private:
    /// On purpose: only the first row with that Creator is looked at, and only its name compared.
    void TellEarlier(const CatalogRow& row, const std::vector<CatalogRow>& table, const char* list)
    {
        for (const CatalogRow& other : table) {
            if (other.name.empty() || other.creator != row.creator)
                continue;
            if (other.name != row.name)
                Tell(row, other, list);
            return;
        }
    }

    void Tell(const CatalogRow& first, const CatalogRow& second, const std::string& list)
    {
        m_found = true;
        m_show("An icon with a duplicate Creator ID was found in " + list
            + "\n\nPlease press Edit App List and remove either \"" + first.name + "\" or \""
            + second.name
            + "\".\n\nSee the help section on Duplicate Creator IDs  more information.");
    }

    const ShowMessage& m_show;
    bool m_found = false;
};

} // namespace

std::string AppListFile() { return AppFolder + BelowFolder(AppFile.file); }
std::string PalmAppFile() { return AppFolder + BelowFolder(PalmFile.file); }
std::string VYIconsFile() { return AppFolder + BelowFolder(VYIconsName); }

std::string NoteOf(const CutCatalog& catalog)
{
    return "Only " + std::to_string(catalog.known) + " of the " + std::to_string(catalog.total)
        + " names in " + catalog.file + " are known: together they are too long.";
}

CatalogRead ReadAndRepairApps(const ShowMessage& show) { return ReadOwners(AppFile, show); }
CatalogRead ReadAndRepairPalm(const ShowMessage& show) { return ReadOwners(PalmFile, show); }

std::optional<CutCatalog> ReadAppIni(const ShowMessage& show)
{
    return ReadAndRepairApps(show).cut;
}

std::optional<CutCatalog> ReadPalmAppIni(const ShowMessage& show)
{
    return ReadAndRepairPalm(show).cut;
}

std::optional<CutCatalog> ReadVYIconsIni(const ShowMessage& show)
{
    return ReadSections(VYIconsName, VYTable, "Error! Can't find VY_Icons.dat.",
        "Error reading VY_Icons.dat file!!!!", show,
        [](LauncherRow& row, cInifile& ini) { ReadLauncherItem(row, ini); });
}

void ChkDupCreators(const ShowMessage& show) { DuplicateCheck(show).Run(); }

std::vector<CutCatalog> ReadCatalogs(const ShowMessage& show)
{
    std::vector<CutCatalog> cut;
    for (const auto read : { ReadVYIconsIni, ReadAppIni, ReadPalmAppIni })
        if (const std::optional<CutCatalog> catalog = read(show))
            cut.push_back(*catalog);
    ChkDupCreators(show);
    return cut;
}

} // namespace vypx
