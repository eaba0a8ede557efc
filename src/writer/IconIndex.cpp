#include "writer/IconIndex.h"

#include "catalogs/OwnerRules.h"
#include "companion/Numbers.h"
#include "document/Document.h"
#include "document/Labels.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/Inifile.h"
#include "settings/Settings.h"
#include "writer/CompileIconset.h"

#include <filesystem>
#include <string>
#include <unordered_map>
#include <utility>

namespace vypx {

namespace {

constexpr double ApplicationClass = 10'000'000'000'000, PanelClass = 20'000'000'000'000;

bool TakesPart(const IconRow& row, bool forTemplate)
{
    const bool hasPicture = ImageFileValid(row.LowResFile) || ImageFileValid(row.HighResFile);
    return (hasPicture || forTemplate) && !row.IconLabel.empty() && row.IconState == 1
        && CanBeIndexed(row.ResourceKey);
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
    const std::string name(NameInLabel(row.IconLabel));
    Owner owner = LookUp("AppList.dat", name);
    if (owner.IsKnown())
        return owner;
    owner = LookUp("PalmApp.dat", name);
    // On purpose: an entry with a type and no creator belongs to the creator of four blanks.
    owner.creator.resize(4, ' ');
    return owner;
}

/// Whose icon a row is, and how that came to be known.
struct RowOwner {
    Owner owner;
    bool isUnknown = false; ///< no catalog lists the application
    bool fromRow = false;   ///< the catalog file names it no more
};

RowOwner OwnerOf(const IconRow& row, const IndexRows& index)
{
    if (KeepUnknown && row.IconKind == KindUnknown) {
        // On purpose: the last row that names the ID wins.
        const Owner last = index.LastOwner(ResourceId(row.ResourceKey));
        return { .owner = last.IsKnown() ? last : row.owner, .isUnknown = true };
    }
    const Owner named = OwnerByCatalog(row);
    if (named.IsKnown())
        return { .owner = named };
    const bool wasKnown = row.IconKind == KindApp || row.IconKind == KindPalm;
    return wasKnown ? RowOwner{ .owner = row.owner, .fromRow = true } : RowOwner();
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

/// The index in the making, one record for each owner.
class IndexMaker {
public:
    void Add(const RowOwner& from, SizeClass size, int id)
    {
        const std::size_t record = RecordOf(from.owner);
        m_index.ownersFromRows[record] += from.fromRow;
        const bool large = size == SizeClass::Large;
        bool& isKnown = large ? m_known[record].large : m_known[record].small;
        if (from.isUnknown && isKnown)
            return;
        isKnown = isKnown || !from.isUnknown;
        ItblValue& value = m_index.values[record];
        (large ? value.largeId : value.smallId) = static_cast<std::uint16_t>(id);
    }

    IconIndex Taken() { return std::move(m_index); }

private:
    /// Which fields of a record a known icon has filled.
    struct Known {
        bool large = false, small = false;
    };

    std::size_t RecordOf(const Owner& owner)
    {
        const std::uint32_t type = Packed(owner.type), creator = Packed(owner.creator);
        const auto [record, isNew] =
            m_records.try_emplace(std::uint64_t{ type } << 32 | creator, m_index.values.size());
        if (isNew) {
            // On purpose: any other type keeps the class of the record before it.
            if (owner.type == "appl")
                m_lastClass = ApplicationClass;
            else if (owner.type == "panl")
                m_lastClass = PanelClass;
            m_index.values.push_back({ .type = type, .creator = creator });
            m_index.keys.push_back({ .entryClass = m_lastClass, .creator = CreatorKey(creator) });
            m_index.ownersFromRows.push_back(0);
            m_known.emplace_back();
        }
        return record->second;
    }

    IconIndex m_index;
    std::vector<Known> m_known; // row by row with the values
    std::unordered_map<std::uint64_t, std::size_t> m_records;
    double m_lastClass = 0;
};

} // namespace

IconIndex CollectIconIndex(bool forTemplate)
{
    IndexMaker maker;
    const IndexRows itbl = IndexRows::OfItbl();
    for (const IconRow& row : IconTable) {
        if (!TakesPart(row, forTemplate))
            continue;
        const RowOwner from = OwnerOf(row, itbl);
        if (from.owner.IsKnown())
            maker.Add(from, SizeInIndex(row.IconLabel, KeepUnknown), ResourceId(row.ResourceKey));
    }
    return maker.Taken();
}

IconIndex CollectWrittenIndex(bool forTemplate)
{
    IconIndex kept;
    const IconIndex all = CollectIconIndex(forTemplate);
    for (std::size_t i = 0; i < all.values.size(); ++i) {
        if (all.keys[i].entryClass == 0)
            continue;
        kept.values.push_back(all.values[i]);
        kept.keys.push_back(all.keys[i]);
        kept.ownersFromRows.push_back(all.ownersFromRows[i]);
    }
    return kept;
}

IconIndex BuildIconTableResource(bool forTemplate)
{
    if (!FileLoaded)
        return {};
    std::error_code ignored;
    std::filesystem::remove(platform::NativePath(WorkPath("iTbl.bin")), ignored);
    const IconIndex kept = CollectWrittenIndex(forTemplate);
    if (kept.values.empty())
        return kept;
    const std::string path = WorkPath("iTbl1000.bin");
    if (const std::error_code error = WriteItbl(kept.values, kept.keys, path))
        throw SaveFailure(path, error);
    return kept;
}

} // namespace vypx
