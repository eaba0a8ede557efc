#pragma once

#include "document/Labels.h"

#include <cstddef>
#include <optional>
#include <string>

namespace vypx {

/// Hands out resource IDs for the new icons of one run: from 3500 upward, even for a large icon and
/// odd for a small one. IDs of IconTable from 3500 to 9999 count as taken, whatever their type.
class ResourceIds {
public:
    /// Highest ID at which a number is looked for. A small icon gets one more.
    static constexpr int Highest = 10000;

    /// Empty: there is none left.
    std::optional<int> Next(SizeClass size);

private:
    int m_maximum = 0;
    std::size_t m_seen = 0; // rows of IconTable that were looked at; a run only adds some
};

/// "tAIB" and the ID.
std::string ResourceKeyOf(int id);

} // namespace vypx
