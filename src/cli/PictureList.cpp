#include "cli/PictureList.h"

#include "companion/Utf8.h"
#include "platform/Platform.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace vypx {

namespace {

constexpr std::uintmax_t LargestList = std::uintmax_t{ 1 } << 30; // bytes

/// Takes what stands before `end` off the text, and `end` with it; the whole text if there is none.
std::string_view TakeUntil(char end, std::string_view& text)
{
    const std::size_t length = std::min(text.find(end), text.size());
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return taken;
}

const Slot* SlotOf(std::string_view word)
{
    if (word == "high")
        return &SlotLG;
    return word == "low" ? &SlotSM : nullptr;
}

PictureLine Wrong(const char* whyNot) { return { .whyNot = whyNot }; }

/// Takes a number off the text, with the comma behind it. Empty: it is none, or below `least`.
std::optional<int> TakeNumber(int least, std::string_view& text)
{
    const std::string_view digits = TakeUntil(',', text);
    const char* const end = digits.data() + digits.size();
    int number = 0;
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    const bool isNumber = error == std::errc() && stop == end && digits.front() != '-';
    return isNumber && number >= least ? std::optional(number) : std::nullopt;
}

/// "left,top,width,height".
std::optional<PixelRegion> RegionOf(std::string_view text)
{
    if (std::count(text.begin(), text.end(), ',') != 3)
        return std::nullopt;
    const auto left = TakeNumber(0, text), top = TakeNumber(0, text), width = TakeNumber(1, text),
               height = TakeNumber(1, text);
    if (!left || !top || !width || !height)
        return std::nullopt;
    return PixelRegion{ *left, *top, *width, *height };
}

PictureLine ParseLine(std::string_view line)
{
    if (!IsUtf8(line))
        return Wrong("This is no UTF-8 text.");
    if (line.find('\0') != std::string_view::npos)
        return Wrong("There is a zero byte in it.");
    const auto tabs = std::count(line.begin(), line.end(), '\t');
    const std::string_view icon = TakeUntil('\t', line), word = TakeUntil('\t', line),
                           path = TakeUntil('\t', line);
    if (icon.empty() || word.empty() || path.empty())
        return Wrong("An icon, high or low, and a picture are needed, with tabs between them.");
    if (tabs > 3)
        return Wrong("There are more than four fields.");
    if (path.ends_with('/'))
        return Wrong("The path is that of a folder.");
    const Slot* const slot = SlotOf(word);
    if (!slot)
        return Wrong("The second field must be high or low.");
    const std::optional<PixelRegion> region = tabs == 3 ? RegionOf(line) : std::nullopt;
    if (tabs == 3 && !region)
        return Wrong(
            "The fourth field must be the region to cut as left,top,width,height, in whole "
            "pixels, width and height from 1 on.");
    return { .icon = std::string(icon), .slot = slot, .path = std::string(path), .region = region };
}

} // namespace

std::vector<PictureLine> ParsePictureList(std::string_view text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    std::vector<PictureLine> lines;
    for (std::size_t number = 1; !text.empty(); ++number) {
        std::string_view line = TakeUntil('\n', text);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (line.empty() || line.starts_with('#'))
            continue;
        lines.push_back(ParseLine(line));
        lines.back().number = number;
    }
    return lines;
}

std::optional<std::vector<PictureLine>> ReadPictureList(const std::string& path)
{
    const auto bytes = platform::ReadWholeFile(path, LargestList);
    if (!bytes)
        return std::nullopt;
    std::vector<PictureLine> lines =
        ParsePictureList({ reinterpret_cast<const char*>(bytes->data()), bytes->size() });
    const std::filesystem::path folder = platform::NativePath(path).parent_path();
    for (PictureLine& line : lines)
        if (line.whyNot.empty())
            line.path = platform::Utf8Path(folder / platform::NativePath(line.path));
    return lines;
}

} // namespace vypx
