#include "catalogs/OwnerRules.h"
#include "cli/FileChecks.h"
#include "document/Document.h"
#include "reader/IconTableResource.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>

namespace vypx {

namespace {

constexpr std::size_t RecordSize = IndexRecordSize, MostRecords = MaxIndexRecords;

using Names = std::unordered_set<std::string>;

/// What the records of the index are judged by.
struct Known {
    Names bitmaps; ///< resources of icons
    Names seen;    ///< owners of the records so far
    RowsById launcher;
};

Known KnownOf(std::span<const ListedResource> resources)
{
    Known known{ .launcher = LauncherRows() };
    for (const ListedResource& resource : resources)
        if (resource.HasPictures() || resource.type == "abmp")
            known.bitmaps.insert(resource.Name());
    return known;
}

std::string NameOf(ByteView record, std::size_t number)
{
    return "record " + std::to_string(number) + " (" + record.Text(0, 4) + " " + record.Text(4, 4)
        + ")";
}

/// Whether a save can name the icon: what keeps it from that otherwise is told of the ID.
bool CanBeNamed(int id, const Known& known)
{
    const std::string key = "tAIB" + std::to_string(id);
    return known.bitmaps.contains(key) && CanBeIndexed(key) && known.launcher.Of(id).empty();
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
    else if (!CanBeNamed(id, known))
        findings.Add(place,
            record + " names the " + word + " icon " + number
                + ", which a save can't name: it names tAIB resources from 3500 to 9999");
}

void CheckRecord(
    ByteView record, std::size_t number, Known& known, const std::string& place, Findings& findings)
{
    const std::string name = NameOf(record, number);
    const int large = record.U16(8), small = record.U16(10);
    CheckId(large, "large", name, known, place, findings);
    CheckId(small, "small", name, known, place, findings);
    if (large == 0 && small == 0)
        findings.Add(place, name + " names no icon: a save leaves it out");
    if (!known.seen.insert(record.Text(0, 8)).second)
        findings.Add(place, name + " is not the first one of its application");
    if (record.U32(12) != 0)
        findings.Add(place, name + " has reserved bytes, which a save makes 0");
}

/// Type and creator.
std::string OwnerBytes(const ItblValue& value)
{
    std::string bytes;
    for (const std::uint32_t word : { value.type, value.creator })
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>(word >> shift & 0xFF);
    return bytes;
}

const ListedResource* FirstIndex(std::span<const ListedResource> resources)
{
    const auto index = std::find_if(resources.begin(), resources.end(),
        [](const ListedResource& resource) { return resource.type == "iTbl"; });
    return index == resources.end() ? nullptr : &*index;
}

/// What the saved record of the same application does with an icon that a record names.
void CheckWrittenId(int id, int written, const std::string& word, const std::string& record,
    const Known& known, const std::string& place, Findings& findings)
{
    if (id == 0 || id == written || !CanBeNamed(id, known))
        return;
    const std::string instead =
        written == 0 ? "names none" : "names " + std::to_string(written) + " instead";
    findings.Add(place,
        record + " names the " + word + " icon " + std::to_string(id) + ": a save " + instead);
}

} // namespace

void CheckIndex(ByteView file, std::span<const ListedResource> resources, Findings& findings)
{
    const ListedResource* const index = FirstIndex(resources);
    if (!index)
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

void CheckWrittenIndex(ByteView file, std::span<const ListedResource> resources,
    const IconIndex& written, Findings& findings)
{
    const ListedResource* const index = FirstIndex(resources);
    const ByteView data = index ? index->Data(file) : ByteView();
    if (data.Size() % RecordSize != 0)
        return; // it is not read
    const Known known = KnownOf(resources);
    std::unordered_map<std::string, const ItblValue*> saved;
    for (const ItblValue& value : written.values)
        saved[OwnerBytes(value)] = &value;
    for (std::size_t i = 0; i < data.Size() / RecordSize; ++i) {
        const ByteView record = data.Part(i * RecordSize, RecordSize);
        const std::string name = NameOf(record, i + 1);
        const auto found = saved.find(record.Text(0, 8));
        const ItblValue none, &value = found == saved.end() ? none : *found->second;
        CheckWrittenId(record.U16(8), value.largeId, "large", name, known, index->Name(), findings);
        CheckWrittenId(
            record.U16(10), value.smallId, "small", name, known, index->Name(), findings);
    }
}

} // namespace vypx
