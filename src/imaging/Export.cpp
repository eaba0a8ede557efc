#include "imaging/Export.h"

#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/Settings.h"

#include <filesystem>

namespace vypx {

namespace {

/// Links are followed, also those to what is not there. What can't be found out counts as outside.
bool IsInWorkingFolder(const std::string& path)
{
    namespace fs = std::filesystem;
    const fs::path working = platform::NativePath(WorkFolder());
    std::error_code error;
    fs::path target = platform::FollowLinks(platform::NativePath(path), error);
    target = fs::weakly_canonical(target, error);
    for (fs::path folder = target.parent_path(); folder != folder.parent_path();
         folder = folder.parent_path())
        if (fs::equivalent(folder, working, error))
            return true;
    return false;
}

/// Another name of the same file.
bool IsTheFileItself(const std::string& path, const std::string& working)
{
    std::error_code error;
    return std::filesystem::equivalent(
        platform::NativePath(path), platform::NativePath(working), error);
}

std::string NotWritten(const std::string& path, std::error_code error)
{
    const platform::Refusal refusal = platform::ExplainRefusal(path, error);
    return "The picture was not exported: " + refusal.path + ": " + refusal.reason + ".";
}

} // namespace

ExportReport ExportPicture(const Slot& slot, const std::string& path)
{
    if (!FileExists(slot.path))
        return { .message = "Error saving image." };
    if (IsInWorkingFolder(path) || IsTheFileItself(path, slot.path))
        return { .message = "The picture was not exported: the program keeps its working files in "
                            "that folder. Choose another one." };
    const auto bytes = platform::ReadWholeFile(slot.path);
    if (!bytes)
        return { .note = "The picture was not exported: it can't be read." };
    if (const std::error_code error = platform::ReplaceFile(path, *bytes))
        return { .note = NotWritten(path, error) };
    LastDirImageSave = FolderOf(path);
    return {};
}

} // namespace vypx
