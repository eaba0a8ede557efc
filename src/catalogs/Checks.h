#pragma once

#include "catalogs/CatalogBox.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace vypx {

/// One row of a table of checks: what must not be, and the box that tells it.
template <typename Entry>
struct Check {
    bool (*fails)(const Entry&);
    std::string_view text;
    std::string_view title = {}; ///< empty: the program's
    CatalogBox::Icon icon = CatalogBox::Icon::None;
    bool asks = false;
};

/// The box of the first check of a table that fails, in the table's order.
template <typename Entry, typename Checks>
std::optional<CatalogBox> FirstFailure(const Checks& checks, const Entry& entry)
{
    for (const Check<Entry>& check : checks)
        if (check.fails(entry))
            return CatalogBox{ .text = std::string(check.text),
                .title = std::string(check.title),
                .icon = check.icon,
                .asks = check.asks };
    return std::nullopt;
}

/// Parts of such tests. Types and Creators have four characters.
inline bool IsShort(std::string_view text) { return text.size() < 4; }
inline bool IsOtherType(std::string_view type) { return type != "appl" && type != "panl"; }
/// A character below 32 or from 127 up.
inline bool HasOddCharacter(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char letter) {
        return static_cast<unsigned char>(letter) < 32 || static_cast<unsigned char>(letter) >= 127;
    });
}

inline std::string InQuotes(const std::string& name) { return '"' + name + '"'; }

} // namespace vypx
