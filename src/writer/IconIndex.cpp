#include "writer/IconIndex.h"

#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/Inifile.h"
#include "settings/Settings.h"
#include "writer/CompileIconset.h"

#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>

namespace vypx {

namespace {

constexpr std::string_view IconType = "tAIB";
constexpr int LowestId = 3500, HighestId = 9999;
constexpr double ApplicationClass = 10'000'000'000'000, PanelClass = 20'000'000'000'000;

struct Owner {
    std::string type, creator;

    bool IsKnown() const { return !type.empty() && !creator.empty(); }
};

bool TakesPart(const IconRow& row)
{
    if (row.ResourceKey.empty())
        return false;
    const bool empty = !ImageFileValid(row.LowResFile) && !ImageFileValid(row.HighResFile);
    const int id = IdOf(row.ResourceKey);
    return !empty && !row.IconLabel.empty() && row.IconState == 1
        && row.ResourceKey.starts_with(IconType) && id >= LowestId && id <= HighestId;
}

bool IsLarge(const IconRow& row)
{
    return LabelHolds(row.IconLabel, "(Large Icon)")
        || (KeepUnknown && LabelHolds(row.IconLabel, "Large)"));
}

/// The entry of a catalog file by its section's name; characters 2 to 5 of a Creator are the ID.
Owner LookUp(std::string_view file, const std::string& name)
{
    cInifile ini;
    ini.path(AppFolder + BelowFolder(file));
    ini.Section(name);
    const auto value = [&](const char* key) {
        ini.key(key);
        return ini.Value();
    };
    const std::string creator = value("Creator");
    return { value("Type"), creator.size() < 2 ? std::string() : creator.substr(1, 4) };
}

Owner OwnerByCatalog(const IconRow& row)
{
    constexpr std::size_t SizeWords = 13; // " (Large Icon)"
    const std::size_t length = row.IconLabel.size();
    const std::string name = row.IconLabel.substr(0, length < SizeWords ? 0 : length - SizeWords);
    Owner owner = LookUp("AppList.dat", name);
    if (owner.IsKnown())
        return owner;
    owner = LookUp("PalmApp.dat", name);
    // On purpose: an entry with a type and no creator belongs to the creator of four blanks.
    owner.creator.resize(4, ' ');
    return owner;
}

/// On purpose: the last row that names the ID wins.
Owner OwnerByIndex(int id)
{
    Owner owner;
    for (const ItblRow& row : Itbl)
        if (row.largeId == id || row.smallId == id)
            owner = { row.type, row.creator };
    return owner;
}

std::uint32_t Packed(const std::string& text)
{
    std::uint32_t packed = 0;
    for (std::size_t i = 0; i < 4; ++i)
        packed = packed << 8 | static_cast<std::uint8_t>(i < text.size() ? text[i] : ' ');
    return packed;
}

/// Sorts by the characters, the first before all others; "." counts 0.
double CreatorKey(std::uint32_t creator)
{
    constexpr double Weights[] = { 1e10, 1e7, 1e4, 1 };
    double key = 0;
    for (int i = 0; i < 4; ++i)
        key += (static_cast<int>(creator >> (24 - 8 * i) & 0xFF) - 46) * Weights[i];
    return key;
}

} // namespace

int IdOf(const std::string& key)
{
    if (key.size() < IconType.size())
        return 0;
    return static_cast<int>(std::strtol(key.c_str() + IconType.size(), nullptr, 10));
}

IconIndex CollectIconIndex()
{
    IconIndex index;
    std::unordered_map<std::string, std::size_t> records;
    double lastClass = 0;
    for (const IconRow& row : IconTable) {
        if (!TakesPart(row))
            continue;
        const int id = IdOf(row.ResourceKey);
        const bool byIndex = KeepUnknown && row.IconKind == KindUnknown;
        const Owner owner = byIndex ? OwnerByIndex(id) : OwnerByCatalog(row);
        if (!owner.IsKnown())
            continue;
        const std::uint32_t type = Packed(owner.type), creator = Packed(owner.creator);
        const auto [record, isNew] = records.try_emplace(
            std::to_string(type) + " " + std::to_string(creator), index.values.size());
        if (isNew) {
            // On purpose: any other type keeps the class of the record before it.
            if (owner.type == "appl")
                lastClass = ApplicationClass;
            else if (owner.type == "panl")
                lastClass = PanelClass;
            index.values.push_back({ .type = type, .creator = creator });
            index.keys.push_back({ .entryClass = lastClass, .creator = CreatorKey(creator) });
        }
        ItblValue& value = index.values[record->second];
        (IsLarge(row) ? value.largeId : value.smallId) = static_cast<std::uint16_t>(id);
    }
    return index;
}

void BuildIconTableResource()
{
    if (!FileLoaded)
        return;
    std::error_code ignored;
    std::filesystem::remove(platform::NativePath(WorkPath("iTbl.bin")), ignored);
    const IconIndex all = CollectIconIndex();
    IconIndex kept;
    for (std::size_t i = 0; i < all.values.size(); ++i) {
        if (all.keys[i].entryClass == 0)
            continue;
        kept.values.push_back(all.values[i]);
        kept.keys.push_back(all.keys[i]);
    }
    if (kept.values.empty())
        return;
    const std::string path = WorkPath("iTbl1000.bin");
    if (const std::error_code error = WriteItbl(kept.values, kept.keys, path))
        throw SaveFailure(path, error.message());
}

} // namespace vypx
