#include "document/Tips.h"

#include "companion/Latin1.h"
#include "platform/Platform.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace vypx {

namespace {

constexpr std::string_view LineEnds = "\r\n";
constexpr std::string_view Blanks = " \t";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// Bytes of the character that begins with `lead`, and the least code that needs so many. No
/// bytes: no character begins so.
struct Utf8Lead {
    std::size_t bytes;
    unsigned code, least;
};

Utf8Lead LeadOf(unsigned char lead)
{
    if (lead < 0x80)
        return { 1, lead, 0 };
    if (lead >= 0xC0 && lead < 0xE0)
        return { 2, lead & 0x1Fu, 0x80 };
    if (lead >= 0xE0 && lead < 0xF0)
        return { 3, lead & 0x0Fu, 0x800 };
    if (lead >= 0xF0 && lead < 0xF8)
        return { 4, lead & 0x07u, 0x10000 };
    return {};
}

bool IsUtf8(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Lead lead = LeadOf(static_cast<unsigned char>(text[at]));
        if (lead.bytes == 0 || lead.bytes > text.size() - at)
            return false;
        unsigned code = lead.code;
        for (const char tail : text.substr(at + 1, lead.bytes - 1)) {
            const unsigned bits = static_cast<unsigned char>(tail);
            if ((bits & 0xC0) != 0x80)
                return false;
            code = code << 6 | (bits & 0x3F);
        }
        const bool isHalfOfAPair = code >= 0xD800 && code < 0xE000;
        if (code < lead.least || code > 0x10FFFF || isHalfOfAPair)
            return false;
        at += lead.bytes;
    }
    return true;
}

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
