#include "companion/Numbers.h"

#include <charconv>
#include <cstdint>

namespace vypx {

std::optional<double> LeadingNumber(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (error != std::errc())
        return std::nullopt;
    return number;
}

std::optional<int> LeadingWhole(std::string_view text, int lowest, int highest)
{
    const std::optional<double> number = LeadingNumber(text);
    if (!number || !(*number >= lowest && *number <= highest))
        return std::nullopt;
    const int whole = static_cast<int>(*number);
    return whole == *number ? std::optional(whole) : std::nullopt;
}

int ResourceId(std::string_view key)
{
    constexpr std::size_t TypeSize = 4;
    return key.size() < TypeSize ? 0
                                 : LeadingWhole(key.substr(TypeSize), 0, UINT16_MAX).value_or(0);
}

} // namespace vypx
