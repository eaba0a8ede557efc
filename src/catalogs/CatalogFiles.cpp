#include "catalogs/CatalogFiles.h"

#include "document/Catalogs.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/Inifile.h"

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
    .file = "AppList.dat",
    .table = AppTable,
    .lastColumn = 3,
    .missing = "Error! Can't find Applist.dat.",
    .corrupt = "Error! Corrupt Creator ID entry found in Applist.dat for ",
    .failed = "Error reading Applist.dat file!!!",
};

const OwnerFile PalmFile{
    .file = "PalmApp.dat",
    .table = PalmTable,
    .lastColumn = 2,
    .missing = "Error! Can't find PalmApp.dat.",
    .corrupt = "Error! Corrupt Creator ID entry found in PalmApp.dat for ",
    .failed = "Error reading PalmApp.Dat file!!!",
};

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    for (char& letter : upper)
        if (letter >= 'a' && letter <= 'z')
            letter = static_cast<char>(letter - 'a' + 'A');
    return upper;
}

std::string& CellOf(CatalogRow& row, std::size_t column, std::size_t lastColumn)
{
    const std::array<std::string*, 4> cells{ &row.name, &row.type, &row.creator, &row.extra };
    if (column > lastColumn)
        throw BeyondTheLastColumn();
    return *cells.at(column);
}

/// The Creator that a value stands for; writes a repaired one back to where `ini` stands.
/// On purpose: only the length is looked at, and one of 5 or beyond 6 silently gives nothing.
std::string CreatorOf(
    const std::string& value, cInifile& ini, const OwnerFile& file, const ShowMessage& show)
{
    constexpr std::size_t Letters = 4, WithBraces = 6;
    if (value.size() == WithBraces)
        return value.substr(1, Letters);
    if (value.size() > Letters)
        return {};
    std::string creator = value;
    creator.resize(Letters, ' ');
    if (value.empty()) {
        creator = "XXXX";
        show(std::string(file.corrupt) + ini.Section()
            + ".\nA Creator ID or XXXX has been assigned to it.");
    }
    ini.Value("{" + creator + "}");
    return creator;
}

/// On purpose: the column is the key's position in its section, whatever the key's name.
void ReadOwner(CatalogRow& row, cInifile& ini, const OwnerFile& file, const ShowMessage& show)
{
    std::vector<std::string> keys;
    std::int32_t count = 0;
    ini.EnumerateCurrentSection(keys, count);
    for (std::size_t k = 1; k <= static_cast<std::size_t>(count); ++k) {
        const std::string name = UpperCase(keys[k]);
        ini.key(keys[k]);
        if (name == "TYPE")
            CellOf(row, k, file.lastColumn) = ini.Value();
        else if (name == "CREATOR")
            CellOf(row, k, file.lastColumn) = CreatorOf(ini.Value(), ini, file, show);
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

/// Rows 1 to n of the table are the file's sections; `readRow` fills what stands below a name.
template <typename Row, typename ReadRow>
void ReadSections(std::string_view file, std::vector<Row>& table, std::string_view missing,
    std::string_view failed, const ShowMessage& show, const ReadRow& readRow)
{
    cInifile ini;
    ini.path(AppFolder + BelowFolder(file));
    if (!platform::ReadWholeFile(ini.path())) // one that can't be read is as good as missing
        show(missing);
    std::vector<std::string> sections;
    std::int32_t count = 0;
    ini.EnumerateAllSections(sections, count);
    table.assign(static_cast<std::size_t>(count) + 1, {});
    try {
        for (std::size_t i = 1; i < table.size(); ++i) {
            table[i].name = sections[i];
            ini.Section(sections[i]);
            readRow(table[i], ini);
        }
    } catch (const BeyondTheLastColumn&) {
        show(failed); // the rows read so far stay
    }
}

void ReadOwners(const OwnerFile& file, const ShowMessage& show)
{
    ReadSections(file.file, file.table, file.missing, file.failed, show,
        [&](CatalogRow& row, cInifile& ini) { ReadOwner(row, ini, file, show); });
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

void ReadAppIni(const ShowMessage& show) { ReadOwners(AppFile, show); }

void ReadPalmAppIni(const ShowMessage& show) { ReadOwners(PalmFile, show); }

void ReadVYIconsIni(const ShowMessage& show)
{
    ReadSections("VY_Icons.dat", VYTable, "Error! Can't find VY_Icons.dat.",
        "Error reading VY_Icons.dat file!!!!", show,
        [](LauncherRow& row, cInifile& ini) { ReadLauncherItem(row, ini); });
}

void ChkDupCreators(const ShowMessage& show) { DuplicateCheck(show).Run(); }

void ReadCatalogs(const ShowMessage& show)
{
    ReadVYIconsIni(show);
    ReadAppIni(show);
    ReadPalmAppIni(show);
    ChkDupCreators(show);
}

} // namespace vypx
