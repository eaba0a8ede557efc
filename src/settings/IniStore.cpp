#include "settings/IniStore.h"

#include "platform/Platform.h"
#include "platform/Turn.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <utility>

namespace vypx {

namespace {

using platform::FileIdentity;

/// A file as it was read, and its identity then.
struct Kept {
    std::optional<FileIdentity> identity;
    std::vector<std::uint8_t> bytes;
    std::shared_ptr<const IniText> text = std::make_shared<const IniText>();
    bool sure = false; ///< the identity tells every later write from this state
};

std::string_view AsText(const std::vector<std::uint8_t>& bytes)
{
    return { reinterpret_cast<const char*>(bytes.data()), bytes.size() };
}

/// Whether a write would do, for a file that already reads as it should.
bool CanBeReplaced(const std::string& path)
{
    std::error_code error;
    const std::filesystem::path file =
        std::filesystem::canonical(platform::NativePath(path), error);
    const bool writable = std::ofstream(file, std::ios::app).is_open();
    return !error && writable && platform::FolderIsWritable(platform::Utf8Path(file.parent_path()));
}

/// Two programs that change different keys of one file would take back each other's.
std::string LockFileOf(const std::string& path)
{
    return platform::Utf8Path(platform::NativePath(path).parent_path() / "ini.lock");
}

std::map<std::string, Kept>& AllKept()
{
    static std::map<std::string, Kept> kept;
    return kept;
}

/// The newest state of the file. Its identity is taken before the bytes, so that a write in between
/// is noticed by the next look.
Kept& Look(const std::string& path)
{
    Kept& kept = AllKept()[path];
    const std::optional<FileIdentity> identity = platform::IdentityOf(path);
    if (identity && kept.sure && kept.identity == identity)
        return kept;

    std::optional<std::vector<std::uint8_t>> bytes;
    if (identity)
        bytes = platform::ReadWholeFile(path, MaxIniSize);
    kept.sure = bytes && platform::HasRested(*identity);
    kept.identity = bytes ? identity : std::nullopt;
    if (!bytes)
        bytes.emplace();
    if (*bytes != kept.bytes) {
        kept.text = std::make_shared<const IniText>(AsText(*bytes));
        kept.bytes = std::move(*bytes);
    }
    return kept;
}

bool IsUnreadable(const Kept& kept, const std::string& path)
{
    std::error_code unknown;
    return !kept.identity
        && (std::filesystem::exists(platform::NativePath(path), unknown) || unknown);
}

using HeldTexts = std::map<std::string, std::shared_ptr<const IniText>>;

/// Texts that no file has.
HeldTexts& AllHeld()
{
    static HeldTexts held;
    return held;
}

/// An edit of a text that no file has.
bool EditHeld(std::shared_ptr<const IniText>& held, const std::function<bool(IniText&)>& edit)
{
    IniText text = *held;
    if (!edit(text))
        return false;
    held = std::make_shared<const IniText>(std::move(text));
    return true;
}

} // namespace

std::shared_ptr<const IniText> ReadIni(const std::string& path)
{
    if (path.empty())
        return std::make_shared<const IniText>();
    if (const auto held = AllHeld().find(path); held != AllHeld().end())
        return held->second;
    return Look(path).text;
}

std::shared_ptr<const IniText> ReadIniOrNull(const std::string& path)
{
    if (AllHeld().contains(path))
        return ReadIni(path);
    const Kept& kept = Look(path);
    return IsUnreadable(kept, path) ? nullptr : kept.text;
}

bool IniIsThere(const std::string& path)
{
    // A look would not tell a file without text from none.
    return AllHeld().contains(path) || platform::ReadWholeFile(path);
}

void HoldIni(const std::string& path, std::string_view text)
{
    AllHeld()[path] = std::make_shared<const IniText>(text);
}

bool EditIni(const std::string& path, const std::function<bool(IniText&)>& edit)
{
    if (path.empty())
        return false;
    if (const auto held = AllHeld().find(path); held != AllHeld().end())
        return EditHeld(held->second, edit);
    const platform::Turn turn(LockFileOf(path), platform::Turn::LockFile::Stays);
    const Kept& kept = Look(path);
    if (IsUnreadable(kept, path))
        return false; // what can't be read must not be replaced
    IniText text = *kept.text;
    if (!edit(text))
        return false;
    const std::string bytes = text.Bytes();
    if (bytes == AsText(kept.bytes))
        return !kept.identity || CanBeReplaced(path);
    return !platform::ReplaceFile(
        path, std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()));
}

} // namespace vypx
