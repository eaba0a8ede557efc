#include "document/Tips.h"

#include "companion/Latin1.h"
#include "companion/Utf8.h"
#include "platform/Platform.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace vypx {

namespace {

constexpr std::string_view LineEnds = "\r\n";
constexpr std::string_view Blanks = " \t";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// The beginning of a file, as far as it is read, in whole lines.
std::string Beginning(std::ifstream& file)
{
    std::string bytes(MaxTipBytes + 1, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    if (bytes.size() <= MaxTipBytes)
        return bytes;
    const bool isWhole = LineEnds.find(bytes[MaxTipBytes]) != LineEnds.npos;
    bytes.resize(MaxTipBytes);
    const std::size_t end = bytes.find_last_of(LineEnds);
    if (!isWhole)
        bytes.resize(end == bytes.npos ? 0 : end);
    return bytes;
}

} // namespace

std::vector<std::string> TipsIn(std::string_view text)
{
    if (text.starts_with(ByteOrderMark))
        text.remove_prefix(ByteOrderMark.size());
    const std::string utf8 = IsUtf8(text) ? std::string(text) : Utf8FromLatin1(text);
    std::vector<std::string> tips;
    for (std::size_t at = 0; at < utf8.size();) {
        const std::size_t end = std::min(utf8.find_first_of(LineEnds, at), utf8.size());
        const std::string line = utf8.substr(at, end - at);
        if (line.find_first_not_of(Blanks) != line.npos)
            tips.push_back(line);
        at = end + 1;
    }
    return tips;
}

std::optional<std::vector<std::string>> ReadTips(const std::string& sFile)
{
    const std::filesystem::path path = platform::NativePath(sFile);
    std::error_code unknown;
    if (sFile.empty() || !std::filesystem::is_regular_file(path, unknown))
        return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return std::nullopt;
    return TipsIn(Beginning(file));
}

std::size_t PickTip(std::size_t count, double random)
{
    if (count == 0)
        return 0;
    return std::min(static_cast<std::size_t>(random * static_cast<double>(count)), count - 1) + 1;
}

} // namespace vypx
