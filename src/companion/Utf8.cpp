#include "companion/Utf8.h"

#include <cstddef>

namespace vypx {

namespace {

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

} // namespace

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

} // namespace vypx
