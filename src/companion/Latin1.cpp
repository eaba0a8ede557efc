#include "companion/Latin1.h"

namespace vypx {

std::string Utf8FromLatin1(std::string_view latin1)
{
    std::string utf8;
    for (const char letter : latin1) {
        const auto code = static_cast<unsigned char>(letter);
        if (code < 0x80) {
            utf8 += letter;
        } else {
            utf8 += static_cast<char>(0xC0 | code >> 6);
            utf8 += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return utf8;
}

std::string Latin1FromUtf8(std::string_view utf8)
{
    std::string latin1;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        const bool isContinuation = (byte & 0xC0) == 0x80;
        if (byte < 0x80)
            latin1 += static_cast<char>(byte);
        else if ((byte & 0xFC) == 0xC0 && i + 1 < utf8.size())
            latin1 += static_cast<char>((byte & 3) << 6 | (utf8[++i] & 0x3F));
        else if (!isContinuation)
            latin1 += '?';
    }
    return latin1;
}

} // namespace vypx
