#include "companion/DatabaseHeader.h"
#include "companion/Latin1.h"
#include "install/InstallResult.h"
#include "install/InstallWays.h"
#include "platform/Folders.h"
#include "platform/Turn.h"
#include "settings/LetterCase.h"

#include <algorithm>

namespace vypx {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t MostIconsetBytes = 64u << 20; // no iconset is nearly as large

/// palm-sync takes no other endings, and none in other letters.
std::string CopyName(const fs::path& file)
{
    const std::string name = platform::Utf8Path(file.filename());
    const std::size_t dot = name.size() - std::min<std::size_t>(name.size(), 4);
    const std::string ending = LowerCase(std::string_view(name).substr(dot));
    const bool isTaken = ending == ".prc" || ending == ".pdb";
    return isTaken ? name.substr(0, dot) + ending : name + ".prc";
}

/// Whether a user of that name has a folder that lies right in the one of all users.
bool CanBeFolder(std::string_view user)
{
    constexpr std::string_view Never =
        platform::PathSeparator == '/' ? std::string_view("/\0", 2) : std::string_view("/\\:\0", 4);
    return !user.empty() && user != "." && user != ".."
        && user.find_first_of(Never) == std::string_view::npos;
}

/// Right for a word between double quotes in a shell.
std::string Quoted(std::string_view word)
{
    constexpr std::string_view Special = "\"\\$`";
    std::string quoted = "\"";
    for (const char letter : word) {
        if (platform::PathSeparator == '/' && Special.find(letter) != std::string_view::npos)
            quoted += '\\';
        quoted += letter;
    }
    return quoted + '"';
}

enum class Waiting { Nothing, ThatFile, SameDatabase, Other };

/// What stands where the copy `target` of the database `bytes`, the file `source`, is to be.
Waiting WhatWaits(const fs::path& target, const fs::path& source, ByteView bytes)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(target, error);
    if (!fs::exists(status))
        return Waiting::Nothing;
    if (!fs::is_regular_file(status))
        return Waiting::Other;
    if (fs::equivalent(target, source, error))
        return Waiting::ThatFile;
    const auto other = platform::ReadFileHead(platform::Utf8Path(target), DatabaseHeaderSize);
    const bool isSame = other && other->size() == DatabaseHeaderSize
        && NameInField(ByteView(*other).Part(0, DatabaseNameSize))
            == NameInField(bytes.Part(0, DatabaseNameSize));
    return isSame ? Waiting::SameDatabase : Waiting::Other;
}

class PalmSyncWay : public InstallWay {
public:
    explicit PalmSyncWay(const std::string& folder)
        : m_folder(folder)
    {
    }

    bool UsesUser() const override { return true; }

    std::int16_t Install(std::string& user, std::string& file) override
    {
        std::error_code error;
        // Whoever the user is: without the file there is nothing to be sent to one.
        if (!fs::is_regular_file(platform::NativePath(file), error))
            return InstallResult::FileMissing;
        if (!CanBeFolder(user))
            return InstallResult::WrongUser;
        if (!fs::is_directory(UserFolder(user), error))
            return error == std::errc::permission_denied ? InstallResult::Unknown
                                                         : InstallResult::WrongUser;
        const std::optional<Bytes> bytes = platform::ReadWholeFile(file, MostIconsetBytes);
        // What is no database can't be installed, and has no name to be compared.
        if (!bytes || bytes->size() < DatabaseHeaderSize)
            return InstallResult::Unknown;

        const fs::path queue = Queue(user);
        const bool isNew = fs::create_directory(queue, error);
        const std::int16_t result = Enqueue(queue, file, *bytes);
        if (isNew && result != InstallResult::Queued)
            fs::remove(queue, error); // only when it is empty
        return result;
    }

    std::string Description() const override { return "palm-sync, in " + m_folder; }

    std::string WhatNext(const std::string& user, const std::string& file) const override
    {
        return "It waits as " + CopyName(platform::NativePath(file)) + " in "
            + platform::Utf8Path(Queue(user)) + ". Run palm-sync sync "
            + Quoted(Utf8FromLatin1(user)) + " -d " + Quoted(m_folder)
            + ", then press HotSync on the handheld.";
    }

private:
    fs::path UserFolder(const std::string& user) const
    {
        return platform::NativePath(m_folder) / platform::NativePath(Utf8FromLatin1(user));
    }
    fs::path Queue(const std::string& user) const { return UserFolder(user) / "install"; }

    static std::int16_t Enqueue(const fs::path& queue, const std::string& file, const Bytes& bytes)
    {
        const platform::Turn turn(
            platform::Utf8Path(queue / "vypx.lock"), platform::Turn::LockFile::Goes);
        const fs::path source = platform::NativePath(file);
        const fs::path target = queue / platform::NativePath(CopyName(source));
        switch (WhatWaits(target, source, bytes)) {
        case Waiting::ThatFile:
            return InstallResult::Queued;
        case Waiting::Other:
            return InstallResult::AlreadyWaiting;
        default:
            return platform::ReplaceFile(platform::Utf8Path(target), bytes, file)
                ? InstallResult::Unknown
                : InstallResult::Queued;
        }
    }

    std::string m_folder;
};

} // namespace

std::unique_ptr<InstallWay> MakePalmSyncWay(const std::string& folder)
{
    return std::make_unique<PalmSyncWay>(folder);
}

} // namespace vypx
