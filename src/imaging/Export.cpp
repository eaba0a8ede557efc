#include "imaging/Export.h"

#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/Settings.h"

#include <filesystem>

namespace vypx {

namespace {

/// Links are followed. What can't be found out counts as outside.
bool IsInWorkingFolder(const std::string& path)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path target = fs::weakly_canonical(platform::NativePath(path), error);
    const fs::path folder = error ? platform::NativePath(path) : target;
    return fs::equivalent(folder.parent_path(), platform::NativePath(WorkFolder()), error);
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
