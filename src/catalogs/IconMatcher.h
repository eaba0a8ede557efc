#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vypx {

/// Whom a bitmap resource belongs to, by the catalogs and the icon index. Made once for a walk
/// from VYTable, AppTable, PalmTable and Itbl as they stand then; answers by hash look-up what a
/// search through all rows would answer, in the same order.
class IconMatcher {
public:
    /// A row that the resource earns.
    struct Match {
        std::string label;
        std::string_view kind; ///< KindVY, KindApp or KindPalm
    };

    /// The launcher's tables only; UseIndex adds the rest once Itbl is read.
    IconMatcher();
    void UseIndex();

    /// Entries of VYTable with that ID, in their order. An entry without a name or a number never
    /// matches.
    std::vector<Match> LauncherIcons(int id) const;

    /// Large in AppTable, small in AppTable, large in PalmTable, small in PalmTable; in each, index
    /// rows in their order and for each the catalog's rows in theirs. Type and creator both count.
    std::vector<Match> Applications(int id) const;

    /// The text between the brackets of a resource that no catalog knows: "Orphan", or the creator
    /// of the last index row that names it and " - Large" or " - Small", small before large.
    std::string Note(int id) const;

private:
    using Rows = std::vector<std::size_t>;
    using RowsById = std::unordered_map<int, Rows>;
    using RowsByOwner = std::unordered_map<std::string, Rows>;

    RowsById m_launcher;                // rows of VYTable
    RowsById m_large, m_small;          // rows of Itbl
    RowsByOwner m_applications, m_palm; // rows of AppTable, PalmTable by type and creator
};

/// The number at the beginning of a catalog's ID cell, blanks before it passed over; empty when
/// there is none. "2000" and " 2000 x" are 2000.
std::optional<double> NumberOf(std::string_view cell);

} // namespace vypx
