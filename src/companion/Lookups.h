#pragma once

#include "companion/IconRow.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace vypx {

/// The resource keys that the rows of `IconTable` carry, as a set: 2000 resources are looked up
/// in one load, and a search of the table for each would take longer than all else together.
using ResourceKeys = std::unordered_set<std::string>;

/// Sets `result` to 1 when a row already carries the resource key `name`; leaves it otherwise
/// (the caller clears it).
void ChkDup(const ResourceKeys& keysOfIconTable, const std::string& name, std::int32_t& result);

/// Fills `shareNames` from entry 1 with the labels of the other rows that have the same
/// ResourceKey as the row `label`, in row order, and empties the entries behind them.
/// The caller sizes it to the upper bound of the table; it grows where more rows share than that.
/// A row without a resource key shares with none.
void ChkShared(std::span<const IconRow> iconTable, std::vector<std::string>& shareNames,
    std::string_view label);

} // namespace vypx
