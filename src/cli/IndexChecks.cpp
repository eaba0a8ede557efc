#include "catalogs/OwnerRules.h"
#include "cli/FileChecks.h"
#include "document/Catalogs.h"
#include "document/Document.h"

#include <algorithm>
#include <cstdint>
#include <unordered_set>

namespace vypx {

namespace {

constexpr std::size_t RecordSize = 16;
constexpr std::size_t MostRecords = INT16_MAX; // beyond it the reader gives up

using Names = std::unordered_set<std::string>;

/// What the records of the index are judged by.
struct Known {
    Names bitmaps; ///< resources of icons
    Names owners;  ///< type and creator of the catalogs' entries
    Names seen;    ///< of the records so far
    RowsById launcher;
};

Known KnownOf(std::span<const ListedResource> resources)
{
    Known known{ .launcher = LauncherRows() };
    for (const ListedResource& resource : resources)
        if (resource.HasPictures() || resource.type == "abmp")
            known.bitmaps.insert(resource.Name());
    for (const std::vector<CatalogRow>* table : { &AppTable, &PalmTable })
        for (const CatalogRow& row : *table)
            if (!row.name.empty())
                known.owners.insert(row.type + row.creator);
    return known;
}

/// One of the two icons that a record names.
void CheckId(int id, const std::string& word, const std::string& record, const Known& known,
    const std::string& place, Findings& findings)
{
    if (id == 0)
        return;
    const std::string number = std::to_string(id);
    const auto has = [&](const char* type) { return known.bitmaps.contains(type + number); };
    if (!has("tAIB") && !has("Tbmp") && !has("abmp")) {
        findings.Add(place,
            record + " names the " + word + " icon " + number + ", which is not in the file");
        return;
    }
    if (!known.launcher.Of(id).empty())
        findings.Add(place,
            record + " names the " + word + " icon " + number
                + ", which is the launcher's own by its ID");
    else if (!has("tAIB") || !CanBeIndexed("tAIB" + number))
        findings.Add(place,
            record + " names the " + word + " icon " + number
                + ", which a save can't name: it names tAIB resources from 3500 to 9999");
}

void CheckRecord(
    ByteView record, std::size_t number, Known& known, const std::string& place, Findings& findings)
{
    const std::string type = record.Text(0, 4), creator = record.Text(4, 4);
    const int large = record.U16(8), small = record.U16(10);
    const std::string name = "record " + std::to_string(number) + " (" + type + " " + creator + ")";
    CheckId(large, "large", name, known, place, findings);
    CheckId(small, "small", name, known, place, findings);
    if (large == 0 && small == 0)
        findings.Add(place, name + " names no icon");
    if (type != "appl" && type != "panl")
        findings.Add(place, name + " is of a type that a save may leave out");
    if (!known.owners.contains(type + creator))
        findings.Add(place, name + " is of an application that no catalog knows");
    if (!known.seen.insert(type + creator).second)
        findings.Add(place, name + " is not the first one of its application");
    if (record.U32(12) != 0)
        findings.Add(place, name + " has reserved bytes, which a save makes 0");
}

} // namespace

void CheckIndex(ByteView file, std::span<const ListedResource> resources, Findings& findings)
{
    const auto index = std::find_if(resources.begin(), resources.end(),
        [](const ListedResource& resource) { return resource.type == "iTbl"; });
    if (index == resources.end())
        return;
    const ByteView data = index->Data(file);
    if (data.Size() % RecordSize != 0)
        findings.Add(index->Name(),
            "it has " + std::to_string(data.Size()) + " bytes, which are no records of 16");
    const std::size_t records = data.Size() / RecordSize;
    if (records > MostRecords)
        findings.Add(index->Name(), "it has more than 32767 records: no icons are read");
    Known known = KnownOf(resources);
    for (std::size_t i = 0; i < std::min(records, MostRecords); ++i)
        CheckRecord(data.Part(i * RecordSize, RecordSize), i + 1, known, index->Name(), findings);
}

} // namespace vypx
