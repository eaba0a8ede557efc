#include "document/ShippedFiles.h"

#include "document/RunningCopies.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

namespace vypx {

namespace {

namespace fs = std::filesystem;
using platform::FileIdentity;

constexpr std::string_view ShippedCatalogs[] = { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" };
constexpr std::string_view OtherShippedData[] = { "TIPOFDAY.TXT", "VYPX.chm", "samples" };

using Shipment = std::map<std::string, FileIdentity>; // by path from the folder

void AddFile(const fs::path& folder, const fs::path& file, Shipment& shipment)
{
    std::error_code unknown;
    if (!fs::is_regular_file(file, unknown))
        return;
    if (const auto identity = platform::IdentityOf(platform::Utf8Path(file)))
        shipment.emplace(platform::Utf8Path(file.lexically_relative(folder)), *identity);
}

Shipment ShipmentIn(const std::string& shipped)
{
    const fs::path folder = platform::NativePath(shipped);
    Shipment shipment;
    for (const std::string_view name : ShippedCatalogs)
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
    return std::to_string(file.volume) + ' ' + std::to_string(file.file) + ' '
        + std::to_string(file.size) + ' ' + std::to_string(file.modified) + ' '
        + std::to_string(file.changed);
}

/// A file whose name was not kept, as a start was ended there, may have been given or not.
bool IsSeen(const ShippedState& state, const std::string& name, const FileIdentity& file)
{
    const auto seen = state.seen.find(name);
    return seen != state.seen.end() && seen->second == TextOfIdentity(file)
        && state.given.contains(name);
}

/// By its numbers, so that 2.10 comes behind 2.9. What is no version is older than any.
bool IsOlderVersion(std::string_view first, std::string_view second)
{
    const auto numbers = [](std::string_view version) {
        std::vector<unsigned> parts;
        const char* const end = version.data() + version.size();
        for (const char* at = version.data(); at < end; ++at) {
            unsigned part = 0;
            const auto [next, error] = std::from_chars(at, end, part);
            if (error != std::errc())
                break;
            parts.push_back(part);
            at = next;
        }
        return parts;
    };
    return numbers(first) < numbers(second);
}

bool HasNothingToDo(const ShippedState& state, const Shipment& shipment, std::string_view version)
{
    if (IsOlderVersion(version, state.version))
        return true;
    return state.version == version
        && std::all_of(shipment.begin(), shipment.end(),
            [&](const auto& file) { return IsSeen(state, file.first, file.second); });
}

/// That a file of that name and content was shipped. 64 bits of FNV-1a and the size: nobody forges
/// what would only be replaced for it.
std::string ContentFact(const std::string& name, const std::vector<std::uint8_t>& bytes)
{
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const std::uint8_t byte : bytes)
        hash = (hash ^ byte) * 0x100000001b3;
    return "content " + std::to_string(hash) + ' ' + std::to_string(bytes.size()) + '\t' + name;
}

bool WriteShipped(const ShippedFile& file)
{
    std::error_code ignored;
    fs::create_directories(platform::NativePath(file.Target()).parent_path(), ignored);
    return !platform::ReplaceFile(file.Target(), file.bytes);
}

/// A file that is no catalog. False: it could not be judged or replaced.
bool UpdateFile(const ShippedFile& file, std::set<std::string>& facts)
{
    const std::string shipped = ContentFact(file.name, file.bytes);
    // What an older kind of state did not keep the content of counts as changed by the user.
    if (!facts.contains(shipped) && facts.contains(KnownFact(file.name))) {
        const auto bytes = platform::ReadWholeFile(file.Target());
        if (!bytes)
            return false;
        const std::string own = ContentFact(file.name, *bytes);
        if (own != shipped && !facts.contains(own))
            return true; // the user's own now
        if (own != shipped && !WriteShipped(file))
            return false;
    }
    facts.insert({ shipped, KnownFact(file.name) });
    return true;
}

bool TakeFile(const ShippedFile& file, ShippedState& state, const UpdateCatalog& updateCatalog)
{
    std::error_code unknown;
    const bool isThere = fs::exists(platform::NativePath(file.Target()), unknown);
    if (unknown)
        return false;
    if (!isThere && state.given.contains(file.name))
        return true; // the user deleted it
    if (!isThere && !WriteShipped(file))
        return false;
    state.given.insert(file.name);
    const bool isCatalog =
        std::find(std::begin(ShippedCatalogs), std::end(ShippedCatalogs), file.name)
        != std::end(ShippedCatalogs);
    return isCatalog ? updateCatalog(file, state.facts) : UpdateFile(file, state.facts);
}

} // namespace

std::string ShippedFile::Target() const
{
    return platform::Utf8Path(platform::NativePath(folder) / platform::NativePath(name));
}

std::string KnownFact(std::string_view name) { return "known\t" + std::string(name); }

void TakeShippedFiles(
    const AppFolders& folders, const UpdateCatalog& updateCatalog, std::string_view version)
{
    if (folders.shipped.empty())
        return;
    const Shipment shipment = ShipmentIn(folders.shipped);
    const auto early = ReadShippedState(folders.work);
    if (early && HasNothingToDo(*early, shipment, version))
        return;
    const CopiesGate gate(folders.work); // or a second copy could go on without the catalogs
    const auto before = ReadShippedState(folders.work);
    if (!before || HasNothingToDo(*before, shipment, version))
        return;
    ShippedState now = *before;
    for (const auto& [name, identity] : shipment) {
        if (IsSeen(now, name, identity))
            continue;
        const std::string from =
            platform::Utf8Path(platform::NativePath(folders.shipped) / platform::NativePath(name));
        auto bytes = platform::ReadWholeFile(from);
        if (bytes && TakeFile({ name, std::move(*bytes), folders.work }, now, updateCatalog)
            && platform::HasRested(identity))
            now.seen[name] = TextOfIdentity(identity);
    }
    now.version = version;
    WriteShippedState(folders.work, *before, now);
}

} // namespace vypx
