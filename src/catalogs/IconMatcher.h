#pragma once

#include "catalogs/OwnerRules.h"
#include "document/Catalogs.h"

#include <cstddef>
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
        Owner owner;           ///< the application's; none for an icon of the launcher
    };

    /// What is said of a resource that no catalog knows.
    struct Note {
        /// "Orphan", or the creator and " - Large" or " - Small".
        std::string text;
        Owner owner; ///< none for an orphan
    };

    /// The launcher's tables only; UseIndex adds the rest once Itbl is read.
    IconMatcher();
    void UseIndex();

    /// Entries of VYTable with that ID, in their order.
    std::vector<Match> LauncherIcons(int id) const;

    /// Large in AppTable, small in AppTable, large in PalmTable, small in PalmTable; in each, index
    /// rows in their order and for each the catalog's rows in theirs. Type and creator both count.
    std::vector<Match> Applications(int id) const;

    /// By the last index row that names it, small before large.
    Note NoteOf(int id) const;

private:
    using RowsByOwner = std::unordered_map<std::string, TableRows>;
    static RowsByOwner ByOwner(const std::vector<CatalogRow>& catalog);

    RowsById m_launcher;
    IndexRows m_index;
    RowsByOwner m_applications, m_palm; // rows of AppTable, PalmTable by type and creator
};

} // namespace vypx
