#pragma once

#include <string>
#include <string_view>

namespace vypx::platform {

/// UTF-8 of UTF-16 units. A half of a pair that stands alone becomes U+FFFD: names of files may
/// hold one, and a conversion by the library would throw.
template <typename Unit>
std::string Utf8FromWide(std::basic_string_view<Unit> text)
{
    static_assert(sizeof(Unit) == 2);
    constexpr char32_t Unknown = 0xFFFD;
    const auto isHigh = [](char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
    const auto isLow = [](char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
    const auto tail = [](char32_t code, int shift) {
        return static_cast<char>(0x80 | ((code >> shift) & 0x3F));
    };
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = static_cast<char16_t>(text[i]);
        if (isHigh(code) && i + 1 < text.size() && isLow(static_cast<char16_t>(text[i + 1])))
            code = 0x10000 + ((code - 0xD800) << 10) + (static_cast<char16_t>(text[++i]) - 0xDC00);
        else if (isHigh(code) || isLow(code))
            code = Unknown;
        if (code < 0x80)
            bytes += static_cast<char>(code);
        else if (code < 0x800)
            bytes += { static_cast<char>(0xC0 | (code >> 6)), tail(code, 0) };
        else if (code < 0x10000)
            bytes += { static_cast<char>(0xE0 | (code >> 12)), tail(code, 6), tail(code, 0) };
        else
            bytes += { static_cast<char>(0xF0 | (code >> 18)), tail(code, 12), tail(code, 6),
                tail(code, 0) };
    }
    return bytes;
}

} // namespace vypx::platform
