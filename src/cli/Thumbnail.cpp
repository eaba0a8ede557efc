#include "cli/Thumbnail.h"

#include "cli/FirstIcons.h"
#include "cli/OpenIconset.h"
#include "cli/Sheet.h"
#include "cli/WritePng.h"
#include "platform/Platform.h"

#include <filesystem>

namespace vypx {

namespace {

bool IsSameFile(const std::string& one, const std::string& other)
{
    std::error_code error;
    return std::filesystem::equivalent(
        platform::NativePath(one), platform::NativePath(other), error);
}

} // namespace

int Thumbnail(const ThumbnailOptions& options)
{
    if (IsSameFile(options.read.file, options.out)) {
        Tell("OUT is FILE itself");
        return 2;
    }
    FirstIcons icons(static_cast<std::size_t>(IconsOnSheet(options.size)), options.size);
    const ReadEnd end = ReadIconset(options.read, icons);
    TellEnd(end);
    const std::vector<MaskedPicture> pictures = icons.TakePictures();
    if (pictures.empty()) {
        if (end.IsOpened())
            Tell("there is no picture in it");
        return 1;
    }
    if (const std::string why =
            WritePng(options.out, MakeSheet(pictures, options.size), FileWay::Replace);
        !why.empty()) {
        Tell(why);
        return 1;
    }
    return 0;
}

} // namespace vypx
