#include "document/Shipment.h"

#include "document/Catalogs.h"
#include "document/Tips.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <vector>

namespace vypx {

namespace {

namespace fs = std::filesystem;
using platform::FileIdentity;

constexpr std::string_view OtherShippedData[] = { TipFileName, "VYPX.chm", "samples" };

void AddFile(const fs::path& folder, const fs::path& file, Shipment& shipment)
{
    std::error_code unknown;
    if (!fs::is_regular_file(file, unknown))
        return;
    if (const auto identity = platform::IdentityOf(platform::Utf8Path(file)))
        shipment.emplace(platform::Utf8Path(file.lexically_relative(folder)), *identity);
}

/// By its numbers, so that 2.10 comes behind 2.9. What is no version is older than any.
bool IsOlderVersion(std::string_view first, std::string_view second)
{
    const auto numbers = [](std::string_view version) {
        std::vector<unsigned> parts;
        while (!version.empty()) {
            unsigned part = 0;
            const auto [next, error] =
                std::from_chars(version.data(), version.data() + version.size(), part);
            if (error != std::errc())
                break;
            parts.push_back(part);
            version.remove_prefix(static_cast<std::size_t>(next - version.data()));
            version.remove_prefix(version.empty() ? 0 : 1);
        }
        return parts;
    };
    return numbers(first) < numbers(second);
}

} // namespace

Shipment ShipmentIn(const std::string& shipped)
{
    const fs::path folder = platform::NativePath(shipped);
    Shipment shipment;
    for (const std::string_view name : CatalogNames)
        AddFile(folder, folder / name, shipment);
    for (const std::string_view name : OtherShippedData) {
        AddFile(folder, folder / name, shipment);
        std::error_code end;
        for (fs::recursive_directory_iterator
                 entry(folder / name, fs::directory_options::skip_permission_denied, end),
             last;
             !end && entry != last; entry.increment(end))
            AddFile(folder, entry->path(), shipment);
    }
    return shipment;
}

std::string TextOfIdentity(const FileIdentity& file)
{
    return std::to_string(file.file) + ' ' + std::to_string(file.size) + ' '
        + std::to_string(file.modified) + ' ' + std::to_string(file.changed);
}

bool IsSeen(const ShippedState& state, const std::string& name, const FileIdentity& file)
{
    const auto seen = state.seen.find(name);
    return seen != state.seen.end() && seen->second.identity == TextOfIdentity(file);
}

bool HasNothingToDo(const ShippedState& state, const Shipment& shipment, std::string_view version)
{
    if (IsOlderVersion(version, state.version))
        return true;
    return state.version == version && state.begun.empty()
        && std::all_of(shipment.begin(), shipment.end(),
            [&](const auto& file) { return IsSeen(state, file.first, file.second); });
}

} // namespace vypx
