#include "cli/WritePng.h"

#include "platform/Platform.h"

namespace vypx {

std::string WhyNotWritten(const std::string& path, std::error_code error)
{
    const platform::Refusal refusal = platform::ExplainRefusal(path, error);
    return refusal.path + ": " + refusal.reason;
}

std::string WritePng(const std::string& path, const OpacityPicture& picture, FileWay way)
{
    const PngFile png = PngOf(picture);
    if (!png.whyNot.empty())
        return png.whyNot;
    const std::error_code error = way == FileWay::Replace ? platform::ReplaceFile(path, png.bytes)
                                                          : platform::WriteNewFile(path, png.bytes);
    return error ? WhyNotWritten(path, error) : std::string();
}

} // namespace vypx
